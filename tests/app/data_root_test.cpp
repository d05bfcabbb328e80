#include "app/data_root.h"

#include <cstdlib>
#include <filesystem>

#include "support/session_test.h"
#include "text/characters.h"

namespace verandis {
namespace {

namespace fs = std::filesystem;
using DataRoot = testing_support::SessionTest;
using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;
using testing_support::TreeOf;

TEST_F(DataRoot, IsTheDeliveredTreeAndOneProjectLine) {
    const std::string root = Path("New/Root");
    ASSERT_EQ(MakeDataRoot(root), "");
    EXPECT_TRUE(IsDataRoot(root));
    EXPECT_EQ(Bytes(root + "/PROJECT/PROJECTS.LIB"),
              "verandis\t" + LowerCase(root) + "/project/verandis\r\n");
    for (const char* folder : {"/CLIM", "/MWTHARM", "/PROJECT/verandis"}) {
        EXPECT_TRUE(TreeOf(root + folder) == TreeOf(DeliveredFolder() + folder)) << folder;
    }
    EXPECT_TRUE(OnDisk(root + "/WTHARM"));
}

TEST_F(DataRoot, IsNeverMadeOverAnother) {
    PutBytes(Path("Root/PROJECT/projects.lib"), "mine\t/mine\r\n");
    EXPECT_NE(MakeDataRoot(Path("Root")), "");
    EXPECT_EQ(TreeOf(Path("Root")).size(), 1u);
    EXPECT_EQ(Bytes(Path("Root/PROJECT/projects.lib")), "mine\t/mine\r\n");
}

TEST_F(DataRoot, TellsWhyItCannotBeMade) {
    PutBytes(Path("file"), "");
    PutBytes(Path("Half/CLIM"), "a file where a folder should be");
    for (const char* folder : {"file", "file/below", "a b", "Half"}) {
        EXPECT_NE(MakeDataRoot(Path(folder)), "") << folder;
        EXPECT_FALSE(IsDataRoot(Path(folder))) << folder << " can be tried again";
    }
    EXPECT_FALSE(OnDisk(Path("a b")));
    fs::remove(Path("Half/CLIM"));
    EXPECT_EQ(MakeDataRoot(Path("Half")), "") << "after the cause is gone";
    ::setenv("VERANDIS_DELIVERED", "", 1);
    EXPECT_NE(MakeDataRoot(Path("Root")), "");
    EXPECT_FALSE(OnDisk(Path("Root")));
}

}  // namespace
}  // namespace verandis
