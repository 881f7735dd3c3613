#pragma once

#include "linereader.h"
#include "textrowparser.h"

#include <QString>

#include <deque>
#include <memory>
#include <string>

/// Reads the text form of network files: tables of semicolons (or tabulators), each under a line of column names that begins
/// with "name", element types in square brackets above them.
///
///     [pipe]
///     name;node1;node2;length
///     P1;A;B;1200.5
///
/// A cell in quotes holds anything, quotes doubled, line breaks too. An empty cell without quotes is no value. The rows have
/// the shape of parsed JSON lines, so that both forms are read alike from there on. Texts are UTF-8; a line that is not is
/// read as Windows-1252, see notUtf8Line().
class TextTableReader {
public:
  enum class Found { Row, Fault, End };

  explicit TextTableReader(const QString &path, JsonLineParser::Numbers numbers = JsonLineParser::Numbers::AsHeld,
                           FileAccess::Source source = FileAccess::Source::Workspace)
      : m_lines(path, source)
      , m_parser(numbers) {}

  bool open(QString *reason) { return m_lines.open(reason); }
  double fraction() const { return m_lines.fraction(); }
  const QString &readFault() const { return m_lines.readFault(); }
  double readingSeconds() const { return m_lines.readingSeconds(); }

  /// The row, with the type as value of "obj_type" when there is one, lives until the next call.
  Found next(JsonLineParser::Element &row);
  /// The row as it stands, for a parser of the caller's.
  Found nextRow(TextRowParser::Row &row);
  int line() const { return m_number; } ///< of what was found
  QString quote() const;                ///< of a fault: the beginning of its line
  const QString &fault() const { return m_fault; }
  int notUtf8Line() const { return m_notUtf8Line; } ///< the first that is not UTF-8, 0 for none

  /// The beginning of a row, for a message.
  static QString quoted(const std::string &text);
  /// A row of a file that has a set point a row: property, value and perhaps unit.
  static JsonLineParser::SetPoint setPoint(const JsonLineParser::Element &row);

private:
  bool nextLine();
  bool continueLine();
  bool takeHeader();
  bool isOnlySeparators() const;
  Found fail(const QString &reason);

  LineReader m_lines;
  struct PendingLine {
    int number;
    std::string text;
    bool isTooLong;
  };
  std::deque<PendingLine> m_pending; ///< lines that were read ahead in vain
  std::string m_line;                ///< being worked on
  int m_number = 0;
  int m_notUtf8Line = 0;
  bool m_isTooLong = false;
  TextRowParser m_parser;
  TextRowParser::Row m_row;
  std::shared_ptr<const TextRowParser::Table> m_table = std::make_shared<TextRowParser::Table>();
  QString m_fault;
};
