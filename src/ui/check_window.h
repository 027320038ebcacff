#pragma once

#include <vector>

#include "check/check_form.h"
#include "ui/form_window.h"

class QBoxLayout;
class QGridLayout;
class QHBoxLayout;

namespace velmar {

/// The check desk. From top to bottom: the queue with what loads it, the call under examination
/// with its score and the order of its checks, the open check with its evidence and decisions, and
/// the keys. Two logs side by side take the place of the queue, the wide view that of it all.
class CheckWindow : public FormWindow {
 public:
  CheckWindow(CheckForm& form, EventRunner& runner);

  void Refresh() override;

 private:
  QWidget* MakeDesk();
  QWidget* MakeTop();
  QWidget* MakeLoading();
  QWidget* MakeQueue();
  QHBoxLayout* MakeQueueTools();
  QHBoxLayout* MakeQueueName();
  QWidget* MakeExam();
  QHBoxLayout* MakeScore();
  QHBoxLayout* MakeOrder();
  QHBoxLayout* MakeFoot();
  QWidget* MakeWideView();

  // The checks and what helps to judge.
  QHBoxLayout* MakeChecks();
  QWidget* MakeLocators();
  QWidget* MakeVerdict();
  QWidget* MakeDeclared();
  QWidget* MakeTimes();
  QBoxLayout* MakeTimesHead();
  QWidget* MakeLookUps();

  // Unique calls, what is not in a log, and the logs themselves.
  QWidget* MakeUniques();
  QWidget* MakeUniquesHead();
  QWidget* MakeHints();
  QWidget* MakeUniqueCalls();
  QWidget* MakeSimilar();
  QWidget* MakeExplanations();
  QWidget* MakeNearby();
  QWidget* MakeLogs();
  QBoxLayout* MakeLog(Label& title, List& list);

  QBoxLayout* MakeFrame(Frame& frame);
  RowView* AddList(QBoxLayout& rows, List& list, int stretch);
  void AddButtons(QBoxLayout& row, const std::vector<Button*>& buttons);
  QGridLayout* MakeDecisions(const std::vector<Button*>& buttons, int in_a_row);
  void Arrange();
  void ArrangeTimes(bool open, bool alone);
  void SetKeys();
  void TellKeys();

  struct Key {
    const Button* button;
    const QWidget* widget;
    QString name;
  };

  CheckForm& form_;
  std::vector<Key> keys_;  ///< the ones to be told first come first
  RowView* queue_ = nullptr;
  QWidget* top_ = nullptr;  ///< the queue and what loads it
  QLabel* hint_ = nullptr;  ///< of the keys

  QWidget* place_ = nullptr;  ///< of one check at a time
  QWidget* empty_ = nullptr;  ///< tells there how to begin
  QWidget* locators_ = nullptr;
  QWidget* uniques_ = nullptr;

  QWidget* times_ = nullptr;
  QBoxLayout* times_rows_ = nullptr;
  QWidget* times_list_ = nullptr;
  QWidget* times_decisions_ = nullptr;
  RowView* times_view_ = nullptr;
  QWidget* times_heading_ = nullptr;
  ColumnTitles* times_titles_ = nullptr;

  QWidget* unique_calls_ = nullptr;
  RowView* similar_ = nullptr;
  QWidget* explanations_ = nullptr;  ///< beside the similar calls, row by row
  QWidget* nearby_ = nullptr;
};

}  // namespace velmar
