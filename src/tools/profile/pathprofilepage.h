#pragma once

#include "profile/pathsearch.h"
#include "profile/profilechart.h"

#include <paper/pagecontent.h>
#include <tools/pathleg.h>
#include <tools/pathscenarios.h>

#include <QStringListModel>
#include <QWidget>

#include <optional>

class ElidedLabel;
class ProfileFiles;
class ScenarioOverlays;
class QCheckBox;
class QComboBox;
class QLabel;
class QListView;
class QMenu;
class QStackedLayout;
class QToolBar;
class QToolButton;

/// What is in the dock of the path profile: way points and choices, the chart, and what is told of it.
class PathProfilePage : public QWidget {
  Q_OBJECT
public:
  PathProfilePage(NetData &net, SymbolPainter symbols, QWidget *parent = nullptr);
  ~PathProfilePage() override;

  void setScenarios(const PathScenarios &scenarios);
  void setPageFacts(const PageFacts &facts);
  void setSelected(std::function<QStringList()> selected) { m_selected = std::move(selected); }
  /// Before the elements of the network go.
  void forget();
  /// Another network, or other values.
  void refresh();
  void giveFocus();

  QStringList wayPoints() const { return m_wayPoints.stringList(); }
  void setWayPoints(const QStringList &nodes);
  /// The same nodes in an order in which a way passes them.
  void setWayPointsInOrder(QStringList nodes);
  void setStart(const QString &node);
  void setEnd(const QString &node);
  void pointAt(const QString &element);

  /// Of the path that is shown; empty when there is none.
  QStringList shownWayPoints() const;
  std::vector<PathLeg> legs() const;
  ProfileChart &chart() const { return *m_chart; }

signals:
  void pathChanged();
  void pointed(const QString &element, double share);
  void elementMarked(const QString &name);
  void elementWanted(const QString &name);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void makeBar();
  QWidget *makeWayPoints();
  void makeChart();
  PathChoice choice() const;
  const PathSearch &search();
  void find();
  void showFaults(const QStringList &faults);
  void showCurves();
  void fillCurves();
  std::vector<ProfileQuantity> chosenQuantities() const;
  void addSelected();
  void removeCurrent();
  void moveCurrent(int by);
  void reverse();
  void tell(Index row, double share);
  QString summary() const;
  QString title() const;
  void showMenu(const QPoint &position);

  NetData &m_net;
  std::optional<PathSearch> m_search; ///< of the network as it is
  std::shared_ptr<const PathProfile> m_profile;
  QStringListModel m_wayPoints;
  std::function<QStringList()> m_selected;
  QStringList m_chosen; ///< properties whose curves somebody wants; empty for the usual ones
  bool m_hasBounds = true;
  QToolBar *m_bar;
  QComboBox *m_way;
  QCheckBox *m_closed;
  QToolButton *m_curves;
  QListView *m_list;
  QStackedLayout *m_stack; ///< the hint or the chart
  QLabel *m_hint;
  ProfileChart *m_chart;
  ElidedLabel *m_told;
  ProfileFiles *m_files;
  ScenarioOverlays *m_overlays;
  bool m_isSettingWayPoints = false;
};
