# The bundle run as a process: one CTest test per row of scenarios.py. The
# bundle, spk-pack and the stand-in client are part of the default build.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(scenarios ${CMAKE_CURRENT_LIST_DIR}/scenarios.py)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${scenarios})
execute_process(COMMAND ${Python3_EXECUTABLE} ${scenarios} --list
  OUTPUT_VARIABLE scenario_rows OUTPUT_STRIP_TRAILING_WHITESPACE)
string(REPLACE "\n" ";" scenario_rows "${scenario_rows}")
foreach(row IN LISTS scenario_rows)
  add_test(NAME scenario.${row}
    COMMAND ${Python3_EXECUTABLE} ${scenarios} ${row} ${PROJECT_BINARY_DIR}/Nimbulo.app
            $<TARGET_FILE:spk-pack> $<TARGET_FILE:nimbulo-pelora-ui>)
  set_tests_properties(scenario.${row} PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 300 LABELS scenario)
endforeach()
