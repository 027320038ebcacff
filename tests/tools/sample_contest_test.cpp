#include "sample/sample_contest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <map>
#include <set>
#include <stdexcept>
#include <utility>

#include "model/edi_log.h"
#include "model/lines.h"
#include "model/locator.h"
#include "model/text.h"

namespace velmar {
namespace {

constexpr std::size_t kReport = 4;    // the fields of a QSO row: sent report and number,
constexpr std::size_t kReceived = 6;  // the received ones,
constexpr std::size_t kExchange = 8;

// A log with its QSO rows, counted from 1 on by Row.
struct Log {
  explicit Log(const ReceivedLog& received) : file(received), edi(ParseEdiLog(file.content)) {
    call = std::string(edi.own_call);
    for (const std::string_view row : edi.qsos) {
      uppers.push_back(Upper(row));
    }
    for (const std::string& upper : uppers) {
      rows.push_back(SplitQso(upper));
    }
  }
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;

  const QsoRecord& Row(std::size_t number) const { return rows.at(number - 1); }
  std::string_view Header(std::size_t row) const {
    return edi.lines.at(row - 1 + (row >= 3 && edi.lines.at(2) == "-SUP" ? 1 : 0));
  }

  const ReceivedLog& file;
  EdiLog edi;
  std::string call;
  std::vector<std::string> uppers;
  std::vector<QsoRecord> rows;  // in capitals
};

// A contest by its logs, with the faults by log and row.
struct Contest {
  explicit Contest(const SampleOptions& options) : made(MakeSampleContest(options)) {
    for (const ReceivedLog& received : made.logs) {
      const std::string call(ParseEdiLog(received.content).own_call);
      logs.try_emplace(call, received);
      locators[call] = ParseEdiLog(received.content).own_locator;
    }
    for (const PlantedFault& fault : made.faults) {
      by_row[{fault.log, fault.qso}] = &fault;
      if (fault.kind == FaultKind::kBadOwnLocator || fault.kind == FaultKind::kForeignLocator) {
        locators[fault.log] = fault.sent;
      }
    }
  }

  const PlantedFault* FaultAt(const std::string& call, std::size_t row) const {
    const auto found = by_row.find({call, row});
    return found == by_row.end() ? nullptr : found->second;
  }
  bool Has(const std::string& call, std::size_t row, FaultKind kind) const {
    const PlantedFault* const fault = FaultAt(call, row);
    return fault != nullptr && fault->kind == kind;
  }
  // The faults of a kind.
  std::vector<const PlantedFault*> Of(FaultKind kind) const {
    std::vector<const PlantedFault*> found;
    for (const PlantedFault& fault : made.faults) {
      if (fault.kind == kind) {
        found.push_back(&fault);
      }
    }
    return found;
  }

  SampleContest made;
  std::map<std::string, Log> logs;
  std::map<std::string, std::string> locators;  // true ones of the stations with a log
  std::map<std::pair<std::string, std::size_t>, const PlantedFault*> by_row;
};

const Contest& Middle() {
  static const Contest contest({.seed = 11, .stations = 60, .qsos = 30});
  return contest;
}

int Minutes(std::string_view hhmm) {
  const int number = std::atoi(std::string(hhmm).c_str());
  return number / 100 * 60 + number % 100;
}

std::vector<std::size_t> RowsWith(const Log& log, std::string_view call) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 1; row <= log.rows.size(); ++row) {
    if (log.Row(row).call() == call) {
      rows.push_back(row);
    }
  }
  return rows;
}

std::size_t Differences(std::string_view a, std::string_view b) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
    count += a[i] != b[i] ? 1 : 0;
  }
  return a.size() == b.size() ? count : a.size() + b.size();
}

std::uint64_t Fingerprint(const SampleContest& contest) {
  std::uint64_t hash = 14695981039346656037U;
  const auto take = [&hash](std::string_view text) {
    for (const char c : text) {
      hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    }
  };
  for (const ReceivedLog& log : contest.logs) {
    take(log.file_name);
    take(log.content);
  }
  take(FaultList(contest.faults));
  return hash;
}

TEST(SampleContest, SameOptionsGiveSameBytes) {
  const SampleOptions options = {.seed = 7, .stations = 22, .qsos = 9};
  const std::uint64_t first = Fingerprint(MakeSampleContest(options));
  EXPECT_EQ(first, Fingerprint(MakeSampleContest(options)));
  EXPECT_EQ(first, 10049757003225505882U) << "the bytes differ from those of other machines";
  EXPECT_NE(first, Fingerprint(MakeSampleContest({.seed = 8, .stations = 22, .qsos = 9})));
}

