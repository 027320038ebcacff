#include "publish/statistics.h"

#include <optional>
#include <utility>

#include "model/classification_row.h"
#include "model/sorted_list.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "publish/counted_rows.h"
#include "publish/farthest_qso.h"

namespace velmar {

Statistics::Statistics(ContestSession& session, const Ports& ports, Screen& screen, Form& main,
                       StatisticsForm& form, std::function<void()> open_absent)
    : session_(session),
      files_(ports.files),
      manager_(ports.manager),
      screen_(screen),
      main_(main),
      form_(form),
      open_absent_(std::move(open_absent)),
      trap_(ports.manager),
      totals_(session, ports.files, ports.manager, trap_, form, on_air_),
      area_qsos_(session, ports.files, trap_, form),
      calls_worked_(session, ports.files, ports.manager, trap_, form, on_air_),
      map_(session, ports, trap_, form) {
  JoinControls();
}

void Statistics::JoinControls() {
  form_.calcola_qso.on_click = [this] { totals_.calcola_qso_Click(); };
  form_.calcola.on_click = [this] { totals_.calcola_qso_Click(); };
  form_.banda_qso.on_change = [this] { area_qsos_.banda_qso_Change(); };
  form_.banda_qso.on_click = form_.banda_qso.on_change;
  form_.trova.on_click = [this] { area_qsos_.trova_Click(); };
  form_.qso_est.on_click = [this] { calls_worked_.qso_est_Click(); };
  form_.dx_144_tot.on_click = [this] { dx_144_tot_Click(); };
  form_.loc_onair_144_tot.on_click = [this] { loc_onair_144_tot_Click(); };
  form_.sqr_onair_144_tot.on_click = [this] { sqr_onair_144_tot_Click(); };
  form_.field_onair_144_tot.on_click = [this] { field_onair_144_tot_Click(); };
  form_.Testo.on_click = [this] { Testo_Click(); };
  form_.Grafica.on_click = [this] { Grafica_Click(); };
  form_.Assenti.on_click = [this] { Assenti_Click(); };
  form_.usci.on_click = [this] { usci_Click(); };
}

void Statistics::Open() {
  form_.title = Join("V A R T O  Velmar - Statistiche  - contest ", session_.contest_label);
  screen_.Show(form_);
}

void Statistics::dx_144_tot_Click() {
  if (!form_.dx_144_tot.caption.empty()) {
    form_.dx_144_tot.colour = colour::kYellow;
    trap_.Procedure([this] { TellDx(); });
    form_.dx_144_tot.colour = colour::kWhite;
  }
}

void Statistics::TellDx() {
  const CountedRows library(files_, session_.workspace.store_file(StoreFile::kLibreria));
  const auto dx = FarthestQso(library);
  if (!dx) {
    return;
  }
  const std::string_view owner = Trim(Cut(*dx, libreria_row::kOwner));
  std::string locator;
  for (const std::string_view row :
       CountedRows(files_, session_.workspace.classification(session_.category_month))) {
    if (ClassificaRow(row).Call() == owner) {
      locator = ClassificaRow(row).Locator();
      break;
    }
  }
  const std::string_view worked = Cut(*dx, libreria_row::kLocator);
  manager_.Show(
      {.lines = {Join(" Il proprietario del DX in 144 Mhz è  "_a, owner, "  ", locator,
                      "  che ha collegato  ", Trim(Cut(*dx, libreria_row::kCall)), " nel locator ",
                      worked, "  qrb =  ", static_cast<long long>(PointsOf(*dx)),
                      "     nella routine 144 Mhz")}});
  map_.ShowDx(locator, std::string(worked));
}

void Statistics::loc_onair_144_tot_Click() {
  constexpr std::size_t kLocator = 6;
  ShowOrHideList(form_.loc_onair_144_tot, kLocator);
}

void Statistics::sqr_onair_144_tot_Click() {
  constexpr std::size_t kSquare = 4;
  ShowOrHideList(form_.sqr_onair_144_tot, kSquare);
}

void Statistics::field_onair_144_tot_Click() {
  constexpr std::size_t kField = 2;
  ShowOrHideList(form_.field_onair_144_tot, kField);
}

/// Lists the locators that were worked by their first `width` characters, or hides the list that
/// the caption stands for.
void Statistics::ShowOrHideList(Label& caption, std::size_t width) {
  const bool shown = form_.Lista_sqr_fld_loc.visible && caption.colour == colour::kYellow;
  for (Label* label :
       {&form_.loc_onair_144_tot, &form_.sqr_onair_144_tot, &form_.field_onair_144_tot}) {
    label->colour = colour::kWhite;
  }
  form_.Lista_sqr_fld_loc.visible = false;
  if (shown) {
    return;
  }
  trap_.Procedure([&] {
    SortedList locators;
    for (const std::string_view row :
         CountedRows(files_, session_.workspace.store_file(StoreFile::kLibreria))) {
      locators.Add(std::string(Cut(row, libreria_row::kLocator)));
    }
    std::vector<std::string> rows = Distinct(locators.rows(), width);
    for (std::string& row : rows) {
      row = Left(row, width);
    }
    form_.Lista_sqr_fld_loc.Fill(std::move(rows));
    form_.Lista_sqr_fld_loc.visible = true;
    caption.colour = colour::kYellow;
  });
}

void Statistics::Testo_Click() {
  ShowPage(false);
}

void Statistics::Grafica_Click() {
  ShowPage(true);
}

void Statistics::ShowPage(bool map) {
  form_.Frame_testo.visible = !map;
  form_.Frame_grafica.visible = map;
}

void Statistics::Assenti_Click() {
  screen_.Hide(form_);
  open_absent_();
}

void Statistics::usci_Click() {
  trap_.Procedure([this] { RemoveMatching(files_, session_.workspace.store(), "*.mes"); });
  screen_.Hide(form_);
  screen_.Show(main_);
}

}  // namespace velmar
