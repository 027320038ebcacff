#include "model/contest_store.h"

#include <array>

#include "model/classification_row.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

/// How the rows of an owner are told in a file: by the call in some columns, and in some files by
/// the category as well.
struct OwnerKey {
  StoreFile file;
  Column owner;
  std::optional<Column> category = std::nullopt;
  bool at_end = false;  ///< the owner is what the row ends with

  bool Matches(std::string_view row, std::string_view call, std::string_view code) const {
    const std::string_view found = at_end ? Right(row, owner.width) : Cut(row, owner);
    return RTrim(found) == call && (!category || Cut(row, *category) == code);
  }
};

/// The files in the order in which they are rewritten, behind the classification.
const std::array kOwnerKeys = {
    OwnerKey{StoreFile::kPartecipanti, partecipante_row::kCall, partecipante_row::kCategory},
    OwnerKey{StoreFile::kLibreria, libreria_row::kOwner},
    OwnerKey{StoreFile::kSommaQso, somma_qso_row::kOwner, std::nullopt, true},
    OwnerKey{StoreFile::kSommaSlx, somma_slx_row::kOwner},
    OwnerKey{StoreFile::kLibreriaTotale, libreria_totale_row::kOwner,
             libreria_totale_row::kCategory},
    OwnerKey{StoreFile::kTempi, tempi_row::kCall, tempi_row::kCategory},
    OwnerKey{StoreFile::kModi, modo_row::kCall}};

/// Behind the rewriting of this file the error list is removed.
constexpr StoreFile kBeforeErrorList = StoreFile::kSommaSlx;

}  // namespace

void ContestStore::LibraryIndex::Add(std::string_view rows) {
  LineReader reader(rows);
  for (std::string_view line; reader.Next(line);) {
    ++lines;
    owners.emplace(Cut(line, libreria_row::kOwner));
  }
}

ContestStore::LibraryIndex& ContestStore::Library(std::string_view category) {
  auto found = libraries_.find(category);
  if (found == libraries_.end()) {
    found = libraries_.emplace(category, LibraryIndex()).first;
  }
  LibraryIndex& index = found->second;
  const std::string path = workspace_.store_file(StoreFile::kLibreria, category);
  const auto stamp = files_.StampOf(path);
  if (stamp != index.stamp) {
    const std::string text = ReadIfThere(files_, path).value_or("");
    index = {};
    index.Add(text);
    index.ends_its_last_line = text.empty() || text.ends_with('\n');
    index.stamp = stamp;
  }
  return index;
}

void ContestStore::Append(StoreFile file, std::string_view category, std::string_view rows) {
  const std::string path = workspace_.store_file(file, category);
  if (file != StoreFile::kLibreria) {
    files_.Append(path, rows);
    return;
  }
  LibraryIndex& index = Library(category);
  files_.Append(path, rows);
  if (index.ends_its_last_line) {
    index.Add(rows);
    index.stamp = files_.StampOf(path);
  }  // else the first of the rows has become one with the last one there: to be read again
}

void ContestStore::AppendToClassification(std::string_view row, std::string_view category,
                                          std::string_view month) {
  const std::string path = workspace_.classification(month, category);
  const std::string header =
      files_.StampOf(path) ? "" : Join(classification_row::kHeader, kLineEnd);
  files_.Append(path, Join(header, row, kLineEnd));
}

void ContestStore::AppendToErrorList(std::string_view call, std::string_view category,
                                     std::string_view month, std::string_view lines) {
  files_.Append(workspace_.error_list(category, call, month), lines);
}

std::optional<std::vector<std::string>> ContestStore::Lines(StoreFile file,
                                                            std::string_view category) {
  const auto text = ReadIfThere(files_, workspace_.store_file(file, category));
  if (!text) {
    return std::nullopt;
  }
  return CopyLines(*text);
}

bool ContestStore::ContainsOwner(std::string_view call, std::string_view category) {
  const LibraryIndex& index = Library(category);
  if (index.lines > kMostLibraryLines) {
    throw RunTimeError(ErrorNumber::kSubscript, "the library is too long to be searched");
  }
  return index.owners.contains(Call12(call));
}

std::size_t ContestStore::LibraryLines(std::string_view category) {
  return Library(category).lines;
}

Removal ContestStore::RemoveOwner(std::string_view call, std::string_view category,
                                  std::string_view month) {
  MoveBack(LogName(category, FiledName(call)), category);
  Removal removal;
  if (category == kCategory) {
    RemoveRows(RTrim(call), category, month, removal);
    removal.rewritten = true;
  }
  return removal;
}

void ContestStore::MoveBack(const std::string& name, std::string_view category) {
  // A log may have been filed under a name in small letters.
  const std::string folder = workspace_.category(category);
  const auto found = files_.List(folder, name);
  const std::string waiting = workspace_.to_insert();
  if (found.empty() && !files_.List(waiting, name).empty()) {
    return;
  }
  const std::string filed = folder + "/" + (found.empty() ? name : found.front());
  files_.Copy(filed, waiting + "/" + FreeName(files_, filed, waiting, name));
  files_.Remove(filed);
}

void ContestStore::RemoveRows(std::string_view call, std::string_view category,
                              std::string_view month, Removal& removal) {
  removal.classification_missing =
      !RewriteWithout(workspace_.classification(month, category),
                      [&](std::string_view row) { return ClassificaRow(row).Call() == call; });
  for (const OwnerKey& key : kOwnerKeys) {
    if (!RewriteWithout(workspace_.store_file(key.file, category),
                        [&](std::string_view row) { return key.Matches(row, call, category); })) {
      removal.missing.push_back(key.file);
    }
    if (key.file == kBeforeErrorList) {
      RemoveIfThere(files_, workspace_.error_list(category, call, month));
    }
  }
}

bool ContestStore::RewriteWithout(const std::string& path,
                                  const std::function<bool(std::string_view line)>& leave_out) {
  const auto text = ReadIfThere(files_, path);
  if (!text) {
    return false;
  }
  std::string kept;
  kept.reserve(text->size());
  std::size_t lines = 0;
  LineReader reader(*text);
  for (std::string_view line; reader.Next(line);) {
    if (++lines > kMostRewrittenLines) {
      throw RunTimeError(ErrorNumber::kSubscript, path);
    }
    if (!leave_out(line)) {
      AddLine(kept, line);
    }
  }
  files_.WriteAll(path, kept);
  return true;
}

std::string FiledName(std::string_view call) {
  std::string name = NameOfCall(call);
  constexpr std::size_t kLongestPrefix = 4;      // with its "_"
  const std::size_t first = name.find('_') + 1;  // counted from 1; 0 for none
  const std::size_t last = name.rfind('_') + 1;
  if (first == 0) {
    return name;
  }
  if (first != last) {
    return std::string(Mid(name, first + 1, last - first - 1));
  }
  return std::string(first <= kLongestPrefix ? Mid(name, first + 1) : Left(name, first - 1));
}

}  // namespace velmar
