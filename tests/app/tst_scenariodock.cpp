#include "gasmodel.h"
#include "nivraviewer.h"
#include "scenariomodel.h"
#include "workspacefixture.h"

#include <support/nivratest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QTreeView>

namespace {

QJsonObject fileObject(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

/// The dock of a window, brought by the menu as a person does.
struct Panel {
  explicit Panel(NivraViewer &viewer) {
    QMenu *view = viewer.menuBar()->actions().last()->menu();
    emit view->aboutToShow();
    for (QAction *action : view->actions()) {
      if (action->text() == QLatin1String("Scenario") && !action->isChecked())
        action->trigger();
    }
    dock = viewer.findChild<QDockWidget *>(QStringLiteral("scenario"));
    tree = dock->findChild<QTreeView *>();
    gases = dock->findChild<QTableView *>();
    filter = dock->findChild<QLineEdit *>();
    hint = dock->findChild<QLabel *>();
  }

  QStringList sections() const {
    QStringList names;
    for (int row = 0; row < tree->model()->rowCount(); ++row)
      names.append(tree->model()->index(row, 0).data().toString());
    return names;
  }

  QModelIndex cell(const QString &setting, int column) const {
    const QAbstractItemModel &model = *tree->model();
    for (int section = 0; section < model.rowCount(); ++section) {
      const QModelIndex parent = model.index(section, 0);
      for (int row = 0; row < model.rowCount(parent); ++row) {
        if (model.index(row, 0, parent).data() == setting)
          return model.index(row, column, parent);
      }
    }
    return QModelIndex();
  }
  QString value(const QString &setting) const { return cell(setting, ScenarioModel::ValueColumn).data().toString(); }
  QString source(const QString &setting) const { return cell(setting, ScenarioModel::SourceColumn).data().toString(); }

  QStringList gasRow(const QString &property) const {
    const QAbstractItemModel &model = *gases->model();
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
      if (model.index(row, 0).data() != property)
        continue;
      for (int column = 1; column < model.columnCount(); ++column)
        texts.append(model.index(row, column).data().toString());
    }
    return texts;
  }

  QDockWidget *dock = nullptr;
  QTreeView *tree = nullptr;
  QTableView *gases = nullptr;
  QLineEdit *filter = nullptr;
  QLabel *hint = nullptr;
};

} // namespace

/// The panel "Scenario", through the window.
class TestScenarioDock : public QObject {
  Q_OBJECT

private slots:
  void tellsWhatTheFilesSay_data();
  void tellsWhatTheFilesSay();
  void followsTheCase();
  void filtersAndCopies();
  void textsArePlain();
  void leavesTheDrawingItsRoom();
};

void TestScenarioDock::tellsWhatTheFilesSay_data() {
  QTest::addColumn<QString>("scenario");
  const QString source = QStringLiteral(NIVRA_SOURCE_DIR);
  QTest::newRow("example") << source + QStringLiteral("/example/DE_H2/S5/S5.scen.jsn");
  QTest::newRow("public network") << source + QStringLiteral("/../shared/data/GasLib-40/N1/N1.scen.jsn");
}

