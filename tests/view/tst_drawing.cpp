#include "viewfixture.h"

#include <base/generalsettings.h>
#include <formulas/networkformulas.h>
#include <support/nivratest.h>
#include <view/plotexport.h>

#include <QFile>
#include <QTemporaryDir>
#include <qwt_scale_widget.h>

/// What belongs to more than one layer: subnets, parallel lines, flow, search results.
class TestDrawing : public QObject {
  Q_OBJECT

private slots:
  void cleanup() { GeneralSettings::instance().reset(); }
  void subnetColours_data();
  void subnetColours();
  void innerViolationsReachTheBox_data();
  void innerViolationsReachTheBox();
  void subnetsShowHowTheyAreControlled_data();
  void subnetsShowHowTheyAreControlled();
  void subnetPins();
  void parallelLinesLieSideBySide();
  void arrowsPointWhereTheGasGoes();
  void searchResultsStandOut();
  void foundNodesAreSeenFromAfar();
  void colourScaleNamesOtherColours();
  void hiddenElementsHaveNoMarks();
  void picturesHoldVectors();
  void likeTheKeptPictures_data();
  void likeTheKeptPictures();

private:
  static element station() {
    return makeElement({{"name", "Station"}, {"type", "sub"}, {"x", "60"}, {"y", "70"}, {"pins", "A; c;nowhere"}});
  }
  static int count(const QImage &image, const QColor &color) {
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        pixels += image.pixelColor(x, y) == color ? 1 : 0;
    return pixels;
  }
  /// Whether each pixel has one of nearly its colour within a pixel of its place.
  static bool isAlike(const QImage &a, const QImage &b);
};

void TestDrawing::subnetColours_data() {
  QTest::addColumn<QString>("property");
  QTest::addColumn<QString>("value");
  QTest::addColumn<QString>("ring"); ///< general setting
  const auto row = [](const char *name, const char *property, const char *value, const char *ring) {
    QTest::newRow(name) << QString::fromLatin1(property) << QString::fromLatin1(value) << QString::fromLatin1(ring);
  };
  row("nobody checked", "other", "", "subnet ring color BV unknown");
  row("no violation", "CB_info", "(;)", "subnet ring color no BV");
  row("violation", "CB_info", "(p too high;)", "subnet ring color BV minor");
  row("great violation", "CB_info", "(MAJOR: p too high;)", "subnet ring color BV major");
}

void TestDrawing::subnetColours() {
  QFETCH(QString, property);
  QFETCH(QString, value);
  QFETCH(QString, ring);
  ViewFixture f;
  element subnet = station();
  subnet.set(property, value);
  f.net.addElement(subnet);
  f.show();
  QVERIFY(count(f.picture(), QColor(GeneralSettings::instance().value(ring))) > 40);
  GeneralSettings::instance().setValue(QStringLiteral("show subnet ring colors"), QStringLiteral("SP/SM control"));
  f.net.assembledSubnets().find(QStringLiteral("Station"))->set(QStringLiteral("substate"), QStringLiteral("Flow control"));
  f.show();
  QVERIFY(count(f.picture(), QColor(Qt::yellow)) > 40);
}

void TestDrawing::innerViolationsReachTheBox_data() {
  QTest::addColumn<QByteArray>("constraint");
  QTest::addColumn<QString>("ring"); ///< general setting
  QTest::newRow("nobody checked") << QByteArray() << QStringLiteral("subnet ring color BV unknown");
  QTest::newRow("others checked") << QByteArray("p(n) in .. 5") << QStringLiteral("subnet ring color BV unknown");
  QTest::newRow("kept") << QByteArray("q(p) in .. 10") << QStringLiteral("subnet ring color no BV");
  QTest::newRow("violated") << QByteArray("q(p) in .. 3 \"too much\"") << QStringLiteral("subnet ring color BV minor");
  QTest::newRow("gravely") << QByteArray("q(p) in .. 3 \"major\"") << QStringLiteral("subnet ring color BV major");
}

