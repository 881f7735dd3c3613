#pragma once

#include "jsonlineparser.h"
#include "linereader.h"

#include <base/finding.h>

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
  void badLine(const LineReader::Line &line, const char *reason);
  /// Likewise for the text form.
  void badRow(int line, const QString &quote, const QString &reason);
  /// The values of an element that are left out, and those that may not be what was meant.
  void values(const JsonLineParser::Element &element, int line);
  void doubt(const QString &property, const QString &element, const char *reason, int line);
  /// The file could not be read to its end; with a box, since what is shown is not the whole.
  void readFault(const QString &reason);
  /// A text file is not in UTF-8. \param line the first such; nothing is told for 0
  void notUtf8(int line);
  Findings take();
  int count(const char *kind) const { return m_counts.value(QLatin1String(kind)); }

  static constexpr const char *BadLine = "bad line";
  static QString quoted(const LineReader::Line &line);

private:
  static constexpr int KeptOfAKind = 1000;

  QString m_file;
  QHash<QString, int> m_counts;
  Findings m_findings;
};
