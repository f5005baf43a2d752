// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/exit_signals.h"
#include "desktop/panel_choice.h"
#include "desktop/xdg_autostart.h"
#include "desktop/xdg_folders.h"
#include "support/disk_fixture.h"
#include "support/qt_application.h"

#include <QTest>

#include <csignal>

namespace velmoriax::desktop {
namespace {

namespace fs = std::filesystem;
using Edge = platform::TaskBarPosition::Edge;

struct AutostartEntry : test::DiskFixture {
    fs::path config = root_ / "config";
    test::Variable home{"XDG_CONFIG_HOME", config};
    XdgAutostart autostart{"/opt/my app/Velmoriax"};
    fs::path entry = config / "autostart" / "Velmoriax.desktop";
};

TEST_F(AutostartEntry, MakesTheFolderAndNamesTheProgram) {
    ASSERT_TRUE(autostart.write("Velmoriax"));
    const std::string text = test::bytesOf(entry);
    for (const char* line : {"[Desktop Entry]\n", "\nType=Application\n", "\nExec=\"/opt/my app/Velmoriax\"\n",
                             "\nX-GNOME-Autostart-enabled=true\n", "\nStartupNotify=false\n"})
        EXPECT_NE(text.find(line), std::string::npos) << line;
    ASSERT_TRUE(XdgAutostart("/moved/Velmoriax").write("Velmoriax")) << "a moved program writes its new place";
    EXPECT_NE(test::bytesOf(entry).find("Exec=\"/moved/Velmoriax\""), std::string::npos);
    EXPECT_TRUE(autostart.erase("Velmoriax"));
    EXPECT_FALSE(fs::exists(entry));
    EXPECT_FALSE(autostart.erase("Velmoriax"));
}

TEST_F(AutostartEntry, FailsWhereTheFolderCannotBeMade) {
    write(config, "a file in the place of the folder");
    EXPECT_FALSE(autostart.write("Velmoriax"));
}

TEST(XdgFolders, ARelativeVariableIsIgnored) {
    const test::Variable home("HOME", "/home/ann");
    const test::Variable config("XDG_CONFIG_HOME", "relative");
    const test::Variable data("XDG_DATA_HOME", "/data");
    EXPECT_EQ(configHome(), "/home/ann/.config");
    EXPECT_EQ(dataHome(), "/data");
}

TEST(PanelChoice, OfSeveralPanelsTheOneWithTheIconThenTheOneAtTheBottomThenTheThickest) {
    const QRect screen(0, 0, 1280, 800);
    const QRect noIcon;
    const test::Table<QRect, QRect, std::optional<Edge>, const char*> rows{
        {screen, noIcon, std::nullopt, "no panel"},
        {{0, 0, 1280, 770}, noIcon, Edge::bottomEdge, "a panel at the bottom"},
        {{0, 30, 1280, 770}, noIcon, Edge::topEdge, "a panel at the top"},
        {{0, 40, 1280, 730}, noIcon, Edge::bottomEdge, "two: the bottom, although it is thinner"},
        {{0, 40, 1280, 730}, {1200, 8, 24, 24}, Edge::topEdge, "two: the one with the icon"},
        {{50, 30, 1230, 770}, noIcon, Edge::leftEdge, "two, none at the bottom: the thicker"},
        {{0, 0, 1200, 800}, noIcon, Edge::rightEdge, "a panel at the right"},
    };
    for (const auto& [work, icon, edge, why] : rows) {
        const auto panel = panelOf(screen, work, icon);
        EXPECT_EQ(panel.has_value(), edge.has_value()) << why;
        if (panel && edge) EXPECT_EQ(panel->edge, *edge) << why;
    }
    EXPECT_EQ(panelOf(screen, {0, 0, 1280, 770}, noIcon)->top, 770);
}

TEST(PanelChoice, ABandIsCutOffTheEdgeThatItRunsAlong) {
    const QRect screen(0, 0, 1280, 800);
    EXPECT_EQ(withoutBand(screen, {0, 770, 1280, 30}), QRect(0, 0, 1280, 770));
    EXPECT_EQ(withoutBand(screen, {0, 0, 1280, 30}), QRect(0, 30, 1280, 770));
    EXPECT_EQ(withoutBand(screen, {0, 0, 50, 800}), QRect(50, 0, 1230, 800));
    EXPECT_EQ(withoutBand(screen, {1230, 0, 50, 800}), QRect(0, 0, 1230, 800));
    EXPECT_EQ(withoutBand(screen, {1280, 0, 50, 800}), screen) << "a band on another screen";
}

TEST(ExitSignals, EachOneIsReported) {
    test::application();
    int reported = 0;
    const ExitSignals exits([&] { ++reported; });
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        const int before = reported;
        std::raise(number);
        EXPECT_TRUE(QTest::qWaitFor([&] { return reported == before + 1; })) << number;
        std::signal(number, SIG_DFL);
    }
}

} // namespace
} // namespace velmoriax::desktop
