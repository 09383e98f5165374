# Extractor: real archives written by libarchive, real folders, a real log.
nimbulo_test(extractor_test
  SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/extractor_test.cpp
  LIBS launcher_core LibArchive::LibArchive Qt5::Test
  QT)
