#pragma once

#include <model/element.h>

#include <QIODevice>
#include <QString>

#include <map>
#include <vector>

/// Writes network files. What it is given is written at the latest by finish().
class NetworkFileWriter {
public:
  explicit NetworkFileWriter(QIODevice &device)
      : m_device(device) {}
  virtual ~NetworkFileWriter() = default;
  NetworkFileWriter(const NetworkFileWriter &) = delete;
  NetworkFileWriter &operator=(const NetworkFileWriter &) = delete;

  /// \param type word, empty for values of elements that are described elsewhere
  virtual void write(std::string_view name, std::string_view type, std::vector<Property> properties) = 0;
  /// \param unit empty for the stored one
  virtual void writeSetPoint(std::string_view name, std::string_view property, const PropertyText &value,
                             std::string_view unit) = 0;
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

  void write(std::string_view name, std::string_view type, std::vector<Property> properties) override;
  void writeSetPoint(std::string_view name, std::string_view property, const PropertyText &value,
                     std::string_view unit) override;
  bool finish() override;

private:
  void putText(std::string_view text);
  void putValue(const PropertyText &value);
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

  void write(std::string_view name, std::string_view type, std::vector<Property> properties) override;
  void writeSetPoint(std::string_view name, std::string_view property, const PropertyText &value,
                     std::string_view unit) override;
  bool finish() override;

private:
  struct Row {
    PropertyText name;
    std::vector<Property> properties;
  };
  struct Table {
    std::string type;
    std::vector<PropertyKey> columns;
    std::vector<Row> rows;
  };

  void putName(std::string_view text);
  void putCell(std::string_view text);
  void put(const Table &table);

  std::vector<Table> m_tables;
  std::map<std::string, std::size_t> m_byShape; ///< type, or names of the properties, to table
  bool m_hasSetPoints = false;
};
