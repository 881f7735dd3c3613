#include <model/elementstate.h>
#include <model/topology.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>

class TestElementState : public QObject {
  Q_OBJECT

private slots:
  void outOfUse_data();
  void outOfUse();
  void tracesEndAtWhatIsOutOfUse_data();
  void tracesEndAtWhatIsOutOfUse();
};

void TestElementState::outOfUse_data() {
  QTest::addColumn<QString>("property");
  QTest::addColumn<QString>("value");
  QTest::addColumn<bool>("isOut");
  const auto add = [](const char *property, const char *value, bool isOut) {
    QTest::addRow("%s=\"%s\"", property, value) << QString::fromLatin1(property) << QString::fromLatin1(value) << isOut;
  };
  for (const char *off : {"off", "Closed", "INACTIVE", "false", "no", "0", "0.0", " off "}) {
    add("state", off, true);
    add("active", off, true);
  }
  for (const char *on : {"", "on", "open", "active", "bypass", "1", "true", "offen"}) {
    add("state", on, false);
    add("active", on, false);
  }
  add("substate", "off", false);
}

void TestElementState::outOfUse() {
  QFETCH(QString, property);
  QFETCH(QString, value);
  element valve = makeEdge("V1", "A", "B", "v");
  QVERIFY(!ElementState::isOutOfUse(valve));
  valve.set(property, value);
  QTEST(ElementState::isOutOfUse(valve), "isOut");
  QCOMPARE(ElementState::saysBypass(valve.find(property)), value == QLatin1String("bypass"));
}

void TestElementState::tracesEndAtWhatIsOutOfUse_data() {
  QTest::addColumn<QString>("property");
  QTest::addColumn<QString>("value");
  QTest::addColumn<bool>("goesOn");
  QTest::newRow("open") << "state"
                        << "open" << true;
  QTest::newRow("closed") << "state"
                          << "closed" << false;
  QTest::newRow("inactive") << "state"
                            << "inactive" << false;
  QTest::newRow("not active") << "active"
                              << "0" << false;
}

void TestElementState::tracesEndAtWhatIsOutOfUse() {
  QFETCH(QString, property);
  QFETCH(QString, value);
  NetData net;
  for (const char *node : {"A", "B", "C"})
    net.addElement(makeNode(node));
  element valve = makeEdge("V", "A", "B", "v");
  valve.set(property, value);
  valve.set(QStringLiteral("q"), QStringLiteral("1"));
  element pipe = makeEdge("P", "B", "C");
  pipe.set(QStringLiteral("q"), QStringLiteral("1"));
  net.addElement(valve);
  net.addElement(pipe);
  const Selection found = Topology::trace(net, QStringLiteral("A"), Topology::Direction::Downstream);
  QVERIFY(found.edges.contains(QStringLiteral("V")));
  QTEST(found.edges.contains(QStringLiteral("P")), "goesOn");
}

NIVRA_TEST(TestElementState);
#include "tst_elementstate.moc"
