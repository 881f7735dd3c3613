#pragma once

#include "record.h"
#include "texttablereader.h"

#include <io/networkrecord.h>

#include <QIODevice>
#include <QString>

#include <map>
#include <unordered_set>
#include <vector>

/// Writes network files. What it is given is written at the latest by finish().
class NetworkFileWriter {
public:
  using Value = NetworkRecord::Value;

  /// What the form cannot say. The reasons are texts of ReadReport.
  struct LeftOut {
    const char *element = nullptr; ///< why nothing of it was written
    std::vector<RecordRemark> values;

    /// Null when everything was written.
    const char *firstReason() const { return element != nullptr || values.empty() ? element : values.front().reason; }
  };

  explicit NetworkFileWriter(QIODevice &device)
      : m_device(device) {}
  virtual ~NetworkFileWriter() = default;
  NetworkFileWriter(const NetworkFileWriter &) = delete;
  NetworkFileWriter &operator=(const NetworkFileWriter &) = delete;

  /// \param type word without blanks around it, empty for values of elements that are described elsewhere
  [[nodiscard]] virtual LeftOut write(std::string_view name, std::string_view type, std::vector<Value> values) = 0;
  /// Null, or why it was left out. \param unit empty for the stored one
  [[nodiscard]] virtual const char *writeSetPoint(std::string_view name, const Value &value, std::string_view unit) = 0;
  /// False when the device did not take everything.
  virtual bool finish() = 0;

protected:
  void put(std::string_view text);
  bool flush();

private:
  QIODevice &m_device;
  std::string m_buffer;
  bool m_isSound = true;
};

/// One JSON member a line.
class JsonFileWriter : public NetworkFileWriter {
public:
  explicit JsonFileWriter(QIODevice &device);

  LeftOut write(std::string_view name, std::string_view type, std::vector<Value> values) override;
  const char *writeSetPoint(std::string_view name, const Value &value, std::string_view unit) override;
  bool finish() override;

private:
  void putText(std::string_view text);
  void putValue(const Value &value);
  void beginMember(std::string_view name);
  void endSetPoints();

  bool m_isFirst = true;
  std::string m_setPointsOf; ///< the name whose list is open
  bool m_hasSetPoints = false;
};

/// Tables, one a type, or one for each set of properties where there are no types. When a name comes again the tables are
/// ended and others begun, so that what comes later stands below, and counts.
class TextFileWriter : public NetworkFileWriter {
public:
  using NetworkFileWriter::NetworkFileWriter;

  static constexpr std::size_t MostRowBytes = LineReader::LongestLine / 2; ///< separators need some too

  /// Why a type is left out, a text of ReadReport.
  static constexpr const char *NoSuchType = QT_TRANSLATE_NOOP("ReadReport", "the text form cannot hold such a type");
  /// Whether the word, without blanks around it, can stand in square brackets.
  static bool canHoldType(std::string_view word);

  LeftOut write(std::string_view name, std::string_view type, std::vector<Value> values) override;
  const char *writeSetPoint(std::string_view name, const Value &value, std::string_view unit) override;
  bool finish() override;

private:
  /// What is left of what reading takes as one row.
  class Room {
  public:
    bool take(std::string_view cell);

  private:
    std::size_t m_lineBreaks = TextTableReader::MostLineBreaks;
    std::size_t m_bytes = MostRowBytes;
  };
  struct Cell {
    std::size_t column;
    Value value;
  };
  struct Row {
    PropertyText name;
    std::vector<Cell> cells; ///< in the order of the columns
  };
  struct Table {
    std::string type;
    std::vector<PropertyKey> columns;
    std::map<PropertyKey, std::size_t> columnOf;
    Room header;
    std::vector<Row> rows;
  };

  void putName(std::string_view text);
  void putCell(std::string_view text);
  void putQuoted(std::string_view text);
  void putValue(const Value &value);
  void putTable(const Table &table);
  void putTables();
  Table &tableOf(std::string type, const std::vector<Value> &values);
  /// Null, or why the value is left out.
  static const char *add(Value value, Table &table, Row &row, Room &room);

  std::vector<Table> m_tables;
  std::map<std::string, std::size_t> m_byShape; ///< type, or names of the properties, to table
  std::unordered_set<std::string> m_names;      ///< in the tables, regardless of case
  bool m_hasSetPoints = false;
  bool m_hasTables = false;   ///< that are written
  bool m_isBelowType = false; ///< what is written next
};
