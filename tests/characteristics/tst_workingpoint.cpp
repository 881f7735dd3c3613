#include <characteristics/characteristicsstack.h>
#include <characteristics/machinereader.h>
#include <characteristics/mapplot.h>
#include <characteristics/workingpoint.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QTabWidget>
#include <QTemporaryDir>
#include <qwt_scale_div.h>

#include <cmath>

class TestWorkingPoint : public QObject {
  Q_OBJECT

private slots:
  void init();
  void compression();
  void realGas();
  void turbo();
  void outsideOfTheMap_data();
  void outsideOfTheMap();
  void piston();
  void pistonLimits();
  void stackOpensAndKeeps();
  void stationsWithSeveralMachines();
  void machinesOfElements();
  void stackWithoutData();
  void mouseZoomsAndReads();
  void picturesOfMaps_data();
  void picturesOfMaps();

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
  /// Head 1e-6 n^2 - q^2, efficiency 0.8, between lines of flow that grow with the head.
  static TurboCompressor machine() {
    TurboCompressor m;
    m.name = QStringLiteral("M");
    m.drive = QStringLiteral("D");
    m.speedMin = 5000.0;
    m.speedMax = 9000.0;
    m.head = Biquadratic{{0, 0, 1e-6, 0, 0, 0, -1, 0, 0}};
    m.efficiency = Biquadratic{{0.8}};
    m.surge = Quadratic{{0, 30, 0}};
    m.choke = Quadratic{{0, 8, 0}};
    return m;
  }
  MachineData data() const {
    MachineData d;
    d.turbos.push_back(machine());
    Drive drive;
    drive.name = QStringLiteral("D");
    drive.power = Biquadratic{{0, 2}};
    drive.energy = Quadratic{{100, 2.5, 0}};
    d.drives.push_back(drive);
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
  const auto c = Compression::of(*m_net, m_net->edges().at(QStringLiteral("M")));
  QVERIFY(c.has_value());
  QCOMPARE(c->volumeFlow(), 100.0 / 42.0);
  QCOMPARE(c->ratio(), 1.4);
  // z R T / M k/(k-1) (ratio^((k-1)/k) - 1) with z R T / M = p / rho
  const double k = 0.296 / 1.296;
  QVERIFY(std::abs(c->adiabaticHead() - 5000.0 / 42.0 / k * (std::pow(1.4, k) - 1.0)) < 1e-9);
  QVERIFY(!Compression::of(*m_net, m_net->edges().at(QStringLiteral("K"))).has_value()); // no flow
  m_net->edges().at(QStringLiteral("K")).set(QStringLiteral("q"), QStringLiteral("-36"));
  const auto byNormFlow = Compression::of(*m_net, m_net->edges().at(QStringLiteral("K")));
  QVERIFY(std::abs(byNormFlow->massFlow - 10.0 * 0.785) < 1e-12);
  QVERIFY(byNormFlow->isReversed && !c->isReversed);
}

void TestWorkingPoint::realGas() {
  Compression c = natural();
  c.inletDensity = 0.0;
  QVERIFY(c.realGasFactor() > 0.8 && c.realGasFactor() < 0.95); // natural gas at 50 bar and 15 degC
  QVERIFY(std::abs(c.density() - 42.0) < 3.0);
  c.molarMass = 2.016;
  c.criticalPressure = 12.96;
  c.criticalTemperature = 33.1;
  QVERIFY(std::abs(c.realGasFactor() - 1.0) < 0.02); // hydrogen is nearly ideal
}

void TestWorkingPoint::turbo() {
  const MachineData d = data();
  const WorkingPoint point = WorkingPoint::of(d.turbos[0], &d.drives[0], natural(), 10.0);
  QVERIFY(point.speed.has_value());
  QVERIFY(std::abs((*d.turbos[0].head)(point.flow, *point.speed) - point.head) < 1e-9);
  QVERIFY2(point.isInside, qPrintable(point.remark));
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
  QVERIFY2(point.remark.contains(remark), qPrintable(point.remark));

  Compression backwards = natural();
  backwards.isReversed = true;
  QVERIFY(WorkingPoint::of(machine(), nullptr, backwards, 10.0).remark.contains(QStringLiteral("backwards")));

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
  QVERIFY(!beyond.isInside && beyond.remark.contains(QStringLiteral("drive")));
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
  QVERIFY2(point.isInside, qPrintable(point.remark));
  m.maximalTorque = 1.0;
  QVERIFY(WorkingPoint::of(m, nullptr, natural(), 10.0).remark.contains(QStringLiteral("torque")));
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
  const QString file = folder.filePath(QStringLiteral("characteristics.txt"));
  {
    CharacteristicsStack stack(*m_net);
    stack.setMachines(data());
    stack.setFile(file);
    QVERIFY(stack.open(QStringLiteral("M")));
    QVERIFY(stack.open(QStringLiteral("D1")));
    QVERIFY(stack.open(QStringLiteral("M"))); // again: the same page
    QCOMPARE(stack.opened(), (QStringList{QStringLiteral("M"), QStringLiteral("D1")}));
    QVERIFY(stack.summary(QStringLiteral("D1")).contains(QStringLiteral("Power at 5 °C")));
    const QString text = stack.summary(QStringLiteral("M"));
    QVERIFY2(text.contains(QStringLiteral("shaft power")) && text.contains(QStringLiteral("fuel or current")),
             qPrintable(text));
    auto *tabs = stack.findChild<QTabWidget *>();
    const QList<QPointer<QWidget>> before{tabs->widget(0), tabs->widget(1)};
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
  again.setFile(file);
  QCOMPARE(again.opened().size(), 2);
  auto *tabs = again.findChild<QTabWidget *>();
  emit tabs->tabCloseRequested(0);
  QCOMPARE(again.opened(), QStringList{QStringLiteral("D1")});
  QFile kept(file);
  QVERIFY(kept.open(QIODevice::ReadOnly));
  QCOMPARE(kept.readAll(), QByteArray("D1"));
}

/// As public networks have them: the element is a station, its machines and drives stand in the data alone.
void TestWorkingPoint::stationsWithSeveralMachines() {
  MachineData d = data();
  d.turbos[0].station = QStringLiteral("m"); // the element M, regardless of case
  d.turbos.push_back(machine());
  d.turbos[1].name = QStringLiteral("second");
  d.turbos[1].station = QStringLiteral("M");
  d.turbos[1].drive = QStringLiteral("E");
  d.turbos[1].efficiency = Biquadratic{{0.4}};
  PistonCompressor piston;
  piston.name = QStringLiteral("third");
  piston.station = QStringLiteral("M");
  piston.displacement = 0.5;
  piston.speedMin = 200;
  piston.speedMax = 400;
  d.pistons.push_back(piston);
  d.drives.push_back(d.drives[0]);
  d.drives[1].name = QStringLiteral("E");
  d.drives[1].energy = Quadratic{{7.0}};
  m_net->element(QStringLiteral("D1"))->set(QStringLiteral("machine"), QStringLiteral("E"));
  m_net->element(QStringLiteral("M"))->set(QStringLiteral("machine"), QStringLiteral("second"));
  CharacteristicsStack stack(*m_net);
  stack.setMachines(d);
  QVERIFY(stack.open(QStringLiteral("M")));
  auto *choice = stack.findChild<QComboBox *>();
  QCOMPARE(choice->count(), 3);
  QCOMPARE(choice->currentText(), QStringLiteral("second")); // which the element names
  const auto text = [&stack] {
    return stack.findChild<QTabWidget *>()->currentWidget()->findChild<QLabel *>()->text();
  };
  QVERIFY2(text().contains(QStringLiteral("40 %")) && text().contains(QStringLiteral("3 compressors")) &&
               text().contains(QStringLiteral("<b>7 kW")),
           qPrintable(text()));
  choice->setCurrentText(QStringLiteral("M"));
  QVERIFY2(text().contains(QStringLiteral("80 %")) && !text().contains(QStringLiteral("<b>7 kW")), qPrintable(text()));
  choice->setCurrentText(QStringLiteral("third"));
  QVERIFY2(text().contains(QStringLiteral("speed")) && !text().contains(QStringLiteral("efficiency")), qPrintable(text()));
  QVERIFY(stack.summary(QStringLiteral("D1")).contains(QStringLiteral("40 %"))); // E drives the second one
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
  NetworkMachines machines(*m_net);
  machines.set(d);
  element &edge = m_net->edges().at(QStringLiteral("M"));
  element &drive = m_net->nodes().at(QStringLiteral("D1"));
  QCOMPARE(machines.names(edge), QStringList{QStringLiteral("P1")}); // by the name of its station
  QVERIFY(machines.machine(edge, QStringLiteral("p1")).piston != nullptr);
  for (const char *named : {"D", "P1", ""}) { // itself, its compressor, nothing
    drive.set(QStringLiteral("machine"), QString::fromLatin1(named));
    QCOMPARE(machines.names(drive), QStringList{QStringLiteral("D")});
    const auto found = machines.machine(drive, QStringLiteral("D"));
    QVERIFY(found.drive != nullptr && found.point && found.point->power.has_value() == (piston.efficiency > 0.0));
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

NIVRA_TEST(TestWorkingPoint);
#include "tst_workingpoint.moc"
