// The reader-initiated LLRP connection, errors, version and trace.
#include <cstdint>
#include <vector>

#include "record/api_call.h"
#include "reader/last_error.h"
#include "record/capture_record.h"
#include "record/captured_fields.h"
#include "record/session_layouts.h"
#include "reader/session_store.h"

namespace sim {
namespace {

constexpr uint32_t kDefaultLlrpPort = 5084;

// The LLRP configuration last set on a reader, its secure record apart (the
// caller's pointer to it dies with the call).
struct LlrpConfig {
  std::vector<uint8_t> record;
  Blob secure;
};

LlrpConfig defaultLlrpConfig() {
  static const size_t portAt = layout::OffsetOf(layout::LlrpConnectionConfig(), "port", 4);
  LlrpConfig config;
  config.record.assign(layout::LlrpConnectionConfig().size, 0);
  putField(&config.record, portAt, kDefaultLlrpPort);
  return config;
}

// The record the getter answers with: its secure pointer leads to a copy
// that stays valid until reset, since the caller reads it after the call.
std::vector<uint8_t> llrpAnswer(int64_t handle) {
  static const size_t secureAt = layout::OffsetOf(layout::LlrpConnectionConfig(), "pSecureModeConfig", 8);
  LlrpConfig config = defaultLlrpConfig();
  SessionStore<LlrpConfig>::instance().get(handle, &config);
  uint64_t secure = config.secure.present ? raw(keepAlive(config.secure.bytes)) : 0;
  putField(&config.record, secureAt, secure);
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
  call.outputs({{config, sim::layout::LlrpConnectionConfig().size, "config"}}, sim::llrpAnswer(handle));
  return call.finish();
}

int32_t RFID_SetLLRPConnectionConfigW(int64_t handle, void* config) {
  ApiCall call("RFID_SetLLRPConnectionConfigW", handle, config);
  // The secure record is recorded (absent) even under a NULL config.
  call.blob("config", config, sim::layout::LlrpConnectionConfig().size);
  sim::layout::capturePointees(call, "config", "config", 0, sim::layout::LlrpConnectionConfig());
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
  call.outputs({{scratch, sim::layout::LlrpInitiateScratch().size}});
  return call.finish();
}

int32_t RFID_DisconnectLLRPConnectionFromReader(int64_t handle) {
  ApiCall call("RFID_DisconnectLLRPConnectionFromReader", handle);
  return call.finish();
}

int32_t RFID_GetLastErrorInfoW(int64_t handle, void* errorInfo) {
  ApiCall call("RFID_GetLastErrorInfoW", handle, errorInfo);
  call.require(errorInfo);
  call.outputs({{errorInfo, sim::layout::ErrorInfo().size}}, sim::lastErrorRecord(handle));
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
  static const size_t textAt = sim::layout::OffsetOf(sim::layout::VersionInfo(), "dllVersion", 0);
  std::vector<uint8_t> version(sim::layout::VersionInfo().size, 0);
  sim::putWide(&version, textAt, L"halyard-sim 1.0");
  call.outputs({{versionInfo, version.size()}}, version);
  return call.finish();
}

int32_t RFID_SetTraceLevel(int64_t handle, uint32_t level) {
  ApiCall call("RFID_SetTraceLevel", handle, level);
  return call.finish();
}

}  // extern "C"
