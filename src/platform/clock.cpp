#include "platform/clock.h"

#include <array>
#include <ctime>

namespace verandis {
namespace {

class SystemClock : public Clock {
public:
    std::string Date() const override { return Now("%Y-%m-%d"); }
    std::string Time() const override { return Now("%H:%M"); }

private:
    /// Digits only, so that no locale can change them.
    static std::string Now(const char* format) {
        const std::time_t now = std::time(nullptr);
        std::tm parts{};
        if (!::localtime_r(&now, &parts)) return "";
        std::array<char, 32> text{};
        return {text.data(), std::strftime(text.data(), text.size(), format, &parts)};
    }
};

const Clock*& Instance() {
    static const SystemClock system;
    static const Clock* instance = &system;
    return instance;
}

}  // namespace

void UseClock(const Clock& clock) {
    Instance() = &clock;
}

const Clock& CurrentClock() {
    return *Instance();
}

}  // namespace verandis
