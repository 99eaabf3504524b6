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
#include "record/config_layouts.h"
#include "record/named_fields.h"
#include "record/record_layouts.h"
#include "reader/sessions.h"
#include "reader/session_store.h"
#include "reader/status.h"

namespace sim {
namespace {

using layout::ProfileList;
using layout::ReaderInfo;
using layout::SystemInfo;
using layout::TimeZoneList;
using layout::UpdateInfo;
using layout::UpdateStatus;
using layout::UserAppInfo;
using layout::UserAppList;

size_t updateTextChars() {
  return (UpdateStatus().size - layout::OffsetOf(UpdateStatus(), "updateInfo", 0)) / sizeof(wchar_t);
}

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
      : texts_(textsOf(apps)), entries_(apps.size() * UserAppInfo().size) {
    for (size_t i = 0; i < apps.size(); ++i) {
      uint8_t* entry = entries_.data() + i * UserAppInfo().size;
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
    storePtr(entry, offsetOf<uint64_t>(UserAppInfo(), "appName"), name);
    store<uint8_t>(entry, offsetOf<uint8_t>(UserAppInfo(), "runStatus"), app.running ? 1 : 0);
    store<uint8_t>(entry, offsetOf<uint8_t>(UserAppInfo(), "autoStart"), app.autoStart ? 1 : 0);
    storePtr(entry, offsetOf<uint64_t>(UserAppInfo(), "Metadata"), metadata);
  }

  TextTable texts_;
  std::vector<uint8_t> entries_;
};

struct AdminState {
  bool identitySet = false;
  std::vector<uint8_t> readerInfo;  // as last set, a whole READER_INFO
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

void putText(std::vector<uint8_t>* record, const layout::Record& layout, const char* field, const std::wstring& text) {
  putNamedWide(record, layout, field, text.c_str());
}

// The default identity a new session finds.
std::vector<uint8_t> factoryReaderInfo() {
  std::vector<uint8_t> info(ReaderInfo().size, 0);
  putText(&info, ReaderInfo(), "name", L"Simulated reader");
  putText(&info, ReaderInfo(), "description", L"Recording simulator of the reader C API");
  putText(&info, ReaderInfo(), "location", L"Test bench");
  return info;
}

const std::vector<uint8_t>& readerInfoOf(const AdminState& state) {
  static const auto* factory = new std::vector<uint8_t>(factoryReaderInfo());
  return state.identitySet ? state.readerInfo : *factory;
}

void copyText(const std::vector<uint8_t>& identity, const char* from, std::vector<uint8_t>* info, const char* to) {
  std::copy_n(identity.begin() + layout::OffsetOf(ReaderInfo(), from, 0), kWideFieldBytes,
              info->begin() + layout::OffsetOf(SystemInfo(), to, 0));
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

// A name list record (time zones, profiles) by its fields' names: count,
// names, active index.
struct NameListFields {
  const layout::Record& record;
  const char* count;
  const char* names;
  const char* active;
};

std::vector<uint8_t> nameList(const NameListFields& f, size_t count, const TextTable& names, int16_t active) {
  std::vector<uint8_t> list(f.record.size, 0);
  putNamed<uint16_t>(&list, f.record, f.count, static_cast<uint16_t>(count));
  putNamedPointer(&list, f.record, f.names, names.pointerArray());
  putNamed<int16_t>(&list, f.record, f.active, active);
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

uint16_t timeField(const Blob& time, const char* name) { return namedField<uint16_t>(time, layout::SystemTime(), name); }

time_t timeOf(const Blob& time) {
  std::tm fields{};
  fields.tm_year = timeField(time, "Year") - 1900;
  fields.tm_mon = timeField(time, "Month") - 1;
  fields.tm_mday = timeField(time, "Day");
  fields.tm_hour = timeField(time, "Hour");
  fields.tm_min = timeField(time, "Minute");
  fields.tm_sec = timeField(time, "Second");
  return timegm(&fields);
}

}  // namespace

std::vector<uint8_t> systemInfoAnswer(int64_t handle) {
  const layout::Record& r = SystemInfo();
  std::vector<uint8_t> info(r.size, 0);
  std::vector<uint8_t> identity;
  if (!withState(handle, [&](AdminState& state) { identity = readerInfoOf(state); })) return info;
  putNamed<uint32_t>(&info, r, "structInfo.memoryAllocated", static_cast<uint32_t>(r.size));
  putNamed<uint32_t>(&info, r, "structInfo.memoryUsed", static_cast<uint32_t>(r.size));
  putText(&info, r, "radioFirmwareVersion", L"3.2.11");
  putText(&info, r, "fPGAVersion", L"1.7.0");
  putText(&info, r, "upTime", upTimeText(handle));
  copyText(identity, "name", &info, "readerName");
  copyText(identity, "location", &info, "readerLocation");
  putNamed<int32_t>(&info, r, "ramAvailable", 196608);  // KB
  putNamed<int32_t>(&info, r, "flashAvailable", 524288);
  putNamed<int32_t>(&info, r, "ramUsed", 65536);
  putNamed<int32_t>(&info, r, "ramTotal", 262144);
  putNamed<int8_t>(&info, r, "cpuUsageForUserProcesses", 4);    // %
  putNamed<int8_t>(&info, r, "cpuUsageForSystemProcesses", 2);  // %
  putNamed<int16_t>(&info, r, "powersourcetypeEnum", 0);        // mains power
  return info;
}

std::vector<uint8_t> readerInfoAnswer(int64_t handle) {
  std::vector<uint8_t> info(ReaderInfo().size, 0);
  withState(handle, [&](AdminState& state) { info = readerInfoOf(state); });
  return info;
}

// Each field is kept to 259 characters and a terminator.
int32_t keepReaderInfo(int64_t handle, const Blob& info) {
  if (!usable(info, ReaderInfo().size)) return kInvalidParam;
  withState(handle, [&](AdminState& state) {
    state.readerInfo = info.bytes;
    for (const layout::Field& field : ReaderInfo().fields) {
      putField<wchar_t>(&state.readerInfo, field.offset + kWideFieldBytes - sizeof(wchar_t), L'\0');
    }
    state.identitySet = true;
  });
  return kSuccess;
}

std::vector<uint8_t> localTimeAnswer(int64_t handle) {
  std::vector<uint8_t> time(layout::SystemTime().size, 0);
  int64_t offset = 0;
  if (!withState(handle, [&](AdminState& state) { offset = state.clockOffsetSeconds; })) return time;
  const auto now = std::chrono::system_clock::now();
  const auto millis = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
  const time_t seconds = std::chrono::system_clock::to_time_t(now) + offset;
  std::tm fields{};
  gmtime_r(&seconds, &fields);
  const int values[] = {fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_wday, fields.tm_mday,
                        fields.tm_hour,        fields.tm_min,     fields.tm_sec,  static_cast<int>(millis)};
  for (size_t i = 0; i < layout::SystemTime().fields.size(); ++i) {
    putField<uint16_t>(&time, layout::SystemTime().fields[i].offset, static_cast<uint16_t>(values[i]));
  }
  return time;
}

int32_t setLocalTime(int64_t handle, const Blob& time) {
  if (!usable(time, layout::SystemTime().size)) return kInvalidParam;
  const uint16_t month = timeField(time, "Month");
  const uint16_t day = timeField(time, "Day");
  if (month < 1 || month > 12 || day < 1 || day > 31 || timeField(time, "Hour") > 23 ||
      timeField(time, "Minute") > 59 || timeField(time, "Second") > 59) {
    return kInvalidParam;
  }
  const int64_t offset = timeOf(time) - std::time(nullptr);
  withState(handle, [&](AdminState& state) { state.clockOffsetSeconds = offset; });
  return kSuccess;
}

std::vector<uint8_t> timeZoneListAnswer(int64_t handle) {
  std::vector<uint8_t> list(TimeZoneList().size, 0);
  withState(handle, [&](AdminState& state) {
    list = nameList({TimeZoneList(), "numTimeZones", "timeZoneNames", "activeTimeZoneIndex"}, timeZoneNames().size(),
                    timeZoneTable(), static_cast<int16_t>(state.timeZone));
  });
  return list;
}

int32_t selectTimeZone(int64_t handle, uint16_t index) {
  if (index >= timeZoneNames().size()) return kInvalidParam;
  withState(handle, [&](AdminState& state) { state.timeZone = index; });
  return kSuccess;
}

std::vector<uint8_t> updateStatusAnswer(int64_t handle) {
  std::vector<uint8_t> status(UpdateStatus().size, 0);
  withState(handle, [&](AdminState& state) {
    putNamed<int32_t>(&status, UpdateStatus(), "percentage", state.updatePercentage);
    putText(&status, UpdateStatus(), "updateInfo", state.updateText.substr(0, updateTextChars() - 1));
  });
  return status;
}

// The simulated update is over at once.
int32_t updateSoftware(int64_t handle, const Blob& updateInfo) {
  if (!usable(updateInfo, UpdateInfo().size)) return kInvalidParam;
  const std::wstring hostName = textAt(updateInfo, layout::OffsetOf(UpdateInfo(), "hostName", 0));
  if (hostName.empty()) return kInvalidParam;
  withState(handle, [&](AdminState& state) {
    state.updatePercentage = 100;
    state.updateText = L"Software updated from " + hostName;
  });
  return kSuccess;
}

std::vector<uint8_t> profileListAnswer(int64_t handle) {
  std::vector<uint8_t> list(ProfileList().size, 0);
  withState(handle, [&](AdminState& state) {
    list = nameList({ProfileList(), "numProfiles", "profileNames", "activeProfileIndex"}, state.profiles.size(),
                    currentProfileTable(state), state.activeProfile);
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
  std::vector<uint8_t> list(UserAppList().size, 0);
  withState(handle, [&](AdminState& state) {
    putNamed<uint32_t>(&list, UserAppList(), "numApps", static_cast<uint32_t>(state.apps.size()));
    putNamedPointer(&list, UserAppList(), "apps", currentAppTable(state).entries());
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
