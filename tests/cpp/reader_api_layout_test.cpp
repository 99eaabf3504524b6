// The reader API records seen from the bytes: values are planted at the
// offsets the C library uses and read back through the declared fields (and
// the other way round), so widths, signedness and overlaps are checked, not
// only the offsets that the header pins at compile time.
#include "reader_api.h"

#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>
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

// ---------------------------------------------------------------------------
// Fields whose signedness decides what Java sees: counts and indices that
// the library widens or loops over are unsigned, values that reach Java
// sign-extended are signed.
// ---------------------------------------------------------------------------

TEST(ReaderApiLayout, SessionRecordsPlaceTheirFields) {
  uint8_t cert[1] = {0x5A};
  auto secure = zeroed<SEC_CONNECTION_INFO>();
  secure.secureMode = 1;
  secure.validatePeerCert = 1;
  secure.sizeCertBuff = 0x80000001u;
  secure.clientCertBuff = cert;
  secure.sizeRootCertBuff = 3;
  secure.connStatus = -2;
  EXPECT_EQ(get<uint8_t>(&secure, 1), 1);
  EXPECT_EQ(get<uint32_t>(&secure, 4), 0x80000001u);
  EXPECT_EQ(get<uint8_t*>(&secure, 8), cert);
  EXPECT_EQ(get<uint32_t>(&secure, 48), 3u);
  EXPECT_EQ(get<int64_t>(&secure, 64), -2);

  auto connection = zeroed<CONNECTION_INFO>();
  connection.version = 2;
  connection.secConnInfo = &secure;
  EXPECT_EQ(get<uint32_t>(&connection, 0), 2u);
  EXPECT_EQ(get<SEC_CONNECTION_INFO*>(&connection, 8), &secure);

  auto login = zeroed<LOGIN_INFO>();
  login.password[259] = L'Z';
  login.version = 1;
  login.forceLogin = 1;
  EXPECT_EQ(get<wchar_t>(&login, 2080 + 259 * 4), L'Z');
  EXPECT_EQ(get<uint32_t>(&login, 3120), 1u);
  EXPECT_EQ(get<uint8_t>(&login, 3124), 1);

  SEC_LLRP_CONFIG llrpSecure = zeroed<SEC_LLRP_CONFIG>();
  auto llrp = zeroed<LLRP_CONNECTION_CONFIG>();
  put<uint32_t>(&llrp, 4, 0xFFFFFFFFu);
  put<wchar_t>(&llrp, 8, L'h');
  put<SEC_LLRP_CONFIG*>(&llrp, 1048, &llrpSecure);
  EXPECT_EQ(llrp.port, 0xFFFFFFFFu);
  EXPECT_EQ(llrp.hostServerIP[0], L'h');
  EXPECT_EQ(llrp.pSecureModeConfig, &llrpSecure);

  auto accept = zeroed<ACCEPT_CONNECTION_INFO>();
  accept.rfidVersion = 3;
  EXPECT_EQ(get<uint32_t>(&accept, 4), 3u);
  EXPECT_EQ(get<uint32_t>(&accept, 0), 0u);
}

TEST(ReaderApiLayout, EventAndErrorRecordsReadSignedWhereJavaSignExtends) {
  auto gpi = zeroed<GPI_EVENT_DATA>();
  put<uint16_t>(&gpi, 0, 0xFFFF);
  put<uint8_t>(&gpi, 2, 2);
  EXPECT_EQ(gpi.port, -1);
  EXPECT_EQ(gpi.eventInfo, 2);

  auto antenna = zeroed<ANTENNA_EVENT_DATA>();
  put<uint16_t>(&antenna, 0, 0x8000);
  put<uint32_t>(&antenna, 4, 0x0001FFFF);
  EXPECT_EQ(antenna.antennaID, -32768);
  EXPECT_EQ(static_cast<int16_t>(antenna.antennaEvent), -1);

  auto info = zeroed<EVENT_INFO_DATA>();
  put<uint32_t>(&info, 0, 0x00028001);
  EXPECT_EQ(static_cast<int16_t>(info.eventInfo), -32767);

  auto error = zeroed<ERROR_INFO>();
  put<uint16_t>(&error, 14, 0xFFFF);
  put<uint32_t>(&error, 16, 0x80000000u);
  put<wchar_t>(&error, 20, L'd');
  put<wchar_t>(&error, 1060, L'v');
  EXPECT_EQ(static_cast<int16_t>(error.errorTimeStamp.Milliseconds), -1);
  EXPECT_EQ(static_cast<int32_t>(error.rfidStatusCode), INT32_MIN);
  EXPECT_EQ(error.statusDesc[0], L'd');
  EXPECT_EQ(error.vendorMessage[0], L'v');
}

