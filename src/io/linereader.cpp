#include "linereader.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstring>
#include <simdjson.h>

namespace {

constexpr std::size_t BlockSize = std::size_t(1) << 20;
static_assert(LineReader::Padding >= simdjson::SIMDJSON_PADDING + 2, "the closing brace stands behind the line");

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v';
}

} // namespace

LineReader::LineReader(const QString &path, FileAccess::Source source)
    : m_path(path)
    , m_source(source)
    , m_file(path) {}

bool LineReader::open(QString *reason) {
  if (!FileAccess::openForReading(m_file, m_source, FileAccess::AnySize, reason))
    return false;
  m_size = m_file.size();
  m_buffer.resize(1 + BlockSize + Padding);
  if (!fill() && !m_fault.isEmpty()) { // nothing was read: not the same as an empty file
    *reason = m_fault;
    return false;
  }
  if (m_end - m_begin >= 3 && std::memcmp(m_buffer.data() + m_begin, "\xEF\xBB\xBF", 3) == 0)
    m_begin += 3;
  return true;
}

double LineReader::readingSeconds() const {
  constexpr double Nano = 1e-9;
  return static_cast<double>(m_nanoseconds) * Nano;
}

double LineReader::fraction() const {
  return m_read < m_size ? static_cast<double>(m_read) / static_cast<double>(m_size) : 1.0;
}

/// Moves what is left to the front and reads behind it; false when the file has no more, or cannot be read any further.
bool LineReader::fill() {
  if (m_isAtEnd)
    return false;
  const std::size_t left = m_end - m_begin;
  std::memmove(m_buffer.data() + 1, m_buffer.data() + m_begin, left);
  m_begin = 1;
  m_end = 1 + left;
  const std::size_t room = m_buffer.size() - Padding - m_end;
  if (room == 0)
    m_buffer.resize(2 * m_buffer.size());
  QElapsedTimer timer;
  timer.start();
  const qint64 got = m_file.read(m_buffer.data() + m_end, static_cast<qint64>(m_buffer.size() - Padding - m_end));
  m_nanoseconds += timer.nsecsElapsed();
  if (got <= 0) {
    m_isAtEnd = true;
    if (m_file.error() != QFile::NoError)
      m_fault = m_path + QStringLiteral(": ") + m_file.errorString();
    else if (m_read < m_size)
      m_fault =
          m_path + QStringLiteral(": ") + QCoreApplication::translate("LineReader", "became shorter while it was read");
    return false;
  }
  m_end += static_cast<std::size_t>(got);
  m_read += got;
  return true;
}

bool LineReader::nextRaw(Line &line) {
  line.tooLong = false;
  std::size_t searched = 0;
  for (;;) {
    const char *from = m_buffer.data() + m_begin + searched;
    const auto *newline = static_cast<const char *>(std::memchr(from, '\n', m_end - m_begin - searched));
    if (newline != nullptr || (m_end > m_begin && m_isAtEnd && m_fault.isEmpty())) {
      const std::size_t end = newline != nullptr ? static_cast<std::size_t>(newline - m_buffer.data()) : m_end;
      line.number = ++m_number;
      line.text = m_buffer.data() + m_begin;
      line.size = end - m_begin;
      m_begin = newline != nullptr ? end + 1 : end;
      return true;
    }
    if (m_isAtEnd && !m_fault.isEmpty())
      return false;
    searched = m_end - m_begin;
    if (searched > LongestLine) {
      line.tooLong = true; // what comes before the line's end is dropped as it is read
      m_begin = m_end;
      searched = 0;
    }
    if (!fill() && m_end == m_begin) {
      if (!line.tooLong)
        return false;
      line.number = ++m_number;
      line.size = 0;
      return true;
    }
  }
}

bool LineReader::nextTrimmed(Line &line) {
  while (nextRaw(line)) {
    if (line.tooLong)
      return true;
    while (line.size > 0 && isBlank(line.text[0])) {
      ++line.text;
      --line.size;
    }
    while (line.size > 0 && isBlank(line.text[line.size - 1]))
      --line.size;
    if (line.size == 0)
      continue;
    line.capacity = static_cast<std::size_t>(m_buffer.data() + m_buffer.size() - line.text);
    return true;
  }
  return false;
}
