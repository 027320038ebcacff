#include "publish/excel_export.h"

#include <gtest/gtest.h>

#include "publish/statistics_desk.h"

namespace velmar::test {
namespace {

const char* const kBook = "Velmar 144_Classifica Mese di gennaio 2025.xlsx";

struct ExportDesk : StatisticsDesk {
  ExportDesk() {
    workspace.With("Trofeo_Velmar/2IT/2IT data contest.dat", "2IT 250119\r\n");
    WithClassification({Classified("IK2QAA", "12"), Classified("IS0QBB", "11")});
    // What the call areas and the statistics leave.
    workspace.With("Trofeo_Velmar/2IT/XA  144 statistica.txt", "Log totali     2 \r\n");
    screen.Add(menu);
    screen.Add(export_form);
    clock.timer = 36'061;
    session.excel_major_version = 16;
  }

  ExportDesk& Exported() {
    exporting.Open();
    export_form.crea_cla_band_xls_01.Click();
    return *this;
  }

  Names Sheets() const {
    Names names;
    for (const Worksheet& sheet : workbooks.saved.back().second.sheets()) {
      names.push_back(sheet.name());
    }
    return names;
  }

  Names SavedAs() const {
    Names names;
    for (const auto& [path, book] : workbooks.saved) {
      names.push_back(path.substr(path.rfind('/') + 1));
    }
    return names;
  }

