#include "nivraviewer.h"
#include "panels.h"
#include "why/reasonmodel.h"
#include "why/whydock.h"
#include "workspacefixture.h"

#include <support/nivratest.h>
#include <tools/elidedlabel.h>
#include <tools/nivrapropviewer.h>
#include <view/netviscontrol.h>

#include <QAction>
#include <QTreeView>

/// The panel that says where a value comes from, in the real window.
class TestWhy : public QObject {
  Q_OBJECT

private slots:
  void formulasLeadToWhatTheyRead();
  void boundsLeadToTheirLines();
  void setPointsTellTheGas();
  void followsEditsAndReloads();
  void linesAreThoseOfRealFiles();

private:
  /// The panel of a window that has opened the file.
  static WhyDock &opened(NivraViewer &viewer, const QString &path) {
    viewer.open(path);
    return panelOf<WhyDock>(viewer);
  }
  /// All lines as "reason | value | where", once the files were searched.
  static QStringList lines(WhyDock &why) {
    const auto all = [&why] {
      QStringList texts;
      addLines(*why.findChild<QTreeView *>()->model(), QModelIndex(), texts);
      return texts;
    };
    const auto isSearching = [&all] {
      return !all().filter(QStringLiteral("Looking into")).isEmpty();
    };
    return QTest::qWaitFor([&] { return !isSearching(); }) ? all() : QStringList();
  }
  static void addLines(const QAbstractItemModel &model, const QModelIndex &parent, QStringList &texts) {
    for (int row = 0; row < model.rowCount(parent); ++row) {
      QStringList cells;
      for (int column = 0; column < ReasonModel::ColumnCount; ++column)
        cells.append(model.index(row, column, parent).data().toString());
      texts.append(cells.join(QStringLiteral(" | ")));
      addLines(model, model.index(row, 0, parent), texts);
    }
  }
  static QString title(WhyDock &why) { return why.findChild<ElidedLabel *>()->plainText(); }
  /// Return on the first line that begins so.
  static void activate(WhyDock &why, const QString &beginning) {
    auto &tree = *why.findChild<QTreeView *>();
    const QModelIndexList found = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, beginning, 1,
                                                      Qt::MatchStartsWith | Qt::MatchRecursive);
    QVERIFY2(!found.isEmpty(), qPrintable(beginning));
    tree.setFocus();
    tree.setCurrentIndex(found.first());
    QTest::keyClick(&tree, Qt::Key_Return);
  }
};

void TestWhy::formulasLeadToWhatTheyRead() {
  const WorkspaceFixture files;
  files.write(QStringLiteral("CASE/CASE.formulas"),
              "[geometry]\ndp(p) [bar] = p@node1@ELE - p@node2@ELE\nhalf(p) [bar] = dp@ELE / 2\n");
  NivraViewer viewer;
  WhyDock &why = opened(viewer, files.geometry());
  viewer.resize(1200, 800);
  auto &properties = panelOf<NivraPropViewer>(viewer);
  properties.show();
  viewer.elementAction(QStringLiteral("P1"), NetPicker::EleAction::ShowInfo);
  auto &tree = *properties.findChild<QTreeView *>(QStringLiteral("tree"));
  const QModelIndexList half = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, QStringLiteral("half"), 1,
                                                   Qt::MatchExactly | Qt::MatchRecursive);
  QCOMPARE(half.size(), 1);
  tree.setCurrentIndex(half.first());
  tree.setFocus();
  QTest::keyClick(&tree, Qt::Key_Y, Qt::ControlModifier | Qt::ShiftModifier);
  QVERIFY(why.isVisible());
  QCOMPARE(title(why), QStringLiteral("half of P1: 1 bar"));
  QStringList told = lines(why);
  QCOMPARE(told.first(), QStringLiteral("Formula: half [bar] = dp@ELE / 2 | 1 bar | CASE/CASE.formulas:3"));
  QCOMPARE(told.at(1), QStringLiteral("dp@ELE – dp of P1 | 2 bar | "));

  activate(why, QStringLiteral("dp@ELE"));
  QCOMPARE(title(why), QStringLiteral("dp of P1: 2 bar – pressure difference"));
  activate(why, QStringLiteral("p@node2@ELE – p of B"));
  QVERIFY2(title(why).startsWith(QStringLiteral("p of B: 48 bar")), qPrintable(title(why)));
  QCOMPARE(viewer.visControl()->currentElement(), QStringLiteral("B"));
  told = lines(why);
  QVERIFY2(told.contains(QStringLiteral("Given by the file | 48 | CASE/CASE.geom.jsn:3")),
           qPrintable(told.join(QLatin1Char('\n'))));
  QTest::keyClick(why.findChild<QTreeView *>(), Qt::Key_Left, Qt::AltModifier);
  QCOMPARE(title(why), QStringLiteral("dp of P1: 2 bar – pressure difference"));
}

