#include "app/run_stop.h"

#include "app/session.h"
#include "platform/errors.h"

namespace verandis {

void StopRun(std::string_view what, std::string_view element) {
    std::string sentence;
    if (!session.CaseName.empty()) sentence = "Case " + session.CaseName;
    if (!element.empty())
        sentence += (sentence.empty() ? "Element " : ", element ") + std::string(element);
    if (!sentence.empty()) sentence += ": ";
    throw RunError(sentence + std::string(what));
}

}  // namespace verandis
