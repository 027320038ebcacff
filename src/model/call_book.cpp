#include "model/call_book.h"

#include <algorithm>
#include <array>

#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr unsigned kShift = 35;  ///< that a character is stored above its code
constexpr std::size_t kLengthBytes = 2;

/// The contest is held on this band alone.
constexpr std::string_view kBookBand = "144";

/// The length of a record as the file has it, the lower byte first.
constexpr std::array<char, kLengthBytes> kStoredLength = {
    static_cast<char>(book_record::kWidth & 0xFFU), static_cast<char>(book_record::kWidth >> 8U)};

std::string Shifted(std::string_view text, unsigned by) {
  std::string shifted(text);
  for (char& c : shifted) {
    c = static_cast<char>((static_cast<unsigned char>(c) + by) & 0xFFU);
  }
  return shifted;
}

/// The number of logs at the right of its field.
std::string LogsField(int logs) {
  const std::string digits = std::to_string(std::clamp(logs, 0, kMostBookLogs));
  return std::string(book_record::kLogs.width - digits.size(), ' ') + digits;
}

}  // namespace

std::string BookRecord(const BookEntry& entry) {
  const char mark = static_cast<char>(entry.mark);
  return Join(Call12(entry.call), Pad(Loc6(entry.locator), book_record::kLocator.width),
              std::string_view(&mark, 1), " ", Pad(entry.last_date, book_record::kLastDate.width),
              " ", LogsField(entry.logs), " ", kBookBand);
}

std::optional<std::vector<std::string>> DecodeCallBook(std::string_view bytes) {
  constexpr std::string_view kLength(kStoredLength.data(), kStoredLength.size());
  constexpr std::size_t kStored = kLengthBytes + book_record::kWidth;
  std::vector<std::string> records;
  for (; !bytes.empty(); bytes.remove_prefix(kStored)) {
    if (!bytes.starts_with(kLength) || bytes.size() < kStored) {
      return std::nullopt;
    }
    if (records.size() == kMostBookRecords) {
      throw RunTimeError(ErrorNumber::kSubscript, "the archive has too many records");
    }
    records.push_back(Shifted(bytes.substr(kLengthBytes, book_record::kWidth), 0U - kShift));
  }
  return records;
}

// The start of the program takes an archive for a good one when it is a single line of text. It
// always is one: a length is no line end, and the characters that would be stored as one, a small
// letter "c" with a cedilla and a small "e" with a circumflex, stand in no record, whose letters
// are capitals.
std::string EncodeCallBook(const std::vector<std::string>& records) {
  std::string bytes;
  bytes.reserve(records.size() * (kLengthBytes + book_record::kWidth));
  for (const std::string& record : records) {
    bytes.append(kStoredLength.data(), kStoredLength.size());
    bytes += Shifted(Pad(record, book_record::kWidth), kShift);
  }
  return bytes;
}

}  // namespace velmar
