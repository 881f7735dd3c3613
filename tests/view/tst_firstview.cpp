#include "geometry/geometryreader.h"
#include "interaction/plotzoom.h"
#include "style/detail.h"
#include "viewfixture.h"

#include <base/generalsettings.h>
#include <drawing/edgelayer.h>
#include <drawing/nodelayer.h>
#include <support/nivratest.h>

#include <QPainter>

/// What a view shows of much and of little: the lines carry the picture from afar, the rest grows with the zoom.
class TestFirstView : public QObject {
  Q_OBJECT

private slots:
  void cleanup() { GeneralSettings::instance().reset(); }
  void nothingJumps();
  void nodesGrowWithTheZoom();
  void fewSuppliesStandOutOfMany();
  void networksWithoutExtentAreDrawn();
  void whoTakesNothingIsADot();
  void editedFlowsChangeTheShape();
  void symbolsComeWhereThereIsRoom();
  void isolatedFittingsShow();
  void compressorsAreThereFromAfar();
  void valuesOfMachinesAloneShowAroundTheirSymbols();
  void drivesStandBesideTheLine();
  void drivesOfParallelLinesStandOutside();
  void drivesAreClickedWhereTheyAreDrawn();
  void faintSymbolsAreNotPicked();
  void boxesAreNoLouderThanWhatTheyTell();
  void crowdedLinesLeaveRoomAndShowTheBroadOnes();
  void stationsAreNamedAtFirstSight();
  void namesAreSpreadOverTheDrawing();
  void namesFollowTheSettings();
  void namesGiveWayToLabels();
  void machinesOfOneStationAreNamedByIt();

private:
  using Shape = NetGeometry::NodeShape;

  /// A grid of pipes 10 units long with demands on it, a supply in its corner and broad pipes in each eighth row.
  static void addGrid(ViewFixture &f, int columns, int rows) {
    const auto name = [](int x, int y) {
      return QByteArray("N") + QByteArray::number(x) + '_' + QByteArray::number(y);
    };
    for (int y = 0; y < rows; ++y) {
      for (int x = 0; x < columns; ++x) {
        element node = makeNode(name(x, y).constData(), QByteArray::number(1000 + x * 10).constData(),
                                QByteArray::number(y * 10).constData());
        if ((x + y) % 3 == 0)
          node.set(QStringLiteral("qset"), QStringLiteral("5"));
        f.net.addElement(node);
        if (x > 0)
          f.add(makeEdge((name(x, y) + "r").constData(), name(x - 1, y).constData(), name(x, y).constData()),
                {{"diameter", y % 8 == 0 ? "1000" : "100"}});
        if (y > 0)
          f.add(makeEdge((name(x, y) + "u").constData(), name(x, y - 1).constData(), name(x, y).constData()),
                {{"diameter", "100"}});
      }
    }
    f.net.element(QStringLiteral("N0_0"))->set(QStringLiteral("qset"), QStringLiteral("-500"));
  }
  /// A view of 1000 by 800 pixels with so many pixels a unit, its lower left corner at (1000, 0).
  static Projection view(double pixels) { return {xMap(pixels), yMap(pixels), QRectF(0, 0, 1000, 800)}; }
  static QwtScaleMap xMap(double pixels) {
    QwtScaleMap map;
    map.setScaleInterval(1000, 1000 + 1000 / pixels);
    map.setPaintInterval(0, 1000);
    return map;
  }
  static QwtScaleMap yMap(double pixels) {
    QwtScaleMap map;
    map.setScaleInterval(0, 800 / pixels);
    map.setPaintInterval(800, 0);
    return map;
  }
  /// The largest node of a shape in a view, 0 when none of them is drawn.
  static double largest(const NetData &net, Shape shape, double pixels) {
    NetGeometry geometry;
    GeometryReader::read(net, {}, geometry);
    NodeLayer layer;
    layer.setNodes(geometry);
    layer.setLooks(std::vector<NodeLook>(geometry.nodes().size()));
    double found = 0.0;
    layer.forEachVisible(view(pixels), [&](Index node, const QPointF &, double size) {
      if (geometry.nodes()[node].shape == shape)
        found = std::max(found, size);
    });
    return found;
  }
  static QString nameOf(ViewFixture &f, NetGeometry::Item item) {
    return f.plot().update().geometry().source(item)->value(QStringLiteral("name"));
  }
  static std::vector<SymbolLayer::Placed> symbolsOf(ViewFixture &f, const char *type) {
    std::vector<SymbolLayer::Placed> found;
    for (const SymbolLayer::Placed &placed : f.plot().update().determineVisibleSymbols()) {
      const element &source = *f.plot().update().geometry().source(placed.item);
      if (source.value(QStringLiteral("type")) == QLatin1String(type))
        found.push_back(placed);
    }
    return found;
  }
  static void addDrive(ViewFixture &f, const char *name, const char *x, const char *y) {
    element drive = makeNode(name, x, y);
    drive.set(QStringLiteral("type"), QStringLiteral("d"));
    drive.set(QStringLiteral("driven"), QStringLiteral("CD"));
    f.add(std::move(drive), {});
  }
  static void show(ViewFixture &f) {
    f.plot().show();
    f.show();
  }
  static void zoomTo(ViewFixture &f, const QRectF &area) {
    f.plot().zoomer()->zoom(area);
    f.plot().update().requestPixtest(-1);
  }
  static QStringList namesIn(const NetUpdate &update) {
    QStringList names;
    for (const Label &label : update.names())
      names.append(label.lines.front().text());
    names.sort();
    return names;
  }
  static void setLabelMode(ViewFixture &f, const char *mode) {
    PlotSettings settings = f.plot().settings();
    settings.label_mode = QString::fromLatin1(mode);
    f.plot().setSettings(settings);
    f.plot().update().updatePlot();
  }
};

