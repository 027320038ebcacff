#include <gtest/gtest.h>

#include "intake/first_store.h"
#include "intake/insertion_desk.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar::test {
namespace {

TEST(LogFilingFailureTest, ARefusedAppendIsToldAndTheFilingGoesOn) {
  InsertionDesk times;
  times.files.broken_path = "tempi.txt";
  times.Waiting(kName, kGood).Read();
  times.main.Marcafile.Click();
  EXPECT_EQ(times.manager.boxes.at(0).lines,
            (Names{" si è verificato un errore durante l' accesso al file tempi.txt"_a,
                   " cio è possibile solo se non hai le autorizzazioni per questo PC"_a,
                   " oppure non hai eseguito il programma come amministartore"}));
  Files want = FirstStore();
  want.erase("Trofeo_Velmar/2IT/2ITtempi.txt");
  ExpectFiles(times.workspace.Everything(), want);

  const Names first = {
      " ATTENZIONE   Log con errore non identificato alla rigaIK2QAA      IZ9QBC      JM67AA 950",
      " ATTENZIONE   errore non identificato alla rigaIK2QAA      IZ9QBC      JM67AA 2IT 950"};
  const Names tails = {"libreria.qso", "libreria_totale.tot"};
  for (const std::size_t library : {0, 1}) {
    for (const int breaks : {1, 2}) {
      InsertionDesk desk;
      desk.Waiting(kName, kGood).Read();
      desk.files.break_at_change = desk.files.changes + 6 + static_cast<int>(library);
      desk.files.breaks = breaks;
      desk.main.Marcafile.Click();
      Files left = FirstStore();
      std::string& rows = left.at("Trofeo_Velmar/2IT/2IT" + tails[library]);
      if (breaks == 2) {
        rows = rows.substr(rows.find('\n') + 1);
        EXPECT_EQ(desk.manager.boxes.at(0).lines.at(0), first[library]);
        EXPECT_EQ(desk.manager.boxes.at(0).lines.back(),
                  library == 0 ? first[0] : " del log di IK2QAA");
      }
      EXPECT_EQ(desk.manager.boxes.size(), breaks - 1U);
      ExpectFiles(desk.workspace.Everything(), left);
    }
  }
}

// Whatever write breaks, and whether the disk recovers or not, the log is whole somewhere and each
// line of the store is one of a good run; read once more, it is in exactly one folder.
TEST(LogFilingFailureTest, NoLogIsLostWhereverTheDiskFails) {
  const Files good = FirstStore();
  const auto expect_whole_lines = [&](const Files& files) {
    for (const auto& [path, bytes] : files) {
      if (const auto wanted = good.find(path); wanted != good.end()) {
        const std::string& complete = wanted->second;
        EXPECT_TRUE(bytes.empty() || bytes.ends_with(kLineEnd)) << path;
        for (const std::string_view line : SplitLines(bytes)) {
          EXPECT_TRUE(Holds(complete, Join(line, kLineEnd))) << path << ": " << line;
        }
      }
    }
  };
  for (const int breaks : {1, 1000}) {
    for (int broken = 1; broken <= 20; ++broken) {
      SCOPED_TRACE(Join(breaks, " breaks from change ", broken));
      InsertionDesk desk;
      desk.Turbo().Waiting(kName, kGood);
      desk.files.break_at_change = broken;
      desk.files.breaks = breaks;
      desk.Read();
      desk.manager.TakeFirstLines();
      EXPECT_FALSE(desk.PlacesOf(kGood).empty());
      expect_whole_lines(desk.workspace.Everything());
      desk.files.break_at_change = 0;
      desk.main.Check_AUT_entry.checked = true;
      desk.Read();
      EXPECT_FALSE(desk.PlacesOf(kGood).empty());
      EXPECT_EQ(desk.Inbox(), Names{});
      desk.manager.TakeFirstLines();
    }
  }
}

}  // namespace
}  // namespace velmar::test
