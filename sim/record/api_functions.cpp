#include "record/api_functions.h"

#include "record/config_layouts.h"
#include "record/record_layouts.h"
#include "record/session_layouts.h"

namespace sim::api {
namespace {

using namespace sim::layout;

ArgSpec Int(const char* name, uint8_t width, bool isSigned = false) { return ArgSpec{name, Arg::Int, width, isSigned}; }
ArgSpec Ptr(const char* name) { return ArgSpec{name, Arg::Pointer}; }
ArgSpec Wide(const char* name) { return ArgSpec{name, Arg::Wide}; }
ArgSpec Bytes(const char* name, int lengthArg, size_t unit = 1) {
  return ArgSpec{name, Arg::Bytes, 8, false, nullptr, lengthArg, unit};
}
ArgSpec Out(const char* name, size_t bytes) { return ArgSpec{name, Arg::InOut, 8, false, nullptr, -1, 1, bytes}; }
ArgSpec Rec(const char* name, const Record& record) { return ArgSpec{name, Arg::In, 8, false, &record}; }
ArgSpec OutRec(const char* name, const Record& record) { return ArgSpec{name, Arg::InOut, 8, false, &record}; }
ArgSpec OutRecBy(const char* name, int selectorArg, const Record& (*recordFor)(uint32_t)) {
  return ArgSpec{name, Arg::InOut, 8, false, nullptr, selectorArg, 1, 0, recordFor};
}
ArgSpec Tags(const char* name, int countArg) { return ArgSpec{name, Arg::TagArray, 8, false, &TagData(), countArg}; }
ArgSpec RecordList(const char* name, const Record& record, int countArg) {
  return ArgSpec{name, Arg::TagList, 8, false, &record, countArg};
}
ArgSpec TagList(const char* name, int countArg) { return RecordList(name, TagData(), countArg); }

std::vector<FunctionSpec> Build() {
  return {
    {"RFID_AcceptConnection", Result::Status, {Out("handleOut", 8), Int("passThrough", 8, true), Rec("acceptInfo", AcceptConnectionInfo()), Ptr("scratchOut")}},
    {"RFID_AddOperationToAccessSequence", Result::Status, {Int("handle", 8, true), Rec("operation", AccessOperation()), Out("index", 4)}},
    {"RFID_AddPreFilter", Result::Status, {Int("handle", 8, true), Int("antenna", 2), Rec("preFilter", PreFilter()), Out("index", 4)}},
    {"RFID_Authenticate", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", AuthenticateAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), OutRec("tag", TagData()), Ptr("reserved")}},
    {"RFID_BlockErase", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", BlockEraseAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_BlockPermalock", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", BlockPermalockAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), OutRec("tag", TagData()), Ptr("reserved")}},
    {"RFID_BlockWrite", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", WriteAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_ClearReaderStats", Result::Status, {Int("handle", 8, true)}},
    {"RFID_ConnectW", Result::Status, {Out("handleOut", 8), Wide("hostName"), Int("first", 4), Int("second", 4), Rec("connInfo", ConnectionInfo())}},
    {"RFID_Crypto", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", CryptoAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), OutRec("tag", TagData()), Ptr("reserved")}},
    {"RFID_DeallocateTag", Result::Status, {Int("handle", 8, true), Rec("tag", TagData())}},
    {"RFID_DeinitializeAccessSequence", Result::Status, {Int("handle", 8, true)}},
    {"RFID_DeleteOperationFromAccessSequence", Result::Status, {Int("handle", 8, true), Int("index", 4)}},
    {"RFID_DeletePreFilter", Result::Status, {Int("handle", 8, true), Int("antenna", 2), Int("index", 4)}},
    {"RFID_DeleteProfileW", Result::Status, {Int("handle", 8, true), Wide("name")}},
    {"RFID_DeregisterEventNotification", Result::Status, {Int("handle", 8, true), Int("type", 4)}},
    {"RFID_Disconnect", Result::Status, {Int("handle", 8, true)}},
    {"RFID_DisconnectLLRPConnectionFromReader", Result::Status, {Int("handle", 8, true)}},
    {"RFID_EnableGPIPort", Result::Status, {Int("handle", 8, true), Int("port", 4, true), Int("enable", 1)}},
    {"RFID_EnableReadPoint", Result::Status, {Int("handle", 8, true), Int("antennaID", 2), Int("enable", 1)}},
    {"RFID_ExportProfileToReaderW", Result::Status, {Int("handle", 8, true), Wide("first"), Wide("second"), Int("flag", 1)}},
    {"RFID_GetAntennaConfig", Result::Status, {Int("handle", 8, true), Int("antennaID", 2), Out("first", 2), Out("second", 2), Out("third", 2)}},
    {"RFID_GetAntennaMode", Result::Status, {Int("handle", 8, true), Out("mode", 4)}},
    {"RFID_GetAntennaRfConfig", Result::Status, {Int("handle", 8, true), Int("antennaID", 2), OutRec("config", AntennaRfConfig())}},
    {"RFID_GetCableLossCompensation", Result::Status, {Int("handle", 8, true), OutRec("cableLoss", CableLossCompensation())}},
    {"RFID_GetDllVersionInfoW", Result::Status, {OutRec("versionInfo", VersionInfo())}},
    {"RFID_GetErrorDescriptionW", Result::WideText, {Int("status", 4, true)}},
    {"RFID_GetDutyCycle", Result::Status, {Int("handle", 8, true), Out("dutyCycleIndex", 2), OutRec("scratch", DutyCycleScratch())}},
    {"RFID_GetEventData", Result::Status, {Int("handle", 8, true), Int("type", 4), OutRecBy("record", 1, EventData)}},
    {"RFID_GetGPIDebounceTime", Result::Status, {Int("handle", 8, true), Out("value", 4), OutRec("debounce", GpiDebounce())}},
    {"RFID_GetGPIState", Result::Status, {Int("handle", 8, true), Int("port", 4, true), Out("state", 1), Out("value", 4)}},
    {"RFID_GetGPOState", Result::Status, {Int("handle", 8, true), Int("port", 4, true), Out("state", 1)}},
    {"RFID_GetHealthStatus", Result::Status, {Int("handle", 8, true), Int("query", 4), Out("status", 4), OutRec("detail", HealthDetail())}},
    {"RFID_GetLLRPConnectionConfigW", Result::Status, {Int("handle", 8, true), OutRec("config", LlrpConnectionConfig())}},
    {"RFID_GetLastAccessResult", Result::Status, {Int("handle", 8, true), Out("first", 4), Out("second", 4)}},
    {"RFID_GetLastErrorInfoW", Result::Status, {Int("handle", 8, true), OutRec("errorInfo", ErrorInfo())}},
    {"RFID_GetLocalTime", Result::Status, {Int("handle", 8, true), OutRec("time", SystemTime())}},
    {"RFID_GetPhysicalAntennaProperties", Result::Status, {Int("handle", 8, true), Int("antennaID", 2), Out("flag", 1), Out("value", 4)}},
    {"RFID_GetPowerNegotiationState", Result::Status, {Int("handle", 8, true), Out("state", 1)}},
    {"RFID_GetPowerNegotiationStatus", Result::Status, {Int("handle", 8, true), Out("status", 4)}},
    {"RFID_GetProfileListW", Result::Status, {Int("handle", 8, true), OutRec("list", ProfileList())}},
    {"RFID_GetRFMode", Result::Status, {Int("handle", 8, true), Int("antennaID", 2), Out("first", 4), Out("second", 4)}},
    {"RFID_GetRadioIdleTimeout", Result::Status, {Int("handle", 8, true), Out("timeout", 4)}},
    {"RFID_GetRadioPowerState", Result::Status, {Int("handle", 8, true), Out("on", 1)}},
    {"RFID_GetReadPointStatus", Result::Status, {Int("handle", 8, true), Int("antennaID", 2), Out("status", 1)}},
    {"RFID_GetReadTag", Result::Status, {Int("handle", 8, true), OutRec("tag", TagData())}},
    {"RFID_GetReaderCapsW", Result::Status, {Int("handle", 8, true), OutRec("caps", ReaderCaps())}},
    {"RFID_GetReaderInfoW", Result::Status, {Int("handle", 8, true), OutRec("info", ReaderInfo())}},
    {"RFID_GetReaderStats", Result::Status, {Int("handle", 8, true), Int("antennaID", 2), OutRec("stats", ReaderStats())}},
    {"RFID_GetSaveLlrpConfigStatus", Result::Status, {Int("handle", 8, true), Out("status", 1)}},
    {"RFID_GetSingulationControl", Result::Status, {Int("handle", 8, true), Int("antenna", 2), OutRec("singulationControl", SingulationControl())}},
    {"RFID_GetSystemInfoW", Result::Status, {Int("handle", 8, true), OutRec("info", SystemInfo())}},
    {"RFID_GetTagStorageSettings", Result::Status, {Int("handle", 8, true), OutRec("tagStorageSettings", TagStorageSettings())}},
    {"RFID_GetTimeZoneListW", Result::Status, {Int("handle", 8, true), OutRec("list", TimeZoneList())}},
    {"RFID_GetUSBOperationMode", Result::Status, {Int("handle", 8, true), OutRec("settings", UsbOperationModeSettings())}},
    {"RFID_GetUpdateStatusW", Result::Status, {Int("handle", 8, true), OutRec("status", UpdateStatus())}},
    {"RFID_GetUserAppRunStatusW", Result::Status, {Int("handle", 8, true), Wide("name"), Out("running", 1)}},
    {"RFID_ImpinjQTRead", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", QtReadAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), OutRec("tag", TagData()), Ptr("reserved")}},
    {"RFID_ImpinjQTWrite", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", QtWriteAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_ImportProfileFromReaderW", Result::Status, {Int("handle", 8, true), Wide("first"), Wide("second")}},
    {"RFID_InitializeAccessSequence", Result::Status, {Int("handle", 8, true)}},
    {"RFID_InitiateLLRPConnectionFromReader", Result::Status, {Int("handle", 8, true), OutRec("scratch", LlrpInitiateScratch())}},
    {"RFID_InstallUserAppW", Result::Status, {Int("handle", 8, true), Wide("name")}},
    {"RFID_Kill", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", KillAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_ListUserAppsW", Result::Status, {Int("handle", 8, true), OutRec("list", UserAppList())}},
    {"RFID_Lock", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", LockAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_LoginW", Result::Status, {Out("handleOut", 8), Rec("loginInfo", LoginInfo()), Int("readerKind", 4), Int("flag", 1), Ptr("reserved")}},
    {"RFID_Logout", Result::Status, {Int("handle", 8, true)}},
    {"RFID_NXPChangeConfig", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", NxpAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), OutRec("tag", TagData()), Ptr("reserved")}},
    {"RFID_NXPReadProtect", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", NxpAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_NXPResetReadProtect", Result::Status, {Int("handle", 8, true), Rec("params", NxpAccessParams()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_NXPSetEAS", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", NxpAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_PerformAccessSequence", Result::Status, {Int("handle", 8, true), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Rec("triggerInfo", TriggerInfo()), Ptr("reserved")}},
    {"RFID_PerformInventory", Result::Status, {Int("handle", 8, true), Rec("postFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Rec("triggerInfo", TriggerInfo()), Ptr("reserved")}},
    {"RFID_PerformNXPEASScan", Result::Status, {Int("handle", 8, true), Rec("antennaInfo", AntennaInfo()), Rec("triggerInfo", TriggerInfo()), Ptr("reserved")}},
    {"RFID_PerformTagLocationing", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("length", 4), Rec("antennaInfo", AntennaInfo()), Ptr("reserved1"), Ptr("reserved2")}},
    {"RFID_PurgeTags", Result::Status, {Int("handle", 8, true), Int("flags", 4)}},
    {"RFID_Read", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", ReadAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), OutRec("tag", TagData()), Ptr("reserved")}},
    {"RFID_ReadBuffer", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", ReadBufferAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), OutRec("tag", TagData()), Ptr("reserved")}},
    {"RFID_Recommission", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", RecommissionAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_Reconnect", Result::Status, {Int("handle", 8, true)}},
    {"RFID_RegisterEventNotification", Result::Status, {Int("handle", 8, true), Int("type", 4), Int("event", 8, true)}},
    {"RFID_ResetConfigToFactoryDefaults", Result::Status, {Int("handle", 8, true)}},
    {"RFID_Restart", Result::Status, {Int("handle", 8, true)}},
    {"RFID_SaveLlrpConfig", Result::Status, {Int("handle", 8, true), Ptr("argument")}},
    {"RFID_SetActiveProfileW", Result::Status, {Int("handle", 8, true), Wide("name")}},
    {"RFID_SetAntennaConfig", Result::Status, {Int("handle", 8, true), Int("antennaID", 2), Int("first", 2), Int("second", 2), Int("third", 2)}},
    {"RFID_SetAntennaMode", Result::Status, {Int("handle", 8, true), Int("mode", 4)}},
    {"RFID_SetAntennaRfConfig", Result::Status, {Int("handle", 8, true), Int("antennaID", 2), Rec("config", AntennaRfConfigBlock())}},
    {"RFID_SetCableLossCompensation", Result::Status, {Int("handle", 8, true), Int("count", 2), RecordList("cableLoss", CableLossCompensation(), 1)}},
    {"RFID_SetDutyCycle", Result::Status, {Int("handle", 8, true), Int("dutyCycleIndex", 2), Rec("scratch", DutyCycleScratch())}},
    {"RFID_SetGPIDebounceTime", Result::Status, {Int("handle", 8, true), Int("value", 4, true), Rec("debounce", GpiDebounce())}},
    {"RFID_SetGPOState", Result::Status, {Int("handle", 8, true), Int("port", 4, true), Int("state", 1)}},
    {"RFID_SetLLRPConnectionConfigW", Result::Status, {Int("handle", 8, true), Rec("config", LlrpConnectionConfig())}},
    {"RFID_SetLocalTime", Result::Status, {Int("handle", 8, true), Rec("time", SystemTime())}},
    {"RFID_SetPowerNegotiationState", Result::Status, {Int("handle", 8, true), Int("state", 1)}},
    {"RFID_SetRFMode", Result::Status, {Int("handle", 8, true), Int("antennaID", 2), Int("first", 4), Int("second", 4)}},
    {"RFID_SetRadioPowerState", Result::Status, {Int("handle", 8, true), Int("on", 1)}},
    {"RFID_SetReaderInfoW", Result::Status, {Int("handle", 8, true), Rec("info", ReaderInfo())}},
    {"RFID_SetSingulationControl", Result::Status, {Int("handle", 8, true), Int("antenna", 2), Rec("singulationControl", SingulationControl())}},
    {"RFID_SetTagStorageSettings", Result::Status, {Int("handle", 8, true), Rec("tagStorageSettings", TagStorageSettings())}},
    {"RFID_SetTimeZone", Result::Status, {Int("handle", 8, true), Int("index", 2)}},
    {"RFID_SetTraceLevel", Result::Status, {Int("handle", 8, true), Int("level", 4)}},
    {"RFID_SetUSBOperationMode", Result::Status, {Int("handle", 8, true), Rec("settings", UsbOperationModeSettings())}},
    {"RFID_SetUserAppAutoStartW", Result::Status, {Int("handle", 8, true), Wide("name"), Int("autoStart", 1)}},
    {"RFID_SetUserLED", Result::Status, {Int("handle", 8, true), Rec("ledInfo", LedInfo())}},
    {"RFID_StartUserAppW", Result::Status, {Int("handle", 8, true), Wide("name")}},
    {"RFID_StopAccessSequence", Result::Status, {Int("handle", 8, true)}},
    {"RFID_StopInventory", Result::Status, {Int("handle", 8, true)}},
    {"RFID_StopNXPEASScan", Result::Status, {Int("handle", 8, true)}},
    {"RFID_StopTagLocationing", Result::Status, {Int("handle", 8, true)}},
    {"RFID_StopUserAppW", Result::Status, {Int("handle", 8, true), Wide("name")}},
    {"RFID_TurnOffRadioWhenIdle", Result::Status, {Int("handle", 8, true), Int("timeout", 4)}},
    {"RFID_UninstallUserAppW", Result::Status, {Int("handle", 8, true), Wide("name")}},
    {"RFID_Untraceable", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", UntraceableAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), OutRec("tag", TagData()), Ptr("reserved")}},
    {"RFID_UpdateRadioConfigW", Result::Status, {Int("handle", 8, true), Wide("name")}},
    {"RFID_UpdateRadioFirmwareW", Result::Status, {Int("handle", 8, true), Wide("name")}},
    {"RFID_UpdateSoftwareW", Result::Status, {Int("handle", 8, true), Rec("updateInfo", UpdateInfo())}},
    {"RFID_Write", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", WriteAccessParams()), Rec("accessFilter", Filter()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_WriteAccessPassword", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", WriteFieldAccessParams()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_WriteKillPassword", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", WriteFieldAccessParams()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"RFID_WriteTagID", Result::Status, {Int("handle", 8, true), Bytes("tagID", 2), Int("tagIDLength", 4), Rec("params", WriteFieldAccessParams()), Rec("antennaInfo", AntennaInfo()), Ptr("reserved")}},
    {"rfidUtils_CloseHandle", Result::Status, {Int("event", 8, true)}},
    {"rfidUtils_ResetEvent", Result::Status, {Int("event", 8, true)}},
    {"rfidUtils_SetEvent", Result::Status, {Int("event", 8, true)}},
    {"rfidUtils_WaitForMultipleObjects", Result::Status, {Int("count", 8, true), Bytes("handles", 0, 8), Int("waitAll", 1), Int("timeoutMs", 8, true)}},
    {"rfidUtils_WaitForSingleObject", Result::Status, {Int("event", 8, true), Int("timeoutMs", 8, true)}},
    {"rfid_DeallocateTags", Result::Status, {Int("handle", 8, true), TagList("records", 2), Int("count", 4)}},
    {"_Z24rfid_GetNumInstalledAppsPvPj", Result::Status, {Ptr("handle"), Out("count", 4)}},
    {"rfid_GetReadTags", Result::Status, {Int("handle", 8, true), Int("max", 4), Tags("records", 3), Out("count", 4)}},
    {"rfidUtils_CreateEvent", Result::Int64, {Ptr("attributes"), Int("manualReset", 4, true), Int("initialState", 4, true), Ptr("name")}},
    {"RFID_AllocateTag", Result::Pointer, {Int("handle", 8, true)}},
  };
}

}  // namespace

const std::vector<FunctionSpec>& Functions() {
  static const std::vector<FunctionSpec> functions = Build();
  return functions;
}

const FunctionSpec* FindFunction(const std::string& name) {
  for (const FunctionSpec& f : Functions()) {
    if (name == f.name) return &f;
  }
  return nullptr;
}

const Record* RecordOf(const FunctionSpec& fn, const ArgSpec& arg, const uint64_t* args) {
  if (arg.recordFor == nullptr) return arg.record;
  if (arg.lengthArg < 0 || static_cast<size_t>(arg.lengthArg) >= fn.args.size()) return nullptr;
  return &arg.recordFor(static_cast<uint32_t>(UnsignedValue(fn.args[arg.lengthArg], args[arg.lengthArg])));
}

int64_t SignedValue(const ArgSpec& arg, uint64_t raw) {
  switch (arg.width) {
    case 1: return static_cast<int8_t>(raw);
    case 2: return static_cast<int16_t>(raw);
    case 4: return static_cast<int32_t>(raw);
    default: return static_cast<int64_t>(raw);
  }
}

uint64_t UnsignedValue(const ArgSpec& arg, uint64_t raw) {
  switch (arg.width) {
    case 1: return static_cast<uint8_t>(raw);
    case 2: return static_cast<uint16_t>(raw);
    case 4: return static_cast<uint32_t>(raw);
    default: return raw;
  }
}

}  // namespace sim::api
