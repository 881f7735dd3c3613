#include "geometry/drawngraph.h"
#include "geometry/geometryreader.h"
#include "viewfixture.h"

#include <base/nivramsg.h>
#include <drawing/drawfunctions.h>
#include <support/nivratest.h>

#include <QSet>
#include <QSignalSpy>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

namespace {

QColor hue(int degrees) {
  return QColor::fromHsv(degrees, 255, 215);
}

bool isNear(const QColor &a, const QColor &b) {
  constexpr int Tolerance = 6;
  return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) <= Tolerance;
}

/// The colours of the bar beside the drawing, from its upper end to its lower, without its frame.
std::vector<QColor> barColours(ViewFixture &f) {
  const QwtScaleWidget *scale = f.plot().plot()->axisWidget(QwtPlot::yRight);
  const QRectF bar = scale->colorBarRect(scale->contentsRect());
  const QPoint corner = scale->mapTo(&f.plot(), bar.topLeft().toPoint());
  const QImage picture = f.picture();
  std::vector<QColor> colours;
  for (int y = 2; y < static_cast<int>(bar.height()) - 2; ++y)
    colours.push_back(picture.pixelColor(corner + QPoint(static_cast<int>(bar.width() * 0.5), y)));
  return colours;
}

} // namespace

class TestNetUpdate : public QObject {
  Q_OBJECT

private slots:
  void functionNames_data();
  void functionNames();
  void defaultsSuitTheNetwork();
  void edgesAreColoredByTheMeanOfTheirEnds();
  void edgesOutOfUseAndWithoutFlow();
  void fixedBounds();
  void scaleIsInTheDisplayUnit();
  void withoutValuesThereIsNoScale();
  void graphFunctionsAreComputed();
  void stationsHaveSymbols();
  void textBoxesAreWritten();
  void nothingToDrawIsSaid();
  void firstViewFitsTheMainBody();
  void constantHasItsOwnColour();
  void noiseIsOneColour();
  void ticksTellThemselvesApart();
  void openBoundsLeaveOutliers_data();
  void openBoundsLeaveOutliers();
  void divergingKeepsFixedBounds();
  void valuesOfTheEnds();
  void drivesStretchNoScale();
  void scalesNameWhatTheyColour();
  void searchHasNoScale();
  void awkwardPlaces_data();
  void awkwardPlaces();
  void timesGoToTheLogFileAlone();
};

void TestNetUpdate::functionNames_data() {
  QTest::addColumn<QString>("function");
  QTest::addColumn<QString>("property");
  QTest::newRow("chosen by label") << QStringLiteral("volume flow") << QStringLiteral("q");
  QTest::newRow("chosen by property") << QStringLiteral("q") << QStringLiteral("q");
  QTest::newRow("of the user's own") << QStringLiteral("price") << QStringLiteral("price");
}

void TestNetUpdate::functionNames() {
  QFETCH(QString, function);
  QFETCH(QString, property);
  QCOMPARE(DrawFunction::propertyName(function), property);
}

void TestNetUpdate::defaultsSuitTheNetwork() {
  ViewFixture f;
  f.show();
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].name, QStringLiteral("p"));
  QCOMPARE(f.plot().settings().functions[Aspect::NodeColor].name, QStringLiteral("p"));
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeWidth].name, QStringLiteral("diameter"));

  ViewFixture bare; // a geometry without results
  bare.net.forEach(NetData::AllTypes, [](element &e) { e.erase(QStringLiteral("p")); });
  bare.show();
  QCOMPARE(bare.plot().settings().functions[Aspect::EdgeColor].name, QStringLiteral("diameter"));
}

