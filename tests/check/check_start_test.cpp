// The start of a check: in which order the desk is put in order, and what it finds.

#include <gtest/gtest.h>

#include "desk_fixture.h"

namespace velmar::test {
namespace {

/// A log of three QSOs, of which the second has a locator that nobody else has.
DeskFixture& Contest(DeskFixture& desk) {
  return desk
      .Filed({.call = "IK2QAA",
              .locator = "JN45AA",
              .qsos = {{"IZ9QBC", "JM67AA"}, {"I1QXX", "JN44BC", "107"}, {"DL1QAA", "JO30AA"}},
              .dx_call = "I1QXX"})
      .Filed({.call = "IZ9QBC", .locator = "JM67AA", .qsos = {{"I1QXX", "JN44BB"}}})
      .Filed({.call = "IV3QYY", .locator = "JN66AA", .qsos = {{"I1QXX", "JN44BB"}}});
}

TEST(CheckStart, ShowsTheRowAndTheDoubts) {
  DeskFixture desk;
  Contest(desk).Loaded().Started("IK2QAA");
  EXPECT_EQ(desk.form.Lista_dubbi.items.rows(), Names{"IK2QAA      I1QXX       JN44BC 107  2"});
  EXPECT_EQ(desk.form.evidenzia.caption,
            "IK2QAA       JN45AA  250  9 el yagi            100  3    5000    I1QXX      100   "
            "5000      0    0       5000      0.0%    1");
  EXPECT_FALSE(desk.form.unici.enabled);
  desk.form.torna_menu.Click();
  EXPECT_EQ(desk.manager.boxes.back(), Told(" Devi finire il controllo in atto prima di uscire "));
}

TEST(CheckStart, AnErrorListOfABrokenCheckIsCutToItsHead) {
  DeskFixture desk;
  Contest(desk).Loaded();
  const std::string head = desk.ErrorListOf("IK2QAA");
  desk.store.AppendToErrorList("IK2QAA", kCategory, "GENNAIO 2025", "a decision\r\n");
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.ErrorListOf("IK2QAA"), head);
}

}  // namespace
}  // namespace velmar::test
