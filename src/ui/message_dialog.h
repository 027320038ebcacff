#pragma once

#include <QDialog>

#include "platform/manager.h"

class QHBoxLayout;
class QLineEdit;

namespace velmar {

/// A message box. Esc and the closing of the window mean Cancel or No where there is one, else the
/// only button.
class MessageDialog : public QDialog {
 public:
  MessageDialog(const Box& box, QWidget* parent);

  /// The button pressed.
  Reply reply() const { return reply_; }

  void reject() override { Answer(escape_); }

 private:
  void AddButtons(const Box& box, QHBoxLayout& row);
  void Answer(Reply reply);

  Reply escape_ = Reply::kOk;
  Reply reply_ = Reply::kOk;
};

/// A box with a text field, whose default stands in it and is selected.
class InputDialog : public QDialog {
 public:
  InputDialog(const InputBox& box, QWidget* parent);

  /// What stands in the field.
  std::string text() const;

 private:
  QLineEdit* field_;
};

}  // namespace velmar
