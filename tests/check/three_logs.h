#pragma once

#include <algorithm>
#include <string>

#include "desk_fixture.h"

namespace velmar::test {

inline constexpr const char* kClassificationFile =
    "Trofeo_Velmar/2IT/2IT Classifica Mensile 144 gennaio 2025.cla";

/// A contest of three logs: IK2QAA, of whose three QSOs the second is in doubt, since IZ9QBC has
/// another locator for its call, then IZ9QBC, and IV3QYY, which leaves nothing to decide.
inline DeskFixture& ThreeLogs(DeskFixture& desk) {
  return desk
      .Filed({.call = "IK2QAA",
              .locator = "JN45AA",
              .qsos = {{"IZ9QBC", "JM67AA"}, {"I1QXX", "JN44BC", "107"}, {"DL1QAA", "JO30AA"}},
              .dx_call = "I1QXX"})
      .Filed({.call = "IZ9QBC", .locator = "JM67AA", .qsos = {{"I1QXX", "JN44BB"}}})
      .Filed({.call = "IV3QYY", .locator = "JN66AA", .qsos = {{"IZ9QBC", "JM67AA"}}});
}

/// Gives the logs of these calls the result of a check in the classification: one error, that of
/// the DX QSO.
inline DeskFixture& MarkChecked(DeskFixture& desk, const Names& calls) {
  const std::string old = desk.workspace.Read(kClassificationFile);
  std::string text;
  for (const std::string_view row : SplitLines(old)) {
    const bool chosen = std::ranges::count(calls, ClassificaRow(row).Call()) != 0;
    AddLine(text, chosen
                      ? CheckedRow(WithDxMark(row, '*'), {.errors = 1, .lost = 107, .final = 4893})
                      : std::string(row));
  }
  desk.workspace.With(kClassificationFile, text);
  return desk;
}

}  // namespace velmar::test
