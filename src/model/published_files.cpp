#include "model/published_files.h"

#include "model/text.h"

namespace velmar {

PublishedFiles::PublishedFiles(const Workspace& workspace, std::string_view month)
    : workspace_(workspace), month_(Lower(month)) {}

std::string PublishedFiles::InStore(std::string_view name) const {
  return Join(workspace_.store(), "/", name);
}

std::string PublishedFiles::InCategory(std::string_view name) const {
  return Join(workspace_.category(), "/", name);
}

std::string PublishedFiles::area_classification(CallArea area) const {
  return InCategory(
      Join(kCategory, " - ", NameOf(area), " Classifica x call area ", month_, ".cla"));
}

std::string PublishedFiles::statistics() const {
  return InCategory("XA  144 statistica.txt");
}

std::string PublishedFiles::unknown_calls() const {
  return InCategory("altri.est");
}

std::string PublishedFiles::countries() const {
  return InCategory("TUTTI I COUNTRY VLM.est");
}

std::string PublishedFiles::placed_library() const {
  return InStore("libreria_totale.tot");
}

std::string PublishedFiles::band_counts(std::string_view band_label) const {
  return InStore(Join(band_label, "statistica.txt"));
}

std::string PublishedFiles::on_air_flags() const {
  return InStore("144nodoppi.txt");
}

std::string PublishedFiles::on_air() const {
  return InStore(Join(kCategory, " nodoppi ", month_, ".mnt"));
}

std::string PublishedFiles::foreign_calls() const {
  return InStore(Join(kCategory, " Solo i call esteri.est"));
}

std::string PublishedFiles::locators(std::string_view band) const {
  return InStore(Join(band, "loc_nodoppi.txt"));
}

std::string PublishedFiles::squares(std::string_view band) const {
  return InStore(Join(band, "sqr_", band, ".txt"));
}

std::string PublishedFiles::fields(std::string_view band) const {
  return InStore(Join(band, "fld_", band, ".txt"));
}

std::string PublishedFiles::area_qsos(std::string_view category) const {
  return InStore(Join(category, " Statistica_", month_, ".txt"));
}

std::string PublishedFiles::participants(std::string_view category) const {
  return InStore(Join(category, " Partecipanti_", month_, ".ese"));
}

std::string PublishedFiles::italian_calls(std::string_view category) const {
  return InStore(Join(category, " OM ita mensili ", month_, ".ese"));
}

std::string PublishedFiles::zone_calls(std::string_view category, bool italian,
                                       std::string_view zone) const {
  return InStore(Join(category, italian ? " Part_ita" : " Part_est", "_mensili da zona ", zone,
                      "  ", month_, ".mes"));
}

std::string PublishedFiles::workbook_name() const {
  return Join("Velmar 144_Classifica Mese di ", month_, ".xlsx");
}

std::string PublishedFiles::year_squares(std::string_view band_label) const {
  return InStore(Join(band_label, " Squares_anno.ann"));
}

std::string PublishedFiles::earlier_squares(std::string_view band_label) const {
  return InStore(Join(band_label, " Squares_anno_prima_di_", month_, ".ann"));
}

std::string PublishedFiles::month_squares(std::string_view band_label) const {
  return InStore(Join(band_label, " Squares_", month_, ".sqr"));
}

}  // namespace velmar
