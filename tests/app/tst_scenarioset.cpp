#include "layerkeeper.h"
#include "nivraviewer.h"
#include "programrun.h"
#include "workspacefixture.h"

#include <support/nivratest.h>
#include <view/netviscontrol.h>

#include <QDate>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <qwt_plot.h>

using ProgramRun::Outcome;
using ProgramRun::run;

/// Figures over many scenarios, on the command line and in the window.
class TestScenarioSet : public QObject {
  Q_OBJECT

private slots:
  void tableAndPictures();
  void takesNoMoreMemoryThanOne();
  void inTheWindow();

private:
  /// Beside S1: days on which the pressure of A is 10, 11, ...
  static void addDays(const WorkspaceFixture &workspace, int days) {
    for (int i = 0; i < days; ++i) {
      const QString name = QDate(2015, 1, 1).addDays(i).toString(Qt::ISODate);
      QDir(workspace.root()).mkpath(QStringLiteral("CASE/") + name);
      workspace.write(QStringLiteral("CASE/%1/%1.scen.jsn").arg(name),
                      "{\n\"A\":[{\"property\":\"qset\",\"value\":-5}]\n}\n");
      workspace.write(QStringLiteral("CASE/%1/%1.res.jsn").arg(name),
                      "{\n\"A\":{\"p\":" + QByteArray::number(10 + i) + "}\n}\n");
    }
  }

  QTemporaryDir m_data;
};

void TestScenarioSet::tableAndPictures() {
  const WorkspaceFixture workspace;
  addDays(workspace, 9);
  const auto answer = [&](const QStringList &arguments) {
    return run(arguments + QStringList{workspace.scenario()}, m_data.path());
  };
  const Outcome table = answer({QStringLiteral("--set"), QStringLiteral("p,qset"), QStringLiteral("--scenarios"),
                                QStringLiteral("2015-01-02..2015-01-06")});
  QCOMPARE(table.status, 0);
  QCOMPARE(table.lines().size(), 3);
  QVERIFY2(table.output.contains("\"A\";\"n\";\"p\";\"bar\";\"5\";\"11\";\"2015-01-02\";\"15\";\"2015-01-06\";\"13\";"),
           table.output.constData());
  const Outcome known =
      answer({QStringLiteral("--set"), QStringLiteral("p"), QStringLiteral("--table"),
              QStringLiteral("p.max,p.maxAt,p.count"), QStringLiteral("--search"), QStringLiteral("value=p.max@ELE>17")});
  QCOMPARE(known.status, 0);
  QVERIFY2(known.output.contains("\"A\";\"n\";\"50\";\"S1\";\"10\""), known.output.constData()); // that of the geometry
  const QString picture = m_data.filePath(QStringLiteral("set.png"));
  QCOMPARE(answer({QStringLiteral("--set"), QStringLiteral("all"), QStringLiteral("--node-color-by"), QStringLiteral("p.sd"),
                   QStringLiteral("--export"), picture})
               .status,
           0);
  QVERIFY(QFile::exists(picture));
  QCOMPARE(
      answer({QStringLiteral("--set"), QStringLiteral("p"), QStringLiteral("--scenarios"), QStringLiteral("none*")}).status,
      1);
  QCOMPARE(answer({QStringLiteral("--set"), QStringLiteral("nothing")}).status, 1);
  QCOMPARE(answer({QStringLiteral("--scenarios"), QStringLiteral("S*"), QStringLiteral("--info")}).status, 2);
}

