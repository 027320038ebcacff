#include "intake/leaving.h"

#include <array>
#include <string_view>

#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"
#include "session/failure.h"

namespace velmar {

namespace {

/// The outputs of a ranking by sections that this contest does not run. Nothing writes them here.
std::vector<std::string> SectionFiles(std::string_view year) {
  return {"TUTTI_sezioni_NO_valide.txt",
          "TUTTI_sezioni_SI_valide.txt",
          "SB-0004 Sezioni ordinato classifica mensile -bis.sez",
          "SB-0007 elenco call per sezione.sez",
          "SB-0008 elenco call per sezione in orizzontale.sez",
          "O-1-Sezioni con uno call.sez",
          "O-2-Classifica sezioni.sez",
          "O-A-Classifica area A sezioni.sez",
          "O-B-Classifica area B sezioni.sez",
          Join("O-C-Classifica area C marzo ", year, " x annuale.txt"),
          "O-C-Classifica area C sezioni.sez",
          "O-D-Classifica mensile sezioni.sez",
          "O-E-Dettaglio sezioni.sez",
          "O-F-Dettaglio classifica.sez"};
}

constexpr std::string_view kRootTexts = "*.txt";

}  // namespace

Leaving::Leaving(ContestSession& session, FileSystem& files, Manager& manager, MainForm& main)
    : session_(session), files_(files), manager_(manager) {
  main.esci.on_click = [this] { esci_Click(); };
  main.Exit.on_click = [this] { exit_Click(); };
}

void Leaving::esci_Click() {
  if (manager_.Show({.lines = {" VUOI USCIRE DAL PROGRAMMA ? "},
                     .icon = Icon::kQuestion,
                     .title = " FINE PROGRAMMA",
                     .buttons = Buttons::kYesNoCancel}) != Reply::kYes) {
    return;
  }
  const Workspace& workspace = session_.workspace;
  const std::string app = workspace.base();
  const std::string root = workspace.store();
  std::vector<Scratch> places = {{app, "*.mnt"},
                                 {app, "*.tmp"},
                                 {root, "*.tmp"},
                                 {root, "*.cla_scorta"},
                                 {workspace.category(), "*.cla_scorta"},
                                 {workspace.to_insert(), "*.ed3"},
                                 {root, "144nodoppi.txt"},
                                 {root, "144loc_nodoppi.txt"},
                                 {root, "144sqr_144.txt"},
                                 {root, "144fld_144.txt"},
                                 {root, "*.ese"},
                                 {root, "*.mnt"},
                                 {root, "*.est"},
                                 {root, "*.fld"},
                                 {root, std::string(kRootTexts)}};
  for (const std::string& name : SectionFiles(session_.contest_year)) {
    places.push_back({workspace.sections(), name});
  }
  ClearAndEnd(places);
}

void Leaving::exit_Click() {
  const Workspace& workspace = session_.workspace;
  ClearAndEnd({{workspace.base(), "*.tmp"},
               {workspace.store(), "*.tmp"},
               {workspace.base(), "*.ed3"},
               {workspace.store(), "*.ed3"},
               {workspace.to_insert(), "*.ed3"}});
}

void Leaving::ClearAndEnd(const std::vector<Scratch>& places) {
  std::size_t at = 0;
  try {
    for (; at < places.size(); ++at) {
      if (files_.FolderExists(places[at].folder)) {
        RemoveMatching(files_, places[at].folder, places[at].pattern);
      }
    }
  } catch (const RunTimeError& error) {
    if (error.number() == ErrorNumber::kPathFileAccess && places[at].pattern == kRootTexts) {
      manager_.Show(
          {.lines = {" Il programma sta tentando di cancellare un file temporaneo .txt, ",
                     " che si trova nella directory ma che non è stato creato dal programma."_a,
                     " Probabile file di sola lettura.",
                     " Se hai messo tu il file protetto devi eliminarlo manualmente, ",
                     " Se non ne conosci la natura non è un file utilizzato dal programma."_a}});
    } else {
      manager_.Show(
          FailureBox(error, static_cast<int>(at) + 1, "(end) 04 Contatta l' autore del software_"));
    }
  }
  throw ProgramEnd();
}

}  // namespace velmar
