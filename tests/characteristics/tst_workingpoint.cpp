#include "mapplot.h"
#include "parabolicmachine.h"

#include <base/generalsettings.h>
#include <characteristics/characteristicsstack.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <qwt_plot_marker.h>
#include <qwt_scale_div.h>
#include <qwt_text_label.h>

#include <cmath>
#include <machines/machinereader.h>
#include <machines/workingpoint.h>

class TestWorkingPoint : public QObject {
  Q_OBJECT

private slots:
  void init();
  void compression();
  void stationLosses();
  void turbo();
  void notCompressing_data();
  void notCompressing();
  void lawsBeyondTheirRange();
  void everyLimitIsTold();
  void outsideOfTheMap_data();
  void outsideOfTheMap();
  void piston();
  void pistonLimits();
  void stackOpensAndKeeps();
  void nothingIsWrittenIntoTheCase();
  void storedResultsBesideComputedOnes();
  void stationsShareTheFlow();
  void configurationsOfPublicStations();
  void publishedCoefficientsCanBeChosen();
  void machinesOfElements();
  void axesFollowTheUnits();
  void stackWithoutData();
  void mouseZoomsAndReads();
  void picturesOfMaps_data();
  void picturesOfMaps();
  void exportedMapsAreLargeAndWhole();
  void drivesShowWhatWasMeasured();

private:
  static Compression natural() {
    Compression c;
    c.massFlow = 100.0;
    c.inletPressure = 50.0;
    c.outletPressure = 70.0;
    c.inletTemperature = 288.15;
    c.inletDensity = 42.0;
    return c;
  }
  static TurboCompressor machine() { return ParabolicMachine::machine(); }
  static MachineData data() {
    MachineData d = ParabolicMachine::data();
    d.ambientTemperature = 5.0;
    return d;
  }

  std::unique_ptr<NetData> m_net;
};

void TestWorkingPoint::init() {
  m_net = std::make_unique<NetData>();
  const auto add = [this](element e, std::initializer_list<std::pair<const char *, const char *>> more) {
    for (const auto &[name, value] : more)
      e.set(QString::fromUtf8(name), QString::fromUtf8(value));
    m_net->addElement(std::move(e));
  };
  add(makeNode("A"), {{"p", "50"}, {"t", "288.15"}, {"rhon", "0.785"}, {"molarmass", "18"}, {"rho", "42"}});
  add(makeNode("B"), {{"p", "70"}});
  add(makeEdge("M", "A", "B", "c"), {{"m", "100"}, {"drive", "D1"}});
  add(makeNode("D1"), {{"type", "d"}, {"machine", "D"}, {"driven", "M"}});
  add(makeEdge("K", "B", "A", "c"), {{"machine", "unknown"}});
}

void TestWorkingPoint::compression() {
  GasSource gases(*m_net);
  const auto c = Compression::of(*m_net, m_net->edges().at(QStringLiteral("M")), gases);
  QVERIFY(c.has_value());
  QCOMPARE(c->volumeFlow(), 100.0 / 42.0); // the network states the density
  QCOMPARE(c->ratio(), 1.4);
  // p / rho k/(k-1) (ratio^((k-1)/k) - 1), with the exponent of a real natural gas at these pressures
  QVERIFY2(c->exponent() > 1.3 && c->exponent() < 1.45, qPrintable(QString::number(c->exponent())));
  const double k = 1.0 - 1.0 / c->exponent();
  QVERIFY(std::abs(c->adiabaticHead() - 5000.0 / 42.0 / k * (std::pow(1.4, k) - 1.0)) < 1e-9);
  QVERIFY(std::abs(c->ratioOf(c->adiabaticHead()) - 1.4) < 1e-12);
  QVERIFY(!Compression::of(*m_net, m_net->edges().at(QStringLiteral("K")), gases).has_value()); // no flow
  m_net->edges().at(QStringLiteral("K")).set(QStringLiteral("q"), QStringLiteral("-36"));
  const auto byNormFlow = Compression::of(*m_net, m_net->edges().at(QStringLiteral("K")), gases);
  QVERIFY(std::abs(byNormFlow->massFlow - 10.0 * 0.785) < 1e-12);
  QVERIFY(byNormFlow->isReversed && !c->isReversed);
  m_net->nodes().at(QStringLiteral("A")).set(QStringLiteral("rho"), QStringLiteral("60")); // no gas of this kind has that
  const auto odd = Compression::of(*m_net, m_net->edges().at(QStringLiteral("M")), gases);
  QVERIFY2(odd->remarks.join(QString()).contains(QStringLiteral("60 kg/m³")), qPrintable(odd->remarks.join(QString())));
}

