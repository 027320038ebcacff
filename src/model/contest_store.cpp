#include "model/contest_store.h"

#include <array>

#include "model/classification_row.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

/// Whether a field, without the blanks behind it, is `text`.
bool Is(std::string_view row, Column column, std::string_view text) {
  return RTrim(Cut(row, column)) == text;
}

/// How the rows of an owner are told in one of the files.
struct OwnerKey {
  StoreFile file;
  bool (*matches)(std::string_view row, std::string_view call, std::string_view category);
};

/// The files behind the participants, in the order in which they are rewritten.
constexpr std::array kBeforeErrorList = {
    OwnerKey{StoreFile::kPartecipanti,
             [](std::string_view row, std::string_view call, std::string_view category) {
               return Is(row, partecipante_row::kCall, call) &&
                      Cut(row, partecipante_row::kCategory) == category;
             }},
    OwnerKey{StoreFile::kLibreria,
             [](std::string_view row, std::string_view call, std::string_view /*category*/) {
               return Is(row, libreria_row::kOwner, call);
             }},
    OwnerKey{StoreFile::kSommaQso,
             [](std::string_view row, std::string_view call, std::string_view /*category*/) {
               return RTrim(Right(row, somma_qso_row::kOwner.width)) == call;
             }},
    OwnerKey{StoreFile::kSommaSlx,
             [](std::string_view row, std::string_view call, std::string_view /*category*/) {
               return Is(row, somma_slx_row::kOwner, call);
             }}};
constexpr std::array kBehindErrorList = {
    OwnerKey{StoreFile::kLibreriaTotale,
             [](std::string_view row, std::string_view call, std::string_view category) {
               return Is(row, libreria_totale_row::kOwner, call) &&
                      Cut(row, libreria_totale_row::kCategory) == category;
             }},
    OwnerKey{StoreFile::kTempi,
             [](std::string_view row, std::string_view call, std::string_view category) {
               return Is(row, tempi_row::kCall, call) && Cut(row, tempi_row::kCategory) == category;
             }},
    OwnerKey{StoreFile::kModi,
             [](std::string_view row, std::string_view call, std::string_view /*category*/) {
               return Is(row, modo_row::kCall, call);
             }}};

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
  } else {
    index = {};  // the first of the rows has become one with the last one there: to be read again
  }
}

std::vector<std::string> ContestStore::Lines(StoreFile file, std::string_view category) {
  const std::string text = ReadIfThere(files_, workspace_.store_file(file, category)).value_or("");
  const auto lines = SplitLines(text);
  return {lines.begin(), lines.end()};
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
  const std::string name = Join(category, "_", FiledName(call), ".edi");
  const std::string filed = Join(workspace_.category(category), "/", name);
  const std::string waiting = workspace_.to_insert();
  files_.Copy(filed, waiting + "/" + FreeName(files_, filed, waiting, name, ""));
  files_.Remove(filed);
  Removal removal;
  if (category == kCategory) {
    removal.missing = RemoveRows(RTrim(call), category, month);
    removal.rewritten = true;
  }
  return removal;
}

std::vector<StoreFile> ContestStore::RemoveRows(std::string_view call, std::string_view category,
                                                std::string_view month) {
  std::vector<StoreFile> missing;
  const auto rewrite = [&](const OwnerKey& key) {
    if (!RewriteWithout(workspace_.store_file(key.file, category),
                        [&](std::string_view row) { return key.matches(row, call, category); })) {
      missing.push_back(key.file);
    }
  };
  RewriteWithout(workspace_.classification(month, category),
                 [&](std::string_view row) { return Is(row, classification_row::kCall, call); });
  for (const OwnerKey& key : kBeforeErrorList) {
    rewrite(key);
  }
  RemoveIfThere(files_, workspace_.error_list(category, call, month));
  for (const OwnerKey& key : kBehindErrorList) {
    rewrite(key);
  }
  return missing;
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
      kept += line;
      kept += kLineEnd;
    }
  }
  files_.WriteAll(path, kept);
  return true;
}

std::string FiledName(std::string_view call) {
  const std::string name = NameOfCall(call);
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
