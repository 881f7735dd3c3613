#include "viewfixture.h"

#include <drawing/colormap.h>
#include <support/nivratest.h>

#include <QColor>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <array>
#include <cmath>

class TestColorMap : public QObject {
  Q_OBJECT

private slots:
  void rampEndsAndMiddle();
  void linearFraction_data();
  void linearFraction();
  void logarithmicFollowsItsFormula_data();
  void logarithmicFollowsItsFormula();
  void logarithmicColoursSpreadTheLowEnd_data();
  void logarithmicColoursSpreadTheLowEnd();
  void barOfAnotherUnit();
  void rampsAreThosePublished_data();
  void rampsAreThosePublished();
  void rampsKeepTheirOrder_data();
  void rampsKeepTheirOrder();
  void capsAreDarker();
  void classes();
};

void TestColorMap::rampEndsAndMiddle() {
  const ColorRamp ramp{0, 240, 255, 230};
  const HueColorMap map(ramp);
  const QwtInterval interval(10.0, 20.0);
  QCOMPARE(QColor(map.rgb(interval, 10.0)).hsvHue(), 0);
  QCOMPARE(QColor(map.rgb(interval, 15.0)).hsvHue(), 120);
  QCOMPARE(QColor(map.rgb(interval, 20.0)).hsvHue(), 240);
  QCOMPARE(QColor(map.rgb(interval, 20.0)).value(), 230);
  QCOMPARE(ColorRamp({-120, 0, 999, 999}).color(0.0), QColor::fromHsv(240, 255, 255).rgb()); // wrong settings stay colours
}

void TestColorMap::linearFraction_data() {
  QTest::addColumn<double>("low");
  QTest::addColumn<double>("high");
  QTest::addColumn<double>("value");
  QTest::addColumn<double>("fraction");
  QTest::newRow("below") << 0.0 << 10.0 << -5.0 << 0.0;
  QTest::newRow("above") << 0.0 << 10.0 << 1e30 << 1.0;
  QTest::newRow("inside") << -10.0 << 10.0 << 5.0 << 0.75;
  QTest::newRow("no width") << 3.0 << 3.0 << 3.0 << 0.5;
  QTest::newRow("not a number") << 0.0 << 1.0 << std::nan("") << 0.5;
}

void TestColorMap::linearFraction() {
  QFETCH(double, low);
  QFETCH(double, high);
  QFETCH(double, value);
  QFETCH(double, fraction);
  QCOMPARE(HueColorMap(ColorRamp()).fraction(QwtInterval(low, high), value), fraction);
}

void TestColorMap::logarithmicFollowsItsFormula_data() {
  QTest::addColumn<double>("factor");
  QTest::newRow("strong") << 7.8;
  QTest::newRow("linear") << 0.0;
  QTest::newRow("mirrored") << -7.8;
  QTest::newRow("beyond numbers") << 5000.0;
}

void TestColorMap::logarithmicFollowsItsFormula() {
  QFETCH(double, factor);
  const double lo = 2.0;
  const double hi = 82.0;
  double c = 100.0 / std::pow(2.0, std::abs(factor));
  if (c == 0.0)
    c = 1.0 / std::log(10.0);
  const auto g = [c](double x) {
    return (x < 0 ? -1.0 : 1.0) * std::log10(std::abs(x / c) + 1.0);
  };
  const LogarithmicColorMap map(ColorRamp{0, 240, 255, 255}, factor);
  for (const double value : {2.0, 3.0, 20.0, 50.0, 82.0}) {
    const double hue = factor >= 0.0 ? g(value - lo) / g(hi - lo) * 240.0 : g(hi - value) / g(hi - lo) * -240.0 + 240.0;
    QVERIFY(std::abs(map.fraction(QwtInterval(lo, hi), value) * 240.0 - hue) < 1e-9);
  }
}

