#pragma once

#include <span>
#include <string>
#include <string_view>

// Numbers to text and back. No locale is ever consulted: data carry a decimal point, whatever the
// machine or the window system has set.

namespace verandis {

/// How decimals are shown on screen; the values are those of the session's decimal mode.
enum class DecimalMode { Comma = 1, Point = 2 };

/// The plain conversion: leading blanks are skipped, then an optional sign, digits with at most one
/// point, an optional exponent; it stops at the first other character. Nothing readable gives 0.
double PlainNumber(std::string_view text);

/// As `PlainNumber`, and moves `text` on to the first character that was not read.
double TakeNumber(std::string_view& text);

/// The plain numbers of the fields of a line, parted by `separator`; 0 for a field that is missing
/// or holds no number. Fields beyond the values are not read.
void FieldNumbers(std::string_view line, char separator, std::span<double> values);

/// Every "," becomes ".", then the plain conversion: "1,5" and "1.5" are both 1.5.
double ToNumber(std::string_view text);

/// The number of the text, rounded to a whole number; halves go to the even neighbour. Values
/// outside the range of `int` give its nearest end.
int WholeNumber(double value);

/// Every "," replaced by ".".
std::string DecimalToPoint(std::string_view text);

/// Every "." replaced by "," when the mode is comma.
std::string PointToDecimal(std::string_view text, DecimalMode mode);

/// A number as data files hold it: a decimal point, a leading blank when not negative, at most 15
/// significant digits, no trailing zeros, "E+20" style exponents from 1E+15 up and below 1E-4.
std::string NumberText(double value);

/// The same for a 32-bit float: at most 7 significant digits.
std::string NumberText(float value);

/// `NumberText` without its leading blank.
std::string TrimmedNumberText(double value);
std::string TrimmedNumberText(float value);

/// A number with a fixed count of decimals ("-0" is written "0"), for tables.
std::string FixedText(double value, int decimals);

/// True when the text can be a number while it is typed: a lone sign or point passes, a second
/// decimal sign does not.
bool IsNumberKey(std::string_view text);

/// True when every character is a digit or the mode's decimal sign; a lone sign ("-", "+" or the
/// decimal sign) is refused. An empty text and several decimal signs pass: the bounds of the field
/// and the conversion deal with them.
bool IsNumberText(std::string_view text, DecimalMode mode);

/// True when the text holds digits only, at least one.
bool IsDigitsOnly(std::string_view text);

}  // namespace verandis
