#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar {

class Form;
class Screen;

enum class ControlKind {
  kButton,
  kMenu,
  kCheck,
  kOption,
  kLabel,
  kText,
  kList,
  kCombo,
  kFiles,
  kGrid,
  kProgress
};

/// Colours as the numbers that the program uses: red in the lowest byte, then green, then blue.
namespace colour {
constexpr int Rgb(int red, int green, int blue) {
  return red | green << 8 | blue << 16;
}

inline constexpr int kBlack = 0;
inline constexpr int kRed = 255;
inline constexpr int kGreen = 65280;
inline constexpr int kYellow = 65535;
inline constexpr int kBlue = 0xFF0000;
inline constexpr int kLightRed = 0x8080FF;
inline constexpr int kWhite = 0xFFFFFF;
}  // namespace colour

/// The rows of a list. The version grows with every change, so that a window knows without a look
/// at 100,000 rows whether it has to draw again.
class Items {
 public:
  const std::vector<std::string>& rows() const { return rows_; }
  std::size_t version() const { return version_; }

  void Assign(std::vector<std::string> rows) {
    rows_ = std::move(rows);
    ++version_;
  }
  void Remove(const std::string& row) {
    std::erase(rows_, row);
    ++version_;
  }
  /// Takes one row out, by its number counted from 0; the row must be there.
  void RemoveAt(std::size_t row) {
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
    ++version_;
  }
  void Add(std::string row) {
    rows_.push_back(std::move(row));
    ++version_;
  }
  /// Another text in place of a row, by its number counted from 0; the row must be there.
  void Replace(std::size_t row, std::string text) {
    rows_[row] = std::move(text);
    ++version_;
  }

 private:
  std::vector<std::string> rows_;
  std::size_t version_ = 0;
};

/// One control of a form: its state, and what happens when a person uses it. It knows nothing of
/// any window. Texts are in code page 1252; a "&" in a caption stands ahead of its hot key.
class Control {
 public:
  Control(Form& form, ControlKind kind, std::string name, std::string caption)
      : name(std::move(name)), caption(std::move(caption)), form_(form), kind_(kind) {}
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form() const { return form_; }
  ControlKind kind() const { return kind_; }

  /// Whether a person can use it: it, the menus or frames that it hangs in, and its form are to be
  /// seen, and it and those menus or frames are enabled.
  bool Reachable() const;

  /// Other rows, none of them chosen.
  void Fill(std::vector<std::string> rows) {
    items.Assign(std::move(rows));
    selection = -1;
  }

  /// The chosen row; nothing where none is chosen.
  std::optional<std::string> ChosenRow() const;

  /// Takes the chosen row, which must be there, out of a list, and chooses the one behind it, or
  /// the first. Gives how many are left.
  std::size_t RemoveChosen();

  // What a person does. The front ends ask Reachable first; these do as told.
  virtual void Click();
  void DoubleClick();
  void Press(const std::string& key);          ///< one character, "F5", "Enter" or "Esc"
  virtual void Type(const std::string& text);  ///< replaces the text
  virtual void Select(int row);                ///< clicks a row, counted from 0

  const std::string name;
  std::string caption;  ///< the text that a label, button, menu item, check or option shows
  std::string value;    ///< the text of a text field or combo box, the number of a progress bar
  std::string tip;      ///< shown beside the pointer that rests on it
  Items items;          ///< the rows of a list, combo box, file list or grid
  int selection = -1;   ///< the chosen row, counted from 0; -1 for none
  bool visible = true;
  bool enabled = true;
  bool checked = false;
  std::optional<int> colour;           ///< of the background; nothing for the usual one
  const Control* container = nullptr;  ///< the menu or the frame that it hangs in
  int top = -1;  ///< the row that a list is to begin with; -1: any. A window takes it back.

  std::function<void()> on_click;
  std::function<void()> on_double_click;
  std::function<void()> on_change;  ///< a person typed into the text
  std::function<void(const std::string& key)> on_key;

 private:
  Form& form_;
  ControlKind kind_;
};

/// A control whose kind alone tells it apart.
template <ControlKind kKind>
struct PlainControl : Control {
  PlainControl(Form& form, std::string name, std::string caption)
      : Control(form, kKind, std::move(name), std::move(caption)) {}
};

using Button = PlainControl<ControlKind::kButton>;
using Menu =
    PlainControl<ControlKind::kMenu>;  ///< its tick is set by the procedures, not the click
using Label = PlainControl<ControlKind::kLabel>;
using Frame = Label;  ///< the title of a group of controls, which are seen with it
using TextField = PlainControl<ControlKind::kText>;
using List = PlainControl<ControlKind::kList>;
using FileList = PlainControl<ControlKind::kFiles>;  ///< the items are the names in a folder

