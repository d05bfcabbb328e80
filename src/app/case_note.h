#pragma once

namespace verandis {

inline constexpr int kLongestNote = 50;  // characters, counted without outer blanks

/// Asks for the note of the open case, with the old one as the proposal, and stores the answer. A
/// note that is too long is told and asked for again. True when a note was stored: an empty answer
/// and a cancel store nothing, so a note can be replaced but not cleared.
bool EditCaseNote();

}  // namespace verandis
