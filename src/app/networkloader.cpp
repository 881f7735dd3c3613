#include "networkloader.h"

#include "machinefile.h"

#include <base/fileaccess.h>
#include <base/nivramsg.h>
#include <model/netmetadata.h>
#include <subassembly/subassembler.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>

#include <algorithm>
#include <iterator>
#include <machines/machinereader.h>
#include <machines/networkmachines.h>
#include <mutex>

namespace {

constexpr double SecondsPerMillisecond = 1e-3;

QString firstCritical(const Findings &findings) {
  for (const Finding &finding : findings) {
    if (finding.severity == Finding::Severity::Critical)
      return finding.logText();
  }
  return QString();
}

/// The vocabulary is read once for all networks.
void tellOfVocabulary() {
  static std::once_flag isTold;
  std::call_once(isTold, [] { report(NetMetaData::instance().findings()); });
}

/// What the check found, in a box and as one text in the log.
void warnOf(const Findings &findings) {
  QString text;
  for (const Finding &finding : findings)
    text += finding.text + QLatin1Char('\n');
  if (!text.isEmpty()) {
    NivraMsg::message(NivraMsg::Kind::Warning, NetworkLoader::tr("Check with findings! See log! Beginning:\n") +
                                                   text.section(QStringLiteral("..."), 0, 200));
    NivraMsg::log(text.replace(QLatin1Char('\n'), QStringLiteral("<br/>")));
  }
  NivraMsg::debug(QStringLiteral("after checkNetData"));
}

/// Adds those of the formula and constraint files of a folder, by name. What is no file but named as one is told when it is
/// opened.
void addDefinitions(const QString &directory, const QString &category, std::vector<FormulaDefinition> &definitions,
                    Findings &findings) {
  const QStringList patterns{QStringLiteral("*.formulas"), QStringLiteral("*.constraints")};
  const QDir::Filters anything = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
  for (const QFileInfo &file : QDir(directory).entryInfoList(patterns, anything, QDir::Name)) {
    FormulaFile::Contents contents = FormulaFile::read(file.filePath(), category);
    std::move(contents.definitions.begin(), contents.definitions.end(), std::back_inserter(definitions));
    append(findings, std::move(contents.findings));
  }
}

bool isOfResults(const FormulaDefinition &definition) {
  return definition.category == QLatin1String("results");
}

/// All elements of the network, by address.
std::vector<const element *> addresses(const NetData &net) {
  std::vector<const element *> found;
  found.reserve(net.nodes().size() + net.edges().size() + net.assembledSubnets().size() + net.textBoxes().size());
  for (const elements *collection : {&net.nodes(), &net.edges(), &net.assembledSubnets(), &net.textBoxes()}) {
    for (const elements::Entry &entry : *collection)
      found.push_back(&entry.value);
  }
  std::sort(found.begin(), found.end());
  return found;
}

QString layersFile(const NivraWorkspace &workspace) {
  return workspace.filePath(QStringLiteral("layers.csv"));
}

} // namespace

bool NetworkLoader::resolve(const QString &path) {
  m_seconds.clear();
  m_cancelled = false;
  m_workspace = NivraWorkspace::fromFile(path);
  report(m_workspace.findings());
  if (m_workspace.isValid()) {
    FileAccess::confineTo(m_workspace.root()); // before anything in it is opened
    return true;
  }
  m_error = tr("%1 is no usable workspace: %2").arg(path, firstCritical(m_workspace.findings()));
  return false;
}

void NetworkLoader::useWorkspaceOf(const NetworkLoader &other) {
  m_workspace = other.m_workspace;
  FileAccess::confineTo(m_workspace.root());
  m_seconds.clear();
  m_cancelled = false;
}

void NetworkLoader::readConfiguration() {
  Findings findings;
  const ReadFiles notes;
  m_workspace.readCaseConfiguration(findings);
  m_gasParams = NivraGasParams();
  if (m_workspace.hasScenario())
    m_workspace.readScenarioConfiguration(m_gasParams, findings);
  m_read = notes.stamps();
  report(findings);
}

bool NetworkLoader::readNetwork(const ReadOptions &options) {
  const ReadFiles notes;
  const bool isRead = readStages(options);
  for (const auto &[path, stamp] : notes.stamps())
    m_read.emplace(path, stamp);
  m_read.emplace(layersFile(m_workspace), FileStamp()); // may come
  return isRead;
}

