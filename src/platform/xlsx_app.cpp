#include "platform/xlsx_app.h"

#include <locale.h>
#include <xlsxwriter.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <system_error>

#include "platform/error.h"
#include "platform/xlsx_formats.h"
#include "platform/xlsx_sheet.h"

namespace velmar {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Refuse(const std::string& about) {
  throw RunTimeError(ErrorNumber::kWorkbookRefused, about);
}

/// A folder for this run alone, which goes with all that lies in it.
class PrivateFolder {
 public:
  PrivateFolder() {
    std::error_code error;
    path_ = (fs::temp_directory_path(error) / "velmar-XXXXXX").string();
    if (error || mkdtemp(path_.data()) == nullptr) {
      Refuse("no temporary folder");
    }
  }
  ~PrivateFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

/// Numbers with a point while it lives: the library writes them in the manner of the user's
/// language, and a file with commas in them is damaged.
class PlainNumbers {
 public:
  PlainNumbers() : plain_(newlocale(LC_ALL_MASK, "C", nullptr)), former_(uselocale(plain_)) {}
  ~PlainNumbers() {
    uselocale(former_);
    freelocale(plain_);
  }
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;

 private:
  locale_t plain_;
  locale_t former_;
};

/// Raises error 1004 where the folder's disk has no room for the parts of the file: the library
/// does not look whether all of a part was written.
void MindRoom(const Workbook& book, const std::string& folder) {
  constexpr std::uintmax_t kFrame = 1 << 20;
  constexpr std::uintmax_t kCell = 256;
  std::uintmax_t bytes = kFrame;
  for (const Worksheet& sheet : book.sheets()) {
    for (const auto& [place, cell] : sheet.cells()) {
      const auto* text = std::get_if<std::string>(&cell.value);
      bytes += kCell * (1 + cell.pieces.size()) + (text == nullptr ? 0 : 2 * text->size());
    }
    for (const SheetPicture& picture : sheet.pictures) {
      bytes += 2 * picture.png.size();
    }
  }
  std::error_code error;
  const fs::space_info room = fs::space(folder, error);
  if (error || room.available < bytes) {
    Refuse("the disk of the temporary folder is full");
  }
}

using File = std::unique_ptr<lxw_workbook, decltype(&lxw_workbook_free)>;

File NewFile(std::string folder, const std::string& path) {
  lxw_workbook_options options{};
  options.tmpdir = folder.data();
  File file(workbook_new_opt(path.c_str(), &options), &lxw_workbook_free);
  if (!file) {
    Refuse("no memory");
  }
  lxw_doc_properties properties{};
  properties.created = 946'684'800;  // not the present moment, which would change the bytes
  MindWriter(workbook_set_properties(file.get(), &properties));
  return file;
}

void WriteSheets(lxw_workbook* file, const Workbook& book) {
  XlsxFormats formats(file);
  std::size_t number = 0;
  for (const Worksheet& sheet : book.sheets()) {
    lxw_worksheet* to = workbook_add_worksheet(file, FileText(sheet.name()).c_str());
    if (to == nullptr) {
      Refuse(sheet.name());
    }
    WriteXlsxSheet(file, to, sheet, formats);
    if (++number == book.selected()) {
      worksheet_activate(to);
      worksheet_set_first_sheet(to);
    }
  }
}

std::string XlsxBytes(const Workbook& book) {
  const PlainNumbers numbers;
  const PrivateFolder folder;
  MindRoom(book, folder.path());
  const std::string path = folder.path() + "/book.xlsx";
  File file = NewFile(folder.path(), path);
  WriteSheets(file.get(), book);
  MindWriter(workbook_close(file.release()));
  std::ifstream written(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(written), {}};
  if (!written || bytes.empty()) {
    Refuse("the temporary file cannot be read");
  }
  return bytes;
}

}  // namespace

void XlsxApp::SaveAs(const Workbook& book, const std::string& path) {
  const std::string bytes = XlsxBytes(book);
  try {
    files_.WriteAll(path, bytes);
  } catch (const RunTimeError& error) {
    const bool denied = error.number() == ErrorNumber::kPermissionDenied ||
                        (error.number() == ErrorNumber::kPathFileAccess &&
                         !files_.FolderExists(path));  // a folder in the way denies nothing
    throw RunTimeError(denied ? ErrorNumber::kPermissionDenied : ErrorNumber::kWorkbookRefused,
                       error.what());
  }
}

}  // namespace velmar
