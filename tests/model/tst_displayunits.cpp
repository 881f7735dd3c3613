#include <base/settings.h>
#include <model/displayunits.h>
#include <model/quantities.h>
#include <support/nivratest.h>

#include <QBuffer>

#include <cmath>

namespace {

void choose(const char *key, const char *value) {
  QVERIFY(GeneralSettings::suits(QString::fromLatin1(key), QString::fromLatin1(value)));
  QVERIFY(GeneralSettings::instance().setValue(QString::fromLatin1(key), QString::fromLatin1(value)));
}

const NetMetaData::Attribute &attribute(const char *type, const char *property) {
  return *NetMetaData::instance().attribute(QString::fromLatin1(type), QString::fromLatin1(property));
}

} // namespace

/// The unit in which a value is shown.
class TestDisplayUnits : public QObject {
  Q_OBJECT

private slots:
  void init() { GeneralSettings::instance().reset(); }
  void cleanup() { GeneralSettings::instance().reset(); }
  void published_data();
  void published();
  void everyOfferedUnitFits();
  void tableDecidesByDefault();
  void differencesHaveNoOrigin();
  void unitsOfFormulas();
  void unknownQuantityIsTold();
};

// Exact by definition (NIST SP 811; IT British thermal unit 1055.05585262 J; standard gravity 9.80665 m/s2).
void TestDisplayUnits::published_data() {
  QTest::addColumn<QByteArray>("key");
  QTest::addColumn<QByteArray>("unit");
  QTest::addColumn<QByteArray>("type");
  QTest::addColumn<QByteArray>("property");
  QTest::addColumn<double>("stored");
  QTest::addColumn<double>("shown");
  const auto row = [](const char *quantity, const char *unit, const char *type, const char *property, double stored,
                      double shown) {
    QTest::addRow("%s in %s", property, unit) << QByteArray("unit: ") + quantity << QByteArray(unit) << QByteArray(type)
                                              << QByteArray(property) << stored << shown;
  };
  row("pressure", "MPa", "n", "p", 51.01325, 5.101325);
  row("pressure", "barg", "n", "p", 51.01325, 50.0);
  row("pressure", "psi", "n", "p", 1.0, 1e5 / 6894.757293168361);
  row("pressure", "psig", "n", "p", 1.01325, 0.0);
  row("pressure", "psig", "n", "pmax", 1.01325 + 0.06894757293168361, 1.0);
  row("pressure difference", "mbar", "p", "dp", 1.5, 1500.0);
  row("pressure difference", "psi", "p", "dp", 0.06894757293168361, 1.0);
  row("norm volume flow", "m3/h", "p", "q", 12.5, 12500.0);
  row("norm volume flow", "m3/s", "p", "q", 3.6, 1.0);
  row("norm volume flow", "1000000 m3/d", "p", "q", 1000.0, 24.0);
  row("mass flow", "t/h", "p", "m", 1.0, 3.6);
  row("mass flow", "lb/s", "p", "m", 0.45359237, 1.0);
  row("energy flow", "GWh/d", "p", "pow", 1000.0, 24.0);
  row("energy flow", "GJ/h", "p", "pow", 1.0, 3.6);
  row("power", "kW", "c", "power", 1.2, 1200.0);
  row("temperature", "K", "n", "t", 288.15, 288.15);
  row("temperature", "degF", "n", "t", 273.15 + 100.0, 212.0);
  row("temperature", "K", "n", "tset", 10.0, 283.15);
  row("length", "m", "p", "length", 1500.0, 1500.0);
  row("length", "mile", "p", "length", 1609.344, 1.0);
  row("height", "ft", "n", "height", 0.3048, 1.0);
  row("diameter", "inch", "p", "diameter", 25.4, 1.0);
  row("wall and roughness", "um", "p", "roughness", 0.012, 12.0);
  row("velocity", "km/h", "p", "v", 1.0, 3.6);
  row("volume flow in the machine", "m3/min", "c", "vflow", 1.0, 60.0);
  row("head", "m of head", "c", "head", 9.80665, 1000.0);
  row("head", "kWh/t", "c", "head", 3.6, 1.0);
  row("speed", "1/s", "c", "speed", 6000.0, 100.0);
  row("density", "g/l", "n", "rho", 0.8, 0.8);
  row("density", "lb/ft3", "n", "rho", 0.45359237 / 0.028316846592, 1.0);
  row("calorific value", "MJ/m3", "n", "hs", 39.8, 39.8);
  row("calorific value", "BTU/ft3", "n", "hs", 1.05505585262e-3 / 0.028316846592, 1.0);
  row("gas volume", "1000000 m3", "p", "linepack", 2500.0, 2.5);
}

