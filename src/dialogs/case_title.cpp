#include "dialogs/case_title.h"

#include "app/program_text.h"
#include "app/session.h"
#include "case/shapes.h"
#include "text/characters.h"

namespace verandis {
namespace {

constexpr int kCaseText = 196;

}  // namespace

std::string CaseDialogTitle(int text, int shape) {
    return Text(text) + "(" + ShapeWord(shape) + "/" + LowerCase(Text(kCaseText)) + " index " +
           std::to_string(session.ActiveCaseNo) + ")";
}

std::string CountedCaseTitle(int text) {
    const char* counted = session.ActiveShape == kShapeI ? " number " : " index ";
    return Text(text) + " (" + ShapeWord(session.ActiveShape) + "/" + Text(kCaseText) + counted +
           std::to_string(session.ActiveCaseNo) + ")";
}

std::string ShapeWord(int shape) {
    return IsShape(shape) ? Text(WordsOf(shape).textNumber) : "";
}

std::string WithValue(std::string text, std::string_view mark, std::string_view value) {
    const std::size_t at = text.find(mark);
    return at == std::string::npos ? text : text.replace(at, mark.size(), value);
}

}  // namespace verandis
