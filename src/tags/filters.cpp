// Antenna selections, tag patterns, access filters and post filters.
#include "tags/filters.h"

#include <cstddef>
#include <cstdint>

#include "bridge/enum_field.h"
#include "bridge/struct_info.h"
#include "bridge/unsigned_fields.h"
#include "jni_fields.h"

namespace {

constexpr const char* kTagPatternSignature = "Lcom/kovra/rfid/orla/TAG_PATTERN;";
constexpr const char* kMatchPatternSignature = "Lcom/kovra/rfid/orla/FILTER_MATCH_PATTERN;";
constexpr const char* kRssiRangeFilterSignature = "Lcom/kovra/rfid/orla/RSSI_RANGE_FILTER;";

// The bytes of a mask or pattern, or NULL for a bit count of 0. The Java
// array must hold at least that many bytes.
uint8_t* newPatternBytes(JNIEnv* env, jobject pattern, const char* arrayField, uint16_t bitCount) {
  if (bitCount == 0) return nullptr;
  const size_t count = patternByteCount(bitCount);
  auto* bytes = new uint8_t[count];
  getByteArrayInJobject(env, pattern, arrayField, bytes, static_cast<int>(count));
  return bytes;
}

// Fills the caller's pattern record from the named field of the filter;
// NULL when the field is null.
TAG_PATTERN* fillTagPattern(JNIEnv* env, jobject filter, const char* field, TAG_PATTERN* record) {
  jobject pattern = getJobjectFromJobject(env, filter, field, kTagPatternSignature);
  if (pattern == nullptr) return nullptr;
  record->memoryBank = getEnumFieldFromJobject(env, pattern, "memoryBank", "Lcom/kovra/rfid/orla/MEMORY_BANK;");
  record->bitOffset = getUint16FromJobject(env, pattern, "bitOffset");
  record->tagMaskBitCount = getUint16FromJobject(env, pattern, "tagMaskBitCount");
  record->tagPatternBitCount = getUint16FromJobject(env, pattern, "tagPatternBitCount");
  record->tagMask = newPatternBytes(env, pattern, "tagMask", record->tagMaskBitCount);
  record->tagPattern = newPatternBytes(env, pattern, "tagPattern", record->tagPatternBitCount);
  return record;
}

// The RSSI window on the heap, or NULL when the filter has none. Only the
// two limits (low byte of each Java short) and the match range are written.
RSSI_RANGE_FILTER* newRssiRangeFilter(JNIEnv* env, jobject filter) {
  jobject range = getJobjectFromJobject(env, filter, "rssiRangeFilter", kRssiRangeFilterSignature);
  if (range == nullptr) return nullptr;
  auto* record = new RSSI_RANGE_FILTER;
  record->peakRSSILowerLimit = static_cast<int8_t>(getShortFromJobject(env, range, "peakRSSILowerLimit"));
  record->peakRSSIUpperLimit = static_cast<int8_t>(getShortFromJobject(env, range, "peakRSSIUpperLimit"));
  record->matchRange = getEnumFieldFromJobject(env, range, "matchRange", "Lcom/kovra/rfid/orla/MATCH_RANGE;");
  return record;
}

void deleteTagMask(TAG_PATTERN* pattern) {
  if (pattern == nullptr || pattern->tagMask == nullptr) return;
  delete[] pattern->tagMask;
  pattern->tagMask = nullptr;
}

// The access filter and the post filter share their layout, their Java
// fields and their conversion; each keeps its own public entry below.
template <class Filter>
void fillFilter(JNIEnv* env, jobject filter, Filter* record, TAG_PATTERN* patternA, TAG_PATTERN* patternB) {
  jobject structInfo = getJobjectFromJobject(env, filter, "structInfo", kStructInfoSignature);
  record->memoryAllocated = getUint32FromJobject(env, structInfo, "memoryAllocated");
  record->memoryUsed = getUint32FromJobject(env, structInfo, "memoryUsed");
  record->tagPatternA = fillTagPattern(env, filter, "tagPatternA", patternA);
  record->tagPatternB = fillTagPattern(env, filter, "tagPatternB", patternB);
  record->matchPattern = getEnumFieldFromJobject(env, filter, "matchPattern", kMatchPatternSignature);
  record->rssiRangeFilter = newRssiRangeFilter(env, filter);
}

// The tagPattern bytes of both patterns are left allocated on purpose.
template <class Filter>
void clearFilter(Filter* record) {
  if (record->rssiRangeFilter != nullptr) {
    delete record->rssiRangeFilter;
    record->rssiRangeFilter = nullptr;
  }
  deleteTagMask(record->tagPatternA);
  deleteTagMask(record->tagPatternB);
}

}  // namespace

void GetAntennaInfoFromJobject(JNIEnv* env, jobject antennaInfo, ANTENNA_INFO* record) {
  record->length = getUint32FromJobject(env, antennaInfo, "length");
  getShortArrayInJobject(env, antennaInfo, "antennaList", record->antennaList, static_cast<int>(record->length));

  auto qualifiers = static_cast<jobjectArray>(
      getJobjectFromJobject(env, antennaInfo, "antennaOpList", "[Lcom/kovra/rfid/orla/OPERATION_QUALIFIER;"));
  if (qualifiers == nullptr) {
    record->antennaOpList = nullptr;
    return;
  }
  for (uint32_t i = 0; i < record->length; ++i) {
    jobject qualifier = env->GetObjectArrayElement(qualifiers, static_cast<jsize>(i));
    record->antennaOpList[i] = getEnumValueFromJobject(env, qualifier, 0);
  }
}

void GetAccessFilterInfoFromJobject(JNIEnv* env, jobject filter, ACCESS_FILTER* record, TAG_PATTERN* patternA,
                                    TAG_PATTERN* patternB) {
  fillFilter(env, filter, record, patternA, patternB);
}

void GetPostFilterInfoFromJobject(JNIEnv* env, jobject filter, POST_FILTER* record, TAG_PATTERN* patternA,
                                  TAG_PATTERN* patternB) {
  fillFilter(env, filter, record, patternA, patternB);
}

void clearAccessFilter(ACCESS_FILTER* record) { clearFilter(record); }

void clearPostFilter(POST_FILTER* record) { clearFilter(record); }
