#include "session/month.h"

#include <cstddef>

#include "model/text.h"
#include "model/workspace.h"

namespace velmar {

namespace {

struct KnownDate {
  std::string_view month;
  std::string_view date;
};

constexpr std::array<KnownDate, 12> kKnownDates = {{{"GENNAIO 2021", "2IT 210117"},
                                                    {"GENNAIO 2022", "2IT 220116"},
                                                    {"GENNAIO 2023", "2IT 230115"},
                                                    {"GENNAIO 2024", "2IT 240121"},
                                                    {"GENNAIO 2025", "2IT 250119"},
                                                    {"GENNAIO 2026", "2IT 260118"},
                                                    {"GENNAIO 2027", "2IT 2701.."},
                                                    {"GENNAIO 2028", "2IT 2801.."},
                                                    {"GENNAIO 2029", "2IT 2901.."},
                                                    {"GENNAIO 2030", "2IT 3001.."},
                                                    {"GENNAIO 2031", "2IT 3101.."},
                                                    {"GENNAIO 2032", "2IT 3201.."}}};

}  // namespace

std::string MonthNameOf(std::string_view short_date) {
  const auto number = static_cast<std::size_t>(Val(Mid(short_date, 4, 2)));
  return number >= 1 && number <= kMonthNames.size() ? std::string(kMonthNames[number - 1]) : "";
}

std::string YearOf(std::string_view text) {
  return std::string(Right(text, 4));
}

std::string ContestDateDefault(std::string_view category, std::string_view month) {
  if (CategoryCode(category) == kCategory) {
    for (const KnownDate& known : kKnownDates) {
      if (known.month == month) {
        return std::string(known.date);
      }
    }
  }
  return "";
}

}  // namespace velmar
