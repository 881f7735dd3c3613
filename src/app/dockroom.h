#pragma once

#include <QObject>

class QDockWidget;
class QMainWindow;

/// Leaves half of the window to the drawing when a panel appears: in a small window a panel gets less than it would like.
/// One that somebody, or a session, gave another size keeps it.
class DockRoom : public QObject {
  Q_OBJECT
public:
  DockRoom(QDockWidget &dock, QMainWindow &window);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void settle();

  QDockWidget &m_dock;
  QMainWindow &m_window;
};
