#include "dialogs/demands.h"

#include <algorithm>

#include "app/case_changes.h"
#include "app/session.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr const char* kMeanOutside = "Design mean temperature in glazed space - out of bounds";

constexpr DemandField kFields[] = {
    {{"MTB1", "AIRCHANGE", "ACHG", "0"},
     50,
     "Airchanges in glazed space - not correct",
     "Airchanges in glazed space - out of bounds"},
    {{"MTB2", "AIRCHANGE", "ACHB", "0"},
     50,
     "Airchanges in building - not correct",
     "Airchanges in building - out of bounds"},
    {{"MTB3", "TDG", "TDGMIN", "5"},
     40,
     "Design min temperature in glazed space - not correct",
     "Design min temperature in glazed space - out of bounds"},
    {{"MTB4", "TDG", "TDGMEAN", "10"},
     40,
     "Design mean temperature in glazed space - not correct",
     kMeanOutside},
    {{"MTB5", "TB", "SETMINMAX", "20"},
     40,
     "Set point indoor temperature in building - not correct",
     kMeanOutside},  // the message of the row above stands here on purpose
    {{"MTB6", "TDG", "POWDEMHEAT"},
     99999,
     "Design max power demand - not correct",
     "Design max power demand - out of bounds"},
    {{"MTB7", "TDG", "ENERDEMHEAT"},
     99999,
     "Design max heating energy demand - not correct",
     "Design max heating energy demand - out of bounds"},
    {{"MTB8", "TDG", "ENERDEMCOOL"},
     99999,
     "Design max cooling energy demand - not correct",
     "Design max cooling energy demand - out of bounds"},
};

constexpr const char* kStoringOrder[] = {"MTB1", "MTB2", "MTB3", "MTB4",
                                         "MTB6", "MTB7", "MTB8", "MTB5"};

const ConditionField& FieldOf(std::string_view control) {
    return std::find_if(std::begin(kFields), std::end(kFields),
                        [&](const DemandField& each) { return each.field.control == control; })
        ->field;
}

}  // namespace

std::span<const DemandField> DemandFields() {
    return kFields;
}

ConditionTexts LoadDemands() {
    session.ElementKindMark = 0;  // demands are stored without a kind
    ConditionTexts texts;
    for (const DemandField& each : kFields) {
        texts[each.field.control] = ShownCondition(each.field);
    }
    return texts;
}

ConditionComplaints CheckDemands(const ConditionTexts& texts) {
    ConditionComplaints found;
    for (const DemandField& each : kFields) {
        const std::string& text = texts.at(each.field.control);
        const bool isNumber = IsNumberText(text, session.Decimals);
        const double value = ToNumber(text);
        if (isNumber && value >= 0 && value <= each.most) continue;
        found.text += std::string(isNumber ? each.outside : each.wrong) + "\r";
        found.focus = each.field.control;
        found.selected.push_back(each.field.control);
    }
    return found;
}

bool StoreDemands(const ConditionTexts& texts) {
    for (const char* control : kStoringOrder) {
        if (!StoreCondition(FieldOf(control), texts.at(control))) return false;
    }
    TellCaseChanged(false);
    return true;
}

}  // namespace verandis
