#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The pages of the help: which there are, what they are called, which one a dialog's Help button
// opens, and where words stand. A folder holds one language: the pages as HTML in UTF-8 and
// `contents.txt`, a line a page: level, file, topic numbers with commas, title, parted by TABs. A
// line without a file is a heading.

namespace verandis {

inline constexpr int kHelpContentsTopic = 11999;

struct HelpPage {
    int level = 0;     // depth in the contents, from 0
    std::string file;  // empty: a heading of the contents
    std::string title;
    std::vector<int> topics;
};

/// A page that holds the searched words.
struct HelpHit {
    std::size_t page = 0;  // its place in the contents
    std::string excerpt;   // the text around the first word that was found
};

/// Folder of the help in the session's language: below the data's `MWTHARM/help`, else below the
/// delivered one, which also serves data roots that are older than the help. Without either it is
/// the first of them.
std::string HelpFolder();

class HelpBook {
public:
    /// Reads the contents of a folder; a missing one gives a book without pages.
    explicit HelpBook(std::string folder);

    const std::string& folder() const { return folder_; }
    const std::vector<HelpPage>& pages() const { return pages_; }

    /// The page of a topic number; the first page for an unknown number, nothing in an empty book.
    std::optional<std::size_t> PageOfTopic(int topic) const;

    /// The page of a file name, in any letter case.
    std::optional<std::size_t> PageOfFile(std::string_view file) const;

    /// Pages that hold every one of the blank-parted words, in any letter case and also within
    /// words. Pages with the words in the title come first, then those that hold them most often.
    std::vector<HelpHit> Search(std::string_view words) const;

private:
    const std::string& TextOf(std::size_t page) const;

    std::string folder_;
    std::vector<HelpPage> pages_;
    mutable std::vector<std::optional<std::string>> texts_;  // read when first searched
};

/// The words of a page behind its title, without tags, blanks and line breaks drawn together.
std::string PlainTextOf(std::string_view html);

}  // namespace verandis
