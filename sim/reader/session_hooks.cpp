// Ties the reader state to the sessions: a closed session drops its reader
// (stopping its operation) and its event registrations; a reset of the
// simulator drops every reader, tag record and event object and restores
// the start-up tag population.
#include "reader/event_objects.h"
#include "reader/event_signals.h"
#include "reader/state.h"
#include "reader/sessions.h"
#include "reader/population.h"
#include "reader/tag_records.h"

namespace sim {
namespace {

void onSessionClosed(int64_t handle) {
  dropReader(handle);
  dropReaderEvents(handle);
}

void onReset() {
  dropAllReaders();
  releaseAllTagRecords();
  dropAllReaderEvents();
  closeAllEvents();
  restoreDefaultPopulation();
}

const bool kHooksAdded = [] {
  addSessionClosedHook(&onSessionClosed);
  addResetHook(&onReset);
  return true;
}();

}  // namespace
}  // namespace sim
