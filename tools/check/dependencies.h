// The functions a library's other dependencies provide: a build linked with
// a run-time that supplies unversioned functions (a sanitizer's memcpy, say)
// imports them like the reader API's, and they are not the reader API's to
// provide.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "elf_image.h"

namespace orla::check {

// The directories the dynamic loader searches by default on this platform.
const std::vector<std::string>& SystemLibraryDirs();

// Every symbol exported by the libraries the image needs, except `skip`
// (the reader API), each found in `dirs`; one that cannot be found or read
// is passed over.
std::set<std::string> ExportsOfOtherDependencies(const ElfImage& image, const std::string& skip,
                                                 const std::vector<std::string>& dirs);

}  // namespace orla::check
