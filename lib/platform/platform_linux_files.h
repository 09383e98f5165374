// Shared by the Linux files of the platform layer; not part of its interface.
#ifndef NIMBULO_PLATFORM_LINUX_FILES_H
#define NIMBULO_PLATFORM_LINUX_FILES_H

#include <string>

// The whole content of a small file (a bundle's Info.plist, /proc/PID/cmdline)
// into text. false when it cannot be opened; the stream is always closed.
bool PlatformReadWholeFile(const std::string& path, std::string& text);

#endif
