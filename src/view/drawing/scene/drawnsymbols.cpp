#include "scene/drawnsymbols.h"

#include <drawing/nodelayer.h>
#include <drawing/symbollayer.h>
#include <model/elementstate.h>
#include <model/elementtypes.h>
#include <model/titles.h>

#include <QCoreApplication>

#include <map>

namespace {

constexpr double LeastSeen = 0.3; // presence

void addShapes(const DrawnScene &scene, const Projection &projection, std::vector<LegendContents::Symbol> &symbols) {
  using Shape = NetGeometry::NodeShape;
  const NodeLayer::ShapesSeen seen = scene.nodes.shapesSeen(projection);
  for (const auto &[shape, title] : {std::pair(Shape::Supply, QT_TRANSLATE_NOOP("LegendContents", "supply")),
                                     {Shape::Demand, QT_TRANSLATE_NOOP("LegendContents", "demand")},
                                     {Shape::Pressure, QT_TRANSLATE_NOOP("LegendContents", "held pressure")}}) {
    if (seen.test(static_cast<std::size_t>(shape)))
      symbols.push_back({QCoreApplication::translate("LegendContents", title), 'n', shape, NoIndex});
  }
}

bool isOff(const NetGeometry &geometry, NetGeometry::Item item) {
  return item.kind == NetData::Edge ? geometry.edges()[item.index].isInactive
                                    : ElementState::isOutOfUse(*geometry.nodes()[item.index].source);
}

/// By type the symbol of an element in use, or of any.
struct Found {
  Index symbol = NoIndex;
  bool isOff = true;
};

} // namespace

std::vector<LegendContents::Symbol> DrawnSymbols::of(const DrawnScene &scene, const Projection &projection) {
  std::vector<LegendContents::Symbol> symbols;
  if (!projection.isValid())
    return symbols;
  addShapes(scene, projection, symbols);
  std::map<char, Found> types;
  for (const SymbolLayer::Placed &placed : scene.symbols.laidOut(projection)) {
    if (placed.isFigure || placed.presence < LeastSeen || !projection.canvas().contains(placed.center))
      continue;
    Found &found = types[scene.symbols.typeOf(placed)];
    if (found.isOff) {
      found.symbol = scene.symbols.symbolOf(placed);
      found.isOff = isOff(scene.geometry, placed.item);
    }
  }
  for (const char type : SymbolLayer::TypesByPriority) {
    const auto found = types.find(type);
    const ElementType *known = ElementTypes::byCode(QString(QLatin1Char(type)));
    if (found == types.end() || known == nullptr)
      continue;
    const QString title =
        found->second.isOff ? QCoreApplication::translate("LegendContents", "%1 (off)") : QStringLiteral("%1");
    symbols.push_back({title.arg(Titles::of(*known)), type, NetGeometry::NodeShape::Junction, found->second.symbol});
  }
  return symbols;
}
