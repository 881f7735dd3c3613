#include "jsonfile.h"
#include "scenariofields.h"

#include <base/generalsettings.h>
#include <base/nivramsg.h>
#include <io/nivraworkspace.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>

namespace {

constexpr qint64 LongestLine = 1 << 22; // of a configuration file

bool mismatchesAreShown() {
  return GeneralSettings::instance()
             .value(QStringLiteral("PELKA mode"))
             .compare(QStringLiteral("off"), Qt::CaseInsensitive) == 0;
}

Finding mismatch(Finding::Severity severity, const QString &file, const QString &text) {
  return {severity, file, 0, text, mismatchesAreShown() ? text : QString()};
}

/// Opens a text file, or adds why not.
bool openText(QFile &file, const QString &missing, Findings &findings) {
  if (QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Text))
    return true;
  findings.push_back(mismatch(Finding::Severity::Warning, QString(), missing.arg(file.fileName())));
  return false;
}

QString nextLine(QFile &file) {
  QString line = QString::fromUtf8(file.readLine(LongestLine));
  if (line.startsWith(QChar(QChar::ByteOrderMark)))
    line.remove(0, 1);
  return line.trimmed();
}

QString upwards(const QString &directory) {
  return QFileInfo(directory).path();
}

} // namespace

void NivraWorkspace::Case::setFilesFromBaseName(const QString &base) {
  baseName = base;
  geometryFile = base + QStringLiteral(".geom");
  configFile = geometryFile + QStringLiteral(".cfg");
}

NivraWorkspace NivraWorkspace::fromFile(const QString &path) {
  static const QRegularExpression pattern(QStringLiteral("\\.(geom|scen)(\\.jso?n)?$"));
  const QRegularExpressionMatch match = pattern.match(path);
  if (!match.hasMatch()) {
    NivraMsg::logCritical(QStringLiteral("NivraWorkspace::fromScenFile(): invalid file format ") + path);
    return {};
  }
  const QFileInfo file(QString(path).replace(QLatin1Char('\\'), QLatin1Char('/')));
  const bool isScenario = match.captured(1) == QLatin1String("scen");
  const QString directory = file.absolutePath();
  const QString caseDirectory = isScenario ? upwards(directory) : directory;
  const QString root = upwards(caseDirectory);
  if (!file.isFile()) {
    NivraMsg::logCritical(QStringLiteral("NivraWorkspace::fromFile(): File does not exist ") + path);
    return {};
  }
  if (!QFileInfo(root).isDir()) {
    NivraMsg::logCritical(QStringLiteral("NivraWorkspace::fromFile(): workspace root not found ") + root);
    return {};
  }
  NivraWorkspace workspace;
  workspace.m_root = root;
  workspace.m_json = !match.captured(2).isEmpty();
  NivraMsg::log(QStringLiteral("NivraWorkspace set to ") + root);
  Case opened;
  opened.name = QFileInfo(caseDirectory).fileName();
  workspace.m_cases.append(opened);
  workspace.findCaseFiles();
  if (!isScenario && workspace.m_cases.last().geometryFile.isEmpty())
    workspace.m_cases.last().geometryFile = file.baseName() + QStringLiteral(".geom");
  if (isScenario) {
    workspace.addScenario(QFileInfo(directory).fileName());
    NivraScenario &scenario = workspace.m_cases.last().scenarios.last();
    scenario.baseName = file.baseName();
    scenario.scenFile = file.baseName() + QStringLiteral(".scen");
    scenario.configFile = file.baseName() + QStringLiteral(".scen.cfg");
  }
  return workspace;
}

void NivraWorkspace::findCaseFiles() {
  Case &current = m_cases.last();
  for (QDirIterator files(caseDirectory(), QDir::Files); files.hasNext();) {
    files.next();
    const QString name = files.fileName();
    if (name.endsWith(QStringLiteral(".cfg"))) {
      current.configFile = name;
    } else if (name.endsWith(QStringLiteral(".geom")) || name.endsWith(QStringLiteral(".geom.jsn")) ||
               (current.geometryFile.isEmpty() && name.endsWith(QStringLiteral(".geom.json")))) {
      current.baseName = name.section(QLatin1Char('.'), 0, 0);
      current.geometryFile = current.baseName + QStringLiteral(".geom");
    }
  }
  if (current.configFile.isEmpty())
    current.configFile = current.geometryFile + QStringLiteral(".cfg");
}

const NivraScenario *NivraWorkspace::currentScenario() const {
  return m_cases.isEmpty() || m_cases.last().scenarios.isEmpty() ? nullptr : &m_cases.last().scenarios.last();
}

bool NivraWorkspace::hasScenario() const {
  const NivraScenario *scenario = currentScenario();
  return scenario != nullptr && !scenario->isAbsent();
}

QString NivraWorkspace::caseDirectory() const {
  return m_cases.isEmpty() ? QString() : m_root + QLatin1Char('/') + m_cases.last().name;
}

QString NivraWorkspace::geometryPath() const {
  return m_cases.isEmpty() ? QString() : filePath(m_cases.last().geometryFile);
}

QString NivraWorkspace::scenarioDirectory() const {
  return hasScenario() ? filePath(currentScenario()->workDir) : QString();
}

