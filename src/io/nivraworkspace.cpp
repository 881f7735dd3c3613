#include "jsonfile.h"
#include "scenariofields.h"

#include <base/fileaccess.h>
#include <base/settings.h>
#include <io/nivraworkspace.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>

namespace {

Finding mismatch(Finding::Severity severity, const QString &file, const QString &text) {
  return {severity, file, 0, text, Settings::PelkaMode.value() ? QString() : text};
}

/// The lines of a text configuration.
class TextConfiguration {
public:
  explicit TextConfiguration(const QString &path)
      : m_path(path) {}

  /// Reads the file, or adds why it could not.
  bool open(const QString &missing, Findings &findings) {
    QString reason;
    const std::optional<QByteArray> content =
        FileAccess::readWhole(m_path, FileAccess::Source::Workspace, FileAccess::LargestConfiguration, &reason);
    if (!content) {
      QString text = missing.arg(m_path);
      if (QFileInfo::exists(m_path))
        text += QStringLiteral(" (%1)").arg(reason);
      findings.push_back(mismatch(Finding::Severity::Warning, QString(), text));
      return false;
    }
    m_lines = QString::fromUtf8(*content).split(QLatin1Char('\n'));
    if (m_lines.first().startsWith(QChar(QChar::ByteOrderMark)))
      m_lines.first().remove(0, 1);
    if (m_lines.last().isEmpty())
      m_lines.removeLast();
    return true;
  }

  bool atEnd() const { return m_next >= m_lines.size(); }
  QString nextLine() { return atEnd() ? QString() : m_lines[m_next++].trimmed(); }
  const QString &path() const { return m_path; }

private:
  QString m_path;
  QStringList m_lines;
  int m_next = 0;
};

/// The name of a file without its kind (".geom" or ".scen") and the suffix of the JSON form. It ends at the first dot, as
/// the other files of the case are named; a file that is not named so counts with its whole name.
QString baseNameOf(const QFileInfo &file, const QString &kind, const QString &jsonSuffix) {
  QString shortest = file.fileName().section(QLatin1Char('.'), 0, 0);
  if (QFileInfo::exists(file.path() + QLatin1Char('/') + shortest + kind + jsonSuffix))
    return shortest;
  return file.fileName().chopped(kind.size() + jsonSuffix.size());
}

QString upwards(const QString &directory) {
  return QFileInfo(directory).path();
}

Finding debugLine(const QString &text) {
  return {Finding::Severity::Debug, {}, 0, text};
}

} // namespace

void NivraWorkspace::Case::setFilesFromBaseName(const QString &base) {
  baseName = base;
  geometryFile = base + QStringLiteral(".geom");
  configFile = geometryFile + QStringLiteral(".cfg");
}

NivraWorkspace NivraWorkspace::fromFile(const QString &path) {
  static const QRegularExpression pattern(QStringLiteral("\\.(geom|scen)(\\.jso?n)?$"));
  NivraWorkspace workspace;
  const auto told = [&workspace](Finding::Severity severity, const QString &text) {
    workspace.m_findings.push_back({severity, {}, 0, text});
  };
  const QRegularExpressionMatch match = pattern.match(path);
  if (!match.hasMatch()) {
    told(Finding::Severity::Critical, tr("NivraWorkspace::fromScenFile(): invalid file format %1").arg(path));
    return workspace;
  }
  const QFileInfo file(QString(path).replace(QLatin1Char('\\'), QLatin1Char('/')));
  const bool isScenario = match.captured(1) == QLatin1String("scen");
  const QString directory = file.absolutePath();
  const QString caseDirectory = isScenario ? upwards(directory) : directory;
  const QString root = upwards(caseDirectory);
  if (!file.isFile()) {
    told(Finding::Severity::Critical,
         (file.exists() ? tr("NivraWorkspace::fromFile(): File does not exist %1 (there is something else of that name)")
                        : tr("NivraWorkspace::fromFile(): File does not exist %1"))
             .arg(path));
    return workspace;
  }
  if (!QFileInfo(root).isDir()) {
    told(Finding::Severity::Critical, tr("NivraWorkspace::fromFile(): workspace root not found %1").arg(root));
    return workspace;
  }
  workspace.m_root = root;
  workspace.m_json = !match.captured(2).isEmpty();
  told(Finding::Severity::Information, tr("NivraWorkspace set to %1").arg(root));
  Case opened;
  opened.name = QFileInfo(caseDirectory).fileName();
  workspace.m_cases.append(opened);
  workspace.findCaseFiles();
  workspace.m_chosen = file.absoluteFilePath();
  const QString kind = QLatin1Char('.') + match.captured(1);
  const QString base = baseNameOf(file, kind, match.captured(2));
  if (base + kind + match.captured(2) != file.fileName())
    told(Finding::Severity::Warning, tr("%1 was chosen; the files of a case are named up to the first dot, and %2 is read")
                                         .arg(file.fileName(), base + kind + match.captured(2)));
  if (isScenario) {
    workspace.addScenario(QFileInfo(directory).fileName(), base);
  } else {
    workspace.takeChosenGeometry(base);
  }
  return workspace;
}

