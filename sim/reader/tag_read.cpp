#include "reader/tag_read.h"

#include <chrono>
#include <ctime>

#include "reader/memory_fields.h"

namespace sim {

void storeSystemTime(void* record, size_t offset, const SystemTime& t) {
  for (size_t i = 0; i < t.size(); ++i) store<uint16_t>(record, offset + sizeof(uint16_t) * i, t[i]);
}

SystemTime utcNow() {
  using namespace std::chrono;
  const auto now = system_clock::now();
  const std::time_t seconds = system_clock::to_time_t(now);
  const auto millis = duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000;
  std::tm tm{};
  gmtime_r(&seconds, &tm);
  return {static_cast<uint16_t>(tm.tm_year + 1900), static_cast<uint16_t>(tm.tm_mon + 1),
          static_cast<uint16_t>(tm.tm_wday),        static_cast<uint16_t>(tm.tm_mday),
          static_cast<uint16_t>(tm.tm_hour),        static_cast<uint16_t>(tm.tm_min),
          static_cast<uint16_t>(tm.tm_sec),         static_cast<uint16_t>(millis)};
}

}  // namespace sim
