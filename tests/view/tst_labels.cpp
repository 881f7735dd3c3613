#include "geometry/geometryreader.h"
#include "interaction/plotzoom.h"
#include "viewfixture.h"

#include <base/generalsettings.h>
#include <drawing/labelcontents.h>
#include <drawing/labelplacement.h>
#include <model/netmetadata.h>
#include <support/nivratest.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <random>

class TestLabels : public QObject {
  Q_OBJECT

private slots:
  void cleanup() { GeneralSettings::instance().reset(); }
  void boxesThatAreFreeNeverOverlap();
  void marginIsKept();
  void lineLabelsStandUpright_data();
  void lineLabelsStandUpright();
  void linesAreSparedWherePossible();
  void keptLabelsStayWhole();
  void numbersAsAPersonWritesThem_data();
  void numbersAsAPersonWritesThem();
  void contentsFollowTheTable_data();
  void contentsFollowTheTable();
  void costlyFormulasAreGivenUp();
  void longContentsAreCut();
  void styleFollowsElementThenTable();
  void contentsAreMadeOnce();
  void labelsInTheDrawing();
  void labelsStayWherePanned();
  void importantOnesComeFirst();
  void modes_data();
  void modes();
  void visibility_data();
  void visibility();
  void onlySymbolsFollowWhenLabelsAreOff();
  void labelsThatWentStayAway();
  void numbersBesideEachOtherLookAlike();
  void richTextTakesTheColourOfTheTable();
  void entitiesAreCharacters();
  void richTextOpensNothing();
  void richTextIsBounded();
  void everyTypeIsShownAsTheTableSays_data();
  void everyTypeIsShownAsTheTableSays();

private:
  static LabelCandidate point(const QPointF &place, const QSizeF &size) {
    LabelCandidate candidate;
    candidate.line = {place, place};
    candidate.clearance = 4.0;
    candidate.size = size;
    return candidate;
  }
  static int overlaps(const std::vector<TurnedBox> &boxes) {
    int count = 0;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
      for (std::size_t k = i + 1; k < boxes.size(); ++k)
        count += boxes[i].overlaps(boxes[k]) ? 1 : 0;
    }
    return count;
  }
  static std::vector<TurnedBox> boxesOf(const NetUpdate &update) {
    std::vector<TurnedBox> boxes;
    for (const Label &label : update.labels())
      boxes.push_back(label.candidate.box(label.spot));
    return boxes;
  }
  static int pixels(const QImage &image, const QColor &color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        count += image.pixelColor(x, y) == color ? 1 : 0;
    return count;
  }
  static QStringList namesOf(const NetUpdate &update) {
    QStringList names;
    for (const Label &label : update.labels())
      names.append(update.geometry().source(label.candidate.item)->value(QStringLiteral("name")));
    names.sort();
    return names;
  }
};

void TestLabels::boxesThatAreFreeNeverOverlap() {
  std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same boxes each time
  std::uniform_real_distribution<double> x(-20.0, 420.0);
  std::uniform_real_distribution<double> y(-20.0, 320.0);
  std::uniform_real_distribution<double> side(1.0, 60.0);
  std::uniform_real_distribution<double> angle(-90.0, 90.0);
  OccupancyGrid grid(QRectF(0, 0, 400, 300));
  std::vector<TurnedBox> taken;
  for (int i = 0; i < 3000; ++i) {
    const TurnedBox box({x(random), y(random)}, {side(random), side(random) * 0.4}, i % 2 == 0 ? 0.0 : angle(random));
    if (!QRectF(0, 0, 400, 300).contains(box.bounds()) || !grid.isFree(box))
      continue;
    grid.take(box);
    taken.push_back(box);
  }
  QVERIFY(taken.size() > 50);
  QCOMPARE(overlaps(taken), 0);
  QVERIFY(TurnedBox({50, 50}, {40, 10}, 0.0).overlaps(TurnedBox({50, 50}, {40, 10}, 90.0)));
  QVERIFY(!TurnedBox({50, 50}, {40, 10}, 45.0).overlaps(TurnedBox({50, 80}, {40, 10}, 45.0)));
}