bool NetworkLoader::readStages(const ReadOptions &options) {
  tellOfVocabulary();
  QElapsedTimer timer;
  timer.start();
  const auto note = [&](const QString &stage) {
    m_seconds.append({stage, static_cast<double>(timer.restart()) * SecondsPerMillisecond});
  };
  m_noticed.clear();
  const FunctionSource source = m_machines.source;
  m_machines = MachineData();
  m_machines.source = source;
  m_machineLimits.forget();
  m_machineFile.clear();
  m_machineFaults.clear();
  m_layers = {};
  m_own.clear();
  m_journal = ValueJournal();
  m_includeProperties = options.includeProperties;
  m_formulas.setDefinitions({}); // which speak of the network before
  NivraReader reader(m_net, logFinding);
  reader.setJournal(&m_journal);
  NivraReader::Options readerOptions;
  readerOptions.includeTypes = options.includeTypes;
  readerOptions.includeProperties = options.includeProperties;
  readerOptions.progress = options.progress;
  const bool isRead = readFiles(reader, readerOptions);
  awaitResults(reader);
  note(QStringLiteral("read"));
  if (!isRead)
    return false;
  check();
  note(QStringLiteral("check"));
  if (!assembleSubnets(options) || !readSubResults(reader, readerOptions))
    return stop();
  note(QStringLiteral("subnets"));
  readLayers();
  readMachines(reader);
  note(QStringLiteral("machines"));
  const bool isComputed = computeFormulas(options.progress);
  note(QStringLiteral("formulas"));
  return isComputed || stop();
}

/// A computation may write results beside a scenario that had none.
void NetworkLoader::awaitResults(const NivraReader &reader) {
  if (!m_workspace.hasScenario())
    return;
  const QString base = m_workspace.scenarioPath().section(QLatin1Char('.'), 0, -2);
  for (const char *suffix : {".res", ".res.sub", ".gaspar", ".fix", ".gas"}) {
    const QString path = reader.networkPath(base + QLatin1String(suffix));
    if (!QFileInfo::exists(path))
      m_read.emplace(path, FileStamp());
  }
}

void NetworkLoader::readLayers() {
  const QString path = layersFile(m_workspace);
  m_layers.stamp = FileStamp::of(path);
  if (!QFileInfo::exists(path))
    return;
  Findings findings;
  m_layers.values = LayersFile::read(path, FileAccess::Source::Workspace, findings);
  LayerEdits::apply(m_net, m_layers.values);
  report(findings);
  notice(tr("Layers"), std::move(findings));
}

QString NetworkLoader::fault() const {
  for (const QString &path : {m_workspace.chosenPath(), m_files.geometry}) {
    QFile file(path);
    QString reason;
    if (!path.isEmpty() && !FileAccess::openForReading(file, FileAccess::Source::Workspace, FileAccess::AnySize, &reason))
      return reason;
  }
  return QString();
}

bool NetworkLoader::readFiles(NivraReader &reader, const NivraReader::Options &options) {
  const NivraReader::Result result = reader.readTopoAndScen(m_workspace, options);
  m_files.geometry = reader.networkPath(m_workspace.geometryPath());
  return takeRead(result, reader) || (m_cancelled && stop());
}

bool NetworkLoader::takeRead(const NivraReader::Result &result, const NivraReader &reader) {
  if (!result.configuration.isEmpty())
    report(m_workspace.takeConfiguration(result.configuration, m_gasParams, result.configurationFile));
  m_gases = reader.gases();
  m_files.gases = reader.gasFile();
  report(result.findings);
  notice(tr("Reading"), result.findings);
  m_cancelled = result.cancelled;
  if (m_cancelled)
    m_error = tr("Reading was cancelled.");
  else
    m_error = result.ok ? QString() : firstCritical(result.findings);
  return result.ok && !m_cancelled;
}

void NetworkLoader::check() {
  Findings findings = ConsistencyCheck::checkNetData(m_net);
  warnOf(findings);
  m_removed = ConsistencyCheck::prune(m_net, logFinding);
  if (m_removed.nodes + m_removed.edges > 0) {
    const std::vector<const element *> left = addresses(m_net);
    m_journal.keepOnly([&left](const element *e) { return std::binary_search(left.begin(), left.end(), e); });
  }
  append(findings, m_removed.findings);
  notice(tr("Checking"), std::move(findings));
}

bool NetworkLoader::readSubResults(NivraReader &reader, const NivraReader::Options &options) {
  const NivraReader::Result result = reader.readSubResults(m_workspace, options);
  report(result.findings);
  notice(tr("Reading"), result.findings);
  m_cancelled = result.cancelled;
  return !m_cancelled;
}

/// Always false: reading was cancelled.
bool NetworkLoader::stop() {
  m_error = tr("Reading was cancelled.");
  m_formulas.setDefinitions({}); // of elements that nobody will see
  return false;
}

void NetworkLoader::notice(const QString &stage, Findings findings) {
  if (!findings.empty())
    m_noticed.push_back({stage, std::move(findings)});
}

ScenarioSummary NetworkLoader::scenarioSummary() const {
  return ScenarioSummary::of(m_workspace, m_gasParams, m_gases, m_files);
}

/// The machines of a file that was read before are kept; what they do with the gas of the scenario is looked at anew.
void NetworkLoader::readMachines(const NivraReader &reader) {
  const QString path = MachineFile::of(m_workspace);
  if (path != m_machineFile) {
    MachineReader::Result result;
    if (!path.isEmpty())
      result = MachineReader::read(path);
    result.data.use(m_machines.source);
    m_machines = std::move(result.data);
    m_machineFaults = std::move(result.findings);
    m_machineFile = path;
  }
  if (path.isEmpty()) {
    m_machineLimits.write({}); // of the scenario before
    return;
  }
  MachineFile::takeScenario(m_machines, m_gasParams, reader.gases());
  Findings findings = m_machineFaults;
  append(findings, judgeMachines());
  report(findings);
  notice(tr("Machine data"), std::move(findings));
}