void TestNetUpdate::edgesAreColoredByTheMeanOfTheirEnds() {
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("diameter"), QStringLiteral("100"));
  f.show();
  const QImage picture = f.picture();
  // 20 to 60 bar from blue (240 degrees) to red (0 degrees): AB has 25 bar, BC has 35 bar. Arrows stand in the middle.
  QVERIFY(isNear(picture.pixelColor(f.pixel(25, 0)), hue(210)));
  QVERIFY(isNear(picture.pixelColor(f.pixel(125, 0)), hue(150)));
  QVERIFY(isNear(picture.pixelColor(f.pixel(50, 50)), Qt::white));
  // The smallest width is one pixel, the largest five; AB is in between.
  QVERIFY(isNear(picture.pixelColor(f.pixel(125, 0) + QPoint(0, 1)), hue(150)));
  QVERIFY(!isNear(picture.pixelColor(f.pixel(25, 0) + QPoint(0, 2)), hue(210)));
}

void TestNetUpdate::edgesOutOfUseAndWithoutFlow() {
  ViewFixture f;
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("state"), QStringLiteral("closed"));
  f.net.forEach(NetData::Edge, [](element &e) { e.set(QStringLiteral("diameter"), QStringLiteral("100")); });
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("q"), QStringLiteral("0"));
  f.addNode("X", "100", "50", "none");
  f.add(makeEdge("BX", "B", "X"), {{"diameter", "100"}, {"q", "1"}});
  f.show();
  PlotSettings broad = f.plot().settings();
  broad.functions[Aspect::EdgeWidth].name = QStringLiteral("diameter");
  broad.edgeConst = 4;
  f.plot().setSettings(broad);
  f.plot().update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::Edges);
  const QImage picture = f.picture();
  QVERIFY(isNear(picture.pixelColor(f.pixel(50, 0)), f.plot().settings().edgeColorInactive));
  QVERIFY(isNear(picture.pixelColor(f.pixel(150, 0)), f.plot().settings().edgeColorNoFlow));
  const QColor withoutValue = picture.pixelColor(f.pixel(100, 25));
  QVERIFY(withoutValue.saturation() < 20 && withoutValue.value() < 230);
}

void TestNetUpdate::fixedBounds() {
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("diameter"), QStringLiteral("100")); // AB is broad enough to see
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].minimum = 35; // BC at the low end
  settings.functions[Aspect::EdgeColor].maximum = 45;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::Edges);
  const QImage picture = f.picture();
  QVERIFY(isNear(picture.pixelColor(f.pixel(125, 0)), hue(240)));
  QVERIFY(
      isNear(picture.pixelColor(f.pixel(25, 0)), QColor(hue(240)).darker(140))); // 25 bar lie below, as the scale's cap says
  QVERIFY(f.plot().plot()->axisInterval(QwtPlot::yRight).minValue() < 35);
  QVERIFY(f.plot().plot()->axisInterval(QwtPlot::yRight).maxValue() > 45); // CD
  settings.functions[Aspect::EdgeColor].minimum = 1e6;                     // longer numbers need more room, at once
  settings.functions[Aspect::EdgeColor].maximum = 9e6;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::Edges);
  const QwtScaleWidget *scale = f.plot().plot()->axisWidget(QwtPlot::yRight);
  QVERIFY(scale->width() >= scale->dimForLength(scale->height(), scale->font()));
  for (const auto &[low, high] : {std::make_pair(50.0, 45.0), {qInf(), qInf()}, {qQNaN(), qQNaN()}}) {
    settings.functions[Aspect::EdgeColor].minimum = low; // upside down or no numbers: the range of the data
    settings.functions[Aspect::EdgeColor].maximum = high;
    f.plot().setSettings(settings);
    f.plot().update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::Edges);
    QCOMPARE(f.plot().plot()->axisInterval(QwtPlot::yRight), QwtInterval(20, 60));
  }
}

