# Upgrade-service tests: layout, version decision, stopping and starting the
# client, installation with backup and rollback.

# Helper program: prints the layout from inside a bundle, and runs the
# StopService cases as process 1 of a fresh PID namespace.
add_executable(service_helper ${CMAKE_CURRENT_SOURCE_DIR}/service_helper.cpp)
target_link_libraries(service_helper PRIVATE launcher_core)
nimbulo_warnings(service_helper)

nimbulo_test(service_layout_test SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/service_layout_test.cpp LIBS launcher_core)
nimbulo_test(service_stop_test SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/stop_service_test.cpp LIBS launcher_core)
foreach(t service_layout_test service_stop_test)
  target_compile_definitions(${t} PRIVATE SERVICE_HELPER="$<TARGET_FILE:service_helper>")
  add_dependencies(${t} service_helper)
endforeach()

nimbulo_test(service_launch_test SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/launch_test.cpp LIBS launcher_core)

# These run from a bundle of their own (see service_bundle_main.cpp).
nimbulo_test(service_version_test QT
  SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/version_decision_test.cpp ${CMAKE_CURRENT_SOURCE_DIR}/service_bundle_main.cpp
  LIBS launcher_core)
nimbulo_test(service_install_test QT
  SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/install_test.cpp ${CMAKE_CURRENT_SOURCE_DIR}/service_bundle_main.cpp
  LIBS launcher_core LibArchive::LibArchive)