void TestFirstView::nothingJumps() {
  constexpr double Step = 1.05; // of a smooth zoom
  Detail before(1.0);
  for (double room = 1.0; room < 2000.0; room *= Step) {
    const Detail now(room * Step);
    for (const auto &[was, is] : {std::make_pair(before.nodeScale(), now.nodeScale()),
                                  {before.symbolScale(), now.symbolScale()},
                                  {before.arrowScale(), now.arrowScale()}})
      QVERIFY(is >= was && is - was < 0.05);
    before = now;
  }
  QCOMPARE(Detail(3.0).nodeScale(), 0.0);
  QCOMPARE(Detail::presence(1.0, 1.0, 2.0), 0.0);
  QCOMPARE(Detail::presence(3.0, 1.0, 2.0), 1.0);
}

void TestFirstView::nodesGrowWithTheZoom() {
  ViewFixture f;
  addGrid(f, 60, 50);
  const auto size = [&f](Shape shape, double pixels) {
    return largest(f.net, shape, pixels);
  };
  QCOMPARE(size(Shape::Junction, 0.3), 0.0); // 3 px an edge: only lines
  QCOMPARE(size(Shape::Demand, 0.3), 0.0);
  for (const Shape shape : {Shape::Junction, Shape::Demand}) {
    QVERIFY(size(shape, 3.0) > 1.0 && size(shape, 3.0) <= 5.5); // a few pixels on lines of 30
    QVERIFY(size(shape, 3.0) < size(shape, 10.0));
    QVERIFY(size(shape, 10.0) < size(shape, 40.0));
  }
}

void TestFirstView::fewSuppliesStandOutOfMany() {
  ViewFixture f;
  addGrid(f, 60, 50);
  QVERIFY(largest(f.net, Shape::Supply, 0.5) >= 5.5); // among a thousand demands that are not drawn
  QCOMPARE(largest(f.net, Shape::Demand, 0.5), 0.0);
}

void TestFirstView::networksWithoutExtentAreDrawn() {
  NetData point;
  point.addElement(makeNode("A", "1005", "5"));
  QVERIFY(largest(point, Shape::Junction, 1.0) > 2.0);
  NetData line; // of pipes 20 units long
  for (int i = 0; i < 40; ++i) {
    const QByteArray name = QByteArray::number(i);
    element node = makeNode(name.constData(), QByteArray::number(1000 + i * 20).constData(), "5");
    node.set(QStringLiteral("qset"), QStringLiteral("-1"));
    line.addElement(node);
    if (i > 0)
      line.addElement(makeEdge(("P" + name).constData(), QByteArray::number(i - 1).constData(), name.constData()));
  }
  QVERIFY(largest(line, Shape::Supply, 2.0) > 5.5);
}

