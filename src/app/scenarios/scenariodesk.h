#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class CaseOpening;
class NetVisControl;
class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;
class ReferenceView;
class ScenarioComparison;
class ScenarioFinder;
class ScenarioList;
class ScenarioListModel;
class ScenarioStrip;
class ScenariosDock;
class ToolDocks;

/// What can be done with the scenarios of the case: the commands, and what connects them with the panel and the opening.
class ScenarioDesk : public QObject {
  Q_OBJECT
public:
  /// \param go the menu in which that of scenarios stands
  ScenarioDesk(QMainWindow &window, CaseOpening &opening, NetVisControl &control, ToolDocks &tools, QMenu &go);

private:
  void addCommands();
  void addComparing();
  QAction *add(const QString &text, const QString &key, const QString &tip);
  void take();
  void takeList(const ScenarioList &list);
  void compareWith(const QString &file);
  void showReference(bool isWanted);
  void showMarks();
  void step(int by);
  void switchTo(const QString &file);
  QString shownName() const;
  ScenarioListModel &model() const;

  QMainWindow &m_window;
  CaseOpening &m_opening;
  NetVisControl &m_control;
  ToolDocks &m_tools;
  ScenarioFinder *m_finder;
  ScenarioComparison *m_comparison;
  QPointer<ReferenceView> m_reference; ///< beside the drawing
  ScenarioStrip *m_strip = nullptr;    ///< once a case had two dates
  ScenariosDock *m_dock = nullptr;     ///< once there was a case
  QString m_case;                      ///< of which scenarios are listed
  QMenu *m_menu;
  QAction *m_choose = nullptr;
  QAction *m_next = nullptr;
  QAction *m_previous = nullptr;
  QAction *m_compareShown = nullptr;
  QAction *m_noReference = nullptr;
  QAction *m_beside = nullptr;
  QActionGroup *m_colours = nullptr; ///< of values, differences, ratios
  QAction *m_show = nullptr;         ///< this and the next are about the one of the panel's menu
  QAction *m_compare = nullptr;
};
