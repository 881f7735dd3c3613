#include "canvas/qwtfastplot.h"
#include "panels.h"
#include "subnetwindow.h"
#include "tooldocks.h"
#include "workspacefixture.h"

#include <support/nivratest.h>
#include <tools/elementtable.h>
#include <view/netviscontrol.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QHeaderView>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTreeView>

#include <algorithm>
#include <cmath>

namespace {

const QString GasLib = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/GasLib-135/");

QJsonObject json(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

/// The window with a network and the table open.
struct Table {
  explicit Table(const QString &path) {
    viewer.resize(1100, 900);
    viewer.open(path);
    viewer.show();
    QApplication::setActiveWindow(&viewer);
    QTest::keyClick(&viewer, Qt::Key_T, Qt::ControlModifier);
    QApplication::processEvents();
  }

  ElementTable &dock() { return panelOf<ElementTable>(viewer); }
  QTableView &view() { return *dock().findChild<QTableView *>(); }
  QComboBox &types() { return *dock().findChild<QComboBox *>(QStringLiteral("comboBox_types")); }
  QComboBox &groups() { return *dock().findChild<QComboBox *>(QStringLiteral("comboBox_groups")); }
  QCheckBox &onlySelected() { return *dock().findChild<QCheckBox *>(); }
  QString summary() { return dock().findChild<QLabel *>(QStringLiteral("tableSummary"))->text(); }
  int rows() { return view().model()->rowCount(); }
  QString cell(int row, int column) { return view().model()->index(row, column).data().toString(); }
  int column(const QString &title) {
    for (int i = 0; i < view().model()->columnCount(); ++i) {
      if (view().model()->headerData(i, Qt::Horizontal).toString() == title)
        return i;
    }
    return -1;
  }
  int row(const QString &name) {
    for (int i = 0; i < rows(); ++i) {
      if (cell(i, 0) == name)
        return i;
    }
    return -1;
  }
  QLineEdit &filter(int column) { return *dock().findChild<QLineEdit *>(QStringLiteral("filter_%1").arg(column)); }
  void type(int column, const QString &text) {
    filter(column).setFocus();
    filter(column).selectAll();
    QTest::keyClicks(&filter(column), text);
    QTest::keyClick(&filter(column), Qt::Key_Return);
  }
  void click(int row, int column, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    const QModelIndex index = view().model()->index(row, column);
    view().scrollTo(index);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, keys, view().visualRect(index).center());
    settle();
  }
  void choose(QComboBox &box, const QString &beginning) {
    for (int i = 0; i < box.count(); ++i) {
      if (!box.itemText(i).startsWith(beginning))
        continue;
      box.setCurrentIndex(i);
      emit box.activated(i);
      return;
    }
    QFAIL(qPrintable(beginning));
  }
  static void settle() {
    for (int i = 0; i < 3; ++i)
      QApplication::processEvents();
  }
  Selection::Names selected() { return viewer.visControl()->net().selection().names(); }

  NivraViewer viewer;
};

} // namespace

/// The table of elements beside the drawing, with mouse and keys.
class TestTableOfElements : public QObject {
  Q_OBJECT

private slots:
  void listsWhatTheFilesSay();
  void sortsByTheHeader();
  void filtersByTyping();
  void groupsByMouseAndKeys();
  void groupsAreToldWholeAndStayInSight();
  void isLinkedWithTheDrawing();
  void listsOnlyWhatIsSelected();
  void choosesAndOrdersColumns();
  void keepsChoicesWithTheCase();
  void copiesWhatIsShown();
  void followsValuesAndCases();
  void subnetsHaveTheirOwn();
};