void TestFirstView::editedFlowsChangeTheShape() {
  ViewFixture f;
  element &a = *f.net.element(QStringLiteral("A"));
  a.set(QStringLiteral("kind"), QStringLiteral("sink"));
  a.set(QStringLiteral("qset"), QStringLiteral("0"));
  f.net.element(QStringLiteral("C"))->set(QStringLiteral("qset"), QStringLiteral("-3"));
  show(f);
  const NetUpdate &update = f.plot().update();
  const auto size = [&update] {
    return update.drawnSizes().nodes->sizeOf(0, update.projection());
  };
  const auto hasDemand = [&update] {
    const LegendContents contents = update.legendContents();
    return std::any_of(contents.symbols.begin(), contents.symbols.end(),
                       [](const LegendContents::Symbol &symbol) { return symbol.shape == Shape::Demand; });
  };
  const double idle = size();
  QVERIFY(!hasDemand());
  a.set(QStringLiteral("qset"), QStringLiteral("5"));
  f.control.redraw(); // as after an edit
  QVERIFY(size() > idle * 1.5 && hasDemand());
  a.set(QStringLiteral("qset"), QStringLiteral("0"));
  f.control.redraw(); // as after an edit
  QVERIFY(size() == idle && !hasDemand());
}

void TestFirstView::whoTakesNothingIsADot() {
  const auto roleOf = [](const char *flow, bool isElsewhere) {
    ViewFixture f;
    f.net.element(QStringLiteral("A"))->set(QStringLiteral("kind"), QStringLiteral("sink"));
    if (*flow != '\0')
      f.net.element(QStringLiteral("A"))->set(QStringLiteral("qset"), QString::fromLatin1(flow));
    if (isElsewhere)
      f.net.element(QStringLiteral("C"))->set(QStringLiteral("qset"), QStringLiteral("-3"));
    NetGeometry geometry;
    GeometryReader::read(f.net, {}, geometry);
    return std::make_pair(geometry.nodes().front().shape, geometry.nodes().front().isIdle);
  };
  QCOMPARE(roleOf("5", true), std::make_pair(Shape::Demand, false));
  QCOMPARE(roleOf("0", true), std::make_pair(Shape::Demand, true));
  QCOMPARE(roleOf("-0.0", true), std::make_pair(Shape::Demand, true));
  QCOMPARE(roleOf("", true), std::make_pair(Shape::Demand, true));
  QCOMPARE(roleOf("", false), std::make_pair(Shape::Demand, false)); // no scenario says who takes something
  const auto ink = [](const char *flow) {
    ViewFixture f;
    f.net.element(QStringLiteral("A"))->set(QStringLiteral("kind"), QStringLiteral("sink"));
    f.net.element(QStringLiteral("A"))->set(QStringLiteral("qset"), QString::fromLatin1(flow));
    f.net.element(QStringLiteral("C"))->set(QStringLiteral("qset"), QStringLiteral("-3"));
    GeneralSettings::instance().setValue(QStringLiteral("build labels"), QStringLiteral("off"));
    show(f);
    f.picture(); // lays out
    const QImage picture = f.picture();
    int column = 0; // beside the middle
    for (int y = -8; y <= 8; ++y)
      column += picture.pixelColor(f.pixel(0, 0) + QPoint(-3, y)).lightness() < 200 ? 1 : 0;
    return column;
  };
  QVERIFY(ink("5") > ink("0"));
}

void TestFirstView::symbolsComeWhereThereIsRoom() {
  ViewFixture f;
  f.addNode("E", "204", "100", "60");
  f.addNode("F", "208", "100", "60");
  f.add(makeEdge("DE", "D", "E", "v"), {});
  f.add(makeEdge("EF", "E", "F", "s"), {});
  for (int i = 0; i < 40; ++i) { // so many that none is alone
    const QByteArray number = QByteArray::number(i);
    const QByteArray x = QByteArray::number(10 + i * 4);
    f.addNode(("X" + number).constData(), x.constData(), QByteArray::number(5 + i % 10 * 9).constData(), "60");
    f.addNode(("Y" + number).constData(), x.constData(), QByteArray::number(8 + i % 10 * 9).constData(), "60");
    f.add(makeEdge(("V" + number).constData(), ("X" + number).constData(), ("Y" + number).constData(), "v"), {});
  }
  show(f);
  QCOMPARE(symbolsOf(f, "v").size(), std::size_t(0));
  QCOMPARE(symbolsOf(f, "s").size(), std::size_t(0));
  QCOMPARE(symbolsOf(f, "c").size(), std::size_t(1));
  zoomTo(f, QRectF(198, 96, 14, 9)); // now their lines are some 150 pixels long
  for (const char *type : {"v", "s"}) {
    const std::vector<SymbolLayer::Placed> placed = symbolsOf(f, type);
    QVERIFY2(!placed.empty(), type);
    QCOMPARE(placed.front().presence, 1.0);
  }
}

