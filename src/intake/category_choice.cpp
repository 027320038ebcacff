#include "intake/category_choice.h"

#include "intake/insertion_messages.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "model/workspace.h"

namespace velmar {

namespace {

constexpr std::string_view kEveryCategory = "UNICA";
constexpr std::string_view kTestCategory = "3IT";

/// Whether logs of a category and a band are admitted to the contest.
bool Admitted(const IntakeState& log, bool test_run) {
  const bool category = log.category == kCategory || log.category == kBothCategories ||
                        log.category == kEveryCategory ||
                        (test_run && log.category == kTestCategory);
  return category && (log.frequency == 144 || log.frequency == 145);
}

}  // namespace

CategoryChoice::Verdict CategoryChoice::Test(IntakeState& log) {
  const bool admitted = Admitted(log, form_.Testlog.checked);
  if (!admitted || (log.category != kCategory && log.category != kEveryCategory)) {
    return Ask(log, admitted);
  }
  form_.newcate.value = kCategory;
  return Verdict::kFits;
}

CategoryChoice::Verdict CategoryChoice::Ask(IntakeState& log, bool admitted) {
  if (Upper(log.category) == "CONTROLL LOG") {
    manager_.Show(ControlLogBox());
    return Verdict::kStays;
  }
  for (Control* field : std::initializer_list<Control*>{&form_.frequenza, &form_.categoria}) {
    if (field->value.empty()) {
      field->colour = colour::kRed;
    }
  }
  manager_.Show(WrongCategoryBox());
  if (!admitted) {
    manager_.Show(CorrectCategoryBox());
    if (manager_.Show(CategoryQuestion()) != Reply::kYes) {
      return Verdict::kRefused;
    }
  }
  log.needs_category = true;
  panel_.AwaitCategory();
  manager_.Show(UpdateCategoryBox());
  return Verdict::kStays;
}

void CategoryChoice::Update(IntakeState& log) {
  log.category = form_.newcate.value;
  const bool band_known =
      log.category == kCategory || log.category == kEveryCategory || log.category.empty();
  const std::string text = files_.ReadAll(log.log_path);
  std::string changed;
  LineReader reader(text);
  for (std::string_view line; reader.Next(line);) {
    const std::string capitals = Upper(line);
    if (Holds(capitals, "PSECT=")) {
      changed += Join("PSect=", log.category, kLineEnd);
    } else if (Holds(capitals, "PBAND=") && band_known) {
      changed += Join("PBand=", kBandCode, kLineEnd);
    } else if (!line.empty()) {
      changed += Join(line, kLineEnd);
    }
  }
  files_.WriteAll(log.log_path, changed);
  log.needs_category = false;
  panel_.TakeNewCategory();
}

}  // namespace velmar
