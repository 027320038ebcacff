#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>

#include "platform/form.h"
#include "platform/picture.h"
#include "publish/field_counters.h"

namespace velmar {

/// The window of the statistics: the counts of the contest, and the map that they are drawn on.
class StatisticsForm : public Form {
  std::array<Label*, kFields.size()> field_labels_{};

 public:
  StatisticsForm();

  // The menus.
  Menu& calcola = AddMenu("calcola", "&Calcola");
  Menu& Modo = AddMenu("Modo", "&Modo");
  Menu& Testo = AddMenu("Testo", "&Testo", &Modo);
  Menu& Grafica = AddMenu("Grafica", "&Grafica", &Modo);
  Menu& menu_mappa = AddMenu("menu_mappa", "Ma&ppa");
  Menu& esegui2 = AddMenu("esegui2", "Esegui", &menu_mappa);
  Menu& linee2 = AddMenu("linee2", "Field", &menu_mappa);
  Menu& Reset = AddMenu("Reset", "Reset", &menu_mappa);
  Menu& Assenti = AddMenu("Assenti", "&Assenti");

  // The runs.
  Frame& Frame_testo = AddLabel("Frame_testo", "Statistiche");
  Button& calcola_qso = In(Frame_testo, AddButton("calcola_qso", "Calcola"));
  Combo& banda_qso = In(Frame_testo, AddCombo("banda_qso", {"2IT", "3IT", "2K3", "4IT", "5K7",
                                                            "10G", "24G", "1EC", "1IT", "tutti"}));
  Button& trova = In(Frame_testo, AddButton("trova", "Trova qso per call area"));
  Button& qso_est = In(Frame_testo, AddButton("qso_est", "Call collegati e in aria"));

  // What calcola_qso counted.
  Label& qso_144_tot = In(Frame_testo, AddLabel("qso_144_tot"));
  Label& dx_144_tot = In(Frame_testo, AddLabel("dx_144_tot"));    ///< km
  Label& qrb_144_tot = In(Frame_testo, AddLabel("qrb_144_tot"));  ///< km
  Label& onair_144_tot = In(Frame_testo, AddLabel("onair_144_tot"));
  Label& paesi_144_tot = In(Frame_testo, AddLabel("paesi_144_tot"));
  Label& loc_onair_144_tot = In(Frame_testo, AddLabel("loc_onair_144_tot"));
  Label& sqr_onair_144_tot = In(Frame_testo, AddLabel("sqr_onair_144_tot"));
  Label& field_onair_144_tot = In(Frame_testo, AddLabel("field_onair_144_tot"));
  List& Lista_sqr_fld_loc = In(Frame_testo, AddList("Lista_sqr_fld_loc"));

  // The QSOs by their points.
  Label& menocento = In(Frame_testo, AddLabel("menocento"));  ///< below 101
  Label& centre = In(Frame_testo, AddLabel("centre"));        ///< from 101
  Label& trecin = In(Frame_testo, AddLabel("trecin"));        ///< from 301
  Label& cinset = In(Frame_testo, AddLabel("cinset"));        ///< from 501
  Label& setnov = In(Frame_testo, AddLabel("setnov"));        ///< from 701
  Label& piunov = In(Frame_testo, AddLabel("piunov"));        ///< from 901
  Label& piu1200 = In(Frame_testo, AddLabel("piu1200"));      ///< from 1000, whatever its name says

  // What trova and qso_est counted.
  Label& qso_italia = In(Frame_testo, AddLabel("qso_italia"));
  Label& qso_estero = In(Frame_testo, AddLabel("qso_estero"));
  Label& totale_qso = In(Frame_testo, AddLabel("totale_qso"));
  Label& dopi = In(Frame_testo, AddLabel("dopi"));
  Label& tot_qso_est = In(Frame_testo, AddLabel("tot_qso_est"));

  Grid& Grid_italia = In(Frame_testo, AddGrid("Grid_italia"));
  Grid& Grid_estero = In(Frame_testo, AddGrid("Grid_estero"));

