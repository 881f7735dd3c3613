#include "columnstatistics.h"

#include <io/elementdirectory.h>
#include <io/scenariovalues.h>
#include <model/netdata.h>

#include <algorithm>
#include <cmath>
#include <scenarioset/scenarioset.h>
#include <utility>

ScenarioSet::ScenarioSet(const NetData &net, Request request)
    : m_request(std::move(request))
    , m_elements(std::make_unique<ElementDirectory>(net))
    , m_values(std::make_unique<ScenarioValues>(*m_elements, m_request.properties, *net.metaData()))
    , m_statistics(std::make_unique<ColumnStatistics>(m_request.scenarios.size(),
                                                      m_request.room > 0 ? m_request.room : ColumnStatistics::DefaultRoom)) {
}

ScenarioSet::~ScenarioSet() = default;

std::size_t ScenarioSet::cell(Index element, Index property) const {
  return std::size_t(element) * fromQt(m_request.properties.size()) + property;
}

bool ScenarioSet::run(const Progress &progress) {
  const std::size_t cells = m_elements->size() * fromQt(m_request.properties.size());
  m_ofGeometry.assign(cells, ScenarioValues::NoNumber);
  m_columnOf.assign(cells, NoIndex);
  double done = 0.0;
  const auto goesOn = [&] {
    return !progress || progress(done / static_cast<double>(m_request.scenarios.size()));
  };
  QString reason; // a geometry that cannot be read was told when it was opened
  m_values->readGeometry(
      m_request.geometry, m_request.isJson,
      [this](Index element, Index property, double value) { m_ofGeometry[cell(element, property)] = value; }, goesOn,
      &reason);
  const auto read = [&](Index scenario) {
    m_present = m_base;
    reason.clear();
    const ScenarioValues::Take taking = [this](Index element, Index property, double value) {
      take(element, property, value);
    };
    if (m_values->readScenario(m_request.scenarios[scenario].file, taking, goesOn, &reason)) {
      m_statistics->addScenario(scenario, m_present);
      ++done;
    } else if (!reason.isEmpty()) {
      m_unread.push_back({scenario, reason});
    }
    return goesOn();
  };
  for (Index scenario = 0; scenario < m_request.scenarios.size(); ++scenario) {
    if (!read(scenario))
      return false;
  }
  // Once more: another workspace may have been looked at meanwhile, to which reading was confined.
  const std::vector<Unread> again = std::exchange(m_unread, {});
  if (!std::all_of(again.begin(), again.end(), [&](const Unread &unread) { return read(unread.scenario); }))
    return false;
  m_present = {};
  m_ofGeometry = {};
  return m_unread.size() < m_request.scenarios.size();
}

void ScenarioSet::take(Index element, Index property, double value) {
  const std::size_t at = cell(element, property);
  Index &column = m_columnOf[at];
  if (column == NoIndex) {
    const double base = m_ofGeometry[at];
    if (std::isnan(value) && std::isnan(base))
      return;
    column = m_statistics->addColumn(base);
    m_columns.push_back({element, property});
    m_base.push_back(base);
    m_present.push_back(base);
  }
  m_present[column] = value;
}

std::vector<Index> ScenarioSet::sortedColumns() const {
  std::vector<Index> sorted;
  sorted.reserve(m_columns.size());
  std::copy_if(m_columnOf.begin(), m_columnOf.end(), std::back_inserter(sorted),
               [](Index column) { return column != NoIndex; });
  return sorted;
}

Index ScenarioSet::column(const QString &element, const QString &property) const {
  const QByteArray utf8 = element.toUtf8();
  const Index found = m_elements->find({utf8.constData(), fromQt(utf8.size())});
  const int number = m_request.properties.indexOf(property);
  if (found == NoIndex || number < 0 || m_columnOf.empty())
    return NoIndex;
  return m_columnOf[cell(found, toIndex(fromQt(number)))];
}

QString ScenarioSet::elementName(Index column) const {
  return m_elements->name(m_columns[column].element);
}

const QString &ScenarioSet::elementType(Index column) const {
  return m_elements->type(m_columns[column].element);
}

const QString &ScenarioSet::propertyName(Index column) const {
  return m_request.properties[toQt(m_columns[column].property)];
}

SetFigures ScenarioSet::figures(Index column) const {
  return m_statistics->figures(column);
}

bool ScenarioSet::isExact() const {
  return m_statistics->isExact();
}

const std::vector<double> &ScenarioSet::series(Index column) const {
  return m_statistics->series(column);
}

std::vector<double> ScenarioSet::readSeries(Index column, const Progress &progress) {
  const Column wanted = m_columns[column];
  std::vector<double> series(m_request.scenarios.size(), ScenarioValues::NoNumber);
  for (std::size_t scenario = 0; scenario < series.size(); ++scenario) {
    const auto goesOn = [&] {
      return !progress || progress(static_cast<double>(scenario) / static_cast<double>(series.size()));
    };
    if (!goesOn())
      return {};
    double present = m_base[column];
    const auto take = [&](Index element, Index property, double value) {
      if (element == wanted.element && property == wanted.property)
        present = value;
    };
    QString reason;
    if (m_values->readScenario(m_request.scenarios[scenario].file, take, goesOn, &reason))
      series[scenario] = present;
    else if (reason.isEmpty())
      return {};
  }
  return series;
}
