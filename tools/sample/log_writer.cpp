#include "sample/log_writer.h"

#include <algorithm>
#include <array>
#include <set>

#include "model/edi_log.h"
#include "model/locator.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar::sample {

namespace {

constexpr std::size_t kSupRowIndex = 2;  // it stands as the third row

std::string Number3(int number) {
  const std::string digits = std::to_string(number);
  return digits.size() < 3 ? std::string(3 - digits.size(), '0') + digits : digits;
}

// Points of a contest that counts rings of 100 km.
int OtherContestPoints(int kilometres) {
  return 2 + kilometres / 100;
}

class LogWriter {
 public:
  explicit LogWriter(const LogPlan& plan) : plan_(plan), stray_row_(StrayRow()) {
    for (const LogRow& row : plan.rows) {
      AddUp(row);
    }
  }

  std::string Write() {
    AddHeader();
    AddRemarks();
    lines_.push_back(Join("[", edi::kQsoRecords, ";", plan_.rows.size(), "]"));
    for (std::size_t i = 0; i < plan_.rows.size(); ++i) {
      AddQso(i);
    }
    AddEnd();
    std::string text;
    for (const std::string& line : lines_) {
      text += Join(line, plan_.style.line_end);
    }
    return plan_.style.utf8 ? text : AnsiFromUtf8(text);
  }

 private:
  // The row of the stray mark: the one nearest to the middle without a fault.
  std::size_t StrayRow() const {
    const auto middle = plan_.rows.begin() + static_cast<std::ptrdiff_t>(plan_.rows.size() / 2);
    const auto row =
        std::find_if(middle, plan_.rows.end(), [](const LogRow& r) { return !r.contact->fault; });
    return static_cast<std::size_t>(row - plan_.rows.begin());
  }

  int Kilometres(const LogRow& row) const {
    return row.entry().locator.empty() ? 0 : QsoPoints(plan_.station->locator, row.entry().locator);
  }

  int PointsOf(const LogRow& row) const {
    const int kilometres = Kilometres(row);
    return plan_.style.points == PointsRule::kOtherContest ? OtherContestPoints(kilometres)
                                                           : kilometres;
  }

  void AddUp(const LogRow& row) {
    valid_ += row.entry().claim == Claim::kNothing ? 0 : 1;
    if (row.entry().claim == Claim::kScored) {
      total_ += PointsOf(row);
      if (best_ == nullptr || Kilometres(row) > Kilometres(*best_)) {
        best_ = &row;
      }
    }
  }

  // A key as the style spells it, with its "=".
  std::string Key(std::string_view key) const {
    static constexpr std::array<std::array<std::string_view, 2>, 7> kOdd = {{{"RAdr1", "Radr1"},
                                                                             {"RAdr2", "radr2"},
                                                                             {"RPoCo", "Rpoco"},
                                                                             {"RPhon", "RPHON"},
                                                                             {"RHBBS", "rhbbs"},
                                                                             {"MOpe1", "Mope1"},
                                                                             {"MOpe2", "Mope2"}}};
    for (const auto& [usual, odd] : kOdd) {
      if (plan_.style.odd_keys && key == usual) {
        return Join(odd, "=");
      }
    }
    return Join(key, "=");
  }

  template <typename... Parts>
  void Add(std::string_view key, const Parts&... parts) {
    lines_.push_back(Join(Key(key), parts...));
  }

  void AddHeader() {
    lines_.emplace_back(edi::kFirstRow);
    AddStationRows();
    AddPersonRows();
    AddClaimRows();
    if (plan_.station->refusal == FaultKind::kSupRow) {
      lines_.insert(lines_.begin() + kSupRowIndex, "-SUP");
    }
  }

  void AddStationRows() {
    static constexpr std::array<std::string_view, 4> kBands = {"144 MHz", "144 MHz", "145 MHz",
                                                               "144"};
    Add("TName", "Contest Velmar 144");
    Add("TDate", "20", plan_.date, ";20", plan_.date);
    Add("PCall", plan_.station->call);
    Add("PWWLo", HeaderLocator(*plan_.station));
    Add("PExch");
    Add("PAdr1", plan_.person.city);
    Add("PAdr2", plan_.person.province);
    Add("PSect", "2IT");
    Add("PBand", kBands[plan_.rank % kBands.size()]);
    Add("PClub");
  }

  void AddPersonRows() {
    const Operator& person = plan_.person;
    const std::string_view base = OwnCallBase(plan_.station->call);
    Add("RName", person.name);
    Add("RCall", base);
    Add("RAdr1", "Via delle Antenne ", 1 + plan_.rank % 90);
    Add("RAdr2");
    Add("RPoCo", person.post_code);
    Add("RCity", person.city);
    Add("RCoun", plan_.station->italian() ? "Italia" : "");
    Add("RPhon");
    Add("RHBBS", Lower(base), "@example.org");
    Add("MOpe1");
    Add("MOpe2");
    Add("STXEq", "Transverter 28/144");
    Add("SPowe", person.watts);
    Add("SRXEq", "Transverter 28/144");
    Add("SAnte", "9 elementi Yagi");
    Add("SAntH", person.antenna_height, ";", person.site_height);
  }

