#include "intake/log_header.h"

#include <algorithm>
#include <array>

#include "intake/log_lines.h"
#include "model/edi_log.h"
#include "model/text.h"

namespace velmar {

namespace {

constexpr double kMostPower = 500;  ///< W
constexpr std::size_t kDatesWidth = 17;
constexpr std::size_t kDateSplit = 9;  ///< where the dates part when no ";" does, from 1
constexpr std::size_t kQsosWidth = 5;
constexpr std::size_t kRemarkRows = 4;
constexpr std::size_t kBareRemarksRow = 9;  ///< length of a row "[Remarks]"
constexpr std::string_view kSuffixMarks = "/-_";

/// The keys that are looked for on insertion, in their order.
constexpr std::array kKeys = {
    HeaderKey{2, "TName", " problemi : alla riga 2 ci deve essere il nome contest  < TName >   ",
              false},
    HeaderKey{3, "TDate", " problemi : alla riga 3 ci deve essere la data contest < TDate >   ",
              false},
    HeaderKey{4, "PCall", " problemi : alla riga 4 ci deve essere il Call  < PCall >   ", true},
    HeaderKey{5, "PWWLo", " problemi : alla riga 5 ci deve essere il Locatore < PWWLo >  ", true},
    HeaderKey{6, "PExch",
              " problemi : alla riga 6 ci deve essere il codice scambiato   < PExch >  ", true},
    HeaderKey{9, "PSect",
              " problemi : alla riga 9 ci deve essere la categoria di partecipazione < PSect >  ",
              false},
    HeaderKey{10, "PBand",
              " problemi : alla riga 10 ci deve essere la frequenza di partecipazione < PBand >  ",
              true},
    HeaderKey{11, "PClub=",
              " problemi : alla riga 11 ci deve essere il club di appartenenza < PClub= >  ",
              false},
    HeaderKey{13, "RCall",
              " problemi : alla riga 13 ci deve essere il call responsabile < RCall >  ", false},
    HeaderKey{23, "STXEq", " problemi : alla riga 23 ci deve essere il trasmettitore < STXEq >  ",
              false},
    HeaderKey{24, "SPowe", " problemi : alla riga 24 ci deve essere potenza utilizzata < SPowe >  ",
              true},
    HeaderKey{28, "CQSOs", " problemi : alla riga 28 ci deve essere numero qso < CQSOs >  ", true},
    HeaderKey{29, "CQSOP", " problemi : alla riga 29 ci deve essere punti dichiarati < CQSOP >  ",
              false},
    HeaderKey{30, "CWWLs", " problemi : alla riga 30 ci deve essere squares < CWWLs >  ", true},
    HeaderKey{31, "CWWLB", " problemi : alla riga 31 ci deve essere punti bonus < CWWLB >  ",
              false},
    HeaderKey{32, "CExcs",
              " problemi : alla riga 32 ci deve essere numero di scambi e bonus < CExcs >  ", true},
    HeaderKey{33, "CExcB",
              " problemi : alla riga 33 ci deve essere punteggio bonus su scambi < CExcB >  ",
              false},
    HeaderKey{34, "CDXCs",
              " problemi : alla riga 34 ci deve essere numero di country dxcc < CDXCs >  ", true},
    HeaderKey{35, "CDXCB", " problemi : alla riga 35 ci deve essere bonus su dxcc < CDXCB >  ",
              false},
    HeaderKey{36, "CToSc", " problemi : alla riga 36 ci deve essere Punteggio totale < CToSc >  ",
              true},
    HeaderKey{37, "CODXC", " problemi : alla riga 37 ci deve essere call e locator DX < CODXC >  ",
              true}};

bool IsDigits(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

/// The texts between the ";" of a value.
std::vector<std::string> Parts(std::string_view value) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t end = value.find(';');
    parts.emplace_back(value.substr(0, end));
    if (end == std::string_view::npos) {
      return parts;
    }
    value.remove_prefix(end + 1);
  }
}

void TakeHeights(IntakeState& state) {
  const std::string_view declared = HeaderValue(state, header_row::kHeights);
  const std::string value(Holds(declared, ";") ? declared : " ; ");
  const std::string_view behind = Mid(value, value.find(';') + 2);
  const std::string height(behind.empty() ? ";" : behind);
  state.height_wrong = !IsDigits(height);
  state.height = state.height_wrong ? "0" : height;
  state.shown_height = state.height_wrong ? Join("0", "  -  ", value) : value;
}

std::optional<ValueFault> TakeDx(IntakeState& state) {
  const std::string_view declared = HeaderValue(state, header_row::kDx);
  const std::string_view value = Trim(declared).empty() ? ";;" : declared;
  const auto parts = Parts(value);
  if (parts.size() != 3) {
    return ValueFault::kBadDx;
  }
  state.dx_call = parts[0];
  state.dx_distance = Trim(parts[2]);
  return std::nullopt;
}

}  // namespace

