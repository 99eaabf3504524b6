// The reader C API of libhalyard.so, as liborlajni.so uses it: every record
// exchanged with the library and every function called in it.
//
// The records below are a binary interface with a closed library (x86-64,
// little-endian, 8-byte pointers). Every offset and size that matters is
// pinned with a static_assert right after its record; a wrong offset here
// corrupts tags on a real reader. Gaps are spelt out as padN (alignment the
// library never looks at) and reservedN (areas the library owns), where N is
// the byte offset of the gap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cwchar>

// ---------------------------------------------------------------------------
// Basic types
// ---------------------------------------------------------------------------

// Status of every RFID_ call; 0 is success.
typedef int32_t RFID_STATUS;
// Reader (or management session) handle. Java holds it as an int and it is
// passed here sign-extended.
typedef int64_t READER_HANDLE;
// Event object of the rfidUtils_ event utilities.
typedef int64_t EVENT_HANDLE;
// One-byte C boolean, always stored as 0 or 1 by this library.
typedef uint8_t RFID_BOOL;

// Wide strings of the C API hold up to 260 characters (1040 bytes).
constexpr size_t kMaxWideChars = 260;

// ===========================================================================
// Shared records
// ===========================================================================

// Calendar time stamp: eight 16-bit members.
struct SYSTEMTIME {
  uint16_t Year;
  uint16_t Month;
  uint16_t DayOfWeek;
  uint16_t Day;
  uint16_t Hour;
  uint16_t Minute;
  uint16_t Second;
  uint16_t Milliseconds;
};
static_assert(offsetof(SYSTEMTIME, Year) == 0, "SYSTEMTIME layout");
static_assert(offsetof(SYSTEMTIME, Month) == 2, "SYSTEMTIME layout");
static_assert(offsetof(SYSTEMTIME, DayOfWeek) == 4, "SYSTEMTIME layout");
static_assert(offsetof(SYSTEMTIME, Day) == 6, "SYSTEMTIME layout");
static_assert(offsetof(SYSTEMTIME, Hour) == 8, "SYSTEMTIME layout");
static_assert(offsetof(SYSTEMTIME, Minute) == 10, "SYSTEMTIME layout");
static_assert(offsetof(SYSTEMTIME, Second) == 12, "SYSTEMTIME layout");
static_assert(offsetof(SYSTEMTIME, Milliseconds) == 14, "SYSTEMTIME layout");
static_assert(sizeof(SYSTEMTIME) == 16, "SYSTEMTIME size");

// ===========================================================================
// Connection and session
// ===========================================================================

// Client certificate, key, pass phrase and root certificate of a secured
// reader connection; the byte buffers live only during the connect call.
struct SEC_CONNECTION_INFO {
  RFID_BOOL secureMode;
  RFID_BOOL validatePeerCert;
  uint8_t pad2[2];
  uint32_t sizeCertBuff;
  uint8_t* clientCertBuff;
  uint32_t sizeKeyBuff;
  uint8_t pad20[4];
  uint8_t* clientKeyBuff;
  uint32_t sizePhraseBuff;
  uint8_t pad36[4];
  uint8_t* phraseBuff;
  uint32_t sizeRootCertBuff;
  uint8_t pad52[4];
  uint8_t* rootCertBuff;
  int64_t connStatus;
  uint8_t reserved72[32];
};
static_assert(offsetof(SEC_CONNECTION_INFO, secureMode) == 0, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, validatePeerCert) == 1, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, sizeCertBuff) == 4, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, clientCertBuff) == 8, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, sizeKeyBuff) == 16, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, clientKeyBuff) == 24, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, sizePhraseBuff) == 32, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, phraseBuff) == 40, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, sizeRootCertBuff) == 48, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, rootCertBuff) == 56, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, connStatus) == 64, "SEC_CONNECTION_INFO layout");
static_assert(offsetof(SEC_CONNECTION_INFO, reserved72) == 72, "SEC_CONNECTION_INFO layout");
static_assert(sizeof(SEC_CONNECTION_INFO) == 104, "SEC_CONNECTION_INFO size");

// Connect options: protocol version and the optional secure part. Only the
// first 16 bytes are ours; the rest belongs to the library.
struct CONNECTION_INFO {
  uint32_t version;  // RFID_VERSION
  uint8_t pad4[4];
  SEC_CONNECTION_INFO* secConnInfo;
  uint8_t reserved16[32];
};
static_assert(offsetof(CONNECTION_INFO, version) == 0, "CONNECTION_INFO layout");
static_assert(offsetof(CONNECTION_INFO, secConnInfo) == 8, "CONNECTION_INFO layout");
static_assert(offsetof(CONNECTION_INFO, reserved16) == 16, "CONNECTION_INFO layout");
static_assert(sizeof(CONNECTION_INFO) == 48, "CONNECTION_INFO size");

// Credentials of a management session on the reader.
struct LOGIN_INFO {
  wchar_t hostName[kMaxWideChars];
  wchar_t userName[kMaxWideChars];
  wchar_t password[kMaxWideChars];
  uint32_t version;  // RFID_VERSION, from the Java "rfidVersion"
  RFID_BOOL forceLogin;
  uint8_t reserved3125[19];
};
static_assert(sizeof(wchar_t) == 4, "wide characters are 4 bytes on this platform");
static_assert(offsetof(LOGIN_INFO, hostName) == 0, "LOGIN_INFO layout");
static_assert(offsetof(LOGIN_INFO, userName) == 1040, "LOGIN_INFO layout");
static_assert(offsetof(LOGIN_INFO, password) == 2080, "LOGIN_INFO layout");
static_assert(offsetof(LOGIN_INFO, version) == 3120, "LOGIN_INFO layout");
static_assert(offsetof(LOGIN_INFO, forceLogin) == 3124, "LOGIN_INFO layout");
static_assert(offsetof(LOGIN_INFO, reserved3125) == 3125, "LOGIN_INFO layout");
static_assert(sizeof(LOGIN_INFO) == 3144, "LOGIN_INFO size");

// TLS switches of the reader-initiated LLRP connection.
struct SEC_LLRP_CONFIG {
  RFID_BOOL secureMode;
  RFID_BOOL validatePeerCert;
  uint8_t reserved2[38];
};
static_assert(offsetof(SEC_LLRP_CONFIG, secureMode) == 0, "SEC_LLRP_CONFIG layout");
static_assert(offsetof(SEC_LLRP_CONFIG, validatePeerCert) == 1, "SEC_LLRP_CONFIG layout");
static_assert(offsetof(SEC_LLRP_CONFIG, reserved2) == 2, "SEC_LLRP_CONFIG layout");
static_assert(sizeof(SEC_LLRP_CONFIG) == 40, "SEC_LLRP_CONFIG size");

// Where the reader opens its LLRP connection: as client to a host server,
// or as server on a port.
struct LLRP_CONNECTION_CONFIG {
  RFID_BOOL isClient;
  uint8_t pad1[3];
  uint32_t port;
  wchar_t hostServerIP[kMaxWideChars];
  SEC_LLRP_CONFIG* pSecureModeConfig;
  uint8_t reserved1056[40];
};
static_assert(offsetof(LLRP_CONNECTION_CONFIG, isClient) == 0, "LLRP_CONNECTION_CONFIG layout");
static_assert(offsetof(LLRP_CONNECTION_CONFIG, port) == 4, "LLRP_CONNECTION_CONFIG layout");
static_assert(offsetof(LLRP_CONNECTION_CONFIG, hostServerIP) == 8, "LLRP_CONNECTION_CONFIG layout");
static_assert(offsetof(LLRP_CONNECTION_CONFIG, pSecureModeConfig) == 1048,
              "LLRP_CONNECTION_CONFIG layout");
static_assert(offsetof(LLRP_CONNECTION_CONFIG, reserved1056) == 1056,
              "LLRP_CONNECTION_CONFIG layout");
static_assert(sizeof(LLRP_CONNECTION_CONFIG) == 1096, "LLRP_CONNECTION_CONFIG size");

// Output area of RFID_InitiateLLRPConnectionFromReader; we never read it.
struct LLRP_INITIATE_SCRATCH {
  alignas(8) uint8_t reserved0[24];
};
static_assert(sizeof(LLRP_INITIATE_SCRATCH) == 24, "LLRP_INITIATE_SCRATCH size");

// Input of RFID_AcceptConnection. timeoutMilliseconds is the library's slot;
// this library leaves it as the stack holds it.
struct ACCEPT_CONNECTION_INFO {
  uint32_t timeoutMilliseconds;
  uint32_t rfidVersion;  // RFID_VERSION
};
static_assert(offsetof(ACCEPT_CONNECTION_INFO, timeoutMilliseconds) == 0,
              "ACCEPT_CONNECTION_INFO layout");
static_assert(offsetof(ACCEPT_CONNECTION_INFO, rfidVersion) == 4, "ACCEPT_CONNECTION_INFO layout");
static_assert(sizeof(ACCEPT_CONNECTION_INFO) == 8, "ACCEPT_CONNECTION_INFO size");

// Output area of RFID_AcceptConnection; we never read it. Its size is the
// library's business: 64 bytes are kept for it.
struct ACCEPT_CONNECTION_SCRATCH {
  alignas(8) uint8_t reserved0[64];
};
static_assert(sizeof(ACCEPT_CONNECTION_SCRATCH) == 64, "ACCEPT_CONNECTION_SCRATCH size");

// ===========================================================================
// Events
// ===========================================================================
// Data records of RFID_GetEventData, one per event type that we report.
// Each is at least 16 bytes; enumeration members are 32-bit and reach Java
// as their low 16 bits.

// Event type 0: a GPI port changed state.
struct GPI_EVENT_DATA {
  int16_t port;
  RFID_BOOL eventInfo;
  uint8_t reserved3[13];
};
static_assert(offsetof(GPI_EVENT_DATA, port) == 0, "GPI_EVENT_DATA layout");
static_assert(offsetof(GPI_EVENT_DATA, eventInfo) == 2, "GPI_EVENT_DATA layout");
static_assert(sizeof(GPI_EVENT_DATA) == 16, "GPI_EVENT_DATA size");

// Event type 3: an antenna was connected or disconnected.
struct ANTENNA_EVENT_DATA {
  int16_t antennaID;
  uint8_t pad2[2];
  uint32_t antennaEvent;
  uint8_t reserved8[8];
};
static_assert(offsetof(ANTENNA_EVENT_DATA, antennaID) == 0, "ANTENNA_EVENT_DATA layout");
static_assert(offsetof(ANTENNA_EVENT_DATA, antennaEvent) == 4, "ANTENNA_EVENT_DATA layout");
static_assert(sizeof(ANTENNA_EVENT_DATA) == 16, "ANTENNA_EVENT_DATA size");

// Event types 8 and 12: a single event information code.
struct EVENT_INFO_DATA {
  uint32_t eventInfo;
  uint8_t reserved4[12];
};
static_assert(offsetof(EVENT_INFO_DATA, eventInfo) == 0, "EVENT_INFO_DATA layout");
static_assert(sizeof(EVENT_INFO_DATA) == 16, "EVENT_INFO_DATA size");

// Event type 10: an alarm with its 64-bit code, raised on an antenna.
struct ALARM_EVENT_DATA {
  int64_t alarmCode;
  int16_t antennaID;
  uint8_t reserved10[6];
};
static_assert(offsetof(ALARM_EVENT_DATA, alarmCode) == 0, "ALARM_EVENT_DATA layout");
static_assert(offsetof(ALARM_EVENT_DATA, antennaID) == 8, "ALARM_EVENT_DATA layout");
static_assert(sizeof(ALARM_EVENT_DATA) == 16, "ALARM_EVENT_DATA size");

// Event type 11: a reader exception with its text.
struct EXCEPTION_EVENT_DATA {
  uint32_t exceptionType;
  wchar_t exceptionInfo[271];
};
static_assert(offsetof(EXCEPTION_EVENT_DATA, exceptionType) == 0, "EXCEPTION_EVENT_DATA layout");
static_assert(offsetof(EXCEPTION_EVENT_DATA, exceptionInfo) == 4, "EXCEPTION_EVENT_DATA layout");
static_assert(sizeof(EXCEPTION_EVENT_DATA) == 1088, "EXCEPTION_EVENT_DATA size");

// Event type 14: a temperature alarm (source, current temperature, level).
struct TEMPERATURE_ALARM_EVENT_DATA {
  uint32_t sourceName;
  int32_t currentTemperature;
  uint32_t alarmLevel;
  uint8_t reserved12[4];
};
static_assert(offsetof(TEMPERATURE_ALARM_EVENT_DATA, sourceName) == 0,
              "TEMPERATURE_ALARM_EVENT_DATA layout");
static_assert(offsetof(TEMPERATURE_ALARM_EVENT_DATA, currentTemperature) == 4,
              "TEMPERATURE_ALARM_EVENT_DATA layout");
static_assert(offsetof(TEMPERATURE_ALARM_EVENT_DATA, alarmLevel) == 8,
              "TEMPERATURE_ALARM_EVENT_DATA layout");
static_assert(sizeof(TEMPERATURE_ALARM_EVENT_DATA) == 16, "TEMPERATURE_ALARM_EVENT_DATA size");

// ===========================================================================
// Errors and version
// ===========================================================================

// The library's account of the last error on a reader.
struct ERROR_INFO {
  SYSTEMTIME errorTimeStamp;
  uint32_t rfidStatusCode;  // RFID_STATUS value
  wchar_t statusDesc[kMaxWideChars];
  wchar_t vendorMessage[265];
};
static_assert(offsetof(ERROR_INFO, errorTimeStamp) == 0, "ERROR_INFO layout");
static_assert(offsetof(ERROR_INFO, rfidStatusCode) == 16, "ERROR_INFO layout");
static_assert(offsetof(ERROR_INFO, statusDesc) == 20, "ERROR_INFO layout");
static_assert(offsetof(ERROR_INFO, vendorMessage) == 1060, "ERROR_INFO layout");
static_assert(sizeof(ERROR_INFO) == 2120, "ERROR_INFO size");

// Version text of the C library.
struct VERSION_INFO {
  wchar_t dllVersion[262];
};
static_assert(offsetof(VERSION_INFO, dllVersion) == 0, "VERSION_INFO layout");
static_assert(sizeof(VERSION_INFO) == 1048, "VERSION_INFO size");

// ===========================================================================
// Tags, inventory, filters and triggers
// ===========================================================================

// Seen times in calendar form.
struct UTC_TIME {
  SYSTEMTIME firstSeenTimeStamp;
  SYSTEMTIME lastSeenTimeStamp;
};
static_assert(offsetof(UTC_TIME, firstSeenTimeStamp) == 0, "UTC_TIME layout");
static_assert(offsetof(UTC_TIME, lastSeenTimeStamp) == 16, "UTC_TIME layout");
static_assert(sizeof(UTC_TIME) == 32, "UTC_TIME size");

