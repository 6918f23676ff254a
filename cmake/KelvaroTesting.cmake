# add_unit_test(NAME SOURCES... LIBS...)
# One test executable per subsystem, discovered case by case by CTest.
include(GoogleTest)
# QT_GUI: the tests draw, so a QGuiApplication is made before them;
# QT_WIDGETS: they drive windows, so a QApplication. Either runs on the
# offscreen platform and needs no display.
function(add_unit_test name)
  cmake_parse_arguments(ARG "QT_GUI;QT_WIDGETS" "" "SOURCES;LIBS" ${ARGN})
  if(ARG_QT_GUI OR ARG_QT_WIDGETS)
    add_executable(${name} ${ARG_SOURCES} ${PROJECT_SOURCE_DIR}/tests/support/qt_test_main.cpp)
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} Qt6::Gui GTest::gtest GTest::gmock)
    if(ARG_QT_WIDGETS)
      target_link_libraries(${name} PRIVATE Qt6::Widgets Qt6::Test)
      target_compile_definitions(${name} PRIVATE KELVARO_TEST_WIDGETS)
    endif()
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    set(environment "KELVARO_TEST_DATA=${PROJECT_SOURCE_DIR}/tests/data;QT_QPA_PLATFORM=offscreen")
  else()
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gtest GTest::gtest_main GTest::gmock)
    set(environment "KELVARO_TEST_DATA=${PROJECT_SOURCE_DIR}/tests/data")
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 DISCOVERY_MODE PRE_TEST
    PROPERTIES ENVIRONMENT "${environment}")
endfunction()
