#include "textrowparser.h"

#include "numbertext.h"
#include "readreport.h"

#include <algorithm>
#include <cstring>

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\r' || c == '\t';
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

const char *find(const char *from, const char *end, char wanted) {
  return from < end ? static_cast<const char *>(std::memchr(from, wanted, static_cast<std::size_t>(end - from))) : nullptr;
}

/// "12,5": a number as many countries write it.
bool hasDecimalComma(std::string_view text) {
  if (!text.empty() && (text.front() == '-' || text.front() == '+'))
    text.remove_prefix(1);
  const std::size_t comma = text.find(',');
  if (comma == 0 || comma == std::string_view::npos || comma + 1 == text.size())
    return false;
  const std::string_view before = text.substr(0, comma);
  const std::string_view behind = text.substr(comma + 1);
  return std::all_of(before.begin(), before.end(), isDigit) && std::all_of(behind.begin(), behind.end(), isDigit);
}

} // namespace

bool TextRowParser::isNameColumn(std::string_view text) {
  constexpr std::string_view Name = "name";
  return std::equal(text.begin(), text.end(), Name.begin(), Name.end(), [](char a, char b) { return (a | 0x20) == b; });
}

const char *TextRowParser::addQuoted(const char *at, const char *end) {
  const char *begin = ++at;
  const std::size_t roomBefore = m_room.size();
  bool isCopied = false;
  while (const char *quote = find(at, end, '"')) {
    if (quote + 1 == end || quote[1] != '"') {
      if (isCopied)
        m_room.append(begin, quote);
      m_cells.push_back({isCopied ? std::string_view(m_room).substr(roomBefore)
                                  : std::string_view(begin, static_cast<std::size_t>(quote - begin)),
                         true});
      return quote + 1;
    }
    m_room.append(begin, quote + 1); // one of the two
    isCopied = true;
    begin = at = quote + 2;
  }
  return nullptr;
}

const char *TextRowParser::addPlain(const char *at, const char *end, char separator) {
  const char *next = find(at, end, separator);
  if (next == nullptr)
    next = end;
  const char *last = next;
  while (last > at && isBlank(last[-1]))
    --last;
  m_cells.push_back({std::string_view(at, static_cast<std::size_t>(last - at)), false});
  return next;
}

bool TextRowParser::split(std::string_view line, char separator) {
  m_cells.clear();
  m_room.clear();
  m_room.reserve(line.size()); // views into it must stay
  const char *at = line.data();
  const char *const end = at + line.size();
  const auto skipBlanks = [&] {
    while (at < end && isBlank(*at) && *at != separator)
      ++at;
  };
  while (true) {
    skipBlanks();
    if (at < end && *at == '"') {
      at = addQuoted(at, end);
      if (at == nullptr)
        return false;
      skipBlanks();
    } else {
      at = addPlain(at, end, separator);
    }
    if (at >= end)
      return true;
    if (*at != separator) { // something stands behind a closing quote
      m_cells.clear();
      return true;
    }
    ++at;
  }
}

RecordValue TextRowParser::valueOf(const Cell &cell, std::string_view column) const {
  RecordValue value;
  value.key = column;
  value.isNumber = !cell.isQuoted && numberText(cell.text, value.text) == NumberText::Taken;
  if (!value.isNumber || m_numbers == RecordNumbers::AsWritten)
    value.text = PropertyText(cell.text);
  return value;
}

QString TextRowParser::parse(const Row &row, ElementRecord &parsed) {
  parsed.values.clear();
  parsed.dropped.clear();
  parsed.doubtful.clear();
  split(row.text, row.table->separator); // whose quotes are closed
  if (m_cells.empty())
    return ReadReport::tr("something stands behind a closing quote");
  parsed.name = m_cells.front().text;
  if (!row.table->type.empty())
    parsed.values.push_back({TypeMember, PropertyText(std::string_view(row.table->type)), false});
  for (std::size_t i = 1; i < m_cells.size(); ++i) {
    const Cell &cell = m_cells[i];
    if (!cell.isQuoted && cell.text.empty())
      continue;
    if (i >= row.table->columns.size())
      return ReadReport::tr("it has more than the %1 columns of its table").arg(row.table->columns.size());
    parsed.values.push_back(valueOf(cell, row.table->columns[i]));
    if (!cell.isQuoted && hasDecimalComma(cell.text))
      parsed.doubtful.push_back({row.table->columns[i],
                                 QT_TRANSLATE_NOOP("ReadReport", "is taken as a text, since numbers have a decimal point")});
  }
  return QString();
}
