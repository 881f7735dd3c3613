#include "panels.h"
#include "workspacefixture.h"

#include <support/nivratest.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/nivranetobjectcats.h>
#include <tools/nivrasearch.h>
#include <tools/tablemenu.h>
#include <view/netviscontrol.h>

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>

namespace {

/// The search, in front.
NivraSearch &searchOf(NivraViewer &viewer) {
  auto &search = panelOf<NivraSearch>(viewer);
  search.show();
  search.raise();
  return search;
}

/// Types a path into the file dialog that is about to open and confirms it; remembers the folder in which it opened.
class FileDialogAnswer : public QObject {
public:
  explicit FileDialogAnswer(const QString &path) {
    connect(&m_timer, &QTimer::timeout, this, [this, path] {
      auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
      if (dialog == nullptr)
        return;
      m_timer.stop();
      folder = QDir(dialog->directory().path()).canonicalPath();
      auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
      name->setText(path);
      QTest::keyClick(name, Qt::Key_Return);
    });
    m_timer.start(5);
  }

  QString folder;

private:
  QTimer m_timer;
};

/// As the window system sends it, so that the toolkit gives the focus away as it does for a person.
void turnWheel(QWidget &widget) {
  const QPoint middle = widget.rect().center();
  QWheelEvent event(QPointF(middle), widget.mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&event);
  qApp->notify(&widget, &event);
}

} // namespace

/// What people expect of the tools because every program does it so.
class TestToolHabits : public QObject {
  Q_OBJECT

private slots:
  void hiddenResultsAreTold();
  void filtersEndWithTheCase();
  void resultsAreCopiedTogether();
  void toSearchBringsTheSearch();
  void dialogsRememberTheirFolder();
  void wheelScrollsPastFields();

private:
  WorkspaceFixture m_workspace;
};

void TestToolHabits::hiddenResultsAreTold() {
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  NivraSearch &search = searchOf(viewer);
  search.on_pushButton_search_clicked();
  QCOMPARE(shownNames(search).size(), 5);
  auto *notice = search.findChild<QLabel *>(QStringLiteral("label_filters"));
  auto *all = search.findChild<QPushButton *>(QStringLiteral("pushButton_showAll"));
  QVERIFY(notice != nullptr && all != nullptr);
  QVERIFY(!notice->isVisible() && !all->isVisible());
  auto *menu = search.findChild<TableMenu *>();
  menu->setFilter(1, QStringLiteral("n"));
  QVERIFY(notice->isVisible() && all->isVisible());
  QCOMPARE(notice->text(), QStringLiteral("2 rows hidden by filters: type n"));
  search.defineSearch({QStringLiteral("A"), QString(), QStringLiteral("^name$"), QString()}, false); // the filter holds
  QVERIFY2(notice->text().startsWith(QStringLiteral("0 rows hidden")), qPrintable(notice->text()));
  search.defineSearch({QStringLiteral("1"), QString(), QStringLiteral("^name$"), QString()}, false);
  QCOMPARE(shownNames(search).size(), 0);
  QVERIFY(notice->isVisible());
  QTest::mouseClick(all, Qt::LeftButton);
  QCOMPARE(shownNames(search).size(), 2);
  QVERIFY(!notice->isVisible() && !all->isVisible());
  menu->setFilter(0, QStringLiteral("K"));
  QCOMPARE(notice->text(), QStringLiteral("1 row hidden by filters: name K"));
  viewer.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&viewer));
  QTest::keyClick(search.findChild<QTableView *>(), Qt::Key_A, Qt::AltModifier);
  QTRY_COMPARE(shownNames(search).size(), 2);
}

void TestToolHabits::filtersEndWithTheCase() {
  const WorkspaceFixture another;
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  auto &search = panelOf<NivraSearch>(viewer);
  search.on_pushButton_search_clicked();
  search.findChild<TableMenu *>()->setFilter(0, QStringLiteral("A"));
  viewer.on_actionElement_Table_triggered();
  NivraVecTable *table = vectorTable();
  const int all = shownNames(*table).size();
  QVERIFY(all > 1);
  table->findChild<TableMenu *>()->setFilter(0, QStringLiteral("A"));
  QCOMPARE(shownNames(*table).size(), 1);
  viewer.open(another.scenario());
  QCOMPARE(shownNames(*table).size(), all);
  search.on_pushButton_search_clicked();
  QCOMPARE(shownNames(search).size(), 5);
  table->close();
}

