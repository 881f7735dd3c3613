#include "scenarios/scenariocomparison.h"

#include "caseopening.h"

#include <drawing/drawfunctions.h>
#include <drawing/functionchange.h>
#include <model/netmetadata.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <utility>

ScenarioComparison::ScenarioComparison(CaseOpening &opening, NetVisControl &control, QObject *parent)
    : QObject(parent)
    , m_opening(opening)
    , m_control(control) {
  connect(&opening.reading(), &CaseReading::begins, this, &ScenarioComparison::forget);
  connect(&opening, &CaseOpening::ended, this, &ScenarioComparison::comeBack);
  connect(&opening, &CaseOpening::switched, this, &ScenarioComparison::refresh);
}

bool ScenarioComparison::compareWith(const QString &name, const QString &file) {
  const QString nameBefore = std::exchange(m_name, name);
  const QString fileBefore = std::exchange(m_file, file);
  if (!take()) {
    m_name = nameBefore;
    m_file = fileBefore;
    return false;
  }
  m_case = m_opening.workspace().caseDirectory();
  refresh();
  m_opening.showValues();
  if (shown() == Kind::None)
    show(Kind::Difference);
  emit changed();
  return true;
}

bool ScenarioComparison::take() {
  return m_opening.visit(m_file, [this](const NetData &net, const NetworkLoader &loader) {
    m_comparison.remove(m_control.net());
    m_comparison.takeReference(m_control.net(), net);
    const std::vector<PropertyKey> keys = loader.propertiesOfScenario();
    m_properties = {keys.begin(), keys.end()};
  });
}

void ScenarioComparison::refresh() {
  if (m_name.isEmpty() || m_isForgotten)
    return;
  const std::vector<PropertyKey> keys = m_opening.loader().propertiesOfScenario();
  std::set<PropertyKey> properties = m_properties;
  properties.insert(keys.begin(), keys.end());
  m_comparison.apply(m_control.net(), properties, m_name);
}

void ScenarioComparison::drop() {
  if (m_name.isEmpty())
    return;
  m_name.clear();
  show(Kind::None);
  m_comparison.remove(m_control.net());
  m_opening.showValues();
  emit changed();
}

/// The elements go.
void ScenarioComparison::forget() {
  m_comparison = Comparison();
  m_isForgotten = true;
}

/// The case was read again, or another one was opened.
void ScenarioComparison::comeBack() {
  if (!std::exchange(m_isForgotten, false) || m_name.isEmpty())
    return;
  const bool isSameCase = m_opening.workspace().caseDirectory() == m_case;
  if (isSameCase && take()) {
    refresh();
    m_opening.showValues();
    return;
  }
  m_name.clear();
  emit changed();
}

Comparison::Kind ScenarioComparison::shown() const {
  const PlotSettings &settings = m_control.plot()->settings();
  for (const Aspect aspect : {Aspect::EdgeColor, Aspect::NodeColor}) {
    const Kind kind = Comparison::kindOf(DrawFunction::propertyName(settings.functions[aspect].name));
    if (kind != Kind::None)
      return kind;
  }
  return Kind::None;
}

void ScenarioComparison::show(Kind kind) {
  NetPlot &plot = *m_control.plot();
  PlotSettings settings = plot.appliedSettings();
  const PlotSettings before = settings;
  for (const Aspect aspect : {Aspect::EdgeColor, Aspect::NodeColor}) {
    const QString now = DrawFunction::propertyName(settings.functions[aspect].name);
    const QString wanted = Comparison::property(Comparison::compared(now), kind);
    const bool isThere = kind == Kind::None || m_control.net().metaData()->anyAttribute(wanted) != nullptr;
    if (isThere && wanted.compare(now, Qt::CaseInsensitive) != 0)
      changeFunction(settings, aspect, wanted, m_control.net());
  }
  if (settings == before)
    return;
  plot.setSettings(settings);
  plot.update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
  plot.update().requestPixtest(-1);
  m_control.styles().record();
  emit styleChanged();
}
