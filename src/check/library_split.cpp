#include "check/library_split.h"

#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

bool Counts(std::string_view row) {
  return row.size() >= libreria_row::kShortest && !Holds(row, "ERROR") && !Holds(row, "DELETED");
}

}  // namespace

LibrarySplit SplitLibrary(std::string_view library, std::string_view call) {
  LibrarySplit split;
  const std::string owner = Pad(call, kCallWidth);
  LineReader reader(library);
  for (std::string_view row; reader.Next(row);) {
    if (!Counts(row)) {
      continue;
    }
    if (split.log.size() + split.others.size() == kMostLibraryRows) {
      throw RunTimeError(ErrorNumber::kSubscript, "the library");
    }
    (Cut(row, libreria_row::kOwner) == owner ? split.log : split.others).push_back(row);
  }
  return split;
}

}  // namespace velmar
