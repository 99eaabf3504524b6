// Natives of com.kovra.rfid.orla.sim.SimReader: the tag population, GPI
// inputs, raised events and counters of the simulated reader, for tests.
// An unknown reader handle or event type raises IllegalArgumentException.
#include <jni.h>

#include <cstdint>
#include <string>
#include <vector>

#include "reader/capabilities.h"
#include "reader/event_signals.h"
#include "reader/field_settings.h"
#include "reader/scenario.h"
#include "reader/state.h"
#include "reader/population.h"
#include "reader/tag_records.h"
#include "record/session_layouts.h"

namespace {

using sim::layout::EventData;
using sim::layout::OffsetOf;
using sim::layout::Record;

void throwIllegalArgument(JNIEnv* env, const std::string& message) {
  jclass cls = env->FindClass("java/lang/IllegalArgumentException");
  if (cls != nullptr) env->ThrowNew(cls, message.c_str());
}

std::string text(JNIEnv* env, jstring s) {
  if (s == nullptr) return {};
  const char* chars = env->GetStringUTFChars(s, nullptr);
  if (chars == nullptr) return {};
  std::string copy(chars);
  env->ReleaseStringUTFChars(s, chars);
  return copy;
}

std::vector<uint8_t> bytes(JNIEnv* env, jbyteArray array) {
  if (array == nullptr) return {};
  std::vector<uint8_t> out(static_cast<size_t>(env->GetArrayLength(array)));
  env->GetByteArrayRegion(array, 0, static_cast<jsize>(out.size()), reinterpret_cast<jbyte*>(out.data()));
  return out;
}

// The reader's state, or nullptr with an exception pending.
sim::ReaderPtr reader(JNIEnv* env, jlong handle) {
  sim::ReaderPtr r = sim::findReader(handle);
  if (!r) throwIllegalArgument(env, "no open reader session " + std::to_string(handle));
  return r;
}

}  // namespace

