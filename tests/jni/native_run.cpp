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
  sim::record(true);  // the journal is what the tests read
  handle_ = static_cast<jint>(sim::openSession());
}

FreshReader::~FreshReader() {
  HeapWatch::releaseKept();
  sim::resetSimulator();
}

std::vector<Val> buildArguments(Jvm& jvm, const Native& n, const Overrides& overrides, jint reader) {
  std::vector<Val> args;
  for (const Param& p : n.params) args.push_back(defaultArgument(jvm, p, reader));
  for (const auto& [path, value] : overrides) {
    const size_t dot = path.find('.');
    Val& arg = args.at(std::stoul(path.substr(0, dot)));
    if (dot == std::string::npos)
      arg = value;
    else
      jvm.set(jvm.value(arg), path.substr(dot + 1), value);
  }
  return args;
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
