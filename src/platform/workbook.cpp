#include "platform/workbook.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <system_error>

#include "platform/error.h"
#include "platform/file_system.h"

namespace velmar {

namespace {

constexpr std::size_t kLongestName = 31;

[[noreturn]] void Refuse(std::string_view about) {
  throw RunTimeError(ErrorNumber::kWorkbookRefused, std::string(about));
}

/// One end of an address: 0 for a row or a column that it does not name.
CellPlace EndOf(std::string_view text) {
  CellPlace end{0, 0};
  const std::size_t letters = std::min(text.find_first_of("0123456789"), text.size());
  for (const char c : text.substr(0, letters)) {
    const bool small = c >= 'a' && c <= 'z';
    if ((!small && (c < 'A' || c > 'Z')) || end.column > xl::kColumns) {
      Refuse(text);
    }
    end.column = end.column * 26 + c - (small ? 'a' : 'A') + 1;
  }
  const std::string_view digits = text.substr(letters);
  const char* last = digits.data() + digits.size();
  if (!digits.empty()) {
    const auto [stopped, error] = std::from_chars(digits.data(), last, end.row);
    if (error != std::errc() || stopped != last || end.row == 0) {
      Refuse(text);
    }
  }
  return end;
}

}  // namespace

SheetRange Worksheet::Cells(int row, int column) {
  if (row < 1 || row > xl::kRows || column < 1 || column > xl::kColumns) {
    Refuse("a cell outside the sheet");
  }
  return {*this, {{row, column}, {row, column}}, false, false};
}

SheetRange Worksheet::Range(std::string_view address) {
  const std::size_t colon = address.find(':');
  const CellPlace one = EndOf(address.substr(0, colon));
  const CellPlace other = colon == std::string_view::npos ? one : EndOf(address.substr(colon + 1));
  auto [top, bottom] = std::minmax(one.row, other.row);
  auto [left, right] = std::minmax(one.column, other.column);
  const bool whole_rows = right == 0 && colon != std::string_view::npos;
  const bool whole_columns = bottom == 0 && colon != std::string_view::npos;
  if ((top == 0 && !whole_columns) || (left == 0 && !whole_rows) || (whole_rows && whole_columns) ||
      bottom > xl::kRows || right > xl::kColumns) {
    Refuse(address);
  }
  const CellBlock block{{whole_columns ? 1 : top, whole_rows ? 1 : left},
                        {whole_columns ? xl::kRows : bottom, whole_rows ? xl::kColumns : right}};
  return {*this, block, whole_rows, whole_columns};
}

int Worksheet::LastRow(int column) const {
  const auto last = std::find_if(cells_.rbegin(), cells_.rend(), [&](const auto& cell) {
    return cell.first.column == column && cell.second.value.index() != 0;
  });
  return last == cells_.rend() ? 1 : last->first.row;
}

void Worksheet::AddPageBreak(int above_row) {
  if (above_row < 2 || above_row > xl::kRows) {
    Refuse("a page break outside the sheet");
  }
  page_breaks_.insert(above_row);
}

const CellFormat& Worksheet::FormatAt(CellPlace place) const {
  const auto cell = cells_.find(place);
  return cell != cells_.end() ? cell->second.format : Inherited(place);
}

const CellFormat& Worksheet::Inherited(CellPlace place) const {
  static const CellFormat usual;
  if (const auto row = row_formats_.find(place.row); row != row_formats_.end()) {
    return row->second;
  }
  const auto column = column_formats_.find(place.column);
  return column != column_formats_.end() ? column->second : usual;
}

Cell& Worksheet::Made(CellPlace place) {
  const auto [cell, made] = cells_.try_emplace(place);
  if (made) {
    cell->second.format = Inherited(place);
  }
  return cell->second;
}

bool Worksheet::Covered(CellPlace place) const {
  return std::any_of(merged_.begin(), merged_.end(), [&](const CellBlock& block) {
    return place != block.first && place.row >= block.first.row && place.row <= block.last.row &&
           place.column >= block.first.column && place.column <= block.last.column;
  });
}

Workbook::Workbook(int sheets) {
  for (int i = 0; i < sheets; ++i) {
    Add();
  }
}

std::list<Worksheet>::iterator Workbook::Find(std::string_view name) {
  return std::find_if(sheets_.begin(), sheets_.end(),
                      [&](const Worksheet& sheet) { return SameName(sheet.name(), name); });
}

Worksheet& Workbook::Sheet(std::size_t number) {
  if (number < 1 || number > sheets_.size()) {
    throw RunTimeError(ErrorNumber::kSubscript, "sheet " + std::to_string(number));
  }
  return *std::next(sheets_.begin(), static_cast<std::ptrdiff_t>(number) - 1);
}

Worksheet& Workbook::Sheet(std::string_view name) {
  const auto sheet = Find(name);
  if (sheet == sheets_.end()) {
    throw RunTimeError(ErrorNumber::kSubscript, std::string(name));
  }
  return *sheet;
}

Worksheet& Workbook::Add() {
  std::string name;
  do {
    name = "Foglio" + std::to_string(++made_);
  } while (Find(name) != sheets_.end());
  return sheets_.emplace_back(name);
}

void Workbook::Rename(Worksheet& sheet, std::string_view name) {
  const auto other = Find(name);
  if (name.empty() || name.size() > kLongestName ||
      name.find_first_of("[]:*?/\\") != std::string_view::npos || name.starts_with('\'') ||
      name.ends_with('\'') || (other != sheets_.end() && &*other != &sheet)) {
    Refuse(name);
  }
  sheet.name_ = name;
}

void Workbook::Delete(std::string_view name) {
  const auto sheet = Find(name);
  if (sheet == sheets_.end()) {
    throw RunTimeError(ErrorNumber::kSubscript, std::string(name));
  }
  if (sheets_.size() == 1) {
    Refuse(name);
  }
  const auto number = static_cast<std::size_t>(std::distance(sheets_.begin(), sheet)) + 1;
  sheets_.erase(sheet);
  if (selected_ > number || selected_ > sheets_.size()) {
    --selected_;
  }
}

void Workbook::Select(const Worksheet& sheet) {
  std::size_t number = 1;
  for (const Worksheet& other : sheets_) {
    if (&other == &sheet) {
      selected_ = number;
      return;
    }
    ++number;
  }
  throw RunTimeError(ErrorNumber::kSubscript, sheet.name());
}

}  // namespace velmar
