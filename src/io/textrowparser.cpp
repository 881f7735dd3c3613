#include "textrowparser.h"

#include "numbertext.h"

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
    Cell cell;
    if (at < end && *at == '"') {
      cell.isQuoted = true;
      const char *begin = ++at;
      const std::size_t roomBefore = m_room.size();
      bool isCopied = false;
      while (true) {
        const char *quote = find(at, end, '"');
        if (quote == nullptr)
          return false;
        if (quote + 1 == end || quote[1] != '"') {
          if (isCopied)
            m_room.append(begin, quote);
          cell.text = isCopied ? std::string_view(m_room).substr(roomBefore)
                               : std::string_view(begin, static_cast<std::size_t>(quote - begin));
          at = quote + 1;
          break;
        }
        m_room.append(begin, quote + 1); // one of the two
        isCopied = true;
        begin = at = quote + 2;
      }
      skipBlanks();
    } else {
      const char *next = find(at, end, separator);
      const char *last = next == nullptr ? end : next;
      const char *begin = at;
      at = last;
      while (last > begin && isBlank(last[-1]))
        --last;
      cell.text = std::string_view(begin, static_cast<std::size_t>(last - begin));
    }
    m_cells.push_back(cell);
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
    return QStringLiteral("something stands behind a closing quote");
  parsed.name = m_cells.front().text;
  if (!row.table->type.empty())
    parsed.values.push_back({TypeMember, PropertyText(std::string_view(row.table->type)), false});
  for (std::size_t i = 1; i < m_cells.size(); ++i) {
    const Cell &cell = m_cells[i];
    if (!cell.isQuoted && cell.text.empty())
      continue;
    if (i >= row.table->columns.size())
      return QStringLiteral("it has more than the %1 columns of its table").arg(row.table->columns.size());
    parsed.values.push_back(valueOf(cell, row.table->columns[i]));
    if (!cell.isQuoted && hasDecimalComma(cell.text))
      parsed.doubtful.push_back({row.table->columns[i], "is taken as a text, since numbers have a decimal point"});
  }
  return QString();
}
