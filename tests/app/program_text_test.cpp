#include "app/program_text.h"

#include <algorithm>

#include "app/data_root.h"
#include "app/session.h"
#include "support/session_test.h"
#include "text/characters.h"
#include "text/separators.h"

namespace verandis {
namespace {

using testing_support::PutBytes;

class DeliveredTexts : public testing_support::SessionTest {
protected:
    DeliveredTexts() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
    }
};

/// One piece of a message: "326" is a text, then ":2" its second role, "_" in lower case, "-" from
/// its first hyphen on, "~" up to its first blank, ">7/12" from that character on in English and in
/// Swedish, "<3/3" its first characters.
std::string Piece(std::string_view code) {
    std::string text = Text(static_cast<int>(TakeNumber(code)));
    const char mark = code.empty() ? ' ' : code.front();
    if (code.ends_with('_')) text = LowerCase(TextRole(text, 1));
    if (mark == ':') text = TextRole(text, code[1] - '0');
    if (mark == '-') text = text.substr(std::min(text.find('-'), text.size()));
    if (mark == '~') text = LeftOfSeparator(text, " ");
    if (mark != '<' && mark != '>') return text;
    const std::string_view english = LeftOfSeparator(code.substr(1), "/");
    const std::string_view swedish = RightOfSeparator(code, "/");
    const auto at =
        static_cast<std::size_t>(PlainNumber(session.Language == 1 ? swedish : english));
    return mark == '<' ? Left(text, at) : Mid(text, at);
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

// A no-break space keeps a blank at the end of a text that is trimmed. A wording that loses one,
// moves a cut or keeps a capital inside a sentence spoils these.
constexpr Message kMessages[] = {
    {"{324}{326>7/12}", "Infiltration: the typed text is not a number",
     "Infiltration: uppgiften är inte ett tal"},
    {"{325}{326>23/23}", "Forced flow is not a number", "Forcerat flöde är inte ett tal"},
    {"{157} {229_}{335-}", "Absorptance inner walls\u00A0- the typed text is not a number",
     "Absorptans innerväggar\u00A0- uppgiften är inte ett tal"},
    {"{157} {256:2}{335-}", "Absorptance floor\u00A0- the typed text is not a number",
     "Absorptans golv\u00A0- uppgiften är inte ett tal"},
    {"{291}{335-}", "Window share (%)\u00A0- the typed text is not a number",
     "Fönsterandel (%)\u00A0- uppgiften är inte ett tal"},
    {"{7<0/3}{114}{203} -> {201}", "Flow from\u00A0Glazed space -> Building",
     "Mek.vent. från\u00A0Glasrum -> Byggnad"},
    {"a - {222_}", "a - not a valid value", "a - inte ett giltigt värde"},
    {"{220}({52}/{196_} index 1)", "Dimensions(U-shape/case index 1)", "Mått(U-form/fall index 1)"},
    {"{176} {57:1} {108} 50 {107}", "Note on Case at most 50 \u00A0characters",
     "Anteckning till Fall högst 50 \u00A0tecken"},
    {"{106} 6, {108} 23{107}", "At least 6, at most 23\u00A0characters",
     "Minst 6, högst 23\u00A0tecken"},
    {"{192}SET!U1.CAS {6}{14_} ?",
     "Load the saved case\u00A0SET!U1.CAS over the working\u00A0case ?",
     "Läs in det sparade fallet\u00A0SET!U1.CAS som arbetsfall ?"},
    {"{61:1} {203_}; {59_} {58_}", "Results glazed space; steady-state calculation",
     "Resultat glasrum; stationär beräkning"},
    {"{263~}, {266~}", "Power, Temperature", "Effekt, Temperatur"},
    {"{270} {203}(ºC) = f( {71:1} {278} )",
     "Minimum temperature Glazed space(ºC) = f( Mean temperature Outdoor air )",
     "Lägsta temperatur Glasrum(ºC) = f( Medeltemperatur Uteluft )"},
    {"{195}{53} -- index {196} 1", "Shape:\u00A0O-shape -- index Case 1",
     "Form:\u00A0O-form -- index Fall 1"},
    {"{326}", "Heat G: the typed text is not a number", "Värme, glas: uppgiften är inte ett tal"},
    {"{333}{326>7/12}", "Internal load, glazed space: the typed text is not a number",
     "Internlast, glasrum: uppgiften är inte ett tal"},
    {"{334}{326>7/12}", "Internal load, building: the typed text is not a number",
     "Internlast, byggnad: uppgiften är inte ett tal"},
    {"{335}", "Cool B - the typed text is not a number",
     "Kyla, byggnad - uppgiften är inte ett tal"},
    {"{363}, {7<0/3}{114}{201} -> {203}",
     "No forced ventilation, Flow from\u00A0Building -> Glazed space",
     "Ingen forcerad ventilation, Mek.vent. från\u00A0Byggnad -> Glasrum"},
    {"d - {223_} : (>1", "d - out of bounds : (>1", "d - utanför gränserna : (>1"},
    {"a {161} > c", "a must be > c", "a ska vara > c"},
    {"{219} ({52}/{196} index 1)", "Site and orientation (U-shape/Case index 1)",
     "Plats och orientering (U-form/Fall index 1)"},
    {"{219} ({51}/{196} number 1)", "Site and orientation (I-shape/Case number 1)",
     "Plats och orientering (I-form/Fall number 1)"},
    {"{62}({52}/{196_} index 1)", "Edit(U-shape/case index 1)", "Ändra(U-form/fall index 1)"},
    {"{188}, {108} 20 {107}", "Name of the set, at most 20 \u00A0characters",
     "Samlingens namn, högst 20 \u00A0tecken"},
    {"{254} {48} {14} SET!U1.CAS", "Confirm: Delete Case SET!U1.CAS",
     "Bekräfta: Ta bort Fall SET!U1.CAS"},
    {"{43} {337} {338}, {47}", "Refused: New name belongs to a saved case already, Copy saved case",
     "Avbrutet: Nytt namn finns redan bland sparade fall, Kopiera sparat fall"},
    {"{193} {340} ?", "Make this case the one that its place starts with from now on ?",
     "Låt detta fall bli det som platsen börjar med från och med nu ?"},
    {"{61:1} {203_}; {272_} {58_}", "Results glazed space; dynamic calculation",
     "Resultat glasrum; dynamisk beräkning"},
    {"{242}:GOTEBORG", "Climate:GOTEBORG", "Klimat:GOTEBORG"},
    {"{270}-{203_}", "Minimum temperature-glazed space", "Lägsta temperatur-glasrum"},
    {"{71:1}-{203}", "Mean temperature-Glazed space", "Medeltemperatur-Glasrum"},
    {"{251} {248}", "The glazed space may be too warm in summer. Can this be accepted?",
     "Glasrummet kan bli för varmt på sommaren. Kan detta godtas?"},
    {"{257} {248}", "Then the glazed space is to be cooled. Can this be accepted?",
     "Då ska glasrummet kylas. Kan detta godtas?"},
    {"{243} Ph <= Ph.demand", "Change the design so that Ph <= Ph.demand",
     "Ändra utformningen så att Ph <= Ph.demand"},
    {"UShape / {196} 1", "UShape / Case 1", "UShape / Fall 1"},
    {"{70} {69} ( 0 -  100)", "Emissivity, front required: ( 0 -  100)",
     "Emissivitet, fram krav: ( 0 -  100)"},
    {"{76:2} {69} > 1", "Extinction required: > 1", "Extinktion krav: > 1"},
    {"{77} {69} 0 - < 100)", "Transmittance required: 0 - < 100)", "Transmittans krav: 0 - < 100)"},
    {"{65} ab c {66} {67}", "The name ab c holds a blank and is refused",
     "Namnet ab c innehåller blanktecken och godtas inte"},
    {"{74:2} {161} ( 0.1 -  100)", "Thickness must be ( 0.1 -  100)",
     "Tjocklek ska vara ( 0.1 -  100)"},
    {"{143} 3 {144}?", "Delete window type 3 from the list?", "Ta bort fönstertyp 3 ur listan?"},
    {"{160} {162} {57:1} : {52} 1, {48} {173}",
     "Window type is used in Case : U-shape 1, Delete Wall type",
     "Fönstertyp används i Fall : U-form 1, Ta bort Väggtyp"},
    {"index {75:2} > {69} 1", "index of refraction > required: 1", "index för brytning > krav: 1"},
};

TEST_F(DeliveredTexts, ComposeIntoTheMessagesThatAUserReads) {
    for (const Message& message : kMessages) {
        EXPECT_EQ(Composed(message.pattern, 2), message.english);
        EXPECT_EQ(Composed(message.pattern, 1), message.swedish);
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
        for (int number = first; number <= last; ++number)
            EXPECT_NE(GetText(1, number), "") << number;
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

TEST_F(DeliveredTexts, StayAsLoadedUntilTheyAreLoadedAgain) {
    session.SimulatorFolder = Path("other");
    PutBytes(Path("other/programtext.dat"), "20014,  \xA0K\xE4yChr13,2  \n20014, later");
    EXPECT_EQ(ReadProgramText(20014), "\u00A0Käy\r,2  ");
    EXPECT_EQ(ReadProgramText(14), "");
    EXPECT_EQ(GetText(2, 14), "Case");
    LoadProgramText();
    EXPECT_EQ(GetText(2, 14), "\u00A0Käy\r,2");
    session.SimulatorFolder = Path("none");
    LoadProgramText();
    EXPECT_EQ(Text(14), "");
    EXPECT_EQ(ReadProgramText(20014), "");
}

}  // namespace
}  // namespace verandis
