// What a connected reader can do: the library's READER_CAPS record copied
// into the capabilities object and into the sub-objects, arrays and array
// elements that object already holds. Nothing Java is created here, so every
// array must be at least as large as the counts the reader reports; the
// copies are not bounded by the Java lengths. The tables the record points
// at belong to the library and are never freed here.
#include <jni.h>

#include <cstddef>
#include <cstdint>

#include "bridge/pinned_array.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

constexpr const char* kReaderIdSignature = "Lcom/kovra/rfid/orla/READER_ID;";
constexpr const char* kReceiveSensitivitySignature = "Lcom/kovra/rfid/orla/RECEIVE_SENSITIVITY_TABLE;";
constexpr const char* kTransmitPowerSignature = "Lcom/kovra/rfid/orla/TRANSMIT_POWER_LEVEL_TABLE;";
constexpr const char* kRfModesSignature = "Lcom/kovra/rfid/orla/RF_MODES;";
constexpr const char* kUhfTablesSignature = "[Lcom/kovra/rfid/orla/UHF_RF_MODE_TABLE;";
constexpr const char* kRfModeEntriesSignature = "[Lcom/kovra/rfid/orla/RF_MODE_TABLE_ENTRY;";
constexpr const char* kFreqHopInfoSignature = "Lcom/kovra/rfid/orla/FREQ_HOP_INFO;";
constexpr const char* kFreqHopTablesSignature = "[Lcom/kovra/rfid/orla/FREQ_HOP_TABLE;";
constexpr const char* kFixedFreqInfoSignature = "Lcom/kovra/rfid/orla/FIXED_FREQ_INFO;";
constexpr const char* kDutyCycleTableSignature = "Lcom/kovra/rfid/orla/DUTY_CYCLE_TABLE;";

// Pins the primitive array held in the named field, copies count values into
// its first elements (none when count is 0) and releases it with mode 0.
template <typename Array, typename Value>
void fillArrayField(JNIEnv* env, jobject object, const char* name, const char* signature, const Value* values,
                    size_t count) {
  using Element = typename orla::PinnedArray<Array>::Element;
  auto array = static_cast<Array>(getJobjectFromJobject(env, object, name, signature));
  orla::PinnedArray<Array> elements(env, array);
  for (size_t i = 0; i < count; ++i) elements[static_cast<jsize>(i)] = static_cast<Element>(values[i]);
}

void writeVersionsAndPorts(JNIEnv* env, jobject caps, const READER_CAPS& record) {
  setStringInJobject(env, caps, "firmWareVersion", record.firmWareVersion);
  setStringInJobject(env, caps, "modelName", record.modelName);
  setShortInJobject(env, caps, "numAntennas", record.numAntennas);
  setShortInJobject(env, caps, "numGPIs", record.numGPIs);
  setShortInJobject(env, caps, "numGPOs", record.numGPOs);
}

// "tagMovingStationarySupported" first takes the tag locationing byte; the
// flags written after every call give it its own byte afterwards.
void writeFeatureFlags(JNIEnv* env, jobject caps, const READER_CAPS& record) {
  setBoolInJobject(env, caps, "utcClockSupported", record.utcClockSupported);
  setBoolInJobject(env, caps, "blockEraseSupported", record.blockEraseSupported);
  setBoolInJobject(env, caps, "blockWriteSupported", record.blockWriteSupported);
  setBoolInJobject(env, caps, "stateAwareSingulationSupported", record.stateAwareSingulationSupported);
  setBoolInJobject(env, caps, "rssiFilterSupported", record.rssiFilterSupported);
  setBoolInJobject(env, caps, "tagEventReportingSupported", record.tagEventReportingSupported);
  setBoolInJobject(env, caps, "blockPermalockSupported", record.blockPermalockSupported);
  setBoolInJobject(env, caps, "recommissionSupported", record.recommissionSupported);
  setBoolInJobject(env, caps, "writeUMISupported", record.writeUMISupported);
  setBoolInJobject(env, caps, "radioPowerControlSupported", record.radioPowerControlSupported);
  setBoolInJobject(env, caps, "NXPCommandsSupported", record.NXPCommandsSupported);
  setBoolInJobject(env, caps, "tagLocationingSupported", record.tagLocationingSupported);
  setBoolInJobject(env, caps, "tagMovingStationarySupported", record.tagLocationingSupported);
}

