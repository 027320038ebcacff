#include "publish/squares_map.h"

#include <gtest/gtest.h>

#include "publish/statistics_desk.h"

namespace velmar::test {
namespace {

/// The map over the files that the totals leave.
struct MapDesk : StatisticsDesk {
  MapDesk() {
    WithParticipants({{"IK2QAA", "JN45AA"}, {"DL3QCC", "JN58AA"}});
    WithQsos({{"IK2QAA", "IW2ABC", "JN45BB", 50},
              {"IK2QAA", "EA8QA", "IL18AA", 1000},
              {"DL3QCC", "IW2ABC", "JN45BB", 400}});
    workspace.With("Trofeo_Velmar/144loc_nodoppi.txt", "IL18AA\r\nJN45BB\r\nJN45  \r\n");
    Worked("IL18\r\nJN45\r\n");
    form.mappa.Click();
  }

  MapDesk& Worked(std::string_view squares) {
    workspace.With("Trofeo_Velmar/144sqr_144.txt", squares);
    return *this;
  }

  /// Clears the map and draws what one box asks for.
  void Plot(Check& check) {
    form.resetta.Click();
    for (Check* box : {&form.check_Field, &form.Check_part, &form.check_squares, &form.Check_line,
                       &form.Check_tutti}) {
      box->checked = box == &check;
    }
    form.esegui.Click();
  }

  template <typename Kind>
  std::vector<Kind> Drawn() const {
    std::vector<Kind> drawn;
    for (const Shape& shape : form.map.shapes()) {
      if (const Kind* kind = std::get_if<Kind>(&shape)) {
        drawn.push_back(*kind);
      }
    }
    return drawn;
  }

