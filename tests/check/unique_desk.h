#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "check/desk_fixture.h"
#include "platform/ansi.h"

namespace velmar::test {

/// The desk with a log of IK2QAA under examination and the logs that its calls are looked for in.
struct UniqueDesk : DeskFixture {
  /// A log in all store files. Its QSOs are one minute apart, from 14:00 on.
  UniqueDesk& Log(const std::string& call, const std::string& locator, std::vector<FiledQso> qsos,
                  std::string dx_call = "") {
    for (std::size_t i = 0; i < qsos.size(); ++i) {
      AddLine(somma_, SommaQsoRow(QsoRow(i, qsos[i]), kCategory, locator, call));
    }
    Filed({.call = call,
           .locator = locator,
           .qsos = std::move(qsos),
           .dx_call = std::move(dx_call),
           .points = 5000});
    workspace.With("Trofeo_Velmar/2IT/2ITsomma_qso.qso", somma_);
    return *this;
  }

  /// A row of the file of valid QSOs as it stands, which may be a broken one.
  UniqueDesk& SommaRow(std::string_view row) {
    AddLine(somma_, row);
    workspace.With("Trofeo_Velmar/2IT/2ITsomma_qso.qso", somma_);
    return *this;
  }

  UniqueDesk& Examined(std::vector<FiledQso> qsos, std::string dx_call = "") {
    return Log("IK2QAA", "JN45AA", std::move(qsos), std::move(dx_call));
  }

  /// A participant whose log is not in the library.
  UniqueDesk& Declared(const std::string& call, const std::string& locator,
                       std::string_view category = kCategory) {
    store.Append(StoreFile::kPartecipanti, kCategory,
                 Join(PartecipanteRow(call, locator, category), kLineEnd));
    return *this;
  }

  /// A record of the archive, which is then there.
  UniqueDesk& Known(const std::string& call, const std::string& locator) {
    session.call_book.push_back(Pad(Join(Pad(call, kCallWidth), locator, "P 241201  7144"), 34));
    session.archive_missing = false;
    session.book_loaded = true;
    return *this;
  }

  /// The check started, with the option that shows rare calls.
  UniqueDesk& Checked() {
    Loaded().Started("IK2QAA");
    if (!form.Check8.checked) {
      form.Check8.Click();
    }
    manager.boxes.clear();
    return *this;
  }

  /// The same, and the unique calls looked for.
  UniqueDesk& Searched() {
    Checked();
    form.unici.Click();
    return *this;
  }

  static std::string QsoRow(std::size_t minute, const FiledQso& qso) {
    return Join("250121;14", minute < 10 ? "0" : "", minute, ";", qso.call, ";1;59;001;59;002;;",
                qso.locator, ";", qso.points, ";;;;");
  }

  /// Calls of the open items and what stands behind their points.
  Names Open() const {
    Names items;
    for (const std::string& row : form.Call_unici.items.rows()) {
      items.push_back(Join(RTrim(Mid(row, 13, 12)), Mid(row, 36)));
    }
    return items;
  }

 private:
  std::string somma_;
};

}  // namespace velmar::test
