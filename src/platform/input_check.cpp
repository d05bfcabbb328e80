#include "platform/input_check.h"

#include "text/characters.h"
#include "text/numbers.h"

namespace verandis {

std::string NumericReplyComplaint(std::string_view reply, double least, double most) {
    const std::string plain = DecimalToPoint(TrimBlanks(reply));
    std::string_view rest = plain;
    const double value = TakeNumber(rest);
    if (plain.empty() || !rest.empty() || !IsNumberKey(plain)) return "Input must be a value";
    if (least < most && (value < least || value > most)) {
        return "Input value (Min: " + TrimmedNumberText(least) +
               ", Max: " + TrimmedNumberText(most) + ")";
    }
    return "";
}

}  // namespace verandis
