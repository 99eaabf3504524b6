// The reader API records seen from the bytes: values are planted at the
// offsets the C library uses and read back through the declared fields (and
// the other way round), so widths, signedness and overlaps are checked, not
// only the offsets that the header pins at compile time.
#include "reader_api.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace {

template <typename T>
void put(void* record, size_t offset, T value) {
  std::memcpy(static_cast<uint8_t*>(record) + offset, &value, sizeof value);
}

template <typename T>
T get(const void* record, size_t offset) {
  T value;
  std::memcpy(&value, static_cast<const uint8_t*>(record) + offset, sizeof value);
  return value;
}

template <typename R>
R zeroed() {
  R record;
  std::memset(static_cast<void*>(&record), 0, sizeof record);
  return record;
}

TEST(ReaderApiLayout, TagDataSignedFieldsReadFromLibraryBytes) {
  auto tag = zeroed<TAG_DATA>();
  put<uint8_t>(&tag, 72, 0xC4);
  put<uint16_t>(&tag, 34, 0xFFFE);
  put<uint16_t>(&tag, 74, 0x8001);
  put<uint16_t>(&tag, 76, 0xFFFF);
  put<uint16_t>(&tag, 168, 0x8000);
  put<uint16_t>(&tag, 24, 0xABCD);
  put<uint16_t>(&tag, 32, 0xF00D);
  put<uint32_t>(&tag, 28, 0x12345678);
  EXPECT_EQ(tag.peakRSSI, -60);
  EXPECT_EQ(tag.antennaID, -2);
  EXPECT_EQ(tag.channelIndex, -32767);
  EXPECT_EQ(tag.tagSeenCount, -1);
  EXPECT_EQ(tag.phaseInfo, -32768);
  EXPECT_EQ(tag.PC, 0xABCD);
  EXPECT_EQ(tag.CRC, 0xF00D);
  EXPECT_EQ(tag.XPC, 0x12345678u);
}

TEST(ReaderApiLayout, TagDataSeenTimeForms) {
  auto tag = zeroed<TAG_DATA>();
  put<uint16_t>(&tag, 40, 2024);       // UTC first seen: Year
  put<uint16_t>(&tag, 56 + 14, 999);   // UTC last seen: Milliseconds
  EXPECT_EQ(tag.seenTime.utcTime.firstSeenTimeStamp.Year, 2024);
  EXPECT_EQ(tag.seenTime.utcTime.lastSeenTimeStamp.Milliseconds, 999);

  put<uint64_t>(&tag, 40, 0x0102030405060708ull);
  put<uint64_t>(&tag, 48, 0x1112131415161718ull);
  EXPECT_EQ(tag.seenTime.upTime.firstSeenTimeStamp, 0x0102030405060708ull);
  EXPECT_EQ(tag.seenTime.upTime.lastSeenTimeStamp, 0x1112131415161718ull);
}

TEST(ReaderApiLayout, TagDataPointersAndResultRecords) {
  uint8_t id[12] = {0x30, 0x00, 0x12, 0x34};
  GPS_LOCATION gps{-1, 2, -3};
  LOCATION_INFO loc{-7};
  AUTHENTICATE_READ_BUFFER_RESULT reply = zeroed<AUTHENTICATE_READ_BUFFER_RESULT>();
  put<uint16_t>(&reply, 0, 20);
  put<const uint8_t*>(&reply, 8, id);

  auto tag = zeroed<TAG_DATA>();
  put<uint8_t*>(&tag, 8, id);
  put<uint32_t>(&tag, 16, 12);
  put<void*>(&tag, 136, &loc);
  put<void*>(&tag, 144, &reply);
  put<void*>(&tag, 184, &gps);
  ASSERT_EQ(tag.pTagID, id);
  EXPECT_EQ(tag.tagIDLength, 12u);
  EXPECT_EQ(tag.pLocationInfo->relativeDistance, -7);
  EXPECT_EQ(tag.pGpsLocation->longitude, -1);
  EXPECT_EQ(tag.pGpsLocation->altitude, -3);
  auto* result = static_cast<AUTHENTICATE_READ_BUFFER_RESULT*>(tag.pOpResult);
  EXPECT_EQ(result->lengthInBits, 20);
  EXPECT_EQ(result->pReply[3], 0x34);
}

