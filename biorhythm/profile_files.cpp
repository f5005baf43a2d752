// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/profile_files.h"

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text_lines.h"
#include "biorhythm/field_text.h"
#include "biorhythm/view_dates.h"

#include <array>
#include <initializer_list>
#include <limits>
#include <string_view>
#include <utility>

namespace velmoriax::biorhythm {

namespace {

using base::RunTimeError;
using Code = RunTimeError::Code;
using Status = platform::Files::Status;

constexpr std::string_view birthFile = "bio.dat";
constexpr std::string_view birthTimeFile = "horabio.dat";
constexpr std::string_view finalDateFile = "biofinal.dat";

constexpr std::array<std::pair<std::string_view, std::string_view>, 3> firstContents{{
    {birthFile, "1,1,1900\r\n"},
    {birthTimeFile, "12,0\r\n"},
    {finalDateFile, "0,0,0\r\n"},
}};

[[noreturn]] void fail(Code code, std::string_view file) {
    throw RunTimeError(code, std::string(file));
}

std::string pathOf(const platform::Files& files, std::string_view file) {
    return files.applicationDirectory() + "\\" + std::string(file);
}

std::string_view withoutSpace(std::string_view text) {
    return base::trimmed(text, " \t\r\n");
}

bool isWholeNumber(std::string_view text) {
    if (text.starts_with('-')) text.remove_prefix(1);
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

int numberOf(std::string_view field, std::string_view file) {
    using Limits = std::numeric_limits<std::int16_t>;
    const std::string_view text = withoutSpace(field);
    if (!isWholeNumber(text)) fail(Code::typeMismatch, file);
    const auto value = base::wholeNumber(text);
    if (!value || *value < Limits::min() || *value > Limits::max()) fail(Code::overflow, file);
    return static_cast<int>(*value);
}

std::string contentOf(const platform::Files& files, std::string_view file) {
    auto content = files.read(pathOf(files, file));
    if (content.status == Status::missing) fail(Code::fileNotFound, file);
    if (content.status == Status::unreadable) fail(Code::pathFileAccess, file);
    return std::move(content.bytes);
}

template<std::size_t Count>
std::array<int, Count> readNumbers(const platform::Files& files, std::string_view file) {
    const std::string content = contentOf(files, file);
    auto fields = fieldsOf(content, ',');
    const bool endsWithComma = fields.size() <= Count && withoutSpace(fields.back()).empty();
    if (endsWithComma) fields.pop_back();
    std::array<int, Count> numbers{};
    for (std::size_t i = 0; i < Count; ++i) {
        if (i == fields.size()) fail(Code::inputPastEndOfFile, file);
        numbers[i] = numberOf(fields[i], file);
    }
    if (fields.size() > Count) fail(Code::typeMismatch, file);
    return numbers;
}

base::CivilDate readDate(const platform::Files& files, std::string_view file) {
    const auto [day, month, year] = readNumbers<3>(files, file);
    return {year, month, day};
}

/// Numbers between commas, as one line.
std::string lineOf(std::initializer_list<int> numbers) {
    std::string line;
    for (const int number : numbers) line += (line.empty() ? "" : ",") + std::to_string(number);
    return line.append(base::lineEnd);
}

void write(platform::Files& files, std::string_view file, const std::string& line) {
    if (!files.replace(pathOf(files, file), line)) fail(Code::pathFileAccess, file);
}

void writeDate(platform::Files& files, std::string_view file, base::CivilDate date) {
    write(files, file, lineOf({date.day, date.month, date.year}));
}

} // namespace

void loadBirth(const platform::Files& files, BioState& state) {
    const base::CivilDate birth = readDate(files, birthFile);
    const bool yearFits = birth.year >= firstViewYear && birth.year <= lastViewYear;
    if (!base::isValid(birth) || !yearFits) fail(Code::typeMismatch, birthFile);
    setBirthDate(state, birth);
}

void loadBirthTime(const platform::Files& files, BioState& state) {
    const auto [hour, minute] = readNumbers<2>(files, birthTimeFile);
    const base::CivilTime time{hour, minute, 0};
    if (!base::isValid(time)) fail(Code::typeMismatch, birthTimeFile);
    setBirthTime(state, time);
}

void loadFinalDate(const platform::Files& files, BioState& state, base::CivilDate today) {
    const base::CivilDate stored = readDate(files, finalDateFile);
    const base::CivilDate target = stored == base::CivilDate{0, 0, 0} ? today : stored;
    if (!base::isValid(target)) fail(Code::typeMismatch, finalDateFile);
    setFinalDate(state, target);
}

void saveBioState(platform::Files& files, BioState& state, const base::CivilMoment& birth, base::CivilDate target) {
    setBirthDate(state, birth.date);
    setFinalDate(state, target);
    writeDate(files, birthFile, birth.date);
    writeDate(files, finalDateFile, target);
    saveBirthTime(files, state, birth.time);
}

void saveBirthTime(platform::Files& files, BioState& state, base::CivilTime time) {
    setBirthTime(state, time);
    write(files, birthTimeFile, lineOf({time.hour, time.minute}));
}

void createMissingProfileFiles(platform::Files& files) {
    for (const auto& [file, content] : firstContents) {
        const std::string path = pathOf(files, file);
        const bool missing = files.read(path).status == Status::missing;
        if (missing && !files.replace(path, std::string(content)))
            fail(Code::pathFileAccess, std::string(file) + " cannot be made: the folder " +
                                           files.applicationDirectory() + " cannot be written.");
    }
}

} // namespace velmoriax::biorhythm
