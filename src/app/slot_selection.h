#pragma once

namespace verandis {

// Which slot the window edits, and what is marked: the state behind the main window's buttons.

/// Opens case 1 of a shape family and makes it the active one. False, and nothing changed, when the
/// case list has no such slot.
bool SelectFamily(int shape);

/// Opens a case of the active family and makes it the active one. False as above.
bool SelectCase(int caseNo);

/// Clears the marks, the choice of calculation, the bar and the record of which results are there.
/// Result files stay on disk.
void ClearMarks();

}  // namespace verandis
