#include "record/record_layouts.h"

#include "record/field_builders.h"
#include "record/session_layouts.h"

namespace sim::layout {
namespace {

// START_TRIGGER and STOP_TRIGGER select their variant by the type at 0.
constexpr When kStartPeriodic{0, 1};
constexpr When kStartGpi{0, 2};
constexpr When kStartHandheld{0, 3};
constexpr When kStartTimelapse{0, 4};
constexpr When kStartDistance{0, 5};
constexpr When kStopDuration{0, 1};
constexpr When kStopGpi{0, 2};
constexpr When kStopTagObservation{0, 3};
constexpr When kStopNumAttempts{0, 4};
constexpr When kStopHandheld{0, 5};
constexpr When kStopTimelapse{0, 6};

// The access-operation result a tag record points to depends on its opCode at 80.
constexpr When kQtResult{80, 21};
constexpr When kNxpConfigWordResult{80, 22};
// Codes 23, 24 and 26: the security operations whose reply is a bit string.
constexpr When kBitStringResults[] = {{80, 23}, {80, 24}, {80, 26}};

// Every tag access parameter record ends with four reserved words.
Field Reserved(size_t offset) { return InlineBytes("reserved", offset, 32); }

}  // namespace

const Record& AntennaInfo() {
  static const Record r{"ANTENNA_INFO", 24, {
      PointerToBytes("antennaList", 0, CountOf(8, 4, 2)),
      Scalar("length", 8, Kind::U32),
      PointerToBytes("antennaOpList", 16, CountOf(8, 4, 4)),
  }};
  return r;
}

const Record& TagPattern() {
  static const Record r{"TAG_PATTERN", 40, {
      Scalar("memoryBank", 0, Kind::U32),
      Scalar("bitOffset", 4, Kind::U16),
      PointerToBytes("tagPattern", 8, BitsToBytes(16, 2)),
      Scalar("tagPatternBitCount", 16, Kind::U16),
      PointerToBytes("tagMask", 24, BitsToBytes(32, 2)),
      Scalar("tagMaskBitCount", 32, Kind::U16),
  }};
  return r;
}

const Record& RssiRangeFilter() {
  static const Record r{"RSSI_RANGE_FILTER", 8, {
      Scalar("peakRSSILowerLimit", 0, Kind::I8),
      Scalar("peakRSSIUpperLimit", 1, Kind::I8),
      Scalar("matchRange", 4, Kind::U32),
  }};
  return r;
}

const Record& Filter() {
  static const Record r{"ACCESS_FILTER", 40, {
      Scalar("memoryAllocated", 0, Kind::U32),
      Scalar("memoryUsed", 4, Kind::U32),
      PointerTo("tagPatternA", 8, TagPattern()),
      PointerTo("tagPatternB", 16, TagPattern()),
      Scalar("matchPattern", 24, Kind::U32),
      PointerTo("rssiRangeFilter", 32, RssiRangeFilter()),
  }};
  return r;
}

const Record& PreFilter() {
  static const Record r{"PRE_FILTER", 36, {
      Scalar("memoryBank", 0, Kind::U32),
      PointerToBytes("tagPattern", 8, BitsToBytes(16, 2)),
      Scalar("tagPatternBitCount", 16, Kind::U16),
      Scalar("bitOffset", 18, Kind::U16),
      Scalar("filterAction", 20, Kind::U32),
      Scalar("stateUnawareActionOrTarget", 24, Kind::U32),
      Scalar("stateAwareAction", 28, Kind::U32),
      Scalar("truncateAction", 32, Kind::U32),
  }};
  return r;
}

const Record& SystemTime() {
  static const Record r{"SYSTEMTIME", 16, {
      Scalar("Year", 0, Kind::U16), Scalar("Month", 2, Kind::U16), Scalar("DayOfWeek", 4, Kind::U16),
      Scalar("Day", 6, Kind::U16), Scalar("Hour", 8, Kind::U16), Scalar("Minute", 10, Kind::U16),
      Scalar("Second", 12, Kind::U16), Scalar("Milliseconds", 14, Kind::U16),
  }};
  return r;
}

const Record& TimeOfDay() {
  static const Record r{"TIMEOFDAY", 6, {
      Scalar("Hour", 0, Kind::U16), Scalar("Minute", 2, Kind::U16), Scalar("Second", 4, Kind::U16),
  }};
  return r;
}

// Both time variants point to a record named startTime: a SYSTEMTIME at 16
// for a periodic trigger, a TIMEOFDAY at 8 for a time-lapse one.
const Record& StartTrigger() {
  static const Record r{"START_TRIGGER", 24, {
      Scalar("type", 0, Kind::U32),
      Variant(kStartPeriodic, Scalar("periodMilliseconds", 8, Kind::U32)),
      PointerTo("startTime", 16, SystemTime(), &kStartPeriodic),
      Variant(kStartGpi, Scalar("portNumber", 8, Kind::U16)),
      Variant(kStartGpi, Scalar("eventInfo", 10, Kind::U8)),
      Variant(kStartGpi, Scalar("timeoutMilliseconds", 12, Kind::U32)),
      Variant(kStartHandheld, Scalar("handheldEvent", 8, Kind::U32)),
      Variant(kStartHandheld, Scalar("timeoutMilliseconds", 12, Kind::U32)),
      PointerTo("startTime", 8, TimeOfDay(), &kStartTimelapse),
      Variant(kStartTimelapse, Scalar("period", 16, Kind::U32)),
      Variant(kStartDistance, Scalar("value", 8, Kind::U32)),
  }};
  return r;
}

const Record& StopTrigger() {
  static const Record r{"STOP_TRIGGER", 12, {
      Scalar("type", 0, Kind::U32),
      Variant(kStopDuration, Scalar("duration", 4, Kind::U32)),
      Variant(kStopGpi, Scalar("portNumber", 4, Kind::U16)),
      Variant(kStopGpi, Scalar("eventInfo", 6, Kind::U8)),
      Variant(kStopGpi, Scalar("timeoutMilliseconds", 8, Kind::U32)),
      Variant(kStopTagObservation, Scalar("n", 4, Kind::U16)),
      Variant(kStopTagObservation, Scalar("timeoutMilliseconds", 8, Kind::U32)),
      Variant(kStopNumAttempts, Scalar("n", 4, Kind::U16)),
      Variant(kStopNumAttempts, Scalar("timeoutMilliseconds", 8, Kind::U32)),
      Variant(kStopHandheld, Scalar("handheldEvent", 4, Kind::U32)),
      Variant(kStopHandheld, Scalar("timeoutMilliseconds", 8, Kind::U32)),
      Variant(kStopTimelapse, Scalar("totalDuration", 4, Kind::U32)),
      Variant(kStopTimelapse, Scalar("periodicDuration", 8, Kind::U32)),
  }};
  return r;
}

const Record& TagEventReportInfo() {
  static const Record r{"TAG_EVENT_REPORT_INFO", 32, {
      Scalar("reportNewTagEvent", 0, Kind::U32),
      Scalar("newTagEventModeratedTimeoutMilliseconds", 4, Kind::U16),
      Scalar("reportTagInvisibleEvent", 8, Kind::U32),
      Scalar("tagInvisibleEventModeratedTimeoutMilliseconds", 12, Kind::U16),
      Scalar("reportTagBackToVisibilityEvent", 16, Kind::U32),
      Scalar("tagBackToVisibilityModeratedTimeoutMilliseconds", 20, Kind::U16),
      Scalar("reportTagMovingEvent", 24, Kind::U32),
      Scalar("tagStationaryModeratedTimeoutMilliseconds", 28, Kind::U16),
  }};
  return r;
}

const Record& ReportTriggers() {
  static const Record r{"REPORT_TRIGGERS", 40, {}};
  return r;
}

const Record& ExtraTriggers() {
  static const Record r{"EXTRA_TRIGGERS", 256, {
      Inside("start", 0, StartTrigger(), 7),
      Inside("stop", 168, StopTrigger(), 7),
  }};
  return r;
}

const Record& TriggerInfo() {
  static const Record r{"TRIGGER_INFO", 64, {
      Inside("startTrigger", 0, StartTrigger()),
      Inside("stopTrigger", 24, StopTrigger()),
      Scalar("tagReportTrigger", 36, Kind::U32),
      PointerTo("tagEventReportInfo", 40, TagEventReportInfo()),
      PointerTo("reportTriggers", 48, ReportTriggers()),
      PointerTo("extraTriggers", 56, ExtraTriggers()),
  }};
  return r;
}

const Record& ReadAccessParams() {
  static const Record r{"READ_ACCESS_PARAMS", 48, {
      Scalar("memoryBank", 0, Kind::U32), Scalar("byteOffset", 4, Kind::U16), Scalar("byteCount", 6, Kind::U16),
      Scalar("accessPassword", 8, Kind::U32), Reserved(16),
  }};
  return r;
}

const Record& WriteAccessParams() {
  static const Record r{"WRITE_ACCESS_PARAMS", 56, {
      Scalar("memoryBank", 0, Kind::U32), Scalar("byteOffset", 4, Kind::U16),
      PointerToBytes("writeData", 8, CountOf(16, 2, 1)), Scalar("writeDataLength", 16, Kind::U16),
      Scalar("accessPassword", 20, Kind::U32), Reserved(24),
  }};
  return r;
}

const Record& BlockEraseAccessParams() {
  static const Record r{"BLOCK_ERASE_ACCESS_PARAMS", 48, ReadAccessParams().fields};
  return r;
}

const Record& LockAccessParams() {
  static const Record r{"LOCK_ACCESS_PARAMS", 56, {
      Field{"enumPrivilege", 0, Kind::Bytes, nullptr, {}, 20}, Scalar("accessPassword", 20, Kind::U32),
      Reserved(24),
  }};
  return r;
}

const Record& KillAccessParams() {
  static const Record r{"KILL_ACCESS_PARAMS", 40, {Scalar("killPassword", 0, Kind::U32), Reserved(8)}};
  return r;
}

const Record& BlockPermalockAccessParams() {
  static const Record r{"BLOCK_PERMALOCK_ACCESS_PARAMS", 64, {
      Scalar("memoryBank", 0, Kind::U32), Scalar("readLock", 4, Kind::Bool), Scalar("byteOffset", 6, Kind::U16),
      Scalar("byteCount", 8, Kind::U16), Scalar("accessPassword", 12, Kind::U32),
      PointerToBytes("mask", 16, CountOf(24, 2, 1)), Scalar("maskLength", 24, Kind::U16), Reserved(32),
  }};
  return r;
}

const Record& RecommissionAccessParams() {
  static const Record r{"RECOMMISSION_ACCESS_PARAMS", 40, {
      Scalar("killPassword", 0, Kind::U32), Scalar("opCode", 4, Kind::U32), Reserved(8),
  }};
  return r;
}

const Record& WriteFieldAccessParams() {
  static const Record r{"WRITE_FIELD_ACCESS_PARAMS", 48, {
      PointerToBytes("writeData", 0, CountOf(8, 2, 1)), Scalar("writeDataLength", 8, Kind::U16),
      Scalar("accessPassword", 12, Kind::U32), Reserved(16),
  }};
  return r;
}

// Records whose fields only the reader interprets are described by size:
// their bytes are captured and shown whole.
const Record& NxpAccessParams() {
  static const Record r{"NXP_ACCESS_PARAMS", 40, {}};
  return r;
}

const Record& QtReadAccessParams() {
  static const Record r{"IMPINJ_QT_READ_PARAMS", 40, {Scalar("accessPassword", 0, Kind::U32)}};
  return r;
}

const Record& QtWriteAccessParams() {
  static const Record r{"IMPINJ_QT_WRITE_PARAMS", 80, {}};
  return r;
}

const Record& AuthenticateAccessParams() {
  static const Record r{"AUTHENTICATE_PARAMS", 56, {
      PointerToBytes("pMessage", 8, BitsToWholeBytes(4, 2)),
  }};
  return r;
}

const Record& UntraceableAccessParams() {
  static const Record r{"UNTRACEABLE_PARAMS", 56, {}};
  return r;
}

const Record& ReadBufferAccessParams() {
  static const Record r{"READ_BUFFER_PARAMS", 40, {}};
  return r;
}

const Record& CryptoAccessParams() {
  static const Record r{"CRYPTO_PARAMS", 64, {}};
  return r;
}

const Record* OperationParams(uint32_t opCode) {
  switch (opCode) {
    case 0: return &ReadAccessParams();
    case 1: return &WriteAccessParams();
    case 2: return &LockAccessParams();
    case 3: return &KillAccessParams();
    case 4: return &WriteAccessParams();
    case 5: return &BlockEraseAccessParams();
    case 6: return &RecommissionAccessParams();
    case 7: return &BlockPermalockAccessParams();
    case 8: case 9: case 10: return &NxpAccessParams();
    case 20: return &QtWriteAccessParams();
    case 21: return &QtReadAccessParams();
    case 22: return &NxpAccessParams();
    default: return nullptr;
  }
}

const Record& AccessOperation() {
  static const When kCodes[] = {{0, 0}, {0, 1}, {0, 2}, {0, 3}, {0, 4}, {0, 5}, {0, 6}, {0, 7},
                                {0, 8}, {0, 9}, {0, 10}, {0, 20}, {0, 21}, {0, 22}};
  static const Record r = [] {
    Record record{"ACCESS_OPERATION", 48, {Scalar("opCode", 0, Kind::U32)}};
    for (const When& code : kCodes) record.fields.push_back(PointerTo("params", 8, *OperationParams(code.equals), &code));
    return record;
  }();
  return r;
}

const Record& TagData() {
  static const Record r{"TAG_DATA", 192, {
      Scalar("memoryAllocated", 0, Kind::U32),
      Scalar("memoryUsed", 4, Kind::U32),
      PointerToBytes("pTagID", 8, CountOf(16, 4, 1)),
      Scalar("tagIDLength", 16, Kind::U32),
      Scalar("tagIDAllocated", 20, Kind::U32),
      Scalar("PC", 24, Kind::U16),
      Scalar("XPC", 28, Kind::U32),
      Scalar("CRC", 32, Kind::U16),
      Scalar("antennaID", 34, Kind::I16),
      Inside("seenTime", 40, SeenTime()),
      Scalar("peakRSSI", 72, Kind::I8),
      Scalar("channelIndex", 74, Kind::I16),
      Scalar("tagSeenCount", 76, Kind::I16),
      Scalar("opCode", 80, Kind::U32),
      Scalar("opStatus", 84, Kind::U32),
      Scalar("memoryBank", 88, Kind::U32),
      PointerToBytes("pMemoryBankData", 96, CountOf(108, 4, 1)),
      Scalar("memoryBankDataByteOffset", 104, Kind::U32),
      Scalar("memoryBankDataLength", 108, Kind::U32),
      Scalar("memoryBankDataAllocated", 112, Kind::U32),
      Scalar("tagEvent", 116, Kind::U32),
      Inside("tagEventTimeStamp", 120, SystemTime()),
      PointerTo("pLocationInfo", 136, LocationInfo()),
      Variant(kQtResult, PointerTo("pOpResult", 144, QtData())),
      Variant(kNxpConfigWordResult, PointerTo("pOpResult", 144, NxpChangeConfigWordResult())),
      Variant(kBitStringResults[0], PointerTo("pOpResult", 144, BitStringResult())),
      Variant(kBitStringResults[1], PointerTo("pOpResult", 144, BitStringResult())),
      Variant(kBitStringResults[2], PointerTo("pOpResult", 144, BitStringResult())),
      Scalar("phaseInfo", 168, Kind::I16),
      PointerTo("pGpsLocation", 184, GpsLocation()),
  }};
  return r;
}

}  // namespace sim::layout