void TestLabels::marginIsKept() {
  constexpr double Margin = 30.0;
  LabelPlacement placement(QRectF(0, 0, 600, 400), Margin);
  placement.addObstacle(QRectF(200, 0, 100, 400));
  std::vector<TurnedBox> placed;
  for (int i = 0; i < 400; ++i) {
    LabelSpot spot;
    const LabelCandidate candidate = point({30.0 * (i % 20), 20.0 * (i / 20)}, {50, 14});
    if (placement.place(candidate, spot))
      placed.push_back(candidate.box(spot).grown(Margin * 0.499));
  }
  QVERIFY(placed.size() > 5);
  QCOMPARE(overlaps(placed), 0);
  for (const TurnedBox &box : placed)
    QVERIFY(!box.grown(-Margin * 0.499).bounds().intersects(QRectF(201, 1, 98, 398)));
}

void TestLabels::lineLabelsStandUpright_data() {
  QTest::addColumn<QLineF>("line");
  QTest::addColumn<double>("angle");
  QTest::newRow("to the right") << QLineF(100, 200, 300, 200) << 0.0;
  QTest::newRow("to the left") << QLineF(300, 200, 100, 200) << 0.0;
  QTest::newRow("down") << QLineF(200, 100, 200, 300) << 90.0;
  QTest::newRow("slanted") << QLineF(300, 300, 100, 100) << 45.0;
  QTest::newRow("mostly outside") << QLineF(-5000, 200, 5000, 200) << 0.0;
}

void TestLabels::lineLabelsStandUpright() {
  QFETCH(QLineF, line);
  QFETCH(double, angle);
  LabelPlacement placement(QRectF(0, 0, 400, 400), 0.0);
  LabelCandidate candidate;
  candidate.isLine = true;
  candidate.line = line;
  candidate.clearance = 2.0;
  candidate.size = {80, 14};
  LabelSpot spot;
  QVERIFY(placement.place(candidate, spot));
  QVERIFY(qAbs(std::abs(spot.angle) - angle) < 1e-6);
  const QPointF center = candidate.anchor(spot.along) + spot.offset;
  QVERIFY(qAbs(distanceToLine(center, line) - 7.0) < 8.0); // beside it, not on it
  QVERIFY(distanceToLine(center, line) > 7.0);
}

void TestLabels::linesAreSparedWherePossible() {
  LabelPlacement placement(QRectF(0, 0, 400, 400), 0.0);
  placement.addLine({200, 200, 400, 200}, 3.0); // where a label would stand first
  LabelSpot spot;
  const LabelCandidate candidate = point({200, 200}, {60, 14});
  QVERIFY(placement.place(candidate, spot));
  QVERIFY(qAbs(spot.offset.y()) > 7.0);
}

void TestLabels::keptLabelsStayWhole() {
  const LabelCandidate candidate = point({370, 200}, {60, 14});
  LabelSpot spot;
  QVERIFY(LabelPlacement(QRectF(0, 0, 500, 400), 0.0).place(candidate, spot));
  QVERIFY(LabelPlacement(QRectF(0, 0, 500, 400), 0.0).keep(candidate, spot));
  LabelPlacement narrower(QRectF(0, 0, 400, 400), 0.0); // as with a dock at the side
  QVERIFY(!narrower.keep(candidate, spot));
  QVERIFY(narrower.place(candidate, spot));
  QVERIFY(candidate.box(spot).bounds().right() <= 400.0);
}