  std::string Field(std::size_t column) const { return Cells(form.Grid_field, 1).at(column); }
};

constexpr std::size_t kJN = 7;
constexpr std::size_t kTotal = 12;

TEST(SquaresMap, EachBoxDrawsAndCounts) {
  MapDesk desk;
  desk.Plot(desk.form.check_Field);
  EXPECT_EQ(desk.Drawn<Disc>(),
            (std::vector<Disc>{{{-195 + 39 + 1, 779 - 8 * 19 - 1}, 2, 65535, 255},
                               {{195 + 4 * 39 + 2, 399 - 5 * 19 - 2}, 2, 65535, 255},
                               {{195 + 4 * 39 + 19, 399 - 5 * 19 - 9}, 2, 65535, 255}}));
  EXPECT_EQ(desk.form.titolo.caption, "Locator on air");
  EXPECT_EQ(desk.Field(kJN), "2");
  EXPECT_EQ(desk.Field(kTotal), "2") << "IL is drawn and not counted";
  EXPECT_EQ(desk.form.squares_collegati.caption, "Squares collegati = 2");

  desk.Plot(desk.form.Check_part);
  EXPECT_EQ(desk.form.titolo.caption, "Partecip. in");
  EXPECT_EQ(desk.form.Lista_partecipanti.items.rows(),
            (Names{"IK2QAA      2IT", "DL3QCC      2IT"}));
  EXPECT_EQ(desk.Drawn<Disc>().size(), 2U);
  EXPECT_EQ(desk.Drawn<Disc>()[0].border, 0xFF0000);

  desk.form.Lista_partecipanti.Select(0);
  EXPECT_EQ(desk.form.nome_call.caption, "IK2QAA");
  EXPECT_EQ(desk.Drawn<Disc>().size(), 2U + 2 + 1) << "the squares that it worked, and itself";
  const Stroke contact{{{195 + 4 * 39 + 1, 399 - 5 * 19 - 1}, {-195 + 39 + 1, 779 - 8 * 19 - 1}},
                       desk.Drawn<Stroke>().back().colour};
  EXPECT_EQ(desk.Drawn<Stroke>().back(), contact);
  desk.form.Lista_partecipanti.Select(1);
  EXPECT_EQ(desk.Drawn<Disc>().size(), 2U + 1 + 1) << "the lines of one participant at a time";

  const std::size_t lines = desk.Drawn<Stroke>().size();
  desk.Plot(desk.form.Check_line);
  EXPECT_GT(desk.Drawn<Stroke>().size(), lines);
  EXPECT_TRUE(desk.form.field_labels()[kJN]->visible);
  desk.Plot(desk.form.Check_tutti);
  EXPECT_EQ(desk.Drawn<Disc>().size(), 3U + 2 + 2);
  EXPECT_EQ(desk.Field(kTotal), "5") << "the counters go on from block to block";
}

TEST(SquaresMap, TheYearIsPutAsideOnceAMonth) {
  MapDesk desk;
  const std::string earlier = "XA  144  Squares_anno_prima_di_gennaio 2025.ann";
  const std::string year = "XA  144  Squares_anno.ann";
  desk.Plot(desk.form.check_squares);
  ASSERT_EQ(desk.manager.boxes.size(), 1U);
  EXPECT_EQ(
      desk.manager.boxes[0],
      Told(" la lista degli squares dei mesi precedenti non esiste. verr\xE0 creata una lista a "
           "partire dal mese in corso | oppure trasporta la lista annuale del mese scorso nella "
           "directory di questo mese.   XA-B-C....   Squares_anno.ann)"));
  EXPECT_EQ(desk.Read(year), (Names{"IL18", "JN45"}));
  EXPECT_EQ(desk.Read(earlier), (Names{"<missing>"}));
  EXPECT_EQ(desk.form.squares_old.caption, "2");

  desk.workspace.With("Trofeo_Velmar/" + year, "JN61\r\nJN45\r\n");
  desk.Plot(desk.form.check_squares);
  EXPECT_EQ(desk.Read(earlier), (Names{"JN61", "JN45"}));
  EXPECT_EQ(desk.Read(year), (Names{"IL18", "JN45", "JN61"}));
  desk.Worked("JN70\r\n").Plot(desk.form.check_squares);
  EXPECT_EQ(desk.Read(earlier), (Names{"JN61", "JN45"})) << "not put aside a second time";
  EXPECT_EQ(desk.Read(year), (Names{"IL18", "JN45", "JN61", "JN70"}));
  EXPECT_EQ(desk.Read("XA  144  Squares_gennaio 2025.sqr"), (Names{"JN70"}));
  EXPECT_EQ(desk.form.List2.items.rows(), (Names{"JN70"}));
  EXPECT_EQ(desk.manager.boxes.size(), 1U);

  desk.form.resetta.Click();
  desk.form.squares_old.Click();
  EXPECT_EQ(desk.Drawn<Disc>().size(), 1U + 2);
  EXPECT_EQ(desk.Drawn<Disc>().back().fill, 0xFF0000);
  EXPECT_EQ(desk.form.squares_collegati.caption, "squares collegati nei mesi precedenti  = 2");
}

TEST(SquaresMap, OnlyTheMapsOfAllSquaresKeepTheYear) {
  MapDesk desk;
  desk.form.check_squares.checked = true;
  desk.form.Option2.Click();
  desk.form.esegui.Click();
  EXPECT_EQ(desk.Drawn<Disc>().back().radius, 5);
  EXPECT_EQ(desk.Read("XA  144  Squares_anno.ann"), (Names{"<missing>"}));
  EXPECT_FALSE(desk.form.squares_old.enabled);
  EXPECT_FALSE(desk.form.Option1.checked);
}

TEST(SquaresMap, ABrokenDiskLeavesEachListOldOrNew) {
  for (int change = 1; change <= 4; ++change) {
    MapDesk desk;
    desk.workspace.With("Trofeo_Velmar/XA  144  Squares_anno.ann", "JN61\r\n");
    desk.files.break_at_change = change;
    desk.Plot(desk.form.check_squares);
    EXPECT_EQ(desk.manager.boxes.size(), 1U) << change;
    EXPECT_EQ(desk.Drawn<Disc>().size(), 2U) << "what was plotted is to be seen";
    desk.files.break_at_change = 0;
    desk.Plot(desk.form.check_squares);
    EXPECT_EQ(desk.Read("XA  144  Squares_anno.ann"), (Names{"IL18", "JN45", "JN61"})) << change;
  }
}

TEST(SquaresMap, ALabelByHandStaysUntilItIsTakenBack) {
  MapDesk desk;
  const auto label = [&desk] {
    const auto drawn = desk.Drawn<Lettering>();
    return drawn.empty() ? Lettering{} : drawn.back();
  };
  desk.manager.inputs = {"*", "Contest"};
  desk.form.scrivi_label.Click();
  EXPECT_FALSE(desk.form.nome_call.visible);
  desk.form.scrivi_label.Click();
  EXPECT_EQ(desk.manager.asked.back(),
            (InputBox{"Label del grafico", {" Scrivi la label   (*) per uscire"}, ""}));
  EXPECT_EQ(label().text, "Contest");
  const Point first = label().centre;
  desk.form.on_label_moved({100, 200});
  EXPECT_EQ(label().centre, (Point{100, 200}));
  desk.form.res_pos_label.Click();
  EXPECT_EQ(label().centre, first);
  desk.form.Check_part.checked = true;
  desk.form.esegui.Click();
  desk.form.Lista_partecipanti.Select(0);
  EXPECT_EQ(label().text, "Contest");
  desk.form.no_label.Click();
  EXPECT_EQ(label().text, "");
  desk.form.Lista_partecipanti.Select(0);
  EXPECT_EQ(label().text, "IK2QAA");
}

TEST(SquaresMap, TheMapIsSavedAndPrinted) {
  MapDesk desk;
  desk.manager.picks = {std::nullopt, "/tmp/a b.d/mappa", "/tmp/mappa.png"};
  for (int i = 0; i < 3; ++i) {
    desk.form.Salva_statistica2.Click();
  }
  ASSERT_EQ(desk.pictures.saved.size(), 2U);
  EXPECT_EQ(desk.pictures.saved[0].first, "/tmp/a b.d/mappa.bmp");
  EXPECT_EQ(desk.pictures.saved[1].first, "/tmp/mappa.png");
  desk.form.Stampa_form_statistica2.Click();
  ASSERT_EQ(desk.printer.pictures.size(), 1U);
  EXPECT_EQ(desk.printer.pictures[0].second, desk.form.map.shapes().size());
  desk.printer.installed = false;
  desk.form.Stampa_form_statistica2.Click();
  EXPECT_EQ(desk.manager.boxes, (std::vector<Box>{Told(" Nessuna stampante installata. ")}));
}

}  // namespace
}  // namespace velmar::test