void writeReaderId(JNIEnv* env, jobject caps, const READER_ID& id) {
  jobject readerId = getJobjectFromJobject(env, caps, "readerID", kReaderIdSignature);
  setIntInJobject(env, readerId, "enumType", id.enumType);
  setStringInJobject(env, readerId, "value", id.value);
}

// The list first, then its count.
void writeReceiveSensitivities(JNIEnv* env, jobject caps, const RECEIVE_SENSITIVITY_TABLE& table) {
  jobject javaTable = getJobjectFromJobject(env, caps, "receiveSensitivtyTable", kReceiveSensitivitySignature);
  fillArrayField<jintArray>(env, javaTable, "receiveSensitivityValueList", "[I", table.receiveSensitivityValueList,
                            table.numValues);
  setShortInJobject(env, javaTable, "numValues", static_cast<short>(table.numValues));
}

void writeLimitsAndRegion(JNIEnv* env, jobject caps, const READER_CAPS& record) {
  setShortInJobject(env, caps, "maxNumOperationsInAccessSequence", record.maxNumOperationsInAccessSequence);
  setShortInJobject(env, caps, "maxNumPreFilters", record.maxNumPreFilters);
  setShortInJobject(env, caps, "countryCode", record.countryCode);
  setIntInJobject(env, caps, "enumCommunicationStandard", record.enumCommunicationStandard);
}

// The count first, then the list.
void writeTransmitPowerLevels(JNIEnv* env, jobject caps, const TRANSMIT_POWER_LEVEL_TABLE& table) {
  jobject javaTable = getJobjectFromJobject(env, caps, "transmitPowerLevelTable", kTransmitPowerSignature);
  setShortInJobject(env, javaTable, "numValues", static_cast<short>(table.numValues));
  fillArrayField<jshortArray>(env, javaTable, "powerValueList", "[S", table.powerValueList, table.numValues);
}

void writeRfModeEntry(JNIEnv* env, jobject entry, const RF_MODE_TABLE_ENTRY& mode) {
  setIntInJobject(env, entry, "modeIdentifer", static_cast<int>(mode.modeIdentifer));
  setIntInJobject(env, entry, "bdrValue", static_cast<int>(mode.bdrValue));
  setIntInJobject(env, entry, "enumModulation", mode.enumModulation);
  setIntInJobject(env, entry, "enumDivideRatio", mode.enumDivideRatio);
  setIntInJobject(env, entry, "enumForwardLinkModulationType", mode.enumForwardLinkModulationType);
  setIntInJobject(env, entry, "pieValue", static_cast<int>(mode.pieValue));
  setIntInJobject(env, entry, "minTariValue", static_cast<int>(mode.minTariValue));
  setIntInJobject(env, entry, "maxTariValue", static_cast<int>(mode.maxTariValue));
  setIntInJobject(env, entry, "stepTariValue", static_cast<int>(mode.stepTariValue));
  setIntInJobject(env, entry, "enumSpectralMaskIndicator", mode.enumSpectralMaskIndicator);
  setBoolInJobject(env, entry, "epcHAGTCConformance", mode.epcHAGTCConformance);
}

// Each table gets its own protocol, count and entries, but as many entries
// as the first table holds: that count is the one we walk for every table.
void writeRfModes(JNIEnv* env, jobject caps, const RF_MODES& modes) {
  jobject javaModes = getJobjectFromJobject(env, caps, "rfModes", kRfModesSignature);
  setShortInJobject(env, javaModes, "numTables", static_cast<short>(modes.numTables));
  if (modes.numTables == 0) return;

  auto javaTables = static_cast<jobjectArray>(getJobjectFromJobject(env, javaModes, "uhfTables", kUhfTablesSignature));
  for (jsize t = 0; t < modes.numTables; ++t) {
    const UHF_RF_MODE_TABLE& table = modes.uhfTables[t];
    jobject javaTable = env->GetObjectArrayElement(javaTables, t);
    setShortInJobject(env, javaTable, "protocolID", table.protocolID);
    setShortInJobject(env, javaTable, "numEntries", static_cast<short>(table.numEntries));
    auto javaEntries =
        static_cast<jobjectArray>(getJobjectFromJobject(env, javaTable, "tablesEntries", kRfModeEntriesSignature));
    for (jsize e = 0; e < modes.uhfTables[0].numEntries; ++e) {
      writeRfModeEntry(env, env->GetObjectArrayElement(javaEntries, e), table.tablesEntries[e]);
    }
  }
}

