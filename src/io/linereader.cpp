#include "linereader.h"

#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <simdjson.h>

namespace {

constexpr std::size_t BlockSize = std::size_t(1) << 20;
constexpr std::size_t Padding = simdjson::SIMDJSON_PADDING + 2; // the closing brace stands behind the line

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v';
}

} // namespace

LineReader::LineReader(const QString &path)
    : m_path(path)
    , m_file(path) {}

bool LineReader::open(QString *reason) {
  if (QFileInfo(m_path).isDir()) {
    *reason = m_path + QStringLiteral(": is a directory");
    return false;
  }
  if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
    *reason = m_path + QStringLiteral(": ") + m_file.errorString();
    return false;
  }
  m_size = m_file.size();
  m_buffer.resize(1 + BlockSize + Padding);
  fill();
  if (m_end - m_begin >= 3 && std::memcmp(m_buffer.data() + m_begin, "\xEF\xBB\xBF", 3) == 0)
    m_begin += 3;
  return true;
}

double LineReader::fraction() const {
  return m_read < m_size ? static_cast<double>(m_read) / static_cast<double>(m_size) : 1.0;
}

/// Moves what is left to the front and reads behind it; false when the file has no more.
bool LineReader::fill() {
  const std::size_t left = m_end - m_begin;
  std::memmove(m_buffer.data() + 1, m_buffer.data() + m_begin, left);
  m_begin = 1;
  m_end = 1 + left;
  const std::size_t room = m_buffer.size() - Padding - m_end;
  if (room == 0)
    m_buffer.resize(2 * m_buffer.size());
  const qint64 got = m_file.read(m_buffer.data() + m_end, static_cast<qint64>(m_buffer.size() - Padding - m_end));
  if (got <= 0)
    return false;
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
    if (newline != nullptr || (m_end > m_begin && m_file.atEnd())) {
      const std::size_t end = newline != nullptr ? static_cast<std::size_t>(newline - m_buffer.data()) : m_end;
      line.number = ++m_number;
      line.text = m_buffer.data() + m_begin;
      line.size = end - m_begin;
      m_begin = newline != nullptr ? end + 1 : end;
      return true;
    }
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
