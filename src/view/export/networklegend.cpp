#include "export/networklegend.h"

#include <drawing/legendpicture.h>

#include <memory>

std::vector<PaperLegendPart> NetworkLegend::blocks(const PageDrawing &drawing) {
  const NetUpdate &update = drawing.update();
  const auto picture = std::make_shared<LegendPicture>();
  picture->setContents(update.legendContents(), drawing.settings().bgrColor, LegendPicture::fontOf(drawing.settings()),
                       [&update](QPainter &painter, const LegendContents::Symbol &symbol, const QPointF &center,
                                 double size) { update.drawLegendSymbol(painter, symbol, center, size); });
  std::vector<PaperLegendPart> blocks;
  for (const LegendPicture::Part &part : picture->parts(PageContent::LegendWidth))
    blocks.push_back({part.height, [picture, paint = part.paint](QPainter &painter) {
                        paint(painter);
                      }});
  return blocks;
}
