#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// What the look-ups find: the built-in table, whose rows nobody has confirmed, and the records of
/// the call book. Calls are given without blanks behind them. The results are the rows of a list as
/// the manager reads it.
struct ArchiveSources {
  const std::vector<std::string_view>& iaru_table;
  const std::vector<std::string>& call_book;
};

using ResultRows = std::vector<std::string>;

/// All that is known of a call. Without a book only the table is looked at.
ResultRows FindInDatabase(const ArchiveSources& sources, std::string_view call,
                          bool archive_missing);

/// Who else is in a locator by the table, `examined` apart; then, by the book, the calls with the
/// end of `call` and those in the locator.
ResultRows FindAround(const ArchiveSources& sources, std::string_view call,
                      std::string_view locator, std::string_view examined);

/// The calls of the book with the end of `call`: four characters of the portable ones, three of the
/// others.
ResultRows FindCallsByEnd(const std::vector<std::string>& call_book, std::string_view call);

/// What lies near a locator, of which five characters count: records of the book, and QSOs of the
/// other logs.
ResultRows FindNearLocator(const std::vector<std::string>& call_book,
                           const std::vector<std::string_view>& others, std::string_view locator);

/// The QSOs of the other logs whose call holds the first four characters of `call`.
ResultRows FindForeignCall(const std::vector<std::string_view>& others, std::string_view call);

/// The rows of a total library in the large square of a locator whose call begins with the same two
/// characters as `call`: locator, call, owner.
ResultRows FindInSquare(const std::vector<std::string>& total_library, std::string_view call,
                        std::string_view locator);

}  // namespace velmar
