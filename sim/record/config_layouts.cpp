#include "record/config_layouts.h"

#include "record/captured_fields.h"
#include "record/field_builders.h"

namespace sim::layout {
namespace {

// A table header of the capabilities: a 16-bit count, then at 8 a pointer
// to that many entries of entryBytes.
Record CountedTable(const char* name, const char* count, const char* list, size_t entryBytes) {
  return Record{name, 16, {Scalar(count, 0, Kind::U16), PointerToBytes(list, 8, CountOf(0, 2, entryBytes))}};
}

// The same, pointing to records.
Record CountedRecords(const char* name, const char* count, const char* list, const Record& entry) {
  return Record{name, 16, {Scalar(count, 0, Kind::U16), PointerToRecords(list, 8, entry, CountOf(0, 2, entry.size))}};
}

// A name list (time zones, profiles): a 16-bit count, at 8 a pointer to
// that many pointers to the reader's NUL-terminated wide names, at 16 the
// active index.
Record NameList(const char* name, const char* count, const char* names, const char* active) {
  return Record{name, 24, {Scalar(count, 0, Kind::U16), PointerToBytes(names, 8, CountOf(0, 2, 8)),
                           Scalar(active, 16, Kind::I16)}};
}

Field Text(const char* name, size_t offset) { return InlineWide(name, offset, kWideChars); }

Field Flag(const char* name, size_t offset) { return Scalar(name, offset, Kind::Bool); }

std::vector<Field> AntennaRfConfigFields() {
  return {
      Scalar("transmitPowerIndex", 0, Kind::U16),  Scalar("receiveSensitivityIndex", 2, Kind::U16),
      Scalar("transmitFrequencyIndex", 4, Kind::U16), Scalar("rfModeTableIndex", 8, Kind::U32),
      Scalar("tari", 12, Kind::U32),               Scalar("transmitPort", 16, Kind::U16),
      Scalar("receivePort", 18, Kind::U16),        Inside("antennaStopTrigger", 24, AntennaStopTrigger()),
  };
}

}  // namespace

const Record& TagStorageSettings() {
  static const Record r{"TAG_STORAGE_SETTINGS", 16, {
      Scalar("maxTagCount", 0, Kind::U32), Scalar("maxMemoryBankByteCount", 4, Kind::U32),
      Scalar("maxTagIDByteCount", 8, Kind::U32), Scalar("tagFields", 12, Kind::U16),
      Flag("enableAccessReports", 14), Flag("discardTagsOnInventoryStop", 15),
  }};
  return r;
}

const Record& SingulationControl() {
  static const Record r{"SINGULATION_CONTROL", 20, {
      Scalar("session", 0, Kind::U32), Scalar("tagPopulation", 4, Kind::U16),
      Scalar("tagTransitTimeMilliseconds", 6, Kind::U16), Flag("perform", 8),
      Scalar("inventoryState", 12, Kind::U32), Scalar("slFlag", 16, Kind::U32),
  }};
  return r;
}

const Record& ReaderId() {
  static const Record r{"READER_ID", 4 + kWideFieldBytes, {Scalar("enumType", 0, Kind::I32), Text("value", 4)}};
  return r;
}

const Record& ReceiveSensitivityTable() {
  static const Record r = CountedTable("RECEIVE_SENSITIVITY_TABLE", "numValues", "receiveSensitivityValueList", 4);
  return r;
}

const Record& RfModeTableEntry() {
  static const Record r{"RF_MODE_TABLE_ENTRY", 80, {
      Scalar("modeIdentifer", 0, Kind::U32), Scalar("enumDivideRatio", 4, Kind::I32),
      Scalar("bdrValue", 8, Kind::U32), Scalar("enumModulation", 12, Kind::I32),
      Scalar("enumForwardLinkModulationType", 16, Kind::I32), Scalar("pieValue", 20, Kind::U32),
      Scalar("minTariValue", 24, Kind::U32), Scalar("maxTariValue", 28, Kind::U32),
      Scalar("stepTariValue", 32, Kind::U32), Scalar("enumSpectralMaskIndicator", 36, Kind::I32),
      Flag("epcHAGTCConformance", 40),
  }};
  return r;
}

const Record& UhfRfModeTable() {
  static const Record r{"UHF_RF_MODE_TABLE", 16, {
      Scalar("protocolID", 0, Kind::I16), Scalar("numEntries", 2, Kind::U16),
      PointerToRecords("tablesEntries", 8, RfModeTableEntry(), CountOf(2, 2, RfModeTableEntry().size)),
  }};
  return r;
}

const Record& RfModes() {
  static const Record r = CountedRecords("RF_MODES", "numTables", "uhfTables", UhfRfModeTable());
  return r;
}

const Record& TransmitPowerLevelTable() {
  static const Record r = CountedTable("TRANSMIT_POWER_LEVEL_TABLE", "numValues", "powerValueList", 2);
  return r;
}

// The library reads only the first table; the reader lays them out at
// their natural stride.
const Record& FreqHopTable() {
  static const Record r{"FREQ_HOP_TABLE", 16, {
      Scalar("hopTableID", 0, Kind::I16), Scalar("numFreq", 2, Kind::U16),
      PointerToBytes("freqList", 8, CountOf(2, 2, 4)),
  }};
  return r;
}

const Record& FreqHopInfo() {
  static const Record r = CountedRecords("FREQ_HOP_INFO", "numTables", "freqTables", FreqHopTable());
  return r;
}

const Record& FixedFreqInfo() {
  static const Record r = CountedTable("FIXED_FREQ_INFO", "numFreq", "freqList", 4);
  return r;
}

const Record& DutyCycleTable() {
  static const Record r = CountedTable("DUTY_CYCLE_TABLE", "numValues", "dutyCycleValueList", 2);
  return r;
}

// The ranges the library does not read are the reader's and not described.
const Record& ReaderCaps() {
  static const Record r{"READER_CAPS", 3768, {
      Inside("readerID", 8, ReaderId()),
      Text("firmWareVersion", 1052), Text("modelName", 2092),
      Scalar("numAntennas", 3132, Kind::I16), Scalar("numGPIs", 3134, Kind::I16), Scalar("numGPOs", 3136, Kind::I16),
      Flag("utcClockSupported", 3138),
      Inside("receiveSensitivtyTable", 3144, ReceiveSensitivityTable()),
      Flag("blockEraseSupported", 3416), Flag("blockWriteSupported", 3417),
      Flag("stateAwareSingulationSupported", 3418), Flag("recommissionSupported", 3419),
      Flag("blockPermalockSupported", 3420), Flag("writeUMISupported", 3421),
      Flag("radioPowerControlSupported", 3422),
      Scalar("maxNumOperationsInAccessSequence", 3424, Kind::I16), Scalar("maxNumPreFilters", 3426, Kind::I16),
      Inside("rfModes", 3432, RfModes()),
      Scalar("countryCode", 3448, Kind::I16), Scalar("enumCommunicationStandard", 3452, Kind::I32),
      Inside("transmitPowerLevelTable", 3456, TransmitPowerLevelTable()),
      Flag("hoppingEnabled", 3472),
      Inside("freqHopInfo", 3480, FreqHopInfo()),
      Inside("fixedFreqInfo", 3496, FixedFreqInfo()),
      Flag("tagEventReportingSupported", 3512), Flag("rssiFilterSupported", 3513),
      Flag("NXPCommandsSupported", 3514), Flag("tagLocationingSupported", 3515),
      PointerTo("dutyCycleTable", 3520, DutyCycleTable()),
      Flag("tagListFilterSupported", 3531), Flag("periodicTagReportsSupported", 3544),
      Flag("zoneSuppported", 3546), Flag("antennaRFConfigSupported", 3547),
      Flag("tagMovingStationarySupported", 3548), Flag("quorinTriggerSupported", 3549),
      Flag("G2V2CommandSupported", 3550), Flag("GPSReportingSupported", 3551),
  }};
  return r;
}

const Record& AntennaStopTrigger() {
  static const Record r{"ANTENNA_STOP_TRIGGER", 8, {
      Scalar("stopTriggerType", 0, Kind::I32), Scalar("stopTriggerValue", 4, Kind::U16),
  }};
  return r;
}

const Record& AntennaRfConfig() {
  static const Record r{"ANTENNA_RF_CONFIG", 32, AntennaRfConfigFields()};
  return r;
}

const Record& AntennaRfConfigBlock() {
  static const Record r{"ANTENNA_RF_CONFIG", 320, AntennaRfConfigFields()};
  return r;
}

const Record& CableLossCompensation() {
  static const Record r{"CABLE_LOSS_COMPENSATION", 12, {
      Scalar("antennaID", 0, Kind::U16), Scalar("cableLengthInFt", 4, Kind::F32),
      Scalar("cableLossPer100Ft", 8, Kind::F32),
  }};
  return r;
}

const Record& UsbOperationModeSettings() {
  static const Record r{"USB_OPERATION_MODE_SETTINGS", 8, {
      Scalar("mode", 0, Kind::I32), Flag("allowLLRPConnectionOverride", 4),
  }};
  return r;
}

// Its layout is the reader's: shown whole.
const Record& DutyCycleScratch() {
  static const Record r{"DUTY_CYCLE_SCRATCH", 12, {}};
  return r;
}

// Four 32-bit values only the reader interprets.
const Record& GpiDebounce() {
  static const Record r{"GPI_DEBOUNCE_RECORD", 16, {InlineBytes("values", 0, 16)}};
  return r;
}

const Record& LedInfo() {
  static const Record r{"LED_INFO", 48, {
      Scalar("ledColor", 0, Kind::I32), Scalar("duration", 4, Kind::I32), Flag("blink", 8),
      InlineBytes("reserved", 16, 32),
  }};
  return r;
}

const Record& StructInfo() {
  static const Record r{"STRUCT_INFO", 8, {
      Scalar("memoryAllocated", 0, Kind::I32), Scalar("memoryUsed", 4, Kind::I32),
  }};
  return r;
}

const Record& SystemInfo() {
  static const Record r{"SYSTEM_INFO", 5336, {
      Inside("structInfo", 0, StructInfo()),
      Text("radioFirmwareVersion", 8), Text("fPGAVersion", 1048), Text("upTime", 2088),
      Text("readerName", 3128), Text("readerLocation", 4168),
      Scalar("ramAvailable", 5208, Kind::I32), Scalar("flashAvailable", 5212, Kind::I32),
      Scalar("ramUsed", 5216, Kind::I32), Scalar("ramTotal", 5220, Kind::I32),
      Scalar("cpuUsageForUserProcesses", 5224, Kind::I8), Scalar("cpuUsageForSystemProcesses", 5225, Kind::I8),
      Scalar("powersourcetypeEnum", 5256, Kind::I16),
  }};
  return r;
}

const Record& ReaderInfo() {
  static const Record r{"READER_INFO", 4 * kWideFieldBytes, {
      Text("name", 0), Text("description", kWideFieldBytes), Text("location", 2 * kWideFieldBytes),
      Text("contact", 3 * kWideFieldBytes),
  }};
  return r;
}

const Record& TimeZoneList() {
  static const Record r = NameList("TIME_ZONE_LIST", "numTimeZones", "timeZoneNames", "activeTimeZoneIndex");
  return r;
}

// 32-bit counters, success before failure; 112 to 183 are the reader's.
const Record& ReaderStats() {
  static const Record r = [] {
    static const char* const kCounters[] = {
        "identifiedSuccessCount", "identifiedFailureCount", "readSuccessCount", "readFailureCount",
        "writeSuccessCount", "writeFailureCount", "killSuccessCount", "killFailureCount",
        "lockSuccessCount", "lockFailureCount", "blockWriteSuccessCount", "blockWriteFailureCount",
        "blockEraseSuccessCount", "blockEraseFailureCount", "blockPermalockSuccessCount",
        "blockPermalockFailureCount", "nxpChangeEASSuccessCount", "nxpChangeEASFailureCount",
        "nxpEASAlarmSuccessCount", "nxpEASAlarmFailureCount", "nxpReadProtectSuccessCount",
        "nxpReadProtectFailureCount", "nxpResetReadProtectSuccessCount", "nxpResetReadProtectFailureCount",
        "nxpCalibrateSuccessCount", "nxpCalibrateFailureCount", "nxpChangeConfigSuccessCount",
        "nxpChangeConfigFailureCount"};
    Record record{"READER_STATS", 192, {}};
    size_t at = 0;
    for (const char* counter : kCounters) record.fields.push_back(Scalar(counter, (at++) * 4, Kind::U32));
    record.fields.push_back(Scalar("impinjQTSuccessCount", 184, Kind::U32));
    record.fields.push_back(Scalar("impinjQTFailureCount", 188, Kind::U32));
    return record;
  }();
  return r;
}

// The library hands over the elements of a Java int array, at least one.
const Record& HealthDetail() {
  static const Record r{"HEALTH_DETAIL", 4, {Scalar("value", 0, Kind::I32)}};
  return r;
}

const Record& ProfileList() {
  static const Record r = NameList("PROFILE_LIST", "numProfiles", "profileNames", "activeProfileIndex");
  return r;
}

const Record& UpdateInfo() {
  static const Record r{"UPDATE_INFO", 3 * kWideFieldBytes, {
      Text("hostName", 0), Text("userName", kWideFieldBytes), Text("password", 2 * kWideFieldBytes),
  }};
  return r;
}

const Record& UpdateStatus() {
  static const Record r{"UPDATE_STATUS", 1144, {
      Scalar("percentage", 0, Kind::I32), InlineWide("updateInfo", 4, (1144 - 4) / sizeof(wchar_t)),
  }};
  return r;
}

// The texts are the reader's NUL-terminated wide strings: their addresses
// are shown.
const Record& UserAppInfo() {
  static const Record r{"USER_APP_INFO", 24, {
      Address("appName", 0), Flag("runStatus", 8), Flag("autoStart", 9), Address("Metadata", 16),
  }};
  return r;
}

// The count at 0 is the reader's own (the library sizes the list by the
// caller's array).
const Record& UserAppList() {
  static const Record r{"USER_APP_LIST", 16, {
      Scalar("numApps", 0, Kind::U32), PointerToRecords("apps", 8, UserAppInfo(), CountOf(0, 4, UserAppInfo().size)),
  }};
  return r;
}

}  // namespace sim::layout
