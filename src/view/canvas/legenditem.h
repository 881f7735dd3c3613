#pragma once

#include "canvas/legendplace.h"

#include <drawing/legendpicture.h>

#include <qwt_plot_item.h>

/// The legend in documents, which know no widgets. It stands where the one on the screen does.
class LegendItem : public QwtPlotItem {
public:
  explicit LegendItem(const LegendPicture &picture)
      : m_picture(picture) {
    constexpr double AboveAll = 5000.0;
    setZ(AboveAll);
    hide();
  }

  void setCorner(LegendPlace::Corner corner) { m_corner = corner; }

  int rtti() const override { return Rtti_PlotUserItem + 9; }
  void draw(QPainter *painter, const QwtScaleMap &, const QwtScaleMap &, const QRectF &canvasRect) const override {
    m_picture.draw(*painter, LegendPlace::areaIn(m_corner, m_picture.size(), canvasRect).topLeft());
  }

private:
  const LegendPicture &m_picture;
  LegendPlace::Corner m_corner = LegendPlace::Corner::BottomLeft;
};
