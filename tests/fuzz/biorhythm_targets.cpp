// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/run_time_error.h"
#include "base/windows1252.h"
#include "biorhythm/profile_editor.h"
#include "biorhythm/profile_files.h"
#include "biorhythm/profile_store.h"
#include "fuzz/targets.h"
#include "support/fakes.h"

namespace velmoriax::fuzz {

namespace {

constexpr base::CivilDate today{2026, 11, 15};

/// True when a reader accepts the file. Else its error has to name the file, and the state has to be unchanged.
template<typename Read>
bool accepts(std::string_view file, const biorhythm::BioState& state, Read read) {
    const auto before = biorhythm::birthOf(state);
    const auto finalBefore = biorhythm::finalDateOf(state);
    try {
        read();
        return true;
    } catch (const base::RunTimeError& error) {
        law(error.detail() == file, "the error names the file");
        law(biorhythm::birthOf(state) == before && biorhythm::finalDateOf(state) == finalBefore,
            "a file that is refused changes nothing");
        return false;
    }
}

bool contains(const std::string& line, const std::string& part) {
    return line.find(part) != line.npos;
}

} // namespace

/// The input is the content of all three files.
void datFiles(std::string_view input) {
    test::FakeFiles files;
    for (const char* file : {"\\bio.dat", "\\horabio.dat", "\\biofinal.dat"}) files.at(file) = input;
    biorhythm::BioState state;
    const bool birth = accepts("bio.dat", state, [&] { biorhythm::loadBirth(files, state); });
    const bool time = accepts("horabio.dat", state, [&] { biorhythm::loadBirthTime(files, state); });
    const bool target = accepts("biofinal.dat", state, [&] { biorhythm::loadFinalDate(files, state, today); });
    law(!time || (!birth && !target), "two numbers are not a date");
    const base::CivilMoment born = biorhythm::birthOf(state);
    law(base::isValid(born.date) && base::isValid(born.time), "a birth is a moment of the calendar");
    if (!target) return;
    biorhythm::BioState again;
    biorhythm::saveBioState(files, again, born, biorhythm::finalDateOf(state));
    biorhythm::loadBirth(files, again);
    biorhythm::loadBirthTime(files, again);
    biorhythm::loadFinalDate(files, again, today);
    law(biorhythm::birthOf(again) == born && biorhythm::finalDateOf(again) == biorhythm::finalDateOf(state),
        "what is saved is read back");
}

/// The list of people.
void profileList(std::string_view input) {
    test::FakeFiles files;
    std::string& list = files.at("\\perfiles.txt");
    list = input;
    for (const std::string& line : biorhythm::profileLines(files)) {
        law(!line.empty() && line.find_first_of("\r\n") == line.npos, "a line is one line, and not an empty one");
        const auto fields = biorhythm::parseProfileLine(line);
        law(line.starts_with(fields.name), "the name is first");
        const auto birth = biorhythm::profileBirth(fields);
        if (birth) law(base::isValid(birth->date) && base::isValid(birth->time), "a birth is a moment of the calendar");
        if (birth)
            law(biorhythm::findProfile(files, fields.name).has_value(), "a person whose line can be read is found");
        const auto edited = biorhythm::editedProfile(line);
        law(edited.name == fields.name && base::isValid(edited.time), "the editor shows a time of the day");
        if (birth) law(edited.date == birth->date, "the editor reads the same date");
    }
    law(biorhythm::profileNames(files).size() == biorhythm::profileLines(files).size(), "one name for each line");
    law(list == input, "reading never writes");
}

/// name | list: a record of that name is appended, then one line after the other is deleted.
void profileRewrite(std::string_view input) {
    test::FakeFiles files;
    test::FakeBoxes boxes;
    std::string name(takePart(input));
    std::erase_if(name, [](char c) { return c == ',' || c == '\r' || c == '\n'; });
    files.at("\\perfiles.txt") = input;
    auto lines = biorhythm::profileLines(files);
    biorhythm::appendProfile(files, name, {{1980, 3, 15}, "7:5"});
    lines.push_back(base::fromWindows1252(base::toWindows1252(name)) + ",March/15/1980,7:5");
    law(biorhythm::profileLines(files) == lines, "a record is a line of its own at the end");
    law(biorhythm::findProfile(files, name) == base::CivilMoment{{1980, 3, 15}, {7, 5, 0}}, "and is found");
    while (!lines.empty()) {
        const std::string selected = lines[lines.size() / 2];
        biorhythm::removeProfileLines(files, boxes, selected, biorhythm::deleteMessages);
        std::erase_if(lines, [&](const std::string& line) { return contains(line, selected); });
        law(biorhythm::profileLines(files) == lines,
            "the lines that contain the selected one are deleted, and no other");
    }
    law(files.contents.size() == 1 && boxes.shown.empty(), "no temporary file is left");
}

} // namespace velmoriax::fuzz
