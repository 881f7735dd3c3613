#include "profile/scenariooverlays.h"

#include <QAction>
#include <QMenu>

#include <algorithm>
#include <thread>

ScenarioOverlays::ScenarioOverlays(QObject *parent)
    : QObject(parent)
    , m_mailbox(*this) {}

void ScenarioOverlays::setScenarios(const PathScenarios &scenarios) {
  m_scenarios = scenarios;
  m_values.clear(); // the files may say something else
  ++m_request;
  const QStringList names = isOffered() ? m_scenarios.names() : QStringList();
  m_chosen.erase(std::remove_if(m_chosen.begin(), m_chosen.end(),
                                [&](const QString &name) { return !names.contains(name) || name == m_scenarios.current; }),
                 m_chosen.end());
  read();
  emit changed();
}

void ScenarioOverlays::fillMenu(QMenu &menu) {
  menu.clear();
  const QStringList names = isOffered() ? m_scenarios.names() : QStringList();
  for (const QString &name : names) {
    if (name == m_scenarios.current)
      continue;
    QAction *action = menu.addAction(QString(name).replace(QLatin1Char('&'), QStringLiteral("&&")));
    action->setCheckable(true);
    action->setChecked(m_chosen.contains(name));
    action->setEnabled(action->isChecked() || m_chosen.size() < MostChosen);
    connect(action, &QAction::toggled, this, [this, name](bool isChosen) {
      QStringList chosen = m_chosen;
      chosen.removeAll(name);
      if (isChosen)
        chosen.append(name);
      choose(chosen);
    });
  }
  if (menu.isEmpty())
    menu.addAction(tr("The case has no other scenarios"))->setEnabled(false);
}

void ScenarioOverlays::choose(const QStringList &names) {
  m_chosen = names.mid(0, MostChosen);
  read();
  emit changed();
}

void ScenarioOverlays::setPath(const QSet<QString> &elements, const QSet<QString> &properties) {
  if (elements == m_elements && m_properties.contains(properties))
    return;
  m_elements = elements;
  m_properties = properties;
  m_values.clear();
  ++m_request;
  read();
}

void ScenarioOverlays::read() {
  if (!m_scenarios.read || m_elements.isEmpty())
    return;
  QStringList wanted;
  for (const QString &name : qAsConst(m_chosen)) {
    if (!m_values.contains(name)) {
      wanted.append(name);
      m_values.insert(name, nullptr); // is on its way
    }
  }
  if (wanted.isEmpty())
    return;
  std::thread([this, address = m_mailbox.address(), reader = m_scenarios.read, wanted, request = m_request,
               elements = m_elements, properties = m_properties] {
    for (const QString &scenario : wanted) {
      QString reason;
      const PathScenarios::Values values = reader(scenario, elements, properties, &reason);
      if (!address.send([=] { take(request, scenario, values, reason); }))
        return;
    }
  }).detach();
}

void ScenarioOverlays::take(int request, const QString &scenario, const PathScenarios::Values &values,
                            const QString &reason) {
  if (request != m_request)
    return;
  m_values.insert(scenario, std::make_shared<const PathScenarios::Values>(values));
  if (!reason.isEmpty())
    emit told(reason);
  emit changed();
}

std::vector<ProfileOverlay> ScenarioOverlays::overlays() const {
  std::vector<ProfileOverlay> found;
  for (const QString &name : m_chosen) {
    const std::shared_ptr<const PathScenarios::Values> values = m_values.value(name);
    if (values == nullptr)
      continue;
    found.push_back({name, [values](const PathProfile::Row &row, PropertyKey property) {
                       const auto element = values->constFind(row.name);
                       return element == values->constEnd() ? NetData::NoValue
                                                            : element->value(property.name(), NetData::NoValue);
                     }});
  }
  return found;
}