void TestLabels::numbersAsAPersonWritesThem_data() {
  QTest::addColumn<double>("value");
  QTest::addColumn<QString>("unit");
  QTest::addColumn<QString>("text");
  QTest::newRow("pressure") << 62.503 << QStringLiteral("bar") << QStringLiteral("62.5 bar");
  QTest::newRow("thousands in the unit") << 5.2 << QStringLiteral("1000 m3/h") << QStringLiteral("5\u2009200 m³/h");
  QTest::newRow("many digits") << -1234567.8 << QStringLiteral("m") << QStringLiteral("-1\u2009235\u2009000 m");
  QTest::newRow("a number alone may be a name") << 1234567.0 << QString() << QStringLiteral("1\u2009234\u2009567");
  QTest::newRow("small") << 0.0123456 << QString() << QStringLiteral("0.01235");
  QTest::newRow("smaller") << 0.0003 << QStringLiteral("bar") << QStringLiteral("0.0003 bar");
  QTest::newRow("nothing") << 0.0 << QStringLiteral("bar") << QStringLiteral("0 bar");
  QTest::newRow("nearly nothing") << -1e-12 << QString() << QStringLiteral("-1e-12");
  QTest::newRow("huge") << 1.5e15 << QStringLiteral("W") << QStringLiteral("1.5e+15 W");
}

void TestLabels::numbersAsAPersonWritesThem() {
  QFETCH(double, value);
  QFETCH(QString, unit);
  QFETCH(QString, text);
  QCOMPARE(LabelContents::formatted(value, unit), text);
}

void TestLabels::contentsFollowTheTable_data() {
  QTest::addColumn<QString>("contents");
  QTest::addColumn<QStringList>("lines");
  QTest::addColumn<QString>("html");
  QTest::newRow("values in the display unit")
      << QStringLiteral("@name<br/>T = @t") << QStringList{QStringLiteral("A & B"), QStringLiteral("T = 10 °C")}
      << QString();
  QTest::newRow("a line without its value")
      << QStringLiteral("@name<br />@rho") << QStringList{QStringLiteral("A & B")} << QString();
  QTest::newRow("plain text") << QStringLiteral("a&#44; b<br\t/>a@")
                              << QStringList{QStringLiteral("a, b"), QStringLiteral("a@")} << QString();
  QTest::newRow("dots end a name") << QStringLiteral("(@p.)") << QStringList{QStringLiteral("(20 bar.)")} << QString();
  QTest::newRow("marks") << QStringLiteral("<b>@name</b><br />@p") << QStringList()
                         << QStringLiteral("<b>A &amp; B</b><br />20 bar");
  QTest::newRow("entities without a mark")
      << QStringLiteral("&Delta;p&nbsp;&#60;5&#x3e;&#44; @name<br />R&D @p") << QStringList()
      << QStringLiteral("&Delta;p&nbsp;&#60;5&#x3e;, A &amp; B<br />R&D 20 bar");
  QTest::newRow("no entity") << QStringLiteral("R&D; of &@name") << QStringList() << QStringLiteral("R&D; of &A &amp; B");
  QTest::newRow("lonely signs") << QStringLiteral("R&D &#; @p &;") << QStringList{QStringLiteral("R&D &#; 20 bar &;")}
                                << QString();
  QTest::newRow("formula") << QStringLiteral("@{p*2+pow(2,3)} and @{rho}<br />@{p +}")
                           << QStringList{QStringLiteral("48 and")} << QString();
  QTest::newRow("nothing") << QString() << QStringList() << QString();
}

void TestLabels::contentsFollowTheTable() {
  QFETCH(QString, contents);
  QFETCH(QStringList, lines);
  QFETCH(QString, html);
  LabelTable table;
  table.types.front()[LabelRow::Contents] = contents; // of nodes
  const element node = makeElement({{"name", "A & B"}, {"type", "n"}, {"p", "20"}, {"t", "283.15"}});
  const NetData net;
  const LabelText text = LabelContents(table, PlotSettings(), net).text(node);
  QCOMPARE(text.lines, lines);
  QCOMPARE(text.html, html);
}

