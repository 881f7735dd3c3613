#include "recentmenu.h"
#include "recentmodel.h"
#include "remembering.h"
#include "startpage.h"
#include "workspacefixture.h"

#include <support/answers.h>
#include <support/nivratest.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QAbstractItemModelTester>
#include <QDropEvent>
#include <QFileDialog>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>

/// What was opened before: on the start page, in the menu and in the dialog.
class TestStartPage : public QObject {
  Q_OBJECT

private slots:
  void init() { Remembering::forgetAll(); }
  void firstStartHasTheHintAlone();
  void opensWhatWasOpenedByKeys();
  void picturesAreOfTheNetwork();
  void missingFilesAreGreyAndCanBeRemoved();
  void pathsAreNoMarkup();
  void menuOpensAndForgets();
  void dialogListsTheFolders();
  void dropsOpenAnywhere();
  void listIsBoundedAndSound();
  void nothingIsKeptUnasked();

private:
  /// The cards of the page, once the window has shown them.
  static QListView *cardsOf(NivraViewer &viewer) {
    viewer.remember(WorkspaceMemory::Keeps::Sessions);
    const auto find = [&viewer] {
      return viewer.findChild<QListView *>(QStringLiteral("recentFiles"));
    };
    return QTest::qWaitFor([&] { return find() != nullptr && find()->isVisible(); }) ? find() : nullptr;
  }
  static void openOnce(const QString &path) {
    NivraViewer viewer;
    Remembering::open(viewer, path);
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    QVERIFY(viewer.close());
  }
  static RecentMenu *menuOf(NivraViewer &viewer) {
    QMenu *file = viewer.menuBar()->actions().first()->menu();
    auto *menu = file->findChild<RecentMenu *>();
    file->popup(viewer.pos());
    emit menu->aboutToShow();
    file->hide();
    return menu;
  }

  WorkspaceFixture m_one;
  WorkspaceFixture m_other;
};

void TestStartPage::firstStartHasTheHintAlone() {
  NivraViewer viewer;
  viewer.remember(WorkspaceMemory::Keeps::Sessions);
  for (int turn = 0; turn < 5; ++turn)
    QCoreApplication::processEvents(); // in which the cards would come
  QVERIFY(viewer.findChild<QListView *>(QStringLiteral("recentFiles")) == nullptr);
  const auto *page = qobject_cast<QLabel *>(viewer.centralWidget());
  QVERIFY(page != nullptr && page->text().contains(QStringLiteral("Drag &amp; Drop")));
  const auto *open = page->findChild<QPushButton *>();
  QVERIFY(open->isVisible());
  const QRect text(0, page->height() / 2 - 40, page->width(), 40); // the text is in the middle, the button below it
  QVERIFY(open->geometry().top() > text.bottom() && std::abs(open->geometry().center().x() - page->width() / 2) < 3);
}

void TestStartPage::opensWhatWasOpenedByKeys() {
  openOnce(m_one.geometry());
  openOnce(m_other.scenario());
  NivraViewer viewer;
  QListView *cards = cardsOf(viewer);
  QVERIFY(cards != nullptr);
  const QAbstractItemModelTester tester(cards->model());
  QCOMPARE(cards->model()->rowCount(), 2);
  QCOMPARE(cards->model()->index(0, 0).data().toString(), QStringLiteral("CASE – S1"));
  QCOMPARE(cards->model()->index(1, 0).data().toString(), QStringLiteral("CASE"));
  QCOMPARE(cards->model()->index(1, 0).data(RecentModel::FolderRole).toString(), m_one.root());
  QVERIFY(QTest::qWaitForWindowActive(&viewer));
  QVERIFY(cards->hasFocus());
  QTest::keyClick(cards, Qt::Key_Right);
  QTest::keyClick(cards, Qt::Key_Return);
  QTRY_VERIFY(viewer.windowTitle().contains(m_one.root()));
  QTRY_VERIFY(viewer.findChild<StartPage *>() == nullptr);
}