void TestColorMap::logarithmicColoursSpreadTheLowEnd_data() {
  QTest::addColumn<double>("factor");
  QTest::addColumn<double>("value");
  QTest::addColumn<int>("hue"); // of 0 to 240 degrees over 0 to 1000
  QTest::newRow("7.8, 0.5") << 7.8 << 0.5 << 23;
  QTest::newRow("7.8, 1") << 7.8 << 1.0 << 36;
  QTest::newRow("7.8, 1.9") << 7.8 << 1.9 << 52;
  QTest::newRow("15, 0.5") << 15.0 << 0.5 << 96;
  QTest::newRow("15, 1") << 15.0 << 1.0 << 110;
  QTest::newRow("15, 1.9") << 15.0 << 1.9 << 122;
  QTest::newRow("-15, 999") << -15.0 << 999.0 << 130;
}

void TestColorMap::logarithmicColoursSpreadTheLowEnd() {
  QFETCH(double, factor);
  QFETCH(double, value);
  QFETCH(int, hue);
  ViewFixture f;
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("grade"), QString::number(value));
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("grade"), QStringLiteral("1000"));
  for (const char *node : {"A", "B"})
    f.net.element(QString::fromLatin1(node))->set(QStringLiteral("rank"), QString::number(value));
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("grade");
  settings.functions[Aspect::NodeColor].name = QStringLiteral("rank");
  settings.functions[Aspect::EdgeColor].minimum = settings.functions[Aspect::NodeColor].minimum = 0.0;
  settings.functions[Aspect::EdgeColor].maximum = settings.functions[Aspect::NodeColor].maximum = 1000.0;
  settings.functions[Aspect::EdgeColor].isLogarithmic = settings.functions[Aspect::NodeColor].isLogarithmic = true;
  settings.logFactor = factor;
  settings.firstColor = 0;
  settings.lastColor = 240;
  settings.nodeMag = 12;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot(NetUpdate::Elements::Renewed);
  const QImage picture = f.picture();
  const auto near = [](int a, int b) {
    return std::abs(a - b) <= 1;
  };
  const int ofEdge = picture.pixelColor(f.pixel(25, 0)).hsvHue();
  const int ofNode = picture.pixelColor(f.pixel(100, 0)).hsvHue();
  QVERIFY2(near(ofEdge, hue), qPrintable(QString::number(ofEdge)));
  QVERIFY2(near(ofNode, hue), qPrintable(QString::number(ofNode)));
  for (const int axis : {QwtPlot::yRight, QwtPlot::xTop}) {
    const QwtScaleWidget *scale = f.plot().plot()->axisWidget(axis);
    QVERIFY(scale->isColorBarEnabled());
    const int onBar = QColor(scale->colorMap()->rgb(scale->colorBarInterval(), value)).hsvHue();
    QVERIFY2(near(onBar, hue), qPrintable(QString::number(onBar)));
  }
}

/// Stored in K and read in degrees Celsius: the same colours, each beside its value.
void TestColorMap::barOfAnotherUnit() {
  ViewFixture f;
  f.plot().show();
  for (const char *node : {"A", "B", "C", "D"})
    f.net.element(QString::fromLatin1(node))->set(QStringLiteral("t"), QStringLiteral("300"));
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].name = settings.functions[Aspect::NodeColor].name = QStringLiteral("temperature");
  settings.functions[Aspect::EdgeColor].minimum = settings.functions[Aspect::NodeColor].minimum = 273.15;
  settings.functions[Aspect::EdgeColor].maximum = settings.functions[Aspect::NodeColor].maximum = 373.15;
  settings.functions[Aspect::EdgeColor].isLogarithmic = settings.functions[Aspect::NodeColor].isLogarithmic = true;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot(NetUpdate::Elements::Renewed);
  const QImage picture = f.picture();
  QwtScaleWidget *scale = f.plot().plot()->axisWidget(QwtPlot::yRight);
  QVERIFY(std::abs(scale->colorBarInterval().minValue()) < 1e-9);
  QVERIFY(std::abs(scale->colorBarInterval().maxValue() - 100.0) < 1e-9);
  const QRectF bar = scale->colorBarRect(scale->contentsRect());
  const LogarithmicColorMap map(ColorRamp{settings.firstColor, settings.lastColor, settings.saturation, settings.lightness},
                                settings.logFactor);
  for (const double celsius : {2.0, 10.0, 50.0, 98.0}) {
    const QPoint place(static_cast<int>(bar.center().x()),
                       static_cast<int>(scale->scaleDraw()->scaleMap().transform(celsius)));
    const int drawn = picture.pixelColor(scale->mapTo(&f.plot(), place)).hsvHue();
    const int meant = QColor(map.rgb({0.0, 100.0}, celsius)).hsvHue();
    QVERIFY2(std::abs(drawn - meant) <= (celsius < 5.0 ? 8 : 3),
             qPrintable(QStringLiteral("%1: %2 %3").arg(celsius).arg(drawn).arg(meant)));
  }
}

