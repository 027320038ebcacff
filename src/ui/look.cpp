#include "ui/look.h"

#include <QApplication>
#include <QFontDatabase>
#include <QLabel>
#include <QPalette>
#include <QProxyStyle>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace velmar {

namespace {

constexpr int kPointSize = 10;

/// A screen that the rows of a classification, some 140 characters, do not fit in the usual size.
constexpr int kNarrowScreen = 1200;

/// What the window system puts around a window, in px.
constexpr QMargins kFrame(5, 27, 5, 5);

/// The usual style with more air around the captions of buttons.
class RoomyStyle : public QProxyStyle {
 public:
  RoomyStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
    return type == CT_PushButton ? usual + kButtonAir : usual;
  }

 private:
  static constexpr QSize kButtonAir{16, 4};
};

QPalette Colours() {
  const QColor text(0x22, 0x2B, 0x33);
  QPalette palette(QColor(0xE9, 0xEC, 0xEF), QColor(0xF2, 0xF4, 0xF6));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Highlight, QColor(0x2F, 0x6E, 0xA5));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::PlaceholderText, QColor(0x5B, 0x66, 0x70));
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, QColor(0x7D, 0x86, 0x8E));
  }
  return palette;
}

QFont AtLeast(QFont font, int points) {
  font.setPointSize(std::max(font.pointSize(), points));
  return font;
}

}  // namespace

void ApplyLook() {
  QApplication::setStyle(new RoomyStyle);
  QApplication::setPalette(Colours());
  QApplication::setFont(AtLeast(QApplication::font(), kPointSize));
}

QFont FixedFont() {
  QFont font = AtLeast(QFontDatabase::systemFont(QFontDatabase::FixedFont), kPointSize);
  if (QGuiApplication::primaryScreen()->availableSize().width() < kNarrowScreen) {
    font.setPointSize(kPointSize - 1);
  }
  return font;
}

QFont HeadingFont(int larger) {
  QFont font = QApplication::font();
  font.setPointSize(font.pointSize() + larger);
  font.setBold(true);
  return font;
}

void SetQuiet(QLabel& label) {
  QPalette palette;
  palette.setColor(QPalette::WindowText, palette.color(QPalette::PlaceholderText));
  label.setPalette(palette);
}

void SetCaption(QLabel& label) {
  SetQuiet(label);
  QFont font = QApplication::font();
  font.setPointSize(font.pointSize() - 1);
  label.setFont(font);
}

void Centre(QWidget& widget) {
  const QRect room = widget.screen()->availableGeometry().marginsRemoved(kFrame);
  widget.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                         widget.size().boundedTo(room.size()), room));
}

}  // namespace velmar
