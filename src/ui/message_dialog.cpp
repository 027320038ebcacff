#include "ui/message_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "ui/box_text.h"
#include "ui/look.h"
#include "ui/qt_text.h"

namespace velmar {

namespace {

constexpr int kIconSize = 40;  // px
constexpr int kFieldWidth = 320;

std::vector<Reply> Replies(Buttons buttons) {
  switch (buttons) {
    case Buttons::kOkCancel:
      return {Reply::kOk, Reply::kCancel};
    case Buttons::kYesNo:
      return {Reply::kYes, Reply::kNo};
    case Buttons::kYesNoCancel:
      return {Reply::kYes, Reply::kNo, Reply::kCancel};
    default:
      return {Reply::kOk};
  }
}

QString CaptionOf(Reply reply) {
  switch (reply) {
    case Reply::kYes:
      return QStringLiteral("&Sì");
    case Reply::kNo:
      return QStringLiteral("&No");
    case Reply::kCancel:
      return QStringLiteral("&Annulla");
    default:
      return QStringLiteral("&OK");
  }
}

QStyle::StandardPixmap PixmapOf(Icon icon) {
  switch (icon) {
    case Icon::kStop:
      return QStyle::SP_MessageBoxCritical;
    case Icon::kExclamation:
      return QStyle::SP_MessageBoxWarning;
    case Icon::kQuestion:
      return QStyle::SP_MessageBoxQuestion;
    default:
      return QStyle::SP_MessageBoxInformation;
  }
}

/// The layout of a box: its rows, with room around them.
QVBoxLayout* MakeRows(QDialog& dialog, const std::string& title) {
  dialog.setWindowTitle(title.empty() ? QStringLiteral("Velmar") : ToShownRow(title));
  auto* rows = new QVBoxLayout(&dialog);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kMargin);
  return rows;
}

}  // namespace

MessageDialog::MessageDialog(const Box& box, QWidget* parent) : QDialog(parent) {
  QVBoxLayout* rows = MakeRows(*this, box.title);
  auto* body = new QHBoxLayout;
  body->setSpacing(kMargin);
  auto* icon = new QLabel;
  icon->setPixmap(style()->standardIcon(PixmapOf(box.icon)).pixmap(kIconSize));
  body->addWidget(icon, 0, Qt::AlignTop);
  body->addWidget(new BoxText(box.lines), 1);
  rows->addLayout(body, 1);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kSpacing);
  buttons->addStretch(1);
  AddButtons(box, *buttons);
  rows->addLayout(buttons);
}

void MessageDialog::AddButtons(const Box& box, QHBoxLayout& row) {
  const std::vector<Reply> replies = Replies(box.buttons);
  escape_ = replies.back();
  int number = 0;
  for (const Reply reply : replies) {
    auto* button = new QPushButton(CaptionOf(reply));
    connect(button, &QPushButton::clicked, this, [this, reply] { Answer(reply); });
    row.addWidget(button);
    if (++number == box.default_button) {
      button->setDefault(true);
      button->setFocus();
    }
  }
}

void MessageDialog::Answer(Reply reply) {
  reply_ = reply;
  done(Accepted);
}

InputDialog::InputDialog(const InputBox& box, QWidget* parent)
    : QDialog(parent), field_(new QLineEdit(ToShownRow(box.default_text))) {
  QVBoxLayout* rows = MakeRows(*this, box.title);
  rows->addWidget(new BoxText(box.lines), 1);
  field_->setMinimumWidth(kFieldWidth);
  field_->selectAll();
  rows->addWidget(field_);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kSpacing);
  buttons->addStretch(1);
  auto* confirm = new QPushButton(CaptionOf(Reply::kOk));
  confirm->setDefault(true);
  connect(confirm, &QPushButton::clicked, this, &QDialog::accept);
  auto* cancel = new QPushButton(CaptionOf(Reply::kCancel));
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  buttons->addWidget(confirm);
  buttons->addWidget(cancel);
  rows->addLayout(buttons);
  field_->setFocus();
}

std::string InputDialog::text() const {
  return FromQString(field_->text());
}

}  // namespace velmar
