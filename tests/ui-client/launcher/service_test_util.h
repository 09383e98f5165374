// Fixtures shared by the upgrade-service tests. Built on the standard
// library and POSIX only, so that a fault in our own file operations cannot
// hide itself in the fixtures that check them.
#ifndef NIMBULO_SERVICE_TEST_UTIL_H
#define NIMBULO_SERVICE_TEST_UTIL_H

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace servicetest {

namespace fs = std::filesystem;

// A fresh folder under the system's temporary folder, removed at the end
// unless NIMBULO_KEEP_TMP is set (to look at what a failed test left).
class TempDir {
public:
    TempDir()
    {
        std::string tmpl = (fs::temp_directory_path() / "nimbulo-service-XXXXXX").string();
        std::vector<char> buf(tmpl.begin(), tmpl.end());
        buf.push_back('\0');
        if (mkdtemp(buf.data()) != nullptr)
            path_ = fs::canonical(buf.data()).string();
    }
    ~TempDir()
    {
        if (!path_.empty() && getenv("NIMBULO_KEEP_TMP") == nullptr) {
            std::error_code ec;
            fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ec);
            fs::remove_all(path_, ec);
        }
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_;
};

inline void WriteFile(const std::string& path, const std::string& content)
{
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << content;
}

inline std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

// Every regular file below root, by relative path, with its bytes; folders
// appear with the content "<dir>". Equal snapshots mean byte-identical trees.
inline std::map<std::string, std::string> Snapshot(const std::string& root)
{
    std::map<std::string, std::string> tree;
    std::error_code ec;
    if (!fs::exists(root, ec))
        return tree;
    for (auto it = fs::recursive_directory_iterator(root, ec); it != fs::recursive_directory_iterator();
         it.increment(ec)) {
        std::string rel = fs::relative(it->path(), root).string();
        if (it->is_directory())
            tree[rel] = "<dir>";
        else
            tree[rel] = ReadFile(it->path().string());
    }
    return tree;
}

// The messages of a log file, each without its time stamp and with the
// source line number replaced by N: "[INFO] nimbulo-service(N): text". A
// message without a final line break runs on into the next one, as it
// does in the file.
inline std::vector<std::string> LogMessages(const std::string& path)
{
    std::string text = ReadFile(path);
    static const std::regex stamp("[A-Z][a-z]{2} [ 0-9][0-9] [0-9]{2}:[0-9]{2}:[0-9]{2} (\\[[A-Z]+\\])");
    std::vector<std::string> messages;
    std::vector<std::pair<size_t, size_t>> starts;  // message start, stamp start
    for (auto it = std::sregex_iterator(text.begin(), text.end(), stamp); it != std::sregex_iterator(); ++it)
        starts.emplace_back(it->position(1), it->position(0));
    for (size_t i = 0; i < starts.size(); ++i) {
        size_t end = i + 1 < starts.size() ? starts[i + 1].second : text.size();
        std::string message = text.substr(starts[i].first, end - starts[i].first);
        if (!message.empty() && message.back() == '\n')
            message.pop_back();
        static const std::regex line("^(\\[[A-Z]+\\] [a-z/-]+)\\([0-9]+\\): ");
        messages.push_back(std::regex_replace(message, line, "$1(N): ", std::regex_constants::format_first_only));
    }
    return messages;
}

inline int CountContaining(const std::vector<std::string>& messages, const std::string& part)
{
    int n = 0;
    for (const auto& m : messages)
        n += m.find(part) != std::string::npos ? 1 : 0;
    return n;
}

inline std::string Join(const std::vector<std::string>& messages)
{
    std::string all;
    for (const auto& m : messages)
        all += m + "\n";
    return all;
}

struct RunResult {
    int status = -1;  // exit code, or 128 + signal
    std::string output;
};

// Runs argv with extra environment settings, collecting standard output.
inline RunResult RunProgram(const std::vector<std::string>& argv, const std::map<std::string, std::string>& env = {})
{
    RunResult result;
    int fds[2];
    if (pipe(fds) != 0)
        return result;
    pid_t pid = fork();
    if (pid == 0) {
        dup2(fds[1], STDOUT_FILENO);
        close(fds[0]);
        close(fds[1]);
        for (const auto& kv : env)
            setenv(kv.first.c_str(), kv.second.c_str(), 1);
        std::vector<char*> args;
        for (const auto& a : argv)
            args.push_back(const_cast<char*>(a.c_str()));
        args.push_back(nullptr);
        execv(args[0], args.data());
        _exit(127);
    }
    close(fds[1]);
    char buf[4096];
    ssize_t n;
    while ((n = read(fds[0], buf, sizeof(buf))) > 0 || (n < 0 && errno == EINTR))
        if (n > 0)
            result.output.append(buf, n);
    close(fds[0]);
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

// key=value lines into a map.
inline std::map<std::string, std::string> ParsePairs(const std::string& text)
{
    std::map<std::string, std::string> pairs;
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line)) {
        size_t eq = line.find('=');
        if (eq != std::string::npos)
            pairs[line.substr(0, eq)] = line.substr(eq + 1);
    }
    return pairs;
}

}  // namespace servicetest

#endif
