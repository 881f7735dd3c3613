#pragma once

#include "jsonlineparser.h"
#include "linereader.h"

#include <QString>

#include <deque>
#include <string>
#include <vector>

/// Reads the text form of network files: tables of semicolons (or tabulators), each under a line of column names that begins
/// with "name", element types in square brackets above them.
///
///     [pipe]
///     name;node1;node2;length
///     P1;A;B;1200.5
///
/// A cell in quotes holds anything, quotes doubled, line breaks too. An empty cell without quotes is no value. The rows have
/// the shape of parsed JSON lines, so that both forms are read alike from there on.
class TextTableReader {
public:
  enum class Found { Row, Fault, End };

  explicit TextTableReader(const QString &path, JsonLineParser::Numbers numbers = JsonLineParser::Numbers::AsHeld)
      : m_lines(path)
      , m_numbers(numbers) {}

  bool open(QString *reason) { return m_lines.open(reason); }
  double fraction() const { return m_lines.fraction(); }

  /// The row, with the type as value of "obj_type" when there is one, lives until the next call.
  Found next(JsonLineParser::Element &row);
  int line() const { return m_number; } ///< of what was found
  QString quote() const;                ///< of a fault: the beginning of its line
  const QString &fault() const { return m_fault; }

  /// A row of a file that has a set point a row: property, value and perhaps unit.
  static JsonLineParser::SetPoint setPoint(const JsonLineParser::Element &row);

private:
  struct Cell {
    std::string_view text;
    bool isQuoted = false;
  };

  bool nextLine();
  /// False when a quote stays open.
  bool split();
  bool continueLine();
  bool takeHeader();
  bool takeRow(JsonLineParser::Element &row);
  Found fail(const QString &reason);

  LineReader m_lines;
  JsonLineParser::Numbers m_numbers;
  std::deque<std::pair<int, std::string>> m_pending; ///< lines that were read ahead in vain
  std::string m_line;                                ///< being worked on
  std::string m_room;                                ///< for the texts of cells whose quotes are doubled
  int m_number = 0;
  bool m_isTooLong = false;
  std::vector<Cell> m_cells;
  std::string m_type; ///< empty for none
  std::vector<std::string> m_columns;
  char m_separator = ';';
  QString m_fault;
};
