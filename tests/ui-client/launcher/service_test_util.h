// Fixtures shared by the launcher's tests. Built on the standard library,
// POSIX and libarchive's writer only, so that a fault in our own file
// operations cannot hide itself in the fixtures that check them.
#ifndef NIMBULO_SERVICE_TEST_UTIL_H
#define NIMBULO_SERVICE_TEST_UTIL_H

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace servicetest {

namespace fs = std::filesystem;

// A fresh folder, removed at the end unless NIMBULO_KEEP_TMP is set.
class TempDir {
public:
    TempDir()
    {
        std::string tmpl = (fs::temp_directory_path() / "nimbulo-test-XXXXXX").string();
        if (mkdtemp(&tmpl[0]) != nullptr)
            path_ = fs::canonical(tmpl).string();
    }
    ~TempDir()
    {
        std::error_code ec;
        if (!path_.empty() && getenv("NIMBULO_KEEP_TMP") == nullptr) {
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
    std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
}

inline std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

inline std::string Bytes(size_t n, unsigned seed)
{
    std::string s(n, '\0');
    for (char& c : s) {
        seed = seed * 1103515245u + 12345u;
        c = static_cast<char>(seed >> 16);
    }
    return s;
}

// Every file below root by relative path with its bytes, folders as "<dir>":
// equal snapshots mean byte-identical trees.
inline std::map<std::string, std::string> Snapshot(const std::string& root)
{
    std::map<std::string, std::string> tree;
    std::error_code ec;
    for (auto it = fs::recursive_directory_iterator(root, ec); !ec && it != fs::recursive_directory_iterator();
         it.increment(ec))
        tree[fs::relative(it->path(), root).string()] =
            it->is_directory() ? "<dir>" : ReadFile(it->path().string());
    return tree;
}

// The messages of a log file from byte `from` on, without time stamps and
// with the source line as N: "[INFO] nimbulo-service(N): text". A message
// without a final line break runs on into the next one, as in the file.
inline std::vector<std::string> LogMessages(const std::string& path, size_t from = 0)
{
    std::string text = ReadFile(path);
    text = from < text.size() ? text.substr(from) : "";
    static const std::regex stamp("[A-Z][a-z]{2} [ 0-9][0-9] [0-9]{2}:[0-9]{2}:[0-9]{2} (\\[[A-Z]+\\])");
    static const std::regex line("^(\\[[A-Z]+\\] [a-z/-]+)\\([0-9]+\\): ");
    std::vector<std::pair<size_t, size_t>> starts;  // message start, stamp start
    for (auto it = std::sregex_iterator(text.begin(), text.end(), stamp); it != std::sregex_iterator(); ++it)
        starts.emplace_back(it->position(1), it->position(0));
    std::vector<std::string> messages;
    for (size_t i = 0; i < starts.size(); ++i) {
        size_t end = i + 1 < starts.size() ? starts[i + 1].second : text.size();
        std::string m = text.substr(starts[i].first, end - starts[i].first);
        if (!m.empty() && m.back() == '\n')
            m.pop_back();
        messages.push_back(std::regex_replace(m, line, "$1(N): ", std::regex_constants::format_first_only));
    }
    return messages;
}

inline std::string Join(const std::vector<std::string>& messages)
{
    std::string all;
    for (const auto& m : messages)
        all += m + "\n";
    return all;
}

// Runs argv with extra environment settings; exit code (128 + signal) and
// standard output.
struct RunResult {
    int status = -1;
    std::string output;
};

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
    for (std::string line; std::getline(in, line);) {
        size_t eq = line.find('=');
        if (eq != std::string::npos)
            pairs[line.substr(0, eq)] = line.substr(eq + 1);
    }
    return pairs;
}

enum class Kind { Tar, TarGz, TarXz, Zip, SevenZip, Cpio };

struct Entry {
    std::string path;
    std::string data;
    bool dir = false;
};

// Writes entries with libarchive's writer; a refusal fails the test, so a
// broken fixture never passes as a result.
inline bool WriteArchive(const std::string& file, Kind kind, const std::vector<Entry>& entries)
{
    fs::create_directories(fs::path(file).parent_path());
    archive* a = archive_write_new();
    switch (kind) {
    case Kind::Tar: archive_write_set_format_ustar(a); break;
    case Kind::TarGz: archive_write_set_format_pax_restricted(a); archive_write_add_filter_gzip(a); break;
    case Kind::TarXz: archive_write_set_format_pax_restricted(a); archive_write_add_filter_xz(a); break;
    case Kind::Zip: archive_write_set_format_zip(a); break;
    case Kind::SevenZip: archive_write_set_format_7zip(a); break;
    case Kind::Cpio: archive_write_set_format_cpio_newc(a); break;
    }
    bool ok = archive_write_open_filename(a, file.c_str()) == ARCHIVE_OK;
    for (size_t i = 0; ok && i < entries.size(); ++i) {
        const Entry& e = entries[i];
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, e.path.c_str());
        archive_entry_set_filetype(entry, e.dir ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry, e.dir ? 0755 : 0644);
        archive_entry_set_size(entry, static_cast<la_int64_t>(e.data.size()));
        archive_entry_set_mtime(entry, 1700000000, 0);
        ok = archive_write_header(a, entry) == ARCHIVE_OK &&
             (e.data.empty() ||
              archive_write_data(a, e.data.data(), e.data.size()) == static_cast<la_ssize_t>(e.data.size()));
        archive_entry_free(entry);
    }
    ok = archive_write_close(a) == ARCHIVE_OK && ok;
    if (!ok)
        ADD_FAILURE() << "writing " << file << ": " << (archive_error_string(a) ? archive_error_string(a) : "");
    archive_write_free(a);
    return ok;
}

}  // namespace servicetest

#endif