// Seen times as 64-bit counts since the reader came up.
struct UP_TIME {
  uint64_t firstSeenTimeStamp;
  uint64_t lastSeenTimeStamp;
};
static_assert(offsetof(UP_TIME, firstSeenTimeStamp) == 0, "UP_TIME layout");
static_assert(offsetof(UP_TIME, lastSeenTimeStamp) == 8, "UP_TIME layout");
static_assert(sizeof(UP_TIME) == 16, "UP_TIME size");

// First and last time a tag was seen; the caller knows which form it holds.
union SEEN_TIME {
  UTC_TIME utcTime;
  UP_TIME upTime;
};
static_assert(sizeof(SEEN_TIME) == 32, "SEEN_TIME size");

// Location data of a tag; only the leading distance is ours.
struct LOCATION_INFO {
  int16_t relativeDistance;
};
static_assert(offsetof(LOCATION_INFO, relativeDistance) == 0, "LOCATION_INFO layout");
static_assert(sizeof(LOCATION_INFO) == 2, "LOCATION_INFO size");

// GPS position reported with a tag.
struct GPS_LOCATION {
  int32_t longitude;
  int32_t latitude;
  int32_t altitude;
};
static_assert(offsetof(GPS_LOCATION, longitude) == 0, "GPS_LOCATION layout");
static_assert(offsetof(GPS_LOCATION, latitude) == 4, "GPS_LOCATION layout");
static_assert(offsetof(GPS_LOCATION, altitude) == 8, "GPS_LOCATION layout");
static_assert(sizeof(GPS_LOCATION) == 12, "GPS_LOCATION size");

// Operation codes of TAG_DATA::opCode whose pOpResult we read.
constexpr uint32_t kOpCodeImpinjQt = 21;            // pOpResult -> IMPINJ_QT_DATA
constexpr uint32_t kOpCodeNxpChangeConfig = 22;     // pOpResult -> NXP_CHANGE_CONFIG_WORD_RESULT
constexpr uint32_t kOpCodeGen2v2Authenticate = 23;  // pOpResult -> AUTHENTICATE_READ_BUFFER_RESULT
constexpr uint32_t kOpCodeGen2v2ReadBuffer = 24;    // pOpResult -> AUTHENTICATE_READ_BUFFER_RESULT
constexpr uint32_t kOpCodeGen2v2OtherReply = 26;    // pOpResult -> AUTHENTICATE_READ_BUFFER_RESULT

// Result of an Impinj QT operation: the QT control word.
struct IMPINJ_QT_DATA {
  int16_t qtControlData;
};
static_assert(offsetof(IMPINJ_QT_DATA, qtControlData) == 0, "IMPINJ_QT_DATA layout");
static_assert(sizeof(IMPINJ_QT_DATA) == 2, "IMPINJ_QT_DATA size");

// Result of an NXP change-config operation: the config word.
struct NXP_CHANGE_CONFIG_WORD_RESULT {
  int16_t ChangeConfigWord;
};
static_assert(offsetof(NXP_CHANGE_CONFIG_WORD_RESULT, ChangeConfigWord) == 0,
              "NXP_CHANGE_CONFIG_WORD_RESULT layout");
static_assert(sizeof(NXP_CHANGE_CONFIG_WORD_RESULT) == 2, "NXP_CHANGE_CONFIG_WORD_RESULT size");

// Reply of a Gen2v2 operation that answers with a bit string
// (authenticate, read buffer and the like).
struct AUTHENTICATE_READ_BUFFER_RESULT {
  uint16_t lengthInBits;
  uint8_t pad2[6];
  uint8_t* pReply;
};
static_assert(offsetof(AUTHENTICATE_READ_BUFFER_RESULT, lengthInBits) == 0,
              "AUTHENTICATE_READ_BUFFER_RESULT layout");
static_assert(offsetof(AUTHENTICATE_READ_BUFFER_RESULT, pReply) == 8,
              "AUTHENTICATE_READ_BUFFER_RESULT layout");
static_assert(sizeof(AUTHENTICATE_READ_BUFFER_RESULT) == 16, "AUTHENTICATE_READ_BUFFER_RESULT size");

// One tag as the library reports it. The library allocates and owns it
// (RFID_AllocateTag / RFID_DeallocateTag); the reserved areas are its own.
struct TAG_DATA {
  uint32_t memoryAllocated;  // the record's embedded STRUCT_INFO header
  uint32_t memoryUsed;
  uint8_t* pTagID;
  uint32_t tagIDLength;
  uint32_t tagIDAllocated;
  uint16_t PC;
  uint8_t pad26[2];
  uint32_t XPC;
  uint16_t CRC;
  int16_t antennaID;
  uint8_t reserved36[4];
  SEEN_TIME seenTime;
  int8_t peakRSSI;
  uint8_t pad73[1];
  int16_t channelIndex;
  int16_t tagSeenCount;
  uint8_t pad78[2];
  uint32_t opCode;
  uint32_t opStatus;
  uint32_t memoryBank;
  uint8_t reserved92[4];
  uint8_t* pMemoryBankData;
  uint32_t memoryBankDataByteOffset;
  uint32_t memoryBankDataLength;
  uint32_t memoryBankDataAllocated;
  uint32_t tagEvent;
  SYSTEMTIME tagEventTimeStamp;
  LOCATION_INFO* pLocationInfo;
  void* pOpResult;  // record type chosen by opCode (kOpCode* above)
  uint8_t reserved152[16];
  int16_t phaseInfo;
  uint8_t reserved170[14];
  GPS_LOCATION* pGpsLocation;
};
static_assert(offsetof(TAG_DATA, memoryAllocated) == 0, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, memoryUsed) == 4, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, pTagID) == 8, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, tagIDLength) == 16, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, tagIDAllocated) == 20, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, PC) == 24, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, XPC) == 28, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, CRC) == 32, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, antennaID) == 34, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, reserved36) == 36, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, seenTime) == 40, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, seenTime.utcTime.firstSeenTimeStamp) == 40, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, seenTime.utcTime.lastSeenTimeStamp) == 56, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, seenTime.upTime.firstSeenTimeStamp) == 40, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, seenTime.upTime.lastSeenTimeStamp) == 48, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, peakRSSI) == 72, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, channelIndex) == 74, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, tagSeenCount) == 76, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, opCode) == 80, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, opStatus) == 84, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, memoryBank) == 88, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, reserved92) == 92, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, pMemoryBankData) == 96, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, memoryBankDataByteOffset) == 104, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, memoryBankDataLength) == 108, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, memoryBankDataAllocated) == 112, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, tagEvent) == 116, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, tagEventTimeStamp) == 120, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, pLocationInfo) == 136, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, pOpResult) == 144, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, reserved152) == 152, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, phaseInfo) == 168, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, reserved170) == 170, "TAG_DATA layout");
static_assert(offsetof(TAG_DATA, pGpsLocation) == 184, "TAG_DATA layout");
static_assert(sizeof(TAG_DATA) == 192, "TAG_DATA size");

// Antennas an operation runs on, with one operation qualifier per antenna.
// Both arrays belong to the caller.
struct ANTENNA_INFO {
  uint16_t* antennaList;
  uint32_t length;
  uint8_t pad12[4];
  uint32_t* antennaOpList;  // OPERATION_QUALIFIER values
};
static_assert(offsetof(ANTENNA_INFO, antennaList) == 0, "ANTENNA_INFO layout");
static_assert(offsetof(ANTENNA_INFO, length) == 8, "ANTENNA_INFO layout");
static_assert(offsetof(ANTENNA_INFO, antennaOpList) == 16, "ANTENNA_INFO layout");
static_assert(sizeof(ANTENNA_INFO) == 24, "ANTENNA_INFO size");

// A masked bit pattern matched against a memory bank.
struct TAG_PATTERN {
  uint32_t memoryBank;  // MEMORY_BANK
  uint16_t bitOffset;
  uint8_t pad6[2];
  uint8_t* tagPattern;
  uint16_t tagPatternBitCount;
  uint8_t pad18[6];
  uint8_t* tagMask;
  uint16_t tagMaskBitCount;
  uint8_t pad34[6];
};
static_assert(offsetof(TAG_PATTERN, memoryBank) == 0, "TAG_PATTERN layout");
static_assert(offsetof(TAG_PATTERN, bitOffset) == 4, "TAG_PATTERN layout");
static_assert(offsetof(TAG_PATTERN, tagPattern) == 8, "TAG_PATTERN layout");
static_assert(offsetof(TAG_PATTERN, tagPatternBitCount) == 16, "TAG_PATTERN layout");
static_assert(offsetof(TAG_PATTERN, tagMask) == 24, "TAG_PATTERN layout");
static_assert(offsetof(TAG_PATTERN, tagMaskBitCount) == 32, "TAG_PATTERN layout");
static_assert(sizeof(TAG_PATTERN) == 40, "TAG_PATTERN size");

// Peak RSSI window (dBm) that a tag must fall in, or out of.
struct RSSI_RANGE_FILTER {
  int8_t peakRSSILowerLimit;
  int8_t peakRSSIUpperLimit;
  uint8_t pad2[2];
  uint32_t matchRange;  // MATCH_RANGE
  uint8_t reserved8[32];
};
static_assert(offsetof(RSSI_RANGE_FILTER, peakRSSILowerLimit) == 0, "RSSI_RANGE_FILTER layout");
static_assert(offsetof(RSSI_RANGE_FILTER, peakRSSIUpperLimit) == 1, "RSSI_RANGE_FILTER layout");
static_assert(offsetof(RSSI_RANGE_FILTER, matchRange) == 4, "RSSI_RANGE_FILTER layout");
static_assert(offsetof(RSSI_RANGE_FILTER, reserved8) == 8, "RSSI_RANGE_FILTER layout");
static_assert(sizeof(RSSI_RANGE_FILTER) == 40, "RSSI_RANGE_FILTER size");

// Which tags an access operation applies to: up to two patterns combined by
// matchPattern, and an optional RSSI window.
struct ACCESS_FILTER {
  uint32_t memoryAllocated;
  uint32_t memoryUsed;
  TAG_PATTERN* tagPatternA;
  TAG_PATTERN* tagPatternB;
  uint32_t matchPattern;  // FILTER_MATCH_PATTERN
  uint8_t pad28[4];
  RSSI_RANGE_FILTER* rssiRangeFilter;
};
static_assert(offsetof(ACCESS_FILTER, memoryAllocated) == 0, "ACCESS_FILTER layout");
static_assert(offsetof(ACCESS_FILTER, memoryUsed) == 4, "ACCESS_FILTER layout");
static_assert(offsetof(ACCESS_FILTER, tagPatternA) == 8, "ACCESS_FILTER layout");
static_assert(offsetof(ACCESS_FILTER, tagPatternB) == 16, "ACCESS_FILTER layout");
static_assert(offsetof(ACCESS_FILTER, matchPattern) == 24, "ACCESS_FILTER layout");
static_assert(offsetof(ACCESS_FILTER, rssiRangeFilter) == 32, "ACCESS_FILTER layout");
static_assert(sizeof(ACCESS_FILTER) == 40, "ACCESS_FILTER size");

// Which inventoried tags are reported; laid out exactly as ACCESS_FILTER.
struct POST_FILTER {
  uint32_t memoryAllocated;
  uint32_t memoryUsed;
  TAG_PATTERN* tagPatternA;
  TAG_PATTERN* tagPatternB;
  uint32_t matchPattern;  // FILTER_MATCH_PATTERN
  uint8_t pad28[4];
  RSSI_RANGE_FILTER* rssiRangeFilter;
};
static_assert(offsetof(POST_FILTER, memoryAllocated) == 0, "POST_FILTER layout");
static_assert(offsetof(POST_FILTER, memoryUsed) == 4, "POST_FILTER layout");
static_assert(offsetof(POST_FILTER, tagPatternA) == 8, "POST_FILTER layout");
static_assert(offsetof(POST_FILTER, tagPatternB) == 16, "POST_FILTER layout");
static_assert(offsetof(POST_FILTER, matchPattern) == 24, "POST_FILTER layout");
static_assert(offsetof(POST_FILTER, rssiRangeFilter) == 32, "POST_FILTER layout");
static_assert(sizeof(POST_FILTER) == 40, "POST_FILTER size");

// Time of day for time-lapse start triggers.
struct TIMEOFDAY {
  uint16_t Hour;
  uint16_t Minute;
  uint16_t Second;
};
static_assert(offsetof(TIMEOFDAY, Hour) == 0, "TIMEOFDAY layout");
static_assert(offsetof(TIMEOFDAY, Minute) == 2, "TIMEOFDAY layout");
static_assert(offsetof(TIMEOFDAY, Second) == 4, "TIMEOFDAY layout");
static_assert(sizeof(TIMEOFDAY) == 6, "TIMEOFDAY size");

// Start trigger type 1: start every periodMilliseconds from startTime.
struct PERIODIC_TRIGGER {
  uint32_t periodMilliseconds;
  uint8_t pad4[4];
  SYSTEMTIME* startTime;
};
static_assert(offsetof(PERIODIC_TRIGGER, periodMilliseconds) == 0, "PERIODIC_TRIGGER layout");
static_assert(offsetof(PERIODIC_TRIGGER, startTime) == 8, "PERIODIC_TRIGGER layout");
static_assert(sizeof(PERIODIC_TRIGGER) == 16, "PERIODIC_TRIGGER size");

// Start type 2 / stop type 2: a GPI port reaching a state, with a time-out.
struct GPI_TRIGGER {
  uint16_t portNumber;
  RFID_BOOL eventInfo;
  uint8_t pad3[1];
  uint32_t timeoutMilliseconds;
};
static_assert(offsetof(GPI_TRIGGER, portNumber) == 0, "GPI_TRIGGER layout");
static_assert(offsetof(GPI_TRIGGER, eventInfo) == 2, "GPI_TRIGGER layout");
static_assert(offsetof(GPI_TRIGGER, timeoutMilliseconds) == 4, "GPI_TRIGGER layout");
static_assert(sizeof(GPI_TRIGGER) == 8, "GPI_TRIGGER size");

// Start type 3 / stop type 5: a handheld trigger event, with a time-out.
struct HANDHELD_TRIGGER {
  uint32_t handheldEvent;  // HANDHELD_TRIGGER_EVENT_TYPE
  uint32_t timeoutMilliseconds;
};
static_assert(offsetof(HANDHELD_TRIGGER, handheldEvent) == 0, "HANDHELD_TRIGGER layout");
static_assert(offsetof(HANDHELD_TRIGGER, timeoutMilliseconds) == 4, "HANDHELD_TRIGGER layout");
static_assert(sizeof(HANDHELD_TRIGGER) == 8, "HANDHELD_TRIGGER size");

// Start trigger type 4: start at a time of day, then every period.
struct TIMELAPSE_START_TRIGGER {
  TIMEOFDAY* startTime;
  uint32_t period;
  uint8_t pad12[4];
};
static_assert(offsetof(TIMELAPSE_START_TRIGGER, startTime) == 0, "TIMELAPSE_START_TRIGGER layout");
static_assert(offsetof(TIMELAPSE_START_TRIGGER, period) == 8, "TIMELAPSE_START_TRIGGER layout");
static_assert(sizeof(TIMELAPSE_START_TRIGGER) == 16, "TIMELAPSE_START_TRIGGER size");

