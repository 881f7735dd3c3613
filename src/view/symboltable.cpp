#include <base/nivramsg.h>
#include <view/symboltable.h>

#include <QDir>
#include <QFile>

SymbolTable::SymbolTable(const QString &directory)
    : m_directory(directory) {
  constexpr qint64 LongestLine = 1 << 16;
  QFile file(directory + QStringLiteral("/svg_symbols.csv"));
  if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
    NivraMsg::log(QStringLiteral("SVG symbols file ") + file.fileName() +
                  QStringLiteral(" not found! Using built-in defaults!"));
    return;
  }
  while (!file.atEnd()) {
    const QString line = QString::fromUtf8(file.readLine(LongestLine)).remove(QLatin1Char('\n'));
    if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
      continue;
    const QStringList parts = line.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (parts.size() < 2)
      continue;
    const QString name = parts.at(1).trimmed();
    if (name.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive))
      m_files[parts.at(0).trimmed()] = name;
  }
}

QString SymbolTable::path(const QString &key) const {
  const auto found = m_files.find(key);
  if (found != m_files.end())
    return QDir(m_directory).filePath(found->second);
  const QString further = m_furtherDirectory + QLatin1Char('/') + key + QStringLiteral(".svg");
  return !m_furtherDirectory.isEmpty() && QFile::exists(further) ? further : QString();
}