void TestWhy::boundsLeadToTheirLines() {
  const WorkspaceFixture files;
  files.write(QStringLiteral("CASE/CASE.constraints"), "# bounds\np(n) in pmin .. pmax\n");
  files.writeGeometry("{\n\"A\":{\"obj_type\":\"node\",\"x\":0,\"y\":0,\"p\":50,\"pmin\":40,\"pmax\":70}\n}\n");
  NivraViewer viewer;
  WhyDock &why = opened(viewer, files.geometry());
  why.ask(QStringLiteral("A"), QStringLiteral("p"));
  QVERIFY2(lines(why).contains(QStringLiteral("Held between pmin and pmax | 40 bar to 70 bar | CASE/CASE.constraints:2")),
           qPrintable(lines(why).join(QLatin1Char('\n'))));
  activate(why, QStringLiteral("pmax"));
  QVERIFY2(lines(why).contains(QStringLiteral("Given by the file | 70 | CASE/CASE.geom.jsn:2")),
           qPrintable(lines(why).join(QLatin1Char('\n'))));
}

void TestWhy::setPointsTellTheGas() {
  const WorkspaceFixture files;
  files.write(
      QStringLiteral("CASE/S1/S1.scen.jsn"),
      "{\n\"A\":[{\"property\":\"rhon\",\"value\":0.8},{\"property\":\"qset\",\"value\":10,\"unit\":\"kg/s\"}]\n}\n");
  NivraViewer viewer;
  WhyDock &why = opened(viewer, files.scenario());
  why.ask(QStringLiteral("A"), QStringLiteral("qset"));
  const QStringList told = lines(why);
  QVERIFY2(told.contains(QStringLiteral("Given by the file | 10 kg/s | CASE/S1/S1.scen.jsn:2")),
           qPrintable(told.join(QLatin1Char('\n'))));
  // 10 kg/s of 0.8 kg/m³ are 12.5 m³/s, and so 45 thousand m³ an hour
  QVERIFY2(!told.filter(QStringLiteral("value × 4.5 | by the gas there: norm density 0.8 kg/m³")).isEmpty(),
           qPrintable(told.join(QLatin1Char('\n'))));
  QVERIFY2(title(why).startsWith(QStringLiteral("qset of A: 45 ")), qPrintable(title(why)));
}

void TestWhy::followsEditsAndReloads() {
  const WorkspaceFixture files;
  NivraViewer viewer;
  WhyDock &why = opened(viewer, files.geometry());
  why.ask(QStringLiteral("A"), QStringLiteral("p"));
  files.writeGeometry(WorkspaceFixture::soundGeometry().replace("\"p\":50", "\"p\":51").replace("{\n\"A\"", "{\n\n\"A\""));
  viewer.reload();
  QVERIFY2(title(why).startsWith(QStringLiteral("p of A: 51 bar")), qPrintable(title(why)));
  QVERIFY(lines(why).contains(QStringLiteral("Given by the file | 51 | CASE/CASE.geom.jsn:3")));
  files.writeGeometry("{\n\"B\":{\"obj_type\":\"node\",\"x\":0,\"y\":0}\n}\n");
  viewer.reload(); // the element is gone
  QVERIFY(lines(why).isEmpty());
  QVERIFY(title(why).contains(QStringLiteral("property viewer"))); // how to ask
}

void TestWhy::linesAreThoseOfRealFiles() {
  const QString folder = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/GasLib-40/");
  QFile results(folder + QStringLiteral("N1/N1.res.jsn"));
  if (!results.open(QIODevice::ReadOnly))
    QSKIP("the public networks are not here");
  NivraViewer viewer;
  WhyDock &why = opened(viewer, folder + QStringLiteral("N1/N1.scen.jsn"));
  const QList<QByteArray> rows = results.readAll().split('\n');
  int asked = 0;
  for (int i = 0; i < rows.size(); i += 5) {
    const QByteArray name = rows.at(i).mid(rows.at(i).indexOf('"') + 1).split('"').value(0);
    if (!rows.at(i).contains("\"p\":"))
      continue;
    ++asked;
    why.ask(QString::fromUtf8(name), QStringLiteral("p"));
    const QString last = lines(why).last();
    QVERIFY2(last.endsWith(QStringLiteral("N1.res.jsn:%1").arg(i + 1)), qPrintable(last));
    const QByteArray value = rows.at(i).mid(rows.at(i).indexOf("\"p\":") + 4).split(',').value(0);
    QCOMPARE(last.section(QStringLiteral(" | "), 1, 1), QString::fromUtf8(value));
  }
  QVERIFY(asked > 3);
}

NIVRA_TEST(TestWhy);
#include "tst_why.moc"