  MainForm menu;
  ExportForm export_form;
  ExcelExport exporting{session, ports, screen, menu, export_form};
};

TEST(ExcelExport, TheWorkbookOfAMonth) {
  ExportDesk desk;
  desk.exporting.Open();
  EXPECT_EQ(desk.export_form.titolo.caption,
            " Esportazione classifiche ' Velmar   2025' in formato Excel");
  desk.workspace.With(kBook, "an old one");
  desk.export_form.crea_cla_band_xls_01.Click();
  EXPECT_EQ(desk.SavedAs(),
            (Names{"144_Temporaneo_senza_tutto_21-01-2025 10_01_01.xlsx",
                   "144_Temporaneo_senza_statistica_21-01-2025 10_01_01.xlsx", kBook}));
  EXPECT_EQ(desk.Sheets(), (Names{"2IT-144", "2IT-TUTTO"}));
  EXPECT_EQ(
      desk.manager.boxes,
      (std::vector<Box>{Told(Join(" Procedura terminata correttamente.| File salvato in     : ",
                                  desk.workspace.paths().base(), "| Nome File excel : ", kBook))}));
  EXPECT_EQ(desk.workspace.Read(Join("Trofeo_Velmar/2IT/", kBook)), desk.workspace.Read(kBook));
  EXPECT_EQ(desk.export_form.crea_cla_band_xls_01.colour, colour::kRed);
  EXPECT_EQ(desk.export_form.LBL_tempo.caption, " Elaborazione Effettuata in  0.00  secondi");
  EXPECT_EQ(desk.export_form.Bar1.value, "54");
  const Workbook& book = desk.workbooks.saved.back().second;
  const Worksheet& copy = book.sheets().back();
  EXPECT_EQ(copy.row_heights().at(5), 11);
  EXPECT_EQ(copy.cells().at({6, 2}).value, CellValue("IS0QBB      "));
  EXPECT_EQ(copy.cells().at({7, 7}).value, CellValue(" ( * = QSO Error )"));
  EXPECT_NEAR(copy.page_setup->top_margin, 0.197, 0.001);

  desk.workspace.With("Trofeo_Velmar/a.mes", "x");
  desk.export_form.torna_casa.Click();
  EXPECT_TRUE(desk.menu.visible() && desk.menu.CLA_mese_excel.checked);
  EXPECT_EQ(desk.Read("a.mes"), (Names{"<missing>"}));
}

TEST(ExcelExport, TheChoicesDecideTheSheets) {
  ExportDesk desk;
  desk.exporting.Open();
  desk.export_form.SI_stat.Click();
  EXPECT_TRUE(desk.export_form.Check6.checked && !desk.export_form.NO_stat.checked);
  desk.export_form.SI_graf.Click();
  EXPECT_TRUE(desk.export_form.Check7.checked && !desk.export_form.Check8.checked);
  desk.export_form.SI_callarea.Click();
  desk.export_form.crea_cla_band_xls_01.Click();
  const Names sheets = desk.Sheets();
  ASSERT_EQ(sheets.size(), 3U + 14);
  EXPECT_EQ(sheets[2], "2IT-STAT");
  EXPECT_EQ(sheets.back(), "2IT ix1");
  EXPECT_EQ(desk.workbooks.saved.size(), 2U) << "one checkpoint: the statistics come behind it";
  desk.export_form.Check12_144.Click();
  desk.export_form.NO_stat.Click();
  desk.export_form.crea_cla_band_xls_01.Click();
  EXPECT_EQ(desk.Sheets().size(), 2U);
}

TEST(ExcelExport, WithoutAClassificationItsSheetsGo) {
  ExportDesk desk;
  const auto book = [&desk](bool statistics) {
    desk.exporting.Open();
    if (statistics) {
      desk.export_form.SI_stat.Click();
    }
    desk.export_form.crea_cla_band_xls_01.Click();
    return desk.Sheets();
  };
  desk.files.Remove(desk.session.workspace.classification("gennaio 2025"));
  EXPECT_EQ(book(false), (Names{"2EC-144"})) << "a workbook has one sheet at least";
  EXPECT_EQ(book(true), (Names{"2IT-STAT"}));
  EXPECT_EQ(desk.workbooks.saved.back().second.sheets().front().page_setup->center_footer,
            " Data contest = 2025.01.19");
  EXPECT_EQ(desk.manager.TakeFirstLines(), Names(2, " Procedura terminata correttamente."));
}

TEST(ExcelExport, AFailureIsToldInItsOwnWordsAndMayEndTheProgram) {
  const struct {
    ErrorNumber number;
    const char* first_line;
  } fatal[] = {{ErrorNumber::kPermissionDenied,
                " Accesso negato al file. ( il file \xE8 aperto da altro prog.)"},
               {ErrorNumber::kServerGone, " Probabilmente excel \xE8 stato chiuso e non \xE8 "},
               {ErrorNumber::kSubscript, " Probabilmente ci sono delle istanze aperte di excel"},
               {ErrorNumber::kObjectNotSet, " Probabilmente ci sono delle istanze aperte di excel"},
               {ErrorNumber::kNoApplication,
                " Impossibile proseguire. sono stati cancellati alcuni valori nel registro"},
               {ErrorNumber::kLibraryMissing,
                " Impossibile proseguire. sono mancanti alcuni riferimenti nel registro"}};
  for (const auto& tested : fatal) {
    ExportDesk desk;
    desk.exporting.Open();
    desk.workbooks.fails_with = tested.number;
    EXPECT_THROW(desk.export_form.crea_cla_band_xls_01.Click(), ProgramEnd);
    ASSERT_EQ(desk.manager.boxes.size(), 1U);
    EXPECT_EQ(desk.manager.boxes[0].lines[0], tested.first_line);
  }
  ExportDesk desk;
  desk.exporting.Open();
  desk.workbooks.fails_with = ErrorNumber::kDeviceError;
  desk.export_form.crea_cla_band_xls_01.Click();
  EXPECT_EQ(desk.manager.TakeFirstLines(),
            (Names{" errore numero: 57 nella linea : 10 10101 excel    ver_0.0.8", " ERRORE. "}));
  desk.workbooks.fails_with = ErrorNumber::kWorkbookRefused;
  desk.workbooks.failing_name = kBook;
  desk.export_form.crea_cla_band_xls_01.Click();
  EXPECT_EQ(desk.SavedAs().back(), "Non_salvato_21-01-2025 10_01_01.xlsx");
  EXPECT_EQ(desk.manager.TakeFirstLines(), (Names{" FILE NON SALVATO. "}));
}

}  // namespace
}  // namespace velmar::test
