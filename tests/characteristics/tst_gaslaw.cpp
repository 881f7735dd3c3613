#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <cmath>
#include <machines/compression.h>
#include <machines/gaslaw.h>

/// Laws against numbers that others published, none of them made by this program:
/// - hydrogen at 100 bar: Hydrogen Analysis Resource Center, compressibility of hydrogen by NIST REFPROP 8.0;
/// - the six natural gases of ISO 12213-3 (annex C): their density, calorific value and shares, and z at 60 bar;
/// - methane: Setzmann and Wagner, J. Phys. Chem. Ref. Data 20 (1991), tables (300 K);
/// - heat capacities of the ideal gases at 298.15 K: CODATA / JANAF tables.
class TestGasLaw : public QObject {
  Q_OBJECT

private slots:
  void hydrogen();
  void methane();
  void naturalGases_data();
  void naturalGases();
  void criticalValuesAlone();
  void lawsObeyThermodynamics();
  void formulasThatScenariosAskFor();
  void statedHeatCapacity();
  void gasesThatCannotBe();
  void gasOfTheNodeElseOfTheScenario();

private:
  static GasData pureHydrogen() {
    GasData gas;
    gas.normDensity = 0.0899;
    gas.molarMass = 2.016;
    gas.calorificValue = 12.7;
    gas.criticalPressure = 12.964;
    gas.criticalTemperature = 33.145;
    return gas;
  }
  static GasData pureMethane() {
    GasData gas;
    gas.normDensity = 0.7175;
    gas.calorificValue = 39.82;
    gas.criticalPressure = 45.99;
    gas.criticalTemperature = 190.56;
    return gas;
  }
  static bool isNear(double value, double expected, double part) { return std::abs(value / expected - 1.0) <= part; }
};

#define QVERIFY_NEAR(value, expected, part)                                                                                 \
  QVERIFY2(isNear(value, expected, part), qPrintable(QString::number(value, 'g', 9)))

void TestGasLaw::hydrogen() {
  const auto law = GasLaw::of(pureHydrogen());
  QVERIFY2(law->remarks().isEmpty(), qPrintable(law->remarks().join(QLatin1Char('\n'))));
  QVERIFY2(law->name().contains(QStringLiteral("100.0 % H2")), qPrintable(law->name()));
  QVERIFY_NEAR(law->at(100.0, 273.15).realGasFactor, 1.0637, 0.0005);
  QVERIFY_NEAR(law->at(100.0, 298.15).realGasFactor, 1.0601, 0.0005);
  QVERIFY_NEAR(law->at(100.0, 323.15).realGasFactor, 1.0567, 0.0005);
  QVERIFY_NEAR(law->at(65.0, 288.15).realGasFactor, 1.0396, 0.0005);
  QVERIFY_NEAR(law->at(1.01325, 273.15).density, 0.08988, 0.0003);
  QVERIFY_NEAR(law->at(1e-3, 298.15).heatCapacity * law->molarMass(), 28.836, 0.001);
  QVERIFY_NEAR(law->at(1e-3, 298.15).exponent, 1.405, 0.001);
}

void TestGasLaw::methane() {
  const auto law = GasLaw::of(pureMethane());
  QVERIFY2(law->name().contains(QStringLiteral("100.0 % CH4")), qPrintable(law->name()));
  QVERIFY_NEAR(law->at(10.0, 300.0).density, 6.5414, 0.001);
  QVERIFY_NEAR(law->at(50.0, 300.0).density, 34.969, 0.001);
  QVERIFY_NEAR(law->at(100.0, 300.0).density, 75.17, 0.001);
  QVERIFY_NEAR(law->at(1.01325, 273.15).density, 0.7175, 0.0003);
  QVERIFY_NEAR(law->at(1e-3, 298.15).heatCapacity * law->molarMass(), 35.70, 0.002);
  QVERIFY_NEAR(law->at(1e-3, 298.15).exponent, 1.304, 0.002);
}

