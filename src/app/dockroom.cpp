#include "dockroom.h"

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

#include <algorithm>

DockRoom::DockRoom(QDockWidget &dock, QMainWindow &window)
    : QObject(&dock)
    , m_dock(dock)
    , m_window(window) {
  m_dock.installEventFilter(this);
}

bool DockRoom::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Show) // laid out with the others, then
    QTimer::singleShot(0, this, &DockRoom::settle);
  return QObject::eventFilter(watched, event);
}

void DockRoom::settle() {
  const QWidget *drawing = m_window.centralWidget();
  if (drawing == nullptr || m_dock.isFloating() || m_dock.visibleRegion().isEmpty())
    return;
  const Qt::DockWidgetArea area = m_window.dockWidgetArea(&m_dock);
  const bool isUpright = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
  const auto along = [isUpright](const QSize &size) {
    return isUpright ? size.width() : size.height();
  };
  int wished = along(m_dock.sizeHint());
  for (const QDockWidget *other : m_window.tabifiedDockWidgets(&m_dock))
    wished = std::max(wished, along(other->sizeHint()));
  const int missing = along(m_window.size()) / 2 - along(drawing->size());
  if (missing > 0 && along(m_dock.size()) <= wished)
    m_window.resizeDocks({&m_dock}, {along(m_dock.size()) - missing}, isUpright ? Qt::Horizontal : Qt::Vertical);
}
