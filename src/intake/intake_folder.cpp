#include "intake/intake_folder.h"

#include <algorithm>
#include <array>

#include "model/text.h"

namespace velmar {

namespace {

constexpr std::string_view kLineCopy = ".ED2";
constexpr std::string_view kRowCopy = ".ED3";
constexpr std::size_t kMovesPerLook = 100;

bool IsScratch(std::string_view name) {
  return MatchesPattern(name, Join("*", kLineCopy)) || MatchesPattern(name, Join("*", kRowCopy));
}

/// The name of the log's file, as long as it is.
std::string FileName(const IntakeState& log) {
  return log.log_path.substr(log.log_path.rfind('/') + 1);
}

}  // namespace

std::string IntakeFolder::PathOf(const std::string& name) const {
  return session_.workspace.to_insert() + "/" + name;
}

bool IntakeFolder::ListsItself() const {
  return form_.Dir1.value.empty() || form_.Dir1.value == session_.workspace.to_insert();
}

void IntakeFolder::Refresh() {
  moved_since_look_ = 0;
  changes_expected_ = false;
  waiting_ = files_.List(session_.workspace.to_insert(), "*.*");
  std::erase_if(waiting_, [this](const std::string& name) {
    const bool scratch = IsScratch(name);
    if (scratch) {
      RemoveIfThere(files_, PathOf(name));
    }
    return scratch;
  });
  if (ListsItself()) {
    form_.ShowFiles(session_.workspace.to_insert(), waiting_);
  } else {
    form_.ListFiles(files_, form_.Dir1.value);
  }
}

void IntakeFolder::RefreshNowAndThen() {
  if (changes_expected_ || moved_since_look_ >= kMovesPerLook || waiting_.empty()) {
    Refresh();
  }
}

std::string IntakeFolder::CopyPath(const IntakeState& log, std::string_view extension) const {
  const std::string name = FileName(log);
  const std::size_t stem = name.size() - std::min(name.size(), extension.size());
  return PathOf(Join(Left(name, stem), extension));
}

std::string IntakeFolder::LineCopyPath(const IntakeState& log) const {
  return CopyPath(log, kLineCopy);
}

std::string IntakeFolder::RowCopyPath(const IntakeState& log) const {
  return CopyPath(log, kRowCopy);
}

void IntakeFolder::RemoveCopies(const IntakeState& log) {
  if (!log.log_path.empty()) {
    RemoveIfThere(files_, LineCopyPath(log));
    RemoveIfThere(files_, RowCopyPath(log));
  }
}

void IntakeFolder::RemoveRowCopies() {
  RemoveMatching(files_, session_.workspace.to_insert(), Join("*", kRowCopy));
}

void IntakeFolder::MoveToRefused(const IntakeState& log, Refusal refusal) {
  const RefusedName name = NameOfRefused(log, refusal);
  const std::string folder = session_.workspace.to_check_again();
  Move(log, folder + "/" + FreeName(files_, log.log_path, folder, name.stem, name.suffix));
}

void IntakeFolder::MoveToRepeated(const IntakeState& log) {
  const std::string folder = session_.workspace.repeated_logs();
  Move(log, folder + "/" + FreeName(files_, log.log_path, folder, log.log_name));
}

void IntakeFolder::Move(const IntakeState& log, const std::string& target) {
  if (!SameFile(files_, log.log_path, target)) {
    files_.Copy(log.log_path, target);
    RemoveSource(log);
  }
}

void IntakeFolder::RemoveSource(const IntakeState& log) {
  files_.Remove(log.log_path);
  ++moved_since_look_;
  // In the lists alone. A log of this name may wait here all the same, when another folder had one.
  const std::string name = FileName(log);
  const bool waits = files_.StampOf(PathOf(name)).has_value();
  if (!waits) {
    std::erase(waiting_, name);
  }
  if (ListsItself() ? !waits : !files_.StampOf(form_.Dir1.value + "/" + name)) {
    form_.ForgetFile(name);
  }
}

}  // namespace velmar
