#include "case/shapes.h"

#include <algorithm>

#include "app/run_stop.h"
#include "text/characters.h"

namespace verandis {
namespace {

using Id = std::string_view;

constexpr Id kEnvelopeU[] = {"XU001-W", "XU002-S", "XU003-S", "XU004-E", "XU005-N", "XU006-F",
                             "XU007-F", "XU008-F", "XU009-R", "XU010-R", "XU011-R"};
constexpr Id kPartitionU[] = {"XU101-W", "XU102-E", "XU103-N", "XU104-F"};
constexpr Id kGlazingU[] = {"XU201-S", "XU202-S", "XU203-N", "XU204-W", "XU205-E"};

constexpr Id kEnvelopeO[] = {"XO001-S", "XO002-E", "XO003-N", "XO004-W", "XO005-F", "XO006-R",
                             "XO007-F", "XO008-R", "XO009-F", "XO010-R", "XO011-F", "XO012-R"};
constexpr Id kPartitionO[] = {"XO101-S", "XO102-W", "XO103-N", "XO104-E", "XO105-F"};
constexpr Id kGlazingO[] = {"XO201-S", "XO202-N", "XO203-W", "XO204-E"};

constexpr Id kEnvelopeV[] = {"XV001-E", "XV002-N", "XV003-W", "XV004-R", "XV005-F"};
constexpr Id kPartitionV[] = {"XV101-S", "XV102-F"};
constexpr Id kGlazingV[] = {"XV201-W", "XV202-E", "XV203-S", "XV204-W", "XV205-E", "XV206-S"};

constexpr Id kEnvelopeI[] = {"XI001-S", "XI002-N", "XI003-W", "XI004-F", "XI005-R",
                             "XI006-S", "XI007-E", "XI008-N", "XI009-F", "XI010-R"};
constexpr Id kPartitionI[] = {"XI101-W", "XI102-E", "XI103-F"};
constexpr Id kGlazingI[] = {"XI201-S", "XI202-N", "XI203-S", "XI204-N", "XI205-W", "XI206-E"};

constexpr std::span<const Id> kElements[kShapeCount][3] = {
    {kEnvelopeU, kPartitionU, kGlazingU},
    {kEnvelopeO, kPartitionO, kGlazingO},
    {kEnvelopeV, kPartitionV, kGlazingV},
    {kEnvelopeI, kPartitionI, kGlazingI},
};

constexpr Id kDimensionsUO[] = {"WIDTHB", "DEPTHB", "HIGTHB", "WIDTHG", "DEPTHG", "TILT"};
constexpr Id kDimensionsV[] = {"WIDTHB", "DEPTHB", "OFFD", "HIGTHB", "TILT"};
constexpr Id kDimensionsI[] = {"WIDTHB", "DEPTHB", "WIDTHG", "HIGTHB", "TILT"};

constexpr std::span<const Id> kDimensions[kShapeCount] = {kDimensionsUO, kDimensionsUO,
                                                          kDimensionsV, kDimensionsI};

std::size_t Index(int shape) {
    return static_cast<std::size_t>(shape - 1);
}

}  // namespace

const ShapeWords& WordsOf(int shape) {
    if (!IsShape(shape)) StopRun("there is no shape number " + std::to_string(shape));
    return kShapes[Index(shape)];
}

int ShapeNumber(std::string_view name) {
    const auto* found = std::find_if(kShapes.begin(), kShapes.end(),
                                     [&](const ShapeWords& each) { return each.folder == name; });
    return found == kShapes.end() ? 0 : static_cast<int>(found - kShapes.begin()) + 1;
}

const std::array<Slot, kShapeCount * kCasesPerShape>& AllSlots() {
    static const auto slots = [] {
        std::array<Slot, kShapeCount * kCasesPerShape> all;
        for (std::size_t at = 0; at < all.size(); ++at) {
            all[at] = {static_cast<int>(at) / kCasesPerShape + 1,
                       static_cast<int>(at) % kCasesPerShape + 1};
        }
        return all;
    }();
    return slots;
}

std::string SlotFolderName(const Slot& slot) {
    return std::string(WordsOf(slot.shape).folder) + std::to_string(slot.caseNo);
}

std::string SlotCaseName(const Slot& slot) {
    return std::string(WordsOf(slot.shape).word) + std::to_string(slot.caseNo);
}

std::string SlotLabel(const Slot& slot) {
    return WordsOf(slot.shape).letter + std::to_string(slot.caseNo);
}

Slot SlotOfLabel(std::string_view label) {
    const std::string wanted = UpperCase(label);
    for (const Slot& slot : AllSlots()) {
        if (SlotLabel(slot) == wanted) return slot;
    }
    return {};
}

std::span<const std::string_view> ElementsOf(int shape, Series series) {
    if (!IsShape(shape)) return {};
    return kElements[Index(shape)][static_cast<std::size_t>(series)];
}

std::span<const std::string_view> DimensionKeysOf(int shape) {
    if (!IsShape(shape)) return {};
    return kDimensions[Index(shape)];
}

}  // namespace verandis
