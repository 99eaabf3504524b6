// Natives of com.kovra.rfid.orla.sim.SimControl: the journal and the scripts
// of the simulator, for tests. Bad input never crashes: a null or unknown
// function name reads as a function never called, a call or blob that does
// not exist raises a Java exception.
#include <jni.h>

#include <cstdint>
#include <string>
#include <vector>

#include "record/journal.h"
#include "record/safe_memory.h"
#include "reader/sessions.h"

namespace {

// Modified UTF-8 characters of a Java string, released on scope exit.
class Utf {
 public:
  Utf(JNIEnv* env, jstring s) : env_(env), s_(s), chars_(s ? env->GetStringUTFChars(s, nullptr) : nullptr) {}
  ~Utf() {
    if (chars_ != nullptr) env_->ReleaseStringUTFChars(s_, chars_);
  }
  Utf(const Utf&) = delete;
  Utf& operator=(const Utf&) = delete;

  std::string str() const { return chars_ != nullptr ? chars_ : ""; }

 private:
  JNIEnv* env_;
  jstring s_;
  const char* chars_;
};

std::string text(JNIEnv* env, jstring s) {
  return Utf(env, s).str();
}

void throwNew(JNIEnv* env, const char* exceptionClass, const std::string& message) {
  jclass cls = env->FindClass(exceptionClass);
  if (cls != nullptr) env->ThrowNew(cls, message.c_str());
}

void throwIllegalArgument(JNIEnv* env, const std::string& message) {
  throwNew(env, "java/lang/IllegalArgumentException", message);
}

// The call, or false with an IllegalArgumentException pending.
bool findCall(JNIEnv* env, jstring fn, jint index, sim::Call* call) {
  std::string name = text(env, fn);
  if (sim::findCall(name, index, call)) return true;
  throwIllegalArgument(env, "no call " + std::to_string(index) + " of " + name + " (" +
                                std::to_string(sim::callCount(name)) + " recorded)");
  return false;
}

jbyteArray byteArray(JNIEnv* env, const std::vector<uint8_t>& bytes) {
  jbyteArray array = env->NewByteArray(static_cast<jsize>(bytes.size()));
  if (array != nullptr && !bytes.empty()) {
    env->SetByteArrayRegion(array, 0, static_cast<jsize>(bytes.size()),
                            reinterpret_cast<const jbyte*>(bytes.data()));
  }
  return array;
}

std::vector<uint8_t> bytesOf(JNIEnv* env, jbyteArray array) {
  std::vector<uint8_t> bytes(array != nullptr ? env->GetArrayLength(array) : 0);
  if (!bytes.empty()) {
    env->GetByteArrayRegion(array, 0, static_cast<jsize>(bytes.size()), reinterpret_cast<jbyte*>(bytes.data()));
  }
  return bytes;
}

jobjectArray stringArray(JNIEnv* env, const std::vector<std::string>& strings) {
  jclass stringClass = env->FindClass("java/lang/String");
  if (stringClass == nullptr) return nullptr;
  jobjectArray array = env->NewObjectArray(static_cast<jsize>(strings.size()), stringClass, nullptr);
  for (size_t i = 0; array != nullptr && i < strings.size(); ++i) {
    jstring s = env->NewStringUTF(strings[i].c_str());
    env->SetObjectArrayElement(array, static_cast<jsize>(i), s);
    env->DeleteLocalRef(s);
  }
  return array;
}

}  // namespace

