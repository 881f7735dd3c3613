#include "properties/plotlabelview.h"
#include "properties/propertymodel.h"
#include "shared/numberdelegate.h"

#include <model/displayformat.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <tools/nivraeleinfowidget.h>
#include <tools/nivrapropviewer.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolTip>
#include <QTreeView>

class TestPropViewer : public QObject {
  Q_OBJECT

private slots:
  void groupsAndUnits();
  void subnetsHaveTheirOwnGroups();
  void hiddenAndNothing();
  void copiesCells();
  void filters();
  void elementInformation();
  void boundsAreRead();
  void markupOfAWorkspaceLoadsNothing();
  void longNamesNeedNoRoom();
  void numbersAreRoundedForTheEyeOnly();
  void machinesOpenTheirMaps();
  void bounds_data();
  void bounds();

private:
  /// As they are shown.
  static QStringList rows(const NivraPropViewer &viewer) {
    const QAbstractItemModel &model = *viewer.findChild<QTreeView *>()->model();
    QStringList list;
    for (int i = 0; i < model.rowCount(); ++i) {
      const QModelIndex group = model.index(i, 0);
      list.append(QLatin1Char('[') + group.data().toString() + QLatin1Char(']'));
      for (int k = 0; k < model.rowCount(group); ++k)
        list.append(QStringLiteral("%1=%2 %3")
                        .arg(model.index(k, 0, group).data().toString(), model.index(k, 1, group).data().toString(),
                             model.index(k, 2, group).data().toString())
                        .trimmed());
    }
    return list;
  }
  /// The cell of the first column, of a group or a property.
  static QModelIndex find(const QTreeView &tree, const char *text) {
    return tree.model()
        ->match(tree.model()->index(0, 0), Qt::DisplayRole, QString::fromLatin1(text), 1,
                Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
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
  const QStringList list = rows(viewer);
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
  QCOMPARE(rows(viewer), (QStringList{QStringLiteral("[scenario]"), QStringLiteral("[geometry]"),
                                      QStringLiteral("[results]"), QStringLiteral("a=1"), QStringLiteral("[extra]"),
                                      QStringLiteral("b=2"), QStringLiteral("name=S"), QStringLiteral("type=sub")}));
}

void TestPropViewer::hiddenAndNothing() {
  const NetData net;
  NivraPropViewer viewer(net);
  const element shown = node();
  viewer.setShowsHidden(true);
  viewer.showCurrentEleContents(&shown);
  QVERIFY(rows(viewer).contains(QStringLiteral("pLabel=x")));
  viewer.setActive(false);
  viewer.showCurrentEleContents(nullptr);
  QCOMPARE(viewer.elementName(), QStringLiteral("A"));
}

void TestPropViewer::copiesCells() {
  const NetData net;
  NivraPropViewer viewer(net);
  const element shown = makeElement({{"name", "A"}, {"type", "n"}, {"p", "50"}, {"t", "283.15"}});
  viewer.showCurrentEleContents(&shown);
  auto *tree = viewer.findChild<QTreeView *>();
  const QModelIndex results = find(*tree, "results");
  QItemSelectionModel *cells = tree->selectionModel();
  for (const int row : {0, 1})
    for (const int column : {PropertyModel::ValueColumn, PropertyModel::UnitColumn})
      cells->select(tree->model()->index(row, column, results), QItemSelectionModel::Select);
  cells->select(tree->model()->index(0, 0), QItemSelectionModel::Select); // a group row does not count
  viewer.on_actionCopy_triggered();
  QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("50\tbar\n10\tdegC\n"));
}

void TestPropViewer::filters() {
  const NetData net;
  NivraPropViewer viewer(net);
  auto *tree = viewer.findChild<QTreeView *>();
  const QAbstractItemModelTester source(viewer.findChild<PropertyModel *>());
  const QAbstractItemModelTester filtered(tree->model());
  const element shown = node();
  viewer.showCurrentEleContents(&shown);
  const int all = rows(viewer).size();
  auto *filter = viewer.findChild<QLineEdit *>();
  const auto propertiesShown = [&viewer] {
    return rows(viewer).filter(QStringLiteral("="));
  };
  filter->setText(QStringLiteral("OWN"));
  QCOMPARE(propertiesShown(), QStringList{QStringLiteral("own=7")});
  QCOMPARE(rows(viewer).size(), 6); // every group stays
  viewer.showCurrentEleContents(&shown);
  QCOMPARE(propertiesShown().size(), 1);
  filter->setText(QStringLiteral("a text"));
  QCOMPARE(propertiesShown().size(), 1); // of a value
  filter->clear();
  QCOMPARE(rows(viewer).size(), all);
  QVERIFY(tree->isExpanded(find(*tree, "extra")));
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
  auto *label = widget.findChild<PlotLabelView *>();
  QCOMPARE(label->plainText(), QStringLiteral("label"));
  QCOMPARE(text("labelBounds"), QStringLiteral("a<br/>b"));
  widget.resize(300, 300);
  widget.show();
  QVERIFY(QTest::qWaitForWindowExposed(&widget));
  const QImage picture = label->grab().toImage();
  QCOMPARE(picture.pixelColor(picture.width() - 1, 0), QColor(Qt::yellow));
  widget.showEleLabel(nullptr);
  QVERIFY(text("labelBounds").isEmpty());
  widget.reset();
  QCOMPARE(text("labelSubnet"), QStringLiteral("   No subnet marked!   "));
}

/// As a person sees them: a line each, none of it lost.
void TestPropViewer::boundsAreRead() {
  NivraEleInfoWidget widget({});
  widget.resize(400, 300);
  const auto height = [&widget](const char *info) {
    const element e = makeElement({{"name", "A"}, {"type", "n"}, {"CB_info", info}});
    widget.showEleLabel(&e);
    return widget.findChild<QLabel *>(QStringLiteral("labelBounds"))->heightForWidth(300);
  };
  const int one = height("(p 45 48 bar;)");
  QCOMPARE(height("(p = 45 < 48 bar;)"), one);
  QCOMPARE(height("(<br><br><br>;)"), one);
  QVERIFY(height("(p = 45 < 48 bar;v = 30 > 20 m/s;)") > one);
}

void TestPropViewer::markupOfAWorkspaceLoadsNothing() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("high.png"));
  QImage high(20, 900, QImage::Format_RGB32);
  high.fill(Qt::red);
  QVERIFY(high.save(path));
  const QString markup = QStringLiteral("<img src=\"%1\"><img src=\"file:%1\"><a href=\"file:%1\">x</a>").arg(path);
  PlotLabelView label;
  label.resize(300, 300);
  label.setLabel(markup + QStringLiteral("<table background=\"%1\"><tr><td>x</td></tr></table>").arg(path), QFont(),
                 Qt::black);
  QVERIFY(label.heightForWidth(300) < 300);
  const QImage picture = label.grab().toImage();
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      QVERIFY(picture.pixelColor(x, y) != QColor(Qt::red));

  const NetData net;
  NivraPropViewer viewer(net);
  element shown = makeElement({{"type", "n"}});
  shown.set(QStringLiteral("name"), markup);
  viewer.showCurrentEleContents(&shown);
  viewer.show();
  auto *tree = viewer.findChild<QTreeView *>();
  const QModelIndex row = find(*tree, "name");
  QVERIFY(row.isValid());
  const QPoint inValue(tree->columnViewportPosition(1) + 3, tree->visualRect(row).center().y());
  QHelpEvent help(QEvent::ToolTip, inValue, tree->viewport()->mapToGlobal(inValue));
  QApplication::sendEvent(tree->viewport(), &help);
  QVERIFY(QToolTip::text().contains(QStringLiteral("&lt;img src=")));
  QVERIFY(!QToolTip::text().contains(QStringLiteral("<img")));
  QToolTip::hideText();
}

