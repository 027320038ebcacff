#include "publish/statistics_form.h"

#include <algorithm>
#include <string>
#include <vector>

#include "model/text.h"
#include "publish/area_counters.h"
#include "publish/countries.h"
#include "publish/field_counters.h"
#include "publish/map_view.h"

namespace velmar {

StatisticsForm::StatisticsForm()
    : Form("VLM2M_09_statistica", "Statistiche"), map(kMapWidth, kMapHeight, colour::kWhite) {
  LabelItalia();
  LabelEstero();
  Grid_field.Shape(2, kFields.size() + 1);
  for (std::size_t column = 0; column < kFields.size(); ++column) {
    const std::string field(kFields[column]);
    Grid_field.Set(0, column, field);
    field_labels_.at(column) = &In(Frame_mappa, AddLabel("Label_" + field, field));
    field_labels_.at(column)->visible = false;
  }
  Grid_field.Set(0, kFields.size(), "Totale");
  banda_qso.value = "2IT";
  frequenza.value = "144";
  trova.enabled = false;
  squares_old.enabled = false;
  Frame_grafica.visible = false;
  Frame_mappa.visible = false;
  Lista_sqr_fld_loc.visible = false;
  nome_call.visible = false;
}

Option& StatisticsForm::AddMap(std::size_t number) {
  return In(Frame_mappa,
            AddOption(Join("Option", number), std::string(MapViews().at(number - 1).title)));
}

void StatisticsForm::LabelItalia() {
  Grid_italia.Shape(2, kTotalColumn + 1);
  Grid_italia.Set(0, 0, "ON AIR");
  Grid_italia.Set(1, 0, "144");
  for (std::size_t column = 1; column <= kPrintedAreas.size(); ++column) {
    Grid_italia.Set(0, column, OnAirName(kPrintedAreas[column - 1]));
  }
  Grid_italia.Set(0, kTotalColumn, "Totale");
}

void StatisticsForm::LabelEstero() {
  Grid_estero.Shape(4, kOtherColumn + 1);
  Grid_estero.SetRow(0, 1,
                     std::vector<std::string>{"Tot. Estero", "Tot. Italia", "Totali", "Portatili"});
  for (std::size_t i = 0; i < kShownCountries; ++i) {
    Grid_estero.Set(0, kFirstCountryColumn + i, kCountryLabels[i].in_grid);
  }
  Grid_estero.Set(0, kOtherColumn, kOtherCountries);
  Grid_estero.Set(1, 0, "144");
}

}  // namespace velmar