/// A label must not stop the drawing; who looks for it in vain is told once.
void TestLabels::costlyFormulasAreGivenUp() {
  const NetData net;
  LabelTable table;
  const QString formula =
      QStringLiteral("(ones(100,100)") + QStringLiteral("*ones(100,100)").repeated(250) + QStringLiteral(")[0,0]");
  table.types.front()[LabelRow::Contents] = QStringLiteral("@name<br />@{%1}").arg(formula); // of nodes
  QStringList told;
  const LabelContents contents(table, PlotSettings(), net, [&told](const Finding &finding) { told << finding.text; });
  QElapsedTimer timer;
  timer.start();
  for (int i = 0; i < 1000; ++i)
    QCOMPARE(contents.text(makeNode("N")).lines, QStringList{QStringLiteral("N")});
  QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
  QCOMPARE(told.size(), 1);
  QVERIFY2(told.first().contains(formula.left(20)), qPrintable(told.first()));
}

void TestLabels::longContentsAreCut() {
  NetData net;
  for (int i = 0; i < 300; ++i)
    net.addElement(makeElement({{"name", QByteArray::number(i).constData()}, {"type", "n"}, {"p", "71.25"}}));
  LabelTable table;
  table.types.front()[LabelRow::Contents] = QStringLiteral("@p").repeated(30000); // of nodes
  Findings told;
  QElapsedTimer timer;
  timer.start();
  const LabelContents contents(table, PlotSettings(), net, [&told](const Finding &finding) { told.push_back(finding); });
  const QString line = contents.text(*net.element(QStringLiteral("7"))).lines.value(0);
  QCOMPARE(line.size(), 200);
  QVERIFY(line.startsWith(QLatin1String("71.25 bar71.25")));
  QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
  QCOMPARE(told.size(), std::size_t(1));
  QVERIFY2(told.front().text.contains(QLatin1String("60000")), qPrintable(told.front().text));
}

void TestLabels::styleFollowsElementThenTable() {
  LabelTable table;
  table.types.front()[LabelRow::Color] = QStringLiteral("red");
  table.types.front()[LabelRow::BgrColor] = QStringLiteral("no colour");
  table.types.front()[LabelRow::BgrAlpha] = QStringLiteral("999");
  table.types.front()[LabelRow::BordColor] = QStringLiteral("#00ff00");
  table.types.front()[LabelRow::BordAlpha] = QStringLiteral("128");
  table.types.front()[LabelRow::Font] = QStringLiteral("no, font");
  element node = makeNode("A");
  const PlotSettings settings;
  const NetData net;
  LabelStyle style = LabelContents(table, settings, net).style(node, NetData::Node);
  QCOMPARE(style.text, QColor(Qt::red));
  QCOMPARE(style.background, QColor(255, 255, 255, 255)); // what is no colour changes nothing
  QCOMPARE(style.border, QColor(0, 255, 0, 128));
  node.set(QStringLiteral("vis.color"), QStringLiteral("blue"));
  node.set(QStringLiteral("vis.bgr-alpha"), QStringLiteral("10"));
  node.set(QStringLiteral("vis.font"), QStringLiteral("Arial,20,-1,5,75,0,0,0,0,0"));
  style = LabelContents(table, settings, net).style(node, NetData::Node);
  QCOMPARE(style.text, QColor(Qt::blue));
  QCOMPARE(style.background.alpha(), 10);
  QVERIFY(style.font.bold() && style.font.pixelSize() > 20);
}

