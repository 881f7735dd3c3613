#pragma once

#include <QObject>

class QAction;
class QLineEdit;
class QToolButton;

/// Whether the value field of a search holds a formula, which it shows by its colour.
class FormulaMode : public QObject {
  Q_OBJECT
public:
  /// \param button turns the mode on and off
  FormulaMode(QLineEdit &field, QToolButton &button, QObject *parent);

  bool isOn() const;
  void setOn(bool on);

signals:
  void ended(); ///< the field holds a pattern again

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void show(bool on);
  void color();

  QLineEdit &m_field;
  QAction *m_action;
};
