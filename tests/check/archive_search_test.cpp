#include "check/archive_search.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmar {
namespace {

// The parts of the lists that always stand in them, written out once.
const std::string kRule35 = "===================================";
const std::string kRule44 = "============================================";
const std::string kRule46 = "==============================================";
const std::string kBlank30 = "                              ";
const std::string kBlank32 = "                                ";

const std::vector<std::string_view> kTable = {"I1QXX       JN44BB", "IK2QAA      JN45AA",
                                              "IW9QQ       JM67AA", "IW9QQQ      JM67??",
                                              "9A1QXX      JN44BB", "9A/IW9QQ    JN75AA"};

const std::vector<std::string> kBook = {
    "I1QXX       JN44BBP 250119  12 144", "IK1QXX/P    JN34AAL 250119  10 144",
    "IK1QXX      JN44BBP 240121   1 144", "IW9QQ       JM67AAP 240121   3 144",
    "IZ1XX/QRP   JN44BAL 240121  11 144", "IZ5QXX/P    JN53AAL 250119  10 144"};

const ArchiveSources kSources = {kTable, kBook};

TEST(FindInDatabase, ListsTheTableByContentAndTheBookByCall) {
  EXPECT_EQ(
      FindInDatabase(kSources, "IW9QQ", false),
      (ResultRows{"      Dati non ufficiali da DB Iaru  ", kBlank32,
                  "IW9QQ       JM67AA  <-- QSO Unico ", "IW9QQQ      JM67??  <-- QSO Unico ",
                  "9A/IW9QQ    JN75AA  <-- QSO Unico ", kBlank30, kBlank30, kRule35,
                  " Libreria con dati verificati ", " ", "IW9QQ       JM67AAP 240121   3 144"}));
}

TEST(FindInDatabase, WithoutARowOfTheTableTheBookStandsAlone) {
  EXPECT_EQ(FindInDatabase(kSources, "IK1QXX/P", false),
            (ResultRows{kRule35, " Libreria con dati verificati ", " ",
                        "IK1QXX/P    JN34AAL 250119  10 144"}));
  EXPECT_EQ(FindInDatabase(kSources, "OK1QAA", false),
            (ResultRows{kRule35, " Libreria con dati verificati ", " "}));
}

TEST(FindInDatabase, WithoutABookTheTableStandsAlone) {
  EXPECT_EQ(FindInDatabase(kSources, "IK2QAA", true),
            (ResultRows{"      Dati non ufficiali da DB Iaru  ", kBlank32,
                        "IK2QAA      JN45AA  <-- QSO Unico ", kBlank30, kBlank30}));
  EXPECT_EQ(FindInDatabase(kSources, "OK1QAA", true),
            (ResultRows{"      Dati non ufficiali da DB Iaru  ", kBlank32, kBlank30, kBlank30}));
}

TEST(FindAround, ListsTheLocatorByTheTableThenSimilarCallsThenTheLocatorByTheBook) {
  EXPECT_EQ(
      FindAround(kSources, "IK1QXX", "JN44BB", "I1QXX"),
      (ResultRows{"  DATI NON CONFERMATI DAL DATABASE IARU ", " ",
                  "9A1QXX      JN44BB    <-- QSO Unico", kRule44,
                  " Ricerca call con 'QXX' con dati confermati", " ",
                  "I1QXX       JN44BBP 250119  12 144", "IK1QXX/P    JN34AAL 250119  10 144",
                  "IK1QXX      JN44BBP 240121   1 144", kRule44,
                  " Ricerca call in JN44BB con dati confermati", " ",
                  "I1QXX       JN44BBP 250119  12 144", "IK1QXX      JN44BBP 240121   1 144"}));
}

TEST(FindAround, SaysWhereNothingIsFound) {
  EXPECT_EQ(
      FindAround(kSources, "OK2ZZZ", "JO80AA", "IK2QAA"),
      (ResultRows{"  DATI NON CONFERMATI DAL DATABASE IARU ", " ", "         Nessun riscontro",
                  kRule46, "         Archivio con dati confermati ", " ",
                  "  NESSUN RISCONTRO con il call -> OK2ZZZ", " "}));
  // The book has the locator, and nothing like the call: the locator is not listed either.
  EXPECT_EQ(FindAround(kSources, "OK2ZZZ", "JN44BB", "IK2QAA").back(), " ");
  const ResultRows without = FindAround({kTable, {}}, "I1QXX", "JN45AA", "IK2QAA");
  EXPECT_EQ(without, (ResultRows{"  DATI NON CONFERMATI DAL DATABASE IARU ", " ",
                                 "         Nessun riscontro", kRule46,
                                 "         Archivio con dati confermati ", " ",
                                 "  NESSUN RISCONTRO con il call -> I1QXX", " "}))
      << "the log under examination is left out of the table";
}

TEST(FindCallsByEnd, PortableCallsComeFirstAndShareOneCharacterMore) {
  EXPECT_EQ(
      FindCallsByEnd(kBook, "IK1QXX"),
      (ResultRows{" Ricerca di call che contengono 'QXX'",
                  " --------------------------------------", "IK1QXX/P    JN34AAL 250119  10 144",
                  "I1QXX       JN44BBP 250119  12 144", "IK1QXX      JN44BBP 240121   1 144"}));
  // "XX/P" of the portable ones, "X/P" of the others, of which none can hold a stroke.
  EXPECT_EQ(FindCallsByEnd(kBook, "I5QXX/P"),
            (ResultRows{
                " Ricerca di call che contengono 'X/P'", " --------------------------------------",
                "IK1QXX/P    JN34AAL 250119  10 144", "IZ5QXX/P    JN53AAL 250119  10 144"}));
  EXPECT_EQ(FindCallsByEnd(kBook, "1XX"), (ResultRows{" Ricerca di call che contengono '1XX'",
                                                      " --------------------------------------",
                                                      "IZ1XX/QRP   JN44BAL 240121  11 144"}))
      << "three characters are the whole call and its end";
  EXPECT_EQ(FindCallsByEnd({}, "IK1QXX").size(), 2U);
}

TEST(FindNearLocator, FiveCharactersOfTheLocatorCount) {
  const std::vector<std::string_view> others = {"IZ9QBC      I1QXX       JN44BB 1234567",
                                                "IZ9QBC      IK2QAA      JN44AB 100",
                                                "IV3QYY      I1QXZ       JN44BX 5"};
  const std::string rule = "-----------------------------------------";
  EXPECT_EQ(
      FindNearLocator(kBook, others, "JN44BC"),
      (ResultRows{"       Ricerca in  archivio di JN44B*", "I1QXX       JN44BBP 250119  12 144",
                  "IK1QXX      JN44BBP 240121   1 144", "IZ1XX/QRP   JN44BAL 240121  11 144", rule,
                  " Ricerca in book e log esteri di JN44B*", "IZ9QBC      I1QXX       JN44BB 12345",
                  "IV3QYY      I1QXZ       JN44BX 5", " ", "           Ricerca terminata"}));
  EXPECT_EQ(
      FindNearLocator({}, {}, "JO70AA"),
      (ResultRows{"       Ricerca in  archivio di JO70A*", rule,
                  " Ricerca in book e log esteri di JO70A*", " ", "           Ricerca terminata"}));
}

TEST(FindForeignCall, FourCharactersOfTheCallCount) {
  const std::vector<std::string_view> others = {"IZ9QBC      DL1QAB      JO30AA 1234567",
                                                "DL1QAA      IZ9QBC      JM67AA 100",
                                                "IZ9QBC      9A/DL1QZ    JN75AA 99"};
  const std::string rule = "-------------------------------------------";
  EXPECT_EQ(FindForeignCall(others, "DL1QAA"),
            (ResultRows{"IZ9QBC      DL1QAB      JO30AA 12345", "IZ9QBC      9A/DL1QZ    JN75AA 99",
                        rule}));
  EXPECT_EQ(FindForeignCall(others, "OK1QAA"),
            (ResultRows{"   Nessun riscontro nella biblioteca Velmar", rule}));
}

TEST(FindInSquare, SharesTheLargeSquareAndTheStartOfTheCall) {
  EXPECT_EQ(
      FindInSquare(
          {"IV3/IK2QAA/PI1QXZ       JN44AA 2IT 100", "IZ9QBC      I1QXY       JN45BB 2IT 100",
           "IZ9QBC      DL1QXX      JN44BB 2IT 100", "IZ9QBC      I1QXX       JN44BB 3IT 100"},
          "I1QXX", "JN44BC"),
      (ResultRows{"JN44AA    I1QXZ       IV3/IK2QAA", "JN44BB    I1QXX       IZ9QBC    "}));
}

}  // namespace
}  // namespace velmar
