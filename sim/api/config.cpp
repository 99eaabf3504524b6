// Reader configuration and management: capabilities, antennas, radio, GPIO
// and LED, reader information, clock, statistics, health, profiles,
// updates and user applications. Setters record what they were sent;
// getters capture what the caller left in their outputs (tests check
// presets so) and then write the scripted output, or zeros.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "reader/antenna_settings.h"
#include "reader/capabilities.h"
#include "record/api_call.h"
#include "reader/radio_io_settings.h"
#include "reader/admin.h"
#include "reader/default_caps.h"
#include "record/captured_fields.h"
#include "record/capture_record.h"
#include "record/config_layouts.h"
#include "record/named_fields.h"
#include "record/record_layouts.h"
#include "reader/status.h"

namespace sim {
namespace {

// The cable-loss list holds as many record pointers as the call says; a
// count beyond this is not believed.
constexpr uint16_t kMaxCableLossRecords = 64;

std::string cableLossName(uint16_t i) { return "cableLoss[" + std::to_string(i) + "]"; }

// Returns how many records were captured.
uint16_t captureCableLoss(ApiCall& call, uint16_t count, const void* records) {
  count = std::min(count, kMaxCableLossRecords);
  call.blob("cableLoss", records, count * sizeof(void*));
  const Blob& list = call.captured("cableLoss");
  if (!list.present || list.faulted) return 0;
  for (uint16_t i = 0; i < count; ++i) {
    layout::captureRecord(call, cableLossName(i), pointerAt(list, i * sizeof(void*)), layout::CableLossCompensation());
  }
  return count;
}

// Keeps each readable record under its antenna.
void keepCableLossRecords(const ApiCall& call, int64_t handle, uint16_t captured) {
  for (uint16_t i = 0; i < captured; ++i) {
    const Blob& record = call.captured(cableLossName(i));
    if (record.present && !record.faulted) keepCableLoss(handle, record.bytes);
  }
}

}  // namespace
}  // namespace sim

using sim::ApiCall;