void TestNetUpdate::scaleIsInTheDisplayUnit() {
  ViewFixture f;
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("t"), QStringLiteral("273.15"));
  f.net.element(QStringLiteral("B"))->set(QStringLiteral("t"), QStringLiteral("293.15"));
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("temperature");
  settings.functions[Aspect::NodeColor].name =
      settings.functions[Aspect::EdgeColor].name; // else nodes have a scale of their own on the right
  settings.functions[Aspect::NodeColor].isAbsolute = settings.functions[Aspect::EdgeColor].isAbsolute;
  settings.colorScalePos = QwtPlot::xTop;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::Edges);
  const QwtFastPlot &area = *f.plot().plot();
  QVERIFY(area.axisEnabled(QwtPlot::xTop) && !area.axisEnabled(QwtPlot::yRight));
  QVERIFY(area.axisWidget(QwtPlot::xTop)->isColorBarEnabled());
  QVERIFY(qAbs(area.axisInterval(QwtPlot::xTop).maxValue() - 20.0) < 1e-9);
  QVERIFY(area.axisTitle(QwtPlot::xTop).text().contains(QStringLiteral("[°C]")));
}

void TestNetUpdate::withoutValuesThereIsNoScale() {
  ViewFixture f;
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("nobody has this");
  settings.functions[Aspect::NodeColor].name = settings.functions[Aspect::EdgeColor].name;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot(NetUpdate::Elements::Renewed);
  QVERIFY(!f.plot().plot()->axisEnabled(QwtPlot::yRight));
  QVERIFY(!isNear(f.picture().pixelColor(f.pixel(150, 0)), Qt::white));
}

// A ring of four nodes with a supply, a closed valve behind which two more lie, and one node alone.
void TestNetUpdate::graphFunctionsAreComputed() {
  NetData net;
  for (const char *name : {"A", "B", "C", "D", "E", "F", "G"})
    net.addElement(makeNode(name));
  net.element(QStringLiteral("A"))->set(QStringLiteral("qset"), QStringLiteral("-5"));
  net.addElement(makeElement({{"name", "Z"}, {"type", "d"}})); // a drive is no part of the network
  const auto pipe = [&](const char *name, const char *node1, const char *node2, const char *length) {
    element edge = makeEdge(name, node1, node2);
    edge.set(QStringLiteral("length"), QString::fromLatin1(length));
    net.addElement(std::move(edge));
  };
  pipe("AB", "A", "B", "100");
  pipe("BC", "B", "C", "100");
  pipe("DA", "D", "A", "50");
  pipe("CD", "C", "D", "30");
  pipe("EF", "E", "F", "10");
  element valve = makeEdge("BE", "B", "E", "v");
  valve.set(QStringLiteral("state"), QStringLiteral("closed"));
  net.addElement(valve);
  NetGeometry geometry;
  GeometryReader::read(net, {}, geometry);
  const DrawnGraph graph(geometry);
  constexpr double None = NetData::NoValue;
  QCOMPARE(graph.components(), (std::vector<double>{1, 1, 1, 1, 2, 2, 3, None}));
  const ValueRequest lengths{{{PropertyKey::intern("length"), true}}, {}};
  const std::vector<double> distances = graph.distances(GeometryReader::readValues(geometry, lengths).ofEdges.front());
  QCOMPARE(distances, (std::vector<double>{0, 100, 80, 50, None, None, None, None}));

  ViewFixture f;
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("state"), QStringLiteral("off"));
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("connectivity");
  settings.functions[Aspect::NodeColor].name = settings.functions[Aspect::EdgeColor].name;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  QCOMPARE(f.plot().plot()->axisInterval(QwtPlot::yRight), QwtInterval(1, 2));
}

void TestNetUpdate::stationsHaveSymbols() {
  ViewFixture f;
  f.show();
  const QImage picture = f.picture();
  const QPoint middle = f.pixel(200, 50);
  bool isDark = false; // the ring of the compressor
  for (int x = 0; x < 12; ++x)
    isDark = isDark || picture.pixelColor(middle + QPoint(x, 0)).value() < 100;
  QVERIFY(isDark);
}

void TestNetUpdate::textBoxesAreWritten() {
  ViewFixture f;
  f.add(makeElement({{"name", "T"}, {"type", "t"}, {"x", "80"}, {"y", "60"}}),
        {{"text", "█████"}, {"vis.color", "#0000ff"}, {"vis.font", "Arial,20,-1,5,50,0,0,0,0,0"}});
  f.show();
  const QImage picture = f.picture();
  bool isBlue = false;
  for (int y = -10; y < 10; ++y)
    isBlue = isBlue || isNear(picture.pixelColor(f.pixel(80, 60) + QPoint(0, y)), Qt::blue);
  QVERIFY(isBlue);
}

