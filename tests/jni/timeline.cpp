#include "timeline.h"

#include "reader_sim.h"

namespace jt {
namespace {
std::vector<Event>& log() {
  static std::vector<Event> events;
  return events;
}
}  // namespace

void Timeline::clear() { log().clear(); }
void Timeline::record(std::string what) { record(std::move(what), cCallCount()); }
void Timeline::record(std::string what, size_t cCalls) { log().push_back({cCalls, std::move(what)}); }
const std::vector<Event>& Timeline::events() { return log(); }

std::vector<std::string> Timeline::merged() {
  const std::vector<std::string> calls = sim::callNames();
  std::vector<std::string> lines;
  size_t next = 0;
  for (const Event& e : log()) {
    for (; next < e.cCalls && next < calls.size(); ++next) lines.push_back("C " + calls[next]);
    lines.push_back(e.what);
  }
  for (; next < calls.size(); ++next) lines.push_back("C " + calls[next]);
  return lines;
}

bool inOrder(const std::vector<std::string>& lines, const std::vector<std::string>& steps, std::string* why) {
  size_t at = 0;
  for (const std::string& step : steps) {
    while (at < lines.size() && lines[at].find(step) == std::string::npos) ++at;
    if (at == lines.size()) {
      *why = "\"" + step + "\" not found after the steps before it";
      return false;
    }
    ++at;
  }
  return true;
}

}  // namespace jt
