// The library's version, readable without loading it: an ELF note
// ("readelf -n liborlajni.so" shows owner "orla", type 1) whose text,
// "orla-jni x.y.z", "strings" finds as well. The note lives in its own
// allocated section, so stripping keeps it; it has internal linkage and
// adds nothing to the dynamic symbol table. ORLA_VERSION comes from the
// build (the project version).
#include <cstdint>

namespace {

constexpr char kOwner[] = "orla";
constexpr char kText[] = "orla-jni " ORLA_VERSION;

constexpr uint32_t paddedTo4(uint32_t size) { return (size + 3u) & ~3u; }

struct VersionNote {
  uint32_t ownerSize;
  uint32_t textSize;
  uint32_t type;
  char owner[paddedTo4(sizeof kOwner)];
  char text[paddedTo4(sizeof kText)];
};

[[gnu::used, gnu::section(".note.orla.version")]] alignas(4) const VersionNote versionNote = {
    sizeof kOwner, sizeof kText, 1, "orla", "orla-jni " ORLA_VERSION};

}  // namespace
