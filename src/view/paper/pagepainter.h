#pragma once

#include <paper/pagecontent.h>

/// Puts a page together: heading, the drawing in its frame, legend, scale bar, north arrow and comment, on white ground.
/// Everything in units (see PageContent).
class PagePainter {
public:
  PagePainter(PageContent &content, const PageSetup &setup, PageText text);

  /// Where things stand; what is not there is empty.
  struct Layout {
    QSizeF paper;
    QRectF title;
    QRectF facts;
    QRectF frame;
    QRectF legend;
    QRectF foot;
  };
  const Layout &layout() const { return m_layout; }

  /// The whole page, from the origin on.
  void paint(QPainter &painter) const;

private:
  struct LegendPlace {
    std::size_t block;
    QPointF at; ///< before it is scaled
  };

  void placeHeading(QRectF &room);
  void placeFoot(QRectF &room);
  void placeLegend(QRectF &room);
  /// The blocks one below the other, in columns of this height; the size that they take.
  QSizeF flow(double height);
  void paintHeading(QPainter &painter) const;
  void paintFoot(QPainter &painter) const;
  void paintLegend(QPainter &painter) const;
  void coverBeside(QPainter &painter) const;

  PageContent &m_content;
  const PageSetup m_setup;
  const PageText m_text;
  Layout m_layout;
  std::vector<PaperLegendPart> m_blocks;
  std::vector<LegendPlace> m_places;
  double m_legendScale = 1.0;
};
