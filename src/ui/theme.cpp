#include "ui/theme.h"

#include <QPalette>
#include <array>

namespace verandis {
namespace {

struct TintPair {
    const char* light;
    const char* dark;
};

// In the order of Tint.
constexpr std::array<TintPair, 9> kTints = {{
    {"#d9d4cc", "#5a554e"},
    {"#6f675c", "#b8b0a4"},
    {"#cfe8f5", "#2f5a70"},
    {"#2b7ea8", "#7cc4e8"},
    {"#667079", "#9aa5ae"},
    {"#0b62a8", "#6db3f2"},
    {"#0b4fb3", "#7fb2ff"},
    {"#b3261e", "#ff8a80"},
    {"#1b6e3c", "#7ddc9f"},
}};

}  // namespace

bool IsDark(const QWidget& widget) {
    return widget.palette().color(QPalette::Window).lightness() < 128;
}

QColor TintOf(Tint tint, const QWidget& widget) {
    const TintPair& pair = kTints[static_cast<std::size_t>(tint)];
    return QColor(IsDark(widget) ? pair.dark : pair.light);
}

}  // namespace verandis
