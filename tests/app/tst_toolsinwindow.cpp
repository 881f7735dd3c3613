#include "canvas/qwtfastplot.h"
#include "panels.h"
#include "subnetwindow.h"
#include "windowplace.h"
#include "workspacefixture.h"

#include <base/fileaccess.h>
#include <base/logfiles.h>
#include <base/nivramsg.h>
#include <support/answers.h>
#include <support/nivratest.h>
#include <tools/category.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/nivranetobjectcats.h>
#include <tools/nivrapropviewer.h>
#include <tools/nivrasearch.h>
#include <view/netviscontrol.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTableView>
#include <QTableWidget>
#include <QTreeView>

namespace {

QWidget &dockOf(NivraViewer &viewer, const char *name) {
  return *viewer.findChild<QWidget *>(QString::fromLatin1(name));
}

/// Where an element stands on the screen, seen from the canvas.
QPoint canvasPoint(NivraViewer &viewer, double x, double y) {
  return viewer.visControl()->plot()->update().projection().map(x, y).toPoint();
}

void hover(NivraViewer &viewer, const QPoint &point) {
  QWidget *canvas = viewer.visControl()->plot()->plot()->canvas();
  QMouseEvent move(QEvent::MouseMove, point, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(canvas, &move);
  QApplication::processEvents();
}

void click(NivraViewer &viewer, const QPoint &point) {
  QTest::mouseClick(viewer.visControl()->plot()->plot()->canvas(), Qt::LeftButton, Qt::NoModifier, point);
  QApplication::processEvents();
}

} // namespace

/// The inspection tools beside the drawing, with mouse and keys.
class TestToolsInWindow : public QObject {
  Q_OBJECT

private slots:
  void panelsShowWhatIsMarkedWhenTheyOpen();
  void tablesComeBesideAndStayWhereTheyWerePut();
  void drawingStandsStillUnderTheMouse();
  void tableShowsTheNewSearch();
  void publicNamesStandAsPeopleCount();
  void hiddenLayersStayHiddenUnderAnotherName();
  void editsAreAskedAboutBeforeAnotherCase();
  void windowsShareTheirCategories();
  void whatIsBeingTypedIsNotLost();

private:
  WorkspaceFixture m_workspace;
};

void TestToolsInWindow::tablesComeBesideAndStayWhereTheyWerePut() {
  QFile::remove(LogFiles::directory() + QStringLiteral("/windowplaces.json"));
  const WorkspaceFixture workspace;
  const QRect own(60, 90, 420, 260);
  {
    NivraViewer viewer;
    viewer.open(workspace.geometry());
    viewer.setGeometry(200, 150, 500, 400);
    QWidget *first = new QWidget(&viewer, Qt::Window); // smaller than the screen of a test
    first->resize(240, 180);
    new WindowPlace(*first, QStringLiteral("first"), viewer);
    first->show();
    const QPoint off = first->geometry().center() - viewer.geometry().center();
    QVERIFY2(off.manhattanLength() < 5, qPrintable(QStringLiteral("%1 %2").arg(off.x()).arg(off.y())));
    auto *second = new QWidget(&viewer, Qt::Window);
    second->resize(first->size());
    new WindowPlace(*second, QStringLiteral("first"), viewer);
    second->show();
    QVERIFY(second->pos() != first->pos()); // which it would hide
    viewer.on_actionElement_Table_triggered();
    QVERIFY(viewer.screen()->availableGeometry().contains(vectorTable()->geometry().topLeft()));
    vectorTable()->setGeometry(own);
    vectorTable()->close();
    viewer.on_actionElement_Table_triggered();
    QCOMPARE(vectorTable()->geometry(), own);
    vectorTable()->close();
  }
  NivraViewer viewer; // the next day
  viewer.open(workspace.geometry());
  viewer.on_actionElement_Table_triggered();
  QCOMPARE(vectorTable()->geometry(), own);
  vectorTable()->close();
}

void TestToolsInWindow::panelsShowWhatIsMarkedWhenTheyOpen() {
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  auto &properties = panelOf<NivraPropViewer>(viewer);
  auto *element = viewer.findChild<QLabel *>(QStringLiteral("labelElement"));
  click(viewer, canvasPoint(viewer, 0, 0));
  QCOMPARE(viewer.visControl()->net().selection().names(), Selection::Names{QStringLiteral("A")});
  properties.toggleViewAction()->trigger();
  QVERIFY(properties.isVisible());
  QCOMPARE(properties.elementName(), QStringLiteral("A"));
  QVERIFY(properties.findChild<QTreeView *>()->model()->rowCount() > 0);
  auto &information = static_cast<QDockWidget &>(dockOf(viewer, "elementInformation"));
  information.toggleViewAction()->trigger();
  QTRY_VERIFY(element->isVisible());
  QVERIFY2(element->text().contains(QStringLiteral("Element: A")), qPrintable(element->text()));

  // Behind the other tab it follows what is marked meanwhile.
  click(viewer, canvasPoint(viewer, 100, 80));
  properties.raise();
  QTRY_VERIFY(!properties.visibleRegion().isEmpty());
  QTRY_COMPARE(properties.elementName(), QStringLiteral("C"));
  viewer.visControl()->net().selection().clear();
  properties.hide();
  properties.show();
  QVERIFY(properties.elementName().isEmpty()); // nothing is marked
  information.hide();
  information.show();
  QTRY_COMPARE(element->text().trimmed(), QStringLiteral("No element marked!"));
}

void TestToolsInWindow::drawingStandsStillUnderTheMouse() {
  const QByteArray longName(120, 'N');
  const WorkspaceFixture workspace;
  workspace.writeGeometry(WorkspaceFixture::soundGeometry().replace("\"C\"", '"' + longName + '"'));
  NivraViewer viewer;
  viewer.open(workspace.geometry());
  auto &properties = panelOf<NivraPropViewer>(viewer);
  for (const char *name : {"elementInformation", "configureDraw", "propertyViewer"})
    dockOf(viewer, name).show();
  properties.raise();
  QTest::qWait(50);
  const QWidget *plot = viewer.centralWidget();
  const QRect before = plot->geometry();
  QStringList tabs;
  const auto tabTexts = [&viewer] {
    QStringList texts;
    for (const QTabBar *bar : viewer.findChildren<QTabBar *>())
      for (int i = 0; i < bar->count(); ++i)
        texts.append(bar->tabText(i));
    return texts;
  };
  const QStringList texts = tabTexts();
  QVERIFY(texts.contains(QStringLiteral("Property Viewer")));
  for (const char *shown : {"propertyViewer", "elementInformation"}) {
    dockOf(viewer, shown).raise();
    QTest::qWait(50);
    QCOMPARE(plot->geometry(), before);
    for (const QPoint &point : {canvasPoint(viewer, 0, 0), canvasPoint(viewer, 100, 80)}) {
      hover(viewer, point);
      QTest::qWait(20);
      QCOMPARE(plot->geometry(), before);
      QCOMPARE(tabTexts(), texts);
    }
  }
  dockOf(viewer, "propertyViewer").raise();
  QTest::qWait(50);
  hover(viewer, canvasPoint(viewer, 50, 0));
  hover(viewer, canvasPoint(viewer, 100, 80));
  QCOMPARE(properties.elementName(), QString::fromLatin1(longName));
  QVERIFY(properties.windowTitle().startsWith(QStringLiteral("Properties of NNN")));
  QCOMPARE(properties.findChild<QLabel *>(QStringLiteral("labelTitle"))->text(), properties.windowTitle());
  QCOMPARE(plot->geometry(), before);
  click(viewer, canvasPoint(viewer, 100, 80)); // hits what was under the mouse
  QCOMPARE(viewer.visControl()->net().selection().names(), Selection::Names{QString::fromLatin1(longName)});
}

void TestToolsInWindow::tableShowsTheNewSearch() {
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  auto &search = panelOf<NivraSearch>(viewer);
  search.enterLastField();
  auto *name = search.findChild<QLineEdit *>(QStringLiteral("lineEdit_name"));
  const auto searchFor = [name](const char *text) {
    name->clear();
    QTest::keyClicks(name, QString::fromLatin1(text));
    QTest::keyClick(name, Qt::Key_Return);
  };
  searchFor("A");
  search.findChild<QPushButton *>(QStringLiteral("pushButton_toTable"))->click();
  NivraVecTable *table = vectorTable();
  QVERIFY(table != nullptr && table->isVisible());
  QCOMPARE(shownNames(*table), QStringList{QStringLiteral("A")});
  searchFor("B"); // while it is there
  QCOMPARE(shownNames(*table), QStringList{QStringLiteral("B")});
  table->on_pushButtonClose_clicked();
  searchFor("P");
  searchFor("K"); // while it is not
  viewer.on_actionElement_Table_triggered();
  QCOMPARE(shownNames(*table), QStringList{QStringLiteral("K1")});
  table->close();
}

void TestToolsInWindow::publicNamesStandAsPeopleCount() {
  const QString path = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/GasLib-40/N1/N1.scen.jsn");
  if (!QFile::exists(path))
    QSKIP("there is no public network");
  NivraViewer viewer;
  viewer.open(path);
  auto &search = panelOf<NivraSearch>(viewer);
  search.defineSearch({QString(), QStringLiteral("^p$"), QStringLiteral("^name$"), QString()}, false);
  search.findChild<QPushButton *>(QStringLiteral("pushButton_toTable"))->click();
  const QStringList shown = shownNames(*vectorTable());
  QVERIFY(shown.size() > 11);
  for (int i = 0; i < shown.size(); ++i)
    QCOMPARE(shown.at(i), QStringLiteral("pipe_%1").arg(i + 1));
  vectorTable()->close();
}

void TestToolsInWindow::hiddenLayersStayHiddenUnderAnotherName() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry(WorkspaceFixture::soundGeometry()
                              .replace("\"p\":50", "\"p\":50,\"vis.layer\":\"west\"")
                              .replace("\"p\":60", "\"p\":60,\"vis.layer\":\"east\""));
  NivraViewer viewer;
  viewer.open(workspace.geometry());
  auto &layers = panelOf<NivraNetLayersEditor>(viewer);
  layers.show();
  auto *table = layers.findChild<QTableView *>();
  QAbstractItemModel &model = *table->model();
  QCOMPARE(model.rowCount(), 2);
  const NetUpdate &update = viewer.visControl()->plot()->update();
  const auto isDrawn = [&](double x, double y) {
    for (const Hit &hit : update.elementsAt(update.projection().map(x, y), 4.0)) {
      if (hit.item.kind == NetData::Node)
        return true;
    }
    return false;
  };
  QVERIFY(isDrawn(0, 0));
  model.setData(model.index(1, 0), Qt::Unchecked, Qt::CheckStateRole);
  QApplication::processEvents();
  QVERIFY(!isDrawn(0, 0) && isDrawn(100, 80));
  layers.on_toolButtonInvert_clicked();
  QApplication::processEvents();
  QVERIFY(isDrawn(0, 0) && !isDrawn(100, 80));
  layers.on_toolButtonInvert_clicked();

