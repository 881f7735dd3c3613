#include "geometry/geometryreader.h"
#include "scene/drawnplaces.h"
#include "scene/drawnsymbols.h"
#include "scene/labelwishes.h"
#include "scene/stationnames.h"

#include <base/settings.h>
#include <drawing/colorscale.h>
#include <drawing/elementlooks.h>
#include <drawing/netupdate.h>

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <future>
#include <utility>

namespace {

QString seconds(const QElapsedTimer &timer) {
  constexpr double Milli = 1e-3;
  return QString::number(static_cast<double>(timer.elapsed()) * Milli);
}

} // namespace

NetUpdate::NetUpdate(const PlotSettings &settings, std::function<View()> view, Told told)
    : m_settings(settings)
    , m_view(std::move(view))
    , m_told(std::move(told))
    , m_pixtest([this](Pixtest::Labels labels) { runPixtest(labels); },
                [this] {
                  const View seen = m_view();
                  return Pixtest::View{
                      std::max(seen.visible.height() / seen.largest.height(), seen.visible.width() / seen.largest.width()),
                      seen.isOfSubnet};
                }) {
  m_symbols.setCovers([this](const Projection &projection) { return m_subnets.boxes(projection); });
  m_violations.setFilter({&m_layers, &m_visibility});
  DrawnSizes sizes = drawnSizes();
  sizes.casing = nullptr; // which are what is drawn there
  m_violations.setSizes(sizes);
  m_subnets.setFilter({&m_layers, &m_visibility});
  m_textBoxes.setFilter({&m_layers, &m_visibility});
}

void NetUpdate::tellAll(const Findings &findings) const {
  if (m_told)
    std::for_each(findings.begin(), findings.end(), m_told);
}

std::vector<QwtPlotItem *> NetUpdate::items() {
  return {&m_violations, &m_edges, &m_nodes, &m_symbols, &m_subnets, &m_textBoxes, &m_names, &m_labels};
}

void NetUpdate::setNetData(const NetData *net) {
  m_net = net;
  m_contents.reset();
  m_pixtest.forgetPlacement();
  m_isNew = true;
  m_geometry.clear();
  m_values = DrawValues();
  m_edgeWidths.clear();
  m_violations.clear();
  m_edges.clear();
  m_nodes.clear();
  m_symbols.clear();
  m_subnets.clear();
  m_textBoxes.clear();
  clearLabels();
  m_names.clear();
  m_visibility.clear();
  m_layers.read(m_geometry); // nothing is hidden of what is no longer there
}

void NetUpdate::setLabelTable(const LabelTable &table) {
  m_labelTable = table;
  m_contents.reset();
}

const LabelContents *NetUpdate::labelContents() const {
  if (m_contents == nullptr && m_net != nullptr)
    m_contents = std::make_unique<LabelContents>(m_labelTable, m_settings, *m_net, m_told);
  return m_contents.get();
}

void NetUpdate::setFolder(const QString &folder, const QString &subnetIcons) {
  SymbolTable table;
  tellAll(table.read(folder + QStringLiteral("/symbols")));
  m_symbols.setTable(table);
  m_symbols.setFigureFolder(folder);
  table.setFurtherDirectory(subnetIcons);
  m_subnets.setTable(table);
}

void NetUpdate::updatePlot(Elements elements, Which which, Labels labels) {
  const bool rebuild = elements == Elements::Renewed;
  tell(m_told, Finding::Severity::Information,
       QStringLiteral("Updating plot - rebuild: %2, which: %3, relabel: %4 ...")
           .arg(int(rebuild))
           .arg(static_cast<int>(which))
           .arg(static_cast<int>(labels)));
  if (m_net == nullptr)
    return;
  QElapsedTimer timer;
  timer.start();
  m_contents.reset(); // the settings or the values may be others
  const double plotUnits = m_geometry.plotUnits();
  m_values.read(*m_net, m_settings, m_geometry, rebuild);
  if (rebuild || (elements == Elements::Reread && GeometryReader::readFlows(*m_net, m_geometry)))
    m_hasNewNodes = true;
  if (rebuild && m_geometry.unplaced() > 0)
    tell(m_told, Finding::Severity::Information,
         QStringLiteral("%1 elements are not drawn for want of coordinates").arg(m_geometry.unplaced()));
  m_layers.read(m_geometry);
  m_violations.setElements(m_geometry);
  emit scalesChanged();
  if (std::exchange(m_isNew, false) || plotUnits != m_geometry.plotUnits())
    emit extentChanged(); // before anything is judged by what the view shows

  updateLooks(rebuild, which, timer);
  updateSymbols(rebuild);
  emit legendChanged(); // which says what is drawn, and stands beside it
  if (labels == Labels::Renewed) {
    if (m_hasPlacedLabels)
      placeLabels(); // those that stand say something else now; nobody may have to wait for that
    else
      clearLabels();
  }
  if (!m_names.labels().empty())
    placeNames(); // elements may have come and gone
  emit changed();
  tell(m_told, Finding::Severity::Debug, QStringLiteral("Plot update: %1 sec.").arg(seconds(timer)));
}

