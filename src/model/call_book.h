#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/columns.h"

namespace velmar {

/// "Varto_book.bin", the archive of calls and locators that were confirmed by earlier contests.
///
/// The file is a run of records with nothing around them: two bytes, the lower one first, with the
/// number of bytes that follow, which is 34; then as many characters, each stored as its code plus
/// 35. A sum above 255 begins again at 0.

/// The columns of a record. The manager reads those behind the locator as they stand.
namespace book_record {
inline constexpr Column kCall{1, 12}, kLocator{13, 6}, kNotes{19, 16};
inline constexpr std::size_t kWidth = 34;
static_assert(FollowOneAnother({kCall, kLocator, kNotes}) && kNotes.end() == kWidth + 1);

/// What the notes are made of. The number of logs stands at the right of its field.
inline constexpr Column kMark{19, 1}, kLastDate{21, 6}, kLogs{28, 3}, kBand{32, 3};
static_assert(
    FollowOneAnother({kCall, kLocator, kMark, {20, 1}, kLastDate, {27, 1}, kLogs, {31, 1}, kBand}));
static_assert(kMark.start == kNotes.start && kBand.end() == kNotes.end());
}  // namespace book_record

inline constexpr std::size_t kMostBookRecords = 30'000;
inline constexpr int kMostBookLogs = 999;  ///< that a record tells

/// How a locator was learnt.
enum class BookMark : char {
  kDeclared = 'P',  ///< by the station itself, in a log that it sent
  kDeduced = 'L'    ///< from the logs of others that agree
};

/// What a record tells.
struct BookEntry {
  std::string call;
  std::string locator;
  BookMark mark = BookMark::kDeclared;
  std::string last_date;  ///< YYMMDD, of the last contest that has this call in this locator
  int logs = 0;           ///< that worked it there; more than 999 are told as 999
};

/// A record of the archive, 34 characters; call and locator in capitals.
std::string BookRecord(const BookEntry& entry);

/// The records of a file, in order; an empty file has none. Nothing where a record has another
/// length than 34, or where the file ends within one: it is no archive then. Raises error 9 at the
/// first good record above 30,000.
std::optional<std::vector<std::string>> DecodeCallBook(std::string_view bytes);

/// The file with these records, each cut or padded to 34 characters.
std::string EncodeCallBook(const std::vector<std::string>& records);

}  // namespace velmar
