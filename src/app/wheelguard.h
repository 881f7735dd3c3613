#pragma once

#include <QObject>

/// Keeps the wheel from changing numbers and choices by accident: over a spin box or combo box that does not have the
/// keyboard it scrolls what is around it, and does not give it the keyboard either. A filter for the application's events.
class WheelGuard : public QObject {
  Q_OBJECT
public:
  using QObject::QObject;

  bool eventFilter(QObject *watched, QEvent *event) override;
};