void TestPropViewer::longNamesNeedNoRoom() {
  const NetData net;
  QMainWindow window;
  NivraPropViewer viewer(net);
  NivraEleInfoWidget info({});
  window.addDockWidget(Qt::RightDockWidgetArea, &viewer);
  const QSize panel = viewer.minimumSizeHint();
  const QSize information = info.minimumSizeHint();
  const QString action = viewer.toggleViewAction()->text();
  element shown = makeElement({{"type", "n"}, {"CB_info", QByteArray(300, 'x').constData()}});
  shown.set(QStringLiteral("name"), QString(300, QLatin1Char('W')));
  viewer.showCurrentEleContents(&shown);
  info.showEleLabel(&shown);
  info.showSubLabel(&shown);
  QCOMPARE(viewer.minimumSizeHint().width(), panel.width());
  QCOMPARE(info.minimumSizeHint().width(), information.width());
  QCOMPARE(viewer.toggleViewAction()->text(), action);
  const auto *tree = viewer.findChild<QTreeView *>();
  QVERIFY2(tree->columnWidth(1) < 200, qPrintable(QString::number(tree->columnWidth(1)))); // the unit stays in sight
  window.removeDockWidget(&viewer);
  viewer.setParent(nullptr);
}

void TestPropViewer::numbersAreRoundedForTheEyeOnly() {
  const std::pair<const char *, const char *> numbers[] = {
      {"83.84299999999999", "83.843"}, {"0.033697930194084", "0.0336979"}, {"-1.23456789e-9", "-1.23457e-09"},
      {"1234567", "1234567"},          {"1234567.89", "1234568"},          {"10.5", "10.5"},
      {"0.000001", "0.000001"},        {"2021-12-31.5", "2021-12-31.5"},   {"version 1.2345678", "version 1.2345678"}};
  for (const auto &[exact, seen] : numbers)
    QCOMPARE(DisplayFormat::shown(QString::fromLatin1(exact), false), QString::fromLatin1(seen));

  const NetData net;
  NivraPropViewer viewer(net);
  const element shown = makeElement(
      {{"name", "1.23456789012"}, {"type", "n"}, {"a", "83.84299999999999"}, {"b", "83.843"}, {"c", "1.23456789012"}});
  viewer.showCurrentEleContents(&shown);
  auto *tree = viewer.findChild<QTreeView *>();
  const auto width = [&](const char *property) {
    const QModelIndex value = find(*tree, property).siblingAtColumn(PropertyModel::ValueColumn);
    return tree->itemDelegate()->sizeHint(QStyleOptionViewItem(), value).width();
  };
  const auto askFor = [&](const char *property) {
    const QPoint spot(tree->columnViewportPosition(1) + 3, tree->visualRect(find(*tree, property)).center().y());
    QHelpEvent help(QEvent::ToolTip, spot, tree->viewport()->mapToGlobal(spot));
    QApplication::sendEvent(tree->viewport(), &help);
  };
  viewer.resize(400, 600);
  viewer.show();
  askFor("a");
  QCOMPARE(QToolTip::text(), QStringLiteral("83.84299999999999"));
  askFor("b"); // which is all there
  QTRY_COMPARE(QToolTip::text(), QString());
  QCOMPARE(width("a"), width("b"));
  QVERIFY(width("c") < width("name")); // a name stays what it is
  tree->setCurrentIndex(find(*tree, "a").siblingAtColumn(PropertyModel::ValueColumn));
  viewer.on_actionCopy_triggered();
  QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("83.84299999999999\n"));
}

