#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// How near two calls are, by cheap tests on the characters of at most the first ten places. No
/// edit distance is taken.

/// The places that count.
inline constexpr std::size_t kComparedPlaces = 10;

/// What the characters of a call that is looked for find in a candidate.
struct CallComparison {
  std::size_t present = 0;   ///< of its characters that the candidate has anywhere
  std::size_t in_place = 0;  ///< of its characters that the candidate has in the same place
  std::string present_map;   ///< the characters on a hit, "_" on a miss
  std::string in_place_map;
};

CallComparison CompareCalls(std::string_view wanted, std::string_view candidate);

/// What a test of the grading tells the manager.
enum class CallGrade { kOneError, kTwoErrors, kAnagram };

/// One test that hit.
struct GradedCall {
  CallGrade grade;
  std::string text;        ///< shown behind the row
  std::string_view label;  ///< names the test; empty where the label stays as it is
};

/// Whether the candidate is the call itself, or begins with it.
bool IdenticalCall(std::string_view wanted, const CallComparison& comparison);

/// All tests that hit, in their order. They are not made of an identical call.
std::vector<GradedCall> GradeCall(std::string_view wanted, std::string_view candidate,
                                  const CallComparison& comparison);

/// The most patterns of a call where two logs are compared.
inline constexpr std::size_t kPatternsOfLogs = 9;

/// Whether `text` fits `word` with any run of characters, or none, in place of one of its first
/// `most` characters. It is a rough net, on purpose.
bool FitsWithOneGap(std::string_view text, std::string_view word, std::size_t most);

}  // namespace velmar
