#include "cloudmodel.h"
#include "mapplot.h"
#include "parabolicmachine.h"
#include "scenariocloud.h"

#include <characteristics/characteristicsstack.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTabBar>
#include <QTableView>

/// All scenarios of a case on one map.
class TestScenarioCloud : public QObject {
  Q_OBJECT

private slots:
  void init();
  void pointsOfAllScenarios();
  void onTheMapAndInTheTable();

private:
  static MachineData data() {
    MachineData d;
    d.turbos.push_back(ParabolicMachine::machine());
    d.turbos.front().drive.clear();
    return d;
  }
  /// "S1" to "S5" with another flow each; "broken" cannot be read, and "empty" says nothing of the machine.
  ScenarioMachines source() {
    ScenarioMachines all;
    all.names = [] {
      return QStringList{QStringLiteral("S1"), QStringLiteral("S2"),     QStringLiteral("S3"),   QStringLiteral("S4"),
                         QStringLiteral("S5"), QStringLiteral("broken"), QStringLiteral("empty")};
    };
    all.geometry = [this](const QStringList &elements, NetData &net, const Progress &, QString *) {
      m_asked = elements;
      net.addElement(makeNode("A")); // the others are those of a subnet
      return true;
    };
    all.read = [](const QString &name, NetData &net, MachineData &machines, const Progress &, QString *reason) {
      *reason = QStringLiteral("it is broken");
      machines = data();
      if (name.startsWith(QLatin1Char('S'))) {
        net.element(QStringLiteral("A"))->set(QStringLiteral("p"), QStringLiteral("50"));
        net.element(QStringLiteral("A"))->set(QStringLiteral("rho"), QStringLiteral("42"));
        net.element(QStringLiteral("B"))->set(QStringLiteral("p"), QStringLiteral("70"));
        net.element(QStringLiteral("M"))->set(QStringLiteral("m"), name.mid(1) + QStringLiteral("0"));
      }
      return name != QLatin1String("broken");
    };
    return all;
  }

  std::unique_ptr<NetData> m_net;
  QStringList m_asked;
};

/// The open scenario, of which nothing may be left in others.
void TestScenarioCloud::init() {
  m_net = std::make_unique<NetData>();
  m_net->addElement(makeElement({{"name", "A"}, {"type", "n"}, {"p", "50"}, {"t", "288.15"}, {"rho", "42"}}));
  m_net->addElement(makeElement({{"name", "B"}, {"type", "n"}, {"p", "70"}}));
  m_net->addElement(makeElement({{"name", "M"}, {"type", "c"}, {"node1", "A"}, {"node2", "B"}, {"m", "100"}}));
}

void TestScenarioCloud::pointsOfAllScenarios() {
  const auto cloud =
      std::make_shared<ScenarioCloud>(source(), *m_net, *m_net->element(QStringLiteral("M")), FunctionSource::Fitted);
  cloud->start();
  QTRY_VERIFY(!cloud->isRunning());
  QCOMPARE(m_asked, (QStringList{QStringLiteral("M"), QStringLiteral("A"), QStringLiteral("B")}));
  const auto &read = cloud->scenarios();
  QCOMPARE(read.size(), std::size_t(7));
  for (std::size_t i = 0; i < 5; ++i)
    QCOMPARE(read[i].station.pointOf(QStringLiteral("M"))->flow, 10.0 * static_cast<double>(i + 1) / 42.0);
  QCOMPARE(read[5].fault, QStringLiteral("it is broken"));
  QVERIFY(!read[6].whole); // the flow of the open scenario did not stay
  // Cancelled between two scenarios: what was read stays.
  int turns = 0;
  connect(cloud.get(), &ScenarioCloud::changed, this, [&] {
    if (++turns == 3)
      cloud->cancel();
  });
  cloud->start();
  QTRY_VERIFY(!cloud->isRunning());
  QCOMPARE(cloud->scenarios().size(), std::size_t(2));
}

void TestScenarioCloud::onTheMapAndInTheTable() {
  CharacteristicsStack stack(*m_net);
  stack.setScenarios(source(), QStringLiteral("/case"));
  stack.setMachines(data());
  stack.resize(600, 800);
  QVERIFY(stack.open(QStringLiteral("M")));
  const QSignalSpy wanted(&stack, &CharacteristicsStack::scenarioWanted);
  auto *views = stack.findChild<QTabBar *>(QStringLiteral("views"));
  views->setCurrentIndex(views->count() - 1);
  auto *table = stack.findChild<QTableView *>();
  QVERIFY(table != nullptr);
  const QAbstractItemModelTester tester(table->model());
  QTRY_COMPARE(table->model()->rowCount(), 7);
  QVERIFY(QTest::qWaitForWindowExposed(&stack));
  auto *plot = stack.findChild<MapPlot *>();
  QTRY_VERIFY(plot->readout({100.0 / 42.0, 0.0}).startsWith(QStringLiteral("Q")));
  const auto model = qobject_cast<CloudModel *>(table->model());
  const WorkingPoint point = *model->rows()[3].point; // S4
  QVERIFY2(plot->readout({point.flow, point.head}).startsWith(QStringLiteral("S4\n")),
           qPrintable(plot->readout({point.flow, point.head})));
  const QPoint dot(static_cast<int>(plot->transform(QwtPlot::xBottom, point.flow)),
                   static_cast<int>(plot->transform(QwtPlot::yLeft, point.head)));
  QTest::mouseClick(plot->canvas(), Qt::LeftButton, Qt::NoModifier, dot);
  QTRY_COMPARE(wanted.size(), 1);
  QCOMPARE(wanted[0][0].toString(), QStringLiteral("S4"));
  emit table->activated(table->model()->index(1, 2));
  QCOMPARE(wanted[1][0].toString(), QStringLiteral("S2"));
}

NIVRA_TEST(TestScenarioCloud);
#include "tst_scenariocloud.moc"