void TestNetUpdate::nothingToDrawIsSaid() {
  ViewFixture f;
  f.net.clear();
  f.show();
  const QImage picture = f.picture();
  int inked = 0;
  for (int x = 0; x < picture.width(); ++x)
    inked += picture.pixelColor(x, picture.height() / 2).value() < 240 ? 1 : 0;
  QVERIFY(inked > 10);
}

void TestNetUpdate::firstViewFitsTheMainBody() {
  ViewFixture f;
  f.net.clear();
  for (int i = 0; i < 30; ++i)
    f.net.addElement(makeNode(qPrintable(QStringLiteral("N%1").arg(i)), qPrintable(QString::number(500000 + i * 100)),
                              qPrintable(QString::number(5600000 + i % 5 * 100))));
  f.show();
  QVERIFY(!f.plot().hasStragglers());
  f.net.addElement(makeNode("lost")); // at the origin
  f.show();
  QVERIFY(f.plot().hasStragglers());
  const QRectF body(500000, 5600000, 2900, 400);
  QVERIFY(f.plot().plot()->visibleRect().contains(body));
  QVERIFY(f.plot().plot()->visibleRect().width() < 10000);
  f.plot().showStragglers();
  QVERIFY(!f.plot().hasStragglers());
  QVERIFY(f.plot().plot()->visibleRect().contains(body) && f.plot().plot()->visibleRect().contains(QPointF(0, 0)));
}

void TestNetUpdate::constantHasItsOwnColour() {
  ViewFixture f;
  for (const char *name : {"A", "B", "C", "D"})
    f.net.element(QString::fromLatin1(name))->set(QStringLiteral("p"), QStringLiteral("42"));
  f.plot().show();
  f.show();
  PlotSettings settings = f.plot().settings(); // left alone, the program takes what tells elements apart
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("p");
  settings.functions[Aspect::NodeColor].name = settings.functions[Aspect::EdgeColor].name;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  const std::vector<QColor> bar = barColours(f);
  QVERIFY(bar.size() > 100);
  for (const QColor &colour : bar)
    QVERIFY2(isNear(colour, hue(120)), qPrintable(colour.name()));
  QVERIFY(isNear(f.picture().pixelColor(f.pixel(125, 0)), hue(120)));
  QCOMPARE(f.plot().plot()->axisScaleDiv(QwtPlot::yRight).ticks(QwtScaleDiv::MajorTick), QList<double>{42.0});
}

void TestNetUpdate::noiseIsOneColour() {
  ViewFixture f;
  const auto press = [&f](const char *a, const char *b, const char *c, const char *d) {
    const std::pair<const char *, const char *> values[] = {{"A", a}, {"B", b}, {"C", c}, {"D", d}};
    for (const auto &[name, p] : values)
      f.net.element(QString::fromLatin1(name))->set(QStringLiteral("p"), QString::fromLatin1(p));
    f.show();
    const QImage picture = f.picture();
    return std::make_pair(picture.pixelColor(f.pixel(25, 0)), picture.pixelColor(f.pixel(125, 0)));
  };
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("diameter"), QStringLiteral("100")); // AB is broad enough to see
  auto [ab, bc] = press("69.999993", "69.999995", "70", "69.999999");
  QCOMPARE(ab, bc);
  std::tie(ab, bc) = press("69.5", "69.6", "70", "69.9"); // more than a thousandth
  QVERIFY(ab != bc);
}

