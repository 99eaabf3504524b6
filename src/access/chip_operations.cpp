// Custom commands of NXP and Impinj chips: read protect, reset read
// protect, EAS state and configuration word; QT control write and read.
//
// They run in the access frame of the Gen2 operations, with an optional
// tag ID: without one the reader gets a NULL tag ID and the length as Java
// gave it. Read protect converts a tag ID for any length but 0, the others
// for lengths above 0 only, so a negative length gives them no tag ID.
#include <jni.h>

#include <cstdint>

#include "access/access_frame.h"
#include "access/access_params.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "reader_api.h"

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1NXPReadProtect(JNIEnv* env, jclass,
                                                                                jint readerHandle, jstring tagID,
                                                                                jint tagIDLength, jobject params,
                                                                                jobject accessFilter,
                                                                                jobject antennaInfo) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = tagIDLength != 0 ? frame.tagID(tagID, tagIDLength) : nullptr;
  NXP_READ_PROTECT_PARAMS* record = newNxpReadProtectParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_NXPReadProtect(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength),
                                                 record, filter, antennas, nullptr);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  delete record;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1NXPResetReadProtect(JNIEnv* env, jclass,
                                                                                     jint readerHandle,
                                                                                     jobject params,
                                                                                     jobject antennaInfo) {
  orla::AccessFrame frame(env, readerHandle);
  NXP_RESET_READ_PROTECT_PARAMS* record = newNxpResetReadProtectParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);

  const RFID_STATUS status = RFID_NXPResetReadProtect(frame.handle(), record, antennas, nullptr);
  delete record;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1NXPSetEAS(JNIEnv* env, jclass, jint readerHandle,
                                                                           jstring tagID, jint tagIDLength,
                                                                           jobject params, jobject accessFilter,
                                                                           jobject antennaInfo) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = tagIDLength > 0 ? frame.tagID(tagID, tagIDLength) : nullptr;
  NXP_SET_EAS_PARAMS* record = newNxpSetEasParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_NXPSetEAS(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), record,
                                            filter, antennas, nullptr);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  delete record;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1NXPChangeConfig(
    JNIEnv* env, jclass, jint readerHandle, jstring tagID, jint tagIDLength, jobject params, jobject accessFilter,
    jobject antennaInfo, jobject tagData, jobject, jobject, jboolean utcTime) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = tagIDLength > 0 ? frame.tagID(tagID, tagIDLength) : nullptr;
  TAG_DATA* tag = frame.requestTag(tagData);
  NXP_CHANGE_CONFIG_PARAMS* record = newNxpChangeConfigParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_NXPChangeConfig(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength),
                                                  record, filter, antennas, tag, nullptr);
  frame.returnTag(status, utcTime);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  delete record;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1ImpinjQTWrite(JNIEnv* env, jclass,
                                                                               jint readerHandle, jstring tagID,
                                                                               jint tagIDLength, jobject params,
                                                                               jobject accessFilter,
                                                                               jobject antennaInfo) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = tagIDLength > 0 ? frame.tagID(tagID, tagIDLength) : nullptr;
  IMPINJ_QT_WRITE_PARAMS* record = newImpinjQtWriteParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_ImpinjQTWrite(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength),
                                                record, filter, antennas, nullptr);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  delete record;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1ImpinjQTRead(
    JNIEnv* env, jclass, jint readerHandle, jstring tagID, jint tagIDLength, jobject params, jobject accessFilter,
    jobject antennaInfo, jobject tagData, jobject, jobject, jboolean utcTime) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = tagIDLength > 0 ? frame.tagID(tagID, tagIDLength) : nullptr;
  TAG_DATA* tag = frame.requestTag(tagData);
  IMPINJ_QT_READ_PARAMS* record = newImpinjQtReadParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_ImpinjQTRead(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), record,
                                               filter, antennas, tag, nullptr);
  frame.returnTag(status, utcTime);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  delete record;
  return status;
}

}  // extern "C"
