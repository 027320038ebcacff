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

/// Where ten blanks mean that the log of this row has not been checked yet. The test takes the last
/// two columns of the recomputed score in, which are blank in every row.
inline constexpr Column kUnchecked{90, 10};

/// The first line of the file. Its labels do not stand over the columns, and are not to be aligned.
inline constexpr std::string_view kHeader =
    "  Call       Locator Aslm  Antenna             Pwr  Qso Declared ODX        DX    Ricalc.  "
    "Err "
    " ErrQRB  P.QRB       %   Y/R   ";
static_assert(kHeader.size() == 126);

}  // namespace classification_row

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

/// The percentage of errors, in single precision as the row shows it: of 100 times the quotient
/// only the first six characters count. Without a QSO it raises error 11.
float ErrorPercentage(int errors, int qsos);

/// The eight columns of the percentage, the operator mark being the last.
std::string PercentageBlock(float percentage, char operator_mark);

}  // namespace velmar