TEST(ReaderApiLayout, StartTriggerVariantsOverlapAsTheLibraryExpects) {
  SYSTEMTIME startTime{};
  TIMEOFDAY timeOfDay{};
  auto trigger = zeroed<TRIGGER_INFO>();
  trigger.startTrigger.value.timelapse.startTime = &timeOfDay;
  trigger.startTrigger.value.periodic.startTime = &startTime;
  trigger.startTrigger.type = 1;
  trigger.startTrigger.value.periodic.periodMilliseconds = 0xDEADBEEF;

  EXPECT_EQ(get<uint32_t>(&trigger, 0), 1u);
  EXPECT_EQ(get<uint32_t>(&trigger, 8), 0xDEADBEEFu);
  EXPECT_EQ(get<SYSTEMTIME*>(&trigger, 16), &startTime);
  // The period went over the low half of the time-lapse pointer only.
  uint64_t timelapseBits = get<uint64_t>(&trigger, 8);
  uint64_t original = reinterpret_cast<uintptr_t>(&timeOfDay);
  EXPECT_EQ(timelapseBits >> 32, original >> 32);

  trigger.startTrigger.value.gpi.portNumber = 3;
  trigger.startTrigger.value.gpi.eventInfo = 1;
  trigger.startTrigger.value.gpi.timeoutMilliseconds = 500;
  EXPECT_EQ(get<uint16_t>(&trigger, 8), 3);
  EXPECT_EQ(get<uint8_t>(&trigger, 10), 1);
  EXPECT_EQ(get<uint32_t>(&trigger, 12), 500u);
}

TEST(ReaderApiLayout, StopTriggerVariantsAndTriggerPointers) {
  TAG_EVENT_REPORT_INFO events = zeroed<TAG_EVENT_REPORT_INFO>();
  REPORT_TRIGGERS reports = zeroed<REPORT_TRIGGERS>();
  EXTRA_TRIGGER_INFO extra = zeroed<EXTRA_TRIGGER_INFO>();
  auto trigger = zeroed<TRIGGER_INFO>();
  trigger.stopTrigger.type = 6;
  trigger.stopTrigger.value.timelapse.totalDuration = 7000;
  trigger.stopTrigger.value.timelapse.periodicDuration = 700;
  trigger.tagReportTrigger = 9;
  trigger.tagEventReportInfo = &events;
  trigger.reportTriggers = &reports;
  trigger.extraTriggers = &extra;

  EXPECT_EQ(get<uint32_t>(&trigger, 24), 6u);
  EXPECT_EQ(get<uint32_t>(&trigger, 28), 7000u);
  EXPECT_EQ(get<uint32_t>(&trigger, 32), 700u);
  EXPECT_EQ(get<uint32_t>(&trigger, 36), 9u);
  EXPECT_EQ(get<TAG_EVENT_REPORT_INFO*>(&trigger, 40), &events);
  EXPECT_EQ(get<REPORT_TRIGGERS*>(&trigger, 48), &reports);
  EXPECT_EQ(get<EXTRA_TRIGGER_INFO*>(&trigger, 56), &extra);

  trigger.stopTrigger.type = 3;
  trigger.stopTrigger.value.tagObservation.n = 0xFFFF;
  trigger.stopTrigger.value.tagObservation.timeoutMilliseconds = 42;
  EXPECT_EQ(get<uint16_t>(&trigger, 28), 0xFFFF);
  EXPECT_EQ(get<uint32_t>(&trigger, 32), 42u);
}

