#include "viewfixture.h"

#include <drawing/mapscale.h>
#include <drawing/netgeometry.h>
#include <model/netmetadata.h>
#include <support/nivratest.h>

#include <cmath>
#include <functional>
#include <memory>

namespace {

/// The nodes of the fixture with places on the earth: east and north of a point, in metres.
MapScale scaleOf(const std::function<QPointF(double east, double north)> &onDrawing) {
  constexpr double Degree = 6371008.8 * M_PI / 180.0;
  constexpr double Latitude = 52.0;
  ViewFixture f;
  const std::vector<QPointF> places{{0, 0}, {50000, 4000}, {21000, 60000}, {-34000, 25000}, {12000, -41000}};
  for (std::size_t i = 0; i < places.size(); ++i) {
    const QPointF at = onDrawing(places[i].x(), places[i].y());
    element e = makeNode(qPrintable(QStringLiteral("G%1").arg(i)), QByteArray::number(at.x(), 'g', 15),
                         QByteArray::number(at.y(), 'g', 15));
    e.set(QStringLiteral("lon"), QString::number(8.0 + places[i].x() / Degree / std::cos(Latitude * M_PI / 180.0), 'g', 15));
    e.set(QStringLiteral("lat"), QString::number(Latitude + places[i].y() / Degree, 'g', 15));
    f.net.addElement(std::move(e));
  }
  f.show();
  return MapScale::of(f.net, f.plot().update().geometry());
}

} // namespace

/// What the coordinates of a drawing count.
class TestMapScale : public QObject {
  Q_OBJECT

private slots:
  void lengthsTell_data();
  void lengthsTell();
  void greatCircles();
  void placesOnTheEarthTell();
  void theUnitTells();
};

void TestMapScale::lengthsTell_data() {
  QTest::addColumn<QVector<double>>("coordinates"); ///< of nodes in a chain, x and y in turn
  QTest::addColumn<QVector<double>>("lengths");     ///< of the pipes between them, m
  QTest::addColumn<QString>("distance");            ///< between the first two nodes
  const QVector<double> metres{0, 0, 3000, 4000, 3000, 9000, 9000, 9000, 9000, 1000, 0, 1000};
  QTest::newRow("metres, pipes with bends")
      << metres << QVector<double>{5300, 5500, 6100, 8400, 9000} << QStringLiteral("5 km");
  QTest::newRow("schematic") << metres << QVector<double>{53, 55000, 610, 8400, 90} << QStringLiteral("5000");
  QTest::newRow("no lengths") << metres << QVector<double>{} << QStringLiteral("5000");
  QTest::newRow("one scale") << metres << QVector<double>{200, 200, 240, 320, 360} << QStringLiteral("200 m");
  // Along the meridian a degree is 111.195 km on a sphere of 6371.0088 km.
  QTest::newRow("degrees") << QVector<double>{10, 50, 10, 51, 10, 52, 10, 53, 10, 54, 10, 55}
                           << QVector<double>{112000, 115000, 111500, 120000, 113000} << QStringLiteral("111.2 km");
}

void TestMapScale::lengthsTell() {
  QFETCH(QVector<double>, coordinates);
  QFETCH(QVector<double>, lengths);
  QFETCH(QString, distance);
  NetData net;
  const auto name = [](int i) {
    return QStringLiteral("n%1").arg(i).toLatin1();
  };
  for (int i = 0; i * 2 < coordinates.size(); ++i)
    net.addElement(makeNode(name(i), QByteArray::number(coordinates[i * 2]), QByteArray::number(coordinates[i * 2 + 1])));
  for (int i = 0; i < lengths.size(); ++i) {
    element pipe = makeEdge(QStringLiteral("p%1").arg(i).toLatin1(), name(i), name(i + 1));
    pipe.set(QStringLiteral("length"), QString::number(lengths[i]));
    net.addElement(std::move(pipe));
  }
  NetVisControl control(net, QString());
  control.showNetData(QStringLiteral("/nowhere/plotsettings.ini"));
  const MapScale scale = MapScale::of(net, control.plot()->update().geometry());
  const QLineF line(coordinates[0], coordinates[1], coordinates[2], coordinates[3]);
  QCOMPARE(scale.written(scale.length(line)), distance);
}

