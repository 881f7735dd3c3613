#include <base/fileaccess.h>
#include <base/settingsfile.h>
#include <base/settingstable.h>
#include <base/wholefile.h>

#include <QDir>
#include <QFileInfo>

namespace {

constexpr int ValueField = 3;
constexpr int FewestFields = 6;

const QByteArray ByteOrderMark("\xEF\xBB\xBF");

/// Empty for a comment and for a line that says no value.
QByteArray keyOf(QByteArray line) {
  if (line.startsWith(ByteOrderMark))
    line.remove(0, ByteOrderMark.size());
  const QByteArrayList fields = line.trimmed().split(';');
  return fields.first().startsWith('#') || fields.size() < FewestFields ? QByteArray() : fields.first().trimmed();
}

QByteArray written(QString value) {
  return value.replace(QLatin1Char(';'), QStringLiteral("$SEMI$"))
      .replace(QLatin1Char('\r'), QLatin1Char(' '))
      .replace(QLatin1Char('\n'), QLatin1Char(' '))
      .trimmed()
      .toUtf8();
}

} // namespace

bool SettingsFile::read(const QString &path, QString *reason) {
  m_lines.clear();
  if (!QFileInfo::exists(path))
    return true;
  const auto content = FileAccess::readWhole(path, FileAccess::Source::Trusted, FileAccess::LargestConfiguration, reason);
  if (!content)
    return false;
  for (int begin = 0; begin < content->size();) {
    const int end = content->indexOf('\n', begin);
    const int size = (end < 0 ? content->size() : end + 1) - begin;
    m_lines.append(content->mid(begin, size));
    begin += size;
  }
  return true;
}

void SettingsFile::set(const QString &key, const QString &value) {
  const QByteArray wanted = key.toUtf8();
  for (int i = m_lines.size() - 1; i >= 0; --i) {
    if (keyOf(m_lines.at(i)) != wanted)
      continue;
    QByteArrayList fields = m_lines.at(i).split(';');
    fields[ValueField] = written(value);
    m_lines[i] = fields.join(';');
    return;
  }
  const QByteArray end = !m_lines.isEmpty() && m_lines.first().endsWith("\r\n") ? "\r\n" : "\n";
  if (!m_lines.isEmpty() && !m_lines.last().endsWith('\n'))
    m_lines.last() += end;
  const SettingsTable::Row &row = SettingsTable::row(wanted.constData());
  m_lines.append(QByteArrayList{row.key, row.category, row.type, written(value), row.options, QByteArray()}.join(';') + end);
}

void SettingsFile::remove(const QString &key) {
  const QByteArray wanted = key.toUtf8();
  for (int i = m_lines.size() - 1; i >= 0; --i) {
    if (keyOf(m_lines.at(i)) == wanted)
      m_lines.removeAt(i);
  }
}

bool SettingsFile::write(const QString &path, QString *reason) const {
  QDir().mkpath(QFileInfo(path).path());
  return WholeFile::write(path, FileAccess::Source::Trusted, m_lines.join(), reason);
}
