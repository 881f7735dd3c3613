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

class DotsItem;
class PointMover;

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

  /// The point that a person may move, where there is one.
  PointMover &mover() { return *m_mover; }
  /// One of many points, with a name that stands beside it while the cursor is there.
  struct Dot {
    QPointF at; ///< in the units in which machines are computed
    QString name;
    bool isInside = true;
  };
  /// In place of those before.
  void setDots(std::vector<Dot> dots);
  /// How the moved point looks.
  void setMovedInside(bool isInside);

signals:
  void saveFailed(const QString &reason);
  void pointMoved(const QPointF &at); ///< in the units in which machines are computed
  void pointReturned();
  void dotClicked(const QString &name);

protected:
  bool event(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;
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
  /// A line that the legend names, when it has a name.
  void addNamedLine(const QVector<QPointF> &points, const QPen &pen, const QString &name);
  /// A small mark with its name beside it.
  void addNamedPoint(const QPointF &at, bool isInside, const QString &name);
  /// Has the axes reach to a point, so that a label there is not cut.
  void addRoom(const QPointF &to);
  void addArea(const QVector<QPointF> &outline);
  void addDots(const QVector<QPointF> &points); ///< that were measured
  /// Others, which a name stands beside in the legend.
  void addDots(const QVector<QPointF> &points, const QColor &color, const QString &name);
  void addWorkingPoint(const QPointF &at, bool isInside);
  /// Has a person move the working point, which lies there.
  void letMove(const QPointF &from);
  void addStoredPoint(const QPointF &at); ///< that the results state
  /// Shows what was added, whole.
  void finish();

private:
  /// Adds an item, and how it takes its colours.
  void add(QwtPlotItem *item, std::function<void(const MapColors &)> color);
  void addLegend();
  void color(const MapColors &colors);
  void colorDots(const MapColors &colors);
  MapColors colors() const; ///< of the screen, or of paper
  QPointF shown(const QPointF &computed) const;
  QPointF computed(const QPointF &position) const;
  QVector<QPointF> shown(QVector<QPointF> computed) const;
  void paint(QPainter &painter, const QRectF &area);
  void saveAs();
  void copy();
  void print();

  std::vector<std::function<void(const MapColors &)>> m_coloring; ///< of the items
  bool m_isOnWhite = false;
  const Dot *dotAt(const QPointF &position) const; ///< of the plot; null where there is none

  std::vector<Dot> m_dots;
  DotsItem *m_dotsItem = nullptr;
  QPoint m_pressed; ///< on the canvas
  PageFacts m_facts;
  std::function<QString(const QPointF &)> m_readout;
  Units::Linear m_toDisplayX;
  Units::Linear m_toDisplayY;
  class QwtPlotZoomer *m_zoomer;
  PointMover *m_mover = nullptr;
  bool m_isMovedInside = true;
};
