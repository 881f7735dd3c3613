#include "elementexceptions.h"

#include <support/modelfixture.h>
#include <support/nivratest.h>

class TestNetData : public QObject {
  Q_OBJECT

private slots:
  void elementsFindTheirKind();
  void lastOfANameWins();
  void namesOfAnyScriptFoldAsTextsCompare();
  void masksSelectKinds();
  void everyPropertyIsListedOnce();
  void numericAccess_data();
  void numericAccess();
  void edgeTakesTheMeanOfItsEnds();
  void ranges();
  void nodeCategories_data();
  void nodeCategories();
  void copiesAreDeep();
};

void TestNetData::elementsFindTheirKind() {
  NetData net;
  QCOMPARE(net.addElement(makeNode("N1")), NetData::Node);
  QCOMPARE(net.addElement(makeElement({{"name", "D1"}, {"type", "d"}})), NetData::Node);
  QCOMPARE(net.addElement(makeEdge("P1", "N1", "N1")), NetData::Edge);
  QCOMPARE(net.addElement(makeElement({{"name", "S1"}, {"type", "sub"}})), NetData::AssembledSubnet);
  QCOMPARE(net.addElement(makeElement({{"name", "S2"}, {"type", "SUB"}})), NetData::AssembledSubnet);
  QCOMPARE(net.addElement(makeElement({{"name", "T1"}, {"type", "t"}})), NetData::TextBox);
  QCOMPARE(net.addElement(makeElement({{"type", "n"}})), NetData::Unknown);
  QStringList log;
  const auto told = [&log](const Finding &finding) {
    log.append(finding.text);
  };
  QCOMPARE(net.addElement(makeElement({{"name", "U1"}, {"type", "P"}}), told), NetData::Unknown); // type codes are exact
  QCOMPARE(log, QStringList{QStringLiteral("NetData::addElement failed for U1 with unknown type P!")});
  QCOMPARE(net.nodes().size() + net.edges().size() + net.assembledSubnets().size() + net.textBoxes().size(), std::size_t(6));
}

void TestNetData::lastOfANameWins() {
  NetData net;
  net.addElement(makeEdge("Pipe1", "A", "B"));
  QStringList log;
  net.addElement(makeEdge("PIPE1", "C", "D"), [&log](const Finding &told) { log.append(told.text); });
  QCOMPARE(log, QStringList{QStringLiteral("Overwriting existing element PIPE1")});
  QCOMPARE(net.edges().size(), std::size_t(1));
  QCOMPARE(net.element(QStringLiteral("pipe1"))->value(QStringLiteral("node1")), QStringLiteral("C"));
  QCOMPARE(net.edges().begin()->name(), QStringLiteral("PIPE1"));
}

void TestNetData::everyPropertyIsListedOnce() {
  NetData net;
  net.addElement(makeElement({{"name", "A"}, {"type", "n"}, {"zeta", "1"}, {"Alpha", ""}}));
  net.addElement(makeElement({{"name", "B"}, {"type", "n"}, {"zeta", "1"}, {"ALPHA", "2"}}));
  net.addElement(makeElement({{"name", "P"}, {"type", "p"}, {"node1", "A"}, {"node2", "B"}, {"mid", "3"}}));
  QStringList names;
  for (const PropertyKey key : net.propertyKeys())
    names.append(key.name());
  QCOMPARE(names.size(), 8);
  QCOMPARE(names.removeDuplicates(), 0); // spellings are told apart
  QVERIFY(names.mid(0, 2).contains(QStringLiteral("Alpha")) && names.mid(0, 2).contains(QStringLiteral("ALPHA")));
  QCOMPARE(names.mid(2), (QStringList{QStringLiteral("mid"), QStringLiteral("name"), QStringLiteral("node1"),
                                      QStringLiteral("node2"), QStringLiteral("type"), QStringLiteral("zeta")}));
}

