#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace verandis::bench {

/// A data root made of the delivered data in a temporary folder, started, with one case of each
/// shape marked for a steady-state run without diagrams. It is removed at the end. Throws
/// std::runtime_error when it cannot be made.
class BenchRoot {
public:
    BenchRoot();
    ~BenchRoot();
    BenchRoot(const BenchRoot&) = delete;
    BenchRoot& operator=(const BenchRoot&) = delete;

    /// Folder of the sixteen slots and of their templates.
    std::string Project() const;

    /// Makes one more empty folder beside the data root. Those before it stay: a file system that
    /// has just deleted many files is slow to make new ones.
    std::filesystem::path NewFolder();

private:
    std::filesystem::path folder_;
    int folders_ = 0;
};

/// Runs the marked cases. Throws std::runtime_error when the run does not come to its end.
void RunMarkedCases();

/// Copies the trees of the sixteen slots as they stand into an empty folder.
void CopySlotTrees(const std::string& project, const std::filesystem::path& target);

/// Opens each file, reads it to its end into one buffer, and closes it: what any reading of these
/// files must cost at the least. Gives the number of bytes; throws std::runtime_error for a file
/// that cannot be opened.
std::size_t OpenReadClose(const std::vector<std::string>& paths);

}  // namespace verandis::bench
