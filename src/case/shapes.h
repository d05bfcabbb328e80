#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "app/session.h"

// The four plan shapes of a building with a glazed space, their building elements and the names
// under which their sixteen slots stand on disk.

namespace verandis {

inline constexpr int kShapeU = 1;
inline constexpr int kShapeO = 2;
inline constexpr int kShapeV = 3;
inline constexpr int kShapeI = 4;

/// What tells the shapes apart as words; their elements stand in the tables below.
struct ShapeWords {
    char letter;              // 'U'
    std::string_view folder;  // "UShape", the template's folder
    std::string_view word;    // "ushape", in front of a case number
    int textNumber;           // catalogue text of the shape's word
};

inline constexpr std::array<ShapeWords, kShapeCount> kShapes = {{
    {'U', "UShape", "ushape", 52},
    {'O', "OShape", "oshape", 53},
    {'V', "VShape", "vshape", 22},
    {'I', "IShape", "ishape", 51},
}};

constexpr bool IsShape(int shape) {
    return shape >= 1 && shape <= kShapeCount;
}

/// Words of shape 1 to 4.
const ShapeWords& WordsOf(int shape);

/// "UShape" gives 1, "OShape" 2, "VShape" 3, "IShape" 4, anything else 0.
int ShapeNumber(std::string_view name);

/// One of the sixteen working places.
struct Slot {
    int shape = 0;   // 1 to 4
    int caseNo = 0;  // 1 to 4

    friend bool operator==(const Slot&, const Slot&) = default;
};

/// All slots, shape by shape in the order U, O, V, I, cases rising.
const std::array<Slot, kShapeCount * kCasesPerShape>& AllSlots();

/// "UShape1": the slot's folder as it is made.
std::string SlotFolderName(const Slot& slot);

/// "ushape1": the slot's case name.
std::string SlotCaseName(const Slot& slot);

/// "U1".
std::string SlotLabel(const Slot& slot);

/// The slot of a label "U1" to "I4" in either letter case; shape 0 for anything else.
Slot SlotOfLabel(std::string_view label);

/// What a building element is, by the first digit of its identifier.
enum class Series {
    Envelope = 0,   // opaque surfaces of the building
    Partition = 1,  // between building and glazed space, and the floor of the glazed space
    Glazing = 2     // glazing of the glazed space
};

/// Identifiers of a shape's elements in one series, such as "XU101-W"; empty for an unknown shape.
std::span<const std::string_view> ElementsOf(int shape, Series series);

/// Keys of the section DIMENSION that a shape uses; empty for an unknown shape.
std::span<const std::string_view> DimensionKeysOf(int shape);

}  // namespace verandis
