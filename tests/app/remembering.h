#pragma once

#include "nivraviewer.h"
#include "recentfiles.h"
#include "sessionstore.h"
#include "thumbnails.h"

#include <QDir>
#include <QFile>

/// What the program keeps between its runs, for tests.
namespace Remembering {

/// As on the first day.
inline void forgetAll() {
  QFile::remove(RecentFiles::file());
  QDir(SessionStore::folder()).removeRecursively();
  QDir(Thumbnails::folder()).removeRecursively();
}

/// Opens a file in a window that keeps everything.
inline void open(NivraViewer &viewer, const QString &path) {
  constexpr int PauseMs = 20;
  viewer.findChild<WorkspaceMemory *>()->setPause(PauseMs);
  viewer.remember(WorkspaceMemory::Keeps::Sessions);
  viewer.open(path);
}

} // namespace Remembering
