#include "parabolicmachine.h"

#include <model/netmetadata.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <QFile>

#include <cmath>
#include <machines/machinelimits.h>
#include <machines/machinereader.h>

/// How near machines are to their limits, by hand and by what was measured.
class TestMachineLimits : public QObject {
  Q_OBJECT

private slots:
  void init();
  void propertiesOfMachines();
  void stationsSayTheNearest();
  void measuredSurgePointsLieAtTheLine();

private:
  static MachineData data() { return ParabolicMachine::data(); }
  double value(const char *name, const char *property) const {
    return m_net->value(*m_net->element(QString::fromLatin1(name)), PropertyKey::find(property));
  }

  std::unique_ptr<NetData> m_net;
};

void TestMachineLimits::init() {
  m_net = std::make_unique<NetData>();
  m_net->addElement(
      makeElement({{"name", "A"}, {"type", "n"}, {"p", "50"}, {"t", "288.15"}, {"rhon", "0.785"}, {"rho", "42"}}));
  m_net->addElement(makeElement({{"name", "B"}, {"type", "n"}, {"p", "70"}}));
  m_net->addElement(
      makeElement({{"name", "M"}, {"type", "c"}, {"node1", "A"}, {"node2", "B"}, {"m", "100"}, {"drive", "D1"}}));
  m_net->addElement(makeElement({{"name", "D1"}, {"type", "d"}, {"machine", "D"}, {"driven", "M"}}));
}

void TestMachineLimits::propertiesOfMachines() {
  NetworkMachines machines(*m_net, data());
  MachineLimits limits(*m_net);
  limits.write(machines.judge().machines);
  const double q = 100.0 / 42.0;
  const double head = machines.compression(*m_net->element(QStringLiteral("M")))->adiabaticHead();
  const double n = 1000.0 * std::sqrt(head + q * q);
  const auto along = [&](double slope) { // the line of speed n meets the line head = slope q
    return 0.5 * (std::sqrt(slope * slope + 4e-6 * n * n) - slope);
  };
  const auto isNear = [](double a, double b) {
    return std::abs(a - b) < 1e-6 * std::abs(b);
  };
  QVERIFY(isNear(value("M", "surgemargin"), 100.0 * (q - along(30.0)) / q));
  QVERIFY(isNear(value("M", "turndown"), 100.0 * (q - head / 30.0) / q));
  QVERIFY(isNear(value("M", "chokemargin"), 100.0 * (along(8.0) - q) / q));
  QVERIFY(isNear(value("M", "speedreserve"), 100.0 * (9000.0 - n) / 9000.0));
  QVERIFY(isNear(value("M", "powerreserve"), (2.0 * n - 100.0 * head / 0.8) / 1000.0)); // MW
  QCOMPARE(value("D1", "powerreserve"), value("M", "powerreserve"));
  QCOMPARE(value("D1", "surgemargin"), NetData::NoValue);
  const NetMetaData::Attribute *row = m_net->metaData()->attribute(QStringLiteral("c"), QStringLiteral("surgemargin"));
  QVERIFY(row != nullptr && row->storedUnit == QLatin1String("%") && row->longName == QLatin1String("distance to surge"));

  // What is no longer known goes, and what a file said stays.
  element &machine = *m_net->element(QStringLiteral("M"));
  machine.set(QStringLiteral("m"), QStringLiteral("40"));
  limits.write(machines.judge().machines);
  QVERIFY(value("M", "surgemargin") < 0.0); // beyond the line
  machine.set(QStringLiteral("m"), QStringLiteral("0"));
  QStringList changed;
  for (const ElementChange &change : limits.write(machines.judge().machines))
    changed += change.elements;
  QCOMPARE(changed.count(QStringLiteral("M")), 5);
  QCOMPARE(value("M", "surgemargin"), NetData::NoValue);
  machine.set(QStringLiteral("m"), QStringLiteral("100"));
  machine.set(QStringLiteral("turndown"), QStringLiteral("7"));
  limits.write(machines.judge().machines);
  limits.write({});
  QCOMPARE(value("M", "turndown"), 7.0);
  QCOMPARE(value("M", "chokemargin"), NetData::NoValue);
}

void TestMachineLimits::stationsSayTheNearest() {
  MachineData d = data();
  d.turbos[0].station = QStringLiteral("M");
  d.turbos.push_back(d.turbos[0]);
  d.turbos[1].name = QStringLiteral("second");
  d.turbos[1].surge = Quadratic{{0, 12, 0}};
  d.configurations = {
      {QStringLiteral("M"), QStringLiteral("both"), {{{QStringLiteral("M")}}, {{QStringLiteral("second")}}}}};
  NetworkMachines machines(*m_net, d);
  const auto station = machines.station(*m_net->element(QStringLiteral("M")));
  QCOMPARE(station->units.size(), std::size_t(2));
  const auto judged = machines.judge().machines;
  QCOMPARE(judged.front().element, QStringLiteral("M"));
  QCOMPARE(*judged.front().margins.surge,
           std::min(*station->units[0].point.margins.surge, *station->units[1].point.margins.surge));
  QCOMPARE(*judged.front().margins.surge, *station->units[1].point.margins.surge);
}

/// The points of public machines: those of the surge line have no distance left, those of the map lie between the lines.
void TestMachineLimits::measuredSurgePointsLieAtTheLine() {
  const QString file = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/compressors/GasLib-135-two-stations.cs");
  if (!QFile::exists(file))
    QSKIP("the public machine data are not there");
  const MachineData published = MachineReader::read(file).data;
  for (const TurboCompressor &machine : published.turbos) {
    QVERIFY(!machine.surgePoints.empty() && !machine.points.empty());
    for (const MeasuredPoint &at : machine.surgePoints) {
      const MachineMargins margins = MachineMargins::of(machine, at.flow, at.head, at.speed);
      QVERIFY2(std::abs(*margins.surge) < 0.05 && std::abs(*margins.turndown) < 0.05, qPrintable(machine.name));
    }
    for (const MeasuredPoint &at : machine.points) {
      const MachineMargins margins = MachineMargins::of(machine, at.flow, at.head, at.speed);
      QVERIFY2(*margins.surge > 0.0 && *margins.choke > -0.05, qPrintable(machine.name));
    }
  }
}

NIVRA_TEST(TestMachineLimits);
#include "tst_machinelimits.moc"
