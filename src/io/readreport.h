#pragma once

#include "record.h"

#include <base/finding.h>

#include <QCoreApplication>
#include <QString>

#include <map>

/// Gathers what a reader notices; of one kind a thousand are kept one by one, the rest are counted.
class ReadReport {
  Q_DECLARE_TR_FUNCTIONS(ReadReport)
public:
  enum class Kind {
    BadLine,
    DoubtfulValue,
    DroppedElement,
    DroppedProperty,
    Empty,
    Encoding,
    Gas,
    Identity,
    IncludeList,
    IncompleteValue,
    OtherName,
    PropertyGivenTwice,
    Unit,
    UnknownName,
    UnknownType
  };

  explicit ReadReport(QString file)
      : m_file(std::move(file)) {}

  void add(Kind kind, int line, const QString &text, const QString &box = QString(), const QString &element = QString());
  /// A line that is no valid JSON, with a box for the user.
  void badLine(const Record &record);
  /// Likewise for the text form.
  void badRow(const Record &record);
  /// A line of set points that is no valid JSON, with a box for the first.
  void badSetPoints(const Record &record);
  /// An element that the network lacks.
  void unknownName(const QString &name, int line);
  /// A set point without property or value.
  void incompleteValue(const QString &element, int line);
  /// An element, or one of its properties, that is left out. The reason is a text of this class, to be translated here.
  void leftOut(const QString &element, const char *reason, int line);
  void leftOut(const QString &property, const QString &element, const char *reason, int line);
  /// An element that is left out since no type has this word.
  void unknownType(const QString &word, const QString &element, int line);
  /// The values of an element that are left out, and those that may not be what was meant. The reasons are texts of this
  /// class, to be translated here.
  void values(const ElementRecord &element, int line);
  void doubt(const QString &property, const QString &element, const char *reason, int line);
  /// The file could not be read to its end; with a box, since what is shown is not the whole.
  void readFault(const QString &reason);
  /// A text file is not in UTF-8. \param line the first such; nothing is told for 0
  void notUtf8(int line);
  Findings take();

  /// The beginning of a line, for a message.
  static QString quoted(std::string_view line);
  /// The fault of a line that is longer than LineReader::LongestLine.
  static QString lineTooLong();

private:
  static QString name(Kind kind);
  void addWithBox(const Record &record, const QString &text, const QString &box);

  static constexpr int KeptOfAKind = 1000;

  QString m_file;
  std::map<Kind, int> m_counts;
  Findings m_findings;
};