void TestScenarioDock::tellsWhatTheFilesSay() {
  QFETCH(QString, scenario);
  if (!QFile::exists(scenario))
    QSKIP("the network is not on this machine");
  const QFileInfo opened(scenario);
  const QString folder = opened.dir().dirName();
  const QString inRoot = opened.dir().path().section(QLatin1Char('/'), -2) + QLatin1Char('/');
  NivraViewer viewer;
  viewer.open(scenario);
  const Panel panel(viewer);
  const QAbstractItemModelTester settingsTester(panel.tree->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
  const QAbstractItemModelTester gasTester(panel.gases->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
  QVERIFY(panel.dock->isVisible());
  QVERIFY(!panel.hint->isVisible());
  QCOMPARE(panel.value(QStringLiteral("geometry")) + QStringLiteral(".jsn"),
           QDir(opened.path() + QStringLiteral("/..")).entryList({QStringLiteral("*.geom.jsn")}).value(0));
  for (const char *file : {"scenconfig.jsn", "solverconfig.jsn"}) {
    const QJsonObject object = fileObject(opened.dir().filePath(QLatin1String(file)));
    QVERIFY(object.size() > 5);
    for (auto it = object.begin(); it != object.end(); ++it) {
      if (it->isObject())
        continue;
      const QString expected = it->toVariant().toString();
      const QString shown = panel.value(it.key());
      QVERIFY2(shown == expected || shown.startsWith(expected + QStringLiteral(" (")), qPrintable(it.key() + shown));
      QVERIFY2(panel.source(it.key()).startsWith(inRoot), qPrintable(it.key() + panel.source(it.key())));
    }
  }
  const QJsonObject properties =
      fileObject(opened.dir().filePath(QStringLiteral("scenconfig.jsn")))[QStringLiteral("GeneralProps")].toObject();
  for (auto it = properties.begin(); it != properties.end(); ++it)
    QCOMPARE(panel.value(it.key()), it->toString());
  QCOMPARE(panel.value(QStringLiteral("ntype_gasLaw")), QStringLiteral("1 (dc92)"));
  QCOMPARE(panel.source(QStringLiteral("solver_simtol")), QStringLiteral("default")); // in neither file

  const QJsonObject gases = fileObject(opened.dir().filePath(folder + QStringLiteral(".gas.jsn")));
  QCOMPARE(gases.size(), 1);
  const QJsonObject gas = gases.begin()->toObject();
  QCOMPARE(panel.gases->model()->headerData(GasModel::FirstGasColumn, Qt::Horizontal).toString(), gases.begin().key());
  QCOMPARE(panel.gases->model()->rowCount(), gas.size() - 1); // all but what kind of thing it is
  const auto number = [&gas](const char *property) {
    return QString::number(gas[QLatin1String(property)].toDouble());
  };
  QCOMPARE(panel.gasRow(QStringLiteral("rhon")), (QStringList{QStringLiteral("kg/m³"), number("rhon")}));
  QCOMPARE(panel.gasRow(QStringLiteral("tcrit")), (QStringList{QStringLiteral("K"), number("tcrit")}));
  const QStringList calorific = panel.gasRow(QStringLiteral("hs"));
  QCOMPARE(calorific.value(0), QStringLiteral("kWh/m³"));
  constexpr double MegajoulesPerKilowattHour = 3.6;
  QVERIFY(qAbs(calorific.value(1).toDouble() * MegajoulesPerKilowattHour - gas[QStringLiteral("hs")].toDouble()) < 1e-6);
}

void TestScenarioDock::followsTheCase() {
  const WorkspaceFixture first;
  const WorkspaceFixture second;
  first.write(QStringLiteral("CASE/S1/S1.gas.jsn"), "{\n\"Hydrogen\":{\"obj_type\":\"gas\",\"rhon\":0.09}\n}\n");
  first.write(QStringLiteral("CASE/S1/solverconfig.jsn"), "{\"tsoil\":280}");
  NivraViewer viewer;
  {
    const Panel panel(viewer);
    QVERIFY(panel.hint->isVisible()); // nothing is open
    QVERIFY(panel.hint->text().contains(QStringLiteral("Open a scenario")));
    QVERIFY(!panel.tree->isVisible() && !panel.gases->isVisible());
  }
  viewer.open(first.scenario());
  const Panel panel(viewer);
  QCOMPARE(panel.value(QStringLiteral("tsoil")), QStringLiteral("280"));
  QVERIFY(panel.gases->isVisible());
  viewer.open(second.scenario());
  QCOMPARE(panel.value(QStringLiteral("tsoil")), QStringLiteral("283.15"));
  QVERIFY(!panel.gases->isVisible());
  QVERIFY2(panel.hint->text().contains(QStringLiteral("no gases")), qPrintable(panel.hint->text()));
  viewer.open(first.geometry());
  QCOMPARE(panel.sections(), QStringList{QStringLiteral("Case")});
  QVERIFY2(panel.hint->text().contains(QStringLiteral("without a scenario")), qPrintable(panel.hint->text()));
}

void TestScenarioDock::filtersAndCopies() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/S1/S1.gas.jsn"),
                  "{\n\"A\":{\"obj_type\":\"gas\",\"rhon\":0.09}\n,\"B\":{\"obj_type\":\"gas\",\"hs\":36}\n}\n");
  workspace.write(QStringLiteral("CASE/S1/solverconfig.jsn"), "{\"tsoil\":280,\"comment\":{\"tsoil\":\"in May\"}}");
  NivraViewer viewer;
  viewer.open(workspace.scenario());
  const Panel panel(viewer);
  QCOMPARE(panel.gasRow(QStringLiteral("hs")), (QStringList{QStringLiteral("kWh/m³"), QString(), QStringLiteral("10")}));
  QTest::keyClicks(panel.filter, QStringLiteral("in may"));
  QCOMPARE(panel.sections(), QStringList{QStringLiteral("Gas law and solver")});
  QVERIFY(panel.tree->isExpanded(panel.tree->model()->index(0, 0)));
  QCOMPARE(panel.gases->model()->rowCount(), 0);
  const QModelIndex cell = panel.cell(QStringLiteral("tsoil"), ScenarioModel::NameColumn);
  QTest::mouseClick(panel.tree->viewport(), Qt::LeftButton, Qt::NoModifier, panel.tree->visualRect(cell).center());
  QTest::keySequence(panel.tree, QKeySequence::Copy);
  QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("tsoil\t280\tCASE/S1/solverconfig.jsn\tin May"));
  panel.filter->setText(QStringLiteral("gas law and")); // a section shows all that is in it
  QVERIFY(panel.cell(QStringLiteral("tamb"), 0).isValid());
  panel.filter->setText(QStringLiteral("norm density"));
  QCOMPARE(panel.gases->model()->rowCount(), 1);
  panel.filter->setText(QStringLiteral("nowhere to be found"));
  QVERIFY(panel.hint->isVisible() && panel.hint->text().contains(QStringLiteral("filter")));
  panel.filter->clear();
  QVERIFY(!panel.hint->isVisible());
  QCOMPARE(panel.sections().size(), 4); // no general properties
}