void TestWorkingPoint::stationLosses() {
  GasSource gases(*m_net);
  element &edge = m_net->edges().at(QStringLiteral("M"));
  edge.set(QStringLiteral("dpin"), QStringLiteral("0.5"));
  edge.set(QStringLiteral("dpout"), QStringLiteral("1"));
  const auto c = Compression::of(*m_net, edge, gases);
  QCOMPARE(c->inletPressure, 49.5);
  QCOMPARE(c->outletPressure, 71.0);
  QVERIFY(std::abs(c->density() - 42.0 * 0.99) < 1e-12);
}

void TestWorkingPoint::turbo() {
  const MachineData d = data();
  const WorkingPoint point = WorkingPoint::of(d.turbos[0], &d.drives[0], natural(), 10.0);
  QVERIFY(point.speed.has_value());
  QVERIFY(std::abs((*d.turbos[0].head)(point.flow, *point.speed) - point.head) < 1e-9);
  QVERIFY2(point.isInside, qPrintable(point.remarks.join(QLatin1Char('\n'))));
  QVERIFY(*point.outletTemperature > 310.0 && *point.outletTemperature < 330.0);
  QVERIFY(std::abs(*point.power - 100.0 * point.head / 0.8) < 1e-9);
  QCOMPARE(*point.energyRate, 100.0 + 2.5 * *point.power);
  QCOMPARE(*point.powerLimit, 2.0 * *point.speed);
}

void TestWorkingPoint::outsideOfTheMap_data() {
  QTest::addColumn<double>("massFlow");
  QTest::addColumn<double>("outlet");
  QTest::addColumn<QString>("remark");
  QTest::newRow("surge") << 40.0 << 70.0 << QStringLiteral("surge");
  QTest::newRow("choke") << 260.0 << 70.0 << QStringLiteral("choke");
  QTest::newRow("too slow") << 100.0 << 51.0 << QStringLiteral("below the smallest");
  QTest::newRow("too fast") << 150.0 << 140.0 << QStringLiteral("above the largest");
  QTest::newRow("far too fast") << 150.0 << 5000.0 << QStringLiteral("No speed");
}

void TestWorkingPoint::outsideOfTheMap() {
  QFETCH(double, massFlow);
  QFETCH(double, outlet);
  QFETCH(QString, remark);
  Compression c = natural();
  c.massFlow = massFlow;
  c.outletPressure = outlet;
  const WorkingPoint point = WorkingPoint::of(machine(), nullptr, c, 10.0);
  QVERIFY(!point.isInside);
  const QString told = point.remarks.join(QLatin1Char('\n'));
  QVERIFY2(told.contains(remark), qPrintable(told));

  // A head that hardly depends on the squared speed has a second solution at an absurd one.
  TurboCompressor flat = machine();
  flat.head = Biquadratic{{-20.0, 0.009, -1e-22, 0, 0, 0, -1, 0, 0}};
  const WorkingPoint sane = WorkingPoint::of(flat, nullptr, natural(), 10.0);
  QVERIFY(sane.speed && *sane.speed > 5000.0 && *sane.speed < 10000.0);
  flat.efficiency = Biquadratic{{-3.0}};
  QVERIFY(!WorkingPoint::of(flat, nullptr, natural(), 10.0).efficiency.has_value());

  Drive weak;
  weak.power = Biquadratic{{100}};
  const WorkingPoint beyond = WorkingPoint::of(machine(), &weak, natural(), 10.0);
  QVERIFY(!beyond.isInside && beyond.remarks.join(QString()).contains(QStringLiteral("drive")));
}

void TestWorkingPoint::notCompressing_data() {
  QTest::addColumn<double>("outlet");
  QTest::addColumn<bool>("isReversed");
  QTest::addColumn<QString>("remark");
  QTest::newRow("backwards") << 70.0 << true << QStringLiteral("backwards");
  QTest::newRow("bypass") << 50.0 << false << QStringLiteral("Bypass");
  QTest::newRow("bypass with its loss") << 49.8 << false << QStringLiteral("Bypass");
  QTest::newRow("expansion") << 30.0 << false << QStringLiteral("Not compressing");
}

/// Values that no gas has.
void TestWorkingPoint::lawsBeyondTheirRange() {
  Compression cold = natural();
  cold.inletDensity = 0.0;
  cold.inletTemperature = 0.0;
  PistonCompressor piston;
  piston.displacement = 0.5;
  piston.speedMin = 200;
  piston.speedMax = 400;
  const WorkingPoint point = WorkingPoint::of(piston, nullptr, cold, 10.0);
  QVERIFY(!point.isInside && !point.speed && point.remarks.join(QString()).contains(QStringLiteral("gas law")));
  m_net->nodes().at(QStringLiteral("A")).set(QStringLiteral("t"), QStringLiteral("15")); // degC in place of K
  const auto c = Compression::of(*m_net, m_net->edges().at(QStringLiteral("M")), GasSource(*m_net));
  QCOMPARE(c->inletTemperature, ScenarioGas().temperature);
  QVERIFY2(c->remarks.join(QString()).contains(QStringLiteral("15 K")), qPrintable(c->remarks.join(QString())));
}

