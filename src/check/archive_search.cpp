#include "check/archive_search.h"

#include <algorithm>

#include "check/qso_line.h"
#include "model/call_book.h"
#include "model/store_rows.h"
#include "model/text.h"

namespace velmar {

namespace {

constexpr std::size_t kTail = 3;          ///< characters of a call that two calls may share
constexpr std::size_t kPortableTail = 4;  ///< the same for portable calls
constexpr Column kTableRow{1, 18};        ///< call and locator of a row of the table
constexpr Column kTableCall{1, 10};       ///< as far as it is compared

std::string Rule(std::size_t width, char c) {
  return std::string(width, c);
}

bool HoldsInCall(std::string_view record, std::string_view part) {
  return Holds(Cut(record, book_record::kCall), part);
}

bool PortableWithTail(std::string_view record, std::string_view call) {
  return Holds(record, "/") && HoldsInCall(record, Right(call, kPortableTail));
}

bool FixedWithTail(std::string_view record, std::string_view call) {
  return !Holds(record, "/") && HoldsInCall(record, Right(call, kTail));
}

template <typename Wanted>
void AddRecords(ResultRows& rows, const std::vector<std::string>& book, Wanted wanted) {
  std::ranges::copy_if(book, std::back_inserter(rows), wanted);
}

ResultRows SimilarInBook(const std::vector<std::string>& book, std::string_view call) {
  ResultRows rows;
  AddRecords(rows, book, [call](std::string_view record) {
    return RTrim(Cut(record, book_record::kCall)) == call || PortableWithTail(record, call) ||
           FixedWithTail(record, call);
  });
  return rows;
}

}  // namespace

ResultRows FindInDatabase(const ArchiveSources& sources, std::string_view call,
                          bool archive_missing) {
  constexpr std::size_t kHeading = 32;
  constexpr std::size_t kGap = 30;
  ResultRows rows = {"      Dati non ufficiali da DB Iaru  ", Rule(kHeading, ' ')};
  const std::size_t heading = rows.size();
  for (const std::string_view row : sources.iaru_table) {
    if (Holds(RTrim(row), call)) {
      rows.push_back(Join(row, "  <-- QSO Unico "));
    }
  }
  const bool found = rows.size() > heading;
  rows.insert(rows.end(), 2, Rule(kGap, ' '));
  if (archive_missing) {
    return rows;
  }
  if (!found) {
    rows.clear();
  }
  rows.insert(rows.end(),
              {"===================================", " Libreria con dati verificati ", " "});
  AddRecords(rows, sources.call_book, [call](std::string_view record) {
    return RTrim(Cut(record, book_record::kCall)) == call;
  });
  return rows;
}

ResultRows FindAround(const ArchiveSources& sources, std::string_view call,
                      std::string_view locator, std::string_view examined) {
  constexpr std::size_t kRule = 44;
  constexpr std::size_t kLongRule = 46;
  ResultRows rows = {"  DATI NON CONFERMATI DAL DATABASE IARU ", " "};
  const std::size_t heading = rows.size();
  for (const std::string_view row : sources.iaru_table) {
    if (Trim(Cut(row, kTableCall)) != examined && Holds(RTrim(row), locator)) {
      rows.push_back(Join(Cut(row, kTableRow), "    <-- QSO Unico"));
    }
  }
  if (rows.size() == heading) {
    rows.emplace_back("         Nessun riscontro");
  }
  ResultRows similar = SimilarInBook(sources.call_book, call);
  if (similar.empty()) {
    rows.insert(rows.end(), {Rule(kLongRule, '='), "         Archivio con dati confermati ", " ",
                             Join("  NESSUN RISCONTRO con il call -> ", call), " "});
    return rows;
  }
  rows.insert(rows.end(),
              {Rule(kRule, '='),
               Join(" Ricerca call con '", Right(call, kTail), "' con dati confermati"), " "});
  std::ranges::move(similar, std::back_inserter(rows));
  rows.insert(rows.end(),
              {Rule(kRule, '='), Join(" Ricerca call in ", locator, " con dati confermati"), " "});
  AddRecords(rows, sources.call_book, [locator](std::string_view record) {
    return Cut(record, book_record::kLocator) == locator;
  });
  return rows;
}

ResultRows FindCallsByEnd(const std::vector<std::string>& call_book, std::string_view call) {
  ResultRows rows = {Join(" Ricerca di call che contengono '", Right(call, kTail), "'"),
                     " --------------------------------------"};
  AddRecords(rows, call_book,
             [call](std::string_view record) { return PortableWithTail(record, call); });
  AddRecords(rows, call_book,
             [call](std::string_view record) { return FixedWithTail(record, call); });
  return rows;
}

ResultRows FindNearLocator(const std::vector<std::string>& call_book,
                           const std::vector<std::string_view>& others, std::string_view locator) {
  constexpr std::size_t kNear = 5;
  constexpr std::size_t kRule = 41;
  const std::string_view part = Left(locator, kNear);
  ResultRows rows = {Join("       Ricerca in  archivio di ", part, "*")};
  AddRecords(rows, call_book, [part](std::string_view record) {
    return Holds(Cut(record, book_record::kLocator), part);
  });
  rows.insert(rows.end(), {Rule(kRule, '-'), Join(" Ricerca in book e log esteri di ", part, "*")});
  for (const std::string_view row : others) {
    if (Holds(row, part)) {
      rows.emplace_back(Cut(row, qso_line::kShown));
    }
  }
  rows.insert(rows.end(), {" ", "           Ricerca terminata"});
  return rows;
}

ResultRows FindForeignCall(const std::vector<std::string_view>& others, std::string_view call) {
  constexpr std::size_t kStart = 4;
  constexpr std::size_t kRule = 43;
  ResultRows rows;
  for (const std::string_view row : others) {
    if (Holds(RTrim(Cut(row, qso_line::kCall)), Left(call, kStart))) {
      rows.emplace_back(Cut(row, qso_line::kShown));
    }
  }
  if (rows.empty()) {
    rows.emplace_back("   Nessun riscontro nella biblioteca Velmar");
  }
  rows.push_back(Rule(kRule, '-'));
  return rows;
}

ResultRows FindInSquare(const std::vector<std::string>& total_library, std::string_view call,
                        std::string_view locator) {
  constexpr std::size_t kPrefix = 2;
  constexpr std::size_t kSquare = 4;
  constexpr std::size_t kOwner = 10;
  ResultRows rows;
  for (const std::string& row : total_library) {
    const std::string_view other = Cut(row, libreria_totale_row::kLocator);
    const std::string_view other_call = Cut(row, libreria_totale_row::kCall);
    if (Left(other_call, kPrefix) == Left(call, kPrefix) &&
        Left(other, kSquare) == Left(locator, kSquare)) {
      rows.push_back(Join(other, "    ", other_call, Left(row, kOwner)));
    }
  }
  return rows;
}

}  // namespace velmar