void TestNetUpdate::ticksTellThemselvesApart() {
  ViewFixture f;
  f.show();
  PlotSettings settings = f.plot().settings();
  const std::pair<double, double> ranges[] = {{69.99, 70.0}, {69.999993, 70.0}, {0.0, 0.0004},
                                              {-2e-7, 3e-7}, {0, 85},           {1e6, 9e6}};
  for (const auto &[low, high] : ranges) {
    settings.functions[Aspect::EdgeColor].minimum = low;
    settings.functions[Aspect::EdgeColor].maximum = high;
    f.plot().setSettings(settings);
    f.plot().update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::Edges);
    const QwtScaleDraw *scale = f.plot().plot()->axisScaleDraw(QwtPlot::yRight);
    const QList<double> ticks = scale->scaleDiv().ticks(QwtScaleDiv::MajorTick);
    QVERIFY(ticks.size() > 2);
    QSet<QString> texts;
    for (const double tick : ticks) {
      const QString text = scale->label(tick).text();
      texts.insert(text);
      const double step = ticks.at(1) - ticks.at(0);
      QVERIFY2(qAbs(text.toDouble() - tick) < step * 0.01, qPrintable(text));
    }
    QCOMPARE(texts.size(), ticks.size());
  }
}

void TestNetUpdate::openBoundsLeaveOutliers_data() {
  QTest::addColumn<int>("count");
  QTest::addColumn<double>("outlier");
  QTest::addColumn<double>("low");
  QTest::addColumn<double>("high");
  // Values 1001, 1002, 1003 … and one far away.
  QTest::newRow("two in a hundred at either end") << 200 << 1e6 << 1005.0 << 1196.0;
  QTest::newRow("few values") << 40 << 1e6 << 1001.0 << 1e6;
  QTest::newRow("below") << 200 << 1.0 << 1004.0 << 1195.0;
}

void TestNetUpdate::openBoundsLeaveOutliers() {
  QFETCH(int, count);
  QFETCH(double, outlier);
  QFETCH(double, low);
  QFETCH(double, high);
  ViewFixture f;
  f.net.clear();
  for (int i = 0; i < count; ++i)
    f.addNode(qPrintable(QStringLiteral("n%1").arg(i)), qPrintable(QString::number(i)), "0",
              qPrintable(QString::number(i == 0 ? outlier : 1000 + i)));
  f.add(makeEdge("e", "n1", "n2"), {});
  f.showAtFirst();
  const DrawValues::Column &nodes = f.plot().update().values().of(Aspect::NodeColor);
  QCOMPARE(nodes.data, outlier > 1000.0 ? QwtInterval(1001, outlier) : QwtInterval(outlier, 999 + count));
  QCOMPARE(nodes.range, QwtInterval(low, high));

  PlotSettings settings = f.plot().settings(); // what a person fixes stays, and so do bounds of settings that say nothing
  settings.functions[Aspect::NodeColor].minimum = -3.0;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  QCOMPARE(nodes.range, QwtInterval(-3.0, high));
  settings.functions[Aspect::NodeColor].minimum = PlotSettings::OpenMinimum;
  settings.quantileBounds = false;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  QCOMPARE(nodes.range, nodes.data);
  f.show(); // of one value and one outlier, the outlier has a colour of its own
  f.net.forEach(NetData::Node, [](element &e) { e.set(QStringLiteral("p"), QStringLiteral("7")); });
  f.net.element(QStringLiteral("n0"))->set(QStringLiteral("p"), QStringLiteral("9"));
  settings.quantileBounds = true;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  QCOMPARE(nodes.range, QwtInterval(7, 9));
}

void TestNetUpdate::divergingKeepsFixedBounds() {
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("diameter"), QStringLiteral("100"));
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.colorRamp = QStringLiteral("diverging");
  const auto range = [&f, &settings](double low, double high) {
    settings.functions[Aspect::EdgeColor].minimum = low;
    settings.functions[Aspect::EdgeColor].maximum = high;
    f.plot().setSettings(settings);
    f.plot().update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::Edges);
    return f.plot().plot()->axisInterval(QwtPlot::yRight);
  };
  QCOMPARE(range(PlotSettings::OpenMinimum, PlotSettings::OpenMaximum), QwtInterval(-60, 60));
  QCOMPARE(range(10, 85), QwtInterval(10, 85));
  const QColor low = f.picture().pixelColor(f.pixel(25, 0)); // 25 bar
  QVERIFY2(low.blue() > low.red() + 40, qPrintable(low.name()));
  QCOMPARE(range(PlotSettings::OpenMinimum, 90), QwtInterval(-90, 90));
}

