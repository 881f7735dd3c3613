#pragma once

#include <drawing/label.h>

#include <qwt_plot_item.h>

#include <vector>

/// The labels that found room, as one plot item. While the view moves they keep beside their elements.
class LabelLayer : public QwtPlotItem {
public:
  LabelLayer();

  /// \param unitsPerPixel of the view for which they were placed
  void setLabels(std::vector<Label> labels, double unitsPerPixel);
  void clear() { m_labels.clear(); }
  const std::vector<Label> &labels() const { return m_labels; }
  double unitsPerPixel() const { return m_unitsPerPixel; }

  int rtti() const override { return Rtti_PlotUserItem + 6; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

private:
  /// \param top middle of the upper edge of the text
  static void drawLines(QPainter &painter, const Label &label, QPointF top);
  static void drawHalo(QPainter &painter, const Label &label, const QPointF &top);
  static void drawLabel(QPainter &painter, const Label &label, const QPointF &center);

  std::vector<Label> m_labels;
  double m_unitsPerPixel = 0.0;
};
