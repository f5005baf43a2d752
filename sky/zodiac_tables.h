// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// The twelve signs, Aries 0 to Pisces 11, and the seasons.
namespace velmoriax::sky {

/// As the files of a sign are named; small letters for the tables and texts.
inline constexpr std::array<std::string_view, 12> signFileNames{"Aries",     "Tauro",       "Geminis", "Cancer",
                                                                "Leo",       "Virgo",       "Libra",   "Escorpio",
                                                                "Sagitario", "Capricornio", "Acuario", "Piscis"};

/// As they are shown.
inline constexpr std::array<std::string_view, 12> signNames{"Aries",       "Taurus",    "Gemini",   "Cancer",
                                                            "Leo",         "Virgo",     "Libra",    "Scorpio",
                                                            "Sagittarius", "Capricorn", "Aquarius", "Pisces"};

/// A sign of the fixed calendar: it holds before the midnight that begins this day of the year.
struct FixedSign {
    int month;
    int day;
    std::int16_t index;
    std::string_view tip;
};

/// In the order of the year. December 21 belongs to Capricorn here although the tips give it to Sagittarius.
inline constexpr std::array<FixedSign, 13> fixedSigns{{
    {1, 20, 9, "December 22/January 19"},
    {2, 19, 10, "January 20/February 18"},
    {3, 21, 11, "February 19/March 20"},
    {4, 20, 0, "March 21/April 19"},
    {5, 21, 1, "April 20/May 20"},
    {6, 22, 2, "May 21/June 21"},
    {7, 23, 3, "June 22/July 22"},
    {8, 23, 4, "July 23/August 22"},
    {9, 23, 5, "August 23/September 22"},
    {10, 23, 6, "September 23/October 22"},
    {11, 22, 7, "October 23/November 21"},
    {12, 21, 8, "November 22/December 21"},
    {13, 1, 9, "December 22/January 19"},
}};

struct SeasonBegin {
    int month;
    std::string_view north;
    std::string_view south;
};

inline constexpr std::array<SeasonBegin, 4> seasonBegins{{
    {3, "At this time begins the Spring!", "At this time begins the Autumn!"},
    {6, "At this time begins the Summer!", "At this time begins the Winter!"},
    {9, "At this time begins the Autumn!", "At this time begins the Spring!"},
    {12, "At this time begins the Winter!", "At this time begins the Summer!"},
}};

} // namespace velmoriax::sky
