#include "reader/text_file.h"

#include <fstream>
#include <sstream>

namespace sim {

bool readTextFile(const char* path, std::string* text) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  std::stringstream content;
  content << in.rdbuf();
  *text = content.str();
  return true;
}

}  // namespace sim
