#include "layerkeeper.h"
#include "mnemonics.h"
#include "panels.h"
#include "reloadbar.h"
#include "remembering.h"
#include "subnetwindow.h"
#include "workspacefixture.h"
#include "workspacewatcher.h"

#include <base/generalsettings.h>
#include <support/answers.h>
#include <support/nivratest.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/nivranetobjectcats.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>
#include <view/viewfuncdialog.h>

#include <QAction>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QToolBar>

#include <algorithm>
#include <cmath>

/// Files that are changed while they are shown.
class TestReload : public QObject {
  Q_OBJECT

private slots:
  void init();
  void changedFileIsOfferedAndEverythingStays();
  void editorsPutAnotherFileInItsPlace();
  void resultsThatComeAreOffered();
  void ignoredIsIgnoredUntilTheNextChange();
  void waitsUntilAFileIsAtRest();
  void vanishedFileLeavesWhatIsShown();
  void whatTheProgramWritesIsNoChange();
  void filesBesideTheNetworkAreOffered_data();
  void filesBesideTheNetworkAreOffered();
  void whatIsTypedStays();
  void typedInASubnetIsAsked();
  void keyReadsAgain();
  void barIsForThisCaseAlone();
  void narrowWindowKeepsTheButtons();
  void lettersAreThoseOfNoMenu();

private:
  static QByteArray withAnotherNode() {
    return WorkspaceFixture::soundGeometry().replace("\n}\n", "\n,\"D\":{\"obj_type\":\"node\",\"x\":0,\"y\":80}\n}\n");
  }
  static ReloadBar *barOf(NivraViewer &viewer) { return viewer.findChild<ReloadBar *>(); }
  static bool offers(NivraViewer &viewer) { return barOf(viewer) != nullptr && barOf(viewer)->isVisible(); }
  static QString textOf(NivraViewer &viewer) { return barOf(viewer)->findChild<QLabel *>()->text(); }
  static QPushButton *button(NivraViewer &viewer, int index) {
    return barOf(viewer)->findChildren<QPushButton *>().at(index); // "Reload", "Ignore"
  }
  /// With the listening begun: the first look comes once the network stands.
  static void open(NivraViewer &viewer, const QString &path) {
    watcher(viewer).setBetweenLooks(BetweenLooksMs);
    viewer.open(path);
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    letItLook(viewer);
    QVERIFY(!offers(viewer));
  }
  static constexpr int BetweenLooksMs = 20;
  static WorkspaceWatcher &watcher(NivraViewer &viewer) { return *viewer.findChild<WorkspaceWatcher *>(); }
  /// Longer than it takes to see a change and that it is at rest.
  static void letItLook(NivraViewer &viewer) {
    watcher(viewer).look();
    QTest::qWait(6 * BetweenLooksMs);
  }
  static bool hasNode(NivraViewer &viewer, const char *name) {
    return viewer.visControl()->net().element(QLatin1String(name)) != nullptr;
  }

  std::unique_ptr<WorkspaceFixture> m_workspace;
};

void TestReload::init() {
  m_workspace = std::make_unique<WorkspaceFixture>();
  m_workspace->writeGeometry(WorkspaceFixture::soundGeometry().replace("\"q\":5,", "\"q\":5,\"vis.layer\":\"north\","));
}

