// The part of NetworkLoader that puts another scenario in the place of the one that was read.
//
// 1. What the scenario says of elements was noted when it was read (ValueJournal), and formulas know what they computed.
// Both
//    are taken off, which leaves the network as geometry, templates and layers say it; then the stages of an opening follow
//    that depend on the scenario, in the same order.
// 2. Until all of them are through, what was taken off and what was known of the scenario before is kept. A scenario that
//    cannot be read, or that somebody does not wait for, is taken off in turn, and that is put back.
// 3. A scenario that moves elements, connects them otherwise or has formulas of its own where templates have some, too, is
//    read with everything else again.

#include "networkloader.h"

#include <base/fileaccess.h>
#include <base/withoutboxes.h>
#include <model/names.h>
#include <subassembly/subassembler.h>

#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <tuple>
#include <utility>

struct NetworkLoader::OfScenario {
  ValueJournal::Shelf values;
  NivraWorkspace workspace;
  NivraGasParams gasParams;
  GasTable gases;
  ScenarioSummary::Files files;
  MachineData machines;
  QString machineFile;
  Findings machineFaults;
  ReadFiles::Stamps read;
  std::vector<FindingList::Group> noticed;
};

namespace {

/// Where elements lie and what they are connected with was asked for when the network was read.
const std::vector<PropertyKey> &keysOfStructure() {
  static const std::vector<PropertyKey> keys = [] {
    const Names &names = Names::all();
    std::vector<PropertyKey> found{names.type, names.x,      names.y,        names.node1,   names.node2,
                                   names.pins, names.driven, names.elements, names.gasNode, names.refEle};
    for (const char *name : {"variant", "width", "rotation", "constraints", "vis.size", "drive"})
      found.push_back(PropertyKey::intern(name));
    return found;
  }();
  return keys;
}

bool isSame(const FormulaDefinition &a, const FormulaDefinition &b) {
  const auto parts = [](const FormulaDefinition &d) {
    return std::tie(d.property, d.types, d.namePattern, d.elements, d.unit, d.category, d.comment, d.isConstraint,
                    d.expression, d.lower, d.upper, d.message, d.names, d.file, d.line);
  };
  return parts(a) == parts(b);
}

bool areSame(const std::vector<FormulaDefinition> &a, const std::vector<FormulaDefinition> &b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSame);
}

/// Why the file cannot be read; empty when it can.
QString faultOf(const QString &path) {
  QFile file(path);
  QString reason;
  FileAccess::openForReading(file, FileAccess::Source::Workspace, FileAccess::AnySize, &reason);
  return reason;
}

} // namespace

bool NetworkLoader::isExchangeable(const NetworkLoader &wanted) const {
  const NivraWorkspace &other = wanted.workspace();
  if (other.caseDirectory() != m_workspace.caseDirectory() || other.geometryPath() != m_workspace.geometryPath() ||
      other.isJson() != m_workspace.isJson() || !other.hasScenario() || m_journal.touches(keysOfStructure()))
    return false;
  if (!m_hasTemplateFormulas)
    return true;
  Findings ignored; // told when they are read for good
  return m_workspace.hasScenario() && areSame(wanted.definitionsOfFiles(ignored), m_definitions);
}

NetworkLoader::Exchange NetworkLoader::exchangeScenario(const NetworkLoader &wanted, const Progress &progress) {
  const NivraMsg::WithoutBoxes quiet; // who steps through scenarios reads the findings
  FileAccess::confineTo(wanted.workspace().root());
  m_error = faultOf(wanted.workspace().chosenPath());
  m_cancelled = false;
  if (!m_error.isEmpty())
    return Exchange::Failed;
  if (!isExchangeable(wanted))
    return Exchange::Impossible;
  QElapsedTimer timer;
  timer.start();
  m_formulas.withdraw();
  OfScenario before{m_journal.takeOff(), m_workspace,   m_gasParams,     m_gases,           m_files,
                    m_machines,          m_machineFile, m_machineFaults, std::move(m_read), std::move(m_noticed)};
  m_noticed.clear();
  m_workspace = wanted.workspace();
  const bool isRead = readScenario(before, progress);
  const bool isImpossible = m_journal.touches(keysOfStructure());
  if (isRead && !isImpossible) {
    constexpr double Nano = 1e-9;
    m_seconds = {{QStringLiteral("scenario"), static_cast<double>(timer.nsecsElapsed()) * Nano}};
    return Exchange::Done;
  }
  takeBack(std::move(before));
  return isRead ? Exchange::Impossible : Exchange::Failed;
}

