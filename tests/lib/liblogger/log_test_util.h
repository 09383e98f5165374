// Helpers shared by the logger tests: time-stamp checks, stream capture and
// whole-file reads, all on the standard library alone.
#ifndef NIMBULO_LOG_TEST_UTIL_H
#define NIMBULO_LOG_TEST_UTIL_H

#include "log.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace logtest {

// The line number every test passes, so that line lengths are known in advance.
const int kLine = 123;
// "Nov 16 20:33:07 " in the C locale the tests run in.
const size_t kStampLength = 16;

inline const char* Format(Logger::Level level)
{
    static const char* const kFormats[] = {"[ERROR] logger_test(%d): %s\n", "[WARNING] logger_test(%d): %s\n",
                                           "[NOTE] logger_test(%d): %s\n", "[INFO] logger_test(%d): %s\n",
                                           "[DEBUG] logger_test(%d): %s\n"};
    return kFormats[level - Logger::LEVEL_ERROR];
}

inline void Log(Logger::Level level, const char* component, const std::string& text)
{
    Logger::LogMsg(level, ustring(component), Format(level), kLine, text.c_str());
}

// The caller's text as the logger must write it, without the stamp.
inline std::string Text(Logger::Level level, const std::string& text)
{
    std::vector<char> buf(text.size() + 64);
    snprintf(buf.data(), buf.size(), Format(level), kLine, text.c_str());
    return buf.data();
}

inline std::string ReadFile(const std::filesystem::path& path)
{
    std::ostringstream s;
    s << std::ifstream(path, std::ios::binary).rdbuf();
    return s.str();
}

// Splits output into lines (line feeds kept) and strips each line's time stamp; a line without one comes
// back prefixed with "NO STAMP: ", so comparisons fail.
inline std::vector<std::string> Unstamped(const std::string& content)
{
    static const std::regex kStamp("(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) \\d\\d \\d\\d:\\d\\d:\\d\\d ");
    std::vector<std::string> lines;
    for (size_t start = 0, end; start < content.size(); start = end) {
        end = std::min(content.find('\n', start), content.size() - 1) + 1;
        std::string line = content.substr(start, end - start);
        bool stamped = std::regex_match(line.substr(0, kStampLength), kStamp);
        lines.push_back(stamped ? line.substr(kStampLength) : "NO STAMP: " + line);
    }
    return lines;
}

// Points a file descriptor (1 or 2) at a file until Finish().
class CaptureFd {
public:
    CaptureFd(int fd, const std::filesystem::path& file) : fd_(fd), saved_((fflush(nullptr), dup(fd))), file_(file)
    {
        int target = open(file.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
        dup2(target, fd);
        close(target);
    }
    ~CaptureFd() { Finish(); }
    std::string Finish()
    {
        if (saved_ >= 0) {
            fflush(nullptr);
            dup2(saved_, fd_);
            close(saved_);
            saved_ = -1;
        }
        return ReadFile(file_);
    }

private:
    int fd_;
    int saved_;
    std::filesystem::path file_;
};

inline std::filesystem::path MakeTempDir(const char* prefix)
{
    std::string tmpl = (std::filesystem::temp_directory_path() / prefix).string() + ".XXXXXX";
    return mkdtemp(&tmpl[0]) == nullptr ? std::filesystem::path() : std::filesystem::path(tmpl);
}

}  // namespace logtest

#endif