void TestGasLaw::naturalGases_data() {
  QTest::addColumn<double>("relativeDensity"); // to air, at norm conditions
  QTest::addColumn<double>("calorificValue");
  QTest::addColumn<double>("carbonDioxide");
  QTest::addColumn<double>("hydrogen");
  QTest::addColumn<QVector<double>>("factors"); // at 60 bar and -3.15, 6.85, 16.85, 36.85, 56.85 degC, then at 120 bar
  QTest::newRow("gas 1") << 0.581 << 40.66 << 0.006 << 0.0 << QVector<double>{0.84084, 0.86202, 0.88007, 0.90881, 0.92996,
                                                                              0.72146, 0.75969, 0.79257, 0.84492, 0.88322};
  QTest::newRow("gas 2") << 0.609 << 40.62 << 0.005 << 0.0 << QVector<double>{0.83397, 0.85615, 0.87500, 0.90491, 0.92690,
                                                                              0.71140, 0.75079, 0.78472, 0.83877, 0.87832};
  QTest::newRow("gas 3") << 0.650 << 43.53 << 0.015 << 0.0 << QVector<double>{0.79415, 0.82210, 0.84553, 0.88223, 0.90893,
                                                                              0.64322, 0.69062, 0.73196, 0.79778, 0.84554};
  QTest::newRow("gas 4") << 0.599 << 34.16 << 0.016 << 0.095 << QVector<double>{0.88569, 0.90150, 0.91507, 0.93684, 0.95302,
                                                                                0.80843, 0.83613, 0.85999, 0.89827, 0.92662};
  QTest::newRow("gas 5") << 0.686 << 36.64 << 0.076 << 0.0 << QVector<double>{0.82664, 0.85017, 0.87003, 0.90124, 0.92394,
                                                                              0.69557, 0.73828, 0.77463, 0.83166, 0.87269};
  QTest::newRow("gas 6") << 0.644 << 36.58 << 0.011 << 0.0 << QVector<double>{0.85406, 0.87388, 0.89071, 0.91736, 0.93690,
                                                                              0.74939, 0.78473, 0.81490, 0.86266, 0.89749};
}

void TestGasLaw::naturalGases() {
  QFETCH(double, relativeDensity);
  QFETCH(double, calorificValue);
  QFETCH(double, carbonDioxide);
  QFETCH(double, hydrogen);
  QFETCH(QVector<double>, factors);
  constexpr double Air = 1.292923; // kg/m3 at norm conditions, ISO 12213-3
  GasData gas;
  gas.normDensity = relativeDensity * Air;
  gas.calorificValue = calorificValue;
  gas.carbonDioxide = carbonDioxide;
  if (hydrogen > 0.0)
    gas.hydrogen = hydrogen;
  const auto law = GasLaw::of(gas);
  const std::array<double, 5> temperatures{270.0, 280.0, 290.0, 310.0, 330.0};
  for (int i = 0; i < factors.size(); ++i) {
    const double z = law->at(i < 5 ? 60.0 : 120.0, temperatures[static_cast<std::size_t>(i % 5)]).realGasFactor;
    QVERIFY2(isNear(z, factors[i], 0.002), qPrintable(QStringLiteral("%1 for %2").arg(z).arg(factors[i])));
  }
  QVERIFY_NEAR(law->at(1.01325, 273.15).density, gas.normDensity, 0.0005); // it is the gas that was stated
}

/// Against the tables of methane and of the natural gases 1, 4 and 5, whose critical values are the means of their parts.
void TestGasLaw::criticalValuesAlone() {
  const auto of = [](double molarMass, double temperature, double pressure) {
    GasData gas;
    gas.molarMass = molarMass;
    gas.criticalPressure = pressure;
    gas.criticalTemperature = temperature;
    return GasLaw::of(gas);
  };
  const auto methane = of(16.04, 190.56, 45.99);
  QVERIFY2(methane->name().contains(QStringLiteral("critical")), qPrintable(methane->name()));
  QVERIFY_NEAR(methane->at(100.0, 300.0).density, 75.17, 0.01);
  const auto natural = of(16.79, 194.9, 46.1);
  QVERIFY_NEAR(natural->at(60.0, 270.0).realGasFactor, 0.84084, 0.01);
  QVERIFY_NEAR(natural->at(120.0, 310.0).realGasFactor, 0.84492, 0.01);
  QVERIFY_NEAR(of(19.83, 202.4, 47.4)->at(60.0, 270.0).realGasFactor, 0.82664, 0.01); // much carbon dioxide
  const auto mixed = of(17.32, 176.6, 42.0);
  QVERIFY2(mixed->name().contains(QStringLiteral("corresponding")), qPrintable(mixed->name())); // hydrogen in it
  QVERIFY_NEAR(mixed->at(60.0, 270.0).realGasFactor, 0.88569, 0.01);
}

