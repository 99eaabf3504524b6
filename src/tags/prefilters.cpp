// Pre-filters: select rules that the reader applies on an antenna before
// singulation, added and deleted by index.
#include <jni.h>

#include <cstddef>
#include <cstdint>

#include "bridge/enum_field.h"
#include "bridge/unsigned_fields.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"
#include "tags/filters.h"

namespace {

// The state-unaware action, then the state-aware target over it at the same
// place, and the state-aware action; each only when its Java object is set.
void fillFilterAction(JNIEnv* env, jobject params, PRE_FILTER* record) {
  jobject unaware =
      getJobjectFromJobject(env, params, "stateUnawareAction", "Lcom/kovra/rfid/orla/STATE_UNAWARE_ACTION;");
  if (unaware != nullptr) record->stateUnawareAction = getEnumValueFromJobject(env, unaware, 0);
  jobject aware =
      getJobjectFromJobject(env, params, "stateAwareParams", "Lcom/kovra/rfid/orla/STATE_AWARE_ACTION_PARAMS;");
  if (aware == nullptr) return;
  jobject target = getJobjectFromJobject(env, aware, "target", "Lcom/kovra/rfid/orla/TARGET;");
  if (target != nullptr) record->target = getEnumValueFromJobject(env, target, 0);
  jobject action = getJobjectFromJobject(env, aware, "stateAwareAction", "Lcom/kovra/rfid/orla/STATE_AWARE_ACTION;");
  if (action != nullptr) record->stateAwareAction = getEnumValueFromJobject(env, action, 0);
}

// Fills the record; the pattern bytes (ceil(bit count / 8) of them, even
// none) are allocated here and handed to the caller.
void fillPreFilter(JNIEnv* env, jobject preFilter, PRE_FILTER* record) {
  record->tagPatternBitCount = getUint16FromJobject(env, preFilter, "tagPatternBitCount");
  const size_t patternBytes = patternByteCount(record->tagPatternBitCount);
  record->tagPattern = new uint8_t[patternBytes];
  getByteArrayInJobject(env, preFilter, "tagPattern", record->tagPattern, static_cast<int>(patternBytes));
  record->bitOffset = getUint16FromJobject(env, preFilter, "bitOffset");
  record->memoryBank = getEnumFieldFromJobject(env, preFilter, "memoryBank", "Lcom/kovra/rfid/orla/MEMORY_BANK;");
  record->filterAction = getEnumFieldFromJobject(env, preFilter, "filterAction", "Lcom/kovra/rfid/orla/FILTER_ACTION;");
  record->truncateAction = getEnumFieldFromJobject(env, preFilter, "truncateAction", "Lcom/kovra/rfid/orla/TRUNCATE_ACTION;");
  jobject params =
      getJobjectFromJobject(env, preFilter, "filterActionParams", "Lcom/kovra/rfid/orla/FILTER_ACTION_PARAMS;");
  if (params != nullptr) fillFilterAction(env, params, record);
}

}  // namespace

extern "C" {

// The record is built only when the index array is set: the test is on the
// array, not on the filter object, and a null array sends a NULL filter
// (such an array is neither pinned nor released). The index reaches Java
// only on success; the array is released with mode 0 whatever the status.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1AddPreFilter(JNIEnv* env, jclass, jint readerHandle,
                                                                              jint antennaID, jobject preFilter,
                                                                              jintArray filterIndex) {
  uint32_t index = 0;
  jint* indexOut = filterIndex != nullptr ? env->GetIntArrayElements(filterIndex, nullptr) : nullptr;
  PRE_FILTER record = {};
  if (filterIndex != nullptr) fillPreFilter(env, preFilter, &record);

  const RFID_STATUS status = RFID_AddPreFilter(static_cast<READER_HANDLE>(readerHandle),
                                               static_cast<uint16_t>(antennaID),
                                               filterIndex != nullptr ? &record : nullptr, &index);
  if (status == 0 && indexOut != nullptr) indexOut[0] = static_cast<jint>(index);
  if (indexOut != nullptr) env->ReleaseIntArrayElements(filterIndex, indexOut, 0);
  // record.tagPattern is not freed: each added pre-filter leaves its pattern bytes allocated.
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1DeletePreFilter(JNIEnv*, jclass, jint readerHandle,
                                                                                 jint antennaID, jint filterIndex) {
  return RFID_DeletePreFilter(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(antennaID),
                              static_cast<uint32_t>(filterIndex));
}

}  // extern "C"
