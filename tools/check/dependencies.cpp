#include "dependencies.h"

#include <unistd.h>

namespace orla::check {

const std::vector<std::string>& SystemLibraryDirs() {
  static const std::vector<std::string> dirs = {"/lib/x86_64-linux-gnu", "/usr/lib/x86_64-linux-gnu", "/lib64",
                                                "/usr/lib64", "/lib", "/usr/lib"};
  return dirs;
}

std::set<std::string> ExportsOfOtherDependencies(const ElfImage& image, const std::string& skip,
                                                 const std::vector<std::string>& dirs) {
  std::set<std::string> exports;
  for (const std::string& needed : image.needed) {
    if (needed == skip) continue;
    for (const std::string& dir : dirs) {
      const std::string path = dir + "/" + needed;
      if (access(path.c_str(), R_OK) != 0) continue;
      ElfResult dependency = LoadElf(path);
      if (dependency.image) {
        for (const DynamicSymbol& s : dependency.image->symbols) {
          if (FindExport(*dependency.image, s.name) != nullptr) exports.insert(s.name);
        }
      }
      break;
    }
  }
  return exports;
}

}  // namespace orla::check
