#include "bench_root.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

#include "app/data_root.h"
#include "app/session.h"
#include "app/settings.h"
#include "app/start_up.h"
#include "calc/run_control.h"
#include "case/shapes.h"
#include "platform/files.h"

namespace verandis::bench {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMarkedSlots[] = {"U1", "O2", "V3", "I4"};

/// Short, because the path of a data root may have 48 characters.
fs::path TemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "vbXXXXXX").string();
    if (!::mkdtemp(name.data())) throw std::runtime_error("no temporary folder can be made");
    return name;
}

void MarkSlots() {
    session.CalcMode = kSteadyState;
    session.ShowDiagrams = kOff;
    for (const char* label : kMarkedSlots) {
        const Slot slot = SlotOfLabel(label);
        session
            .ChkCase[static_cast<std::size_t>(slot.shape)][static_cast<std::size_t>(slot.caseNo)] =
            true;
    }
}

}  // namespace

BenchRoot::BenchRoot() : folder_(TemporaryFolder()) {
    const std::string root = (folder_ / "root").string();
    const std::string complaint = MakeDataRoot(root);
    if (!complaint.empty()) throw std::runtime_error(complaint);
    UseSystemPath(root);
    if (!StartSession()) throw std::runtime_error("the slots cannot be made in " + root);
    MarkSlots();
}

BenchRoot::~BenchRoot() {
    std::error_code ignored;
    fs::current_path(fs::temp_directory_path(), ignored);
    fs::remove_all(folder_, ignored);
}

std::string BenchRoot::Project() const {
    return TrueSpelling(session.ProjectFolder);
}

fs::path BenchRoot::NewFolder() {
    const fs::path folder = folder_ / std::to_string(++folders_);
    fs::create_directory(folder);
    return folder;
}

void RunMarkedCases() {
    RunDisplay nothing;
    if (Calculate_Click(nothing) != RunOutcome::Done) throw std::runtime_error("the run stopped");
}

void CopySlotTrees(const std::string& project, const fs::path& target) {
    for (const Slot& slot : AllSlots()) {
        const std::string name = SlotFolderName(slot);
        fs::copy(fs::path(project) / name, target / name, fs::copy_options::recursive);
    }
}

std::size_t OpenReadClose(const std::vector<std::string>& paths) {
    static std::vector<char> buffer(std::size_t(1) << 20);
    std::size_t total = 0;
    for (const std::string& path : paths) {
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        if (file < 0) throw std::runtime_error(path + " cannot be opened");
        ssize_t count = 0;
        do {
            count = ::read(file, buffer.data(), buffer.size());
            if (count > 0) total += static_cast<std::size_t>(count);
        } while (count == static_cast<ssize_t>(buffer.size()));
        ::close(file);
    }
    return total;
}

}  // namespace verandis::bench
