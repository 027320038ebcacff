#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/bounded_table.h"
#include "model/columns.h"
#include "model/text.h"

namespace velmar {

/// The calls that sent a log, without blanks around them.
using ParticipantCalls = BoundedTable<std::string, 10'000>;

/// A worked call as it stands in the library, at its full width.
using WorkedCall = std::array<char, kCallWidth>;

using WorkedCalls = BoundedTable<WorkedCall, 370'000>;

/// The calls of the participants' rows. The call that was looked for last on the check desk, if
/// any, ends the read and is not kept; that is meant so. More than 10,000 raise error 9.
ParticipantCalls ReadParticipantCalls(std::string_view rows, std::string_view last_search);

/// How many different calls there are among them.
std::size_t DistinctCalls(const ParticipantCalls& calls);

/// The worked call of a row of the library; short where the row is short.
WorkedCall WorkedCallOf(std::string_view row);

/// Whether it begins with "I".
bool Italian(const WorkedCall& call);

/// A call with how often it was worked, which follows its twelve characters at once.
namespace call_count {
inline constexpr Column kCall{1, kCallWidth}, kCount{13, kToTheEnd};
static_assert(FollowOneAnother({kCall, kCount}));
}  // namespace call_count

/// The Italian calls with their counts, in order without regard to case. Spellings of one call that
/// differ in case alone are counted apart, and piece by piece: of their numbered rows "call, n" in
/// one sorted list, each run of one spelling is an entry of its own.
std::vector<std::string> CountCalls(std::span<const WorkedCall> worked);

/// The entries whose call is neither among the participants nor the one looked for last.
std::vector<std::string> AbsentEntries(std::span<const std::string> entries,
                                       const ParticipantCalls& participants,
                                       std::string_view last_search);

/// A line of the list by counts: the last three characters of an entry, which hold a count of up to
/// three digits, and its call.
namespace absent_line {
inline constexpr Column kCount{1, 3}, kCall{8, kCallWidth};
static_assert(FollowOneAnother({kCount, {4, 4}, kCall}));
/// What a click on a line takes for its call: it leaves the last of twelve characters out.
inline constexpr Column kClicked{4, 15};
}  // namespace absent_line

/// The lines of absent entries, the lowest count first.
std::vector<std::string> LinesByCount(std::span<const std::string> absent);

/// A part of a whole as a percentage with one decimal, such as "33.3%"; empty where there is no
/// whole.
std::string PercentageText(std::size_t part, std::size_t whole);

}  // namespace velmar
