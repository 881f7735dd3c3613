#include "configure/initext.h"

#include <QList>

#include <algorithm>

namespace {

const QByteArray NoGroup = QByteArrayLiteral("General");

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

/// Resolves quotes and escapes as the toolkit writes them. Blanks around unquoted text are left out, and an unquoted ";"
/// begins a comment.
class ValueReader {
public:
  explicit ValueReader(const QByteArray &raw)
      : m_raw(raw) {}

  QString read() {
    while (m_position < m_raw.size()) {
      const char c = m_raw.at(m_position++);
      if (c == '"') {
        m_isQuoted = !m_isQuoted;
        m_solid = m_bytes.size();
      } else if (c == ';' && !m_isQuoted) {
        break;
      } else if (c == '\\') {
        readEscape();
      } else if (isBlank(c) && !m_isQuoted) {
        if (!m_bytes.isEmpty() || !m_text.isEmpty())
          m_bytes.append(c);
      } else {
        m_bytes.append(c);
        m_solid = m_bytes.size();
      }
    }
    flush(m_solid);
    return m_text;
  }

private:
  void readEscape() {
    if (m_position >= m_raw.size())
      return;
    static const QByteArray letters("abfnrtv\"?'\\");
    static const QByteArray meanings("\a\b\f\n\r\t\v\"?'\\");
    const char c = m_raw.at(m_position++);
    const int letter = letters.indexOf(c);
    if (letter >= 0)
      appendCode(static_cast<unsigned char>(meanings.at(letter)));
    else if (c == 'x')
      appendCode(number(16, 8));
    else if (c >= '0' && c <= '7') {
      --m_position;
      appendCode(number(8, 6));
    }
  }
  /// Digits of the base, at most so many, of the code of one character.
  ushort number(int base, int maximumDigits) {
    uint code = 0;
    for (int count = 0; m_position < m_raw.size() && count < maximumDigits; ++count, ++m_position) {
      bool isDigit = false;
      const uint digit = m_raw.mid(m_position, 1).toUInt(&isDigit, base);
      if (!isDigit)
        break;
      code = code * static_cast<uint>(base) + digit;
    }
    return static_cast<ushort>(code);
  }
  void appendCode(ushort code) {
    flush(m_bytes.size());
    m_text.append(QChar(code));
  }
  /// Other text is of bytes, in UTF-8.
  void flush(int size) {
    m_text.append(QString::fromUtf8(m_bytes.constData(), size));
    m_bytes.clear();
    m_solid = 0;
  }

  const QByteArray &m_raw;
  int m_position = 0;
  bool m_isQuoted = false;
  QByteArray m_bytes; ///< not yet in the text
  int m_solid = 0;    ///< of these, up to the last that is no blank at the end
  QString m_text;
};

} // namespace

IniText::IniText(const QByteArray &text) {
  static const QByteArray ByteOrderMark = QByteArrayLiteral("\xef\xbb\xbf"); // editors of some systems put it in front
  QByteArray group = NoGroup;
  QList<QByteArray> lines = text.mid(text.startsWith(ByteOrderMark) ? ByteOrderMark.size() : 0).split('\n');
  if (lines.last().isEmpty())
    lines.removeLast();
  for (const QByteArray &line : lines) {
    const QByteArray trimmed = line.trimmed();
    Line read{group, QByteArray(), line};
    if (trimmed.startsWith('[') && trimmed.endsWith(']'))
      read.group = group = trimmed.mid(1, trimmed.size() - 2).trimmed();
    else if (!trimmed.startsWith(';') && !trimmed.startsWith('#') && trimmed.contains('='))
      read.key = trimmed.left(trimmed.indexOf('=')).trimmed();
    m_lines.push_back(read);
  }
}

const IniText::Line *IniText::find(const QByteArray &group, const QByteArray &key) const {
  const auto found = std::find_if(m_lines.rbegin(), m_lines.rend(),
                                  [&](const Line &line) { return line.key == key && line.group == group; });
  return found == m_lines.rend() ? nullptr : &*found;
}

std::optional<QString> IniText::value(const QByteArray &group, const QByteArray &key, bool *isObject) const {
  const Line *line = find(group.isEmpty() ? NoGroup : group, key);
  if (line == nullptr)
    return std::nullopt;
  const QByteArray raw = line->text.mid(line->text.indexOf('=') + 1);
  QString text = ValueReader(raw).read();
  const bool startsAsObject = text.startsWith(QLatin1Char('@'));
  const bool isEscaped = text.startsWith(QLatin1String("@@"));
  if (isObject != nullptr)
    *isObject = startsAsObject && !isEscaped;
  return isEscaped ? text.mid(1) : text;
}

void IniText::merge(const IniText &other) {
  for (const Line &line : other.m_lines) {
    if (line.key.isEmpty())
      continue;
    const Line *replaced = find(line.group, line.key);
    if (replaced != nullptr) {
      m_lines[static_cast<std::size_t>(replaced - m_lines.data())].text = line.text;
      continue;
    }
    // Behind the last line of its group; keys without a group stand before all others.
    const auto last =
        std::find_if(m_lines.rbegin(), m_lines.rend(), [&](const Line &present) { return present.group == line.group; });
    if (last != m_lines.rend()) {
      m_lines.insert(last.base(), line);
    } else if (line.group == NoGroup) {
      m_lines.insert(m_lines.begin(), {{NoGroup, QByteArray(), "[" + NoGroup + "]"}, line});
    } else {
      m_lines.push_back({line.group, QByteArray(), "[" + line.group + "]"});
      m_lines.push_back(line);
    }
  }
}

void IniText::remove(const QByteArray &key) {
  m_lines.erase(std::remove_if(m_lines.begin(), m_lines.end(), [&key](const Line &line) { return line.key == key; }),
                m_lines.end());
}

QByteArray IniText::toText() const {
  QByteArray text;
  for (const Line &line : m_lines)
    text += line.text + '\n';
  return text;
}