void TestStartPage::picturesAreOfTheNetwork() {
  openOnce(m_one.geometry());
  const QImage picture = Thumbnails::read(m_one.geometry());
  QCOMPARE(picture.size(), Thumbnails::Size);
  QSet<QRgb> colors;
  for (int x = 0; x < picture.width(); ++x) {
    for (int y = 0; y < picture.height(); ++y)
      colors.insert(picture.pixel(x, y));
  }
  QVERIFY(colors.size() > 5); // not an empty sheet
  // One of a part does not take the place of one of the whole.
  NivraViewer viewer;
  Remembering::open(viewer, m_one.geometry());
  QVERIFY(QTest::qWaitForWindowExposed(&viewer));
  viewer.visControl()->plot()->showArea(QRectF(10, -1, 2, 2));
  QVERIFY(viewer.close());
  QCOMPARE(Thumbnails::read(m_one.geometry()), picture);
  RecentFiles recent;
  recent.clear();
  openOnce(m_other.geometry()); // pictures of what is no longer listed go
  QVERIFY(Thumbnails::read(m_one.geometry()).isNull());
}

void TestStartPage::pathsAreNoMarkup() {
  Remembering::forgetAll();
  RecentFiles recent;
  recent.add(QStringLiteral("/tmp/<b>none<b>/NET.geom.jsn"));
  const RecentModel model(recent);
  const QString tip = model.index(0, 0).data(Qt::ToolTipRole).toString();
  QVERIFY2(tip.contains(QStringLiteral("&lt;b&gt;none")), qPrintable(tip));
}

void TestStartPage::missingFilesAreGreyAndCanBeRemoved() {
  openOnce(m_one.geometry());
  {
    const WorkspaceFixture gone;
    openOnce(gone.geometry());
  }
  NivraViewer viewer;
  QListView *cards = cardsOf(viewer);
  QVERIFY(cards != nullptr && QTest::qWaitForWindowActive(&viewer));
  const QModelIndex first = cards->model()->index(0, 0);
  QTRY_VERIFY(!first.data(RecentModel::IsThereRole).toBool());
  QVERIFY(first.data(Qt::AccessibleTextRole).toString().endsWith(QStringLiteral("no longer there")));
  QTest::mouseClick(cards->viewport(), Qt::LeftButton, Qt::NoModifier, cards->visualRect(first).center());
  QCoreApplication::processEvents();
  QCOMPARE(viewer.windowTitle(), QStringLiteral("Nivra Reader"));
  QTest::keyClick(cards, Qt::Key_Delete);
  QCOMPARE(cards->model()->rowCount(), 1);
  QTest::mouseClick(cards->viewport(), Qt::LeftButton, Qt::NoModifier,
                    cards->visualRect(cards->model()->index(0, 0)).center());
  QTRY_VERIFY(viewer.windowTitle().contains(m_one.root()));
}

void TestStartPage::menuOpensAndForgets() {
  openOnce(m_one.geometry());
  {
    const WorkspaceFixture gone;
    openOnce(gone.geometry());
  }
  NivraViewer viewer;
  viewer.remember(WorkspaceMemory::Keeps::Sessions);
  RecentMenu *menu = menuOf(viewer);
  QList<QAction *> entries = menu->actions();
  QCOMPARE(entries.size(), 5);           // with a line, and what forgets
  QTRY_VERIFY(!entries[0]->isEnabled()); // once it was looked for
  QTRY_VERIFY(entries[1]->isEnabled() && !entries[1]->icon().isNull());
  QVERIFY2(entries[1]->text().startsWith(QStringLiteral("&2  CASE")), qPrintable(entries[1]->text()));
  entries[3]->trigger();    // those that are missing
  emit menu->aboutToShow(); // as who lists all commands does, without any menu being seen
  QCOMPARE(menu->actions().size(), 4);
  menu->actions().first()->trigger();
  QVERIFY(viewer.windowTitle().contains(m_one.root()));
  {
    const Answers no({NivraMsg::Answer::No});
    emit menu->aboutToShow();
    menu->actions().last()->trigger();
    QVERIFY(no.areGiven());
  }
  QCOMPARE(int(RecentMenu::Shown > 0), 1);
  const Answers yes({NivraMsg::Answer::Yes});
  emit menu->aboutToShow();
  menu->actions().last()->trigger();
  emit menu->aboutToShow();
  QCOMPARE(menu->actions().size(), 1);
  QVERIFY(!menu->actions().first()->isEnabled());
}

