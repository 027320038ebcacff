#include "platform/form.h"

#include <algorithm>

namespace velmar {

bool Control::Reachable() const {
  for (const Control* control = this; control != nullptr; control = control->container) {
    if (!control->visible || !control->enabled) {
      return false;
    }
  }
  return form_.visible();
}

std::optional<std::string> Control::ChosenRow() const {
  const auto& rows = items.rows();
  const auto row = static_cast<std::size_t>(selection);
  return selection >= 0 && row < rows.size() ? std::optional(rows[row]) : std::nullopt;
}

std::size_t Control::RemoveChosen() {
  items.RemoveAt(static_cast<std::size_t>(selection));
  const std::size_t left = items.rows().size();
  if (selection >= static_cast<int>(left)) {
    selection = left == 0 ? -1 : 0;
  }
  return left;
}

void Grid::Shape(std::size_t rows, std::size_t columns) {
  cells_.assign(rows, std::vector<std::string>(columns));
  items.Assign(std::vector<std::string>(rows, std::string(columns - 1, '\t')));
}

void Grid::Set(std::size_t row, std::size_t column, std::string_view text) {
  cells_[row][column] = text;
  Show(row);
}

void Grid::SetRow(std::size_t row, std::size_t column, std::span<const std::string> texts) {
  std::ranges::copy(texts, cells_[row].begin() + static_cast<std::ptrdiff_t>(column));
  Show(row);
}

void Grid::Show(std::size_t row) {
  std::string text;
  for (const std::string& cell : cells_[row]) {
    text += cell;
    text += '\t';
  }
  text.pop_back();
  items.Replace(row, std::move(text));
}

void Control::Click() {
  if (on_click) {
    on_click();
  }
}

void Control::DoubleClick() {
  if (on_double_click) {
    on_double_click();
  }
}

void Control::Press(const std::string& key) {
  if (on_key) {
    on_key(key);
  }
}

void Control::Type(const std::string& text) {
  value = text;
  if (on_change) {
    on_change();
  }
}

void Control::Select(int row) {
  selection = row;
  Click();
}

void Check::Click() {
  checked = !checked;
  Control::Click();
}

void Option::Click() {
  checked = true;
  Control::Click();
}

void Combo::Type(const std::string& text) {
  selection = -1;
  Control::Type(text);
}

void Combo::Select(int row) {
  value = items.rows().at(static_cast<std::size_t>(row));
  Control::Select(row);
}

void Screen::Show(Form& form) {
  ++shows_;
  std::erase(visible_forms_, &form);
  visible_forms_.insert(visible_forms_.begin(), &form);
  if (!form.visible_) {
    form.visible_ = true;
    if (on_visibility) {
      on_visibility(form);
    }
  }
}

void Screen::Hide(Form& form) {
  if (form.visible_) {
    std::erase(visible_forms_, &form);
    form.visible_ = false;
    if (on_visibility) {
      on_visibility(form);
    }
  }
}

}  // namespace velmar
