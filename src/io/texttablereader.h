#pragma once

#include "linereader.h"
#include "textrowparser.h"

#include <QString>

#include <deque>
#include <memory>
#include <string>

/// Cuts the text form of network files into rows: tables of semicolons (or tabulators), each under a line of column names
/// that begins with "name", element types in square brackets above them.
///
///     [pipe]
///     name;node1;node2;length
///     P1;A;B;1200.5
///
/// A cell in quotes holds anything, quotes doubled, line breaks too. An empty cell without quotes is no value. Texts are
/// UTF-8; a line that is not is read as Windows-1252, see notUtf8Line().
class TextTableReader {
public:
  enum class Found { Row, Fault, End };
  /// In the quoted cells of a row, all together: a quote that is not closed by then is a mistake.
  static constexpr std::size_t MostLineBreaks = 200;

  explicit TextTableReader(LineReader &lines)
      : m_lines(lines) {}

  /// The row as it stands; the caller parses it.
  Found next(TextRowParser::Row &row);
  int line() const { return m_number; } ///< of what was found
  QString quote() const;                ///< of a fault: the beginning of its line
  const QString &fault() const { return m_fault; }
  int notUtf8Line() const { return m_notUtf8Line; } ///< the first that is not UTF-8, 0 for none

private:
  bool nextLine();
  bool continueLine();
  bool takeHeader();
  bool takeType(std::size_t bracket);
  bool isOnlySeparators() const;
  Found fail(const QString &reason);

  LineReader &m_lines;
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
  TextRowParser m_parser{RecordNumbers::AsHeld}; ///< for cutting rows into cells
  std::shared_ptr<const TextRowParser::Table> m_table = std::make_shared<TextRowParser::Table>();
  QString m_fault;
};
