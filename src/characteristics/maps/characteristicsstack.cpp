#include "machinepage.h"
#include "machinetext.h"
#include "scenariocloud.h"

#include <base/fileaccess.h>
#include <base/settings.h>
#include <base/wholefile.h>
#include <characteristics/characteristicsstack.h>
#include <model/names.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QTabWidget>

namespace {

bool isKept() {
  return Settings::KeepCharacteristicsList.value();
}

/// Among the user's own settings, not in the case: nothing is written into a workspace unasked.
QString listOf(const QString &caseFolder) {
  const QByteArray name = QFileInfo(caseFolder).canonicalFilePath().toUtf8();
  const QByteArray hash = QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex();
  return GeneralSettings::userDirectory() + QStringLiteral("/characteristics/%1.txt").arg(QString::fromLatin1(hash));
}

} // namespace

CharacteristicsStack::CharacteristicsStack(const NetData &net, Told told, QWidget *parent)
    : QDockWidget(tr("Characteristics"), parent)
    , m_net(net)
    , m_told(std::move(told))
    , m_machines(net)
    , m_tabs(new QTabWidget) {
  m_tabs->setTabsClosable(true);
  m_tabs->setMovable(true);
  m_tabs->setDocumentMode(true);
  setWidget(m_tabs);
  connect(m_tabs, &QTabWidget::tabCloseRequested, this, [this](int index) {
    delete m_tabs->widget(index);
    keep();
    showHint();
  });
  showHint();
}

/// An empty panel says how it is filled.
void CharacteristicsStack::showHint() {
  const bool isEmpty = opened().isEmpty();
  if (isEmpty && m_tabs->count() == 0) {
    auto *hint =
        new QLabel(tr("Open the characteristics of a compressor or drive\nby the right-click menu of the drawing."));
    hint->setAlignment(Qt::AlignCenter);
    m_tabs->addTab(hint, tr("none open"));
    m_tabs->setTabsClosable(false);
  } else if (!isEmpty && qobject_cast<QLabel *>(m_tabs->widget(0)) != nullptr) {
    delete m_tabs->widget(0);
    m_tabs->setTabsClosable(true);
  }
}

QStringList CharacteristicsStack::opened() const {
  QStringList names;
  for (int i = 0; i < m_tabs->count(); ++i) {
    if (!m_tabs->widget(i)->objectName().isEmpty())
      names.append(m_tabs->widget(i)->objectName());
  }
  return names;
}

void CharacteristicsStack::setMachines(MachineData machines) {
  m_machines.set(std::move(machines));
  std::vector<std::pair<QString, int>> before; // with the view that was shown
  for (const MachinePage *page : pages())
    before.emplace_back(page->objectName(), page->viewNumber()); // NOLINT(performance-inefficient-vector-operation)
  while (m_tabs->count() > 0)
    delete m_tabs->widget(0);
  for (const auto &[name, view] : before) {
    if (MachinePage *page = makePage(name)) {
      m_tabs->addTab(page, name);
      page->showView(view);
    }
  }
  showHint();
}

std::vector<MachinePage *> CharacteristicsStack::pages() const {
  std::vector<MachinePage *> pages;
  for (int i = 0; i < m_tabs->count(); ++i) {
    if (auto *page = qobject_cast<MachinePage *>(m_tabs->widget(i)))
      pages.push_back(page); // NOLINT(performance-inefficient-vector-operation): not all of them are
  }
  return pages;
}

void CharacteristicsStack::setScenarios(ScenarioMachines scenarios, const QString &caseFolder) {
  m_scenarios = std::move(scenarios);
  if (caseFolder != m_caseOfScenarios) {
    cancelReading();
    m_clouds.clear();
  }
  m_caseOfScenarios = caseFolder;
}

void CharacteristicsStack::cancelReading() {
  for (const auto &entry : m_clouds)
    entry.second->cancel();
}

