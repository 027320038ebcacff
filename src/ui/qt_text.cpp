#include "ui/qt_text.h"

#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr char16_t kFirstSymbol = 0x2400;  // the symbol of NUL; the others follow in their order
constexpr char16_t kDeleteSymbol = 0x2421;
constexpr char16_t kReplacement = 0xFFFD;
constexpr char16_t kEllipsis = 0x2026;

QChar Drawn(QChar character) {
  const char16_t code = character.unicode();
  if (code < 0x20) {
    return QChar(static_cast<char16_t>(kFirstSymbol + code));
  }
  if (code == 0x7F) {
    return QChar(kDeleteSymbol);
  }
  return code >= 0x80 && code < 0xA0 ? QChar(kReplacement) : character;
}

QString FromUtf8(const std::string& utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace

QString ToQString(std::string_view bytes) {
  QString text = FromUtf8(Utf8FromAnsi(bytes));
  for (QChar& character : text) {
    character = Drawn(character);
  }
  return text;
}

QString ToShownRow(std::string_view bytes, std::size_t longest) {
  QString row = ToQString(bytes.substr(0, longest));
  if (bytes.size() > longest) {
    row += QChar(kEllipsis);
  }
  return row;
}

QStringList ToShownRows(const std::vector<std::string>& rows) {
  QStringList shown;
  for (const std::string& row : rows) {
    shown += ToShownRow(row);
  }
  return shown;
}

std::string FromQString(const QString& text) {
  return AnsiFromUtf8(text.normalized(QString::NormalizationForm_C).toStdString());
}

QString ToDiskName(std::string_view bytes) {
  return FromUtf8(DiskNameFromAnsi(bytes));
}

std::string FromDiskName(const QString& name) {
  return AnsiFromDiskName(name.toStdString());
}

}  // namespace velmar
