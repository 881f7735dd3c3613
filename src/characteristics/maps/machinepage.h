#pragma once

#include <paper/pagecontent.h>

#include <QWidget>

#include <machines/networkmachines.h>

class MapPlot;
class QComboBox;
class QLabel;
class QVBoxLayout;

/// The page of a compressor or drive: its map with what is said of its working point, and what can be chosen: the machine
/// of a station, how the station's machines work together, whose functions the map is made of.
class MachinePage : public QWidget {
  Q_OBJECT
public:
  MachinePage(const NetData &net, const NetworkMachines &machines, const QString &elementName, QWidget *parent = nullptr);

  /// After properties have changed: makes the map anew when there is something else to say.
  void refresh();
  /// What pages with its maps say.
  void setPageFacts(const PageFacts &facts);

  /// What stands beside the map, as rich text.
  static QString text(const NetworkMachines::Machine &machine);

signals:
  void saveFailed(const QString &reason); ///< of the picture of a map

protected:
  void changeEvent(QEvent *event) override;

private:
  QComboBox *addChoice(const QString &name, const QString &tip);
  MachineChoice choice() const;
  void offerFunctions(const NetworkMachines::Machine &machine);
  QWidget *makeMap(const NetworkMachines::Machine &machine) const;
  MapPlot *addPlot(QVBoxLayout &column) const;

  const NetData &m_net;
  const NetworkMachines &m_machines;
  QComboBox *m_machine;
  QComboBox *m_configuration;
  QComboBox *m_functions;
  PageFacts m_facts;
  QVBoxLayout *m_column;
  QWidget *m_map = nullptr;
  unsigned m_settings = 0; ///< revision of the general settings that the map was made with
  QLabel *m_text;
};