void TestDrawing::innerViolationsReachTheBox() {
  QFETCH(QByteArray, constraint);
  QFETCH(QString, ring);
  ViewFixture f;
  element subnet = station();
  subnet.set(QStringLiteral("elements"), QStringLiteral("AB;gone"));
  f.net.addElement(subnet);
  f.show();
  NetworkFormulas formulas(f.net);
  formulas.setDefinitions(FormulaFile::parse(constraint, QStringLiteral("t"), QStringLiteral("results")).definitions);
  formulas.apply();
  f.plot().update().updatePlot(); // as after any change of values
  QVERIFY(count(f.picture(), QColor(GeneralSettings::instance().value(ring))) > 40);
  if (constraint.contains("3")) { // what is mended is shown as mended
    element &pipe = *f.net.element(QStringLiteral("AB"));
    pipe.set(QStringLiteral("q"), QStringLiteral("1"));
    formulas.update({{&pipe, PropertyKey::intern("q")}});
    f.plot().update().updatePlot();
    const QString none = GeneralSettings::instance().value(QStringLiteral("subnet ring color no BV"));
    QVERIFY(count(f.picture(), QColor(none)) > 40);
  }
}

void TestDrawing::subnetsShowHowTheyAreControlled_data() {
  QTest::addColumn<QString>("property");
  QTest::addColumn<QString>("value");
  QTest::addColumn<QString>("colour"); ///< general setting
  const auto row = [](const char *name, const char *property, const char *value, const char *colour) {
    QTest::newRow(name) << QString::fromLatin1(property) << QString::fromLatin1(value) << QString::fromLatin1(colour);
  };
  row("pressure", "poutset", "70", "subnet color pressure control");
  row("flow", "qset", "5", "subnet color flow control");
  row("unknown aim", "state", "active", "subnet color maybe in control");
  row("bypass", "state", "bypass", "subnet color bypass");
  row("off", "state", "off", "subnet color off");
}

void TestDrawing::subnetsShowHowTheyAreControlled() {
  QFETCH(QString, property);
  QFETCH(QString, value);
  QFETCH(QString, colour);
  GeneralSettings::instance().setValue(QStringLiteral("show subnet ring colors"), QStringLiteral("SP/SM control"));
  ViewFixture f;
  element compressor = makeEdge("Station_C1", "B", "C", "c"); // "main_element" may be a name of the template
  compressor.set(property, value);
  f.net.addElement(compressor);
  element subnet = station();
  subnet.set(QStringLiteral("main_element"), QStringLiteral("C1"));
  f.net.addElement(subnet);
  f.show();
  QVERIFY(count(f.picture(), QColor(GeneralSettings::instance().value(colour))) > 40);
  // What changes is shown as it is now, by the box and by its label.
  f.net.element(QStringLiteral("Station_C1"))->set(QStringLiteral("state"), QStringLiteral("bypass"));
  f.plot().update().updatePlot();
  const QString bypass = GeneralSettings::instance().value(QStringLiteral("subnet color bypass"));
  QVERIFY(count(f.picture(), QColor(bypass)) > 40);
  element &shown = *f.net.assembledSubnets().find(QStringLiteral("Station"));
  const QStringList label = f.plot().update().labelContents()->text(shown).lines;
  QCOMPARE(label, (QStringList{QStringLiteral("Station"), QStringLiteral("C1 bypass")}));
  shown.erase(QStringLiteral("main_element"));
  shown.set(QStringLiteral("elements"), QStringLiteral("AB ; Station_C1"));
  QCOMPARE(f.plot().update().labelContents()->text(shown).lines.last(), QStringLiteral("bypass"));
}

void TestDrawing::subnetPins() {
  ViewFixture f;
  f.net.addElement(station());
  f.show();
  QCOMPARE(f.plot().update().geometry().subnets().front().pins.size(), std::size_t(2)); // names do not care for case
  const QImage with = f.picture();
  GeneralSettings::instance().setValue(QStringLiteral("draw subassembly pin lines"), QStringLiteral("off"));
  f.show();
  QVERIFY(f.picture() != with);
}

void TestDrawing::parallelLinesLieSideBySide() {
  ViewFixture f;
  f.add(makeEdge("BA", "B", "A"), {{"diameter", "500"}, {"q", "0"}});
  f.show();
  const QImage picture = f.picture();
  const QPoint middle = f.pixel(25, 0);
  int lines = 0;
  bool isLine = false;
  for (int y = -12; y <= 12; ++y) {
    const bool isInk = picture.pixelColor(middle + QPoint(0, y)).lightness() < 235;
    lines += isInk && !isLine ? 1 : 0;
    isLine = isInk;
  }
  QCOMPARE(lines, 2);
}