  table->setCurrentIndex(model.index(1, 1));
  table->edit(table->currentIndex());
  auto *field = table->findChild<QLineEdit *>();
  field->selectAll();
  QTest::keyClicks(field, QStringLiteral("abroad"));
  {
    const Answers yes({NivraMsg::Answer::Yes});
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_VERIFY(yes.areGiven()); // after the field is closed
  }
  QCOMPARE(viewer.visControl()->net().element(QStringLiteral("A"))->value(QStringLiteral("vis.layer")),
           QStringLiteral("abroad"));
  QVERIFY(!isDrawn(0, 0) && isDrawn(100, 80));
  QCOMPARE(model.index(0, 1).data().toString(), QStringLiteral("abroad"));
  QCOMPARE(model.index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
  QCOMPARE(table->currentIndex().row(), 0);

  workspace.writeGeometry(WorkspaceFixture::soundGeometry().replace("\"p\":50", "\"p\":50,\"vis.layer\":\"abroad\""));
  viewer.open(workspace.geometry()); // layers are known by name
  QVERIFY(!isDrawn(0, 0));
  QCOMPARE(model.index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
  table->selectRow(0);
  const Answers yes({NivraMsg::Answer::Yes});
  layers.on_toolButtonDel_clicked();
  QApplication::processEvents();
  QVERIFY(yes.areGiven() && isDrawn(0, 0));
}

void TestToolsInWindow::editsAreAskedAboutBeforeAnotherCase() {
  const WorkspaceFixture workspace;
  NivraViewer viewer;
  viewer.open(workspace.geometry());
  auto &categories = panelOf<NivraNetObjectCats>(viewer);
  categories.show();
  categories.findChild<QAbstractButton *>(QStringLiteral("toolButtonAdd"))->click();
  QCOMPARE(categories.categories().size(), std::size_t(2));
  const QString title = viewer.windowTitle();
  {
    const Answers cancel({NivraMsg::Answer::Cancel, NivraMsg::Answer::Cancel});
    viewer.open(m_workspace.scenario());
    QCOMPARE(viewer.windowTitle(), title);
    QVERIFY(!viewer.close());
    QVERIFY(cancel.areGiven());
  }
  const Answers save({NivraMsg::Answer::Save});
  viewer.open(m_workspace.scenario());
  QVERIFY(save.areGiven());
  QVERIFY(viewer.windowTitle() != title);
  QVERIFY(QFile::exists(workspace.path(QStringLiteral("CASE/catdef.csv"))));
  QVERIFY(!QFile::exists(m_workspace.path(QStringLiteral("CASE/catdef.csv"))));
  QCOMPARE(categories.categories().size(), std::size_t(1));
  QVERIFY(viewer.close());
}

static QStringList categoryNames(const std::vector<Category> &categories) {
  QStringList names;
  for (const Category &category : categories)
    names.append(category.category);
  return names;
}

/// With the button and a text in the new row.
static void addCategory(NivraNetObjectCats &panel, const QString &name) {
  panel.findChild<QAbstractButton *>(QStringLiteral("toolButtonAdd"))->click();
  QAbstractItemModel &model = *panel.findChild<QTableView *>()->model();
  model.setData(model.index(model.rowCount() - 1, 0), name);
}

void TestToolsInWindow::windowsShareTheirCategories() {
  const WorkspaceFixture workspace;
  const QString file = workspace.path(QStringLiteral("CASE/catdef.csv"));
  workspace.writeGeometry(WorkspaceFixture::geometryWithSubnet());
  workspace.write(QStringLiteral("CASE/catdef.csv"), "pipes;;^p$;^name$;\n");
  NivraViewer viewer;
  viewer.open(workspace.geometry());
  auto &whole = panelOf<NivraNetObjectCats>(viewer);
  addCategory(whole, QStringLiteral("before"));
  emit viewer.visControl()->subnetWanted(QStringLiteral("M"));
  QPointer<SubnetWindow> window = viewer.findChild<SubnetWindow *>();
  QVERIFY(window != nullptr);
  auto &part = *window->findChild<NivraNetObjectCats *>();
  addCategory(part, QStringLiteral("in the subnet"));
  addCategory(whole, QStringLiteral("after"));
  const QStringList all{QStringLiteral("fromSearch"), QStringLiteral("pipes"), QStringLiteral("before"),
                        QStringLiteral("in the subnet"), QStringLiteral("after")};
  QCOMPARE(categoryNames(whole.categories()), all);
  QCOMPARE(categoryNames(part.categories()), all);
  whole.updateTempCategory({QStringLiteral("own"), QString(), QString(), QString()});
  QVERIFY(part.categories().front().name.isEmpty()); // each window has its own search
  {
    const Answers cancel({NivraMsg::Answer::Cancel, NivraMsg::Answer::Cancel});
    viewer.open(m_workspace.scenario());
    QVERIFY(window != nullptr);
    QVERIFY(!viewer.close());
    QVERIFY(cancel.areGiven());
  }
  part.findChild<QAbstractButton *>(QStringLiteral("pushButtonOK"))->click();
  whole.findChild<QAbstractButton *>(QStringLiteral("pushButtonOK"))->click(); // overwrites nothing
  QCOMPARE(categoryNames(CategoryFile::read(file)), all.mid(1));
  auto *table = part.findChild<QTableView *>();
  table->setCurrentIndex(table->model()->index(1, 0));
  part.findChild<QAbstractButton *>(QStringLiteral("toolButtonRemove"))->click();
  {
    const Answers none({});
    QVERIFY(window->close()); // its changes are the program's
    QVERIFY(none.areGiven());
  }
  const Answers save({NivraMsg::Answer::Save});
  viewer.open(m_workspace.scenario());
  QVERIFY(save.areGiven());
  FileAccess::confineTo(workspace.root()); // again, to look at its file
  QCOMPARE(categoryNames(CategoryFile::read(file)), all.mid(2));
  QCOMPARE(whole.categories().size(), std::size_t(1));
}

void TestToolsInWindow::whatIsBeingTypedIsNotLost() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/catdef.csv"), "pipes;;^p$;^name$;\n");
  NivraViewer viewer;
  viewer.open(workspace.geometry());
  auto &categories = panelOf<NivraNetObjectCats>(viewer);
  categories.show();
  QVERIFY(QTest::qWaitForWindowActive(&viewer));
  auto *table = categories.findChild<QTableView *>();
  table->setFocus();
  table->setCurrentIndex(table->model()->index(1, 1));
  table->edit(table->currentIndex());
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("typed"));
  const Answers save({NivraMsg::Answer::Save});
  QVERIFY(viewer.close());
  QVERIFY(save.areGiven());
  QCOMPARE(CategoryFile::read(workspace.path(QStringLiteral("CASE/catdef.csv"))).at(0).name, QStringLiteral("typed"));
}

NIVRA_TEST(TestToolsInWindow);
#include "tst_toolsinwindow.moc"
