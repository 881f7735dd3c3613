#include "loadprogress.h"

#include <QCoreApplication>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolButton>

LoadProgress::LoadProgress(QStatusBar *bar)
    : m_bar(bar) {
  m_sinceStart.start();
  m_sinceUpdate.start();
}

LoadProgress::~LoadProgress() {
  if (m_progress == nullptr)
    return;
  m_bar->removeWidget(m_progress);
  m_bar->removeWidget(m_button);
  delete m_progress;
  delete m_button;
}

bool LoadProgress::update(double fraction) {
  constexpr int BetweenUpdatesMs = 40;
  if (m_sinceStart.elapsed() < s_patienceMs || m_sinceUpdate.elapsed() < BetweenUpdatesMs)
    return !m_cancelled;
  if (m_progress == nullptr)
    show();
  m_progress->setValue(static_cast<int>(fraction * m_progress->maximum()));
  QCoreApplication::processEvents();
  m_sinceUpdate.restart();
  return !m_cancelled;
}

void LoadProgress::tell(const QString &text) {
  m_text = text;
  if (m_progress != nullptr)
    m_bar->showMessage(text);
}

void LoadProgress::show() {
  constexpr int Steps = 1000;
  constexpr int Width = 240;
  m_bar->showMessage(m_text.isEmpty() ? tr("Reading the network …") : m_text);
  m_progress = new QProgressBar;
  m_progress->setRange(0, Steps);
  m_progress->setMaximumWidth(Width);
  m_progress->setFormat(QStringLiteral("%p %"));
  m_button = new QToolButton;
  m_button->setText(tr("Cancel"));
  m_button->setToolTip(tr("Stop reading (Esc)"));
  m_button->setShortcut(Qt::Key_Escape);
  connect(m_button, &QToolButton::clicked, this, &LoadProgress::cancel);
  m_bar->addPermanentWidget(m_progress);
  m_bar->addPermanentWidget(m_button);
}
