#include "workspacewatcher.h"

#include <QEvent>
#include <QFileInfo>

WorkspaceWatcher::WorkspaceWatcher(QObject &window)
    : QObject(&window) {
  window.installEventFilter(this);
  constexpr int BetweenLooksMs = 400;
  m_rest.setSingleShot(true);
  m_rest.setInterval(BetweenLooksMs);
  connect(&m_rest, &QTimer::timeout, this, &WorkspaceWatcher::compare);
}

bool WorkspaceWatcher::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::WindowActivate)
    look();
  return QObject::eventFilter(watched, event);
}

void WorkspaceWatcher::watch(const ReadFiles::Stamps &files) {
  m_known = m_seen = m_told = files;
  delete m_system;
  m_system = nullptr;
  m_rest.stop();
  if (!files.empty())
    m_rest.start(); // the first look begins to listen, when the network stands
}

ReadFiles::Stamps WorkspaceWatcher::present() const {
  ReadFiles::Stamps stamps;
  for (const auto &[path, known] : m_known)
    stamps.emplace(path, FileStamp::of(path));
  return stamps;
}

/// Also to files that took the place of others, which the system forgets. Folders tell of those that come.
void WorkspaceWatcher::listen() {
  if (m_system == nullptr) {
    m_system = new QFileSystemWatcher(this);
    connect(m_system, &QFileSystemWatcher::fileChanged, this, &WorkspaceWatcher::look);
    connect(m_system, &QFileSystemWatcher::directoryChanged, this, &WorkspaceWatcher::look);
  }
  QStringList paths;
  const auto add = [&paths](const QString &path, const QStringList &listened) {
    if (!listened.contains(path) && !paths.contains(path) && QFileInfo::exists(path))
      paths.append(path);
  };
  const QStringList files = m_system->files();
  const QStringList folders = m_system->directories();
  for (const auto &[path, known] : m_known) {
    add(path, files);
    add(QFileInfo(path).path(), folders);
  }
  if (!paths.isEmpty())
    m_system->addPaths(paths);
}

void WorkspaceWatcher::look() {
  if (!m_known.empty() && !m_rest.isActive())
    m_rest.start();
}

void WorkspaceWatcher::accept() {
  m_known = m_seen = m_told = present();
}

void WorkspaceWatcher::accept(const QStringList &paths) {
  for (const QString &path : paths) {
    const auto known = m_known.find(path);
    if (known != m_known.end())
      known->second = m_seen[path] = FileStamp::of(path);
  }
  look(); // what was told of them is no longer so
}

void WorkspaceWatcher::compare() {
  listen();
  const ReadFiles::Stamps now = present();
  if (now != m_seen) {
    m_seen = now;
    m_rest.start();
    return;
  }
  if (now == m_told)
    return;
  m_told = now;
  QStringList changedFiles;
  QStringList gone;
  for (const auto &[path, stamp] : now) {
    if (stamp != m_known.at(path))
      (stamp.isOfAFile() ? changedFiles : gone).append(path);
  }
  emit changed(changedFiles, gone);
}
