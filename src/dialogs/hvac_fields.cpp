#include "dialogs/hvac_fields.h"

#include "app/program_text.h"
#include "app/session.h"
#include "calc/properties.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "platform/files.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr int kCaseText = 196;

}  // namespace

std::string ConditionsTitle(int text) {
    const int shape = session.ActiveShape;
    const std::string word = IsShape(shape) ? Text(WordsOf(shape).textNumber) : "";
    // The I shape counts by "number", the others by "index".
    const char* counted = shape == kShapeI ? " number " : " index ";
    return Text(text) + " (" + word + "/" + Text(kCaseText) + counted +
           std::to_string(session.ActiveCaseNo) + ")";
}

std::string ShownCondition(const ConditionField& field) {
    std::string stored(kNotSet);  // stays when the case has no file
    GetCaseProperty(field.section, field.key, stored);
    return stored == kNotSet ? field.fallback : NumberOnScreen(ToNumber(stored));
}

bool StoreCondition(const ConditionField& field, const std::string& text) {
    const std::string value = text.empty() ? std::string(kNotSet) : NumberText(ToNumber(text));
    return SetCaseProperty(field.section, field.key, value) || !FileExists(PropertyFilePath());
}

}  // namespace verandis