TEST(SampleContest, RefusesOptionsThatCannotBeMet) {
  const auto make = [](int stations, int qsos, const std::string& date) {
    return MakeSampleContest({1, stations, qsos, date});
  };
  EXPECT_THROW(make(1, 1, "250119"), std::invalid_argument);
  EXPECT_THROW(make(2001, 10, "250119"), std::invalid_argument);
  EXPECT_THROW(make(10, 0, "250119"), std::invalid_argument);
  EXPECT_THROW(make(10, 10, "250119"), std::invalid_argument);
  EXPECT_THROW(make(900, 801, "250119"), std::invalid_argument);
  EXPECT_THROW(make(20, 4, "250119"), std::invalid_argument);
  EXPECT_THROW(make(10, 5, "20250119"), std::invalid_argument);
  EXPECT_THROW(make(10, 5, "251319"), std::invalid_argument);
  EXPECT_NO_THROW(make(19, 4, "260118"));
}

TEST(SampleContest, CallsBelongToNobodyAndNoneHoldsAnother) {
  std::set<std::string> bases;
  for (const auto& [call, log] : Middle().logs) {
    EXPECT_LE(call.size(), 12U);
    const std::string base(OwnCallBase(call));
    EXPECT_EQ(base.find('Q'), base.size() - 3) << call;
    EXPECT_TRUE(bases.insert(base).second) << call;
    const std::string& locator = Middle().locators.at(call);
    EXPECT_TRUE(LocatorValid(locator)) << call;
    EXPECT_TRUE(!call.starts_with('I') || locator.starts_with("JN") || locator.starts_with("JM"));
  }
  for (const PlantedFault* fault : Middle().Of(FaultKind::kUnique)) {
    EXPECT_TRUE(bases.insert(fault->logged).second);
  }
  for (const PlantedFault* fault : Middle().Of(FaultKind::kBustedCall)) {
    EXPECT_TRUE(bases.insert(std::string(OwnCallBase(fault->logged))).second);
  }
  for (const std::string& a : bases) {
    EXPECT_EQ(std::ranges::count_if(bases, [&a](const auto& b) { return Holds(b, a); }), 1) << a;
  }
}

// Whether the QSO between two stations has a fault on either side, other than a later duplicate.
std::set<std::pair<std::string, std::string>> FaultyPairs(const Contest& contest) {
  std::set<std::pair<std::string, std::string>> pairs;
  for (const PlantedFault& fault : contest.made.faults) {
    if (fault.kind != FaultKind::kDuplicate) {
      pairs.emplace(fault.log, fault.other);
      pairs.emplace(fault.other, fault.log);
    }
  }
  return pairs;
}

void ExpectMirrored(const Contest& contest, const Log& log, std::size_t row) {
  const QsoRecord& qso = log.Row(row);
  const Log& other = contest.logs.at(std::string(qso.call()));
  std::vector<std::size_t> mirrored = RowsWith(other, log.call);
  std::erase_if(mirrored,
                [&](std::size_t r) { return contest.Has(other.call, r, FaultKind::kDuplicate); });
  ASSERT_EQ(mirrored.size(), 1U) << log.call << " " << row;
  const QsoRecord& across = other.Row(mirrored[0]);
  EXPECT_LE(std::abs(Minutes(qso.time()) - Minutes(across.time())), 10);
  EXPECT_EQ(qso.locator(), contest.locators.at(other.call));
  EXPECT_EQ(qso.field(4), across.field(4));
  for (const std::size_t i : {0U, 1U}) {
    EXPECT_EQ(qso.field(kReport + i + 1), across.field(kReceived + i + 1))
        << log.call << " " << row;
  }
}

TEST(SampleContest, QsosWithoutFaultsAreMirroredInTheOtherLog) {
  const auto faulty = FaultyPairs(Middle());
  std::size_t checked = 0;
  for (const auto& [call, log] : Middle().logs) {
    for (std::size_t row = 1; row <= log.rows.size(); ++row) {
      const std::string other(log.Row(row).call());
      if (Middle().logs.contains(other) && !faulty.contains({call, other}) &&
          Middle().FaultAt(call, row) == nullptr) {
        ExpectMirrored(Middle(), log, row);
        ++checked;
      }
    }
  }
  EXPECT_GT(checked, 1300U);
}

