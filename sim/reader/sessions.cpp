#include "reader/sessions.h"

#include <mutex>
#include <set>
#include <vector>

#include "record/journal.h"

namespace sim {
namespace {

constexpr int64_t kFirstHandle = 0x1001;

struct Sessions {
  std::mutex mutex;
  std::set<int64_t> open;
  int64_t nextHandle = kFirstHandle;
  std::vector<SessionClosedHook> closedHooks;
  std::vector<ResetHook> resetHooks;
};

// Never destroyed, like the journal: hooks are added during static
// initialisation of other files and calls may arrive while the process exits.
Sessions& sessions() {
  static Sessions* instance = new Sessions;
  return *instance;
}

template <class Hook>
std::vector<Hook> copyHooks(const std::vector<Hook>& hooks) {
  std::lock_guard<std::mutex> lock(sessions().mutex);
  return hooks;
}

}  // namespace

bool sessionExists(int64_t handle) {
  Sessions& s = sessions();
  std::lock_guard<std::mutex> lock(s.mutex);
  return s.open.count(handle) != 0;
}

int64_t openSession() {
  Sessions& s = sessions();
  std::lock_guard<std::mutex> lock(s.mutex);
  int64_t handle = s.nextHandle++;
  s.open.insert(handle);
  return handle;
}

bool closeSession(int64_t handle) {
  Sessions& s = sessions();
  {
    std::lock_guard<std::mutex> lock(s.mutex);
    if (s.open.erase(handle) == 0) return false;
  }
  for (SessionClosedHook hook : copyHooks(s.closedHooks)) hook(handle);
  return true;
}

void addSessionClosedHook(SessionClosedHook hook) {
  Sessions& s = sessions();
  std::lock_guard<std::mutex> lock(s.mutex);
  s.closedHooks.push_back(hook);
}

void addResetHook(ResetHook hook) {
  Sessions& s = sessions();
  std::lock_guard<std::mutex> lock(s.mutex);
  s.resetHooks.push_back(hook);
}

void resetSessions() {
  Sessions& s = sessions();
  std::lock_guard<std::mutex> lock(s.mutex);
  s.open.clear();
}

void runResetHooks() {
  for (ResetHook hook : copyHooks(sessions().resetHooks)) hook();
}

void resetSimulator() {
  resetJournalAndScripts();
  resetSessions();
  runResetHooks();
}

}  // namespace sim
