#include "publish/area_qsos.h"

#include <vector>

#include "model/lines.h"
#include "model/print_line.h"
#include "model/sorted_list.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "publish/area_counters.h"
#include "publish/month_files.h"
#include "publish/on_air_calls.h"

namespace velmar {

namespace {

constexpr std::string_view kAllCategories = "tutti";

std::string_view CategoryOf(std::string_view row) {
  return Cut(row, libreria_totale_row::kCategory);
}

bool WorkedItaly(std::string_view row) {
  return Cut(row, libreria_totale_row::kCall).starts_with('I');
}

/// Every test that fits counts, so that some calls count for two countries, or twice for one, and
/// that is meant so.
void CountCountries(std::string_view call, CountryCounters& counts) {
  for (const CountryTest& test : CountryTests()) {
    counts[test.country] += call.starts_with(test.prefix) ? 1 : 0;
  }
}

}  // namespace

void AreaQsos::banda_qso_Change() {
  form_.trova.enabled = true;
  form_.qso_est.enabled = true;  // its last run was for another choice
}

void AreaQsos::trova_Click() {
  trap_.Procedure([this] { Run(form_.banda_qso.value); });
}

std::string AreaQsos::StorePath(StoreFile file, const std::string& category) const {
  return session_.workspace.store_file(file, category);
}

void AreaQsos::Run(const std::string& category) {
  trap_.At(1);
  const CountedRows participants(files_, StorePath(StoreFile::kPartecipanti, category));
  trap_.At(3);
  const CountedRows library(files_, StorePath(StoreFile::kLibreriaTotale, category));
  worked_ = {};
  for (const std::string_view row : library) {
    if (category == kAllCategories || CategoryOf(row) == category) {
      ++(WorkedItaly(row) ? worked_.italy : worked_.abroad);
    }
  }
  trap_.At(5);
  WriteAreas(category, library);
  trap_.At(6);
  WriteParticipants(category, participants);
  trap_.At(7);
  ShowQsos(category);
  trap_.At(8);
  ShowCountries(category, library);
  form_.trova.enabled = false;
}

void AreaQsos::WriteAreas(const std::string& category, const CountedRows& library) {
  AreaCounters italy;
  AreaCounters abroad;
  for (const std::string_view row : library) {
    if (CategoryOf(row) == category) {
      for (const CallArea area : LoggingAreas(row)) {
        ++(WorkedItaly(row) ? italy : abroad)[area];
      }
    }
  }
  constexpr std::size_t kSecond = 40;
  const auto line = [](std::string_view left, int italian, std::string_view right, int foreign) {
    return PrintLine().Text(left).Number(italian).Tab(kSecond).Text(right).Number(foreign).End();
  };
  std::string text;
  AddLine(text, Join(" -----------    Categoria  ", category, "   ", Lower(session_.category_month),
                     " ------------"));
  AddLine(text, "     Qso italiani                           Qso esteri   ");
  for (const CallArea area : kPrintedAreas) {
    text += line(Join("Qso ITA fatti  da  ", NameOf(area), "  = "), italy[area],
                 Join("Qso EST fatti  da  ", NameOf(area), "  = "), abroad[area]);
  }
  constexpr std::size_t kRule = 68;
  AddLine(text, std::string(kRule, '-'));
  text +=
      line("qsoitalia               = ", worked_.italy, "qsoestero            = ", worked_.abroad);
  AddLine(text, std::string(kRule, '='));
  files_.WriteAll(MonthFiles(session_).area_qsos(category), text);
}

void AreaQsos::WriteParticipants(const std::string& category, const CountedRows& participants) {
  SortedList list;
  for (const std::string_view row : participants) {
    if (Cut(row, partecipante_row::kCategory) == category) {
      list.Add(std::string(row));
    }
  }
  files_.WriteAll(MonthFiles(session_).participants(category), TextOfLines(list.rows()));
}

/// The QSOs without those that the logs mark as worked twice.
void AreaQsos::ShowQsos(const std::string& category) {
  constexpr std::string_view kDuplicate = ";;D";
  /// Where the row of the log has the call, behind the owner, the date and the time.
  constexpr Column kWorkedFirst{26, 1};
  Worked duplicates;
  for (const std::string_view row :
       CountedRows(files_, StorePath(StoreFile::kSommaSlx, category))) {
    if (row.ends_with(kDuplicate)) {
      ++(Cut(row, kWorkedFirst) == "I" ? duplicates.italy : duplicates.abroad);
    }
  }
  const int twice = duplicates.italy + duplicates.abroad;
  form_.qso_italia.caption = std::to_string(worked_.italy - duplicates.italy);
  form_.qso_estero.caption = std::to_string(worked_.abroad - duplicates.abroad);
  form_.totale_qso.caption = std::to_string(worked_.italy + worked_.abroad - twice);
  form_.dopi.caption = std::to_string(twice);
}

void AreaQsos::ShowCountries(const std::string& category, const CountedRows& library) {
  CountryCounters counts;
  for (const std::string_view row : library) {
    if (CategoryOf(row) == category) {
      CountCountries(Cut(row, libreria_totale_row::kCall), counts);
    }
  }
  constexpr std::size_t kRow = 3;
  if (category != kAllCategories) {
    form_.Grid_estero.Set(kRow, 0, "QSO");
  }
  form_.Grid_estero.SetRow(kRow, StatisticsForm::kFirstCountryColumn, counts.Texts());
  form_.Grid_estero.Set(kRow, StatisticsForm::kOtherColumn, std::to_string(counts.shown_total()));
}

}  // namespace velmar
