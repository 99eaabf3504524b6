#include "reader/last_error.h"

#include <cwchar>

#include "record/captured_fields.h"
#include "reader/sessions.h"
#include "reader/session_store.h"
#include "reader/status.h"
#include "reader/tag_read.h"

namespace sim {
namespace {

constexpr size_t kErrorInfoBytes = 2120;
constexpr size_t kStatusCodeAt = 16;
constexpr size_t kStatusDescAt = 20;
constexpr size_t kVendorMessageAt = 1060;
constexpr size_t kVendorMessageChars = (kErrorInfoBytes - kVendorMessageAt) / sizeof(wchar_t);

struct LastError {
  SystemTime time{};
  int32_t status = 0;
  std::string text;
};

// The text as wide characters, cut to fit its field with the terminator.
std::wstring widened(const std::string& text, size_t maxChars) {
  std::wstring wide;
  for (char c : text) {
    if (wide.size() + 1 >= maxChars) break;
    wide.push_back(static_cast<wchar_t>(static_cast<unsigned char>(c)));
  }
  return wide;
}

}  // namespace

const wchar_t* describeStatus(int32_t status) {
  switch (status) {
    case kSuccess: return L"Success";
    case kInvalidHandle: return L"Invalid reader handle";
    case kInvalidParam: return L"Invalid parameter";
    case kNoReadTags: return L"No tags read";
    case kOperationInProgress: return L"An operation is already in progress";
    case kNoOperationRunning: return L"No operation is running";
    case kNotFound: return L"Not found";
    case kOutOfMemory: return L"Out of memory";
    case kMemoryOverrun: return L"Tag memory overrun";
    case kMemoryLocked: return L"Tag memory locked";
    case kPasswordMismatch: return L"Incorrect tag password";
    default: return L"Unknown status";
  }
}

int32_t rememberFailure(int64_t handle, int32_t status, const char* fn, const std::string& detail) {
  if (status == kSuccess || !sessionExists(handle)) return status;
  LastError error;
  error.time = utcNow();
  error.status = status;
  if (detail.empty()) {
    const wchar_t* description = describeStatus(status);
    error.text = std::string(fn) + ": ";
    for (size_t i = 0; description[i] != L'\0'; ++i) error.text.push_back(static_cast<char>(description[i]));
  } else {
    error.text = std::string(fn) + ": " + detail;
  }
  SessionStore<LastError>::instance().put(handle, std::move(error));
  return status;
}

std::vector<uint8_t> lastErrorRecord(int64_t handle) {
  LastError error;
  SessionStore<LastError>::instance().get(handle, &error);
  std::vector<uint8_t> record(kErrorInfoBytes, 0);
  for (size_t i = 0; i < error.time.size(); ++i) putField<uint16_t>(&record, 2 * i, error.time[i]);
  putField<int32_t>(&record, kStatusCodeAt, error.status);
  putWide(&record, kStatusDescAt, describeStatus(error.status));
  putWide(&record, kVendorMessageAt, widened(error.text, kVendorMessageChars).c_str());
  return record;
}

}  // namespace sim
