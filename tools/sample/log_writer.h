#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "sample/contacts.h"
#include "sample/log_style.h"
#include "sample/stations.h"

namespace velmar::sample {

/// One side of a contact as a row of a log.
struct LogRow {
  const Contact* contact;
  std::size_t side;

  const Entry& entry() const { return contact->entries[side]; }
  bool faulty() const { return contact->fault && contact->fault->side == side; }
};

/// All that a log is written from.
struct LogPlan {
  const Station* station;
  std::vector<LogRow> rows;  ///< in the order of the log
  LogStyle style;
  Operator person;
  std::size_t rank;       ///< chooses among the spellings of band and remarks
  std::string_view date;  ///< YYMMDD
};

/// The locator in the header: that of the station unless the log is refused for it.
std::string HeaderLocator(const Station& station);

/// The log as bytes.
std::string WriteLog(const LogPlan& plan);

}  // namespace velmar::sample
