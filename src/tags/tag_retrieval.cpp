// Taking read tags out of the reader's buffer: one at a time into a record
// that Java holds, or in batches straight into Java tag objects.
#include <jni.h>

#include <cstdint>
#include <new>

#include "bridge/pinned_array.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "reader_api.h"
#include "tags/tag_data.h"

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetReadTag(JNIEnv* env, jclass, jint readerHandle,
                                                                            jobject tagData, jlong tagRecord,
                                                                            jboolean utcTime) {
  auto* tag = reinterpret_cast<TAG_DATA*>(tagRecord);
  const RFID_STATUS status = RFID_GetReadTag(static_cast<READER_HANDLE>(readerHandle), tag);
  if (status != 0) return status;
  SetTagDataToJobject(env, tagData, tag, utcTime != JNI_FALSE);
  return 0;
}

// Returns the status of handing the batch back, not that of fetching it: a
// failed fetch whose (empty) release succeeds reports 0, and Java then sees
// its count unchanged. The records never outlive the call.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_rfid_1GetReadTags(JNIEnv* env, jclass, jint readerHandle,
                                                                             jint maxCount, jobjectArray tagData,
                                                                             jintArray tagCount, jboolean utcTime) {
  const auto handle = static_cast<READER_HANDLE>(readerHandle);
  orla::PinnedArray<jintArray> count(env, tagCount);
  // A maximum of 0 or less gets an empty array; the C API is told the
  // maximum as it stands.
  TAG_DATA** tags = new (std::nothrow) TAG_DATA*[maxCount > 0 ? maxCount : 0];
  if (tags == nullptr) return 0;

  uint32_t readCount = 0;
  const RFID_STATUS status = rfid_GetReadTags(handle, static_cast<uint32_t>(maxCount), tags, &readCount);
  if (status == 0) {
    count[0] = static_cast<jint>(readCount);
    for (uint32_t i = 0; i < readCount; ++i) {
      SetTagDataToJobject(env, env->GetObjectArrayElement(tagData, static_cast<jsize>(i)), tags[i],
                          utcTime != JNI_FALSE);
    }
  }
  const RFID_STATUS released = rfid_DeallocateTags(handle, tags, readCount);
  delete[] tags;
  return released;
}

}  // extern "C"
