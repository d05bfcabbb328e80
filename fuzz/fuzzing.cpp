#include "fuzzing.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "platform/encoding.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "text/separators.h"

namespace verandis::fuzzing {
namespace {

namespace fs = std::filesystem;

class TemporaryFolder {
public:
    TemporaryFolder() {
        const std::string name = "verandis_fuzz_" + std::to_string(::getpid());
        path_ = (fs::temp_directory_path() / name).string();
        if (!fs::create_directory(path_)) throw std::runtime_error("cannot make " + path_);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_;
};

}  // namespace

std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

void Require(bool holds, const char* sentence) {
    if (holds) return;
    std::fprintf(stderr, "Does not hold: %s\n", sentence);
    std::abort();
}

std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) lines.emplace_back(TakeLine(text));
    return lines;
}

std::string TakeDecodedLine(std::string_view& text) {
    return FromWindows1252(TakeLine(text));
}

const std::string& Scratch() {
    static const TemporaryFolder folder;
    return folder.path();
}

std::string WriteScratch(const std::string& name, std::string_view bytes) {
    std::string path = JoinPath(Scratch(), name);
    Require(WriteBytes(path, bytes), "a scratch file can be written");
    return path;
}

}  // namespace verandis::fuzzing
