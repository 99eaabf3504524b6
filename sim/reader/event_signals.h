// Reader events: which event object a reader sets for each event type, and
// the data of the latest event of each type, which RFID_GetEventData hands
// out at the record layout of that type.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sim {

enum EventType : uint32_t {
  kGpiEvent = 0,
  kTagReadEvent = 1,
  kBufferFullWarningEvent = 2,
  kAntennaEvent = 3,
  kInventoryStartEvent = 4,
  kInventoryStopEvent = 5,
  kAccessStartEvent = 6,
  kAccessStopEvent = 7,
  kDisconnectionEvent = 8,
  kBufferFullEvent = 9,
  kNxpEasAlarmEvent = 10,
  kReaderExceptionEvent = 11,
  kHandheldTriggerEvent = 12,
  kDebugInfoEvent = 13,
  kTemperatureAlarmEvent = 14,
  kGpsDataEvent = 15,
};

bool isEventType(uint32_t type);

// Room the caller provides for the data record of an event type.
size_t eventDataCapacity(uint32_t type);

void registerEvent(int64_t reader, uint32_t type, int64_t event);
// False when nothing was registered for the type.
bool deregisterEvent(int64_t reader, uint32_t type);

// Keeps the data (cut to the type's capacity) as the latest of its type and
// sets the registered event object, if any.
void raiseEvent(int64_t reader, uint32_t type, std::vector<uint8_t> data);

// False when no event of the type happened on the reader.
bool latestEventData(int64_t reader, uint32_t type, std::vector<uint8_t>* data);

void dropReaderEvents(int64_t reader);
void dropAllReaderEvents();

}  // namespace sim