/// Heat capacity, entropy and exponent belong to the same gas as density and enthalpy.
void TestGasLaw::lawsObeyThermodynamics() {
  for (const GasData &gas : {pureHydrogen(), pureMethane()}) {
    const auto law = GasLaw::of(gas);
    constexpr double p = 70.0;
    constexpr double t = 300.0;
    constexpr double dt = 0.01;
    constexpr double dp = 0.01;
    const GasLaw::State before = law->at(p, t - dt);
    const GasLaw::State here = law->at(p, t);
    const GasLaw::State after = law->at(p, t + dt);
    QVERIFY_NEAR((after.enthalpy - before.enthalpy) / (2.0 * dt), here.heatCapacity, 1e-6);
    QVERIFY_NEAR((after.entropy - before.entropy) / (2.0 * dt), here.heatCapacity / t, 1e-6);
    const GasLaw::State lower = law->at(p - dp, t);
    const GasLaw::State higher = law->at(p + dp, t);
    // dh = T ds + dp / rho; 1 bar m3/kg are 100 kJ/kg
    QVERIFY_NEAR((higher.enthalpy - lower.enthalpy) - t * (higher.entropy - lower.entropy), 100.0 * 2.0 * dp / here.density,
                 1e-5);
    const double behind = *law->temperatureByEntropy(p + dp, here.entropy);
    const double compressed = law->at(p + dp, behind).density;
    QVERIFY_NEAR(std::log((p + dp) / p) / std::log(compressed / here.density), here.exponent, 1e-3);

    // The head by the mean exponent is the enthalpy that the gas takes up.
    Compression c;
    c.gas = law;
    c.massFlow = 1.0;
    c.inletPressure = 50.0;
    c.outletPressure = 75.0;
    const GasLaw::State inlet = law->at(50.0, c.inletTemperature);
    const double ideal = *law->temperatureByEntropy(75.0, inlet.entropy);
    QVERIFY_NEAR(c.adiabaticHead(), law->at(75.0, ideal).enthalpy - inlet.enthalpy, 1e-9);
    QVERIFY(std::abs(*c.outletTemperature(1.0) - ideal) < 0.05);
    QVERIFY(*c.outletTemperature(0.8) > ideal + 5.0);
    QVERIFY(!c.outletTemperature(1e-3)); // beyond what the law is made for
  }
}

void TestGasLaw::formulasThatScenariosAskFor() {
  GasData gas;
  gas.molarMass = 18.0;
  gas.normDensity = 0.805;
  gas.calorificValue = 41.0;
  gas.criticalPressure = 46.0;
  gas.criticalTemperature = 195.0;
  const double pr = 60.0 / 46.0;
  const double tr = 300.0 / 195.0;
  const auto papay = GasLaw::of(gas, GasLaw::Wanted::Papay);
  QVERIFY(std::abs(papay->at(60.0, 300.0).realGasFactor -
                   (1.0 - 3.52 * pr * std::exp(-2.26 * tr) + 0.247 * pr * pr * std::exp(-1.878 * tr))) < 1e-12);
  const auto aga = GasLaw::of(gas, GasLaw::Wanted::Aga);
  QVERIFY(std::abs(aga->at(60.0, 300.0).realGasFactor - (1.0 + 0.257 * pr - 0.533 * pr / tr)) < 1e-12);
  QVERIFY(papay->name().contains(QStringLiteral("Papay")) && papay->name().contains(QStringLiteral("GERG-2008")));
  // Hydrogen is far outside of what these were made for.
  const auto hydrogen = GasLaw::of(pureHydrogen(), GasLaw::Wanted::Papay);
  QVERIFY_NEAR(hydrogen->at(65.0, 288.15).realGasFactor, 1.0396, 0.0005);
  QVERIFY2(hydrogen->remarks().join(QString()).contains(QStringLiteral("papay")), qPrintable(hydrogen->name()));
}

