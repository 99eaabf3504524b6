// Opening and closing reader sessions: connect, reconnect, disconnect,
// login, logout, restart, and accepting a connection the reader initiates.
#include <cstdint>
#include <string>

#include "record/api_call.h"
#include "api/connect.h"
#include "record/capture_record.h"
#include "record/captured_fields.h"
#include "record/session_layouts.h"
#include "reader/session_store.h"

namespace sim {
namespace {

// Written into the caller's handle slot by a failing call that has no
// scripted output: no issued handle ever takes this value.
constexpr int64_t kHandleOnFailure = 0x0BAD0BAD;

struct Origin {
  std::map<std::string, Blob> blobs;
};

// The connection record, its secure record and the secure record's buffers:
// each is recorded, absent under a NULL, even when the record holding its
// pointer is absent itself.
void captureConnectionInfo(ApiCall& call, const void* connInfo) {
  static const size_t secConnInfoAt = layout::OffsetOf(layout::ConnectionInfo(), "secConnInfo", 8);
  const std::string secure = "connInfo.secConnInfo";
  call.blob("connInfo", connInfo, layout::ConnectionInfo().size);
  call.blob(secure, pointerAt(call.captured("connInfo"), secConnInfoAt), layout::SecConnectionInfo().size);
  layout::capturePointees(call, secure, secure, 0, layout::SecConnectionInfo());
}

// Settles a call that issues a handle. On success a session opens and the
// caller gets its handle; on failure no session opens and the caller gets a
// recognisable non-handle. A scripted output replaces what the caller gets.
int32_t answerWithHandle(ApiCall& call, int64_t* handleOut) {
  int32_t status = call.finish();
  int64_t handle = kHandleOnFailure;
  if (status == kSuccess && handleOut != nullptr) {
    handle = openSession();
    SessionStore<Origin>::instance().put(handle, Origin{call.capturedBlobs()});
  }
  std::vector<uint8_t> answer;
  putField(&answer, 0, handle);
  call.outputs({{handleOut, sizeof *handleOut}}, answer);
  return status;
}

// Settles a call that ends its session when it succeeds.
int32_t closeOnSuccess(ApiCall& call, int64_t handle) {
  int32_t status = call.finish();
  if (status == kSuccess) closeSession(handle);
  return status;
}

}  // namespace

std::map<std::string, Blob> sessionOrigin(int64_t handle) {
  Origin origin;
  SessionStore<Origin>::instance().get(handle, &origin);
  return origin.blobs;
}

}  // namespace sim

using sim::ApiCall;
using sim::kNoHandle;

extern "C" {

int32_t RFID_ConnectW(int64_t* handleOut, const wchar_t* hostName, uint32_t first, uint32_t second,
                      void* connInfo) {
  ApiCall call("RFID_ConnectW", kNoHandle, handleOut, hostName, first, second, connInfo);
  call.blob("hostName", hostName, sim::kWideFieldBytes);
  sim::captureConnectionInfo(call, connInfo);
  call.require(handleOut);
  call.require(hostName);
  call.require(connInfo);
  return sim::answerWithHandle(call, handleOut);
}

int32_t RFID_Reconnect(int64_t handle) {
  ApiCall call("RFID_Reconnect", handle);
  return call.finish();
}

int32_t RFID_Disconnect(int64_t handle) {
  ApiCall call("RFID_Disconnect", handle);
  return sim::closeOnSuccess(call, handle);
}

int32_t RFID_LoginW(int64_t* handleOut, void* loginInfo, uint32_t readerKind, uint8_t flag, void* reserved) {
  ApiCall call("RFID_LoginW", kNoHandle, handleOut, loginInfo, readerKind, flag, reserved);
  call.blob("loginInfo", loginInfo, sim::layout::LoginInfo().size);
  call.require(handleOut);
  call.require(loginInfo);
  return sim::answerWithHandle(call, handleOut);
}

int32_t RFID_Logout(int64_t handle) {
  ApiCall call("RFID_Logout", handle);
  return sim::closeOnSuccess(call, handle);
}

int32_t RFID_Restart(int64_t handle) {
  ApiCall call("RFID_Restart", handle);
  return call.finish();
}

int32_t RFID_AcceptConnection(int64_t* handleOut, int64_t passThrough, void* acceptInfo, void* scratchOut) {
  ApiCall call("RFID_AcceptConnection", kNoHandle, handleOut, passThrough, acceptInfo, scratchOut);
  call.blob("acceptInfo", acceptInfo, sim::layout::AcceptConnectionInfo().size);
  call.require(handleOut);
  call.require(acceptInfo);
  return sim::answerWithHandle(call, handleOut);
}

}  // extern "C"
