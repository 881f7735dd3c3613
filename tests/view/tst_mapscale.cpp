#include "viewfixture.h"

#include <drawing/mapscale.h>
#include <drawing/netgeometry.h>
#include <support/nivratest.h>

#include <cmath>

/// What the coordinates of a drawing count, as the lengths of its pipes tell.
class TestMapScale : public QObject {
  Q_OBJECT

private slots:
  void lengthsTell_data();
  void lengthsTell();
  void greatCircles();
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

NIVRA_TEST(TestMapScale);
#include "tst_mapscale.moc"