TEST(ReaderApiLayout, ExtraTriggerEntriesSitAtTheirStrides) {
  auto extra = zeroed<EXTRA_TRIGGER_INFO>();
  for (uint32_t i = 0; i < 7; ++i) {
    extra.startTrigger[i].type = 10 + i;
    extra.stopTrigger[i].type = 20 + i;
    extra.stopTrigger[i].value.numAttempts.n = static_cast<uint16_t>(30 + i);
    extra.stopTrigger[i].value.numAttempts.timeoutMilliseconds = 40 + i;
  }
  for (uint32_t i = 0; i < 7; ++i) {
    EXPECT_EQ(get<uint32_t>(&extra, 24 * i), 10 + i) << i;
    EXPECT_EQ(get<uint32_t>(&extra, 168 + 12 * i), 20 + i) << i;
    EXPECT_EQ(get<uint16_t>(&extra, 172 + 12 * i), 30 + i) << i;
    EXPECT_EQ(get<uint32_t>(&extra, 176 + 12 * i), 40 + i) << i;
  }
  EXPECT_EQ(get<uint32_t>(&extra, 252), 0u);
}

TEST(ReaderApiLayout, PreFilterTargetSharesTheStateUnawareSlot) {
  auto filter = zeroed<PRE_FILTER>();
  filter.stateUnawareAction = 4;
  filter.target = 2;
  filter.stateAwareAction = 5;
  filter.truncateAction = 1;
  filter.tagPatternBitCount = 12;
  filter.bitOffset = 32;
  EXPECT_EQ(get<uint32_t>(&filter, 24), 2u);
  EXPECT_EQ(filter.stateUnawareAction, 2u);
  EXPECT_EQ(get<uint32_t>(&filter, 28), 5u);
  EXPECT_EQ(get<uint32_t>(&filter, 32), 1u);
  EXPECT_EQ(get<uint16_t>(&filter, 16), 12);
  EXPECT_EQ(get<uint16_t>(&filter, 18), 32);
}

TEST(ReaderApiLayout, FiltersShareOneLayout) {
  TAG_PATTERN a = zeroed<TAG_PATTERN>();
  RSSI_RANGE_FILTER rssi = zeroed<RSSI_RANGE_FILTER>();
  rssi.peakRSSILowerLimit = static_cast<int8_t>(-70);
  rssi.matchRange = 3;
  EXPECT_EQ(get<uint8_t>(&rssi, 0), 0xBA);
  EXPECT_EQ(get<uint32_t>(&rssi, 4), 3u);

  auto access = zeroed<ACCESS_FILTER>();
  access.tagPatternA = &a;
  access.matchPattern = 2;
  access.rssiRangeFilter = &rssi;
  auto post = zeroed<POST_FILTER>();
  post.tagPatternA = &a;
  post.matchPattern = 2;
  post.rssiRangeFilter = &rssi;
  EXPECT_EQ(std::memcmp(&access, &post, sizeof access), 0);
  EXPECT_EQ(get<TAG_PATTERN*>(&access, 8), &a);
  EXPECT_EQ(get<RSSI_RANGE_FILTER*>(&access, 32), &rssi);
}

TEST(ReaderApiLayout, StorageAndSingulationWidths) {
  auto storage = zeroed<TAG_STORAGE_SETTINGS>();
  put<uint16_t>(&storage, 12, 0x8000);
  put<uint8_t>(&storage, 15, 1);
  EXPECT_EQ(static_cast<int16_t>(storage.tagFields), -32768);
  EXPECT_EQ(storage.discardTagsOnInventoryStop, 1);
  EXPECT_EQ(storage.enableAccessReports, 0);

  auto control = zeroed<SINGULATION_CONTROL>();
  control.session = 2;
  control.perform = 1;
  control.inventoryState = 0x10001;
  control.slFlag = 7;
  EXPECT_EQ(get<uint32_t>(&control, 0), 2u);
  EXPECT_EQ(get<uint8_t>(&control, 8), 1);
  EXPECT_EQ(get<uint32_t>(&control, 12), 0x10001u);
  EXPECT_EQ(get<uint32_t>(&control, 16), 7u);
}

