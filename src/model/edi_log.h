#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// The REG1TEST log format: a header of rows "key=value" by fixed row numbers, remarks, the row
/// "[QSORecords;N]", one row a QSO, and the row "[END;...]".
namespace edi {

inline constexpr std::string_view kFirstRow = "[REG1TEST;1]";
inline constexpr std::string_view kQsoRecords =
    "QSORecords";                                     ///< held by the row ahead of the QSOs
inline constexpr std::string_view kEnd = "[END";      ///< held by the row behind the QSOs
inline constexpr std::string_view kEndRow = "[END;";  ///< the same with the writer's text
inline constexpr std::string_view kRecalculated = "[END; recalculated for VLM]";
inline constexpr std::size_t kValueColumn = 7;  ///< where the value of a header row begins
inline constexpr std::size_t kDateWidth = 6;    ///< of the date of a QSO row
inline constexpr std::size_t kSemicolons = 14;  ///< of a whole QSO row
inline constexpr std::size_t kDateField = 1;    ///< fields of a QSO row, counted from 1
inline constexpr std::size_t kTimeField = 2;
inline constexpr std::size_t kCallField = 3;
inline constexpr std::size_t kLocatorField = 10;
inline constexpr std::size_t kPointsField = 11;
inline constexpr std::size_t kShortestQso = 7;        ///< rows of fewer characters are passed over
inline constexpr std::size_t kMostHeaderRows = 1000;  ///< lines that are looked at for the own call

}  // namespace edi

/// The rows of the header that are read by their number.
namespace header_row {
inline constexpr std::size_t kContest = 2, kDates = 3, kCall = 4, kLocator = 5, kExchange = 6,
                             kSite = 7, kSection = 9, kBand = 10, kOperator = 12, kResponsible = 13,
                             kAddress = 14, kPostalCode = 16, kPhone = 19, kOperators = 21,
                             kTransmitter = 23, kPower = 24, kReceiver = 25, kAntenna = 26,
                             kHeights = 27, kQsos = 28, kPoints = 29, kSquares = 30,
                             kExchanges = 32, kCountries = 34, kTotal = 36, kDx = 37, kRemarks = 38;
}  // namespace header_row

struct HeaderRow {
  std::string key;         ///< the first 5 characters, in capitals
  std::string_view value;  ///< the text from column 7 on
};

/// Cuts a header row.
HeaderRow ParseHeaderRow(std::string_view row);

/// One QSO row. The first 11 of the 15 fields are parsed and trimmed; what follows the points stays
/// one text, from its ";" on, and is never parsed.
class QsoRecord {
 public:
  static constexpr std::size_t kFields = 11;

  /// A field by its number, from 1 to 11.
  std::string_view field(std::size_t number) const { return fields_.at(number - 1); }
  std::string_view tail() const { return tail_; }

  std::string_view date() const { return field(edi::kDateField); }        ///< YYMMDD
  std::string_view time() const { return field(edi::kTimeField); }        ///< HHMM, UTC
  std::string_view call() const { return field(edi::kCallField); }        ///< the other station's
  std::string_view locator() const { return field(edi::kLocatorField); }  ///< the other station's
  std::string_view points() const { return field(edi::kPointsField); }    ///< km

  void set_call(std::string_view call) {
    fields_[edi::kCallField - 1] = call;
    unchanged_ = {};
  }
  void set_points(std::string_view points) { fields_[edi::kPointsField - 1] = points; }

 private:
  friend QsoRecord SplitQso(std::string_view row);
  friend void AppendQso(const QsoRecord& qso, std::string& text);

  std::array<std::string_view, kFields> fields_;
  std::string_view tail_;
  std::string_view unchanged_;  // the row ahead of its points, while it stands as the fields do
};

/// Cuts a QSO row at its ";". A row with fewer fields has empty ones at the end.
QsoRecord SplitQso(std::string_view row);

/// One field of a QSO row, by its number from 1 on, as SplitQso gives it.
std::string_view QsoField(std::string_view row, std::size_t number);

/// The row of a QSO: its fields parted by ";", then the tail.
std::string JoinQso(const QsoRecord& qso);

/// Writes the row of a QSO behind `text`.
void AppendQso(const QsoRecord& qso, std::string& text);

/// The call of a log as its "PCALL" row (in any case of letters) declares it, blanks included.
/// Empty when none of the first 1000 lines is that row.
std::string_view FindOwnCall(const std::vector<std::string_view>& lines);

/// A call without its "/" part. A "/" at position 2, 3 or 4 has a prefix ahead of it and the call
/// behind it; a later one has the call ahead of it.
std::string_view OwnCallBase(std::string_view call);

/// What a line that is no QSO row may tell. Nearly every line of a log tells nothing.
struct LineMarks {
  bool opens_qsos = false;   ///< it holds "QSORecords"
  bool closes_qsos = false;  ///< it holds "[END"
  bool own_locator = false;  ///< it holds "PWWLo"
};

LineMarks MarksOf(std::string_view line);

/// Whether a row holds the word "ERROR" or "DELETED", with which a writer takes a QSO back.
bool MarkedInvalid(std::string_view row);

/// Whether a row ends as its writer's duplicates do.
bool MarkedDuplicate(std::string_view row);

/// A log file by its parts. The views point into the text that it was parsed from.
struct EdiLog {
  std::vector<std::string_view> lines;  ///< all of them, as they stand
  std::string_view own_call;            ///< as FindOwnCall
  std::string_view own_locator;         ///< value of the first row that holds "PWWLo", trimmed
  std::vector<std::string_view> qsos;   ///< the QSO rows, without those passed over
  bool recalculated = false;            ///< the end row bears the mark of the recalculation
};

EdiLog ParseEdiLog(std::string_view text);

}  // namespace velmar