extern "C" {

// Capabilities.

// Without a script, a four-port reader (see reader_caps_default.h).
int32_t RFID_GetReaderCapsW(int64_t handle, void* caps) {
  ApiCall call("RFID_GetReaderCapsW", handle, caps);
  call.outputs({{caps, sim::layout::ReaderCaps().size, "caps"}}, sim::defaultReaderCaps());
  return call.finish();
}

// Antennas. Without a scripted output, getters answer with what the
// reader kept from successful sets (see antenna_settings.h).

int32_t RFID_SetAntennaConfig(int64_t handle, uint16_t antennaID, uint16_t first, uint16_t second,
                              uint16_t third) {
  ApiCall call("RFID_SetAntennaConfig", handle, antennaID, first, second, third);
  call.refuse(sim::antennaProblem(antennaID));
  call.refuse(sim::antennaIndicesProblem(first, second, third));
  const int32_t status = call.finish();
  if (status == sim::kSuccess) sim::keepAntennaIndices(handle, antennaID, first, second, third);
  return status;
}

int32_t RFID_GetAntennaConfig(int64_t handle, uint16_t antennaID, uint16_t* first, uint16_t* second,
                              uint16_t* third) {
  ApiCall call("RFID_GetAntennaConfig", handle, antennaID, first, second, third);
  call.refuse(sim::antennaProblem(antennaID));
  call.outputs({{first, 2, "first"}, {second, 2, "second"}, {third, 2, "third"}},
               sim::antennaIndicesOf(handle, antennaID));
  return call.finish();
}

int32_t RFID_GetAntennaRfConfig(int64_t handle, uint16_t antennaID, void* config) {
  ApiCall call("RFID_GetAntennaRfConfig", handle, antennaID, config);
  call.refuse(sim::antennaProblem(antennaID));
  call.outputs({{config, sim::layout::AntennaRfConfig().size, "config"}}, sim::antennaRfConfigOf(handle, antennaID));
  return call.finish();
}

// The whole block is captured; a NULL configuration is refused.
int32_t RFID_SetAntennaRfConfig(int64_t handle, uint16_t antennaID, void* config) {
  ApiCall call("RFID_SetAntennaRfConfig", handle, antennaID, config);
  sim::layout::captureRecord(call, "config", config, sim::layout::AntennaRfConfigBlock());
  call.require(config);
  call.refuse(sim::antennaProblem(antennaID));
  call.refuse(sim::rfConfigProblem(call.captured("config")));
  const int32_t status = call.finish();
  const sim::Blob& block = call.captured("config");
  if (status == sim::kSuccess && block.present && !block.faulted) {
    sim::keepAntennaRfConfig(handle, antennaID, block.bytes);
  }
  return status;
}

int32_t RFID_SetCableLossCompensation(int64_t handle, uint16_t count, void* records) {
  ApiCall call("RFID_SetCableLossCompensation", handle, count, records);
  const uint16_t captured = sim::captureCableLoss(call, count, records);
  const int32_t status = call.finish();
  if (status == sim::kSuccess) sim::keepCableLossRecords(call, handle, captured);
  return status;
}

int32_t RFID_GetCableLossCompensation(int64_t handle, void* record) {
  ApiCall call("RFID_GetCableLossCompensation", handle, record);
  const sim::layout::Record& cableLoss = sim::layout::CableLossCompensation();
  sim::layout::captureRecord(call, "cableLoss", record, cableLoss);
  call.require(record);
  const auto antennaID = sim::namedField<uint16_t>(call.captured("cableLoss"), cableLoss, "antennaID");
  call.outputs({{record, cableLoss.size}}, sim::cableLossOf(handle, antennaID));
  return call.finish();
}

int32_t RFID_GetPhysicalAntennaProperties(int64_t handle, uint16_t antennaID, uint8_t* flag, int32_t* value) {
  ApiCall call("RFID_GetPhysicalAntennaProperties", handle, antennaID, flag, value);
  call.refuse(sim::antennaProblem(antennaID));
  call.outputs({{flag, 1, "flag"}, {value, 4, "value"}});
  return call.finish();
}

int32_t RFID_SetAntennaMode(int64_t handle, uint32_t mode) {
  ApiCall call("RFID_SetAntennaMode", handle, mode);
  const int32_t status = call.finish();
  if (status == sim::kSuccess) sim::keepAntennaMode(handle, mode);
  return status;
}

int32_t RFID_GetAntennaMode(int64_t handle, uint32_t* mode) {
  ApiCall call("RFID_GetAntennaMode", handle, mode);
  call.outputs({{mode, 4, "mode"}}, sim::antennaModeOf(handle));
  return call.finish();
}

int32_t RFID_GetReadPointStatus(int64_t handle, uint16_t antennaID, uint8_t* status) {
  ApiCall call("RFID_GetReadPointStatus", handle, antennaID, status);
  call.refuse(sim::antennaProblem(antennaID));
  call.outputs({{status, 1, "status"}}, sim::readPointStatusOf(handle, antennaID));
  return call.finish();
}

int32_t RFID_EnableReadPoint(int64_t handle, uint16_t antennaID, uint8_t enable) {
  ApiCall call("RFID_EnableReadPoint", handle, antennaID, enable);
  call.refuse(sim::antennaProblem(antennaID));
  const int32_t status = call.finish();
  if (status == sim::kSuccess) sim::keepReadPointEnabled(handle, antennaID, enable != 0);
  return status;
}

// Radio.

// The getters answer with what the setters were last given (radio on, the
// rest zero, before that) unless a test scripted their output.

int32_t RFID_SetRFMode(int64_t handle, uint16_t antennaID, uint32_t first, uint32_t second) {
  ApiCall call("RFID_SetRFMode", handle, antennaID, first, second);
  call.refuse(sim::antennaProblem(antennaID));
  call.refuse(sim::rfModeProblem(first));
  return sim::keepRadioIo(handle, call.finish(),
                          [&](sim::RadioIoSettings& kept) { kept.rfMode[antennaID] = {first, second}; });
}

int32_t RFID_GetRFMode(int64_t handle, uint16_t antennaID, uint32_t* first, uint32_t* second) {
  ApiCall call("RFID_GetRFMode", handle, antennaID, first, second);
  call.refuse(sim::antennaProblem(antennaID));
  call.outputs({{first, 4, "first"}, {second, 4, "second"}}, sim::keptRadioIo(handle).rfModeAnswer(antennaID));
  return call.finish();
}

// The scratch areas of the duty-cycle pair are the library's; nothing is
// read from or written to them.
int32_t RFID_SetDutyCycle(int64_t handle, uint16_t dutyCycleIndex, void* scratch) {
  ApiCall call("RFID_SetDutyCycle", handle, dutyCycleIndex, scratch);
  return sim::keepRadioIo(handle, call.finish(),
                          [&](sim::RadioIoSettings& kept) { kept.dutyCycleIndex = dutyCycleIndex; });
}

int32_t RFID_GetDutyCycle(int64_t handle, uint16_t* dutyCycleIndex, void* scratch) {
  ApiCall call("RFID_GetDutyCycle", handle, dutyCycleIndex, scratch);
  call.outputs({{dutyCycleIndex, 2, "dutyCycleIndex"}}, sim::answerBytes(sim::keptRadioIo(handle).dutyCycleIndex));
  return call.finish();
}

int32_t RFID_SetRadioPowerState(int64_t handle, uint8_t on) {
  ApiCall call("RFID_SetRadioPowerState", handle, on);
  return sim::keepRadioIo(handle, call.finish(), [&](sim::RadioIoSettings& kept) { kept.radioOn = on; });
}

int32_t RFID_GetRadioPowerState(int64_t handle, uint8_t* on) {
  ApiCall call("RFID_GetRadioPowerState", handle, on);
  call.outputs({{on, 1, "on"}}, sim::answerBytes(sim::keptRadioIo(handle).radioOn));
  return call.finish();
}

int32_t RFID_TurnOffRadioWhenIdle(int64_t handle, uint32_t timeout) {
  ApiCall call("RFID_TurnOffRadioWhenIdle", handle, timeout);
  return sim::keepRadioIo(handle, call.finish(),
                          [&](sim::RadioIoSettings& kept) { kept.idleTimeoutMilliseconds = timeout; });
}

int32_t RFID_GetRadioIdleTimeout(int64_t handle, uint32_t* timeout) {
  ApiCall call("RFID_GetRadioIdleTimeout", handle, timeout);
  call.outputs({{timeout, 4, "timeout"}}, sim::answerBytes(sim::keptRadioIo(handle).idleTimeoutMilliseconds));
  return call.finish();
}

int32_t RFID_GetPowerNegotiationStatus(int64_t handle, int32_t* status) {
  ApiCall call("RFID_GetPowerNegotiationStatus", handle, status);
  call.outputs({{status, 4, "status"}});
  return call.finish();
}

int32_t RFID_SetPowerNegotiationState(int64_t handle, uint8_t state) {
  ApiCall call("RFID_SetPowerNegotiationState", handle, state);
  return sim::keepRadioIo(handle, call.finish(), [&](sim::RadioIoSettings& kept) { kept.powerNegotiation = state; });
}

int32_t RFID_GetPowerNegotiationState(int64_t handle, uint8_t* state) {
  ApiCall call("RFID_GetPowerNegotiationState", handle, state);
  call.outputs({{state, 1, "state"}}, sim::answerBytes(sim::keptRadioIo(handle).powerNegotiation));
  return call.finish();
}

int32_t RFID_GetUSBOperationMode(int64_t handle, void* settings) {
  ApiCall call("RFID_GetUSBOperationMode", handle, settings);
  call.outputs({{settings, sim::layout::UsbOperationModeSettings().size, "settings"}}, sim::keptRadioIo(handle).usbSettings);
  return call.finish();
}

// A NULL record is refused; one that could not be read is not kept.
int32_t RFID_SetUSBOperationMode(int64_t handle, void* settings) {
  ApiCall call("RFID_SetUSBOperationMode", handle, settings);
  const sim::layout::Record& usb = sim::layout::UsbOperationModeSettings();
  sim::layout::captureRecord(call, "settings", settings, usb);
  call.require(settings);
  const std::vector<uint8_t> sent = call.captured("settings").bytes;
  return sim::keepRadioIo(handle, call.finish(), [&](sim::RadioIoSettings& kept) {
    if (sent.size() == usb.size) kept.usbSettings = sent;
  });
}

// GPIO and LED.

int32_t RFID_EnableGPIPort(int64_t handle, int32_t port, uint8_t enable) {
  ApiCall call("RFID_EnableGPIPort", handle, port, enable);
  return call.finish();
}

int32_t RFID_GetGPIState(int64_t handle, int32_t port, uint8_t* state, int32_t* value) {
  ApiCall call("RFID_GetGPIState", handle, port, state, value);
  call.outputs({{state, 1, "state"}, {value, 4, "value"}});
  return call.finish();
}

// An output port reads back the state it was last set to (0 before that).
int32_t RFID_SetGPOState(int64_t handle, int32_t port, uint8_t state) {
  ApiCall call("RFID_SetGPOState", handle, port, state);
  return sim::keepRadioIo(handle, call.finish(), [&](sim::RadioIoSettings& kept) { kept.gpoState[port] = state; });
}

int32_t RFID_GetGPOState(int64_t handle, int32_t port, uint8_t* state) {
  ApiCall call("RFID_GetGPOState", handle, port, state);
  call.outputs({{state, 1, "state"}}, sim::answerBytes(sim::keptRadioIo(handle).gpoAnswer(port)));
  return call.finish();
}

// The debounce pair and the LED refuse a NULL record. The getter's scripted
// output covers its value and then the record, which is in and out.
int32_t RFID_SetGPIDebounceTime(int64_t handle, int32_t value, void* debounce) {
  ApiCall call("RFID_SetGPIDebounceTime", handle, value, debounce);
  sim::layout::captureRecord(call, "debounce", debounce, sim::layout::GpiDebounce());
  call.require(debounce);
  return call.finish();
}

int32_t RFID_GetGPIDebounceTime(int64_t handle, uint32_t* value, void* debounce) {
  ApiCall call("RFID_GetGPIDebounceTime", handle, value, debounce);
  sim::layout::captureRecord(call, "debounce", debounce, sim::layout::GpiDebounce());
  call.require(debounce);
  call.outputs({{value, 4, "value"}, {debounce, sim::layout::GpiDebounce().size}});
  return call.finish();
}

int32_t RFID_SetUserLED(int64_t handle, void* ledInfo) {
  ApiCall call("RFID_SetUserLED", handle, ledInfo);
  sim::layout::captureRecord(call, "ledInfo", ledInfo, sim::layout::LedInfo());
  call.require(ledInfo);
  return call.finish();
}

// Reader information, clock, statistics and health. Without a script the
// getters answer with what the reader keeps (reader_admin.h), and setters
// change it only when the call succeeded.

int32_t RFID_GetSystemInfoW(int64_t handle, void* info) {
  ApiCall call("RFID_GetSystemInfoW", handle, info);
  call.outputs({{info, sim::layout::SystemInfo().size, "info"}}, sim::systemInfoAnswer(handle));
  return call.finish();
}

int32_t RFID_GetReaderInfoW(int64_t handle, void* info) {
  ApiCall call("RFID_GetReaderInfoW", handle, info);
  call.outputs({{info, sim::layout::ReaderInfo().size, "info"}}, sim::readerInfoAnswer(handle));
  return call.finish();
}

int32_t RFID_SetReaderInfoW(int64_t handle, void* info) {
  ApiCall call("RFID_SetReaderInfoW", handle, info);
  sim::layout::captureRecord(call, "info", info, sim::layout::ReaderInfo());
  call.require(info);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::keepReaderInfo(handle, call.captured("info")) : status;
}

int32_t RFID_GetLocalTime(int64_t handle, void* time) {
  ApiCall call("RFID_GetLocalTime", handle, time);
  call.outputs({{time, sim::layout::SystemTime().size, "time"}}, sim::localTimeAnswer(handle));
  return call.finish();
}

// An impossible date or time is refused.
int32_t RFID_SetLocalTime(int64_t handle, void* time) {
  ApiCall call("RFID_SetLocalTime", handle, time);
  sim::layout::captureRecord(call, "time", time, sim::layout::SystemTime());
  call.require(time);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::setLocalTime(handle, call.captured("time")) : status;
}

int32_t RFID_GetTimeZoneListW(int64_t handle, void* list) {
  ApiCall call("RFID_GetTimeZoneListW", handle, list);
  call.outputs({{list, sim::layout::TimeZoneList().size, "list"}}, sim::timeZoneListAnswer(handle));
  return call.finish();
}

// An index beyond the list is refused.
int32_t RFID_SetTimeZone(int64_t handle, uint16_t index) {
  ApiCall call("RFID_SetTimeZone", handle, index);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::selectTimeZone(handle, index) : status;
}

int32_t RFID_GetReaderStats(int64_t handle, uint16_t antennaID, void* stats) {
  ApiCall call("RFID_GetReaderStats", handle, antennaID, stats);
  call.refuse(sim::antennaProblem(antennaID));
  call.outputs({{stats, sim::layout::ReaderStats().size, "stats"}});
  return call.finish();
}

int32_t RFID_ClearReaderStats(int64_t handle) {
  ApiCall call("RFID_ClearReaderStats", handle);
  return call.finish();
}

// What the fourth argument designates is the reader's business; it is only
// recorded, never read or written.
int32_t RFID_GetHealthStatus(int64_t handle, uint32_t query, int32_t* status, void* detail) {
  ApiCall call("RFID_GetHealthStatus", handle, query, status, detail);
  call.outputs({{status, 4, "status"}});
  return call.finish();
}

// Profiles. Import and export are only recorded; deleting the active
// profile is refused, and an unknown name gives kNotFound.

int32_t RFID_GetProfileListW(int64_t handle, void* list) {
  ApiCall call("RFID_GetProfileListW", handle, list);
  call.outputs({{list, sim::layout::ProfileList().size, "list"}}, sim::profileListAnswer(handle));
  return call.finish();
}

int32_t RFID_ImportProfileFromReaderW(int64_t handle, const wchar_t* first, const wchar_t* second) {
  ApiCall call("RFID_ImportProfileFromReaderW", handle, first, second);
  call.blob("first", first, sim::kWideFieldBytes);
  call.blob("second", second, sim::kWideFieldBytes);
  return call.finish();
}

int32_t RFID_ExportProfileToReaderW(int64_t handle, const wchar_t* first, const wchar_t* second, uint8_t flag) {
  ApiCall call("RFID_ExportProfileToReaderW", handle, first, second, flag);
  call.blob("first", first, sim::kWideFieldBytes);
  call.blob("second", second, sim::kWideFieldBytes);
  return call.finish();
}

int32_t RFID_DeleteProfileW(int64_t handle, const wchar_t* name) {
  ApiCall call("RFID_DeleteProfileW", handle, name);
  call.blob("name", name, sim::kWideFieldBytes);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::deleteProfile(handle, call.captured("name")) : status;
}

int32_t RFID_SetActiveProfileW(int64_t handle, const wchar_t* name) {
  ApiCall call("RFID_SetActiveProfileW", handle, name);
  call.blob("name", name, sim::kWideFieldBytes);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::activateProfile(handle, call.captured("name")) : status;
}

// Updates. A software update from a named host is over at once; the radio
// updates are only recorded.

int32_t RFID_UpdateSoftwareW(int64_t handle, void* updateInfo) {
  ApiCall call("RFID_UpdateSoftwareW", handle, updateInfo);
  sim::layout::captureRecord(call, "updateInfo", updateInfo, sim::layout::UpdateInfo());
  call.require(updateInfo);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::updateSoftware(handle, call.captured("updateInfo")) : status;
}

int32_t RFID_GetUpdateStatusW(int64_t handle, void* status) {
  ApiCall call("RFID_GetUpdateStatusW", handle, status);
  call.outputs({{status, sim::layout::UpdateStatus().size, "status"}}, sim::updateStatusAnswer(handle));
  return call.finish();
}

int32_t RFID_UpdateRadioConfigW(int64_t handle, const wchar_t* name) {
  ApiCall call("RFID_UpdateRadioConfigW", handle, name);
  call.blob("name", name, sim::kWideFieldBytes);
  return call.finish();
}

int32_t RFID_UpdateRadioFirmwareW(int64_t handle, const wchar_t* name) {
  ApiCall call("RFID_UpdateRadioFirmwareW", handle, name);
  call.blob("name", name, sim::kWideFieldBytes);
  return call.finish();
}

// User applications, kept by name; an unknown name gives kNotFound.

int32_t RFID_InstallUserAppW(int64_t handle, const wchar_t* name) {
  ApiCall call("RFID_InstallUserAppW", handle, name);
  call.blob("name", name, sim::kWideFieldBytes);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::installUserApp(handle, call.captured("name")) : status;
}

int32_t RFID_UninstallUserAppW(int64_t handle, const wchar_t* name) {
  ApiCall call("RFID_UninstallUserAppW", handle, name);
  call.blob("name", name, sim::kWideFieldBytes);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::uninstallUserApp(handle, call.captured("name")) : status;
}

int32_t RFID_StartUserAppW(int64_t handle, const wchar_t* name) {
  ApiCall call("RFID_StartUserAppW", handle, name);
  call.blob("name", name, sim::kWideFieldBytes);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::runUserApp(handle, call.captured("name"), true) : status;
}

int32_t RFID_StopUserAppW(int64_t handle, const wchar_t* name) {
  ApiCall call("RFID_StopUserAppW", handle, name);
  call.blob("name", name, sim::kWideFieldBytes);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::runUserApp(handle, call.captured("name"), false) : status;
}

int32_t RFID_SetUserAppAutoStartW(int64_t handle, const wchar_t* name, uint8_t autoStart) {
  ApiCall call("RFID_SetUserAppAutoStartW", handle, name, autoStart);
  call.blob("name", name, sim::kWideFieldBytes);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::setUserAppAutoStart(handle, call.captured("name"), autoStart != 0) : status;
}

int32_t RFID_ListUserAppsW(int64_t handle, void* list) {
  ApiCall call("RFID_ListUserAppsW", handle, list);
  call.outputs({{list, sim::layout::UserAppList().size, "list"}}, sim::userAppListAnswer(handle));
  return call.finish();
}

int32_t RFID_GetUserAppRunStatusW(int64_t handle, const wchar_t* name, uint8_t* running) {
  ApiCall call("RFID_GetUserAppRunStatusW", handle, name, running);
  call.blob("name", name, sim::kWideFieldBytes);
  uint8_t answer = 0;
  const int32_t known = sim::userAppRunStatus(handle, call.captured("name"), &answer);
  call.outputs({{running, 1, "running"}}, {answer});
  const int32_t status = call.finish();
  return status == sim::kSuccess ? known : status;
}

// LLRP configuration persistence: the save is only remembered.

int32_t RFID_SaveLlrpConfig(int64_t handle, void* argument) {
  ApiCall call("RFID_SaveLlrpConfig", handle, argument);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::saveLlrpConfig(handle) : status;
}

int32_t RFID_GetSaveLlrpConfigStatus(int64_t handle, uint8_t* status) {
  ApiCall call("RFID_GetSaveLlrpConfigStatus", handle, status);
  call.outputs({{status, 1, "status"}}, {sim::llrpConfigSavedAnswer(handle)});
  return call.finish();
}

int32_t RFID_ResetConfigToFactoryDefaults(int64_t handle) {
  ApiCall call("RFID_ResetConfigToFactoryDefaults", handle);
  const int32_t status = call.finish();
  return status == sim::kSuccess ? sim::resetToFactoryDefaults(handle) : status;
}

}  // extern "C"

// Exported with C++ linkage: the library imports it under this mangled name.
int32_t rfid_GetNumInstalledApps(void* handle, unsigned int* count) {
  ApiCall call("rfid_GetNumInstalledApps", reinterpret_cast<int64_t>(handle), count);
  std::vector<uint8_t> answer(sizeof *count, 0);
  sim::putField<uint32_t>(&answer, 0, sim::installedAppCount(reinterpret_cast<int64_t>(handle)));
  call.outputs({{count, sizeof *count, "count"}}, answer);
  return call.finish();
}