// Start trigger type 5: start after a distance.
struct DISTANCE_TRIGGER {
  uint32_t value;
};
static_assert(offsetof(DISTANCE_TRIGGER, value) == 0, "DISTANCE_TRIGGER layout");
static_assert(sizeof(DISTANCE_TRIGGER) == 4, "DISTANCE_TRIGGER size");

// Start trigger value, chosen by START_TRIGGER::type. periodic and timelapse
// overlap on purpose: callers preset both time pointers before filling.
union START_TRIGGER_VALUE {
  PERIODIC_TRIGGER periodic;
  GPI_TRIGGER gpi;
  HANDHELD_TRIGGER handheld;
  TIMELAPSE_START_TRIGGER timelapse;
  DISTANCE_TRIGGER distance;
};
static_assert(sizeof(START_TRIGGER_VALUE) == 16, "START_TRIGGER_VALUE size");

// When an operation starts.
struct START_TRIGGER {
  uint32_t type;  // START_TRIGGER_TYPE, 0..5
  uint8_t pad4[4];
  START_TRIGGER_VALUE value;
};
static_assert(offsetof(START_TRIGGER, type) == 0, "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value) == 8, "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value.periodic.periodMilliseconds) == 8, "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value.periodic.startTime) == 16, "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value.gpi.portNumber) == 8, "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value.gpi.eventInfo) == 10, "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value.gpi.timeoutMilliseconds) == 12, "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value.handheld.handheldEvent) == 8, "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value.handheld.timeoutMilliseconds) == 12,
              "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value.timelapse.startTime) == 8, "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value.timelapse.period) == 16, "START_TRIGGER layout");
static_assert(offsetof(START_TRIGGER, value.distance.value) == 8, "START_TRIGGER layout");
static_assert(sizeof(START_TRIGGER) == 24, "START_TRIGGER size");

// Stop types 3 and 4: n tag observations or n attempts, with a time-out.
struct TRIGGER_WITH_TIMEOUT {
  uint16_t n;
  uint8_t pad2[2];
  uint32_t timeoutMilliseconds;
};
static_assert(offsetof(TRIGGER_WITH_TIMEOUT, n) == 0, "TRIGGER_WITH_TIMEOUT layout");
static_assert(offsetof(TRIGGER_WITH_TIMEOUT, timeoutMilliseconds) == 4,
              "TRIGGER_WITH_TIMEOUT layout");
static_assert(sizeof(TRIGGER_WITH_TIMEOUT) == 8, "TRIGGER_WITH_TIMEOUT size");

// Stop trigger type 6: a total duration cut into periods.
struct TIMELAPSE_STOP_TRIGGER {
  uint32_t totalDuration;
  uint32_t periodicDuration;
};
static_assert(offsetof(TIMELAPSE_STOP_TRIGGER, totalDuration) == 0, "TIMELAPSE_STOP_TRIGGER layout");
static_assert(offsetof(TIMELAPSE_STOP_TRIGGER, periodicDuration) == 4,
              "TIMELAPSE_STOP_TRIGGER layout");
static_assert(sizeof(TIMELAPSE_STOP_TRIGGER) == 8, "TIMELAPSE_STOP_TRIGGER size");

// Stop trigger value, chosen by STOP_TRIGGER::type.
union STOP_TRIGGER_VALUE {
  uint32_t duration;  // type 1, milliseconds
  GPI_TRIGGER gpi;
  TRIGGER_WITH_TIMEOUT tagObservation;
  TRIGGER_WITH_TIMEOUT numAttempts;
  HANDHELD_TRIGGER handheld;
  TIMELAPSE_STOP_TRIGGER timelapse;
};
static_assert(sizeof(STOP_TRIGGER_VALUE) == 8, "STOP_TRIGGER_VALUE size");

// When an operation stops.
struct STOP_TRIGGER {
  uint32_t type;  // STOP_TRIGGER_TYPE, 0..6
  STOP_TRIGGER_VALUE value;
};
static_assert(offsetof(STOP_TRIGGER, type) == 0, "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value) == 4, "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.duration) == 4, "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.gpi.portNumber) == 4, "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.gpi.eventInfo) == 6, "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.gpi.timeoutMilliseconds) == 8, "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.tagObservation.n) == 4, "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.tagObservation.timeoutMilliseconds) == 8,
              "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.numAttempts.n) == 4, "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.numAttempts.timeoutMilliseconds) == 8,
              "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.handheld.handheldEvent) == 4, "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.handheld.timeoutMilliseconds) == 8,
              "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.timelapse.totalDuration) == 4, "STOP_TRIGGER layout");
static_assert(offsetof(STOP_TRIGGER, value.timelapse.periodicDuration) == 8, "STOP_TRIGGER layout");
static_assert(sizeof(STOP_TRIGGER) == 12, "STOP_TRIGGER size");

// Which tag events are reported, each with its moderation time-out. We
// fill the first 32 bytes; callers reserve 48.
struct TAG_EVENT_REPORT_INFO {
  uint32_t reportNewTagEvent;  // TAG_EVENT_REPORT_TRIGGER
  uint16_t newTagEventModeratedTimeoutMilliseconds;
  uint8_t pad6[2];
  uint32_t reportTagInvisibleEvent;  // TAG_EVENT_REPORT_TRIGGER
  uint16_t tagInvisibleEventModeratedTimeoutMilliseconds;
  uint8_t pad14[2];
  uint32_t reportTagBackToVisibilityEvent;  // TAG_EVENT_REPORT_TRIGGER
  uint16_t tagBackToVisibilityModeratedTimeoutMilliseconds;
  uint8_t pad22[2];
  uint32_t reportTagMovingEvent;  // TAG_MOVING_EVENT_REPORT
  uint16_t tagStationaryModeratedTimeoutMilliseconds;
  uint8_t pad30[2];
  uint8_t reserved32[16];
};
static_assert(offsetof(TAG_EVENT_REPORT_INFO, reportNewTagEvent) == 0,
              "TAG_EVENT_REPORT_INFO layout");
static_assert(offsetof(TAG_EVENT_REPORT_INFO, newTagEventModeratedTimeoutMilliseconds) == 4,
              "TAG_EVENT_REPORT_INFO layout");
static_assert(offsetof(TAG_EVENT_REPORT_INFO, reportTagInvisibleEvent) == 8,
              "TAG_EVENT_REPORT_INFO layout");
static_assert(offsetof(TAG_EVENT_REPORT_INFO, tagInvisibleEventModeratedTimeoutMilliseconds) == 12,
              "TAG_EVENT_REPORT_INFO layout");
static_assert(offsetof(TAG_EVENT_REPORT_INFO, reportTagBackToVisibilityEvent) == 16,
              "TAG_EVENT_REPORT_INFO layout");
static_assert(offsetof(TAG_EVENT_REPORT_INFO, tagBackToVisibilityModeratedTimeoutMilliseconds) == 20,
              "TAG_EVENT_REPORT_INFO layout");
static_assert(offsetof(TAG_EVENT_REPORT_INFO, reportTagMovingEvent) == 24,
              "TAG_EVENT_REPORT_INFO layout");
static_assert(offsetof(TAG_EVENT_REPORT_INFO, tagStationaryModeratedTimeoutMilliseconds) == 28,
              "TAG_EVENT_REPORT_INFO layout");
static_assert(offsetof(TAG_EVENT_REPORT_INFO, reserved32) == 32, "TAG_EVENT_REPORT_INFO layout");
static_assert(sizeof(TAG_EVENT_REPORT_INFO) == 48, "TAG_EVENT_REPORT_INFO size");

// Periodic tag reports; callers reserve and zero 40 bytes.
struct REPORT_TRIGGERS {
  uint32_t periodicReportDuration;
  uint8_t reserved4[36];
};
static_assert(offsetof(REPORT_TRIGGERS, periodicReportDuration) == 0, "REPORT_TRIGGERS layout");
static_assert(offsetof(REPORT_TRIGGERS, reserved4) == 4, "REPORT_TRIGGERS layout");
static_assert(sizeof(REPORT_TRIGGERS) == 40, "REPORT_TRIGGERS size");

// Up to seven further start and seven further stop triggers.
struct EXTRA_TRIGGER_INFO {
  START_TRIGGER startTrigger[7];
  STOP_TRIGGER stopTrigger[7];
  uint8_t reserved252[4];
};
static_assert(offsetof(EXTRA_TRIGGER_INFO, startTrigger) == 0, "EXTRA_TRIGGER_INFO layout");
static_assert(offsetof(EXTRA_TRIGGER_INFO, startTrigger[3]) == 72, "EXTRA_TRIGGER_INFO layout");
static_assert(offsetof(EXTRA_TRIGGER_INFO, stopTrigger) == 168, "EXTRA_TRIGGER_INFO layout");
static_assert(offsetof(EXTRA_TRIGGER_INFO, stopTrigger[1]) == 180, "EXTRA_TRIGGER_INFO layout");
static_assert(offsetof(EXTRA_TRIGGER_INFO, reserved252) == 252, "EXTRA_TRIGGER_INFO layout");
static_assert(sizeof(EXTRA_TRIGGER_INFO) == 256, "EXTRA_TRIGGER_INFO size");

// When an inventory, EAS scan or access sequence starts and stops, and what
// it reports. We fill bytes 0..63; callers reserve 80 and leave 64..79 to
// the library.
struct TRIGGER_INFO {
  START_TRIGGER startTrigger;
  STOP_TRIGGER stopTrigger;
  uint32_t tagReportTrigger;
  TAG_EVENT_REPORT_INFO* tagEventReportInfo;
  REPORT_TRIGGERS* reportTriggers;
  EXTRA_TRIGGER_INFO* extraTriggers;
  uint8_t reserved64[16];
};
static_assert(offsetof(TRIGGER_INFO, startTrigger) == 0, "TRIGGER_INFO layout");
static_assert(offsetof(TRIGGER_INFO, startTrigger.value) == 8, "TRIGGER_INFO layout");
static_assert(offsetof(TRIGGER_INFO, startTrigger.value.periodic.startTime) == 16,
              "TRIGGER_INFO layout");
static_assert(offsetof(TRIGGER_INFO, stopTrigger) == 24, "TRIGGER_INFO layout");
static_assert(offsetof(TRIGGER_INFO, stopTrigger.value) == 28, "TRIGGER_INFO layout");
static_assert(offsetof(TRIGGER_INFO, tagReportTrigger) == 36, "TRIGGER_INFO layout");
static_assert(offsetof(TRIGGER_INFO, tagEventReportInfo) == 40, "TRIGGER_INFO layout");
static_assert(offsetof(TRIGGER_INFO, reportTriggers) == 48, "TRIGGER_INFO layout");
static_assert(offsetof(TRIGGER_INFO, extraTriggers) == 56, "TRIGGER_INFO layout");
static_assert(offsetof(TRIGGER_INFO, reserved64) == 64, "TRIGGER_INFO layout");
static_assert(sizeof(TRIGGER_INFO) == 80, "TRIGGER_INFO size");

// A select rule applied on an antenna before singulation. The action
// parameter at 24 is either a state-unaware action or a state-aware target.
struct PRE_FILTER {
  uint32_t memoryBank;  // MEMORY_BANK
  uint8_t pad4[4];
  uint8_t* tagPattern;
  uint16_t tagPatternBitCount;
  uint16_t bitOffset;
  uint32_t filterAction;  // FILTER_ACTION
  union {
    uint32_t stateUnawareAction;  // STATE_UNAWARE_ACTION
    uint32_t target;              // TARGET
  };
  uint32_t stateAwareAction;  // STATE_AWARE_ACTION
  uint32_t truncateAction;    // TRUNCATE_ACTION
  uint8_t pad36[4];
};
static_assert(offsetof(PRE_FILTER, memoryBank) == 0, "PRE_FILTER layout");
static_assert(offsetof(PRE_FILTER, tagPattern) == 8, "PRE_FILTER layout");
static_assert(offsetof(PRE_FILTER, tagPatternBitCount) == 16, "PRE_FILTER layout");
static_assert(offsetof(PRE_FILTER, bitOffset) == 18, "PRE_FILTER layout");
static_assert(offsetof(PRE_FILTER, filterAction) == 20, "PRE_FILTER layout");
static_assert(offsetof(PRE_FILTER, stateUnawareAction) == 24, "PRE_FILTER layout");
static_assert(offsetof(PRE_FILTER, target) == 24, "PRE_FILTER layout");
static_assert(offsetof(PRE_FILTER, stateAwareAction) == 28, "PRE_FILTER layout");
static_assert(offsetof(PRE_FILTER, truncateAction) == 32, "PRE_FILTER layout");
static_assert(sizeof(PRE_FILTER) == 40, "PRE_FILTER size");

// How many tags, and how much of each, the library buffers for retrieval.
struct TAG_STORAGE_SETTINGS {
  uint32_t maxTagCount;
  uint32_t maxMemoryBankByteCount;
  uint32_t maxTagIDByteCount;
  uint16_t tagFields;
  RFID_BOOL enableAccessReports;
  RFID_BOOL discardTagsOnInventoryStop;
};
static_assert(offsetof(TAG_STORAGE_SETTINGS, maxTagCount) == 0, "TAG_STORAGE_SETTINGS layout");
static_assert(offsetof(TAG_STORAGE_SETTINGS, maxMemoryBankByteCount) == 4,
              "TAG_STORAGE_SETTINGS layout");
static_assert(offsetof(TAG_STORAGE_SETTINGS, maxTagIDByteCount) == 8, "TAG_STORAGE_SETTINGS layout");
static_assert(offsetof(TAG_STORAGE_SETTINGS, tagFields) == 12, "TAG_STORAGE_SETTINGS layout");
static_assert(offsetof(TAG_STORAGE_SETTINGS, enableAccessReports) == 14,
              "TAG_STORAGE_SETTINGS layout");
static_assert(offsetof(TAG_STORAGE_SETTINGS, discardTagsOnInventoryStop) == 15,
              "TAG_STORAGE_SETTINGS layout");
static_assert(sizeof(TAG_STORAGE_SETTINGS) == 16, "TAG_STORAGE_SETTINGS size");

// How an antenna singulates: session, expected population, transit time and
// the state-aware action (perform, inventoryState, slFlag).
struct SINGULATION_CONTROL {
  uint32_t session;  // SESSION
  uint16_t tagPopulation;
  uint16_t tagTransitTimeMilliseconds;
  RFID_BOOL perform;
  uint8_t pad9[3];
  uint32_t inventoryState;  // INVENTORY_STATE
  uint32_t slFlag;          // SL_FLAG
};
static_assert(offsetof(SINGULATION_CONTROL, session) == 0, "SINGULATION_CONTROL layout");
static_assert(offsetof(SINGULATION_CONTROL, tagPopulation) == 4, "SINGULATION_CONTROL layout");
static_assert(offsetof(SINGULATION_CONTROL, tagTransitTimeMilliseconds) == 6,
              "SINGULATION_CONTROL layout");