void TestFirstView::isolatedFittingsShow() {
  ViewFixture f;
  f.addNode("A2", "-2", "0", "20");
  f.add(makeEdge("AA2", "A", "A2", "v"), {}); // far from the compressor
  f.addNode("A3", "-4", "0", "20");
  f.add(makeEdge("A2A3", "A2", "A3", "s"), {});
  f.addNode("M", "200", "49", "20");
  f.addNode("M2", "200", "51", "20");
  f.add(makeEdge("MM2", "M", "M2", "v"), {}); // under the compressor
  show(f);
  const std::vector<SymbolLayer::Placed> valves = symbolsOf(f, "v");
  QCOMPARE(valves.size(), std::size_t(1));
  QCOMPARE(nameOf(f, valves.front().item), QStringLiteral("AA2"));
  QVERIFY(symbolsOf(f, "s").empty()); // a short pipe says nothing from afar
}

void TestFirstView::compressorsAreThereFromAfar() {
  ViewFixture f;
  addGrid(f, 40, 30);
  f.addNode("K", "1201", "150", "60");
  f.add(makeEdge("N20_15K", "N20_15", "K", "c"), {});
  show(f);
  const auto size = [&f] {
    for (const SymbolLayer::Placed &placed : symbolsOf(f, "c")) {
      if (nameOf(f, placed.item) == QLatin1String("N20_15K"))
        return placed.size;
    }
    return 0.0;
  };
  const double afar = size();
  QVERIFY2(afar >= 9.0, qPrintable(QString::number(afar)));
  zoomTo(f, QRectF(1190, 140, 40, 25));
  QVERIFY2(size() > afar, qPrintable(QString::number(size())));
}

void TestFirstView::valuesOfMachinesAloneShowAroundTheirSymbols() {
  const auto isColouredBeside = [](const char *property) {
    ViewFixture f;
    f.net.element(QStringLiteral("CD"))->set(QStringLiteral("power"), QStringLiteral("7"));
    f.show();
    PlotSettings settings = f.plot().appliedSettings();
    settings.functions[Aspect::EdgeColor].name = QString::fromLatin1(property);
    f.plot().setSettings(settings);
    f.plot().update().updatePlot();
    const SymbolLayer::Placed symbol = symbolsOf(f, "c").at(0);
    constexpr double OnDisc = 0.72; // of the symbol's size; its line runs upright
    const QPointF beside = symbol.center + QPointF(symbol.size * OnDisc, 0.0);
    constexpr int Coloured = 100;
    const QWidget &canvas = *f.plot().plot()->canvas();
    return QColor(f.picture().pixel(canvas.mapTo(&f.plot(), beside.toPoint()))).saturation() > Coloured;
  };
  QVERIFY(isColouredBeside("power"));
  QVERIFY(!isColouredBeside("q")); // which the pipes show as well
}

void TestFirstView::drivesStandBesideTheLine() {
  ViewFixture f;
  addDrive(f, "DR", "200", "70");  // upon the line of CD, as drives without coordinates are put
  addDrive(f, "OWN", "150", "60"); // somebody wants it there
  show(f);
  const std::vector<SymbolLayer::Placed> drives = symbolsOf(f, "d");
  const std::vector<SymbolLayer::Placed> compressors = symbolsOf(f, "c");
  QCOMPARE(drives.size(), std::size_t(2));
  QCOMPARE(compressors.size(), std::size_t(1));
  const Projection projection = f.plot().update().projection();
  const QLineF line(projection.map(200, 0), projection.map(200, 100));
  for (const SymbolLayer::Placed &placed : drives) {
    QVERIFY(distanceToLine(placed.center, line) > placed.size * 0.5 + 3.0); // free of a line of 6 pixels
    QVERIFY(QLineF(placed.center, compressors.front().center).length() > (placed.size + compressors.front().size) * 0.5);
    const bool isOwn = nameOf(f, placed.item) == QLatin1String("OWN");
    QCOMPARE(isOwn, (placed.center - projection.map(150, 60)).manhattanLength() < 1e-6);
  }
}

