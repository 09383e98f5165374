# nimbulo_test(<name> SOURCES <files...> LIBS <targets...> [LABELS <labels...>] [QT])
# Builds one GoogleTest program and registers it with CTest.
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
  # One CTest test per program, fixed when CMake runs: the numbering never
  # depends on listing the programs, so a re-run of the failed tests runs the
  # same ones. A failing case is named in the program's own output.
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 300 LABELS "${T_LABELS}")
endfunction()