TEST(ReaderApiLayout, AntennaListAndPatternCountsAreUnsigned) {
  uint16_t ids[1] = {0xFFFF};
  uint32_t qualifiers[1] = {0xFFFFFFFFu};
  auto antennas = zeroed<ANTENNA_INFO>();
  put<uint16_t*>(&antennas, 0, ids);
  put<uint32_t>(&antennas, 8, 0x80000000u);
  put<uint32_t*>(&antennas, 16, qualifiers);
  EXPECT_EQ(antennas.antennaList[0], 65535);
  EXPECT_EQ(static_cast<int64_t>(antennas.length), 0x80000000LL);
  EXPECT_EQ(antennas.antennaOpList[0], 0xFFFFFFFFu);

  auto pattern = zeroed<TAG_PATTERN>();
  put<uint16_t>(&pattern, 4, 0x8000);
  put<uint16_t>(&pattern, 16, 0xFFFF);
  put<uint16_t>(&pattern, 32, 0x8001);
  EXPECT_EQ(pattern.bitOffset, 0x8000);
  // (bits + 7) >> 3 on the unsigned count: 65535 bits take 8192 bytes.
  EXPECT_EQ((pattern.tagPatternBitCount + 7) >> 3, 8192);
  EXPECT_EQ(pattern.tagMaskBitCount, 0x8001);
}

TEST(ReaderApiLayout, SingleAccessRecordsPlaceTheirFields) {
  uint8_t data[2] = {1, 2};
  auto write = zeroed<WRITE_ACCESS_PARAMS>();
  write.memoryBank = 3;
  write.byteOffset = 0xFFFE;
  write.writeData = data;
  write.writeDataLength = 0x8000;
  write.accessPassword = 0x89ABCDEF;
  EXPECT_EQ(get<uint16_t>(&write, 4), 0xFFFE);
  EXPECT_EQ(get<uint8_t*>(&write, 8), data);
  EXPECT_EQ(get<uint16_t>(&write, 16), 0x8000);
  EXPECT_EQ(get<uint32_t>(&write, 20), 0x89ABCDEFu);

  auto read = zeroed<READ_ACCESS_PARAMS>();
  read.byteCount = 0xFFFF;
  read.accessPassword = 0xFFFFFFFFu;
  EXPECT_EQ(get<uint16_t>(&read, 6), 0xFFFF);
  EXPECT_EQ(get<uint32_t>(&read, 8), 0xFFFFFFFFu);

  auto lock = zeroed<LOCK_ACCESS_PARAMS>();
  for (uint32_t i = 0; i < kLockPrivilegeCount; ++i) lock.enumPrivilege[i] = 0xFFFF - i;
  lock.accessPassword = 7;
  for (uint32_t i = 0; i < kLockPrivilegeCount; ++i) EXPECT_EQ(get<uint32_t>(&lock, 4 * i), 0xFFFF - i);
  EXPECT_EQ(get<uint32_t>(&lock, 20), 7u);

  auto kill = zeroed<KILL_ACCESS_PARAMS>();
  kill.killPassword = 0xDEADBEEF;
  EXPECT_EQ(get<uint32_t>(&kill, 0), 0xDEADBEEFu);

  auto recommission = zeroed<RECOMMISSION_ACCESS_PARAMS>();
  recommission.killPassword = 1;
  recommission.opCode = 2;
  EXPECT_EQ(get<uint32_t>(&recommission, 4), 2u);

  auto field = zeroed<WRITE_FIELD_ACCESS_PARAMS>();
  field.writeData = data;
  field.writeDataLength = 4;
  field.accessPassword = 0x01020304;
  EXPECT_EQ(get<uint8_t*>(&field, 0), data);
  EXPECT_EQ(get<uint16_t>(&field, 8), 4);
  EXPECT_EQ(get<uint32_t>(&field, 12), 0x01020304u);
}