/// The contents are made once, and never those of before.
void TestLabels::contentsAreMadeOnce() {
  ViewFixture f;
  NetUpdate &update = f.plot().update();
  QVERIFY(update.labelContents() == nullptr);
  f.show();
  const LabelContents *contents = update.labelContents();
  QVERIFY(contents != nullptr);
  update.placeLabelsNow();
  QVERIFY(contents == update.labelContents()); // whoever asks, be it for every movement of the mouse
  const auto says = [&] {
    return update.labelContents()->text(*f.net.element(QStringLiteral("A"))).lines.join(QLatin1Char('|'));
  };
  QCOMPARE(says(), QStringLiteral("A|20 bar"));
  LabelTable table;
  table.types.front()[LabelRow::Contents] = QStringLiteral("Node @name: @p");
  update.setLabelTable(table);
  QCOMPARE(says(), QStringLiteral("Node A: 20 bar"));
  f.net.element(QStringLiteral("B"))->set(QStringLiteral("p"), QStringLiteral("30.25"));
  PlotSettings settings = f.plot().settings();
  update.updatePlot();
  QCOMPARE(says(), QStringLiteral("Node A: 20.00 bar")); // beside the other's digits
  settings.label_mode = QStringLiteral("name only");
  f.plot().setSettings(settings);
  update.updatePlot();
  QCOMPARE(says(), QStringLiteral("A"));
  f.control.clear();
  QVERIFY(update.labelContents() == nullptr);
}

void TestLabels::labelsInTheDrawing() {
  ViewFixture f;
  f.plot().show();
  f.show();
  const QImage without = f.picture();
  QVERIFY(f.plot().update().labels().empty()); // at full extent there are none by themselves
  f.plot().update().relabelNow();
  QCOMPARE(GeneralSettings::instance().value(QStringLiteral("perform label placement")), QStringLiteral("proximity"));
  QCOMPARE(namesOf(f.plot().update()).size() + int(f.plot().update().unplacedLabels().size()), 7);
  QVERIFY(namesOf(f.plot().update()).size() >= 5);
  QCOMPARE(overlaps(boxesOf(f.plot().update())), 0);
  QVERIFY(f.picture() != without);
}

void TestLabels::labelsStayWherePanned() {
  ViewFixture f;
  f.plot().show();
  f.show();
  f.plot().zoomer()->zoomIn({150, 20});
  NetUpdate &update = f.plot().update();
  update.placeLabelsNow();
  const auto spots = [&update] {
    std::map<QString, QPointF> found;
    for (const Label &label : update.labels())
      found[update.geometry().source(label.candidate.item)->value(QStringLiteral("name"))] =
          label.spot.offset + QPointF(label.spot.along, label.spot.angle);
    return found;
  };
  const auto before = spots();
  QVERIFY(before.size() >= 2);
  update.placeLabelsNow();
  QCOMPARE(spots(), before);
  const QRectF view = f.plot().zoomer()->zoomRect();
  f.plot().zoomer()->zoom(view.translated(view.width() * 0.05, view.height() * 0.03));
  update.placeLabelsNow();
  int kept = 0;
  for (const auto &[name, spot] : spots()) {
    if (before.count(name) == 0)
      continue;
    ++kept;
    QVERIFY2((spot - before.at(name)).manhattanLength() < 1e-9, qPrintable(name));
  }
  QVERIFY(kept >= 2);
}

void TestLabels::importantOnesComeFirst() {
  ViewFixture f;
  for (int i = 0; i < 300; ++i) // a crowd of junctions about the station
    f.addNode(qPrintable(QStringLiteral("J%1").arg(i)), qPrintable(QString::number(200 + i % 20)),
              qPrintable(QString::number(40 + i / 20)), "30");
  f.plot().show();
  f.show();
  f.plot().update().relabelNow();
  QVERIFY(namesOf(f.plot().update()).contains(QStringLiteral("CD")));
  QVERIFY(f.plot().update().unplacedLabels().size() > 100);
  QCOMPARE(overlaps(boxesOf(f.plot().update())), 0);
}

void TestLabels::modes_data() {
  QTest::addColumn<QString>("mode");
  QTest::addColumn<QString>("build");
  QTest::addColumn<bool>("isAny");
  QTest::newRow("no label") << QStringLiteral("no label") << QStringLiteral("on") << false;
  QTest::newRow("names") << QStringLiteral("name only") << QStringLiteral("on") << true;
  QTest::newRow("switched off") << QStringLiteral("name only") << QStringLiteral("off") << false;
}

