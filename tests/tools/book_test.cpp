#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "book/book_maker.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/error.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

using Records = std::vector<std::string>;

/// A contest that reads like a sentence.
class Contest {
 public:
  explicit Contest(std::string date) { filed_.date = std::move(date); }

  Contest& Declares(std::string_view call, std::string_view locator) {
    AddLine(filed_.participants, PartecipanteRow(call, locator, kCategory));
    return *this;
  }
  Contest& Works(std::string_view owner, std::string_view call, std::string_view locator) {
    AddLine(filed_.library, LibreriaRow(owner, call, locator, "123").value());
    return *this;
  }
  /// As many logs, of IK2QAA, IK2QAB and so on.
  Contest& LogsWork(int logs, std::string_view call, std::string_view locator) {
    for (int log = 0; log < logs; ++log) {
      const std::string letters = {static_cast<char>('A' + log / 26),
                                   static_cast<char>('A' + log % 26)};
      Works(Join("IK2Q", letters), call, locator);
    }
    return *this;
  }

  const FiledContest& filed() const { return filed_; }

 private:
  FiledContest filed_;
};

Records RecordsOf(const std::vector<Contest>& contests) {
  BookMaker maker;
  for (const Contest& contest : contests) {
    maker.Add(contest.filed());
  }
  return maker.Records();
}

/// What stands in the error, or "no error".
template <typename Action>
std::string Complaint(Action action) {
  try {
    action();
  } catch (const BookError& error) {
    return error.what();
  }
  return "no error";
}

TEST(BookMaker, TellsWhatStationsDeclareAndWhatTenLogsAgreeOn) {
  const auto first = Contest("240121")
                         .Declares("IZ1QZZ", "JN34AA")
                         .Declares("I4QXY/P", "JN54BB")
                         .LogsWork(12, "IZ1QZZ", "JN34AA")
                         .LogsWork(4, "IT9QRS", "JM68CC")
                         .LogsWork(10, "IW9QTT", "JM67DD");
  const auto second = Contest("250119")
                          .Declares("IZ1QZZ", "JN35EE")
                          .LogsWork(3, "IZ1QZZ", "JN35EE")
                          .LogsWork(6, "IT9QRS", "JM68CC")
                          .LogsWork(2, "I4QXY/P", "JN54BB");
  const Records expected = {
      "I4QXY/P     JN54BBP 250119   2 144", "IT9QRS      JM68CCL 250119  10 144",
      "IW9QTT      JM67DDL 240121  10 144", "IZ1QZZ      JN34AAP 240121  12 144",
      "IZ1QZZ      JN35EEP 250119   3 144"};
  EXPECT_EQ(RecordsOf({first, second}), expected);
  EXPECT_EQ(RecordsOf({second, first}), expected);
}

TEST(BookMaker, NineLogsAreNotEnough) {
  const auto contest = Contest("250119")
                           .LogsWork(10, "IT9QRS", "JM68CC")
                           .LogsWork(9, "IW9QTT", "JM67DD")
                           .LogsWork(9, "IW9QUU", "JM67DD")
                           .Works("IK2QZZ", "IW9QUU", "JM67DE");
  EXPECT_EQ(RecordsOf({contest}), Records{"IT9QRS      JM68CCL 250119  10 144"});
}

TEST(BookMaker, ALogCountsOnceInAContest) {
  const auto repeated = Contest("240121")
                            .Declares("IZ1QZZ", "JN34AA")
                            .LogsWork(9, "IT9QRS", "JM68CC")
                            .Works("IK2QAA", "IT9QRS", "JM68CC")
                            .Works("IK2QAA", "IT9QRS", "JM68CC");
  const Records nobody_else = {"IZ1QZZ      JN34AAP 240121   0 144"};
  EXPECT_EQ(RecordsOf({repeated}), nobody_else);
  EXPECT_EQ(RecordsOf({repeated, repeated}), nobody_else) << "one contest given twice";
  const auto later = Contest("250119").Works("IK2QAA", "IT9QRS", "JM68CC");
  EXPECT_EQ(RecordsOf({repeated, later}),
            (Records{"IT9QRS      JM68CCL 250119  10 144", nobody_else[0]}))
      << "the same log a year later";
}

