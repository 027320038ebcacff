#pragma once

#include <string>
#include <string_view>

#include "model/columns.h"

namespace velmar {

/// A row of the classification (.cla), one a log. Readers keep the raw row and cut it here; what is
/// blank between two columns belongs to neither.
namespace classification_row {

inline constexpr Column kCall{1, 12};
inline constexpr Column kLocator{14, 6};
inline constexpr Column kHeight{22, 5};  ///< m above sea level
inline constexpr Column kAntenna{27, 20};
inline constexpr Column kPower{47, 5};     ///< W, at most 500
inline constexpr Column kQsos{53, 5};      ///< declared valid ones
inline constexpr Column kDeclared{58, 8};  ///< points, as the log declares them
inline constexpr Column kDxCall{66, 10};   ///< of the farthest QSO, as declared
inline constexpr Column kDxDistance{77, 5};
inline constexpr Column kRecalculated{82, 10};  ///< points, as computed on insertion
inline constexpr Column kErrors{92, 5};         ///< blank until the log has been checked
inline constexpr Column kErrorPoints{97, 8};    ///< taken away; blank until checked
inline constexpr Column kPoints{105, 10};       ///< final ones
inline constexpr Column kPercentage{115, 8};    ///< of errors, with the operator mark at its end
inline constexpr Column kOperatorMark{122, 1};  ///< "Y", "R" or blank

static_assert(FollowOneAnother({kCall,
                                {13, 1},
                                kLocator,
                                {20, 2},
                                kHeight,
                                kAntenna,
                                kPower,
                                {52, 1},
                                kQsos,
                                kDeclared,
                                kDxCall,
                                {76, 1},
                                kDxDistance,
                                kRecalculated,
                                kErrors,
                                kErrorPoints,
                                kPoints,
                                kPercentage}));

// Fields as the readers take them, which is not always as they are written.
inline constexpr Column kQsoCount{53, 4};
inline constexpr Column kScore{82, 8};       ///< the recomputed one
inline constexpr Column kErrArea{92, 13};    ///< all blank: the log has not been checked
inline constexpr Column kPosition{123, 10};  ///< of the queue; not stored
inline constexpr Column kDx{66, 11};

/// What a check leaves as it is.
inline constexpr Column kBeforeCheck{1, 91};

/// "*" where the QSO with the declared DX call was penalised. The last digit of a declared score of
/// eight stood there.
inline constexpr Column kDxMark{65, 1};

/// What is blanked where a check is taken back.
inline constexpr Column kTakenBack{90, 15};

/// Ten blanks here mean that the desk has yet to check the log.
inline constexpr Column kToBeChecked{92, 10};

/// Where ten blanks in any row mean that the classification is not complete. The test takes the
/// last two columns of the recomputed score in, which no score of this contest reaches.
inline constexpr Column kUnchecked{90, 10};

/// The first line of the file. Its labels do not stand over the columns, and are not to be aligned.
// clang-format off
inline constexpr std::string_view kHeader =
    "  Call       Locator Aslm  Antenna             Pwr  Qso Declared ODX        DX    "
    "Ricalc.  Err  ErrQRB  P.QRB       %   Y/R   ";
// clang-format on
static_assert(kHeader.size() == 126);

}  // namespace classification_row

/// A row of the classification, read by its columns. It points into the text that it was made from.
class ClassificaRow {
 public:
  explicit ClassificaRow(std::string_view row) : row_(row) {}

  std::string_view Call() const { return RTrim(Cut(row_, classification_row::kCall)); }
  std::string_view Locator() const { return Cut(row_, classification_row::kLocator); }
  double QsoCount() const { return Val(Cut(row_, classification_row::kQsoCount)); }
  double Ricalc() const { return Val(Cut(row_, classification_row::kScore)); }
  std::string_view ErrArea() const { return Cut(row_, classification_row::kErrArea); }
  std::string_view Mark() const { return Cut(row_, classification_row::kOperatorMark); }
  std::string_view Position() const { return Cut(row_, classification_row::kPosition); }
  std::string_view Odx() const { return Trim(Cut(row_, classification_row::kDx)); }

  /// Whether the log of this row has been checked.
  bool Checked() const { return !Trim(ErrArea()).empty(); }

 private:
  std::string_view row_;
};

/// What a log brings into the classification. Texts are cut or padded to their columns, save the
/// locator, which stands as long as it is.
struct ClassificationEntry {
  std::string call;
  std::string locator;
  std::string height;
  std::string antenna;
  double power = 0;  ///< W
  std::string qsos;
  std::string declared;
  std::string dx_call;
  std::string dx_distance;
  long long points = 0;  ///< as computed
  char operator_mark = ' ';
};

/// The row of a log that has just been filed: no error is known yet, and the final score is the
/// computed one.
std::string ClassificationRow(const ClassificationEntry& entry);

/// What a check of a log has found.
struct CheckTotals {
  int errors = 0;
  double lost = 0;   ///< points
  double final = 0;  ///< points that are left
};

/// A row with the result of a check in place of an older one. It keeps what stands ahead of the
/// result, its operator mark and its position. A row that declares no QSO raises error 11.
std::string CheckedRow(std::string_view row, const CheckTotals& totals);

/// A row as if it had never been checked.
std::string WithoutResult(std::string_view row);

/// A row with a character at the mark of the DX QSO.
std::string WithDxMark(std::string_view row, char mark);

/// The percentage of errors, in single precision as the row shows it: of 100 times the quotient
/// only the first six characters count. Without a QSO it raises error 11.
float ErrorPercentage(int errors, int qsos);

/// The eight columns of the percentage, the operator mark being the last.
std::string PercentageBlock(float percentage, char operator_mark);

}  // namespace velmar
