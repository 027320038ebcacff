#include "intake/log_identity.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/lines.h"
#include "model/text.h"
#include "platform/error.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

/// A good log with one of its rows, by its number from 1, put in place of what stands there.
std::string LogWithRow(std::size_t number, std::string_view row) {
  std::string changed;
  const std::string log = LogText("IK2QAA", "JN45AA", {});
  std::size_t at = 0;
  for (const std::string_view line : SplitLines(log)) {
    changed += Join(++at == number ? row : line, kLineEnd);
  }
  return changed;
}

struct CallCase {
  std::string declared;
  std::string text;
  int removals = 0;
  bool valid = true;
};

void ExpectCleaned(const std::vector<CallCase>& cases) {
  for (const CallCase& c : cases) {
    const CleanedCall call = CleanCall(c.declared);
    EXPECT_EQ(call.text, c.text) << c.declared;
    EXPECT_EQ(call.removals, c.removals) << c.declared;
    EXPECT_EQ(call.valid, c.valid) << c.declared;
  }
}

TEST(CleanCall, TakesAwayWhatIsNoPartOfACall) {
  for (const std::string separator : {"(", "|", "@", "_", "\\", "/", "-"}) {
    ExpectCleaned({{"IK2QAA" + separator + "P", "IK2QAA", 1},
                   {"ik2qaa" + separator + "p", "ik2qaa", 1},
                   {"F" + separator + "IK2QAA", "IK2QAA"},
                   {"IK2QAA" + separator + "AB", "IK2QAA"}});
  }
  for (const std::string prefix : {"IV3", "IN3", "IS0", "IM0", "IX1", "IA5", "IT9", "I", "IK"}) {
    ExpectCleaned({{prefix + "/AB1CD", "AB1CD", 1}, {Lower(prefix) + "-ab1cd", "ab1cd", 1}});
  }
  for (const std::string suffix :
       {"QRP", "P", "M", "0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
    ExpectCleaned({{"IZ9QBC/" + suffix, "IZ9QBC", 1}});
  }
}

TEST(CleanCall, CutsAtTheSeparatorThatIsLeft) {
  ExpectCleaned({{"ABC/IZ9QBC", "IZ9QBC"},
                 {"ABCD/IZ9QBC", "ABCD"},
                 {"/IZ9QBC", "IZ9QBC"},
                 {"IZ9QBC/", "IZ9QBC"},
                 {"2IT_IZ9QBC", "IZ9QBC"},
                 {"IZ9QBC", "IZ9QBC"}});
}

// What is taken away is looked for anywhere, in its order, and is not put between others.
TEST(CleanCall, TakesItsPartsWhereverTheyStand) {
  ExpectCleaned({{"IK2QAI/P", "IK2QAP", 1},
                 {"IK2AIK/P", "IK2AP", 1},
                 {"IZ9QBC/MM", "IZ9QBCM", 1},
                 {"IZ9QBC/10", "IZ9QBC0", 1},
                 {"F/PA0ABC", "FA0ABC", 1},
                 {"F/9A1AA", "FA1AA", 1}});
}

TEST(CleanCall, KnowsWhatIsNoCall) {
  ExpectCleaned({{"ABCDEFGHIJKL", "ABCDEFGHIJKL"},
                 {" ABC DEF GHI JKL ", "ABCDEFGHIJKL"},
                 {"ABCDEFGHIJKLM", "Log non valido", 0, false},
                 {"I/ABCDEFGHIJK/P", "Log non valido", 0, false},
                 {"I/AB1CD/P", "call non valido", 0, false},
                 {"2IT_IK2QAA/P", "call non valido", 0, false},
                 {"", "call non valido", 0, false},
                 {"   ", "call non valido", 0, false},
                 {"/", "call non valido", 0, false},
                 {"ABC/", "call non valido", 0, false}});
}

TEST(IdentifyLog, NamesALogByItsCallOrByWhatIsWrong) {
  struct Case {
    std::string log;
    std::string name;
  };
  const std::vector<Case> cases = {
      {LogText("IK2QAA", "JN45AA", {}), "2IT_IK2QAA.edi"},
      {LogText("i/ik2qaa", "JN45AA", {}), "2IT_ik2qaa.edi"},
      {LogText("IK2\tQAA", "JN45AA", {}), "2IT_IK2.edi"},
      {LogText("IK2|QAA|P", "JN45AA", {}), "00__call non valido.edi"},
      {LogText("IK2QAAIK2QAA2", "JN45AA", {}), "00__Log non valido.edi"},
      {LogText("", "JN45AA", {}), "00__call non valido.edi"},
      {LogWithRow(4, "XCall=IK2QAA"), "00__call non valido.edi"},
      {LogWithRow(4, "pcall=IK2QAA"), "2IT_IK2QAA.edi"},
      {LogWithRow(1, "[REG1TEST;1] "), "00__Log non valido 7.edi"},
      {LogWithRow(1, "[REG1TEST;]"), "00__Log non valido 7.edi"},
      {LogWithRow(1, "[REG1TEST<br"), "00__Log non valido 7.edi"},
      {"", "00__Log non valido 7.edi"},
      {LogWithRow(9, "XSect=2IT"), "00__IK2QAA manca PSect _ 7.edi"},
      {LogWithRow(10, "XBand=144"), "00__IK2QAA manca PBand _ 7 no frequenza.edi"},
      {LogWithRow(10, "XBand=\r\nPBand=144"), "00__IK2QAA manca PBand _ 7 no frequenza.edi"},
      {LogWithRow(8, "PAdr2=\r\nOne=more"),
       "00__IK2QAA manca PSect _ 7 manca PBand _ 7 no frequenza.edi"},
      {LogWithRow(3, ""), "00__call non valido manca PSect _ 7 manca PBand _ 7 no frequenza.edi"},
      {LogWithRow(10, "PBand=432 MHz"), "00__00_IK2QAA Problem  Cat=2IT Freq=432 MHz 7.edi"},
      {LogWithRow(10, "PBand=432/1296"), "00__00_IK2QAA Problem  Cat=2IT Freq=432_1296 7.edi"},
      {LogWithRow(10, "PBand="), "00__00_IK2QAA Problem  Cat=2IT Freq= 7.edi"},
      {LogWithRow(10, "pband=145 MHz"), "2IT_IK2QAA.edi"},
      {LogWithRow(10, "PBand=146"), "2IT_IK2QAA.edi"},
      {LogWithRow(10, "PBand=147"), "00__00_IK2QAA Problem  Cat=2IT Freq=147 7.edi"},
      {LogWithRow(9, "psect=3IT\r\nPBand=432"), "2IT_IK2QAA.edi"},
  };
  for (const Case& c : cases) {
    const LogIdentity log = IdentifyLog(c.log, 7);
    EXPECT_EQ(log.new_name, c.name);
    EXPECT_EQ(log.valid, c.name.starts_with("2IT_")) << c.name;
  }
}

TEST(IdentifyLog, HoldsAsManyLinesOfAHeaderAsTheDesignAllows) {
  std::string header = LogText("IK2QAA", "JN45AA", {});
  for (std::size_t lines = SplitLines(header).size(); lines < 370'000; ++lines) {
    header += "x\r\n";
  }
  EXPECT_TRUE(IdentifyLog(header, 0).valid);
  EXPECT_TRUE(IdentifyLog(Join(header, "\r\nx\r\n"), 0).valid) << "behind an empty line";
  EXPECT_THROW(IdentifyLog(header + "x\r\n", 0), RunTimeError);
}

TEST(IdentifyLog, LivesThroughEveryTruncationAndChangedByte) {
  const std::string good = LogText("IK2QAA/P", "JN45AA", {});
  for (std::size_t at = 0; at < good.size(); ++at) {
    std::string changed = good;
    changed[at] = '\xFF';
    for (const std::string& log : {good.substr(0, at), changed}) {
      const LogIdentity identity = IdentifyLog(log, 0);
      EXPECT_EQ(identity.valid, identity.new_name.starts_with("2IT_")) << at;
    }
  }
}

TEST(WithSection, PutsTheSectionInCapitalsIntoItsRowAlone) {
  EXPECT_EQ(
      WithSection("[REG1TEST;1]\r\nPSECT=x\r\n psect=2it;y\r\nPSect:2it\r\n\r\nPBand=", "2it"),
      "[REG1TEST;1]\r\nPSect=2IT\r\nPSect=2IT\r\nPSect:2it\r\n\r\nPBand=\r\n");
}

}  // namespace
}  // namespace velmar::test