TEST(SampleContest, SilentStationsAreWorkedByTwoAcceptedLogs) {
  std::set<std::string> refused;
  for (const PlantedFault& fault : Middle().made.faults) {
    if (std::ranges::find(kRefusals, fault.kind) != kRefusals.end()) {
      refused.insert(fault.log);
    }
  }
  std::map<std::string, int> workers;
  for (const auto& [call, log] : Middle().logs) {
    for (std::size_t row = 1; row <= log.rows.size(); ++row) {
      const std::string other(log.Row(row).call());
      const bool unheard = !Middle().logs.contains(other) || refused.contains(other);
      if (unheard && Middle().FaultAt(call, row) == nullptr) {
        workers[other] += refused.contains(call) ? 0 : 1;
      }
    }
  }
  EXPECT_EQ(workers.size(), 60U * 15 / 85 + kRefusals.size());
  for (const auto& [call, count] : workers) {
    EXPECT_GE(count, 2) << call;
  }
}

TEST(SampleContest, BestDxIsTheFarthestQsoThatCounts) {
  for (const auto& [call, log] : Middle().logs) {
    int farthest = 0;
    for (std::size_t row = 1; row <= log.rows.size(); ++row) {
      const bool counts = !MarkedInvalid(log.uppers[row - 1]) &&
                          !Middle().Has(call, row, FaultKind::kDuplicate) &&
                          !Middle().Has(call, row, FaultKind::kSelfQso);
      EXPECT_FALSE(counts && MarkedDuplicate(log.edi.qsos[row - 1]));
      if (counts) {
        farthest =
            std::max(farthest, QsoPoints(Middle().locators.at(call), log.Row(row).locator()));
      }
    }
    EXPECT_TRUE(log.Header(37).ends_with(Join(";", farthest))) << call;
  }
}

TEST(SampleContest, QsoRowsFollowTheRules) {
  for (const auto& [call, log] : Middle().logs) {
    EXPECT_LT(log.rows.size(), 900U);
    int last_time = 0;
    int last_number = 0;
    std::set<std::string_view> worked;
    for (std::size_t row = 1; row <= log.rows.size(); ++row) {
      const QsoRecord& qso = log.Row(row);
      const std::string& text = log.uppers[row - 1];
      EXPECT_EQ(qso.date(), "250119");
      const std::ptrdiff_t semicolons =
          Middle().Has(call, row, FaultKind::kShortOfSemicolons) ? 12 : 14;
      EXPECT_EQ(std::ranges::count(text, ';'), semicolons) << text;
      const std::string_view ahead_of_tail = Left(text, text.size() - qso.tail().size());
      EXPECT_EQ(ahead_of_tail.find_first_of(":."), std::string_view::npos) << text;
      EXPECT_EQ(Holds(text, OwnCallBase(call)), Middle().Has(call, row, FaultKind::kSelfQso));
      if (!Middle().Has(call, row, FaultKind::kTimeOff)) {
        EXPECT_GE(Minutes(qso.time()), last_time) << call << " " << row;
        last_time = Minutes(qso.time());
      }
      EXPECT_GT(Val(qso.field(6)), last_number);
      last_number = static_cast<int>(Val(qso.field(6)));
      const bool error = Middle().Has(call, row, FaultKind::kErrorRow);
      EXPECT_TRUE(error || LocatorValid(qso.locator()) ||
                  Middle().Has(call, row, FaultKind::kBadQsoLocator));
      EXPECT_TRUE(error || worked.insert(qso.call()).second ||
                  Middle().Has(call, row, FaultKind::kDuplicate));
    }
  }
}

