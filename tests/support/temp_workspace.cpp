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
  files_.WriteAll(paths_.base() + "/" + path, bytes);
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

}  // namespace velmar::test
