#include "session/workbook_version.h"

#include <string>

namespace velmar {

namespace {

std::string VersionName(int version) {
  switch (version) {
    case 14:
      return "Excel 2010";
    case 15:
      return "Excel 2013";
    case 16:
      return "Excel 2016";
    default:
      return version > 16 ? "Super Excel" : "Excel incompatibile";
  }
}

}  // namespace

void ReadWorkbookVersion(ContestSession& session, Machine& machine, MainForm& main) {
  const auto show = [&](int version) {
    session.excel_major_version = version;
    main.Label_excel.caption = VersionName(version);
    main.LBL_VersioneXLS.caption =
        version < kLowestWorkbookVersion ? " Non trovato o incompatibile" : std::to_string(version);
  };
  show(0);
  show(machine.WorkbookVersion());
}

}  // namespace velmar