void TestDrawing::arrowsPointWhereTheGasGoes() {
  ViewFixture f;
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("q"), QStringLiteral("-5"));
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("diameter"), QStringLiteral("500"));
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("diameter"), QStringLiteral("5000")); // the others are thin
  PlotSettings settings;
  f.show();
  settings = f.plot().settings();
  settings.arrowMag = 12;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  const QImage picture = f.picture();
  // An arrow is broad at its back and narrow at its tip.
  const auto height = [&picture](const QPoint &place) {
    int pixels = 0;
    for (int y = -12; y <= 12; ++y)
      pixels += picture.pixelColor(place + QPoint(0, y)).lightness() < 120 ? 1 : 0;
    return pixels;
  };
  const QPoint ab = f.pixel(50, 0);
  QVERIFY(height(ab - QPoint(8, 0)) > height(ab + QPoint(8, 0)) + 3);
  const QPoint bc = f.pixel(150, 0);
  QVERIFY(height(bc + QPoint(8, 0)) > height(bc - QPoint(8, 0)) + 3);
}

void TestDrawing::searchResultsStandOut() {
  ViewFixture f;
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("isSearchResult"), QStringLiteral("1"));
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("isSearchResult"), QStringLiteral("false"));
  f.show();
  f.plot().update().setDisplayMode(NetUpdate::DisplayMode::SearchResults);
  f.plot().update().updatePlot();
  const QImage picture = f.picture();
  QVERIFY(picture.pixelColor(f.pixel(50, 0)).saturation() > 150);
  QVERIFY(picture.pixelColor(f.pixel(150, 0)).saturation() < 20);
}

void TestDrawing::foundNodesAreSeenFromAfar() {
  constexpr int Side = 120; // so many that nodes are not drawn
  ViewFixture f;
  f.net.clear();
  const auto name = [](int x, int y) {
    return QStringLiteral("N%1_%2").arg(x).arg(y).toLatin1();
  };
  for (int y = 0; y < Side; ++y) {
    for (int x = 0; x < Side; ++x) {
      f.addNode(name(x, y), QByteArray::number(x), QByteArray::number(y), "50");
      if (x > 0)
        f.add(makeEdge("H" + name(x, y), name(x - 1, y), name(x, y)), {});
    }
  }
  f.net.element(QStringLiteral("N60_60"))->set(QStringLiteral("isSearchResult"), QStringLiteral("1"));
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.bgrColor = QColor(20, 24, 28);
  f.plot().setSettings(settings);
  f.plot().update().setDisplayMode(NetUpdate::DisplayMode::SearchResults);
  f.plot().update().updatePlot();
  const QImage picture = f.picture();
  int red = 0;
  for (int y = -3; y <= 3; ++y)
    for (int x = -3; x <= 3; ++x)
      red += picture.pixelColor(f.pixel(60, 60) + QPoint(x, y)).red() > 180 ? 1 : 0;
  QVERIFY2(red >= 12, qPrintable(QString::number(red)));
  QVERIFY(picture.pixelColor(f.pixel(20.5, 20)).lightness() < 128); // the rest keeps back on dark ground, too
}

void TestDrawing::colourScaleNamesOtherColours() {
  ViewFixture f;
  f.show();
  const auto title = [&f] {
    return f.plot().plot()->axisTitle(QwtPlot::yRight).text().replace(QStringLiteral("&nbsp;"), QStringLiteral(" "));
  };
  QVERIFY(!title().contains(QStringLiteral("no value")));
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("state"), QStringLiteral("off"));
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("q"), QStringLiteral("0"));
  f.addNode("X", "10", "40", "none");
  f.add(makeEdge("AX", "A", "X"), {{"q", "1"}});
  f.show();
  for (const char *name : {"no value", "no flow", "off"})
    QVERIFY2(title().contains(QString::fromLatin1(name)), name);
  // Beside a low drawing it stands in lines instead of losing its ends.
  const QwtScaleWidget &scale = *f.plot().plot()->axisWidget(QwtPlot::yRight);
  f.plot().resize(600, 200);
  f.picture();
  QVERIFY(scale.height() < scale.title().textSize(scale.font()).width());
  QVERIFY(scale.width() >= scale.dimForLength(scale.height(), scale.font()));
  QVERIFY(scale.dimForLength(scale.height(), scale.font()) > scale.dimForLength(2000, scale.font()) + 8);
}

