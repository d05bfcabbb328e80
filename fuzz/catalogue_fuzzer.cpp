#include "fuzzing.h"
#include "platform/encoding.h"
#include "text/catalogue.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis::fuzzing;
    const std::string text = verandis::FromWindows1252(TextOf(data, size));
    const verandis::Catalogue catalogue(LinesOf(text));
    for (const int number : catalogue.Numbers()) {
        const std::string& entry = catalogue.Entry(number);
        Require(!entry.starts_with(' '), "the blanks on the left are off");
        Require(entry.find("Chr13") == std::string::npos, "every line break stands in its place");
        for (int role = 0; role <= 3; ++role) {
            const std::string part = verandis::TextRole(entry, role);
            Require(entry.find(part) != std::string::npos, "a part is found in the whole");
        }
    }
    return 0;
}
