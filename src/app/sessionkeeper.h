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

  /// How long a change waits to be kept.
  void setPause(int ms) { m_changed.setInterval(ms); }
  /// Puts back what is kept of the case, and keeps what changes from now on.
  void enter(const NivraWorkspace &workspace);
  /// Keeps it at once.
  void keep();
  void leave();

  /// Before the network is read again: until it stands again, what was is kept.
  void takeAside();
  /// The network stands again.
  void comeBack();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void touch();
  Session gathered() const;
  void putBackWindow(const Session &session);
  void putBack(const Session &session);
  void dropOutdatedStyle(Session &session) const;
  void putBackView(const Session &session);

  QMainWindow &m_window;
  NetVisControl &m_control;
  ToolDocks &m_tools;
  LayerKeeper &m_layers;
  QString m_case; ///< its folder; empty while nothing is kept
  QByteArray m_kept;
  std::optional<Session> m_aside; ///< until the network could be read again
  QTimer m_changed;               ///< since a change that is not kept yet
};
