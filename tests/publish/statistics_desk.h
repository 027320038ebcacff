#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/classification_row.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "publish/statistics.h"
#include "support/boxes.h"
#include "support/outside.h"

namespace velmar::test {

/// A QSO of a log, as it lies in the store.
struct StoredQso {
  std::string owner;
  std::string call;
  std::string locator;
  int points = 0;
};

/// The statistics over a store of a few logs, in January 2025.
struct StatisticsDesk : Outside {
  StatisticsDesk() {
    workspace.WithTree().WithMonth("GENNAIO 2025");
    session.category_month = "GENNAIO 2025";
    session.contest_label = " Velmar  ";
  }

  /// A row of the classification with a number of QSOs, as its digits.
  static std::string Classified(std::string_view call, std::string_view qsos) {
    ClassificationEntry entry;
    entry.call = call;
    entry.locator = "JN45AA";
    entry.power = 100;
    entry.qsos = qsos;
    return ClassificationRow(entry);
  }

  StatisticsDesk& WithClassification(const std::vector<std::string>& rows) {
    std::string text;
    AddLine(text, classification_row::kHeader);
    workspace.With("Trofeo_Velmar/2IT/2IT Classifica Mensile 144 gennaio 2025.cla",
                   text + TextOfLines(rows));
    return *this;
  }

  StatisticsDesk& WithParticipants(const std::vector<std::pair<std::string, std::string>>& logs) {
    Names rows;
    for (const auto& [call, locator] : logs) {
      rows.push_back(PartecipanteRow(call, locator, "2IT"));
    }
    workspace.With("Trofeo_Velmar/2IT/2IT partecipanti.par", TextOfLines(rows));
    return *this;
  }

  StatisticsDesk& WithQsos(const std::vector<StoredQso>& qsos) {
    Names rows;
    Names total;
    for (const StoredQso& qso : qsos) {
      const std::string points = std::to_string(qso.points);
      rows.push_back(LibreriaRow(qso.owner, qso.call, qso.locator, points).value());
      total.push_back(LibreriaTotaleRow(qso.owner, qso.call, qso.locator, "2IT", points).value());
    }
    workspace.With("Trofeo_Velmar/2IT/2ITlibreria.qso", TextOfLines(rows));
    workspace.With("Trofeo_Velmar/2IT/2ITlibreria_totale.tot", TextOfLines(total));
    return *this;
  }

  /// The lines of a file in the folder of the store.
  Names Read(const std::string& name) { return CopyLines(workspace.Read("Trofeo_Velmar/" + name)); }

  /// The cells of a grid's row.
  static Names Cells(const Grid& grid, std::size_t row) {
    Names cells(1);
    for (const char c : grid.items.rows().at(row)) {
      if (c == '\t') {
        cells.emplace_back();
      } else {
        cells.back() += c;
      }
    }
    return cells;
  }

  StatisticsForm main;
  StatisticsForm form;
  int absent_opened = 0;
  Statistics statistics{session, ports, screen, main, form, [this] { ++absent_opened; }};
};

}  // namespace velmar::test