std::shared_ptr<ScenarioCloud> CharacteristicsStack::cloudOf(const element &compressor) {
  std::shared_ptr<ScenarioCloud> &cloud = m_clouds[compressor.value(Names::all().name)];
  if (cloud == nullptr)
    cloud = std::make_shared<ScenarioCloud>(m_scenarios, m_net, compressor, m_machines.data().source);
  return cloud;
}

void CharacteristicsStack::refresh() {
  m_machines.forget();
  for (MachinePage *page : pages())
    page->refresh();
}

void CharacteristicsStack::useFunctions(FunctionSource source) {
  if (m_machines.data().source == source)
    return;
  m_machines.use(source);
  cancelReading();
  m_clouds.clear(); // they are of the other functions
  for (MachinePage *page : pages())
    page->showAnew();
  emit functionsChosen(source);
}

void CharacteristicsStack::setCase(const QString &folder) {
  m_path = folder.isEmpty() ? QString() : listOf(folder);
  if (!isKept() || m_path.isEmpty() || !QFile::exists(m_path))
    return;
  QString reason;
  const auto text = FileAccess::readWhole(m_path, FileAccess::Source::Trusted, FileAccess::LargestConfiguration, &reason);
  if (!text) {
    warn(reason);
    return;
  }
  for (const QByteArray &line : text->split('\n')) {
    const QString name = QString::fromUtf8(line).trimmed();
    MachinePage *page = name.isEmpty() || opened().contains(name) ? nullptr : makePage(name);
    if (page != nullptr)
      m_tabs->addTab(page, name);
  }
  showHint();
}

void CharacteristicsStack::keep() const {
  if (m_path.isEmpty() || !isKept())
    return;
  const QByteArray text = opened().join(QLatin1Char('\n')).toUtf8();
  QString reason;
  if (text.isEmpty() && QFile::exists(m_path)) {
    QFile::remove(m_path);
  } else if (!text.isEmpty()) {
    QDir().mkpath(QFileInfo(m_path).path());
    if (!WholeFile::write(m_path, FileAccess::Source::Trusted, text, &reason))
      warn(tr("The list of open characteristics cannot be kept: %1").arg(reason));
  }
}

bool CharacteristicsStack::open(const QString &elementName) {
  const int tab = opened().indexOf(elementName);
  QWidget *page = tab >= 0 ? m_tabs->widget(tab) : nullptr;
  if (page == nullptr) {
    page = makePage(elementName);
    if (page == nullptr) {
      if (m_told)
        m_told({Finding::Severity::Information, QString(), 0, QString(),
                tr("There are no machine data for %1: neither its property \"machine\" nor its name is in the machine data "
                   "of the scenario.")
                    .arg(elementName)});
      return false;
    }
    m_tabs->addTab(page, elementName);
    showHint();
    keep();
  }
  m_tabs->setCurrentWidget(page);
  show();
  raise();
  return true;
}

QString CharacteristicsStack::summary(const QString &elementName) const {
  const element *e = m_net.element(elementName);
  if (e == nullptr)
    return QString();
  const NetworkMachines::Machine found = m_machines.machine(*e, m_machines.names(*e).first());
  return found.isThere() ? MachineText::of(found) : QString();
}

MachinePage *CharacteristicsStack::makePage(const QString &elementName) {
  const element *e = m_net.element(elementName);
  if (e == nullptr || !m_machines.machine(*e, m_machines.names(*e).first()).isThere())
    return nullptr;
  MachinePage::Clouds clouds;
  if (m_scenarios.names)
    clouds = [this](const element &compressor) {
      return cloudOf(compressor);
    };
  auto *page = new MachinePage(m_net, m_machines, elementName, clouds);
  connect(page, &MachinePage::scenarioWanted, this, &CharacteristicsStack::scenarioWanted);
  page->setPageFacts(m_facts);
  connect(page, &MachinePage::functionsChosen, this, &CharacteristicsStack::useFunctions);
  connect(page, &MachinePage::saveFailed, this, [this](const QString &reason) {
    if (m_told)
      m_told({Finding::Severity::Warning, QString(), 0, QString(), reason});
  });
  return page;
}
