#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/encoding.h"
#include "platform/paths.h"
#include "platform/spelling.h"
#include "text/characters.h"
#include "text/separators.h"

namespace verandis {
namespace {

namespace fs = std::filesystem;

/// Opens for reading; a remembered spelling that does not open is searched anew once.
int OpenForReading(const std::string& path) {
    const int file = ::open(RememberedSpelling(path).c_str(), O_RDONLY | O_CLOEXEC);
    if (file >= 0 || (errno != ENOENT && errno != ENOTDIR)) return file;
    return ::open(FindSpellingAnew(path).c_str(), O_RDONLY | O_CLOEXEC);
}

/// The memory that serves every reading; it grows to the largest file and is never cleared.
std::vector<char>& ReadingBuffer() {
    static std::vector<char> buffer(std::size_t(64) * 1024);
    return buffer;
}

/// Reads to the end. A read of a regular file that gives less than was asked for has reached its
/// end, which saves the extra call that would tell the same.
std::optional<std::string_view> ReadAll(int file) {
    std::vector<char>& buffer = ReadingBuffer();
    std::size_t used = 0;
    while (true) {
        const std::size_t room = buffer.size() - used;
        const ssize_t count = ::read(file, buffer.data() + used, room);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        used += static_cast<std::size_t>(count);
        if (static_cast<std::size_t>(count) < room) break;
        buffer.resize(buffer.size() * 2);
    }
    return std::string_view(buffer.data(), used);
}

bool WriteAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

enum class WriteMode { Replace, Append };

bool WriteWith(const std::string& path, std::string_view bytes, WriteMode mode) {
    const std::string target = SpellingToWrite(path);
    const int flags = O_WRONLY | O_CREAT | O_CLOEXEC | (mode == WriteMode::Append ? O_APPEND : 0);
    const int file = ::open(target.c_str(), flags, 0666);
    if (file < 0) return false;
    bool written = WriteAll(file, bytes);
    if (mode == WriteMode::Replace && written) {
        // Cut behind the new content, not emptied before: a file that was emptied is flushed to the
        // disk when it is closed, which takes longer than a whole calculation.
        const int cut = ::ftruncate(file, static_cast<off_t>(bytes.size()));
        written = cut == 0 || errno == EINVAL;  // a device has no length
    }
    return ::close(file) == 0 && written;
}

/// True when the file holds bytes and the last one does not end a line.
bool LastLineIsOpen(const std::string& path) {
    const int file = OpenForReading(path);
    if (file < 0) return false;
    struct stat info {};
    char last = '\n';
    const bool filled = ::fstat(file, &info) == 0 && S_ISREG(info.st_mode) && info.st_size > 0;
    const bool read = filled && ::pread(file, &last, 1, info.st_size - 1) == 1;
    ::close(file);
    return read && last != '\n';
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) lines.emplace_back(TakeLine(text));
    return lines;
}

std::string JoinLines(const std::vector<std::string>& lines) {
    std::size_t size = 0;
    for (const std::string& line : lines) size += line.size() + 2;
    std::string text;
    text.reserve(size);
    for (const std::string& line : lines) text.append(line).append("\r\n");
    return text;
}

/// "*" stands for any run of characters; both texts are in lower case.
bool Matches(std::string_view name, std::string_view pattern) {
    const std::size_t star = pattern.find('*');
    if (star == std::string_view::npos) return name == pattern;
    if (!name.starts_with(pattern.substr(0, star))) return false;
    name.remove_prefix(star);
    pattern.remove_prefix(star + 1);
    for (std::size_t skip = 0; skip <= name.size(); ++skip) {
        if (Matches(name.substr(skip), pattern)) return true;
    }
    return false;
}

mode_t ModeOf(const std::string& realPath, bool followLinks) {
    struct stat info {};
    const int result =
        followLinks ? ::stat(realPath.c_str(), &info) : ::lstat(realPath.c_str(), &info);
    return result == 0 ? info.st_mode : mode_t(0);
}

/// The same for a path as asked for: in the remembered folder first.
mode_t RememberedMode(const std::string& path, bool follow) {
    const mode_t mode = ModeOf(RememberedSpelling(path), follow);
    return mode != 0 ? mode : ModeOf(FindSpelling(path), follow);
}

}  // namespace

std::optional<std::string_view> ReadView(const std::string& path) {
    const int file = OpenForReading(path);
    if (file < 0) return std::nullopt;
    const auto bytes = ReadAll(file);
    ::close(file);
    return bytes;
}