void NivraWorkspace::findCaseFiles() {
  Case &current = m_cases.last();
  for (QDirIterator files(caseDirectory(), QDir::Files); files.hasNext();) {
    files.next();
    const QString name = files.fileName();
    static const QRegularExpression geometry(QStringLiteral("\\.geom(\\.jso?n)?$"));
    const QRegularExpressionMatch match = geometry.match(name);
    const bool isLongForm = match.captured(1) == QLatin1String(".json");
    if (name.endsWith(QStringLiteral(".cfg"))) {
      current.configFile = name;
    } else if (match.hasMatch() && (!isLongForm || current.geometryFile.isEmpty())) {
      current.baseName = baseNameOf(files.fileInfo(), QStringLiteral(".geom"), match.captured(1));
      current.geometryFile = current.baseName + QStringLiteral(".geom");
    }
  }
  if (current.geometryFile.isEmpty()) { // messages then name what should be there
    current.baseName = current.name;
    current.geometryFile = current.name + QStringLiteral(".geom");
  }
  if (current.configFile.isEmpty())
    current.configFile = current.geometryFile + QStringLiteral(".cfg");
}

/// A folder lists its files in no order: the chosen one, and the configuration of its name, count as the last.
void NivraWorkspace::takeChosenGeometry(const QString &base) {
  Case &current = m_cases.last();
  const QString foundConfiguration = current.configFile;
  current.setFilesFromBaseName(base);
  if (!QFileInfo::exists(filePath(current.configFile)) && QFileInfo::exists(filePath(foundConfiguration)))
    current.configFile = foundConfiguration;
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

QString NivraWorkspace::caption() const {
  QString text = m_cases.isEmpty() ? QString() : m_cases.last().name;
  if (hasScenario())
    text += QStringLiteral(" · ") + currentScenario()->workDir;
  return text;
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

void NivraWorkspace::addScenario(const QString &directoryName, const QString &baseName) {
  NivraScenario scenario;
  scenario.workDir = directoryName;
  scenario.baseName = baseName;
  scenario.scenFile = baseName + QStringLiteral(".scen");
  scenario.configFile = baseName + QStringLiteral(".scen.cfg");
  m_cases.last().scenarios.append(scenario);
}

int NivraWorkspace::readCaseConfiguration(Findings &findings) {
  Case &current = m_cases.last();
  TextConfiguration file(filePath(current.configFile));
  if (!file.open(tr("Case config file does not exist: %1"), findings)) {
    current.workDir = current.name;
    findings.push_back(debugLine(QStringLiteral("Case workDir is now = ") + current.name));
    return -1;
  }
  current.isConfigured = true;
  file.nextLine();
  current.workDir = file.nextLine();
  const QString geometryFile = file.nextLine();
  if (!geometryFile.isEmpty() && geometryFile != current.geometryFile)
    findings.push_back(debugLine(
        QStringLiteral("Case config names the geometry file %1; %2 is read").arg(geometryFile, current.geometryFile)));
  current.flag = file.nextLine() == QLatin1String("1");
  const QString properties = file.nextLine();
  if (!properties.isEmpty()) {
    QJsonParseError error;
    current.properties = QJsonDocument::fromJson(properties.toUtf8(), &error).object();
    if (error.error != QJsonParseError::NoError)
      findings.push_back({Finding::Severity::Warning, file.path(), 5,
                          tr("Case properties are no JSON object: %1").arg(error.errorString())});
  }
  if (current.workDir != current.name) {
    findings.push_back(mismatch(Finding::Severity::Warning, file.path(),
                                tr("Directory of geometry\n%1\nand config value for it\n%2\ndid not "
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
  if (gas.readFromFile(directory, findings))
    readUnifiedConfiguration(directory, findings);
  else
    readTextConfiguration(directory + QLatin1Char('/') + scenario.configFile, gas, findings);
  // The opened file is the one to read, whatever the configuration calls it.
  scenario.scenFile = opened.scenFile;
  scenario.baseName = opened.baseName;
  scenario.configFile = opened.configFile;
  scenario.origin.insert(QStringLiteral("scenFile"), m_chosen);
  if (skipWorkDirCheck)
    scenario.workDir = actualName;
  else
    checkScenarioDirectory(actualName, findings);
}

Findings NivraWorkspace::takeConfiguration(const QJsonObject &object, NivraGasParams &gas, const QString &file) {
  if (currentScenario() == nullptr)
    return {};
  NivraScenario &scenario = m_cases.last().scenarios.last();
  const NivraScenario before = scenario;
  gas.fromJson(object, file);
  Findings findings = scenario.fromJson(object, file);
  for (const char *key : {"workDir", "scenFile"})
    scenario.origin.insert(QLatin1String(key), before.origin.value(QLatin1String(key)));
  scenario.workDir = before.workDir;
  scenario.scenFile = before.scenFile;
  return findings;
}

void NivraWorkspace::readUnifiedConfiguration(const QString &directory, Findings &findings) {
  QString reason;
  const QString path = directory + QStringLiteral("/scenconfig.jsn");
  const std::optional<QJsonObject> object = readJsonObject(path, &reason);
  if (object)
    append(findings, m_cases.last().scenarios.last().fromJson(*object, path));
  else
    findings.push_back({Finding::Severity::Warning, {}, 0, tr("readUnifiedScenConfig: cannot open file %1").arg(reason)});
}

void NivraWorkspace::readTextConfiguration(const QString &path, NivraGasParams &gas, Findings &findings) {
  NivraScenario &scenario = m_cases.last().scenarios.last();
  findings.push_back(debugLine(QStringLiteral("Reading scenario config file: ") + path));
  TextConfiguration file(path);
  if (!file.open(tr("Scenario config file does not exist: %1"), findings)) {
    findings.push_back(debugLine(QStringLiteral("Scenario workDir is now = ") + scenario.workDir));
    return;
  }
  const QString first = file.nextLine();
  QStringList fields;
  if (first.contains(QStringLiteral("NivraVersion_used"))) {
    fields = first.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  } else {
    fields.append(first);
    while (!file.atEnd() && fields.size() < ScenarioFields::Count)
      fields.append(file.nextLine());
  }
  ScenarioFields::apply(fields, path, scenario, gas);
}

void NivraWorkspace::checkScenarioDirectory(const QString &actualName, Findings &findings) {
  NivraScenario &scenario = m_cases.last().scenarios.last();
  if (scenario.workDir == actualName)
    return;
  findings.push_back(mismatch(Finding::Severity::Information, scenarioDirectory(),
                              tr("Directory of scenario and config value for it did not match!\nCorrected! Perform "
                                 "a save yourself!")));
  scenario.workDir = actualName;
}
