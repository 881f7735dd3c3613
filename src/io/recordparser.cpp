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
  room.resize(1 + json.size + LineReader::Padding);
  std::memcpy(room.data() + 1, json.text, json.size);
  json.text = room.data() + 1;
  json.capacity = room.size() - 1;
}

void RecordParser::parse(const RawRecord &raw, Record &record) {
  record.elements = {};
  record.setPoints.clear();
  if (m_form == RecordForm::Json)
    parseLine(raw, record);
  else
    parseRow(raw, record);
}

void RecordParser::parseLine(const RawRecord &raw, Record &record) {
  record.line = raw.json.number;
  const char *fault = nullptr;
  std::size_t count = 0;
  if (raw.json.tooLong)
    fault = "the line is longer than 64 MB";
  else if (m_content == RecordContent::SetPoints)
    fault = m_lines.parse(raw.json, record.setPoints);
  else
    fault = m_lines.parse(raw.json, m_elements, count);
  record.fault = QString::fromUtf8(fault);
  if (fault == nullptr) {
    record.elements = {m_elements.data(), count};
  } else {
    record.quote = ReadReport::quoted({raw.json.text, raw.json.size});
    record.setPoints.clear(); // those before the fault
  }
}

void RecordParser::parseRow(const RawRecord &raw, Record &record) {
  record.line = raw.row.number;
  record.fault = raw.fault;
  record.quote = raw.quote;
  if (!record.fault.isEmpty())
    return;
  if (m_elements.empty())
    m_elements.emplace_back();
  ElementRecord &parsed = m_elements.front();
  record.fault = m_rows.parse(raw.row, parsed);
  if (!record.fault.isEmpty())
    record.quote = ReadReport::quoted(raw.row.text);
  else if (m_content == RecordContent::SetPoints)
    record.setPoints.push_back({std::string(parsed.name), {setPoint(parsed)}});
  else
    record.elements = {&parsed, 1};
}