void TestFirstView::drivesOfParallelLinesStandOutside() {
  ViewFixture f;
  f.addNode("E", "100", "100", "20");
  f.addNode("F", "200", "100", "60");
  f.add(makeEdge("EF1", "E", "F", "c"), {});
  f.add(makeEdge("EF2", "F", "E", "c"), {});
  addDrive(f, "D1", "150", "100");
  addDrive(f, "D2", "150", "100");
  f.net.element(QStringLiteral("D1"))->set(QStringLiteral("driven"), QStringLiteral("EF1"));
  f.net.element(QStringLiteral("D2"))->set(QStringLiteral("driven"), QStringLiteral("EF2"));
  show(f);
  const std::vector<SymbolLayer::Placed> drives = symbolsOf(f, "d");
  QCOMPARE(drives.size(), std::size_t(2));
  for (const SymbolLayer::Placed &drive : drives) {
    for (const SymbolLayer::Placed &compressor : symbolsOf(f, "c"))
      QVERIFY(QLineF(drive.center, compressor.center).length() >= (drive.size + compressor.size) * 0.5);
  }
  QVERIFY(QLineF(drives[0].center, drives[1].center).length() > 3.0 * drives[0].size); // one above, one below
}

/// What is all but invisible is not what somebody points at.
void TestFirstView::faintSymbolsAreNotPicked() {
  ViewFixture f;
  f.addNode("M", "203", "49", "20");
  f.addNode("M2", "203", "51", "20");
  f.add(makeEdge("MM2", "M", "M2", "v"), {}); // beside the compressor
  show(f);
  bool hasFaint = false;
  for (double width = 300.0; width > 5.0; width *= 0.95) {
    zoomTo(f, QRectF(203.0 - width * 0.5, 50.0 - width / 3.0, width, width / 1.5));
    for (const SymbolLayer::Placed &placed : symbolsOf(f, "v")) {
      const std::vector<Hit> hits = f.plot().update().elementsAt(placed.center + QPointF(0.0, placed.size * 0.3), 0.0);
      const bool isPicked = std::any_of(hits.begin(), hits.end(), [&placed](const Hit &hit) {
        return hit.rank == HitRank::Symbol && hit.item == placed.item;
      });
      QCOMPARE(isPicked, placed.presence >= 0.3);
      hasFaint = hasFaint || !isPicked;
    }
  }
  QVERIFY(hasFaint);
}

void TestFirstView::drivesAreClickedWhereTheyAreDrawn() {
  ViewFixture f;
  addDrive(f, "DR", "200", "70");
  show(f);
  const QPointF center = symbolsOf(f, "d").front().center;
  QTest::mouseClick(f.plot().plot()->canvas(), Qt::LeftButton, Qt::NoModifier, center.toPoint());
  QCOMPARE(f.net.selection().names(), QSet<QString>{QStringLiteral("DR")});
  f.plot().update().relabelNow();
  bool isLabelled = false;
  for (const Label &label : f.plot().update().labels()) {
    if (label.lines.front().text() == QLatin1String("DR"))
      isLabelled = label.candidate.box(label.spot).bounds().adjusted(-24.0, -24.0, 24.0, 24.0).contains(center);
  }
  QVERIFY(isLabelled); // beside what is drawn of it
}

