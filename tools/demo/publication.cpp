#include "demo/publication.h"

#include <algorithm>
#include <iostream>

#include "demo/played_program.h"
#include "demo/story.h"
#include "model/lines.h"
#include "model/published_files.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr std::string_view kMapName = "mappa.png";
constexpr std::size_t kShownAbsent = 5;
constexpr std::size_t kShownLines = 14;

void ShowAreas(FileSystem& files, const PublishedFiles& published) {
  for (std::size_t i = 0; i < kCallAreaNames.size(); ++i) {
    const auto area = static_cast<CallArea>(i);
    const std::string text = files.ReadAll(published.area_classification(area));
    std::cout << "  " << NameOf(area) << "  " << SplitLines(text).size() - 1 << " logs\n";
  }
}

void ShowStatistics(PlayedProgram& program, FileSystem& files, const PublishedFiles& published) {
  Heading("The statistics");
  program.Tell(
      "click statistiche\n"
      "click calcola_qso\n"
      "select banda_qso 0\n"
      "click trova\n"
      "click qso_est\n"
      "click dx_144_tot\n");
  ShowText(files, published.statistics(), kShownLines);
}

void DrawMap(PlayedProgram& program) {
  Heading("The map");
  program.Tell(
      Join("click Grafica\n"
           "click mappa\n"
           "tick Check_tutti\n"
           "click esegui\n"
           "input Contest 144 MHz\n"
           "click scrivi_label\n"
           "pick ",
           kMapName, "\nclick Salva_statistica2\n"));
  std::cout << "  " << program.See("squares_collegati").caption << ", the year has "
            << program.See("squares_old").caption << " squares\n";
}

void RebuildAbsentLog(PlayedProgram& program) {
  Heading("The absent stations, and the log that one of them would have sent");
  program.Tell(
      "click VLM2M_09_statistica.Assenti\n"
      "click Verifica_assenti\n");
  const auto& absent = program.See("VLM2M_10_assenti.Lista").items.rows();
  for (std::size_t i = 0; i < std::min(kShownAbsent, absent.size()); ++i) {
    std::cout << "  " << Utf8FromAnsi(absent[i]) << '\n';
  }
  program.Tell("select VLM2M_10_assenti.Lista 0\n");
  std::cout << "  " << program.See("Label_call").caption << ": "
            << program.See("tot_qso144").caption << " QSOs, "
            << program.See("punt_teorico144").caption << " km, place "
            << program.See("pos_teo144").caption << '\n';
}

}  // namespace

Publication PublishContest(FileSystem& files, const Workspace& workspace,
                           const std::string& month) {
  const PublishedFiles published(workspace, month);
  PlayedProgram program(workspace.base());
  Heading("The fifth start: the classifications by call area");
  program.Tell(
      "start\n"
      "click OK_mese\n"
      "click Command2\n"
      "click cla_x_callarea\n");
  ShowAreas(files, published);
  ShowStatistics(program, files, published);
  DrawMap(program);
  RebuildAbsentLog(program);
  Heading("The workbook of the month");
  program.Tell(
      "click VLM2M_10_assenti.usci\n"
      "click CLA_mese_excel\n"
      "click SI_stat\n"
      "click SI_callarea\n"
      "click crea_cla_band_xls_01\n"
      "click torna_casa\n"
      "answer yes\n"
      "click VLM2M_01_input.esci\n");
  return {.map = Join(workspace.base(), "/", kMapName),
          .workbook = Join(workspace.base(), "/", published.workbook_name())};
}

}  // namespace velmar
