#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <rules/balance.h>

namespace {

element node(const char *name, const char *zone, const char *flow, const char *kind = "innode") {
  element made = makeNode(name);
  made.set(QStringLiteral("zone"), QString::fromLatin1(zone));
  made.set(QStringLiteral("kind"), QString::fromLatin1(kind));
  if (*flow != '\0')
    made.set(QStringLiteral("qset"), QString::fromLatin1(flow));
  return made;
}

element edge(const char *name, const char *from, const char *to, const char *flow) {
  element made = makeEdge(name, from, to);
  if (*flow != '\0')
    made.set(QStringLiteral("q"), QString::fromLatin1(flow));
  return made;
}

/// Zone 1: a source of 100, a node that burns 3, a sink of 17; zone 2: a sink of 90 and a source that nobody states, from
/// which 10 come. Beside them a node without zone that nothing joins.
NetData twoZones() {
  NetData net;
  for (const element &made :
       {node("In", "One", "-100", "source"), node("F", "one", ""), node("Small", "One", "17", "sink"),
        node("Big", "Two", "90", "sink"), node("Wild", "Two", "", "source"), node("Alone", "", ""),
        edge("P1", "In", "F", "100"), edge("P2", "F", "Small", "97"), edge("P3", "Small", "Big", "80"),
        edge("P4", "Wild", "Big", "10"),
        makeElement({{"name", "D"}, {"type", "d"}, {"gasnode", "F"}, {"fuel", "3"}, {"x", "0"}, {"y", "0"}})})
    net.addElement(made);
  return net;
}

Balance byZone(const NetData &net) {
  const auto facts = std::make_shared<const NetworkFacts>(net);
  return Balance(facts, Grouping::byProperty(*facts, PropertyKey::find("zone")));
}

} // namespace

class TestBalance : public QObject {
  Q_OBJECT

private slots:
  void zonesSumUp();
  void figuresHaveTheirElements();
  void missingResultsAreUnknown();
  void partsAreGroups();
};

void TestBalance::zonesSumUp() {
  const NetData net = twoZones();
  const Balance balance = byZone(net);
  QCOMPARE(balance.groups().size(), std::size_t(3));
  const Balance::Group &one = balance.groups()[0];
  QCOMPARE(one.name, QStringLiteral("one")); // as the first node spells it
  QCOMPARE(one.sums.nodes, Index(3));
  QCOMPARE(one.sums.entries, 100.0);
  QCOMPARE(one.sums.exits, 17.0);
  QCOMPARE(one.sums.fuel, 3.0);
  QCOMPARE(one.sums.fromOthers, -80.0);
  QCOMPARE(one.sums.imbalance(), 0.0);
  const Balance::Sums &two = balance.groups()[1].sums;
  QCOMPARE(two.exits, 90.0);
  QCOMPARE(two.unknownCount, Index(1));
  QCOMPARE(two.unknown, 10.0);
  QCOMPARE(two.imbalance(), 0.0);
  QCOMPARE(balance.groups()[2].sums.nodes, Index(1));
  QCOMPARE(balance.total().entries, 100.0);
  QCOMPARE(balance.total().exits, 107.0);
  QCOMPARE(balance.total().imbalance(), 0.0);
}

void TestBalance::figuresHaveTheirElements() {
  using Figure = Balance::Figure;
  const NetData net = twoZones();
  const Balance balance = byZone(net);
  const auto names = [&balance](Index group, Figure figure) {
    return balance.elements(group, figure).join(QLatin1Char(','));
  };
  QCOMPARE(names(0, Figure::Nodes), QStringLiteral("F,In,Small"));
  QCOMPARE(names(0, Figure::Entries), QStringLiteral("In"));
  QCOMPARE(names(NoIndex, Figure::Exits), QStringLiteral("Big,Small"));
  QCOMPARE(names(0, Figure::Fuel), QStringLiteral("F,D"));
  QCOMPARE(names(1, Figure::Unknown), QStringLiteral("Wild"));
  QCOMPARE(names(1, Figure::FromOthers), QStringLiteral("P3"));
  QCOMPARE(names(2, Figure::FromOthers), QString());
  QCOMPARE(names(1, Figure::Imbalance), QStringLiteral("Big,Wild"));
}

void TestBalance::missingResultsAreUnknown() {
  NetData net = twoZones();
  net.element(QStringLiteral("P3"))->erase(QStringLiteral("q"));
  net.element(QStringLiteral("P4"))->erase(QStringLiteral("q"));
  const Balance balance = byZone(net);
  QVERIFY(!NetworkFacts::isKnown(balance.groups()[0].sums.fromOthers));
  QVERIFY(!NetworkFacts::isKnown(balance.groups()[1].sums.imbalance()));
  QCOMPARE(balance.total().unknown, 0.0);
  QCOMPARE(balance.total().imbalance(), -10.0); // what is left for those of which nobody knows
}

void TestBalance::partsAreGroups() {
  NetData net = twoZones();
  net.element(QStringLiteral("P3"))->set(QStringLiteral("state"), QStringLiteral("closed"));
  net.element(QStringLiteral("P3"))->erase(QStringLiteral("q"));
  const auto facts = std::make_shared<const NetworkFacts>(net);
  const Balance balance(facts, Grouping::byPart(*facts));
  QCOMPARE(balance.groups().size(), std::size_t(3));
  QCOMPARE(balance.groups()[0].sums.imbalance(), 80.0);
  QCOMPARE(balance.groups()[1].sums.imbalance(), -80.0);
  QCOMPARE(balance.groups()[2].sums.nodes, Index(1));
}

NIVRA_TEST(TestBalance);
#include "tst_balance.moc"