void TestReload::changedFileIsOfferedAndEverythingStays() {
  NivraViewer viewer;
  open(viewer, m_workspace->scenario());
  NetVisControl &control = *viewer.visControl();
  auto &draw = panelOf<viewFuncDialog>(viewer);
  draw.findChild<QDoubleSpinBox *>(QStringLiteral("edgeMag"))->setValue(7.0);
  draw.findChild<QPushButton *>(QStringLiteral("apply"))->click();
  auto &categories = panelOf<NivraNetObjectCats>(viewer);
  categories.findChild<QAbstractButton *>(QStringLiteral("toolButtonAdd"))->click();
  panelOf<NivraNetLayersEditor>(viewer).findChild<QAbstractButton *>(QStringLiteral("toolButtonHideAll"))->click();
  viewer.elementAction(QStringLiteral("B"), NetPicker::EleAction::Mark);
  control.plot()->showArea(QRectF(80, -10, 40, 30));
  QTest::qWait(50);
  const QRectF view = control.plot()->visibleArea();
  m_workspace->writeGeometry(withAnotherNode());
  QTRY_VERIFY(offers(viewer));
  QCOMPARE(textOf(viewer), QStringLiteral("CASE.geom.jsn was changed on disk."));
  QVERIFY(!hasNode(viewer, "D"));
  QVERIFY(barOf(viewer)->mapTo(&viewer, QPoint()).y() < control.plot()->mapTo(&viewer, QPoint()).y());
  QTest::mouseClick(button(viewer, 0), Qt::LeftButton);
  QVERIFY(hasNode(viewer, "D"));
  QVERIFY(!offers(viewer));
  QTest::qWait(50);
  const QRectF after = control.plot()->visibleArea();
  QVERIFY(std::abs(after.center().x() - view.center().x()) < 1.0 && std::abs(after.width() - view.width()) < 1.0);
  QCOMPARE(control.net().selection().names(), Selection::Names{QStringLiteral("B")});
  QCOMPARE(control.currentElement(), QStringLiteral("B"));
  QCOMPARE(control.plot()->settings().edgeMag, 7.0);
  QCOMPARE(control.plot()->update().layers().hidden(), QSet<QString>{QStringLiteral("north")});
  QCOMPARE(int(categories.categories().size()), 2); // not saved, not lost
}

void TestReload::editorsPutAnotherFileInItsPlace() {
  NivraViewer viewer;
  open(viewer, m_workspace->geometry());
  for (const char *name : {"D", "E"}) { // the second time, too
    const QString draft = m_workspace->path(QStringLiteral("CASE/.draft"));
    SmallFiles::write(draft, withAnotherNode().replace("\"D\"", '"' + QByteArray(name) + '"'));
    QVERIFY(QFile::remove(m_workspace->geometry()) && QFile::rename(draft, m_workspace->geometry()));
    QTRY_VERIFY(offers(viewer));
    QVERIFY2(textOf(viewer).endsWith(QStringLiteral("was changed on disk.")), qPrintable(textOf(viewer)));
    QTest::mouseClick(button(viewer, 0), Qt::LeftButton);
    QVERIFY(hasNode(viewer, name));
    letItLook(viewer);
  }
}

void TestReload::resultsThatComeAreOffered() {
  NivraViewer viewer;
  open(viewer, m_workspace->scenario());
  m_workspace->write(QStringLiteral("CASE/S1/notes.txt"), "nothing of ours");
  letItLook(viewer);
  QVERIFY(!offers(viewer));
  m_workspace->write(QStringLiteral("CASE/S1/S1.res.jsn"), "{\n\"A\":{\"p\":33}\n}\n");
  QTRY_VERIFY(offers(viewer));
  QTest::mouseClick(button(viewer, 0), Qt::LeftButton);
  QCOMPARE(viewer.visControl()->net().element(QStringLiteral("A"))->value(PropertyKey::intern("p")), QStringLiteral("33"));
}

void TestReload::ignoredIsIgnoredUntilTheNextChange() {
  NivraViewer viewer;
  open(viewer, m_workspace->geometry());
  m_workspace->writeGeometry(withAnotherNode());
  QTRY_VERIFY(offers(viewer));
  QTest::mouseClick(button(viewer, 1), Qt::LeftButton);
  QVERIFY(!offers(viewer));
  viewer.activateWindow();
  letItLook(viewer);
  QVERIFY(!offers(viewer));
  m_workspace->writeGeometry(WorkspaceFixture::soundGeometry());
  QTRY_VERIFY(offers(viewer));
}

void TestReload::waitsUntilAFileIsAtRest() {
  NivraViewer viewer;
  open(viewer, m_workspace->geometry());
  watcher(viewer).setBetweenLooks(400); // longer than a machine that is busy keeps the next piece waiting
  QFile file(m_workspace->geometry());
  QVERIFY(file.open(QIODevice::Append));
  for (int i = 0; i < 8; ++i) { // a program that writes for more than a second
    file.write("\n");
    file.flush();
    QTest::qWait(150);
    QVERIFY(!offers(viewer));
  }
  file.close();
  QTRY_VERIFY(offers(viewer));
}