TEST(ReaderApiLayout, ChipAndGen2v2RecordsPlaceTheirFields) {
  auto eas = zeroed<NXP_SET_EAS_PARAMS>();
  eas.accessPassword = 0xA0B0C0D0;
  eas.EASState = 1;
  EXPECT_EQ(get<uint32_t>(&eas, 0), 0xA0B0C0D0u);
  EXPECT_EQ(get<uint8_t>(&eas, 4), 1);
  EXPECT_EQ(get<uint8_t>(&eas, 5), 0);

  auto config = zeroed<NXP_CHANGE_CONFIG_PARAMS>();
  config.ChangeConfigWord = 0x8001;
  EXPECT_EQ(get<uint16_t>(&config, 4), 0x8001);

  uint8_t message[2] = {0xAB, 0xCD};
  auto authenticate = zeroed<AUTHENTICATE_PARAMS>();
  authenticate.incRespLen = 1;
  authenticate.CSI = 0xFF;
  authenticate.length = 0xFFFF;
  authenticate.pMessage = message;
  authenticate.accessPassword = 9;
  EXPECT_EQ(get<uint8_t>(&authenticate, 1), 1);
  EXPECT_EQ(get<uint8_t>(&authenticate, 2), 0xFF);
  // Bits to bytes on the unsigned length: 65535 bits make 8191 bytes.
  EXPECT_EQ(authenticate.length / 8, 8191);
  EXPECT_EQ(get<uint8_t*>(&authenticate, 8), message);
  EXPECT_EQ(get<uint32_t>(&authenticate, 16), 9u);

  auto untraceable = zeroed<UNTRACEABLE_PARAMS>();
  untraceable.hideEPC = 1;
  untraceable.EPCLength = 6;
  untraceable.hideTID = 2;
  untraceable.hideUser = 1;
  untraceable.operatingRange = 3;
  untraceable.accessPassword = 4;
  EXPECT_EQ(get<uint8_t>(&untraceable, 1), 1);
  EXPECT_EQ(get<uint8_t>(&untraceable, 2), 6);
  EXPECT_EQ(get<uint32_t>(&untraceable, 4), 2u);
  EXPECT_EQ(get<uint8_t>(&untraceable, 8), 1);
  EXPECT_EQ(get<uint32_t>(&untraceable, 12), 3u);
  EXPECT_EQ(get<uint32_t>(&untraceable, 16), 4u);

  auto buffer = zeroed<READ_BUFFER_PARAMS>();
  buffer.wordPtr = 0x8000;
  buffer.bitCount = 0xFFFF;
  buffer.accessPassword = 5;
  EXPECT_EQ(get<uint16_t>(&buffer, 0), 0x8000);
  EXPECT_EQ(get<uint16_t>(&buffer, 2), 0xFFFF);
  EXPECT_EQ(get<uint32_t>(&buffer, 4), 5u);

  auto reply = zeroed<AUTHENTICATE_READ_BUFFER_RESULT>();
  put<uint16_t>(&reply, 0, 0x8000);
  EXPECT_EQ(reply.lengthInBits / 8, 4096);
}

TEST(ReaderApiLayout, CapabilityTableCountsAreUnsigned) {
  auto caps = zeroed<READER_CAPS>();
  put<uint16_t>(&caps, 3144, 0x8000);
  put<uint16_t>(&caps, 3432, 0x8000);
  put<uint16_t>(&caps, 3456, 0xFFFF);
  put<uint16_t>(&caps, 3480, 0x8001);
  put<uint16_t>(&caps, 3496, 0xFFFE);
  put<int16_t>(&caps, 3448, -3);
  put<int32_t>(&caps, 3452, -4);
  EXPECT_EQ(caps.receiveSensitivtyTable.numValues, 0x8000);
  EXPECT_EQ(caps.rfModes.numTables, 0x8000);
  EXPECT_EQ(caps.transmitPowerLevelTable.numValues, 0xFFFF);
  EXPECT_EQ(caps.freqHopInfo.numTables, 0x8001);
  EXPECT_EQ(caps.fixedFreqInfo.numFreq, 0xFFFE);
  EXPECT_EQ(caps.countryCode, -3);
  EXPECT_EQ(caps.enumCommunicationStandard, -4);

  int16_t powers[1] = {-10};
  uint32_t hops[1] = {0xFFFFFFFFu};
  auto hop = zeroed<FREQ_HOP_TABLE>();
  put<int16_t>(&hop, 0, -1);
  put<uint16_t>(&hop, 2, 0x8000);
  put<uint32_t*>(&hop, 8, hops);
  EXPECT_EQ(hop.hopTableID, -1);
  EXPECT_EQ(hop.numFreq, 0x8000);
  EXPECT_EQ(hop.freqList[0], 0xFFFFFFFFu);
  auto table = zeroed<UHF_RF_MODE_TABLE>();
  put<uint16_t>(&table, 2, 0xFFFF);
  EXPECT_EQ(table.numEntries, 0xFFFF);
  auto power = zeroed<TRANSMIT_POWER_LEVEL_TABLE>();
  put<int16_t*>(&power, 8, powers);
  EXPECT_EQ(power.powerValueList[0], -10);
  auto duty = zeroed<DUTY_CYCLE_TABLE>();
  put<uint16_t>(&duty, 0, 0x8000);
  EXPECT_EQ(duty.numValues, 0x8000);
}

