#include "networkfilewriter.h"

#include "numbertext.h"
#include "record.h"
#include "textrowparser.h"

#include <algorithm>
#include <array>

namespace {

/// A number in the text that reading makes of it.
bool isPlainNumber(std::string_view text) {
  PropertyText read;
  return numberText(text, read) == NumberText::Taken && read.utf8() == text;
}

bool isNumber(std::string_view text) {
  PropertyText read;
  return numberText(text, read) != NumberText::Invalid;
}

constexpr const char *NoRoom =
    QT_TRANSLATE_NOOP("ReadReport", "a row of the text form holds 200 line breaks and 32 MB at most");
static_assert(TextTableReader::MostLineBreaks == 200 && TextFileWriter::MostRowBytes == std::size_t(32) << 20,
              "the text above names both");

} // namespace

void NetworkFileWriter::put(std::string_view text) {
  constexpr std::size_t BufferedBytes = 1 << 20;
  m_buffer += text;
  if (m_buffer.size() > BufferedBytes)
    flush();
}

bool NetworkFileWriter::flush() {
  const auto size = static_cast<qint64>(m_buffer.size());
  m_isSound = m_isSound && m_device.write(m_buffer.data(), size) == size;
  m_buffer.clear();
  return m_isSound;
}

JsonFileWriter::JsonFileWriter(QIODevice &device)
    : NetworkFileWriter(device) {
  put("{\n");
}

void JsonFileWriter::putText(std::string_view text) {
  constexpr char FirstPlain = 0x20;
  const auto isEscaped = [](char c) {
    return c == '"' || c == '\\' || (c >= 0 && c < FirstPlain);
  };
  put("\"");
  while (!text.empty()) {
    const auto plain = static_cast<std::size_t>(std::find_if(text.begin(), text.end(), isEscaped) - text.begin());
    put(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty())
      break;
    const char c = text.front();
    text.remove_prefix(1);
    if (c == '"' || c == '\\') {
      const std::array<char, 2> escaped{'\\', c};
      put({escaped.data(), escaped.size()});
    } else {
      constexpr std::string_view Hex = "0123456789abcdef";
      const std::array<char, 6> escaped{
          '\\', 'u', '0', '0', Hex[static_cast<std::size_t>(c) >> 4], Hex[static_cast<std::size_t>(c) & 15]};
      put({escaped.data(), escaped.size()});
    }
  }
  put("\"");
}

void JsonFileWriter::putValue(const Value &value) {
  if (value.isNumber)
    put(value.text.utf8());
  else
    putText(value.text.utf8());
}

void JsonFileWriter::beginMember(std::string_view name) {
  if (!m_isFirst)
    put(",");
  m_isFirst = false;
  putText(name);
  put(":");
}

NetworkFileWriter::LeftOut JsonFileWriter::write(std::string_view name, std::string_view type, std::vector<Value> values) {
  beginMember(name);
  put("{");
  bool isFirst = type.empty();
  if (!type.empty()) {
    putText(TypeMember);
    put(":");
    putText(type);
  }
  for (const Value &value : values) {
    if (!isFirst)
      put(",");
    isFirst = false;
    putText(value.key.utf8());
    put(":");
    putValue(value);
  }
  put("}\n");
  return {};
}

void JsonFileWriter::endSetPoints() {
  if (m_hasSetPoints)
    put("]\n");
  m_hasSetPoints = false;
}

const char *JsonFileWriter::writeSetPoint(std::string_view name, const Value &value, std::string_view unit) {
  if (m_hasSetPoints && m_setPointsOf == name) {
    put(",");
  } else {
    endSetPoints();
    beginMember(name);
    put("[");
    m_setPointsOf = name;
    m_hasSetPoints = true;
  }
  put("{\"property\":");
  putText(value.key.utf8());
  put(",\"value\":");
  putValue(value);
  if (!unit.empty()) {
    put(",\"unit\":");
    putText(unit);
  }
  put("}");
  return nullptr;
}

bool JsonFileWriter::finish() {
  endSetPoints();
  put("}\n");
  return flush();
}

/// A name or a unit: quoted when it would be read as something else without quotes.
void TextFileWriter::putCell(std::string_view text) {
  constexpr std::string_view Special = ";\t\"\n\r";
  const bool isPlain = !text.empty() && text.find_first_of(Special) == std::string_view::npos && text.front() != ' ' &&
                       text.back() != ' ' && (isPlainNumber(text) || !isNumber(text));
  if (isPlain)
    put(text);
  else
    putQuoted(text);
}

void TextFileWriter::putQuoted(std::string_view text) {
  put("\"");
  while (true) {
    const std::size_t quote = text.find('"');
    put(text.substr(0, quote));
    if (quote == std::string_view::npos)
      break;
    put("\"\"");
    text.remove_prefix(quote + 1);
  }
  put("\"");
}

/// Numbers stand without quotes, texts that look like numbers in them.
void TextFileWriter::putValue(const Value &value) {
  if (value.isNumber)
    put(value.text.utf8());
  else if (isNumber(value.text.utf8()))
    putQuoted(value.text.utf8());
  else
    putCell(value.text.utf8());
}

