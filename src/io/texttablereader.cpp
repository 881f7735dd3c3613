#include "texttablereader.h"

#include "readreport.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::string_view TypeMember = "obj_type";

bool isBlank(char c) {
  return c == ' ' || c == '\r' || c == '\t';
}

const char *find(const char *from, const char *end, char wanted) {
  return from < end ? static_cast<const char *>(std::memchr(from, wanted, static_cast<std::size_t>(end - from))) : nullptr;
}

bool isName(std::string_view text) {
  constexpr std::string_view Name = "name";
  return std::equal(text.begin(), text.end(), Name.begin(), Name.end(), [](char a, char b) { return (a | 0x20) == b; });
}

} // namespace

bool TextTableReader::nextLine() {
  if (!m_pending.empty()) {
    m_number = m_pending.front().first;
    m_line.swap(m_pending.front().second);
    m_pending.pop_front();
    m_isTooLong = false;
    return true;
  }
  LineReader::Line line;
  if (!m_lines.nextRaw(line))
    return false;
  m_number = line.number;
  m_isTooLong = line.tooLong;
  m_line.assign(line.text, line.size);
  return true;
}

QString TextTableReader::quote() const {
  LineReader::Line line;
  line.text = const_cast<char *>(m_line.data()); // which is only read
  line.size = m_line.size();
  return ReadReport::quoted(line);
}

TextTableReader::Found TextTableReader::fail(const QString &reason) {
  m_fault = reason;
  return Found::Fault;
}

bool TextTableReader::split() {
  m_cells.clear();
  m_room.clear();
  m_room.reserve(m_line.size()); // views into it must stay
  const char *at = m_line.data();
  const char *const end = at + m_line.size();
  while (true) {
    while (at < end && isBlank(*at) && *at != m_separator)
      ++at;
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
      while (at < end && isBlank(*at) && *at != m_separator)
        ++at;
    } else {
      const char *next = find(at, end, m_separator);
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
    if (*at != m_separator) { // something stands behind a closing quote
      m_cells.clear();
      return true;
    }
    ++at;
  }
}

/// Takes the following lines to one whose quote stays open, as spreadsheets write texts with line breaks. When no line
/// closes it soon, the quote is a mistake: only its line is lost.
bool TextTableReader::continueLine() {
  constexpr int MostLines = 200;
  const std::string first = m_line;
  const int number = m_number;
  std::deque<std::pair<int, std::string>> taken;
  while (taken.size() < MostLines) {
    std::string whole = std::move(m_line);
    if (!nextLine())
      break;
    taken.emplace_back(m_number, m_line);
    m_line = whole + '\n' + m_line;
    if (split()) {
      m_number = number;
      return true;
    }
  }
  m_line = first;
  m_number = number;
  m_pending.insert(m_pending.begin(), taken.begin(), taken.end());
  return false;
}

bool TextTableReader::takeHeader() {
  std::vector<std::string> columns;
  for (const Cell &cell : m_cells)
    columns.emplace_back(cell.text);
  while (!columns.empty() && columns.back().empty())
    columns.pop_back(); // spreadsheets fill up with separators
  if (std::find(columns.begin(), columns.end(), std::string()) != columns.end())
    return false;
  m_columns = std::move(columns);
  return true;
}

bool TextTableReader::takeRow(JsonLineParser::Element &row) {
  row.values.clear();
  row.dropped.clear();
  row.name = m_cells.front().text;
  if (!m_type.empty())
    row.values.push_back({TypeMember, PropertyText(std::string_view(m_type)), false});
  for (std::size_t i = 1; i < m_cells.size(); ++i) {
    const Cell &cell = m_cells[i];
    if (!cell.isQuoted && cell.text.empty())
      continue;
    if (i >= m_columns.size())
      return false;
    JsonLineParser::Value value;
    value.key = m_columns[i];
    value.isNumber = !cell.isQuoted && numberText(cell.text, value.text) == NumberText::Taken;
    if (!value.isNumber || m_numbers == JsonLineParser::Numbers::AsWritten)
      value.text = PropertyText(cell.text);
    row.values.push_back(std::move(value));
  }
  return true;
}

TextTableReader::Found TextTableReader::next(JsonLineParser::Element &row) {
  while (nextLine()) {
    if (m_isTooLong)
      return fail(QStringLiteral("the line is longer than 64 MB"));
    const std::size_t begin = m_line.find_first_not_of(" \t\r");
    if (begin == std::string::npos || m_line[begin] == '#')
      continue;
    if (m_line[begin] == '[') {
      const std::size_t end = m_line.find(']', begin);
      if (end == std::string::npos || m_line.find_first_not_of(" \t\r;", end + 1) != std::string::npos)
        return fail(QStringLiteral("a type stands alone in its line, in square brackets"));
      m_type = m_line.substr(begin + 1, end - begin - 1);
      m_columns.clear();
      continue;
    }
    const bool mayBeHeader = isName(std::string_view(m_line).substr(begin, 4));
    const char separatorBefore = m_separator;
    if (mayBeHeader && m_line.size() > begin + 4 && m_line[begin + 4] == '\t')
      m_separator = '\t';
    else if (mayBeHeader)
      m_separator = ';';
    if (!split() && !continueLine())
      return fail(QStringLiteral("a quote is not closed"));
    if (m_cells.empty())
      return fail(QStringLiteral("something stands behind a closing quote"));
    if (mayBeHeader && !m_cells.front().isQuoted && isName(m_cells.front().text)) {
      if (!takeHeader())
        return fail(QStringLiteral("a column has no name"));
      continue;
    }
    if (m_separator != separatorBefore) { // a name that only begins so
      m_separator = separatorBefore;
      split();
    }
    const bool isAllEmpty =
        std::all_of(m_cells.begin(), m_cells.end(), [](const Cell &cell) { return cell.text.empty() && !cell.isQuoted; });
    if (isAllEmpty)
      continue;
    if (m_columns.empty())
      return fail(QStringLiteral("no line with column names, which begins with \"name\", stands above it"));
    if (!takeRow(row))
      return fail(QStringLiteral("it has more than the %1 columns of its table").arg(m_columns.size()));
    return Found::Row;
  }
  return Found::End;
}

JsonLineParser::SetPoint TextTableReader::setPoint(const JsonLineParser::Element &row) {
  JsonLineParser::SetPoint point;
  bool hasValue = false;
  for (const JsonLineParser::Value &value : row.values) {
    if (value.key == "property") {
      point.property = std::string(value.text.utf8());
    } else if (value.key == "unit") {
      point.unit = std::string(value.text.utf8());
    } else if (value.key == "value") {
      point.value = value.text;
      point.isNumber = value.isNumber;
      hasValue = true;
    }
  }
  point.isComplete = hasValue && !point.property.empty();
  return point;
}
