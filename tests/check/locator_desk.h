#pragma once

#include <string>
#include <utility>
#include <vector>

#include "check/desk_fixture.h"
#include "platform/ansi.h"

namespace velmar::test {

/// The desk with a log of IK2QAA under examination and those that speak for and against its QSOs.
struct LocatorDesk : DeskFixture {
  LocatorDesk& Examined(std::vector<FiledQso> qsos, std::string dx_call = "",
                        long long points = 5000) {
    Filed({.call = "IK2QAA",
           .locator = "JN45AA",
           .qsos = std::move(qsos),
           .dx_call = std::move(dx_call),
           .points = points});
    return *this;
  }

  /// Another log, with one QSO.
  LocatorDesk& Witness(const std::string& call, const FiledQso& qso,
                       const std::string& locator = "JM67AA") {
    Filed({.call = call, .locator = locator, .qsos = {qso}});
    return *this;
  }

  /// A participant whose log is not in the library.
  LocatorDesk& Declared(const std::string& call, const std::string& locator,
                        std::string_view category = kCategory) {
    store.Append(StoreFile::kPartecipanti, kCategory,
                 Join(PartecipanteRow(call, locator, category), kLineEnd));
    return *this;
  }

  LocatorDesk& Checked() {
    Loaded().Started("IK2QAA");
    return *this;
  }

  /// The same with the first doubt chosen, and the boxes so far forgotten.
  LocatorDesk& Selected() {
    Checked();
    form.Lista_dubbi.Select(0);
    manager.boxes.clear();
    return *this;
  }

  /// A doubt that two logs speak against, as the first and only one: of I1QXX, the second QSO.
  LocatorDesk& OneDoubt() {
    return Examined({{"DL1QAA", "JO30AA"}, {"I1QXX", "JN44BC", "107"}, {"IZ9QBC", "JM67AA"}},
                    "I1QXX")
        .Witness("IZ9QBC", {"I1QXX", "JN44BB"})
        .Witness("IV3QYY", {"I1QXX", "JN44BB"});
  }

  /// Chooses the first doubt and presses a button.
  void Decide(Button& button) {
    form.Lista_dubbi.Select(0);
    button.Click();
  }

  /// The calls of the open doubts, in their order.
  Names Doubts() const {
    Names calls;
    for (const std::string& row : form.Lista_dubbi.items.rows()) {
      calls.emplace_back(RTrim(Mid(row, 13, 12)));
    }
    return calls;
  }
};

}  // namespace velmar::test
