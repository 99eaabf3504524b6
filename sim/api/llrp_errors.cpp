// The reader-initiated LLRP connection, errors, version and trace.
#include <cstdint>
#include <vector>

#include "record/api_call.h"
#include "reader/last_error.h"
#include "record/captured_fields.h"
#include "reader/session_store.h"
#include "reader/last_error.h"

namespace sim {
namespace {

constexpr size_t kLlrpConfigBytes = 1096;
constexpr size_t kLlrpPortAt = 4;
constexpr size_t kLlrpSecureAt = 1048;
constexpr size_t kSecureLlrpBytes = 40;
constexpr size_t kLlrpScratchBytes = 24;
constexpr uint32_t kDefaultLlrpPort = 5084;
constexpr size_t kErrorInfoBytes = 2120;
constexpr size_t kVersionBytes = 1048;

// The LLRP configuration last set on a reader, its secure record apart (the
// caller's pointer to it dies with the call).
struct LlrpConfig {
  std::vector<uint8_t> record;
  Blob secure;
};

LlrpConfig defaultLlrpConfig() {
  LlrpConfig config;
  config.record.assign(kLlrpConfigBytes, 0);
  putField(&config.record, kLlrpPortAt, kDefaultLlrpPort);
  return config;
}

// The record the getter answers with: its secure pointer leads to a copy
// that stays valid until reset, since the caller reads it after the call.
std::vector<uint8_t> llrpAnswer(int64_t handle) {
  LlrpConfig config = defaultLlrpConfig();
  SessionStore<LlrpConfig>::instance().get(handle, &config);
  uint64_t secure = config.secure.present ? raw(keepAlive(config.secure.bytes)) : 0;
  putField(&config.record, kLlrpSecureAt, secure);
  return config.record;
}

}  // namespace
}  // namespace sim

using sim::ApiCall;
using sim::kNoHandle;
using sim::Out;

extern "C" {

// What the caller left in the record is captured ("config") before the
// answer overwrites it.
int32_t RFID_GetLLRPConnectionConfigW(int64_t handle, void* config) {
  ApiCall call("RFID_GetLLRPConnectionConfigW", handle, config);
  call.outputs({{config, sim::kLlrpConfigBytes, "config"}}, sim::llrpAnswer(handle));
  return call.finish();
}

int32_t RFID_SetLLRPConnectionConfigW(int64_t handle, void* config) {
  ApiCall call("RFID_SetLLRPConnectionConfigW", handle, config);
  call.blob("config", config, sim::kLlrpConfigBytes);
  call.blob("config.pSecureModeConfig", sim::pointerAt(call.captured("config"), sim::kLlrpSecureAt),
            sim::kSecureLlrpBytes);
  call.require(config);
  int32_t status = call.finish();
  if (status == sim::kSuccess) {
    sim::SessionStore<sim::LlrpConfig>::instance().put(
        handle, {call.captured("config").bytes, call.captured("config.pSecureModeConfig")});
  }
  return status;
}

int32_t RFID_InitiateLLRPConnectionFromReader(int64_t handle, void* scratch) {
  ApiCall call("RFID_InitiateLLRPConnectionFromReader", handle, scratch);
  call.require(scratch);
  call.outputs({{scratch, sim::kLlrpScratchBytes}});
  return call.finish();
}

int32_t RFID_DisconnectLLRPConnectionFromReader(int64_t handle) {
  ApiCall call("RFID_DisconnectLLRPConnectionFromReader", handle);
  return call.finish();
}

int32_t RFID_GetLastErrorInfoW(int64_t handle, void* errorInfo) {
  ApiCall call("RFID_GetLastErrorInfoW", handle, errorInfo);
  call.require(errorInfo);
  call.outputs({{errorInfo, sim::kErrorInfoBytes}}, sim::lastErrorRecord(handle));
  return call.finish();
}

const wchar_t* RFID_GetErrorDescriptionW(int32_t status) {
  ApiCall call("RFID_GetErrorDescriptionW", kNoHandle, status);
  call.finish();
  uint64_t scripted = 0;
  if (sim::scriptedPointer("RFID_GetErrorDescriptionW", &scripted)) {
    return reinterpret_cast<const wchar_t*>(scripted);
  }
  return sim::describeStatus(status);
}

int32_t RFID_GetDllVersionInfoW(void* versionInfo) {
  ApiCall call("RFID_GetDllVersionInfoW", kNoHandle, versionInfo);
  call.require(versionInfo);
  std::vector<uint8_t> version(sim::kVersionBytes, 0);
  sim::putWide(&version, 0, L"halyard-sim 1.0");
  call.outputs({{versionInfo, sim::kVersionBytes}}, version);
  return call.finish();
}

int32_t RFID_SetTraceLevel(int64_t handle, uint32_t level) {
  ApiCall call("RFID_SetTraceLevel", handle, level);
  return call.finish();
}

}  // extern "C"
