#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// A row of "somma_qso.qso" as its readers cut it. It points into the row.
struct SommaQso {
  std::string_view row;
  std::string_view date;     ///< YYMMDD
  std::string_view time;     ///< four digits
  std::string_view call;     ///< worked, without blanks around it, at most 12 characters
  std::string_view owner;    ///< without blanks behind it
  std::string_view number;   ///< sent, without blanks around it: the QSO's ordinal in its log
  std::string_view locator;  ///< worked, without blanks around it, at most 8 characters
  std::string_view points;

  /// The row without what stands behind its QSO, `cut` characters at its end.
  std::string_view Start(std::size_t cut) const;
};

/// Cuts a row. A short row has short or empty fields.
SommaQso CutSommaRow(std::string_view row);

/// The rows of the file, those too short for an owner left out. More than 370,000 raise error 9.
std::vector<SommaQso> CutSommaRows(std::string_view text);

}  // namespace velmar
