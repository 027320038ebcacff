#pragma once

#include "model/published_files.h"
#include "session/contest_session.h"

namespace velmar {

/// The names of what is published of the month that the store holds. They are made anew at each
/// call, since the month may become another one while the program runs.
inline PublishedFiles MonthFiles(const ContestSession& session) {
  return {session.workspace, session.category_month};
}

}  // namespace velmar
