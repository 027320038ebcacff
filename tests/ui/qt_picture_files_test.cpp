#include "ui/qt_picture_files.h"

#include <gtest/gtest.h>

#include <QImage>

#include "platform/error.h"
#include "platform/form.h"
#include "support/temp_workspace.h"
#include "ui/qt_text.h"

namespace velmar::test {
namespace {

TEST(QtPictureFiles, EveryShapeIsDrawnWhereItLies) {
  TempWorkspace workspace;
  Picture picture(100, 50, colour::kWhite);
  picture.Add(Area{
      .rings = {{{0, 0}, {30, 0}, {30, 50}, {0, 50}}, {{10, 10}, {20, 10}, {20, 20}, {10, 20}}},
      .fill = colour::kGreen});
  picture.Add(
      Disc{.centre = {60, 25}, .radius = 5, .fill = colour::kYellow, .border = colour::kRed});
  picture.Add(Stroke{.points = {{40, 0}, {40, 50}}, .colour = colour::kRed, .width = 3});
  picture.Add(Lettering{.centre = {85, 25}, .text = "JN45", .ground = 0});
  QtPictureFiles files(workspace.files());
  for (const auto& [name, dots] : {std::pair("a.bmp", 1), std::pair("b.PNG", 2)}) {
    const std::string path = workspace.paths().base() + "/" + name;
    files.Save(picture, path);
    const QImage image(ToDiskName(path));
    ASSERT_EQ(image.size(), QSize(100 * dots, 50 * dots)) << name;
    const auto at = [&image, dots = dots](int x, int y) {
      return image.pixelColor(x * dots, y * dots);
    };
    EXPECT_EQ(at(5, 25), QColor(0, 255, 0));
    EXPECT_EQ(at(15, 15), QColor(255, 255, 255)) << "a ring within a ring stays open";
    EXPECT_EQ(at(60, 25), QColor(255, 255, 0));
    EXPECT_EQ(at(40, 40), QColor(255, 0, 0));
    EXPECT_EQ(at(71, 25), QColor(0, 0, 0)) << "the ground of the letters";
    EXPECT_EQ(at(95, 5), QColor(255, 255, 255));
  }
}

TEST(QtPictureFiles, AGroundOfNoneShinesThroughInAPng) {
  TempWorkspace workspace;
  QtPictureFiles files(workspace.files());
  Picture picture(10, 10, -1);
  picture.Add(Stroke{.points = {{5, 0}, {5, 10}}, .colour = colour::kRed, .width = 3});
  const QImage image = QImage::fromData(QByteArray::fromStdString(files.Png(picture)), "PNG");
  EXPECT_EQ(image.pixelColor(2, 10).alpha(), 0);
  EXPECT_EQ(image.pixelColor(10, 10), QColor(255, 0, 0));
  const std::string path = workspace.paths().base() + "/a.bmp";
  files.Save(picture, path);
  EXPECT_EQ(QImage(ToDiskName(path)).pixelColor(1, 5), QColor(255, 255, 255));
}

TEST(QtPictureFiles, AnotherFormatIsRefused) {
  TempWorkspace workspace;
  EXPECT_THROW(
      QtPictureFiles(workspace.files()).Save(Picture(1, 1, 0), workspace.paths().base() + "/a.jpg"),
      RunTimeError);
}

}  // namespace
}  // namespace velmar::test
