#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "check/archive_form.h"
#include "check/archive_search.h"
#include "check/check_form.h"
#include "check/check_state.h"
#include "check/notices_form.h"
#include "check/store_reading.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "platform/web.h"
#include "session/contest_session.h"

namespace velmar {

/// The call book, its browser, and the look-ups of the desk for the item that is selected. Without
/// a selected item a look-up does nothing.
class Archive {
 public:
  Archive(ContestSession& session, FileSystem& files, Manager& manager, Web& web,
          StoreReading& store, Screen& screen, CheckForm& form, CheckState& state);

  ArchiveForm& form() { return browser_; }
  NoticesForm& notices() { return notices_; }

  /// Reads the call book, once in a run. Without one, or with a file that is none, the run goes on
  /// and no message comes again.
  void LoadBook();

  // The look-ups.
  void database_Click();
  void CercaDtbIaru_Click();
  void Controlla_estero_Click();
  void Tutti_call_Click();
  void Tutti_loc_Click();
  void ric_in_quel_locatore_Click();

  // The browser. The menu item opens and closes it, the button opens it.
  void Vis_archivio_Click();
  void espandi_archivio_Click();
  void chiudi_archivio_Click();
  void cerca_Click();

  // The pages of the network.
  void internet_Click();
  void SEARC_loc_Click();
  void vedi_locator_Click();

  /// Closes the windows of the archive.
  void HideWindows();

 private:
  /// The item that the look-ups are about.
  struct Item {
    std::string call;  ///< without blanks behind it
    std::string locator;
  };

  static std::optional<Item> ItemOf(const List& list);
  std::optional<Item> SelectedItem() const;
  ArchiveSources Sources() const { return {session_.iaru_table, session_.call_book}; }
  void RefuseBook();
  void NeedBook();
  void Show(ResultRows rows);
  void SuggestFrom(const std::string& row, std::string_view introduction);
  ResultRows FindRecords(const std::string& text) const;
  bool Online();
  void OpenMap(std::string_view locator);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Web& web_;
  StoreReading& store_;
  Screen& screen_;
  CheckForm& desk_;
  CheckState& state_;
  ArchiveForm browser_;
  NoticesForm notices_;
};

}  // namespace velmar