/// The first cell of a row, which must not look like a comment, a type or column names.
void TextFileWriter::putName(std::string_view text) {
  if (!text.empty() && (text.front() == '#' || text.front() == '[' || TextRowParser::isNameColumn(text)))
    putQuoted(text);
  else
    putCell(text);
}

bool TextFileWriter::canHoldType(std::string_view word) {
  return word.find_first_of("]\n") == std::string_view::npos;
}

bool TextFileWriter::Room::take(std::string_view cell) {
  constexpr std::size_t QuotesAndSeparator = 3;
  const auto lineBreaks = static_cast<std::size_t>(std::count(cell.begin(), cell.end(), '\n'));
  const std::size_t bytes =
      cell.size() + static_cast<std::size_t>(std::count(cell.begin(), cell.end(), '"')) + QuotesAndSeparator;
  if (lineBreaks > m_lineBreaks || bytes > m_bytes)
    return false;
  m_lineBreaks -= lineBreaks;
  m_bytes -= bytes;
  return true;
}

TextFileWriter::Table &TextFileWriter::tableOf(std::string type, const std::vector<Value> &values) {
  std::string shape(type);
  if (type.empty()) {
    for (const Value &value : values) {
      shape += '\n';
      shape += value.key.utf8();
    }
  }
  const auto [entry, isNew] = m_byShape.try_emplace(std::move(shape), m_tables.size());
  if (isNew)
    m_tables.emplace_back().type = std::move(type);
  return m_tables[entry->second];
}

const char *TextFileWriter::add(Value value, Table &table, Row &row, Room &room) {
  const std::string_view key = value.key.utf8();
  if (key.empty())
    return QT_TRANSLATE_NOOP("ReadReport", "it has no name");
  if (!room.take(value.text.utf8()))
    return NoRoom;
  auto column = table.columnOf.find(value.key);
  if (column == table.columnOf.end()) {
    if (!table.header.take(key))
      return NoRoom;
    column = table.columnOf.emplace(value.key, table.columns.size()).first;
    table.columns.push_back(value.key);
  }
  row.cells.push_back({column->second, std::move(value)});
  return nullptr;
}

NetworkFileWriter::LeftOut TextFileWriter::write(std::string_view name, std::string_view type, std::vector<Value> values) {
  LeftOut leftOut;
  Room room;
  if (!room.take(name)) {
    leftOut.element = NoRoom;
    return leftOut;
  }
  std::string word(type);
  if (!canHoldType(word)) {
    leftOut.values.push_back({std::string(TypeMember), NoSuchType});
    word.clear();
  }
  const std::string folded = decoded(name).toCaseFolded().toStdString();
  if (!m_names.insert(folded).second) {
    putTables();
    m_names.insert(folded);
  }
  Table &table = tableOf(std::move(word), values);
  Row row{PropertyText(name), {}};
  for (Value &value : values) {
    const PropertyKey key = value.key;
    if (const char *reason = add(std::move(value), table, row, room))
      leftOut.values.push_back({key.utf8().empty() ? "\"\"" : std::string(key.utf8()), reason});
  }
  std::stable_sort(row.cells.begin(), row.cells.end(), [](const Cell &a, const Cell &b) { return a.column < b.column; });
  table.rows.push_back(std::move(row));
  return leftOut;
}

const char *TextFileWriter::writeSetPoint(std::string_view name, const Value &value, std::string_view unit) {
  Room room;
  if (!room.take(name) || !room.take(value.key.utf8()) || !room.take(value.text.utf8()) || !room.take(unit))
    return NoRoom;
  if (!m_hasSetPoints)
    put("name;property;value;unit\n");
  m_hasSetPoints = true;
  putName(name);
  put(";");
  putCell(value.key.utf8());
  put(";");
  putValue(value);
  if (!unit.empty()) {
    put(";");
    putCell(unit);
  }
  put("\n");
  return nullptr;
}

void TextFileWriter::putTable(const Table &table) {
  if (m_hasTables)
    put("\n");
  m_hasTables = true;
  if (m_isBelowType || !table.type.empty())
    put("[" + table.type + "]\n");
  m_isBelowType = !table.type.empty();
  put("name");
  for (const PropertyKey column : table.columns) {
    put(";");
    putCell(column.utf8());
  }
  put("\n");
  for (const Row &row : table.rows) {
    putName(row.name.utf8());
    std::size_t separators = 0; // that are written
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const Cell &cell = row.cells[i];
      if (i + 1 < row.cells.size() && row.cells[i + 1].column == cell.column)
        continue; // of a property given twice the last value counts
      put(std::string(cell.column + 1 - separators, ';'));
      separators = cell.column + 1;
      putValue(cell.value);
    }
    put("\n");
  }
}

void TextFileWriter::putTables() {
  for (const Table &table : m_tables)
    putTable(table);
  m_tables.clear();
  m_byShape.clear();
  m_names.clear();
}

bool TextFileWriter::finish() {
  putTables();
  return flush();
}