TEST(ReaderApiLayout, EventDataRecords) {
  auto alarm = zeroed<ALARM_EVENT_DATA>();
  put<int64_t>(&alarm, 0, -5);
  put<int16_t>(&alarm, 8, 4);
  EXPECT_EQ(alarm.alarmCode, -5);
  EXPECT_EQ(alarm.antennaID, 4);

  auto exception = zeroed<EXCEPTION_EVENT_DATA>();
  put<wchar_t>(&exception, 4, L'X');
  EXPECT_EQ(exception.exceptionInfo[0], L'X');

  auto temperature = zeroed<TEMPERATURE_ALARM_EVENT_DATA>();
  put<int32_t>(&temperature, 4, -12);
  put<uint32_t>(&temperature, 8, 2);
  EXPECT_EQ(static_cast<int16_t>(temperature.currentTemperature), -12);
  EXPECT_EQ(temperature.alarmLevel, 2u);
}

TEST(ReaderApiLayout, AccessParameterRecordsPlaceTheirFields) {
  auto permalock = zeroed<BLOCK_PERMALOCK_ACCESS_PARAMS>();
  uint8_t mask[2] = {0xFF, 0x0F};
  permalock.memoryBank = 3;
  permalock.readLock = 1;
  permalock.byteOffset = 0x8001;
  permalock.byteCount = 2;
  permalock.accessPassword = 0xCAFEBABE;
  permalock.mask = mask;
  permalock.maskLength = 2;
  EXPECT_EQ(get<uint32_t>(&permalock, 0), 3u);
  EXPECT_EQ(get<uint8_t>(&permalock, 4), 1);
  EXPECT_EQ(get<uint16_t>(&permalock, 6), 0x8001);
  EXPECT_EQ(get<uint16_t>(&permalock, 8), 2);
  EXPECT_EQ(get<uint32_t>(&permalock, 12), 0xCAFEBABEu);
  EXPECT_EQ(get<uint8_t*>(&permalock, 16), mask);
  EXPECT_EQ(get<uint16_t>(&permalock, 24), 2);

  auto qt = zeroed<IMPINJ_QT_WRITE_PARAMS>();
  qt.qtControlData = static_cast<uint16_t>(static_cast<int16_t>(-32768));
  qt.qtPersist = 1;
  EXPECT_EQ(get<uint8_t>(&qt, 8), 0x00);
  EXPECT_EQ(get<uint8_t>(&qt, 9), 0x80);
  EXPECT_EQ(get<uint8_t>(&qt, 4), 1);

  auto crypto = zeroed<CRYPTO_PARAMS>();
  crypto.IChallenge[2] = 0x01020304;
  crypto.protMode = 9;
  crypto.accessPassword = 1;
  EXPECT_EQ(get<uint32_t>(&crypto, 12), 0x01020304u);
  EXPECT_EQ(get<uint8_t>(&crypto, 20), 9);
  EXPECT_EQ(get<uint32_t>(&crypto, 24), 1u);

  READ_ACCESS_PARAMS readParams = zeroed<READ_ACCESS_PARAMS>();
  auto operation = zeroed<ACCESS_OPERATION>();
  operation.opCode = 15;
  operation.params = &readParams;
  EXPECT_EQ(get<uint32_t>(&operation, 0), 15u);
  EXPECT_EQ(get<void*>(&operation, 8), &readParams);
}

