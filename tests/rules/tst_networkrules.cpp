#include "ruletable.h"

#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <QElapsedTimer>

#include <rules/networkrules.h>

namespace {

/// A source, a regulator and two sinks, one of them behind a loop of two unlike pipes; it balances and breaks no rule.
NetData soundNetwork() {
  NetData net;
  const auto node = [&net](const char *name, const char *x, const char *height, const char *kind) -> element & {
    net.addElement(makeNode(name, x));
    element &made = *net.element(QString::fromLatin1(name));
    for (const auto &[key, value] :
         {std::pair("height", height), std::pair("kind", kind), std::pair("pmin", "40"), std::pair("pmax", "70")})
      made.set(QString::fromLatin1(key), QString::fromLatin1(value));
    return made;
  };
  const auto edge = [&net](const char *name, const char *from, const char *to, const char *type, const char *flow) {
    element made = makeEdge(name, from, to, type);
    made.set(QStringLiteral("q"), QString::fromLatin1(flow));
    made.set(QStringLiteral("qmin"), QStringLiteral("-200"));
    made.set(QStringLiteral("qmax"), QStringLiteral("200"));
    if (*type == 'p') {
      made.set(QStringLiteral("length"), QStringLiteral("10000"));
      made.set(QStringLiteral("diameter"), QStringLiteral("500"));
    }
    net.addElement(made);
  };
  element &in = node("In", "0", "100", "source");
  for (const auto &[key, value] : {std::pair("qset", "-100"), std::pair("pset", "60"), std::pair("qmin", "-150"),
                                   std::pair("qmax", "0"), std::pair("qcontractmin", "-120"), std::pair("qcap", "180")})
    in.set(QString::fromLatin1(key), QString::fromLatin1(value));
  node("A", "1", "120", "innode");
  node("B", "2", "110", "innode");
  node("Out1", "3", "90", "sink").set(QStringLiteral("qset"), QStringLiteral("70"));
  node("Out2", "4", "80", "sink").set(QStringLiteral("qset"), QStringLiteral("30"));
  edge("P1", "In", "A", "p", "100");
  edge("R", "A", "B", "r", "100");
  edge("P2", "B", "Out1", "p", "40");
  edge("P3", "B", "Out1", "p", "60");
  edge("P4", "Out1", "Out2", "p", "30");
  net.element(QStringLiteral("P3"))->set(QStringLiteral("diameter"), QStringLiteral("600"));
  return net;
}

RuleSettings strict() {
  RuleSettings all;
  all.severities.assign(RuleTable::all().size(), Finding::Severity::Warning);
  all.balanceTolerance = 0.001;
  all.steepestPipe = 300.0;
  all.highestStep = 30.0;
  all.crowd = 3;
  return all;
}

std::vector<NetworkRules::Told> check(const NetData &net, const RuleSettings &by = strict()) {
  const NetworkFacts facts(net);
  NetworkRules rules(net, facts, by);
  rules.find({});
  return rules.tell();
}

/// "rule: element, element: text", one a line.
QString said(const std::vector<NetworkRules::Told> &told) {
  QStringList lines;
  for (const NetworkRules::Told &rule : told) {
    for (std::size_t i = 0; i < rule.findings.size(); ++i)
      lines.append(
          QStringLiteral("%1: %2: %3").arg(rule.rule, rule.elements[i].join(QLatin1Char(',')), rule.findings[i].text));
  }
  return lines.join(QLatin1Char('\n'));
}

} // namespace

class TestNetworkRules : public QObject {
  Q_OBJECT

private slots:
  void soundNetworkBreaksNone();
  void plantedFaultIsFound_data();
  void plantedFaultIsFound();
  void sourcesMayGiveMagnitudes();
  void flowsAreConverted();
  void reversedResultsAreOneFault();
  void fuelIsCountedOnce();
  void switchedOffIsSilent();
  void withoutScenarioNothingIsMissed();
  void millionElementsTakeSeconds();
};

void TestNetworkRules::soundNetworkBreaksNone() {
  QCOMPARE(said(check(soundNetwork())), QString());
}

