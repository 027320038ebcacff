#pragma once

#include <vector>

#include "platform/ansi.h"
#include "platform/file_system.h"
#include "platform/form.h"

namespace velmar {

/// The main screen: the menu with the numbered procedure, and the panel of the log that is read.
class MainForm : public Form {
  std::vector<Control*> panel_;  // ahead of the controls that enter it

 public:
  MainForm();

  // The menus.
  Menu& menu_file = AddMenu("menu_file", "&File");
  Menu& apri = AddMenu("apri", "Apri file log EDI", &menu_file);
  Menu& Marcatura = AddMenu("Marcatura", "&Inserisci file", &menu_file);
  Menu& aggiorna_categoria = AddMenu("aggiorna_categoria", "aggiorna categoria", &menu_file);
  Menu& vis_puls = AddMenu("vis_puls", "Schermata iniziale", &menu_file);
  Menu& Exit = AddMenu("Exit", "&Exit", &menu_file);

  Menu& controllo = AddMenu("controllo", "&MENU ' di controllo");
  Menu& ass_mese = AddMenu("ass_mese", "Assegna il &nome del mese al Velmar", &controllo);
  Menu& prassi = AddMenu("prassi", "[ segui la prassi numerata da 1 a 7]", &controllo);
  Menu& restore_1KM = AddMenu("restore_1KM", "1) Ricalcola log a 1 punto a KM", &controllo);
  Menu& Rinomina_ita = AddMenu("Rinomina_ita", "2) &Rinomina i file dei log", &controllo);
  Menu& Inserire_log = AddMenu("Inserire_log", "3) &Leggere e Inserire i log", &controllo);
  Menu& controlla_locatori =
      AddMenu("controlla_locatori", "4) &CONTROLLO e VERIFICA LOG", &controllo);
  Menu& cla_x_callarea = AddMenu("cla_x_callarea", "6) Classifica x call area", &controllo);
  Menu& CLA_mese_excel = AddMenu("CLA_mese_excel", "7) Genera &classifica in Excel", &controllo);

  Menu& Utility = AddMenu("Utility", "&Utility");
  Menu& Elimina_log = AddMenu("Elimina_log", "&Elimina Log", &Utility);
  Menu& Assenti = AddMenu("Assenti", "&Assenti", &Utility);
  Menu& Testlog = AddMenu("Testlog", "Test LOG", &Utility);
  Menu& statistiche = AddMenu("statistiche", "&Statistiche");
  Menu& Info = AddMenu("Info", "Inf&o");

  // The machine.
  Label& OS_versione = AddLabel("OS_versione");
  Label& ExcelOpen = AddLabel("ExcelOpen", "Excel");
  Label& Label_excel = AddLabel("Label_excel");
  Label& LBL_VersioneXLS = AddLabel("LBL_VersioneXLS");

  // The commands and modes of the third step.
  Button& caricaedi = AddButton("caricaedi", "C&arica log EDI");
  Button& Marcafile = AddButton("Marcafile", "Inserisci file");
  Button& Aggiorna = AddButton("Aggiorna", "Aggiorna categoria");
  Check& Check_AUT_entry = AddCheck("Check_AUT_entry", "Prendi il primo file della cartella");
  Check& Ins_auto = AddCheck("Ins_auto", "Inserimento automatico");
  Check& turbo = AddCheck("turbo", "Turbo");
  Label& info_turbo = AddLabel("info_turbo",
                               "Turbo: i log vengono letti e inseriti uno dopo l' altro. Esc per "
                               "fermare."_a);
  Label& Inserimento_OK = AddLabel("Inserimento_OK", "Log inserito");
  TextField& Text3 = AddText("Text3");
  TextField& Dir1 = AddText("Dir1", "Cartella");  ///< whose files are listed
  Label& num_file2 = AddLabel("num_file2");
  FileList& File1 = AddFileList("File1");

  ProgressBar& Bar1 = AddProgress("Bar1");
  Label& Nomedelfile = AddLabel("Nomedelfile");  ///< path of the log that is read
  Label& ultimo_call = AddLabel("ultimo_call");  ///< its name
  Label& Lbl_cat = AddLabel("Lbl_cat");          ///< its category
  Label& perc_mem = AddLabel("perc_mem");        ///< lines of the library
  Label& Label_sezione = AddLabel("Label_sezione", "Selezionare una sezione");
  Label& nome_sez = AddLabel("nome_sez");
  Label& cod_sez = AddLabel("cod_sez");

