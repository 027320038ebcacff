#include "sample/log_style.h"

#include <array>

#include "model/lines.h"
#include "model/text.h"

namespace velmar::sample {

LogStyle MakeStyle(std::size_t rank, bool accepted) {
  static constexpr std::array<std::string_view, 5> kWriters = {
      "Quaderno VHF 3.12", "PennaEdi 1.8", "Registro144 0.97b", "Blocco Contest 2024.1",
      "Stazione Log 12.0"};
  LogStyle style;
  style.writer = kWriters[rank % kWriters.size()];
  style.line_end = rank % 3 == 1 ? "\n" : kLineEnd;
  style.points = rank % 5 == 2   ? PointsRule::kOtherContest
                 : rank % 5 == 4 ? PointsRule::kNone
                                 : PointsRule::kKilometres;
  style.odd_keys = rank % 4 == 2;
  style.small_letters = rank % 7 == 3;
  style.utf8 = rank % 2 == 1;
  style.trailing_blank = rank % 9 == 4;
  style.remarks = rank % 4;
  if (accepted) {
    style.end_row = rank % 11 != 5;
    style.stray_mark = rank % 16 == 6 ? ':' : rank % 16 == 14 ? '.' : '\0';
  }
  return style;
}

std::string FileName(Random& random, std::string_view call, std::string_view year) {
  const std::string name = Replaced(call, '/', '_');
  switch (random.Below(6)) {
    case 0:
      return Join(Lower(name), "_144.EDI");
    case 1:
      return Join("Velmar ", year, " ", name, ".edi");
    case 2:
      return Join("144_", name, ".edi");
    case 3:
      return Join(name, ".EDI");
    default:
      return Join(name, ".edi");
  }
}

Operator MakeOperator(Random& random) {
  static constexpr std::array<std::string_view, 12> kFirstNames = {
      "Nicolò", "Giosuè", "Andrea", "Renèe", "Marta",   "Ilario",
      "Noè",    "Bruna",  "Tullio", "Zoè",   "Corrado", "Livia"};
  static constexpr std::array<std::string_view, 10> kLastNames = {
      "Dalmà", "Prefumè", "Collinari", "Ondadoro", "Scalisò",
      "Tramè", "Vettali", "Ripanuova", "Lucignè",  "Bramalti"};
  static constexpr std::array<std::array<std::string_view, 2>, 9> kCities = {{{"Forlì", "FC"},
                                                                              {"Cantù", "CO"},
                                                                              {"Mondovì", "CN"},
                                                                              {"Patù", "LE"},
                                                                              {"Viggiù", "VA"},
                                                                              {"Narni", "TR"},
                                                                              {"Salò", "BS"},
                                                                              {"Ales", "OR"},
                                                                              {"Nicolosi", "CT"}}};
  static constexpr std::array kWatts = {10, 25, 50, 100, 150, 300, 500};
  const std::string_view first = random.Pick(kFirstNames);
  const std::string_view last = random.Pick(kLastNames);
  const auto& [city, province] = random.Pick(kCities);
  Operator person;
  person.name = Join(first, " ", last);
  person.city = city;
  person.province = province;
  person.post_code = random.Between(10010, 98170);
  person.watts = random.Pick(kWatts);
  person.antenna_height = random.Between(3, 25);
  person.site_height = random.Between(2, 1900);
  return person;
}

}  // namespace velmar::sample