/// No speed, efficiency or power is made up where nothing is compressed.
void TestWorkingPoint::notCompressing() {
  QFETCH(double, outlet);
  QFETCH(bool, isReversed);
  QFETCH(QString, remark);
  Compression c = natural();
  c.outletPressure = outlet;
  c.isReversed = isReversed;
  PistonCompressor piston;
  piston.displacement = 0.5;
  piston.speedMin = 200;
  piston.speedMax = 400;
  piston.efficiency = 0.58;
  for (const WorkingPoint &point :
       {WorkingPoint::of(machine(), nullptr, c, 10.0), WorkingPoint::of(piston, nullptr, c, 10.0)}) {
    QVERIFY(!point.isCompressing() && !point.isInside && !point.speed && !point.efficiency && !point.power);
    QCOMPARE(point.remarks.size(), 1);
    QVERIFY2(point.remarks.front().contains(remark), qPrintable(point.remarks.front()));
  }
}

void TestWorkingPoint::everyLimitIsTold() {
  PistonCompressor m;
  m.displacement = 0.1;
  m.speedMin = 200;
  m.speedMax = 400;
  m.efficiency = 0.85;
  m.maximalRatio = 1.2;
  m.maximalTorque = 0.1;
  Drive weak;
  weak.power = Biquadratic{{10}};
  const QStringList remarks = WorkingPoint::of(m, &weak, natural(), 10.0).remarks;
  QCOMPARE(remarks.size(), 4); // speed, ratio, power, torque
  Compression fast = natural();
  fast.massFlow = 400.0;
  fast.outletPressure = 140.0;
  const QString told = WorkingPoint::of(machine(), &weak, fast, 10.0).remarks.join(QString());
  QVERIFY2(told.contains(QStringLiteral("above the largest")) && told.contains(QStringLiteral("drive")), qPrintable(told));
}

void TestWorkingPoint::piston() {
  PistonCompressor m;
  m.displacement = 0.5;
  m.speedMin = 200;
  m.speedMax = 400;
  m.efficiency = 0.85;
  m.maximalRatio = 2.0;
  const WorkingPoint point = WorkingPoint::of(m, nullptr, natural(), 10.0);
  QVERIFY(std::abs(*point.speed - point.flow / 0.5 * 60.0) < 1e-9);
  QVERIFY2(point.isInside, qPrintable(point.remarks.join(QLatin1Char('\n'))));
  m.maximalTorque = 1.0;
  QVERIFY(WorkingPoint::of(m, nullptr, natural(), 10.0).remarks.join(QString()).contains(QStringLiteral("torque")));
  m.maximalTorque = 0.0;
  m.maximalRatio = 1.2;
  QVERIFY(!WorkingPoint::of(m, nullptr, natural(), 10.0).isInside);
}

/// What limits the machine where it works is what its largest ratio comes from.
void TestWorkingPoint::pistonLimits() {
  PistonCompressor m;
  m.name = QStringLiteral("unknown"); // the machine that K names
  m.displacement = 0.5;
  m.speedMin = 200;
  m.speedMax = 400;
  m.efficiency = 0.85;
  const Compression c = natural();
  const auto largest = [&](double speed, const Drive *drive) {
    return WorkingPoint::largestRatio(m, speed, drive, c, 10.0);
  };
  QVERIFY(!largest(300, nullptr).has_value());
  const WorkingPoint point = WorkingPoint::of(m, nullptr, c, 10.0);
  QVERIFY(std::abs(c.ratioOf(point.head) - c.ratio()) < 1e-12);
  m.maximalTorque = *point.power * 60.0 / (2.0 * 3.14159265358979323846 * *point.speed);
  QVERIFY(std::abs(*largest(200, nullptr) - c.ratio()) < 1e-12); // at any speed
  Drive drive;
  drive.power = Biquadratic{{*point.power}};
  QVERIFY(std::abs(*largest(*point.speed, &drive) - c.ratio()) < 1e-12);
  QVERIFY(*largest(400, &drive) < c.ratio()); // the same power at a larger flow
  drive.power = Biquadratic{{-5.0}};
  QCOMPARE(*largest(300, &drive), 1.0);
  m.maximalRatio = 1.1;
  QCOMPARE(*largest(300, nullptr), 1.1);

  MachineData pistons;
  pistons.pistons.push_back(m);
  element &edge = m_net->edges().at(QStringLiteral("M"));
  edge.set(QStringLiteral("machine"), QStringLiteral("unknown"));
  CharacteristicsStack stack(*m_net);
  stack.setMachines(pistons);
  QVERIFY(stack.open(QStringLiteral("M")));
  QVERIFY2(stack.summary(QStringLiteral("M")).contains(QStringLiteral("ratio is above the largest")),
           qPrintable(stack.summary(QStringLiteral("M"))));
}

