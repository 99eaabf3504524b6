#include "record/journal.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <deque>
#include <mutex>

#include "record/blob_set.h"
#include "replay/replay.h"

namespace sim {
namespace {

struct Scripts {
  std::map<std::string, std::deque<int32_t>> queued;
  std::map<std::string, int32_t> statuses;
  std::map<std::string, std::vector<uint8_t>> outputs;
  std::map<std::string, uint64_t> pointers;
};

struct Journal {
  std::mutex mutex;
  // A deque grows by chunks: an append never moves the entries already kept,
  // so a growing journal does not stall the other callers.
  std::deque<Call> calls;
  uint64_t nextSeq = 1;
  size_t capacity = kDefaultRecordCapacity;
  uint64_t dropped = 0;  // calls past the capacity, not kept
  Scripts scripts;
  std::vector<std::vector<uint8_t>> kept;  // buffers move, their bytes do not
  // Off: calls still run and honour scripts, none is kept. Read without the
  // lock so that a call costs no copy while recording is off.
  std::atomic<bool> recording{recordSwitch(std::getenv("HALYARD_SIM_RECORD"))};
};

// Never destroyed: threads of a running inventory may still record while
// the process exits.
Journal& journal() {
  static Journal* instance = new Journal;
  return *instance;
}

// The environment is read when the library loads, not at the first call.
[[maybe_unused]] const bool kJournalAtLoad = (journal(), true);

const Blob& absentBlob() {
  static const Blob absent;
  return absent;
}

// Position of the call of fn at index (negative: from the end), or -1.
int64_t positionOf(const std::deque<Call>& calls, const std::string& fn, int64_t index) {
  std::vector<int64_t> positions;
  for (size_t i = 0; i < calls.size(); ++i) {
    if (calls[i].fn == fn) positions.push_back(static_cast<int64_t>(i));
  }
  int64_t count = static_cast<int64_t>(positions.size());
  if (index < 0) index += count;
  if (index < 0 || index >= count) return -1;
  return positions[static_cast<size_t>(index)];
}

// Appends a copy (the recorder's owner may still read what it captured),
// made before taking the lock. Past the capacity the call is only counted.
void appendCall(const Call& call) {
  Journal& j = journal();
  if (!j.recording.load(std::memory_order_relaxed)) return;
  Call entry = call;
  std::lock_guard<std::mutex> lock(j.mutex);
  if (j.calls.size() >= j.capacity) {
    ++j.dropped;
    return;
  }
  entry.seq = j.nextSeq++;
  j.calls.push_back(std::move(entry));
}

}  // namespace

Recorder::Recorder(const char* fn, std::initializer_list<uint64_t> args) {
  call_.fn = fn;
  call_.args = args;
}

// Without finish() the entry is still appended, but no script is consumed.
Recorder::~Recorder() {
  if (!done_) appendCall(call_);
}

void Recorder::blob(const std::string& name, const void* p, size_t n) {
  call_.blobs[name] = copyBlob(p, n);
}

void Recorder::wide(const std::string& name, const wchar_t* s, size_t maxChars) {
  call_.blobs[name] = copyWide(s, maxChars);
}

const Blob& Recorder::captured(const std::string& name) const {
  auto it = call_.blobs.find(name);
  return it == call_.blobs.end() ? absentBlob() : it->second;
}

int32_t Recorder::finish() {
  int32_t status = 0;
  finish(&status);
  return status;
}

bool Recorder::finish(int32_t* status) {
  *status = 0;
  if (done_) return false;  // one entry, one status
  done_ = true;
  if (replay::answer(call_, status)) {
    appendCall(call_);
    return true;
  }
  bool scripted = scriptedStatus(call_.fn, status);
  appendCall(call_);
  return scripted;
}

int32_t scriptedStatus(const std::string& fn) {
  int32_t status = 0;
  scriptedStatus(fn, &status);
  return status;
}

bool scriptedStatus(const std::string& fn, int32_t* status) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  auto queued = j.scripts.queued.find(fn);
  if (queued != j.scripts.queued.end() && !queued->second.empty()) {
    *status = queued->second.front();
    queued->second.pop_front();
    return true;
  }
  auto fixed = j.scripts.statuses.find(fn);
  *status = fixed == j.scripts.statuses.end() ? 0 : fixed->second;
  return fixed != j.scripts.statuses.end();
}

bool scriptedOutput(const std::string& fn, void* dst, size_t n) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  auto it = j.scripts.outputs.find(fn);
  if (it == j.scripts.outputs.end()) return false;
  std::copy_n(it->second.begin(), std::min(n, it->second.size()), static_cast<uint8_t*>(dst));
  return true;
}

bool scriptedOutput(const std::string& fn, std::vector<uint8_t>* bytes) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  auto it = j.scripts.outputs.find(fn);
  if (it == j.scripts.outputs.end()) return false;
  *bytes = it->second;
  return true;
}

bool scriptedPointer(const std::string& fn, uint64_t* value) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  auto it = j.scripts.pointers.find(fn);
  if (it == j.scripts.pointers.end()) return false;
  *value = it->second;
  return true;
}

void* keepAlive(std::vector<uint8_t> bytes) {
  if (bytes.empty()) bytes.push_back(0);  // still a distinct, valid address
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  j.kept.push_back(std::move(bytes));
  return j.kept.back().data();
}

void setScriptedStatus(const std::string& fn, int32_t status) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  j.scripts.statuses[fn] = status;
}

void queueScriptedStatus(const std::string& fn, int32_t status) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  j.scripts.queued[fn].push_back(status);
}

void setScriptedOutput(const std::string& fn, std::vector<uint8_t> bytes) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  j.scripts.outputs[fn] = std::move(bytes);
}

void setScriptedPointer(const std::string& fn, uint64_t value) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  j.scripts.pointers[fn] = value;
}

std::vector<Call> journalSnapshot() {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  return std::vector<Call>(j.calls.begin(), j.calls.end());
}

void resetJournalAndScripts() {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  j.calls.clear();
  j.nextSeq = 1;
  j.dropped = 0;
  j.scripts = Scripts();
  j.kept.clear();
}

size_t callCount(const std::string& fn) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  return static_cast<size_t>(std::count_if(j.calls.begin(), j.calls.end(),
                                           [&](const Call& c) { return c.fn == fn; }));
}

std::vector<std::string> callNames() {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  std::vector<std::string> names;
  names.reserve(j.calls.size());
  for (const Call& c : j.calls) names.push_back(c.fn);
  return names;
}

bool findCall(const std::string& fn, int64_t index, Call* call) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  int64_t at = positionOf(j.calls, fn, index);
  if (at < 0) return false;
  *call = j.calls[static_cast<size_t>(at)];
  return true;
}

bool recordSwitch(const char* value) {
  return value != nullptr && std::string(value) == "1";
}

void record(bool on) {
  journal().recording.store(on);
}

bool recording() {
  return journal().recording.load();
}

void setRecordCapacity(size_t entries) {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  j.capacity = entries;
}

uint64_t droppedCalls() {
  Journal& j = journal();
  std::lock_guard<std::mutex> lock(j.mutex);
  return j.dropped;
}

}  // namespace sim