/// Compared with the files themselves, read by the toolkit.
void TestTableOfElements::listsWhatTheFilesSay() {
  if (!QFile::exists(GasLib))
    QSKIP("the network is not there");
  Table table(GasLib + QStringLiteral("N1/N1.scen.jsn"));
  QVERIFY(table.dock().isVisible());
  const QJsonObject elements = json(GasLib + QStringLiteral("GasLib-135.geom.jsn"));
  const QJsonObject results = json(GasLib + QStringLiteral("N1/N1.res.jsn"));
  int nodes = 0;
  double sum = 0.0;
  double smallest = 1e9;
  double largest = 0.0;
  for (auto it = elements.begin(); it != elements.end(); ++it) {
    if (it->toObject().value(QStringLiteral("obj_type")).toString() != QLatin1String("node"))
      continue;
    ++nodes;
    const double pressure = results.value(it.key()).toObject().value(QStringLiteral("p")).toDouble();
    sum += pressure;
    smallest = std::min(smallest, pressure);
    largest = std::max(largest, pressure);
  }
  QVERIFY(nodes > 100);
  table.choose(table.types(), QStringLiteral("Nodes (%1)").arg(nodes));
  QCOMPARE(table.rows(), nodes);
  const int p = table.column(QStringLiteral("p [bar]"));
  const int t = table.column(QStringLiteral("t [°C]"));
  QVERIFY(p > 0 && t > 0);
  QCOMPARE(table.cell(table.row(QStringLiteral("source_3")), p), QStringLiteral("30"));
  QCOMPARE(table.cell(table.row(QStringLiteral("source_3")), t), QStringLiteral("10"));
  table.click(0, p);
  table.viewer.visControl()->picker()->clearSelection();
  Table::settle();
  const QString expected = QStringLiteral("count %1 · sum %2 · mean %3 · min %4 · max %5")
                               .arg(nodes)
                               .arg(QString::number(sum, 'g', 6), QString::number(sum / nodes, 'g', 6),
                                    QString::number(smallest, 'g', 6), QString::number(largest, 'g', 6));
  QVERIFY2(table.summary().endsWith(expected), qPrintable(table.summary() + QLatin1Char('\n') + expected));
  // Of the selected rows, where there are several.
  const double first = table.cell(0, p).toDouble();
  const double second = table.cell(1, p).toDouble();
  table.click(0, p);
  table.click(1, p, Qt::ControlModifier);
  QVERIFY2(table.summary().contains(QStringLiteral("count 2 · sum %1 ").arg(QString::number(first + second, 'g', 6))),
           qPrintable(table.summary()));
}

void TestTableOfElements::sortsByTheHeader() {
  const WorkspaceFixture workspace;
  Table table(workspace.geometry());
  table.choose(table.types(), QStringLiteral("Nodes"));
  const int p = table.column(QStringLiteral("p [bar]"));
  const auto clickHeader = [&table](int column) {
    QHeaderView &header = *table.view().horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header.sectionViewportPosition(column) + 10, header.viewport()->height() / 2));
  };
  clickHeader(p);
  QCOMPARE(shownNames(table.dock()), (QStringList{QStringLiteral("B"), QStringLiteral("A"), QStringLiteral("C")}));
  clickHeader(p);
  QCOMPARE(shownNames(table.dock()), (QStringList{QStringLiteral("C"), QStringLiteral("A"), QStringLiteral("B")}));

  // By keys: the lowest pressure, and where it is.
  table.click(0, 0);
  while (table.view().currentIndex().column() < p)
    QTest::keyClick(&table.view(), Qt::Key_Right);
  QTest::keyClick(&table.view(), Qt::Key_Up, Qt::AltModifier);
  QCOMPARE(shownNames(table.dock()), (QStringList{QStringLiteral("B"), QStringLiteral("A"), QStringLiteral("C")}));
  QCOMPARE(table.view().currentIndex().data(Qt::UserRole).toString(), QStringLiteral("B"));
  QTest::keyClick(&table.view(), Qt::Key_Down, Qt::AltModifier);
  QCOMPARE(table.view().currentIndex().data(Qt::UserRole).toString(), QStringLiteral("C"));
}

