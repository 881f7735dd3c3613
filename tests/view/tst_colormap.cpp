#include <support/nivratest.h>
#include <view/colormap.h>

#include <QColor>

#include <cmath>

class TestColorMap : public QObject {
  Q_OBJECT

private slots:
  void rampEndsAndMiddle();
  void linearFraction_data();
  void linearFraction();
  void logarithmicFollowsItsFormula_data();
  void logarithmicFollowsItsFormula();
  void tableKeepsTheMap();
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

void TestColorMap::tableKeepsTheMap() {
  const LogarithmicColorMap map(ColorRamp(), 5.0);
  const QwtInterval stored(0.0, 255.0);
  const TableColorMap table(map, stored);
  for (int i = 0; i < TableColorMap::Colors; ++i) // in a display unit of a tenth
    QCOMPARE(table.rgb(QwtInterval(0.0, 25.5), i * 0.1), map.rgb(stored, i));
}

NIVRA_TEST(TestColorMap);
#include "tst_colormap.moc"