void NetUpdate::updateLooks(bool rebuild, Which which, const QElapsedTimer &timer) {
  const bool isSearch = m_displayMode == DisplayMode::SearchResults;
  std::future<void> nodes; // beside the edges
  if (which != Which::Edges)
    nodes = std::async(std::launch::async, [this, isSearch] {
      if (std::exchange(m_hasNewNodes, false))
        m_nodes.setNodes(m_geometry);
      m_nodes.setLooks(isSearch ? looks().searchedNodes() : looks().nodes(m_displayMode == DisplayMode::Functions));
    });
  if (which != Which::Nodes) {
    if (rebuild) {
      m_edges.setEdges(m_geometry);
      tell(m_told, Finding::Severity::Debug, QStringLiteral("   after rebuild edges: %1 sec.").arg(seconds(timer)));
    }
    updateEdges(isSearch);
    tell(m_told, Finding::Severity::Debug,
         (isSearch ? QStringLiteral("   after update edges: %1 sec.")
                   : QStringLiteral("   after update edge curves: %1 sec."))
             .arg(seconds(timer)));
  }
  if (nodes.valid()) {
    nodes.get();
    tell(m_told, Finding::Severity::Debug, QStringLiteral("   after update nodes: %1 sec.").arg(seconds(timer)));
  }
}

void NetUpdate::updateEdges(bool isSearch) {
  const std::vector<EdgeLook> edges = isSearch ? looks().searchedEdges() : looks().edges();
  m_edges.setLooks(edges);
  m_symbols.setDiscs(isSearch ? std::vector<QRgb>() : looks().stationColors(edges));
  m_edgeWidths.resize(edges.size());
  std::transform(edges.begin(), edges.end(), m_edgeWidths.begin(),
                 [](const EdgeLook &look) { return static_cast<float>(look.width); });
}

LegendContents NetUpdate::legendContents() const {
  using Violations::State;
  LegendContents contents;
  if (m_net == nullptr || !m_geometry.hasExtent())
    return contents;
  contents.addFunctions(m_settings, m_values, coloured(), sizeOf(QStringLiteral("n"), m_settings.nodeMag));
  const double scale = junctionScale();
  for (LegendContents::Sample &sample : contents.sizes.samples)
    sample.size *= scale;
  if (scale <= 0.0)
    contents.sizes = LegendContents::Samples(); // from afar there are none to explain
  if (coloured() != ColorScale::Subject::SearchResults) {
    const std::vector<ColorScale::Swatch> others = swatches();
    contents.lines.insert(contents.lines.end(), others.begin(), others.end()); // behind classes with names
  }
  if (m_violations.isAny(State::Major))
    contents.casings.push_back({Violations::color(State::Major).rgb(), tr("beyond bounds (major)")});
  if (m_violations.isAny(State::Minor))
    contents.casings.push_back({Violations::color(State::Minor).rgb(), tr("beyond bounds")});
  contents.symbols = DrawnSymbols::of(scene(), projection());
  return contents;
}

DrawnSizes NetUpdate::drawnSizes() const {
  return {&m_edges,
          &m_nodes,
          &m_symbols,
          &m_subnets,
          &m_textBoxes,
          &m_edgeWidths,
          [this](NetGeometry::Item item, double widthFactor) {
            return m_violations.casingOf(item, widthFactor);
          }};
}

OccupancyGrid NetUpdate::drawnPlaces() const {
  return DrawnPlaces::of(scene(), projection());
}

DrawnScene NetUpdate::scene() const {
  return {m_geometry, m_edges, m_nodes, m_symbols, m_subnets, m_textBoxes, m_visibility, m_layers, m_values.flowSize()};
}

void NetUpdate::drawLegendSymbol(QPainter &painter, const LegendContents::Symbol &symbol, const QPointF &center,
                                 double size) const {
  constexpr double ShareOfShapes = 0.65; // of the size of symbols
  if (symbol.type == 'n')
    NodeLayer::drawKey(painter, symbol.shape, center, size * ShareOfShapes);
  else
    m_symbols.drawKey(painter, symbol.symbol, center, size);
}

