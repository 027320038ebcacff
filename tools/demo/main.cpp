// Plays a sample contest from the received logs on, as far as the program reaches, without a
// screen. All of it goes through the player, as a manager would go through the windows.

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "model/edi_log.h"
#include "model/text.h"
#include "model/workspace.h"
#include "platform/ansi.h"
#include "platform/disk_file_system.h"
#include "player/player.h"
#include "sample/sample_contest.h"

namespace velmar {
namespace {

const SampleOptions kContest{.seed = 144, .stations = 60, .qsos = 40};
constexpr std::size_t kShownLogs = 15;
constexpr std::size_t kNarrated = 120;  ///< bytes shown of a box

/// The day on which the demo plays, whatever the machine's date is.
constexpr std::string_view kToday = "date 21/01/2025\n";

void Heading(const std::string& text) {
  std::cout << "\n== " << text << '\n';
}

/// The part of a record between two marks; empty where it has none.
std::string_view Between(std::string_view record, std::string_view from, std::string_view to) {
  const std::size_t begin = record.find(from);
  const std::size_t end = begin == std::string_view::npos ? begin : record.find(to, begin);
  return end == std::string_view::npos
             ? std::string_view()
             : record.substr(begin + from.size(), end - begin - from.size());
}

/// Shows a record of the player as a line to read: the beginning of a box, or a window.
void Narrate(std::string_view record) {
  if (record.starts_with("{\"box\"")) {
    const auto lines = Between(record, "\"lines\":[", "],\"buttons\"");
    const auto reply = Between(record, "\"reply\":\"", "\"}");
    std::cout << "  [" << reply << "] " << lines.substr(0, kNarrated)
              << (lines.size() > kNarrated ? "..." : "") << std::endl;
  } else if (record.starts_with("{\"form\"")) {
    std::cout << "  " << (Holds(record, "true") ? "opens  " : "closes ")
              << Between(record, "{\"form\":\"", "\",") << std::endl;
  }
}

void Play(const std::string& workspace, const std::string& commands) {
  std::ostringstream records;
  std::ostringstream complaints;
  Player player(workspace, records, complaints);
  player.on_record = Narrate;
  std::istringstream script(std::string(kToday) + commands);
  if (player.Play(script) != PlayResult::kPlayed) {
    throw std::runtime_error("the demo came to a stop: " + complaints.str());
  }
}

struct Standing {
  std::string call;
  std::string locator;
  std::size_t qsos;
  long long points;
};

Standing StandingOf(const std::string& text) {
  const EdiLog log = ParseEdiLog(text);
  Standing standing{std::string(log.own_call), std::string(log.own_locator), log.qsos.size(), 0};
  for (const std::string_view qso : log.qsos) {
    standing.points += static_cast<long long>(Val(SplitQso(qso).points()));
  }
  return standing;
}

void ReceiveLogs(FileSystem& files, const Workspace& workspace) {
  const SampleContest contest = MakeSampleContest(kContest);
  for (const ReceivedLog& log : contest.logs) {
    files.WriteAll(workspace.to_recalculate() + "/" + log.file_name, log.content);
  }
  files.WriteAll(workspace.base() + "/guasti_piantati.txt", FaultList(contest.faults));
  std::cout << "  " << contest.logs.size() << " logs received, with " << contest.faults.size()
            << " planted faults\n";
}

void ShowStandings(FileSystem& files, const Workspace& workspace) {
  std::vector<Standing> standings;
  for (const std::string& name : files.List(workspace.recalculated(), "*.*")) {
    standings.push_back(StandingOf(files.ReadAll(workspace.recalculated() + "/" + name)));
  }
  std::ranges::stable_sort(standings, std::greater<>(), &Standing::points);
  std::cout << "  Call          Locator   QSO   Points (km)\n";
  for (std::size_t i = 0; i < std::min(kShownLogs, standings.size()); ++i) {
    const Standing& standing = standings[i];
    std::cout << "  " << std::left << std::setw(14) << standing.call << std::setw(8)
              << standing.locator << std::right << std::setw(5) << standing.qsos << std::setw(10)
              << standing.points << '\n';
  }
  if (standings.size() > kShownLogs) {
    std::cout << "  ... and " << standings.size() - kShownLogs << " more\n";
  }
}

void Run(const std::string& folder) {
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  const Workspace workspace(AnsiFromDiskName(std::filesystem::canonical(folder).string()));
  DiskFileSystem files;

  Heading("The first start makes the folders");
  Play(workspace.base(), "start\n");
  Heading("The logs arrive");
  ReceiveLogs(files, workspace);
  Heading("The second start, the month, the configuration, and the recalculation");
  Play(workspace.base(),
       "start\n"
       "click OK_mese\n"
       "click Command2\n"
       "click restore_1KM\n"
       "answer no\n"  // to the Italian log with a locator abroad
       "click rinomina\n"
       "click torna_menu\n"
       "click Exit\n");
  Heading("The recalculated logs and their points");
  ShowStandings(files, workspace);

  Heading("What was made");
  const auto count = [&](const std::string& path) { return files.List(path, "*.*").size(); };
  std::cout << "  " << count(workspace.recalculated()) << " recalculated logs in "
            << workspace.recalculated() << "\n  " << count(workspace.to_check_again())
            << " refused logs in " << workspace.to_check_again()
            << "\n  the list of planted faults in " << workspace.base() << "/guasti_piantati.txt\n";
}

}  // namespace
}  // namespace velmar

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: velmar-demo FOLDER\nPlays a sample contest in FOLDER, which is made "
                 "anew.\n";
    return 1;
  }
  try {
    velmar::Run(argv[1]);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "velmar-demo: " << error.what() << '\n';
    return 1;
  }
}
