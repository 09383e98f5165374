# Launcher, worker wiring and progress dialog, driven through a real Qt event
# loop with a stand-in for the worker's flow.
nimbulo_test(launcher_app_test
  SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/launcher_app_test.cpp
  LIBS launcher_core Qt5::Test
  QT)