void TestWorkingPoint::stackOpensAndKeeps() {
  const QTemporaryDir folder;
  const QTemporaryDir other;
  {
    CharacteristicsStack stack(*m_net);
    stack.setMachines(data());
    stack.setCase(folder.path());
    QVERIFY(stack.open(QStringLiteral("M")));
    QVERIFY(stack.open(QStringLiteral("D1")));
    QVERIFY(stack.open(QStringLiteral("M"))); // again: the same page
    QCOMPARE(stack.opened(), (QStringList{QStringLiteral("M"), QStringLiteral("D1")}));
    QVERIFY(stack.summary(QStringLiteral("D1")).contains(QStringLiteral("Power at 5 °C")));
    const QString text = stack.summary(QStringLiteral("M"));
    QVERIFY2(text.contains(QStringLiteral("shaft power")) && text.contains(QStringLiteral("fuel or current")),
             qPrintable(text));
    auto *tabs = stack.findChild<QTabWidget *>();
    const auto maps = [tabs](int page) {
      return QPointer<MapPlot>(tabs->widget(page)->findChild<MapPlot *>());
    };
    const QList<QPointer<MapPlot>> before{maps(0), maps(1)};
    stack.refresh(); // nothing is new
    QVERIFY(!before[0].isNull() && !before[1].isNull());
    m_net->edges().at(QStringLiteral("M")).set(QStringLiteral("m"), QStringLiteral("120"));
    stack.refresh();
    QVERIFY(before[0].isNull() && before[1].isNull()); // the drive works where its compressor does
    QCOMPARE(stack.opened(), (QStringList{QStringLiteral("M"), QStringLiteral("D1")}));
    QCOMPARE(tabs->currentIndex(), 0);
  }
  CharacteristicsStack again(*m_net);
  again.setMachines(data());
  again.setCase(other.path()); // another case has its own pages
  QVERIFY(again.opened().isEmpty());
  again.setCase(folder.path());
  QCOMPARE(again.opened().size(), 2);
  emit again.findChild<QTabWidget *>()->tabCloseRequested(0);
  CharacteristicsStack last(*m_net);
  last.setMachines(data());
  last.setCase(folder.path());
  QCOMPARE(last.opened(), QStringList{QStringLiteral("D1")});
  emit last.findChild<QTabWidget *>()->tabCloseRequested(0);
}

/// A link of the name that the list once had is neither followed nor replaced, and no file appears.
void TestWorkingPoint::nothingIsWrittenIntoTheCase() {
  const QTemporaryDir folder;
  QTemporaryFile victim;
  QVERIFY(victim.open() && victim.write("mine") == 4 && victim.flush());
  QVERIFY(QFile::link(victim.fileName(), folder.filePath(QStringLiteral("characteristics.txt"))));
  CharacteristicsStack stack(*m_net);
  stack.setMachines(data());
  stack.setCase(folder.path());
  QVERIFY(stack.open(QStringLiteral("M")));
  emit stack.findChild<QTabWidget *>()->tabCloseRequested(0);
  QVERIFY(victim.seek(0));
  QCOMPARE(victim.readAll(), QByteArray("mine"));
  QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("characteristics.txt")});
}

/// What the results state stands beside what the map tells, and Findings has a line where they part.
void TestWorkingPoint::storedResultsBesideComputedOnes() {
  NetworkMachines machines(*m_net, data());
  element &edge = m_net->edges().at(QStringLiteral("M"));
  const auto computed = *machines.machine(edge, QStringLiteral("M")).point;
  edge.set(QStringLiteral("head"), QString::number(computed.head * 0.9));
  edge.set(QStringLiteral("power"), QString::number(*computed.power / 1000.0)); // MW
  edge.set(QStringLiteral("efficiency"), QStringLiteral("0.6"));
  edge.set(QStringLiteral("speed"), QString::number(*computed.speed * 1.001));
  const auto found = machines.machine(edge, QStringLiteral("M"));
  QStringList apart;
  for (const auto &comparison : found.comparisons) {
    if (comparison.isApart())
      apart.append(comparison.property);
  }
  QCOMPARE(found.comparisons.size(), std::size_t(4));
  QCOMPARE(apart, (QStringList{QStringLiteral("head"), QStringLiteral("efficiency")}));
  QStringList told;
  for (const Finding &finding : machines.findings()) {
    if (finding.text.contains(QStringLiteral("results state")))
      told.append(finding.element + QLatin1Char(' ') + finding.text);
  }
  QCOMPARE(told.size(), 2);
  QVERIFY2(told[0].startsWith(QStringLiteral("M M: ")) && told[0].contains(QStringLiteral("head")), qPrintable(told[0]));
  CharacteristicsStack stack(*m_net);
  stack.setMachines(data());
  const QString text = stack.summary(QStringLiteral("M"));
  QVERIFY2(text.contains(QStringLiteral("results")) && text.contains(QStringLiteral("-10.0 %")), qPrintable(text));
  QVERIFY(text.indexOf(QStringLiteral("condition")) < 0);
  m_net->nodes().at(QStringLiteral("A")).set(QStringLiteral("p"), QStringLiteral("80"));
  const Findings findings = machines.findings();
  QVERIFY(std::any_of(findings.begin(), findings.end(),
                      [](const Finding &finding) { return finding.text.contains(QStringLiteral("Not compressing")); }));
}

