#include "intake/rescoring_ahead.h"

#include <algorithm>
#include <utility>

namespace velmar {

namespace {

/// Logs of a batch: enough for the start of a thread not to count, few enough to hold in memory.
constexpr std::size_t kBatch = 64;

}  // namespace

Rescoring RescoreWhole(std::string_view text) {
  Rescoring rescoring;
  try {
    rescoring.log =
        Rescore(text, [&](RowRepair repair) { rescoring.repairs.push_back(std::move(repair)); });
  } catch (...) {
    rescoring.error = std::current_exception();  // told when it is the turn of this log
  }
  return rescoring;
}

RescoringAhead::RescoringAhead(std::vector<WaitingLog>& logs) : logs_(logs) {
  Begin();
}

void RescoringAhead::Begin() {
  const std::size_t first = begun_;
  begun_ = std::min(first + kBatch, logs_.size());
  under_way_ = std::async(std::launch::async, [this, first, last = begun_] {
    Batch batch;
    for (std::size_t i = first; i < last; ++i) {
      const auto text = std::exchange(logs_[i].text, std::nullopt);
      batch.push_back(text ? std::optional(RescoreWhole(*text)) : std::nullopt);
    }
    return batch;
  });
}

std::optional<Rescoring> RescoringAhead::Next() {
  if (used_ == done_.size()) {
    done_ = under_way_.get();
    used_ = 0;
    Begin();
  }
  return std::move(done_.at(used_++));
}

}  // namespace velmar
