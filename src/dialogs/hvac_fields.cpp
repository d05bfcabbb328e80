#include "dialogs/hvac_fields.h"

#include "app/program_text.h"
#include "case/property_file.h"
#include "platform/files.h"
#include "text/numbers.h"

namespace verandis {

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
