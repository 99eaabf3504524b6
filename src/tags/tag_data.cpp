// Writing tag records into Java tag objects, and the tag records that Java
// holds between calls.
#include "tags/tag_data.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "bridge/scalar_fields.h"
#include "bridge/struct_info.h"
#include "bridge/system_time.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"

namespace {

// Characters of each text area: two per byte plus the terminator, so
// renderings of up to 2,047 bytes fit.
constexpr size_t kTextChars = 4096;
// A text area is cleared over one byte less than its size; the last
// character is never reached by a rendering that fits.
constexpr size_t kClearedTextBytes = kTextChars * sizeof(wchar_t) - 1;

// The text areas of one conversion, all on the stack: the identifier, the
// memory bank data, and a scratch area that is first the multibyte buffer
// of both strings, then the wide text of a bit-string reply.
struct TagTexts {
  wchar_t tagID[kTextChars];
  wchar_t memoryBankData[kTextChars];
  union {
    char multibyte[kTextChars];
    wchar_t reply[kTextChars];
  } scratch;
};

void clearText(wchar_t* text) { std::memset(text, 0, kClearedTextBytes); }

// Appends two upper-case hexadecimal digits per byte, no separators. The
// formatter's limit is counted from the write position, as the area is
// sized for the longest rendering.
void appendHex(wchar_t* text, const uint8_t* bytes, uint32_t count) {
  for (uint32_t i = 0; i < count; ++i) std::swprintf(text + 2 * i, kTextChars, L"%02X", bytes[i]);
}

// Stores wide text in a String field through the caller's multibyte buffer.
void storeText(JNIEnv* env, jobject object, const char* name, const wchar_t* text, char* multibyte) {
  std::wcstombs(multibyte, text, kTextChars);
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "Ljava/lang/String;");
  env->SetObjectField(object, field, env->NewStringUTF(multibyte));
}

void setSeenTime(JNIEnv* env, jobject tagData, const TAG_DATA& tag, bool utcTime) {
  jobject seenTime = getJobjectFromJobject(env, tagData, "seenTime", "Lcom/kovra/rfid/orla/SEEN_TIME;");
  if (utcTime) {
    jobject utc = getJobjectFromJobject(env, seenTime, "utcTime", "Lcom/kovra/rfid/orla/UTC_TIME;");
    setSystemTimeInJobject(env, getJobjectFromJobject(env, utc, "firstSeenTimeStamp", kSystemTimeSignature),
                           tag.seenTime.utcTime.firstSeenTimeStamp);
    setSystemTimeInJobject(env, getJobjectFromJobject(env, utc, "lastSeenTimeStamp", kSystemTimeSignature),
                           tag.seenTime.utcTime.lastSeenTimeStamp);
  } else {
    jobject upTime = getJobjectFromJobject(env, seenTime, "upTime", "Lcom/kovra/rfid/orla/UP_TIME;");
    setLongInJobject(env, upTime, "firstSeenTimeStamp", static_cast<jlong>(tag.seenTime.upTime.firstSeenTimeStamp));
    setLongInJobject(env, upTime, "lastSeenTimeStamp", static_cast<jlong>(tag.seenTime.upTime.lastSeenTimeStamp));
  }
}

// The reply of a Gen2v2 operation: whole bytes only, so 1 to 7 bits give
// the empty string and 0 bits leave the field as it was.
void setBitStringReply(JNIEnv* env, jobject value, const AUTHENTICATE_READ_BUFFER_RESULT& result, wchar_t* text) {
  clearText(text);
  if (result.lengthInBits == 0) return;
  appendHex(text, result.pReply, result.lengthInBits / 8u);
  setStringInJobject(env, value, "authenticateReadBufferResult", text);
}

void setAccessOperationResult(JNIEnv* env, jobject tagData, const TAG_DATA& tag, wchar_t* replyText) {
  jobject result = getJobjectFromJobject(env, tagData, "AccessOperationResult",
                                         "Lcom/kovra/rfid/orla/ACCESS_OPERATION_RESULT;");
  jobject value = getJobjectFromJobject(env, result, "value", "Lcom/kovra/rfid/orla/ACCESS_OPERATION_RESULT_VALUE;");
  switch (tag.opCode) {
    case kOpCodeImpinjQt: {
      jobject qt = getJobjectFromJobject(env, value, "qtData", "Lcom/kovra/rfid/orla/IMPINJ_QT_DATA;");
      setShortInJobject(env, qt, "qtControlData", static_cast<const IMPINJ_QT_DATA*>(tag.pOpResult)->qtControlData);
      break;
    }
    case kOpCodeNxpChangeConfig: {
      jobject config = getJobjectFromJobject(env, value, "nxpChangeConfigWordResult",
                                             "Lcom/kovra/rfid/orla/NXP_CHANGE_CONFIG_WORD_RESULT;");
      setShortInJobject(env, config, "ChangeConfigWord",
                        static_cast<const NXP_CHANGE_CONFIG_WORD_RESULT*>(tag.pOpResult)->ChangeConfigWord);
      break;
    }
    case kOpCodeGen2v2Authenticate:
    case kOpCodeGen2v2ReadBuffer:
    case kOpCodeGen2v2OtherReply:
      setBitStringReply(env, value, *static_cast<const AUTHENTICATE_READ_BUFFER_RESULT*>(tag.pOpResult), replyText);
      break;
    default:
      break;
  }
}