std::vector<const HeaderKey*> MissingKeys(const IntakeState& state) {
  std::vector<const HeaderKey*> missing;
  for (const HeaderKey& key : kKeys) {
    if (Upper(Left(state.Row(key.row), key.key.size())) != Upper(key.key)) {
      missing.push_back(&key);
      if (key.ends_checks) {
        break;
      }
    }
  }
  return missing;
}

std::string_view HeaderValue(const IntakeState& state, std::size_t row) {
  return Mid(state.Row(row), edi::kValueColumn);
}

std::optional<ValueFault> TakeOwner(IntakeState& state) {
  const std::string call = Call12(HeaderValue(state, header_row::kCall));
  if (!HasDigitAhead(call, kSuffixMarks)) {
    state.own_call = call;
    return ValueFault::kCallWithoutDigit;
  }
  state.own_call = Replaced(Replaced(call, '-', '/'), '_', '/');
  state.own_locator = Upper(Trim(HeaderValue(state, header_row::kLocator)));
  return std::nullopt;
}

void TakeStation(IntakeState& state) {
  state.category = RTrim(HeaderValue(state, header_row::kSection));
  state.frequency = Val(HeaderValue(state, header_row::kBand));
  const std::string power = Replaced(HeaderValue(state, header_row::kPower), ',', '.');
  state.power = std::min(Val(power), kMostPower);
  state.antenna = HeaderValue(state, header_row::kAntenna);
  TakeHeights(state);
}

std::optional<ValueFault> TakeCounts(IntakeState& state) {
  const std::string_view qsos = HeaderValue(state, header_row::kQsos);
  state.declared_qsos = LTrim(Left(qsos.substr(0, qsos.find(';')), kQsosWidth));
  if (Val(state.declared_qsos) == 0) {
    return ValueFault::kZeroQsos;
  }
  state.declared_points = HeaderValue(state, header_row::kPoints);
  if (state.declared_points.empty()) {
    return ValueFault::kNoPoints;
  }
  return IsDigits(state.declared_points) ? std::nullopt : std::optional(ValueFault::kBadPoints);
}

std::optional<ValueFault> TakeTotals(IntakeState& state) {
  if (Trim(HeaderValue(state, header_row::kTotal)).empty()) {
    return ValueFault::kNoTotal;
  }
  return TakeDx(state);
}

std::optional<std::vector<std::string>> ThreeParts(const IntakeState& state, std::size_t row) {
  const std::string_view declared = HeaderValue(state, row);
  std::string value(declared.empty() || declared == ";;" ? "0;0;1" : declared);
  const auto semicolons = static_cast<std::size_t>(std::ranges::count(value, ';'));
  value.append(semicolons < 2 ? 2 - semicolons : 0, ';');
  auto parts = Parts(value);
  return parts.size() == 3 ? std::optional(std::move(parts)) : std::nullopt;
}

std::string Remarks(const IntakeState& state) {
  std::string remarks;
  for (std::size_t i = 0; i < kRemarkRows; ++i) {
    const std::string_view row = state.Row(header_row::kRemarks + i);
    if (Holds(row, "[QSORec")) {
      break;
    }
    const bool bare = i == 0 && row.size() == kBareRemarksRow;
    remarks += Join(bare ? "[Remarks]:" : Lower(row), " ");
  }
  return std::string(RTrim(remarks));
}

DeclaredDates DatesOf(const IntakeState& state) {
  const std::string_view declared = HeaderValue(state, header_row::kDates);
  const std::string value = Pad(declared, std::max(declared.size(), kDatesWidth));
  const std::size_t semicolon = value.find(';') + 1;  // counted from 1; 0 for none
  const std::size_t split = semicolon == 0 ? kDateSplit : semicolon;
  return {std::string(Left(value, split - 1)), std::string(Mid(value, split + 1))};
}

}  // namespace velmar
