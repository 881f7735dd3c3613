#include <support/nivratest.h>

#include <QPolygonF>
#include <QRandomGenerator>

#include <cmath>
#include <machines/stationreach.h>

/// What stations can do, against trying all ways to share flow and ratio.
class TestStationReach : public QObject {
  Q_OBJECT

private slots:
  void sideBySide();
  void oneBehindTheOther();
  void drivesBound();

private:
  /// Head 1e-6 n^2 - bend q^2 for 5000 to 9000 1/min, between the lines head = surge q and head = choke q.
  struct Simple {
    double bend;
    double surge;
    double choke;
    bool holds(double flow, double head) const {
      const double squaredSpeed = 1e6 * (head + bend * flow * flow);
      return squaredSpeed >= 25e6 && squaredSpeed <= 81e6 && head <= surge * flow && head >= choke * flow;
    }
    TurboCompressor machine(const char *name) const {
      TurboCompressor m;
      m.name = QString::fromLatin1(name);
      m.speedMin = 5000.0;
      m.speedMax = 9000.0;
      m.head = Biquadratic{{0, 0, 1e-6, 0, 0, 0, -bend, 0, 0}};
      m.efficiency = Biquadratic{{0.8}};
      m.surge = Quadratic{{0, surge, 0}};
      m.choke = Quadratic{{0, choke, 0}};
      return m;
    }
  };
  static constexpr Simple One{1.0, 30.0, 8.0};
  static constexpr Simple Wide{0.25, 15.0, 4.0};

  static MachineData data() {
    MachineData d;
    d.turbos = {One.machine("one"), Wide.machine("wide")};
    return d;
  }
  static Compression inlet() {
    Compression c;
    c.massFlow = 100.0;
    c.inletPressure = 50.0;
    c.outletPressure = 70.0;
    return c;
  }
  static QPolygonF outline(const MachineData &d, const StationConfiguration &configuration) {
    StationReach reach(
        d, [&d](const QString &) { return d.drives.empty() ? nullptr : &d.drives.front(); }, inlet());
    return QPolygonF(reach.outline(configuration));
  }
  /// About its middle.
  static QPolygonF scaled(const QPolygonF &outline, double factor) {
    const QPointF middle = outline.boundingRect().center();
    QPolygonF other;
    for (const QPointF &point : outline)
      other.append(middle + factor * (point - middle));
    return other;
  }
};

/// One machine carries any part of the flow that its map allows, at the same ratio.
void TestStationReach::sideBySide() {
  const QPolygonF polygon = outline(data(), {{}, {}, {{{QStringLiteral("one")}, {QStringLiteral("wide")}}}});
  QVERIFY(polygon.size() > 20);
  QRandomGenerator random(7);
  int inside = 0;
  for (int i = 0; i < 400; ++i) {
    const double ratio = 1.0 + 2.0 * random.generateDouble();
    const double flow = 14.0 * random.generateDouble();
    const double head = inlet().withRatio(1.0, ratio).adiabaticHead();
    bool holds = false;
    for (double part = 0.0; part < 1.0; part += 0.001)
      holds = holds || (One.holds(part * flow, head) && Wide.holds((1.0 - part) * flow, head));
    inside += holds ? 1 : 0;
    const QPolygonF judged = scaled(polygon, holds ? 1.02 : 0.98); // points at the edge may go either way
    QVERIFY2(judged.containsPoint({flow, ratio}, Qt::OddEvenFill) == holds,
             qPrintable(QStringLiteral("%1 m3/s, ratio %2").arg(flow).arg(ratio)));
  }
  QVERIFY(inside > 20);
}

/// The same mass flow through both; the first one leaves the second one any pressure that it reaches.
void TestStationReach::oneBehindTheOther() {
  const QPolygonF polygon = outline(data(), {{}, {}, {{{QStringLiteral("wide")}}, {{QStringLiteral("one")}}}});
  QVERIFY(polygon.size() > 20);
  const double density = inlet().density();
  const auto reaches = [&](double flow, double ratio) {
    for (double first = 1.02; first < ratio; first += 0.01) {
      const double head = inlet().withRatio(1.0, first).adiabaticHead();
      if (!Wide.holds(flow, head))
        continue;
      Compression behind = inlet();
      behind.inletPressure *= first;
      const double second = behind.withRatio(1.0, ratio / first).adiabaticHead();
      if (One.holds(flow * density / behind.density(), second))
        return true;
    }
    return false;
  };
  const QRectF all = polygon.boundingRect();
  int inside = 0;
  for (int i = 1; i < 5; ++i) {
    const double flow = all.left() + all.width() * i / 5.0;
    const QPolygonF cut = polygon.intersected(QPolygonF(QRectF(flow - 0.005, 0.0, 0.01, 10.0)));
    const QRectF ends = cut.boundingRect();
    const double room = 0.03 * all.height();
    QVERIFY2(reaches(flow, ends.bottom() - room) && reaches(flow, ends.top() + room), qPrintable(QString::number(flow)));
    QVERIFY2(!reaches(flow, ends.bottom() + room) && !reaches(flow, ends.top() - room), qPrintable(QString::number(flow)));
    ++inside;
  }
  QCOMPARE(inside, 4);
}

/// P = rho Q H / eta stays below what the drive gives.
void TestStationReach::drivesBound() {
  MachineData d = data();
  const StationConfiguration alone{{}, {}, {{{QStringLiteral("one")}}}};
  const QRectF free = outline(d, alone).boundingRect();
  Drive weak;
  weak.power = Biquadratic{{6000.0}};
  d.drives.push_back(weak);
  const QPolygonF bound = outline(d, alone);
  QVERIFY(bound.boundingRect().width() < 0.9 * free.width());
  for (const QPointF &point : bound) {
    const Compression at = inlet().withRatio(point.x(), point.y());
    QVERIFY(at.massFlow * at.adiabaticHead() / 0.8 < 6000.0 * 1.001);
  }
  d.drives.front().power = Biquadratic{{1.0}}; // too weak for anything
  QVERIFY(outline(d, alone).isEmpty());
  QVERIFY(outline(d, {{}, {}, {{{QStringLiteral("unknown")}}}}).isEmpty());
}

NIVRA_TEST(TestStationReach);
#include "tst_stationreach.moc"
