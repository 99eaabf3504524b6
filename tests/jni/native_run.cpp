#include "native_run.h"

#include "timeline.h"

namespace jt {

std::string NativeRun::dump() const {
  std::string text;
  for (const std::string& line : lines) text += "    " + line + "\n";
  return text;
}

FreshReader::FreshReader() {
  sim::resetSimulator();
  handle_ = static_cast<jint>(sim::openSession());
}

FreshReader::~FreshReader() {
  HeapWatch::releaseKept();
  sim::resetSimulator();
}

NativeRun runNative(Jvm& jvm, const Native& n, std::vector<Val> args, jint reader) {
  for (size_t i = args.size(); i < n.params.size(); ++i) args.push_back(defaultArgument(jvm, n.params[i], reader));
  const size_t writesBefore = jvm.writes();
  const size_t pinsBefore = jvm.pins().size();
  Timeline::clear();
  HeapWatch::start();
  NativeRun run;
  run.result = invoke(jvm, n, args);
  HeapWatch::stop();
  run.lines = Timeline::merged();
  run.pins.assign(jvm.pins().begin() + static_cast<long>(pinsBefore), jvm.pins().end());
  run.allocations = HeapWatch::allocations();
  run.writes = jvm.writes() - writesBefore;
  run.cCalls = cCallCount();
  return run;
}

}  // namespace jt