/// As public networks have them: the element is a station, its machines and drives stand in the data alone.
void TestWorkingPoint::stationsShareTheFlow() {
  MachineData d = data();
  d.turbos[0].station = QStringLiteral("m"); // the element M, regardless of case
  d.turbos.push_back(machine());
  d.turbos[1].name = QStringLiteral("second");
  d.turbos[1].station = QStringLiteral("M");
  d.turbos[1].drive = QStringLiteral("E");
  d.turbos[1].efficiency = Biquadratic{{0.4}};
  d.drives.push_back(d.drives[0]);
  d.drives[1].name = QStringLiteral("E");
  d.drives[1].energy = Quadratic{{7.0}};
  const element &edge = m_net->edges().at(QStringLiteral("M"));
  NetworkMachines machines(*m_net, d);
  const auto of = [&](const char *name, const char *configuration) {
    return machines.machine(edge, QString::fromLatin1(name), {QString::fromLatin1(configuration)});
  };
  // Without configurations in the data: all side by side, or each alone.
  QCOMPARE(machines.configurations(edge).size(), std::size_t(3));
  const double whole = 100.0 / 42.0;
  QVERIFY(std::abs(of("M", "all side by side").point->flow - whole / 2.0) < 1e-9);
  QVERIFY(std::abs(of("second", "all side by side").point->massFlow - 50.0) < 1e-9);
  QVERIFY(std::abs(of("M", "M alone").point->flow - whole) < 1e-9);
  QVERIFY(!of("second", "M alone").point && of("second", "M alone").split.contains(QStringLiteral("does not run")));

  // One behind the other: the whole flow at the root of the ratio; the second one takes in denser gas.
  d.configurations.push_back(
      {QStringLiteral("M"), QStringLiteral("serial"), {{{QStringLiteral("M")}}, {{QStringLiteral("second")}}}});
  machines.set(d);
  const auto first = of("M", "serial");
  const auto second = of("second", "serial");
  QVERIFY(std::abs(first.point->ratio - std::sqrt(1.4)) < 1e-9 && std::abs(second.point->ratio - std::sqrt(1.4)) < 1e-9);
  QVERIFY(std::abs(first.point->flow - whole) < 1e-9 && second.point->flow < 0.9 * whole);
  QVERIFY2(second.split.contains(QStringLiteral("stage 2")), qPrintable(second.split));
  QVERIFY(!of("M", "").configuration.isEmpty());

  // Machines of unlike size share by the largest flow that each carries.
  d.turbos[1].head = Biquadratic{{0, 0, 1e-6, 0, 0, 0, -0.25, 0, 0}}; // twice as wide
  d.turbos[1].choke = Quadratic{{0, 4, 0}};
  d.configurations = {{QStringLiteral("M"), QStringLiteral("both"), {{{QStringLiteral("M")}, {QStringLiteral("second")}}}}};
  machines.set(d);
  QVERIFY(std::abs(of("second", "both").point->flow / of("M", "both").point->flow - 2.0) < 1e-6);

  CharacteristicsStack stack(*m_net);
  stack.setMachines(d);
  QVERIFY(stack.open(QStringLiteral("M")));
  auto *choice = stack.findChild<QComboBox *>(QStringLiteral("machine"));
  const auto text = [&stack] {
    return stack.findChild<QTabWidget *>()->currentWidget()->findChild<QLabel *>(QStringLiteral("said"))->text();
  };
  QCOMPARE(choice->count(), 2);
  QVERIFY2(text().contains(QStringLiteral("80 %")) && text().contains(QStringLiteral("33.3 % of the flow")),
           qPrintable(text()));
  choice->setCurrentText(QStringLiteral("second"));
  QVERIFY2(text().contains(QStringLiteral("40 %")) && text().contains(QStringLiteral("<b>7 kW")), qPrintable(text()));
  stack.refresh(); // what was chosen stays
  QVERIFY(text().contains(QStringLiteral("40 %")));
}

