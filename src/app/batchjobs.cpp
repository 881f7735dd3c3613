#include "batchjobs.h"

#include <io/scenariofiles.h>

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QRegularExpression>

#include <algorithm>
#include <new>

namespace {

bool isScenarioFile(const QString &path) {
  static const QRegularExpression scenario(QStringLiteral("\\.scen(\\.jso?n)?$"));
  return scenario.match(path).hasMatch();
}

/// Of a geometry file its own folder, of a scenario file the one above.
QString caseFolderOf(const QString &path) {
  const QString folder = QFileInfo(path).absolutePath();
  return isScenarioFile(path) ? QFileInfo(folder).absolutePath() : folder;
}

/// Names of the folders of a case that hold a scenario, as people count.
QStringList scenariosOf(const QString &caseFolder) {
  QStringList names;
  for (const QString &name : QDir(caseFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    if (!ScenarioFiles::in(caseFolder + QLatin1Char('/') + name, ScenarioFiles::Form::Any).isEmpty())
      names.append(name);
  }
  QCollator order(QLocale(QLocale::English, QLocale::UnitedStates));
  order.setNumericMode(true);
  std::sort(names.begin(), names.end(), order);
  return names;
}

/// Names of folders come from strangers: what would end a line, or command a terminal, is shown as what it is not.
QString shown(QString text) {
  for (QChar &character : text) {
    if (character.category() == QChar::Other_Control)
      character = QChar::ReplacementCharacter;
  }
  return text;
}

QStringList pictureSuffixes() {
  static const QStringList suffixes = [] {
    QStringList all{QStringLiteral("svg"), QStringLiteral("pdf"), QStringLiteral("ps")};
    for (const QByteArray &format : QImageWriter::supportedImageFormats())
      all.append(QString::fromLatin1(format));
    return all;
  }();
  return suffixes;
}

} // namespace

QString BatchJobs::Result::summary() const {
  QStringList parts;
  if (outcome.pictures > 0)
    parts.append(outcome.pictures == 1 ? tr("1 picture") : tr("%1 pictures").arg(outcome.pictures));
  if (outcome.lists > 0)
    parts.append(outcome.lists == 1 ? tr("1 list") : tr("%1 lists").arg(outcome.lists));
  if (outcome.isChecked) {
    parts.append(outcome.findings == 1 ? tr("1 finding") : tr("%1 findings").arg(outcome.findings));
    parts.append(outcome.violations == 1 ? tr("1 bound violated") : tr("%1 bounds violated").arg(outcome.violations));
  }
  return QStringLiteral("%1: %2").arg(name, parts.isEmpty() ? tr("done") : parts.join(QStringLiteral(", ")));
}

bool BatchJobs::read(const QString &path, const QString &output, QString *reason) {
  const auto file = JobsFile::read(path, reason);
  if (!file)
    return false;
  m_folder = QFileInfo(path).absolutePath();
  const bool isOpen = output.isEmpty() ? m_output.openBelow(m_folder, file->output, reason) : m_output.open(output, reason);
  if (!isOpen)
    return false;
  m_output.protect(path);
  for (const JobsFile::Job &job : file->jobs)
    addRuns(job);
  return true;
}

QString BatchJobs::beside(const QString &path) const {
  return QDir(m_folder).absoluteFilePath(path);
}

void BatchJobs::addRuns(const JobsFile::Job &job) {
  const QString file = beside(job.file);
  const QString folder = caseFolderOf(file);
  const auto fail = [&](const QString &why) {
    m_runs.push_back({job.name, {}, {}, {}, why});
  };
  if (!job.error.isEmpty())
    return fail(job.error);
  if (!QFileInfo(file).isFile())
    return fail(tr("there is no file %1").arg(file));
  m_output.protect(folder);
  for (const BatchTask::Picture &picture : job.task.pictures) {
    for (const QString &style : picture.styles) {
      if (BatchTask::Picture::isStyleFile(style))
        m_output.protect(beside(style));
    }
  }
  if (job.scenarios.isEmpty())
    return addRun(job, file);
  const QStringList scenarios = job.takesAllScenarios ? scenariosOf(folder) : job.scenarios;
  if (scenarios.isEmpty())
    fail(tr("%1 has no scenario").arg(folder));
  for (const QString &scenario : scenarios) {
    const QString found = ScenarioFiles::in(folder + QLatin1Char('/') + scenario, ScenarioFiles::Form::Any);
    if (found.isEmpty())
      fail(tr("%1 has no scenario \"%2\"").arg(folder, scenario));
    else
      addRun(job, found);
  }
}

void BatchJobs::addRun(const JobsFile::Job &job, const QString &file) {
  Run run;
  run.task = job.task;
  run.task.file = file;
  run.caseName = QFileInfo(caseFolderOf(file)).fileName();
  run.scenario = isScenarioFile(file) ? QFileInfo(QFileInfo(file).absolutePath()).fileName() : QString();
  const QString network = run.scenario.isEmpty() ? run.caseName : run.caseName + QLatin1Char('/') + run.scenario;
  run.name = QStringLiteral("%1, %2").arg(job.name, shown(network));
  m_runs.push_back(run);
}

/// Where everything goes; false with the reason, before any of it is written.
bool BatchJobs::nameOutputs(Run &run, QString *reason) {
  const auto name = [&](QString &path, const QStringList &suffixes) {
    if (path.isEmpty())
      return true;
    path.replace(QLatin1String("{case}"), run.caseName).replace(QLatin1String("{scenario}"), run.scenario);
    path = m_output.file(path, suffixes, reason);
    return !path.isEmpty();
  };
  for (BatchTask::Picture &picture : run.task.pictures) {
    for (QString &style : picture.styles)
      style = BatchTask::Picture::isStyleFile(style) ? beside(style) : style;
    if (!name(picture.path, pictureSuffixes()))
      return false;
  }
  const QStringList texts{QStringLiteral("csv"), QStringLiteral("txt")};
  for (BatchTask::List &list : run.task.lists) {
    if (!name(list.path, texts))
      return false;
  }
  return name(run.task.check.path, texts) && name(run.task.info.path, {QStringLiteral("json")});
}

BatchJobs::Result BatchJobs::doNext() {
  Run run = std::move(m_runs.front());
  m_runs.pop_front();
  Result result{run.name, {}};
  QString reason = run.error;
  if (!reason.isEmpty() || !nameOutputs(run, &reason)) {
    result.outcome.failures.append(reason);
    return result;
  }
  try {
    result.outcome = BatchRun(m_language).perform(run.task);
  } catch (const std::bad_alloc &) {
    result.outcome.failures = QStringList{tr("there is not enough memory for this network and picture")};
  }
  return result;
}
