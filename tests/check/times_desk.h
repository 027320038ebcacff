#pragma once

#include <string>

#include "desk_fixture.h"

namespace velmar::test {

/// The desk with three logs that agree with each other but for two times: those that IK2QAA gives
/// for its first two QSOs. The third one is ten minutes off, which is allowed.
struct TimesDesk : DeskFixture {
  TimesDesk() {
    session.settings.Set(Setting::kTimeCheckOn, "SI");
    Filed({.call = "IK2QAA",
           .locator = "JN45AA",
           .qsos = {{"IZ9QBC", "JM67AA", "100", "1005"},
                    {"IV3QYY", "JN66AA", "307", "1010"},
                    {"I1QXX", "JN44BB", "55", "1130"}},
           .dx_call = "IV3QYY"});
    Filed({.call = "IZ9QBC",
           .locator = "JM67AA",
           .qsos = {{"IK2QAA", "JN45AA", "100", "1025"}},
           .points = 4000});
    Filed({.call = "IV3QYY",
           .locator = "JN66AA",
           .qsos = {{"IK2QAA", "JN45AA", "307", "0955"}},
           .points = 6000});
    Filed({.call = "I1QXX",
           .locator = "JN44BB",
           .qsos = {{"IK2QAA", "JN45AA", "55", "1120"}},
           .points = 700});
  }

  TimesDesk& Checked(std::string_view call = "IK2QAA") {
    Loaded().Started(call);
    return *this;
  }

  const Names& Items() const { return form.Lista_err_orario.items.rows(); }

  std::string Tempi() { return workspace.Read("Trofeo_Velmar/2IT/2ITtempi.txt"); }

  std::string StorePath() { return session.workspace.store_file(StoreFile::kSommaQso, kCategory); }
};

}  // namespace velmar::test