static_assert(offsetof(SINGULATION_CONTROL, perform) == 8, "SINGULATION_CONTROL layout");
static_assert(offsetof(SINGULATION_CONTROL, inventoryState) == 12, "SINGULATION_CONTROL layout");
static_assert(offsetof(SINGULATION_CONTROL, slFlag) == 16, "SINGULATION_CONTROL layout");
static_assert(sizeof(SINGULATION_CONTROL) == 20, "SINGULATION_CONTROL size");

// ===========================================================================
// Tag access
// ===========================================================================
// Every parameter record ends with 32 reserved bytes (four pointer-sized
// words) that we never fill; the sizes below include them.

// Gen2 read of byteCount bytes from byteOffset of a memory bank.
struct READ_ACCESS_PARAMS {
  uint32_t memoryBank;  // MEMORY_BANK
  uint16_t byteOffset;
  uint16_t byteCount;
  uint32_t accessPassword;
  uint8_t pad12[4];
  alignas(8) uint8_t reserved16[32];
};
static_assert(offsetof(READ_ACCESS_PARAMS, memoryBank) == 0, "READ_ACCESS_PARAMS layout");
static_assert(offsetof(READ_ACCESS_PARAMS, byteOffset) == 4, "READ_ACCESS_PARAMS layout");
static_assert(offsetof(READ_ACCESS_PARAMS, byteCount) == 6, "READ_ACCESS_PARAMS layout");
static_assert(offsetof(READ_ACCESS_PARAMS, accessPassword) == 8, "READ_ACCESS_PARAMS layout");
static_assert(offsetof(READ_ACCESS_PARAMS, reserved16) == 16, "READ_ACCESS_PARAMS layout");
static_assert(sizeof(READ_ACCESS_PARAMS) == 48, "READ_ACCESS_PARAMS size");

// Gen2 block erase; laid out as READ_ACCESS_PARAMS.
struct BLOCK_ERASE_ACCESS_PARAMS {
  uint32_t memoryBank;  // MEMORY_BANK
  uint16_t byteOffset;
  uint16_t byteCount;
  uint32_t accessPassword;
  uint8_t pad12[4];
  alignas(8) uint8_t reserved16[32];
};
static_assert(offsetof(BLOCK_ERASE_ACCESS_PARAMS, memoryBank) == 0,
              "BLOCK_ERASE_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_ERASE_ACCESS_PARAMS, byteOffset) == 4,
              "BLOCK_ERASE_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_ERASE_ACCESS_PARAMS, byteCount) == 6,
              "BLOCK_ERASE_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_ERASE_ACCESS_PARAMS, accessPassword) == 8,
              "BLOCK_ERASE_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_ERASE_ACCESS_PARAMS, reserved16) == 16,
              "BLOCK_ERASE_ACCESS_PARAMS layout");
static_assert(sizeof(BLOCK_ERASE_ACCESS_PARAMS) == 48, "BLOCK_ERASE_ACCESS_PARAMS size");

// Gen2 write or block write of writeDataLength bytes at byteOffset.
struct WRITE_ACCESS_PARAMS {
  uint32_t memoryBank;  // MEMORY_BANK
  uint16_t byteOffset;
  uint8_t pad6[2];
  uint8_t* writeData;
  uint16_t writeDataLength;
  uint8_t pad18[2];
  uint32_t accessPassword;
  alignas(8) uint8_t reserved24[32];
};
static_assert(offsetof(WRITE_ACCESS_PARAMS, memoryBank) == 0, "WRITE_ACCESS_PARAMS layout");
static_assert(offsetof(WRITE_ACCESS_PARAMS, byteOffset) == 4, "WRITE_ACCESS_PARAMS layout");
static_assert(offsetof(WRITE_ACCESS_PARAMS, writeData) == 8, "WRITE_ACCESS_PARAMS layout");
static_assert(offsetof(WRITE_ACCESS_PARAMS, writeDataLength) == 16, "WRITE_ACCESS_PARAMS layout");
static_assert(offsetof(WRITE_ACCESS_PARAMS, accessPassword) == 20, "WRITE_ACCESS_PARAMS layout");
static_assert(offsetof(WRITE_ACCESS_PARAMS, reserved24) == 24, "WRITE_ACCESS_PARAMS layout");
static_assert(sizeof(WRITE_ACCESS_PARAMS) == 56, "WRITE_ACCESS_PARAMS size");

// Number of lock privileges: one per Gen2 lockable field.
constexpr size_t kLockPrivilegeCount = 5;

// Gen2 lock: one privilege per lockable field.
struct LOCK_ACCESS_PARAMS {
  uint32_t enumPrivilege[kLockPrivilegeCount];
  uint32_t accessPassword;
  alignas(8) uint8_t reserved24[32];
};
static_assert(offsetof(LOCK_ACCESS_PARAMS, enumPrivilege) == 0, "LOCK_ACCESS_PARAMS layout");
static_assert(offsetof(LOCK_ACCESS_PARAMS, enumPrivilege[4]) == 16, "LOCK_ACCESS_PARAMS layout");
static_assert(offsetof(LOCK_ACCESS_PARAMS, accessPassword) == 20, "LOCK_ACCESS_PARAMS layout");
static_assert(offsetof(LOCK_ACCESS_PARAMS, reserved24) == 24, "LOCK_ACCESS_PARAMS layout");
static_assert(sizeof(LOCK_ACCESS_PARAMS) == 56, "LOCK_ACCESS_PARAMS size");

// Gen2 kill.
struct KILL_ACCESS_PARAMS {
  uint32_t killPassword;
  uint8_t pad4[4];
  alignas(8) uint8_t reserved8[32];
};
static_assert(offsetof(KILL_ACCESS_PARAMS, killPassword) == 0, "KILL_ACCESS_PARAMS layout");
static_assert(offsetof(KILL_ACCESS_PARAMS, reserved8) == 8, "KILL_ACCESS_PARAMS layout");
static_assert(sizeof(KILL_ACCESS_PARAMS) == 40, "KILL_ACCESS_PARAMS size");

// Gen2 block permalock (or its read-back when readLock is 0) under a mask.
struct BLOCK_PERMALOCK_ACCESS_PARAMS {
  uint32_t memoryBank;  // MEMORY_BANK
  RFID_BOOL readLock;
  uint8_t pad5[1];
  uint16_t byteOffset;
  uint16_t byteCount;
  uint8_t pad10[2];
  uint32_t accessPassword;
  uint8_t* mask;
  uint16_t maskLength;
  uint8_t pad26[6];
  alignas(8) uint8_t reserved32[32];
};
static_assert(offsetof(BLOCK_PERMALOCK_ACCESS_PARAMS, memoryBank) == 0,
              "BLOCK_PERMALOCK_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_PERMALOCK_ACCESS_PARAMS, readLock) == 4,
              "BLOCK_PERMALOCK_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_PERMALOCK_ACCESS_PARAMS, byteOffset) == 6,
              "BLOCK_PERMALOCK_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_PERMALOCK_ACCESS_PARAMS, byteCount) == 8,
              "BLOCK_PERMALOCK_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_PERMALOCK_ACCESS_PARAMS, accessPassword) == 12,
              "BLOCK_PERMALOCK_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_PERMALOCK_ACCESS_PARAMS, mask) == 16,
              "BLOCK_PERMALOCK_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_PERMALOCK_ACCESS_PARAMS, maskLength) == 24,
              "BLOCK_PERMALOCK_ACCESS_PARAMS layout");
static_assert(offsetof(BLOCK_PERMALOCK_ACCESS_PARAMS, reserved32) == 32,
              "BLOCK_PERMALOCK_ACCESS_PARAMS layout");
static_assert(sizeof(BLOCK_PERMALOCK_ACCESS_PARAMS) == 64, "BLOCK_PERMALOCK_ACCESS_PARAMS size");

// Gen2 recommission.
struct RECOMMISSION_ACCESS_PARAMS {
  uint32_t killPassword;
  uint32_t opCode;  // RECOMMISSION_OPERATION_CODE
  alignas(8) uint8_t reserved8[32];
};
static_assert(offsetof(RECOMMISSION_ACCESS_PARAMS, killPassword) == 0,
              "RECOMMISSION_ACCESS_PARAMS layout");
static_assert(offsetof(RECOMMISSION_ACCESS_PARAMS, opCode) == 4,
              "RECOMMISSION_ACCESS_PARAMS layout");
static_assert(offsetof(RECOMMISSION_ACCESS_PARAMS, reserved8) == 8,
              "RECOMMISSION_ACCESS_PARAMS layout");
static_assert(sizeof(RECOMMISSION_ACCESS_PARAMS) == 40, "RECOMMISSION_ACCESS_PARAMS size");

// Write of one whole tag field: access password, kill password or tag ID.
struct WRITE_FIELD_ACCESS_PARAMS {
  uint8_t* writeData;
  uint16_t writeDataLength;
  uint8_t pad10[2];
  uint32_t accessPassword;
  alignas(8) uint8_t reserved16[32];
};
static_assert(offsetof(WRITE_FIELD_ACCESS_PARAMS, writeData) == 0,
              "WRITE_FIELD_ACCESS_PARAMS layout");
static_assert(offsetof(WRITE_FIELD_ACCESS_PARAMS, writeDataLength) == 8,
              "WRITE_FIELD_ACCESS_PARAMS layout");
static_assert(offsetof(WRITE_FIELD_ACCESS_PARAMS, accessPassword) == 12,
              "WRITE_FIELD_ACCESS_PARAMS layout");
static_assert(offsetof(WRITE_FIELD_ACCESS_PARAMS, reserved16) == 16,
              "WRITE_FIELD_ACCESS_PARAMS layout");
static_assert(sizeof(WRITE_FIELD_ACCESS_PARAMS) == 48, "WRITE_FIELD_ACCESS_PARAMS size");

// NXP read protect.
struct NXP_READ_PROTECT_PARAMS {
  uint32_t accessPassword;
  uint8_t pad4[4];
  alignas(8) uint8_t reserved8[32];
};
static_assert(offsetof(NXP_READ_PROTECT_PARAMS, accessPassword) == 0,
              "NXP_READ_PROTECT_PARAMS layout");
static_assert(offsetof(NXP_READ_PROTECT_PARAMS, reserved8) == 8, "NXP_READ_PROTECT_PARAMS layout");
static_assert(sizeof(NXP_READ_PROTECT_PARAMS) == 40, "NXP_READ_PROTECT_PARAMS size");

// NXP reset read protect.
struct NXP_RESET_READ_PROTECT_PARAMS {
  uint32_t accessPassword;
  uint8_t pad4[4];
  alignas(8) uint8_t reserved8[32];
};
static_assert(offsetof(NXP_RESET_READ_PROTECT_PARAMS, accessPassword) == 0,
              "NXP_RESET_READ_PROTECT_PARAMS layout");
static_assert(offsetof(NXP_RESET_READ_PROTECT_PARAMS, reserved8) == 8,
              "NXP_RESET_READ_PROTECT_PARAMS layout");
static_assert(sizeof(NXP_RESET_READ_PROTECT_PARAMS) == 40, "NXP_RESET_READ_PROTECT_PARAMS size");

// NXP EAS bit on or off.
struct NXP_SET_EAS_PARAMS {
  uint32_t accessPassword;
  RFID_BOOL EASState;
  uint8_t pad5[3];
  alignas(8) uint8_t reserved8[32];
};
static_assert(offsetof(NXP_SET_EAS_PARAMS, accessPassword) == 0, "NXP_SET_EAS_PARAMS layout");
static_assert(offsetof(NXP_SET_EAS_PARAMS, EASState) == 4, "NXP_SET_EAS_PARAMS layout");
static_assert(offsetof(NXP_SET_EAS_PARAMS, reserved8) == 8, "NXP_SET_EAS_PARAMS layout");
static_assert(sizeof(NXP_SET_EAS_PARAMS) == 40, "NXP_SET_EAS_PARAMS size");

// NXP change of the configuration word.
struct NXP_CHANGE_CONFIG_PARAMS {
  uint32_t accessPassword;
  uint16_t ChangeConfigWord;
  uint8_t pad6[2];
  alignas(8) uint8_t reserved8[32];
};
static_assert(offsetof(NXP_CHANGE_CONFIG_PARAMS, accessPassword) == 0,
              "NXP_CHANGE_CONFIG_PARAMS layout");
static_assert(offsetof(NXP_CHANGE_CONFIG_PARAMS, ChangeConfigWord) == 4,
              "NXP_CHANGE_CONFIG_PARAMS layout");
static_assert(offsetof(NXP_CHANGE_CONFIG_PARAMS, reserved8) == 8, "NXP_CHANGE_CONFIG_PARAMS layout");
static_assert(sizeof(NXP_CHANGE_CONFIG_PARAMS) == 40, "NXP_CHANGE_CONFIG_PARAMS size");

// Impinj QT read of the control word.
struct IMPINJ_QT_READ_PARAMS {
  uint32_t accessPassword;
  uint8_t pad4[4];
  alignas(8) uint8_t reserved8[32];
};
static_assert(offsetof(IMPINJ_QT_READ_PARAMS, accessPassword) == 0, "IMPINJ_QT_READ_PARAMS layout");
static_assert(offsetof(IMPINJ_QT_READ_PARAMS, reserved8) == 8, "IMPINJ_QT_READ_PARAMS layout");
static_assert(sizeof(IMPINJ_QT_READ_PARAMS) == 40, "IMPINJ_QT_READ_PARAMS size");

// Impinj QT write: the control word (first member of an embedded QT data
// record, whose other bytes we leave zero) and whether it persists.
struct IMPINJ_QT_WRITE_PARAMS {
  uint32_t accessPassword;
  RFID_BOOL qtPersist;
  uint8_t pad5[3];
  uint16_t qtControlData;
  uint8_t reserved10[38];
  alignas(8) uint8_t reserved48[32];
};
static_assert(offsetof(IMPINJ_QT_WRITE_PARAMS, accessPassword) == 0,
              "IMPINJ_QT_WRITE_PARAMS layout");
static_assert(offsetof(IMPINJ_QT_WRITE_PARAMS, qtPersist) == 4, "IMPINJ_QT_WRITE_PARAMS layout");
static_assert(offsetof(IMPINJ_QT_WRITE_PARAMS, qtControlData) == 8,
              "IMPINJ_QT_WRITE_PARAMS layout");
static_assert(offsetof(IMPINJ_QT_WRITE_PARAMS, reserved10) == 10, "IMPINJ_QT_WRITE_PARAMS layout");
static_assert(offsetof(IMPINJ_QT_WRITE_PARAMS, reserved48) == 48, "IMPINJ_QT_WRITE_PARAMS layout");
static_assert(sizeof(IMPINJ_QT_WRITE_PARAMS) == 80, "IMPINJ_QT_WRITE_PARAMS size");

