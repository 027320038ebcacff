#include "ui/qt_picture_files.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QLoggingCategory>
#include <QPainter>
#include <array>
#include <cmath>

#include "model/text.h"
#include "platform/error.h"
#include "ui/picture_painter.h"

namespace velmar {

namespace {

struct Format {
  const char* name;
  double dots;  ///< a unit
  bool clear;   ///< whether it knows grounds that let shine through
};

constexpr Format kBmp{"BMP", 1, false};
constexpr Format kPng{"PNG", 2, true};

Format FormatOf(const std::string& path) {
  const std::string name = Lower(path);
  if (name.ends_with(".bmp")) {
    return kBmp;
  }
  if (name.ends_with(".png")) {
    return kPng;
  }
  throw RunTimeError(ErrorNumber::kInvalidCall, path);
}

/// Letters need the toolkit's fonts, which come with its application; where a program without
/// windows has none, this one stands in for it.
void NeedFonts() {
  static int count = 3;
  static std::array<char*, 4> arguments = {const_cast<char*>("velmar"),
                                           const_cast<char*>("-platform"),
                                           const_cast<char*>("offscreen"), nullptr};
  // Never destroyed: at the program's end the toolkit's own statics are gone before it.
  if (QCoreApplication::instance() == nullptr) {
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));  // of a bare machine
    [[maybe_unused]] static auto* const application = new QGuiApplication(count, arguments.data());
  }
}

/// The bytes of a file of a picture; `path` is told where they cannot be made.
std::string BytesOf(const Picture& picture, const Format& format, const std::string& path) {
  NeedFonts();
  const bool clear = format.clear && picture.ground() < 0;
  QImage image(static_cast<int>(std::ceil(picture.width() * format.dots)),
               static_cast<int>(std::ceil(picture.height() * format.dots)),
               clear ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
  image.fill(clear ? Qt::transparent : Qt::white);
  QPainter painter(&image);
  painter.scale(format.dots, format.dots);
  Paint(painter, picture);
  painter.end();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format.name)) {
    throw RunTimeError(ErrorNumber::kDeviceError, path);
  }
  return bytes.toStdString();
}

}  // namespace

void QtPictureFiles::Save(const Picture& picture, const std::string& path) {
  files_.WriteAll(path, BytesOf(picture, FormatOf(path), path));
}

std::string QtPictureFiles::Png(const Picture& picture) {
  return BytesOf(picture, kPng, "");
}

}  // namespace velmar