/// The stages of an opening that depend on the scenario.
bool NetworkLoader::readScenario(OfScenario &before, const Progress &progress) {
  readConfiguration();
  const ReadFiles notes;
  const QString leftFolder = before.workspace.scenarioDirectory() + QLatin1Char('/');
  for (const auto &[path, stamp] : before.read) {
    if (before.workspace.scenarioDirectory().isEmpty() || !path.startsWith(leftFolder))
      m_read.emplace(path, stamp);
  }
  keepFindingsOfGeometry(before.noticed);
  NivraReader reader(m_net, logFinding);
  reader.setJournal(&m_journal);
  if (!takeRead(reader.readScenario(m_workspace, scenarioOptions(progress)), reader)) {
    if (m_error.isEmpty())
      m_error = faultOf(m_workspace.chosenPath());
    return false;
  }
  awaitResults(reader);
  Findings findings = ConsistencyCheck::checkNetData(m_net);
  append(findings, m_removed.findings);
  notice(tr("Checking"), std::move(findings));
  if (!m_templateFolder.isEmpty())
    SubAssembler(m_net, m_templateFolder, SubAssemblyCache::instance(), logFinding).giveDefaults();
  NivraReader::Options options = scenarioOptions(progress);
  options.isTarget = nullptr; // elements of subnets are what it is about
  if (!readSubResults(reader, options)) {
    m_error = tr("Reading was cancelled.");
    return false;
  }
  LayerEdits::apply(m_net, m_layers.values);
  readMachines(reader);
  const bool isComputed = computeFormulasAgain(progress);
  if (!isComputed)
    m_error = tr("Reading was cancelled.");
  for (const auto &[path, stamp] : notes.stamps())
    m_read.emplace(path, stamp);
  return isComputed;
}

NivraReader::Options NetworkLoader::scenarioOptions(const Progress &progress) const {
  NivraReader::Options options;
  options.includeProperties = m_includeProperties;
  options.progress = progress;
  if (!m_own.empty()) // when scenarios are read with the network, there are no elements of subnets yet
    options.isTarget = [this](const element &e) {
      return std::binary_search(m_own.begin(), m_own.end(), &e);
    };
  return options;
}

void NetworkLoader::keepFindingsOfGeometry(const std::vector<FindingList::Group> &noticed) {
  for (const FindingList::Group &group : noticed) {
    if (group.name == tr("Subnets") || group.name == tr("Layers"))
      m_noticed.push_back(group);
    if (group.name != tr("Reading"))
      continue;
    Findings kept;
    std::copy_if(group.findings.begin(), group.findings.end(), std::back_inserter(kept),
                 [this](const Finding &finding) { return finding.file == m_files.geometry; });
    notice(group.name, std::move(kept));
  }
}

bool NetworkLoader::computeFormulasAgain(const Progress &progress) {
  Findings findings;
  std::vector<FormulaDefinition> definitions = definitionsOfFiles(findings);
  if (areSame(definitions, m_definitions)) {
    append(findings, m_formulas.arrangeAgain());
    return applyFormulas(std::move(findings), progress);
  }
  m_definitions = std::move(definitions);
  m_net.setMetaData(nullptr); // which describes what other formulas compute
  m_machineLimits.describe();
  append(findings, m_formulas.setDefinitions(m_definitions));
  return applyFormulas(std::move(findings), progress);
}

void NetworkLoader::takeBack(OfScenario before) {
  const bool wasCancelled = m_cancelled;
  m_formulas.withdraw();
  m_journal.takeOff();
  m_journal.layOver(std::move(before.values));
  m_workspace = std::move(before.workspace);
  m_gasParams = std::move(before.gasParams);
  m_gases = std::move(before.gases);
  m_files = std::move(before.files);
  m_machines = std::move(before.machines);
  m_machineFile = std::move(before.machineFile);
  m_machineFaults = std::move(before.machineFaults);
  LayerEdits::apply(m_net, m_layers.values);
  judgeMachines(); // what it found is among the findings before
  computeFormulasAgain(Progress());
  m_noticed = std::move(before.noticed);
  m_read = std::move(before.read);
  m_cancelled = wasCancelled;
}

std::vector<PropertyKey> NetworkLoader::propertiesOfScenario() const {
  std::vector<PropertyKey> keys = m_journal.keys();
  const std::vector<PropertyKey> computed = m_formulas.computed();
  keys.insert(keys.end(), computed.begin(), computed.end());
  std::sort(keys.begin(), keys.end());
  keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
  return keys;
}