TEST(ReaderApiLayout, AntennaRfConfigIsZeroExtendedToJava) {
  auto rf = zeroed<ANTENNA_RF_CONFIG>();
  put<uint16_t>(&rf, 0, 0xFFFF);
  put<uint16_t>(&rf, 2, 0x8000);
  put<uint16_t>(&rf, 4, 0xFFFE);
  put<uint32_t>(&rf, 12, 0x80000000u);
  put<uint16_t>(&rf, 16, 0xFFFF);
  put<uint16_t>(&rf, 18, 0x8001);
  put<int32_t>(&rf, 24, -1);
  // What the getter hands to Java's int and long fields.
  EXPECT_EQ(static_cast<int32_t>(rf.transmitPowerIndex), 65535);
  EXPECT_EQ(static_cast<int32_t>(rf.receiveSensitivityIndex), 32768);
  EXPECT_EQ(static_cast<int32_t>(rf.transmitFrequencyIndex), 65534);
  EXPECT_EQ(static_cast<int64_t>(rf.tari), 0x80000000LL);
  EXPECT_EQ(static_cast<int32_t>(rf.transmitPort), 65535);
  EXPECT_EQ(static_cast<int32_t>(rf.receivePort), 32769);
  EXPECT_EQ(rf.antennaStopTrigger.stopTriggerType, -1);
}

TEST(ReaderApiLayout, RadioGpioAndInfoRecords) {
  auto usb = zeroed<USB_OPERATION_MODE_SETTINGS>();
  put<int32_t>(&usb, 0, 0x00018000);
  put<uint8_t>(&usb, 4, 1);
  EXPECT_EQ(static_cast<int16_t>(usb.mode), -32768);
  EXPECT_EQ(usb.allowLLRPConnectionOverride, 1);

  auto led = zeroed<LED_INFO>();
  led.ledColor = 2;
  led.duration = -1;
  led.blink = 1;
  EXPECT_EQ(get<int32_t>(&led, 0), 2);
  EXPECT_EQ(get<int32_t>(&led, 4), -1);
  EXPECT_EQ(get<uint8_t>(&led, 8), 1);

  auto debounce = zeroed<GPI_DEBOUNCE_RECORD>();
  debounce.values[3] = -7;
  EXPECT_EQ(get<int32_t>(&debounce, 12), -7);

  wchar_t zone[] = L"UTC";
  wchar_t* zones[1] = {zone};
  auto zoneList = zeroed<TIME_ZONE_LIST>();
  put<uint16_t>(&zoneList, 0, 0x8000);
  put<wchar_t**>(&zoneList, 8, zones);
  put<int16_t>(&zoneList, 16, -1);
  EXPECT_EQ(zoneList.numTimeZones, 0x8000);
  EXPECT_EQ(zoneList.timeZoneNames[0], zone);
  EXPECT_EQ(zoneList.activeTimeZoneIndex, -1);

  auto profiles = zeroed<PROFILE_LIST>();
  put<uint16_t>(&profiles, 0, 0xFFFF);
  put<wchar_t**>(&profiles, 8, zones);
  put<int16_t>(&profiles, 16, -2);
  EXPECT_EQ(profiles.numProfiles, 0xFFFF);
  EXPECT_EQ(profiles.profileNames[0], zone);
  EXPECT_EQ(profiles.activeProfileIndex, -2);

  auto reader = zeroed<READER_INFO>();
  put<wchar_t>(&reader, 3120, L'c');
  EXPECT_EQ(reader.contact[0], L'c');

  auto update = zeroed<UPDATE_STATUS>();
  put<int32_t>(&update, 0, -1);
  put<wchar_t>(&update, 4, L'u');
  EXPECT_EQ(update.percentage, -1);
  EXPECT_EQ(update.updateInfo[0], L'u');

  auto system = zeroed<SYSTEM_INFO>();
  put<uint8_t>(&system, 5225, 0x80);
  put<int32_t>(&system, 5220, -5);
  EXPECT_EQ(system.cpuUsageForSystemProcesses, -128);
  EXPECT_EQ(system.ramTotal, -5);
}

// ---------------------------------------------------------------------------
// The C functions as the reader library defines them. Both sides of every
// call are compiled separately, so nothing else would notice a parameter of
// the wrong width or signedness here: the reader handle is a Java int
// sign-extended to 64 bits, event handles are 64-bit, antenna IDs unsigned
// 16-bit, C booleans one byte, and every tag-access call ends in a reserved
// pointer.
// ---------------------------------------------------------------------------

using Status = int32_t;
using Handle = int64_t;
using Event = int64_t;
using Bool = uint8_t;
using AntennaId = uint16_t;
using TagId = const uint8_t*;
using Text = const wchar_t*;

