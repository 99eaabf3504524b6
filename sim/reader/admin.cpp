#include "reader/admin.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <cwchar>
#include <memory>
#include <string>

#include "reader/memory_fields.h"
#include "reader/state.h"
#include "record/captured_fields.h"
#include "reader/sessions.h"
#include "reader/session_store.h"
#include "reader/status.h"

namespace sim {
namespace {

// Record sizes and offsets of the reader's side of these calls.
constexpr size_t kSystemInfoSize = 5336;
constexpr size_t kReaderInfoSize = 4160;
constexpr size_t kSystemTimeSize = 16;
constexpr size_t kNameListSize = 24;
constexpr size_t kUpdateInfoSize = 3120;
constexpr size_t kUpdateStatusSize = 1144;
constexpr size_t kUserAppListSize = 16;
constexpr size_t kUserAppEntrySize = 24;
constexpr size_t kReaderInfoName = 0;
constexpr size_t kReaderInfoLocation = 2080;
constexpr size_t kUpdateTextChars = (kUpdateStatusSize - 4) / sizeof(wchar_t);

const std::vector<std::wstring>& timeZoneNames() {
  static const auto* names = new std::vector<std::wstring>{
      L"UTC", L"Europe/London", L"Europe/Berlin", L"America/New_York", L"America/Los_Angeles",
      L"Asia/Kolkata", L"Asia/Tokyo", L"Australia/Sydney"};
  return *names;
}

const std::vector<std::wstring>& factoryProfiles() {
  static const auto* names = new std::vector<std::wstring>{L"default", L"dense", L"fast"};
  return *names;
}

// Texts laid out once and never changed, so the pointers handed to callers
// stay valid while the table is kept.
class TextTable {
 public:
  explicit TextTable(const std::vector<std::wstring>& texts) {
    std::vector<size_t> starts;
    for (const std::wstring& text : texts) {
      starts.push_back(pool_.size());
      pool_.insert(pool_.end(), text.begin(), text.end());
      pool_.push_back(L'\0');
    }
    for (size_t start : starts) pointers_.push_back(pool_.data() + start);
  }

  const wchar_t* at(size_t i) const { return pointers_[i]; }
  const void* pointerArray() const { return pointers_.empty() ? nullptr : pointers_.data(); }

 private:
  std::vector<wchar_t> pool_;
  std::vector<const wchar_t*> pointers_;
};

struct UserApp {
  std::wstring name;
  std::wstring metadata;
  bool running = false;
  bool autoStart = false;
};

// The entries of the application list as handed out, with their texts.
class AppTable {
 public:
  explicit AppTable(const std::vector<UserApp>& apps)
      : texts_(textsOf(apps)), entries_(apps.size() * kUserAppEntrySize) {
    for (size_t i = 0; i < apps.size(); ++i) {
      uint8_t* entry = entries_.data() + i * kUserAppEntrySize;
      storeEntry(entry, texts_.at(2 * i), apps[i], texts_.at(2 * i + 1));
    }
  }

  const void* entries() const { return entries_.empty() ? nullptr : entries_.data(); }

 private:
  static std::vector<std::wstring> textsOf(const std::vector<UserApp>& apps) {
    std::vector<std::wstring> texts;
    for (const UserApp& app : apps) {
      texts.push_back(app.name);
      texts.push_back(app.metadata);
    }
    return texts;
  }

  static void storeEntry(uint8_t* entry, const wchar_t* name, const UserApp& app, const wchar_t* metadata) {
    storePtr(entry, 0, name);
    entry[8] = app.running ? 1 : 0;
    entry[9] = app.autoStart ? 1 : 0;
    storePtr(entry, 16, metadata);
  }

  TextTable texts_;
  std::vector<uint8_t> entries_;
};

struct AdminState {
  bool identitySet = false;
  std::vector<uint8_t> readerInfo;  // as last set, kReaderInfoSize bytes
  int64_t clockOffsetSeconds = 0;
  uint16_t timeZone = 0;
  std::vector<std::wstring> profiles = factoryProfiles();
  int16_t activeProfile = 0;
  std::vector<UserApp> apps;
  int32_t updatePercentage = 0;
  std::wstring updateText = L"No update in progress";
  bool llrpConfigSaved = false;

