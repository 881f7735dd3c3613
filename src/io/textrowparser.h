#pragma once

#include "record.h"

#include <QString>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Takes a row of a text table to pieces. One parser serves any number of rows, and several work side by side on those that
/// a TextTableReader hands out.
class TextRowParser {
public:
  /// What the rows of a table share.
  struct Table {
    std::string type; ///< empty for none
    std::vector<std::string> columns;
    char separator = ';';
  };
  /// A row that is not cut into cells yet.
  struct Row {
    int number = 0; ///< of its first line
    std::string text;
    std::shared_ptr<const Table> table;
  };
  struct Cell {
    std::string_view text;
    bool isQuoted = false;
  };

  explicit TextRowParser(RecordNumbers numbers)
      : m_numbers(numbers) {}

  /// The reason when the row is faulty, nothing otherwise. The result refers to the row and lives until the next call.
  QString parse(const Row &row, ElementRecord &parsed);
  /// Whether the first cell of a row says that it holds the names of the columns.
  static bool isNameColumn(std::string_view text);
  /// Cuts a line into cells(); false when a quote stays open. No cells: something stands behind a closing quote.
  bool split(std::string_view line, char separator);
  const std::vector<Cell> &cells() const { return m_cells; }

private:
  /// Both add the cell that begins there and return what stands behind it; null when its quote stays open.
  const char *addQuoted(const char *at, const char *end);
  const char *addPlain(const char *at, const char *end, char separator);
  RecordValue valueOf(const Cell &cell, std::string_view column) const;

  RecordNumbers m_numbers;
  std::vector<Cell> m_cells;
  std::string m_room; ///< for the texts of cells whose quotes are doubled
};
