# calderix_add_test(<name> SOURCES ... [LIBS ...] [LABELS <label>] [TIMEOUT <s>] [OWN_MAIN])
#
# One GoogleTest executable whose cases ctest runs one by one. Every case
# runs headless and under the project's sanitizer settings. OWN_MAIN leaves
# main() to the test (for suites that need a QApplication or a helper mode).
include(GoogleTest)
find_package(GTest REQUIRED)

set(CALDERIX_TEST_ENV
  "QT_QPA_PLATFORM=offscreen"
  "ASAN_OPTIONS=detect_leaks=1:abort_on_error=0:strict_string_checks=1"
  "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0"
  "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1"
)

function(calderix_add_test name)
  cmake_parse_arguments(ARG "OWN_MAIN" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE GTest::gtest GTest::gmock ${ARG_LIBS})
  if(NOT ARG_OWN_MAIN)
    target_link_libraries(${name} PRIVATE GTest::gtest_main)
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  # gtest_discover_tests flattens a list given as ENVIRONMENT into the other
  # properties, so the environment travels through env(1) instead; ctest and
  # the discovery step both run the test that way.
  set_property(TARGET ${name} PROPERTY CROSSCOMPILING_EMULATOR /usr/bin/env ${CALDERIX_TEST_ENV})
  # The properties reach ctest as one flat list that discovery splits
  # again, so a suite carries a single label, and none when none is given.
  list(LENGTH ARG_LABELS label_count)
  if(label_count GREATER 1)
    message(FATAL_ERROR "calderix_add_test(${name}): one label per suite, got ${ARG_LABELS}")
  endif()
  set(properties TIMEOUT ${ARG_TIMEOUT})
  if(ARG_LABELS)
    list(APPEND properties LABELS ${ARG_LABELS})
  endif()
  gtest_discover_tests(${name}
    DISCOVERY_TIMEOUT 120
    NO_PRETTY_VALUES
    PROPERTIES ${properties})
endfunction()
