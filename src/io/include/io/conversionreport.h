#pragma once

#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QStringList>

/// What became of what a conversion found, counted by kind: kinds of elements, of values, of lines.
class ConversionReport {
  Q_DECLARE_TR_FUNCTIONS(ConversionReport)
public:
  struct Counts {
    int taken = 0;     ///< as they stand
    int converted = 0; ///< to another unit, sign or form
    int dropped = 0;
    QStringList how; ///< they were converted, each way once
    QStringList why; ///< they were dropped
  };

  void take(const QString &kind, int count = 1) { m_counts[kind].taken += count; }
  void convert(const QString &kind, const QString &how);
  void drop(const QString &kind, const QString &why);
  void add(const ConversionReport &other);

  Counts of(const QString &kind) const { return m_counts.value(kind); }
  /// Three lines, such as "converted: 39 length (km to m), 3 flowMin (supplies are negative)".
  QString text() const;

private:
  QMap<QString, Counts> m_counts;
};
