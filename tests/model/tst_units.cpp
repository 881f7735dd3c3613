#include <model/units.h>
#include <support/nivratest.h>

#include <cmath>

class TestUnits : public QObject {
  Q_OBJECT

private slots:
  void conversions_data();
  void conversions();
  void conversionsAddNoDigits();
  void gasDependentConversions();
  void absurdNamesAreUnknown_data();
  void absurdNamesAreUnknown();
};

void TestUnits::conversions_data() {
  QTest::addColumn<QString>("from");
  QTest::addColumn<QString>("to");
  QTest::addColumn<double>("value");
  QTest::addColumn<double>("expected");
  const auto row = [](const char *from, const char *to, double value, double expected) {
    QTest::addRow("%s to %s", from, to) << QString::fromUtf8(from) << QString::fromUtf8(to) << value << expected;
  };
  row("m", "km", 1500.0, 1.5);
  row("bar", "Pa", 1.0, 1e5);
  row("bar", "barg", 51.01325, 50.0);
  row("K", "degC", 283.15, 10.0);
  row("\xC2\xB0"
      "C",
      "K", 10.0, 283.15);
  row("MJ/m3", "kWh/m3", 36.0, 10.0);
  row("1000 m3/h", "m3/h", 2.0, 2000.0);
  row("1000 m3/h", "Nm3/h", 2.0, 2000.0);
  row("kg/s", "t/h", 1.0, 3.6);
  row("-", "%", 0.5, 50.0);
  row("no unit", "no unit", 7.0, 7.0);
}

void TestUnits::conversions() {
  QFETCH(QString, from);
  QFETCH(QString, to);
  QFETCH(double, value);
  QFETCH(double, expected);
  const std::optional<double> there = Units::convert(value, from, to);
  QVERIFY(there.has_value());
  QVERIFY2(std::abs(*there - expected) < 1e-9 * (1.0 + std::abs(expected)), qPrintable(QString::number(*there, 'g', 16)));
  QVERIFY(std::abs(*Units::convert(*there, to, from) - value) < 1e-9 * (1.0 + std::abs(value)));
}

/// Numbers of few digits stay such, whether one of them is converted or a column.
void TestUnits::conversionsAddNoDigits() {
  const auto units = [](const char *name) {
    return QString::fromUtf8(name);
  };
  for (const auto &[from, to, value, expected] : {std::make_tuple("m3/h", "1000 m3/h", 5000.0, 5.0),
                                                  {"m3/h", "1000 m3/h", 4700.0, 4.7},
                                                  {"Pa", "bar", 123000.0, 1.23},
                                                  {"m", "mm", 0.1, 100.0},
                                                  {"K", "degC", 300.0, 26.85},
                                                  {"bar", "barg", 71.01325, 70.0},
                                                  {"kg/s", "t/h", 0.7, 2.52}}) {
    const std::optional<Units::Linear> line = Units::conversion(units(from), units(to));
    QVERIFY(line.has_value());
    QCOMPARE(QString::number((*line)(value), 'g', 17), QString::number(expected, 'g', 17));
    QCOMPARE(*Units::convert(value, units(from), units(to)), (*line)(value));
    QVERIFY(std::abs(line->inverse(expected) - value) <= 1e-15 * value);
  }
}

void TestUnits::gasDependentConversions() {
  const QString flow = QStringLiteral("1000 m3/h");
  const QString mass = QStringLiteral("kg/s");
  const QString power = QStringLiteral("MW");
  QVERIFY(!Units::convert(1.0, flow, mass));
  QVERIFY(!Units::convert(1.0, flow, power));
  QVERIFY(!Units::convert(1.0, flow, QStringLiteral("m")));
  Units::Gas gas;
  gas.normDensity = 0.72;
  QVERIFY(std::abs(*Units::convert(36.0, flow, mass, gas) - 7.2) < 1e-9);
  QVERIFY(!Units::convert(1.0, mass, power, gas));
  gas.calorificValue = 36.0;
  QVERIFY(std::abs(*Units::convert(1.0, flow, power, gas) - 10.0) < 1e-9);
  QVERIFY(std::abs(*Units::convert(7.2, mass, power, gas) - 360.0) < 1e-9);
  QVERIFY(std::abs(*Units::convert(360.0, power, flow, gas) - 36.0) < 1e-9);
  gas.normDensity = 0.0;
  QVERIFY(!Units::convert(1.0, flow, mass, gas));
}

void TestUnits::absurdNamesAreUnknown_data() {
  QTest::addColumn<QString>("unit");
  QTest::newRow("word") << QStringLiteral("furlongz");
  QTest::newRow("very long") << QString(100000, QLatin1Char('m'));
  QTest::newRow("control characters") << QStringLiteral("m\x01\x02");
  QTest::newRow("zero byte") << QString(QStringLiteral("m") + QChar(0) + QStringLiteral("s"));
  QTest::newRow("unfinished") << QStringLiteral("kg/(m2");
}

void TestUnits::absurdNamesAreUnknown() {
  QFETCH(QString, unit);
  QVERIFY(!Units::isKnown(unit));
  QVERIFY(!Units::convert(1.0, unit, QStringLiteral("m")));
}

NIVRA_TEST(TestUnits);
#include "tst_units.moc"