TEST(ReaderApiLayout, ReaderCapsTablesAndFlags) {
  std::vector<uint8_t> raw(kReaderCapsReserved, 0);
  RF_MODE_TABLE_ENTRY entries[2] = {};
  put<uint32_t>(&entries[1], 0, 77);
  put<uint8_t>(&entries[1], 40, 1);
  UHF_RF_MODE_TABLE table = zeroed<UHF_RF_MODE_TABLE>();
  put<int16_t>(&table, 0, -1);
  put<uint16_t>(&table, 2, 2);
  put<RF_MODE_TABLE_ENTRY*>(&table, 8, entries);
  DUTY_CYCLE_TABLE duty = zeroed<DUTY_CYCLE_TABLE>();

  put<int32_t>(raw.data(), 8, 5);
  put<wchar_t>(raw.data(), 12, L'R');
  put<wchar_t>(raw.data(), 2092, L'M');
  put<uint16_t>(raw.data(), 3132, 0xFFFF);
  put<uint16_t>(raw.data(), 3432, 1);
  put<UHF_RF_MODE_TABLE*>(raw.data(), 3440, &table);
  put<uint8_t>(raw.data(), 3515, 1);
  put<DUTY_CYCLE_TABLE*>(raw.data(), 3520, &duty);
  put<uint8_t>(raw.data(), 3546, 1);
  put<uint8_t>(raw.data(), 3551, 1);

  READER_CAPS caps;
  std::memcpy(static_cast<void*>(&caps), raw.data(), sizeof caps);
  EXPECT_EQ(caps.readerID.enumType, 5);
  EXPECT_EQ(caps.readerID.value[0], L'R');
  EXPECT_EQ(caps.modelName[0], L'M');
  EXPECT_EQ(caps.numAntennas, -1);
  EXPECT_EQ(caps.rfModes.numTables, 1);
  EXPECT_EQ(caps.rfModes.uhfTables[0].protocolID, -1);
  EXPECT_EQ(caps.rfModes.uhfTables[0].tablesEntries[1].modeIdentifer, 77u);
  EXPECT_EQ(caps.rfModes.uhfTables[0].tablesEntries[1].epcHAGTCConformance, 1);
  EXPECT_EQ(caps.tagLocationingSupported, 1);
  EXPECT_EQ(caps.tagMovingStationarySupported, 0);
  EXPECT_EQ(caps.dutyCycleTable, &duty);
  EXPECT_EQ(caps.zoneSuppported, 1);
  EXPECT_EQ(caps.GPSReportingSupported, 1);
  EXPECT_EQ(caps.G2V2CommandSupported, 0);
}

TEST(ReaderApiLayout, ConfigurationRecords) {
  auto rf = zeroed<ANTENNA_RF_CONFIG>();
  rf.rfModeTableIndex = 0xFFFFFFFF;
  rf.antennaStopTrigger.stopTriggerType = 2;
  rf.antennaStopTrigger.stopTriggerValue = 0xFFFF;
  EXPECT_EQ(get<uint32_t>(&rf, 8), 0xFFFFFFFFu);
  EXPECT_EQ(get<int32_t>(&rf, 24), 2);
  EXPECT_EQ(get<uint16_t>(&rf, 28), 0xFFFF);

  auto cable = zeroed<CABLE_LOSS_COMPENSATION>();
  cable.cableLengthInFt = 1.5f;
  cable.cableLossPer100Ft = -0.25f;
  EXPECT_EQ(get<float>(&cable, 4), 1.5f);
  EXPECT_EQ(get<float>(&cable, 8), -0.25f);

  auto system = zeroed<SYSTEM_INFO>();
  put<uint8_t>(&system, 5224, 200);
  put<int32_t>(&system, 5256, 0x00017FFF);
  EXPECT_EQ(system.cpuUsageForUserProcesses, -56);
  EXPECT_EQ(static_cast<int16_t>(system.powersourcetypeEnum), 0x7FFF);

  auto stats = zeroed<READER_STATS>();
  put<uint32_t>(&stats, 188, 0x80000000u);
  put<uint32_t>(&stats, 108, 11);
  EXPECT_EQ(static_cast<int32_t>(stats.impinjQTFailureCount), INT32_MIN);
  EXPECT_EQ(stats.nxpChangeConfigFailureCount, 11u);

  wchar_t name[] = L"app";
  wchar_t meta[] = L"m";
  USER_APP_INFO apps[2] = {};
  put<wchar_t*>(&apps[1], 0, name);
  put<uint8_t>(&apps[1], 9, 1);
  put<wchar_t*>(&apps[1], 16, meta);
  auto list = zeroed<USER_APP_LIST>();
  put<USER_APP_INFO*>(&list, 8, apps);
  EXPECT_EQ(list.appList[1].appName, name);
  EXPECT_EQ(list.appList[1].autoStart, 1);
  EXPECT_EQ(list.appList[1].runStatus, 0);
  EXPECT_EQ(list.appList[1].Metadata, meta);
}

}  // namespace
