// Single Gen2 memory operations on one tag: read, write, block write, block
// erase, lock, kill, block permalock, recommission, and the writes of the
// access password, the kill password and the tag ID.
//
// Each runs in an access frame: the tag ID text becomes bytes, a result
// tag record is obtained where the operation returns one, the parameter
// record, antenna selection and access filter are built, the reader
// performs the operation, and everything is given back before returning
// the reader's status. Null Java objects reach the reader as NULL records.
#include <jni.h>

#include <cstdint>

#include "access/access_frame.h"
#include "access/access_params.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "reader_api.h"

namespace {

using WriteFunction = RFID_STATUS (*)(READER_HANDLE, const uint8_t*, uint32_t, WRITE_ACCESS_PARAMS*, ACCESS_FILTER*,
                                      ANTENNA_INFO*, void*);
using WriteFieldFunction = RFID_STATUS (*)(READER_HANDLE, const uint8_t*, uint32_t, WRITE_FIELD_ACCESS_PARAMS*,
                                           ANTENNA_INFO*, void*);

// Write and block write differ only in the reader function.
jint performWrite(WriteFunction write, JNIEnv* env, jint readerHandle, jstring tagID, jint tagIDLength,
                  jobject params, jobject accessFilter, jobject antennaInfo) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  WRITE_ACCESS_PARAMS* record = newWriteParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status =
      write(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), record, filter, antennas, nullptr);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  deleteWriteParams(record);
  return status;
}

// The three single-field writes differ only in the reader function; they
// take no access filter.
jint performWriteField(WriteFieldFunction write, JNIEnv* env, jint readerHandle, jstring tagID, jint tagIDLength,
                       jobject params, jobject antennaInfo) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  WRITE_FIELD_ACCESS_PARAMS* record = newWriteFieldParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);

  const RFID_STATUS status =
      write(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), record, antennas, nullptr);
  frame.releaseTagID();
  deleteWriteFieldParams(record);
  return status;
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Read(JNIEnv* env, jclass, jint readerHandle,
                                                                      jstring tagID, jint tagIDLength,
                                                                      jobject params, jobject accessFilter,
                                                                      jobject antennaInfo, jobject tagData,
                                                                      jobject, jobject, jboolean utcTime) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  TAG_DATA* tag = frame.requestTag(tagData);
  READ_ACCESS_PARAMS stackRecord;
  READ_ACCESS_PARAMS* record = fillReadParams(env, params, &stackRecord);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_Read(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), record,
                                       filter, antennas, tag, nullptr);
  frame.returnTag(status, utcTime);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Write(JNIEnv* env, jclass, jint readerHandle,
                                                                       jstring tagID, jint tagIDLength,
                                                                       jobject params, jobject accessFilter,
                                                                       jobject antennaInfo) {
  return performWrite(RFID_Write, env, readerHandle, tagID, tagIDLength, params, accessFilter, antennaInfo);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1BlockWrite(JNIEnv* env, jclass, jint readerHandle,
                                                                            jstring tagID, jint tagIDLength,
                                                                            jobject params, jobject accessFilter,
                                                                            jobject antennaInfo) {
  return performWrite(RFID_BlockWrite, env, readerHandle, tagID, tagIDLength, params, accessFilter, antennaInfo);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1BlockErase(JNIEnv* env, jclass, jint readerHandle,
                                                                            jstring tagID, jint tagIDLength,
                                                                            jobject params, jobject accessFilter,
                                                                            jobject antennaInfo) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  BLOCK_ERASE_ACCESS_PARAMS* record = newBlockEraseParams(env, params);
  ACCESS_FILTER* filter = frame.filter(accessFilter);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);

  const RFID_STATUS status = RFID_BlockErase(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), record,
                                             filter, antennas, nullptr);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  delete record;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Lock(JNIEnv* env, jclass, jint readerHandle,
                                                                      jstring tagID, jint tagIDLength,
                                                                      jobject params, jobject accessFilter,
                                                                      jobject antennaInfo) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  LOCK_ACCESS_PARAMS* record = newLockParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_Lock(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), record, filter,
                                       antennas, nullptr);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  delete record;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Kill(JNIEnv* env, jclass, jint readerHandle,
                                                                      jstring tagID, jint tagIDLength,
                                                                      jobject params, jobject accessFilter,
                                                                      jobject antennaInfo) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  KILL_ACCESS_PARAMS* record = newKillParams(env, params);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);
  ACCESS_FILTER* filter = frame.filter(accessFilter);

  const RFID_STATUS status = RFID_Kill(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength), record, filter,
                                       antennas, nullptr);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  delete record;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1BlockPermalock(
    JNIEnv* env, jclass, jint readerHandle, jstring tagID, jint tagIDLength, jobject params, jobject accessFilter,
    jobject antennaInfo, jobject tagData, jobject, jobject, jboolean utcTime) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  TAG_DATA* tag = frame.requestTag(tagData);
  BLOCK_PERMALOCK_ACCESS_PARAMS* record = newBlockPermalockParams(env, params);
  ACCESS_FILTER* filter = frame.filter(accessFilter);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);

  const RFID_STATUS status = RFID_BlockPermalock(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength),
                                                 record, filter, antennas, tag, nullptr);
  frame.returnTag(status, utcTime);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  deleteBlockPermalockParams(record);
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Recommission(JNIEnv* env, jclass,
                                                                              jint readerHandle, jstring tagID,
                                                                              jint tagIDLength, jobject params,
                                                                              jobject accessFilter,
                                                                              jobject antennaInfo) {
  orla::AccessFrame frame(env, readerHandle);
  const uint8_t* tagBytes = frame.tagID(tagID, tagIDLength);
  RECOMMISSION_ACCESS_PARAMS* record = newRecommissionParams(env, params);
  ACCESS_FILTER* filter = frame.filter(accessFilter);
  ANTENNA_INFO* antennas = frame.antennas(antennaInfo);

  const RFID_STATUS status = RFID_Recommission(frame.handle(), tagBytes, static_cast<uint32_t>(tagIDLength),
                                               record, filter, antennas, nullptr);
  frame.clearFilter();  // the pattern bytes stay allocated
  frame.releaseTagID();
  delete record;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1WriteAccessPassword(JNIEnv* env, jclass,
                                                                                     jint readerHandle,
                                                                                     jstring tagID,
                                                                                     jint tagIDLength,
                                                                                     jobject params,
                                                                                     jobject antennaInfo) {
  return performWriteField(RFID_WriteAccessPassword, env, readerHandle, tagID, tagIDLength, params, antennaInfo);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1WriteKillPassword(JNIEnv* env, jclass,
                                                                                   jint readerHandle, jstring tagID,
                                                                                   jint tagIDLength, jobject params,
                                                                                   jobject antennaInfo) {
  return performWriteField(RFID_WriteKillPassword, env, readerHandle, tagID, tagIDLength, params, antennaInfo);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1WriteTagID(JNIEnv* env, jclass, jint readerHandle,
                                                                            jstring tagID, jint tagIDLength,
                                                                            jobject params, jobject antennaInfo) {
  return performWriteField(RFID_WriteTagID, env, readerHandle, tagID, tagIDLength, params, antennaInfo);
}

}  // extern "C"
