#pragma once

#include <vector>

#include "publish/statistics_form.h"
#include "ui/form_window.h"

class QBoxLayout;
class QGridLayout;
class QHBoxLayout;

namespace velmar {

class PictureView;
class ShareBar;

/// The statistics, as one of two pages: the runs with what they counted, or the map. The procedures
/// show the one and hide the other.
class StatisticsWindow : public FormWindow {
 public:
  StatisticsWindow(StatisticsForm& form, EventRunner& runner);

  void Refresh() override;

 private:
  QWidget* MakeCounts();
  QHBoxLayout* MakeRuns();
  QBoxLayout* MakeTable(const QString& title, Grid& grid, bool moved);
  QHBoxLayout* MakeFoot();

  // The totals.
  QHBoxLayout* MakeTotals();
  QWidget* MakeContest();
  QWidget* MakeDistances();
  QWidget* MakeCategory();
  QWidget* MakeFound();
  void AddNumber(QGridLayout& grid, int place, int in_a_row, const QString& title, Label& number);
  QWidget* MakeNumber(Label& number, const QString& title, int larger);
  void RefreshTotals();

  // The map.
  QWidget* MakeMapPage();
  QHBoxLayout* MakeFirstSteps();
  QWidget* MakeMap();
  QBoxLayout* MakeSheet();
  QWidget* MakeTools();
  QHBoxLayout* MakeBackgrounds();
  QWidget* MakePlot();
  QWidget* MakeLabelTools();
  QHBoxLayout* MakeLists();
  QBoxLayout* MakeTitledList(const QString& title, List& list);
  void RefreshMap();

  /// Makes the box of a frame or of a group, with its rows.
  static QBoxLayout* MakeRows(QWidget& box);
  void AddButtons(QGridLayout& grid, const std::vector<Button*>& buttons, int in_a_row);

  /// What stands in the place of a number as long as there is none.
  struct Blank {
    QWidget* widget;
    const Label* number;
  };

  /// A class of distances.
  struct Distance {
    ShareBar* bar;
    const Label* count;
  };

  StatisticsForm& form_;
  EventRunner& runner_;
  std::vector<Blank> blanks_;
  std::vector<Distance> distances_;
  bool on_map_page_ = false;
  QPushButton* count_ = nullptr;     ///< the first thing to do on a page
  QPushButton* show_map_ = nullptr;  ///< the same on the other
  QGroupBox* found_ = nullptr;       ///< what the click on a number listed
  QWidget* no_map_ = nullptr;        ///< tells there how to get one
  PictureView* map_ = nullptr;
};

}  // namespace velmar
