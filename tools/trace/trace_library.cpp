// libhalyard-trace.so: a call tracer for the reader's C API. Preloaded into
// the JVM (LD_PRELOAD), it exports every function liborlajni.so imports
// from libhalyard.so, forwards each call to the real library
// (HALYARD_TRACE_TARGET, default /platform/lib/libhalyard.so, opened with
// dlopen) and writes one JSON line per call to HALYARD_TRACE_FILE (format in
// trace_line.h). Memory handed over is read with the simulator's safe
// copies, so a wild pointer is traced as a fault instead of crashing the
// host. Each line is one write(2) to a file opened for appending, so
// threads never interleave within a line.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <mutex>
#include <string>

#include "record/api_functions.h"
#include "record/call_capture.h"
#include "record/trace_line.h"

namespace {

using sim::api::FunctionSpec;
using Forward = uint64_t (*)(uint64_t, uint64_t, uint64_t, uint64_t, uint64_t, uint64_t, uint64_t, uint64_t);

// The status a call gets when the real library cannot be reached.
constexpr int32_t kNoTarget = -1;
const char kDefaultTarget[] = "/platform/lib/libhalyard.so";

void Say(const std::string& text) {
  const std::string line = "halyard-trace: " + text + "\n";
  ssize_t ignored = write(STDERR_FILENO, line.data(), line.size());
  (void)ignored;
}

struct Tracer {
  void* target = nullptr;
  int fd = -1;
  std::atomic<uint64_t> seq{0};

  Tracer() {
    const char* path = std::getenv("HALYARD_TRACE_TARGET");
    if (path == nullptr || *path == '\0') path = kDefaultTarget;
    target = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (target == nullptr) Say(std::string("cannot open the reader library: ") + dlerror());
    const char* file = std::getenv("HALYARD_TRACE_FILE");
    if (file == nullptr || *file == '\0') {
      Say("HALYARD_TRACE_FILE is not set: calls are forwarded but not traced");
    } else {
      fd = open(file, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
      if (fd < 0) Say(std::string("cannot open ") + file + ": " + std::strerror(errno) + ": calls are not traced");
    }
  }
};

// Never destroyed: JVM threads may call in while the process exits.
Tracer& tracer() {
  static Tracer* instance = new Tracer;
  return *instance;
}

int64_t Nanos(clockid_t clock) {
  struct timespec ts;
  clock_gettime(clock, &ts);
  return static_cast<int64_t>(ts.tv_sec) * 1000000000 + ts.tv_nsec;
}

int64_t ThreadId() {
  thread_local const int64_t id = static_cast<int64_t>(syscall(SYS_gettid));
  return id;
}

void WriteLine(int fd, std::string line) {
  line += '\n';
  const char* at = line.data();
  size_t left = line.size();
  while (left > 0) {
    ssize_t put = write(fd, at, left);
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return;
    at += put;
    left -= static_cast<size_t>(put);
  }
}

// The real function, looked up once; nullptr (said once) when missing.
// Whether code lies in this library (the target must not be the tracer itself).
bool IsOurs(const void* code) {
  Dl_info theirs{};
  Dl_info ours{};
  return dladdr(code, &theirs) != 0 && dladdr(reinterpret_cast<const void*>(&Say), &ours) != 0 &&
         theirs.dli_fbase == ours.dli_fbase;
}

Forward Resolve(const FunctionSpec& fn, std::atomic<Forward>* cache) {
  Forward real = cache->load(std::memory_order_acquire);
  if (real != nullptr) return real;
  Tracer& t = tracer();
  if (t.target == nullptr) return nullptr;
  real = reinterpret_cast<Forward>(dlsym(t.target, fn.name));
  if (real == nullptr || IsOurs(reinterpret_cast<void*>(real))) {
    static std::once_flag said[256];
    std::call_once(said[(&fn - sim::api::Functions().data()) & 255], [&] {
      Say(std::string("the reader library has no function ") + fn.name +
          (real != nullptr ? " (HALYARD_TRACE_TARGET names the tracer itself)" : ""));
    });
    return nullptr;
  }
  cache->store(real, std::memory_order_release);
  return real;
}

uint64_t Call(const FunctionSpec& fn, std::atomic<Forward>* cache, const uint64_t (&a)[8]) {
  Forward real = Resolve(fn, cache);
  Tracer& t = tracer();
  sim::trace::Entry entry;
  const bool tracing = t.fd >= 0;
  if (tracing) {
    entry.fn = &fn;
    std::memcpy(entry.args, a, sizeof a);
    entry.thread = ThreadId();
    entry.wallNanos = Nanos(CLOCK_REALTIME);
    sim::api::CaptureInputs(fn, a, &entry.in);
  }
  const int64_t start = Nanos(CLOCK_MONOTONIC);
  const uint64_t result = real != nullptr ? real(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7])
                          : fn.result == sim::api::Result::Status ? static_cast<uint32_t>(kNoTarget)
                                                                  : 0;
  if (!tracing) return result;
  entry.durationNanos = Nanos(CLOCK_MONOTONIC) - start;
  entry.result = result;
  sim::api::CaptureOutputs(fn, a, result, entry.in, &entry.out);
  entry.seq = t.seq.fetch_add(1) + 1;
  WriteLine(t.fd, sim::trace::ToJsonLine(entry));
  return result;
}

// A function missing from the table (a build that let the two lists drift)
// is still forwarded, traced without its arguments.
const FunctionSpec& describedFunction(const char* name) {
  const FunctionSpec* fn = sim::api::FindFunction(name);
  return fn != nullptr ? *fn : *new FunctionSpec{name, sim::api::Result::Status, {}};
}

}  // namespace