QString NivraWorkspace::scenarioPath() const {
  return hasScenario() ? scenarioDirectory() + QLatin1Char('/') + currentScenario()->scenFile : QString();
}

QString NivraWorkspace::filePath(const QString &name) const {
  return m_cases.isEmpty() ? name : caseDirectory() + QLatin1Char('/') + name;
}

void NivraWorkspace::addScenario(const QString &directoryName) {
  NivraScenario scenario;
  scenario.workDir = directoryName;
  scenario.baseName = directoryName;
  scenario.scenFile = directoryName + QStringLiteral(".scen");
  scenario.configFile = directoryName + QStringLiteral(".scen.cfg");
  m_cases.last().scenarios.append(scenario);
}

int NivraWorkspace::readCaseConfiguration(Findings &findings) {
  Case &current = m_cases.last();
  QFile file(filePath(current.configFile));
  if (!openText(file, QStringLiteral("Case config file does not exist: %1"), findings)) {
    current.workDir = current.name;
    NivraMsg::debug(QStringLiteral("Case workDir is now = ") + current.name);
    return -1;
  }
  nextLine(file);
  current.workDir = nextLine(file);
  const QString geometryFile = nextLine(file);
  if (!geometryFile.isEmpty() && geometryFile != current.geometryFile)
    NivraMsg::debug(
        QStringLiteral("Case config names the geometry file %1; %2 is read").arg(geometryFile, current.geometryFile));
  current.flag = nextLine(file) == QLatin1String("1");
  const QString properties = nextLine(file);
  if (!properties.isEmpty()) {
    QJsonParseError error;
    current.properties = QJsonDocument::fromJson(properties.toUtf8(), &error).object();
    if (error.error != QJsonParseError::NoError)
      findings.push_back({Finding::Severity::Warning, file.fileName(), 5,
                          QStringLiteral("Case properties are no JSON object: ") + error.errorString(), QString()});
  }
  if (current.workDir != current.name) {
    findings.push_back(mismatch(Finding::Severity::Warning, file.fileName(),
                                QStringLiteral("Directory of geometry\n%1\nand config value for it\n%2\ndid not "
                                               "match!\nCorrected! Perform a save yourself!")
                                    .arg(current.name, current.workDir)));
    current.workDir = current.name;
  }
  return 0;
}

void NivraWorkspace::readScenarioConfiguration(NivraGasParams &gas, Findings &findings, bool skipWorkDirCheck) {
  if (currentScenario() == nullptr)
    return;
  NivraScenario &scenario = m_cases.last().scenarios.last();
  const QString actualName = scenario.workDir;
  const QString directory = filePath(actualName);
  const NivraScenario opened = scenario;
  if (gas.readFromFile(directory))
    readUnifiedConfiguration(directory);
  else
    readTextConfiguration(directory + QLatin1Char('/') + scenario.configFile, gas, findings);
  // The opened file is the one to read, whatever the configuration calls it.
  scenario.scenFile = opened.scenFile;
  scenario.baseName = opened.baseName;
  scenario.configFile = opened.configFile;
  if (skipWorkDirCheck)
    scenario.workDir = actualName;
  else
    checkScenarioDirectory(actualName, findings);
}

void NivraWorkspace::takeConfiguration(const QJsonObject &object, NivraGasParams &gas) {
  if (currentScenario() == nullptr)
    return;
  NivraScenario &scenario = m_cases.last().scenarios.last();
  const NivraScenario before = scenario;
  gas.fromJson(object);
  scenario.fromJson(object);
  scenario.workDir = before.workDir;
  scenario.scenFile = before.scenFile;
}

void NivraWorkspace::readUnifiedConfiguration(const QString &directory) {
  QString reason;
  const std::optional<QJsonObject> object = readJsonObject(directory + QStringLiteral("/scenconfig.jsn"), &reason);
  if (object)
    m_cases.last().scenarios.last().fromJson(*object);
  else
    NivraMsg::logWarning(QStringLiteral("readUnifiedScenConfig: cannot open file ") + reason);
}

void NivraWorkspace::readTextConfiguration(const QString &path, NivraGasParams &gas, Findings &findings) {
  NivraScenario &scenario = m_cases.last().scenarios.last();
  NivraMsg::debug(QStringLiteral("Reading scenario config file: ") + path);
  QFile file(path);
  if (!openText(file, QStringLiteral("Scenario config file does not exist: %1"), findings)) {
    NivraMsg::debug(QStringLiteral("Scenario workDir is now = ") + scenario.workDir);
    return;
  }
  const QString first = nextLine(file);
  QStringList fields;
  if (first.contains(QStringLiteral("NivraVersion_used"))) {
    fields = first.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  } else {
    fields.append(first);
    while (!file.atEnd() && fields.size() < ScenarioFields::Count)
      fields.append(nextLine(file));
  }
  ScenarioFields::apply(fields, scenario, gas);
}

void NivraWorkspace::checkScenarioDirectory(const QString &actualName, Findings &findings) {
  NivraScenario &scenario = m_cases.last().scenarios.last();
  if (scenario.workDir == actualName)
    return;
  findings.push_back(
      mismatch(Finding::Severity::Information, scenarioDirectory(),
               QStringLiteral("Directory of scenario and config value for it did not match!\nCorrected! Perform "
                              "a save yourself!")));
  scenario.workDir = actualName;
}
