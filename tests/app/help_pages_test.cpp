#include "app/help_pages.h"

#include <cstdlib>
#include <set>

#include "app/session.h"
#include "platform/files.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::DeliveredRootTest;
using testing_support::OnDisk;
using testing_support::PutBytes;

// Opened by the Help buttons of dialogs, the menu and the pages' own places in the contents.
constexpr int kTopics[] = {11999, 12112, 12113, 12133, 12134, 12135, 12136, 12137, 12160, 12164,
                           12165, 12166, 12167, 12168, 12169, 12170, 12171, 12172, 13000, 13001,
                           13002, 13003, 13010, 13011, 13012, 13013, 13015, 13020, 13021, 13030,
                           13031, 13032, 13033, 13034, 13040, 13041, 13042, 13050};

/// Every value of an attribute in a page.
std::vector<std::string> Values(const std::string& html, const std::string& attribute) {
    std::vector<std::string> values;
    const std::string start = attribute + "=\"";
    for (std::size_t at = html.find(start); at != std::string::npos; at = html.find(start, at)) {
        at += start.size();
        values.push_back(html.substr(at, html.find('"', at) - at));
    }
    return values;
}

std::string Between(const std::string& text, const std::string& start, const std::string& end) {
    const std::size_t at = text.find(start);
    if (at == std::string::npos) return "";
    return text.substr(at + start.size(), text.find(end, at) - at - start.size());
}

/// The first tag that is not closed in the order of opening; empty for a sound page.
std::string FaultyTag(const std::string& html) {
    const std::set<std::string> single = {"!DOCTYPE", "meta", "link", "img", "br"};
    std::vector<std::string> open;
    for (std::size_t at = html.find('<'); at != std::string::npos; at = html.find('<', at + 1)) {
        const std::string tag = html.substr(at + 1, html.find_first_of(" >", at) - at - 1);
        if (single.contains(tag)) continue;
        if (tag.front() != '/') {
            open.push_back(tag);
        } else if (open.empty() || "/" + open.back() != tag) {
            return tag;
        } else {
            open.pop_back();
        }
    }
    return open.empty() ? "" : open.back();
}

class DeliveredHelp : public DeliveredRootTest, public testing::WithParamInterface<int> {
protected:
    DeliveredHelp() { session.Language = GetParam(); }
};

TEST_P(DeliveredHelp, HasOnePageForEachTopicAndATitleForEachPage) {
    const HelpBook book(HelpFolder());
    EXPECT_EQ(book.folder(), root + "/MWTHARM/help/" + (GetParam() == 1 ? "sv" : "en"));
    std::multiset<int> topics;
    std::set<std::string> files;
    for (const HelpPage& page : book.pages()) {
        topics.insert(page.topics.begin(), page.topics.end());
        if (page.file.empty()) continue;
        files.insert(page.file);
        const std::string html = Bytes(book.folder() + "/" + page.file);
        EXPECT_EQ(Between(html, "<title>", "</title>"), page.title) << page.file;
        EXPECT_EQ(Between(html, "<h1>", "</h1>"), page.title) << page.file;
        EXPECT_EQ(FaultyTag(html), "") << page.file;
    }
    EXPECT_EQ(topics, std::multiset<int>(std::begin(kTopics), std::end(kTopics)));
    for (const std::string& file : ListFiles(book.folder(), "*.html")) {
        EXPECT_TRUE(files.contains(file)) << file << " is not in the contents";
    }
}

