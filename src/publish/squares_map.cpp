#include "publish/squares_map.h"

#include <algorithm>
#include <array>
#include <utility>

#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/form.h"
#include "publish/counted_rows.h"
#include "publish/map_background.h"
#include "publish/month_files.h"
#include "session/failure.h"

namespace velmar {

namespace {

constexpr Point kLabelPlace{kMapWidth / 2, 24};
constexpr double kLabelHeight = 18;
constexpr int kContactColour = 0x804000;
constexpr double kDxWidth = 2.5;

constexpr std::string_view kWorked = "Squares collegati = ";

/// A row of the list of participants: the call, then the category.
constexpr Column kListedCall{1, 12};
constexpr Column kListedCategory{13, 3};

/// The last maps show the names of their grid at once.
constexpr std::size_t kFirstNamedMap = 3;

std::string WithEnding(const std::string& path, std::string_view ending) {
  const std::size_t name = path.find_last_of('/') + 1;
  return path.find('.', name) == std::string::npos ? Join(path, ".", ending) : path;
}

}  // namespace

SquaresMap::SquaresMap(ContestSession& session, const Ports& ports, StatisticsTrap& trap,
                       StatisticsForm& form)
    : session_(session),
      files_(ports.files),
      manager_(ports.manager),
      printer_(ports.printer),
      pictures_(ports.pictures),
      trap_(trap),
      form_(form),
      year_(session, ports.files, ports.manager),
      label_place_(kLabelPlace) {
  On(form.mappa, &SquaresMap::mappa_Click);
  for (Control* control : std::initializer_list<Control*>{&form.esegui, &form.esegui2}) {
    On(*control, &SquaresMap::esegui_Click);
  }
  for (Control* control : std::initializer_list<Control*>{&form.linee, &form.linee2}) {
    On(*control, &SquaresMap::linee_Click);
  }
  for (Control* control : std::initializer_list<Control*>{&form.resetta, &form.Reset}) {
    On(*control, &SquaresMap::resetta_Click);
  }
  On(form.squares_old, &SquaresMap::squares_old_Click);
  On(form.illustra, &SquaresMap::illustra_Click);
  On(form.Lista_partecipanti, &SquaresMap::Lista_partecipanti_Click);
  On(form.scrivi_label, &SquaresMap::scrivi_label_Click);
  On(form.no_label, &SquaresMap::no_label_Click);
  On(form.res_pos_label, &SquaresMap::res_pos_label_Click);
  On(form.Salva_statistica2, &SquaresMap::Salva_statistica2_Click);
  On(form.Stampa_form_statistica2, &SquaresMap::Stampa_form_statistica2_Click);
  const auto options = form.map_options();
  for (std::size_t map = 0; map < options.size(); ++map) {
    options.at(map)->on_click = [this, map] { Option_Click(map); };
  }
  form.on_label_moved = [this](Point place) {
    label_place_ = place;
    Redraw();
  };
}

void SquaresMap::On(Control& control, void (SquaresMap::*event)()) {
  control.on_click = [this, event] {
    trap_.Procedure([this, event] { (this->*event)(); });
    Redraw();
  };
}

std::string SquaresMap::Participants(std::string_view category) const {
  return session_.workspace.store_file(StoreFile::kPartecipanti, category);
}

void SquaresMap::mappa_Click() {
  form_.Frame_mappa.visible = true;
  ChooseMap(0);
}

void SquaresMap::Option_Click(std::size_t map) {
  ChooseMap(map);
  Redraw();
}

/// Another background: what was drawn lay elsewhere on the one before.
void SquaresMap::ChooseMap(std::size_t map) {
  view_ = map;
  const auto options = form_.map_options();
  for (std::size_t i = 0; i < options.size(); ++i) {
    options.at(i)->checked = i == map;
  }
  HideLabel();
  ClearLayers();
}

void SquaresMap::ClearLayers() {
  layers_ = {};
  layers_.names = view_ >= kFirstNamedMap;
}

void SquaresMap::resetta_Click() {
  dx_.reset();
  ChooseMap(0);
}

void SquaresMap::illustra_Click() {
  ClearLayers();
  Plot();
}

void SquaresMap::linee_Click() {
  layers_.lines = true;
  layers_.names = true;
}

void SquaresMap::esegui_Click() {
  form_.Frame_mappa.visible = true;
  Plot();
}

void SquaresMap::ChooseBand() {
  const auto* const band = std::ranges::find(kBands, form_.frequenza.value, &Band::frequency);
  band_ = band == kBands.end() ? &kContestBand : band;
}

void SquaresMap::Plot() {
  ChooseBand();
  counters_ = {};
  const auto wanted = [this](const Check& check) {
    return check.checked || form_.Check_tutti.checked;
  };
  if (wanted(form_.check_Field)) {
    trap_.At(2);
    PlotLocators();
  }
  if (wanted(form_.Check_part)) {
    trap_.At(3);
    PlotParticipants();
  }
  if (wanted(form_.check_squares)) {
    trap_.At(4);
    PlotSquares();
  }
  if (wanted(form_.Check_line)) {
    linee_Click();
  }
}

void SquaresMap::PlotLocators() {
  form_.titolo.caption = "Locator on air";
  for (const std::string_view locator :
       CountedRows(files_, MonthFiles(session_).locators(band_->file_name))) {
    Mark(locator, View().locator);
  }
  ShowCounters(kWorked);
}

void SquaresMap::PlotParticipants() {
  form_.Lista_partecipanti.Fill({});
  form_.titolo.caption = "Partecip. in";
  std::vector<std::string> listed;
  for (const std::string_view row : CountedRows(files_, Participants(band_->category))) {
    const std::string_view category = Cut(row, partecipante_row::kCategory);
    if (category != band_->category) {
      continue;
    }
    listed.push_back(Join(Cut(row, partecipante_row::kCall), category));
    if (Cut(row, partecipante_row::kBand) == band_->code) {
      Mark(Cut(row, partecipante_row::kLocator), View().participant);
    }
  }
  form_.Lista_partecipanti.Fill(std::move(listed));
  ShowCounters(kWorked);
}

void SquaresMap::PlotSquares() {
  form_.titolo.caption = "Square in";
  const CountedRows squares(files_, MonthFiles(session_).squares(band_->file_name));
  for (const std::string_view square : squares) {
    Mark(square, View().square);
  }
  if (View().keeps_year) {
    trap_.At(5);
    form_.squares_old.enabled = true;
    std::vector<std::string> listed(squares.begin(), squares.end());
    form_.squares_old.caption = std::to_string(year_.Keep(band_->label, listed));
    form_.List2.Fill(std::move(listed));
  }
  ShowCounters(kWorked);
}

void SquaresMap::squares_old_Click() {
  const auto plot = [this](const std::string& text, const MarkStyle& style) {
    counters_ = {};
    for (const std::string_view square : SplitLines(text)) {
      Mark(square, style);
    }
  };
  plot(year_.OfMonth(band_->label), View().square);
  plot(year_.Earlier(band_->label), View().earlier_square);
  ShowCounters("squares collegati nei mesi precedenti  = ");
}

/// Draws a mark, where the map has a place for it, and counts its field.
void SquaresMap::Mark(std::string_view locator, const MarkStyle& style) {
  counters_.Count(locator);
  if (const auto place = PlaceOf(View(), locator)) {
    layers_.marks.emplace_back(style.At(*place));
  }
}

void SquaresMap::ShowCounters(std::string_view text) {
  form_.Grid_field.SetRow(1, 0, counters_.Texts());
  form_.squares_collegati.caption = Join(text, counters_.total());
}

void SquaresMap::Lista_partecipanti_Click() {
  const auto row = form_.Lista_partecipanti.ChosenRow();
  if (!row) {
    return;
  }
  const std::string_view call = RTrim(Cut(*row, kListedCall));
  if (!label_by_hand_) {
    ShowLabel(std::string(call));
  }
  PlotContacts(call, Cut(*row, kListedCategory));
}

std::string SquaresMap::DeclaredLocator(std::string_view call, std::string_view category) const {
  for (const std::string_view row : CountedRows(files_, Participants(category))) {
    if (RTrim(Cut(row, partecipante_row::kCall)) == call &&
        Cut(row, partecipante_row::kCategory) == category) {
      return std::string(Cut(row, partecipante_row::kLocator));
    }
  }
  return "";
}

void SquaresMap::PlotContacts(std::string_view call, std::string_view category) {
  layers_.contacts.clear();
  const auto home = PlaceOf(View(), DeclaredLocator(call, category));
  if (!home) {
    return;
  }
  std::vector<Shape> squares;
  for (const std::string_view row :
       CountedRows(files_, session_.workspace.store_file(StoreFile::kLibreria, category))) {
    const std::string_view locator = Cut(row, libreria_row::kLocator);
    const auto place = PlaceOf(View(), locator);
    if (RTrim(Cut(row, libreria_row::kOwner)) != call || !place) {
      continue;
    }
    constexpr std::size_t kSquare = 4;
    layers_.contacts.emplace_back(Stroke{.points = {*home, *place}, .colour = kContactColour});
    squares.emplace_back(
        View().square.At(PlaceOf(View(), Left(locator, kSquare)).value_or(*place)));
  }
  std::ranges::move(squares, std::back_inserter(layers_.contacts));
  layers_.contacts.emplace_back(View().participant.At(*home));
}

void SquaresMap::ShowDx(const std::string& from, const std::string& to) {
  dx_ = {from, to};
  Redraw();
}

void SquaresMap::scrivi_label_Click() {
  const auto text = manager_.Ask({.title = "Label del grafico",
                                  .lines = {" Scrivi la label   (*) per uscire"},
                                  .default_text = ""});
  if (text && *text != "*") {
    label_by_hand_ = true;
    ShowLabel(*text);
  }
}

void SquaresMap::ShowLabel(const std::string& text) {
  form_.nome_call.caption = text;
  form_.nome_call.visible = true;
}

void SquaresMap::HideLabel() {
  label_by_hand_ = false;
  form_.nome_call.visible = false;
}

void SquaresMap::no_label_Click() {
  HideLabel();
}

void SquaresMap::res_pos_label_Click() {
  label_place_ = kLabelPlace;
}

void SquaresMap::Salva_statistica2_Click() {
  constexpr std::string_view kEnding = "bmp";
  const auto path = manager_.PickFile({.title = "",
                                       .filter = "Bitmap|*.bmp",
                                       .folder = session_.workspace.store(),
                                       .new_ending = std::string(kEnding)});
  if (path) {
    pictures_.Save(form_.map, WithEnding(*path, kEnding));
  }
}

void SquaresMap::Stampa_form_statistica2_Click() {
  if (!printer_.Installed()) {
    manager_.Show(NoPrinterBox());
    return;
  }
  printer_.PrintPicture(Join(form_.titolo.caption, "  ", session_.category_month), form_.map);
}

void SquaresMap::Redraw() {
  for (Label* label : form_.field_labels()) {
    label->visible = layers_.names && View().kind == MapKind::kGeneral;
  }
  Picture map = MapBackground(View());
  if (layers_.lines) {
    map.Add(FieldLines(View()));
  }
  if (layers_.names) {
    map.Add(GridLabels(View()));
  }
  for (const std::vector<Shape>* layer : {&layers_.marks, &layers_.contacts}) {
    std::ranges::for_each(*layer, [&map](const Shape& shape) { map.Add(shape); });
  }
  if (dx_) {
    const auto from = PlaceOf(View(), dx_->first);
    const auto to = PlaceOf(View(), dx_->second);
    if (from && to) {
      map.Add(Stroke{.points = {*from, *to}, .colour = colour::kRed, .width = kDxWidth});
    }
  }
  if (form_.nome_call.visible) {
    map.Add(Lettering{.centre = label_place_,
                      .text = form_.nome_call.caption,
                      .height = kLabelHeight,
                      .bold = true,
                      .ground = colour::kWhite});
  }
  form_.map = std::move(map);
  ++form_.map_version;
}

}  // namespace velmar
