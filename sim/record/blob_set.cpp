#include "record/blob_set.h"

#include "record/safe_memory.h"

namespace sim {
namespace {

// No record the library sends comes near this; a larger size is a garbage
// length field and is recorded as a fault rather than allocated.
constexpr size_t kMaxBlobBytes = size_t{64} << 20;

}  // namespace

Blob copyBlob(const void* p, size_t n) {
  Blob blob;
  if (p == nullptr) return blob;
  blob.present = true;
  if (n <= kMaxBlobBytes) {
    blob.bytes.resize(n);
    if (safeCopy(blob.bytes.data(), p, n)) return blob;
  }
  blob.bytes.clear();
  blob.faulted = true;
  return blob;
}

Blob copyWide(const wchar_t* s, size_t maxChars) {
  Blob blob;
  if (s == nullptr) return blob;
  blob.present = true;
  blob.faulted = !safeWide(s, maxChars, &blob.bytes);
  if (blob.faulted) blob.bytes.clear();
  return blob;
}

const Blob& BlobSet::captured(const std::string& name) const {
  static const Blob absent;
  auto it = blobs_.find(name);
  return it == blobs_.end() ? absent : it->second;
}

}  // namespace sim
