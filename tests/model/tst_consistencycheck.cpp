#include <model/consistencycheck.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>

namespace {

/// What is told of the pruning.
struct Console {
  QStringList lines;
  Told told = [this](const Finding &finding) {
    lines.append(finding.text);
  };
};

QString texts(const Findings &findings) {
  QString all;
  for (const Finding &finding : findings)
    all += finding.text + QLatin1Char('\n');
  return all;
}

QString coordinates(const NetData &net, const char *name) {
  const element *e = net.element(QLatin1String(name));
  return e == nullptr ? QStringLiteral("gone")
                      : e->value(QStringLiteral("X")) + QLatin1Char(',') + e->value(QStringLiteral("Y"));
}

} // namespace

class TestConsistencyCheck : public QObject {
  Q_OBJECT

private slots:
  void findings_data();
  void findings();
  void soundNetworkIsLeftAlone();
  void edgesWithoutEndsAreRemoved_data();
  void edgesWithoutEndsAreRemoved();
  void missingCoordinatesGetDefaults();
  void drives_data();
  void drives();
  void excludedDrivesServeNobody();
};

void TestConsistencyCheck::findings_data() {
  QTest::addColumn<QString>("property");
  QTest::addColumn<QString>("value");
  QTest::addColumn<QString>("expected");
  QTest::newRow("other spelling") << QStringLiteral("name") << QStringLiteral("p1")
                                  << QStringLiteral("ID and value of name-property not identical: P1, p1\n");
  QTest::newRow("no name") << QStringLiteral("name") << QString()
                           << QStringLiteral("ID or name-property empty: P1, \n"
                                             "ID and value of name-property not identical: P1, \n");
  QTest::newRow("blank in type") << QStringLiteral("type") << QStringLiteral("c x")
                                 << QStringLiteral("value of type-property not OK: P1, c x\n");
  QTest::newRow("property without name") << QStringLiteral("   ") << QStringLiteral("5")
                                         << QStringLiteral(
                                                "A property name is empty for element P1! Property will be erased!\n");
  QTest::newRow("dangling reference") << QStringLiteral("driven") << QStringLiteral("C9")
                                      << QStringLiteral("Cannot find element: driven@P1=C9!\n");
  QTest::newRow("reference in other case") << QStringLiteral("entry") << QStringLiteral("a") << QString();
  QTest::newRow("empty reference") << QStringLiteral("exit") << QString() << QString();
}

void TestConsistencyCheck::findings() {
  QFETCH(QString, property);
  QFETCH(QString, value);
  QFETCH(QString, expected);
  NetData net;
  net.addElement(makeNode("A"));
  net.addElement(makeEdge("P1", "A", "A"));
  net.element(QStringLiteral("P1"))->set(property, value);
  QCOMPARE(texts(ConsistencyCheck::checkNetData(net)), expected);
  QVERIFY(!net.element(QStringLiteral("P1"))->contains(QStringLiteral("   ")));
}

void TestConsistencyCheck::soundNetworkIsLeftAlone() {
  NetData net;
  net.addElement(makeNode("A"));
  net.addElement(makeNode("B"));
  net.addElement(makeEdge("P1", "a", "B"));
  Console console;
  QVERIFY(ConsistencyCheck::checkNetData(net).empty());
  const ConsistencyCheck::PruneResult removed = ConsistencyCheck::prune(net, console.told);
  QCOMPARE(removed.nodes + removed.edges, 0);
  QVERIFY(console.lines.isEmpty());
}

void TestConsistencyCheck::edgesWithoutEndsAreRemoved_data() {
  QTest::addColumn<QString>("erased");
  QTest::addColumn<QString>("node2");
  QTest::addColumn<QString>("message");
  QTest::newRow("unknown end") << QString() << QStringLiteral("X9")
                               << QStringLiteral("ERROR for edge P1: Could not find node2 X9! Edge will be erased!");
  QTest::newRow("no end") << QStringLiteral("node2") << QString()
                          << QStringLiteral("ERROR for edge P1: Could not find property node2! Edge will be erased!");
  QTest::newRow("no name") << QStringLiteral("name") << QStringLiteral("A")
                           << QStringLiteral("ERROR for current edge: Could not find property name! Edge will be erased!");
  QTest::newRow("end is no node") << QString() << QStringLiteral("P1")
                                  << QStringLiteral("ERROR for edge P1: Could not find node2 P1! Edge will be erased!");
}

void TestConsistencyCheck::edgesWithoutEndsAreRemoved() {
  QFETCH(QString, erased);
  QFETCH(QString, node2);
  QFETCH(QString, message);
  NetData net;
  net.addElement(makeNode("A"));
  net.addElement(makeEdge("P1", "A", "A"));
  element &edge = *net.element(QStringLiteral("P1"));
  edge.set(QStringLiteral("node2"), node2);
  edge.erase(erased);
  Console console;
  const ConsistencyCheck::PruneResult removed = ConsistencyCheck::prune(net, console.told);
  QCOMPARE(removed.edges, 1);
  QVERIFY(net.edges().isEmpty());
  QVERIFY2(console.lines.contains(message), qPrintable(console.lines.join(QLatin1Char('\n'))));
  QVERIFY(console.lines.contains(QStringLiteral("... edge was: P1")));
  QCOMPARE(console.lines.last(), QStringLiteral("CRITICAL - 0 nodes and 1 edges had to be removed!"));
}

