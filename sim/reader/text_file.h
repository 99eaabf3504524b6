// The text files the simulator reads at start-up (tags, scenario).
#pragma once

#include <string>

namespace sim {

// The whole text of the file; false when it cannot be read.
bool readTextFile(const char* path, std::string* text);

}  // namespace sim
