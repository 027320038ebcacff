#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/picture.h"
#include "platform/ports.h"
#include "publish/bands.h"
#include "publish/field_counters.h"
#include "publish/map_view.h"
#include "publish/statistics_form.h"
#include "publish/statistics_trap.h"
#include "publish/year_squares.h"
#include "session/contest_session.h"

namespace velmar {

/// The map of the statistics: draws what the totals have left in their files, counts it by field,
/// and keeps the lists of the year's squares.
class SquaresMap {
 public:
  SquaresMap(ContestSession& session, const Ports& ports, StatisticsTrap& trap,
             StatisticsForm& form);

  /// Draws the line of the DX between two locators, on this map and on those chosen later.
  void ShowDx(const std::string& from, const std::string& to);

 private:
  /// What is drawn over the background, in the order of the layers.
  struct Layers {
    std::vector<Shape> marks;
    std::vector<Shape> contacts;  ///< of one participant
    bool lines = false;           ///< of the fields, or of the grid of a closer map
    bool names = false;           ///< of the same
  };

  /// Joins an event to a control. The map is drawn once behind it, and also where it failed, so
  /// that what was plotted up to then is to be seen.
  void On(Control& control, void (SquaresMap::*event)());

  void mappa_Click();
  /// Chooses a map by its number, counted from 0.
  void Option_Click(std::size_t map);
  void esegui_Click();
  void linee_Click();
  void squares_old_Click();
  void resetta_Click();
  void illustra_Click();
  void Lista_partecipanti_Click();
  void scrivi_label_Click();
  void no_label_Click();
  void res_pos_label_Click();
  void Salva_statistica2_Click();
  void Stampa_form_statistica2_Click();

  const MapView& View() const { return MapViews().at(view_); }
  std::string Participants(std::string_view category) const;

  void ChooseMap(std::size_t map);
  void ClearLayers();
  void ChooseBand();
  void Plot();
  void PlotLocators();
  void PlotParticipants();
  void PlotSquares();
  void Mark(std::string_view locator, const MarkStyle& style);
  void ShowCounters(std::string_view text);
  std::string DeclaredLocator(std::string_view call, std::string_view category) const;
  void PlotContacts(std::string_view call, std::string_view category);
  void ShowLabel(const std::string& text);
  void HideLabel();
  void Redraw();

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Printer& printer_;
  PictureFiles& pictures_;
  StatisticsTrap& trap_;
  StatisticsForm& form_;
  YearSquares year_;

  std::size_t view_ = 0;
  const Band* band_ = &kContestBand;
  Layers layers_;
  FieldCounters counters_;
  std::optional<std::pair<std::string, std::string>> dx_;  ///< the locators of its ends
  Point label_place_;
  bool label_by_hand_ = false;
};

}  // namespace velmar
