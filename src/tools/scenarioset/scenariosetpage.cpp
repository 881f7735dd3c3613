#include "scenarioset/scenariosetpage.h"

#include "scenarioset/seriespanel.h"
#include "scenarioset/setchoice.h"

#include <model/netdata.h>

#include <QHBoxLayout>
#include <QSplitter>

#include <algorithm>

ScenarioSetPage::ScenarioSetPage(NetData &net, QWidget *parent)
    : QWidget(parent)
    , m_net(net)
    , m_job(new SetJob(this))
    , m_choice(new SetChoice)
    , m_series(new SeriesPanel) {
  auto *parts = new QSplitter(Qt::Horizontal);
  parts->addWidget(m_choice);
  parts->addWidget(m_series);
  parts->setStretchFactor(1, 1); // further room is for the chart
  constexpr int ChoiceWidth = 420;
  constexpr int SeriesWidth = 780;
  parts->setSizes({ChoiceWidth, SeriesWidth});
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(parts);
  connect(m_choice, &SetChoice::runWanted, this, &ScenarioSetPage::run);
  connect(m_choice, &SetChoice::stopWanted, this, &ScenarioSetPage::stop);
  connect(m_job, &SetJob::progressed, this, [this](double fraction) {
    if (m_coming != nullptr)
      m_choice->showProgress(fraction);
    else
      m_series->showHint(tr("Reading the series of %1: %2 %").arg(m_element).arg(static_cast<int>(fraction * 100.0)));
  });
  connect(m_job, &SetJob::ended, this, &ScenarioSetPage::end);
  connect(m_series, &SeriesPanel::propertyChosen, this, &ScenarioSetPage::showSeries);
  connect(m_series, &SeriesPanel::scenarioWanted, this, &ScenarioSetPage::open);
}

ScenarioSetPage::~ScenarioSetPage() {
  m_job->stop(); // before what it works with goes
}

void ScenarioSetPage::forget() {
  stop();
  m_properties.forget();
}

void ScenarioSetPage::refresh(const NivraWorkspace &workspace) {
  stop();
  const bool isSame = workspace.geometryPath() == m_workspace.geometryPath();
  m_workspace = workspace;
  if (!isSame) {
    m_set.reset();
    m_choice->say(QString());
  }
  const std::vector<SetScenario> scenarios = SetScenarios::of(workspace);
  m_choice->offer(scenarios, SetScenarios::propertiesIn(scenarios), *m_net.metaData());
  if (m_set != nullptr)
    putProperties();
  showElement(m_element);
}

void ScenarioSetPage::run() {
  m_job->stop();
  m_coming = std::make_shared<ScenarioSet>(m_net, ScenarioSet::Request{m_workspace.geometryPath(), m_workspace.isJson(),
                                                                       m_choice->scenarios(), m_choice->properties()});
  m_choice->showRunning(true);
  m_choice->say(QString());
  m_job->start([set = m_coming](const Progress &progress) { return set->run(progress); });
}

void ScenarioSetPage::stop() {
  m_job->stop();
  if (m_coming != nullptr)
    m_choice->say(tr("Computing was cancelled."));
  m_coming.reset();
  m_choice->showRunning(false);
}

void ScenarioSetPage::end(bool isDone) {
  if (m_coming == nullptr) { // it was a series
    const Index column = m_set == nullptr ? NoIndex : m_set->column(m_element, m_series->property());
    if (isDone && column != NoIndex)
      showNumbers(column, m_read);
    return;
  }
  m_choice->showRunning(false);
  const std::shared_ptr<ScenarioSet> set = std::exchange(m_coming, nullptr);
  if (!isDone || set->columns().empty()) {
    m_choice->say(set->unread().empty() ? tr("The scenarios give no element any of these properties.")
                                        : tr("No scenario can be read: %1").arg(set->unread().front().reason));
    return;
  }
  m_set = set;
  putProperties();
  showElement(m_element);
}

void ScenarioSetPage::putProperties() {
  tell(m_properties.put(*m_set, m_choice->figures(), m_net));
  const std::size_t read = m_set->request().scenarios.size() - m_set->unread().size();
  QStringList said{tr("%1 scenarios; the figures are properties such as %2.")
                       .arg(read)
                       .arg(SetStatistic::propertyName(m_set->request().properties.value(0), SetStatistic::Kind::Maximum))};
  if (!m_set->isExact())
    said.append(tr("Quantiles are estimated."));
  if (!m_set->unread().empty())
    said.append(tr("%1 could not be read: %2").arg(m_set->unread().size()).arg(m_set->unread().front().reason));
  if (!m_properties.leftOut().isEmpty())
    said.append(
        tr("The network has properties of its own called %1.").arg(m_properties.leftOut().join(QStringLiteral(", "))));
  m_choice->say(said.join(QLatin1Char(' ')));
}

void ScenarioSetPage::tell(const std::vector<ElementChange> &changes) {
  for (const ElementChange &change : changes)
    emit elementsChanged(change);
}

void ScenarioSetPage::showElement(const QString &name) {
  m_element = name;
  if (m_set == nullptr) {
    m_series->showHint(
        m_workspace.isValid()
            ? tr("Choose scenarios and properties and press \"Compute\": minimum, maximum, mean and quantiles "
                 "become properties of the elements, and the values of the current element stand here.")
            : tr("Nothing is open. Open a case with several scenarios."));
    return;
  }
  QStringList properties;
  for (const QString &property : m_set->request().properties) {
    if (m_set->column(name, property) != NoIndex)
      properties.append(property);
  }
  m_series->offer(name, properties);
  showSeries();
}

void ScenarioSetPage::showSeries() {
  if (m_set == nullptr || m_coming != nullptr)
    return;
  m_job->stop();
  const Index column = m_set->column(m_element, m_series->property());
  if (column == NoIndex) {
    m_series->showHint(m_element.isEmpty() ? tr("Click an element to see its values over the scenarios.")
                                           : tr("The set has no values of %1.").arg(m_element));
    return;
  }
  if (m_set->isExact())
    return showNumbers(column, m_set->series(column));
  m_series->showHint(tr("Reading the series of %1 …").arg(m_element));
  m_job->start([this, set = m_set, column](const Progress &progress) {
    m_read = set->readSeries(column, progress);
    return !m_read.empty();
  });
}

void ScenarioSetPage::showNumbers(Index column, const std::vector<double> &numbers) {
  const QString present = m_workspace.hasScenario() ? m_workspace.currentScenario()->workDir : QString();
  m_series->show(*m_set, column, numbers, *m_net.metaData(), present);
}

void ScenarioSetPage::open(const QString &scenario) {
  const auto &scenarios = m_set->request().scenarios;
  const auto found =
      std::find_if(scenarios.begin(), scenarios.end(), [&scenario](const SetScenario &one) { return one.name == scenario; });
  if (found != scenarios.end())
    emit scenarioWanted(found->file);
}
