#pragma once

#include <QColor>
#include <QDate>
#include <QString>
#include <qwt_plot.h>

#include <optional>
#include <vector>

class QwtPlotCurve;
class QwtPlotGrid;
class QwtPlotMarker;

/// The values of one element over scenarios: over dates where all scenarios have one, else one beside the other. The point
/// under the mouse, or chosen by the arrow keys, says what it is; a click or Return asks for its scenario.
class SeriesChart : public QwtPlot {
  Q_OBJECT
public:
  struct Point {
    QString scenario;
    QDate date;         ///< invalid for none
    double value = 0.0; ///< in the unit that is shown; NaN for none
  };
  struct Series {
    QString title; ///< of the values, with the unit
    QString unit;
    std::vector<Point> points;
    std::vector<std::pair<QString, double>> lines; ///< across the chart: what they are and where
    QString present;                               ///< the scenario that is open
  };

  explicit SeriesChart(QWidget *parent = nullptr);

  void show(const Series &series);
  const Series &series() const { return m_series; }
  /// What the marked point says; empty without one.
  QString readout() const;
  /// In the colours of paper; the format by the suffix. False with the reason.
  bool save(const QString &path, QString *reason);

signals:
  void scenarioWanted(const QString &name);

protected:
  void changeEvent(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

private:
  struct Colors;
  void color(const Colors &colors);
  double xOf(std::size_t point) const;
  void setAxis();
  void addLines();
  std::optional<std::size_t> nearest(const QPoint &position) const;
  void mark(std::optional<std::size_t> point);

  Series m_series;
  bool m_isDated = false;
  std::vector<std::size_t> m_shown;    ///< points with a value, from left to right
  std::optional<std::size_t> m_marked; ///< index in m_shown
  QwtPlotGrid *m_grid;
  QwtPlotCurve *m_curve;
  QwtPlotMarker *m_present;
  QwtPlotMarker *m_hover;
};
