#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "publish/counted_rows.h"
#include "publish/statistics_form.h"
#include "publish/statistics_trap.h"
#include "session/contest_session.h"

namespace velmar {

/// The QSOs of a category: by the call area of the logging station, and by the country that was
/// worked.
class AreaQsos {
 public:
  AreaQsos(ContestSession& session, FileSystem& files, StatisticsTrap& trap, StatisticsForm& form)
      : session_(session), files_(files), trap_(trap), form_(form) {}

  void banda_qso_Change();
  void trova_Click();

 private:
  void Run(const std::string& category);
  void WriteAreas(const std::string& category, const CountedRows& library);
  void WriteParticipants(const std::string& category, const CountedRows& participants);
  void ShowQsos(const std::string& category);
  void ShowCountries(const std::string& category, const CountedRows& library);

  std::string StorePath(StoreFile file, const std::string& category) const;

  /// The QSOs of the category, by whom was worked.
  struct Worked {
    int italy = 0;
    int abroad = 0;
  };

  ContestSession& session_;
  FileSystem& files_;
  StatisticsTrap& trap_;
  StatisticsForm& form_;
  Worked worked_;
};

}  // namespace velmar