// What the row, and where it matters the other log, must show for a fault.
void ExpectPresent(const Contest& contest, const PlantedFault& fault) {
  const Log& log = contest.logs.at(fault.log);
  const QsoRecord& qso = log.Row(fault.qso);
  EXPECT_EQ(qso.time(), fault.time);
  switch (fault.kind) {
    case FaultKind::kBustedCall:
      EXPECT_EQ(qso.call(), fault.logged);
      EXPECT_EQ(Differences(fault.sent, fault.logged), 1U);
      break;
    case FaultKind::kBustedLocator:
      EXPECT_EQ(qso.locator(), fault.logged);
      EXPECT_EQ(fault.sent, contest.locators.at(fault.other));
      EXPECT_EQ(Differences(fault.sent, fault.logged), 1U);
      break;
    case FaultKind::kTimeOff: {
      const Log& other = contest.logs.at(fault.other);
      const QsoRecord& across = other.Row(RowsWith(other, fault.log).at(0));
      EXPECT_EQ(across.time(), fault.sent);
      const int off = std::abs(Minutes(fault.time) - Minutes(across.time()));
      EXPECT_TRUE(off >= 11 && off <= 45) << off;
      break;
    }
    case FaultKind::kMissingQso:
      EXPECT_EQ(qso.call(), fault.other);
      EXPECT_TRUE(RowsWith(contest.logs.at(fault.other), fault.log).empty());
      break;
    case FaultKind::kUnique:
      EXPECT_EQ(qso.call(), fault.logged);
      for (const auto& [call, any] : contest.logs) {
        EXPECT_EQ(RowsWith(any, fault.logged).size(), call == fault.log ? 1U : 0U);
      }
      break;
    case FaultKind::kPortableMark:
      EXPECT_EQ(qso.call(), fault.logged);
      EXPECT_NE(fault.sent, fault.logged);
      EXPECT_EQ(OwnCallBase(fault.sent), OwnCallBase(fault.logged));
      break;
    case FaultKind::kSelfQso:
      EXPECT_EQ(qso.call(), fault.log);
      break;
    case FaultKind::kDuplicate:
      EXPECT_EQ(RowsWith(log, fault.other).size(), 2U);
      EXPECT_EQ(RowsWith(contest.logs.at(fault.other), fault.log).size(), 1U);
      EXPECT_EQ(MarkedDuplicate(log.edi.qsos[fault.qso - 1]), fault.note == "marked ;D");
      break;
    case FaultKind::kErrorRow:
      EXPECT_TRUE(qso.call() == "ERROR" && MarkedInvalid(log.edi.qsos[fault.qso - 1]));
      break;
    case FaultKind::kDeletedRow:
      EXPECT_EQ(qso.field(kExchange + 1), "DELETED");
      EXPECT_EQ(RowsWith(contest.logs.at(fault.other), fault.log).size(), 1U);
      break;
    case FaultKind::kBadQsoLocator:
      EXPECT_EQ(qso.locator(), fault.logged);
      EXPECT_FALSE(LocatorValid(fault.logged));
      break;
    default:
      EXPECT_EQ(fault.kind, FaultKind::kShortOfSemicolons);
  }
}

TEST(SampleContest, EveryListedFaultIsInTheBytes) {
  EXPECT_GT(Middle().made.faults.size(), 40U);
  for (const PlantedFault& fault : Middle().made.faults) {
    SCOPED_TRACE(Join(FaultName(fault.kind), " ", fault.log, " ", fault.qso));
    if (fault.qso > 0) {
      ExpectPresent(Middle(), fault);
    } else if (fault.kind == FaultKind::kSupRow) {
      EXPECT_EQ(Middle().logs.at(fault.log).edi.lines[2], "-SUP");
    } else {
      EXPECT_EQ(Middle().logs.at(fault.log).Header(5), Join("PWWLo=", fault.logged));
      EXPECT_EQ(LocatorValid(fault.logged), fault.kind == FaultKind::kForeignLocator);
    }
  }
}

TEST(SampleContest, EveryKindIsPlantedFrom20LogsOn) {
  for (std::uint64_t seed = 0; seed < 40; ++seed) {
    const Contest contest({.seed = seed, .stations = 20, .qsos = 5});
    EXPECT_EQ(contest.by_row.size(), contest.made.faults.size()) << "two faults on one row";
    for (const PlantedFault* fault : contest.Of(FaultKind::kTimeOff)) {
      ExpectPresent(contest, *fault);
    }
    for (const FaultKind kind : kCommonFaults) {
      EXPECT_GE(contest.Of(kind).size(), 2U) << seed << " " << FaultName(kind);
    }
    std::set<std::string> notes;
    for (const FaultKind kind : {FaultKind::kDuplicate, FaultKind::kPortableMark}) {
      for (const PlantedFault* fault : contest.Of(kind)) {
        notes.insert(fault->note);
      }
    }
    EXPECT_EQ(notes.size(), 4U) << "each of both kinds in two ways, seed " << seed;
    for (const FaultKind kind : kRefusals) {
      const auto refused = contest.Of(kind);
      ASSERT_EQ(refused.size(), 1U) << seed << " " << FaultName(kind);
      EXPECT_EQ(std::ranges::count(contest.made.faults, refused[0]->log, &PlantedFault::log), 1);
    }
  }
}

