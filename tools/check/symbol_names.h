// Itanium C++ ABI symbol names, as far as the checks need them.
#pragma once

#include <string>

namespace orla::check {

// The readable form of a mangled name ("f(void*, unsigned int*)"), or the
// name itself when it is not mangled.
std::string Demangle(const std::string& symbol);

// True when symbol is the mangled name of a function called plain (of any
// parameter list): "_Z" then the length of plain then plain.
bool IsMangledFunctionName(const std::string& symbol, const std::string& plain);

}  // namespace orla::check
