#pragma once

#include <string>

#include "model/workspace.h"
#include "platform/file_system.h"

namespace velmar {

/// Plays the publication of a checked contest: the call areas, the statistics, the map and the
/// absent stations. Gives the path of the map's picture.
std::string PublishContest(FileSystem& files, const Workspace& workspace, const std::string& month);

}  // namespace velmar
