#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Text in memory is UTF-8; lengths and columns count characters, never bytes.

namespace verandis {

/// Number of characters.
std::size_t Length(std::string_view text);

/// The first `count` characters; the whole text when it is shorter.
std::string Left(std::string_view text, std::size_t count);

/// The text from character `first` (counted from 1) to its end; empty when it is shorter.
std::string Mid(std::string_view text, std::size_t first);

/// `count` characters from character `first` (counted from 1).
std::string Mid(std::string_view text, std::size_t first, std::size_t count);

/// Takes blanks (0x20) off both ends. A TAB or a no-break space is content and stays.
std::string_view TrimBlanks(std::string_view text);
std::string_view TrimLeadingBlanks(std::string_view text);

/// Lower case of every letter that Windows-1252 holds (å, ä, ö included).
std::string LowerCase(std::string_view text);

/// Upper case, of the same letters.
std::string UpperCase(std::string_view text);

/// True when both are equal without regard to letter case.
bool EqualNoCase(std::string_view left, std::string_view right);

/// True when `text` holds `word` somewhere, without regard to letter case. An empty word is
/// contained in every text.
bool ContainsNoCase(std::string_view text, std::string_view word);

/// True when `text` begins with `start`, without regard to letter case.
bool StartsWithNoCase(std::string_view text, std::string_view start);

}  // namespace verandis
