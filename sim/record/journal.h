// The simulator's journal: while recording is on, every C API call the
// simulator receives is recorded with its raw argument values and deep copies of the records it
// was given (taken at call entry, since callers free their buffers right
// after the call). Tests read the journal and script statuses and outputs
// through the Java class com.kovra.rfid.orla.sim.SimControl.
//
// Blob names: a pointer argument is captured under its parameter name
// ("connInfo"); what a record points to is captured under the record's name,
// a dot and the field name ("connInfo.secConnInfo",
// "connInfo.secConnInfo.clientCertBuff"); array entries take "[i]"
// ("triggerInfo.extraTriggers.start[3].startTime"). A NULL pointer is
// recorded as an absent blob, so tests can tell NULL from empty.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

namespace sim {

struct Blob {
  bool present = false;
  std::vector<uint8_t> bytes;
  // The pointer was not NULL but its memory could not be read (or the size
  // was beyond reason); bytes is then empty.
  bool faulted = false;
};

struct Call {
  uint64_t seq = 0;
  std::string fn;
  std::vector<uint64_t> args;
  std::map<std::string, Blob> blobs;
};

// Builds one journal entry. Construct it first thing in a C API function,
// add the blobs, then call finish() (exactly once) to append the entry and
// learn the status the test scripted for this function (0 by default).
class Recorder {
 public:
  Recorder(const char* fn, std::initializer_list<uint64_t> args);
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;
  ~Recorder();  // appends the entry if finish() was not called

  // Copies n bytes at p; p == nullptr records an absent blob.
  void blob(const std::string& name, const void* p, size_t n);
  // Copies a NUL-terminated wide string (at most maxChars characters, the
  // terminator not included); nullptr records an absent blob.
  void wide(const std::string& name, const wchar_t* s, size_t maxChars = 4096);

  int32_t finish();
  // Like finish(); also tells whether a status was scripted for the function
  // (a scripted 0 included), so callers can let a script override checks.
  bool finish(int32_t* status);

  // A blob captured so far by this recorder; an absent blob when there is
  // none of that name. Deep captures read the pointers they follow from here.
  const Blob& captured(const std::string& name) const;
  const std::string& fn() const { return call_.fn; }

 private:
  Call call_;
  bool done_ = false;
};

// Status scripted for fn, 0 when none. A one-shot status queued for fn is
// consumed first.
int32_t scriptedStatus(const std::string& fn);
// The same, telling whether there was a script at all.
bool scriptedStatus(const std::string& fn, int32_t* status);

// Bytes scripted as fn's output record; copies min(n, scripted size) bytes
// into dst and returns true when there is a script for fn.
bool scriptedOutput(const std::string& fn, void* dst, size_t n);
// The whole scripted output of fn, for outputs whose size the script decides.
bool scriptedOutput(const std::string& fn, std::vector<uint8_t>* bytes);

// A pointer-sized result scripted for fn (an address from SimControl.alloc,
// or 0); returns true when there is a script for fn.
bool scriptedPointer(const std::string& fn, uint64_t* value);

// Memory handed out to tests with SimControl.alloc stays alive until reset.
void* keepAlive(std::vector<uint8_t> bytes);

// Scripts, set by the control natives; all hold until reset.
void setScriptedStatus(const std::string& fn, int32_t status);
void queueScriptedStatus(const std::string& fn, int32_t status);  // one-shot
void setScriptedOutput(const std::string& fn, std::vector<uint8_t> bytes);
void setScriptedPointer(const std::string& fn, uint64_t value);

// The whole journal, for the control natives.
std::vector<Call> journalSnapshot();
void resetJournalAndScripts();

// Recording is off unless switched on, by record(true) or by
// HALYARD_SIM_RECORD=1 in the environment when the library loads. Off, calls
// still capture what their behaviour needs and honour scripts, but no entry
// is kept. On, at most the capacity's entries are kept; later calls are
// dropped and counted. Reset empties the journal and the dropped count but
// keeps the switch and the capacity, so a test that switched recording on
// keeps it across resets.
constexpr size_t kDefaultRecordCapacity = 1000000;
void record(bool on);
bool recording();
// Whether a value of HALYARD_SIM_RECORD switches recording on: "1" only.
bool recordSwitch(const char* value);
void setRecordCapacity(size_t entries);
uint64_t droppedCalls();

// Queries without copying the whole journal. index counts the calls of fn
// from 0; a negative index counts back from the last (-1 is the last call).
size_t callCount(const std::string& fn);
std::vector<std::string> callNames();  // every call, in call order
bool findCall(const std::string& fn, int64_t index, Call* call);

}  // namespace sim