  // The header of the log on screen.
  TextField& NomeContest = AddPanel("NomeContest", "Contest");
  TextField& datainizio = AddPanel("datainizio", "Data inizio");
  TextField& datafine = AddPanel("datafine", "Data fine");
  TextField& Callusato = AddPanel("Callusato", "Call");
  TextField& locusato = AddPanel("locusato", "Locatore");
  TextField& codice = AddPanel("codice", "Codice scambiato");
  TextField& qth = AddPanel("qth", "QTH");
  TextField& categoria = AddPanel("categoria", "Categoria");
  TextField& frequenza = AddPanel("frequenza", "Frequenza");
  Combo& newcate = AddPanelCombo("newcate", {"2IT", "3IT", "UNICA"});
  TextField& club = AddPanel("club", "Sezione");
  TextField& operatore = AddPanel("operatore", "Operatore");
  TextField& callresp = AddPanel("callresp", "Call responsabile");
  TextField& indirizzo = AddPanel("indirizzo", "Indirizzo");
  TextField& citta = AddPanel("citta", "Città"_a);
  TextField& telefono = AddPanel("telefono", "Telefono / mail");
  TextField& altri_op = AddPanel("altri_op", "Altri operatori");
  TextField& trasmettitore = AddPanel("trasmettitore", "Trasmettitore");
  TextField& potenza = AddPanel("potenza", "Potenza");
  TextField& ricevitore = AddPanel("ricevitore", "Ricevitore");
  TextField& antenna = AddPanel("antenna", "Antenna");
  TextField& altezza = AddPanel("altezza", "Altezza s.l.m.");
  TextField& qsovalidi = AddPanel("qsovalidi", "Qso validi");
  TextField& punti = AddPanel("punti", "Punti dichiarati");
  TextField& squares = AddPanel("squares", "Squares");
  TextField& scambi = AddPanel("scambi", "Scambi");
  TextField& dxcc = AddPanel("dxcc", "DXCC");
  TextField& QRB = AddPanel("QRB", "Punteggio totale");
  TextField& codxc = AddPanel("codxc", "DX");
  TextField& Rem1 = AddPanel("Rem1", "Note");
  TextField& doppi = AddPanel("doppi", "Qso doppi");
  TextField& qsoerror = AddPanel("qsoerror", "Qso error");
  TextField& sommaqrb = AddPanel("sommaqrb", "Somma QRB");
  TextField& percentuale = AddPanel("percentuale", "Percentuale");
  TextField& differenza = AddPanel("differenza", "Differenza");
  Option& Rookie = AddOption("Rookie", "Rookie");
  Option& Young = AddOption("Young", "Young");
  Button& Command1 = AddButton("Command1", "Nessuno");

  Button& esci = AddButton("esci", "&Esci");

  /// The controls of the header of the log.
  const std::vector<Control*>& panel() const { return panel_; }

  /// Show or hide the header of the log as one block.
  void ShowHeaderPanel() { SetPanel(true); }
  void HideHeaderPanel() { SetPanel(false); }

  /// Shows or hides the third step: its commands and modes, and the header of a log. The list of
  /// logs is shown by its own check box.
  void ShowInsertStep(bool seen);

  /// Empties the header of the log, takes its colours away and clears the operator mark's buttons.
  void ClearPanel();
  void ClearColours();

  /// Takes the turbo mode back.
  void StopTurbo();

  /// Points the file list at a folder, puts the number of its files into `num_file2` and selects
  /// the first. ShowFiles is for one who has read the folder already.
  void ListFiles(FileSystem& files, const std::string& folder);
  void ShowFiles(const std::string& folder, std::vector<std::string> names);

  /// Takes a file out of the list.
  void ForgetFile(const std::string& name);

 private:
  TextField& AddPanel(const std::string& name, const std::string& caption);
  Combo& AddPanelCombo(const std::string& name, std::vector<std::string> rows);
  void SetPanel(bool seen);
  void CountFiles();
};

}  // namespace velmar
