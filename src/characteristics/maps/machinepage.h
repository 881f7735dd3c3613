#pragma once

#include <paper/pagecontent.h>

#include <QWidget>

#include <functional>
#include <machines/networkmachines.h>
#include <memory>

class MapCanvas;
class MapPlot;
class QCheckBox;
class QComboBox;
class QLabel;
class QTabBar;
class QVBoxLayout;
class ScenarioCloud;

/// The page of a compressor or drive: its map with what is said of its working point, and what can be chosen: the machine
/// of a station, how the station's machines work together, whose functions the map is made of.
class MachinePage : public QWidget {
  Q_OBJECT
public:
  /// The scenarios of a compressor; null where none can be read.
  using Clouds = std::function<std::shared_ptr<ScenarioCloud>(const element &compressor)>;

  MachinePage(const NetData &net, const NetworkMachines &machines, const QString &elementName, Clouds clouds = {},
              QWidget *parent = nullptr);

  /// After properties have changed: makes the map anew when there is something else to say.
  void refresh();
  void showAnew(); ///< whether there is something else to say or not
  /// Which view is shown, for a page that takes the place of this one.
  int viewNumber() const;
  void showView(int number);
  /// What pages with its maps say.
  void setPageFacts(const PageFacts &facts);

signals:
  void scenarioWanted(const QString &name);
  void functionsChosen(FunctionSource source);
  void saveFailed(const QString &reason); ///< of the picture of a map

protected:
  void changeEvent(QEvent *event) override;

private:
  enum class View { Map, Station, Residuals, Scenarios };

  void addControls();
  View view() const;
  void offerViews(const NetworkMachines::Machine &machine);
  QComboBox *addChoice(const QString &name, const QString &tip);
  MachineChoice choice() const;
  void offerFunctions(const NetworkMachines::Machine &machine);
  QWidget *makeView(const element &e, const NetworkMachines::Machine &machine);
  QWidget *makeStation(const element &compressor);
  QWidget *makeScenarios(const element &compressor, const NetworkMachines::Machine &machine);
  QWidget *makeResiduals(const NetworkMachines::Machine &machine);
  void prepare(MapCanvas &canvas);
  QString said(const element &e, const NetworkMachines::Machine &machine) const;
  QWidget *makeMap(const NetworkMachines::Machine &machine);
  void showMoved(const NetworkMachines::Machine &machine, const QPointF &to, MapPlot &map);
  MapPlot *addPlot(QVBoxLayout &column);

  const NetData &m_net;
  const NetworkMachines &m_machines;
  Clouds m_clouds;
  QComboBox *m_machine;
  QComboBox *m_configuration;
  QComboBox *m_functions;
  QCheckBox *m_both; ///< the lines of the other functions, too
  QTabBar *m_views;
  PageFacts m_facts;
  QVBoxLayout *m_column;
  QWidget *m_map = nullptr;
  unsigned m_settings = 0; ///< revision of the general settings that the map was made with
  QLabel *m_text;
  QString m_said; ///< of the scenario's point
};
