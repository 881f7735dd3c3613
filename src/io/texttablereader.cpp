#include "texttablereader.h"

#include "readreport.h"

#include <base/textdecoding.h>

#include <algorithm>
#include <simdjson.h>

bool TextTableReader::nextLine() {
  if (!m_pending.empty()) {
    m_number = m_pending.front().number;
    m_isTooLong = m_pending.front().isTooLong;
    m_line.swap(m_pending.front().text);
    m_pending.pop_front();
    return true;
  }
  LineReader::Line line;
  if (!m_lines.nextRaw(line))
    return false;
  m_number = line.number;
  m_isTooLong = line.tooLong;
  m_line.assign(line.text, line.size);
  if (!simdjson::validate_utf8(m_line)) {
    m_line = TextDecoding::fromWindows1252(QByteArray::fromStdString(m_line)).toStdString();
    if (m_notUtf8Line == 0)
      m_notUtf8Line = m_number;
  }
  return true;
}

QString TextTableReader::quote() const {
  return ReadReport::quoted(m_line);
}

TextTableReader::Found TextTableReader::fail(const QString &reason) {
  m_fault = reason;
  return Found::Fault;
}

/// Takes the following lines to one whose quote stays open, as spreadsheets write texts with line breaks. When no line
/// closes it soon, the quote is a mistake: only its line is lost.
bool TextTableReader::continueLine() {
  const std::string first = m_line;
  const int number = m_number;
  std::deque<PendingLine> taken;
  while (taken.size() < MostLineBreaks) {
    std::string whole = std::move(m_line);
    if (!nextLine())
      break;
    taken.push_back({m_number, m_line, m_isTooLong});
    if (m_isTooLong || whole.size() + m_line.size() > LineReader::LongestLine)
      break;
    m_line = whole + '\n' + m_line;
    if (m_parser.split(m_line, m_table->separator)) {
      if (m_parser.cells().empty())
        break; // something stands behind the quote, which therefore opens another cell
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
  TextRowParser::Table table;
  table.type = m_table->type;
  table.separator = m_table->separator;
  for (const TextRowParser::Cell &cell : m_parser.cells())
    table.columns.emplace_back(cell.text);
  while (!table.columns.empty() && table.columns.back().empty())
    table.columns.pop_back(); // spreadsheets fill up with separators
  if (std::find(table.columns.begin(), table.columns.end(), std::string()) != table.columns.end())
    return false;
  m_table = std::make_shared<TextRowParser::Table>(std::move(table));
  return true;
}

/// A line with the type of the tables below it.
bool TextTableReader::takeType(std::size_t bracket) {
  const std::size_t end = m_line.find(']', bracket);
  if (end == std::string::npos || m_line.find_first_not_of(" \t\r;", end + 1) != std::string::npos)
    return false;
  m_table = std::make_shared<TextRowParser::Table>(
      TextRowParser::Table{m_line.substr(bracket + 1, end - bracket - 1), {}, m_table->separator});
  return true;
}

bool TextTableReader::isOnlySeparators() const {
  return std::all_of(m_line.begin(), m_line.end(),
                     [this](char c) { return c == m_table->separator || c == ' ' || c == '\t' || c == '\r'; });
}

TextTableReader::Found TextTableReader::next(TextRowParser::Row &row) {
  while (nextLine()) {
    if (m_isTooLong)
      return fail(ReadReport::lineTooLong());
    const std::size_t begin = m_line.find_first_not_of(" \t\r");
    if (begin == std::string::npos || m_line[begin] == '#')
      continue;
    if (m_line[begin] == '[') {
      if (!takeType(begin))
        return fail(ReadReport::tr("a type stands alone in its line, in square brackets"));
      continue;
    }
    const std::shared_ptr<const TextRowParser::Table> before = m_table;
    const bool mayBeHeader = TextRowParser::isNameColumn(std::string_view(m_line).substr(begin, 4));
    if (mayBeHeader) {
      const bool hasTabs = m_line.size() > begin + 4 && m_line[begin + 4] == '\t';
      m_table =
          std::make_shared<TextRowParser::Table>(TextRowParser::Table{before->type, before->columns, hasTabs ? '\t' : ';'});
    }
    const bool hasQuotes = m_line.find('"') != std::string::npos;
    if (hasQuotes && !m_parser.split(m_line, m_table->separator) && !continueLine()) {
      m_table = before;
      return fail(ReadReport::tr("a quote is not closed"));
    }
    if (mayBeHeader) {
      m_parser.split(m_line, m_table->separator);
      if (!m_parser.cells().empty() && !m_parser.cells().front().isQuoted &&
          TextRowParser::isNameColumn(m_parser.cells().front().text)) {
        if (!takeHeader())
          return fail(ReadReport::tr("a column has no name"));
        continue;
      }
      m_table = before; // a name that only begins so
    }
    if (isOnlySeparators())
      continue;
    if (m_table->columns.empty())
      return fail(ReadReport::tr("no line with column names, which begins with \"name\", stands above it"));
    row.number = m_number;
    row.table = m_table;
    row.text.swap(m_line);
    return Found::Row;
  }
  return Found::End;
}
