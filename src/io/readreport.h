#pragma once

#include <base/finding.h>
#include <io/jsonlinereader.h>

#include <QHash>
#include <QString>

/// Gathers what a reader notices; of one kind a thousand are kept one by one, the rest are counted.
class ReadReport {
public:
  explicit ReadReport(QString file)
      : m_file(std::move(file)) {}

  void add(const char *kind, int line, const QString &text, const QString &box = QString(),
           const QString &element = QString());
  /// A line that is no valid JSON, with a box for the user.
  void badLine(const JsonLineReader::Line &line, const char *reason);
  Findings take();
  int count(const char *kind) const { return m_counts.value(QLatin1String(kind)); }

  static constexpr const char *BadLine = "bad line";
  static QString quoted(const JsonLineReader::Line &line);

private:
  static constexpr int KeptOfAKind = 1000;

  QString m_file;
  QHash<QString, int> m_counts;
  Findings m_findings;
};
