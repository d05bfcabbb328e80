#include "results/case_report.h"

#include <algorithm>

#include "app/program_text.h"
#include "app/session.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/prompts.h"

namespace verandis {
namespace {

enum : int {
    kShapeWord = 195,
    kCaseWord = 196,
    kDifferTitle = 935,
    kNothingDiffers = 936,
    kChooseTwo = 633,
    kInputWord = 937,
    kNotWritten = 901
};

constexpr const char* kDoubleLine = "============================================= ";
constexpr const char* kSingleLine = "------------------------------------ ";
constexpr const char* kUnsetSign = "-";

/// "Shape: U-shape -- index Case 1".
std::string HeadOf(const ReportCase& each) {
    return Text(kShapeWord) + Text(WordsOf(each.slot.shape).textNumber) + " -- index " +
           Text(kCaseWord) + " " + std::to_string(each.slot.caseNo);
}

std::string ReportValue(const ReportCase& each, CaseInput input) {
    if (!input.reportSection.empty()) input.section = input.reportSection;
    return ShownValue(each, input);
}

bool SameRow(const CaseInput& left, const CaseInput& right) {
    return left.section == right.section && left.key == right.key;
}

/// Every input of the cases once, in the order of the first case that has it.
std::vector<CaseInput> AllInputs(const std::vector<ReportCase>& cases) {
    std::vector<CaseInput> all;
    for (const ReportCase& each : cases) {
        for (const CaseInput& input : InputsOf(each.slot.shape)) {
            const bool known = std::any_of(all.begin(), all.end(), [&](const CaseInput& before) {
                return SameRow(before, input);
            });
            if (!known) all.push_back(input);
        }
    }
    return all;
}

bool ShapeHas(int shape, const CaseInput& input) {
    const auto inputs = InputsOf(shape);
    return std::any_of(inputs.begin(), inputs.end(),
                       [&](const CaseInput& each) { return SameRow(each, input); });
}

}  // namespace

std::vector<std::string> CaseReport(const std::string& chosen,
                                    const std::vector<ReportCase>& cases) {
    std::vector<std::string> lines = {
        "Utskrift gjord " + CurrentClock().Date() + " klockan " + CurrentClock().Time(),
        kDoubleLine, chosen};
    for (const ReportCase& each : cases) {
        lines.push_back(HeadOf(each));
        lines.emplace_back(kSingleLine);
        for (const CaseInput& input : InputsOf(each.slot.shape)) {
            lines.push_back(input.label + input.suffix + ReportValue(each, input));
        }
    }
    return lines;
}

std::vector<CaseDifference> WhatDiffers(const std::vector<ReportCase>& cases) {
    std::vector<CaseDifference> differences;
    for (const CaseInput& input : AllInputs(cases)) {
        CaseDifference row{input.words, input.unit, {}};
        std::vector<std::string> compared;
        for (const ReportCase& each : cases) {
            const bool has = ShapeHas(each.slot.shape, input);
            row.values.push_back(has ? ShownValue(each, input) : kUnsetSign);
            if (has || !input.element) compared.push_back(row.values.back());
        }
        const bool differs = std::any_of(compared.begin(), compared.end(), [&](const auto& value) {
            return value != compared.front();
        });
        if (differs) differences.push_back(row);
    }
    return differences;
}

std::vector<std::string> DifferenceLines(const std::vector<ReportCase>& cases,
                                         const std::string& separator) {
    if (cases.size() < 2) return {Text(kChooseTwo)};
    const auto differences = WhatDiffers(cases);
    if (differences.empty()) return {Text(kNothingDiffers)};
    std::string heads = Text(kInputWord);
    for (const ReportCase& each : cases) heads += separator + each.name;
    std::vector<std::string> lines = {Text(kDifferTitle), heads};
    for (const CaseDifference& row : differences) {
        std::string line = row.label;
        if (!row.unit.empty()) line += " (" + row.unit + ")";
        for (const std::string& value : row.values) line += separator + value;
        lines.push_back(line);
    }
    return lines;
}

bool WriteReport(const std::vector<std::string>& lines) {
    const std::string path = JoinPath(session.ProjectFolder, kReportFile);
    if (WriteLines(path, lines)) return true;
    ShowMessage(Text(kNotWritten) + " " + path, kProgramTitle, Icon::Exclamation);
    return false;
}

}  // namespace verandis
