#include "reloadoffer.h"

#include "reloadbar.h"
#include "workspacewatcher.h"

#include <QMainWindow>

ReloadOffer::ReloadOffer(QMainWindow &window)
    : QObject(&window)
    , m_window(window)
    , m_watcher(new WorkspaceWatcher(window)) {
  connect(m_watcher, &WorkspaceWatcher::changed, this, [this](const QStringList &changed, const QStringList &gone) {
    if (m_bar != nullptr || !changed.isEmpty() || !gone.isEmpty())
      bar().tell(changed, gone);
  });
}

ReloadBar &ReloadOffer::bar() {
  if (m_bar != nullptr)
    return *m_bar;
  m_bar = new ReloadBar(&m_window);
  m_window.addToolBarBreak();
  m_window.addToolBar(m_bar);
  connect(m_bar, &ReloadBar::reloadWanted, this, &ReloadOffer::reloadWanted);
  connect(m_bar, &ReloadBar::ignored, this, [this] {
    m_watcher->accept();
    hideBar();
    emit ignored();
  });
  return *m_bar;
}

void ReloadOffer::watch(const ReadFiles::Stamps &files) {
  m_watcher->watch(files);
  hideBar();
}

void ReloadOffer::accept(const QStringList &paths) {
  m_watcher->accept(paths);
}

void ReloadOffer::hideBar() {
  if (m_bar != nullptr)
    m_bar->tell({}, {});
}

void ReloadOffer::tellFault(const QString &reason) {
  bar().tellFault(tr("The files cannot be read again, what is shown stays: %1").arg(reason));
}