void TestNetData::masksSelectKinds() {
  NetData net;
  net.addElement(makeNode("same"));
  net.addElement(makeEdge("same", "same", "same"));
  QCOMPARE(net.findElement(QStringLiteral("SAME"), 2).first, NetData::Edge);
  QCOMPARE(net.findElement(QStringLiteral("same"), 3).first, NetData::Node);
  QCOMPARE(net.findElement(QStringLiteral("same"), NetData::AllTypes).first, NetData::Node);
  QVERIFY(net.findElement(QStringLiteral("same"), 4 | 8).second == nullptr);
  QVERIFY(net.findElement(QStringLiteral("same"), 0).second == nullptr);
  QCOMPARE(net.collections(NetData::Edge | NetData::TextBox), (QList<elements *>{&net.edges(), &net.textBoxes()}));
  int visited = 0;
  net.forEach(NetData::AllTypes, [&](element &) { ++visited; });
  QCOMPARE(visited, 2);
}

void TestNetData::numericAccess_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<bool>("absolute");
  QTest::addColumn<double>("expected");
  QTest::newRow("beyond the range") << QStringLiteral("1e25") << false << -1e30;
  QTest::newRow("the bound itself") << QStringLiteral("1e20") << false << -1e30;
  QTest::newRow("not a number") << QStringLiteral("nan") << false << -1e30;
  QTest::newRow("endless") << QStringLiteral("inf") << true << -1e30;
  QTest::newRow("text") << QStringLiteral("abc") << false << -1e30;
  QTest::newRow("absolute") << QStringLiteral("-3") << true << 3.0;
  QTest::newRow("signed") << QStringLiteral("-3") << false << -3.0;
}

void TestNetData::numericAccess() {
  QFETCH(QString, text);
  QFETCH(bool, absolute);
  QFETCH(double, expected);
  element e;
  e.set(QStringLiteral("p"), text);
  QCOMPARE(NetData().value(e, PropertyKey::intern("P"), absolute), expected);
  QCOMPARE(NetData().value(e, PropertyKey::find("absent"), absolute), -1e30);
}

void TestNetData::edgeTakesTheMeanOfItsEnds() {
  NetData net;
  net.addElement(makeNode("A"));
  net.addElement(makeNode("B"));
  net.addElement(makeEdge("P1", "a", "B"));
  element &edge = *net.element(QStringLiteral("P1"));
  net.element(QStringLiteral("A"))->set(QStringLiteral("p"), QStringLiteral("10"));
  net.element(QStringLiteral("B"))->set(QStringLiteral("p"), QStringLiteral("20"));
  QCOMPARE(net.edgeValue(edge, PropertyKey::intern("p")), 15.0);
  net.element(QStringLiteral("B"))->set(QStringLiteral("p"), QStringLiteral("abc"));
  QCOMPARE(net.edgeValue(edge, PropertyKey::intern("p")), -1e30);
  edge.set(QStringLiteral("node2"), QStringLiteral("gone"));
  QVERIFY_EXCEPTION_THROWN(net.edgeValue(edge, PropertyKey::intern("p")), elements_out_of_range);
  edge.erase(QStringLiteral("node2"));
  QVERIFY_EXCEPTION_THROWN(net.edgeValue(edge, PropertyKey::intern("p")), element_out_of_range);
}

void TestNetData::ranges() {
  NetData net;
  QCOMPARE(net.range(QStringLiteral("p")), std::make_pair(1e30, -1e30));
  for (const auto &[name, pressure] :
       {std::pair("A", "-10"), std::pair("B", "20"), std::pair("C", "1e25"), std::pair("D", "")}) {
    element node = makeNode(name);
    node.set(QStringLiteral("p"), QLatin1String(pressure));
    net.addElement(node);
  }
  element edge = makeEdge("P1", "A", "B");
  edge.set(QStringLiteral("length"), QStringLiteral("7"));
  net.addElement(edge);
  QCOMPARE(net.range(QStringLiteral("p")), std::make_pair(-10.0, 20.0));
  QCOMPARE(net.range(QStringLiteral("p"), true), std::make_pair(10.0, 20.0));
  QCOMPARE(net.range(QStringLiteral("length")), std::make_pair(7.0, 7.0));
}

