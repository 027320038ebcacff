#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "model/call_area.h"
#include "platform/workbook.h"
#include "publish/classification_sheet.h"

namespace velmar {

/// What the sheets of the call areas are made of, and who is told of their making.
struct AreaSheetSources {
  /// Gives the text of the classification of an area; nothing where there is none.
  std::function<std::optional<std::string>(CallArea area)> read;
  std::function<void(std::string_view status)> status;
  std::function<void(int done, int areas)> progress;  ///< after each sheet
};

/// Adds a sheet for each call area behind the last. An area without a classification, or without a
/// row in it, has a sheet that says so.
void CreateCallAreaSheets(Workbook& book, const SheetTexts& texts, const AreaSheetSources& sources);

}  // namespace velmar
