// The management session on a reader: log in with a user name and password,
// log out, and restart the reader.
#include <jni.h>

#include <cstdint>
#include <memory>

#include "bridge/c_bool.h"
#include "bridge/conversions.h"
#include "bridge/enum_field.h"
#include "bridge/string_field.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"
#include "session/handle_out.h"

namespace {

constexpr const char* kRfidVersionSignature = "Lcom/kovra/rfid/orla/RFID_VERSION;";

}  // namespace

extern "C" {

// A null login object sends a NULL record; a null text field leaves its
// buffer empty. The handle reaches Java only on success.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Login(JNIEnv* env, jclass, jlongArray handleOut,
                                                                       jobject loginInfo, jobject readerType,
                                                                       jboolean flag) {
  orla::HandleOut handle(env, handleOut);

  std::unique_ptr<LOGIN_INFO> record;
  if (loginInfo != nullptr) {
    record = std::make_unique<LOGIN_INFO>();  // all zero
    const TextField fields[] = {
        {"hostName", record->hostName}, {"userName", record->userName}, {"password", record->password}};
    for (const TextField& field : fields) {
      jstring value = getStringFromJobject(env, loginInfo, field.name);
      if (value == nullptr) continue;
      // Fetched once and deliberately never released: login keeps this leak as it stands.
      static_cast<void>(env->GetStringUTFChars(value, nullptr));
      JavaToWSZ(env, value, field.text);
    }
    record->forceLogin = toCBool(getBoolFromJobject(env, loginInfo, "forceLogin"));
    record->version = getEnumFieldFromJobject(env, loginInfo, "rfidVersion", kRfidVersionSignature);
  }
  const uint32_t kind = getEnumValueFromJobject(env, readerType, 0);

  const RFID_STATUS status = RFID_LoginW(handle.slot(), record.get(), kind, toCBool(flag), nullptr);
  // Login frees its record before the handle array is released.
  record.reset();
  return handle.deliver(status);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Logout(JNIEnv*, jclass, jint readerHandle) {
  return RFID_Logout(static_cast<READER_HANDLE>(readerHandle));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Restart(JNIEnv*, jclass, jint readerHandle) {
  return RFID_Restart(static_cast<READER_HANDLE>(readerHandle));
}

}  // extern "C"
