#include "check/unique_evidence.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "check/qso_line.h"
#include "model/call_book.h"
#include "model/columns.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr std::string_view kRule = "------------------------------------------>";

}  // namespace

UniqueItem ReadUniqueItem(std::string_view row) {
  // A remark may stand behind the ordinal.
  const std::string_view behind = LTrim(Cut(row, qso_line::kOrdinal));
  return {.call = std::string(RTrim(Cut(row, qso_line::kCall))),
          .locator = std::string(Cut(row, qso_line::kLocator)),
          .points = std::string(LTrim(Cut(row, qso_line::kPoints))),
          .ordinal = std::string(behind.substr(0, behind.find(' ')))};
}

std::vector<std::string> FindSimilarCalls(const std::vector<std::string_view>& others,
                                          const UniqueItem& item) {
  const std::string_view call = item.call;
  const std::string_view tail = Right(call, 3);
  const auto there = [&](std::string_view row) {
    return Cut(row, qso_line::kLocator) == item.locator;
  };
  using Test = std::function<bool(std::string_view other, std::string_view row)>;
  const Test tests[] = {
      [&](std::string_view other, std::string_view) { return Holds(other, call); },
      [&](std::string_view other, std::string_view row) {
        return Left(other, 2) == Left(call, 2) && Right(other, 2) == Right(call, 2) && there(row);
      },
      [&](std::string_view other, std::string_view row) {
        return Holds(other, tail) && there(row);
      },
      [&](std::string_view other, std::string_view) { return Holds(other, tail); },
      [&](std::string_view other, std::string_view row) {
        return Holds(other, Mid(call, 2, 3)) && there(row);
      },
      [&](std::string_view other, std::string_view row) {
        return Holds(other, Left(call, 4)) && there(row);
      }};
  std::vector<std::string> similar;
  for (const Test& test : tests) {
    for (const std::string_view row : others) {
      if (test(RTrim(Cut(row, qso_line::kCall)), row)) {
        similar.emplace_back(Cut(row, qso_line::kShown));
      }
    }
    if (!similar.empty()) {
      if (&test == std::begin(tests)) {
        similar.emplace_back(kRule);
      }
      break;
    }
  }
  return similar;
}

std::vector<std::string> FindSimilarCalls(const std::vector<std::string_view>& others,
                                          const std::vector<std::string>* call_book,
                                          const UniqueItem& item) {
  std::vector<std::string> rows = FindSimilarCalls(others, item);
  if (call_book != nullptr && !rows.empty()) {
    for (std::string& record : FindEndInBook(*call_book, item.call)) {
      rows.push_back(std::move(record));
    }
  }
  return rows;
}

std::vector<std::string> FindInLocator(const std::vector<std::string_view>& others,
                                       std::string_view locator) {
  constexpr std::size_t kOwnerShown = 10;
  std::vector<std::string> rows;
  for (const std::string_view row : others) {
    if (Cut(row, qso_line::kLocator) == locator) {
      rows.push_back(
          Join(locator, "    ", Cut(row, qso_line::kCall), Left(row, kOwnerShown), " *"));
    }
  }
  return rows;
}

std::vector<std::string> EachCallOnce(std::vector<std::string> rows) {
  const auto call = [](const std::string& row) { return Cut(row, kListedCall); };
  std::ranges::stable_sort(rows, {}, call);
  const auto same = [&call](const std::string& left, const std::string& right) {
    return call(left) == call(right);
  };
  rows.erase(std::unique(rows.begin(), rows.end(), same), rows.end());
  return rows;
}

std::string BaseCall(std::string_view call) {
  constexpr std::size_t kLongestPrefix = 4;  // its "/" included
  const std::size_t first = call.find('/');
  if (first == std::string_view::npos) {
    return {};
  }
  const std::size_t last = call.rfind('/');
  if (last != first) {
    return std::string(call.substr(first + 1, last - first - 1));
  }
  return std::string(first < kLongestPrefix ? call.substr(first + 1) : call.substr(0, first));
}

DigitWarning CheckDigits(std::string_view call) {
  if (!call.starts_with('I')) {
    return {};
  }
  const bool portable = Holds(call, "/");
  std::string digits;
  std::size_t count = 0;
  for (const char c : call) {
    if (c >= '0' && c <= '9') {
      digits += c;
      digits += ' ';
      ++count;
    }
  }
  if (!portable && count > 1) {
    return {" Troppi numeri controlla lo ZERO (0) con lettera O",
            " Troppi numeri, controlla lo ZERO(0) con lettera 'O'"};
  }
  if (!portable && count == 0) {
    return {"! ATTENZIONE ! MANCA IL NUMERO NEL CALL", "  controlla lo ZERO(0) con lettera 'O'"};
  }
  if (portable && count == 1) {
    return {" ! ATTENZIONE !  CALL senza numero", ""};
  }
  if (portable && count > 2) {
    return {Join(" ! ATTENZIONE !  troppi numeri ", digits), ""};
  }
  return {};
}

std::vector<std::string> FindEndInBook(const std::vector<std::string>& call_book,
                                       std::string_view call) {
  const bool portable = Holds(call, "/");
  std::vector<std::string> rows;
  for (const std::string& record : call_book) {
    const std::string_view known = Cut(record, book_record::kCall);
    const bool fixed_hit = !Holds(known, "/") && Holds(known, Right(call, 3));
    const bool portable_hit = portable && Holds(known, "/") && Holds(known, Right(call, 4));
    if (fixed_hit || portable_hit) {
      rows.push_back(Join(record, " <-- Book"));
    }
  }
  return rows;
}

}  // namespace velmar
