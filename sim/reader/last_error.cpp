#include "reader/last_error.h"

#include <cwchar>

#include "record/captured_fields.h"
#include "record/record_layouts.h"
#include "record/session_layouts.h"
#include "reader/sessions.h"
#include "reader/session_store.h"
#include "reader/status.h"
#include "reader/tag_read.h"

namespace sim {
namespace {

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
  using layout::ErrorInfo;
  using layout::OffsetOf;
  static const size_t timeAt = OffsetOf(ErrorInfo(), "errorTimeStamp", 0);
  static const size_t statusAt = OffsetOf(ErrorInfo(), "rfidStatusCode", 4);
  static const size_t descriptionAt = OffsetOf(ErrorInfo(), "statusDesc", 0);
  static const size_t messageAt = OffsetOf(ErrorInfo(), "vendorMessage", 0);
  std::vector<uint8_t> record(ErrorInfo().size, 0);
  storeSystemTime(record.data(), timeAt, error.time);
  putField<int32_t>(&record, statusAt, error.status);
  putWide(&record, descriptionAt, describeStatus(error.status));
  putWide(&record, messageAt, widened(error.text, (record.size() - messageAt) / sizeof(wchar_t)).c_str());
  return record;
}

}  // namespace sim