void TestGasLaw::statedHeatCapacity() {
  GasData gas = pureMethane();
  const double usual = GasLaw::of(gas)->at(1e-3, 300.0).heatCapacity;
  gas.heatCapacity = {{31.61, -0.004663, 3.74e-05}}; // as public networks state it
  const auto law = GasLaw::of(gas);
  QVERIFY_NEAR(law->at(1e-3, 300.0).heatCapacity * law->molarMass(), 31.61 - 0.004663 * 300.0 + 3.74e-05 * 9e4, 1e-5);
  QVERIFY(!isNear(law->at(1e-3, 300.0).heatCapacity, usual, 0.01));
  const double dt = 0.01;
  QVERIFY_NEAR((law->at(60.0, 300.0 + dt).enthalpy - law->at(60.0, 300.0 - dt).enthalpy) / (2.0 * dt),
               law->at(60.0, 300.0).heatCapacity, 1e-6);
}

void TestGasLaw::gasesThatCannotBe() {
  GasData gas = pureMethane();
  gas.molarMass = 18.5674;
  gas.normDensity = 0.785;
  gas.calorificValue = 36.454;
  QVERIFY(GasLaw::of(gas)->remarks().join(QString()).contains(QStringLiteral("18.567")));
  gas.calorificValue = 90.0; // of no gas of this density
  gas.criticalPressure = 0.0;
  QVERIFY(GasLaw::of(gas)->remarks().join(QString()).contains(QStringLiteral("methane is assumed")));
  QVERIFY(GasLaw::of(GasData())->remarks().join(QString()).contains(QStringLiteral("not known")));

  element stated = makeNode("N");
  stated.set(QStringLiteral("rhon"), QStringLiteral("0,8"));
  stated.set(QStringLiteral("molarmass"), QStringLiteral("-3"));
  stated.set(QStringLiteral("co2"), QStringLiteral("120"));
  QStringList faults;
  QVERIFY(!GasData::of(stated, &faults).isEnough());
  QCOMPARE(faults.size(), 3);
}

void TestGasLaw::gasOfTheNodeElseOfTheScenario() {
  NetData net;
  element own = makeNode("own");
  own.set(QStringLiteral("rhon"), QStringLiteral("0.0899"));
  own.set(QStringLiteral("hs"), QStringLiteral("12.7"));
  own.set(QStringLiteral("t"), QStringLiteral("300"));
  element named = makeNode("named");
  named.set(QStringLiteral("gas"), QStringLiteral("h2"));
  for (const element &node : {own, named, makeNode("silent")})
    net.addElement(node);
  const auto hydrogenAt = [&net](const GasSource &gases, const char *node) {
    return gases.at(net.nodes().at(QString::fromLatin1(node))).law->molarMass() < 2.1;
  };
  GasSource gases(net);
  gases.set({});
  QVERIFY(hydrogenAt(gases, "silent")); // that of the first node that states one
  ScenarioGas scenario;
  scenario.temperature = 280.0;
  element methane;
  methane.set(QStringLiteral("rhon"), QStringLiteral("0.7175"));
  methane.set(QStringLiteral("hs"), QStringLiteral("39.82"));
  element hydrogen = own;
  scenario.gases = {{QStringLiteral("CH4"), methane}, {QStringLiteral("H2"), hydrogen}};
  gases.set(scenario);
  QVERIFY(hydrogenAt(gases, "own") && hydrogenAt(gases, "named") && !hydrogenAt(gases, "silent"));
  QCOMPARE(gases.temperatureAt(net.nodes().at(QStringLiteral("own"))), 300.0);
  QCOMPARE(gases.temperatureAt(net.nodes().at(QStringLiteral("silent"))), 280.0);
  QVERIFY(gases.findings().size() == 1 && gases.findings().front().text.contains(QStringLiteral("2 gases")));
  net.nodes().at(QStringLiteral("own")).erase(QStringLiteral("rhon"));
  GasSource none(net);
  QVERIFY(none.findings().size() == 1 && none.findings().front().text.contains(QStringLiteral("methane is assumed")));
}

NIVRA_TEST(TestGasLaw);
#include "tst_gaslaw.moc"
