// Configuration profiles stored on the reader: listing, import, export,
// deletion and activation.
#include <jni.h>

#include <cstddef>
#include <cwchar>
#include <memory>

#include "bridge/c_bool.h"
#include "bridge/name_buffer.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

constexpr const wchar_t* kProfileSeparator = L":";

// The profile names joined by ":" in a zeroed buffer of every name's
// characters, one more per name and one for the terminator (a single
// character for no names). Sized unlike the time-zone list on purpose.
std::unique_ptr<wchar_t[]> joinProfileNames(const PROFILE_LIST& list) {
  const size_t count = list.numProfiles;
  size_t total = 0;
  for (size_t i = 0; i < count; ++i) total += std::wcslen(list.profileNames[i]);
  std::unique_ptr<wchar_t[]> joined(new wchar_t[total + count + 1]());
  for (size_t i = 0; i < count; ++i) {
    if (i > 0) std::wcscat(joined.get(), kProfileSeparator);
    std::wcscat(joined.get(), list.profileNames[i]);
  }
  return joined;
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetProfileList(JNIEnv* env, jclass,
                                                                                jint readerHandle,
                                                                                jobject profileList) {
  PROFILE_LIST list = {};
  const RFID_STATUS status = RFID_GetProfileListW(static_cast<READER_HANDLE>(readerHandle), &list);
  if (status != 0) return status;
  setShortInJobject(env, profileList, "numProfiles", static_cast<short>(list.numProfiles));
  setShortInJobject(env, profileList, "activeProfileIndex", list.activeProfileIndex);
  const std::unique_ptr<wchar_t[]> names = joinProfileNames(list);
  setStringInJobject(env, profileList, "ProfileNamesList", names.get());
  return 0;
}

// Both names travel in the order Java gives them.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1ImportProfileFromReader(JNIEnv* env, jclass,
                                                                                         jint readerHandle,
                                                                                         jstring firstName,
                                                                                         jstring secondName) {
  const NameBuffer first(env, firstName);
  const NameBuffer second(env, secondName);
  return RFID_ImportProfileFromReaderW(static_cast<READER_HANDLE>(readerHandle), first.text, second.text);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1ExportProfileToReader(JNIEnv* env, jclass,
                                                                                       jint readerHandle,
                                                                                       jstring firstName,
                                                                                       jstring secondName,
                                                                                       jboolean flag) {
  const NameBuffer first(env, firstName);
  const NameBuffer second(env, secondName);
  return RFID_ExportProfileToReaderW(static_cast<READER_HANDLE>(readerHandle), first.text, second.text,
                                     toCBool(flag));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1DeleteProfile(JNIEnv* env, jclass,
                                                                               jint readerHandle,
                                                                               jstring profileName) {
  const NameBuffer name(env, profileName);
  return RFID_DeleteProfileW(static_cast<READER_HANDLE>(readerHandle), name.text);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetActiveProfile(JNIEnv* env, jclass,
                                                                                  jint readerHandle,
                                                                                  jstring profileName) {
  const NameBuffer name(env, profileName);
  return RFID_SetActiveProfileW(static_cast<READER_HANDLE>(readerHandle), name.text);
}

}  // extern "C"