TEST(SampleContest, NoQsoHasTwoFaults) {
  std::set<std::pair<std::string, std::string>> pairs;
  for (const PlantedFault& fault : Middle().made.faults) {
    if (!fault.other.empty()) {
      const auto pair = std::minmax(fault.log, fault.other);
      EXPECT_TRUE(pairs.insert(pair).second) << fault.log << " " << fault.other;
    }
  }
}

TEST(SampleContest, WritersHaveTheirHabits) {
  std::map<std::string, int> habits;
  std::set<std::string> names;
  for (const auto& [call, log] : Middle().logs) {
    const std::string& text = log.file.content;
    EXPECT_TRUE(names.insert(Upper(log.file.file_name)).second);
    EXPECT_TRUE(Holds(Upper(log.file.file_name), Replaced(call, '/', '_')));
    habits["LF"] += Holds(text, kLineEnd) ? 0 : 1;
    habits["UTF-8"] += Holds(text, "\xC3") ? 1 : 0;
    habits["odd key"] += Holds(text, "\nRPHON=") ? 1 : 0;
    habits["no end row"] += Holds(text, edi::kEnd) ? 0 : 1;
    habits["blank at the end"] += text.ends_with("\n\n") || text.ends_with("\n\r\n") ? 1 : 0;
    habits["no points"] += log.Row(1).points().empty() ? 1 : 0;
    habits["small letters"] += log.edi.qsos[0] == log.uppers[0] ? 0 : 1;
    habits["stray mark"] += Holds(text, ";:;") || Holds(text, ";.;") ? 1 : 0;
    habits["portable"] += call.ends_with("/P") ? 1 : 0;
  }
  for (const auto& [habit, count] : habits) {
    EXPECT_TRUE(count >= 2 && count <= 40) << habit << " " << count;
  }
}

TEST(SampleContest, AverageLogHasTheTargetSize) {
  for (const auto& [stations, qsos] : {std::pair(2, 1), std::pair(3, 2), std::pair(19, 18),
                                       std::pair(60, 30), std::pair(250, 80)}) {
    const SampleContest contest = MakeSampleContest({3, stations, qsos});
    EXPECT_EQ(contest.logs.size(), static_cast<std::size_t>(stations));
    std::size_t rows = 0;
    for (const ReceivedLog& received : contest.logs) {
      const std::size_t own = ParseEdiLog(received.content).qsos.size();
      EXPECT_GE(own, 1U);
      rows += own;
    }
    const double mean = static_cast<double>(rows) / stations;
    EXPECT_NEAR(mean, qsos, 1 + qsos * 0.15) << stations;
  }
}

TEST(SampleContest, LargeContestsAreMadeFast) {
  const auto start = std::chrono::steady_clock::now();
  const SampleContest contest = MakeSampleContest({5, 2000, 100});
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  EXPECT_NEAR(static_cast<double>(contest.faults.size()), 5500, 500);
}

TEST(SampleContest, LogsStayBelow900RowsAtTheUpperEnd) {
  const SampleContest contest = MakeSampleContest({5, 1000, 800});
  for (const ReceivedLog& received : contest.logs) {
    EXPECT_LT(ParseEdiLog(received.content).qsos.size(), 900U) << received.file_name;
  }
}

TEST(FaultList, HasOneLineAFaultUnderTheHeading) {
  const std::string list = FaultList(
      {{FaultKind::kBustedCall, "IK2QAA", 7, "0812", "IZ9QBC", "IZ9QBC", "IZ9QBD", "a note"},
       {FaultKind::kSupRow, "IV3QXX/P", 0, "", "", "", "-SUP", ""}});
  const auto lines = SplitLines(list);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_TRUE(list.ends_with(kLineEnd));
  EXPECT_EQ(lines[1],
            "busted_call         IK2QAA       7    0812  IZ9QBC       IZ9QBC       IZ9QBD       "
            "a note");
  EXPECT_EQ(lines[2], "sup_row             IV3QXX/P     -                                    -SUP");
  EXPECT_EQ(lines[0].find("NOTE"), lines[1].find("a note"));
}

}  // namespace
}  // namespace velmar