void TestNetUpdate::valuesOfTheEnds() {
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("diameter"), QStringLiteral("100")); // AB is broad enough to see
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("q"), QStringLiteral("-5"));         // against its direction
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("pin"), QStringLiteral("41"));       // measured, it counts more
  for (const auto &[name, t] : {std::make_pair("A", "280"), {"B", "285"}, {"C", "293"}})
    f.net.element(QString::fromLatin1(name))->set(QStringLiteral("t"), QString::fromLatin1(t));
  f.show();
  const auto values = [&f](const char *function) {
    PlotSettings settings = f.plot().settings();
    settings.functions[Aspect::EdgeColor].name = QString::fromLatin1(function);
    f.plot().setSettings(settings);
    f.plot().update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::Edges);
    return f.plot().update().values().of(Aspect::EdgeColor).ofElements;
  };
  constexpr double None = NetData::NoValue;
  QCOMPARE(values("input pressure"), (std::vector<double>{20, 40, 41}));
  QVERIFY(isNear(f.picture().pixelColor(f.pixel(25, 0)), hue(240)));
  QVERIFY(f.plot().plot()->axisTitle(QwtPlot::yRight).text().contains(QStringLiteral("input pressure [bar]")));
  QCOMPARE(values("input temperature"), (std::vector<double>{280, 293, 293}));
  QCOMPARE(values("temperature diff"), (std::vector<double>{-5, -8, None}));
  QVERIFY(f.plot().plot()->axisEnabled(QwtPlot::yRight));
}

void TestNetUpdate::drivesStretchNoScale() {
  ViewFixture f;
  f.add(makeNode("Drive", "10", "10"), {{"type", "d"}, {"p", "900"}});
  PlotSettings settings;
  settings.functions[Aspect::EdgeColor].name = settings.functions[Aspect::EdgeWidth].name =
      settings.functions[Aspect::NodeColor].name = settings.functions[Aspect::NodeSize].name = QStringLiteral("pressure");
  f.show();
  f.plot().setSettings(settings);
  f.plot().update().updatePlot(NetUpdate::Elements::Renewed);
  const DrawValues &values = f.plot().update().values();
  for (const DrawValues::Column *column : {&values.of(Aspect::EdgeColor), &values.of(Aspect::EdgeWidth),
                                           &values.of(Aspect::NodeColor), &values.of(Aspect::NodeSize)})
    QCOMPARE(column->data, QwtInterval(20, 60));
}

void TestNetUpdate::scalesNameWhatTheyColour() {
  ViewFixture f;
  f.plot().show();
  f.show();
  const QwtFastPlot &area = *f.plot().plot();
  const auto title = [&area](int axis) {
    return area.axisTitle(axis).text();
  };
  QVERIFY(title(QwtPlot::yRight).startsWith(QStringLiteral("edges and nodes: pressure")));
  QVERIFY(!area.axisEnabled(QwtPlot::xTop));

  f.net.element(QStringLiteral("A"))->set(QStringLiteral("height"), QStringLiteral("5"));
  f.net.element(QStringLiteral("B"))->set(QStringLiteral("height"), QStringLiteral("500"));
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::NodeColor].name = QStringLiteral("height");
  const auto update = [&f, &settings] {
    f.plot().setSettings(settings);
    f.plot().update().updatePlot();
  };
  update();
  QVERIFY(title(QwtPlot::yRight).startsWith(QStringLiteral("edges: pressure")));
  QVERIFY(area.axisEnabled(QwtPlot::xTop) && area.axisWidget(QwtPlot::xTop)->isColorBarEnabled());
  QVERIFY(title(QwtPlot::xTop).startsWith(QStringLiteral("nodes: height [m]")));
  QCOMPARE(area.axisInterval(QwtPlot::xTop), QwtInterval(5, 500));

  settings.functions[Aspect::NodeColor].name =
      settings.functions[Aspect::EdgeColor].name; // bounds of their own: a colour no longer means the same of both
  settings.functions[Aspect::NodeColor].maximum = 30;
  update();
  QVERIFY(area.axisEnabled(QwtPlot::xTop) && title(QwtPlot::xTop).startsWith(QStringLiteral("nodes: pressure")));

  f.net.forEach(NetData::Node, [](element &e) { e.erase(QStringLiteral("p")); });
  settings.legendPos = 1;
  update();
  QVERIFY(!area.axisEnabled(QwtPlot::xTop) && !area.axisEnabled(QwtPlot::yRight));
  QCOMPARE(f.plot().legend().label().text(), QStringLiteral("Width: abs. diameter"));
}

