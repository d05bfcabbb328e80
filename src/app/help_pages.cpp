#include "app/help_pages.h"

#include <algorithm>
#include <iterator>

#include "app/data_root.h"
#include "app/session.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "text/characters.h"
#include "text/numbers.h"
#include "text/separators.h"

namespace verandis {
namespace {

constexpr const char* kContentsFile = "contents.txt";
constexpr int kSwedish = 1;
constexpr std::size_t kExcerptBefore = 40;  // bytes of an excerpt in front of the found word
constexpr std::size_t kExcerptLength = 120;

std::string FolderBelow(std::string_view simulatorFolder) {
    const char* language = session.Language == kSwedish ? "sv" : "en";
    return JoinPath(JoinPath(simulatorFolder, "help"), language);
}

bool HasContents(const std::string& folder) {
    return FileExists(JoinPath(folder, kContentsFile));
}

std::optional<HelpPage> PageOfLine(std::string_view line) {
    HelpPage page;
    page.level = WholeNumber(ToNumber(TakeUpTo(line, '\t')));
    page.file = TakeUpTo(line, '\t');
    std::string_view topics = TakeUpTo(line, '\t');
    page.title = TakeUpTo(line, '\t');
    if (page.title.empty()) return std::nullopt;
    while (!topics.empty()) page.topics.push_back(WholeNumber(ToNumber(TakeUpTo(topics, ','))));
    return page;
}

std::vector<std::string> WordsIn(std::string_view text) {
    std::vector<std::string> words;
    const std::string lower = LowerCase(text);
    for (std::string_view rest = lower; !rest.empty();) {
        if (const auto word = TakeUpTo(rest, ' '); !word.empty()) words.emplace_back(word);
    }
    return words;
}

std::size_t CountOf(std::string_view word, std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::string_view::npos;
         at = text.find(word, at + word.size())) {
        ++count;
    }
    return count;
}

/// The text around a place, cut at blanks so that no letter is torn.
std::string ExcerptAt(const std::string& text, std::size_t at) {
    std::size_t first = 0;
    if (at > kExcerptBefore) {
        const std::size_t blank = text.rfind(' ', at - kExcerptBefore);
        first = blank == std::string::npos ? 0 : blank + 1;
    }
    const std::size_t end = text.find(' ', std::min(text.size(), first + kExcerptLength));
    const bool cutEnd = end != std::string::npos;
    return (first > 0 ? "… " : "") + text.substr(first, cutEnd ? end - first : end) +
           (cutEnd ? " …" : "");
}

struct Entity {
    std::string_view code;
    std::string_view text;
};

constexpr Entity kEntities[] = {
    {"&lt;", "<"}, {"&gt;", ">"}, {"&amp;", "&"}, {"&quot;", "\""}, {"&nbsp;", " "}};

/// The sign that `html` begins with, as it stands there and as text.
Entity SignAt(std::string_view html) {
    for (const Entity& entity : kEntities) {
        if (html.starts_with(entity.code)) return entity;
    }
    const std::string_view sign = html.substr(0, 1);
    return {sign, sign == "\n" || sign == "\r" ? " " : sign};
}

/// True for the tags that may stand within a word; all others part words.
bool StandsInWords(std::string_view tag) {
    constexpr std::string_view kTags[] = {"<sub", "</sub", "<sup", "</sup", "<b>",
                                          "</b>", "<i>",   "</i>", "<a ",   "</a>"};
    return std::any_of(std::begin(kTags), std::end(kTags),
                       [&](std::string_view each) { return tag.starts_with(each); });
}

struct Ranked {
    HelpHit hit;
    bool inTitle;
    std::size_t count;
};

}  // namespace

std::string HelpFolder() {
    const std::string own = FolderBelow(session.SimulatorFolder);
    const std::string delivered = FolderBelow(JoinPath(DeliveredFolder(), "MWTHARM"));
    return !HasContents(own) && HasContents(delivered) ? delivered : own;
}

HelpBook::HelpBook(std::string folder) : folder_(std::move(folder)) {
    const auto lines = ReadUtf8Lines(JoinPath(folder_, kContentsFile));
    if (!lines) return;
    for (const std::string& line : *lines) {
        if (auto page = PageOfLine(line)) pages_.push_back(std::move(*page));
    }
    texts_.resize(pages_.size());
}

std::optional<std::size_t> HelpBook::PageOfTopic(int topic) const {
    std::optional<std::size_t> first;
    for (std::size_t at = 0; at < pages_.size(); ++at) {
        const HelpPage& page = pages_[at];
        if (page.file.empty()) continue;
        if (!first) first = at;
        if (std::find(page.topics.begin(), page.topics.end(), topic) != page.topics.end()) {
            return at;
        }
    }
    return first;
}

std::optional<std::size_t> HelpBook::PageOfFile(std::string_view file) const {
    if (file.empty()) return std::nullopt;
    for (std::size_t at = 0; at < pages_.size(); ++at) {
        if (EqualNoCase(pages_[at].file, file)) return at;
    }
    return std::nullopt;
}

std::vector<HelpHit> HelpBook::Search(std::string_view words) const {
    const std::vector<std::string> wanted = WordsIn(words);
    std::vector<Ranked> found;
    for (std::size_t at = 0; at < pages_.size() && !wanted.empty(); ++at) {
        if (pages_[at].file.empty()) continue;
        const std::string& text = TextOf(at);
        const std::string lower = LowerCase(text);
        Ranked ranked{{at, ""}, true, 0};
        const bool all = std::all_of(wanted.begin(), wanted.end(), [&](const std::string& word) {
            const std::size_t count = CountOf(word, lower);
            ranked.count += count;
            ranked.inTitle = ranked.inTitle && ContainsNoCase(pages_[at].title, word);
            return count > 0 || ContainsNoCase(pages_[at].title, word);
        });
        if (!all) continue;
        const std::size_t place = lower.find(wanted.front());
        ranked.hit.excerpt = ExcerptAt(text, place == std::string::npos ? 0 : place);
        found.push_back(std::move(ranked));
    }
    std::stable_sort(found.begin(), found.end(), [](const Ranked& left, const Ranked& right) {
        if (left.inTitle != right.inTitle) return left.inTitle;
        return left.count > right.count;
    });
    std::vector<HelpHit> hits;
    for (Ranked& each : found) hits.push_back(std::move(each.hit));
    return hits;
}

const std::string& HelpBook::TextOf(std::size_t page) const {
    std::optional<std::string>& text = texts_[page];
    if (!text) {
        text = PlainTextOf(ReadBytes(JoinPath(folder_, pages_[page].file)).value_or(""));
    }
    return *text;
}

std::string PlainTextOf(std::string_view html) {
    for (const char* end : {"</head>", "</h1>"}) {
        const std::size_t at = html.find(end);
        if (at != std::string_view::npos) html.remove_prefix(at);
    }
    std::string text;
    while (!html.empty()) {
        Entity sign = SignAt(html);
        if (sign.code == "<") {
            const std::string_view tag = html.substr(0, html.find('>') + 1);
            if (tag.empty()) break;  // it never ends
            sign = {tag, StandsInWords(tag) ? "" : " "};
        }
        html.remove_prefix(sign.code.size());
        const bool again = sign.text == " " && (text.empty() || text.back() == ' ');
        if (!again) text += sign.text;
    }
    return std::string(TrimBlanks(text));
}

}  // namespace verandis
