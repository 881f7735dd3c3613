#include "recordparser.h"

#include "readreport.h"

#include <cstring>

namespace {

/// Of a table that has a set point a row: property, value and perhaps unit.
SetPointRecord setPoint(const ElementRecord &row) {
  SetPointRecord point;
  bool hasValue = false;
  for (const RecordValue &value : row.values) {
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
  for (const RecordRemark &doubt : row.doubtful) {
    if (doubt.key == "value")
      point.doubt = doubt.reason;
  }
  point.isComplete = hasValue && !point.property.empty();
  return point;
}

} // namespace

void RawRecord::keep() {
  if (json.text == nullptr)
    return;
  room.resize(json.size + 2 + simdjson::SIMDJSON_PADDING + 2);
  std::memcpy(room.data() + 1, json.text, json.size);
  json.text = room.data() + 1;
  json.capacity = room.size() - 1;
}

void RecordParser::parse(const RawRecord &raw, Record &record) {
  record.elementCount = 0;
  record.setPoints.clear();
  if (m_form == RecordForm::Json)
    parseLine(raw, record);
  else
    parseRow(raw, record);
}

void RecordParser::parseLine(const RawRecord &raw, Record &record) {
  record.line = raw.json.number;
  const char *fault = nullptr;
  if (raw.json.tooLong)
    fault = "the line is longer than 64 MB";
  else if (m_content == RecordContent::SetPoints)
    fault = m_lines.parse(raw.json, record.setPoints);
  else
    fault = m_lines.parse(raw.json, record.elements, record.elementCount);
  record.fault = QString::fromUtf8(fault);
  if (fault != nullptr)
    record.quote = ReadReport::quoted({raw.json.text, raw.json.size});
}

/// For a row; set points are read by the hundred thousand, and need not keep theirs.
ElementRecord &RecordParser::roomFor(Record &record) {
  if (m_content == RecordContent::SetPoints)
    return m_row;
  if (record.elements.empty())
    record.elements.emplace_back();
  return record.elements.front();
}

void RecordParser::parseRow(const RawRecord &raw, Record &record) {
  record.line = raw.row.number;
  record.fault = raw.fault;
  record.quote = raw.quote;
  if (!record.fault.isEmpty())
    return;
  ElementRecord &parsed = roomFor(record);
  record.fault = m_rows.parse(raw.row, parsed);
  if (!record.fault.isEmpty())
    record.quote = ReadReport::quoted(raw.row.text);
  else if (m_content == RecordContent::SetPoints)
    record.setPoints.push_back({std::string(parsed.name), {setPoint(parsed)}});
  else
    record.elementCount = 1;
}
