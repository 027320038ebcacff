#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/columns.h"

namespace velmar {

/// What the manager sees of a unique call. Calls are given without blanks behind them.

/// A QSO of the list of unique calls.
struct UniqueItem {
  std::string call;
  std::string locator;
  std::string points{};  ///< as they stand, without the blank ahead of them
  std::string ordinal{};
};

UniqueItem ReadUniqueItem(std::string_view row);

/// The QSOs of the other logs with a call like this one: the first of six tests that finds any.
/// Behind those that hold the call itself there is a rule.
std::vector<std::string> FindSimilarCalls(const std::vector<std::string_view>& others,
                                          const UniqueItem& item);

/// The same, and behind any of them the rows of the book for the end of the call. Without a book
/// they are left out.
std::vector<std::string> FindSimilarCalls(const std::vector<std::string_view>& others,
                                          const std::vector<std::string>* call_book,
                                          const UniqueItem& item);

/// The call of a row of FindInLocator.
inline constexpr Column kListedCall{11, 12};

/// Who else was worked in the locator: locator, call, the start of the owner, and a mark.
std::vector<std::string> FindInLocator(const std::vector<std::string_view>& others,
                                       std::string_view locator);

/// The same rows with each call once, in the order of the calls.
std::vector<std::string> EachCallOnce(std::vector<std::string> rows);

/// The call without what is ahead of or behind its "/"; empty for a call without one.
std::string BaseCall(std::string_view call);

/// What is odd in the digits of an Italian call.
struct DigitWarning {
  std::string banner;
  std::string message;
};

/// Both empty where nothing is odd, and for a call that is not Italian.
DigitWarning CheckDigits(std::string_view call);

/// The rows of the book for the end of a call: three characters, or four of a portable one.
std::vector<std::string> FindEndInBook(const std::vector<std::string>& call_book,
                                       std::string_view call);

}  // namespace velmar