void TestReload::vanishedFileLeavesWhatIsShown() {
  NivraViewer viewer;
  open(viewer, m_workspace->geometry());
  QVERIFY(QFile::remove(m_workspace->geometry()));
  QTRY_VERIFY(offers(viewer));
  QVERIFY2(textOf(viewer).contains(QStringLiteral("no longer there")), qPrintable(textOf(viewer)));
  QVERIFY(!button(viewer, 0)->isVisible());
  QTest::keyClick(&viewer, Qt::Key_F5);
  QVERIFY2(textOf(viewer).startsWith(QStringLiteral("The files cannot be read again, what is shown stays: ")),
           qPrintable(textOf(viewer)));
  QVERIFY(hasNode(viewer, "A") && hasNode(viewer, "P1"));
  m_workspace->writeGeometry(withAnotherNode());
  QTRY_VERIFY(textOf(viewer).endsWith(QStringLiteral("was changed on disk.")));
  QTest::keyClick(&viewer, Qt::Key_F5);
  QVERIFY(hasNode(viewer, "D"));
}

void TestReload::whatTheProgramWritesIsNoChange() {
  NivraViewer viewer;
  open(viewer, m_workspace->geometry());
  panelOf<viewFuncDialog>(viewer).findChild<QPushButton *>(QStringLiteral("applyAndSave"))->click();
  panelOf<NivraNetObjectCats>(viewer).findChild<QAbstractButton *>(QStringLiteral("pushButtonOK"))->click();
  m_workspace->write(QStringLiteral("CASE/layers.csv"), "vis.layer;P1;west\n");
  viewer.reload();
  QVERIFY(viewer.findChild<LayerKeeper *>()->save());
  QVERIFY(QFile::exists(m_workspace->path(QStringLiteral("CASE/plotsettings.ini"))));
  letItLook(viewer);
  QVERIFY(!offers(viewer));
}

void TestReload::filesBesideTheNetworkAreOffered_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QByteArray>("text");
  QTest::newRow("layers") << QStringLiteral("CASE/layers.csv") << QByteArray("vis.layer;P1;west\n");
  QTest::newRow("style") << QStringLiteral("CASE/plotsettings.ini") << QByteArray("[magnitudes]\nedgeMag=3\n");
  QTest::newRow("settings") << QStringLiteral("generalsettings_%1.csv").arg(GeneralSettings::userName())
                            << QByteArray("pixtest delay;zooming;string;321;;\n");
}

void TestReload::filesBesideTheNetworkAreOffered() {
  QFETCH(const QString, name);
  QFETCH(const QByteArray, text);
  NivraViewer viewer;
  open(viewer, m_workspace->geometry());
  m_workspace->write(name, text);
  QTRY_VERIFY(offers(viewer));
  QTest::mouseClick(button(viewer, 0), Qt::LeftButton);
  const std::vector<bool> taken{viewer.visControl()->net().element(QStringLiteral("P1"))->value(Names::all().layer) ==
                                    QLatin1String("west"),
                                viewer.visControl()->plot()->settings().edgeMag == 3.0,
                                GeneralSettings::instance().value(QStringLiteral("pixtest delay")) == QLatin1String("321")};
  QCOMPARE(int(std::count(taken.begin(), taken.end(), true)), 1);
  GeneralSettings::instance().reset();
}

void TestReload::whatIsTypedStays() {
  NivraViewer viewer;
  open(viewer, m_workspace->geometry());
  auto &draw = panelOf<viewFuncDialog>(viewer);
  auto &typed = *draw.findChild<QDoubleSpinBox *>(QStringLiteral("edgeMag"));
  typed.setValue(7.0);
  emit viewer.visControl()->actions().settingsChosen(); // as by a key or the tool bar
  QCOMPARE(typed.value(), 7.0);
  viewer.reload();
  QCOMPARE(typed.value(), 7.0);
  QVERIFY(draw.hasUnapplied());
  m_workspace->writeGeometry("{ no network");
  viewer.reload();
  QCOMPARE(typed.value(), 7.0);
}

