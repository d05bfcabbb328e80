#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/errors.h"

// What the fuzzers share. Each of them is one file with the entry that libFuzzer calls; a seed is a
// small text file that a person can read.

namespace verandis::fuzzing {

/// The bytes of an input as text.
std::string_view TextOf(const std::uint8_t* data, std::size_t size);

/// Ends the process with the sentence when a property does not hold: a finding.
void Require(bool holds, const char* sentence);

/// The lines of a text, as the file module cuts them.
std::vector<std::string> LinesOf(std::string_view text);

/// Takes the first line off a text, decoded as a file's line is.
std::string TakeDecodedLine(std::string_view& text);

/// A temporary folder of this process alone, empty at the start and removed at the end.
const std::string& Scratch();

/// Writes a file of that folder; its path.
std::string WriteScratch(const std::string& name, std::string_view bytes);

/// Calls the reader and lets the one exception pass that readers may throw.
template <class Reader>
void Try(const Reader& reader) {
    try {
        reader();
    } catch (const RunError&) {  // refused with a sentence
    }
}

}  // namespace verandis::fuzzing
