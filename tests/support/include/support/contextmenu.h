#pragma once

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>

namespace ContextMenu {

/// What a right click in the middle of a view offers; the menu is closed again.
inline QStringList texts(QAbstractItemView &view) {
  const QPoint at = view.viewport()->rect().center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, at, view.viewport()->mapToGlobal(at));
  QApplication::sendEvent(view.viewport(), &event);
  QStringList texts;
  auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  if (menu == nullptr)
    return texts;
  for (const QAction *action : menu->actions()) {
    if (action->isVisible())
      texts.append(action->text());
  }
  menu->close();
  return texts;
}

} // namespace ContextMenu