// Gen2v2 authenticate: a message of `length` bits for crypto suite CSI.
struct AUTHENTICATE_PARAMS {
  RFID_BOOL sendRsp;
  RFID_BOOL incRespLen;
  uint8_t CSI;
  uint8_t pad3[1];
  uint16_t length;  // in bits
  uint8_t pad6[2];
  uint8_t* pMessage;
  uint32_t accessPassword;
  uint8_t pad20[4];
  alignas(8) uint8_t reserved24[32];
};
static_assert(offsetof(AUTHENTICATE_PARAMS, sendRsp) == 0, "AUTHENTICATE_PARAMS layout");
static_assert(offsetof(AUTHENTICATE_PARAMS, incRespLen) == 1, "AUTHENTICATE_PARAMS layout");
static_assert(offsetof(AUTHENTICATE_PARAMS, CSI) == 2, "AUTHENTICATE_PARAMS layout");
static_assert(offsetof(AUTHENTICATE_PARAMS, length) == 4, "AUTHENTICATE_PARAMS layout");
static_assert(offsetof(AUTHENTICATE_PARAMS, pMessage) == 8, "AUTHENTICATE_PARAMS layout");
static_assert(offsetof(AUTHENTICATE_PARAMS, accessPassword) == 16, "AUTHENTICATE_PARAMS layout");
static_assert(offsetof(AUTHENTICATE_PARAMS, reserved24) == 24, "AUTHENTICATE_PARAMS layout");
static_assert(sizeof(AUTHENTICATE_PARAMS) == 56, "AUTHENTICATE_PARAMS size");

// Gen2v2 untraceable: what the tag hides and its operating range.
struct UNTRACEABLE_PARAMS {
  RFID_BOOL assertU;
  RFID_BOOL hideEPC;
  uint8_t EPCLength;
  uint8_t pad3[1];
  uint32_t hideTID;  // TID_HIDE_STATE
  RFID_BOOL hideUser;
  uint8_t pad9[3];
  uint32_t operatingRange;  // TAG_OPERATING_RANGE
  uint32_t accessPassword;
  uint8_t pad20[4];
  alignas(8) uint8_t reserved24[32];
};
static_assert(offsetof(UNTRACEABLE_PARAMS, assertU) == 0, "UNTRACEABLE_PARAMS layout");
static_assert(offsetof(UNTRACEABLE_PARAMS, hideEPC) == 1, "UNTRACEABLE_PARAMS layout");
static_assert(offsetof(UNTRACEABLE_PARAMS, EPCLength) == 2, "UNTRACEABLE_PARAMS layout");
static_assert(offsetof(UNTRACEABLE_PARAMS, hideTID) == 4, "UNTRACEABLE_PARAMS layout");
static_assert(offsetof(UNTRACEABLE_PARAMS, hideUser) == 8, "UNTRACEABLE_PARAMS layout");
static_assert(offsetof(UNTRACEABLE_PARAMS, operatingRange) == 12, "UNTRACEABLE_PARAMS layout");
static_assert(offsetof(UNTRACEABLE_PARAMS, accessPassword) == 16, "UNTRACEABLE_PARAMS layout");
static_assert(offsetof(UNTRACEABLE_PARAMS, reserved24) == 24, "UNTRACEABLE_PARAMS layout");
static_assert(sizeof(UNTRACEABLE_PARAMS) == 56, "UNTRACEABLE_PARAMS size");

// Gen2v2 read buffer: bitCount bits from word wordPtr of the response buffer.
struct READ_BUFFER_PARAMS {
  uint16_t wordPtr;
  uint16_t bitCount;
  uint32_t accessPassword;
  alignas(8) uint8_t reserved8[32];
};
static_assert(offsetof(READ_BUFFER_PARAMS, wordPtr) == 0, "READ_BUFFER_PARAMS layout");
static_assert(offsetof(READ_BUFFER_PARAMS, bitCount) == 2, "READ_BUFFER_PARAMS layout");
static_assert(offsetof(READ_BUFFER_PARAMS, accessPassword) == 4, "READ_BUFFER_PARAMS layout");
static_assert(offsetof(READ_BUFFER_PARAMS, reserved8) == 8, "READ_BUFFER_PARAMS layout");
static_assert(sizeof(READ_BUFFER_PARAMS) == 40, "READ_BUFFER_PARAMS size");

// Number of 32-bit words of the crypto challenge.
constexpr size_t kIChallengeWords = 3;

// Gen2v2 crypto: key, challenge and suite parameters.
struct CRYPTO_PARAMS {
  uint8_t keyID;
  uint8_t pad1[3];
  uint32_t IChallenge[kIChallengeWords];
  RFID_BOOL customData;
  uint8_t profile;
  uint8_t offset;
  uint8_t blockCount;
  uint8_t protMode;
  uint8_t pad21[3];
  uint32_t accessPassword;
  uint8_t pad28[4];
  alignas(8) uint8_t reserved32[32];
};
static_assert(offsetof(CRYPTO_PARAMS, keyID) == 0, "CRYPTO_PARAMS layout");
static_assert(offsetof(CRYPTO_PARAMS, IChallenge) == 4, "CRYPTO_PARAMS layout");
static_assert(offsetof(CRYPTO_PARAMS, IChallenge[2]) == 12, "CRYPTO_PARAMS layout");
static_assert(offsetof(CRYPTO_PARAMS, customData) == 16, "CRYPTO_PARAMS layout");
static_assert(offsetof(CRYPTO_PARAMS, profile) == 17, "CRYPTO_PARAMS layout");
static_assert(offsetof(CRYPTO_PARAMS, offset) == 18, "CRYPTO_PARAMS layout");
static_assert(offsetof(CRYPTO_PARAMS, blockCount) == 19, "CRYPTO_PARAMS layout");
static_assert(offsetof(CRYPTO_PARAMS, protMode) == 20, "CRYPTO_PARAMS layout");
static_assert(offsetof(CRYPTO_PARAMS, accessPassword) == 24, "CRYPTO_PARAMS layout");
static_assert(offsetof(CRYPTO_PARAMS, reserved32) == 32, "CRYPTO_PARAMS layout");
static_assert(sizeof(CRYPTO_PARAMS) == 64, "CRYPTO_PARAMS size");

// One operation of an access sequence; params points at the parameter
// record that opCode calls for, or is NULL.
struct ACCESS_OPERATION {
  uint32_t opCode;  // ACCESS_OPERATION_CODE
  uint8_t pad4[4];
  void* params;
  alignas(8) uint8_t reserved16[32];
};
static_assert(offsetof(ACCESS_OPERATION, opCode) == 0, "ACCESS_OPERATION layout");
static_assert(offsetof(ACCESS_OPERATION, params) == 8, "ACCESS_OPERATION layout");
static_assert(offsetof(ACCESS_OPERATION, reserved16) == 16, "ACCESS_OPERATION layout");
static_assert(sizeof(ACCESS_OPERATION) == 48, "ACCESS_OPERATION size");

// ===========================================================================
// Reader configuration and management
// ===========================================================================

// Identity of a reader: the kind of identifier and its text.
struct READER_ID {
  int32_t enumType;
  wchar_t value[kMaxWideChars];
};
static_assert(offsetof(READER_ID, enumType) == 0, "READER_ID layout");
static_assert(offsetof(READER_ID, value) == 4, "READER_ID layout");
static_assert(sizeof(READER_ID) == 1044, "READER_ID size");

// Receive sensitivities the reader offers (library-owned list).
struct RECEIVE_SENSITIVITY_TABLE {
  uint16_t numValues;
  uint8_t pad2[6];
  int32_t* receiveSensitivityValueList;
};
static_assert(offsetof(RECEIVE_SENSITIVITY_TABLE, numValues) == 0,
              "RECEIVE_SENSITIVITY_TABLE layout");
static_assert(offsetof(RECEIVE_SENSITIVITY_TABLE, receiveSensitivityValueList) == 8,
              "RECEIVE_SENSITIVITY_TABLE layout");
static_assert(sizeof(RECEIVE_SENSITIVITY_TABLE) == 16, "RECEIVE_SENSITIVITY_TABLE size");

// One RF mode of a UHF mode table.
struct RF_MODE_TABLE_ENTRY {
  uint32_t modeIdentifer;
  int32_t enumDivideRatio;
  uint32_t bdrValue;
  int32_t enumModulation;
  int32_t enumForwardLinkModulationType;
  uint32_t pieValue;
  uint32_t minTariValue;
  uint32_t maxTariValue;
  uint32_t stepTariValue;
  int32_t enumSpectralMaskIndicator;
  RFID_BOOL epcHAGTCConformance;
  uint8_t reserved41[39];
};
static_assert(offsetof(RF_MODE_TABLE_ENTRY, modeIdentifer) == 0, "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, enumDivideRatio) == 4, "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, bdrValue) == 8, "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, enumModulation) == 12, "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, enumForwardLinkModulationType) == 16,
              "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, pieValue) == 20, "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, minTariValue) == 24, "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, maxTariValue) == 28, "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, stepTariValue) == 32, "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, enumSpectralMaskIndicator) == 36,
              "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, epcHAGTCConformance) == 40,
              "RF_MODE_TABLE_ENTRY layout");
static_assert(offsetof(RF_MODE_TABLE_ENTRY, reserved41) == 41, "RF_MODE_TABLE_ENTRY layout");
static_assert(sizeof(RF_MODE_TABLE_ENTRY) == 80, "RF_MODE_TABLE_ENTRY size");

// The RF modes of one air protocol.
struct UHF_RF_MODE_TABLE {
  int16_t protocolID;
  uint16_t numEntries;
  uint8_t pad4[4];
  RF_MODE_TABLE_ENTRY* tablesEntries;
};
static_assert(offsetof(UHF_RF_MODE_TABLE, protocolID) == 0, "UHF_RF_MODE_TABLE layout");
static_assert(offsetof(UHF_RF_MODE_TABLE, numEntries) == 2, "UHF_RF_MODE_TABLE layout");
static_assert(offsetof(UHF_RF_MODE_TABLE, tablesEntries) == 8, "UHF_RF_MODE_TABLE layout");
static_assert(sizeof(UHF_RF_MODE_TABLE) == 16, "UHF_RF_MODE_TABLE size");

// All RF mode tables of the reader.
struct RF_MODES {
  uint16_t numTables;
  uint8_t pad2[6];
  UHF_RF_MODE_TABLE* uhfTables;
};
static_assert(offsetof(RF_MODES, numTables) == 0, "RF_MODES layout");
static_assert(offsetof(RF_MODES, uhfTables) == 8, "RF_MODES layout");
static_assert(sizeof(RF_MODES) == 16, "RF_MODES size");

// Transmit power levels the reader offers.
struct TRANSMIT_POWER_LEVEL_TABLE {
  uint16_t numValues;
  uint8_t pad2[6];
  int16_t* powerValueList;
};
static_assert(offsetof(TRANSMIT_POWER_LEVEL_TABLE, numValues) == 0,
              "TRANSMIT_POWER_LEVEL_TABLE layout");
static_assert(offsetof(TRANSMIT_POWER_LEVEL_TABLE, powerValueList) == 8,
              "TRANSMIT_POWER_LEVEL_TABLE layout");
static_assert(sizeof(TRANSMIT_POWER_LEVEL_TABLE) == 16, "TRANSMIT_POWER_LEVEL_TABLE size");

// One frequency-hopping table: its identifier and frequencies.
struct FREQ_HOP_TABLE {
  int16_t hopTableID;
  uint16_t numFreq;
  uint8_t pad4[4];
  uint32_t* freqList;
};
static_assert(offsetof(FREQ_HOP_TABLE, hopTableID) == 0, "FREQ_HOP_TABLE layout");
static_assert(offsetof(FREQ_HOP_TABLE, numFreq) == 2, "FREQ_HOP_TABLE layout");
static_assert(offsetof(FREQ_HOP_TABLE, freqList) == 8, "FREQ_HOP_TABLE layout");
static_assert(sizeof(FREQ_HOP_TABLE) == 16, "FREQ_HOP_TABLE size");

// The frequency-hopping tables of the reader.
struct FREQ_HOP_INFO {
  uint16_t numTables;
  uint8_t pad2[6];
  FREQ_HOP_TABLE* freqTables;
};
static_assert(offsetof(FREQ_HOP_INFO, numTables) == 0, "FREQ_HOP_INFO layout");
static_assert(offsetof(FREQ_HOP_INFO, freqTables) == 8, "FREQ_HOP_INFO layout");
static_assert(sizeof(FREQ_HOP_INFO) == 16, "FREQ_HOP_INFO size");

// Fixed frequencies of a non-hopping reader.
struct FIXED_FREQ_INFO {
  uint16_t numFreq;
  uint8_t pad2[6];
  int32_t* freqList;
};
static_assert(offsetof(FIXED_FREQ_INFO, numFreq) == 0, "FIXED_FREQ_INFO layout");
static_assert(offsetof(FIXED_FREQ_INFO, freqList) == 8, "FIXED_FREQ_INFO layout");
static_assert(sizeof(FIXED_FREQ_INFO) == 16, "FIXED_FREQ_INFO size");

// Duty cycles the reader offers.
struct DUTY_CYCLE_TABLE {
  uint16_t numValues;
  uint8_t pad2[6];
  int16_t* dutyCycleValueList;
};
static_assert(offsetof(DUTY_CYCLE_TABLE, numValues) == 0, "DUTY_CYCLE_TABLE layout");
static_assert(offsetof(DUTY_CYCLE_TABLE, dutyCycleValueList) == 8, "DUTY_CYCLE_TABLE layout");
static_assert(sizeof(DUTY_CYCLE_TABLE) == 16, "DUTY_CYCLE_TABLE size");

// Room kept for READER_CAPS; its true size is the library's business.
constexpr size_t kReaderCapsReserved = 3768;