void TestTableOfElements::filtersByTyping() {
  const WorkspaceFixture workspace;
  Table table(workspace.geometry());
  table.choose(table.types(), QStringLiteral("Nodes"));
  const int p = table.column(QStringLiteral("p [bar]"));
  table.click(0, p);
  QTest::keyClick(&table.view(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
  QVERIFY(table.filter(p).hasFocus());
  QTest::keyClicks(&table.filter(p), QStringLiteral("49..60"));
  QTRY_COMPARE(shownNames(table.dock()), (QStringList{QStringLiteral("A"), QStringLiteral("C")})); // once one pauses
  QVERIFY(table.filter(p).hasFocus());
  table.type(0, QStringLiteral("c"));
  QCOMPARE(shownNames(table.dock()), QStringList{QStringLiteral("C")});
  QVERIFY(table.view().hasFocus());
  QVERIFY2(table.summary().startsWith(QStringLiteral("1 of 3 elements")), qPrintable(table.summary()));
  table.type(p, QStringLiteral(">x"));
  QVERIFY(!table.filter(p).actions().isEmpty());
  QVERIFY2(table.filter(p).toolTip().contains(QStringLiteral("\"x\" is no number")), qPrintable(table.filter(p).toolTip()));
  table.filter(p).setFocus();
  QTest::keyClick(&table.filter(p), Qt::Key_Escape);
  QVERIFY(table.filter(p).text().isEmpty());
  QTest::keyClick(&table.filter(p), Qt::Key_Escape);
  QVERIFY(table.view().hasFocus());
  QTRY_VERIFY(table.filter(p).actions().isEmpty());
  table.type(0, QStringLiteral("nobody"));
  QCOMPARE(table.rows(), 0);
  QPushButton *all = nullptr;
  for (QPushButton *button : table.dock().findChildren<QPushButton *>()) {
    if (button->isVisible() && button->text().contains(QStringLiteral("all rows")))
      all = button;
  }
  QVERIFY(all != nullptr);
  QTest::mouseClick(all, Qt::LeftButton);
  QCOMPARE(table.rows(), 3);
  QVERIFY(table.filter(0).text().isEmpty() && !all->isVisible());
}

void TestTableOfElements::groupsByMouseAndKeys() {
  const WorkspaceFixture workspace;
  Table table(workspace.geometry());
  table.choose(table.types(), QStringLiteral("All elements"));
  table.choose(table.groups(), QStringLiteral("Group by type"));
  QCOMPARE(table.cell(0, 0), QStringLiteral("compressor (1)"));
  const int nodes = table.row(QStringLiteral("node (3)"));
  QCOMPARE(table.cell(nodes + 6, 0), QStringLiteral("A"));
  const int rows = table.rows();
  table.click(nodes, 1);
  QCOMPARE(table.selected(), (Selection::Names{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
  QTest::keyClick(&table.view(), Qt::Key_Left);
  QCOMPARE(table.rows(), rows - 3);
  QCOMPARE(table.view().currentIndex().row(), nodes);
  QTest::keyClick(&table.view(), Qt::Key_Right);
  QCOMPARE(table.rows(), rows);
  const QRect head = table.view().visualRect(table.view().model()->index(nodes, 0));
  QTest::mouseClick(table.view().viewport(), Qt::LeftButton, Qt::NoModifier, head.topLeft() + QPoint(8, 8));
  QCOMPARE(table.rows(), rows - 3);
  QTest::mouseDClick(table.view().viewport(), Qt::LeftButton, Qt::NoModifier, head.center());
  QCOMPARE(table.rows(), rows);
}

void TestTableOfElements::groupsAreToldWholeAndStayInSight() {
  const WorkspaceFixture workspace;
  QByteArray nodes("{\n\"A\":{\"obj_type\":\"node\",\"x\":0,\"y\":0,\"p\":50}\n");
  for (int i = 0; i < 60; ++i) { // five groups of a long name each
    const QByteArray number = QByteArray::number(i);
    nodes += ",\"N" + number + "\":{\"obj_type\":\"node\",\"x\":" + number +
             ",\"y\":9,\"p\":50,\"comment\":\"a long name of the group " + QByteArray::number(i / 12) + "\"}\n";
  }
  workspace.writeGeometry(nodes + "}\n");
  Table table(workspace.geometry());
  table.choose(table.types(), QStringLiteral("Nodes"));
  table.choose(table.groups(), QStringLiteral("Group by comment"));
  QTableView &view = table.view();
  view.setColumnWidth(0, 60);
  Table::settle();
  const auto inkFrom = [&view](int x) { // of the title, behind the first column
    const QRect head = view.visualRect(view.model()->index(0, 0));
    const QImage image = view.viewport()->grab(QRect(x, head.top() + 2, 100, head.height() - 4)).toImage();
    int dark = 0;
    for (int row = 0; row < image.height(); ++row) {
      for (int column = 0; column < image.width(); ++column)
        dark += qGray(image.pixel(column, row)) < 96 ? 1 : 0;
    }
    return dark;
  };
  QVERIFY2(inkFrom(64) > 60, qPrintable(QString::number(inkFrom(64))));
  const auto closeAll = [&table](const char *text) {
    for (QAction *entry : table.dock().findChildren<QAction *>()) {
      if (entry->text().remove(QLatin1Char('&')) == QLatin1String(text))
        entry->trigger();
    }
    Table::settle();
  };
  const int third = table.row(table.cell(0, 0).replace(QStringLiteral("group 0"), QStringLiteral("group 2")));
  QVERIFY(third > 0);
  view.scrollTo(view.model()->index(third + 8, 0), QAbstractItemView::PositionAtTop); // among the nodes of the third
  closeAll("Close all groups");
  QVERIFY2(view.currentIndex().data().toString().contains(QStringLiteral("group 2")), "the one that was read");
  QVERIFY(view.viewport()->rect().intersects(view.visualRect(view.currentIndex())));
  closeAll("Open all groups");
  QVERIFY(view.viewport()->rect().intersects(view.visualRect(view.currentIndex())));
  QCOMPARE(view.rowAt(0), view.currentIndex().row());
}

void TestTableOfElements::isLinkedWithTheDrawing() {
  const WorkspaceFixture workspace;
  Table table(workspace.geometry());
  NetVisControl &control = *table.viewer.visControl();
  table.choose(table.types(), QStringLiteral("All elements"));
  table.click(table.row(QStringLiteral("P1")), 0);
  QCOMPARE(table.selected(), Selection::Names{QStringLiteral("P1")});
  QCOMPARE(control.currentElement(), QStringLiteral("P1"));
  table.click(table.row(QStringLiteral("C")), 0, Qt::ControlModifier);
  QCOMPARE(table.selected(), (Selection::Names{QStringLiteral("P1"), QStringLiteral("C")}));
  QTest::keyClick(&table.view(), Qt::Key_A, Qt::ControlModifier);
  Table::settle();
  QCOMPARE(table.selected().size(), 5);

  // From the drawing.
  const QPointF a = control.plot()->update().projection().map(0, 0);
  QTest::mouseClick(control.plot()->plot()->canvas(), Qt::LeftButton, Qt::NoModifier, a.toPoint());
  Table::settle();
  QCOMPARE(table.selected(), Selection::Names{QStringLiteral("A")});
  const QModelIndexList rows = table.view().selectionModel()->selectedRows();
  QCOMPARE(rows.size(), 1);
  QCOMPARE(rows.first().data().toString(), QStringLiteral("A"));
  table.view().sortByColumn(0, Qt::DescendingOrder); // it stays selected
  QCOMPARE(table.view().selectionModel()->selectedRows().first().data().toString(), QStringLiteral("A"));
  QCOMPARE(table.selected(), Selection::Names{QStringLiteral("A")});

  // A double click and Return bring it into the middle.
  const auto offCentre = [&control](double x, double y) {
    const QPointF at = control.plot()->update().projection().map(x, y);
    const QWidget &canvas = *control.plot()->plot()->canvas();
    return std::hypot(at.x() - canvas.width() / 2.0, at.y() - canvas.height() / 2.0);
  };
  QVERIFY(offCentre(100, 80) > 50.0);
  const QModelIndex c = table.view().model()->index(table.row(QStringLiteral("C")), 0);
  table.view().scrollTo(c);
  QTest::mouseDClick(table.view().viewport(), Qt::LeftButton, Qt::NoModifier, table.view().visualRect(c).center());
  QTRY_VERIFY(offCentre(100, 80) < 5.0);
  table.click(table.row(QStringLiteral("A")), 0);
  QTest::keyClick(&table.view(), Qt::Key_Return);
  QTRY_VERIFY(offCentre(0, 0) < 5.0);
}

void TestTableOfElements::listsOnlyWhatIsSelected() {
  const WorkspaceFixture workspace;
  Table table(workspace.geometry());
  table.choose(table.types(), QStringLiteral("All elements"));
  table.onlySelected().click();
  QCOMPARE(table.rows(), 0);
  Selection selection;
  selection.nodes = {QStringLiteral("A"), QStringLiteral("C")};
  selection.edges = {QStringLiteral("P1")};
  table.viewer.visControl()->picker()->setSelection(selection);
  Table::settle();
  QCOMPARE(shownNames(table.dock()), (QStringList{QStringLiteral("A"), QStringLiteral("C"), QStringLiteral("P1")}));
  table.click(1, 0); // what the table itself selects does not make the others go
  QCOMPARE(table.selected(), Selection::Names{QStringLiteral("C")});
  QCOMPARE(table.rows(), 3);
  table.onlySelected().click();
  QCOMPARE(table.rows(), 5);
}

void TestTableOfElements::choosesAndOrdersColumns() {
  const WorkspaceFixture workspace;
  Table table(workspace.geometry());
  table.choose(table.types(), QStringLiteral("Nodes"));
  QCOMPARE(table.column(QStringLiteral("type")), -1);
  table.view().setFocus();
  QTest::keyClick(&table.view(), Qt::Key_K, Qt::ControlModifier);
  auto *chooser = table.dock().findChild<QDialog *>(QStringLiteral("columnChooser"));
  QVERIFY(chooser != nullptr && chooser->isVisible());
  auto *list = chooser->findChild<QTreeView *>();
  QTest::keyClicks(chooser->findChild<QLineEdit *>(), QStringLiteral("type"));
  QCOMPARE(list->model()->rowCount(), 1);
  QTest::keyClick(chooser->findChild<QLineEdit *>(), Qt::Key_Down);
  list->setCurrentIndex(list->model()->index(0, 0));
  QTest::keyClick(list, Qt::Key_Space);
  const int last = table.view().model()->columnCount() - 1;
  QCOMPARE(table.view().model()->headerData(last, Qt::Horizontal).toString(), QStringLiteral("type"));
  chooser->findChild<QLineEdit *>()->clear();
  list->setFocus();
  while (table.view().model()->headerData(1, Qt::Horizontal).toString() != QLatin1String("type")) {
    const QModelIndex before = list->currentIndex();
    QTest::keyClick(list, Qt::Key_Up, Qt::AltModifier);
    QVERIFY(list->currentIndex() != before);
  }
  QTest::keyClick(chooser, Qt::Key_Escape);
  QVERIFY(!chooser->isVisible());

  // By the header, with the mouse and with keys.
  QHeaderView &header = *table.view().horizontalHeader();
  const QPoint from(header.sectionViewportPosition(1) + 20, header.viewport()->height() / 2);
  const QPoint to(header.sectionViewportPosition(2) + header.sectionSize(2) - 5, from.y());
  QTest::mousePress(header.viewport(), Qt::LeftButton, Qt::NoModifier, from);
  QTest::mouseMove(header.viewport(), from + QPoint(30, 0));
  QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(header.viewport(), &move);
  QTest::mouseRelease(header.viewport(), Qt::LeftButton, Qt::NoModifier, to);
  QTRY_COMPARE(table.view().model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("type"));
  QCOMPARE(header.logicalIndex(2), 2);
  table.click(0, 2);
  QTest::keyClick(&table.view(), Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
  QCOMPARE(table.view().model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("type"));
  QCOMPARE(table.view().currentIndex().column(), 1);
}

void TestTableOfElements::keepsChoicesWithTheCase() {
  const WorkspaceFixture workspace;
  Table table(workspace.geometry());
  table.choose(table.types(), QStringLiteral("Nodes"));
  table.type(table.column(QStringLiteral("p [bar]")), QStringLiteral(">49"));
  table.view().sortByColumn(0, Qt::DescendingOrder);
  const QStringList names{QStringLiteral("C"), QStringLiteral("A")};
  QCOMPARE(shownNames(table.dock()), names);
  table.choose(table.types(), QStringLiteral("Pipes"));
  QCOMPARE(shownNames(table.dock()), QStringList{QStringLiteral("P1")}); // without the filters of the nodes
  table.choose(table.types(), QStringLiteral("Nodes"));
  QCOMPARE(shownNames(table.dock()), names);
  table.viewer.open(workspace.scenario()); // the same case
  Table::settle();
  QCOMPARE(shownNames(table.dock()), names);
  const WorkspaceFixture another;
  table.viewer.open(another.geometry());
  Table::settle();
  table.choose(table.types(), QStringLiteral("Nodes"));
  QCOMPARE(table.rows(), 3);
}

void TestTableOfElements::copiesWhatIsShown() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry(WorkspaceFixture::soundGeometry().replace("\"p\":50", "\"p\":50.123456789,\"alias\":\"=A1\""));
  Table table(workspace.geometry());
  table.choose(table.types(), QStringLiteral("Nodes"));
  table.view().sortByColumn(table.column(QStringLiteral("p [bar]")), Qt::DescendingOrder);
  table.type(table.column(QStringLiteral("p [bar]")), QStringLiteral("<60"));
  QTest::keyClick(&table.view(), Qt::Key_A, Qt::ControlModifier);
  Table::settle();
  QTest::keyClick(&table.view(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
  QCOMPARE(lines.size(), 4); // with the end of the last one
  const int p = table.column(QStringLiteral("p [bar]"));
  QCOMPARE(lines[0].split(QLatin1Char('\t'))[p], QStringLiteral("p [bar]"));
  QCOMPARE(lines[1].split(QLatin1Char('\t'))[0], QStringLiteral("A"));
  QCOMPARE(lines[1].split(QLatin1Char('\t'))[p], QStringLiteral("50.123456789"));
  QCOMPARE(lines[2].split(QLatin1Char('\t'))[0], QStringLiteral("B"));
  QTest::keyClick(&table.view(), Qt::Key_C, Qt::ControlModifier);
  QCOMPARE(QApplication::clipboard()->text(), lines.mid(1).join(QLatin1Char('\n')));
  table.click(1, p);
  QTest::keyClick(&table.view(), Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
  QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("48"));
}

void TestTableOfElements::followsValuesAndCases() {
  const WorkspaceFixture workspace;
  Table table(workspace.geometry());
  table.choose(table.types(), QStringLiteral("Nodes"));
  const int p = table.column(QStringLiteral("p [bar]"));
  table.type(p, QStringLiteral(">49"));
  NetData &net = table.viewer.visControl()->net();
  net.element(QStringLiteral("B"))->set(QStringLiteral("p"), QStringLiteral("99"));
  emit table.viewer.findChild<ToolDocks *>()->elementsChanged({{QStringLiteral("B")}, PropertyKey::find("p")});
  Table::settle();
  QCOMPARE(table.cell(table.row(QStringLiteral("B")), p), QStringLiteral("99"));
  QCOMPARE(table.rows(), 3);
  workspace.writeGeometry("{ not a network");
  table.viewer.open(workspace.geometry()); // what was shown is gone
  Table::settle();
  QCOMPARE(table.rows(), 0);
  workspace.writeGeometry(WorkspaceFixture::soundGeometry());
  table.dock().hide();
  table.viewer.open(workspace.geometry());
  table.dock().show();
  Table::settle();
  QCOMPARE(table.types().itemText(0), QStringLiteral("All elements (5)"));
}

void TestTableOfElements::subnetsHaveTheirOwn() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry(WorkspaceFixture::geometryWithSubnet());
  Table table(workspace.geometry());
  emit table.viewer.visControl()->subnetWanted(QStringLiteral("M"));
  auto *window = table.viewer.findChild<SubnetWindow *>();
  auto *own = window->findChild<ElementTable *>();
  own->show();
  Table::settle();
  QVERIFY(own != &table.dock());
  const int all = table.viewer.visControl()->net().nodes().size() > 0 ? own->findChild<QComboBox *>()->count() : 0;
  QVERIFY(all > 1);
  table.viewer.open(workspace.geometry()); // the window of the subnet goes
  Table::settle();
}

NIVRA_TEST(TestTableOfElements);
#include "tst_tableofelements.moc"
