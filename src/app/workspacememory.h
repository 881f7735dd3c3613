#pragma once

#include "recentfiles.h"

#include <QObject>
#include <QString>
#include <QTimer>

class LayerKeeper;
class NetVisControl;
class NivraWorkspace;
class QMainWindow;
class SessionKeeper;
class ToolDocks;

/// What the program remembers of the workspaces that were opened: that they were, what they look like, and how they were
/// left. Nothing of it lies in a workspace.
class WorkspaceMemory : public QObject {
  Q_OBJECT
public:
  /// How much is kept; nothing until somebody says so.
  enum class Keeps { Nothing, RecentFiles, Sessions };

  WorkspaceMemory(QMainWindow &window, NetVisControl &control, ToolDocks &tools, LayerKeeper &layers);

  void setKeeps(Keeps keeps) { m_keeps = keeps; }
  /// How long what was changed waits to be kept, and an opening to be noted; for tests, which need not spare a disk.
  void setPause(int ms);
  bool keepsSessions() const { return m_keeps == Keeps::Sessions; }
  /// A case opens as for the first time, and nothing of how it is left is kept.
  bool isClean() const { return m_keeps == Keeps::RecentFiles; }
  RecentFiles &recent() { return m_recent; }

  /// The workspace is open and drawn: comes back to what is kept of it.
  void enter(const NivraWorkspace &workspace);
  /// Another scenario of the case is shown; what comes back with the case is what is there.
  void follow(const NivraWorkspace &workspace);
  /// Before it is read again: until it stands again, what was is what is kept.
  void takeAside();
  bool isAside() const { return m_isAside; }
  /// It stands again: comes back to what was before.
  void comeBack();
  /// Keeps everything at once, as long as the workspace is the one that is open.
  void keep();
  /// Nothing of it is kept any more: another one comes.
  void leave();

private:
  void note();
  void takePicture();

  NetVisControl &m_control;
  SessionKeeper *m_session;
  Keeps m_keeps = Keeps::Nothing;
  RecentFiles m_recent;
  QString m_path;         ///< of what is open; empty when nothing of it is to be kept
  bool m_isNoted = false; ///< among the recent files
  bool m_isAside = false; ///< until it could be read again
  QTimer m_idle;          ///< until it is; an opening waits for no disk
};
