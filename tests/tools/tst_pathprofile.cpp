#include "profile/pathprofile.h"
#include "profile/pathsearch.h"
#include "profile/profiletable.h"
#include "profile/stationaxis.h"

#include <base/generalsettings.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <QElapsedTimer>
#include <QTextStream>
#include <qwt_scale_map.h>

Q_DECLARE_METATYPE(PathChoice)

namespace {

using Way = PathChoice::Way;

/// Two ways from A to D: over B (3 km with a compressor, along the flow) and over a closed valve (1 km); a pipe to E in
/// which the gas comes towards D, and F without any way.
///
///     A --P1-- B ==K1== C --P2-- D <--P3-- E      F
///     A --P4-- V --V1 (closed)-- D
std::unique_ptr<NetData> smallNetwork() {
  auto net = std::make_unique<NetData>();
  const auto add = [&net](std::initializer_list<std::pair<const char *, const char *>> properties) {
    net->addElement(makeElement(properties));
  };
  const auto node = [&](const char *name, const char *p, const char *pmax) {
    add({{"name", name}, {"type", "n"}, {"p", p}, {"t", "283.15"}, {"pmin", "40"}, {"pmax", pmax}, {"height", "100"}});
  };
  node("A", "50", "84");
  node("B", "45", "84");
  node("C", "62", "60");
  node("D", "60", "84");
  node("E", "64", "84");
  node("V", "50", "84");
  node("F", "50", "84");
  const auto pipe = [&](const char *name, const char *from, const char *to, const char *length, const char *q) {
    add({{"name", name}, {"type", "p"}, {"node1", from}, {"node2", to}, {"length", length}, {"q", q}, {"v", q}});
  };
  pipe("P1", "A", "B", "1000", "5");
  add({{"name", "K1"}, {"type", "c"}, {"node1", "B"}, {"node2", "C"}, {"q", "5"}});
  pipe("P2", "D", "C", "2000", "-5"); // drawn against the flow
  pipe("P3", "D", "E", "4000", "-3");
  pipe("P4", "A", "V", "1000", "0");
  add({{"name", "V1"}, {"type", "v"}, {"node1", "V"}, {"node2", "D"}, {"state", "closed"}, {"q", "0"}});
  return net;
}

QStringList words(const char *text) {
  return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QString edgesOf(const NetworkPath &path) {
  QStringList names;
  for (const NetworkPath::Step &step : path.steps)
    names.append(step.edge->name() + (step.isForward ? QString() : QStringLiteral("'")));
  return names.join(QLatin1Char(' '));
}

QString found(const NetData &net, const QString &wayPoints, PathChoice choice) {
  const PathSearch::Found way = PathSearch(net).find(wayPoints.split(QLatin1Char(' ')), choice);
  return way.faults.isEmpty() ? edgesOf(way.path) : way.faults.join(QLatin1Char('|'));
}

ProfileQuantity quantity(const PathProfile &profile, const char *property) {
  for (const ProfileQuantity &known : profile.quantities()) {
    if (known.property.name() == QLatin1String(property))
      return known;
  }
  return {};
}

} // namespace

/// Ways through a network, and what it says along them.
class TestPathProfile : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { GeneralSettings::instance().reset(); }
  void waysAreChosen_data();
  void waysAreChosen();
  void wayPointsAreOrdered();
  void curvesFollowThePath();
  void unitsAreThoseOfPeople();
  void placesAreFound();
  void tableHasEveryRow();
  void symbolsThatMeetShareOne();
  void largeNetworksAreQuick();
};

void TestPathProfile::waysAreChosen_data() {
  QTest::addColumn<QString>("wayPoints");
  QTest::addColumn<PathChoice>("choice");
  QTest::addColumn<QString>("expected");
  const PathChoice flow{Way::AlongFlow, false};
  const PathChoice shortest{Way::Shortest, false};
  QTest::newRow("along the flow") << QStringLiteral("A D") << flow << QStringLiteral("P1 K1 P2'");
  QTest::newRow("never through what is closed")
      << QStringLiteral("A D") << PathChoice{Way::AlongFlow, true} << QStringLiteral("P1 K1 P2'");
  QTest::newRow("shortest in use") << QStringLiteral("A D") << shortest << QStringLiteral("P1 K1 P2'");
  QTest::newRow("shortest through what is closed")
      << QStringLiteral("A D") << PathChoice{Way::Shortest, true} << QStringLiteral("P4 V1");
  QTest::newRow("fewest elements") << QStringLiteral("A D") << PathChoice{Way::FewestElements, true}
                                   << QStringLiteral("P4 V1");
  QTest::newRow("several way points, one twice") << QStringLiteral("e D D b") << shortest << QStringLiteral("P3' P2 K1'");
  QTest::newRow("against the flow") << QStringLiteral("D A") << flow
                                    << QStringLiteral("No gas flows from D to A: it flows from A to D.");
  QTest::newRow("no flow between") << QStringLiteral("A E") << flow
                                   << QStringLiteral(
                                          "No gas flows from A to E. A way that is not along the flow joins them.");
  QTest::newRow("but closed") << QStringLiteral("V D") << PathChoice{Way::AlongFlow, false}
                              << QStringLiteral("No gas flows from V to D. A way that is not along the flow joins them.");
  QTest::newRow("nothing") << QStringLiteral("A F B") << shortest
                           << QStringLiteral("No way leads from A to F.|No way leads from F to B.");
  QTest::newRow("no node") << QStringLiteral("A P1 X") << shortest
                           << QStringLiteral("P1 is no node of this network.|X is no node of this network.");
  QTest::newRow("one place") << QStringLiteral("A a") << shortest << QStringLiteral("");
}

