// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace velmoriax::base {

/// What the program does not survive: a missing picture or data file, a card number outside the tables, a malformed
/// profile file, an arithmetic overflow. It is thrown where the fault is found and ends in the fatal stop.
class RunTimeError : public std::runtime_error {
public:
    enum class Code {
        overflow = 6,
        subscriptOutOfRange = 9,
        typeMismatch = 13,
        fileNotFound = 53,
        inputPastEndOfFile = 62,
        pathFileAccess = 75,
        invalidPicture = 481,
    };

    /// `detail` names what failed (a file, a value) and is shown below the platform's words in the fatal box.
    explicit RunTimeError(Code code, std::string detail = {});

    Code code() const { return code_; }
    const std::string& detail() const { return detail_; }

    /// "Run-time error '53': File not found", and the detail on a line of its own when there is one.
    std::string message() const;

private:
    Code code_;
    std::string detail_;
};

/// The platform's words for a code, such as "File not found".
std::string_view wordsOf(RunTimeError::Code code);

} // namespace velmoriax::base
