#pragma once

#include <vector>

#include "sample/contacts.h"
#include "sample/random.h"
#include "sample/stations.h"

namespace velmar::sample {

/// Plants the faults of QSO rows: in the refused logs their own one, in the accepted logs each
/// common kind in turn, one for every 20 contacts. From 20 logs on each common kind has two at
/// least. No contact gets two, and those that get one are between two accepted logs. Rows that
/// stand in one log alone are added behind `contacts`.
void PlantFaults(Random& random, const std::vector<Station>& stations, CallPool& calls,
                 std::vector<Contact>& contacts);

}  // namespace velmar::sample
