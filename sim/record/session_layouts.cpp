#include "record/session_layouts.h"

#include "record/field_builders.h"
#include "record/record_layouts.h"

namespace sim::layout {
namespace {

// The wide string fields of the session records: 260 characters.
constexpr size_t kWideChars = 260;

// A buffer of SEC_CONNECTION_INFO: its size, then the pointer to its bytes.
Field SizedBuffer(const char* name, size_t pointerAt, size_t sizeAt) {
  return PointerToBytes(name, pointerAt, CountOf(sizeAt, 4, 1));
}

// The room the library provides for an event's data.
constexpr size_t kEventDataBytes = 16;
constexpr size_t kExceptionDataBytes = 1088;

const Record& GpiEventData() {
  static const Record r{"GPI_EVENT_DATA", kEventDataBytes, {
      Scalar("port", 0, Kind::I16), Scalar("eventInfo", 2, Kind::U8),
  }};
  return r;
}

const Record& AntennaEventData() {
  static const Record r{"ANTENNA_EVENT_DATA", kEventDataBytes, {
      Scalar("antennaID", 0, Kind::I16), Scalar("antennaEvent", 4, Kind::U32),
  }};
  return r;
}

// Disconnection and handheld trigger events: an event information code.
const Record& EventInfoData() {
  static const Record r{"EVENT_INFO_DATA", kEventDataBytes, {Scalar("eventInfo", 0, Kind::I16)}};
  return r;
}

const Record& NxpEasAlarmData() {
  static const Record r{"NXP_EAS_ALARM_DATA", kEventDataBytes, {
      Scalar("alarmCode", 0, Kind::I64), Scalar("antennaID", 8, Kind::I16),
  }};
  return r;
}

const Record& ReaderExceptionData() {
  static const Record r{"READER_EXCEPTION_EVENT_DATA", kExceptionDataBytes, {
      Scalar("exceptionType", 0, Kind::U32), InlineWide("exceptionInfo", 4, (kExceptionDataBytes - 4) / 4),
  }};
  return r;
}

const Record& TemperatureAlarmData() {
  static const Record r{"TEMPERATURE_ALARM_DATA", kEventDataBytes, {
      Scalar("sourceName", 0, Kind::I16), Scalar("currentTemperature", 4, Kind::I32),
      Scalar("alarmLevel", 8, Kind::U32),
  }};
  return r;
}

const Record& UnreadEventData() {
  static const Record r{"EVENT_DATA", kEventDataBytes, {}};
  return r;
}

const Record& UtcTime() {
  static const Record r{"UTC_TIME", 32, {
      Inside("firstSeenTimeStamp", 0, SystemTime()), Inside("lastSeenTimeStamp", 16, SystemTime()),
  }};
  return r;
}

const Record& UpTime() {
  static const Record r{"UP_TIME", 16, {
      Scalar("firstSeenTimeStamp", 0, Kind::U64), Scalar("lastSeenTimeStamp", 8, Kind::U64),
  }};
  return r;
}

}  // namespace

const Record& ConnectionInfo() {
  static const Record r{"CONNECTION_INFO", 48, {
      Scalar("version", 0, Kind::U32),
      PointerTo("secConnInfo", 8, SecConnectionInfo()),
  }};
  return r;
}

const Record& SecConnectionInfo() {
  static const Record r{"SEC_CONNECTION_INFO", 104, {
      Scalar("secureMode", 0, Kind::Bool),
      Scalar("validatePeerCert", 1, Kind::Bool),
      Scalar("sizeCertBuff", 4, Kind::U32),
      SizedBuffer("clientCertBuff", 8, 4),
      Scalar("sizeKeyBuff", 16, Kind::U32),
      SizedBuffer("clientKeyBuff", 24, 16),
      Scalar("sizePhraseBuff", 32, Kind::U32),
      SizedBuffer("phraseBuff", 40, 32),
      Scalar("sizeRootCertBuff", 48, Kind::U32),
      SizedBuffer("rootCertBuff", 56, 48),
      Scalar("connStatus", 64, Kind::I64),
      InlineBytes("reserved", 72, 32),
  }};
  return r;
}

const Record& LoginInfo() {
  static const Record r{"LOGIN_INFO", 3144, {
      InlineWide("hostName", 0, kWideChars),
      InlineWide("userName", 1040, kWideChars),
      InlineWide("password", 2080, kWideChars),
      Scalar("version", 3120, Kind::U32),
      Scalar("forceLogin", 3124, Kind::Bool),
      InlineBytes("reserved", 3125, 19),
  }};
  return r;
}

const Record& LlrpConnectionConfig() {
  static const Record r{"LLRP_CONNECTION_CONFIG", 1096, {
      Scalar("isClient", 0, Kind::Bool),
      Scalar("port", 4, Kind::U32),
      InlineWide("hostServerIP", 8, kWideChars),
      PointerTo("pSecureModeConfig", 1048, SecLlrpConfig()),
      InlineBytes("reserved", 1056, 40),
  }};
  return r;
}

const Record& SecLlrpConfig() {
  static const Record r{"SEC_LLRP_CONFIG", 40, {
      Scalar("secureMode", 0, Kind::Bool),
      Scalar("validatePeerCert", 1, Kind::Bool),
      InlineBytes("reserved", 2, 38),
  }};
  return r;
}

// Its bytes are the reader's own: shown whole.
const Record& LlrpInitiateScratch() {
  static const Record r{"LLRP_INITIATE_SCRATCH", 24, {}};
  return r;
}

// The library reads the time-out from Java but leaves its slot as it was.
const Record& AcceptConnectionInfo() {
  static const Record r{"ACCEPT_CONNECTION_INFO", 8, {
      Scalar("timeoutMilliseconds", 0, Kind::U32),
      Scalar("rfidVersion", 4, Kind::U32),
  }};
  return r;
}

const Record& EventData(uint32_t type) {
  switch (type) {
    case 0: return GpiEventData();
    case 3: return AntennaEventData();
    case 8: case 12: return EventInfoData();
    case 10: return NxpEasAlarmData();
    case 11: return ReaderExceptionData();
    case 14: return TemperatureAlarmData();
    default: return UnreadEventData();
  }
}

const Record& ErrorInfo() {
  static const Record r{"ERROR_INFO", 2120, {
      Inside("errorTimeStamp", 0, SystemTime()),
      Scalar("rfidStatusCode", 16, Kind::I32),
      InlineWide("statusDesc", 20, kWideChars),
      InlineWide("vendorMessage", 1060, (2120 - 1060) / 4),
  }};
  return r;
}

const Record& VersionInfo() {
  static const Record r{"VERSION_INFO", 1048, {InlineWide("dllVersion", 0, 1048 / 4)}};
  return r;
}

const Record& SeenTime() {
  static const Record r{"SEEN_TIME", 32, {Inside("utcTime", 0, UtcTime()), Inside("upTime", 0, UpTime())}};
  return r;
}

const Record& LocationInfo() {
  static const Record r{"LOCATION_INFO", 2, {Scalar("relativeDistance", 0, Kind::I16)}};
  return r;
}

const Record& GpsLocation() {
  static const Record r{"GPS_LOCATION", 12, {
      Scalar("longitude", 0, Kind::I32), Scalar("latitude", 4, Kind::I32), Scalar("altitude", 8, Kind::I32),
  }};
  return r;
}

const Record& QtData() {
  static const Record r{"IMPINJ_QT_DATA", 2, {Scalar("qtControlData", 0, Kind::I16)}};
  return r;
}

const Record& NxpChangeConfigWordResult() {
  static const Record r{"NXP_CHANGE_CONFIG_WORD_RESULT", 2, {Scalar("ChangeConfigWord", 0, Kind::I16)}};
  return r;
}

// A reply length in bits, then the reply bytes (whole bytes, the last one partly used).
const Record& BitStringResult() {
  static const Record r{"BIT_STRING_RESULT", 16, {
      Scalar("replyBitLength", 0, Kind::U16),
      PointerToBytes("pReply", 8, BitsToBytes(0, 2)),
  }};
  return r;
}

}  // namespace sim::layout