/// Where they work and how near they are to their limits.
Findings NetworkLoader::judgeMachines(std::vector<ElementChange> *changes) {
  NetworkMachines::Judgement judgement = NetworkMachines(m_net, m_machines).judge();
  std::vector<ElementChange> written = m_machineLimits.write(judgement.machines);
  if (changes != nullptr)
    *changes = std::move(written);
  return std::move(judgement.findings);
}

std::vector<ElementChange> NetworkLoader::useFunctions(FunctionSource source) {
  m_machines.use(source);
  std::vector<ElementChange> changes;
  if (m_machines.isEmpty())
    return changes;
  Findings findings = m_machineFaults;
  append(findings, judgeMachines(&changes));
  const QString stage = tr("Machine data");
  const auto isOld = [&stage](const FindingList::Group &group) {
    return group.name == stage;
  };
  m_noticed.erase(std::remove_if(m_noticed.begin(), m_noticed.end(), isOld), m_noticed.end());
  notice(stage, std::move(findings));
  return changes;
}

bool NetworkLoader::assembleSubnets(const ReadOptions &options) {
  m_templateDefinitions.clear();
  m_templateFolder.clear();
  if (m_net.assembledSubnets().isEmpty())
    return true;
  m_own = addresses(m_net);
  m_templateFolder = SubAssembler::findFolder(QCoreApplication::applicationDirPath(), logFinding);
  SubAssembler assembler(m_net, m_templateFolder, SubAssemblyCache::instance(), logFinding);
  SubAssembler::Result result =
      assembler.createElesOfAssembledSubnets(SubAssembler::Flag::All, [&](const QString &text, int done, int count) {
        if (options.told)
          options.told(text);
        m_cancelled = options.progress && !options.progress(static_cast<double>(done) / count);
        return !m_cancelled;
      });
  if (!m_cancelled)
    m_templateDefinitions = assembler.definitions(result.findings);
  report(result.findings);
  notice(tr("Subnets"), std::move(result.findings));
  return !m_cancelled;
}

std::vector<FormulaDefinition> NetworkLoader::definitionsOfFiles(Findings &findings) const {
  std::vector<FormulaDefinition> definitions;
  addDefinitions(m_workspace.caseDirectory(), QStringLiteral("geometry"), definitions, findings);
  if (m_workspace.hasScenario())
    addDefinitions(m_workspace.scenarioDirectory(), QStringLiteral("scenario"), definitions, findings);
  else
    definitions.erase(std::remove_if(definitions.begin(), definitions.end(), isOfResults), definitions.end());
  return definitions;
}

bool NetworkLoader::computeFormulas(const Progress &progress) {
  Findings findings;
  std::vector<FormulaDefinition> definitions = std::move(m_templateDefinitions); // those of the case come after and count
  m_hasTemplateFormulas = !definitions.empty();
  if (!m_workspace.hasScenario())
    definitions.erase(std::remove_if(definitions.begin(), definitions.end(), isOfResults), definitions.end());
  m_definitions = definitionsOfFiles(findings);
  definitions.insert(definitions.end(), m_definitions.begin(), m_definitions.end());
  append(findings, m_formulas.setDefinitions(definitions));
  return applyFormulas(std::move(findings), progress);
}

bool NetworkLoader::applyFormulas(Findings findings, const Progress &progress) {
  append(findings, m_formulas.apply([&](double fraction) {
    m_cancelled = progress && !progress(fraction);
    return !m_cancelled;
  }));
  report(findings);
  notice(tr("Formulas"), std::move(findings));
  noticeViolations();
  return !m_cancelled;
}

void NetworkLoader::noticeViolations() {
  Findings violations = m_formulas.violations();
  if (!violations.empty())
    NivraMsg::logWarning(violations.size() == 1 ? tr("1 bound is violated, see the findings")
                                                : tr("%1 bounds are violated, see the findings").arg(violations.size()));
  notice(boundsStage(), std::move(violations));
}

void NetworkLoader::computeAgain(const std::vector<ElementChange> &changes) {
  std::vector<NetworkFormulas::Change> found;
  for (const ElementChange &change : changes) {
    for (const QString &name : change.elements) {
      if (const element *changed = m_net.element(name))
        found.push_back({changed, change.property});
    }
  }
  report(m_formulas.update(found));
  noticeViolationsAgain();
}

void NetworkLoader::tellBoundsAgain() {
  report(m_formulas.judge());
  noticeViolationsAgain();
}

void NetworkLoader::noticeViolationsAgain() {
  if (!m_noticed.empty() && m_noticed.back().name == boundsStage())
    m_noticed.pop_back();
  noticeViolations();
}