void TestFirstView::boxesAreNoLouderThanWhatTheyTell() {
  GeneralSettings::instance().setValue(QStringLiteral("build labels"), QStringLiteral("off"));
  const auto inked = [](const char *state) {
    ViewFixture f;
    element subnet = makeElement({{"name", "Station"}, {"type", "sub"}, {"x", "50"}, {"y", "60"}});
    if (*state != '\0')
      subnet.set(QStringLiteral("state"), QString::fromLatin1(state));
    f.net.addElement(subnet);
    show(f);
    const QImage picture = f.picture();
    int ink = 0;
    for (int y = -26; y <= 26; ++y)
      for (int x = -26; x <= 26; ++x)
        ink += picture.pixelColor(f.pixel(50, 60) + QPoint(x, y)).lightness() < 250 ? 1 : 0;
    return ink;
  };
  const int unknown = inked("");
  QVERIFY2(unknown < 700, qPrintable(QString::number(unknown))); // of a box of 32 pixels: a frame and a symbol
  QVERIFY(inked("off") > unknown + 300);                         // the ground tells something
}

void TestFirstView::crowdedLinesLeaveRoomAndShowTheBroadOnes() {
  constexpr int Side = 180; // 64,000 lines
  ViewFixture f;
  addGrid(f, Side, Side);
  f.net.edges().erase(QStringLiteral("AB"));
  NetGeometry geometry;
  GeometryReader::read(f.net, {}, geometry);
  EdgeLayer layer;
  layer.setEdges(geometry);
  std::vector<EdgeLook> looks(geometry.edges().size());
  for (std::size_t i = 0; i < looks.size(); ++i) {
    const bool isBroad = geometry.edges()[i].source->value(QStringLiteral("diameter")) == QLatin1String("1000");
    looks[i].color = isBroad ? qRgb(200, 0, 0) : qRgb(0, 0, 200);
    looks[i].width = isBroad ? 5.0 : 1.5;
  }
  layer.setLooks(looks);
  for (const double pixels : {0.4, 0.2, 0.1}) { // 4, 2 and 1 pixel a line
    QImage image(1000, 800, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    layer.draw(&painter, xMap(pixels), yMap(pixels), image.rect());
    painter.end();
    const int side = qRound(Side * 10 * pixels);
    int strong = 0;
    for (int y = 799; y > 800 - side; --y) {
      for (int x = 0; x < side; ++x)
        strong += image.pixelColor(x, y).blue() - image.pixelColor(x, y).red() > 130 ? 1 : 0;
    }
    QVERIFY2(strong < side * side / 5, qPrintable(QStringLiteral("%1 of %2").arg(strong).arg(side * side))); // no blot
    const int row = 800 - qRound(80 * 10 * pixels);                                                          // a broad line
    int red = 0;
    for (int x = 0; x < side; ++x) {
      bool isRed = false;
      for (int y = -1; y <= 1; ++y)
        isRed = isRed || image.pixelColor(x, row + y).red() - image.pixelColor(x, row + y).blue() > 60;
      red += isRed ? 1 : 0;
    }
    QVERIFY2(red > side * 0.8, qPrintable(QStringLiteral("%1 of %2").arg(red).arg(side)));
  }
}

/// A crowd of large suppliers in one corner leaves the others their names.
void TestFirstView::namesAreSpreadOverTheDrawing() {
  ViewFixture f;
  f.net.clear();
  constexpr int Crowd = 12; // to each side
  const auto add = [&f](const QByteArray &name, double x, double y, const char *flow) {
    f.addNode(name, QByteArray::number(x), QByteArray::number(y), "50");
    f.net.element(QString::fromLatin1(name))->set(QStringLiteral("qset"), QString::fromLatin1(flow));
  };
  for (int i = 0; i < Crowd * Crowd; ++i)
    add("C" + QByteArray::number(i), i % Crowd * 20.0, i / Crowd * 20.0, "-500");
  QStringList remote;
  for (int i = 0; i < 9; ++i) {
    if (i == 0)
      continue; // the crowd's own corner
    const QByteArray name = "R" + QByteArray::number(i);
    add(name, 100.0 + i % 3 * 250.0, 100.0 + i / 3 * 200.0, "-1");
    remote.append(QString::fromLatin1(name));
  }
  for (int i = 1; i < Crowd * Crowd; ++i)
    f.add(makeEdge("P" + QByteArray::number(i), "C" + QByteArray::number(i - 1), "C" + QByteArray::number(i)), {});
  f.addNode("lower left", "-100", "-100", "50"); // room at the sides
  f.addNode("upper right", "750", "650", "50");
  f.plot().resize(900, 700);
  show(f);
  f.plot().update().requestPixtest(-1);
  const QStringList named = namesIn(f.plot().update());
  const auto count =
      std::count_if(remote.begin(), remote.end(), [&named](const QString &name) { return named.contains(name); });
  QVERIFY2(count >= remote.size() - 1, qPrintable(named.join(QLatin1Char(' ')))); // one stands close to the crowd
  QVERIFY(named.size() > remote.size() && named.size() < 50);
}

void TestFirstView::stationsAreNamedAtFirstSight() {
  ViewFixture f;
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("qset"), QStringLiteral("-5"));
  f.net.element(QStringLiteral("D"))->set(QStringLiteral("qset"), QStringLiteral("5"));
  show(f);
  NetUpdate &update = f.plot().update();
  update.requestPixtest(-1);
  QVERIFY(update.labels().empty());
  QCOMPARE(namesIn(update), (QStringList{QStringLiteral("A"), QStringLiteral("CD"), QStringLiteral("D")}));
  std::vector<TurnedBox> boxes;
  for (const Label &label : update.names())
    boxes.push_back(label.candidate.box(label.spot));
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    for (std::size_t k = i + 1; k < boxes.size(); ++k)
      QVERIFY(!boxes[i].overlaps(boxes[k]));
    for (const SymbolLayer::Placed &placed : update.determineVisibleSymbols())
      QVERIFY(!boxes[i].bounds().intersects(placed.obstacle()));
  }
  const QImage named = f.picture();
  GeneralSettings::instance().setValue(QStringLiteral("build labels"), QStringLiteral("off"));
  update.requestPixtest(-1);
  QVERIFY(update.names().empty());
  QVERIFY(f.picture() != named); // they were painted
}

