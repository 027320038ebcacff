#include "intake/refusal.h"

#include <algorithm>
#include <array>

#include "model/text.h"

namespace velmar {

namespace {

constexpr std::size_t kLongestCategory = 60;

struct Naming {
  std::string_view suffix;
  bool category_in_front = false;
};

/// In the order of the reasons.
constexpr std::array<Naming, 21> kNamings = {
    {{" -_- bad name file .edi"},    {" -_- bad_data_qso.edi"},
     {" -_- qso a zero.edi"},        {" -_- call senza numero.edi"},
     {" -_- bad_Title_.edi"},        {" -_- call no numero.edi"},
     {" -_- manca numero qso.edi"},  {" -_- manca punteggio.edi"},
     {" -_- no totale punti.edi"},   {" -_- noDX no PuntiV.edi", true},
     {" -_- err_categ.edi", true},   {" -_- qso validi magg dei tot.edi"},
     {" -_- no ricalcolo.edi"},      {" -_- log_errato.edi", true},
     {" -_- correggi qso.edi"},      {"-_-nome e cat diverse.edi"},
     {" -_- locator no ita.edi"},    {" -_- fuori orario prima.edi"},
     {" -_- fuori orario dopo.edi"}, {" -_- ora non valido.edi"},
     {" -_- n qso errati.edi"}}};

/// A declared category without what no file name can hold, and what would hide the file.
std::string InFileName(std::string_view category) {
  std::string name(Left(category, kLongestCategory));
  std::ranges::replace_if(
      name, [](char c) { return c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' '; },
      '_');
  if (name.starts_with('.')) {
    name.front() = '_';
  }
  return name;
}

}  // namespace

RefusedName NameOfRefused(const IntakeState& state, Refusal refusal) {
  const Naming& naming = kNamings.at(static_cast<std::size_t>(refusal));
  const std::string front = naming.category_in_front ? Join(InFileName(state.category), " ") : "";
  return {front + state.log_name, std::string(naming.suffix)};
}

}  // namespace velmar