void TestPathProfile::waysAreChosen() {
  QFETCH(QString, wayPoints);
  QFETCH(PathChoice, choice);
  QFETCH(QString, expected);
  QCOMPARE(found(*smallNetwork(), wayPoints, choice), expected);
}

void TestPathProfile::wayPointsAreOrdered() {
  const std::unique_ptr<NetData> net = smallNetwork();
  QCOMPARE(PathSearch(*net).inOrder(words("D B A")), words("A B D"));
  QCOMPARE(PathSearch(*net).inOrder(words("D E")), words("E D")); // as the gas goes
  QCOMPARE(PathSearch(*net).inOrder(words("D nothing")), words("D"));
}

void TestPathProfile::curvesFollowThePath() {
  const std::unique_ptr<NetData> net = smallNetwork();
  const PathProfile profile(*net, PathSearch(*net).find(words("A E"), {Way::Shortest, false}).path);
  QCOMPARE(profile.length(), 7.0); // P1 1, P2 2, P3 4 km
  QCOMPARE(profile.stations(), 1);
  const ProfileQuantity pressure = quantity(profile, "p");
  QVERIFY(pressure.hasBounds);
  QCOMPARE(profile.curve(pressure), (PathProfile::Curve{{{0, 50}, {1, 45}, {1, 62}, {3, 60}, {7, 64}}}));
  QCOMPARE(profile.curve(pressure, pressure.upper), (PathProfile::Curve{{{0, 84}, {1, 84}, {1, 60}, {3, 84}, {7, 84}}}));
  QCOMPARE(profile.violations(pressure), (QVector<QPointF>{{1, 62}}));
  // In P3 the gas comes towards the path. The compressor, which has no velocity, breaks no curve; a pipe without does.
  const ProfileQuantity velocity = quantity(profile, "v");
  QCOMPARE(profile.curve(velocity), (PathProfile::Curve{{{0, 5}, {1, 5}, {1, 5}, {3, 5}, {3, -3}, {7, -3}}}));
  net->edges().find(QStringLiteral("P2"))->erase(QStringLiteral("v"));
  QCOMPARE(profile.curve(velocity), (PathProfile::Curve{{{0, 5}, {1, 5}}, {{3, -3}, {7, -3}}}));
}

void TestPathProfile::unitsAreThoseOfPeople() {
  const std::unique_ptr<NetData> net = smallNetwork();
  GeneralSettings::instance().setValue(QStringLiteral("unit: length"), QStringLiteral("m"));
  const PathProfile profile(*net, PathSearch(*net).find(words("A D"), {}).path);
  GeneralSettings::instance().reset();
  QCOMPARE(profile.length(), 3000.0);
  QCOMPARE(profile.lengthUnit(), QStringLiteral("m"));
  const ProfileQuantity temperature = quantity(profile, "t"); // stored in K
  QCOMPARE(temperature.unit, QStringLiteral("°C"));
  QCOMPARE(profile.value(profile.rows().front(), temperature), 10.0);
}

void TestPathProfile::placesAreFound() {
  const std::unique_ptr<NetData> net = smallNetwork();
  const PathProfile profile(*net, PathSearch(*net).find(words("A D"), {}).path);
  const auto nameAt = [&](double place) {
    const Index row = profile.rowAt(place, 0.05);
    return row == NoIndex ? QString() : profile.rows()[row].name;
  };
  QCOMPARE(nameAt(0.02), QStringLiteral("A"));
  QCOMPARE(nameAt(0.5), QStringLiteral("P1"));
  QCOMPARE(nameAt(1.04), QStringLiteral("K1")); // rather than its ends, which lie there as well
  QCOMPARE(nameAt(2.0), QStringLiteral("P2"));
  QCOMPARE(nameAt(3.01), QStringLiteral("D"));
  QCOMPARE(nameAt(3.1), QString());
  QCOMPARE(profile.rows()[profile.find(QStringLiteral("K1"))].from, 1.0);
  QCOMPARE(profile.find(QStringLiteral("P3")), NoIndex);
}

