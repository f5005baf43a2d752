// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/windows1252.h"

#include <algorithm>
#include <array>

namespace velmoriax::base {

namespace {

constexpr char32_t noCharacter = 0xFFFFFFFF;

/// The characters of the bytes 0x80 to 0x9F; all other bytes are the character of the same number.
constexpr std::array<char32_t, 32> upperControls{0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                                 0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

/// The letters that each combining accent makes, as pairs of base letter and composed letter.
struct Accent {
    char32_t mark;
    std::u32string_view pairs;
};
constexpr std::array<Accent, 8> accents{{
    {0x0300, U"AÀEÈIÌOÒUÙaàeèiìoòuù"},
    {0x0301, U"AÁEÉIÍOÓUÚYÝaáeéiíoóuúyý"},
    {0x0302, U"AÂEÊIÎOÔUÛaâeêiîoôuû"},
    {0x0303, U"AÃNÑOÕaãnñoõ"},
    {0x0308, U"AÄEËIÏOÖUÜYŸaäeëiïoöuüyÿ"},
    {0x030A, U"AÅaå"},
    {0x0327, U"CÇcç"},
    {0x030C, U"SŠZŽsšzž"},
}};

char32_t composed(char32_t letter, char32_t mark) {
    const auto* accent = std::ranges::find(accents, mark, &Accent::mark);
    if (accent == accents.end()) return noCharacter;
    for (std::size_t i = 0; i < accent->pairs.size(); i += 2)
        if (accent->pairs[i] == letter) return accent->pairs[i + 1];
    return noCharacter;
}

/// Removes the next character from a UTF-8 text and returns it; a byte that is not UTF-8 is returned as `noCharacter`.
char32_t takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const int length = first < 0x80 ? 1 : first >> 5 == 6 ? 2 : first >> 4 == 14 ? 3 : first >> 3 == 30 ? 4 : 0;
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    char32_t character = length == 1 ? first : first & (0x7F >> std::max(length, 1));
    bool valid = length != 0 && text.size() >= static_cast<std::size_t>(length);
    for (int i = 1; valid && i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
        valid = byte >> 6 == 2;
        character = character << 6 | (byte & 0x3F);
    }
    valid = valid && character >= smallest[static_cast<std::size_t>(length)];
    text.remove_prefix(valid ? static_cast<std::size_t>(length) : 1);
    return valid ? character : noCharacter;
}

char windows1252Byte(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    const auto* found = std::ranges::find(upperControls, character);
    return found == upperControls.end() ? '?' : static_cast<char>(0x80 + (found - upperControls.begin()));
}

void appendUtf8(std::string& text, char32_t c) {
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | c >> 6);
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | c >> 12);
        text += static_cast<char>(0x80 | (c >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    }
}

char lowerByte(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 'A' && byte <= 'Z') return static_cast<char>(byte + 0x20);
    if (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7) return static_cast<char>(byte + 0x20);
    if (byte == 0x8A || byte == 0x8C || byte == 0x8E) return static_cast<char>(byte + 0x10);
    return byte == 0x9F ? static_cast<char>(0xFF) : c;
}

} // namespace

std::string toWindows1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        char32_t character = takeCharacter(utf8);
        if (!utf8.empty()) {
            std::string_view rest = utf8;
            const char32_t joined = composed(character, takeCharacter(rest));
            if (joined != noCharacter) {
                character = joined;
                utf8 = rest;
            }
        }
        bytes += windows1252Byte(character);
    }
    return bytes;
}

std::string fromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(text, byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80U] : byte);
    }
    return text;
}

std::string lowerWindows1252(std::string_view bytes) {
    std::string lower(bytes);
    std::ranges::transform(lower, lower.begin(), lowerByte);
    return lower;
}

} // namespace velmoriax::base
