#include "check/store_reading.h"

#include <utility>

#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

bool StoreReading::Split(const SplitNames& names,
                         const std::function<void(std::size_t done)>& progress) {
  auto library =
      ReadIfThere(files_, session_.workspace.store_file(StoreFile::kLibreria, state_.categoria));
  if (!library) {
    manager_.Show({.lines = {" Il file della libreria di categoria è assente. Attenzione "_a}});
    return false;
  }
  // They point into the older text, and must not outlive it where the disk fails below.
  state_.qsos = {};
  state_.library = std::move(*library);
  const auto write = [this](std::string_view name, std::string_view text) {
    files_.WriteAll(session_.workspace.scratch(name), text);
  };
  progress(1);
  write("libreria.tmp", state_.library);
  state_.qsos = SplitLibrary(state_.library, state_.call_in_esame);
  progress(2);
  write(Join(state_.categoria, names.log), TextOfLines(state_.qsos.log));
  write(Join(state_.categoria, names.others), TextOfLines(state_.qsos.others));
  progress(3);
  return true;
}

std::vector<std::string_view> StoreReading::Participants() const {
  return {session_.participants.begin(), session_.participants.end()};
}

std::vector<std::string> StoreReading::TotalLibrary() {
  auto rows = store_.Lines(StoreFile::kLibreriaTotale, state_.categoria);
  if (!rows) {
    manager_.Show(
        {.lines = {" il file 'libreria_totale.tot' di categoria è assente. Attenzione "_a}});
    return {};
  }
  return std::move(*rows);
}

}  // namespace velmar
