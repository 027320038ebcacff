#include "ui/qt_manager.h"

#include <QApplication>
#include <QFileDialog>
#include <QTimer>
#include <chrono>

#include "ui/event_runner.h"
#include "ui/message_dialog.h"
#include "ui/qt_text.h"

namespace velmar {

namespace {

constexpr std::chrono::milliseconds kBeepEvery(250);  // nearer beeps melt into one

/// The window that a dialog belongs to.
QWidget* Parent() {
  if (QWidget* active = QApplication::activeWindow()) {
    return active;
  }
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() == Qt::Window) {
      return window;
    }
  }
  return nullptr;
}

void SetCaptions(QFileDialog& dialog, const QString& accept) {
  dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Cerca in:"));
  dialog.setLabelText(QFileDialog::FileName, QStringLiteral("Nome file:"));
  dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo:"));
  dialog.setLabelText(QFileDialog::Accept, accept);
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Annulla"));
}

}  // namespace

Reply QtManager::Show(const Box& box) {
  MessageDialog dialog(box, Parent());
  runner_.Converse(dialog);
  return dialog.reply();
}

std::optional<std::string> QtManager::Ask(const InputBox& box) {
  InputDialog dialog(box, Parent());
  return runner_.Converse(dialog) == QDialog::Accepted ? std::optional(dialog.text())
                                                       : std::nullopt;
}

std::optional<std::string> QtManager::PickFile(const FileDialog& dialog) {
  QFileDialog files(Parent(), ToShownRow(dialog.title), ToDiskName(dialog.folder));
  const bool to_write = !dialog.new_ending.empty();
  files.setAcceptMode(to_write ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  files.setFileMode(to_write ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  files.setDefaultSuffix(ToDiskName(dialog.new_ending));
  files.setNameFilters(NameFilters(dialog.filter));
  SetCaptions(files, to_write ? QStringLiteral("Salva") : QStringLiteral("Apri"));
  if (runner_.Converse(files) != QDialog::Accepted || files.selectedFiles().isEmpty()) {
    return std::nullopt;
  }
  return FromDiskName(files.selectedFiles().front());
}

void QtManager::Beep(int times) {
  for (int i = 0; i < times; ++i) {
    QTimer::singleShot(i * kBeepEvery, qApp, [] { QApplication::beep(); });
  }
}

bool QtManager::StopWanted() {
  return runner_.TakeStopRequest();
}

void QtManager::Progress(std::size_t, std::size_t) {
  runner_.Breathe();
}

QStringList NameFilters(const std::string& filter) {
  const QStringList parts = ToQString(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString patterns = " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
    filters += parts[i].endsWith(patterns) ? parts[i] : parts[i] + patterns;
  }
  return filters;
}

}  // namespace velmar
