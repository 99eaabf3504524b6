#include "heap_watch.h"

#include <dlfcn.h>
#include <link.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <mutex>
#include <new>
#include <string>

#include "reader_sim.h"
#include "timeline.h"

namespace jt {
namespace {

std::atomic<uintptr_t> libLow{0}, libHigh{0};
std::atomic<bool> recording{false};
std::mutex mutex;
thread_local bool busy = false;  // the recorder's own allocations are not the library's

std::vector<Allocation>& all() {
  static std::vector<Allocation> allocations;
  return allocations;
}

bool fromLibrary(const void* caller) {
  const auto at = reinterpret_cast<uintptr_t>(caller);
  return recording.load() && !busy && at >= libLow.load() && at < libHigh.load();
}

const char* kindName(bool array, bool release) {
  if (release) return array ? "delete[]" : "delete";
  return array ? "new[]" : "new";
}

void* allocate(size_t size, bool array, const void* caller) {
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) throw std::bad_alloc();
  if (!fromLibrary(caller)) return block;
  busy = true;
  const size_t stamp = cCallCount();  // before taking the lock: the journal has its own
  {
    std::lock_guard<std::mutex> lock(mutex);
    all().push_back({size, array, stamp, false, false, 0, block});
    Timeline::record(std::string(kindName(array, false)) + " " + std::to_string(size) + " #" +
                         std::to_string(all().size() - 1),
                     stamp);
  }
  busy = false;
  return block;
}

void* allocateOrNull(size_t size, bool array, const void* caller) noexcept {
  try {
    return allocate(size, array, caller);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void release(void* block, bool array, const void* caller) {
  if (block != nullptr && fromLibrary(caller)) {
    busy = true;
    const size_t stamp = cCallCount();
    {
      std::lock_guard<std::mutex> lock(mutex);
      std::string what = std::string(kindName(array, true)) + " unknown block";
      for (size_t i = 0; i < all().size(); ++i) {
        Allocation& a = all()[i];
        if (a.block != block || a.freed) continue;
        a.freed = true;
        a.freedAsArray = array;
        a.freedAt = stamp;
        what = std::string(kindName(array, true)) + " " + std::to_string(a.size) + " #" + std::to_string(i);
        break;
      }
      Timeline::record(what, stamp);
    }
    busy = false;
  }
  std::free(block);
}

}  // namespace

void HeapWatch::watchLibraryOf(const void* symbol) {
  Dl_info info{};
  if (dladdr(symbol, &info) == 0) return;
  struct Range {
    const void* base;
    uintptr_t low, high;
  } range{info.dli_fbase, UINTPTR_MAX, 0};
  dl_iterate_phdr(
      [](dl_phdr_info* object, size_t, void* data) {
        auto* r = static_cast<Range*>(data);
        if (reinterpret_cast<const void*>(object->dlpi_addr) != r->base) return 0;
        for (int i = 0; i < object->dlpi_phnum; ++i) {
          const ElfW(Phdr)& ph = object->dlpi_phdr[i];
          if (ph.p_type != PT_LOAD) continue;
          r->low = std::min<uintptr_t>(r->low, object->dlpi_addr + ph.p_vaddr);
          r->high = std::max<uintptr_t>(r->high, object->dlpi_addr + ph.p_vaddr + ph.p_memsz);
        }
        return 1;
      },
      &range);
  libLow = range.low;
  libHigh = range.high;
}

void HeapWatch::start() {
  std::lock_guard<std::mutex> lock(mutex);
  all().clear();
  recording = true;
}

void HeapWatch::stop() { recording = false; }

const std::vector<Allocation>& HeapWatch::allocations() { return all(); }

void HeapWatch::releaseKept() {
  std::lock_guard<std::mutex> lock(mutex);
  for (Allocation& a : all()) {
    if (!a.freed) std::free(a.block);
    a.freed = true;
  }
}

}  // namespace jt

// Each passes on its caller (code of the library, or not).
void* operator new(size_t size) { return jt::allocate(size, false, __builtin_return_address(0)); }
void* operator new[](size_t size) { return jt::allocate(size, true, __builtin_return_address(0)); }
void* operator new(size_t size, const std::nothrow_t&) noexcept {
  return jt::allocateOrNull(size, false, __builtin_return_address(0));
}
void* operator new[](size_t size, const std::nothrow_t&) noexcept {
  return jt::allocateOrNull(size, true, __builtin_return_address(0));
}
void operator delete(void* block) noexcept { jt::release(block, false, __builtin_return_address(0)); }
void operator delete[](void* block) noexcept { jt::release(block, true, __builtin_return_address(0)); }
void operator delete(void* block, size_t) noexcept { jt::release(block, false, __builtin_return_address(0)); }
void operator delete[](void* block, size_t) noexcept { jt::release(block, true, __builtin_return_address(0)); }
