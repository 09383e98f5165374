// Helpers shared by the logger tests: time-stamp checks, stream capture and
// whole-file reads, all on the standard library alone.
#ifndef NIMBULO_LOG_TEST_UTIL_H
#define NIMBULO_LOG_TEST_UTIL_H

#include "log.h"

#include <fcntl.h>
#include <unistd.h>

#include <cctype>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace logtest {

// The line number the tests pass as the first argument, so that line
// lengths are known in advance.
const int kLine = 123;
// "Nov 16 20:33:07 " in the C locale the tests run in.
const size_t kStampLength = 16;

inline const char* Format(Logger::Level level)
{
    switch (level) {
    case Logger::LEVEL_ERROR:
        return "[ERROR] logger_test(%d): %s\n";
    case Logger::LEVEL_WARNING:
        return "[WARNING] logger_test(%d): %s\n";
    case Logger::LEVEL_NOTE:
        return "[NOTE] logger_test(%d): %s\n";
    case Logger::LEVEL_INFO:
        return "[INFO] logger_test(%d): %s\n";
    default:
        return "[DEBUG] logger_test(%d): %s\n";
    }
}

inline void Log(Logger::Level level, const char* component, const std::string& text)
{
    Logger::LogMsg(level, ustring(component), Format(level), kLine, text.c_str());
}

// The caller's text as the logger must write it, without the stamp.
inline std::string Text(Logger::Level level, const std::string& text)
{
    int n = snprintf(nullptr, 0, Format(level), kLine, text.c_str());
    std::string buf(static_cast<size_t>(n) + 1, '\0');
    snprintf(&buf[0], buf.size(), Format(level), kLine, text.c_str());
    buf.resize(static_cast<size_t>(n));
    return buf;
}

inline bool HasStamp(const std::string& line)
{
    static const char* const kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                          "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    if (line.size() < kStampLength) {
        return false;
    }
    bool month = false;
    for (const char* m : kMonths) {
        month = month || line.compare(0, 3, m) == 0;
    }
    const char* shape = "mmm dd dd:dd:dd ";
    for (size_t i = 3; i < kStampLength; ++i) {
        bool ok = shape[i] == 'd' ? isdigit(static_cast<unsigned char>(line[i])) != 0 : line[i] == shape[i];
        if (!ok) {
            return false;
        }
    }
    return month;
}

inline std::string ReadFile(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

// Splits written output into lines, checks that each one carries a time
// stamp and returns the texts after it (line feeds kept). A line without a
// stamp comes back whole, prefixed with "NO STAMP: ", so comparisons fail.
inline std::vector<std::string> Unstamped(const std::string& content)
{
    std::vector<std::string> lines;
    size_t start = 0;
    while (start < content.size()) {
        size_t end = content.find('\n', start);
        end = end == std::string::npos ? content.size() : end + 1;
        std::string line = content.substr(start, end - start);
        lines.push_back(HasStamp(line) ? line.substr(kStampLength) : "NO STAMP: " + line);
        start = end;
    }
    return lines;
}

// Points a file descriptor (1 or 2) at a file until Finish().
class CaptureFd {
public:
    CaptureFd(int fd, const std::filesystem::path& file)
        : fd_(fd), file_(file)
    {
        fflush(nullptr);
        saved_ = dup(fd);
        int target = open(file.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
        dup2(target, fd);
        close(target);
    }
    ~CaptureFd() { Restore(); }
    std::string Finish()
    {
        Restore();
        return ReadFile(file_);
    }

private:
    void Restore()
    {
        if (saved_ < 0) {
            return;
        }
        fflush(nullptr);
        dup2(saved_, fd_);
        close(saved_);
        saved_ = -1;
    }

    int fd_;
    int saved_;
    std::filesystem::path file_;
};

inline std::filesystem::path MakeTempDir(const char* prefix)
{
    std::string tmpl = (std::filesystem::temp_directory_path() / prefix).string() + ".XXXXXX";
    if (mkdtemp(&tmpl[0]) == nullptr) {
        return std::filesystem::path();
    }
    return tmpl;
}

}  // namespace logtest

#endif