ElementLooks NetUpdate::looks() const {
  return {m_geometry, m_values, m_settings, m_layers, sizeOf(QStringLiteral("n"), m_settings.nodeMag)};
}

ColorScale::Subject NetUpdate::coloured() const {
  switch (m_displayMode) {
  case DisplayMode::SearchResults:
    return ColorScale::Subject::SearchResults;
  case DisplayMode::Edges:
    return ColorScale::Subject::Edges;
  case DisplayMode::Functions:
    break;
  }
  return ColorScale::Subject::EdgesAndNodes;
}

QString NetUpdate::legendText() const {
  return ColorScale::legendText(m_settings, m_net == nullptr ? nullptr : &m_values, coloured());
}

double NetUpdate::sizeOf(const QString &type, double otherwise) const {
  constexpr double Largest = 512.0; // px
  const LabelRow *row = m_labelTable.ofType(type);
  bool isNumber = false;
  const double size = row == nullptr ? 0.0 : (*row)[LabelRow::Size].trimmed().toDouble(&isNumber);
  return isNumber && size > 0.0 ? std::min(size, Largest) : otherwise;
}

void NetUpdate::updateSymbols(bool rebuild) {
  constexpr double ArrowPixels = 2.0; // a unit of arrowMag
  QHash<QString, double> sizes;
  for (const LabelRow &row : m_labelTable.types) {
    if (const double size = sizeOf(row[LabelRow::Short], 0.0); size > 0.0)
      sizes.insert(row[LabelRow::Short], size);
  }
  m_symbols.setSize(m_settings.symMag);
  m_symbols.setSizes(sizes);
  m_violations.setGround(m_settings.bgrColor);
  m_symbols.setGround(m_settings.bgrColor);
  m_subnets.setGround(m_settings.bgrColor);
  m_edges.setSymbolSize(m_settings.symMag);
  m_edges.setBackground(m_settings.bgrColor);
  m_edges.setArrowSize(m_settings.arrowMag * ArrowPixels);
  m_subnets.setLook(sizeOf(QStringLiteral("sub"), m_settings.symMag * SubnetLayer::LargerThanSymbols),
                    m_settings.alphaSubnet);
  if (rebuild) {
    m_visibility.read(m_geometry, m_labelTable);
    if (Settings::BuildSymbols.value())
      tellAll(m_symbols.setStations(m_geometry));
    else
      m_symbols.clear();
  }
  tellAll(m_subnets.setSubnets(*m_net, m_geometry)); // what is known of their state may have changed
  m_visibility.setExtent(seenHeight());
  showWhatIsVisible();
  m_textBoxes.setBackground(m_settings.bgrColor);
  if (m_geometry.textBoxes().empty())
    m_textBoxes.clear();
  else
    m_textBoxes.setTextBoxes(m_geometry, *labelContents(), sizeOf(QStringLiteral("t"), 0.0));
}

void NetUpdate::showWhatIsVisible() {
  m_symbols.setVisibility(m_visibility, m_layers);
  m_nodes.setVisibility(m_visibility);
}

double NetUpdate::junctionScale() const {
  const Projection view = projection();
  return m_values.of(Aspect::NodeSize).isAny() && view.isValid() ? m_nodes.junctionScale(view) : 0.0;
}

double NetUpdate::seenHeight() const {
  return m_view().visible.height() / m_geometry.plotUnits();
}

const std::vector<SymbolLayer::Placed> &NetUpdate::determineVisibleSymbols() const {
  QElapsedTimer timer;
  timer.start();
  const std::vector<SymbolLayer::Placed> &symbols = m_symbols.laidOut(projection());
  tell(m_told, Finding::Severity::Debug, QStringLiteral("determineVisibleSymbols() took %1 sec.").arg(seconds(timer)));
  return symbols;
}

void NetUpdate::runPixtest(Pixtest::Labels labels) {
  if (m_net == nullptr)
    return;
  constexpr double SameScale = 0.01;
  QElapsedTimer timer;
  timer.start();
  const double units = m_view().unitsPerPixel.height();
  bool hasChanged = m_visibility.setExtent(seenHeight());
  if (hasChanged)
    showWhatIsVisible();
  const double scale = junctionScale();
  if (scale != std::exchange(m_legendScale, scale))
    emit legendChanged();
  determineVisibleSymbols(); // for the labels and the drawing
  if (labels == Pixtest::Labels::With) {
    placeLabels();
    hasChanged = true;
  } else if (m_hasPlacedLabels && !m_pixtest.isPending() && std::abs(units - m_labels.unitsPerPixel()) > SameScale * units) {
    clearLabels(); // none is to be placed for this view
    hasChanged = true;
  }
  if (labels == Pixtest::Labels::Without)
    hasChanged = placeNames() || hasChanged;
  if (hasChanged)
    emit changed();
  tell(m_told, Finding::Severity::Debug,
       (labels == Pixtest::Labels::With ? QStringLiteral("Pixtest (incl. last update_subnets): %1 sec.")
                                        : QStringLiteral("Pixtest_noLabels (incl. last update_subnets): %1 sec."))
           .arg(seconds(timer)));
}

