#pragma once

#include "session.h"

#include <QObject>
#include <QTimer>

class LayerKeeper;
class NivraWorkspace;
class QMainWindow;
class ToolDocks;

/// Gathers the session of the case that is open, keeps it while the case is worked with, and puts it back.
class SessionKeeper : public QObject {
  Q_OBJECT
public:
  /// All of them outlive what this object does.
  SessionKeeper(QMainWindow &window, NetVisControl &control, ToolDocks &tools, LayerKeeper &layers);

  /// Puts back what is kept of the case, and keeps what changes from now on.
  void enter(const NivraWorkspace &workspace);
  /// Keeps what changes of the case from now on.
  void keepFor(const NivraWorkspace &workspace);
  /// Keeps it at once.
  void keep();
  void leave();

  Session gathered() const;
  /// \param withWindow also where the window and its docks are
  void putBack(const Session &session, bool withWindow);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void touch();
  void putBackStyle(const Session &session);
  void putBackView(const Session &session);
  FileStamp stampOf(const char *name) const;

  QMainWindow &m_window;
  NetVisControl &m_control;
  ToolDocks &m_tools;
  LayerKeeper &m_layers;
  QString m_case; ///< its folder; empty while nothing is kept
  QByteArray m_kept;
  QTimer m_changed; ///< since a change that is not kept yet
};