void TestDisplayUnits::published() {
  QFETCH(QByteArray, key);
  QFETCH(QByteArray, unit);
  QFETCH(QByteArray, type);
  QFETCH(QByteArray, property);
  QFETCH(double, stored);
  QFETCH(double, shown);
  choose(key.constData(), unit.constData());
  const DisplayUnits::Shown display = DisplayUnits::of(attribute(type.constData(), property.constData()));
  QCOMPARE(display.unit, QString::fromLatin1(unit));
  const double found = display.toDisplay(stored);
  QVERIFY2(std::abs(found - shown) < 1e-9 * (1.0 + std::abs(shown)), qPrintable(QString::number(found, 'g', 16)));
}

void TestDisplayUnits::everyOfferedUnitFits() {
  QVERIFY(Quantities::all().size() > 15);
  QStringList used;
  for (const NetMetaData::Attribute &row : NetMetaData::instance().attributes()) {
    if (row.quantity.isEmpty())
      continue;
    used.append(row.quantity);
    for (const Quantities::Quantity &quantity : Quantities::all()) {
      if (quantity.name != row.quantity)
        continue;
      QVERIFY2(quantity.units.contains(row.displayUnit), qPrintable(row.property));
      for (const QString &unit : quantity.units)
        QVERIFY2(Units::conversion(row.storedUnit, unit), qPrintable(row.property + QLatin1Char(' ') + unit));
    }
  }
  for (const Quantities::Quantity &quantity : Quantities::all())
    QVERIFY2(used.contains(quantity.name), qPrintable(quantity.name)); // none that no property has
  QVERIFY(NetMetaData::instance().findings().empty());
}

void TestDisplayUnits::tableDecidesByDefault() {
  for (const NetMetaData::Attribute &row : NetMetaData::instance().attributes())
    QCOMPARE(DisplayUnits::of(row).unit, row.displayUnit);
  QCOMPARE(DisplayUnits::of(attribute("n", "t")).toDisplay(283.15), 10.0);
  QCOMPARE(DisplayUnits::of(attribute("n", "tcrit")).toDisplay(190.56), 190.56);
  choose("unit: pressure", "MPa");
  QCOMPARE(DisplayUnits::of(attribute("v", "kv")).unit, QStringLiteral("m3/h")); // no flow of gas
  QCOMPARE(DisplayUnits::ofTable(attribute("n", "p")).unit, QStringLiteral("bar"));
  QCOMPARE(DisplayUnits::of(nullptr).unit, QString());
}

void TestDisplayUnits::differencesHaveNoOrigin() {
  choose("unit: temperature difference", "degC");
  QCOMPARE(DisplayUnits::of(attribute("p", "dt")).toDisplay(10.0), 10.0);
  choose("unit: temperature difference", "degF");
  QCOMPARE(DisplayUnits::of(attribute("p", "dt")).toDisplay(10.0), 18.0);
  QCOMPARE(DisplayUnits::of(attribute("n", "t")).toDisplay(283.15), 10.0); // a choice of its own
  choose("unit: pressure", "barg");
  QCOMPARE(DisplayUnits::of(attribute("p", "dp")).toDisplay(2.0), 2.0);
  QVERIFY(!GeneralSettings::suits(QStringLiteral("unit: pressure difference"), QStringLiteral("barg")));
}

void TestDisplayUnits::unitsOfFormulas() {
  NetMetaData::Attribute made;
  made.type = QStringLiteral("p");
  made.property = QStringLiteral("made");
  made.storedUnit = made.displayUnit = QStringLiteral("bar");
  choose("unit: pressure", "MPa");
  QCOMPARE(DisplayUnits::of(made).toDisplay(5.0), 0.5);
  choose("unit: pressure", "barg"); // it may as well be a difference
  QCOMPARE(DisplayUnits::of(made).unit, QStringLiteral("bar"));
  QCOMPARE(DisplayUnits::of(made).toDisplay(5.0), 5.0);
  made.storedUnit = made.displayUnit = QStringLiteral("bar/km");
  QCOMPARE(DisplayUnits::of(made).unit, QStringLiteral("bar/km"));
}

void TestDisplayUnits::unknownQuantityIsTold() {
  QByteArray text("type;property;long name;group;stored unit;display unit;category;favourite;description;values;quantity\n"
                  "n;a;a;extra;bar;bar;x;0;;;pressure\n"
                  "n;b;b;extra;bar;bar;x;0;;;weight\n");
  QBuffer file(&text);
  QVERIFY(file.open(QIODevice::ReadOnly));
  NetMetaData data;
  const Findings findings = data.read(file, QStringLiteral("Attribute.csv"));
  QCOMPARE(findings.size(), std::size_t(1));
  QCOMPARE(findings.front().line, 3);
  QVERIFY(findings.front().text.contains(QStringLiteral("unknown quantity \"weight\"")));
  QCOMPARE(data.attribute(QStringLiteral("n"), QStringLiteral("a"))->quantity, QStringLiteral("pressure"));
}

NIVRA_TEST(TestDisplayUnits);
#include "tst_displayunits.moc"
