#include <drawing/symboltable.h>

#include <QDir>
#include <QFile>

Findings SymbolTable::read(const QString &directory) {
  constexpr qint64 LargestTable = qint64(1) << 20;
  m_directory = directory;
  const QString path = directory + QStringLiteral("/svg_symbols.csv");
  QString reason;
  const auto content = FileAccess::readWhole(path, FileAccess::Source::Workspace, LargestTable, &reason);
  if (!content) {
    Findings findings;
    if (QFile::exists(path))
      findings.push_back({Finding::Severity::Warning, {}, 0, reason, {}});
    findings.push_back({Finding::Severity::Information,
                        {},
                        0,
                        QStringLiteral("SVG symbols file ") + path + QStringLiteral(" not found! Using built-in defaults!"),
                        {}});
    return findings;
  }
  for (const QByteArray &bytes : content->split('\n')) {
    const QString line = QString::fromUtf8(bytes);
    if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
      continue;
    const QStringList parts = line.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (parts.size() < 2)
      continue;
    const QString name = parts.at(1).trimmed();
    if (name.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive))
      m_files[parts.at(0).trimmed()] = name;
  }
  return {};
}

SymbolTable::File SymbolTable::file(const QString &key) const {
  const auto found = m_files.find(key);
  if (found != m_files.end())
    return {QDir(m_directory).filePath(found->second)};
  const QString further = m_furtherDirectory + QLatin1Char('/') + key + QStringLiteral(".svg");
  if (m_furtherDirectory.isEmpty() || !QFile::exists(further))
    return {};
  return {further, FileAccess::Source::Trusted};
}