void TestFirstView::namesFollowTheSettings() {
  ViewFixture f;
  show(f);
  NetUpdate &update = f.plot().update();
  update.requestPixtest(-1);
  QCOMPARE(namesIn(update), QStringList{QStringLiteral("CD")});
  GeneralSettings::instance().setValue(QStringLiteral("perform label placement"), QStringLiteral("never"));
  update.requestPixtest(-1);
  QVERIFY(update.names().empty());
  GeneralSettings::instance().reset();
  update.requestPixtest(-1);
  QVERIFY(!update.names().empty());
  setLabelMode(f, "no label");
  QVERIFY(update.names().empty());
  setLabelMode(f, "name only");
  update.requestPixtest(-1);
  QVERIFY(!update.names().empty());
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis.layer"), QStringLiteral("stations"));
  update.setHiddenLayers(QStringLiteral("vis.layer"), {QStringLiteral("stations")});
  update.updatePlot();
  QVERIFY(update.names().empty());
}

void TestFirstView::namesGiveWayToLabels() {
  ViewFixture f;
  show(f);
  NetUpdate &update = f.plot().update();
  update.requestPixtest(-1);
  QVERIFY(!update.names().empty() && update.labels().empty());
  zoomTo(f, QRectF(180, 30, 40, 25));
  QVERIFY(update.names().empty() && !update.labels().empty());
  f.plot().zoomer()->fitAll();
  QTRY_VERIFY(!update.names().empty() && update.labels().empty());
}

void TestFirstView::machinesOfOneStationAreNamedByIt() {
  const auto named = [](const char *first, const char *second) {
    ViewFixture f;
    f.addNode("C2", "200.5", "0", "40");
    f.addNode("D2", "200.5", "100", "60");
    f.net.element(QStringLiteral("CD"))->set(QStringLiteral("type"), QStringLiteral("p"));
    f.net.element(QStringLiteral("CD"))->set(QStringLiteral("node2"), QStringLiteral("A"));
    f.add(makeEdge(first, "C", "D", "c"), {});
    f.add(makeEdge(second, "C2", "D2", "c"), {});
    show(f);
    f.plot().update().requestPixtest(-1);
    return namesIn(f.plot().update());
  };
  QCOMPARE(named("CS_Rehden_C1", "CS_Rehden_C2"), QStringList{QStringLiteral("CS_Rehden")});
  const QStringList single = named("station_1", "station_2"); // "station" alone tells nothing
  QVERIFY2(single.size() == 1 && single.front().startsWith(QLatin1String("station_")),
           qPrintable(single.join(QLatin1Char(','))));
}

NIVRA_TEST(TestFirstView);
#include "tst_firstview.moc"
