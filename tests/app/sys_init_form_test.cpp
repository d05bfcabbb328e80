#include "app/sys_init_form.h"

#include <QListWidget>
#include <filesystem>

#include "app/session.h"
#include "support/form_test.h"

namespace verandis {
namespace {

using testing_support::Control;
using testing_support::OnDisk;
using testing_support::Press;
using testing_support::Type;

using SettingsWindow = testing_support::SessionTest;

TEST_F(SettingsWindow, StandsWithoutACatalogueRefusesTellsAndMakesTheDataRoot) {
    SysInit window;
    window.show();
    EXPECT_EQ(window.windowTitle(), "System settings");
    EXPECT_EQ(Control<QPushButton>(window, "Command2").text().remove('&'), "Cancel");
    auto& path = Control<QLineEdit>(window, "SysPath");
    Type(Control(window, "LocalPath"), "");
    Type(path, "/tmp/a b");
    Press(Control(window, "Command1"));
    ASSERT_EQ(prompts.shown.size(), 1u);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(path.selectedText(), "/tmp/a b");

    const std::string root = Path("root");
    Type(path, root.c_str());
    Control<QComboBox>(window, "Lan_Comb").setCurrentIndex(0);
    Control<QComboBox>(window, "Combo1").setCurrentIndex(1);
    Control<QComboBox>(window, "DecimalSign").setCurrentIndex(1);
    prompts.answers = {true};
    QTest::keyClick(&path, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(window.StartedAnew());
    const Settings stored = StoredSettings();
    EXPECT_EQ(stored.SystemPath + stored.Language + stored.AccuracyLevelTL + stored.Regional,
              root + "14,");
    auto& bar = Control<QProgressBar>(window, "CopyProgress");
    EXPECT_EQ(bar.value(), bar.maximum());

    SysInit again;
    EXPECT_EQ(again.windowTitle(), QString::fromUtf8("Systeminställningar"));
    EXPECT_EQ(Control<QComboBox>(again, "Combo1").currentIndex(), 1);
}

TEST_F(SettingsWindow, BrowsesIntoTheFieldWithoutPressingOk) {
    std::filesystem::create_directories(Path("a/b"));
    std::filesystem::create_directories(Path("a/.hidden"));
    SysInit window;
    window.show();
    auto& path = Control<QLineEdit>(window, "SysPath");
    auto& folders = Control<QListWidget>(window, "Dir2");
    EXPECT_FALSE(folders.isVisible());
    Type(path, Path("a/not yet there").c_str());
    Press(Control(window, "BrowseSysPath"));
    ASSERT_TRUE(folders.isVisible());
    ASSERT_EQ(folders.count(), 2) << "one up and the visible folder";
    folders.setFocus();
    folders.setCurrentRow(1);
    QTest::keyClick(&folders, Qt::Key_Return);
    EXPECT_EQ(path.text().toStdString(), Path("a/b"));
    EXPECT_TRUE(window.isVisible());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(OnDisk(Path("config/Verandis.INI")));
}

}  // namespace
}  // namespace verandis