// What a reader can do: identity, versions, port counts, RF tables and
// feature flags. Every table it points at belongs to the library.
struct READER_CAPS {
  uint8_t reserved0[8];
  READER_ID readerID;
  wchar_t firmWareVersion[kMaxWideChars];
  wchar_t modelName[kMaxWideChars];
  int16_t numAntennas;
  int16_t numGPIs;
  int16_t numGPOs;
  RFID_BOOL utcClockSupported;
  uint8_t reserved3139[5];
  RECEIVE_SENSITIVITY_TABLE receiveSensitivtyTable;
  uint8_t reserved3160[256];
  RFID_BOOL blockEraseSupported;
  RFID_BOOL blockWriteSupported;
  RFID_BOOL stateAwareSingulationSupported;
  RFID_BOOL recommissionSupported;
  RFID_BOOL blockPermalockSupported;
  RFID_BOOL writeUMISupported;
  RFID_BOOL radioPowerControlSupported;
  uint8_t reserved3423[1];
  int16_t maxNumOperationsInAccessSequence;
  int16_t maxNumPreFilters;
  uint8_t reserved3428[4];
  RF_MODES rfModes;
  int16_t countryCode;
  uint8_t pad3450[2];
  int32_t enumCommunicationStandard;
  TRANSMIT_POWER_LEVEL_TABLE transmitPowerLevelTable;
  RFID_BOOL hoppingEnabled;
  uint8_t reserved3473[7];
  FREQ_HOP_INFO freqHopInfo;
  FIXED_FREQ_INFO fixedFreqInfo;
  RFID_BOOL tagEventReportingSupported;
  RFID_BOOL rssiFilterSupported;
  RFID_BOOL NXPCommandsSupported;
  RFID_BOOL tagLocationingSupported;
  uint8_t reserved3516[4];
  DUTY_CYCLE_TABLE* dutyCycleTable;  // may be NULL
  uint8_t reserved3528[3];
  RFID_BOOL tagListFilterSupported;
  uint8_t reserved3532[12];
  RFID_BOOL periodicTagReportsSupported;
  uint8_t reserved3545[1];
  RFID_BOOL zoneSuppported;
  RFID_BOOL antennaRFConfigSupported;
  RFID_BOOL tagMovingStationarySupported;
  RFID_BOOL quorinTriggerSupported;
  RFID_BOOL G2V2CommandSupported;
  RFID_BOOL GPSReportingSupported;
  uint8_t reserved3552[216];
};
static_assert(offsetof(READER_CAPS, reserved0) == 0, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, readerID) == 8, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, readerID.enumType) == 8, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, readerID.value) == 12, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, firmWareVersion) == 1052, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, modelName) == 2092, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, numAntennas) == 3132, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, numGPIs) == 3134, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, numGPOs) == 3136, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, utcClockSupported) == 3138, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, reserved3139) == 3139, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, receiveSensitivtyTable.numValues) == 3144,
              "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, receiveSensitivtyTable.receiveSensitivityValueList) == 3152,
              "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, reserved3160) == 3160, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, blockEraseSupported) == 3416, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, blockWriteSupported) == 3417, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, stateAwareSingulationSupported) == 3418, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, recommissionSupported) == 3419, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, blockPermalockSupported) == 3420, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, writeUMISupported) == 3421, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, radioPowerControlSupported) == 3422, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, reserved3423) == 3423, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, maxNumOperationsInAccessSequence) == 3424,
              "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, maxNumPreFilters) == 3426, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, reserved3428) == 3428, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, rfModes.numTables) == 3432, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, rfModes.uhfTables) == 3440, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, countryCode) == 3448, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, enumCommunicationStandard) == 3452, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, transmitPowerLevelTable.numValues) == 3456,
              "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, transmitPowerLevelTable.powerValueList) == 3464,
              "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, hoppingEnabled) == 3472, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, reserved3473) == 3473, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, freqHopInfo.numTables) == 3480, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, freqHopInfo.freqTables) == 3488, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, fixedFreqInfo.numFreq) == 3496, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, fixedFreqInfo.freqList) == 3504, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, tagEventReportingSupported) == 3512, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, rssiFilterSupported) == 3513, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, NXPCommandsSupported) == 3514, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, tagLocationingSupported) == 3515, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, reserved3516) == 3516, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, dutyCycleTable) == 3520, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, reserved3528) == 3528, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, tagListFilterSupported) == 3531, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, reserved3532) == 3532, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, periodicTagReportsSupported) == 3544, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, reserved3545) == 3545, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, zoneSuppported) == 3546, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, antennaRFConfigSupported) == 3547, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, tagMovingStationarySupported) == 3548, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, quorinTriggerSupported) == 3549, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, G2V2CommandSupported) == 3550, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, GPSReportingSupported) == 3551, "READER_CAPS layout");
static_assert(offsetof(READER_CAPS, reserved3552) == 3552, "READER_CAPS layout");
static_assert(sizeof(READER_CAPS) == kReaderCapsReserved, "READER_CAPS size");

// Per-antenna stop condition of the antenna RF configuration.
struct ANTENNA_STOP_TRIGGER {
  int32_t stopTriggerType;  // ANTENNA_STOP_TRIGGER_TYPE
  uint16_t stopTriggerValue;
  uint8_t pad6[2];
};
static_assert(offsetof(ANTENNA_STOP_TRIGGER, stopTriggerType) == 0, "ANTENNA_STOP_TRIGGER layout");
static_assert(offsetof(ANTENNA_STOP_TRIGGER, stopTriggerValue) == 4,
              "ANTENNA_STOP_TRIGGER layout");
static_assert(sizeof(ANTENNA_STOP_TRIGGER) == 8, "ANTENNA_STOP_TRIGGER size");

// Size of the radio-configuration block handed to RFID_SetAntennaRfConfig;
// ANTENNA_RF_CONFIG is given the whole of it.
constexpr size_t kAntennaRfConfigBlockSize = 320;

// Full RF configuration of one antenna. We use the first 30 bytes; the
// rest of the block is the library's.
struct ANTENNA_RF_CONFIG {
  uint16_t transmitPowerIndex;
  uint16_t receiveSensitivityIndex;
  uint16_t transmitFrequencyIndex;
  uint8_t pad6[2];
  uint32_t rfModeTableIndex;
  uint32_t tari;
  uint16_t transmitPort;
  uint16_t receivePort;
  uint8_t reserved20[4];
  ANTENNA_STOP_TRIGGER antennaStopTrigger;
  uint8_t reserved32[288];
};
static_assert(offsetof(ANTENNA_RF_CONFIG, transmitPowerIndex) == 0, "ANTENNA_RF_CONFIG layout");
static_assert(offsetof(ANTENNA_RF_CONFIG, receiveSensitivityIndex) == 2, "ANTENNA_RF_CONFIG layout");
static_assert(offsetof(ANTENNA_RF_CONFIG, transmitFrequencyIndex) == 4, "ANTENNA_RF_CONFIG layout");
static_assert(offsetof(ANTENNA_RF_CONFIG, rfModeTableIndex) == 8, "ANTENNA_RF_CONFIG layout");
static_assert(offsetof(ANTENNA_RF_CONFIG, tari) == 12, "ANTENNA_RF_CONFIG layout");
static_assert(offsetof(ANTENNA_RF_CONFIG, transmitPort) == 16, "ANTENNA_RF_CONFIG layout");
static_assert(offsetof(ANTENNA_RF_CONFIG, receivePort) == 18, "ANTENNA_RF_CONFIG layout");
static_assert(offsetof(ANTENNA_RF_CONFIG, reserved20) == 20, "ANTENNA_RF_CONFIG layout");
static_assert(offsetof(ANTENNA_RF_CONFIG, antennaStopTrigger.stopTriggerType) == 24,
              "ANTENNA_RF_CONFIG layout");
static_assert(offsetof(ANTENNA_RF_CONFIG, antennaStopTrigger.stopTriggerValue) == 28,
              "ANTENNA_RF_CONFIG layout");
static_assert(offsetof(ANTENNA_RF_CONFIG, reserved32) == 32, "ANTENNA_RF_CONFIG layout");
static_assert(sizeof(ANTENNA_RF_CONFIG) == kAntennaRfConfigBlockSize, "ANTENNA_RF_CONFIG size");

// Cable loss of one antenna's feed line.
struct CABLE_LOSS_COMPENSATION {
  uint16_t antennaID;
  uint8_t pad2[2];
  float cableLengthInFt;
  float cableLossPer100Ft;
};
static_assert(sizeof(float) == 4, "float is 32-bit");
static_assert(offsetof(CABLE_LOSS_COMPENSATION, antennaID) == 0, "CABLE_LOSS_COMPENSATION layout");
static_assert(offsetof(CABLE_LOSS_COMPENSATION, cableLengthInFt) == 4,
              "CABLE_LOSS_COMPENSATION layout");
static_assert(offsetof(CABLE_LOSS_COMPENSATION, cableLossPer100Ft) == 8,
              "CABLE_LOSS_COMPENSATION layout");
static_assert(sizeof(CABLE_LOSS_COMPENSATION) == 12, "CABLE_LOSS_COMPENSATION size");

// How the reader behaves on USB, and whether LLRP may take it over.
struct USB_OPERATION_MODE_SETTINGS {
  int32_t mode;  // USB_OPERATION_MODE
  RFID_BOOL allowLLRPConnectionOverride;
  uint8_t pad5[3];
};
static_assert(offsetof(USB_OPERATION_MODE_SETTINGS, mode) == 0, "USB_OPERATION_MODE_SETTINGS layout");
static_assert(offsetof(USB_OPERATION_MODE_SETTINGS, allowLLRPConnectionOverride) == 4,
              "USB_OPERATION_MODE_SETTINGS layout");
static_assert(sizeof(USB_OPERATION_MODE_SETTINGS) == 8, "USB_OPERATION_MODE_SETTINGS size");

// Third argument of RFID_SetDutyCycle / RFID_GetDutyCycle; we never read
// it. The library needs at least 12 bytes; 16 are kept.
struct DUTY_CYCLE_SCRATCH {
  alignas(8) uint8_t reserved0[16];
};
static_assert(sizeof(DUTY_CYCLE_SCRATCH) == 16, "DUTY_CYCLE_SCRATCH size");

// GPI debounce setting: four 32-bit values that we pass through untouched.
struct GPI_DEBOUNCE_RECORD {
  int32_t values[4];
};
static_assert(offsetof(GPI_DEBOUNCE_RECORD, values[0]) == 0, "GPI_DEBOUNCE_RECORD layout");
static_assert(offsetof(GPI_DEBOUNCE_RECORD, values[1]) == 4, "GPI_DEBOUNCE_RECORD layout");
static_assert(offsetof(GPI_DEBOUNCE_RECORD, values[2]) == 8, "GPI_DEBOUNCE_RECORD layout");
static_assert(offsetof(GPI_DEBOUNCE_RECORD, values[3]) == 12, "GPI_DEBOUNCE_RECORD layout");
static_assert(sizeof(GPI_DEBOUNCE_RECORD) == 16, "GPI_DEBOUNCE_RECORD size");

// User LED: colour, how long, steady or blinking.
struct LED_INFO {
  int32_t ledColor;  // LED_COLOR
  int32_t duration;
  RFID_BOOL blink;
  uint8_t pad9[7];
  uint8_t reserved16[32];
};
static_assert(offsetof(LED_INFO, ledColor) == 0, "LED_INFO layout");
static_assert(offsetof(LED_INFO, duration) == 4, "LED_INFO layout");
static_assert(offsetof(LED_INFO, blink) == 8, "LED_INFO layout");
static_assert(offsetof(LED_INFO, reserved16) == 16, "LED_INFO layout");
static_assert(sizeof(LED_INFO) == 48, "LED_INFO size");

// Allocation header at the start of some library records.
struct STRUCT_INFO {
  uint32_t memoryAllocated;
  uint32_t memoryUsed;
};
static_assert(offsetof(STRUCT_INFO, memoryAllocated) == 0, "STRUCT_INFO layout");
static_assert(offsetof(STRUCT_INFO, memoryUsed) == 4, "STRUCT_INFO layout");
static_assert(sizeof(STRUCT_INFO) == 8, "STRUCT_INFO size");

// Versions, up-time, memory, processor load and power source of a reader.
struct SYSTEM_INFO {
  STRUCT_INFO structInfo;
  wchar_t radioFirmwareVersion[kMaxWideChars];
  wchar_t fPGAVersion[kMaxWideChars];
  wchar_t upTime[kMaxWideChars];
  wchar_t readerName[kMaxWideChars];
  wchar_t readerLocation[kMaxWideChars];
  int32_t ramAvailable;
  int32_t flashAvailable;
  int32_t ramUsed;
  int32_t ramTotal;
  int8_t cpuUsageForUserProcesses;
  int8_t cpuUsageForSystemProcesses;
  uint8_t reserved5226[30];
  int32_t powersourcetypeEnum;  // power-source enumeration; Java gets its low 16 bits
  uint8_t reserved5260[76];
};
static_assert(offsetof(SYSTEM_INFO, structInfo.memoryAllocated) == 0, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, structInfo.memoryUsed) == 4, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, radioFirmwareVersion) == 8, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, fPGAVersion) == 1048, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, upTime) == 2088, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, readerName) == 3128, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, readerLocation) == 4168, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, ramAvailable) == 5208, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, flashAvailable) == 5212, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, ramUsed) == 5216, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, ramTotal) == 5220, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, cpuUsageForUserProcesses) == 5224, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, cpuUsageForSystemProcesses) == 5225, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, reserved5226) == 5226, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, powersourcetypeEnum) == 5256, "SYSTEM_INFO layout");
static_assert(offsetof(SYSTEM_INFO, reserved5260) == 5260, "SYSTEM_INFO layout");
static_assert(sizeof(SYSTEM_INFO) == 5336, "SYSTEM_INFO size");

// Administrative identity of a reader.
struct READER_INFO {
  wchar_t name[kMaxWideChars];
  wchar_t description[kMaxWideChars];
  wchar_t location[kMaxWideChars];
  wchar_t contact[kMaxWideChars];
};
static_assert(offsetof(READER_INFO, name) == 0, "READER_INFO layout");
static_assert(offsetof(READER_INFO, description) == 1040, "READER_INFO layout");
static_assert(offsetof(READER_INFO, location) == 2080, "READER_INFO layout");
static_assert(offsetof(READER_INFO, contact) == 3120, "READER_INFO layout");
static_assert(sizeof(READER_INFO) == 4160, "READER_INFO size");

// Time zones the reader knows (library-owned names) and the active one.
struct TIME_ZONE_LIST {
  uint16_t numTimeZones;
  uint8_t pad2[6];
  wchar_t** timeZoneNames;
  int16_t activeTimeZoneIndex;
  uint8_t pad18[6];
};
static_assert(offsetof(TIME_ZONE_LIST, numTimeZones) == 0, "TIME_ZONE_LIST layout");
static_assert(offsetof(TIME_ZONE_LIST, timeZoneNames) == 8, "TIME_ZONE_LIST layout");
static_assert(offsetof(TIME_ZONE_LIST, activeTimeZoneIndex) == 16, "TIME_ZONE_LIST layout");
static_assert(sizeof(TIME_ZONE_LIST) == 24, "TIME_ZONE_LIST size");

