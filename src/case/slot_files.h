#pragma once

#include <string>
#include <string_view>

// How the files of the sixteen slots come from their templates. Templates and slots stand side by
// side in the project folder.

namespace verandis {

/// Names of the model files that `DynamicFilesUOVI.dat` holds for each shape, in its order.
inline constexpr std::string_view kModelFiles[] = {"FORCEVEN.inp", "HVAC_Cal.inp", "OUTPUT.inp",
                                                   "SURFACE.inp",  "THERMAL.inp",  "SITE.inp",
                                                   "GENPARS.inp"};

/// Copies one part of the collected model files to `target`: the lines behind the one that holds
/// letter, "-" and file name, up to the next that begins "C_...". A missing source shows
/// "No File exist"; without the marker the target stays untouched; a part without its closing line
/// is copied to the end of the file.
void SplitDynamicFile(const std::string& source, const std::string& target, char shapeLetter,
                      std::string_view fileName);

/// Splits all parts of all shapes, in the order U, O, V, I, into the template folders of the
/// project. Reads the source once.
void SplitDynamicFiles(const std::string& source);

/// Name of the property template of a slot: "SimpPropertiesOfCaseU1.Dat".
std::string TemplateName(int shape, int caseNo);

/// True for the names of a shape's four property templates, in any letter case.
bool IsTemplateName(int shape, std::string_view fileName);

/// Copies the property templates of a shape's slots from the family's folder over the slots'
/// property files. A missing template leaves its slot as it is.
void InstallSlotFiles(int shape);

/// Deletes the four property templates from each slot folder of the shape, where a copy of the
/// template case has brought them.
void RemoveSlotTemplates(int shape);

}  // namespace verandis