void TestNetworkRules::plantedFaultIsFound_data() {
  using Change = QStringList; // element, property, value; an empty value takes the property away
  QTest::addColumn<QVector<QStringList>>("changes");
  QTest::addColumn<QString>("rule");
  QTest::addColumn<QString>("elements");
  QTest::addColumn<QString>("words");
  const auto row = [](const char *name, const QVector<Change> &changes, const char *rule, const char *names,
                      const char *words) {
    QTest::newRow(name) << changes << QString::fromLatin1(rule) << QString::fromLatin1(names) << QString::fromLatin1(words);
  };
  const auto change = [](const char *element, const char *property, const char *value) {
    return Change{QString::fromLatin1(element), QString::fromLatin1(property), QString::fromLatin1(value)};
  };
  row("leak", {change("R", "q", "90"), change("P2", "q", "30")}, "node-balance", "A", "bring 10 ");
  row("leak of a sink", {change("P4", "q", "29")}, "node-balance", "Out1", "bring 71 ");
  row("nominations", {change("Out2", "qset", "31")}, "nomination-balance", "A,B,In,Out1,Out2", "-1 ");
  row("contract", {change("In", "qcontractmin", "-99")}, "nomination-contract", "In", "at least -99 ");
  row("bounds", {change("In", "qmin", "-90")}, "nomination-bounds", "In", "-90 ");
  row("bounds of a sink", {change("Out1", "qmax", "69.9")}, "nomination-bounds", "Out1", "at most 69.9 ");
  row("capacity", {change("In", "qcap", "80")}, "nomination-capacity", "In", "80 ");
  row("capacity of pipes", {change("P4", "qmax", "20")}, "nomination-capacity", "Out2", "20 ");
  row("pipe that leads away", {change("P1", "qmax", "0")}, "nomination-capacity", "In", "0 ");
  row("pressure", {change("In", "pmax", "59")}, "set-pressure", "In", "59 ");
  row("crossed", {change("B", "pmin", "71")}, "crossed-bounds", "B", "71 ");
  row("crossed flows", {change("R", "qmin", "300")}, "crossed-bounds", "R", "300 ");
  row("cut off", {change("P4", "state", "closed"), change("Out1", "qset", "100"), change("P4", "q", "0")}, "cut-off", "Out2",
      "30 ");
  row("no pressure", {change("In", "pset", "")}, "no-pressure-set-point", "A,B,In,Out1,Out2", "5 nodes");
  row("duplicate", {change("P3", "diameter", "500.0000001")}, "duplicate-pipes", "P2,P3", "P3");
  row("duplicate the other way",
      {change("P3", "diameter", "500"), change("P3", "node1", "Out1"), change("P3", "node2", "B"), change("P3", "q", "-60")},
      "duplicate-pipes", "P2,P3", "P3");
  row("no length", {change("P1", "length", "")}, "zero-length", "P1", "missing");
  row("length 0", {change("P1", "length", "0")}, "zero-length", "P1", "0 ");
  row("negative length", {change("P1", "length", "-5")}, "zero-length", "P1", "-0.005 ");
  row("steep pipe", {change("Out2", "height", "4000")}, "height-jump", "P4,Out1,Out2", "391 m per km");
  row("step in a station", {change("A", "height", "150")}, "height-jump", "R,A,B", "40 ");
  row("one point", {change("A", "x", "4"), change("B", "x", "4.0")}, "same-position", "A,B,Out2", "3 nodes");
}

void TestNetworkRules::plantedFaultIsFound() {
  QFETCH(QVector<QStringList>, changes);
  QFETCH(QString, rule);
  QFETCH(QString, elements);
  QFETCH(QString, words);
  NetData net = soundNetwork();
  for (const QStringList &change : qAsConst(changes)) {
    element &changed = *net.element(change[0]);
    if (change[2].isEmpty())
      changed.erase(change[1]);
    else
      changed.set(change[1], change[2]);
  }
  const std::vector<NetworkRules::Told> told = check(net);
  const auto found =
      std::find_if(told.begin(), told.end(), [&rule](const NetworkRules::Told &one) { return one.rule == rule; });
  QVERIFY2(found != told.end(), qPrintable(said(told)));
  const auto at = std::find_if(found->elements.begin(), found->elements.end(),
                               [&elements](const QStringList &names) { return names.join(QLatin1Char(',')) == elements; });
  QVERIFY2(at != found->elements.end(), qPrintable(said(told)));
  const Finding &finding = found->findings[static_cast<std::size_t>(at - found->elements.begin())];
  QVERIFY2(finding.text.contains(words), qPrintable(finding.text));
  QCOMPARE(finding.element, at->first());
  QCOMPARE(finding.severity, Finding::Severity::Warning);
  for (const NetworkRules::Told &other : told) // at most what follows from it: the other end of the edge
    QVERIFY2(other.rule == rule ||
                 (rule == QLatin1String("nomination-balance") && other.rule == QLatin1String("node-balance")),
             qPrintable(said(told)));
}

void TestNetworkRules::sourcesMayGiveMagnitudes() {
  NetData net = soundNetwork();
  element &in = *net.element(QStringLiteral("In"));
  in.set(QStringLiteral("qmin"), QStringLiteral("50"));
  in.set(QStringLiteral("qmax"), QStringLiteral("150"));
  QCOMPARE(said(check(net)), QString());
  in.set(QStringLiteral("qmax"), QStringLiteral("95"));
  QCOMPARE(check(net).size(), std::size_t(1));
}

