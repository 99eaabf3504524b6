// Natives of com.kovra.rfid.orla.sim.SimBench: the floors the benchmark
// measures the library against, so that only what the library itself adds
// is charged to it.
#include <jni.h>

#include <chrono>
#include <cstdint>
#include <initializer_list>

#include "api/c_api.h"

namespace {

// What the tag writer looks up and sets for one tag (class and field looked
// up afresh for every field, as it does), given an object, a field name and
// its signature.
jfieldID fieldOf(JNIEnv* env, jobject object, const char* name, const char* signature) {
  return env->GetFieldID(env->GetObjectClass(object), name, signature);
}

jobject objectIn(JNIEnv* env, jobject object, const char* name, const char* signature) {
  return env->GetObjectField(object, fieldOf(env, object, name, signature));
}

void setInts(JNIEnv* env, jobject object, std::initializer_list<const char*> names, jint value) {
  for (const char* name : names) env->SetIntField(object, fieldOf(env, object, name, "I"), value);
}

void setShorts(JNIEnv* env, jobject object, std::initializer_list<const char*> names, jshort value) {
  for (const char* name : names) env->SetShortField(object, fieldOf(env, object, name, "S"), value);
}

void setString(JNIEnv* env, jobject object, const char* name, const char* text) {
  env->SetObjectField(object, fieldOf(env, object, name, "Ljava/lang/String;"), env->NewStringUTF(text));
}

constexpr const char* kSystemTime = "Lcom/kovra/rfid/orla/SYSTEMTIME;";

void setSystemTime(JNIEnv* env, jobject time, jshort value) {
  setShorts(env, time, {"Year", "Month", "DayOfWeek", "Day", "Hour", "Minute", "Second", "Milliseconds"},
            value);
}

// The tag writer's floor: the same class and field lookups and the same
// field sets, in the same order, as writing a tag with an identifier and
// memory bank data, UTC seen times and no operation result, GPS or location
// record; the two strings come from fixed text of the usual lengths instead
// of being rendered from bytes.
void writeTagFloor(JNIEnv* env, jobject tag, jint value) {
  jobject structInfo = objectIn(env, tag, "structInfo", "Lcom/kovra/rfid/orla/STRUCT_INFO;");
  setInts(env, structInfo, {"memoryAllocated", "memoryUsed"}, value);
  setString(env, tag, "tagID", "300012345678ABCDEF012345");
  setInts(env, tag, {"tagIDLength", "tagIDAllocated", "PC", "XPC", "CRC"}, value);
  setShorts(env, tag, {"antennaID", "peakRSSI", "phaseInfo", "channelIndex", "tagSeenCount"},
            static_cast<jshort>(value));
  setString(env, tag, "memoryBankData", "0102030405060708");
  setInts(env, tag,
          {"memoryBankDataByteOffset", "memoryBankDataLength", "memoryBankDataAllocated", "enumOPCode",
           "enumOPStatus", "enumMemoryBank", "enumTagEvent"},
          value);
  jobject seenTime = objectIn(env, tag, "seenTime", "Lcom/kovra/rfid/orla/SEEN_TIME;");
  jobject utc = objectIn(env, seenTime, "utcTime", "Lcom/kovra/rfid/orla/UTC_TIME;");
  setSystemTime(env, objectIn(env, utc, "firstSeenTimeStamp", kSystemTime), static_cast<jshort>(value));
  setSystemTime(env, objectIn(env, utc, "lastSeenTimeStamp", kSystemTime), static_cast<jshort>(value));
  setSystemTime(env, objectIn(env, tag, "tagEventTimeStamp", kSystemTime), static_cast<jshort>(value));
  env->SetBooleanField(tag, fieldOf(env, tag, "isContainLocationInfo", "Z"), JNI_FALSE);
}

}  // namespace

extern "C" {

// Does nothing, and is reached through the dynamic linker's procedure
// linkage like every reader API function the library calls: the floor of a
// forwarder.
__attribute__((noinline)) int32_t halyard_bench_empty(int64_t handle) { return handle == -1 ? 1 : 0; }

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_sim_SimBench_callEmpty(JNIEnv*, jclass, jint handle) {
  return halyard_bench_empty(handle);
}

// Nanoseconds that `calls` calls of RFID_StopInventory take inside the
// simulator, without JNI: its own share of a forwarder's time.
JNIEXPORT jlong JNICALL Java_com_kovra_rfid_orla_sim_SimBench_timeStopInventory(JNIEnv*, jclass, jint handle,
                                                                                 jint calls) {
  const auto start = std::chrono::steady_clock::now();
  for (jint i = 0; i < calls; ++i) RFID_StopInventory(handle);
  return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now() - start).count();
}

// The floor of rfid_GetReadTags: the tag writer's floor for each of the
// first count objects of the array, fetched as the library fetches them.
JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimBench_writeTagsFloor(JNIEnv* env, jclass, jobjectArray tags,
                                                                             jint count, jint value) {
  for (jint i = 0; i < count; ++i) writeTagFloor(env, env->GetObjectArrayElement(tags, i), value);
}

}  // extern "C"