void TestScenarioDock::textsArePlain() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/S1/scenconfig.jsn"),
                  "{\"workDir\":\"S1\",\"GeneralProps\":{\"note\":\"<b>bold</b>\",\"long\":\"" + QByteArray(5000000, 'x') +
                      "\"}}");
  NivraViewer viewer;
  viewer.open(workspace.scenario());
  const Panel panel(viewer);
  const QModelIndex note = panel.cell(QStringLiteral("note"), ScenarioModel::ValueColumn);
  QCOMPARE(note.data().toString(), QStringLiteral("<b>bold</b>"));
  QVERIFY2(note.data(Qt::ToolTipRole).toString().contains(QStringLiteral("&lt;b&gt;")),
           qPrintable(note.data(Qt::ToolTipRole).toString()));
  QVERIFY(panel.value(QStringLiteral("long")).size() < 20000); // a view would measure every letter
}

void TestScenarioDock::leavesTheDrawingItsRoom() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/S1/S1.gas.jsn"), "{\n\"H\":{\"obj_type\":\"gas\",\"rhon\":0.09}\n}\n");
  NivraViewer viewer;
  viewer.open(workspace.scenario());
  QApplication::processEvents();
  const int height = viewer.centralWidget()->height();
  viewer.findChild<QDockWidget *>(QStringLiteral("findings"))->show();
  QApplication::processEvents();
  QVERIFY(viewer.centralWidget()->height() < height);
  const int beside = viewer.centralWidget()->height();
  const Panel panel(viewer); // behind a tab of the same side
  QTRY_VERIFY(!panel.tree->visibleRegion().isEmpty());
  constexpr int TabsAndFrame = 40;
  const int left = viewer.centralWidget()->height();
  QVERIFY2(left >= beside - TabsAndFrame, qPrintable(QStringLiteral("%1, %2").arg(beside).arg(left)));
}

NIVRA_TEST(TestScenarioDock);
#include "tst_scenariodock.moc"