// Every argument of these functions is an integer or a pointer, at most
// eight of them: under the x86-64 calling convention each export can take
// eight 64-bit words and hand them on unchanged, whatever the function's
// own parameter list (words it does not have are ignored by the callee).
#define TRACED(name)                                                                                          \
  extern "C" __attribute__((visibility("default"))) uint64_t name(uint64_t a0, uint64_t a1, uint64_t a2,      \
                                                                   uint64_t a3, uint64_t a4, uint64_t a5,      \
                                                                   uint64_t a6, uint64_t a7) {                \
    static const FunctionSpec& fn = describedFunction(#name);                                                 \
    static std::atomic<Forward> real{nullptr};                                                                \
    return Call(fn, &real, {a0, a1, a2, a3, a4, a5, a6, a7});                                                 \
  }

TRACED(RFID_AcceptConnection)
TRACED(RFID_AddOperationToAccessSequence)
TRACED(RFID_AddPreFilter)
TRACED(RFID_AllocateTag)
TRACED(RFID_Authenticate)
TRACED(RFID_BlockErase)
TRACED(RFID_BlockPermalock)
TRACED(RFID_BlockWrite)
TRACED(RFID_ClearReaderStats)
TRACED(RFID_ConnectW)
TRACED(RFID_Crypto)
TRACED(RFID_DeallocateTag)
TRACED(RFID_DeinitializeAccessSequence)
TRACED(RFID_DeleteOperationFromAccessSequence)
TRACED(RFID_DeletePreFilter)
TRACED(RFID_DeleteProfileW)
TRACED(RFID_DeregisterEventNotification)
TRACED(RFID_Disconnect)
TRACED(RFID_DisconnectLLRPConnectionFromReader)
TRACED(RFID_EnableGPIPort)
TRACED(RFID_EnableReadPoint)
TRACED(RFID_ExportProfileToReaderW)
TRACED(RFID_GetAntennaConfig)
TRACED(RFID_GetAntennaMode)
TRACED(RFID_GetAntennaRfConfig)
TRACED(RFID_GetCableLossCompensation)
TRACED(RFID_GetDllVersionInfoW)
TRACED(RFID_GetDutyCycle)
TRACED(RFID_GetErrorDescriptionW)
TRACED(RFID_GetEventData)
TRACED(RFID_GetGPIDebounceTime)
TRACED(RFID_GetGPIState)
TRACED(RFID_GetGPOState)
TRACED(RFID_GetHealthStatus)
TRACED(RFID_GetLLRPConnectionConfigW)
TRACED(RFID_GetLastAccessResult)
TRACED(RFID_GetLastErrorInfoW)
TRACED(RFID_GetLocalTime)
TRACED(RFID_GetPhysicalAntennaProperties)
TRACED(RFID_GetPowerNegotiationState)
TRACED(RFID_GetPowerNegotiationStatus)
TRACED(RFID_GetProfileListW)
TRACED(RFID_GetRFMode)
TRACED(RFID_GetRadioIdleTimeout)
TRACED(RFID_GetRadioPowerState)
TRACED(RFID_GetReadPointStatus)
TRACED(RFID_GetReadTag)
TRACED(RFID_GetReaderCapsW)
TRACED(RFID_GetReaderInfoW)
TRACED(RFID_GetReaderStats)
TRACED(RFID_GetSaveLlrpConfigStatus)
TRACED(RFID_GetSingulationControl)
TRACED(RFID_GetSystemInfoW)
TRACED(RFID_GetTagStorageSettings)
TRACED(RFID_GetTimeZoneListW)
TRACED(RFID_GetUSBOperationMode)
TRACED(RFID_GetUpdateStatusW)
TRACED(RFID_GetUserAppRunStatusW)
TRACED(RFID_ImpinjQTRead)
TRACED(RFID_ImpinjQTWrite)
TRACED(RFID_ImportProfileFromReaderW)
TRACED(RFID_InitializeAccessSequence)
TRACED(RFID_InitiateLLRPConnectionFromReader)
TRACED(RFID_InstallUserAppW)
TRACED(RFID_Kill)
TRACED(RFID_ListUserAppsW)
TRACED(RFID_Lock)
TRACED(RFID_LoginW)
TRACED(RFID_Logout)
TRACED(RFID_NXPChangeConfig)
TRACED(RFID_NXPReadProtect)
TRACED(RFID_NXPResetReadProtect)
TRACED(RFID_NXPSetEAS)
TRACED(RFID_PerformAccessSequence)
TRACED(RFID_PerformInventory)
TRACED(RFID_PerformNXPEASScan)
TRACED(RFID_PerformTagLocationing)
TRACED(RFID_PurgeTags)
TRACED(RFID_Read)
TRACED(RFID_ReadBuffer)
TRACED(RFID_Recommission)
TRACED(RFID_Reconnect)
TRACED(RFID_RegisterEventNotification)
TRACED(RFID_ResetConfigToFactoryDefaults)
TRACED(RFID_Restart)
TRACED(RFID_SaveLlrpConfig)
TRACED(RFID_SetActiveProfileW)
TRACED(RFID_SetAntennaConfig)
TRACED(RFID_SetAntennaMode)
TRACED(RFID_SetAntennaRfConfig)
TRACED(RFID_SetCableLossCompensation)
TRACED(RFID_SetDutyCycle)
TRACED(RFID_SetGPIDebounceTime)
TRACED(RFID_SetGPOState)
TRACED(RFID_SetLLRPConnectionConfigW)
TRACED(RFID_SetLocalTime)
TRACED(RFID_SetPowerNegotiationState)
TRACED(RFID_SetRFMode)
TRACED(RFID_SetRadioPowerState)
TRACED(RFID_SetReaderInfoW)
TRACED(RFID_SetSingulationControl)
TRACED(RFID_SetTagStorageSettings)
TRACED(RFID_SetTimeZone)
TRACED(RFID_SetTraceLevel)
TRACED(RFID_SetUSBOperationMode)
TRACED(RFID_SetUserAppAutoStartW)
TRACED(RFID_SetUserLED)
TRACED(RFID_StartUserAppW)
TRACED(RFID_StopAccessSequence)
TRACED(RFID_StopInventory)
TRACED(RFID_StopNXPEASScan)
TRACED(RFID_StopTagLocationing)
TRACED(RFID_StopUserAppW)
TRACED(RFID_TurnOffRadioWhenIdle)
TRACED(RFID_UninstallUserAppW)
TRACED(RFID_Untraceable)
TRACED(RFID_UpdateRadioConfigW)
TRACED(RFID_UpdateRadioFirmwareW)
TRACED(RFID_UpdateSoftwareW)
TRACED(RFID_Write)
TRACED(RFID_WriteAccessPassword)
TRACED(RFID_WriteKillPassword)
TRACED(RFID_WriteTagID)
TRACED(_Z24rfid_GetNumInstalledAppsPvPj)
TRACED(rfidUtils_CloseHandle)
TRACED(rfidUtils_CreateEvent)
TRACED(rfidUtils_ResetEvent)
TRACED(rfidUtils_SetEvent)
TRACED(rfidUtils_WaitForMultipleObjects)
TRACED(rfidUtils_WaitForSingleObject)
TRACED(rfid_DeallocateTags)
TRACED(rfid_GetReadTags)