void TestStartPage::dialogListsTheFolders() {
  openOnce(m_one.geometry());
  openOnce(m_other.scenario());
  NivraViewer viewer;
  QList<QUrl> places;
  QTimer timer;
  connect(&timer, &QTimer::timeout, this, [&] {
    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    if (dialog == nullptr)
      return;
    places = dialog->sidebarUrls();
    dialog->reject();
  });
  timer.start(5);
  viewer.on_actionOpen_triggered();
  QVERIFY(places.contains(QUrl::fromLocalFile(m_one.path(QStringLiteral("CASE")))));
  QVERIFY(places.contains(QUrl::fromLocalFile(m_other.path(QStringLiteral("CASE"))))); // of the scenario
}

void TestStartPage::dropsOpenAnywhere() {
  NivraViewer viewer;
  QVERIFY(QTest::qWaitForWindowExposed(&viewer));
  const auto drop = [&viewer](QWidget &target, const QString &path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    const QPoint at = target.mapTo(&viewer, target.rect().center());
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewer.windowHandle(), &enter); // as the window system does: the toolkit finds the widget
    QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewer.windowHandle(), &move);
    QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewer.windowHandle(), &event);
  };
  drop(*viewer.centralWidget(), m_one.geometry());
  QVERIFY(viewer.windowTitle().contains(m_one.root()));
  drop(*viewer.visControl()->plot(), m_other.scenario()); // the canvas itself
  QVERIFY(viewer.windowTitle().contains(m_other.root()));
}

void TestStartPage::listIsBoundedAndSound() {
  RecentFiles files;
  for (int i = 0; i < 40; ++i)
    files.add(QStringLiteral("/nowhere/%1/a.geom.jsn").arg(i));
  files.add(QStringLiteral("/nowhere/39/a.geom.jsn")); // once
  QCOMPARE(int(files.all().size()), RecentFiles::Most);
  QCOMPARE(files.all().front().path, QStringLiteral("/nowhere/39/a.geom.jsn"));
  QVERIFY(files.folders().isEmpty());
  const QByteArray path = m_one.geometry().toUtf8();
  for (const QByteArray &text :
       {QByteArray("{"), QByteArray("[1,2]"), QByteArray("{\"version\":99,\"files\":[{\"path\":\"" + path + "\"}]}"),
        QByteArray("{\"version\":1,\"files\":[{\"path\":\"relative\"},{\"path\":7},null,[[]]]}"),
        QByteArray(2 << 20, '[')}) {
    SmallFiles::write(RecentFiles::file(), text);
    files.read();
    QVERIFY(files.all().empty());
  }
  SmallFiles::write(Thumbnails::fileOf(m_one.geometry()), "no picture");
  QVERIFY(Thumbnails::read(m_one.geometry()).isNull());
}

void TestStartPage::nothingIsKeptUnasked() {
  NivraViewer viewer;
  viewer.open(m_one.geometry());
  QVERIFY(QTest::qWaitForWindowExposed(&viewer));
  QVERIFY(viewer.close());
  QVERIFY(!QFile::exists(RecentFiles::file()));
  QVERIFY(!QFileInfo::exists(SessionStore::folder()) && !QFileInfo::exists(Thumbnails::folder()));
}

NIVRA_TEST(TestStartPage);
#include "tst_startpage.moc"
