#include "book/book_maker.h"

#include <algorithm>

#include "model/call_book.h"
#include "model/lines.h"
#include "model/locator.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::size_t kDateWidth = 6;

std::string ReadWhole(FileSystem& files, const std::string& path) {
  try {
    return files.ReadAll(path);
  } catch (const RunTimeError& error) {
    const bool missing = error.number() == ErrorNumber::kFileNotFound ||
                         error.number() == ErrorNumber::kPathNotFound;
    throw BookError(Join(missing ? "no such file: " : "cannot read: ", DiskNameFromAnsi(path)));
  }
}

bool IsDate(std::string_view text) {
  return text.size() == kDateWidth &&
         std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

FiledContest ReadFiledContest(FileSystem& files, const Workspace& workspace) {
  const std::string date_path = workspace.contest_date(kCategory);
  FiledContest contest{std::string(Right(LastLine(ReadWhole(files, date_path)), kDateWidth)),
                       ReadWhole(files, workspace.store_file(StoreFile::kPartecipanti)),
                       ReadWhole(files, workspace.store_file(StoreFile::kLibreria))};
  if (!IsDate(contest.date)) {
    throw BookError(Join("no date of the form YYMMDD: ", DiskNameFromAnsi(date_path)));
  }
  return contest;
}

void BookMaker::Add(const FiledContest& contest) {
  LineReader participants(contest.participants);
  for (std::string_view row; participants.Next(row);) {
    Knowledge* const known =
        Find(Cut(row, partecipante_row::kCall), Cut(row, partecipante_row::kLocator), contest.date);
    if (known != nullptr) {
      known->declared = true;
    }
  }
  LineReader library(contest.library);
  for (std::string_view row; library.Next(row);) {
    Knowledge* const known =
        Find(Cut(row, libreria_row::kCall), Cut(row, libreria_row::kLocator), contest.date);
    if (known != nullptr) {
      known->logs.emplace(contest.date, Cut(row, libreria_row::kOwner));
    }
  }
}

BookMaker::Knowledge* BookMaker::Find(std::string_view call, std::string_view locator,
                                      const std::string& date) {
  if (RTrim(call).empty() || !LocatorValid(locator)) {
    return nullptr;
  }
  Knowledge& known = known_[{Call12(call), std::string(locator)}];
  known.last_date = std::max(known.last_date, date);
  return &known;
}

std::vector<std::string> BookMaker::Records() const {
  std::vector<std::string> records;
  for (const auto& [pair, known] : known_) {
    if (known.declared || known.logs.size() >= kLogsThatAgree) {
      records.push_back(
          BookRecord({.call = pair.first,
                      .locator = pair.second,
                      .mark = known.declared ? BookMark::kDeclared : BookMark::kDeduced,
                      .last_date = known.last_date,
                      .logs = static_cast<int>(known.logs.size())}));
    }
  }
  if (records.empty()) {
    throw BookError("no locator was declared, and 10 logs agree on none: the archive is empty");
  }
  if (records.size() > kMostBookRecords) {
    throw BookError(Join("the archive would have ", records.size(), " records; it holds ",
                         kMostBookRecords, " at most"));
  }
  return records;
}

}  // namespace velmar
