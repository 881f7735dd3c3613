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

void JsonFileWriter::write(std::string_view name, std::string_view type, std::vector<Value> values) {
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
}

void JsonFileWriter::endSetPoints() {
  if (m_hasSetPoints)
    put("]\n");
  m_hasSetPoints = false;
}

void JsonFileWriter::writeSetPoint(std::string_view name, const Value &value, std::string_view unit) {
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

void TextFileWriter::write(std::string_view name, std::string_view type, std::vector<Value> values) {
  std::string shape(type);
  if (type.empty()) {
    for (const Value &value : values) {
      shape += '\n';
      shape += value.key.utf8();
    }
  }
  const auto [entry, isNew] = m_byShape.try_emplace(std::move(shape), m_tables.size());
  if (isNew)
    m_tables.push_back({std::string(type), {}, {}, {}});
  Table &table = m_tables[entry->second];
  Row row{PropertyText(name), {}};
  for (Value &value : values) {
    const auto [column, isNewColumn] = table.columnOf.try_emplace(value.key, table.columns.size());
    if (isNewColumn)
      table.columns.push_back(value.key);
    row.cells.push_back({column->second, std::move(value)});
  }
  std::stable_sort(row.cells.begin(), row.cells.end(), [](const Cell &a, const Cell &b) { return a.column < b.column; });
  table.rows.push_back(std::move(row));
}

void TextFileWriter::writeSetPoint(std::string_view name, const Value &value, std::string_view unit) {
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
}

void TextFileWriter::putTable(const Table &table) {
  if (!table.type.empty())
    put("[" + table.type + "]\n");
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

bool TextFileWriter::finish() {
  for (std::size_t i = 0; i < m_tables.size(); ++i) {
    if (i > 0)
      put("\n");
    putTable(m_tables[i]);
  }
  m_tables.clear();
  return flush();
}