void TestToolHabits::resultsAreCopiedTogether() {
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  NivraSearch &search = searchOf(viewer);
  viewer.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&viewer));
  search.on_pushButton_search_clicked();
  auto *table = search.findChild<QTableView *>();
  const auto copied = [table] {
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    QStringList names;
    for (const QString &line : QApplication::clipboard()->text().split(QLatin1Char('\n')))
      names.append(line.section(QLatin1Char('\t'), 0, 0));
    return names.join(QLatin1Char(' '));
  };
  const auto click = [table](int row, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers,
                      table->visualRect(table->model()->index(row, 0)).center());
  };
  table->setFocus();
  QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
  QCOMPARE(copied(), QStringLiteral("A B C K1 P1"));
  click(1, Qt::NoModifier);
  QCOMPARE(copied(), QStringLiteral("B"));
  click(3, Qt::ControlModifier);
  QCOMPARE(copied(), QStringLiteral("B K1"));
  QCOMPARE(viewer.visControl()->net().selection().names(), Selection::Names{QStringLiteral("K1")}); // the current row
  click(1, Qt::NoModifier);
  click(4, Qt::ShiftModifier);
  QCOMPARE(copied(), QStringLiteral("B C K1 P1"));
}

void TestToolHabits::toSearchBringsTheSearch() {
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  auto &search = panelOf<NivraSearch>(viewer);
  auto &layers = panelOf<NivraNetLayersEditor>(viewer);
  auto &categories = panelOf<NivraNetObjectCats>(viewer);
  search.show();
  layers.show();
  layers.raise(); // on the same side, in front
  QTRY_VERIFY(search.visibleRegion().isEmpty());
  categories.show();
  auto *table = categories.findChild<QTableView *>();
  table->setCurrentIndex(table->model()->index(0, 0));
  categories.findChild<QAbstractButton *>(QStringLiteral("toolButtonToSearch"))->click();
  QTRY_VERIFY(!search.visibleRegion().isEmpty());
}

void TestToolHabits::dialogsRememberTheirFolder() {
  const QTemporaryDir folder;
  const QString saved = QDir(folder.path()).canonicalPath();
  NivraViewer viewer;
  {
    viewer.open(m_workspace.geometry()); // as from the command line
    const FileDialogAnswer first(m_workspace.geometry());
    viewer.on_actionOpen_triggered();
    QCOMPARE(first.folder, QFileInfo(m_workspace.geometry()).dir().canonicalPath());
  }
  {
    const FileDialogAnswer second(m_workspace.geometry());
    viewer.on_actionOpen_triggered();
    QCOMPARE(second.folder, QFileInfo(m_workspace.geometry()).dir().canonicalPath());
  }
  auto &search = panelOf<NivraSearch>(viewer);
  search.on_pushButton_search_clicked();
  {
    const FileDialogAnswer first(saved + QStringLiteral("/a.csv"));
    search.on_pushButton_save_clicked();
    QVERIFY(QFile::exists(saved + QStringLiteral("/a.csv")));
  }
  {
    const FileDialogAnswer second(QStringLiteral("b.csv")); // in the same folder
    search.on_pushButton_save_clicked();
    QCOMPARE(second.folder, saved);
    QVERIFY(QFile::exists(saved + QStringLiteral("/b.csv")));
  }
  viewer.on_actionElement_Table_triggered();
  const FileDialogAnswer third(QStringLiteral("c.csv"));
  vectorTable()->on_pushButtonSave_clicked();
  QCOMPARE(third.folder, saved);
  QVERIFY(QFile::exists(saved + QStringLiteral("/c.csv")));
  vectorTable()->close();
}

/// A wheel that scrolls the panel changes no number that comes under it; one over the field that has the keyboard does.
void TestToolHabits::wheelScrollsPastFields() {
  NivraViewer viewer;
  viewer.resize(1000, 500);
  viewer.open(m_workspace.scenario());
  auto *dock = viewer.findChild<QDockWidget *>(QStringLiteral("configureDraw"));
  dock->show();
  viewer.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&viewer));
  auto *field = dock->findChild<QSpinBox *>(QStringLiteral("nodeMag"));
  for (QWidget *page = field; page != nullptr; page = page->parentWidget()) // the tab that holds it
    page->show();
  QVERIFY(field->isVisible() && !field->hasFocus());
  const int before = field->value();
  turnWheel(*field);
  QCOMPARE(field->value(), before);
  QVERIFY(!field->hasFocus());
  field->setFocus();
  turnWheel(*field);
  QVERIFY(field->value() != before);
}

NIVRA_TEST(TestToolHabits);
#include "tst_toolhabits.moc"