void TestNetData::nodeCategories_data() {
  QTest::addColumn<QString>("pset");
  QTest::addColumn<QString>("powset");
  QTest::addColumn<QString>("qset");
  QTest::addColumn<QString>("expected");
  const QString none;
  QTest::newRow("plain") << none << none << none << QStringLiteral("n");
  QTest::newRow("pressure") << QStringLiteral("50") << none << QStringLiteral("-5") << QStringLiteral("pset");
  QTest::newRow("no pressure") << QStringLiteral("0") << none << QStringLiteral("-5") << QStringLiteral("negqset");
  QTest::newRow("pressure over time") << QStringLiteral("(t;0)") << none << none << QStringLiteral("pset");
  QTest::newRow("demand") << none << none << QStringLiteral("5") << QStringLiteral("demand");
  QTest::newRow("demand over time") << none << none << QStringLiteral("f(t)") << QStringLiteral("demand");
  QTest::newRow("power before flow") << none << QStringLiteral("0") << QStringLiteral("5") << QStringLiteral("n");
}

void TestNetData::nodeCategories() {
  QFETCH(QString, expected);
  element node = makeNode("N");
  for (const char *name : {"pset", "powset", "qset"}) {
    const QString text = *static_cast<QString *>(QTest::qData(name, QMetaType::QString));
    if (!text.isNull())
      node.set(QLatin1String(name), text);
  }
  QCOMPARE(NetData().nodeCategory(node), expected);
}

void TestNetData::copiesAreDeep() {
  NetData net;
  net.addElement(makeNode("A"));
  NetData copy = net;
  copy.element(QStringLiteral("A"))->set(QStringLiteral("p"), QStringLiteral("1"));
  QVERIFY(!net.element(QStringLiteral("A"))->contains(QStringLiteral("p")));
  QCOMPARE(copy.collections(NetData::Node).first(), &copy.nodes());
  net = copy;
  copy.clear();
  QVERIFY(copy.isEmpty());
  QVERIFY(net.findElement(QStringLiteral("a"), 1).second->contains(QStringLiteral("p")));
}

void TestNetData::namesOfAnyScriptFoldAsTextsCompare() {
  const QStringList names{QStringLiteral("K\u00f6ln"),
                          QStringLiteral("Kelvin"),
                          QStringLiteral("stra\u00dfe"),
                          QStringLiteral("STRASSE"),
                          QStringLiteral("\u0421\u0435\u0432\u0435\u0440"),
                          QStringLiteral("\u03a3\u03af\u03b3\u03bc\u03b1"),
                          QStringLiteral("\u79fb\u9001"),
                          QString::fromUtf8("\xf0\x90\x90\x80x"),
                          QString::fromUtf8("\xef\xbf\xbdz"),
                          QStringLiteral("k\u00f6lm"),
                          QStringLiteral("Z"),
                          QStringLiteral("\u0130stanbul")};
  NetData net;
  for (const QString &name : names) {
    element node;
    node.set(QStringLiteral("name"), name);
    node.set(QStringLiteral("type"), QStringLiteral("n"));
    net.addElement(node);
  }
  QCOMPARE(int(net.nodes().size()), names.size());
  QStringList others = names;
  others << QStringLiteral("\u212aELVIN") << QStringLiteral("\u1e9e") << QStringLiteral("K\u00d6LN")
         << QString::fromUtf8("\xf0\x90\x90\xa8X") << QStringLiteral("\u03c3\u03af\u03b3\u03bc\u03b1");
  for (const QString &name : qAsConst(others)) {
    for (const QString &spelling : {name, name.toUpper(), name.toLower()}) {
      const bool isThere = std::any_of(names.begin(), names.end(), [&](const QString &known) {
        return QString::compare(known, spelling, Qt::CaseInsensitive) == 0;
      });
      QVERIFY2((net.nodes().find(spelling) != nullptr) == isThere, qPrintable(spelling));
    }
  }
  QStringList walked;
  for (const elements::Entry &entry : net.nodes())
    walked.append(entry.name());
  QStringList sorted = names;
  std::sort(sorted.begin(), sorted.end(),
            [](const QString &a, const QString &b) { return QString::compare(a, b, Qt::CaseInsensitive) < 0; });
  QCOMPARE(walked, sorted);
}

NIVRA_TEST(TestNetData);
#include "tst_netdata.moc"
