// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/run_time_error.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmoriax::base {

namespace {

using Code = RunTimeError::Code;

constexpr std::array<std::pair<Code, std::string_view>, 7> codeWords{{
    {Code::overflow, "Overflow"},
    {Code::subscriptOutOfRange, "Subscript out of range"},
    {Code::typeMismatch, "Type mismatch"},
    {Code::fileNotFound, "File not found"},
    {Code::inputPastEndOfFile, "Input past end of file"},
    {Code::pathFileAccess, "Path/File access error"},
    {Code::invalidPicture, "Invalid picture"},
}};

std::string headline(Code code) {
    return "Run-time error '" + std::to_string(static_cast<int>(code)) + "': " + std::string(wordsOf(code));
}

} // namespace

std::string_view wordsOf(Code code) {
    const auto* row = std::ranges::find(codeWords, code, &std::pair<Code, std::string_view>::first);
    return row == codeWords.end() ? std::string_view{} : row->second;
}

RunTimeError::RunTimeError(Code code, std::string detail) :
    std::runtime_error(headline(code) + (detail.empty() ? "" : ": " + detail)), code_(code),
    detail_(std::move(detail)) {}

std::string RunTimeError::message() const {
    return headline(code_) + (detail_.empty() ? "" : "\n" + detail_);
}

} // namespace velmoriax::base