void TestColorMap::rampsAreThosePublished_data() {
  QTest::addColumn<int>("kind");
  QTest::addColumn<QVector<QRgb>>(
      "published"); ///< entries of the tables of 256: 8, 23, 52, 82, 113, 127, 158, 187, 218, 247
  QTest::newRow("viridis") << int(ColorRamp::Kind::Viridis)
                           << QVector<QRgb>{0x470d60, 0x482173, 0x404588, 0x32658e, 0x26828e,
                                            0x21908d, 0x26ad81, 0x54c568, 0x9dd93b, 0xeae51a};
  QTest::newRow("cividis") << int(ColorRamp::Kind::Cividis)
                           << QVector<QRgb>{0x00285b, 0x013271, 0x36466c, 0x555b6d, 0x707173,
                                            0x7c7b78, 0x999277, 0xb7a96e, 0xd7c45c, 0xf8df3c};
  QTest::newRow("plasma") << int(ColorRamp::Kind::Plasma) << QVector<QRgb>{0x220690, 0x3e049c, 0x6c00a8, 0x9814a0, 0xbd3786,
                                                                           0xcb4679, 0xe56a5d, 0xf68f44, 0xfebb2b, 0xf5eb27};
  QTest::newRow("batlow") << int(ColorRamp::Kind::Batlow) << QVector<QRgb>{0x08255b, 0x0f395f, 0x195662, 0x386c58, 0x687b3e,
                                                                           0x818232, 0xbd8f34, 0xed9a62, 0xfdb0a9, 0xfbc6e8};
}

/// As the tables of matplotlib 3.6 and of the Scientific colour maps 7.0.1 have them.
void TestColorMap::rampsAreThosePublished() {
  QFETCH(int, kind);
  QFETCH(QVector<QRgb>, published);
  constexpr std::array<int, 10> Entries{8, 23, 52, 82, 113, 127, 158, 187, 218, 247};
  ColorRamp ramp;
  ramp.kind = static_cast<ColorRamp::Kind>(kind);
  for (std::size_t i = 0; i < Entries.size(); ++i) {
    const QColor drawn(ramp.color(Entries[i] / 255.0));
    const QColor meant(published[static_cast<int>(i)]);
    const int difference = std::max({std::abs(drawn.red() - meant.red()), std::abs(drawn.green() - meant.green()),
                                     std::abs(drawn.blue() - meant.blue())});
    QVERIFY2(difference < 3, qPrintable(QStringLiteral("%1: %2").arg(Entries[i]).arg(drawn.name())));
  }
}

void TestColorMap::rampsKeepTheirOrder_data() {
  QTest::addColumn<int>("kind");
  for (const ColorRamp::Kind kind :
       {ColorRamp::Kind::Viridis, ColorRamp::Kind::Cividis, ColorRamp::Kind::Plasma, ColorRamp::Kind::Batlow})
    QTest::newRow(qPrintable(ColorRamp::title(kind))) << int(kind);
}

