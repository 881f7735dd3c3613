#include "scenariocloud.h"

#include <model/names.h>
#include <model/netmetadata.h>

#include <QCoreApplication>
#include <QTimer>

namespace {

constexpr int PatienceMs = 30; // within a scenario, until the window gets its turn

/// Without what scenarios say.
element bare(const element &e, const NetMetaData &metaData) {
  const QString type = e.value(Names::all().type);
  element copy = e;
  for (const Property &property : e) {
    const NetMetaData::Attribute *row = metaData.attribute(type, property.key.name());
    const bool isOfScenario =
        row != nullptr && (row->group == QLatin1String("scenario") || row->group == QLatin1String("results") ||
                           row->group == QLatin1String("gas"));
    if (isOfScenario)
      copy.erase(property.key);
  }
  return copy;
}

} // namespace

ScenarioCloud::ScenarioCloud(ScenarioMachines source, const NetData &net, const element &compressor,
                             FunctionSource functions)
    : m_source(std::move(source))
    , m_compressor(compressor.value(Names::all().name))
    , m_functions(functions) {
  const PropertyKey fuelNode = PropertyKey::find("gasnode");
  m_elements.append(m_compressor);
  for (const PropertyKey property : {Names::all().node1, Names::all().node2, Names::all().drive, fuelNode})
    m_elements.append(compressor.value(property));
  m_elements.removeAll(QString());
  m_elements.removeDuplicates();
  for (const QString &name : qAsConst(m_elements)) {
    if (const element *e = net.element(name))
      m_own.addElement(bare(*e, *net.metaData()));
  }
}

/// Lets the window live while a large file is read.
Progress ScenarioCloud::progress() {
  return [this](double) {
    if (m_sinceEvents.elapsed() > PatienceMs) {
      QCoreApplication::processEvents();
      m_sinceEvents.restart();
    }
    return m_isRunning;
  };
}

void ScenarioCloud::start() {
  if (m_isRunning)
    return;
  m_isRunning = true;
  m_scenarios.clear();
  m_skeleton.clear();
  m_names = m_source.names();
  emit changed();
  QTimer::singleShot(0, this, &ScenarioCloud::step);
}

void ScenarioCloud::cancel() {
  m_isRunning = false;
  emit changed();
}

void ScenarioCloud::end() {
  m_isRunning = false;
  emit changed();
}

/// The geometry is read once; elements of subnets are not in it.
bool ScenarioCloud::prepare(QString *reason) {
  if (!m_skeleton.isEmpty())
    return true;
  NetData skeleton;
  if (!m_source.geometry(m_elements, skeleton, progress(), reason))
    return false;
  for (const QString &name : qAsConst(m_elements)) {
    const element *own = m_own.element(name);
    if (own != nullptr && skeleton.element(name) == nullptr)
      skeleton.addElement(*own);
  }
  m_skeleton = std::move(skeleton);
  return true;
}

ScenarioCloud::Scenario ScenarioCloud::read(const QString &name) {
  Scenario scenario;
  scenario.name = name;
  NetData net(m_skeleton);
  MachineData machines;
  if (!m_source.read(name, net, machines, progress(), &scenario.fault))
    return scenario;
  machines.use(m_functions);
  const NetworkMachines all(net, std::move(machines));
  const element *compressor = net.element(m_compressor);
  if (compressor == nullptr)
    return scenario;
  scenario.whole = all.compression(*compressor);
  scenario.station = all.station(*compressor).value_or(NetworkMachines::Station());
  return scenario;
}

void ScenarioCloud::step() {
  const std::shared_ptr<ScenarioCloud> self = shared_from_this(); // whoever holds it may go while events are handled
  const std::size_t next = m_scenarios.size();
  if (!m_isRunning)
    return;
  if (next >= static_cast<std::size_t>(m_names.size())) {
    end();
    return;
  }
  m_sinceEvents.start();
  Scenario scenario;
  QString reason;
  const QString name = m_names.at(static_cast<int>(next));
  if (prepare(&reason)) {
    scenario = read(name);
  } else {
    scenario.name = name;
    scenario.fault = reason;
  }
  if (!m_isRunning)
    return; // cancelled: what was read of this one is not whole
  m_scenarios.push_back(std::move(scenario));
  emit changed();
  QTimer::singleShot(0, this, &ScenarioCloud::step);
}
