# add_unit_test(NAME SOURCES... LIBS...)
# One test executable per subsystem, discovered case by case by CTest.
include(GoogleTest)
function(add_unit_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gtest GTest::gtest_main GTest::gmock)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
    PROPERTIES ENVIRONMENT "KELVARO_TEST_DATA=${PROJECT_SOURCE_DIR}/tests/data")
endfunction()