TEST_P(DeliveredHelp, LeadsNowhereThatIsNotThere) {
    const HelpBook book(HelpFolder());
    for (const HelpPage& page : book.pages()) {
        if (page.file.empty()) continue;
        const std::string html = Bytes(book.folder() + "/" + page.file);
        std::vector<std::string> links = Values(html, "href");
        for (const std::string& picture : Values(html, "src")) links.push_back(picture);
        for (const std::string& link : links) {
            EXPECT_TRUE(OnDisk(book.folder() + "/" + link)) << page.file << ": " << link;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, DeliveredHelp, testing::Values(1, 2));

class SmallHelp : public testing_support::SessionTest {
protected:
    SmallHelp() {
        Page("glass.html", "Glass", "<p>A pane of GLASS.</p>");
        Page("walls.html", "Walls", "<p>No glass but <b>brick</b>work; glass &lt; brick</p>");
        Page("heat.html", "Värme", "<p>T<sub>g</sub>\nof the atrium, ÅÄÖ</p><p>End</p>");
        PutBytes(Path("contents.txt"), contents_);
    }

    void Page(const std::string& file, const std::string& title, const std::string& body) {
        PutBytes(Path(file),
                 "<html><head><title>secret</title></head><body><h1>secret</h1>" + body);
        const std::string topic = std::to_string(++topic_);
        contents_ += "0\t" + file + "\t" + topic + ",9" + topic + "\t" + title + "\r\n";
        contents_ += "0\t\t\tHeading\n\n";
    }

private:
    std::string contents_;
    int topic_ = 0;
};

struct Query {
    const char* words;
    std::vector<std::string> files;
    const char* excerpt;  // of the first hit
};

TEST_F(SmallHelp, FindsAllWordsInAnyCaseAndTheTitleFirst) {
    const Query queries[] = {
        {"glass", {"glass.html", "walls.html"}, "A pane of GLASS."},
        {"  BRICKWORK  glass ", {"walls.html"}, "No glass but brickwork; glass < brick"},
        {"åäö", {"heat.html"}, "Tg of the atrium, ÅÄÖ End"},
        {"tg", {"heat.html"}, "Tg of the atrium, ÅÄÖ End"},
        {"VÄRME", {"heat.html"}, "Tg of the atrium, ÅÄÖ End"},
        {"glass atrium", {}, ""},
        {"secret", {}, ""},
        {"heading", {}, ""},
        {"<b>", {}, ""},
        {"   ", {}, ""},
    };
    const HelpBook book(Path(""));
    for (const Query& query : queries) {
        std::vector<std::string> files;
        const auto hits = book.Search(query.words);
        for (const HelpHit& hit : hits) files.push_back(book.pages()[hit.page].file);
        EXPECT_EQ(files, query.files) << query.words;
        EXPECT_EQ(hits.empty() ? "" : hits[0].excerpt, query.excerpt) << query.words;
    }
}

TEST_F(SmallHelp, CutsAnExcerptAtBlanks) {
    std::string text;
    for (int word = 0; word < 40; ++word) text += word == 20 ? "MIDST " : "blåbär ";
    Page("long.html", "Long", text);
    PutBytes(Path("contents.txt"), "0\tlong.html\t1\tLong\n");
    const std::string excerpt = HelpBook(Path("")).Search("midst").at(0).excerpt;
    EXPECT_TRUE(excerpt.starts_with("… blåbär ") && excerpt.ends_with(" blåbär …")) << excerpt;
    EXPECT_NE(excerpt.find(" MIDST "), std::string::npos);
}

TEST_F(SmallHelp, FindsPagesByTopicAndFile) {
    const HelpBook book(Path(""));
    const auto file = [&](std::optional<std::size_t> page) { return book.pages()[*page].file; };
    EXPECT_EQ(file(book.PageOfTopic(92)), "walls.html");
    EXPECT_EQ(file(book.PageOfTopic(77)), "glass.html") << "an unknown one opens the first page";
    EXPECT_EQ(file(book.PageOfFile("HEAT.html")), "heat.html");
    EXPECT_FALSE(book.PageOfFile("")) << "a heading is no page";
    EXPECT_FALSE(HelpBook(Path("none")).PageOfTopic(1));
}

TEST_F(SmallHelp, TakesTheDeliveredPagesWhereTheDataHaveNone) {
    session.SimulatorFolder = Path("old");
    const std::string delivered = std::getenv("VERANDIS_DELIVERED");
    EXPECT_EQ(HelpFolder(), delivered + "/MWTHARM/help/en");
    PutBytes(Path("old/help/en/contents.txt"), "0\ta.html\t1\tA\n");
    EXPECT_EQ(HelpFolder(), Path("old/help/en"));
}

}  // namespace
}  // namespace verandis