template <class Expected, class Declared>
void expectPrototype() {
  ::testing::StaticAssertTypeEq<Expected, Declared>();
}

TEST(ReaderApiPrototypes, ConnectionLoginAndLlrp) {
  expectPrototype<Status(Handle*, Text, uint32_t, uint32_t, CONNECTION_INFO*),
                  decltype(RFID_ConnectW)>();
  expectPrototype<Status(Handle), decltype(RFID_Reconnect)>();
  expectPrototype<Status(Handle), decltype(RFID_Disconnect)>();
  expectPrototype<Status(Handle*, LOGIN_INFO*, uint32_t, Bool, void*), decltype(RFID_LoginW)>();
  expectPrototype<Status(Handle), decltype(RFID_Logout)>();
  expectPrototype<Status(Handle), decltype(RFID_Restart)>();
  expectPrototype<Status(Handle, LLRP_CONNECTION_CONFIG*), decltype(RFID_GetLLRPConnectionConfigW)>();
  expectPrototype<Status(Handle, LLRP_CONNECTION_CONFIG*), decltype(RFID_SetLLRPConnectionConfigW)>();
  expectPrototype<Status(Handle, LLRP_INITIATE_SCRATCH*),
                  decltype(RFID_InitiateLLRPConnectionFromReader)>();
  expectPrototype<Status(Handle), decltype(RFID_DisconnectLLRPConnectionFromReader)>();
  expectPrototype<Status(Handle*, int64_t, ACCEPT_CONNECTION_INFO*, ACCEPT_CONNECTION_SCRATCH*),
                  decltype(RFID_AcceptConnection)>();
}

TEST(ReaderApiPrototypes, EventsErrorsVersionAndTrace) {
  expectPrototype<Event(void*, int32_t, int32_t, void*), decltype(rfidUtils_CreateEvent)>();
  expectPrototype<int32_t(Event), decltype(rfidUtils_SetEvent)>();
  expectPrototype<int32_t(Event), decltype(rfidUtils_ResetEvent)>();
  expectPrototype<int32_t(Event), decltype(rfidUtils_CloseHandle)>();
  expectPrototype<int32_t(Event, int64_t), decltype(rfidUtils_WaitForSingleObject)>();
  expectPrototype<int32_t(int64_t, const Event*, Bool, int64_t),
                  decltype(rfidUtils_WaitForMultipleObjects)>();
  expectPrototype<Status(Handle, uint32_t, Event), decltype(RFID_RegisterEventNotification)>();
  expectPrototype<Status(Handle, uint32_t), decltype(RFID_DeregisterEventNotification)>();
  expectPrototype<Status(Handle, uint32_t, void*), decltype(RFID_GetEventData)>();
  expectPrototype<Status(Handle, ERROR_INFO*), decltype(RFID_GetLastErrorInfoW)>();
  expectPrototype<Text(Status), decltype(RFID_GetErrorDescriptionW)>();
  expectPrototype<Status(VERSION_INFO*), decltype(RFID_GetDllVersionInfoW)>();
  expectPrototype<Status(Handle, uint32_t), decltype(RFID_SetTraceLevel)>();
}

TEST(ReaderApiPrototypes, TagsInventoryAndReaderSettings) {
  expectPrototype<TAG_DATA*(Handle), decltype(RFID_AllocateTag)>();
  expectPrototype<Status(Handle, TAG_DATA*), decltype(RFID_DeallocateTag)>();
  expectPrototype<Status(Handle, TAG_DATA*), decltype(RFID_GetReadTag)>();
  expectPrototype<Status(Handle, uint32_t, TAG_DATA**, uint32_t*), decltype(rfid_GetReadTags)>();
  expectPrototype<Status(Handle, TAG_DATA**, uint32_t), decltype(rfid_DeallocateTags)>();
  expectPrototype<Status(Handle, POST_FILTER*, ANTENNA_INFO*, TRIGGER_INFO*, void*),
                  decltype(RFID_PerformInventory)>();
  expectPrototype<Status(Handle), decltype(RFID_StopInventory)>();
  expectPrototype<Status(Handle, uint32_t), decltype(RFID_PurgeTags)>();
  expectPrototype<Status(Handle, TagId, uint32_t, ANTENNA_INFO*, void*, void*),
                  decltype(RFID_PerformTagLocationing)>();
  expectPrototype<Status(Handle), decltype(RFID_StopTagLocationing)>();
  expectPrototype<Status(Handle, ANTENNA_INFO*, TRIGGER_INFO*, void*),
                  decltype(RFID_PerformNXPEASScan)>();
  expectPrototype<Status(Handle), decltype(RFID_StopNXPEASScan)>();
  expectPrototype<Status(Handle, AntennaId, PRE_FILTER*, uint32_t*), decltype(RFID_AddPreFilter)>();
  expectPrototype<Status(Handle, AntennaId, uint32_t), decltype(RFID_DeletePreFilter)>();
  expectPrototype<Status(Handle, TAG_STORAGE_SETTINGS*), decltype(RFID_GetTagStorageSettings)>();
  expectPrototype<Status(Handle, TAG_STORAGE_SETTINGS*), decltype(RFID_SetTagStorageSettings)>();
  expectPrototype<Status(Handle, AntennaId, SINGULATION_CONTROL*),
                  decltype(RFID_GetSingulationControl)>();
  expectPrototype<Status(Handle, AntennaId, SINGULATION_CONTROL*),
                  decltype(RFID_SetSingulationControl)>();
}

