#pragma once

#include <QColor>
#include <QVector>
#include <qwt_plot_item.h>

#include <array>

/// Many points of a map in two colours, painted at once.
class DotsItem : public QwtPlotItem {
public:
  /// In coordinates of the plot.
  DotsItem(QVector<QPointF> inside, QVector<QPointF> outside);

  void setColors(const QColor &inside, const QColor &outside, const QColor &ground) { m_colors = {inside, outside, ground}; }

  int rtti() const override { return Rtti_PlotUserItem; }
  QRectF boundingRect() const override;
  void draw(QPainter *painter, const QwtScaleMap &x, const QwtScaleMap &y, const QRectF &canvas) const override;

private:
  QVector<QPointF> m_inside;
  QVector<QPointF> m_outside;
  std::array<QColor, 3> m_colors;
};
