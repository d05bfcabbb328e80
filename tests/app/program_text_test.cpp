#include "app/program_text.h"

#include <algorithm>

#include "app/session.h"
#include "support/session_test.h"
#include "text/characters.h"
#include "text/separators.h"

namespace verandis {
namespace {

using Lines = std::vector<std::string>;
using testing_support::PutBytes;

class DeliveredTexts : public testing_support::DeliveredRootTest {
protected:
    DeliveredTexts() { LoadProgramText(); }
};

/// One piece of a message: "326" is a text, then ":2" its second role, "_" in lower case, "<3" its
/// first characters, ">7" from the seventh on ("/": another place in Swedish), "-" from its first
/// hyphen on, "~" up to its first blank.
std::string Piece(std::string_view code) {
    std::string text = Text(int(TakeNumber(code)));
    while (!code.empty()) {
        const char mark = code.front();
        code.remove_prefix(1);
        if (mark == '_') text = LowerCase(text);
        if (mark == '-') text = text.substr(std::min(text.find('-'), text.size()));
        if (mark == '~') text = LeftOfSeparator(text, " ");
        if (mark != ':' && mark != '<' && mark != '>') continue;
        auto count = static_cast<std::size_t>(TakeNumber(code));
        if (code.starts_with('/')) {
            code.remove_prefix(1);
            const auto swedish = static_cast<std::size_t>(TakeNumber(code));
            if (session.Language == 1) count = swedish;
        }
        if (mark == ':') text = TextRole(text, static_cast<int>(count));
        if (mark == '<') text = Left(text, count);
        if (mark == '>') text = Mid(text, count);
    }
    return text;
}

/// A message whose pieces stand in "{ }".
std::string Composed(std::string_view pattern, int language) {
    session.Language = language;
    std::string text;
    while (!pattern.empty()) {
        text += TakeUpTo(pattern, '{');
        if (!pattern.empty()) text += Piece(TakeUpTo(pattern, '}'));
    }
    return text;
}

struct Message {
    const char* pattern;
    const char* english;
    const char* swedish;
};

// "␣" is a no-break space: it keeps a blank at the end of a text that is trimmed. A wording that
// loses one, moves a cut or starts with the wrong letter spoils these.
constexpr Message kMessages[] = {
    {"{326}", "Heat G: the typed text is not a number", "Värme, glas: uppgiften är inte ett tal"},
    {"{324}{326>7/12}", "Infiltration: the typed text is not a number",
     "Infiltration: uppgiften är inte ett tal"},
    {"{333}{326>7/12}", "Internal load, glazed space: the typed text is not a number",
     "Internlast, glasrum: uppgiften är inte ett tal"},
    {"{325}{326>23}", "Forced flow is not a number", "Forcerat flöde är inte ett tal"},
    {"{335}", "Cool B - the typed text is not a number",
     "Kyla, byggnad - uppgiften är inte ett tal"},
    {"{157} {229_}{335-}", "Absorptance inner walls␣- the typed text is not a number",
     "Absorptans innerväggar␣- uppgiften är inte ett tal"},
    {"{157} {256:2}{335-}", "Absorptance floor␣- the typed text is not a number",
     "Absorptans golv␣- uppgiften är inte ett tal"},
    {"{291}{335-}", "Window share (%)␣- the typed text is not a number",
     "Fönsterandel (%)␣- uppgiften är inte ett tal"},
    {"{7<0/3}{114}{203} -> {201}", "Flow from␣Glazed space -> Building",
     "Mek.vent. från␣Glasrum -> Byggnad"},
    {"a - {222_}", "a - not a valid value", "a - inte ett giltigt värde"},
    {"d - {223_} : (>1", "d - out of bounds : (>1", "d - utanför gränserna : (>1"},
    {"a {161} > c", "a must be > c", "a ska vara > c"},
    {"{220}({52}/{196_} index 1)", "Dimensions(U-shape/case index 1)", "Mått(U-form/fall index 1)"},
    {"{219} ({51}/{196} number 1)", "Site and orientation (I-shape/Case number 1)",
     "Plats och orientering (I-form/Fall number 1)"},
    {"{176} {57:1} {108} 50 {107}", "Note on Case at most 50 ␣characters",
     "Anteckning till Fall högst 50 ␣tecken"},
    {"{106} 6, {108} 23{107}", "At least 6, at most 23␣characters", "Minst 6, högst 23␣tecken"},
    {"{77} {161} {165}", "Transmittance must be a whole number",
     "Transmittans ska vara ett heltal"},
    {"{160} {162} {57:1} : {22} 1", "Window type is used in Case : V-shape 1",
     "Fönstertyp används i Fall : V-form 1"},
    {"{48} {173}", "Delete Wall type", "Ta bort Väggtyp"},
    {"{192}SET!U1.CAS {6}{14_} ?", "Load the saved case␣SET!U1.CAS over the working␣case ?",
     "Läs in det sparade fallet␣SET!U1.CAS som arbetsfall ?"},
    {"{254} {48} {14} SET!U1.CAS", "Confirm: Delete Case SET!U1.CAS",
     "Bekräfta: Ta bort Fall SET!U1.CAS"},
    {"{43} {337} {338}", "Refused: New name belongs to a saved case already",
     "Avbrutet: Nytt namn finns redan bland sparade fall"},
    {"{193} {340} ?", "Make this case the one that its place starts with from now on ?",
     "Låt detta fall bli det som platsen börjar med från och med nu ?"},
    {"{61:1} {203_}; {59:1_} {58:1_}", "Results glazed space; steady-state calculation",
     "Resultat glasrum; stationär beräkning"},
    {"{61:1} {203_}; {272_} {58:1_}", "Results glazed space; dynamic calculation",
     "Resultat glasrum; dynamisk beräkning"},
    {"{263~}, {266~}", "Power, Temperature", "Effekt, Temperatur"},
    {"{270} {203}(ºC) = f( {71:1} {278} )",
     "Minimum temperature Glazed space(ºC) = f( Mean temperature Outdoor air )",
     "Lägsta temperatur Glasrum(ºC) = f( Medeltemperatur Uteluft )"},
    {"{251} {248}", "The glazed space may be too warm in summer. Can this be accepted?",
     "Glasrummet kan bli för varmt på sommaren. Kan detta godtas?"},
    {"{195}{53} -- index {196} 1", "Shape:␣O-shape -- index Case 1",
     "Form:␣O-form -- index Fall 1"},
    {"index {75:2} > {69} 1", "index of refraction > required: 1", "index för brytning > krav: 1"},
    {"{65} ab c {66} {67}", "The name ab c holds a blank and is refused",
     "Namnet ab c innehåller blanktecken och godtas inte"},
    {"{74:2} {161} ( 0.1 -  100)", "Thickness must be ( 0.1 -  100)",
     "Tjocklek ska vara ( 0.1 -  100)"},
    {"{143} 3 {144}?", "Delete window type 3 from the list?", "Ta bort fönstertyp 3 ur listan?"},
};

std::string WithNoBreakSpaces(std::string text) {
    for (const std::string mark = "␣"; text.find(mark) != std::string::npos;) {
        text.replace(text.find(mark), mark.size(), "\u00A0");
    }
    return text;
}

TEST_F(DeliveredTexts, ComposeIntoTheMessagesThatAUserReads) {
    for (const Message& message : kMessages) {
        EXPECT_EQ(Composed(message.pattern, 2), WithNoBreakSpaces(message.english));
        EXPECT_EQ(Composed(message.pattern, 1), WithNoBreakSpaces(message.swedish));
    }
}

TEST_F(DeliveredTexts, StandInBothLanguagesAtEveryNumberThatIsAskedFor) {
    std::string_view asked =
        "6-7 13-14 22 42-43 47-48 50-53 56-67 69-83 86-93 98-108 110-111 114 127-129 131-134 "
        "136-157 160-162 164-169 171-173 176-177 179-181 184-185 187-190 192-193 195-196 198 201 "
        "203 209 219-220 222-223 229 242-248 250-251 254 256-258 260-263 266-268 270 272 278 291 "
        "324-338 340 363 446-448 450";
    while (!asked.empty()) {
        std::string_view range = TakeUpTo(asked, ' ');
        const int first = static_cast<int>(TakeNumber(range));
        const int last = range.empty() ? first : static_cast<int>(-TakeNumber(range));
        for (int number = first; number <= last; ++number) EXPECT_NE(GetText(1, number), "");
    }
    for (const int number : session.ProgramText.Numbers()) {
        const int language = number / 10000;
        const std::string other = GetText(3 - language, number % 10000);
        EXPECT_NE(other, "") << number << " in the other language";
        const auto roles = [](const std::string& text) {
            return std::count(text.begin(), text.end(), '|');
        };
        EXPECT_EQ(roles(other), roles(GetText(language, number % 10000))) << number;
    }
}

TEST_F(DeliveredTexts, AreReadFromTheFileAnewOnlyByFullNumber) {
    PutBytes(root + "/MWTHARM/ProgramText.Dat", "20014,  \xA0K\xE4yChr13,2  \n20014, later");
    EXPECT_EQ(ReadProgramText(20014), "\u00A0Käy\r,2  ");
    EXPECT_EQ(ReadProgramText(14), "");
    EXPECT_EQ(GetText(2, 14), "Case") << "as loaded at the start";
    LoadProgramText();
    EXPECT_EQ(GetText(2, 14), "\u00A0Käy\r,2");
    session.SimulatorFolder = Path("none");
    LoadProgramText();
    EXPECT_EQ(Text(14), "");
    EXPECT_EQ(ReadProgramText(20014), "");
}

}  // namespace
}  // namespace verandis
