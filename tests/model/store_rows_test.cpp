#include "model/store_rows.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace velmar {
namespace {

/// The fields of a row, each with a bar behind it.
std::string Fields(std::string_view row, const std::vector<Column>& columns) {
  std::string fields;
  for (const Column& column : columns) {
    fields += Join(Cut(row, column), "|");
  }
  return fields;
}

constexpr std::string_view kQso = "250119;1003;ik1aaa/p;1;59;001;59;012;;jn35ug;99;;N;;";

TEST(StoreRows, EachStandsAsItsColumnsSay) {
  const auto library = LibreriaRow("ik2qaa/p", "i0xyz", "jn61fw  ", "418").value();
  EXPECT_EQ(library, "IK2QAA/P    I0XYZ       JN61FW 418");
  {
    using namespace libreria_row;
    EXPECT_EQ(Fields(library, {kOwner, kCall, kLocator, kPoints}),
              "IK2QAA/P    |I0XYZ       |JN61FW|418|");
  }
  const auto total = LibreriaTotaleRow("ik2qaa/p", "i0xyz", "jn61fw ", "2IT", "418").value();
  EXPECT_EQ(total, "IK2QAA/P    I0XYZ       JN61FW 2IT 418");
  {
    using namespace libreria_totale_row;
    EXPECT_EQ(Fields(total, {kOwner, kCall, kLocator, kCategory, kPoints}),
              "IK2QAA/P    |I0XYZ       |JN61FW|2IT|418|");
  }
  const std::string all = SommaSlxRow("ik2qaa/p", kQso);
  EXPECT_EQ(all, "IK2QAA/P    ;250119;1003;ik1aaa/p;1;59;001;59;012;;jn35ug;99;;N;;");
  EXPECT_EQ(Cut(all, somma_slx_row::kOwner), "IK2QAA/P    ");
  EXPECT_EQ(Cut(all, somma_slx_row::kQso), kQso);
  const std::string valid = SommaQsoRow(kQso, "2IT", "jn45nk77", "ik2qaa/p");
  EXPECT_EQ(valid, "250119;1003;ik1aaa/p;1;59;001;59;012;;jn35ug;99;;N;;2ITJN45NKIK2QAA/P    ");
  {
    using namespace somma_qso_row;
    EXPECT_EQ(Fields(Right(valid, kBehindQso), {kCategory, kLocator, kOwner}),
              "2IT|JN45NK|IK2QAA/P    |");
  }
  const std::string participant = PartecipanteRow("ik2qaa/p", "jn45nk77", "2IT");
  EXPECT_EQ(participant, "IK2QAA/P    JN45NK 2IT 144M");
  {
    using namespace partecipante_row;
    EXPECT_EQ(Fields(participant, {kCall, kLocator, kCategory, kBand}),
              "IK2QAA/P    |JN45NK|2IT|144M|");
  }
  const std::string modes = ModoRow("ik2qaa/p", "jn45nk", 120, 0);
  EXPECT_EQ(modes, "IK2QAA/P    JN45NK 144M  SSB= 120  CW = 0  ");
  {
    using namespace modo_row;
    EXPECT_EQ(Fields(modes, {kCall, kLocator, kBand, kSsb, kCw}),
              "IK2QAA/P    |JN45NK|144M|SSB= 120|CW = 0  |");
  }
  const std::string times = TempiRow("2IT", "ik2qaa/p", 85, 3, 7);
  EXPECT_EQ(times, "2IT  IK2QAA/P     85   Qso   3  ore   7  minuti");
  {
    using namespace tempi_row;
    EXPECT_EQ(Fields(times, {kCategory, kCall, kQsos, kHours, kMinutes}),
              "2IT|IK2QAA/P    | 85   | 3 | 7 |");
  }
}

TEST(StoreRows, ThoseForTheManagerStandAsTheyAreTold) {
  EXPECT_EQ(StatisticaDxRow("2IT", "ik2qaa/p", "jn45nk",
                            {.locator = "JN61FW", .call = "I0XYZ", .distance = "418"}),
            "2IT - IK2QAA/P    JN45NK - JN61FW  I0XYZ       -  418  ");
  EXPECT_EQ(StatisticaDxRow("2IT", "I2A", "JN45NK", {}),
            "2IT - I2A         JN45NK -   "
            "            -       ");
  EXPECT_EQ(ContestTeamRow("ik2qaa", "IK2QBB;IK2QCC", "I2AA"),
            "IK2QAA       altri OP. :IK2QBB;IK2QCC I2AA");
  EXPECT_EQ(ControlLogRow("ik2qaa"), "IK2QAA       log privo del modo di emissione");
  EXPECT_EQ(CwCallRow("ik2qaa/p", "4IT", "2001x", 12), "IK2QAA/P    4IT 2001 12");
  EXPECT_EQ(CwQsoRow("ik2qaa/p", "JN45NK", "20013", "I0XYZ", "JN61FW", "418"),
            "IK2QAA_P    JN45NK          2001 - I0XYZJN61FW  418");
  EXPECT_EQ(CwQsoRow("I2A", "JN45NK", "", "I0XYZ", "JN61", "418"),
            "I2A         JN45NK          ---  - I0XYZJN61    418");
}

TEST(StoreRows, LongValuesAreCutAsTheirFieldsSay) {
  EXPECT_EQ(LibreriaRow("IV3/IK2QAA/QRP", "9A/IK2QBB/QRP", "JN61FW77", "418"),
            "IV3/IK2QAA/Q9A/IK2QBB/QRJN61FW77 418");
  EXPECT_EQ(ModoRow("I2A", "JN45NK", 12345, 12345), "I2A         JN45NK 144M  SSB= 123  CW = 123");
  EXPECT_EQ(TempiRow("2IT", "I2A", 123456, 123, 59),
            "2IT  I2A          12345Qso   12 ore   59 minuti");
  EXPECT_EQ(StatisticaDxRow("2IT", "I2A", "JN45NKX", {"JN61FW", "IV3/IK2QAA/QRP", "123456"}),
            "2IT - I2A         JN45NK - JN61FW  IV3/IK2QAA/Q-  12345");
}

// One looks at the whole row, the other up to the locator alone.
TEST(StoreRows, TheLibrariesMeasureTheirRowsEachInItsWay) {
  const std::optional<std::string> none;
  const struct {
    const char *locator, *points;
    std::optional<std::string> library, total;
  } cases[] = {
      {"JN61FW", "0", "I2A         I0XYZ       JN61FW 0", "I2A         I0XYZ       JN61FW 2IT 0"},
      {"JN61", "4", "I2A         I0XYZ       JN61 4", none},
      {"JN61", "418", "I2A         I0XYZ       JN61 418", none},
      {"JN6", "4", none, none},
      {"JN61F", "4", "I2A         I0XYZ       JN61F 4", none},
      {"", "1234", none, none},
      {"", "12345", "I2A         I0XYZ        12345", none},
      {"JN6   ", "4", none, none},
      {"JN61FW", "", "I2A         I0XYZ       JN61FW 0", "I2A         I0XYZ       JN61FW 2IT 0"}};
  for (const auto& [locator, points, library, total] : cases) {
    EXPECT_EQ(LibreriaRow("I2A", "I0XYZ", locator, points), library) << locator << points;
    EXPECT_EQ(LibreriaTotaleRow("I2A", "I0XYZ", locator, "2IT", points), total) << locator;
  }
  // The points of a row with a short locator begin ahead of their column, which nobody mends.
  const std::string row = LibreriaRow("I2A", "I0XYZ", "JN61", "418").value();
  EXPECT_EQ(Cut(row, libreria_row::kPoints), "8");
  EXPECT_EQ(Cut(row, libreria_row::kLocator), "JN61 4");
}

}  // namespace
}  // namespace velmar