void NetUpdate::placeLabels() {
  m_unplaced.clear();
  m_hasPlacedLabels = true;
  m_names.clear(); // the labels say them
  if (!Settings::BuildLabels.value() || labelContents()->isOff())
    m_labels.clear();
  else
    place(Wanted::Labels);
}

bool NetUpdate::areNamesWanted() const {
  return m_wantsNames && !m_hasPlacedLabels && Settings::BuildLabels.value() && !labelContents()->isOff() &&
         Settings::LabelPlacement.value() != QLatin1String("never");
}

bool NetUpdate::placeNames() {
  const bool hadNames = !m_names.labels().empty();
  if (areNamesWanted())
    place(Wanted::Names);
  else
    m_names.clear();
  return hadNames || !m_names.labels().empty();
}

void NetUpdate::place(Wanted wanted) {
  constexpr double SameScale = 1e-6;
  const View view = m_view();
  if (!view.projection.isValid())
    return;
  const double units = view.unitsPerPixel.height();
  LabelLayer &layer = wanted == Wanted::Labels ? m_labels : m_names;
  const auto run = [&](auto found) {
    LabelPass pass(m_geometry, *labelContents(), view.projection.canvas(), m_settings.labelMargin);
    for (const QRectF &area : view.legends)
      pass.addObstacle(area);
    for (const QRectF &area : found.areas)
      pass.addObstacle(area);
    for (const auto &[line, width] : found.lines)
      pass.addLine(line, width);
    const bool isSameScale = std::abs(units - layer.unitsPerPixel()) <= SameScale * units;
    LabelPass::Result result = pass.run(std::move(found.wishes), isSameScale ? layer.labels() : std::vector<Label>());
    layer.setLabels(std::move(result.labels), units);
    return std::move(result.unplaced);
  };
  if (wanted == Wanted::Labels)
    m_unplaced = run(LabelWishes(scene(), view.projection));
  else
    run(StationNames(scene(), view.projection));
}

void NetUpdate::clearLabels() {
  m_labels.clear();
  m_unplaced.clear();
  m_hasPlacedLabels = false;
}

void NetUpdate::relabelNow() {
  clearLabels();
  updatePlot(Elements::Renewed, Which::EdgesAndNodes, Labels::Renewed);
  placeLabelsNow(); // asks neither the settings nor whether passes are suspended
  requestPixtest(-1);
}

std::vector<Hit> NetUpdate::elementsAt(const QPointF &point, double tolerance) const {
  const Projection view = projection();
  if (!view.isValid())
    return {};
  std::vector<Hit> found;
  m_subnets.find(view, point, found);
  m_symbols.find(view, point, found);
  m_nodes.find(view, point, tolerance * 0.5, found);
  m_textBoxes.find(view, point, found);
  m_edges.find(view, point, tolerance, found);
  std::stable_sort(found.begin(), found.end(), [](const Hit &a, const Hit &b) { return a.comesBefore(b); });
  std::vector<Hit> hits;
  for (const Hit &hit : found) {
    if (std::none_of(hits.begin(), hits.end(), [&hit](const Hit &known) { return known.item == hit.item; }))
      hits.push_back(hit);
  }
  return hits;
}

std::vector<NetGeometry::Item> NetUpdate::elementsIn(const QRectF &area) const {
  std::vector<NetGeometry::Item> found;
  const auto isInside = [&area](const QPointF &p) {
    return p.x() >= area.left() && p.x() <= area.right() && p.y() >= area.top() && p.y() <= area.bottom();
  };
  m_geometry.forEachItem([&](NetGeometry::Item item, const element &) {
    const std::optional<QPointF> center = m_geometry.center(item);
    if (!center || m_layers.isHidden(item))
      return;
    if (item.kind == NetData::Edge) {
      const QLineF line = m_geometry.line(m_geometry.edges()[item.index]);
      if (isInside(line.p1()) && isInside(line.p2()))
        found.push_back(item);
    } else if (isInside(*center) && m_visibility.of(item) != VisibilityRules::State::Off) {
      found.push_back(item);
    }
  });
  return found;
}
