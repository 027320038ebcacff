#pragma once

#include <functional>
#include <istream>
#include <map>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "app/program.h"
#include "platform/disk_file_system.h"
#include "platform/xlsx_app.h"
#include "player/script_ports.h"
#include "ui/qt_picture_files.h"

namespace velmar {

/// How a script came to its end, as exit status of the player.
enum class PlayResult {
  kPlayed = 0,       ///< the script or the program came to its end
  kScriptError = 1,  ///< an unknown command or control, or one that cannot be used
  kNoAnswer = 2,     ///< a box or dialog asked in vain
  kFailure = 3       ///< the program stopped unexpectedly
};

/// The second front end: plays a script of what a manager does over the forms of the program, and
/// writes what the manager would have seen, a record a line.
class Player {
 public:
  /// `workspace` is the folder of the program, in code page 1252.
  Player(const std::string& workspace, std::ostream& out, std::ostream& err);

  /// Plays a script in UTF-8. Another one goes on where this one ended.
  PlayResult Play(std::istream& script);

  /// A control as it stands, by a name as scripts have it, for one who decides by what is to be
  /// seen. Raises std::runtime_error where there is none. Good until the next start of the program.
  const Control& See(const std::string& name) { return Find(name); }

  /// Called with each record as it is written.
  std::function<void(const std::string& record)> on_record;

 private:
  class ScriptError : public std::runtime_error {
   public:
    using std::runtime_error::runtime_error;
  };

  using Command = void (Player::*)(const std::string& rest);

  void Perform(const std::string& line);
  bool SetFact(const std::string& word, const std::string& rest);
  bool QueueAnswer(const std::string& word, const std::string& rest);

  void Start(const std::string& rest);
  void Click(const std::string& rest);
  void DoubleClick(const std::string& rest);
  void Tick(const std::string& rest);
  void Untick(const std::string& rest);
  void Type(const std::string& rest);
  void Select(const std::string& rest);
  void Press(const std::string& rest);
  void ShowControl(const std::string& rest);
  void ShowForm(const std::string& rest);
  void ShowForms(const std::string& rest);

  void SetTick(const std::string& name, bool tick);
  Screen& ScreenOfProgram();
  Control& Find(const std::string& name);
  Control* FindIn(const Form& form, std::string_view name);
  Control& Usable(const std::string& name);
  void Record(const JsonRecord& record);
  void RecordControl(const Control& control);

  static const std::map<std::string, Command, std::less<>>& Commands();

  std::string workspace_;
  std::ostream& out_;
  std::ostream& err_;
  MachineFacts facts_;
  DiskFileSystem files_;
  ScriptManager manager_;
  ScriptClock clock_;
  ScriptMachine machine_;
  ScriptWeb web_;
  ScriptPrinter printer_;
  QtPictureFiles picture_files_;
  ScriptPictures pictures_;
  XlsxApp workbooks_;
  std::unique_ptr<Program> program_;
  bool forced_ = false;  ///< the command in hand reaches controls that a person could not
};

}  // namespace velmar