// Operations with a result tag: handle, tag ID, length, parameters, filter,
// antennas, tag record, reserved.
template <class Params>
using WithResultTag = Status(Handle, TagId, uint32_t, Params*, ACCESS_FILTER*, ANTENNA_INFO*,
                             TAG_DATA*, void*);
// Operations without one: the same, less the tag record.
template <class Params>
using WithoutResultTag = Status(Handle, TagId, uint32_t, Params*, ACCESS_FILTER*, ANTENNA_INFO*,
                                void*);
// Writes of a single tag field take no filter.
using FieldWrite = Status(Handle, TagId, uint32_t, WRITE_FIELD_ACCESS_PARAMS*, ANTENNA_INFO*, void*);

TEST(ReaderApiPrototypes, TagAccessOperations) {
  expectPrototype<WithResultTag<READ_ACCESS_PARAMS>, decltype(RFID_Read)>();
  expectPrototype<WithoutResultTag<WRITE_ACCESS_PARAMS>, decltype(RFID_Write)>();
  expectPrototype<WithoutResultTag<WRITE_ACCESS_PARAMS>, decltype(RFID_BlockWrite)>();
  expectPrototype<WithoutResultTag<BLOCK_ERASE_ACCESS_PARAMS>, decltype(RFID_BlockErase)>();
  expectPrototype<WithoutResultTag<LOCK_ACCESS_PARAMS>, decltype(RFID_Lock)>();
  expectPrototype<WithoutResultTag<KILL_ACCESS_PARAMS>, decltype(RFID_Kill)>();
  expectPrototype<WithResultTag<BLOCK_PERMALOCK_ACCESS_PARAMS>, decltype(RFID_BlockPermalock)>();
  expectPrototype<WithoutResultTag<RECOMMISSION_ACCESS_PARAMS>, decltype(RFID_Recommission)>();
  expectPrototype<FieldWrite, decltype(RFID_WriteAccessPassword)>();
  expectPrototype<FieldWrite, decltype(RFID_WriteKillPassword)>();
  expectPrototype<FieldWrite, decltype(RFID_WriteTagID)>();

  expectPrototype<WithoutResultTag<NXP_READ_PROTECT_PARAMS>, decltype(RFID_NXPReadProtect)>();
  expectPrototype<Status(Handle, NXP_RESET_READ_PROTECT_PARAMS*, ANTENNA_INFO*, void*),
                  decltype(RFID_NXPResetReadProtect)>();
  expectPrototype<WithoutResultTag<NXP_SET_EAS_PARAMS>, decltype(RFID_NXPSetEAS)>();
  expectPrototype<WithResultTag<NXP_CHANGE_CONFIG_PARAMS>, decltype(RFID_NXPChangeConfig)>();
  expectPrototype<WithoutResultTag<IMPINJ_QT_WRITE_PARAMS>, decltype(RFID_ImpinjQTWrite)>();
  expectPrototype<WithResultTag<IMPINJ_QT_READ_PARAMS>, decltype(RFID_ImpinjQTRead)>();

  expectPrototype<WithResultTag<AUTHENTICATE_PARAMS>, decltype(RFID_Authenticate)>();
  expectPrototype<WithResultTag<UNTRACEABLE_PARAMS>, decltype(RFID_Untraceable)>();
  expectPrototype<WithResultTag<READ_BUFFER_PARAMS>, decltype(RFID_ReadBuffer)>();
  expectPrototype<WithResultTag<CRYPTO_PARAMS>, decltype(RFID_Crypto)>();

  expectPrototype<Status(Handle), decltype(RFID_InitializeAccessSequence)>();
  expectPrototype<Status(Handle, ACCESS_OPERATION*, uint32_t*),
                  decltype(RFID_AddOperationToAccessSequence)>();
  expectPrototype<Status(Handle, uint32_t), decltype(RFID_DeleteOperationFromAccessSequence)>();
  expectPrototype<Status(Handle, ACCESS_FILTER*, ANTENNA_INFO*, TRIGGER_INFO*, void*),
                  decltype(RFID_PerformAccessSequence)>();
  expectPrototype<Status(Handle), decltype(RFID_StopAccessSequence)>();
  expectPrototype<Status(Handle, uint32_t*, uint32_t*), decltype(RFID_GetLastAccessResult)>();
  expectPrototype<Status(Handle), decltype(RFID_DeinitializeAccessSequence)>();
}

