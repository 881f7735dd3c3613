#include "networkcheck.h"

#include "svgicon.h"

#include <base/index.h>
#include <model/netdata.h>

#include <QAction>
#include <QApplication>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolButton>

namespace {

NetworkCheck::Groups groupsOf(std::vector<NetworkRules::Told> told) {
  NetworkCheck::Groups groups;
  groups.reserve(told.size());
  for (NetworkRules::Told &rule : told)
    groups.push_back({rule.rule, std::move(rule.findings), rule.title, std::move(rule.elements)});
  return groups;
}

} // namespace

NetworkCheck::NetworkCheck(const NetData &net, QStatusBar &bar, QObject *parent)
    : QObject(parent)
    , m_net(net)
    , m_bar(bar)
    , m_action(new QAction(tr("Check the network"), this)) {
  constexpr int PollingMs = 30;
  m_action->setShortcut(QKeySequence(Qt::SHIFT + Qt::Key_F8));
  m_action->setToolTip(tr("Look for nominations that do not balance or break bounds, nodes that are cut off, pipes that "
                          "are there twice (Shift+F8)"));
  m_action->setStatusTip(m_action->toolTip());
  m_action->setIcon(svgIcon(QStringLiteral("check")));
  m_action->setEnabled(false);
  m_polling.setInterval(PollingMs);
  connect(m_action, &QAction::triggered, this, &NetworkCheck::start);
  connect(&m_polling, &QTimer::timeout, this, &NetworkCheck::poll);
}

NetworkCheck::~NetworkCheck() {
  stop();
}

NetworkCheck::Groups NetworkCheck::check(const NetData &net) {
  return groupsOf(NetworkRules::check(net));
}

void NetworkCheck::start() {
  look(true);
}

void NetworkCheck::again() {
  if (m_hasLooked)
    look(false);
}

/// Values are taken from the network here, since others may change them as soon as the window works again.
void NetworkCheck::look(bool isAsked) {
  if (m_net.isEmpty())
    return;
  const bool wasAsked = m_isAsked && m_running.valid();
  stop();
  m_isAsked = isAsked || wasAsked;
  m_hasLooked = true;
  m_bar.showMessage(tr("Checking the network …"));
  QApplication::setOverrideCursor(Qt::WaitCursor);
  m_facts = std::make_unique<NetworkFacts>(m_net);
  QApplication::restoreOverrideCursor();
  m_rules = std::make_unique<NetworkRules>(m_net, *m_facts, NetworkRules::settings());
  m_isCancelled = false;
  m_fraction = 0.0;
  m_sinceStart.start();
  m_running = std::async(std::launch::async, [this] {
    return m_rules->find([this](double fraction) {
      m_fraction = fraction;
      return !m_isCancelled;
    });
  });
  m_polling.start();
}

void NetworkCheck::stop() {
  m_isCancelled = true;
  if (m_running.valid())
    m_running.get();
  m_polling.stop();
  hideProgress();
  m_rules.reset();
  m_facts.reset();
}

void NetworkCheck::forget() {
  stop();
  m_hasLooked = false;
}

void NetworkCheck::poll() {
  if (m_running.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
    finish();
  else
    showProgress();
}

void NetworkCheck::finish() {
  m_polling.stop();
  hideProgress();
  const bool isDone = m_running.get();
  Groups groups = isDone ? groupsOf(m_rules->tell()) : Groups();
  m_rules.reset();
  m_facts.reset();
  if (!isDone) {
    m_bar.showMessage(tr("The check was cancelled."));
    return;
  }
  int count = 0;
  for (const FindingList::Group &group : groups)
    count += toQt(group.findings.size());
  m_bar.showMessage(count == 0   ? tr("The check found nothing wrong.")
                    : count == 1 ? tr("The check found 1 thing to look at.")
                                 : tr("The check found %1 things to look at.").arg(count));
  emit found(groups);
  if (m_isAsked)
    emit told();
}

/// Once it takes longer than somebody likes to wait.
void NetworkCheck::showProgress() {
  constexpr int PatienceMs = 500;
  constexpr int Steps = 1000;
  constexpr int Width = 240;
  if (m_progress == nullptr && m_sinceStart.elapsed() > PatienceMs) {
    m_progress = new QProgressBar;
    m_progress->setRange(0, Steps);
    m_progress->setMaximumWidth(Width);
    m_progress->setAccessibleName(tr("Progress of the check"));
    m_cancel = new QToolButton;
    m_cancel->setText(tr("Cancel"));
    m_cancel->setToolTip(tr("Stop checking"));
    connect(m_cancel, &QToolButton::clicked, this, [this] { m_isCancelled = true; });
    m_bar.addPermanentWidget(m_progress);
    m_bar.addPermanentWidget(m_cancel);
  }
  if (m_progress != nullptr)
    m_progress->setValue(static_cast<int>(m_fraction * Steps));
}

void NetworkCheck::hideProgress() {
  for (QWidget *widget : {static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_cancel)}) {
    if (widget == nullptr)
      continue;
    m_bar.removeWidget(widget);
    widget->deleteLater();
  }
  m_progress = nullptr;
  m_cancel = nullptr;
}