  void AddClaimRows() {
    Add("CQSOs", valid_, ";1");
    Add("CQSOP", total_);
    Add("CWWLs", "0;0;1");
    Add("CWWLB", "0");
    Add("CExcs", "0;0;1");
    Add("CExcB", "0");
    Add("CDXCs", "0;0;1");
    Add("CDXCB", "0");
    Add("CToSc", total_);
    if (best_ == nullptr) {
      Add("CODXC", ";;");
    } else {
      Add("CODXC", best_->entry().call, ";", best_->entry().locator, ";", Kilometres(*best_));
    }
  }

  void AddRemarks() {
    static constexpr std::array<std::string_view, 5> kRemarks = {
        "Propagazione scarsa all'inizio, meglio dopo le 10 e 30",
        "Vento forte, antenna bloccata a nord", "Grazie a tutti e alla prossima",
        "Prima volta in questo contest: bello!", "Operato dal terrazzo di casa"};
    lines_.emplace_back("[Remarks]");
    for (std::size_t i = 0; i < plan_.style.remarks; ++i) {
      lines_.emplace_back(kRemarks[(plan_.rank + i) % kRemarks.size()]);
    }
  }

  std::string Styled(const std::string& text) const {
    return plan_.style.small_letters ? Lower(text) : text;
  }

  // The word "ERROR" and the own call stand as they are: small letters would hide a QSO with
  // oneself from the recalculation, and the log could not be inserted.
  std::string StyledCall(const LogRow& row) const {
    const std::string& call = row.entry().call;
    const bool as_it_is = row.contact->mode == 0 || call == plan_.station->call;
    return as_it_is ? call : Styled(call);
  }

  std::string Points(const LogRow& row) const {
    if (plan_.style.points == PointsRule::kNone) {
      return "";
    }
    const bool marked = row.entry().form == RowForm::kMarkedDuplicate;
    return std::to_string(marked || row.contact->mode == 0 ? 0 : PointsOf(row));
  }

  // Mode, reports and numbers of both sides; of an error row the own number alone is left.
  static std::string Exchange(const LogRow& row) {
    const Contact& contact = *row.contact;
    const std::string sent = Number3(contact.numbers[row.side]);
    if (contact.mode == 0) {
      return Join("0;;", sent, ";;");
    }
    return Join(contact.mode, ";", contact.reports[row.side], ";", sent, ";",
                contact.reports[1 - row.side], ";", Number3(contact.numbers[1 - row.side]));
  }

  void AddQso(std::size_t index) {
    const LogRow& row = plan_.rows[index];
    const Entry& entry = row.entry();
    std::string line =
        Join(plan_.date, ";", Hhmm(entry.minute), ";", StyledCall(row), ";", Exchange(row), ";",
             entry.exchange, ";", Styled(entry.locator), ";", Points(row), ";");
    if (index == stray_row_ && plan_.style.stray_mark != '\0') {
      line += plan_.style.stray_mark;
    }
    const bool new_square =
        entry.claim == Claim::kScored && squares_.insert(entry.locator.substr(0, 4)).second;
    line += Join(";", new_square ? "N" : "", ";;");
    if (entry.form == RowForm::kMarkedDuplicate) {
      line += "D";
    } else if (entry.form == RowForm::kShortOfSemicolons) {
      line.resize(line.size() - 2);
    }
    lines_.push_back(line);
  }

  void AddEnd() {
    if (plan_.style.end_row) {
      lines_.push_back(Join(edi::kEnd, ";", plan_.style.writer, "]"));
    }
    if (plan_.style.trailing_blank) {
      lines_.emplace_back();
    }
  }

  const LogPlan& plan_;
  std::size_t stray_row_;
  std::vector<std::string> lines_;
  std::set<std::string> squares_;  // those of the rows so far
  int valid_ = 0;
  int total_ = 0;
  const LogRow* best_ = nullptr;  // the valid row of the greatest distance
};

}  // namespace

std::string HeaderLocator(const Station& station) {
  std::string locator = station.locator;
  if (station.refusal == FaultKind::kBadOwnLocator) {
    locator[4] = 'Y';
  } else if (station.refusal == FaultKind::kForeignLocator) {
    locator.replace(0, 4, "JO20");
  }
  return locator;
}

std::string WriteLog(const LogPlan& plan) {
  return LogWriter(plan).Write();
}

}  // namespace velmar::sample
