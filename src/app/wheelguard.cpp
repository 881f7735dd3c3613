#include "wheelguard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

bool WheelGuard::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::Polish && event->type() != QEvent::Wheel)
    return false;
  auto *field = qobject_cast<QWidget *>(watched);
  if (qobject_cast<QAbstractSpinBox *>(field) == nullptr && qobject_cast<QComboBox *>(field) == nullptr)
    return false;
  if (event->type() == QEvent::Polish) {
    if (field->focusPolicy() == Qt::WheelFocus)
      field->setFocusPolicy(Qt::StrongFocus);
    return false;
  }
  if (field->hasFocus())
    return false;
  event->ignore(); // the toolkit gives it to what is around the field
  return true;
}
