// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <ostream>
#include <stdexcept>
#include <string_view>

/// The readers of the program under inputs that nobody thought of. A target takes any bytes, passes them to a reader
/// and holds the result against laws that every input has to keep. The fuzzer makes the inputs up; the kept ones of
/// tests/corpus/ run in every test.
namespace velmoriax::fuzz {

/// An input showed that a law does not hold.
struct LawBroken : std::logic_error {
    using std::logic_error::logic_error;
};

inline void law(bool holds, const char* what) {
    if (!holds) throw LawBroken(what);
}

/// Takes the part before the next "|" off an input that consists of several; all of it when there is none.
inline std::string_view takePart(std::string_view& input) {
    const std::size_t end = std::min(input.find('|'), input.size());
    const std::string_view part = input.substr(0, end);
    input.remove_prefix(std::min(end + 1, input.size()));
    return part;
}

// base/
void dates(std::string_view input);
void numbers(std::string_view input);
void windows1252(std::string_view input);

// shell/
void profileText(std::string_view input);
void options(std::string_view input);
void position(std::string_view input);

// biorhythm/
void datFiles(std::string_view input);
void profileList(std::string_view input);
void profileRewrite(std::string_view input);

// sky/
void ingress(std::string_view input);

struct Target {
    std::string_view name; ///< and of its folder in tests/corpus/
    void (*run)(std::string_view input);
};

/// The name of a target in the names of tests.
inline void PrintTo(const Target& target, std::ostream* out) {
    *out << target.name;
}

inline constexpr std::array<Target, 10> targets{{
    {"dates", dates},
    {"numbers", numbers},
    {"windows1252", windows1252},
    {"profile_text", profileText},
    {"options", options},
    {"position", position},
    {"dat_files", datFiles},
    {"profile_list", profileList},
    {"profile_rewrite", profileRewrite},
    {"ingress", ingress},
}};

} // namespace velmoriax::fuzz