// Success and failure counters of tag operations on one antenna.
struct READER_STATS {
  uint32_t identifiedSuccessCount;
  uint32_t identifiedFailureCount;
  uint32_t readSuccessCount;
  uint32_t readFailureCount;
  uint32_t writeSuccessCount;
  uint32_t writeFailureCount;
  uint32_t killSuccessCount;
  uint32_t killFailureCount;
  uint32_t lockSuccessCount;
  uint32_t lockFailureCount;
  uint32_t blockWriteSuccessCount;
  uint32_t blockWriteFailureCount;
  uint32_t blockEraseSuccessCount;
  uint32_t blockEraseFailureCount;
  uint32_t blockPermalockSuccessCount;
  uint32_t blockPermalockFailureCount;
  uint32_t nxpChangeEASSuccessCount;
  uint32_t nxpChangeEASFailureCount;
  uint32_t nxpEASAlarmSuccessCount;
  uint32_t nxpEASAlarmFailureCount;
  uint32_t nxpReadProtectSuccessCount;
  uint32_t nxpReadProtectFailureCount;
  uint32_t nxpResetReadProtectSuccessCount;
  uint32_t nxpResetReadProtectFailureCount;
  uint32_t nxpCalibrateSuccessCount;
  uint32_t nxpCalibrateFailureCount;
  uint32_t nxpChangeConfigSuccessCount;
  uint32_t nxpChangeConfigFailureCount;
  uint8_t reserved112[72];
  uint32_t impinjQTSuccessCount;
  uint32_t impinjQTFailureCount;
};
static_assert(offsetof(READER_STATS, identifiedSuccessCount) == 0, "READER_STATS layout");
static_assert(offsetof(READER_STATS, identifiedFailureCount) == 4, "READER_STATS layout");
static_assert(offsetof(READER_STATS, readSuccessCount) == 8, "READER_STATS layout");
static_assert(offsetof(READER_STATS, readFailureCount) == 12, "READER_STATS layout");
static_assert(offsetof(READER_STATS, writeSuccessCount) == 16, "READER_STATS layout");
static_assert(offsetof(READER_STATS, writeFailureCount) == 20, "READER_STATS layout");
static_assert(offsetof(READER_STATS, killSuccessCount) == 24, "READER_STATS layout");
static_assert(offsetof(READER_STATS, killFailureCount) == 28, "READER_STATS layout");
static_assert(offsetof(READER_STATS, lockSuccessCount) == 32, "READER_STATS layout");
static_assert(offsetof(READER_STATS, lockFailureCount) == 36, "READER_STATS layout");
static_assert(offsetof(READER_STATS, blockWriteSuccessCount) == 40, "READER_STATS layout");
static_assert(offsetof(READER_STATS, blockWriteFailureCount) == 44, "READER_STATS layout");
static_assert(offsetof(READER_STATS, blockEraseSuccessCount) == 48, "READER_STATS layout");
static_assert(offsetof(READER_STATS, blockEraseFailureCount) == 52, "READER_STATS layout");
static_assert(offsetof(READER_STATS, blockPermalockSuccessCount) == 56, "READER_STATS layout");
static_assert(offsetof(READER_STATS, blockPermalockFailureCount) == 60, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpChangeEASSuccessCount) == 64, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpChangeEASFailureCount) == 68, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpEASAlarmSuccessCount) == 72, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpEASAlarmFailureCount) == 76, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpReadProtectSuccessCount) == 80, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpReadProtectFailureCount) == 84, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpResetReadProtectSuccessCount) == 88, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpResetReadProtectFailureCount) == 92, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpCalibrateSuccessCount) == 96, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpCalibrateFailureCount) == 100, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpChangeConfigSuccessCount) == 104, "READER_STATS layout");
static_assert(offsetof(READER_STATS, nxpChangeConfigFailureCount) == 108, "READER_STATS layout");
static_assert(offsetof(READER_STATS, reserved112) == 112, "READER_STATS layout");
static_assert(offsetof(READER_STATS, impinjQTSuccessCount) == 184, "READER_STATS layout");
static_assert(offsetof(READER_STATS, impinjQTFailureCount) == 188, "READER_STATS layout");
static_assert(sizeof(READER_STATS) == 192, "READER_STATS size");

// Configuration profiles stored on the reader (library-owned names) and
// the active one.
struct PROFILE_LIST {
  uint16_t numProfiles;
  uint8_t pad2[6];
  wchar_t** profileNames;
  int16_t activeProfileIndex;
  uint8_t pad18[6];
};
static_assert(offsetof(PROFILE_LIST, numProfiles) == 0, "PROFILE_LIST layout");
static_assert(offsetof(PROFILE_LIST, profileNames) == 8, "PROFILE_LIST layout");
static_assert(offsetof(PROFILE_LIST, activeProfileIndex) == 16, "PROFILE_LIST layout");
static_assert(sizeof(PROFILE_LIST) == 24, "PROFILE_LIST size");

// Where a software update is fetched from, with its credentials.
struct UPDATE_INFO {
  wchar_t hostName[kMaxWideChars];
  wchar_t userName[kMaxWideChars];
  wchar_t password[kMaxWideChars];
};
static_assert(offsetof(UPDATE_INFO, hostName) == 0, "UPDATE_INFO layout");
static_assert(offsetof(UPDATE_INFO, userName) == 1040, "UPDATE_INFO layout");
static_assert(offsetof(UPDATE_INFO, password) == 2080, "UPDATE_INFO layout");
static_assert(sizeof(UPDATE_INFO) == 3120, "UPDATE_INFO size");

// Progress of a running update, with its message.
struct UPDATE_STATUS {
  int32_t percentage;
  wchar_t updateInfo[285];
};
static_assert(offsetof(UPDATE_STATUS, percentage) == 0, "UPDATE_STATUS layout");
static_assert(offsetof(UPDATE_STATUS, updateInfo) == 4, "UPDATE_STATUS layout");
static_assert(sizeof(UPDATE_STATUS) == 1144, "UPDATE_STATUS size");

// One user application installed on the reader (library-owned texts).
struct USER_APP_INFO {
  wchar_t* appName;
  RFID_BOOL runStatus;
  RFID_BOOL autoStart;
  uint8_t pad10[6];
  wchar_t* Metadata;
};
static_assert(offsetof(USER_APP_INFO, appName) == 0, "USER_APP_INFO layout");
static_assert(offsetof(USER_APP_INFO, runStatus) == 8, "USER_APP_INFO layout");
static_assert(offsetof(USER_APP_INFO, autoStart) == 9, "USER_APP_INFO layout");
static_assert(offsetof(USER_APP_INFO, Metadata) == 16, "USER_APP_INFO layout");
static_assert(sizeof(USER_APP_INFO) == 24, "USER_APP_INFO size");

// The user applications installed on the reader (library-owned array).
struct USER_APP_LIST {
  uint8_t reserved0[8];
  USER_APP_INFO* appList;
};
static_assert(offsetof(USER_APP_LIST, reserved0) == 0, "USER_APP_LIST layout");
static_assert(offsetof(USER_APP_LIST, appList) == 8, "USER_APP_LIST layout");
static_assert(sizeof(USER_APP_LIST) == 16, "USER_APP_LIST size");

// ===========================================================================
// Functions
// ===========================================================================