void TestPathProfile::tableHasEveryRow() {
  const std::unique_ptr<NetData> net = smallNetwork();
  const PathProfile profile(*net, PathSearch(*net).find(words("A D"), {}).path);
  QString text;
  QTextStream stream(&text);
  profileTable(profile, {quantity(profile, "p"), quantity(profile, "v")})
      .writeRows(stream, TableExport::Format::PointCsv, TableExport::Header::Written);
  stream.flush();
  QCOMPARE(text, QStringLiteral("from [km],length [km],name,type,p [bar],pmin [bar],pmax [bar],v [m/s]\n"
                                "0,,A,node,50,40,84,\n"
                                "0,1,P1,pipe,,,,5\n"
                                "1,,B,node,45,40,84,\n"
                                "1,0,K1,compressor,,,,\n"
                                "1,,C,node,62,40,60,\n"
                                "1,2,P2,pipe,,,,5\n"
                                "3,,D,node,60,40,84,\n"));
}

void TestPathProfile::symbolsThatMeetShareOne() {
  NetData net;
  const auto add = [&net](const char *name, const char *from, const char *to, const char *type, const char *length) {
    net.addElement(
        makeElement({{"name", name}, {"type", type}, {"node1", from}, {"node2", to}, {"length", length}, {"q", "1"}}));
  };
  for (const char *node : {"N1", "N2", "N3", "N4", "N5", "N6"})
    net.addElement(makeNode(node));
  add("V1", "N1", "N2", "v", "0");
  add("K1", "N2", "N3", "c", "0");
  add("S1", "N3", "N4", "s", "0"); // a shortcut is no station
  add("P1", "N4", "N5", "p", "10000");
  add("R1", "N5", "N6", "r", "0");
  const PathProfile profile(net, PathSearch(net).find(words("N1 N6"), {}).path);
  StationAxis axis({});
  axis.setProfile(profile, {});
  QwtScaleMap map;
  map.setScaleInterval(0.0, 10.0);
  map.setPaintInterval(0.0, 500.0);
  const std::vector<StationAxis::Placed> placed = axis.layOut(map);
  QCOMPARE(placed.size(), std::size_t(2));
  QCOMPARE(placed.front().rows.size(), std::size_t(2));
  QCOMPARE(axis.namesAt(map, 3.0), QStringLiteral("compressor: K1\nvalve: V1")); // the most important first
  QCOMPARE(axis.namesAt(map, 250.0), QString());
  QCOMPARE(axis.namesAt(map, 499.0), QStringLiteral("regulator: R1"));
}

/// A grid of 100,000 elements, from one corner to the other.
void TestPathProfile::largeNetworksAreQuick() {
  constexpr int Side = 182;
  constexpr qint64 Patience = 3000; // ms, with a debug build on a machine that others use
  NetData net;
  const auto name = [](int x, int y) {
    return QStringLiteral("N_%1_%2").arg(x).arg(y);
  };
  const auto pipe = [&net](const QString &from, const QString &to) {
    element e = makeElement({{"type", "p"}, {"length", "1000"}, {"q", "1"}, {"v", "2"}});
    e.set(QStringLiteral("name"), QStringLiteral("P_%1_%2").arg(from, to));
    e.set(QStringLiteral("node1"), from);
    e.set(QStringLiteral("node2"), to);
    net.addElement(e);
  };
  for (int x = 0; x < Side; ++x) {
    for (int y = 0; y < Side; ++y) {
      element e = makeElement({{"type", "n"}, {"p", "50"}});
      e.set(QStringLiteral("name"), name(x, y));
      net.addElement(e);
      if (x > 0)
        pipe(name(x - 1, y), name(x, y));
      if (y > 0)
        pipe(name(x, y - 1), name(x, y));
    }
  }
  net.edges().begin(); // in order, as they are after reading
  net.nodes().begin();
  QElapsedTimer clock;
  clock.start();
  const PathSearch search(net);
  const qint64 made = clock.elapsed();
  const PathSearch::Found way = search.find({name(0, 0), name(Side - 1, Side - 1)}, {});
  const PathProfile profile(net, way.path);
  qInfo() << "elements" << net.nodes().size() + net.edges().size() << "network looked through in ms" << made
          << "path and profile in ms" << clock.elapsed() - made;
  QCOMPARE(profile.length(), 2.0 * (Side - 1));
  QVERIFY(clock.elapsed() < Patience);
}

NIVRA_TEST(TestPathProfile);
#include "tst_pathprofile.moc"
