// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/xdg_autostart.h"
#include "desktop/xdg_folders.h"
#include "support/disk_fixture.h"

namespace velmoriax::desktop {
namespace {

namespace fs = std::filesystem;

struct XdgAutostartTest : test::DiskFixture {
    fs::path config = root_ / "config";
    test::Variable configVariable{"XDG_CONFIG_HOME", config};
    XdgAutostart autostart{"/opt/my app/Velmoriax"};
    fs::path entry = config / "autostart" / "Name.desktop";
};

TEST_F(XdgAutostartTest, WritesAnEntryThatStartsTheProgramAndErasesIt) {
    ASSERT_TRUE(autostart.write("Name"));
    const std::string text = "\n" + test::bytesOf(entry);
    EXPECT_TRUE(text.starts_with("\n[Desktop Entry]\n"));
    for (const char* line : {"Type=Application", "Name=Name", "Exec=\"/opt/my app/Velmoriax\"", "Terminal=false",
                             "StartupNotify=false", "X-GNOME-Autostart-enabled=true"})
        EXPECT_NE(text.find("\n" + std::string(line) + "\n"), std::string::npos) << line;
    ASSERT_TRUE(XdgAutostart("/moved/Velmoriax").write("Name")) << "a moved program writes its new path";
    EXPECT_NE(test::bytesOf(entry).find("Exec=\"/moved/Velmoriax\"\n"), std::string::npos);
    ASSERT_TRUE(XdgAutostart("/opt/100%/Velmoriax").write("Name"));
    EXPECT_NE(test::bytesOf(entry).find("Exec=env \"/opt/100%%/Velmoriax\"\n"), std::string::npos);
    EXPECT_FALSE(autostart.erase("Other"));
    EXPECT_TRUE(autostart.erase("Name"));
    EXPECT_FALSE(fs::exists(entry));
    EXPECT_FALSE(autostart.erase("Name"));
}

TEST_F(XdgAutostartTest, ReportsWhatCannotBeWritten) {
    fs::create_directories(entry);
    EXPECT_FALSE(autostart.write("Name")) << "a folder has the name of the entry";
    fs::remove_all(config);
    write(config, "a file has the name of the folder");
    EXPECT_FALSE(autostart.write("Name"));
}

TEST(QuotedExecArgument, FollowsTheRulesOfDesktopEntries) {
    EXPECT_EQ(quotedExecArgument("/opt/my app/V"), "\"/opt/my app/V\"");
    EXPECT_EQ(quotedExecArgument("/a$b\"c`d%e\\f"), "\"/a\\\\$b\\\\\"c\\\\`d%%e\\\\\\\\f\"");
}

TEST(XdgFolders, AreTheDefaultsUnlessAVariableHoldsAnAbsolutePath) {
    const test::Variable home("HOME", "/home/ann");
    const test::Variable config("XDG_CONFIG_HOME", "relative");
    const test::Variable data("XDG_DATA_HOME", "/data");
    EXPECT_EQ(configHome(), "/home/ann/.config");
    EXPECT_EQ(dataHome(), "/data");
    const test::Variable noHome("HOME", "");
    EXPECT_EQ(configHome(), "/.config");
}

} // namespace
} // namespace velmoriax::desktop
