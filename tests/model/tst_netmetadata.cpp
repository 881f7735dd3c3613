#include <model/elementtypes.h>
#include <model/netdata.h>
#include <model/netmetadata.h>
#include <model/units.h>
#include <support/nivratest.h>

#include <QBuffer>

class TestNetMetaData : public QObject {
  Q_OBJECT

private slots:
  void typeTable();
  void shippedFileIsSound();
  void lookUps();
  void faultyLinesAreLeftOut_data();
  void faultyLinesAreLeftOut();
};

void TestNetMetaData::typeTable() {
  QString codes;
  for (const char *word : {"compressor", "drive", "flaptrap", "resistor", "cooler", "node", "pipe", "regulator", "shortcut",
                           "valve", "heater"}) {
    const ElementType *type = ElementTypes::byWord(QLatin1String(word));
    QVERIFY2(type != nullptr, word);
    codes += type->code;
  }
  QCOMPARE(codes, QStringLiteral("cdfgknprsvw"));
  QVERIFY(ElementTypes::byWord(QStringLiteral("Pipe")) == nullptr);
  QVERIFY(ElementTypes::byWord(QString()) == nullptr);
  QCOMPARE(ElementTypes::pluralised(QStringLiteral("supply")), QStringLiteral("supplies"));
  QCOMPARE(ElementTypes::byCode(QStringLiteral("t"))->plural, QStringLiteral("tBoxes"));
  QCOMPARE(NetMetaData::instance().kindOf(QStringLiteral("d")), NetData::Node);
}

void TestNetMetaData::shippedFileIsSound() {
  const NetMetaData &shipped = NetMetaData::instance(); // registers the resource
  QFile file(QStringLiteral(":/model/Attribute.csv"));
  QVERIFY(file.open(QIODevice::ReadOnly));
  NetMetaData metaData;
  const Findings findings = metaData.read(file, file.fileName());
  QVERIFY2(findings.empty(), findings.empty() ? "" : qPrintable(findings.front().logText()));
  QVERIFY(metaData.attributes().size() > 100);
  QCOMPARE(metaData.attributes().size(), shipped.attributes().size());
  for (const NetMetaData::Attribute &row : metaData.attributes()) {
    if (!row.storedUnit.isEmpty() && !row.displayUnit.isEmpty())
      QVERIFY2(Units::conversion(row.storedUnit, row.displayUnit), qPrintable(row.property));
  }
  for (const QString &function : metaData.nodeFunctions())
    QVERIFY2(!metaData.edgeFunctions().contains(function), qPrintable(function));
  QVERIFY(metaData.nodeFunctions().contains(QStringLiteral("p")));
  QVERIFY(metaData.edgeFunctions().contains(QStringLiteral("diameter")));
}

void TestNetMetaData::lookUps() {
  const NetMetaData &metaData = NetMetaData::instance();
  QCOMPARE(metaData.attribute(QStringLiteral("p"), QStringLiteral("LENGTH"))->displayUnit, QStringLiteral("km"));
  QCOMPARE(metaData.attribute(QStringLiteral("n"), QStringLiteral("vis.layer"))->type, QStringLiteral("*"));
  QVERIFY(metaData.attribute(QStringLiteral("n"), QStringLiteral("length")) == nullptr);
  QCOMPARE(metaData.anyAttribute(QStringLiteral("length"))->longName, QStringLiteral("length"));
  QVERIFY(metaData.anyAttribute(QStringLiteral("no such")) == nullptr);
}

void TestNetMetaData::faultyLinesAreLeftOut_data() {
  QTest::addColumn<QByteArray>("line");
  QTest::addColumn<QString>("reason");
  QTest::newRow("few fields") << QByteArray("p;length;length") << QStringLiteral("3 fields");
  QTest::newRow("type") << QByteArray("q;length;length;geometry;m;km;function;1;x")
                        << QStringLiteral("unknown element type");
  QTest::newRow("group") << QByteArray("p;length;length;garden;m;km;function;1;x") << QStringLiteral("unknown group");
  QTest::newRow("unit") << QByteArray("p;length;length;geometry;furlongz;km;function;1;x") << QStringLiteral("unknown unit");
  QTest::newRow("no name") << QByteArray("p;;length;geometry;m;km;function;1;x") << QStringLiteral("no property name");
  QTest::newRow("twice") << QByteArray("p;V;velocity;results;m/s;m/s;function;1;x") << QStringLiteral("given twice");
}

void TestNetMetaData::faultyLinesAreLeftOut() {
  QFETCH(QByteArray, line);
  QFETCH(QString, reason);
  QByteArray text = "# comment\n\np;v;velocity;results;m/s;m/s;function;1;x\n" + line + "\nv;x1;x1;extra;;;;0;\n";
  QBuffer buffer(&text);
  QVERIFY(buffer.open(QIODevice::ReadOnly));
  NetMetaData metaData;
  const Findings findings = metaData.read(buffer, QStringLiteral("A.csv"));
  QCOMPARE(findings.size(), std::size_t(1));
  QVERIFY2(findings.front().text.contains(reason), qPrintable(findings.front().text));
  QCOMPARE(findings.front().line, 4);
  QCOMPARE(metaData.attributes().size(), std::size_t(2));
}

NIVRA_TEST(TestNetMetaData);
#include "tst_netmetadata.moc"
