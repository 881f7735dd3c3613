#pragma once

#include <io/networkrecord.h>

#include <QIODevice>
#include <QString>

#include <map>
#include <vector>

/// Writes network files. What it is given is written at the latest by finish().
class NetworkFileWriter {
public:
  using Value = NetworkRecord::Value;

  explicit NetworkFileWriter(QIODevice &device)
      : m_device(device) {}
  virtual ~NetworkFileWriter() = default;
  NetworkFileWriter(const NetworkFileWriter &) = delete;
  NetworkFileWriter &operator=(const NetworkFileWriter &) = delete;

  /// \param type word, empty for values of elements that are described elsewhere
  virtual void write(std::string_view name, std::string_view type, std::vector<Value> values) = 0;
  /// \param unit empty for the stored one
  virtual void writeSetPoint(std::string_view name, const Value &value, std::string_view unit) = 0;
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

  void write(std::string_view name, std::string_view type, std::vector<Value> values) override;
  void writeSetPoint(std::string_view name, const Value &value, std::string_view unit) override;
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

/// Tables, one a type, or one for each set of properties where there are no types.
class TextFileWriter : public NetworkFileWriter {
public:
  using NetworkFileWriter::NetworkFileWriter;

  void write(std::string_view name, std::string_view type, std::vector<Value> values) override;
  void writeSetPoint(std::string_view name, const Value &value, std::string_view unit) override;
  bool finish() override;

private:
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
    std::vector<Row> rows;
  };

  void putName(std::string_view text);
  void putCell(std::string_view text);
  void putQuoted(std::string_view text);
  void putValue(const Value &value);
  void putTable(const Table &table);

  std::vector<Table> m_tables;
  std::map<std::string, std::size_t> m_byShape; ///< type, or names of the properties, to table
  bool m_hasSetPoints = false;
};
