#pragma once

#include <string>
#include <string_view>

namespace verandis {

/// UTF-8 of bytes in Windows-1252. The five bytes that the code page leaves open become the control
/// characters of the same number, so that every file survives reading and writing.
std::string FromWindows1252(std::string_view bytes);

/// Windows-1252 of a UTF-8 text. A character that the code page cannot hold, and a byte that is no
/// UTF-8, is written as "?".
std::string ToWindows1252(std::string_view text);

/// Lower case of every letter among bytes in Windows-1252, into `lower`, whose memory is used
/// again.
void LowerWindows1252(std::string_view bytes, std::string& lower);

/// True when the text comes back from Windows-1252 as it went in.
bool SurvivesCodePage(std::string_view text);

/// True when every byte is ASCII, so that both encodings are the same.
bool IsAscii(std::string_view text);

}  // namespace verandis