void TestLabels::modes() {
  QFETCH(QString, mode);
  QFETCH(QString, build);
  QFETCH(bool, isAny);
  ViewFixture f;
  f.plot().show();
  f.show();
  GeneralSettings::instance().setValue(QStringLiteral("build labels"), build);
  PlotSettings settings = f.plot().settings();
  settings.label_mode = mode;
  f.plot().setSettings(settings);
  f.plot().update().relabelNow();
  QCOMPARE(!f.plot().update().labels().empty(), isAny);
  for (const Label &label : f.plot().update().labels())
    QCOMPARE(label.lines.size(), std::size_t(1));
}

void TestLabels::visibility_data() {
  QTest::addColumn<QString>("vis");
  QTest::addColumn<QString>("zoom");
  QTest::addColumn<int>("extent"); // seen last, after 1000 and 100
  QTest::addColumn<int>("state");
  using State = VisibilityRules::State;
  const auto row = [](const char *name, const char *vis, const char *zoom, int extent, State state) {
    QTest::newRow(name) << QString::fromLatin1(vis) << QString::fromLatin1(zoom) << extent << int(state);
  };
  row("near", "auto", "200", 199, State::On);
  row("a little further", "AUTO", "200;5", 200, State::Symbol);
  row("far keeps what was", "auto", "200", 300, State::On);
  row("no threshold", "auto", "0", 1000, State::On);
  row("no number", "auto", "x", 1000, State::On);
  row("off", " off ", "200", 1, State::Off);
  row("symbol", "symbol", "", 1, State::Symbol);
  row("any other word", "yes", "", 1, State::On);
}

void TestLabels::visibility() {
  QFETCH(QString, vis);
  QFETCH(QString, zoom);
  QFETCH(int, extent);
  QFETCH(int, state);
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis"), vis);
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis.zoom"), zoom);
  NetGeometry geometry;
  GeometryReader::read(f.net, {}, geometry);
  VisibilityRules rules;
  rules.read(geometry, LabelTable());
  const NetGeometry::Item item = *geometry.find(f.net, QStringLiteral("CD"));
  for (const int seen : {1000, 100, extent})
    rules.setExtent(seen);
  QCOMPARE(int(rules.of(item)), state);
  QCOMPARE(int(rules.of(*geometry.find(f.net, QStringLiteral("AB")))), int(VisibilityRules::State::On));
}

void TestLabels::onlySymbolsFollowWhenLabelsAreOff() {
  ViewFixture f;
  GeneralSettings::instance().setValue(QStringLiteral("perform label placement"), QStringLiteral("never"));
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis"), QStringLiteral("auto"));
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis.zoom"), QStringLiteral("60"));
  f.plot().show();
  f.show();
  QVERIFY(f.plot().update().determineVisibleSymbols().empty()); // 110 units are seen
  for (int i = 0; i < 4; ++i)
    f.plot().zoomer()->zoomIn({200, 50});
  f.plot().update().requestPixtest(-1);
  QCOMPARE(f.plot().update().determineVisibleSymbols().size(), std::size_t(1));
  QVERIFY(f.plot().update().labels().empty());
}

/// Labels are for a view close by. Where there is nothing to label none stands, and none may come with the next values.
void TestLabels::labelsThatWentStayAway() {
  ViewFixture f;
  f.plot().show();
  f.show();
  f.plot().zoomer()->zoom(QRectF(60, 40, 30, 20));
  f.plot().update().requestPixtest(-1);
  f.plot().zoomer()->zoom(0);
  f.plot().update().requestPixtest(-1);
  QVERIFY(f.plot().update().labels().empty());
  f.control.redraw();
  QVERIFY(f.plot().update().labels().empty());
}