extern "C" {

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimControl_reset(JNIEnv*, jclass) {
  sim::resetSimulator();
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimControl_record(JNIEnv*, jclass, jboolean on) {
  sim::record(on != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimControl_recordCapacity(JNIEnv* env, jclass, jint entries) {
  if (entries < 0) {
    throwIllegalArgument(env, "record capacity " + std::to_string(entries) + " is negative");
    return;
  }
  sim::setRecordCapacity(static_cast<size_t>(entries));
}

JNIEXPORT jlong JNICALL Java_com_kovra_rfid_orla_sim_SimControl_droppedCalls(JNIEnv*, jclass) {
  return static_cast<jlong>(sim::droppedCalls());
}

// Does nothing: the cost of a bare JNI call, the floor of every benchmark.
JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimControl_nop(JNIEnv*, jclass) {}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_sim_SimControl_count(JNIEnv* env, jclass, jstring fn) {
  return static_cast<jint>(sim::callCount(text(env, fn)));
}

JNIEXPORT jobjectArray JNICALL Java_com_kovra_rfid_orla_sim_SimControl_calls(JNIEnv* env, jclass) {
  return stringArray(env, sim::callNames());
}

JNIEXPORT jlongArray JNICALL Java_com_kovra_rfid_orla_sim_SimControl_args(JNIEnv* env, jclass, jstring fn,
                                                                           jint index) {
  sim::Call call;
  if (!findCall(env, fn, index, &call)) return nullptr;
  std::vector<jlong> args(call.args.begin(), call.args.end());
  jlongArray array = env->NewLongArray(static_cast<jsize>(args.size()));
  if (array != nullptr && !args.empty()) {
    env->SetLongArrayRegion(array, 0, static_cast<jsize>(args.size()), args.data());
  }
  return array;
}

JNIEXPORT jbyteArray JNICALL Java_com_kovra_rfid_orla_sim_SimControl_blob(JNIEnv* env, jclass, jstring fn,
                                                                           jint index, jstring name) {
  sim::Call call;
  if (!findCall(env, fn, index, &call)) return nullptr;
  std::string blobName = text(env, name);
  auto it = call.blobs.find(blobName);
  if (it == call.blobs.end()) {
    throwIllegalArgument(env, call.fn + " recorded no blob \"" + blobName + "\"");
    return nullptr;
  }
  if (it->second.faulted) {
    throwNew(env, "java/lang/IllegalStateException",
             call.fn + ": the memory of blob \"" + blobName + "\" was not readable");
    return nullptr;
  }
  return it->second.present ? byteArray(env, it->second.bytes) : nullptr;
}

JNIEXPORT jobjectArray JNICALL Java_com_kovra_rfid_orla_sim_SimControl_blobNames(JNIEnv* env, jclass,
                                                                                  jstring fn, jint index) {
  sim::Call call;
  if (!findCall(env, fn, index, &call)) return nullptr;
  std::vector<std::string> names;
  for (const auto& entry : call.blobs) names.push_back(entry.first);
  return stringArray(env, names);
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimControl_setStatus(JNIEnv* env, jclass, jstring fn,
                                                                          jint status) {
  sim::setScriptedStatus(text(env, fn), status);
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimControl_queueStatus(JNIEnv* env, jclass, jstring fn,
                                                                            jint status) {
  sim::queueScriptedStatus(text(env, fn), status);
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimControl_setOutput(JNIEnv* env, jclass, jstring fn,
                                                                          jbyteArray bytes) {
  sim::setScriptedOutput(text(env, fn), bytesOf(env, bytes));
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimControl_setPointer(JNIEnv* env, jclass, jstring fn,
                                                                           jlong address) {
  sim::setScriptedPointer(text(env, fn), static_cast<uint64_t>(address));
}

JNIEXPORT jlong JNICALL Java_com_kovra_rfid_orla_sim_SimControl_alloc(JNIEnv* env, jclass, jbyteArray bytes) {
  return static_cast<jlong>(reinterpret_cast<uintptr_t>(sim::keepAlive(bytesOf(env, bytes))));
}

JNIEXPORT jbyteArray JNICALL Java_com_kovra_rfid_orla_sim_SimControl_read(JNIEnv* env, jclass, jlong address,
                                                                           jint n) {
  std::vector<uint8_t> bytes(n > 0 ? static_cast<size_t>(n) : 0);
  const void* p = reinterpret_cast<const void*>(static_cast<uintptr_t>(address));
  if (n < 0 || p == nullptr || !sim::safeCopy(bytes.data(), p, bytes.size())) {
    throwIllegalArgument(env, "cannot read " + std::to_string(n) + " bytes at address " + std::to_string(address));
    return nullptr;
  }
  return byteArray(env, bytes);
}

}  // extern "C"
