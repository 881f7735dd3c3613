#include "casemachines.h"
#include "networkloader.h"

#include <model/netmetadata.h>
#include <support/nivratest.h>

#include <machines/networkmachines.h>

/// Machines of the example: what the files of a scenario say of one of them is what opening the scenario says.
class TestCaseMachines : public QObject {
  Q_OBJECT

private slots:
  void scenariosReadForOneMachine();
  void limitsAreProperties();

private:
  static QString file(const QString &scenario) {
    return QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/%1/%1.scen.jsn").arg(scenario);
  }
  static bool read(NetworkLoader &loader, const QString &scenario) {
    if (!loader.resolve(file(scenario)))
      return false;
    loader.readConfiguration();
    return loader.readNetwork({});
  }
};

void TestCaseMachines::scenariosReadForOneMachine() {
  NetData open;
  NetworkLoader loader(open);
  QVERIFY(read(loader, QStringLiteral("S5")));
  const ScenarioMachines source = CaseMachines::of(loader.workspace());
  QCOMPARE(source.names().size(), 3);
  const QString name = QStringLiteral("CS_Rehden_C1");
  const element *compressor = open.element(name);
  const QStringList elements{name, compressor->value(QStringLiteral("node1")), compressor->value(QStringLiteral("node2")),
                             compressor->value(QStringLiteral("drive"))};
  for (const char *scenario : {"S1", "S3", "S5"}) {
    NetData part;
    QString reason;
    QVERIFY2(source.geometry(elements, part, {}, &reason), qPrintable(reason));
    QCOMPARE(part.nodes().size() + part.edges().size(), std::size_t(4));
    MachineData machines;
    QVERIFY2(source.read(QString::fromLatin1(scenario), part, machines, {}, &reason), qPrintable(reason));
    NetData whole;
    NetworkLoader other(whole);
    QVERIFY(read(other, QString::fromLatin1(scenario)));
    const auto expected = NetworkMachines(whole, other.machines()).machine(*whole.element(name), name).point;
    const auto found = NetworkMachines(part, machines).machine(*part.element(name), name).point;
    QCOMPARE(found.has_value(), expected.has_value());
    if (!found)
      continue;
    QCOMPARE(found->flow, expected->flow);
    QCOMPARE(found->head, expected->head);
    QCOMPARE(found->speed, expected->speed);
    QCOMPARE(found->powerLimit, expected->powerLimit);
  }
  QString reason;
  NetData none;
  MachineData machines;
  QVERIFY(!source.read(QStringLiteral("no such scenario"), none, machines, {}, &reason) && !reason.isEmpty());
}

void TestCaseMachines::limitsAreProperties() {
  NetData net;
  NetworkLoader loader(net);
  QVERIFY(read(loader, QStringLiteral("S5")));
  const QString name = QStringLiteral("CS_Rehden_C1");
  const PropertyKey property = PropertyKey::find("surgemargin");
  const auto point = NetworkMachines(net, loader.machines()).machine(*net.element(name), name).point;
  QVERIFY(std::abs(net.value(*net.element(name), property) - 100.0 * *point->margins.surge) < 1e-6);
  QVERIFY(net.metaData()->edgeFunctions().contains(QStringLiteral("surgemargin")));
  // Another scenario forgets them; another choice writes what changed by it, here nothing.
  for (const ElementChange &change : loader.useFunctions(FunctionSource::Published))
    QVERIFY(change.elements.isEmpty());
  net.element(name)->set(QStringLiteral("m"), QStringLiteral("0"));
  net.element(name)->set(QStringLiteral("q"), QStringLiteral("0"));
  QStringList changed;
  for (const ElementChange &change : loader.useFunctions(FunctionSource::Fitted))
    changed += change.elements;
  QVERIFY(changed.contains(name) && net.element(name)->find(property) == nullptr);
}

NIVRA_TEST(TestCaseMachines);
#include "tst_casemachines.moc"
