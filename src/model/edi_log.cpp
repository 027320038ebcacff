#include "model/edi_log.h"

#include <algorithm>

#include "model/lines.h"
#include "model/text.h"

namespace velmar {

HeaderRow ParseHeaderRow(std::string_view row) {
  return {Upper(Left(row, 5)), Mid(row, edi::kValueColumn)};
}

QsoRecord SplitQso(std::string_view row) {
  QsoRecord qso;
  std::size_t begin = 0;
  std::size_t field = 0;
  bool tidy = true;
  for (std::size_t at = 0; at < row.size(); ++at) {
    if (row[at] == ';') {
      const std::string_view whole = row.substr(begin, at - begin);
      const std::string_view trimmed = Trim(whole);
      qso.fields_[field++] = trimmed;
      if (field == QsoRecord::kFields) {
        qso.tail_ = row.substr(at);
        qso.unchanged_ = tidy ? row.substr(0, begin) : std::string_view();
        return qso;
      }
      tidy = tidy && trimmed.size() == whole.size();
      begin = at + 1;
    }
  }
  qso.fields_[field] = Trim(row.substr(begin));
  return qso;
}

std::string_view QsoField(std::string_view row, std::size_t number) {
  std::size_t field = 1;
  std::size_t begin = 0;
  std::size_t at = 0;
  for (; at < row.size(); ++at) {
    if (row[at] == ';') {
      if (field == number) {
        break;
      }
      ++field;
      begin = at + 1;
    }
  }
  return field == number ? Trim(row.substr(begin, at - begin)) : std::string_view();
}

std::string JoinQso(const QsoRecord& qso) {
  std::string row;
  AppendQso(qso, row);
  return row;
}

void AppendQso(const QsoRecord& qso, std::string& text) {
  if (!qso.unchanged_.empty()) {
    text += qso.unchanged_;
    text += qso.points();
    text += qso.tail_;
    return;
  }
  for (const std::string_view field : qso.fields_) {
    text += field;
    text += ';';
  }
  text.pop_back();
  text += qso.tail_;
}

std::string_view FindOwnCall(const std::vector<std::string_view>& lines) {
  const std::size_t last = std::min(lines.size(), edi::kMostHeaderRows);
  for (std::size_t i = 0; i < last; ++i) {
    if (Upper(Left(lines[i], 5)) == "PCALL") {
      return Mid(lines[i], edi::kValueColumn);
    }
  }
  return {};
}

std::string_view OwnCallBase(std::string_view call) {
  const std::size_t slash = call.find('/') + 1;  // counted from 1; 0 for none
  if (slash >= 2 && slash <= 4) {
    return Mid(call, slash + 1);
  }
  return slash > 4 ? Left(call, slash - 1) : call;
}

LineMarks MarksOf(std::string_view line) {
  LineMarks marks;
  marks.closes_qsos = Holds(line, edi::kEnd);
  // Both words have an "o", which rows in capitals lack: one look spares two searches.
  if (line.find('o') != std::string_view::npos) {
    marks.opens_qsos = Holds(line, edi::kQsoRecords);
    marks.own_locator = Holds(line, "PWWLo");
  }
  return marks;
}

bool MarkedInvalid(std::string_view row) {
  return row.find('E') != std::string_view::npos && (Holds(row, "ERROR") || Holds(row, "DELETED"));
}

bool MarkedDuplicate(std::string_view row) {
  return row.ends_with(";D");
}

EdiLog ParseEdiLog(std::string_view text) {
  EdiLog log;
  log.lines = SplitLines(text);
  log.own_call = FindOwnCall(log.lines);
  bool in_qsos = false;
  bool placed = false;
  for (const std::string_view line : log.lines) {
    const LineMarks marks = MarksOf(line);
    if (marks.closes_qsos) {
      in_qsos = false;
      log.recalculated = log.recalculated || line.starts_with(edi::kRecalculated);
    } else if (marks.opens_qsos) {
      in_qsos = true;
    } else if (in_qsos && line.size() >= edi::kShortestQso) {
      log.qsos.push_back(line);
    } else if (marks.own_locator && !placed) {
      placed = true;
      log.own_locator = Trim(Mid(line, edi::kValueColumn));
    }
  }
  return log;
}

}  // namespace velmar
