#include "support/temp_workspace.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "model/lines.h"
#include "model/text.h"
#include "session/settings.h"

namespace velmar::test {

namespace fs = std::filesystem;

namespace {

std::string NewFolder() {
  std::string name = (fs::temp_directory_path() / "velmar test XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) {
    throw std::runtime_error("no temporary folder");
  }
  return name;
}

}  // namespace

TempWorkspace::TempWorkspace() : paths_(NewFolder()) {}

TempWorkspace::~TempWorkspace() {
  fs::remove_all(paths_.base());
}

TempWorkspace& TempWorkspace::WithTree() {
  for (const std::string& folder :
       {paths_.category(), paths_.wrong_logs(), paths_.repeated_logs(), paths_.to_check_again(),
        paths_.to_recalculate(), paths_.recalculated(), paths_.to_insert()}) {
    fs::create_directories(folder);
  }
  return *this;
}

TempWorkspace& TempWorkspace::WithMonth(std::string_view month) {
  files_.WriteAll(paths_.month_to_check(), Join(month, kLineEnd));
  files_.WriteAll(paths_.category_month(), Join(month, kLineEnd));
  return *this;
}

TempWorkspace& TempWorkspace::WithSettings() {
  files_.WriteAll(paths_.settings(), Settings::New().Text());
  return *this;
}

TempWorkspace& TempWorkspace::WithLog(const std::string& name, std::string_view text) {
  files_.WriteAll(paths_.to_recalculate() + "/" + name, text);
  return *this;
}

TempWorkspace& TempWorkspace::With(const std::string& path, std::string_view bytes) {
  const std::string whole = paths_.base() + "/" + path;
  fs::create_directories(fs::path(whole).parent_path());
  files_.WriteAll(whole, bytes);
  return *this;
}

std::string TempWorkspace::Read(const std::string& path) {
  return ReadIfThere(files_, paths_.base() + "/" + path).value_or("<missing>");
}

std::vector<std::string> TempWorkspace::Names(const std::string& folder) {
  return files_.List(paths_.base() + "/" + folder, "*.*");
}

std::map<std::string, std::string> TempWorkspace::Everything() const {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(paths_.base())) {
    if (entry.is_regular_file()) {
      std::ifstream file(entry.path(), std::ios::binary);
      files[fs::relative(entry.path(), paths_.base()).string()] =
          std::string(std::istreambuf_iterator<char>(file), {});
    }
  }
  return files;
}

std::string LogText(std::string_view call, std::string_view locator,
                    const std::vector<std::string>& qsos) {
  std::vector<std::string> rows = {"[REG1TEST;1]",
                                   "TName=Contest Velmar",
                                   "TDate=20250119;20250119",
                                   Join("PCall=", call),
                                   Join("PWWLo=", locator),
                                   "PExch=",
                                   "PAdr1=",
                                   "PAdr2=",
                                   "PSect=2IT",
                                   "PBand=144 MHz",
                                   "PClub=",
                                   "[Remarks]",
                                   Join("[QSORecords;", qsos.size(), "]")};
  rows.insert(rows.end(), qsos.begin(), qsos.end());
  rows.emplace_back("[END;a writer]");
  std::string text;
  for (const std::string& row : rows) {
    text += Join(row, kLineEnd);
  }
  return text;
}

std::string QsoRow(std::string_view call, std::string_view locator, std::string_view points) {
  return Join("250119;0812;", call, ";1;59;001;59;012;;", locator, ";", points, ";;N;;");
}

InsertableLog::InsertableLog()
    : header_{"[REG1TEST;1]",
              "TName=Contest Velmar",
              "TDate=20250119;20250119",
              "PCall=IK2QAA",
              "PWWLo=JN45AA",
              "PExch=",
              "PAdr1=Via Uno",
              "PAdr2=Como",
              "PSect=2IT",
              "PBand=144 MHz",
              "PClub=",
              "RName=Ugo",
              "RCall=IK2QAA",
              "RAdr1=Via Due",
              "RAdr2=",
              "RPoCo=22100",
              "RCity=Como",
              "RCoun=Italia",
              "RPhon=",
              "RHBBS=",
              "MOpe1=IK2QAB",
              "MOpe2=IK2QAC",
              "STXEq=IC 9700",
              "SPowe=100",
              "SRXEq=IC 9700",
              "SAnte=9 el yagi",
              "SAntH=10;250",
              "",
              "CQSOP=1633",
              "CWWLs=0;0;1",
              "CWWLB=0",
              "CExcs=0;0;1",
              "CExcB=0",
              "CDXCs=0;0;1",
              "CDXCB=0",
              "CToSc=1633",
              "CODXC=IZ9QBC;JM67AA;950"} {
  Qsos({"250119;1000;IZ9QBC;1;59;001;59;012;;JM67AA;950;;N;;",
        "250119;1030;DL1AA;2;599;002;599;003;;JO30AA;576;;N;;",
        "250119;1101;I1ABC;1;59;003;59;004;;JN44BB;107;;;;"});
}

InsertableLog& InsertableLog::Of(std::string_view call, std::string_view locator) {
  return Row(4, Join("PCall=", call)).Row(5, Join("PWWLo=", locator));
}

InsertableLog& InsertableLog::Row(std::size_t number, std::string_view text) {
  header_.at(number - 1) = text;
  return *this;
}

InsertableLog& InsertableLog::Qsos(std::vector<std::string> rows) {
  qsos_ = std::move(rows);
  start_ = Join("[QSORecords;", qsos_.size(), "]");
  return Row(28, Join("CQSOs=", qsos_.size(), ";1"));
}

InsertableLog& InsertableLog::Start(std::string_view row) {
  start_ = row;
  return *this;
}

InsertableLog& InsertableLog::End(std::string_view row) {
  end_ = row;
  return *this;
}

std::string InsertableLog::Text() const {
  std::string text;
  const auto add = [&text](std::string_view row) { text += Join(row, kLineEnd); };
  for (const std::string& row : header_) {
    add(row);
  }
  add("[Remarks]");
  if (!start_.empty()) {
    add(start_);
  }
  for (const std::string& qso : qsos_) {
    add(qso);
  }
  if (!end_.empty()) {
    add(end_);
  }
  return text;
}

std::string ContestQso(std::string_view call, std::string_view locator, std::string_view time,
                       std::string_view mode) {
  return Join("250119;", time, ";", call, ";", mode, ";59;001;59;012;;", locator, ";99;;N;;");
}

}  // namespace velmar::test
