#include "recordparser.h"

#include "readreport.h"

#include <cstring>

namespace {

/// Of a table that has a set point a row: property, value and perhaps unit.
SetPointRecord setPoint(ElementRecord &row) {
  SetPointRecord point;
  bool hasValue = false;
  for (RecordValue &value : row.values) {
    if (value.key == "property") {
      point.property = value.text.utf8();
    } else if (value.key == "unit") {
      point.unit = value.text.utf8();
    } else if (value.key == "value") {
      point.value = std::move(value.text);
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
  if (const std::size_t size = 1 + json.size + LineReader::Padding; room.size() < size)
    room.resize(size);
  std::memcpy(room.data() + 1, json.text, json.size);
  json.text = room.data() + 1;
  json.capacity = room.size() - 1;
}

void RecordParser::parse(const RawRecord &raw, Record &record) {
  m_elementCount = 0;
  if (m_form == RecordForm::Json)
    parseLine(raw, record);
  else
    parseRow(raw, record);
}

void RecordParser::parseLine(const RawRecord &raw, Record &record) {
  record.line = raw.json.number;
  record.fault.clear();
  if (raw.json.tooLong) {
    record.fault = ReadReport::lineTooLong();
  } else {
    const char *fault = m_content == RecordContent::SetPoints ? m_lines.parse(raw.json, record.setPoints)
                                                              : m_lines.parse(raw.json, m_elements, m_elementCount);
    if (fault == nullptr)
      return;
    record.fault = QString::fromUtf8(fault);
  }
  record.quote = ReadReport::quoted({raw.json.text, raw.json.size});
  record.setPoints.clear(); // those before the fault
  m_elementCount = 0;
}

void RecordParser::parseRow(const RawRecord &raw, Record &record) {
  record.line = raw.row.number;
  record.fault = raw.fault;
  record.quote = raw.quote;
  if (m_elements.empty())
    m_elements.emplace_back();
  ElementRecord &parsed = m_elements.front();
  if (record.fault.isEmpty()) {
    record.fault = m_rows.parse(raw.row, parsed);
    if (!record.fault.isEmpty())
      record.quote = ReadReport::quoted(raw.row.text);
  }
  if (!record.fault.isEmpty()) {
    record.setPoints.clear();
  } else if (m_content == RecordContent::SetPoints) {
    record.setPoints.resize(1); // whose room is used again
    record.setPoints.front().name = parsed.name;
    record.setPoints.front().points.resize(1);
    record.setPoints.front().points.front() = setPoint(parsed);
  } else {
    m_elementCount = 1;
  }
}
