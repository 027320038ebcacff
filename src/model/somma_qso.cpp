#include "model/somma_qso.h"

#include <array>

#include "model/lines.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::size_t kMostRows = 370'000;
constexpr std::size_t kTimeWidth = 8;
constexpr std::size_t kDate = 0;
constexpr std::size_t kTime = 1;
constexpr std::size_t kCall = 2;
constexpr std::size_t kNumber = 5;
constexpr std::size_t kNumberWidth = 5;
constexpr std::size_t kLocator = 9;
constexpr std::size_t kLocatorWidth = 8;
constexpr std::size_t kPoints = 10;
constexpr std::size_t kFields = 11;

}  // namespace

std::string_view SommaQso::Start(std::size_t cut) const {
  return Left(row, row.size() - std::min(row.size(), cut));
}

SommaQso CutSommaRow(std::string_view row) {
  std::array<std::string_view, kFields> fields;
  std::string_view rest = row;
  for (std::string_view& field : fields) {
    const std::size_t end = rest.find(';');
    field = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return {.row = row,
          .date = Left(fields[kDate], kTimeWidth),
          .time = Left(fields[kTime], kTimeWidth),
          .call = Trim(Left(fields[kCall], kCallWidth)),
          .owner = RTrim(Right(row, kCallWidth)),
          .number = Trim(Left(fields[kNumber], kNumberWidth)),
          .locator = Trim(Left(fields[kLocator], kLocatorWidth)),
          .points = RTrim(fields[kPoints])};
}

std::vector<SommaQso> CutSommaRows(std::string_view text) {
  std::vector<SommaQso> rows;
  LineReader reader(text);
  for (std::string_view row; reader.Next(row);) {
    if (row.size() < kCallWidth) {
      continue;
    }
    if (rows.size() == kMostRows) {
      throw RunTimeError(ErrorNumber::kSubscript, "the QSOs of the category");
    }
    rows.push_back(CutSommaRow(row));
  }
  return rows;
}

}  // namespace velmar