void TestPropViewer::machinesOpenTheirMaps() {
  const NetData net;
  NivraPropViewer viewer(net);
  auto *open = viewer.findChild<QAction *>(QStringLiteral("actionOpenCharacteristics"));
  QVERIFY(viewer.findChild<QTreeView *>()->actions().contains(open));
  const element pipe = makeEdge("P", "A", "B");
  viewer.showCurrentEleContents(&pipe);
  QVERIFY(!open->isVisible());
  const element compressor = makeEdge("K", "A", "B", "c");
  viewer.showCurrentEleContents(&compressor);
  QVERIFY(open->isVisible());
  const QSignalSpy wanted(&viewer, &NivraPropViewer::characteristicsWanted);
  open->trigger();
  QCOMPARE(wanted.value(0).value(0).toStringList(), QStringList{QStringLiteral("K")});
  viewer.showCurrentEleContents(nullptr);
  QVERIFY(!open->isVisible());
}

void TestPropViewer::bounds_data() {
  QTest::addColumn<QString>("info");
  QTest::addColumn<QString>("shown");
  QTest::newRow("two") << QStringLiteral("(a;b;)") << QStringLiteral("a<br/>b");
  QTest::newRow("comparison") << QStringLiteral("(p = 45 < 48 bar;q > 1;)")
                              << QStringLiteral("p = 45 &lt; 48 bar<br/>q &gt; 1");
  QTest::newRow("markup") << QStringLiteral("<img src='x'>") << QStringLiteral("&lt;img src='x'&gt;");
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