void TestWorkingPoint::configurationsOfPublicStations() {
  const QString file = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/compressors/GasLib-40.cs");
  if (!QFile::exists(file))
    QSKIP("the public machine data are not there");
  const MachineData public_ = MachineReader::read(file).data;
  QVERIFY(!public_.configurations.empty());
  for (const StationConfiguration &configuration : public_.configurations) {
    QVERIFY(!configuration.station.isEmpty() && !configuration.stages.empty());
    for (const StationConfiguration::Stage &stage : configuration.stages) {
      for (const StationConfiguration::Unit &unit : stage)
        QVERIFY2(public_.turbo(unit.compressor) != nullptr && unit.nominalSpeed > 0.0, qPrintable(unit.compressor));
    }
  }
}

void TestWorkingPoint::publishedCoefficientsCanBeChosen() {
  MachineData d = data();
  TurboCompressor &turbo = d.turbos[0];
  turbo.efficiency = Biquadratic{{0.7}}; // published; what was measured is better
  for (double speed = 5000.0; speed <= 9000.0; speed += 1000.0) {
    for (double flow = 0.5; flow < 4.0; flow += 0.5)
      turbo.points.push_back({speed, flow, 1e-6 * speed * speed - flow * flow, 0.8});
  }
  QVERIFY(turbo.fit().empty());
  QVERIFY(turbo.hasChoice() && turbo.publishedHeadQuality.ok);
  QVERIFY(std::abs(turbo.publishedEfficiencyQuality.largestResidual - 0.1) < 1e-9);
  CharacteristicsStack stack(*m_net);
  stack.setMachines(d);
  QVERIFY(stack.open(QStringLiteral("M")));
  auto *functions = stack.findChild<QComboBox *>(QStringLiteral("functions"));
  auto *said = stack.findChild<QLabel *>(QStringLiteral("said"));
  QVERIFY(functions->isVisibleTo(&stack) && functions->count() == 2);
  QVERIFY2(said->text().contains(QStringLiteral("80 %")) && said->text().contains(QStringLiteral("as published")),
           qPrintable(said->text()));
  QVERIFY(said->text().indexOf(QStringLiteral("condition")) > said->text().indexOf(QStringLiteral("shaft power")));
  functions->setCurrentIndex(1);
  QVERIFY2(said->text().contains(QStringLiteral("70 %")), qPrintable(said->text()));
}

/// Machines are found by whatever way the network and the data name one another, pistons as well as turbo compressors, and
/// names in a circle do not matter.
void TestWorkingPoint::machinesOfElements() {
  MachineData d;
  PistonCompressor piston;
  piston.name = QStringLiteral("P1");
  piston.station = QStringLiteral("M");
  piston.drive = QStringLiteral("D");
  piston.displacement = 0.5;
  piston.speedMin = 200;
  piston.speedMax = 400;
  d.pistons.push_back(piston);
  d.drives.push_back(data().drives[0]);
  NetworkMachines machines(*m_net, d);
  element &edge = m_net->edges().at(QStringLiteral("M"));
  element &drive = m_net->nodes().at(QStringLiteral("D1"));
  QCOMPARE(machines.names(edge), QStringList{QStringLiteral("P1")}); // by the name of its station
  QVERIFY(machines.machine(edge, QStringLiteral("p1")).piston.has_value());
  for (const char *named : {"D", "P1", ""}) { // itself, its compressor, nothing
    drive.set(QStringLiteral("machine"), QString::fromLatin1(named));
    QCOMPARE(machines.names(drive), QStringList{QStringLiteral("D")});
    const auto found = machines.machine(drive, QStringLiteral("D"));
    QVERIFY(found.drive.has_value() && found.point && found.point->power.has_value() == (piston.efficiency > 0.0));
    QCOMPARE(found.point->ratio, 1.4);
  }
  edge.set(QStringLiteral("machine"), QStringLiteral("of nobody"));
  QCOMPARE(machines.names(edge), QStringList{QStringLiteral("P1")});
  edge.set(QStringLiteral("driven"), QStringLiteral("M"));
  QCOMPARE(machines.names(edge), QStringList{QStringLiteral("P1")});
  QCOMPARE(machines.names(m_net->edges().at(QStringLiteral("K"))), QStringList{QStringLiteral("unknown")});
}

void TestWorkingPoint::stackWithoutData() {
  CharacteristicsStack stack(*m_net);
  QVERIFY(!stack.open(QStringLiteral("M")));
  QVERIFY(!stack.open(QStringLiteral("no such element")));
  stack.setMachines(data());
  QVERIFY(!stack.open(QStringLiteral("K"))); // its machine is not in the data
  QVERIFY(stack.opened().isEmpty());
  QVERIFY(stack.open(QStringLiteral("M")));
  stack.setMachines(MachineData()); // the next case
  QVERIFY(stack.opened().isEmpty());
  stack.setMachines(data()); // and the first one again
  QVERIFY(stack.open(QStringLiteral("M")));
  QCOMPARE(stack.opened(), QStringList{QStringLiteral("M")});
  QVERIFY(stack.open(QStringLiteral("D1")));
  stack.setMachines(data());
  QVERIFY(stack.open(QStringLiteral("D1")));
  QCOMPARE(stack.findChild<QTabWidget *>()->currentWidget()->objectName(), QStringLiteral("D1"));
}

