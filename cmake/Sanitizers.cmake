# ORLA_SANITIZE=ON builds everything (library, simulator, C++ tests) with
# AddressSanitizer and UndefinedBehaviorSanitizer; the first finding aborts
# the process, so a test with a finding fails.
#
# ORLA_JVM_TEST_ENV is the environment a JVM test adds to load the two
# libraries: with the sanitizers on, the ASan runtime must be in the process
# before the JVM loads an instrumented library, so it is preloaded. The JVM
# handles SIGSEGV itself (implicit null checks, safepoints) and keeps memory
# until exit, so ASan leaves SIGSEGV to it and does not report leaks there.
# The C++ tests run with the defaults, leak detection included.
option(ORLA_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
set(ORLA_JVM_TEST_ENV "")
if(ORLA_SANITIZE)
  set(ORLA_SANITIZE_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_compile_options(${ORLA_SANITIZE_FLAGS})
  # GCC 12's flow analysis gives false maybe-uninitialized warnings on
  # instrumented standard headers (std::regex, std::function); the normal
  # build keeps the warning.
  add_compile_options(-Wno-maybe-uninitialized)
  add_link_options(${ORLA_SANITIZE_FLAGS})
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libasan.so
                  OUTPUT_VARIABLE ORLA_ASAN_RUNTIME OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT IS_ABSOLUTE "${ORLA_ASAN_RUNTIME}" OR NOT EXISTS "${ORLA_ASAN_RUNTIME}")
    message(FATAL_ERROR "ORLA_SANITIZE: the compiler names no ASan runtime (${ORLA_ASAN_RUNTIME})")
  endif()
  set(ORLA_JVM_TEST_ENV
      "LD_PRELOAD=${ORLA_ASAN_RUNTIME}"
      "ASAN_OPTIONS=handle_segv=0:allow_user_segv_handler=1:detect_leaks=0:abort_on_error=0:exitcode=86"
      "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1")
endif()