void TestConsistencyCheck::missingCoordinatesGetDefaults() {
  NetData net;
  net.addElement(makeElement({{"name", "A"}, {"type", "n"}}));
  Console console;
  ConsistencyCheck::prune(net, console.told);
  QCOMPARE(coordinates(net, "A"), QStringLiteral("0,0"));
  QCOMPARE(console.lines, (QStringList{QStringLiteral("Node A did not possess x-value. Set to 0."),
                                       QStringLiteral("Node A did not possess y-value. Set to 0.")}));
}

void TestConsistencyCheck::drives_data() {
  QTest::addColumn<QString>("gasnode");
  QTest::addColumn<QString>("driven");
  QTest::addColumn<QString>("place");
  QTest::addColumn<QString>("message");
  QTest::newRow("on the compressor") << QStringLiteral("G") << QStringLiteral("C1") << QStringLiteral("7,14")
                                     << QStringLiteral("Drive D1 did not possess x- or y-value. Set to (7,14).");
  QTest::newRow("gas node missing") << QStringLiteral("G9") << QStringLiteral("C1") << QStringLiteral("7,14")
                                    << QStringLiteral("Drive D1: Could not find GASNODE G9. Check!");
  QTest::newRow("compressor missing") << QStringLiteral("G") << QStringLiteral("C9") << QStringLiteral("5,55")
                                      << QStringLiteral("Drive D1: Could not find DRIVEN C9. Check!");
  QTest::newRow("both missing") << QStringLiteral("G9") << QStringLiteral("C9") << QStringLiteral("gone")
                                << QStringLiteral(
                                       "Drive D1: Neither GASNODE G9 nor DRIVEN C9 could be found. Drive is excluded!");
  QTest::newRow("drives a pipe") << QStringLiteral("G") << QStringLiteral("P1") << QStringLiteral("gone")
                                 << QStringLiteral("Drive D1: DRIVEN P1 is not of type compressor. Drive is excluded!");
  QTest::newRow("no references") << QString() << QString() << QStringLiteral("gone")
                                 << QStringLiteral(
                                        "Drive D1: Could not find properties GASNODE and/or DRIVEN. Drive is excluded!");
}

void TestConsistencyCheck::drives() {
  QFETCH(QString, gasnode);
  QFETCH(QString, driven);
  QFETCH(QString, place);
  QFETCH(QString, message);
  NetData net;
  net.addElement(makeNode("A", "0", "0"));
  net.addElement(makeNode("B", "10", "20"));
  net.addElement(makeNode("G", "5", "5"));
  net.addElement(makeEdge("C1", "A", "B", "c"));
  net.addElement(makeEdge("P1", "A", "B"));
  element drive = makeElement({{"name", "D1"}, {"type", "d"}});
  if (!gasnode.isNull())
    drive.set(QStringLiteral("gasnode"), gasnode);
  if (!driven.isNull())
    drive.set(QStringLiteral("driven"), driven);
  net.addElement(drive);
  Console console;
  const ConsistencyCheck::PruneResult removed = ConsistencyCheck::prune(net, console.told);
  QCOMPARE(coordinates(net, "D1"), place);
  QCOMPARE(removed.nodes, place == QLatin1String("gone") ? 1 : 0);
  QVERIFY2(console.lines.contains(message), qPrintable(console.lines.join(QLatin1Char('\n'))));
}

void TestConsistencyCheck::excludedDrivesServeNobody() {
  NetData net;
  net.addElement(makeNode("A", "0", "0"));
  net.addElement(makeElement({{"name", "D1"}, {"type", "d"}}));
  net.addElement(makeElement({{"name", "D2"}, {"type", "d"}, {"gasnode", "D1"}, {"driven", "C9"}}));
  net.addElement(makeElement({{"name", "D3"}, {"type", "d"}, {"gasnode", "A"}, {"driven", "C9"}}));
  net.addElement(makeEdge("P1", "A", "D1"));
  net.addElement(makeEdge("P2", "A", "D3"));
  Console console;
  const ConsistencyCheck::PruneResult removed = ConsistencyCheck::prune(net, console.told);
  QVERIFY2(console.lines.contains(
               QStringLiteral("Drive D2: Neither GASNODE D1 nor DRIVEN C9 could be found. Drive is excluded!")),
           qPrintable(console.lines.join(QLatin1Char('\n'))));
  QCOMPARE(net.nodes().size(), std::size_t(2));
  QCOMPARE(removed.nodes, 2);
  QCOMPARE(removed.edges, 1); // it ended at a drive that is gone
  QVERIFY(net.edges().find(QStringLiteral("P1")) == nullptr && net.edges().find(QStringLiteral("P2")) != nullptr);
}

NIVRA_TEST(TestConsistencyCheck);
#include "tst_consistencycheck.moc"
