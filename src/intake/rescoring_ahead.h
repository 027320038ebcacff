#pragma once

#include <cstddef>
#include <exception>
#include <future>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "intake/rescoring.h"

namespace velmar {

/// What came of rescoring a log: the repairs on the way, then the log or the error that stopped it.
struct Rescoring {
  std::vector<RowRepair> repairs;
  RescoredLog log;
  std::exception_ptr error;
};

/// Rescores a log; raises nothing.
Rescoring RescoreWhole(std::string_view text);

/// A log that waits to be rescored, with its text where there was room to keep it.
struct WaitingLog {
  std::string name;
  std::optional<std::string> text;
};

/// Rescores logs in their order, some ahead of their use, while the caller is busy with the disk.
/// Only the rescoring, which touches nothing but its text, runs on a thread of its own; boxes,
/// files and forms stay with the caller.
class RescoringAhead {
 public:
  /// `logs` outlives this. Their texts are taken away as they are used.
  explicit RescoringAhead(std::vector<WaitingLog>& logs);

  /// What came of the next log; nothing for a log without a text.
  std::optional<Rescoring> Next();

 private:
  using Batch = std::vector<std::optional<Rescoring>>;

  void Begin();

  std::vector<WaitingLog>& logs_;
  std::size_t begun_ = 0;  ///< logs that are done or in the batch under way
  std::future<Batch> under_way_;
  Batch done_;
  std::size_t used_ = 0;  ///< of the batch that is done
};

}  // namespace velmar