void TestDrawing::hiddenElementsHaveNoMarks() {
  ViewFixture f;
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("vis.layer"), QStringLiteral("exits"));
  f.show();
  const QImage plain = f.picture();
  f.control.picker()->markElement(QStringLiteral("A"));
  QVERIFY(f.picture() != plain);
  f.plot().update().setHiddenLayers(QStringLiteral("vis.layer"), {QStringLiteral("exits")});
  f.plot().update().updatePlot();
  const QImage hidden = f.picture();
  f.control.picker()->setSelection(Selection());
  QCOMPARE(hidden, f.picture());
}

void TestDrawing::picturesHoldVectors() {
  const QTemporaryDir folder;
  ViewFixture f;
  f.net.addElement(station());
  f.plot().show();
  f.show();
  f.control.picker()->selectAll();
  f.plot().update().relabelNow();
  QVERIFY(exportPlot(f.plot(), folder.filePath(QStringLiteral("a.svg")), 600));
  QFile file(folder.filePath(QStringLiteral("a.svg")));
  QVERIFY(file.open(QIODevice::ReadOnly));
  const QByteArray svg = file.readAll();
  for (const char *text : {">Station<", ">30 bar<"})
    QVERIFY2(svg.contains(text), text); // text stays text
  QVERIFY(svg.count("<polyline") + svg.count("<path") > 20);
  QCOMPARE(svg.count("<image"), 0); // not even the bar of the colour scale
}

bool TestDrawing::isAlike(const QImage &a, const QImage &b) {
  constexpr int Tolerance = 48;
  const auto isNear = [](QRgb p, QRgb q) {
    return qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q)) <= Tolerance;
  };
  const auto has = [&isNear](const QImage &image, int x, int y, QRgb color) {
    for (int dy = -1; dy <= 1; ++dy)
      for (int dx = -1; dx <= 1; ++dx)
        if (image.valid(x + dx, y + dy) && isNear(image.pixel(x + dx, y + dy), color))
          return true;
    return false;
  };
  if (a.size() != b.size())
    return false;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      if (!has(b, x, y, a.pixel(x, y)) || !has(a, x, y, b.pixel(x, y)))
        return false;
  return true;
}

void TestDrawing::likeTheKeptPictures_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QString>("ramp");
  QTest::addColumn<int>("classes");
  QTest::addColumn<bool>("labels");
  QTest::newRow("smooth") << QStringLiteral("smooth") << QStringLiteral("hue") << 0 << false;
  QTest::newRow("classes") << QStringLiteral("classes") << QStringLiteral("viridis") << 3 << false;
  QTest::newRow("labels") << QStringLiteral("labels") << QStringLiteral("cividis") << 0 << true;
}

void TestDrawing::likeTheKeptPictures() {
  QFETCH(QString, name);
  QFETCH(QString, ramp);
  QFETCH(int, classes);
  QFETCH(bool, labels);
  ViewFixture f;
  f.net.addElement(station());
  f.add(makeEdge("V", "A", "D", "v"), {{"state", "closed"}});
  f.plot().resize(320, 240);
  f.plot().show();
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.colorRamp = ramp;
  settings.colorClasses = classes;
  settings.colorScalePos = 0; // its numbers are text
  settings.legendPos = 0;
  settings.nodeLabelsColor = settings.edgeLabelsColor = Qt::transparent; // fonts differ between machines
  LabelTable table;
  for (LabelRow &row : table.types) {
    row[LabelRow::Contents] = QStringLiteral("@type");
    row[LabelRow::BgrColor] = QStringLiteral("#ffe0a0");
    row[LabelRow::BordColor] = QStringLiteral("#804000");
    row[LabelRow::BordAlpha] = QStringLiteral("255");
  }
  f.plot().update().setLabelTable(table);
  f.plot().setSettings(settings);
  f.plot().update().updatePlot(NetUpdate::Elements::Renewed, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
  if (labels)
    f.plot().update().relabelNow();
  const QImage picture = f.picture().convertToFormat(QImage::Format_RGB32);
  const QString path = QFINDTESTDATA("../data/view/") + name + QStringLiteral(".png");
  if (qEnvironmentVariableIsSet("NIVRA_KEEP_PICTURES"))
    QVERIFY(picture.save(path));
  const QImage kept = QImage(path).convertToFormat(QImage::Format_RGB32);
  QVERIFY2(!kept.isNull(), qPrintable(path));
  if (isAlike(picture, kept))
    return;
  picture.save(QDir::temp().filePath(name + QStringLiteral("-differs.png")));
  QFAIL(qPrintable(QStringLiteral("differs from %1, see the folder of temporary files").arg(path)));
}

NIVRA_TEST(TestDrawing);
#include "tst_drawing.moc"