  // Tables built for answers: the current ones (null once out of date) and
  // every one handed out, kept for callers that still read them.
  std::shared_ptr<const TextTable> profileTable;
  std::shared_ptr<const AppTable> appTable;
  std::vector<std::shared_ptr<const void>> handedOut;
};

using Store = SessionStore<AdminState>;

// Runs f on the state of a connected reader; false for an unknown handle.
template <class F>
bool withState(int64_t handle, F f) {
  if (!sessionExists(handle)) return false;
  Store::instance().update(handle, f);
  return true;
}

// The text of a 260-character field of a captured record, up to its
// terminator.
std::wstring textAt(const Blob& record, size_t offset) {
  std::wstring text;
  for (size_t at = offset; at < offset + kWideFieldBytes; at += sizeof(wchar_t)) {
    const wchar_t c = fieldAt<wchar_t>(record, at);
    if (c == L'\0') break;
    text.push_back(c);
  }
  return text;
}

std::wstring textOf(const Blob& name) { return textAt(name, 0); }

bool usable(const Blob& record, size_t size) { return record.present && record.bytes.size() == size; }

void putText(std::vector<uint8_t>* record, size_t offset, const std::wstring& text) {
  putWide(record, offset, text.c_str());
}

// The default identity a new session finds.
std::vector<uint8_t> factoryReaderInfo() {
  std::vector<uint8_t> info(kReaderInfoSize, 0);
  putText(&info, 0, L"Simulated reader");
  putText(&info, 1040, L"Recording simulator of the reader C API");
  putText(&info, 2080, L"Test bench");
  return info;
}

const std::vector<uint8_t>& readerInfoOf(const AdminState& state) {
  static const auto* factory = new std::vector<uint8_t>(factoryReaderInfo());
  return state.identitySet ? state.readerInfo : *factory;
}

std::wstring upTimeText(int64_t handle) {
  const ReaderPtr reader = findReader(handle);
  const uint64_t seconds = reader ? reader->upTimeMicros() / 1000000 : 0;
  wchar_t text[64];
  std::swprintf(text, 64, L"%llu days %02llu:%02llu:%02llu", static_cast<unsigned long long>(seconds / 86400),
                static_cast<unsigned long long>(seconds / 3600 % 24),
                static_cast<unsigned long long>(seconds / 60 % 60), static_cast<unsigned long long>(seconds % 60));
  return text;
}

// A name list record (time zones, profiles): count, names, active index.
std::vector<uint8_t> nameList(size_t count, const TextTable& names, int16_t active) {
  std::vector<uint8_t> list(kNameListSize, 0);
  putField<uint16_t>(&list, 0, static_cast<uint16_t>(count));
  putField<uint64_t>(&list, 8, reinterpret_cast<uintptr_t>(names.pointerArray()));
  putField<int16_t>(&list, 16, active);
  return list;
}

const TextTable& timeZoneTable() {
  static const auto* table = new TextTable(timeZoneNames());
  return *table;
}

const TextTable& currentProfileTable(AdminState& state) {
  if (!state.profileTable) {
    state.profileTable = std::make_shared<const TextTable>(state.profiles);
    state.handedOut.push_back(state.profileTable);
  }
  return *state.profileTable;
}

const AppTable& currentAppTable(AdminState& state) {
  if (!state.appTable) {
    state.appTable = std::make_shared<const AppTable>(state.apps);
    state.handedOut.push_back(state.appTable);
  }
  return *state.appTable;
}

std::vector<UserApp>::iterator findApp(AdminState& state, const std::wstring& name) {
  return std::find_if(state.apps.begin(), state.apps.end(), [&](const UserApp& app) { return app.name == name; });
}

// Changes the named application with f; kNotFound when it is not installed.
template <class F>
int32_t changeApp(int64_t handle, const Blob& name, F f) {
  int32_t status = kNotFound;
  withState(handle, [&](AdminState& state) {
    auto app = findApp(state, textOf(name));
    if (app == state.apps.end()) return;
    f(state, app);
    state.appTable = nullptr;
    status = kSuccess;
  });
  return status;
}

// "dir/scanner-2.1.pkg" installs as "scanner-2.1".
std::wstring appNameOf(const std::wstring& packageName) {
  const size_t slash = packageName.find_last_of(L'/');
  std::wstring name = slash == std::wstring::npos ? packageName : packageName.substr(slash + 1);
  const size_t dot = name.find_last_of(L'.');
  if (dot != std::wstring::npos && dot > 0) name.erase(dot);
  return name;
}

time_t timeOf(const Blob& time) {
  std::tm fields{};
  fields.tm_year = fieldAt<uint16_t>(time, 0) - 1900;
  fields.tm_mon = fieldAt<uint16_t>(time, 2) - 1;
  fields.tm_mday = fieldAt<uint16_t>(time, 6);
  fields.tm_hour = fieldAt<uint16_t>(time, 8);
  fields.tm_min = fieldAt<uint16_t>(time, 10);
  fields.tm_sec = fieldAt<uint16_t>(time, 12);
  return timegm(&fields);
}

}  // namespace

std::vector<uint8_t> systemInfoAnswer(int64_t handle) {
  std::vector<uint8_t> info(kSystemInfoSize, 0);
  std::vector<uint8_t> identity;
  if (!withState(handle, [&](AdminState& state) { identity = readerInfoOf(state); })) return info;
  putField<uint32_t>(&info, 0, kSystemInfoSize);
  putField<uint32_t>(&info, 4, kSystemInfoSize);
  putText(&info, 8, L"3.2.11");
  putText(&info, 1048, L"1.7.0");
  putText(&info, 2088, upTimeText(handle));
  std::copy_n(identity.begin() + kReaderInfoName, kWideFieldBytes, info.begin() + 3128);
  std::copy_n(identity.begin() + kReaderInfoLocation, kWideFieldBytes, info.begin() + 4168);
  putField<int32_t>(&info, 5208, 196608);  // RAM available, KB
  putField<int32_t>(&info, 5212, 524288);  // flash available, KB
  putField<int32_t>(&info, 5216, 65536);   // RAM used, KB
  putField<int32_t>(&info, 5220, 262144);  // RAM total, KB
  info[5224] = 4;                          // % load of user processes
  info[5225] = 2;                          // % load of system processes
  putField<uint32_t>(&info, 5256, 0);      // mains power
  return info;
}

std::vector<uint8_t> readerInfoAnswer(int64_t handle) {
  std::vector<uint8_t> info(kReaderInfoSize, 0);
  withState(handle, [&](AdminState& state) { info = readerInfoOf(state); });
  return info;
}

// Each field is kept to 259 characters and a terminator.
int32_t keepReaderInfo(int64_t handle, const Blob& info) {
  if (!usable(info, kReaderInfoSize)) return kInvalidParam;
  withState(handle, [&](AdminState& state) {
    state.readerInfo = info.bytes;
    for (size_t field = 0; field < kReaderInfoSize; field += kWideFieldBytes) {
      putField<wchar_t>(&state.readerInfo, field + kWideFieldBytes - sizeof(wchar_t), L'\0');
    }
    state.identitySet = true;
  });
  return kSuccess;
}

std::vector<uint8_t> localTimeAnswer(int64_t handle) {
  std::vector<uint8_t> time(kSystemTimeSize, 0);
  int64_t offset = 0;
  if (!withState(handle, [&](AdminState& state) { offset = state.clockOffsetSeconds; })) return time;
  const auto now = std::chrono::system_clock::now();
  const auto millis = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
  const time_t seconds = std::chrono::system_clock::to_time_t(now) + offset;
  std::tm fields{};
  gmtime_r(&seconds, &fields);
  const int values[] = {fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_wday, fields.tm_mday,
                        fields.tm_hour,        fields.tm_min,     fields.tm_sec,  static_cast<int>(millis)};
  for (size_t i = 0; i < 8; ++i) putField<uint16_t>(&time, 2 * i, static_cast<uint16_t>(values[i]));
  return time;
}

int32_t setLocalTime(int64_t handle, const Blob& time) {
  if (!usable(time, kSystemTimeSize)) return kInvalidParam;
  const uint16_t month = fieldAt<uint16_t>(time, 2);
  const uint16_t day = fieldAt<uint16_t>(time, 6);
  if (month < 1 || month > 12 || day < 1 || day > 31 || fieldAt<uint16_t>(time, 8) > 23 ||
      fieldAt<uint16_t>(time, 10) > 59 || fieldAt<uint16_t>(time, 12) > 59) {
    return kInvalidParam;
  }
  const int64_t offset = timeOf(time) - std::time(nullptr);
  withState(handle, [&](AdminState& state) { state.clockOffsetSeconds = offset; });
  return kSuccess;
}

std::vector<uint8_t> timeZoneListAnswer(int64_t handle) {
  std::vector<uint8_t> list(kNameListSize, 0);
  withState(handle, [&](AdminState& state) {
    list = nameList(timeZoneNames().size(), timeZoneTable(), static_cast<int16_t>(state.timeZone));
  });
  return list;
}

int32_t selectTimeZone(int64_t handle, uint16_t index) {
  if (index >= timeZoneNames().size()) return kInvalidParam;
  withState(handle, [&](AdminState& state) { state.timeZone = index; });
  return kSuccess;
}

std::vector<uint8_t> updateStatusAnswer(int64_t handle) {
  std::vector<uint8_t> status(kUpdateStatusSize, 0);
  withState(handle, [&](AdminState& state) {
    putField<int32_t>(&status, 0, state.updatePercentage);
    putText(&status, 4, state.updateText.substr(0, kUpdateTextChars - 1));
  });
  return status;
}

// The simulated update is over at once.
int32_t updateSoftware(int64_t handle, const Blob& updateInfo) {
  if (!usable(updateInfo, kUpdateInfoSize)) return kInvalidParam;
  const std::wstring hostName = textAt(updateInfo, 0);
  if (hostName.empty()) return kInvalidParam;
  withState(handle, [&](AdminState& state) {
    state.updatePercentage = 100;
    state.updateText = L"Software updated from " + hostName;
  });
  return kSuccess;
}

std::vector<uint8_t> profileListAnswer(int64_t handle) {
  std::vector<uint8_t> list(kNameListSize, 0);
  withState(handle, [&](AdminState& state) {
    list = nameList(state.profiles.size(), currentProfileTable(state), state.activeProfile);
  });
  return list;
}

// The active profile cannot be deleted.
int32_t deleteProfile(int64_t handle, const Blob& name) {
  int32_t status = kNotFound;
  withState(handle, [&](AdminState& state) {
    auto it = std::find(state.profiles.begin(), state.profiles.end(), textOf(name));
    if (it == state.profiles.end()) return;
    const auto index = static_cast<int16_t>(it - state.profiles.begin());
    if (index == state.activeProfile) {
      status = kInvalidParam;
      return;
    }
    state.profiles.erase(it);
    if (index < state.activeProfile) --state.activeProfile;
    state.profileTable = nullptr;
    status = kSuccess;
  });
  return status;
}

int32_t activateProfile(int64_t handle, const Blob& name) {
  int32_t status = kNotFound;
  withState(handle, [&](AdminState& state) {
    auto it = std::find(state.profiles.begin(), state.profiles.end(), textOf(name));
    if (it == state.profiles.end()) return;
    state.activeProfile = static_cast<int16_t>(it - state.profiles.begin());
    status = kSuccess;
  });
  return status;
}

std::vector<uint8_t> userAppListAnswer(int64_t handle) {
  std::vector<uint8_t> list(kUserAppListSize, 0);
  withState(handle, [&](AdminState& state) {
    putField<uint32_t>(&list, 0, static_cast<uint32_t>(state.apps.size()));
    putField<uint64_t>(&list, 8, reinterpret_cast<uintptr_t>(currentAppTable(state).entries()));
  });
  return list;
}

uint32_t installedAppCount(int64_t handle) {
  uint32_t count = 0;
  withState(handle, [&](AdminState& state) { count = static_cast<uint32_t>(state.apps.size()); });
  return count;
}

int32_t userAppRunStatus(int64_t handle, const Blob& name, uint8_t* running) {
  int32_t status = kNotFound;
  *running = 0;
  withState(handle, [&](AdminState& state) {
    auto app = findApp(state, textOf(name));
    if (app == state.apps.end()) return;
    *running = app->running ? 1 : 0;
    status = kSuccess;
  });
  return status;
}

// Installing a package again replaces the application, stopped.
int32_t installUserApp(int64_t handle, const Blob& packageName) {
  const std::wstring package = textOf(packageName);
  const std::wstring name = appNameOf(package);
  if (name.empty()) return kInvalidParam;
  withState(handle, [&](AdminState& state) {
    auto app = findApp(state, name);
    if (app == state.apps.end()) app = state.apps.insert(state.apps.end(), UserApp{name, L"", false, false});
    app->metadata = L"installed from " + package;
    app->running = false;
    state.appTable = nullptr;
  });
  return kSuccess;
}

int32_t uninstallUserApp(int64_t handle, const Blob& name) {
  return changeApp(handle, name, [](AdminState& state, std::vector<UserApp>::iterator app) { state.apps.erase(app); });
}

int32_t runUserApp(int64_t handle, const Blob& name, bool run) {
  return changeApp(handle, name, [run](AdminState&, std::vector<UserApp>::iterator app) { app->running = run; });
}

int32_t setUserAppAutoStart(int64_t handle, const Blob& name, bool autoStart) {
  return changeApp(handle, name,
                   [autoStart](AdminState&, std::vector<UserApp>::iterator app) { app->autoStart = autoStart; });
}

uint8_t llrpConfigSavedAnswer(int64_t handle) {
  uint8_t saved = 0;
  withState(handle, [&](AdminState& state) { saved = state.llrpConfigSaved ? 1 : 0; });
  return saved;
}

int32_t saveLlrpConfig(int64_t handle) {
  withState(handle, [](AdminState& state) { state.llrpConfigSaved = true; });
  return kSuccess;
}

int32_t resetToFactoryDefaults(int64_t handle) {
  withState(handle, [](AdminState& state) {
    AdminState fresh;
    fresh.apps = std::move(state.apps);
    fresh.appTable = std::move(state.appTable);
    fresh.handedOut = std::move(state.handedOut);
    state = std::move(fresh);
  });
  return kSuccess;
}

}  // namespace sim