/// Hamburg and Munich, as a known calculator of great circles has it: 612 km.
void TestMapScale::greatCircles() {
  NetData net;
  for (int i = 0; i < 6; ++i)
    net.addElement(makeNode(QByteArray(1, static_cast<char>('a' + i)), QByteArray::number(10 + i), "50"));
  for (int i = 0; i < 5; ++i) {
    element pipe = makeEdge(QByteArray(1, static_cast<char>('p' + i)), QByteArray(1, static_cast<char>('a' + i)),
                            QByteArray(1, static_cast<char>('b' + i)));
    pipe.set(QStringLiteral("length"), QStringLiteral("72000"));
    net.addElement(std::move(pipe));
  }
  NetVisControl control(net, QString());
  control.showNetData(QStringLiteral("/nowhere/plotsettings.ini"));
  const MapScale scale = MapScale::of(net, control.plot()->update().geometry());
  QCOMPARE(scale.coordinates(), MapScale::Coordinates::Degrees);
  const double distance = scale.length({9.993, 53.551, 11.582, 48.135});
  QVERIFY2(std::abs(distance - 612e3) < 3e3, qPrintable(QString::number(distance)));
}

/// Places on the earth outweigh the unit of "x", and this the lengths of the pipes.
void TestMapScale::placesOnTheEarthTell() {
  using Coordinates = MapScale::Coordinates;
  const MapScale metres = scaleOf([](double east, double north) { return QPointF(east, north) + QPointF(4e5, 5.9e6); });
  QCOMPARE(metres.coordinates(), Coordinates::Metres);
  QVERIFY(std::abs(metres.metresPerUnit(0.0) - 1.0) < 0.02);
  QCOMPARE(metres.north(), std::optional<double>(0.0));
  // Drawn in units of 250 m and turned clockwise by a quarter: north is at the right.
  const MapScale turned = scaleOf([](double east, double north) { return QPointF(north, -east) / 250.0; });
  QVERIFY(std::abs(turned.metresPerUnit(0.0) - 250.0) < 5.0);
  QVERIFY(std::abs(turned.length({0.0, 0.0, 3.0, 4.0}) - 1250.0) < 25.0);
  QVERIFY(turned.north() && std::abs(*turned.north() - 90.0) < 1.0);
  constexpr double Degree = 6371008.8 * M_PI / 180.0;
  const double narrow = std::cos(52.0 * M_PI / 180.0);
  const MapScale degrees =
      scaleOf([&](double east, double north) { return QPointF(8.0 + east / Degree / narrow, 52.0 + north / Degree); });
  QCOMPARE(degrees.coordinates(), Coordinates::Degrees);
  QCOMPARE(degrees.north(), std::optional<double>(0.0));
  QVERIFY(std::abs(degrees.metresPerUnit(60.0) - Degree * 0.5) < 1.0);
  QVERIFY(std::abs(degrees.length({8.0, 60.0, 8.01, 60.0}) - Degree * 0.005) < 1.0);
  // A drawing of its own order, whatever the nodes say of the earth.
  const MapScale schematic = scaleOf([](double east, double north) { return QPointF(std::abs(east), -north); });
  QCOMPARE(schematic.coordinates(), Coordinates::Plain);
  QVERIFY(!schematic.north());
}

void TestMapScale::theUnitTells() {
  ViewFixture f;
  f.show();
  const auto scale = [&f] {
    return MapScale::of(f.net, f.plot().update().geometry());
  };
  QCOMPARE(scale().coordinates(), MapScale::Coordinates::Plain); // nodes say nothing, and pipes have no lengths
  for (int i = 0; i < 5; ++i) {                                  // as long as their drawn length
    f.addNode(qPrintable(QStringLiteral("N%1").arg(i)), qPrintable(QString::number(100 * i)), "500", "30");
    f.add(makeEdge(qPrintable(QStringLiteral("P%1").arg(i)), "A", qPrintable(QStringLiteral("N%1").arg(i))),
          {{"length", qPrintable(QString::number(std::hypot(100 * i, 500)))}});
  }
  f.control.showNetData(QStringLiteral("/nowhere/plotsettings.ini"));
  QCOMPARE(scale().coordinates(), MapScale::Coordinates::Metres);
  QCOMPARE(scale().metresPerUnit(0.0), 1.0);
  const auto vocabulary = [&f](const QString &unit) {
    auto metaData = std::make_shared<NetMetaData>();
    metaData->add({QStringLiteral("n"), QStringLiteral("x"), {}, {}, unit, {}, {}, false, {}, {}});
    f.net.setMetaData(metaData);
  };
  vocabulary(QStringLiteral("km"));
  QVERIFY(scale().metresPerUnit(0.0) == 1000.0 && !scale().north());
  vocabulary(QStringLiteral("degree"));
  QVERIFY(scale().coordinates() == MapScale::Coordinates::Degrees && scale().north());
}

NIVRA_TEST(TestMapScale);
#include "tst_mapscale.moc"
