#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <tools/nivraeleinfowidget.h>
#include <tools/nivrapropviewer.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>

class TestPropViewer : public QObject {
  Q_OBJECT

private slots:
  void groupsAndUnits();
  void subnetsHaveTheirOwnGroups();
  void hiddenAndNothing();
  void copiesCells();
  void filters();
  void elementInformation();
  void bounds_data();
  void bounds();

private:
  static QStringList rows(const QTreeWidget &tree) {
    QStringList list;
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
      const QTreeWidgetItem *group = tree.topLevelItem(i);
      list.append(QLatin1Char('[') + group->text(0) + QLatin1Char(']'));
      for (int k = 0; k < group->childCount(); ++k)
        list.append(QStringLiteral("%1=%2 %3")
                        .arg(group->child(k)->text(0), group->child(k)->text(1), group->child(k)->text(2))
                        .trimmed());
    }
    return list;
  }
  static element node() {
    return makeElement({{"name", "A"},
                        {"type", "n"},
                        {"x", "1"},
                        {"t", "283.15"},
                        {"vis.color", "red"},
                        {"own", "7"},
                        {"pLabel", "x"},
                        {"t.transient", "5"},
                        {"comment", "a text of more than 15"}});
  }
};

void TestPropViewer::groupsAndUnits() {
  const NetData net;
  NivraPropViewer viewer(net);
  viewer.showCurrentEleContents(nullptr);
  QCOMPARE(viewer.windowTitle(), QStringLiteral("Property Viewer (Hover Over Element First!)"));
  const element shown = node();
  viewer.showCurrentEleContents(&shown);
  QCOMPARE(viewer.windowTitle(), QStringLiteral("Properties of A of type n"));
  const QStringList list = rows(*viewer.findChild<QTreeWidget *>());
  QCOMPARE(list.filter(QStringLiteral("[")),
           (QStringList{QStringLiteral("[favorites]"), QStringLiteral("[scenario]"), QStringLiteral("[geometry]"),
                        QStringLiteral("[results]"), QStringLiteral("[extra]")}));
  QCOMPARE(list.count(QStringLiteral("t=10 degC")), 2); // a favourite stands twice
  QVERIFY(list.indexOf(QStringLiteral("own=7")) > list.indexOf(QStringLiteral("[extra]")));
  QVERIFY(list.contains(QStringLiteral("t.transient=5")));
  QVERIFY(list.filter(QStringLiteral("pLabel")).isEmpty());
}

void TestPropViewer::subnetsHaveTheirOwnGroups() {
  const NetData net;
  NivraPropViewer viewer(net);
  const element shown = makeElement({{"name", "S"},
                                     {"type", "sub"},
                                     {"a", "1"},
                                     {"a.cat", "results"},
                                     {"b", "2"},
                                     {"b.unit", "bar"},
                                     {"subassemblies", "x"},
                                     {"isSearchResult", "1"}});
  viewer.showCurrentEleContents(&shown);
  QCOMPARE(rows(*viewer.findChild<QTreeWidget *>()),
           (QStringList{QStringLiteral("[scenario]"), QStringLiteral("[geometry]"), QStringLiteral("[results]"),
                        QStringLiteral("a=1"), QStringLiteral("[extra]"), QStringLiteral("b=2"), QStringLiteral("name=S"),
                        QStringLiteral("type=sub")}));
}

void TestPropViewer::hiddenAndNothing() {
  const NetData net;
  NivraPropViewer viewer(net);
  const element shown = node();
  viewer.setShowsHidden(true);
  viewer.showCurrentEleContents(&shown);
  QVERIFY(rows(*viewer.findChild<QTreeWidget *>()).contains(QStringLiteral("pLabel=x")));
  viewer.setActive(false);
  viewer.showCurrentEleContents(nullptr);
  QCOMPARE(viewer.elementName(), QStringLiteral("A"));
}

void TestPropViewer::copiesCells() {
  const NetData net;
  NivraPropViewer viewer(net);
  const element shown = makeElement({{"name", "A"}, {"type", "n"}, {"p", "50"}, {"t", "283.15"}});
  viewer.showCurrentEleContents(&shown);
  auto *tree = viewer.findChild<QTreeWidget *>();
  QTreeWidgetItem *results = tree->findItems(QStringLiteral("results"), Qt::MatchExactly).first();
  QItemSelectionModel *cells = tree->selectionModel();
  for (const int row : {0, 1})
    for (const int column : {1, 2})
      cells->select(tree->model()->index(row, column, tree->model()->index(tree->indexOfTopLevelItem(results), 0)),
                    QItemSelectionModel::Select);
  cells->select(tree->model()->index(0, 0), QItemSelectionModel::Select); // a group row does not count
  viewer.on_actionCopy_triggered();
  QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("50\tbar\n10\tdegC\n"));
}

void TestPropViewer::filters() {
  const NetData net;
  NivraPropViewer viewer(net);
  const element shown = node();
  viewer.showCurrentEleContents(&shown);
  viewer.findChild<QLineEdit *>()->setText(QStringLiteral("OWN"));
  int visible = 0;
  for (QTreeWidgetItemIterator item(viewer.findChild<QTreeWidget *>()); *item != nullptr; ++item)
    visible += (*item)->parent() != nullptr && !(*item)->isHidden() ? 1 : 0;
  QCOMPARE(visible, 1);
}

void TestPropViewer::elementInformation() {
  NivraEleInfoWidget widget([](const element &) {
    return NivraEleInfoWidget::PlotLabel{QStringLiteral("label"), QFont(), Qt::red, Qt::yellow};
  });
  const auto text = [&widget](const char *name) {
    return widget.findChild<QLabel *>(QString::fromLatin1(name))->text();
  };
  QCOMPARE(text("labelElement"), QStringLiteral("No element marked"));
  const element shown = makeElement({{"name", "A<b"}, {"type", "n"}, {"CB_info", "(a;b;)"}});
  widget.showEleLabel(&shown);
  QCOMPARE(text("labelElement"), QStringLiteral("   <b>Element: A&lt;b</b>   "));
  QCOMPARE(text("labelContents"), QStringLiteral("label"));
  QCOMPARE(text("labelBounds"), QStringLiteral("a</br>b"));
  QCOMPARE(widget.findChild<QLabel *>(QStringLiteral("labelContents"))->palette().color(QPalette::Window),
           QColor(Qt::yellow));
  widget.showEleLabel(nullptr);
  QVERIFY(text("labelBounds").isEmpty());
  widget.reset();
  QCOMPARE(text("labelSubnet"), QStringLiteral("   No subnet marked!   "));
}

void TestPropViewer::bounds_data() {
  QTest::addColumn<QString>("info");
  QTest::addColumn<QString>("shown");
  QTest::newRow("two") << QStringLiteral("(a;b;)") << QStringLiteral("a</br>b");
  QTest::newRow("brackets only") << QStringLiteral("()") << QString();
  QTest::newRow("semicolon only") << QStringLiteral(";") << QString();
  QTest::newRow("one of two brackets") << QStringLiteral("((a)") << QStringLiteral("(a");
}

void TestPropViewer::bounds() {
  QFETCH(QString, info);
  QFETCH(QString, shown);
  QCOMPARE(NivraEleInfoWidget::bounds(info), shown);
}

NIVRA_TEST(TestPropViewer);
#include "tst_propviewer.moc"
