#pragma once

#include <QTimer>
#include <QToolBar>

class QAction;
class QLabel;
class QSlider;
class ScenarioList;

/// A slider over the scenarios that have a date, the first ones of the list.
class ScenarioStrip : public QToolBar {
  Q_OBJECT
public:
  /// \param previous \param next what its buttons do
  ScenarioStrip(QAction *previous, QAction *next, QWidget *parent);

  void setList(const ScenarioList &list);
  /// Puts the slider where the scenario is, if that has a date.
  void showCurrent(const QString &name);

signals:
  void wanted(const QString &file);

private:
  void tell(int position);
  void want();

  const ScenarioList *m_list = nullptr;
  QSlider *m_slider;
  QLabel *m_date;
  QTimer m_rest; ///< since the slider was moved
};
