#pragma once

#include <array>
#include <string>
#include <string_view>

namespace velmar {

/// The names of the months in capitals, each with one blank behind it.
inline constexpr std::array<std::string_view, 12> kMonthNames = {
    "GENNAIO ", "FEBBRAIO ", "MARZO ",     "APRILE ",  "MAGGIO ",   "GIUGNO ",
    "LUGLIO ",  "AGOSTO ",   "SETTEMBRE ", "OTTOBRE ", "NOVEMBRE ", "DICEMBRE "};

/// The month in which the contest is held.
inline constexpr std::string_view kContestMonth = kMonthNames[0];

/// The name of the month of a short date such as "21/01/2025" (month at columns 4 and 5), with its
/// blank; empty when these are no month.
std::string MonthNameOf(std::string_view short_date);

/// The last 4 characters of a short date or of a month such as "GENNAIO 2025".
std::string YearOf(std::string_view text);

/// The date that is offered for the date file: category and YYMMDD, such as "2IT 250119". Of the
/// years to come only the month is known, and the day is two dots. Empty for any other month and
/// for a category that does not begin "2IT".
std::string ContestDateDefault(std::string_view category, std::string_view month);

}  // namespace velmar