extern "C" {

// --- Connection and session ------------------------------------------------

// connParam1 and connParam2 are passed through from Java untouched.
RFID_STATUS RFID_ConnectW(READER_HANDLE* readerHandle, const wchar_t* hostName,
                          uint32_t connParam1, uint32_t connParam2,
                          CONNECTION_INFO* connectionInfo);
RFID_STATUS RFID_Reconnect(READER_HANDLE readerHandle);
RFID_STATUS RFID_Disconnect(READER_HANDLE readerHandle);

// readerType: ordinal of the reader-kind enumeration; reserved is always NULL.
RFID_STATUS RFID_LoginW(READER_HANDLE* readerHandle, LOGIN_INFO* loginInfo, uint32_t readerType,
                        RFID_BOOL flag, void* reserved);
RFID_STATUS RFID_Logout(READER_HANDLE readerHandle);
RFID_STATUS RFID_Restart(READER_HANDLE readerHandle);

RFID_STATUS RFID_GetLLRPConnectionConfigW(READER_HANDLE readerHandle,
                                          LLRP_CONNECTION_CONFIG* config);
RFID_STATUS RFID_SetLLRPConnectionConfigW(READER_HANDLE readerHandle,
                                          LLRP_CONNECTION_CONFIG* config);
RFID_STATUS RFID_InitiateLLRPConnectionFromReader(READER_HANDLE readerHandle,
                                                  LLRP_INITIATE_SCRATCH* scratch);
RFID_STATUS RFID_DisconnectLLRPConnectionFromReader(READER_HANDLE readerHandle);
// passThrough: the Java long, handed on unchanged.
RFID_STATUS RFID_AcceptConnection(READER_HANDLE* readerHandle, int64_t passThrough,
                                  ACCEPT_CONNECTION_INFO* acceptInfo,
                                  ACCEPT_CONNECTION_SCRATCH* scratch);

// --- Events ------------------------------------------------------------------
// The event utilities answer with int32_t results (the wait result says which
// object was signalled or that the time-out passed; the others are success
// flags of the library); this library passes them to Java unchanged.

EVENT_HANDLE rfidUtils_CreateEvent(void* reserved1, int32_t flag1, int32_t flag2,
                                   void* reserved2);
int32_t rfidUtils_SetEvent(EVENT_HANDLE eventHandle);
int32_t rfidUtils_ResetEvent(EVENT_HANDLE eventHandle);
int32_t rfidUtils_CloseHandle(EVENT_HANDLE eventHandle);
int32_t rfidUtils_WaitForSingleObject(EVENT_HANDLE eventHandle, int64_t timeoutMilliseconds);
int32_t rfidUtils_WaitForMultipleObjects(int64_t count, const EVENT_HANDLE* eventHandles,
                                         RFID_BOOL waitAll, int64_t timeoutMilliseconds);

// eventType: the event-type number (0..14).
RFID_STATUS RFID_RegisterEventNotification(READER_HANDLE readerHandle, uint32_t eventType,
                                           EVENT_HANDLE eventHandle);
RFID_STATUS RFID_DeregisterEventNotification(READER_HANDLE readerHandle, uint32_t eventType);
// eventData: the *_EVENT_DATA record of that type.
RFID_STATUS RFID_GetEventData(READER_HANDLE readerHandle, uint32_t eventType, void* eventData);

// --- Errors, version and trace -------------------------------------------------

RFID_STATUS RFID_GetLastErrorInfoW(READER_HANDLE readerHandle, ERROR_INFO* errorInfo);
// The text belongs to the library and is never freed.
const wchar_t* RFID_GetErrorDescriptionW(RFID_STATUS statusCode);
RFID_STATUS RFID_GetDllVersionInfoW(VERSION_INFO* versionInfo);
RFID_STATUS RFID_SetTraceLevel(READER_HANDLE readerHandle, uint32_t traceLevel);

// --- Tags, inventory, filters and triggers ------------------------------------

TAG_DATA* RFID_AllocateTag(READER_HANDLE readerHandle);
RFID_STATUS RFID_DeallocateTag(READER_HANDLE readerHandle, TAG_DATA* tagData);
RFID_STATUS RFID_GetReadTag(READER_HANDLE readerHandle, TAG_DATA* tagData);
// Fills tags[0..*readCount) with records that the library allocated; they go
// back with rfid_DeallocateTags.
RFID_STATUS rfid_GetReadTags(READER_HANDLE readerHandle, uint32_t maxCount, TAG_DATA** tags,
                             uint32_t* readCount);
RFID_STATUS rfid_DeallocateTags(READER_HANDLE readerHandle, TAG_DATA** tags, uint32_t count);

// reserved is always NULL.
RFID_STATUS RFID_PerformInventory(READER_HANDLE readerHandle, POST_FILTER* postFilter,
                                  ANTENNA_INFO* antennaInfo, TRIGGER_INFO* triggerInfo,
                                  void* reserved);
RFID_STATUS RFID_StopInventory(READER_HANDLE readerHandle);
// flags: always 0 here; 32 bits wide.
RFID_STATUS RFID_PurgeTags(READER_HANDLE readerHandle, uint32_t flags);
// reserved1 and reserved2 are always NULL.
RFID_STATUS RFID_PerformTagLocationing(READER_HANDLE readerHandle, const uint8_t* tagID,
                                       uint32_t tagIDLength, ANTENNA_INFO* antennaInfo,
                                       void* reserved1, void* reserved2);
RFID_STATUS RFID_StopTagLocationing(READER_HANDLE readerHandle);
RFID_STATUS RFID_PerformNXPEASScan(READER_HANDLE readerHandle, ANTENNA_INFO* antennaInfo,
                                   TRIGGER_INFO* triggerInfo, void* reserved);
RFID_STATUS RFID_StopNXPEASScan(READER_HANDLE readerHandle);

RFID_STATUS RFID_AddPreFilter(READER_HANDLE readerHandle, uint16_t antennaID,
                              PRE_FILTER* preFilter, uint32_t* filterIndex);
RFID_STATUS RFID_DeletePreFilter(READER_HANDLE readerHandle, uint16_t antennaID,
                                 uint32_t filterIndex);

RFID_STATUS RFID_GetTagStorageSettings(READER_HANDLE readerHandle,
                                       TAG_STORAGE_SETTINGS* settings);
RFID_STATUS RFID_SetTagStorageSettings(READER_HANDLE readerHandle,
                                       TAG_STORAGE_SETTINGS* settings);
RFID_STATUS RFID_GetSingulationControl(READER_HANDLE readerHandle, uint16_t antennaID,
                                       SINGULATION_CONTROL* control);
RFID_STATUS RFID_SetSingulationControl(READER_HANDLE readerHandle, uint16_t antennaID,
                                       SINGULATION_CONTROL* control);

// --- Tag access ----------------------------------------------------------------
// tagID is the tag's identifier as bytes; reserved is always NULL. A NULL
// record, filter, antenna info or tag record stands for an absent one.

RFID_STATUS RFID_Read(READER_HANDLE readerHandle, const uint8_t* tagID, uint32_t tagIDLength,
                      READ_ACCESS_PARAMS* params, ACCESS_FILTER* accessFilter,
                      ANTENNA_INFO* antennaInfo, TAG_DATA* tagData, void* reserved);
RFID_STATUS RFID_Write(READER_HANDLE readerHandle, const uint8_t* tagID, uint32_t tagIDLength,
                       WRITE_ACCESS_PARAMS* params, ACCESS_FILTER* accessFilter,
                       ANTENNA_INFO* antennaInfo, void* reserved);
RFID_STATUS RFID_BlockWrite(READER_HANDLE readerHandle, const uint8_t* tagID, uint32_t tagIDLength,
                            WRITE_ACCESS_PARAMS* params, ACCESS_FILTER* accessFilter,
                            ANTENNA_INFO* antennaInfo, void* reserved);
RFID_STATUS RFID_BlockErase(READER_HANDLE readerHandle, const uint8_t* tagID, uint32_t tagIDLength,
                            BLOCK_ERASE_ACCESS_PARAMS* params, ACCESS_FILTER* accessFilter,
                            ANTENNA_INFO* antennaInfo, void* reserved);
RFID_STATUS RFID_Lock(READER_HANDLE readerHandle, const uint8_t* tagID, uint32_t tagIDLength,
                      LOCK_ACCESS_PARAMS* params, ACCESS_FILTER* accessFilter,
                      ANTENNA_INFO* antennaInfo, void* reserved);
RFID_STATUS RFID_Kill(READER_HANDLE readerHandle, const uint8_t* tagID, uint32_t tagIDLength,
                      KILL_ACCESS_PARAMS* params, ACCESS_FILTER* accessFilter,
                      ANTENNA_INFO* antennaInfo, void* reserved);
RFID_STATUS RFID_BlockPermalock(READER_HANDLE readerHandle, const uint8_t* tagID,
                                uint32_t tagIDLength, BLOCK_PERMALOCK_ACCESS_PARAMS* params,
                                ACCESS_FILTER* accessFilter, ANTENNA_INFO* antennaInfo,
                                TAG_DATA* tagData, void* reserved);
RFID_STATUS RFID_Recommission(READER_HANDLE readerHandle, const uint8_t* tagID,
                              uint32_t tagIDLength, RECOMMISSION_ACCESS_PARAMS* params,
                              ACCESS_FILTER* accessFilter, ANTENNA_INFO* antennaInfo,
                              void* reserved);
RFID_STATUS RFID_WriteAccessPassword(READER_HANDLE readerHandle, const uint8_t* tagID,
                                     uint32_t tagIDLength, WRITE_FIELD_ACCESS_PARAMS* params,
                                     ANTENNA_INFO* antennaInfo, void* reserved);
RFID_STATUS RFID_WriteKillPassword(READER_HANDLE readerHandle, const uint8_t* tagID,
                                   uint32_t tagIDLength, WRITE_FIELD_ACCESS_PARAMS* params,
                                   ANTENNA_INFO* antennaInfo, void* reserved);
RFID_STATUS RFID_WriteTagID(READER_HANDLE readerHandle, const uint8_t* tagID, uint32_t tagIDLength,
                            WRITE_FIELD_ACCESS_PARAMS* params, ANTENNA_INFO* antennaInfo,
                            void* reserved);

// Chip-specific operations; tagID may be NULL (the length is passed as given).
RFID_STATUS RFID_NXPReadProtect(READER_HANDLE readerHandle, const uint8_t* tagID,
                                uint32_t tagIDLength, NXP_READ_PROTECT_PARAMS* params,
                                ACCESS_FILTER* accessFilter, ANTENNA_INFO* antennaInfo,
                                void* reserved);
RFID_STATUS RFID_NXPResetReadProtect(READER_HANDLE readerHandle,
                                     NXP_RESET_READ_PROTECT_PARAMS* params,
                                     ANTENNA_INFO* antennaInfo, void* reserved);
RFID_STATUS RFID_NXPSetEAS(READER_HANDLE readerHandle, const uint8_t* tagID, uint32_t tagIDLength,
                           NXP_SET_EAS_PARAMS* params, ACCESS_FILTER* accessFilter,
                           ANTENNA_INFO* antennaInfo, void* reserved);
RFID_STATUS RFID_NXPChangeConfig(READER_HANDLE readerHandle, const uint8_t* tagID,
                                 uint32_t tagIDLength, NXP_CHANGE_CONFIG_PARAMS* params,
                                 ACCESS_FILTER* accessFilter, ANTENNA_INFO* antennaInfo,
                                 TAG_DATA* tagData, void* reserved);
RFID_STATUS RFID_ImpinjQTWrite(READER_HANDLE readerHandle, const uint8_t* tagID,
                               uint32_t tagIDLength, IMPINJ_QT_WRITE_PARAMS* params,
                               ACCESS_FILTER* accessFilter, ANTENNA_INFO* antennaInfo,
                               void* reserved);
RFID_STATUS RFID_ImpinjQTRead(READER_HANDLE readerHandle, const uint8_t* tagID,
                              uint32_t tagIDLength, IMPINJ_QT_READ_PARAMS* params,
                              ACCESS_FILTER* accessFilter, ANTENNA_INFO* antennaInfo,
                              TAG_DATA* tagData, void* reserved);

// Gen2v2 security operations.
RFID_STATUS RFID_Authenticate(READER_HANDLE readerHandle, const uint8_t* tagID,
                              uint32_t tagIDLength, AUTHENTICATE_PARAMS* params,
                              ACCESS_FILTER* accessFilter, ANTENNA_INFO* antennaInfo,
                              TAG_DATA* tagData, void* reserved);
RFID_STATUS RFID_Untraceable(READER_HANDLE readerHandle, const uint8_t* tagID,
                             uint32_t tagIDLength, UNTRACEABLE_PARAMS* params,
                             ACCESS_FILTER* accessFilter, ANTENNA_INFO* antennaInfo,
                             TAG_DATA* tagData, void* reserved);
RFID_STATUS RFID_ReadBuffer(READER_HANDLE readerHandle, const uint8_t* tagID, uint32_t tagIDLength,
                            READ_BUFFER_PARAMS* params, ACCESS_FILTER* accessFilter,
                            ANTENNA_INFO* antennaInfo, TAG_DATA* tagData, void* reserved);
RFID_STATUS RFID_Crypto(READER_HANDLE readerHandle, const uint8_t* tagID, uint32_t tagIDLength,
                        CRYPTO_PARAMS* params, ACCESS_FILTER* accessFilter,
                        ANTENNA_INFO* antennaInfo, TAG_DATA* tagData, void* reserved);

// Access sequences, kept by the library per reader.
RFID_STATUS RFID_InitializeAccessSequence(READER_HANDLE readerHandle);
RFID_STATUS RFID_AddOperationToAccessSequence(READER_HANDLE readerHandle,
                                              ACCESS_OPERATION* operation, uint32_t* index);
RFID_STATUS RFID_DeleteOperationFromAccessSequence(READER_HANDLE readerHandle, uint32_t index);
RFID_STATUS RFID_PerformAccessSequence(READER_HANDLE readerHandle, ACCESS_FILTER* accessFilter,
                                       ANTENNA_INFO* antennaInfo, TRIGGER_INFO* triggerInfo,
                                       void* reserved);
RFID_STATUS RFID_StopAccessSequence(READER_HANDLE readerHandle);
// The two result counts of the last run, in the library's order.
RFID_STATUS RFID_GetLastAccessResult(READER_HANDLE readerHandle, uint32_t* firstCount,
                                     uint32_t* secondCount);
RFID_STATUS RFID_DeinitializeAccessSequence(READER_HANDLE readerHandle);

// --- Reader configuration and management --------------------------------------

RFID_STATUS RFID_GetReaderCapsW(READER_HANDLE readerHandle, READER_CAPS* readerCaps);

// The three 16-bit antenna indices, in the library's order.
RFID_STATUS RFID_SetAntennaConfig(READER_HANDLE readerHandle, uint16_t antennaID,
                                  uint16_t firstIndex, uint16_t secondIndex, uint16_t thirdIndex);
RFID_STATUS RFID_GetAntennaConfig(READER_HANDLE readerHandle, uint16_t antennaID,
                                  uint16_t* firstIndex, uint16_t* secondIndex,
                                  uint16_t* thirdIndex);
RFID_STATUS RFID_GetAntennaRfConfig(READER_HANDLE readerHandle, uint16_t antennaID,
                                    ANTENNA_RF_CONFIG* config);
RFID_STATUS RFID_SetAntennaRfConfig(READER_HANDLE readerHandle, uint16_t antennaID,
                                    ANTENNA_RF_CONFIG* config);
// count: the Java short that travels beside the array, as given.
RFID_STATUS RFID_SetCableLossCompensation(READER_HANDLE readerHandle, int16_t count,
                                          CABLE_LOSS_COMPENSATION** records);
RFID_STATUS RFID_GetCableLossCompensation(READER_HANDLE readerHandle,
                                          CABLE_LOSS_COMPENSATION* record);
RFID_STATUS RFID_GetPhysicalAntennaProperties(READER_HANDLE readerHandle, uint16_t antennaID,
                                              RFID_BOOL* flag, int32_t* value);
RFID_STATUS RFID_SetAntennaMode(READER_HANDLE readerHandle, uint32_t antennaMode);
RFID_STATUS RFID_GetAntennaMode(READER_HANDLE readerHandle, uint32_t* antennaMode);
RFID_STATUS RFID_GetReadPointStatus(READER_HANDLE readerHandle, uint16_t antennaID,
                                    RFID_BOOL* status);
RFID_STATUS RFID_EnableReadPoint(READER_HANDLE readerHandle, uint16_t antennaID,
                                 RFID_BOOL enable);

// The two 32-bit RF mode values, in the library's order.
RFID_STATUS RFID_SetRFMode(READER_HANDLE readerHandle, uint16_t antennaID, uint32_t firstValue,
                           uint32_t secondValue);
RFID_STATUS RFID_GetRFMode(READER_HANDLE readerHandle, uint16_t antennaID, uint32_t* firstValue,
                           uint32_t* secondValue);
RFID_STATUS RFID_SetDutyCycle(READER_HANDLE readerHandle, uint16_t dutyCycleIndex,
                              DUTY_CYCLE_SCRATCH* scratch);
RFID_STATUS RFID_GetDutyCycle(READER_HANDLE readerHandle, uint16_t* dutyCycleIndex,
                              DUTY_CYCLE_SCRATCH* scratch);
RFID_STATUS RFID_SetRadioPowerState(READER_HANDLE readerHandle, RFID_BOOL powerOn);
RFID_STATUS RFID_GetRadioPowerState(READER_HANDLE readerHandle, RFID_BOOL* powerOn);
RFID_STATUS RFID_TurnOffRadioWhenIdle(READER_HANDLE readerHandle, uint32_t timeoutMilliseconds);
RFID_STATUS RFID_GetRadioIdleTimeout(READER_HANDLE readerHandle, uint32_t* timeoutMilliseconds);
// Taken as 32 bits; Java keeps the low 16.
RFID_STATUS RFID_GetPowerNegotiationStatus(READER_HANDLE readerHandle, uint32_t* status);
RFID_STATUS RFID_SetPowerNegotiationState(READER_HANDLE readerHandle, RFID_BOOL state);
RFID_STATUS RFID_GetPowerNegotiationState(READER_HANDLE readerHandle, RFID_BOOL* state);
RFID_STATUS RFID_GetUSBOperationMode(READER_HANDLE readerHandle,
                                     USB_OPERATION_MODE_SETTINGS* settings);
RFID_STATUS RFID_SetUSBOperationMode(READER_HANDLE readerHandle,
                                     USB_OPERATION_MODE_SETTINGS* settings);

RFID_STATUS RFID_EnableGPIPort(READER_HANDLE readerHandle, int32_t port, RFID_BOOL enable);
// value: the 32-bit number the library reports beside the state.
RFID_STATUS RFID_GetGPIState(READER_HANDLE readerHandle, int32_t port, RFID_BOOL* state,
                             int32_t* value);
RFID_STATUS RFID_SetGPOState(READER_HANDLE readerHandle, int32_t port, RFID_BOOL state);
RFID_STATUS RFID_GetGPOState(READER_HANDLE readerHandle, int32_t port, RFID_BOOL* state);
RFID_STATUS RFID_SetGPIDebounceTime(READER_HANDLE readerHandle, int32_t value,
                                    GPI_DEBOUNCE_RECORD* debounce);
RFID_STATUS RFID_GetGPIDebounceTime(READER_HANDLE readerHandle, int32_t* value,
                                    GPI_DEBOUNCE_RECORD* debounce);
RFID_STATUS RFID_SetUserLED(READER_HANDLE readerHandle, LED_INFO* ledInfo);

RFID_STATUS RFID_GetSystemInfoW(READER_HANDLE readerHandle, SYSTEM_INFO* systemInfo);
RFID_STATUS RFID_GetReaderInfoW(READER_HANDLE readerHandle, READER_INFO* readerInfo);
RFID_STATUS RFID_SetReaderInfoW(READER_HANDLE readerHandle, READER_INFO* readerInfo);
RFID_STATUS RFID_GetLocalTime(READER_HANDLE readerHandle, SYSTEMTIME* localTime);
RFID_STATUS RFID_SetLocalTime(READER_HANDLE readerHandle, SYSTEMTIME* localTime);
RFID_STATUS RFID_GetTimeZoneListW(READER_HANDLE readerHandle, TIME_ZONE_LIST* timeZoneList);
RFID_STATUS RFID_SetTimeZone(READER_HANDLE readerHandle, uint16_t timeZoneIndex);
RFID_STATUS RFID_GetReaderStats(READER_HANDLE readerHandle, uint16_t antennaID,
                                READER_STATS* stats);
RFID_STATUS RFID_ClearReaderStats(READER_HANDLE readerHandle);
// component: ordinal of the health enumeration; detail: the library's own
// output area (may be NULL).
RFID_STATUS RFID_GetHealthStatus(READER_HANDLE readerHandle, uint32_t component,
                                 uint32_t* healthStatus, void* detail);

RFID_STATUS RFID_GetProfileListW(READER_HANDLE readerHandle, PROFILE_LIST* profileList);
// The two names travel in the order Java gives them.
RFID_STATUS RFID_ImportProfileFromReaderW(READER_HANDLE readerHandle, const wchar_t* firstName,
                                          const wchar_t* secondName);
RFID_STATUS RFID_ExportProfileToReaderW(READER_HANDLE readerHandle, const wchar_t* firstName,
                                        const wchar_t* secondName, RFID_BOOL flag);
RFID_STATUS RFID_DeleteProfileW(READER_HANDLE readerHandle, const wchar_t* profileName);
RFID_STATUS RFID_SetActiveProfileW(READER_HANDLE readerHandle, const wchar_t* profileName);
RFID_STATUS RFID_UpdateSoftwareW(READER_HANDLE readerHandle, UPDATE_INFO* updateInfo);
RFID_STATUS RFID_GetUpdateStatusW(READER_HANDLE readerHandle, UPDATE_STATUS* updateStatus);
RFID_STATUS RFID_UpdateRadioConfigW(READER_HANDLE readerHandle, const wchar_t* fileName);
RFID_STATUS RFID_UpdateRadioFirmwareW(READER_HANDLE readerHandle, const wchar_t* fileName);
RFID_STATUS RFID_InstallUserAppW(READER_HANDLE readerHandle, const wchar_t* appName);
RFID_STATUS RFID_UninstallUserAppW(READER_HANDLE readerHandle, const wchar_t* appName);
RFID_STATUS RFID_StartUserAppW(READER_HANDLE readerHandle, const wchar_t* appName);
RFID_STATUS RFID_StopUserAppW(READER_HANDLE readerHandle, const wchar_t* appName);
RFID_STATUS RFID_SetUserAppAutoStartW(READER_HANDLE readerHandle, const wchar_t* appName,
                                      RFID_BOOL autoStart);
RFID_STATUS RFID_ListUserAppsW(READER_HANDLE readerHandle, USER_APP_LIST* appList);
RFID_STATUS RFID_GetUserAppRunStatusW(READER_HANDLE readerHandle, const wchar_t* appName,
                                      RFID_BOOL* runStatus);
// config: the Java argument, forwarded as a pointer-sized value.
RFID_STATUS RFID_SaveLlrpConfig(READER_HANDLE readerHandle, void* config);
RFID_STATUS RFID_GetSaveLlrpConfigStatus(READER_HANDLE readerHandle, RFID_BOOL* status);
RFID_STATUS RFID_ResetConfigToFactoryDefaults(READER_HANDLE readerHandle);

}  // extern "C"

// The library exports this one with C++ linkage: the symbol is the mangled
// name of rfid_GetNumInstalledApps(void*, unsigned int*). The reader handle
// goes in sign-extended to pointer width.
RFID_STATUS rfid_GetNumInstalledApps(void* readerHandle, unsigned int* count);
