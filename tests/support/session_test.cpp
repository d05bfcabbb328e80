#include "support/session_test.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/data_root.h"
#include "app/session.h"
#include "app/settings.h"
#include "app/start_up.h"
#include "calc/climate_file.h"
#include "calc/heat_balance.h"
#include "calc/results.h"
#include "libraries/simple_libraries.h"
#include "platform/spelling.h"
#include "projects/slot_activation.h"

namespace verandis::testing_support {
namespace {

namespace fs = std::filesystem;

/// Short, because a data root's path may have 48 characters.
std::string MakeTemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "vXXXXXX").string();
    if (!::mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
    return name;
}

constexpr const char* kWindows =
    "Window library, perpendicular insolation\n"
    "ID, Glass type, transmission, reflectance, absorptance, U-value, Number of panes\n"
    "1\tClear1\t0.83\t0.08\t0.09\t5.8\t1\n"
    "2\tClear2\t0.70\t0.13\t0.17\t2.8\t2\n"
    "3\tLowE-3\t0,45\t0,20\t0,35\t1,1\t3\n";
constexpr const char* kReferenceWindows =
    "Window library, perpendicular insolation\nID\n"
    "1\tRefWin1\t0.80\t0.10\t0.10\t5.8\t1\n"
    "2\tRefWin2\t0.70\t0.15\t0.15\t2.8\t2\n"
    "3\tRefWin3\t0.60\t0.20\t0.20\t1.9\t3\n";
constexpr const char* kWalls =
    "Wall library\nWall ID, U-value\n"
    "1\tWallA1\t0.5\n"
    "2\tWallB2\t0.25\n"
    "3\tFloorC\t0,4\n";

std::string SunPanels() {
    std::string text = "one\ntwo\nthree\n";
    for (const char* set : {"U", "O", "V", "I"}) {
        text += std::string(set) + "\n0.9\n0.5\n0.8\n0.4\n0.7\n0.3\n";
    }
    return text;
}

}  // namespace

std::string Dos(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (c == '\n') result += '\r';
        result += c;
    }
    return result;
}

std::string Bytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path;
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void PutBytes(const std::string& path, const std::string& bytes) {
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
    ForgetSpellings();
}

bool OnDisk(const std::string& path) {
    return fs::exists(path);
}

std::vector<std::pair<std::string, std::string>> TreeOf(const std::string& folder) {
    std::vector<std::pair<std::string, std::string>> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        files.emplace_back(fs::relative(entry.path(), folder).string(),
                           Bytes(entry.path().string()));
    }
    std::sort(files.begin(), files.end());
    return files;
}

SessionTest::SessionTest() : folder_(MakeTemporaryFolder()) {
    session = {};
    runResults = {};
    heatBalance = {};
    climateTables = {};
    simpleLibraries = {};
    SetRootSpelling("");
    UsePrompts(prompts);
    UseProgress(progress);
    ::setenv("VERANDIS_CONFIG_DIR", (folder_ + "/config").c_str(), 1);
    ::setenv("VERANDIS_DELIVERED", VERANDIS_DELIVERED_FOLDER, 1);
}

SessionTest::~SessionTest() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

SmallRootTest::SmallRootTest() : root(Path("Root")), project(root + "/PROJECT/verandis") {
    PutBytes(root + "/PROJECT/PROJECTS.LIB", "verandis\t" + project + "\r\n");
    PutBytes(project + "/CASES.LIB", "");
    PutBytes(project + "/SimpWindows.lib", Dos(kWindows));
    PutBytes(project + "/SimpRefWindows.lib", Dos(kReferenceWindows));
    PutBytes(project + "/SimpWalls.lib", Dos(kWalls));
    PutBytes(project + "/SimpSunPanel.lib", Dos(SunPanels()));
    fs::create_directories(root + "/CLIM");
    UseSystemPath(root);
    OpenHomeProject();
}

void SmallRootTest::MakeSlot(const Slot& slot, const std::string& properties) {
    std::ofstream(project + "/CASES.LIB", std::ios::app | std::ios::binary)
        << SlotCaseName(slot) << " - a case\r\n";
    PutBytes(SlotFile(slot, "SimpPropertiesOfCase.Dat"), Dos(properties));
    ActivateSlot(slot.caseNo, slot.shape, "");
}

std::string SmallRootTest::SlotFile(const Slot& slot, const std::string& name) const {
    return project + "/" + SlotFolderName(slot) + "/" + name;
}

DeliveredRootTest::DeliveredRootTest() : root(Path("Root")), project(root + "/PROJECT/verandis") {
    EXPECT_EQ(MakeDataRoot(root), "");
    Settings settings = StoredSettings();
    settings.SystemPath = root;
    EXPECT_TRUE(WriteSystemSettings(settings));
    EXPECT_TRUE(ReadSystemSettings());
}

}  // namespace verandis::testing_support
