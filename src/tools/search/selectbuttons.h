#pragma once

#include <QObject>

class QAction;
class QToolButton;

/// The two buttons that select the results of a search in the network. Each shows the action that was chosen last.
class SelectButtons : public QObject {
  Q_OBJECT
public:
  /// \param select offers "Select" and "Select+Closure", each of which asks for the selection
  /// \param mode offers "add" and "replace", of which the latter holds at first
  SelectButtons(QToolButton &select, QToolButton &mode, QObject *parent);

signals:
  void wanted(bool topoClosure, bool additive);

private:
  QAction *m_add;
};