void setGpsLocation(JNIEnv* env, jobject tagData, const GPS_LOCATION& gps) {
  jobject location = getJobjectFromJobject(env, tagData, "gpsLocation", "Lcom/kovra/rfid/orla/GPS_LOCATION;");
  setIntInJobject(env, location, "longitude", gps.longitude);
  setIntInJobject(env, location, "latitude", gps.latitude);
  setIntInJobject(env, location, "altitude", gps.altitude);
}

// Also clears the flag that an earlier tag may have left set.
void setLocation(JNIEnv* env, jobject tagData, const LOCATION_INFO* location) {
  if (location == nullptr) {
    setBoolInJobject(env, tagData, "isContainLocationInfo", 0);
    return;
  }
  setBoolInJobject(env, tagData, "isContainLocationInfo", 1);
  jobject info = getJobjectFromJobject(env, tagData, "location", "Lcom/kovra/rfid/orla/LOCATION_INFO;");
  setShortInJobject(env, info, "relativeDistance", location->relativeDistance);
}

}  // namespace

void SetTagDataToJobject(JNIEnv* env, jobject tagData, TAG_DATA* tag, bool utcTime) {
  TagTexts texts;

  setStructInfoInJobject(env, tagData, tag->memoryAllocated, tag->memoryUsed);

  clearText(texts.tagID);
  appendHex(texts.tagID, tag->pTagID, tag->tagIDLength);
  storeText(env, tagData, "tagID", texts.tagID, texts.scratch.multibyte);

  setIntInJobject(env, tagData, "tagIDLength", static_cast<int>(tag->tagIDLength));
  setIntInJobject(env, tagData, "tagIDAllocated", static_cast<int>(tag->tagIDAllocated));
  setIntInJobject(env, tagData, "PC", tag->PC);
  setIntInJobject(env, tagData, "XPC", static_cast<int>(tag->XPC));
  setIntInJobject(env, tagData, "CRC", tag->CRC);
  setShortInJobject(env, tagData, "antennaID", tag->antennaID);
  setShortInJobject(env, tagData, "peakRSSI", tag->peakRSSI);
  setShortInJobject(env, tagData, "phaseInfo", tag->phaseInfo);
  setShortInJobject(env, tagData, "channelIndex", tag->channelIndex);
  setShortInJobject(env, tagData, "tagSeenCount", tag->tagSeenCount);

  clearText(texts.memoryBankData);
  appendHex(texts.memoryBankData, tag->pMemoryBankData, tag->memoryBankDataLength);
  storeText(env, tagData, "memoryBankData", texts.memoryBankData, texts.scratch.multibyte);

  setIntInJobject(env, tagData, "memoryBankDataByteOffset", static_cast<int>(tag->memoryBankDataByteOffset));
  setIntInJobject(env, tagData, "memoryBankDataLength", static_cast<int>(tag->memoryBankDataLength));
  setIntInJobject(env, tagData, "memoryBankDataAllocated", static_cast<int>(tag->memoryBankDataAllocated));
  setIntInJobject(env, tagData, "enumOPCode", static_cast<int>(tag->opCode));
  setIntInJobject(env, tagData, "enumOPStatus", static_cast<int>(tag->opStatus));
  setIntInJobject(env, tagData, "enumMemoryBank", static_cast<int>(tag->memoryBank));
  setIntInJobject(env, tagData, "enumTagEvent", static_cast<int>(tag->tagEvent));

  setSeenTime(env, tagData, *tag, utcTime);
  setSystemTimeInJobject(env, getJobjectFromJobject(env, tagData, "tagEventTimeStamp", kSystemTimeSignature),
                         tag->tagEventTimeStamp);
  if (tag->pOpResult != nullptr) setAccessOperationResult(env, tagData, *tag, texts.scratch.reply);
  if (tag->pGpsLocation != nullptr) setGpsLocation(env, tagData, *tag->pGpsLocation);
  setLocation(env, tagData, tag->pLocationInfo);
}

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1AllocateTag(JNIEnv*, jclass, jint readerHandle) {
  return reinterpret_cast<jlong>(RFID_AllocateTag(static_cast<READER_HANDLE>(readerHandle)));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1DeallocateTag(JNIEnv*, jclass, jint readerHandle,
                                                                               jlong tagRecord) {
  return RFID_DeallocateTag(static_cast<READER_HANDLE>(readerHandle), reinterpret_cast<TAG_DATA*>(tagRecord));
}

}  // extern "C"
