#include "publish/area_classifications.h"

#include <gtest/gtest.h>

#include "publish/statistics_desk.h"

namespace velmar::test {
namespace {

struct AreaDesk : StatisticsDesk {
  MenuTrap trap{manager};
  AreaClassifications areas{session, files, manager, trap};

  Names Area(const std::string& area) {
    return Read("2IT/2IT - " + area + " Classifica x call area gennaio 2025.cla");
  }
};

const std::string kHeader(classification_row::kHeader);

TEST(AreaClassifications, EachAreaHasItsRowsInTheirOrderUnderTheHeader) {
  AreaDesk desk;
  const std::string veneto = desk.Classified("IW3HHH", "12");
  const std::string trento = desk.Classified("IW3AAA", "11");
  const std::string club = desk.Classified("IQ0SS", "10");
  const std::string croatian = desk.Classified("9A1QQ", "9");
  const std::string milan = desk.Classified("IK2QAA", "8");
  const std::string piedmont = desk.Classified("I1QAA", "7");
  desk.workspace.With("Trofeo_Velmar/2IT/2IT - I 8 Classifica x call area gennaio 2025.cla", "old");
  desk.WithClassification({veneto, trento, club, croatian, milan, piedmont});
  desk.areas.cla_x_callarea_Click();
  EXPECT_EQ(desk.manager.boxes,
            (std::vector<Box>{Told(" classifiche Velmar per call area eseguita")}));
  EXPECT_EQ(desk.Area("I 3"), (Names{kHeader, veneto}));
  EXPECT_EQ(desk.Area("IN3"), (Names{kHeader, trento}));
  EXPECT_EQ(desk.Area("I 0"), (Names{kHeader, club}));
  EXPECT_EQ(desk.Area("I 1"), (Names{kHeader, croatian, piedmont}));
  EXPECT_EQ(desk.Area("I 9"), (Names{kHeader, croatian})) << "each area decides for itself";
  EXPECT_EQ(desk.Area("I 8"), (Names{kHeader})) << "an older file is replaced";
  EXPECT_EQ(desk.workspace.Names("Trofeo_Velmar/2IT").size(), 14U + 2)
      << "with the classification and the category's month";
}

TEST(AreaClassifications, WithoutAClassificationNothingIsWritten) {
  AreaDesk desk;
  const auto before = desk.workspace.Everything();
  desk.areas.cla_x_callarea_Click();
  EXPECT_EQ(desk.manager.boxes, (std::vector<Box>{Told(" Nessuna classifica  2IT \xE8 presente")}));
  EXPECT_EQ(desk.workspace.Everything(), before);
}

TEST(AreaClassifications, AnAreaHoldsFiveHundredRows) {
  AreaDesk desk;
  desk.WithClassification(Names(500, desk.Classified("IK5QAA", "1")));
  desk.areas.cla_x_callarea_Click();
  EXPECT_EQ(desk.Area("I 5").size(), 501U);
  desk.manager.boxes.clear();
  desk.WithClassification(Names(501, desk.Classified("IK2QAA", "1")));
  desk.areas.cla_x_callarea_Click();
  ASSERT_EQ(desk.manager.boxes.size(), 1U);
  EXPECT_TRUE(desk.manager.boxes[0].lines[0].starts_with(" errore imprevisto numero: 9 "));
  EXPECT_EQ(desk.Area("I 5").size(), 501U) << "the areas behind it are the old ones";
}

}  // namespace
}  // namespace velmar::test
