#include "intake/log_identity.h"

#include <algorithm>
#include <array>
#include <vector>

#include "model/edi_log.h"
#include "model/lines.h"
#include "model/text.h"
#include "model/workspace.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::string_view kSeparators = "(|@_\\/-";
constexpr std::size_t kLongestPrefix = 4;  ///< with its separator
constexpr std::size_t kMostLines = 370'000;
constexpr std::string_view kNoLog = "Log non valido";
constexpr std::string_view kNoCall = "call non valido";
constexpr std::size_t kLongestReason = 100;

/// What is taken out of a call, in this order.
constexpr std::array<std::string_view, 22> kRemoved = {
    "IV3_", "IN3_", "IS0_", "IM0_", "IX1_", "IA5_", "IT9_", "I_", "IK_", "_QRP", "_P",
    "_M",   "_0",   "_1",   "_2",   "_3",   "_4",   "_5",   "_6", "_7",  "_8",   "_9"};

/// Takes `part`, in any case of letters, out of `text`; false when it is not there.
bool Remove(std::string& text, std::string_view part) {
  const std::size_t at = Upper(text).find(part);
  if (at == std::string::npos) {
    return false;
  }
  text.erase(at, part.size());
  return true;
}

std::string SeparatorsUnified(std::string_view text) {
  std::string unified(text);
  std::ranges::replace_if(
      unified,
      [](char c) {
        return Holds(kSeparators, {&c, 1});
      },
      '_');
  return unified;
}

/// A row of the header by its number, from 1; empty where the header is shorter.
std::string_view Row(const std::vector<std::string_view>& header, std::size_t number) {
  return number <= header.size() ? header[number - 1] : std::string_view();
}

bool HasKey(std::string_view row, std::string_view key) {
  return ParseHeaderRow(row).key == key;
}

std::vector<std::string_view> HeaderOf(std::string_view text) {
  std::vector<std::string_view> header;
  LineReader reader(text);
  for (std::string_view line; reader.Next(line) && !line.empty();) {
    if (header.size() == kMostLines) {
      throw RunTimeError(ErrorNumber::kSubscript, "a log of too many lines");
    }
    header.push_back(line);
  }
  return header;
}

std::string_view DeclaredCall(const std::vector<std::string_view>& header) {
  const auto row = std::ranges::find_if(
      header, [](std::string_view line) { return Holds(Upper(line), "PCALL"); });
  return row == header.end() ? std::string_view() : Mid(*row, edi::kValueColumn);
}

/// The band that counts: 145 and 146 are the band of 144 MHz.
double BandOf(std::string_view declared) {
  const double band = Val(declared);
  return band == 145 || band == 146 ? 144 : band;
}

void NoteMissing(LogIdentity& log, std::string_view note, std::size_t index) {
  log.text += Join(note, index);
  log.valid = false;
}

void TakeSection(LogIdentity& log, const std::vector<std::string_view>& header, std::size_t index) {
  log.lacks_section = !HasKey(Row(header, header_row::kSection), "PSECT");
  if (log.lacks_section) {
    NoteMissing(log, " manca PSect - ", index);
  } else {
    log.section = Mid(Row(header, header_row::kSection), edi::kValueColumn);
  }
}

void TakeBand(LogIdentity& log, const std::vector<std::string_view>& header, std::size_t index) {
  log.lacks_band = !HasKey(Row(header, header_row::kBand), "PBAND");
  if (log.lacks_band) {
    NoteMissing(log, " manca PBand - ", index);
    log.text += " no frequenza";
    return;
  }
  log.band = Mid(Row(header, header_row::kBand), edi::kValueColumn);
  if (RTrim(log.section) == kCategory && BandOf(log.band) != 144) {
    log.text = Join(kSetAsideMark, log.text, " Problem  Cat=", log.section, " Freq=", log.band, " ",
                    index);
    log.valid = false;
  }
}

void Name(LogIdentity& log) {
  log.text = RTrim(SeparatorsUnified(log.text));
  log.text = log.text.substr(0, log.text.find('\t'));
  log.new_name = log.valid ? LogName(kCategory, log.text) : SetAsideName(log.text);
}

}  // namespace

CleanedCall CleanCall(std::string_view declared) {
  std::string call = WithoutBlanks(declared);
  if (call.size() > kCallWidth) {
    return {std::string(kNoLog)};
  }
  call = SeparatorsUnified(call);
  const auto separators = std::ranges::count(call, '_');
  if (separators > 1) {
    return {std::string(kNoCall)};
  }
  int removals = 0;
  if (separators == 1) {
    for (const std::string_view part : kRemoved) {
      removals += Remove(call, part) ? 1 : 0;
    }
  }
  Remove(call, "2IT_");
  const std::size_t position = call.find('_') + 1;  // counted from 1; 0 for none
  if (position > 0) {
    call = position <= kLongestPrefix ? Mid(call, position + 1) : Left(call, position - 1);
  }
  return call.empty() ? CleanedCall{std::string(kNoCall), false, removals}
                      : CleanedCall{call, true, removals};
}

LogIdentity IdentifyLog(std::string_view text, std::size_t index) {
  const auto header = HeaderOf(text);
  LogIdentity log;
  const std::string_view first = Row(header, 1);
  if (Holds(first, "<br") || first.size() != edi::kFirstRow.size()) {
    log.text = Join(kNoLog, Str(static_cast<long long>(index)));
  } else {
    log.call = CleanCall(DeclaredCall(header));
    log.text = log.call.text;
    log.valid = log.call.valid;
    TakeSection(log, header, index);
    TakeBand(log, header, index);
  }
  Name(log);
  return log;
}

std::string SetAsideName(std::string_view text) {
  // What a log declares may be too long for a file name, or no text at all.
  std::string fit(Left(text, kLongestReason));
  std::ranges::replace_if(
      fit, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return LogName(kSetAsideMark, fit);
}

std::string WithSection(std::string_view log, std::string_view section) {
  const std::string declared = Join("PSect=", Upper(section));
  std::string changed;
  changed.reserve(log.size());
  LineReader reader(log);
  for (std::string_view line; reader.Next(line);) {
    const bool declares = Holds(line, "=") && Holds(Upper(line), "PSECT=");
    AddLine(changed, declares ? declared : line);
  }
  return changed;
}

}  // namespace velmar
