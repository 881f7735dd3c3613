#pragma once

#include "export/pagedrawing.h"

#include <drawing/mapscale.h>
#include <paper/pagecontent.h>

/// A page of a network: its drawing with legend and scale.
class NetworkPage : public PageContent {
  Q_DECLARE_TR_FUNCTIONS(NetworkPage)
public:
  NetworkPage(DrawingSource source, PageFacts facts);

  const PageDrawing &drawing() const { return m_drawing; }
  /// What is shown in place of what the window shows, in the network's coordinates; nothing for the whole network.
  void setArea(const std::optional<QRectF> &area) { m_area = area; }

  PageText text() const override;
  bool isMap() const override { return true; }
  void layOut(const QSizeF &frame, const PageSetup &setup, Detail detail) override;
  std::vector<PaperLegendPart> legend() const override;
  std::optional<PaperScale> scale() const override;
  void paint(QPainter &painter) const override;

private:
  /// What the drawing was made ready for.
  struct LaidOut {
    QSizeF frame;
    std::optional<QRectF> area;
    bool hasLabels;

    friend bool operator==(const LaidOut &a, const LaidOut &b) {
      return a.frame == b.frame && a.area == b.area && a.hasLabels == b.hasLabels;
    }
  };

  PageFacts m_facts;
  PageDrawing m_drawing;
  MapScale m_mapScale;
  std::optional<QRectF> m_area;
  std::optional<LaidOut> m_laidOut;
  QSizeF m_frame;
  bool m_marksSelection = true;
};
