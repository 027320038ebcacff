#pragma once

#include "check/check_form.h"
#include "ui/form_window.h"

class QBoxLayout;
class QHBoxLayout;

namespace velmar {

/// The check desk. From top to bottom: the queue with what loads it, the call under examination
/// with its score and the order of its checks, the open check with its evidence and decisions, and
/// the keys. The wide view takes the place of it all.
class CheckWindow : public FormWindow {
 public:
  CheckWindow(CheckForm& form, EventRunner& runner);

  void Refresh() override;

 private:
  QWidget* MakeDesk();
  QHBoxLayout* MakeTop();
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
  QWidget* MakeUniques();
  QWidget* MakeLookUps();

  QBoxLayout* MakeFrame(Frame& frame);
  void AddList(QBoxLayout& rows, List& list, int stretch);
  void SetKeys();

  static constexpr int kGap = 4;  ///< px

  CheckForm& form_;
  RowView* queue_ = nullptr;
  QLabel* hint_ = nullptr;  ///< of the keys
  QWidget* locators_ = nullptr;
  QWidget* times_ = nullptr;
  QBoxLayout* uniques_ = nullptr;  ///< the lists of the uniques
  QWidget* empty_ = nullptr;       ///< in the place of the checks
};

}  // namespace velmar
