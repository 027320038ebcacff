#pragma once

#include <string>

#include "model/workspace.h"
#include "platform/file_system.h"

namespace velmar {

/// The paths of what a publication leaves for others to read.
struct Publication {
  std::string map;
  std::string workbook;
};

/// Plays the publication of a checked contest: the call areas, the statistics, the map, the absent
/// stations and the month's workbook.
Publication PublishContest(FileSystem& files, const Workspace& workspace, const std::string& month);

}  // namespace velmar
