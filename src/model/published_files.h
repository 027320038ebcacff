#pragma once

#include <string>
#include <string_view>

#include "model/call_area.h"
#include "model/workspace.h"

namespace velmar {

/// The files that the publication of a month leaves, by their fixed names: blanks and capitals
/// belong to them. A band label is eight characters wide, its blanks included.
class PublishedFiles {
 public:
  /// The month as "GENNAIO 2025"; the names have it in small letters.
  PublishedFiles(const Workspace& workspace, std::string_view month);

  /// The classification of a call area.
  std::string area_classification(CallArea area) const;

  // In the folder of the category.
  std::string statistics() const;     ///< of the category, for the workbook
  std::string unknown_calls() const;  ///< calls of no known country
  std::string countries() const;      ///< calls on the air by area and country

  // In the folder of the store.
  std::string placed_library() const;  ///< a total library that the manager has put there
  std::string band_counts(std::string_view band_label) const;
  std::string on_air_flags() const;  ///< calls on the air, each with a flag
  std::string on_air() const;        ///< calls on the air
  std::string foreign_calls() const;
  /// The lists of what was worked on a band, by the name that the files know it under.
  std::string locators(std::string_view band) const;
  std::string squares(std::string_view band) const;
  std::string fields(std::string_view band) const;

  std::string area_qsos(std::string_view category) const;
  std::string participants(std::string_view category) const;
  std::string italian_calls(std::string_view category) const;
  /// The calls that the stations of a zone worked, the Italian or the foreign ones.
  std::string zone_calls(std::string_view category, bool italian, std::string_view zone) const;

  /// The workbook's name, which lies beside the program and in the folder of the category.
  std::string workbook_name() const;

  // The lists of squares that are kept over a year.
  std::string year_squares(std::string_view band_label) const;
  std::string earlier_squares(std::string_view band_label) const;  ///< before this month
  std::string month_squares(std::string_view band_label) const;

 private:
  std::string InStore(std::string_view name) const;
  std::string InCategory(std::string_view name) const;

  const Workspace& workspace_;
  std::string month_;
};

}  // namespace velmar
