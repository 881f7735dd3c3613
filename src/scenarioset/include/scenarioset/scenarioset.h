#pragma once

#include <base/finding.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <scenarioset/setscenarios.h>
#include <scenarioset/setstatistic.h>
#include <vector>

class ColumnStatistics;
class ElementDirectory;
class NetData;
class ScenarioValues;

/// Figures of a few properties of all elements over many scenarios of a case, which are read one after the other and of
/// which none is kept.
///
/// 1. It is made in the thread of the network. run() and readSeries() may then be called in another one, one call at a time,
///    whatever becomes of the network meanwhile; what they found is for whoever waits for them.
/// 2. There is a column for each property that any scenario gives to an element. Where a scenario says nothing of it, the
///    value of the geometry counts, where that has one.
class ScenarioSet {
public:
  struct Request {
    QString geometry; ///< path, without the suffix of the JSON form
    bool isJson = true;
    std::vector<SetScenario> scenarios;
    QStringList properties;
    std::size_t room = 0; ///< numbers that may be held at a time; 0 for the usual
  };
  struct Column {
    Index element = NoIndex;
    Index property = NoIndex; ///< of the request
  };
  struct Unread {
    Index scenario = NoIndex;
    QString reason;
  };

  ScenarioSet(const NetData &net, Request request);
  ~ScenarioSet();

  /// False when somebody stopped it or nothing could be read.
  bool run(const Progress &progress);

  const Request &request() const { return m_request; }
  const std::vector<Column> &columns() const { return m_columns; }     ///< no particular order
  std::vector<Index> sortedColumns() const;                            ///< by element, then property
  Index column(const QString &element, const QString &property) const; ///< NoIndex when there is none
  QString elementName(Index column) const;
  const QString &elementType(Index column) const; ///< its code
  const QString &propertyName(Index column) const;
  SetFigures figures(Index column) const;
  const QString &scenarioName(Index scenario) const { return m_request.scenarios[scenario].name; }
  const std::vector<Unread> &unread() const { return m_unread; }
  /// Quantiles are exact, and series need no reading; else they are estimated.
  bool isExact() const;
  /// The numbers of a column by scenario, NaN for none; empty unless isExact().
  const std::vector<double> &series(Index column) const;
  /// The same out of the files. Empty when somebody stopped it.
  std::vector<double> readSeries(Index column, const Progress &progress);

private:
  std::size_t cell(Index element, Index property) const;
  void take(Index element, Index property, double value);

  Request m_request;
  std::unique_ptr<ElementDirectory> m_elements;
  std::unique_ptr<ScenarioValues> m_values;
  std::unique_ptr<ColumnStatistics> m_statistics;
  std::vector<Column> m_columns;
  std::vector<double> m_ofGeometry; ///< by cell(), NaN for none
  std::vector<Index> m_columnOf;    ///< by cell()
  std::vector<double> m_base;       ///< of the geometry, by column
  std::vector<double> m_present;    ///< of the scenario that is being read, by column
  std::vector<Unread> m_unread;
};