TEST(ReaderApiPrototypes, CapabilitiesAntennasAndRadio) {
  expectPrototype<Status(Handle, READER_CAPS*), decltype(RFID_GetReaderCapsW)>();
  expectPrototype<Status(Handle, AntennaId, uint16_t, uint16_t, uint16_t),
                  decltype(RFID_SetAntennaConfig)>();
  expectPrototype<Status(Handle, AntennaId, uint16_t*, uint16_t*, uint16_t*),
                  decltype(RFID_GetAntennaConfig)>();
  expectPrototype<Status(Handle, AntennaId, ANTENNA_RF_CONFIG*), decltype(RFID_GetAntennaRfConfig)>();
  expectPrototype<Status(Handle, AntennaId, ANTENNA_RF_CONFIG*), decltype(RFID_SetAntennaRfConfig)>();
  expectPrototype<Status(Handle, int16_t, CABLE_LOSS_COMPENSATION**),
                  decltype(RFID_SetCableLossCompensation)>();
  expectPrototype<Status(Handle, CABLE_LOSS_COMPENSATION*),
                  decltype(RFID_GetCableLossCompensation)>();
  expectPrototype<Status(Handle, AntennaId, Bool*, int32_t*),
                  decltype(RFID_GetPhysicalAntennaProperties)>();
  expectPrototype<Status(Handle, uint32_t), decltype(RFID_SetAntennaMode)>();
  expectPrototype<Status(Handle, uint32_t*), decltype(RFID_GetAntennaMode)>();
  expectPrototype<Status(Handle, AntennaId, Bool*), decltype(RFID_GetReadPointStatus)>();
  expectPrototype<Status(Handle, AntennaId, Bool), decltype(RFID_EnableReadPoint)>();

  expectPrototype<Status(Handle, AntennaId, uint32_t, uint32_t), decltype(RFID_SetRFMode)>();
  expectPrototype<Status(Handle, AntennaId, uint32_t*, uint32_t*), decltype(RFID_GetRFMode)>();
  expectPrototype<Status(Handle, uint16_t, DUTY_CYCLE_SCRATCH*), decltype(RFID_SetDutyCycle)>();
  expectPrototype<Status(Handle, uint16_t*, DUTY_CYCLE_SCRATCH*), decltype(RFID_GetDutyCycle)>();
  expectPrototype<Status(Handle, Bool), decltype(RFID_SetRadioPowerState)>();
  expectPrototype<Status(Handle, Bool*), decltype(RFID_GetRadioPowerState)>();
  expectPrototype<Status(Handle, uint32_t), decltype(RFID_TurnOffRadioWhenIdle)>();
  expectPrototype<Status(Handle, uint32_t*), decltype(RFID_GetRadioIdleTimeout)>();
  expectPrototype<Status(Handle, uint32_t*), decltype(RFID_GetPowerNegotiationStatus)>();
  expectPrototype<Status(Handle, Bool), decltype(RFID_SetPowerNegotiationState)>();
  expectPrototype<Status(Handle, Bool*), decltype(RFID_GetPowerNegotiationState)>();
  expectPrototype<Status(Handle, USB_OPERATION_MODE_SETTINGS*), decltype(RFID_GetUSBOperationMode)>();
  expectPrototype<Status(Handle, USB_OPERATION_MODE_SETTINGS*), decltype(RFID_SetUSBOperationMode)>();
}