/// Also where the page has nothing else to say.
void TestWorkingPoint::axesFollowTheUnits() {
  m_net->edges().at(QStringLiteral("M")).set(QStringLiteral("m"), QString()); // no working point to speak of
  CharacteristicsStack stack(*m_net);
  stack.setMachines(data());
  QVERIFY(stack.open(QStringLiteral("M")));
  const auto title = [&stack] {
    return stack.findChild<MapPlot *>()->axisTitle(QwtPlot::xBottom).text();
  };
  const QString before = title();
  GeneralSettings::instance().setValue(QStringLiteral("unit: volume flow in the machine"), QStringLiteral("m3/h"));
  stack.refresh();
  const QString after = title();
  GeneralSettings::instance().reset();
  QVERIFY2(after != before && after.contains(QStringLiteral("h")), qPrintable(after));
}

void TestWorkingPoint::mouseZoomsAndReads() {
  MapPlot plot;
  plot.resize(500, 400);
  plot.show(machine(), std::nullopt);
  QwtPlot &base = plot; // whose show() is that of a widget
  base.show();
  QVERIFY(QTest::qWaitForWindowExposed(&plot));
  QWidget *canvas = plot.canvas();
  const auto spans = [&plot] {
    return std::make_pair(plot.axisInterval(QwtPlot::xBottom), plot.axisInterval(QwtPlot::yLeft));
  };
  const auto whole = spans();
  const QPoint from(canvas->width() / 4, canvas->height() / 4);
  const QPoint to = 3 * from;
  const QPointF corner(plot.invTransform(QwtPlot::xBottom, from.x()), plot.invTransform(QwtPlot::yLeft, to.y()));
  QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, from);
  QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(canvas, &move);
  QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, to);
  const auto part = spans();
  QVERIFY(part.first.width() < 0.6 * whole.first.width() && part.second.width() < 0.6 * whole.second.width());
  QVERIFY(std::abs(part.first.minValue() - corner.x()) < 0.02 * whole.first.width());
  QVERIFY(std::abs(part.second.minValue() - corner.y()) < 0.02 * whole.second.width());
  QTest::mouseClick(canvas, Qt::MiddleButton); // back
  QCOMPARE(spans().first, whole.first);
  plot.show(data().drives[0], std::nullopt, 10.0); // another map is seen as a whole
  QVERIFY(plot.axisInterval(QwtPlot::xBottom).maxValue() >= 9000.0);
}

void TestWorkingPoint::picturesOfMaps_data() {
  QTest::addColumn<QString>("suffix");
  for (const char *suffix : {"png", "pdf", "svg"})
    QTest::newRow(suffix) << QString::fromLatin1(suffix);
}

void TestWorkingPoint::picturesOfMaps() {
  QFETCH(QString, suffix);
  const QTemporaryDir folder;
  const MachineData d = data();
  MapPlot plot;
  plot.resize(500, 400);
  const WorkingPoint point = WorkingPoint::of(d.turbos[0], &d.drives[0], natural(), 10.0);
  plot.show(d.drives[0], point, 10.0);
  plot.showConsumption(d.drives[0], point);
  QVERIFY(plot.readout({1000, 0}).contains(QStringLiteral("takes 2600 kW")));
  PistonCompressor piston;
  piston.displacement = 0.5;
  piston.speedMin = 200;
  piston.speedMax = 400;
  plot.show(piston, std::nullopt);
  QCOMPARE(plot.axisScaleDiv(QwtPlot::xBottom).contains(0.5 * 400 / 60), true);
  plot.show(piston, point, {{200, 3.0}, {400, 0.5}}); // a limit below 1 is one at 1
  QVERIFY(plot.axisScaleDiv(QwtPlot::yLeft).lowerBound() >= 0.5);
  QVERIFY(plot.readout({0.5 * 300 / 60, 1.5}).contains(QStringLiteral("n = 300")));
  plot.show(d.turbos[0], point);
  const QString text = plot.readout({point.flow, point.head});
  QVERIFY2(text.contains(QStringLiteral("η = 80 %")), qPrintable(text));
  QVERIFY(plot.save(folder.filePath(QStringLiteral("map.") + suffix)));
  QFile saved(folder.filePath(QStringLiteral("map.") + suffix));
  QVERIFY(saved.open(QIODevice::ReadOnly));
  const QByteArray beginning = saved.read(200);
  QVERIFY2(beginning.contains(suffix == QLatin1String("svg") ? "<svg" : qPrintable(suffix.toUpper())),
           beginning.constData());
  QString reason;
  QVERIFY(!plot.save(folder.filePath(QStringLiteral("none/map.") + suffix), &reason));
  QVERIFY(!reason.isEmpty());
  QVERIFY(!plot.save(folder.filePath(QStringLiteral("map.none")), &reason));
  QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("map.none")))); // whole or not at all
  const QImage picture = plot.grab().toImage();
  int green = 0; // the working point
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x)
      green += picture.pixelColor(x, y) == QColor(46, 125, 50) ? 1 : 0;
  }
  QVERIFY(green > 20);
}