void TestLabels::numbersBesideEachOtherLookAlike() {
  NetData net;
  const auto add = [&net](const char *name, const char *p, const char *height) {
    net.addElement(makeElement({{"name", name}, {"type", "n"}, {"p", p}, {"height", height}}));
  };
  add("A", "79.7", "20");
  add("B", "79.84", "130");
  add("C", "0.0003", "7");
  LabelTable table;
  table.types.front()[LabelRow::Contents] = QStringLiteral("@p<br />@height");
  const LabelContents contents(table, PlotSettings(), net);
  const auto lines = [&](const char *name) {
    return contents.text(*net.element(QString::fromLatin1(name))).lines;
  };
  QCOMPARE(lines("A"), QStringList({QStringLiteral("79.70 bar"), QStringLiteral("20 m")}));
  QCOMPARE(lines("B"), QStringList({QStringLiteral("79.84 bar"), QStringLiteral("130 m")}));
  QCOMPARE(lines("C"), QStringList({QStringLiteral("0.0003 bar"), QStringLiteral("7 m")}));
}

void TestLabels::richTextTakesTheColourOfTheTable() {
  ViewFixture f;
  f.plot().show();
  f.show();
  LabelTable table;
  const QColor colour(0, 150, 60);
  table.types.front()[LabelRow::Contents] = QStringLiteral("<b>█████</b>");
  table.types.front()[LabelRow::Color] = colour.name();
  f.plot().update().setLabelTable(table);
  f.plot().update().relabelNow();
  QVERIFY(pixels(f.picture(), colour) > 100);
}

void TestLabels::entitiesAreCharacters() {
  ViewFixture f;
  f.net.addElement(makeElement({{"name", "T"}, {"type", "t"}, {"x", "0"}, {"y", "100"}, {"text", "own"}}));
  f.plot().show();
  f.show();
  const auto widest = [&f](const QString &contents) {
    LabelTable table;
    table.types.front()[LabelRow::Contents] = contents;
    f.plot().update().setLabelTable(table);
    f.plot().update().relabelNow();
    double width = 0.0;
    for (const Label &label : f.plot().update().labels())
      width = std::max(width, label.candidate.size.width());
    return width;
  };
  const double written = widest(QStringLiteral("<b></b>█████"));
  QVERIFY(written > 0.0);
  QCOMPARE(
      widest(QStringLiteral("&#9608;&#9608;&block;&#x2588;&#9608;").replace(QStringLiteral("&block;"), QStringLiteral("█"))),
      written);
  LabelTable table; // and in boxes, where marks are left out
  table.types.back()[LabelRow::Contents] = QStringLiteral("<b>&Delta;p</b>&nbsp;&lt;5&gt; @name");
  const element box = makeElement({{"name", "<i>A</i>&amp;"}, {"type", "t"}});
  const NetData net;
  QCOMPARE(LabelContents(table, PlotSettings(), net).textOfBox(box), QStringList{QStringLiteral("Δp <5> <i>A</i>&amp;")});
}

void TestLabels::richTextOpensNothing() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("red.png"));
  QImage red(60, 60, QImage::Format_RGB32);
  red.fill(Qt::red);
  QVERIFY(red.save(path));
  ViewFixture f;
  f.plot().show();
  f.show();
  const QStringList attempts{QStringLiteral("<img src=\"%1\"><b>x</b>"), QStringLiteral("<img src=\"file://%1\"><b>x</b>"),
                             QStringLiteral("<table background=\"%1\"><tr><td>xxxxxxxx</td></tr></table>"),
                             QStringLiteral("<p style=\"background-image:url(%1)\">xxxxxxxx</p>"),
                             QStringLiteral("&lt;img src=&quot;%1&quot;&gt;&#60;b>x")};
  for (const QString &attempt : attempts) {
    LabelTable table;
    table.types.front()[LabelRow::Contents] = attempt.arg(path);
    f.plot().update().setLabelTable(table);
    f.plot().update().relabelNow();
    QVERIFY(!f.plot().update().labels().empty());
    QCOMPARE(pixels(f.picture(), Qt::red), 0);
    for (const Label &label : f.plot().update().labels())
      QVERIFY(label.candidate.size.height() < 50);
  }
}