TEST(ReaderApiPrototypes, GpioInformationAndManagement) {
  expectPrototype<Status(Handle, int32_t, Bool), decltype(RFID_EnableGPIPort)>();
  expectPrototype<Status(Handle, int32_t, Bool*, int32_t*), decltype(RFID_GetGPIState)>();
  expectPrototype<Status(Handle, int32_t, Bool), decltype(RFID_SetGPOState)>();
  expectPrototype<Status(Handle, int32_t, Bool*), decltype(RFID_GetGPOState)>();
  expectPrototype<Status(Handle, int32_t, GPI_DEBOUNCE_RECORD*), decltype(RFID_SetGPIDebounceTime)>();
  expectPrototype<Status(Handle, int32_t*, GPI_DEBOUNCE_RECORD*), decltype(RFID_GetGPIDebounceTime)>();
  expectPrototype<Status(Handle, LED_INFO*), decltype(RFID_SetUserLED)>();

  expectPrototype<Status(Handle, SYSTEM_INFO*), decltype(RFID_GetSystemInfoW)>();
  expectPrototype<Status(Handle, READER_INFO*), decltype(RFID_GetReaderInfoW)>();
  expectPrototype<Status(Handle, READER_INFO*), decltype(RFID_SetReaderInfoW)>();
  expectPrototype<Status(Handle, SYSTEMTIME*), decltype(RFID_GetLocalTime)>();
  expectPrototype<Status(Handle, SYSTEMTIME*), decltype(RFID_SetLocalTime)>();
  expectPrototype<Status(Handle, TIME_ZONE_LIST*), decltype(RFID_GetTimeZoneListW)>();
  expectPrototype<Status(Handle, uint16_t), decltype(RFID_SetTimeZone)>();
  expectPrototype<Status(Handle, AntennaId, READER_STATS*), decltype(RFID_GetReaderStats)>();
  expectPrototype<Status(Handle), decltype(RFID_ClearReaderStats)>();
  expectPrototype<Status(Handle, uint32_t, uint32_t*, void*), decltype(RFID_GetHealthStatus)>();

  expectPrototype<Status(Handle, PROFILE_LIST*), decltype(RFID_GetProfileListW)>();
  expectPrototype<Status(Handle, Text, Text), decltype(RFID_ImportProfileFromReaderW)>();
  expectPrototype<Status(Handle, Text, Text, Bool), decltype(RFID_ExportProfileToReaderW)>();
  expectPrototype<Status(Handle, Text), decltype(RFID_DeleteProfileW)>();
  expectPrototype<Status(Handle, Text), decltype(RFID_SetActiveProfileW)>();
  expectPrototype<Status(Handle, UPDATE_INFO*), decltype(RFID_UpdateSoftwareW)>();
  expectPrototype<Status(Handle, UPDATE_STATUS*), decltype(RFID_GetUpdateStatusW)>();
  expectPrototype<Status(Handle, Text), decltype(RFID_UpdateRadioConfigW)>();
  expectPrototype<Status(Handle, Text), decltype(RFID_UpdateRadioFirmwareW)>();
  expectPrototype<Status(Handle, Text), decltype(RFID_InstallUserAppW)>();
  expectPrototype<Status(Handle, Text), decltype(RFID_UninstallUserAppW)>();
  expectPrototype<Status(Handle, Text), decltype(RFID_StartUserAppW)>();
  expectPrototype<Status(Handle, Text), decltype(RFID_StopUserAppW)>();
  expectPrototype<Status(Handle, Text, Bool), decltype(RFID_SetUserAppAutoStartW)>();
  expectPrototype<Status(Handle, USER_APP_LIST*), decltype(RFID_ListUserAppsW)>();
  expectPrototype<Status(Handle, Text, Bool*), decltype(RFID_GetUserAppRunStatusW)>();
  expectPrototype<Status(Handle, void*), decltype(RFID_SaveLlrpConfig)>();
  expectPrototype<Status(Handle, Bool*), decltype(RFID_GetSaveLlrpConfigStatus)>();
  expectPrototype<Status(Handle), decltype(RFID_ResetConfigToFactoryDefaults)>();
  expectPrototype<Status(void*, unsigned int*), decltype(rfid_GetNumInstalledApps)>();
}

}  // namespace

// The reader library exports its installed-apps count with C++ linkage, so
// the declaration we call through must produce exactly this symbol. This
// test binary does not link the reader library: it defines the symbol under
// its mangled name here, and the call below only links if the declaration
// in the header names the same one.
extern "C" int32_t _Z24rfid_GetNumInstalledAppsPvPj(void* handle, unsigned int* count) {
  *count = static_cast<unsigned int>(reinterpret_cast<uintptr_t>(handle)) ^ 0xA5A5u;
  return 7;
}

namespace {

TEST(ReaderApiLinkage, NumInstalledAppsIsImportedUnderItsMangledName) {
  unsigned int count = 0;
  // A handle of -2 goes in sign-extended to pointer width.
  void* handle = reinterpret_cast<void*>(static_cast<intptr_t>(-2));
  EXPECT_EQ(rfid_GetNumInstalledApps(handle, &count), 7);
  EXPECT_EQ(count, 0xFFFFFFFEu ^ 0xA5A5u);
}

}  // namespace