TEST(BookMaker, LeavesOutWhatIsNoLocatorAndNoCall) {
  const auto contest = Contest("250119")
                           .Declares("IZ1QZZ", "JN34AA")
                           .Declares("IZ1QZY", "JN34")
                           .Declares("IZ1QZX", "ZZ99ZZ")
                           .Declares("", "JN45AA")
                           .LogsWork(12, "IT9QRS", "JM68C")
                           .LogsWork(12, "IT9QRS", "JM6!CC")
                           .LogsWork(12, "", "JM68CC");
  EXPECT_EQ(RecordsOf({contest}), Records{"IZ1QZZ      JN34AAP 250119   0 144"});
}

TEST(BookMaker, AnArchiveHasOneRecordAtLeastAndThirtyThousandAtMost) {
  const auto nothing = Contest("250119").LogsWork(9, "IT9QRS", "JM68CC");
  EXPECT_NE(Complaint([&] { RecordsOf({nothing}); }).find("is empty"), std::string::npos);

  Contest many("250119");
  for (int number = 0; number < 30'000; ++number) {
    many.Declares(Join("I1Q", number), "JN34AA");
  }
  EXPECT_EQ(RecordsOf({many}).size(), 30'000U);
  many.Declares("IZ1QZZ", "JN34AA");
  EXPECT_EQ(Complaint([&] { RecordsOf({many}); }),
            "the archive would have 30001 records; it holds 30000 at most");
}

/// The store of a contest, as the program leaves it.
void File(TempWorkspace& workspace, const Contest& contest) {
  const std::string folder = "Trofeo_Velmar/2IT/2IT";
  workspace.With(folder + " data contest.dat", Join("2IT ", contest.filed().date, kLineEnd))
      .With(folder + " partecipanti.par", contest.filed().participants)
      .With(folder + "libreria.qso", contest.filed().library);
}

TEST(FiledContestOnDisk, IsReadFromItsThreeFiles) {
  TempWorkspace workspace;
  const auto contest =
      Contest("250119").Declares("IZ1QZZ", "JN34AA").LogsWork(11, "IT9QRS", "JM68CC");
  File(workspace, contest);
  const FiledContest read = ReadFiledContest(workspace.files(), workspace.paths());
  EXPECT_EQ(read.date, "250119");
  EXPECT_EQ(read.participants, contest.filed().participants);
  EXPECT_EQ(read.library, contest.filed().library);
}

TEST(FiledContestOnDisk, NamesTheFileThatIsAtFault) {
  const auto contest = Contest("250119").Declares("IZ1QZZ", "JN34AA");
  for (const std::string name :
       {"2IT data contest.dat", "2IT partecipanti.par", "2ITlibreria.qso"}) {
    TempWorkspace workspace;
    File(workspace, contest);
    const std::string path = workspace.paths().category() + "/" + name;
    const auto read = [&](FileSystem& files) { ReadFiledContest(files, workspace.paths()); };
    FailingFileSystem failing(workspace.files());
    failing.broken_path = name;
    failing.number = ErrorNumber::kPermissionDenied;
    EXPECT_EQ(Complaint([&] { read(failing); }), "cannot read: " + path);
    workspace.files().Remove(path);
    EXPECT_EQ(Complaint([&] { read(workspace.files()); }), "no such file: " + path);
  }
  TempWorkspace nothing_there;
  EXPECT_EQ(Complaint([&] { ReadFiledContest(nothing_there.files(), nothing_there.paths()); }),
            "no such file: " + nothing_there.paths().contest_date("2IT"));
}

TEST(FiledContestOnDisk, NeedsADate) {
  for (const std::string date : {"", "2701..", "50119"}) {
    TempWorkspace workspace;
    File(workspace, Contest(date));
    EXPECT_EQ(Complaint([&] { ReadFiledContest(workspace.files(), workspace.paths()); }),
              "no date of the form YYMMDD: " + workspace.paths().contest_date("2IT"));
  }
}

}  // namespace
}  // namespace velmar::test
