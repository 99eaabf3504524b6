#include "symbol_names.h"

#include <cxxabi.h>

#include <cstdlib>

namespace orla::check {

std::string Demangle(const std::string& symbol) {
  int status = 0;
  char* readable = abi::__cxa_demangle(symbol.c_str(), nullptr, nullptr, &status);
  if (status != 0 || readable == nullptr) return symbol;
  std::string result(readable);
  std::free(readable);
  return result;
}

bool IsMangledFunctionName(const std::string& symbol, const std::string& plain) {
  const std::string prefix = "_Z" + std::to_string(plain.size()) + plain;
  return symbol.size() > prefix.size() && symbol.compare(0, prefix.size(), prefix) == 0;
}

}  // namespace orla::check