/// Large enough to print, with names, without what stands under the mouse, and nothing cut at the edge.
void TestWorkingPoint::exportedMapsAreLargeAndWhole() {
  const QTemporaryDir folder;
  MapPlot plot;
  plot.resize(300, 240); // however small it is on the screen
  plot.show(machine(), WorkingPoint::of(machine(), nullptr, natural(), 10.0));
  QwtPlot &base = plot;
  base.show();
  QVERIFY(QTest::qWaitForWindowExposed(&plot));
  QVERIFY2(plot.titleLabel()->heightForWidth(plot.titleLabel()->width()) > 2 * plot.titleLabel()->fontMetrics().height(),
           "a line that is too long for the width goes on in the next");
  const auto save = [&](const char *name) {
    const QString path = folder.filePath(QString::fromLatin1(name));
    return plot.save(path) ? QImage(path) : QImage();
  };
  const QImage without = save("a.png");
  QVERIFY(without.width() >= 1600 && without.height() >= 1000);
  QTest::mouseMove(plot.canvas(), QPoint(60, 60));
  QTest::qWait(50);
  QCOMPARE(save("b.png"), without);
  for (int x = 0; x < without.width(); ++x)
    QVERIFY(without.pixel(x, 0) == without.pixel(0, 0) && without.pixel(x, without.height() - 1) == without.pixel(0, 0));
  for (int y = 0; y < without.height(); ++y)
    QVERIFY(without.pixel(0, y) == without.pixel(0, 0) && without.pixel(without.width() - 1, y) == without.pixel(0, 0));
  QVERIFY(plot.save(folder.filePath(QStringLiteral("a.svg"))));
  QFile svg(folder.filePath(QStringLiteral("a.svg")));
  QVERIFY(svg.open(QIODevice::ReadOnly));
  const QByteArray text = svg.readAll();
  QVERIFY(plot.title().text().startsWith(QStringLiteral("M\n")) && plot.title().text().contains(QStringLiteral("n = ")));
  QVERIFY(text.contains("surge") && text.contains("choke"));
  // Labels of lines stay inside of the canvas.
  for (const QwtPlotItem *item : plot.itemList(QwtPlotItem::Rtti_PlotMarker)) {
    const auto *marker = static_cast<const QwtPlotMarker *>(item);
    if (marker->label().isEmpty())
      continue;
    const double y = plot.transform(QwtPlot::yLeft, marker->yValue());
    const bool isAbove = (marker->labelAlignment() & Qt::AlignTop) != 0;
    QVERIFY2(!isAbove || y > marker->label().textSize().height(), qPrintable(marker->label().text()));
  }
}

/// The range that was measured and no more; temperatures that change nothing share a line and a label.
void TestWorkingPoint::drivesShowWhatWasMeasured() {
  Drive drive;
  drive.name = QStringLiteral("D");
  for (double speed = 3000.0; speed <= 6000.0; speed += 1000.0) {
    for (const double temperature : {0.0, 20.0, 40.0})
      drive.powerPoints.push_back({speed, temperature, 2.0 * speed});
  }
  drive.power = Biquadratic{{0, 2}};
  MapPlot plot;
  const auto lines = [&plot] {
    return plot.itemList(QwtPlotItem::Rtti_PlotCurve).size() - 1; // but for the points
  };
  plot.show(drive, std::nullopt, 10.0);
  QCOMPARE(lines(), 1);
  const QRectF covered = plot.itemList(QwtPlotItem::Rtti_PlotCurve).front()->boundingRect();
  QVERIFY(covered.left() >= 3000.0 && covered.right() <= 6000.0);
  drive.power = Biquadratic{{0, 2, 0, -100}};
  plot.show(drive, std::nullopt, 10.0);
  QCOMPARE(lines(), 3);
  drive.powerPoints.clear(); // then over the speeds of the machine that it drives
  plot.show(drive, std::nullopt, 10.0, std::make_pair(2000.0, 2500.0));
  const QRectF ofMachine = plot.itemList(QwtPlotItem::Rtti_PlotCurve).front()->boundingRect();
  QVERIFY(ofMachine.left() >= 2000.0 && ofMachine.right() <= 2500.0);
}

NIVRA_TEST(TestWorkingPoint);
#include "tst_workingpoint.moc"
