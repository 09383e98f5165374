# nimbulo_test(<name> SOURCES <files...> LIBS <targets...> [LABELS <labels...>] [QT])
# Builds one GoogleTest program and registers each of its tests with CTest.
# Tests are listed when CTest runs, so programs that build a QApplication in
# main() never run during the build.
function(nimbulo_test name)
  cmake_parse_arguments(T "QT" "" "SOURCES;LIBS;LABELS" ${ARGN})
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE ${T_LIBS} GTest::gtest GTest::gmock Threads::Threads)
  if(NOT T_QT)
    target_link_libraries(${name} PRIVATE GTest::gtest_main)
  endif()
  nimbulo_warnings(${name})
  target_compile_definitions(${name} PRIVATE
    NIMBULO_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    NIMBULO_BINARY_DIR="${PROJECT_BINARY_DIR}")
  gtest_discover_tests(${name}
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 300 LABELS "${T_LABELS}")
endfunction()
