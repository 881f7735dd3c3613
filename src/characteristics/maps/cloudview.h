#pragma once

#include <QTimer>
#include <QWidget>

#include <machines/workingpoint.h>
#include <memory>
#include <optional>

class CloudModel;
class MapCanvas;
class MapPlot;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableView;
class ScenarioCloud;

/// All scenarios of the case on the map of one machine, and as a table. A click on a dot, or Return on a row, asks for the
/// scenario.
class CloudView : public QWidget {
  Q_OBJECT
public:
  /// \param machine by name; the map is that of one of both
  CloudView(std::shared_ptr<ScenarioCloud> cloud, const QString &machine, QWidget *parent = nullptr);

  /// \param point of the open scenario
  void show(const TurboCompressor &machine, const std::optional<WorkingPoint> &point);
  void show(const PistonCompressor &machine, const std::optional<WorkingPoint> &point);
  MapCanvas *canvas() const;

signals:
  void scenarioWanted(const QString &name);

private:
  void take();
  void tellProgress();

  std::shared_ptr<ScenarioCloud> m_cloud;
  QString m_machine;
  MapPlot *m_plot;
  CloudModel *m_model;
  QTableView *m_table;
  QProgressBar *m_progress;
  QPushButton *m_again;
  QLabel *m_hint;
  QTimer m_taking;          ///< the map is drawn anew a few times a second
  bool m_hasRatios = false; ///< the map is over ratios in place of heads
};
