#pragma once

#include <string>
#include <string_view>

#include "intake/intake_state.h"
#include "intake/log_header.h"
#include "platform/manager.h"

namespace velmar {

/// The boxes of reading a log. A value stands on the line of the text that introduces it.

// Its file and its header.
Box NoLogsBox();
Box NoMonthBox();
Box UnfinishedNameBox();
Box BadNameBox(const IntakeState& log);
Box BadDateBox(const IntakeState& log, std::string_view contest_date);
Box BadFirstRowBox(const IntakeState& log);
Box NoQsosBox(const IntakeState& log, std::string_view row);
Box NameWithoutDigitBox();
Box NoHeaderBox();
Box MissingKeyBox(const IntakeState& log, const HeaderKey& key);
Box BadHeaderBox();
Box NoLocatorBox();
Box ForeignLocatorQuestion(const IntakeState& log);
Box ValueFaultBox(const IntakeState& log, ValueFault fault);
Box UnusableRowBox(std::size_t row);

// Category and frequency.
Box ControlLogBox();
Box WrongCategoryBox();
Box CorrectCategoryBox();
Box CategoryQuestion();
Box UpdateCategoryBox();

// The last checks.
Box MoreValidThanRowsBox(const IntakeState& log);
Box NotRecalculatedBox();
Box AlreadyInsertedBox();
Box CountsDifferBox(const IntakeState& log);
Box OtherCategoryBox(const IntakeState& log);
Box LogTroubleBox();
Box NoFileBox();

/// That the own locator is none; the program ends behind it. The text has a blank at its end where
/// the header is read, and none where the rows are.
Box OwnLocatorBox(bool in_header);

}  // namespace velmar
