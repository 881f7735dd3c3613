#pragma once

#include <QObject>
#include <QString>

class CaseOpening;
class QAction;
class QMainWindow;
class QMenu;
class QMenuBar;
class ScenarioFinder;
class ScenarioListModel;
class ScenariosDock;
class ToolDocks;

/// What can be done with the scenarios of the case: the commands, and what connects them with the panel and the opening.
class ScenarioDesk : public QObject {
  Q_OBJECT
public:
  /// \param before the menu before which that of scenarios stands
  ScenarioDesk(QMainWindow &window, CaseOpening &opening, ToolDocks &tools, QMenuBar &bar, QMenu &before);

private:
  void addCommands(QMenuBar &bar, QMenu &before);
  QAction *add(const QString &text, const QString &key, const QString &tip);
  void take();
  void showMarks();
  void step(int by);
  void switchTo(const QString &file);
  QString shownName() const;
  ScenarioListModel &model() const;

  QMainWindow &m_window;
  CaseOpening &m_opening;
  ToolDocks &m_tools;
  ScenarioFinder *m_finder;
  ScenariosDock *m_dock = nullptr; ///< once there was a case
  QMenu *m_menu;
  QAction *m_choose = nullptr;
  QAction *m_next = nullptr;
  QAction *m_previous = nullptr;
  QAction *m_show = nullptr; ///< the one that the panel's menu is about
};
