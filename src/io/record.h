#pragma once

#include <base/textdecoding.h>
#include <model/propertytext.h>

#include <QString>

#include <string>
#include <string_view>
#include <vector>

/// The member, or the table in square brackets, that tells the type of an element.
inline constexpr std::string_view TypeMember = "obj_type";

/// How the texts of numbers are given: as properties hold them (numberText()), or letter by letter.
enum class RecordNumbers { AsHeld, AsWritten };

struct RecordValue {
  std::string_view key;
  PropertyText text;
  bool isNumber = false;
};

struct RecordRemark {
  std::string key;
  const char *reason;
};

/// A name with properties.
struct ElementRecord {
  std::string_view name;
  std::vector<RecordValue> values;
  std::vector<RecordRemark> dropped;  ///< values that are neither number, text nor truth value
  std::vector<RecordRemark> doubtful; ///< values that are kept but may not be what was meant
};

/// A value that a scenario gives to a property.
struct SetPointRecord {
  std::string property;
  PropertyText value;
  std::string unit;
  bool isNumber = false;
  bool isComplete = false;     ///< has property and value
  const char *doubt = nullptr; ///< why the value may not be what was meant
};

struct SetPointsRecord {
  std::string name; ///< of the element
  std::vector<SetPointRecord> points;
};

/// Elements that lie in the room of a parser, which uses it again for each line or row.
struct ElementSpan {
  ElementRecord *first = nullptr;
  std::size_t count = 0;

  ElementRecord *begin() const { return first; }
  ElementRecord *end() const { return first + count; }
};

/// What one line of the JSON form, or one row of the text form, holds, apart from elements: those stay in the room of the
/// parser. Readers keep a record for each line of a file, so that it is small.
struct Record {
  int line = 0;
  QString fault; ///< why it holds nothing; empty when it is sound
  QString quote; ///< of a fault: the beginning of the line
  std::vector<SetPointsRecord> setPoints;
};

using TextDecoding::decoded;
