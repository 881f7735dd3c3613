#include "mapplot.h"
#include "parabolicmachine.h"
#include "pointmover.h"

#include <characteristics/characteristicsstack.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>

#include <cmath>

/// A working point that a person moves over its map.
class TestMovedPoint : public QObject {
  Q_OBJECT

private slots:
  void init();
  void compressionThere();
  void byMouseAndKeys();

private:
  static MachineData data() { return ParabolicMachine::data(); }

  std::unique_ptr<NetData> m_net;
};

void TestMovedPoint::init() {
  m_net = std::make_unique<NetData>();
  m_net->addElement(makeElement(
      {{"name", "A"}, {"type", "n"}, {"p", "50"}, {"t", "288.15"}, {"rhon", "0.717"}, {"hs", "39.8"}, {"ch4", "100"}}));
  m_net->addElement(makeElement({{"name", "B"}, {"type", "n"}, {"p", "70"}}));
  m_net->addElement(
      makeElement({{"name", "M"}, {"type", "c"}, {"node1", "A"}, {"node2", "B"}, {"m", "100"}, {"drive", "D"}}));
}

/// Methane, with figures from outside: at 50 bar and 288.15 K its density is 37.0 kg/m3 (NIST), its isentropic exponent of
/// the volume about 1.38, its inferior calorific value 35.9 MJ/m3 (ISO 6976).
void TestMovedPoint::compressionThere() {
  NetworkMachines machines(*m_net, data());
  const auto found = machines.machine(m_net->edges().at(QStringLiteral("M")), QStringLiteral("M"));
  const Compression at = found.compression->withHead(3.0, 60.0);
  QVERIFY2(std::abs(at.density() - 37.0) < 0.3, qPrintable(QString::number(at.density())));
  QVERIFY(std::abs(at.massFlow - 3.0 * at.density()) < 1e-9);
  QVERIFY(std::abs(at.adiabaticHead() - 60.0) < 1e-6);
  // H = p/rho k/(k-1) (r^((k-1)/k) - 1) for r
  const double k = (1.38 - 1.0) / 1.38;
  const double ratio = std::pow(1.0 + 60.0 * k * 37.0 / 5000.0, 1.0 / k);
  QVERIFY2(std::abs(at.ratio() / ratio - 1.0) < 0.01, qPrintable(QString::number(at.ratio())));

  const WorkingPoint point = WorkingPoint::of(*found.turbo, &*found.drivenBy, at, 10.0);
  QVERIFY(std::abs(*point.speed - 1000.0 * std::sqrt(60.0 + 9.0)) < 1e-6);
  const double power = 3.0 * at.density() * 60.0 / 0.8;
  QVERIFY(std::abs(*point.power - power) < 1e-6);
  QVERIFY(std::abs(*point.fuelFlow * 1000.0 * 35.9 / ((100.0 + 2.5 * power) * 3.6) - 1.0) < 0.005);
  // The enthalpy of the work at cp = 2.65 kJ/(kg K) and a throttling coefficient of 0.4 K/bar (NIST, at the mean state).
  const double warmer = 60.0 / 0.8 / 2.65 + 0.4 * (at.outletPressure - 50.0);
  QVERIFY2(std::abs(*point.outletTemperature - 288.15 - warmer) < 4.0,
           qPrintable(QString::number(*point.outletTemperature)));
  QVERIFY(point.isInside && !WorkingPoint::of(*found.turbo, nullptr, found.compression->withHead(1.0, 60.0), 10.0).isInside);
}

void TestMovedPoint::byMouseAndKeys() {
  CharacteristicsStack stack(*m_net);
  stack.setMachines(data());
  stack.resize(500, 700);
  QVERIFY(stack.open(QStringLiteral("M")));
  QVERIFY(QTest::qWaitForWindowExposed(&stack));
  auto *plot = stack.findChild<MapPlot *>();
  const auto *said = stack.findChild<QLabel *>(QStringLiteral("said"));
  const QString before = said->text();
  const QSignalSpy moves(plot, &MapPlot::pointMoved);
  const NetworkMachines machines(*m_net, data());
  const WorkingPoint point = *machines.machine(m_net->edges().at(QStringLiteral("M")), QStringLiteral("M")).point;
  QWidget *canvas = plot->canvas();
  const auto pixel = [plot](double flow, double head) {
    return QPointF(plot->transform(QwtPlot::xBottom, flow), plot->transform(QwtPlot::yLeft, head)).toPoint();
  };
  const QwtInterval shown = plot->axisInterval(QwtPlot::xBottom);
  const QPoint from = pixel(point.flow, point.head) + QPoint(3, 2);
  QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, from);
  QMouseEvent move(QEvent::MouseMove, from + QPoint(40, -30), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(canvas, &move);
  QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, from + QPoint(40, -30));
  QCOMPARE(plot->axisInterval(QwtPlot::xBottom), shown); // it did not zoom
  QVERIFY(plot->mover().isMoved() && !moves.isEmpty());
  const auto at = moves.back().front().toPointF();
  const QPoint apart = pixel(at.x(), at.y()) - pixel(point.flow, point.head) - QPoint(40, -30);
  QVERIFY(apart.manhattanLength() <= 2);
  QVERIFY2(said->text().contains(QStringLiteral("moved point")) && said->text().contains(QStringLiteral("fuel gas")),
           qPrintable(said->text()));
  QTest::keyClick(canvas, Qt::Key_Right);
  QVERIFY(moves.back().front().toPointF().x() > at.x());
  QTest::keyClick(canvas, Qt::Key_Left, Qt::ShiftModifier);
  QVERIFY(moves.back().front().toPointF().x() < at.x());
  for (int i = 0; i < 20; ++i)
    QTest::keyClick(canvas, Qt::Key_Left, Qt::ShiftModifier);
  QVERIFY(moves.back().front().toPointF().x() > 0.0);
  QVERIFY2(said->text().contains(QStringLiteral("surge line")), "outside of the map is told");
  QTest::keyClick(canvas, Qt::Key_Escape);
  QVERIFY(!plot->mover().isMoved());
  QCOMPARE(said->text(), before);
  QTest::keyClick(canvas, Qt::Key_Up);
  QVERIFY(plot->mover().isMoved());
  QTest::mouseDClick(canvas, Qt::LeftButton, Qt::NoModifier, from);
  QVERIFY(!plot->mover().isMoved());
  QCOMPARE(m_net->element(QStringLiteral("M"))->value(PropertyKey::find("m")), QStringLiteral("100"));
}

NIVRA_TEST(TestMovedPoint);
#include "tst_movedpoint.moc"