void TestNetUpdate::searchHasNoScale() {
  ViewFixture f;
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("isSearchResult"), QStringLiteral("1"));
  f.plot().show();
  f.show();
  f.control.setShowsSearchResults(true);
  QApplication::processEvents();
  QVERIFY(!f.plot().plot()->axisEnabled(QwtPlot::yRight));
  QVERIFY(!f.plot().legend().label().text().contains(QStringLiteral("Color: p")));
  f.control.setShowsSearchResults(false);
  QApplication::processEvents();
  QVERIFY(f.plot().plot()->axisEnabled(QwtPlot::yRight));
}

void TestNetUpdate::awkwardPlaces_data() {
  QTest::addColumn<QByteArray>("x");
  QTest::addColumn<QByteArray>("y");
  QTest::newRow("all on one point") << QByteArray("100") << QByteArray("0");
  QTest::newRow("far away") << QByteArray("9e19") << QByteArray("-9e19");
  QTest::newRow("beyond numbers") << QByteArray("inf") << QByteArray("nan");
  QTest::newRow("out of bounds") << QByteArray("1e25") << QByteArray("1");
  QTest::newRow("text") << QByteArray("here") << QByteArray("");
}

void TestNetUpdate::awkwardPlaces() {
  QFETCH(QByteArray, x);
  QFETCH(QByteArray, y);
  ViewFixture f;
  const bool all = qstrcmp(QTest::currentDataTag(), "all on one point") == 0;
  for (const char *name : {"A", "B", "C", "D"}) {
    if (!all && *name != 'D')
      continue;
    element *node = f.net.element(QString::fromLatin1(name));
    node->set(QStringLiteral("x"), QString::fromLatin1(x));
    node->set(QStringLiteral("y"), QString::fromLatin1(y));
  }
  f.show();
  QVERIFY(!f.picture().isNull());
  f.plot().zoomer();
  const QRectF shown = f.plot().plot()->visibleRect();
  QVERIFY(shown.width() > 0.0 && std::isfinite(shown.width()));
  QVERIFY(shown.contains(QPointF(100, 0)));
}

/// Each redraw takes its time; that is for whoever reads the log file, not for the dock of messages.
void TestNetUpdate::timesGoToTheLogFileAlone() {
  ViewFixture f;
  f.plot().show();
  QSignalSpy told(&NivraMsg::NivraLogger::instance(), &NivraMsg::NivraLogger::msgConsole);
  for (const char *line : {"after rebuild edges:", "after update edge curves:", "after update nodes:", "Plot update:",
                           "determineVisibleSymbols\\(\\) took", "Pixtest_noLabels \\(incl\\. last update_subnets\\):"})
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^ *%1 [0-9.e-]+ sec\\.$").arg(QLatin1String(line))));
  f.show();
  QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("after update edges: [0-9.e-]+ sec\\.$")));
  f.control.setShowsSearchResults(true);
  QApplication::processEvents();
  for (const QList<QVariant> &text : told)
    QVERIFY2(!text.first().toString().contains(QStringLiteral(" sec.")), qPrintable(text.first().toString()));
  QVERIFY(!told.isEmpty()); // that it is drawn is told
}

NIVRA_TEST(TestNetUpdate);
#include "tst_netupdate.moc"