  // The map.
  Frame& Frame_grafica = AddLabel("Frame_grafica", "Grafica");
  Combo& frequenza = In(Frame_grafica, AddCombo("frequenza", {"144", "432", "1296", "2320", "5760",
                                                              "10 G", "24 G", "50", "1EC"}));
  Button& mappa = In(Frame_grafica, AddButton("mappa", "mappa 1"));
  Frame& Frame_mappa = In(Frame_grafica, AddLabel("Frame_mappa", "Mappa"));
  Option& Option1 = AddMap(1);
  Option& Option2 = AddMap(2);
  Option& Option3 = AddMap(3);
  Option& Option4 = AddMap(4);
  Option& Option5 = AddMap(5);
  Option& Option6 = AddMap(6);
  Option& Option7 = AddMap(7);

  Check& check_Field = In(Frame_mappa, AddCheck("check_Field", "Locator on air"));
  Check& Check_part = In(Frame_mappa, AddCheck("Check_part", "Partecipanti"));
  Check& check_squares = In(Frame_mappa, AddCheck("check_squares", "Squares"));
  Check& Check_line = In(Frame_mappa, AddCheck("Check_line", "Linee"));
  Check& Check_tutti = In(Frame_mappa, AddCheck("Check_tutti", "Tutti"));
  Button& esegui = In(Frame_mappa, AddButton("esegui", "Esegui"));
  Button& linee = In(Frame_mappa, AddButton("linee", "Field"));
  Button& squares_old = In(Frame_mappa, AddButton("squares_old", "squares old"));
  Button& illustra = In(Frame_mappa, AddButton("illustra", "Ridisegna"));
  Button& resetta = In(Frame_mappa, AddButton("resetta", "Reset"));

  Label& titolo = In(Frame_mappa, AddLabel("titolo"));
  Label& squares_collegati = In(Frame_mappa, AddLabel("squares_collegati"));
  Label& nome_call = In(Frame_mappa, AddLabel("nome_call"));  ///< lies on the map
  Button& scrivi_label = In(Frame_mappa, AddButton("scrivi_label", "scrivi label"));
  Button& no_label = In(Frame_mappa, AddButton("no_label", "NO label"));
  Button& res_pos_label = In(Frame_mappa, AddButton("res_pos_label", "Reset pos"));
  Button& Salva_statistica2 = In(Frame_mappa, AddButton("Salva_statistica2", "Salva"));
  Button& Stampa_form_statistica2 = In(Frame_mappa, AddButton("Stampa_form_statistica2", "Stampa"));

  Grid& Grid_field = In(Frame_mappa, AddGrid("Grid_field"));
  List& Lista_partecipanti = In(Frame_mappa, AddList("Lista_partecipanti"));
  List& List2 = In(Frame_mappa, AddList("List2"));

  Button& usci = AddButton("usci", "&Esci");

  /// The names of the fields, which lie on the general map, in the order of kFields.
  const std::array<Label*, kFields.size()>& field_labels() const { return field_labels_; }

  /// The chosen map with all that was drawn on it, as it is to be seen, printed and saved: its
  /// background, the marks, and the label where one is shown.
  Picture map;
  std::size_t map_version = 0;  ///< another one behind each change of the map

  /// A person moved the label; its place is its centre, in the units of the map.
  std::function<void(Point place)> on_label_moved;

  /// The seven maps to choose from, in their order.
  std::array<Option*, 7> map_options() {
    return {&Option1, &Option2, &Option3, &Option4, &Option5, &Option6, &Option7};
  }

  // The columns of the grids.
  static constexpr std::size_t kTotalColumn = 15;  ///< of Grid_italia, behind the areas
  static constexpr std::size_t kFirstCountryColumn = 6;
  static constexpr std::size_t kOtherColumn = 55;  ///< of Grid_estero

 private:
  void LabelItalia();
  void LabelEstero();
  /// The choice of a map by its number, counted from 1.
  Option& AddMap(std::size_t number);
};

}  // namespace velmar
