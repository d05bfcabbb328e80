#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "text/catalogue.h"
#include "text/numbers.h"

namespace verandis {

inline constexpr int kShapeCount = 4;
inline constexpr int kCasesPerShape = 4;
inline constexpr int kMostMarkedCases = 4;

/// A table over the slots, indexed (shape, case) from 1; row and column 0 stay unused.
template <class Value>
using SlotTable = std::array<std::array<Value, kCasesPerShape + 1>, kShapeCount + 1>;

/// A row of the table of edits that a dialog has applied but not stored yet.
struct StagedProperty {
    std::string section;
    std::string key;
    std::string value;
};

/// Values of `CalcMode`, which is a float on purpose.
inline constexpr float kNoCalculation = 0.0f;
inline constexpr float kSteadyState = 1.0f;
inline constexpr float kDynamic = 2.0f;

/// Values of the session's switches.
inline constexpr std::int16_t kOff = 0;
inline constexpr std::int16_t kOn = -1;

/// Value of `GlazingGroup` while no group of elements is chosen.
inline constexpr std::uint16_t kNoGroup = 65535;

/// The state of the running program; one copy. A test starts anew with `session = {}`.
struct Session {
    std::string SystemFolder;        // value of SystemPath
    std::string SimulatorFolder;     // MWTHARM below it: catalogue, help, delivered library files
    std::string ProjectRoot;         // PROJECT below it: list of projects
    std::string StageFolder;         // WTHARM below it: stage programs
    std::string ProjectRootAtStart;  // ProjectRoot as it was when the settings were read
    std::string AccuracyLevelTL = "2";
    std::string HelpFile;

    int Language = 2;  // 1 Swedish, 2 English
    DecimalMode Decimals = DecimalMode::Point;
    Catalogue ProgramText;

    std::string ProjectName;    // lower case, empty when no project is open
    std::string ProjectFolder;  // lower case
    std::string CaseName;       // lower case, empty when no case is open
    std::string CaseTitle;
    std::string CaseFolder;   // ProjectFolder, separator, CaseName
    std::string WindowTitle;  // of the main window

    int ActiveShape = 0;   // 1 U, 2 O, 3 V, 4 I
    int ActiveCaseNo = 0;  // 1 to 4

    SlotTable<bool> ChkCase{};            // the check boxes as they stand
    SlotTable<std::int16_t> CaseMarks{};  // 1 when marked for the run, set by SetActiveRuns
    std::int16_t MarkedCount = 0;
    float CalcMode = kNoCalculation;
    std::int16_t ShowGuide = kOff;
    std::int16_t ShowDiagrams = kOff;
    std::int16_t StopCalculation = kOff;
    std::int16_t MsgFormAnswer = 0;  // to the last question of the design guide: 0 no, 1 yes
    bool RunInProgress = false;

    std::int16_t ElementKindMark = 0;  // 1 window, 2 wall: written behind the next stored values
    std::uint16_t GlazingGroup = kNoGroup;  // code of the group chosen in a glazing or wall dialog
    std::string Reply;                 // "InputError" after a check of the constructions failed
    std::string PropertyValue;              // buffer of the last value or slot name
    std::vector<StagedProperty> CasePropertyTable;
};

extern Session session;

/// Recomputes `CaseMarks` and `MarkedCount` from the check boxes.
void SetActiveRuns();

}  // namespace verandis
