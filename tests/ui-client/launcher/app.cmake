# Progress dialog and extractor. The program lives in Contents/MacOS of a
# bundle of its own, whose resources the tests fill, so that the real
# service finds its INFO, package and icon there.
nimbulo_test(launcher_ui_test
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/launcher_app_test.cpp ${CMAKE_CURRENT_LIST_DIR}/extractor_test.cpp
  LIBS launcher_core LibArchive::LibArchive Qt5::Test
  QT)
set(ui_test_bundle ${CMAKE_CURRENT_BINARY_DIR}/ui-test/Nimbulo.app)
set_target_properties(launcher_ui_test PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ui_test_bundle}/Contents/MacOS)
file(COPY ${PROJECT_SOURCE_DIR}/ui-client/launcher/bundle/ico_72_nimbulo.png
     DESTINATION ${ui_test_bundle}/Contents/Resources/images)
