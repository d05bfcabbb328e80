#include "case/slot_files.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "app/session.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/prompts.h"
#include "text/characters.h"

namespace verandis {
namespace {

constexpr std::string_view kPartEnd = "C_...";

using Lines = std::vector<std::string>;

std::optional<Lines> ReadTrimmedLines(const std::string& source) {
    auto lines = ReadLines(source);
    if (!lines) {
        ShowMessage("No File exist");
        return std::nullopt;
    }
    for (std::string& line : *lines) line = TrimBlanks(line);
    return lines;
}

void CopyPart(const Lines& lines, const std::string& target, char shapeLetter,
              std::string_view fileName) {
    const std::string marker = LowerCase(std::string(1, shapeLetter) + "-" + std::string(fileName));
    const auto begin = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
        return LowerCase(line).find(marker) != std::string::npos;
    });
    if (begin == lines.end()) return;
    const auto end = std::find_if(
        begin + 1, lines.end(), [](const std::string& line) { return line.starts_with(kPartEnd); });
    const Lines part(begin + 1, end);
    if (ReadLines(target) != part) WriteLines(target, part);
}

std::string InProject(std::string_view folder, std::string_view file) {
    return JoinPath(JoinPath(session.ProjectFolder, folder), file);
}

}  // namespace

void SplitDynamicFile(const std::string& source, const std::string& target, char shapeLetter,
                      std::string_view fileName) {
    if (const auto lines = ReadTrimmedLines(source)) {
        CopyPart(*lines, target, shapeLetter, fileName);
    }
}

void SplitDynamicFiles(const std::string& source) {
    const auto lines = ReadTrimmedLines(source);
    if (!lines) return;
    for (const ShapeWords& shape : kShapes) {
        for (const std::string_view file : kModelFiles) {
            CopyPart(*lines, InProject(shape.folder, file), shape.letter, file);
        }
    }
}

std::string TemplateName(int shape, int caseNo) {
    return "SimpPropertiesOfCase" + SlotLabel({shape, caseNo}) + ".Dat";
}

bool IsTemplateName(int shape, std::string_view fileName) {
    for (int number = 1; number <= kCasesPerShape; ++number) {
        if (EqualNoCase(fileName, TemplateName(shape, number))) return true;
    }
    return false;
}

void InstallSlotFiles(int shape) {
    if (!IsShape(shape)) return;
    for (int number = 1; number <= kCasesPerShape; ++number) {
        const std::string source = InProject(WordsOf(shape).folder, TemplateName(shape, number));
        if (!FileExists(source)) continue;
        CopyFile(source, InProject(SlotFolderName({shape, number}), kPropertyFileName));
    }
}

void RemoveSlotTemplates(int shape) {
    if (!IsShape(shape)) return;
    for (int number = 1; number <= kCasesPerShape; ++number) {
        const std::string folder = JoinPath(session.ProjectFolder, SlotFolderName({shape, number}));
        for (const std::string& name : ListFolder(folder)) {
            if (IsTemplateName(shape, name)) DeleteFile(JoinPath(folder, name));
        }
    }
}

}  // namespace verandis
