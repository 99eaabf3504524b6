// Power negotiation: its status and the negotiation on/off state.
//
// These three entry points are plain C++ functions, so the library exports
// them only under their C++ (mangled) symbol names, and the virtual machine
// cannot bind the Java natives to them by name; a Java caller has to
// register them itself. Keep it that way: no extern "C", no plain-named
// twin, and do not include the generated JNI header here, whose extern "C"
// declarations would turn them into C symbols.
#include <jni.h>

#include <cstdint>

#include "bridge/c_bool.h"
#include "jni_fields.h"
#include "reader_api.h"

// Only the low 16 bits of the C API's status value reach Java.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationStatus(JNIEnv* env, jclass,
                                                                                            jint readerHandle,
                                                                                            jobject status) {
  uint32_t value;
  const RFID_STATUS result = RFID_GetPowerNegotiationStatus(static_cast<READER_HANDLE>(readerHandle), &value);
  if (result != 0) return result;
  setShortInJobject(env, status, "enumMode", static_cast<short>(value));
  return 0;
}

// Setting reads "status"; getting writes "powernegstate".
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetPowerNegotiationState(JNIEnv* env, jclass,
                                                                                           jint readerHandle,
                                                                                           jobject state) {
  return RFID_SetPowerNegotiationState(static_cast<READER_HANDLE>(readerHandle),
                                       toCBool(getBoolFromJobject(env, state, "status")));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationState(JNIEnv* env, jclass,
                                                                                           jint readerHandle,
                                                                                           jobject state) {
  RFID_BOOL on;
  const RFID_STATUS result = RFID_GetPowerNegotiationState(static_cast<READER_HANDLE>(readerHandle), &on);
  if (result != 0) return result;
  setBoolInJobject(env, state, "powernegstate", on);
  return 0;
}
