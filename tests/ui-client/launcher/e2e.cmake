# End-to-end tests: the assembled bundle run as a process.
nimbulo_test(launcher_e2e_test SOURCES ${CMAKE_CURRENT_LIST_DIR}/e2e_test.cpp)
target_compile_definitions(launcher_e2e_test PRIVATE
  SPK_PACK_PATH="$<TARGET_FILE:spk-pack>"
  SAMPLE_CLIENT_PATH="$<TARGET_FILE:nimbulo-pelora-ui>")
# The tests run the bundle, so building them builds it.
add_dependencies(launcher_e2e_test NimbuloBundle spk-pack nimbulo-pelora-ui)
