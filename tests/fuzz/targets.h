// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <stdexcept>
#include <string_view>

/// The readers of the program under inputs that nobody thought of. A target takes any bytes, gives them to a reader and
/// holds the result against laws that every input has to keep. The fuzzer makes the inputs up; the kept ones of
/// tests/corpus/ run in every test.
namespace velmoriax::fuzz {

struct Target {
    std::string_view name; ///< and of its folder in tests/corpus/
    void (*run)(std::string_view input);
};

/// All targets.
std::span<const Target> targets();

/// An input showed that a law does not hold.
struct LawBroken : std::logic_error {
    using std::logic_error::logic_error;
};

inline void law(bool holds, const char* what) {
    if (!holds) throw LawBroken(what);
}

/// Takes the part before the next "|" off an input that consists of several; all of it when there is none.
std::string_view takePart(std::string_view& input);

// base/
void dates(std::string_view input);
void numbers(std::string_view input);
void western(std::string_view input);

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

} // namespace velmoriax::fuzz
