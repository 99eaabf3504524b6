// One entry into the simulated C API: records the call with its raw argument
// values and deep captures, writes the outputs and settles the status.
//
//   ApiCall call("RFID_GetAntennaMode", handle, mode);
//   call.outputs({{mode, sizeof *mode, "mode"}});
//   return call.finish();
//
// Status: a status scripted for the function wins; otherwise an unknown
// reader handle gives kInvalidHandle, a missing required pointer
// kInvalidParam, and everything else kSuccess. A failure of a known reader
// becomes its last error. Outputs are written whatever
// the status (NULL ones skipped), so tests can prove that the library takes
// nothing back from a failed call.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <map>
#include <string>
#include <type_traits>
#include <vector>

#include "record/journal.h"
#include "reader/capabilities.h"
#include "reader/last_error.h"
#include "reader/sessions.h"
#include "reader/status.h"

namespace sim {

// An argument's value as it arrived: integers zero-extended from their
// declared width (a 32-bit -1 records as 0xFFFFFFFF, a 16-bit one as
// 0xFFFF), 64-bit values as they are, pointers as their address.
template <class T>
uint64_t raw(T value) {
  if constexpr (std::is_pointer_v<T>) {
    return reinterpret_cast<uintptr_t>(value);
  } else {
    static_assert(std::is_integral_v<T>, "record integers and pointers only");
    return static_cast<uint64_t>(static_cast<std::make_unsigned_t<T>>(value));
  }
}

// Functions that take no reader handle first pass this in its place.
struct NoHandle {};
constexpr NoHandle kNoHandle{};

// One out-parameter: where the caller wants it and how many bytes it takes.
// A named one is required (NULL makes kInvalidParam) and what the caller
// left in it is captured under its name first (tests check presets so).
struct Out {
  void* p;
  size_t n;
  const char* name = nullptr;
};

class ApiCall {
 public:
  template <class... A>
  ApiCall(const char* fn, int64_t handle, A... args)
      : recorder_(fn, {raw(handle), raw(args)...}), fn_(fn), handle_(handle), checksHandle_(true) {}

  template <class... A>
  ApiCall(const char* fn, NoHandle, A... args) : recorder_(fn, {raw(args)...}), fn_(fn) {}

  ApiCall(const ApiCall&) = delete;
  ApiCall& operator=(const ApiCall&) = delete;

  // Deep captures, taken before anything is written.
  void blob(const std::string& name, const void* p, size_t n) {
    recorder_.blob(name, p, n);
    names_.push_back(name);
  }
  void wide(const std::string& name, const wchar_t* s, size_t maxChars) {
    recorder_.wide(name, s, maxChars);
    names_.push_back(name);
  }
  const Blob& captured(const std::string& name) const { return recorder_.captured(name); }
  std::map<std::string, Blob> capturedBlobs() const;

  // A pointer the function cannot work without; NULL makes kInvalidParam.
  void require(const void* p) { missing_ = missing_ || p == nullptr; }
  // A request beyond the reader's capabilities (reader/capabilities.h): an
  // empty reason is none; otherwise kInvalidParam, with the first reason
  // as the last error. A captured antenna selection is checked by finish().
  void refuse(const std::string& reason) {
    if (refusal_.empty()) refusal_ = reason;
  }

  // Writes the scripted output of the function across outs, in order and at
  // their sizes; without a script, defaults instead. Bytes that neither
  // covers are zeroed. Named outs are captured and required first, so call
  // this before finish().
  void outputs(std::initializer_list<Out> outs, const std::vector<uint8_t>& defaults = {});
  // The same, but only when the test scripted an output: without a script
  // the outs are left as they are.
  void outputsIfScripted(std::initializer_list<Out> outs);

  // Appends the journal entry and settles the status (see above).
  int32_t finish();
  // After finish(): whether the test scripted the status (then it stands,
  // and the call changes no reader state).
  bool scripted() const { return scripted_; }

 private:
  Recorder recorder_;
  const char* fn_;
  int64_t handle_ = 0;
  bool checksHandle_ = false;
  bool missing_ = false;
  std::string refusal_;
  bool scripted_ = false;
  std::vector<std::string> names_;

  void captureOuts(std::initializer_list<Out> outs);
  std::vector<Out> writableOuts(std::initializer_list<Out> outs) const;
};

inline std::map<std::string, Blob> ApiCall::capturedBlobs() const {
  std::map<std::string, Blob> blobs;
  for (const std::string& name : names_) blobs[name] = captured(name);
  return blobs;
}

// Lays bytes across outs in their order; what the bytes do not cover is zeroed.
inline void writeOuts(const std::vector<Out>& outs, const std::vector<uint8_t>& bytes) {
  size_t at = 0;
  for (const Out& out : outs) {
    if (out.p != nullptr) {
      auto* dst = static_cast<uint8_t*>(out.p);
      size_t have = at < bytes.size() ? std::min(out.n, bytes.size() - at) : 0;
      if (have > 0) std::memcpy(dst, bytes.data() + at, have);
      std::memset(dst + have, 0, out.n - have);
    }
    at += out.n;
  }
}

inline void ApiCall::captureOuts(std::initializer_list<Out> outs) {
  for (const Out& out : outs) {
    if (out.name == nullptr) continue;
    blob(out.name, out.p, out.n);
    require(out.p);
    missing_ = missing_ || captured(out.name).faulted;
  }
}

// A named out whose capture faulted is not writable either: it is skipped
// like a NULL one instead of crashing the caller's process.
inline std::vector<Out> ApiCall::writableOuts(std::initializer_list<Out> outs) const {
  std::vector<Out> writable(outs);
  for (Out& out : writable) {
    if (out.name != nullptr && captured(out.name).faulted) out.p = nullptr;
  }
  return writable;
}

inline void ApiCall::outputs(std::initializer_list<Out> outs, const std::vector<uint8_t>& defaults) {
  captureOuts(outs);
  std::vector<uint8_t> bytes;
  writeOuts(writableOuts(outs), scriptedOutput(fn_, &bytes) ? bytes : defaults);
}

inline void ApiCall::outputsIfScripted(std::initializer_list<Out> outs) {
  captureOuts(outs);
  std::vector<uint8_t> bytes;
  if (scriptedOutput(fn_, &bytes)) writeOuts(writableOuts(outs), bytes);
}

inline int32_t ApiCall::finish() {
  refuse(selectionProblem(*this));
  int32_t status = kSuccess;
  scripted_ = recorder_.finish(&status);
  if (!scripted_) {
    if (checksHandle_ && !sessionExists(handle_)) return kInvalidHandle;
    if (missing_ || !refusal_.empty()) status = kInvalidParam;
  }
  const bool refused = !scripted_ && !missing_ && !refusal_.empty();
  if (checksHandle_) rememberFailure(handle_, status, fn_, refused ? refusal_ : std::string());
  return status;
}

}  // namespace sim
