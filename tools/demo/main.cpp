// Plays a sample contest from the received logs to the first classification, without a screen. All
// of it goes through the player, as a manager would go through the windows.

#include <exception>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "model/lines.h"
#include "model/text.h"
#include "model/workspace.h"
#include "platform/ansi.h"
#include "platform/disk_file_system.h"
#include "player/player.h"
#include "sample/sample_contest.h"

namespace velmar {
namespace {

const SampleOptions kContest{.seed = 144, .stations = 60, .qsos = 40};
constexpr std::string_view kMonth = "GENNAIO 2025";
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

void ReceiveLogs(FileSystem& files, const Workspace& workspace) {
  const SampleContest contest = MakeSampleContest(kContest);
  for (const ReceivedLog& log : contest.logs) {
    files.WriteAll(workspace.to_recalculate() + "/" + log.file_name, log.content);
  }
  files.WriteAll(workspace.base() + "/guasti_piantati.txt", FaultList(contest.faults));
  std::cout << "  " << contest.logs.size() << " logs received, with " << contest.faults.size()
            << " planted faults\n";
}

/// Where the manager keeps the logs that were refused.
std::string RefusedFolder(const Workspace& workspace) {
  return workspace.base() + "/Log rifiutati";
}

void PutAwayRefusedLogs(FileSystem& files, const Workspace& workspace) {
  files.MakeFolder(RefusedFolder(workspace));
  for (const std::string& name : files.List(workspace.to_check_again(), "*.*")) {
    files.Move(workspace.to_check_again() + "/" + name, RefusedFolder(workspace) + "/" + name);
    std::cout << "  " << Utf8FromAnsi(name) << '\n';
  }
}

/// The classification as it lies in the store, in the order in which the logs came in.
void ShowClassification(FileSystem& files, const Workspace& workspace) {
  const std::string text = files.ReadAll(workspace.classification(kMonth));
  for (const std::string_view row : SplitLines(text)) {
    std::cout << "  " << Utf8FromAnsi(row) << '\n';
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
  Heading("The manager puts the refused logs away: with them no start goes on");
  PutAwayRefusedLogs(files, workspace);
  Heading("The third start: the logs get their names, and all of them are inserted");
  Play(workspace.base(),
       "start\n"
       "click OK_mese\n"
       "click Command2\n"
       "click Rinomina_ita\n"
       "click rinomina\n"
       "click VLM2M_05_rin_ITA.torna_menu\n"
       "tick Check_AUT_entry\n"
       "tick turbo\n"
       "input-default\n"  // the date of the contest
       "click caricaedi\n"
       "answer yes\n"
       "click VLM2M_01_input.esci\n");
  Heading("The first classification");
  ShowClassification(files, workspace);

  Heading("What was made");
  const auto count = [&](const std::string& path, std::string_view pattern) {
    return files.List(path, pattern).size();
  };
  std::cout << "  " << count(workspace.category(), "*.edi") << " filed logs and their store in "
            << workspace.category() << "\n  " << count(RefusedFolder(workspace), "*.*")
            << " refused logs in " << RefusedFolder(workspace)
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
