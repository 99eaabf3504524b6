// Reading memory that a caller handed us without trusting it: a wild pointer
// in a record must end up as a recorded fault, not as a crash of the process
// that loaded the simulator.
#pragma once

#include <fcntl.h>
#include <pthread.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <optional>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#endif

namespace sim {
namespace detail {

// The kernel reports EFAULT instead of raising a signal when it is asked to
// write unreadable memory into a pipe, so a pipe to ourselves is a probe
// that never crashes. One per thread, closed when the thread ends.
class ProbePipe {
 public:
  ProbePipe() {
    if (pipe2(fds_, O_CLOEXEC) != 0) fds_[0] = fds_[1] = -1;
  }
  ~ProbePipe() {
    if (fds_[0] >= 0) close(fds_[0]);
    if (fds_[1] >= 0) close(fds_[1]);
  }
  ProbePipe(const ProbePipe&) = delete;
  ProbePipe& operator=(const ProbePipe&) = delete;

  // Copies one chunk (at most kChunk bytes, so the pipe never blocks).
  bool copyChunk(uint8_t* dst, const uint8_t* src, size_t n) {
    if (fds_[0] < 0) return false;
    ssize_t put = retry([&] { return write(fds_[1], src, n); });
    if (put > 0) drain(dst, static_cast<size_t>(put));
    return put == static_cast<ssize_t>(n);
  }

  static constexpr size_t kChunk = 4096;

 private:
  template <class F>
  static ssize_t retry(F f) {
    ssize_t r;
    do r = f(); while (r < 0 && errno == EINTR);
    return r;
  }

  void drain(uint8_t* dst, size_t n) {
    while (n > 0) {
      ssize_t got = retry([&] { return read(fds_[0], dst, n); });
      if (got <= 0) return;
      dst += got;
      n -= static_cast<size_t>(got);
    }
  }

  int fds_[2];
};

inline ProbePipe& probe() {
  thread_local ProbePipe pipe;
  return pipe;
}

constexpr size_t kPage = 4096;

inline size_t bytesToPageEnd(const void* p) {
  return kPage - reinterpret_cast<uintptr_t>(p) % kPage;
}

// How many of the n bytes at p may be read ahead: all of them, except in an
// AddressSanitizer build, where reading past the end of the object (still on
// a mapped page) would be reported; there it is the bytes up to that end.
inline size_t readAheadBytes(const void* p, size_t n) {
#if defined(__SANITIZE_ADDRESS__)
  if (void* end = __asan_region_is_poisoned(const_cast<void*>(p), n)) {
    return static_cast<size_t>(static_cast<const uint8_t*>(end) - static_cast<const uint8_t*>(p));
  }
#else
  (void)p;
#endif
  return n;
}

// The calling thread's stack, from its lowest to past its highest address;
// both 0 when the thread cannot tell.
struct StackBounds {
  uintptr_t low = 0;
  uintptr_t high = 0;
};

inline const StackBounds& stackBounds() {
  thread_local const StackBounds bounds = [] {
    StackBounds b;
    pthread_attr_t attr;
    if (pthread_getattr_np(pthread_self(), &attr) != 0) return b;
    void* lowest = nullptr;
    size_t size = 0;
    if (pthread_attr_getstack(&attr, &lowest, &size) == 0) {
      b.low = reinterpret_cast<uintptr_t>(lowest);
      b.high = b.low + size;
    }
    pthread_attr_destroy(&attr);
    return b;
  }();
  return bounds;
}

// Whether the n bytes at p lie in the live part of this thread's stack,
// between our own frame and the stack's top: memory the callers up the chain
// are using, mapped and readable for certain. Callers build their records
// and out-parameters there, so most captures need no system call. (In an
// AddressSanitizer build, only where the bytes are all addressable.)
__attribute__((always_inline)) inline bool onLiveStack(const void* p, size_t n) {
  const StackBounds& stack = stackBounds();
  const uintptr_t at = reinterpret_cast<uintptr_t>(p);
  const uintptr_t frame = reinterpret_cast<uintptr_t>(__builtin_frame_address(0));
  if (stack.high == 0 || at < frame || at < stack.low || at >= stack.high || n > stack.high - at) return false;
#if defined(__SANITIZE_ADDRESS__)
  if (__asan_region_is_poisoned(const_cast<void*>(p), n) != nullptr) return false;
#endif
  return true;
}

}  // namespace detail

// Copies n bytes from src to dst; false (dst partly written) when any of the
// n bytes at src is not readable.
// Our process id, without a system call each time; a forked child learns its own.
inline pid_t selfPid() {
  static std::atomic<pid_t> pid{0};
  static const bool registered = [] {
    pthread_atfork(nullptr, nullptr, [] { pid.store(getpid(), std::memory_order_relaxed); });
    return true;
  }();
  (void)registered;
  pid_t p = pid.load(std::memory_order_relaxed);
  if (p == 0) {
    p = getpid();
    pid.store(p, std::memory_order_relaxed);
  }
  return p;
}

// One system call reads our own memory where the kernel allows it (a
// container's seccomp profile may not): a bad address makes it fail or read
// short instead of raising a signal. Nullopt when the call is not available.
inline std::optional<bool> readOwnMemory(void* dst, const void* src, size_t n) {
  static std::atomic<bool> available{true};
  if (!available.load(std::memory_order_relaxed)) return std::nullopt;
  struct iovec local{dst, n};
  struct iovec remote{const_cast<void*>(src), n};
  const ssize_t got = process_vm_readv(selfPid(), &local, 1, &remote, 1, 0);
  if (got < 0 && (errno == EPERM || errno == ENOSYS)) {
    available.store(false, std::memory_order_relaxed);
    return std::nullopt;
  }
  return got == static_cast<ssize_t>(n);
}

inline bool safeCopy(void* dst, const void* src, size_t n) {
  if (n == 0) return true;
  if (detail::onLiveStack(src, n)) {
    std::memcpy(dst, src, n);
    return true;
  }
  if (std::optional<bool> read = readOwnMemory(dst, src, n)) return *read;
  auto* out = static_cast<uint8_t*>(dst);
  auto* in = static_cast<const uint8_t*>(src);
  while (n > 0) {
    size_t chunk = n < detail::ProbePipe::kChunk ? n : detail::ProbePipe::kChunk;
    if (!detail::probe().copyChunk(out, in, chunk)) return false;
    out += chunk;
    in += chunk;
    n -= chunk;
  }
  return true;
}

// Copies the wide string at s, at most maxChars characters and without its
// terminator, as raw bytes; false when its memory is not readable.
inline bool safeWide(const wchar_t* s, size_t maxChars, std::vector<uint8_t>* bytes) {
  bytes->clear();
  size_t done = 0;
  while (done < maxChars) {
    // Read no further than the page the string has reached: its end may be
    // the last character before an unmapped page.
    const size_t ahead = detail::readAheadBytes(s + done, detail::bytesToPageEnd(s + done));
    size_t chars = std::max<size_t>(ahead / sizeof(wchar_t), 1);
    chars = std::min(chars, maxChars - done);
    std::vector<wchar_t> chunk(chars);
    if (!safeCopy(chunk.data(), s + done, chars * sizeof(wchar_t))) return false;
    size_t len = std::find(chunk.begin(), chunk.end(), L'\0') - chunk.begin();
    auto* raw = reinterpret_cast<const uint8_t*>(chunk.data());
    bytes->insert(bytes->end(), raw, raw + len * sizeof(wchar_t));
    if (len < chars) break;
    done += chars;
  }
  return true;
}

}  // namespace sim
