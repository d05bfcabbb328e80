#include "recorded_opens.h"

#include <fcntl.h>

#include <cstdarg>

namespace {

bool recording = false;

std::vector<std::string>& Paths() {
    static std::vector<std::string> paths;
    return paths;
}

}  // namespace

// The linker's "--wrap=open" gives these names their meaning.
extern "C" int __real_open(const char* path, int flags, ...);
extern "C" int __wrap_open(const char* path, int flags, ...);

int __wrap_open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    const int file = __real_open(path, flags, mode);
    if (recording && file >= 0 && (flags & O_ACCMODE) == O_RDONLY) Paths().emplace_back(path);
    return file;
}

namespace verandis::bench {

RecordedOpens::RecordedOpens() {
    Paths().clear();
    recording = true;
}

RecordedOpens::~RecordedOpens() {
    recording = false;
}

const std::vector<std::string>& RecordedOpens::paths() const {
    return Paths();
}

}  // namespace verandis::bench
