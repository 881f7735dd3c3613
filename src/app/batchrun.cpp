#include "batchrun.h"

#include "batchset.h"
#include "language/language.h"
#include "networkcheck.h"
#include "networkinfo.h"
#include "settings/numberlocale.h"

#include <base/fileaccess.h>
#include <base/wholefile.h>
#include <drawing/drawfunctions.h>
#include <drawing/labeltable.h>
#include <tools/elementquery.h>
#include <view/netplot.h>
#include <view/plotexport.h>

#include <QBuffer>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <scenarioset/scenarioset.h>
#include <scenarioset/settable.h>
#include <utility>

namespace {

/// What the user names on the command line may lie outside of the workspace.
class OutsideOfWorkspace {
public:
  explicit OutsideOfWorkspace(const NivraWorkspace &workspace)
      : m_root(workspace.root()) {
    FileAccess::confineTo(QString());
  }
  ~OutsideOfWorkspace() { FileAccess::confineTo(m_root); }
  OutsideOfWorkspace(const OutsideOfWorkspace &) = delete;
  OutsideOfWorkspace &operator=(const OutsideOfWorkspace &) = delete;

private:
  QString m_root;
};

/// Names come from strangers: what would end a line, or command a terminal, is shown as what it is not.
QByteArray lineOf(QString text) {
  for (QChar &character : text) {
    if (character.category() == QChar::Other_Control)
      character = QChar::ReplacementCharacter;
  }
  return text.toUtf8() + '\n';
}

QByteArray csv(const VectorRows::Exported &table) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  VectorRows::write(buffer, table);
  return buffer.data();
}

/// Empty when every pattern can be read: one that cannot would be taken for a search that finds nothing.
QString faultOf(const SearchParams &params) {
  QStringList patterns{params.type, params.prop, params.searchString};
  if (params.regex)
    patterns.append(params.name);
  for (const QString &pattern : std::as_const(patterns)) {
    const QRegularExpression expression(pattern);
    if (!expression.isValid())
      return QStringLiteral("The pattern \"%1\" cannot be read: %2").arg(pattern, expression.errorString());
  }
  return QString();
}

} // namespace

BatchRun::BatchRun(QString language)
    : m_language(std::move(language))
    , m_control(m_net, QString(), logFinding)
    , m_loader(m_net) {}

BatchRun::Outcome BatchRun::perform(const BatchTask &task) {
  m_outcome = Outcome();
  if (!open(task.file, task.info.isWanted || !task.pictures.empty()))
    return m_outcome;
  if (!task.set.properties.isEmpty() && !gatherSet(task))
    return m_outcome;
  writePictures(task);
  check(task.check);
  if (task.info.isWanted)
    tellInfo(task.info);
  answerLists(task); // last: a search marks elements
  return m_outcome;
}

bool BatchRun::open(const QString &file, bool isDrawn) {
  FileAccess::confineTo(QString());
  GeneralSettings::instance().load(QString(), logFinding);
  if (!m_loader.resolve(file)) {
    m_outcome.failures.append(m_loader.error());
    return false;
  }
  GeneralSettings::instance().load(m_loader.workspace().root(), logFinding);
  NumberLocale::apply();
  m_loader.readConfiguration();
  m_times.end(QStringLiteral("configuration"));
  if (!m_loader.readNetwork({})) {
    m_outcome.failures.append(m_loader.error());
    return false;
  }
  for (const auto &[stage, time] : m_loader.seconds())
    m_times.add(stage, time);
  if (!isDrawn)
    return true;
  const Language spoken(m_language);
  constexpr int ShownWidth = 1200;
  constexpr int ShownHeight = 900;
  m_control.plot()->resize(ShownWidth, ShownHeight);
  m_control.setSubnetIcons(m_loader.templateFolder());
  m_control.setCaption(m_loader.workspace().caption());
  showCase();
  m_control.plot()->grab();
  m_times.end(QStringLiteral("draw"));
  return true;
}

/// From then on pictures, searches and tables know the figures.
bool BatchRun::gatherSet(const BatchTask &task) {
  QStringList warnings;
  QString reason;
  const auto set = BatchSet::gather(task.set, m_loader.workspace(), m_net, &warnings, &reason);
  m_outcome.failures += warnings;
  m_times.end(QStringLiteral("set"));
  if (set != nullptr && task.wantsSetTable()) {
    const SetTable table = SetTable::of(*set, *m_net.metaData());
    if (deliver(task.setTable, csv({table.headers, table.rows, table.valueColumns}), &reason))
      ++m_outcome.lists;
  } else if (set != nullptr && !task.pictures.empty()) {
    showCase();
  }
  if (!reason.isEmpty())
    m_outcome.failures.append(reason);
  return set != nullptr;
}

void BatchRun::showCase() {
  m_control.showNetData(m_loader.workspace().filePath(QStringLiteral("plotsettings.ini")));
}

void BatchRun::writePictures(const BatchTask &task) {
  const Language spoken(m_language);
  for (std::size_t i = 0; i < task.pictures.size(); ++i) {
    if (i > 0)
      showCase(); // nothing of the picture before
    QString reason;
    if (writePicture(task.pictures[i], &reason))
      ++m_outcome.pictures;
    else
      m_outcome.failures.append(reason);
  }
  if (!task.pictures.empty())
    m_times.end(QStringLiteral("export"));
}

