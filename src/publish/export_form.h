#pragma once

#include "platform/ansi.h"
#include "platform/form.h"

namespace velmar {

/// The window of the month's workbook: what it is to hold, and how far its making is.
class ExportForm : public Form {
 public:
  ExportForm();

  Label& titolo = AddLabel("titolo");
  Label& ExcelOpen = AddLabel("ExcelOpen", "Excel");  ///< red while a process of it runs

  // The statistics.
  Frame& Conferma_stat = AddLabel("Conferma_stat", "Statistiche");
  Option& SI_stat = In(Conferma_stat, AddOption("SI_stat", "Con le statistiche"));
  Option& NO_stat = In(Conferma_stat, AddOption("NO_stat", "Senza statistiche"));
  Option& SI_graf = In(Conferma_stat, AddOption("SI_graf", "Grafico"));
  Option& SI_testo = In(Conferma_stat, AddOption("SI_testo", "Testo"));
  Check& Check6 = In(Conferma_stat, AddCheck("Check6", "Foglio delle statistiche"));
  Check& Check7 = In(Conferma_stat, AddCheck("Check7", "con il grafico"));
  Check& Check8 = In(Conferma_stat, AddCheck("Check8", "con il testo"));

  // The sheets by call area.
  Frame& Frame_callarea = AddLabel("Frame_callarea", "Classifiche per call area");
  Option& SI_callarea = In(Frame_callarea, AddOption("SI_callarea", "Con i fogli per call area"));
  Option& NO_callarea = In(Frame_callarea, AddOption("NO_callarea", "Senza i fogli per call area"));
  Check& Check12_144 = In(Frame_callarea, AddCheck("Check12_144", "144 MHz"));

  /// The rows of a page, which is fixed; the number is only shown.
  TextField& HScroll1 = AddText("HScroll1", "Righe per pagina");
  Label& div_pag = AddLabel("div_pag");

  Button& crea_cla_band_xls_01 = AddButton("crea_cla_band_xls_01", "Genera il file Excel");
  Label& LBL_stato = AddLabel("LBL_stato");
  ProgressBar& Bar1 = AddProgress("Bar1");
  Label& LBL_tempo = AddLabel("LBL_tempo");
  Button& torna_casa = AddButton("torna_casa", "&Esci");

  /// The choices as they are when the window opens.
  void Reset();
};

}  // namespace velmar
