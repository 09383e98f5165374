// Logger and Config: the process-wide diagnostic log, and the strict
// key=value reader that feeds its thresholds and reads the client's pid file.
#include "liblogger/log.h"
#include "liblogger/config.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <syslog.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <new>
#include <sstream>

namespace {

// The C locale's isspace set, spelled out so that the process locale cannot
// change what a line means.
bool IsBlank(unsigned char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

bool IsKeyByte(unsigned char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.';
}

char* SkipBlanks(char* p)
{
    while (IsBlank(static_cast<unsigned char>(*p))) {
        ++p;
    }
    return p;
}

// Streams the logger opened itself; the standard streams are never closed.
bool IsOwnStream(FILE* fp)
{
    return fp != nullptr && fp != stdout && fp != stderr;
}

// The log file for appending. Close-on-exec, so that no program this process
// starts inherits it and writes into it.
FILE* OpenForAppend(const char* path)
{
    int fd = open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    if (fd < 0) {
        return nullptr;
    }
    FILE* fp = fdopen(fd, "a");
    if (fp == nullptr) {
        close(fd);
    }
    return fp;
}

const int kDefaultThreshold = 4;
const int32_t kRotateSize = 0x100001;  // the first size past 1 MiB
const size_t kLineBufferSize = 8192;
const size_t kRotatedNameSize = 1024;

}  // namespace

// ---------------------------------------------------------------------------
// Config

Config::Config() : keepQuotes(false) { }

int Config::read(const ustring& path)
{
    if (path.empty()) {
        return -1;
    }
    FILE* fp = fopen(path.c_str_utf8(), "re");
    if (fp == nullptr) {
        return -1;
    }
    // A line longer than the buffer arrives in pieces; each piece is scanned
    // as a line of its own.
    char line[kLineBufferSize];
    while (fgets(line, sizeof(line), fp) != nullptr) {
        ustring key;
        ustring value;
        int rc = parse(line, static_cast<int>(strlen(line)), key, value);
        if (rc == 0) {
            table[key] = value;
        } else if (rc == 2) {
            table.clear();
            fclose(fp);
            return -1;
        }
    }
    // A path that opens but cannot be read (a folder) is as unreadable as a
    // missing one.
    const bool failed = ferror(fp) != 0;
    fclose(fp);
    return failed ? -1 : 0;
}

int Config::parse(char* line, int /*length*/, ustring& key, ustring& value)
{
    char* p = SkipBlanks(line);
    char* key_begin = p;
    while (IsKeyByte(static_cast<unsigned char>(*p))) {
        ++p;
    }
    char* key_end = p;
    // A bare key at the very end of the text (no line feed) counts as a
    // comment; with a line feed it is an error below.
    if (*p == '\0' || *p == '#') {
        return 1;
    }
    p = SkipBlanks(p);
    if (*p != '=') {
        return 2;
    }
    p = SkipBlanks(p + 1);

    char quote = '\0';
    if (*p == '"' || *p == '\'') {
        quote = *p;
        ++p;
    } else if (*p == '\0') {
        return 2;
    }
    const char terminator = quote != '\0' ? quote : ' ';
    char* value_begin = p;
    while (*p != terminator && static_cast<unsigned char>(*p) >= 0x20 && *p != 0x7f) {
        ++p;
    }
    char* value_end = p;
    if (quote != '\0') {
        if (*p != quote) {
            return 2;
        }
        ++p;
    }
    p = SkipBlanks(p);
    if (*p != '\0' && *p != '#') {
        return 2;
    }

    *key_end = '\0';
    *value_end = '\0';
    key = key_begin;
    value = value_begin;
    if (keepQuotes && quote != '\0') {
        value = ustring(quote) + value + ustring(quote);
    }
    return 0;
}

int Config::get_int(const ustring& key)
{
    // Stream extraction semantics on purpose: "12abc" is 12, "0x10" is 0 and
    // an out-of-range number clamps to the nearest limit.
    std::istringstream in(table[key].c_str_utf8());
    int n = 0;
    in >> n;
    return n;
}

// ---------------------------------------------------------------------------
// Logger

std::map<ustring, int> Logger::log_level;
FILE* Logger::log_fp = stderr;
int32_t* Logger::log_size = nullptr;
ustring Logger::log_path;
pthread_mutex_t* Logger::log_lock = nullptr;
int64_t* Logger::log_rotated_count_shared = nullptr;
int64_t Logger::log_rotated_count_private = 0;
// Until Initialize runs, the type says standard output while the stream is
// standard error: early messages land on standard error, time-stamped.
Logger::Type Logger::log_type = Logger::TYPE_STDOUT;
int Logger::rotate_cnt = 50;
bool Logger::log_initialized = true;

int Logger::Initialize(Logger::Type type, const ustring& path, const ustring& levelFile, int rotateCount)
{
    DestroySharedData();
    DestroyLock();
    InitializeLock();
    if (log_lock == nullptr || InitializeSharedData() == nullptr) {
        return -1;
    }

    log_level[ustring("default_component")] = kDefaultThreshold;
    if (!levelFile.empty()) {
        // An unreadable or ill-formed switch file leaves the table empty.
        Config config;
        config.read(levelFile);
        for (std::map<ustring, ustring>::const_iterator it = config.table.begin(); it != config.table.end();
             ++it) {
            log_level[it->first] = config.get_int(it->first);
        }
    }

    log_type = type;
    if (type == TYPE_FILE) {
        if (path.empty()) {
            return -1;
        }
        FILE* fp = OpenForAppend(path.c_str_utf8());
        if (fp == nullptr) {
            return -1;
        }
        if (IsOwnStream(log_fp)) {
            fclose(log_fp);
        }
        log_fp = fp;
        log_path = path;
        rotate_cnt = rotateCount;
        log_rotated_count_private = 0;
        *log_rotated_count_shared = 0;
        *log_size = GetFileSize(path);
        log_initialized = true;
        return 0;
    }

    FILE* fp = stderr;
    if (type == TYPE_STDOUT) {
        fp = stdout;
    } else if (type == TYPE_SYSLOG) {
        fp = nullptr;
    }
    if (IsOwnStream(log_fp)) {
        fclose(log_fp);
    }
    log_fp = fp;
    log_path.clear();
    *log_size = -1;
    log_rotated_count_private = 0;
    *log_rotated_count_shared = 0;
    log_initialized = true;
    return 0;
}

void Logger::LogMsg(Logger::Level level, const ustring& component, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    LogMsg2(level, component, format, args);
    va_end(args);
}

void Logger::LogMsg2(Logger::Level level, const ustring& component, const char* format, va_list args)
{
    if (!log_initialized) {
        return;
    }
    if (log_lock == nullptr) {
        InitializeLock();
    }
    if (log_size == nullptr || log_rotated_count_shared == nullptr) {
        InitializeSharedData();
    }

    // The suppressed path ends here: one lookup, no formatting, no lock.
    // find() rather than [] so that unknown components are not added.
    std::map<ustring, int>::const_iterator it = log_level.find(component);
    int threshold = it != log_level.end() ? it->second : kDefaultThreshold;
    if (level > threshold) {
        return;
    }

    if (Lock() != 0) {
        return;
    }
    it = log_level.find(component);
    threshold = it != log_level.end() ? it->second : kDefaultThreshold;
    if (level > threshold) {
        Unlock();
        return;
    }
    // The stream is tested only under the lock: while another thread
    // rotates, the stream is briefly closed, and a test made before locking
    // would throw away every message that arrives in that window.
    if (log_type != TYPE_SYSLOG && log_fp == nullptr) {
        Unlock();
        return;
    }

    // Another writer of the same log rotated it: our stream points at what
    // is now a numbered file.
    if (log_rotated_count_shared != nullptr && log_rotated_count_private != *log_rotated_count_shared) {
        ReloadLogFile();
        log_rotated_count_private = *log_rotated_count_shared;
    }

    int written = 0;
    switch (log_type) {
    case TYPE_SYSLOG:
        vsyslog(LOG_ERR, format, args);
        break;
    case TYPE_STDOUT:
    case TYPE_STDERR:
    case TYPE_FILE:
        written = PrintToFilePointerV(format, args);
        break;
    default:
        written = vfprintf(stderr, format, args);
        break;
    }

    // The message that crosses the limit stays in the old file; rotation
    // follows it. A size of -1 (not a file, or a failed set-up) never rotates.
    if (log_type == TYPE_FILE && log_size != nullptr && *log_size >= 0 && written >= 0) {
        *log_size += written;
        if (*log_size >= kRotateSize) {
            Rotate();
            *log_size = 0;
        }
    }
    Unlock();
}

int Logger::PrintToFilePointer(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    int n = PrintToFilePointerV(format, args);
    va_end(args);
    return n;
}

int Logger::PrintToFilePointerV(const char* format, va_list args)
{
    if (log_fp == nullptr) {
        return 0;
    }
    char stamp[512];
    stamp[0] = '\0';
    time_t now = time(nullptr);
    struct tm local;
    if (localtime_r(&now, &local) != nullptr) {
        size_t n = strftime(stamp, sizeof(stamp), "%b %d %H:%M:%S ", &local);
        stamp[n] = '\0';
    }
    int stamp_count = fprintf(log_fp, "%s", stamp);
    int text_count = vfprintf(log_fp, format, args);
    fflush(log_fp);
    if (stamp_count < 0 || text_count < 0) {
        return -1;
    }
    return stamp_count + text_count;
}

// With rotate_cnt 3 and log_path ".../launcher.log":
//   launcher.log_1 -> launcher.log_2, launcher.log_0 -> launcher.log_1,
//   remove launcher.log_2, launcher.log -> launcher.log_0, reopen launcher.log.
// So at most rotate_cnt - 1 numbered files survive (_0 is the newest), and
// numbers from rotate_cnt up are never touched.
int Logger::Rotate()
{
    if (log_type != TYPE_FILE || log_path.empty()) {
        return -1;
    }
    const char* path = log_path.c_str_utf8();
    char from[kRotatedNameSize];
    char to[kRotatedNameSize];
    for (int i = rotate_cnt - 2; i >= 0; --i) {
        snprintf(from, sizeof(from), "%s_%d", path, i);
        snprintf(to, sizeof(to), "%s_%d", path, i + 1);
        rename(from, to);
    }
    snprintf(to, sizeof(to), "%s_%d", path, rotate_cnt - 1);
    remove(to);

    if (IsOwnStream(log_fp)) {
        fclose(log_fp);
    }
    log_fp = nullptr;
    snprintf(to, sizeof(to), "%s_%d", path, 0);
    if (rename(path, to) != 0) {
        return -1;
    }
    FILE* fp = OpenForAppend(path);
    if (fp == nullptr) {
        return -1;
    }
    log_fp = fp;
    if (log_rotated_count_shared != nullptr) {
        ++*log_rotated_count_shared;
    }
    ++log_rotated_count_private;
    return 0;
}

void Logger::ReloadLogFile()
{
    if (log_type != TYPE_FILE) {
        return;
    }
    if (IsOwnStream(log_fp)) {
        fclose(log_fp);
    }
    log_fp = OpenForAppend(log_path.c_str_utf8());
    if (log_fp != nullptr && log_size != nullptr) {
        *log_size = GetFileSize(log_path);
    }
}

int Logger::GetFileSize(const ustring& path)
{
    struct stat st;
    if (stat(path.c_str_utf8(), &st) != 0) {
        int err = errno;
        const char* text = strerror(err);
        PrintToFilePointer("stat(%s): %s (%d)\n", path.c_str_utf8(), text != nullptr ? text : "", err);
        return 0;
    }
    return static_cast<int32_t>(st.st_size);
}

void Logger::Destroy()
{
    log_initialized = false;
    if (log_type == TYPE_FILE) {
        if (IsOwnStream(log_fp)) {
            fclose(log_fp);
        }
        log_fp = nullptr;
        log_path.clear();
    }
    DestroySharedData();
    DestroyLock();
}

void Logger::InitializeLock()
{
    if (log_lock != nullptr) {
        return;
    }
    pthread_mutex_t* mutex = new (std::nothrow) pthread_mutex_t;
    if (mutex == nullptr) {
        return;
    }
    if (pthread_mutex_init(mutex, nullptr) != 0) {
        delete mutex;
        return;
    }
    log_lock = mutex;
}

void Logger::DestroyLock()
{
    if (log_lock == nullptr) {
        return;
    }
    pthread_mutex_destroy(log_lock);
    delete log_lock;
    log_lock = nullptr;
}

int Logger::Lock()
{
    return log_lock != nullptr ? pthread_mutex_lock(log_lock) : -1;
}

int Logger::Unlock()
{
    return log_lock != nullptr ? pthread_mutex_unlock(log_lock) : -1;
}

int32_t* Logger::InitializeSharedData()
{
    if (log_size != nullptr && log_rotated_count_shared != nullptr) {
        return log_size;
    }
    DestroySharedData();
    log_size = new (std::nothrow) int32_t(-1);
    log_rotated_count_shared = new (std::nothrow) int64_t(0);
    if (log_size == nullptr || log_rotated_count_shared == nullptr) {
        DestroySharedData();
        return nullptr;
    }
    return log_size;
}

void Logger::DestroySharedData()
{
    delete log_size;
    log_size = nullptr;
    delete log_rotated_count_shared;
    log_rotated_count_shared = nullptr;
}

extern "C" void LogMSG_c(int level, char* component, const char* format, va_list args)
{
    Logger::LogMsg2(static_cast<Logger::Level>(level), ustring(component != nullptr ? component : ""), format,
                    args);
}
