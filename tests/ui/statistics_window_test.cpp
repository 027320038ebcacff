#include "ui/statistics_window.h"

#include <QAbstractItemModel>
#include <QTableView>
#include <QTest>

#include "ui/picture_view.h"
#include "ui_fixture.h"

namespace velmar::test {
namespace {

struct Fixture : WindowFixture<StatisticsForm, StatisticsWindow> {
  /// Shows the map with one red mark, at the smallest size of the window, which scales it.
  void ShowMap(Point mark) {
    window.resize(window.minimumSize());
    runner.Run([&] {
      form.Frame_testo.visible = false;
      form.Frame_grafica.visible = form.Frame_mappa.visible = true;
      form.map = Picture(820, 513, colour::kWhite);
      form.map.Add(Stroke{{{mark.x - 5, mark.y}, {mark.x + 5, mark.y}}, colour::kRed, 9});
      ++form.map_version;
    });
    QCoreApplication::processEvents();
  }

  QWidget* Find(const char* name) { return window.findChild<QWidget*>(name); }

  /// The middle of what is drawn red on the map, in the widget.
  QPoint DrawnMark() {
    const QImage image = Find("map")->grab().toImage();
    QRect red;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        red |= image.pixelColor(x, y) == Qt::red ? QRect(x, y, 1, 1) : QRect();
      }
    }
    return red.center();
  }
};

TEST(StatisticsWindow, APlacePickedOnTheScaledMapIsTheOneDrawnThere) {
  Fixture fixture;
  std::vector<Point> places;
  fixture.form.on_label_moved = [&](Point place) { places.push_back(place); };
  for (const Point mark : {Point{600, 100}, Point{90, 450}}) {
    fixture.ShowMap(mark);
    ASSERT_LT(fixture.Find("map")->width(), 700) << "not scaled";
    QTest::mousePress(fixture.Find("map"), Qt::LeftButton, {}, {300, 200});
    QTest::mouseRelease(fixture.Find("map"), Qt::LeftButton, {}, fixture.DrawnMark());
    EXPECT_NEAR(places.back().x, mark.x, 2);
    EXPECT_NEAR(places.back().y, mark.y, 2);
  }
  EXPECT_EQ(places.size(), 2);
  QTest::mousePress(fixture.Find("map"), Qt::LeftButton, {}, {300, 200});
  QTest::mouseRelease(fixture.Find("map"), Qt::LeftButton, {}, {5000, -9});
  EXPECT_EQ(places.back(), (Point{820, 0}));
  QTest::keyClick(fixture.Find("map"), Qt::Key_Right);
  QTest::keyClick(fixture.Find("map"), Qt::Key_Up, Qt::ControlModifier);
  QTest::keyClick(fixture.Find("map"), Qt::Key_Return);
  EXPECT_EQ(places.back(), (Point{420, 255.5}));
}

TEST(StatisticsWindow, ThePagesFollowTheFrames) {
  Fixture fixture;
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fixture.window));
  EXPECT_FALSE(fixture.Find("mappa")->isVisible());
  fixture.runner.Run([&] {
    fixture.form.Frame_testo.visible = false;
    fixture.form.Frame_grafica.visible = true;
  });
  EXPECT_FALSE(fixture.Find("calcola_qso")->isVisible());
  EXPECT_FALSE(fixture.Find("map")->isVisible());
  EXPECT_EQ(fixture.window.focusWidget(), fixture.Find("mappa"));
  fixture.ShowMap({1, 1});
  EXPECT_TRUE(fixture.Find("map")->isVisible());
}

TEST(StatisticsWindow, ANumberIsPressedWithAKeyAndAGridWithoutRowHeadingsIsShownWhole) {
  Fixture fixture;
  int clicks = 0;
  fixture.form.loc_onair_144_tot.on_click = [&] { ++clicks; };
  fixture.runner.Run([&] { fixture.form.loc_onair_144_tot.caption = " 812 "; });
  QTest::keyClick(fixture.Find("loc_onair_144_tot"), Qt::Key_Space);
  EXPECT_EQ(clicks, 1);
  fixture.runner.Run([&] { fixture.form.Grid_field.Set(1, 0, "17"); });
  const auto* model = fixture.window.findChild<QTableView*>("Grid_field")->model();
  EXPECT_EQ(model->headerData(0, Qt::Horizontal), "KP");
  EXPECT_EQ(model->index(0, 0).data(), "17");
}

}  // namespace
}  // namespace velmar::test