void TestColorMap::rampsKeepTheirOrder() {
  QFETCH(int, kind);
  ColorRamp ramp;
  ramp.kind = static_cast<ColorRamp::Kind>(kind);
  const auto lightness = [&ramp](double fraction) {
    const QRgb color = ramp.color(fraction);
    return 0.2126 * qRed(color) + 0.7152 * qGreen(color) + 0.0722 * qBlue(color);
  };
  for (int i = 0; i < 50; ++i)
    QVERIFY2(lightness((i + 1) / 50.0) > lightness(i / 50.0),
             qPrintable(QString::number(i))); // dark to light, without a turn
  // On white and on black no line is lost: contrast as WCAG 2 has it.
  const auto light = [](QRgb color) {
    const auto channel = [](int value) {
      return std::pow((value / 255.0 + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(qRed(color)) + 0.7152 * channel(qGreen(color)) + 0.0722 * channel(qBlue(color));
  };
  for (int i = 0; i <= 20; ++i) {
    ramp.ground = ColorRamp::Ground::Light;
    QVERIFY2(1.05 / (light(ramp.color(i / 20.0)) + 0.05) > 1.8, qPrintable(QString::number(i)));
    ramp.ground = ColorRamp::Ground::Dark;
    QVERIFY2((light(ramp.color(i / 20.0)) + 0.05) / 0.05 > 2.0, qPrintable(QString::number(i)));
  }
  ramp.ground = ColorRamp::Ground::Any;
  QVERIFY(ColorRamp::kindOf(QStringLiteral("no ramp")) == ColorRamp::Kind::Hue);
  ramp.kind = ColorRamp::Kind::Diverging;
  QVERIFY(QColor(ramp.color(0.0)).blue() > QColor(ramp.color(0.0)).red());
  QVERIFY(QColor(ramp.color(0.5)).saturation() < 5);
  constexpr double PaperGrey = 215.0; // a thin line of it can still be seen on white
  for (int i = 0; i <= 50; ++i)
    QVERIFY2(lightness(i / 50.0) < PaperGrey, qPrintable(QString::number(i)));
  QVERIFY(QColor(ramp.color(1.0)).red() > QColor(ramp.color(1.0)).blue());
}

void TestColorMap::capsAreDarker() {
  const QwtInterval interval(0.0, 10.0);
  TableColorMap table(std::make_unique<HueColorMap>(ColorRamp()));
  QCOMPARE(table.rgb(interval, 11.0), table.rgb(interval, 10.0));
  table.setCaps(false, true);
  QVERIFY(QColor(table.rgb(interval, 11.0)).value() < QColor(table.rgb(interval, 10.0)).value());
  QCOMPARE(table.rgb(interval, -1.0), table.rgb(interval, 0.0));
}

void TestColorMap::classes() {
  const HueColorMap map({});
  const QwtInterval interval(0.0, 100.0);
  QCOMPARE(ClassColorMap::equalBreaks(interval, 4), (std::vector<double>{25, 50, 75}));
  QVERIFY(ClassColorMap::equalBreaks(interval, 1).empty());
  QVERIFY(ClassColorMap::equalBreaks({5.0, 5.0}, 4).empty());
  QCOMPARE(ClassColorMap::quantileBreaks({9, 1, 1, 1, 1, 1, 1, 1, 2, 3}, 5),
           (std::vector<double>{3})); // of equal breaks one
  QVERIFY(ClassColorMap::quantileBreaks({}, 3).empty());
  const ClassColorMap classes({25, 50}, map);
  QCOMPARE(classes.rgb(interval, 24.9), map.rgb(interval, 0.0));
  QCOMPARE(classes.rgb(interval, 25.0), classes.rgb(interval, 49.0));
  QCOMPARE(classes.rgb(interval, 1e30), map.rgb(interval, 100.0));
}

NIVRA_TEST(TestColorMap);
#include "tst_colormap.moc"
