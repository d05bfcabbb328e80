#pragma once

#include <limits>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "case/plan.h"

// What the four geometry dialogs decide: their fields, the checks in two stages, what is stored.
// The letters are those of the drawn plan and section; they differ between the shapes.

namespace verandis {

/// What one number must hold by itself, and the words behind the message when it does not.
struct DimensionRule {
    double least = -std::numeric_limits<double>::infinity();
    bool leastAllowed = true;
    double most = std::numeric_limits<double>::infinity();
    const char* suffix = "";

    bool Holds(double value) const;
};

/// One input box of a dialog.
struct DimensionField {
    char letter;
    const char* control;   // objectName of the box
    const char* key;       // in the section DIMENSION
    const char* fallback;  // shown when the case has no such row
    DimensionRule rule;
    int label;              // catalogue text of the words beside the box
    char focusOutside = 0;  // field that gets the focus when the rule fails; 0: this one
    bool isAngle() const { return label == kRoofTiltText; }

    static constexpr int kRoofTiltText = 805;
};

/// A key and the letter of the field that it takes its value from.
struct StoredDimension {
    const char* key;
    char letter;
};

/// One field must be greater than another (or than 0, when `right` is "0").
struct DimensionComparison {
    char left;
    char right;
    char focus;
};

/// One of the four dialogs.
struct DimensionDialog {
    int shape;
    int helpTopic;
    std::span<const DimensionField> fields;            // in the order of checking
    std::span<const StoredDimension> stored;           // in the order of storing
    std::span<const DimensionComparison> comparisons;  // of the second stage
    bool tiltLimited;  // whether height and offset leave the roof no steeper tilt

    /// Place of the field with this letter; the letter must be one of the dialog's.
    std::size_t IndexOf(char letter) const;
};

/// The dialog of shape 1 to 4; another number is a fault of the caller.
const DimensionDialog& DimensionDialogOf(int shape);

/// The texts of a dialog's boxes, in the order of its fields.
using DimensionTexts = std::vector<std::string>;

/// The texts that the open case gives, in the session's decimal form; defaults where a row is
/// missing.
DimensionTexts LoadDimensions(const DimensionDialog& dialog);

/// What a check found. `focus` is the letter of the field that gets the focus (0: none is moved),
/// `selected` the letters of the fields whose text is to be selected.
struct DimensionComplaints {
    std::string text;  // lines ended by CR
    char focus = 0;
    std::string selected;

    bool empty() const { return text.empty(); }
};

/// Checks each field by itself; when all pass, the fields against one another.
DimensionComplaints CheckDimensions(const DimensionDialog& dialog, const DimensionTexts& texts);

/// Steepest tilt in degrees that a lean-to of this height and offset (m) may have: one metre of
/// wall stays below it. Nothing for a dialog without such a limit or an offset that is not above 0.
std::optional<double> TiltLimit(const DimensionDialog& dialog, const DimensionTexts& texts);

/// Stores every value in the open case and tells that results are outdated. False when the file
/// cannot be written, after its message; a case without a file takes the values without a word.
bool StoreDimensions(const DimensionDialog& dialog, const DimensionTexts& texts);

/// The figures to draw for texts as they stand, checked or not.
PlanDimensions FiguresOf(const DimensionDialog& dialog, const DimensionTexts& texts);

}  // namespace verandis
