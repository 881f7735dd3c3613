#include "otherwindows.h"

#include <QApplication>

QList<QPointer<QWidget>> OtherWindows::beside(const QWidget &window) {
  QList<QPointer<QWidget>> others;
  for (QWidget *other : QApplication::topLevelWidgets()) {
    if (other != &window && other->parentWidget() == nullptr)
      others.append(other);
  }
  return others;
}

bool OtherWindows::close(const QWidget &window) {
  for (const QPointer<QWidget> &other : beside(window)) {
    if (other != nullptr && other->isVisible() && !other->close())
      return false;
  }
  return true;
}