bool BatchRun::writePicture(const BatchTask::Picture &picture, QString *reason) {
  if (!applyStyles(picture.styles, reason) || !applyFunctions(picture, reason))
    return false;
  if (!picture.extent.isNull())
    m_control.plot()->showArea(picture.extent);
  if (!picture.labels.isEmpty())
    m_control.relabelNow();
  return exportPlot(*m_control.plot(), picture.path, PictureSize(picture.width, picture.scale), reason);
}

bool BatchRun::applyStyles(const QStringList &files, QString *reason) {
  const OutsideOfWorkspace outside(m_loader.workspace());
  NetPlot &plot = *m_control.plot();
  for (const QString &file : files) {
    if (!BatchTask::Picture::isStyleFile(file)) {
      if (!m_control.styles().use(file, reason))
        return false;
      continue;
    }
    const auto text = FileAccess::readWhole(file, FileAccess::Source::Trusted, FileAccess::LargestConfiguration, reason);
    if (!text)
      return false;
    if (file.endsWith(QLatin1String(".ini"), Qt::CaseInsensitive)) {
      m_control.styles().layOver(*text, file);
      continue;
    }
    LabelTable labels;
    const LabelTableFile::Reading reading = LabelTableFile::read(file, labels, FileAccess::Source::Trusted);
    std::for_each(reading.findings.begin(), reading.findings.end(), logFinding);
    plot.update().setLabelTable(labels);
  }
  if (!files.isEmpty())
    m_control.redraw();
  return true;
}

/// Puts the functions of the picture in place of those of the settings, with open bounds.
bool BatchRun::applyFunctions(const BatchTask::Picture &picture, QString *reason) {
  NetPlot &plot = *m_control.plot();
  PlotSettings settings = plot.settings();
  for (const Aspect aspect : AllAspects) {
    const QString &chosen = picture.functions[aspect];
    if (chosen.isEmpty())
      continue;
    if (chosen != PlotSettings::fixedSize() && !DrawFunction::find(chosen, m_net).isKnown()) {
      *reason = tr("No element has the property \"%1\".").arg(chosen);
      return false;
    }
    PlotSettings::Function &function = settings.functions[aspect];
    function.name = chosen;
    function.minimum = PlotSettings::OpenMinimum;
    function.maximum = PlotSettings::OpenMaximum;
  }
  if (!picture.labels.isEmpty())
    settings.label_mode = picture.labels;
  if (settings == plot.settings())
    return true;
  plot.setSettings(settings);
  m_control.redraw();
  return true;
}

void BatchRun::answerLists(const BatchTask &task) {
  for (const BatchTask::List &list : task.lists) {
    QString reason;
    if (answerList(list, &reason))
      ++m_outcome.lists;
    else
      m_outcome.failures.append(reason);
  }
}

bool BatchRun::answerList(const BatchTask::List &list, QString *reason) {
  ElementQuery query(m_net);
  ElementQuery::Found found;
  if (list.search) {
    *reason = faultOf(list.search->params);
    if (!reason->isEmpty())
      return false;
    found = query.search(list.search->params);
    *reason = found.error;
    if (!reason->isEmpty())
      return false;
  }
  if (!list.properties.isEmpty()) {
    const ElementQuery::Request request{list.properties, list.type, found.names, list.search.has_value()};
    const auto table = query.properties(request, reason);
    return table && deliver(list.path, csv(*table), reason);
  }
  if (list.search && list.search->listsProperties)
    return deliver(list.path, csv(found.table), reason);
  QByteArray names;
  for (const QString &name : found.names)
    names += lineOf(name);
  return deliver(list.path, names, reason);
}

/// A line a finding, with its stage or rule and its element. What is said for information is listed but counts for nothing.
void BatchRun::check(const BatchTask::Output &output) {
  m_outcome.isChecked = output.isWanted;
  if (!output.isWanted)
    return;
  QByteArray lines;
  FindingList list;
  std::vector<FindingList::Group> groups = m_loader.noticed();
  for (FindingList::Group &rule : NetworkCheck::check(m_net))
    groups.push_back(std::move(rule));
  list.set(std::move(groups));
  for (const FindingList::Group &group : list.groups()) {
    for (const Finding &finding : group.findings) {
      if (finding.severity == Finding::Severity::Debug)
        continue;
      const QString element = finding.element.isEmpty() ? QString() : finding.element + QStringLiteral(": ");
      lines += lineOf(group.name + QStringLiteral(": ") + element + finding.logText());
      if (finding.severity != Finding::Severity::Information)
        ++(group.name == NetworkLoader::boundsStage() ? m_outcome.violations : m_outcome.findings);
    }
  }
  QString reason;
  if (output.path.isEmpty())
    m_outcome.checked = lines;
  else if (!deliver(output.path, lines, &reason))
    m_outcome.failures.append(reason);
}

void BatchRun::tellInfo(const BatchTask::Output &output) {
  QString reason;
  if (!deliver(output.path, QJsonDocument(NetworkInfo::of(m_net, m_loader, m_times, m_recorder)).toJson(), &reason))
    m_outcome.failures.append(reason);
}

bool BatchRun::deliver(const QString &path, const QByteArray &content, QString *reason) {
  if (!path.isEmpty())
    return WholeFile::write(path, FileAccess::Source::Trusted, content, reason);
  m_outcome.answers += content;
  return true;
}
