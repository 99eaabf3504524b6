// Captured blobs by name, and the safe copies they are made of: a pointer
// handed to us is never trusted, an unreadable one is recorded as a fault.
#pragma once

#include <cstddef>
#include <map>
#include <string>

#include "record/journal.h"

namespace sim {

// n bytes at p; absent when p is NULL, faulted when unreadable or of a size
// beyond reason.
Blob copyBlob(const void* p, size_t n);
// The NUL-terminated wide string at s (at most maxChars characters, the
// terminator not included).
Blob copyWide(const wchar_t* s, size_t maxChars);

// A capture sink (see capture_record.h) that keeps the blobs it is given.
class BlobSet {
 public:
  void blob(const std::string& name, const void* p, size_t n) { blobs_[name] = copyBlob(p, n); }
  void wide(const std::string& name, const wchar_t* s, size_t maxChars) { blobs_[name] = copyWide(s, maxChars); }
  void put(const std::string& name, Blob blob) { blobs_[name] = std::move(blob); }
  const Blob& captured(const std::string& name) const;
  const std::map<std::string, Blob>& all() const { return blobs_; }

 private:
  std::map<std::string, Blob> blobs_;
};

}  // namespace sim
