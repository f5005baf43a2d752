// SPDX-License-Identifier: GPL-3.0-or-later
// Every name that the program can ask for: is it there, does it open, is it what it says?
#include "base/date_text.h"
#include "base/windows1252.h"
#include "sky/zodiac_tables.h"
#include "support/helpers.h"
#include "tarot/card_catalogue.h"

#include <QImage>
#include <QImageReader>

#include <cmath>
#include <set>

namespace velmoriax {
namespace {

namespace fs = std::filesystem;
using sky::signFileNames;
using tarot::Suit;
using test::bytesOf;

const fs::path data = VELMORIAX_DATA_DIR;
constexpr std::array allSuits{Suit::batons, Suit::cups, Suit::swords, Suit::golds};

QImage pictureAt(const fs::path& path) {
    return QImage(QString::fromStdString(path.string()));
}

void expectPicture(const fs::path& path, const char* format, QSize size) {
    QImageReader reader(QString::fromStdString(path.string()));
    EXPECT_EQ(reader.format(), format) << path;
    EXPECT_EQ(reader.size(), size) << path;
    EXPECT_FALSE(reader.read().isNull()) << path << ": " << reader.errorString().toStdString();
}

auto wordsOf(const std::string& text) {
    std::istringstream words(text);
    return std::distance(std::istream_iterator<std::string>(words), {});
}

/// A text of the program: Windows-1252, CR LF alone, as long as a page that one reads at a glance.
void expectText(const fs::path& path, long fewest, long most, std::set<std::string>& seen) {
    const std::string text = bytesOf(path);
    EXPECT_GE(wordsOf(text), fewest) << path;
    EXPECT_LE(wordsOf(text), most) << path;
    EXPECT_TRUE(seen.insert(text).second) << path << " is a copy of another text";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        EXPECT_FALSE(byte < 0x20 && byte != '\r' && byte != '\n') << path << " at " << i;
        EXPECT_EQ(text[i] == '\n', i > 0 && text[i - 1] == '\r') << path << " at " << i;
        EXPECT_FALSE(byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D) << path;
    }
}

/// The name of a sign's text and of its table.
std::string textFileOf(std::string_view sign) {
    return base::lowerWindows1252(sign) + ".txt";
}

TEST(Manifest, EachCardHasAPictureOfItsOwn) {
    std::vector<fs::path> paths{data / "amenores" / "reverso.jpg", data / "amenores" / "reverso2.jpg"};
    for (const char* deck : {"imagenes", "imagenes2", "imagenes3"})
        for (int card = 1; card <= tarot::majorCards; ++card)
            paths.push_back(data / deck / tarot::majorPictureFile(card));
    for (const Suit suit : allSuits)
        for (int index = 1; index <= tarot::suitCards; ++index)
            paths.push_back(data / "amenores" / tarot::minorPictureFile(suit, index));
    std::set<std::string> seen;
    for (const fs::path& path : paths) {
        expectPicture(path, "jpeg", {400, 720});
        EXPECT_TRUE(seen.insert(bytesOf(path)).second) << path << " is a copy of another card";
    }
}

TEST(Manifest, TextsOfCardsAndSigns) {
    std::set<std::string> seen;
    for (int card = 1; card <= tarot::majorCards; ++card)
        expectText(data / "textos" / tarot::majorTextFile(card), 110, 230, seen);
    for (const Suit suit : allSuits)
        for (int index = 1; index <= tarot::suitCards; ++index)
            expectText(data / "mtextos" / tarot::minorTextFile(suit, index), 55, 135, seen);
    for (const auto sign : signFileNames) expectText(data / "sigtxt" / textFileOf(sign), 110, 200, seen);
}

TEST(Manifest, MoonsWaxFromTheRightAndSignsAreTransparent) {
    for (int number = 0; number <= 30; ++number) {
        const fs::path path = data / "lunagif" / ("moon" + std::to_string(number) + ".gif");
        expectPicture(path, "gif", {160, 160});
        const QImage moon = pictureAt(path);
        const int left = qGray(moon.pixel(10, 80));
        const int right = qGray(moon.pixel(149, 80));
        if (number > 2 && number < 13) EXPECT_GT(right, left) << path;
        if (number > 17 && number < 28) EXPECT_GT(left, right) << path;
    }
    for (const auto sign : signFileNames) {
        const fs::path path = data / "signos" / (std::string(sign) + "_sm.gif");
        expectPicture(path, "gif", {64, 64});
        EXPECT_EQ(qAlpha(pictureAt(path).pixel(0, 0)), 0) << path;
    }
}

/// One period of a sign table, in days.
struct Period {
    double start;
    double end;
    std::size_t sign;
};

std::vector<Period> periodsOf(std::size_t sign) {
    std::vector<Period> periods;
    std::ifstream lines(data / "fechas-db" / textFileOf(signFileNames[sign]));
    for (std::string line; std::getline(lines, line);) {
        EXPECT_EQ(line.back(), '\r');
        line.pop_back();
        const std::size_t dash = line.find('-');
        const auto start = base::readDateTime(line.substr(0, dash));
        const auto end = base::readDateTime(line.substr(dash + 1));
        EXPECT_TRUE(start && end) << signFileNames[sign] << ": " << line;
        if (start && end) periods.push_back({base::linearDays(*start), base::linearDays(*end), sign});
    }
    return periods;
}

TEST(Manifest, SignTablesCoverTwoCenturiesWithoutAGap) {
    std::vector<Period> all;
    for (std::size_t sign = 0; sign < signFileNames.size(); ++sign)
        std::ranges::copy(periodsOf(sign), std::back_inserter(all));
    std::ranges::sort(all, {}, &Period::start);
    ASSERT_GT(all.size(), 2400U);
    EXPECT_LT(all.front().start, base::dayNumber({1900, 1, 1}));
    EXPECT_GT(all.back().end, base::dayNumber({2101, 1, 1}));
    for (std::size_t i = 1; i < all.size(); ++i) {
        ASSERT_EQ(all[i].start, all[i - 1].end) << "after period " << i;
        ASSERT_EQ(all[i].sign, (all[i - 1].sign + 1) % signFileNames.size());
        ASSERT_NEAR(all[i].end - all[i].start, 30.4, 1.2);
    }
}

// Equinoxes and solstices in universal time: to the second from the tables of Meeus, where the tables cut the fraction
// of the second, and to the minute as almanacs publish them.
TEST(Manifest, SignTablesMeetPublishedInstants) {
    const test::Table<std::size_t, base::CivilDate, base::CivilTime, double> rows{
        {0, {2000, 3, 20}, {7, 35, 15}, 10}, {0, {2004, 3, 20}, {6, 48, 37}, 10}, {0, {2005, 3, 20}, {12, 33, 24}, 10},
        {0, {2020, 3, 20}, {3, 50, 0}, 60},  {3, {2024, 6, 20}, {20, 51, 0}, 60}, {6, {2026, 9, 23}, {0, 5, 0}, 60},
        {9, {2017, 12, 21}, {16, 28, 0}, 60}};
    for (const auto& [sign, date, time, seconds] : rows) {
        const double published = base::linearDays(base::dateValueOf(date, time));
        double nearest = 1;
        for (const Period& period : periodsOf(sign)) nearest = std::min(nearest, std::abs(period.start - published));
        EXPECT_LE(nearest * 86400, seconds) << date.year;
    }
}

TEST(Manifest, TheProfileFilesBeginWithNothingSet) {
    EXPECT_EQ(bytesOf(data / "bio.dat"), "1,1,1900\r\n");
    EXPECT_EQ(bytesOf(data / "horabio.dat"), "12,0\r\n");
    EXPECT_EQ(bytesOf(data / "biofinal.dat"), "0,0,0\r\n");
    EXPECT_TRUE(fs::is_directory(data / "logs"));
}

} // namespace
} // namespace velmoriax