/// A check box: the click turns the tick, then raises the event.
struct Check : PlainControl<ControlKind::kCheck> {
  using PlainControl::PlainControl;
  void Click() override;
};

/// An option button: the click ticks it, then raises the event, which clears the others.
struct Option : PlainControl<ControlKind::kOption> {
  using PlainControl::PlainControl;
  void Click() override;
};

/// A list with a text field: a chosen row becomes the text.
struct Combo : PlainControl<ControlKind::kCombo> {
  using PlainControl::PlainControl;
  void Type(const std::string& text) override;
  void Select(int row) override;
};

/// A progress bar; the value goes from 0 to `maximum`.
struct ProgressBar : PlainControl<ControlKind::kProgress> {
  using PlainControl::PlainControl;
  std::size_t maximum = 100;
};

/// A table of cells, its rows and columns counted from 0: the first row and the first column hold
/// the labels. The items are the rows, their cells parted by tabs.
struct Grid : PlainControl<ControlKind::kGrid> {
  using PlainControl::PlainControl;

  /// Empties it to a number of rows and columns, both of at least 1.
  void Shape(std::size_t rows, std::size_t columns);

  /// Puts a text into a cell, which must be there.
  void Set(std::size_t row, std::size_t column, std::string_view text);

  /// Puts texts into a row from a column on.
  void SetRow(std::size_t row, std::size_t column, std::span<const std::string> texts);

 private:
  void Show(std::size_t row);

  std::vector<std::vector<std::string>> cells_;
};

/// A screen of the program: named controls in their order, with a title. A form is declared once,
/// with its controls as members, where its procedure can use them.
class Form {
 public:
  Form(std::string name, std::string title) : title(std::move(title)), name_(std::move(name)) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  bool visible() const { return visible_; }
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

  std::string title;
  const Control* focus = nullptr;  ///< where a procedure put the focus last

 protected:
  Button& AddButton(const std::string& name, const std::string& caption) {
    return Add<Button>(name, caption);
  }
  Menu& AddMenu(const std::string& name, const std::string& caption, const Menu* menu = nullptr) {
    auto& item = Add<Menu>(name, caption);
    item.container = menu;
    return item;
  }
  /// Puts a control that was just added into a frame.
  template <typename Kind>
  static Kind& In(const Frame& frame, Kind& control) {
    control.container = &frame;
    return control;
  }
  Check& AddCheck(const std::string& name, const std::string& caption) {
    return Add<Check>(name, caption);
  }
  Option& AddOption(const std::string& name, const std::string& caption) {
    return Add<Option>(name, caption);
  }
  Label& AddLabel(const std::string& name, const std::string& caption = "") {
    return Add<Label>(name, caption);
  }
  TextField& AddText(const std::string& name, const std::string& caption = "") {
    return Add<TextField>(name, caption);
  }
  List& AddList(const std::string& name, const std::string& caption = "") {
    return Add<List>(name, caption);
  }
  FileList& AddFileList(const std::string& name, const std::string& caption = "") {
    return Add<FileList>(name, caption);
  }
  Combo& AddCombo(const std::string& name, std::vector<std::string> rows) {
    auto& combo = Add<Combo>(name, "");
    combo.items.Assign(std::move(rows));
    return combo;
  }
  Grid& AddGrid(const std::string& name) { return Add<Grid>(name, ""); }
  ProgressBar& AddProgress(const std::string& name) { return Add<ProgressBar>(name, ""); }

 private:
  friend class Screen;

  template <typename Kind, typename... Arguments>
  Kind& Add(Arguments&&... arguments) {
    auto control = std::make_unique<Kind>(*this, std::forward<Arguments>(arguments)...);
    Kind& reference = *control;
    controls_.push_back(std::move(control));
    return reference;
  }

  std::string name_;
  bool visible_ = false;
  std::vector<std::unique_ptr<Control>> controls_;
};

/// The forms of the program and which of them are to be seen.
class Screen {
 public:
  void Add(Form& form) { forms_.push_back(&form); }

  /// Shows a form and puts it on top, which a window that is seen already is raised for.
  void Show(Form& form);
  void Hide(Form& form);

  const std::vector<Form*>& forms() const { return forms_; }

  /// The visible forms, the one on top first.
  const std::vector<Form*>& visible_forms() const { return visible_forms_; }

  /// How often a form was put on top.
  std::size_t shows() const { return shows_; }

  /// Called when a form begins or ends to be seen.
  std::function<void(Form& form)> on_visibility;

 private:
  std::vector<Form*> forms_;
  std::vector<Form*> visible_forms_;
  std::size_t shows_ = 0;
};

}  // namespace velmar
