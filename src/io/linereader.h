#pragma once

#include <base/fileaccess.h>

#include <QFile>
#include <QString>

#include <cstddef>
#include <vector>

/// Hands out the lines of a file, block by block, so that a file of any size takes a few megabytes. A file
/// that cannot be read to its end counts with the lines before; ask readFault() after the last one.
class LineReader {
public:
  /// A longer line is skipped and told as such: no element is that large.
  static constexpr std::size_t LongestLine = std::size_t(64) << 20;

  /// Bytes behind a line that a parser may read and write.
  static constexpr std::size_t Padding = 66;

  struct Line {
    int number = 0; ///< 1-based
    char *text = nullptr;
    std::size_t size = 0;
    std::size_t capacity = 0; ///< readable bytes from text on, at least size and the parser's padding
    bool tooLong = false;     ///< text is only the beginning
  };

  explicit LineReader(const QString &path, FileAccess::Source source = FileAccess::Source::Workspace);

  bool open(QString *reason);
  /// False at the end. The line lives until the next call; its bytes, and one before and one behind, may be overwritten.
  bool nextRaw(Line &line);
  /// As nextRaw(), without blanks around it; lines of nothing else are left out.
  bool nextTrimmed(Line &line);
  double fraction() const; ///< of the file, 0 to 1
  /// Why the file could not be read to its end, with its path; empty when it could.
  const QString &readFault() const { return m_fault; }
  double readingSeconds() const; ///< spent in reading from the file so far
  const QString &path() const { return m_path; }

private:
  bool fill();

  QString m_path;
  FileAccess::Source m_source;
  QString m_fault;
  QFile m_file;
  std::vector<char> m_buffer; ///< one spare byte in front, padding behind
  std::size_t m_begin = 1;    ///< of what is not yet handed out
  std::size_t m_end = 1;
  qint64 m_size = 0; ///< when it was opened: the system is not asked for every line
  qint64 m_read = 0;
  qint64 m_nanoseconds = 0;
  bool m_isAtEnd = false; ///< the file has no more than is in the buffer
  int m_number = 0;
};