void TestReload::typedInASubnetIsAsked() {
  m_workspace->writeGeometry(WorkspaceFixture::geometryWithSubnet());
  NivraViewer viewer;
  open(viewer, m_workspace->geometry());
  emit viewer.visControl()->subnetWanted(QStringLiteral("M"));
  const QPointer<SubnetWindow> window = viewer.findChild<SubnetWindow *>();
  window->findChild<QDoubleSpinBox *>(QStringLiteral("edgeMag"))->setValue(7.0);
  {
    const Answers cancel({NivraMsg::Answer::Cancel, NivraMsg::Answer::Cancel, NivraMsg::Answer::Cancel});
    viewer.reload();
    QVERIFY(!window.isNull() && !window->close() && !viewer.close());
    QVERIFY(cancel.areGiven());
  }
  const Answers discard({NivraMsg::Answer::Discard});
  viewer.reload();
  QVERIFY(discard.areGiven() && window.isNull());
}

void TestReload::keyReadsAgain() {
  NivraViewer viewer;
  QTest::keyClick(&viewer, Qt::Key_F5); // there is nothing to be read
  QCOMPARE(viewer.windowTitle(), QStringLiteral("Nivra Reader"));
  open(viewer, m_workspace->geometry());
  m_workspace->writeGeometry(withAnotherNode());
  QTest::keyClick(&viewer, Qt::Key_F5); // sooner than anybody offers it
  QVERIFY(hasNode(viewer, "D"));
  letItLook(viewer);
  QVERIFY(!offers(viewer));
}

void TestReload::barIsForThisCaseAlone() {
  Remembering::forgetAll();
  const WorkspaceFixture other;
  {
    NivraViewer viewer;
    watcher(viewer).setBetweenLooks(BetweenLooksMs);
    Remembering::open(viewer, m_workspace->geometry());
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    letItLook(viewer);
    m_workspace->writeGeometry(withAnotherNode());
    QTRY_VERIFY(offers(viewer));
    viewer.close(); // the places of the window are kept with the bar
  }
  NivraViewer viewer;
  watcher(viewer).setBetweenLooks(BetweenLooksMs);
  Remembering::open(viewer, m_workspace->geometry());
  QVERIFY(QTest::qWaitForWindowExposed(&viewer));
  QVERIFY(!offers(viewer));
  letItLook(viewer);
  m_workspace->writeGeometry(WorkspaceFixture::soundGeometry());
  QTRY_VERIFY(offers(viewer));
  viewer.open(other.geometry());
  QVERIFY(!offers(viewer));
}

void TestReload::narrowWindowKeepsTheButtons() {
  NivraViewer viewer;
  open(viewer, m_workspace->geometry());
  viewer.resize(500, 500);
  m_workspace->writeGeometry(withAnotherNode());
  QTRY_VERIFY(offers(viewer));
  ReloadBar &bar = *barOf(viewer);
  bar.tell({QStringLiteral("/a/") + QString(200, QLatin1Char('x'))}, {});
  QTest::qWait(50);
  QVERIFY(viewer.width() <= 600);
  for (int i = 0; i < 2; ++i) {
    QPushButton *shown = button(viewer, i);
    QVERIFY(shown->isVisible() && bar.rect().contains(shown->geometry().translated(shown->parentWidget()->pos())));
  }
}

void TestReload::lettersAreThoseOfNoMenu() {
  NivraViewer viewer;
  open(viewer, m_workspace->geometry());
  m_workspace->writeGeometry(withAnotherNode());
  QTRY_VERIFY(offers(viewer));
  QString letters;
  for (const QAction *menu : viewer.menuBar()->actions())
    letters += Mnemonics::of(menu->text());
  for (int i = 0; i < 2; ++i) {
    const QChar letter = Mnemonics::of(button(viewer, i)->text());
    QVERIFY2(!letter.isNull() && !letters.contains(letter), qPrintable(letters + QLatin1Char(' ') + letter));
    letters += letter;
  }
}

NIVRA_TEST(TestReload);
#include "tst_reload.moc"