std::optional<std::string> ReadBytes(const std::string& path) {
    const auto bytes = ReadView(path);
    if (!bytes) return std::nullopt;
    return std::string(*bytes);
}

bool WriteBytes(const std::string& path, std::string_view bytes) {
    return WriteWith(path, bytes, WriteMode::Replace);
}

std::optional<std::vector<std::string>> ReadLines(const std::string& path) {
    const auto bytes = ReadView(path);
    if (!bytes) return std::nullopt;
    return SplitLines(FromWindows1252(*bytes));
}

std::optional<std::vector<std::string>> ReadUtf8Lines(const std::string& path) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    auto bytes = ReadView(path);
    if (!bytes) return std::nullopt;
    if (bytes->starts_with(kByteOrderMark)) bytes->remove_prefix(kByteOrderMark.size());
    return SplitLines(*bytes);
}

bool WriteLines(const std::string& path, const std::vector<std::string>& lines) {
    return WriteBytes(path, ToWindows1252(JoinLines(lines)));
}

bool WriteUtf8Lines(const std::string& path, const std::vector<std::string>& lines) {
    return WriteBytes(path, JoinLines(lines));
}

bool AppendLine(const std::string& path, const std::string& line) {
    const char* before = LastLineIsOpen(path) ? "\r\n" : "";
    return WriteWith(path, ToWindows1252(before + line + "\r\n"), WriteMode::Append);
}

bool FileExists(const std::string& path) {
    const int file = OpenForReading(path);
    if (file < 0) return false;
    struct stat info {};
    const bool isFile = ::fstat(file, &info) == 0 && !S_ISDIR(info.st_mode);
    ::close(file);
    return isFile;
}

bool FolderExists(const std::string& path) {
    return S_ISDIR(RememberedMode(path, true));
}

std::vector<std::string> ListFolder(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entries(FindSpelling(folder), error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        names.push_back(entries->path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> ListFiles(const std::string& folder, std::string_view pattern) {
    const std::string wanted = LowerCase(pattern);
    const std::string found = FindSpelling(folder);
    std::vector<std::string> names;
    for (const std::string& name : ListFolder(folder)) {
        if (wanted != "*.*" && !Matches(LowerCase(name), wanted)) continue;
        if (!S_ISDIR(ModeOf(JoinPath(found, name), true))) names.push_back(name);
    }
    std::stable_sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return LowerCase(a) < LowerCase(b);
    });
    return names;
}

bool CopyFile(const std::string& source, const std::string& target) {
    const auto bytes = ReadView(source);
    return bytes && WriteBytes(target, *bytes);
}

bool DeleteFile(const std::string& path) {
    return ::unlink(SpellingToWrite(path).c_str()) == 0;
}

void DeleteFiles(const std::string& folder, std::string_view pattern) {
    for (const std::string& name : ListFiles(folder, pattern)) DeleteFile(JoinPath(folder, name));
}

bool MakeFolders(const std::string& path) {
    const std::string target = FindSpelling(path);
    std::error_code error;
    fs::create_directories(target, error);
    ForgetSpellings();
    return S_ISDIR(ModeOf(target, true));
}

bool RemoveFolder(const std::string& path) {
    const bool gone = ::rmdir(FindSpelling(path).c_str()) == 0;
    ForgetSpellings();
    return gone;
}

bool Rename(const std::string& path, const std::string& newName) {
    const std::string source = FindSpelling(path);
    const std::string target = JoinPath(FolderOf(source), newName);
    const bool onlyCase = EqualNoCase(NameOf(source), newName);
    const std::string taken = onlyCase ? target : FindSpelling(target);
    if (taken != source && ModeOf(taken, false) != 0) return false;
    const bool renamed = ::rename(source.c_str(), target.c_str()) == 0;
    ForgetSpellings();
    return renamed;
}

bool ChangeFolder(const std::string& path) {
    return ::chdir(FindSpelling(path).c_str()) == 0;
}

std::string AbsolutePath(const std::string& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    return error ? path : absolute.lexically_normal().string();
}

std::string CanonicalPath(const std::string& path) {
    std::error_code error;
    const fs::path found = fs::weakly_canonical(FindSpelling(AbsolutePath(path)), error);
    std::string text = error ? path : found.string();
    while (text.size() > 1 && text.ends_with('/')) text.pop_back();
    return text;
}

std::string ProgramPath() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).string();
}

bool IsLink(const std::string& path) {
    return S_ISLNK(RememberedMode(path, false));
}

std::string TrueSpelling(const std::string& path) {
    return FindSpelling(path);
}

}  // namespace verandis
