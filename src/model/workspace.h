#pragma once

#include <string>
#include <string_view>

namespace velmar {

/// The code of the contest's category.
inline constexpr std::string_view kCategory = "2IT";

/// What stands between the category and the month in the name of a classification.
inline constexpr std::string_view kClassificationTitle = " Classifica Mensile 144 ";

/// The category that a text begins with: a category, a log's file name or a date line.
constexpr std::string_view CategoryCode(std::string_view text) {
  return text.substr(0, 3);
}

/// The files of the contest store, of which each category has its own.
enum class StoreFile {
  kLibreria,
  kLibreriaTotale,
  kSommaQso,
  kSommaSlx,
  kPartecipanti,
  kModi,
  kTempi,
  kStatisticaDx,
  kControlLog,
  kCwQsos,
  kCwCalls,
  kContestTeam
};

/// The name under which a log is filed and a file of its own is made: "/" can't stand in it.
std::string NameOfCall(std::string_view call);

/// The file name of a log that can be inserted, of the call as its name has it.
std::string LogName(std::string_view category, std::string_view call);

/// The folders and files of the program, by their fixed names: blanks and capitals belong to them.
/// What a log is called on its way is told where it is named or refused.
class Workspace {
 public:
  /// `base` is the folder of the program itself.
  explicit Workspace(std::string base) : base_(std::move(base)) {}

  const std::string& base() const { return base_; }
  std::string store() const { return base_ + "/Trofeo_Velmar"; }
  std::string category(std::string_view category = kCategory) const {
    return store() + "/" + std::string(category);
  }
  std::string to_recalculate() const { return base_ + "/01 Log da RICALCOLARE"; }
  std::string recalculated() const { return base_ + "/02 Log ricalcolati"; }
  std::string to_insert() const { return base_ + "/03 Log da inserire"; }
  std::string wrong_logs() const { return store() + "/Log errati"; }
  std::string repeated_logs() const { return store() + "/Log doppi"; }
  std::string to_check_again() const { return store() + "/Log da ricontrollare"; }

  std::string sections() const { return store() + "/Sezioni_ASZ"; }

  /// A working list of the check desk; all of these end in ".tmp".
  std::string scratch(std::string_view name) const { return base_ + "/" + std::string(name); }

  /// A working file among the folders of the categories.
  std::string store_scratch(std::string_view name) const {
    return store() + "/" + std::string(name);
  }

  std::string settings() const { return base_ + "/VartoVLM.ini"; }
  std::string call_book() const { return base_ + "/Varto_book.bin"; }
  std::string month_to_check() const { return store() + "/mese_verifica.dat"; }
  std::string category_month() const { return category() + "/mese.dat"; }
  std::string refused_names() const { return store() + "/file_non_corretti.dat"; }

  /// A file of the store. There is a blank in some of these names and none in others.
  std::string store_file(StoreFile file, std::string_view category = kCategory) const;

  /// The error list of a log, by its call and the month in capitals.
  std::string error_list(std::string_view category, std::string_view call,
                         std::string_view month) const;

  /// The contest date of a category, of which the first three characters count.
  std::string contest_date(std::string_view category_code) const;

  /// The classification of a month such as "GENNAIO 2025".
  std::string classification(std::string_view month, std::string_view category = kCategory) const;

 private:
  std::string base_;
};

}  // namespace velmar
