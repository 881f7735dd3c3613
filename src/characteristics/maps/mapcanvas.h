#pragma once

#include "mapcolors.h"
#include "mapquantity.h"

#include <paper/pagecontent.h>

#include <QColor>
#include <QPen>
#include <QVector>
#include <qwt_plot.h>

#include <functional>
#include <vector>

/// A diagram with a heading: what maps of machines are drawn of, and what a person can do with them. Dragging zooms, a right
/// click zooms out and offers to copy, to save and to print; the keys of copying and printing do so, too.
class MapCanvas : public QwtPlot {
  Q_OBJECT
public:
  explicit MapCanvas(QWidget *parent = nullptr);

  static inline const QColor &Blue = MapColors::Blue;
  static inline const QColor &PaleBlue = MapColors::PaleBlue;
  static inline const QColor &Green = MapColors::Green;
  static inline const QColor &Red = MapColors::Red;
  static inline const QColor &Orange = MapColors::Orange;

  /// What stands under the cursor, for the plot's coordinates.
  QString readout(const QPointF &position) const;
  /// The format by the suffix: PDF, SVG or a picture. False with the reason.
  bool save(const QString &path, QString *reason = nullptr);
  /// Paints the map as documents have it: on white, whatever the screen has.
  void paintOnWhite(const std::function<void()> &paint);
  /// What a page of it says.
  void setPageFacts(const PageFacts &facts) { m_facts = facts; }

signals:
  void saveFailed(const QString &reason);

protected:
  bool event(QEvent *event) override;
  void changeEvent(QEvent *event) override;
  void contextMenuEvent(QContextMenuEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

  struct Axis {
    QString title;
    MapQuantity quantity;
  };
  /// Takes everything out. What is added then, and asked for by the readout, is in the units in which machines are computed;
  /// the axes show those that people chose. \param heading plain text
  void reset(const QString &heading, const Axis &x, const Axis &y);
  void setReadout(std::function<QString(const QPointF &)> readout) { m_readout = std::move(readout); }
  void addLine(const QVector<QPointF> &points, const QPen &pen, const QString &label = QString(),
               Qt::Alignment alignment = Qt::AlignRight | Qt::AlignVCenter);
  /// Has the axes reach to a point, so that a label there is not cut.
  void addRoom(const QPointF &to);
  void addArea(const QVector<QPointF> &outline);
  void addDots(const QVector<QPointF> &points); ///< that were measured
  void addWorkingPoint(const QPointF &at, bool isInside);
  void addStoredPoint(const QPointF &at); ///< that the results state
  /// Shows what was added, whole.
  void finish();

private:
  /// Adds an item, and how it takes its colours.
  void add(QwtPlotItem *item, std::function<void(const MapColors &)> color);
  void color(const MapColors &colors);
  MapColors colors() const; ///< of the screen, or of paper
  QPointF shown(const QPointF &computed) const;
  QVector<QPointF> shown(QVector<QPointF> computed) const;
  void paint(QPainter &painter, const QRectF &area);
  void saveAs();
  void copy();
  void print();

  std::vector<std::function<void(const MapColors &)>> m_coloring; ///< of the items
  bool m_isOnWhite = false;
  PageFacts m_facts;
  std::function<QString(const QPointF &)> m_readout;
  Units::Linear m_toDisplayX;
  Units::Linear m_toDisplayY;
  class QwtPlotZoomer *m_zoomer;
};