/// 400 scenarios of 500 elements take a tenth of the time of opening each, and about the memory of opening one.
void TestScenarioSet::takesNoMoreMemoryThanOne() {
  constexpr int Scenarios = 400;
  constexpr int Elements = 500;
  constexpr int Opened = 8; // of which the rest is reckoned
  const WorkspaceFixture workspace;
  QByteArray geometry = "{\n\"N0\":{\"obj_type\":\"node\",\"x\":0,\"y\":0}\n";
  for (int i = 1; i < Elements / 2; ++i) {
    const QByteArray n = QByteArray::number(i);
    geometry += ",\"N" + n + "\":{\"obj_type\":\"node\",\"x\":" + n + ",\"y\":" + QByteArray::number(i % 17) + "}\n,\"P" +
                n + "\":{\"obj_type\":\"pipe\",\"node1\":\"N" + QByteArray::number(i - 1) + "\",\"node2\":\"N" + n +
                "\",\"length\":100,\"diameter\":500}\n";
  }
  workspace.writeGeometry(geometry + "}\n");
  const auto fileOf = [](int scenario, const char *suffix) {
    return QStringLiteral("CASE/D%1/D%1%2").arg(scenario).arg(QLatin1String(suffix));
  };
  for (int scenario = 0; scenario < Scenarios; ++scenario) {
    QDir(workspace.root()).mkpath(QStringLiteral("CASE/D%1").arg(scenario));
    workspace.write(fileOf(scenario, ".scen.jsn"), "{\n\"N0\":[{\"property\":\"qset\",\"value\":-5}]\n}\n");
    QByteArray results = "{\n\"N0\":{\"p\":50}\n";
    for (int i = 1; i < Elements / 2; ++i) {
      const QByteArray n = QByteArray::number(i);
      results += ",\"N" + n + "\":{\"p\":" + QByteArray::number(40.0 + (i * 7 + scenario * 13) % 300 / 10.0) +
                 ",\"t\":283.15}\n,\"P" + n + "\":{\"q\":" + QByteArray::number((i * scenario) % 991) + "}\n";
    }
    workspace.write(fileOf(scenario, ".res.jsn"), results + "}\n");
  }
  QElapsedTimer timer;
  timer.start();
  double memory = 0.0;
  for (int i = 0; i < Opened; ++i) {
    const Outcome one = run({QStringLiteral("--info"), workspace.path(fileOf(i * 40, ".scen.jsn"))}, m_data.path());
    QCOMPARE(one.status, 0);
    memory = std::max(memory, one.info()[QStringLiteral("peakMemoryMB")].toDouble());
  }
  const double oneByOne = static_cast<double>(timer.restart()) * Scenarios / Opened;
  const QString file = m_data.filePath(QStringLiteral("figures.csv"));
  const Outcome set = run({QStringLiteral("--set"), QStringLiteral("all"), QStringLiteral("--info"),
                           QStringLiteral("--output"), file, workspace.path(fileOf(0, ".scen.jsn"))},
                          m_data.path());
  const auto together = static_cast<double>(timer.elapsed());
  const double ofSet = set.info()[QStringLiteral("peakMemoryMB")].toDouble();
  QCOMPARE(set.status, 0);
  QFile table(file);
  QVERIFY(table.open(QIODevice::ReadOnly));
  QCOMPARE(table.readAll().count('\n'), 1 + Elements / 2 + 2 * (Elements / 2 - 1) + 1); // p, t, q and a set point
  qInfo("one by one %.0f ms, as a set %.0f ms; %.1f MB, %.1f MB", oneByOne, together, memory, ofSet);
#ifndef __SANITIZE_ADDRESS__ // which keeps what was freed
  QVERIFY2(ofSet < memory * 1.3, qPrintable(QStringLiteral("%1 MB, %2 MB").arg(ofSet).arg(memory)));
#endif
}

void TestScenarioSet::inTheWindow() {
  const WorkspaceFixture workspace;
  addDays(workspace, 12);
  NivraViewer viewer;
  viewer.open(workspace.scenario());
  auto *dock = viewer.findChild<QDockWidget *>(QStringLiteral("scenarioSet"));
  QVERIFY(dock != nullptr);
  dock->show();
  dock->raise();
  QVERIFY(dock->widget() != nullptr);
  QPushButton *compute = nullptr;
  for (auto *button : dock->findChildren<QPushButton *>()) {
    if (button->text() == QLatin1String("Compute"))
      compute = button;
  }
  QVERIFY(compute != nullptr && compute->isEnabled());
  const auto valueOf = [&viewer](const char *property) {
    return viewer.visControl()->net().element(QStringLiteral("A"))->value(QLatin1String(property));
  };
  compute->click();
  QTRY_COMPARE(valueOf("p.min"), QStringLiteral("10"));
  QCOMPARE(valueOf("p.max"), QStringLiteral("50"));         // S1 has that of the geometry
  QVERIFY(!viewer.findChild<LayerKeeper *>()->isUnsaved()); // nobody edited anything
  viewer.visControl()->setCurrentElement(QStringLiteral("A"));
  auto *chart = dock->findChild<QwtPlot *>();
  QTRY_VERIFY(chart != nullptr && chart->isVisible());
  chart->setFocus(); // by keys to S1, which is the last one, and to the day before
  QTest::keyClick(chart, Qt::Key_Left);
  QTest::keyClick(chart, Qt::Key_Left);
  QTest::keyClick(chart, Qt::Key_Return);
  QTRY_VERIFY(viewer.openFile().contains(QStringLiteral("2015-01-12")));
  QTRY_COMPARE(valueOf("p"), QStringLiteral("21"));
  QTRY_COMPARE(valueOf("p.min"), QStringLiteral("10")); // the figures stay with the case
  const WorkspaceFixture other;
  viewer.open(other.scenario());
  QCOMPARE(valueOf("p"), QStringLiteral("50"));
  QVERIFY(valueOf("p.min").isEmpty());
}

NIVRA_TEST(TestScenarioSet);

#include "tst_scenarioset.moc"