// Every Java table receives the first table of the record: identifier,
// count and frequencies. The record's table pointer is never advanced.
void writeFreqHopTables(JNIEnv* env, jobject caps, const FREQ_HOP_INFO& hopInfo) {
  jobject javaInfo = getJobjectFromJobject(env, caps, "freqHopInfo", kFreqHopInfoSignature);
  setShortInJobject(env, javaInfo, "numTables", static_cast<short>(hopInfo.numTables));
  if (hopInfo.numTables == 0) return;

  auto javaTables =
      static_cast<jobjectArray>(getJobjectFromJobject(env, javaInfo, "freqTables", kFreqHopTablesSignature));
  const FREQ_HOP_TABLE& first = *hopInfo.freqTables;
  for (jsize i = 0; i < hopInfo.numTables; ++i) {
    jobject javaTable = env->GetObjectArrayElement(javaTables, i);
    setShortInJobject(env, javaTable, "hopTableID", first.hopTableID);
    setShortInJobject(env, javaTable, "numFreq", static_cast<short>(first.numFreq));
    if (first.numFreq != 0) fillArrayField<jintArray>(env, javaTable, "freqList", "[I", first.freqList, first.numFreq);
  }
}

void writeFixedFrequencies(JNIEnv* env, jobject caps, const FIXED_FREQ_INFO& fixed) {
  jobject javaInfo = getJobjectFromJobject(env, caps, "fixedFreqInfo", kFixedFreqInfoSignature);
  setShortInJobject(env, javaInfo, "numFreq", static_cast<short>(fixed.numFreq));
  if (fixed.numFreq != 0) fillArrayField<jintArray>(env, javaInfo, "freqList", "[I", fixed.freqList, fixed.numFreq);
}

// A reader without duty cycles leaves the Java table as it was.
void writeDutyCycles(JNIEnv* env, jobject caps, const DUTY_CYCLE_TABLE* table) {
  jobject javaTable = getJobjectFromJobject(env, caps, "dutyCycleTable", kDutyCycleTableSignature);
  if (table == nullptr) return;
  setShortInJobject(env, javaTable, "numValues", static_cast<short>(table->numValues));
  fillArrayField<jshortArray>(env, javaTable, "dutyCycleValueList", "[S", table->dutyCycleValueList,
                              table->numValues);
}

// Written after every call, failed or not.
void writeLateFlags(JNIEnv* env, jobject caps, const READER_CAPS& record) {
  setBoolInJobject(env, caps, "periodicTagReportsSupported", record.periodicTagReportsSupported);
  setBoolInJobject(env, caps, "zoneSuppported", record.zoneSuppported);
  setBoolInJobject(env, caps, "antennaRFConfigSupported", record.antennaRFConfigSupported);
  setBoolInJobject(env, caps, "tagMovingStationarySupported", record.tagMovingStationarySupported);
  setBoolInJobject(env, caps, "tagListFilterSupported", record.tagListFilterSupported);
  setBoolInJobject(env, caps, "quorinTriggerSupported", record.quorinTriggerSupported);
  setBoolInJobject(env, caps, "G2V2CommandSupported", record.G2V2CommandSupported);
  setBoolInJobject(env, caps, "GPSReportingSupported", record.GPSReportingSupported);
}

}  // namespace

extern "C" {

// The record is not cleared before the call: after a failed call the late
// flags carry whatever the library left in it.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetReaderCaps(JNIEnv* env, jclass,
                                                                               jint readerHandle, jobject readerCaps) {
  READER_CAPS record;
  const RFID_STATUS status = RFID_GetReaderCapsW(static_cast<READER_HANDLE>(readerHandle), &record);
  if (status == 0) {
    writeVersionsAndPorts(env, readerCaps, record);
    writeFeatureFlags(env, readerCaps, record);
    writeReaderId(env, readerCaps, record.readerID);
    writeReceiveSensitivities(env, readerCaps, record.receiveSensitivtyTable);
    writeLimitsAndRegion(env, readerCaps, record);
    writeTransmitPowerLevels(env, readerCaps, record.transmitPowerLevelTable);
    setBoolInJobject(env, readerCaps, "hoppingEnabled", record.hoppingEnabled);
    writeRfModes(env, readerCaps, record.rfModes);
    writeFreqHopTables(env, readerCaps, record.freqHopInfo);
    writeFixedFrequencies(env, readerCaps, record.fixedFreqInfo);
    writeDutyCycles(env, readerCaps, record.dutyCycleTable);
  }
  writeLateFlags(env, readerCaps, record);
  return status;
}

}  // extern "C"