void TestLabels::richTextIsBounded() {
  ViewFixture f;
  f.plot().resize(1200, 900);
  f.plot().show();
  f.show();
  LabelTable table;
  const QString lines = QStringLiteral("<b>@name</b><br />").repeated(200);
  for (const QString &contents : {lines, QStringLiteral("<img src=\"x\" width=\"90000\" height=\"90000\"><b>y</b>"),
                                  QStringLiteral("<table width=\"90000\"><tr><td>y</td></tr></table>")}) {
    table.types.front()[LabelRow::Contents] = contents;
    f.plot().update().setLabelTable(table);
    f.plot().update().relabelNow();
    const auto &labels = f.plot().update().labels();
    const bool isAny =
        std::any_of(labels.begin(), labels.end(), [](const Label &label) { return label.document != nullptr; });
    QVERIFY2(isAny, qPrintable(contents.left(60))); // small enough to find a place
    for (const Label &label : labels)
      QVERIFY(label.candidate.size.width() <= 500 && label.candidate.size.height() <= 400);
  }
}

void TestLabels::everyTypeIsShownAsTheTableSays_data() {
  QTest::addColumn<QString>("type");
  QTest::addColumn<QPoint>("place"); ///< plot coordinates, at the middle of what is drawn
  QTest::newRow("nodes") << QStringLiteral("n") << QPoint(0, 0);
  QTest::newRow("subnets") << QStringLiteral("sub") << QPoint(60, 70);
  QTest::newRow("text boxes") << QStringLiteral("t") << QPoint(120, 60);
  QTest::newRow("compressors") << QStringLiteral("c") << QPoint(200, 50);
}

void TestLabels::everyTypeIsShownAsTheTableSays() {
  QFETCH(QString, type);
  QFETCH(QPoint, place);
  ViewFixture f;
  f.add(makeElement({{"name", "S"}, {"type", "sub"}, {"x", "60"}, {"y", "70"}}), {});
  f.add(makeElement({{"name", "T"}, {"type", "t"}, {"x", "120"}, {"y", "60"}}), {{"text", "██"}});
  f.net.edges().erase(QStringLiteral("AB")); // no line through the node
  f.plot().show();
  const auto ink = [&](const char *show, const char *size) {
    f.show();
    LabelTable table;
    for (LabelRow &row : table.types) {
      if (row[LabelRow::Short] != type)
        continue;
      row[LabelRow::Show] = QString::fromLatin1(show);
      row[LabelRow::Size] = QString::fromLatin1(size);
    }
    f.plot().update().setLabelTable(table);
    f.plot().update().updatePlot(NetUpdate::Elements::Renewed);
    const QImage area = f.picture().copy(QRect(f.pixel(place.x(), place.y()) - QPoint(45, 45), QSize(90, 90)));
    return area.width() * area.height() - pixels(area, Qt::white);
  };
  const int shown = ink("on", "");
  QVERIFY(shown > 10);
  const int off = ink("off", "");
  QVERIFY2(off < shown - 10, qPrintable(QStringLiteral("%1 of %2").arg(off).arg(shown)));
  const QwtFastPlot &area = *f.plot().plot();
  const QPointF onCanvas(area.transform(QwtPlot::xBottom, place.x()), area.transform(QwtPlot::yLeft, place.y()));
  for (const Hit &hit : f.plot().update().elementsAt(onCanvas, 1.0)) // what is off is not hit
    QVERIFY(f.plot().update().geometry().source(hit.item)->value(QStringLiteral("type")) != type ||
            hit.item.kind == NetData::Edge);
  const int large = ink("on", "60");
  QVERIFY2(large > shown + 200, qPrintable(QStringLiteral("%1 after %2").arg(large).arg(shown)));
}

NIVRA_TEST(TestLabels);
#include "tst_labels.moc"
