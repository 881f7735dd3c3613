#pragma once

#include <characteristics/workingpoint.h>

#include <qwt_plot.h>

#include <functional>

class QwtPlotPicker;

/// The map of a machine, with its name and its working point above it: lines of constant speed and efficiency, the area in
/// which it works, measured points, and where it works now. Dragging zooms, a right click zooms out and offers to save and
/// to print.
class MapPlot : public QwtPlot {
  Q_OBJECT
public:
  explicit MapPlot(QWidget *parent = nullptr);

  /// \param storedHead that the results of the network state, in kJ/kg; marked beside the working point where it is another
  void show(const TurboCompressor &machine, const std::optional<WorkingPoint> &point,
            const std::optional<double> &storedHead = std::nullopt);
  /// \param limits the largest pressure ratio over the speed in 1/min; empty when only the machine's own limit is known
  void show(const PistonCompressor &machine, const std::optional<WorkingPoint> &point, const QVector<QPointF> &limits = {});
  /// \param point power and speed of it are shown; \param temperature ambient, degC
  /// \param machineSpeeds of the machine that it drives, 1/min, for drives without measured points
  void show(const Drive &drive, const std::optional<WorkingPoint> &point, double temperature,
            const std::optional<std::pair<double, double>> &machineSpeeds = std::nullopt);
  /// What the drive takes over its power.
  void showConsumption(const Drive &drive, const std::optional<WorkingPoint> &point);

  /// What stands under the cursor, for the plot's coordinates.
  QString readout(const QPointF &position) const { return m_readout ? m_readout(position) : QString(); }
  /// The format by the suffix: PDF, SVG or a picture. False with the reason.
  bool save(const QString &path, QString *reason = nullptr);

protected:
  void contextMenuEvent(QContextMenuEvent *event) override;

private:
  void reset(const QString &name, const std::optional<WorkingPoint> &point, const QString &x, const QString &y);
  void addLine(const QVector<QPointF> &points, const QPen &pen, const QString &label = QString(),
               Qt::Alignment alignment = Qt::AlignRight | Qt::AlignVCenter);
  /// Has the axes reach to a place, so that a label there is not cut.
  void addRoom(const QPointF &to);
  void addArea(const QVector<QPointF> &outline);
  void addDots(const QVector<QPointF> &points);
  void addWorkingPoint(const QPointF &at, bool isInside);
  void addStoredPoint(const QPointF &at);
  void addLines(const TurboCompressor &machine);
  void addPowers(const Drive &drive, const std::pair<double, double> &speeds, double temperature);
  /// \param corner where another label stands, beside which there is none
  void addEfficiencies(const TurboCompressor &machine, const QPointF &corner);
  void finish();
  void paint(QPaintDevice &device, const QSizeF &size);
  bool write(QIODevice &device, const QString &suffix, QString *reason);
  void saveAs();
  void print();

  std::function<QString(const QPointF &)> m_readout;
  class QwtPlotZoomer *m_zoomer;
};
