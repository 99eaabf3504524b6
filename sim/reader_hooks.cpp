// Ties the reader state to the sessions: a closed session drops its reader
// (stopping its operation) and its event registrations; a reset of the
// simulator drops every reader, tag record and event object and restores
// the start-up tag population.
#include "events.h"
#include "reader_events.h"
#include "reader_state.h"
#include "session.h"
#include "tag_population.h"
#include "tag_record.h"

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