void TestNetworkRules::flowsAreConverted() {
  NetData net = soundNetwork();
  net.element(QStringLiteral("In"))->set(QStringLiteral("rhon"), QStringLiteral("0.72"));
  net.element(QStringLiteral("In"))->set(QStringLiteral("hs"), QStringLiteral("36"));
  element &first = *net.element(QStringLiteral("Out1")); // 70,000 m3/h of 0.72 kg/m3 are 14 kg/s
  first.erase(QStringLiteral("qset"));
  first.set(QStringLiteral("mset"), QStringLiteral("14"));
  element &second = *net.element(QStringLiteral("Out2")); // 30,000 m3/h of 36 MJ/m3 are 300 MW
  second.erase(QStringLiteral("qset"));
  second.set(QStringLiteral("powset"), QStringLiteral("300"));
  QCOMPARE(said(check(net)), QString());
}

void TestNetworkRules::reversedResultsAreOneFault() {
  NetData net = soundNetwork();
  for (const char *edge : {"P1", "R", "P2", "P3", "P4"}) {
    element &changed = *net.element(QString::fromLatin1(edge));
    changed.set(QStringLiteral("q"), QLatin1Char('-') + changed.value(QStringLiteral("q")));
  }
  const std::vector<NetworkRules::Told> told = check(net);
  QCOMPARE(said(told).count(QLatin1Char('\n')), 0);
  QCOMPARE(told.at(0).elements.at(0), (QStringList{QStringLiteral("Out1"), QStringLiteral("Out2")}));
}

/// A drive burns 2 at the node A: beside the nominations, or as one of them.
void TestNetworkRules::fuelIsCountedOnce() {
  NetData net = soundNetwork();
  net.addElement(makeElement({{"name", "D"}, {"type", "d"}, {"gasnode", "A"}, {"fuel", "2"}, {"x", "0"}, {"y", "0"}}));
  const auto set = [&net](const char *name, const char *property, const char *value) {
    net.element(QString::fromLatin1(name))->set(QString::fromLatin1(property), QString::fromLatin1(value));
  };
  QVERIFY2(said(check(net)).contains(QLatin1String("node-balance: A")), qPrintable(said(check(net))));
  set("P1", "q", "102");
  set("In", "qset", "-102");
  QCOMPARE(said(check(net)), QString());
  set("A", "qset", "2"); // says the same
  QCOMPARE(said(check(net)), QString());
}

void TestNetworkRules::switchedOffIsSilent() {
  NetData net = soundNetwork();
  net.element(QStringLiteral("P1"))->set(QStringLiteral("length"), QStringLiteral("0"));
  RuleSettings by = strict();
  const auto index = static_cast<std::size_t>(NetworkRules::names().indexOf(QStringLiteral("zero-length")));
  by.severities[index] = Finding::Severity::Information;
  QCOMPARE(check(net, by).at(0).findings.at(0).severity, Finding::Severity::Information);
  by.severities[index] = std::nullopt;
  QCOMPARE(said(check(net, by)), QString());
  const RuleSettings usual = NetworkRules::settings(); // every rule has its settings
  QCOMPARE(usual.severities.size(), RuleTable::all().size());
  QVERIFY(usual.steepestPipe > 0.0 && usual.highestStep > 0.0 && usual.crowd > 1 && usual.balanceTolerance > 0.0);
}

void TestNetworkRules::withoutScenarioNothingIsMissed() {
  NetData net = soundNetwork();
  for (const char *node : {"In", "Out1", "Out2"}) {
    net.element(QString::fromLatin1(node))->erase(QStringLiteral("qset"));
    net.element(QString::fromLatin1(node))->erase(QStringLiteral("pset"));
  }
  QCOMPARE(said(check(net)), QString());
}

/// All faults at once, at every node and edge: a thousand times as many must not take a million times as long.
void TestNetworkRules::millionElementsTakeSeconds() {
  NetData net;
  constexpr int Nodes = 500000;
  net.nodes().reserve(Nodes);
  net.edges().reserve(Nodes);
  for (int i = 0; i < Nodes; ++i) {
    const QByteArray name = "N" + QByteArray::number(i);
    net.addElement(makeNode(name.constData(), "0", "0"));
    if (i > 0)
      net.addElement(makeEdge(("P" + QByteArray::number(i)).constData(), name.constData(),
                              ("N" + QByteArray::number(i / 2)).constData()));
  }
  QElapsedTimer clock;
  clock.start();
  const std::vector<NetworkRules::Told> told = check(net);
  const qint64 taken = clock.elapsed();
  qInfo("a million elements: %lld ms", taken);
  QVERIFY(taken < 60000);
  const auto lengths =
      std::find_if(told.begin(), told.end(), [](const auto &one) { return one.rule == QLatin1String("zero-length"); });
  QVERIFY(lengths != told.end());
  QCOMPARE(lengths->findings.size(), RuleHits::MostHits + 1);
  QVERIFY(lengths->findings.back().text.contains(QString::number(Nodes - 1 - int(RuleHits::MostHits))));
  int asked = 0;
  const NetworkFacts facts(net);
  NetworkRules rules(net, facts, strict());
  QVERIFY(!rules.find([&asked](double) { return ++asked < 3; }));
  QCOMPARE(asked, 3);
}

NIVRA_TEST(TestNetworkRules);
#include "tst_networkrules.moc"
