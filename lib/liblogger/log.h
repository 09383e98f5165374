// Logger: the process-wide diagnostic log, with per-component thresholds and
// a rotating file sink. All state is static.
#ifndef NIMBULO_LOG_H
#define NIMBULO_LOG_H

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>
#include <pthread.h>

#include "libustring/ustring.h"

class Logger {
public:
    enum Type {
        TYPE_SYSLOG = 1,
        TYPE_STDOUT = 2,
        TYPE_STDERR = 3,
        TYPE_FILE = 4,
    };

    // Syslog numbering; the caller's format begins with the matching tag.
    enum Level {
        LEVEL_ERROR = 3,    // "[ERROR]"
        LEVEL_WARNING = 4,  // "[WARNING]"
        LEVEL_NOTE = 5,     // "[NOTE]"
        LEVEL_INFO = 6,     // "[INFO]"
        LEVEL_DEBUG = 7,    // "[DEBUG]"
    };

    static int Initialize(Logger::Type type, const ustring& path, const ustring& levelFile, int rotateCount);
    static void LogMsg(Logger::Level level, const ustring& component, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    static void LogMsg2(Logger::Level level, const ustring& component, const char* format, va_list args);
    static int PrintToFilePointer(const char* format, ...) __attribute__((format(printf, 1, 2)));
    static int PrintToFilePointerV(const char* format, va_list args);
    static int Rotate();
    static void ReloadLogFile();
    static int GetFileSize(const ustring& path);
    static void Destroy();

    static void InitializeLock();
    static void DestroyLock();
    static int Lock();
    static int Unlock();
    static int32_t* InitializeSharedData();
    static void DestroySharedData();

private:
    static std::map<ustring, int> log_level;
    static FILE* log_fp;
    static int32_t* log_size;
    static ustring log_path;
    static pthread_mutex_t* log_lock;
    static int64_t* log_rotated_count_shared;
    static int64_t log_rotated_count_private;
    static Logger::Type log_type;
    static int rotate_cnt;
    static bool log_initialized;
};

// The same as Logger::LogMsg2, exported unmangled for callers that cannot
// use the class.
extern "C" void LogMSG_c(int level, char* component, const char* format, va_list args);

#endif
