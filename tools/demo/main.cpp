// Plays a sample contest from the received logs to its publication, without a screen.
// All of it goes through the player, as a manager would go through the windows.

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "demo/desk_manager.h"
#include "demo/fault_ledger.h"
#include "demo/played_program.h"
#include "demo/publication.h"
#include "demo/story.h"
#include "model/text.h"
#include "model/workspace.h"
#include "platform/ansi.h"
#include "platform/disk_file_system.h"
#include "sample/sample_contest.h"

namespace velmar {
namespace {

const SampleOptions kContest{.seed = 144, .stations = 60, .qsos = 40};
constexpr std::string_view kMonth = "GENNAIO 2025";
constexpr std::size_t kBestRows = 10;  ///< shown of the checked classification

std::vector<PlantedFault> ReceiveLogs(FileSystem& files, const Workspace& workspace) {
  const SampleContest contest = MakeSampleContest(kContest);
  for (const ReceivedLog& log : contest.logs) {
    files.WriteAll(workspace.to_recalculate() + "/" + log.file_name, log.content);
  }
  files.WriteAll(workspace.base() + "/guasti_piantati.txt", FaultList(contest.faults));
  std::cout << "  " << contest.logs.size() << " logs received, with " << contest.faults.size()
            << " planted faults\n";
  return contest.faults;
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

void ShowCheck(const CheckedCall& checked) {
  std::cout << "  " << Pad(checked.call, kCallWidth) << "doubts " << checked.doubts << ", times "
            << checked.times << ", unique " << checked.unique << ", not in log "
            << checked.not_in_log;
  if (checked.errors > 0) {
    std::cout << "; " << checked.errors << " penalised, " << checked.points_lost << " km";
  }
  std::cout << std::endl;
}

/// Checks every call of the queue, and returns the one with the most errors.
std::string CheckQueue(PlayedProgram& program, FaultLedger& ledger) {
  DeskManager manager(program, ledger);
  CheckedCall worst;
  const std::size_t calls = program.See("listacall_banda").items.rows().size() - 1;
  for (std::size_t i = 0; i < calls; ++i) {
    const CheckedCall checked = manager.CheckNext();
    ShowCheck(checked);
    if (checked.errors > worst.errors) {
      worst = checked;
    }
  }
  return worst.call;
}

/// The first rows of the queue as the desk shows them.
void ShowBest(PlayedProgram& program) {
  const auto& rows = program.See("listacall_banda").items.rows();
  for (std::size_t i = 0; i < rows.size() && i <= kBestRows; ++i) {
    std::cout << "  " << Utf8FromAnsi(rows[i]) << '\n';
  }
}

void ShowFindings(const FaultLedger& ledger) {
  Heading("What the desk proposed of the planted faults");
  for (const std::string& row : ledger.Rows()) {
    std::cout << "  " << row << '\n';
  }
  for (const PlantedFault& fault : ledger.Missed()) {
    std::cout << "  not proposed: " << FaultName(fault.kind) << " in the log of " << fault.log
              << ", QSO " << fault.qso << " with " << fault.other << ", " << fault.note << '\n';
  }
}

void CheckLogs(FileSystem& files, const Workspace& workspace,
               const std::vector<PlantedFault>& faults) {
  FaultLedger ledger(faults);
  PlayedProgram program(workspace.base());
  Heading("The fourth start: the check desk, with the check of times, every decision by hand");
  program.Tell(
      "start\n"
      "click OK_mese\n"
      "click Command2\n"
      "click controlla_locatori\n"
      "tick no_control_time\n"
      "click Option3\n");
  const std::string worst = CheckQueue(program, ledger);
  program.Tell("click primo_dacontrollare\n");
  Heading("The checked classification");
  ShowBest(program);
  program.Tell(
      "click VLM2M_02_Controlli.torna_menu\n"
      "answer yes\n"
      "click VLM2M_01_input.esci\n");
  Heading("The error list of " + worst);
  ShowText(files, workspace.error_list(kCategory, worst, kMonth));
  ShowFindings(ledger);
}

void Run(const std::string& folder) {
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  const Workspace workspace(AnsiFromDiskName(std::filesystem::canonical(folder).string()));
  DiskFileSystem files;

  Heading("The first start makes the folders");
  PlayedProgram(workspace.base()).Tell("start\n");
  Heading("The logs arrive");
  const std::vector<PlantedFault> faults = ReceiveLogs(files, workspace);
  Heading("The second start, the month, the configuration, and the recalculation");
  PlayedProgram(workspace.base())
      .Tell(
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
  PlayedProgram(workspace.base())
      .Tell(
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
  ShowText(files, workspace.classification(kMonth));
  CheckLogs(files, workspace, faults);
  const Publication published = PublishContest(files, workspace, std::string(kMonth));

  Heading("What was made");
  const auto count = [&](const std::string& path, std::string_view pattern) {
    return files.List(path, pattern).size();
  };
  std::cout << "  " << count(workspace.category(), "*.edi") << " filed logs and their store in "
            << workspace.category() << "\n  " << count(RefusedFolder(workspace), "*.*")
            << " refused logs in " << RefusedFolder(workspace)
            << "\n  the classifications by call area and the statistics beside the store"
            << "\n  the map in " << published.map << "\n  the workbook in " << published.workbook
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