extern "C" {

JNIEXPORT jstring JNICALL Java_com_kovra_rfid_orla_sim_SimReader_loadTags(JNIEnv* env, jclass, jstring tags) {
  const std::string problem = sim::loadPopulation(text(env, tags));
  return problem.empty() ? nullptr : env->NewStringUTF(problem.c_str());
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimReader_useBuiltInTags(JNIEnv*, jclass) {
  sim::useBuiltInPopulation();
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_sim_SimReader_tagCount(JNIEnv*, jclass) {
  return static_cast<jint>(sim::currentPopulation()->size());
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimReader_setGpi(JNIEnv* env, jclass, jlong handle,
                                                                    jint port, jboolean state) {
  sim::ReaderPtr r = reader(env, handle);
  if (!r) return;
  sim::recordGpiChange(*r, static_cast<uint16_t>(port), state != JNI_FALSE);
  static const Record& gpi = EventData(sim::kGpiEvent);
  std::vector<uint8_t> data(gpi.size, 0);
  sim::store<int16_t>(data.data(), OffsetOf(gpi, "port", 2), static_cast<int16_t>(port));
  sim::store<uint8_t>(data.data(), OffsetOf(gpi, "eventInfo", 1), state != JNI_FALSE ? 1 : 0);
  sim::raiseEvent(handle, sim::kGpiEvent, std::move(data));
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimReader_raiseEvent(JNIEnv* env, jclass, jlong handle,
                                                                        jint type, jbyteArray data) {
  if (type < 0 || !sim::isEventType(static_cast<uint32_t>(type))) {
    throwIllegalArgument(env, "no event type " + std::to_string(type));
    return;
  }
  if (!reader(env, handle)) return;
  sim::raiseEvent(handle, static_cast<uint32_t>(type), bytes(env, data));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_sim_SimReader_liveTagRecords(JNIEnv*, jclass, jlong handle) {
  return static_cast<jint>(sim::liveTagRecords(handle));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_sim_SimReader_bufferedReads(JNIEnv* env, jclass, jlong handle) {
  sim::ReaderPtr r = reader(env, handle);
  if (!r) return 0;
  std::lock_guard<std::mutex> lock(r->mutex);
  return static_cast<jint>(r->buffer.size());
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimReader_useUpTime(JNIEnv* env, jclass, jlong handle,
                                                                       jboolean upTime) {
  sim::ReaderPtr r = reader(env, handle);
  if (!r) return;
  std::lock_guard<std::mutex> lock(r->mutex);
  r->upTimeForm = upTime != JNI_FALSE;
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimReader_checkCapabilities(JNIEnv*, jclass, jboolean on) {
  sim::setCapabilityChecks(on != JNI_FALSE ? sim::CapabilityChecks::kOn : sim::CapabilityChecks::kOff);
}

JNIEXPORT jstring JNICALL Java_com_kovra_rfid_orla_sim_SimReader_loadScenario(JNIEnv* env, jclass, jstring scenario) {
  const std::string problem = sim::loadScenario(text(env, scenario));
  return problem.empty() ? nullptr : env->NewStringUTF(problem.c_str());
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimReader_readRate(JNIEnv* env, jclass, jint perSecond) {
  if (perSecond < 0) {
    throwIllegalArgument(env, "a read rate cannot be negative: " + std::to_string(perSecond));
    return;
  }
  sim::setReadRate(static_cast<uint32_t>(perSecond));
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimReader_fastMode(JNIEnv*, jclass, jboolean fast) {
  sim::setFastMode(fast != JNI_FALSE);
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimReader_seed(JNIEnv* env, jclass, jlong handle, jlong seed) {
  sim::ReaderPtr r = reader(env, handle);
  if (!r) return;
  std::lock_guard<std::mutex> lock(r->mutex);
  r->replay(static_cast<uint64_t>(seed));
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimReader_connectAntenna(JNIEnv* env, jclass, jlong handle,
                                                                            jint antenna, jboolean connected) {
  if (antenna < 1 || antenna > sim::kAntennaCount) {
    throwIllegalArgument(env, "no antenna " + std::to_string(antenna));
    return;
  }
  sim::ReaderPtr r = reader(env, handle);
  if (!r) return;
  {
    std::lock_guard<std::mutex> lock(r->mutex);
    if (connected != JNI_FALSE) {
      r->field.disconnected.erase(static_cast<uint16_t>(antenna));
    } else {
      r->field.disconnected.insert(static_cast<uint16_t>(antenna));
    }
  }
  static const Record& change = EventData(sim::kAntennaEvent);
  std::vector<uint8_t> data(change.size, 0);
  sim::store<int16_t>(data.data(), OffsetOf(change, "antennaID", 2), static_cast<int16_t>(antenna));
  sim::store<int32_t>(data.data(), OffsetOf(change, "antennaEvent", 4), connected != JNI_FALSE ? 1 : 0);
  sim::raiseEvent(handle, sim::kAntennaEvent, std::move(data));
}

JNIEXPORT void JNICALL Java_com_kovra_rfid_orla_sim_SimReader_setTemperature(JNIEnv* env, jclass, jlong handle,
                                                                            jint celsius) {
  sim::ReaderPtr r = reader(env, handle);
  if (!r) return;
  const int level = celsius >= 70 ? 2 : celsius >= 60 ? 1 : 0;
  {
    std::lock_guard<std::mutex> lock(r->mutex);
    if (level == r->field.temperatureLevel) return;
    r->field.temperatureLevel = level;
  }
  static const Record& alarm = EventData(sim::kTemperatureAlarmEvent);
  std::vector<uint8_t> data(alarm.size, 0);
  sim::store<int32_t>(data.data(), OffsetOf(alarm, "currentTemperature", 4), celsius);
  sim::store<int32_t>(data.data(), OffsetOf(alarm, "alarmLevel", 4), level);
  sim::raiseEvent(handle, sim::kTemperatureAlarmEvent, std::move(data));
}

}  // extern "C"
