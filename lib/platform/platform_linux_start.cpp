// Linux: where the running executable is, and whether a display is there.
#include "platform/platform.h"

#include <cstdlib>
#include <dlfcn.h>
#include <string>
#include <unistd.h>

ustring PlatformExecutablePath()
{
    // The kernel's own record of the executable: links, relative paths and
    // PATH look-ups are already resolved, whatever the first argument says.
    std::string path(256, '\0');
    for (;;) {
        ssize_t n = readlink("/proc/self/exe", &path[0], path.size());
        if (n <= 0)
            return ustring();
        if (static_cast<size_t>(n) < path.size()) {
            path.resize(static_cast<size_t>(n));
            return ustring(path);
        }
        path.resize(path.size() * 2);
    }
}

// Qt's default platform here is X11, and the bundle carries no other that
// needs a display, so a Wayland session counts through its X server. The
// test is the one Qt's X11 plug-in starts with: a connection through the X
// client library, which also checks the display's authorisation.
bool PlatformDisplayReachable(ustring& reason)
{
    const char* display = getenv("DISPLAY");
    if (display == nullptr || display[0] == '\0') {
        reason = "DISPLAY is not set";
        return false;
    }
    void* xcb = dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL);
    if (xcb == nullptr) {
        reason = "the X client library cannot be loaded";
        return false;
    }
    typedef void* (*ConnectFn)(const char*, int*);
    typedef int (*HasErrorFn)(void*);
    typedef void (*DisconnectFn)(void*);
    ConnectFn connect = reinterpret_cast<ConnectFn>(dlsym(xcb, "xcb_connect"));
    HasErrorFn hasError = reinterpret_cast<HasErrorFn>(dlsym(xcb, "xcb_connection_has_error"));
    DisconnectFn disconnect = reinterpret_cast<DisconnectFn>(dlsym(xcb, "xcb_disconnect"));
    bool reachable = false;
    if (connect != nullptr && hasError != nullptr && disconnect != nullptr) {
        // Even a failed connection is an object that must be released.
        void* connection = connect(display, nullptr);
        reachable = connection != nullptr && hasError(connection) == 0;
        if (connection != nullptr)
            disconnect(connection);
    }
    dlclose(xcb);
    if (!reachable)
        reason = ustring("the X display '") + display + "' cannot be reached";
    return reachable;
}
