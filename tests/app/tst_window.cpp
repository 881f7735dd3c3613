#include "interaction/plotzoom.h"
#include "loadprogress.h"
#include "mnemonics.h"
#include "networkloader.h"
#include "nivraviewer.h"
#include "subnetwindow.h"
#include "tooldocks.h"
#include "workspacefixture.h"

#include <base/generalsettings.h>
#include <base/nivramsg.h>
#include <characteristics/characteristicsstack.h>
#include <support/answers.h>
#include <support/nivratest.h>
#include <tools/nivrafindings.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/nivranetobjectcats.h>
#include <tools/nivrapropviewer.h>
#include <tools/nivrasearch.h>
#include <tools/nivravectable.h>
#include <view/netviscontrol.h>

#include <QApplication>
#include <QDockWidget>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

namespace {

void drop(NivraViewer &viewer, const QStringList &paths) {
  QMimeData data;
  QList<QUrl> urls;
  for (const QString &path : paths)
    urls.append(QUrl::fromLocalFile(path));
  data.setUrls(urls);
  QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&viewer, &enter);
  QVERIFY(enter.isAccepted());
  QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&viewer, &event);
}

QStringList texts(const QList<QAction *> &actions) {
  QStringList list;
  for (const QAction *action : actions)
    list.append(Mnemonics::plain(action->text()));
  return list;
}

} // namespace

class TestWindow : public QObject {
  Q_OBJECT

private slots:
  void startsWithoutAWorkspace();
  void dropOpensTheFirstFile();
  void geometryAloneHasNoScenario();
  void invalidWorkspaceLeavesWhatIsOpen();
  void invalidWorkspaceSaysWhy();
  void statusSurvivesMenus();
  void statusBarShowsTheOutcome();
  void statusBarTakesColoursOnly();
  void lastScenarioIsOpened();
  void openingIsTimedWithoutBoxes();
  void everyWindowClosesWithTheProgram_data();
  void everyWindowClosesWithTheProgram();
  void messagesArePlainText();
  void findingsOfBoxesAreListed();
  void styleSheetOnlyRestyles();
  void menus();
  void contextMenuLeadsBack();
  void toolsAndDrawingMeet();
  void subnetsHaveWindowsOfTheirOwn();
  void machinesOpenAndComeBack();
  void openDialogStartsAtTheExample();
  void progressAppearsLateAndCancels();
  void toolsWaitWhileANetworkIsRead();

private:
  WorkspaceFixture m_workspace;
};

void TestWindow::startsWithoutAWorkspace() {
  NivraViewer viewer;
  QCOMPARE(viewer.windowTitle(), QStringLiteral("Nivra Reader"));
  QCOMPARE(viewer.statusBar()->currentMessage(), QStringLiteral("No Workspace loaded"));
  const auto *label = qobject_cast<QLabel *>(viewer.centralWidget());
  QVERIFY(label != nullptr && label->text().contains(QStringLiteral("Drag &amp; Drop")));
  QCOMPARE(viewer.size(), QSize(1200, 900));
}

void TestWindow::dropOpensTheFirstFile() {
  NivraViewer viewer;
  drop(viewer, {m_workspace.scenario(), m_workspace.geometry()});
  QVERIFY2(viewer.windowTitle().endsWith(QStringLiteral("  |  Workspace: ") + m_workspace.root() +
                                         QStringLiteral("  |  CASE: CASE  |  SCEN: S1")),
           qPrintable(viewer.windowTitle()));
  QVERIFY(viewer.statusBar()->currentMessage().startsWith(QStringLiteral("Startup finished in ")));
}

void TestWindow::geometryAloneHasNoScenario() {
  NivraViewer viewer;
  viewer.open(m_workspace.geometry());
  QVERIFY(viewer.windowTitle().endsWith(QStringLiteral("  |  CASE: CASE")));
}

void TestWindow::invalidWorkspaceLeavesWhatIsOpen() {
  NivraViewer viewer;
  viewer.open(m_workspace.path(QStringLiteral("none.geom.jsn")));
  QCOMPARE(viewer.statusBar()->currentMessage(), QStringLiteral("Invalid Workspace"));
  QVERIFY(qobject_cast<QLabel *>(viewer.centralWidget()) != nullptr);
  viewer.open(m_workspace.scenario());
  const QString title = viewer.windowTitle();
  const QWidget *plot = viewer.centralWidget();
  viewer.open(m_workspace.path(QStringLiteral("CASE/CASE.geom.cfg")));
  QCOMPARE(viewer.centralWidget(), plot);
  QCOMPARE(viewer.windowTitle(), title);
  viewer.open(m_workspace.geometry());
  QCOMPARE(viewer.centralWidget(), plot);
}

void TestWindow::invalidWorkspaceSaysWhy() {
  NivraViewer viewer;
  const Answers answers({NivraMsg::Answer::Ok});
  viewer.open(m_workspace.path(QStringLiteral("picture.png")));
  QCOMPARE(viewer.statusBar()->currentMessage(), QStringLiteral("Invalid Workspace"));
  QVERIFY2(answers.texts().join(QString()).contains(QStringLiteral("invalid file format")),
           qPrintable(answers.texts().join(QString())));
}

/// The colour of the status bar where nothing stands on it.
static QColor barColour(NivraViewer &viewer) {
  QApplication::processEvents();
  const QImage picture = viewer.statusBar()->grab().toImage();
  return picture.pixelColor(picture.width() / 2, picture.height() / 2);
}

void TestWindow::statusBarShowsTheOutcome() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/S1/S1.gas.jsn"), "{\n\"H\":{\"obj_type\":\"gas\",\"rhon\":0.09}\n}\n");
  NivraViewer viewer;
  const QColor before = barColour(viewer);
  viewer.open(workspace.scenario());
  QCOMPARE(barColour(viewer), QColor("lightGreen"));
  workspace.write(QStringLiteral("CASE/a.constraints"), "p(n) in .. 1\n");
  viewer.open(workspace.scenario());
  QCOMPARE(barColour(viewer), QColor("lightBlue"));
  viewer.open(workspace.path(QStringLiteral("none.geom.jsn")));
  QCOMPARE(barColour(viewer), QColor("#F7BE81"));
  workspace.write(QStringLiteral("generalsettings_") + GeneralSettings::userName() + QStringLiteral(".csv"),
                  "status bar style sheet acceptable;status bar;string;background: #123456;;\n");
  viewer.open(workspace.scenario());
  QCOMPARE(barColour(viewer), QColor("#123456"));
  QVERIFY(before != QColor("#123456"));
}

// The settings of a workspace may come from anybody.
void TestWindow::statusBarTakesColoursOnly() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/S1/S1.gas.jsn"), "{\n\"H\":{\"obj_type\":\"gas\",\"rhon\":0.09}\n}\n");
  QImage stranger(8, 8, QImage::Format_RGB32);
  stranger.fill(Qt::red);
  const QString picture = workspace.path(QStringLiteral("picture.png"));
  QVERIFY(stranger.save(picture));
  workspace.write(QStringLiteral("generalsettings_") + GeneralSettings::userName() + QStringLiteral(".csv"),
                  "status bar style sheet successful;status bar;string;background: #123456$SEMI$ min-height: 900px$SEMI$ "
                  "background: url(" +
                      picture.toUtf8() + ")$SEMI$ } * { color: red;;\n");
  NivraViewer viewer;
  viewer.open(workspace.scenario());
  QCOMPARE(barColour(viewer), QColor("#123456"));
  QVERIFY(viewer.statusBar()->height() < 100);
  QVERIFY(!viewer.statusBar()->styleSheet().contains(QLatin1String("url")));
  QVERIFY(!viewer.statusBar()->styleSheet().contains(QLatin1String("* {")));
}

void TestWindow::lastScenarioIsOpened() {
  const WorkspaceFixture workspace;
  QDir(workspace.root()).mkpath(QStringLiteral("CASE/S2"));
  workspace.write(QStringLiteral("CASE/S2/S2.scen.jsn"), "{\n}\n");
  workspace.write(QStringLiteral("CASE/S2/scenconfig.jsn"), "{\"workDir\":\"S2\",\"scenFile\":\"S2.scen\"}");
  const QString settings = QStringLiteral("generalsettings_") + GeneralSettings::userName() + QStringLiteral(".csv");
  const auto opened = [](NivraViewer &viewer, const QString &path) {
    viewer.open(path);
    return viewer.windowTitle().section(QStringLiteral("CASE: "), 1);
  };
  NivraViewer viewer;
  QCOMPARE(opened(viewer, workspace.path(QStringLiteral("CASE/S2/S2.scen.jsn"))), QStringLiteral("CASE  |  SCEN: S2"));
  QCOMPARE(opened(viewer, workspace.geometry()), QStringLiteral("CASE")); // off by default
  workspace.write(settings, "start with last scenario;general;list;on;on,off;\n");
  const QStringList before = QDir(workspace.root()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
  QCOMPARE(opened(viewer, workspace.geometry()), QStringLiteral("CASE  |  SCEN: S2"));
  QCOMPARE(opened(viewer, workspace.scenario()), QStringLiteral("CASE  |  SCEN: S1"));
  NivraViewer later; // the program started anew
  QCOMPARE(opened(later, workspace.geometry()), QStringLiteral("CASE  |  SCEN: S1"));
  QCOMPARE(QDir(workspace.root()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
  {
    NivraViewer clean;
    clean.remember(WorkspaceMemory::Keeps::RecentFiles);
    QCOMPARE(opened(clean, workspace.geometry()), QStringLiteral("CASE")); // as for the first time
    opened(clean, workspace.path(QStringLiteral("CASE/S2/S2.scen.jsn")));
  }
  QCOMPARE(opened(later, workspace.geometry()), QStringLiteral("CASE  |  SCEN: S1"));
  QVERIFY(QDir(workspace.path(QStringLiteral("CASE/S1"))).removeRecursively());
  QCOMPARE(opened(later, workspace.geometry()), QStringLiteral("CASE"));

  const WorkspaceFixture another;
  another.write(settings, "start with last scenario;general;list;on;on,off;\n");
  QCOMPARE(opened(later, another.geometry()), QStringLiteral("CASE")); // never opened with one
}

void TestWindow::statusSurvivesMenus() {
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  const QString status = viewer.statusBar()->currentMessage();
  QVERIFY(status.startsWith(QStringLiteral("Startup finished in ")));
  QTest::mouseClick(viewer.menuBar(), Qt::LeftButton, Qt::NoModifier,
                    viewer.menuBar()->actionGeometry(viewer.menuBar()->actions()[1]).center());
  auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  QVERIFY(menu != nullptr);
  QTest::mouseMove(menu, menu->actionGeometry(menu->actions()[1]).center());
  QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Escape);
  QTest::keyClick(menu, Qt::Key_Escape);
  QCoreApplication::processEvents();
  QCOMPARE(viewer.statusBar()->currentMessage(), status);
}

void TestWindow::openingIsTimedWithoutBoxes() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry(WorkspaceFixture::soundGeometry().replace("\"q\":5", "\"driven\":\"nobody\""));
  NivraViewer viewer;
  constexpr int PersonMs = 1500;
  const Answers answers({NivraMsg::Answer::Ok}, PersonMs);
  QElapsedTimer timer;
  timer.start();
  viewer.open(workspace.geometry());
  const qint64 elapsed = timer.elapsed();
  QVERIFY(!answers.texts().isEmpty());
  static const QRegularExpression number(QStringLiteral("(\\d+)ms$"));
  const int said = number.match(viewer.statusBar()->currentMessage()).captured(1).toInt();
  QVERIFY2(said > 0 && said < elapsed - PersonMs + 100, qPrintable(viewer.statusBar()->currentMessage()));
}

void TestWindow::everyWindowClosesWithTheProgram_data() {
  QTest::addColumn<bool>("byMenu");
  QTest::addColumn<bool>("isTableClosed");
  QTest::newRow("exit") << true << false;
  QTest::newRow("exit, the table was closed") << true << true;
  QTest::newRow("the window's button") << false << false;
}

void TestWindow::everyWindowClosesWithTheProgram() {
  QFETCH(bool, byMenu);
  QFETCH(bool, isTableClosed);
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  viewer.on_actionElement_Table_triggered();
  viewer.on_actionMetadataTable_triggered();
  viewer.on_actionHelp_triggered();
  int shown = 0;
  for (QWidget *window : QApplication::topLevelWidgets())
    shown += window->isVisible() ? 1 : 0;
  QCOMPARE(shown, 4);
  if (isTableClosed) {
    for (QWidget *window : QApplication::topLevelWidgets()) {
      if (qobject_cast<NivraVecTable *>(window) != nullptr)
        window->close();
    }
  }
  QTimer::singleShot(0, &viewer, [&] {
    if (byMenu)
      viewer.menuBar()->actions()[0]->menu()->actions().last()->trigger();
    else
      viewer.close();
  });
  constexpr int StillRunning = 77;
  constexpr int PatienceMs = 5000;
  QTimer patience;
  connect(&patience, &QTimer::timeout, qApp, [] { QCoreApplication::exit(StillRunning); });
  patience.start(PatienceMs);
  QCOMPARE(QApplication::exec(), 0);
  for (const QWidget *window : QApplication::topLevelWidgets())
    QVERIFY2(!window->isVisible(), window->metaObject()->className());
}

void TestWindow::messagesArePlainText() {
  NivraMsg::logWarning(QStringLiteral("nobody listens"));
  NivraViewer viewer;
  NivraMsg::log(QStringLiteral("<b>early</b>")); // docks come with the first workspace or the menu
  emit viewer.menuBar()->actions().last()->menu()->aboutToShow();
  auto *messages = viewer.findChild<QDockWidget *>(QStringLiteral("messages"));
  const auto *text = messages->findChild<QPlainTextEdit *>();
  QVERIFY(text != nullptr && text->isReadOnly());
  QVERIFY(!text->toPlainText().contains(QStringLiteral("nobody listens")));
  const int before = text->document()->blockCount();
  QCOMPARE(text->document()->lastBlock().text(), QStringLiteral("<b>early</b>"));
  const QString name = QStringLiteral("<a href=\"file:///etc/passwd\"><img src=\"file:///dev/zero\">Pipe</a> p < 5 & q");
  NivraMsg::logWarning(name);
  NivraMsg::logTimeStamp(name);
  NivraMsg::log(QStringLiteral("one<br/>two"));
  QTRY_COMPARE(text->document()->blockCount(), before + 4);
  QCOMPARE(text->document()->findBlockByNumber(before).text(), name);
  const QString timed = text->document()->findBlockByNumber(before + 1).text();
  QVERIFY2(timed.endsWith(QStringLiteral(": ") + name) && !timed.contains(QStringLiteral("<i>")), qPrintable(timed));
  QCOMPARE(text->document()->lastBlock().text(), QStringLiteral("two"));
  for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece)
      QVERIFY(!piece.fragment().charFormat().isAnchor() && !piece.fragment().charFormat().isImageFormat());
  }
}

void TestWindow::findingsOfBoxesAreListed() {
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  Findings findings(3);
  findings[0].box = QStringLiteral("only a box says this");
  findings[1].text = QStringLiteral("a line says this");
  auto *tools = viewer.findChild<ToolDocks *>();
  tools->setFindings({{QStringLiteral("Reading"), findings}});
  QCOMPARE(tools->findingsButton()->text(), QStringLiteral("2 findings"));
  const QAbstractItemModel &model = *viewer.findChild<NivraFindings *>()->findChild<QTreeView *>()->model();
  const QModelIndex reading = model.index(0, 0);
  QCOMPARE(model.rowCount(reading), 2);
  QCOMPARE(model.index(0, 0, reading).data().toString(), QStringLiteral("only a box says this"));
}

void TestWindow::styleSheetOnlyRestyles() {
  m_workspace.write(QStringLiteral("dark.qss"), "QStatusBar { color: #123456; }");
  NivraViewer viewer;
  viewer.open(m_workspace.path(QStringLiteral("dark.qss")));
  QCOMPARE(qApp->styleSheet(), QStringLiteral("QStatusBar { color: #123456; }"));
  QCOMPARE(viewer.statusBar()->currentMessage(), QStringLiteral("No Workspace loaded"));
  qApp->setStyleSheet(QString());
}

void TestWindow::menus() {
  NivraViewer viewer;
  const QList<QAction *> menus = viewer.menuBar()->actions();
  QCOMPARE(texts(menus), (QStringList{QStringLiteral("File"), QStringLiteral("Edit"), QStringLiteral("Go"),
                                      QStringLiteral("Drawing"), QStringLiteral("Info"), QStringLiteral("View")}));
  const QStringList file = texts(menus.first()->menu()->actions());
  QCOMPARE(file.first(), QStringLiteral("Open Geom or Scen"));
  QCOMPARE(file.last(), QStringLiteral("Exit"));
  QMenu *info = menus[menus.size() - 2]->menu();
  QCOMPARE(texts(info->actions()).mid(0, 2),
           (QStringList{QStringLiteral("Element Table"), QStringLiteral("Metadata Table")}));
  QMenu *viewMenu = menus.last()->menu();
  emit viewMenu->aboutToShow();
  emit viewMenu->aboutToShow(); // filled anew each time
  const QStringList view = texts(viewMenu->actions());
  QCOMPARE(view.count(QStringLiteral("Dock Widgets")), 1);
  QCOMPARE(view.mid(view.indexOf(QStringLiteral("Toolbars")), 2),
           (QStringList{QStringLiteral("Toolbars"), QStringLiteral("Main tools")}));
}

void TestWindow::contextMenuLeadsBack() {
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  NetPlot *plot = viewer.visControl()->plot();
  plot->zoomer()->zoomIn({50, 20});
  plot->zoomer()->zoomIn({50, 20});
  const auto trigger = [plot](const QString &text) {
    QMenu contextMenu;
    emit plot->contextMenuRequested(&contextMenu);
    for (QAction *entry : contextMenu.actions()) {
      if (entry->text().startsWith(text) && entry->isEnabled()) {
        entry->trigger();
        return true;
      }
    }
    return false;
  };
  const QRectF near = plot->zoomer()->zoomRect();
  QVERIFY(trigger(QStringLiteral("Back to the last view")));
  QCOMPARE(plot->zoomer()->zoomRect(), plot->zoomer()->zoomBase());
  QVERIFY(!trigger(QStringLiteral("Back to the last view")));
  QVERIFY(trigger(QStringLiteral("Forward to the next view")));
  QCOMPARE(plot->zoomer()->zoomRect(), near);
  QVERIFY(trigger(QStringLiteral("Show whole network")));
  QCOMPARE(plot->zoomer()->zoomRectIndex(), 0U);
}

void TestWindow::toolsAndDrawingMeet() {
  m_workspace.write(QStringLiteral("CASE/catdef.csv"), "pipes;;^p$;^name$;\n");
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  auto *search = viewer.findChild<NivraSearch *>();
  auto *categories = viewer.findChild<NivraNetObjectCats *>();
  auto *layers = viewer.findChild<NivraNetLayersEditor *>();
  QVERIFY(search != nullptr && categories != nullptr && layers != nullptr);
  NetVisControl &control = *viewer.visControl();
  const QSignalSpy current(&viewer, &NivraViewer::currentEleChanged);

  search->defineSearch({QString(), QStringLiteral("^p$"), QStringLiteral("^name$"), QString()}, false);
  search->on_pushButton_select_and_closure_clicked();
  QCOMPARE(control.net().selection().edges, Selection::Names{QStringLiteral("P1")});
  QCOMPARE(control.net().selection().nodes.size(), 2);
  QCOMPARE(categories->categories().front().type, QStringLiteral("^p$")); // follows the search
  QCOMPARE(categories->categories().size(), std::size_t(2));
  emit search->elementMarked(QStringLiteral("A"));
  QCOMPARE(control.net().selection().names(), Selection::Names{QStringLiteral("A")});
  QCOMPARE(current.last().first().toString(), QStringLiteral("A"));
  viewer.elementAction(QStringLiteral("A"), NetPicker::EleAction::ShowInfo);
  QCOMPARE(viewer.findChild<NivraPropViewer *>()->elementName(), QStringLiteral("A"));

  layers->setLayerProperty(QStringLiteral("type"));
  layers->on_toolButtonHideAll_clicked();
  QApplication::processEvents();
  const NetUpdate &update = control.plot()->update();
  const QPointF a = update.projection().map(0, 0);
  QVERIFY(update.elementsAt(a, 8.0).empty()); // what is not drawn cannot be picked
  layers->on_toolButtonShowAll_clicked();
  QApplication::processEvents();
  QVERIFY(!update.elementsAt(a, 8.0).empty());
  viewer.on_actionElement_Table_triggered();
  viewer.on_actionMetadataTable_triggered();
  viewer.open(m_workspace.geometry()); // the tools take the next network
  QVERIFY(control.net().selection().isEmpty());
}

void TestWindow::subnetsHaveWindowsOfTheirOwn() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry(WorkspaceFixture::geometryWithSubnet());
  NivraViewer viewer;
  viewer.open(workspace.geometry());
  emit viewer.visControl()->subnetWanted(QStringLiteral("M"));
  auto *window = viewer.findChild<SubnetWindow *>();
  QVERIFY(window != nullptr);
  QCOMPARE(window->windowTitle(), QStringLiteral("Subassembly M"));
  QCOMPARE(window->visControl()->net().nodes().size(), std::size_t(4)); // two pins, two inside
  QCOMPARE(window->visControl()->net().edges().size(), std::size_t(4));
  const QSignalSpy current(&viewer, &NivraViewer::currentEleChanged);
  emit window->visControl()->elementAction(QStringLiteral("M_V1"), NetPicker::EleAction::Mark);
  QCOMPARE(current.count(), 1); // the tools follow what is picked there
  QVERIFY(SubnetWindow::part(viewer.visControl()->net(), QStringLiteral("none")).isEmpty());
  element *subnet = viewer.visControl()->net().element(QStringLiteral("M"));
  const QString pins = subnet->value(QStringLiteral("pins"));
  subnet->set(QStringLiteral("pins"), QString(pins).replace(QLatin1Char(';'), QStringLiteral(" ; ")));
  QCOMPARE(SubnetWindow::part(viewer.visControl()->net(), QStringLiteral("M")).nodes().size(), std::size_t(4));
  subnet->set(QStringLiteral("pins"), pins);

  emit viewer.visControl()->subnetWanted(QStringLiteral("M"));
  QCOMPARE(viewer.findChildren<SubnetWindow *>().size(), 1); // the one that is open
  auto *search = window->findChild<NivraSearch *>();
  search->defineSearch({QString(), QStringLiteral("^v$"), QStringLiteral("^name$"), QString()}, false);
  search->on_pushButton_select_clicked();
  QVERIFY(!window->visControl()->net().selection().isEmpty());
  QVERIFY(viewer.visControl()->net().selection().edges != window->visControl()->net().selection().edges);

  // What is changed in one window is changed in the other; formulas and searches stay apart.
  auto *layers = window->findChild<NivraNetLayersEditor *>();
  element &here = window->visControl()->net().edges().at(QStringLiteral("M_V1"));
  element &there = viewer.visControl()->net().edges().at(QStringLiteral("M_V1"));
  here.set(QStringLiteral("vis.layer"), QStringLiteral("L"));
  const PropertyKey layer = PropertyKey::find("vis.layer");
  emit layers->elementsChanged({{QStringLiteral("M_V1"), QStringLiteral("gone")}, layer});
  QCOMPARE(there.value(QStringLiteral("vis.layer")), QStringLiteral("L"));
  QVERIFY(!there.contains(QStringLiteral("isSearchResult")) && here.contains(QStringLiteral("isSearchResult")));
  there.erase(QStringLiteral("vis.layer"));
  emit viewer.findChild<ToolDocks *>()->elementsChanged({{QStringLiteral("M_V1")}, layer});
  QApplication::processEvents();
  QVERIFY(!here.contains(QStringLiteral("vis.layer")));
  QVERIFY(here.contains(QStringLiteral("isSearchResult")));

  QPointer<SubnetWindow> watched = window;
  viewer.open(workspace.geometry());
  QVERIFY(watched.isNull()); // a part of the network before
}

void TestWindow::machinesOpenAndComeBack() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/S1/scenconfig.jsn"),
                  "{\"workDir\":\"S1\",\"scenFile\":\"S1.scen\",\"comprDatabase\":\"../machines.txt\"}");
  workspace.write(QStringLiteral("CASE/S1/solverconfig.jsn"), "{\"tamb\":293.15}");
  workspace.writeGeometry(WorkspaceFixture::soundGeometry().replace("\"node2\":\"C\"", "\"node2\":\"C\",\"m\":50"));
  workspace.write(QStringLiteral("CASE/machines.txt"),
                  "[turbo compressor]\nname;drive;speedmin;speedmax;head3;efficiency1\nK1;G;3000;9000;1e-6;0.8\n"
                  "faulty;G;fast;9000;1e-6;0.8\n[gas turbine]\nname;power1;energy2\nG;5000;3\n");
  {
    NivraViewer viewer;
    viewer.open(workspace.scenario());
    auto *stack = viewer.findChild<CharacteristicsStack *>();
    QVERIFY(stack->isHidden() && stack->opened().isEmpty());
    viewer.elementAction(QStringLiteral("P1"), NetPicker::EleAction::OpenCharacteristics); // a pipe has none
    QVERIFY(stack->opened().isEmpty());
    viewer.elementAction(QStringLiteral("K1"), NetPicker::EleAction::OpenCharacteristics);
    QCOMPARE(stack->opened(), QStringList{QStringLiteral("K1")});
    QVERIFY(!stack->isHidden());
    QVERIFY(stack->summary(QStringLiteral("K1")).contains(QStringLiteral("pressure ratio")));
    const QAbstractItemModel &findings = *viewer.findChild<NivraFindings *>()->findChild<QTreeView *>()->model();
    const QModelIndexList faulty =
        findings.match(findings.index(0, 0), Qt::DisplayRole, QStringLiteral("faulty: \"speedmin\" is no number: fast"), 1,
                       Qt::MatchContains | Qt::MatchRecursive);
    QCOMPARE(faulty.size(), 1);
  }
  NivraViewer again;
  again.open(workspace.scenario());
  QCOMPARE(again.findChild<CharacteristicsStack *>()->opened(), QStringList{QStringLiteral("K1")});
  NetData net;
  NetworkLoader loader(net);
  QVERIFY(loader.resolve(workspace.scenario()));
  loader.readConfiguration();
  QVERIFY(loader.readNetwork({}));
  QVERIFY(std::abs(loader.machines().ambientTemperature - 20.0) < 1e-9);
  again.open(workspace.geometry()); // without a scenario there are no machines
  QVERIFY(again.findChild<CharacteristicsStack *>()->opened().isEmpty());
}

void TestWindow::openDialogStartsAtTheExample() {
  const QTemporaryDir folder;
  const QString root = folder.path();
  QCOMPARE(NivraViewer::openDialogStart(root), root);
  QDir(root).mkpath(QStringLiteral("example/DE_H2/S5"));
  QCOMPARE(NivraViewer::openDialogStart(root), root + QStringLiteral("/example"));
  QFile file(root + QStringLiteral("/example/DE_H2/S5/S5.scen.jsn"));
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(NivraViewer::openDialogStart(root), file.fileName());
}

void TestWindow::progressAppearsLateAndCancels() {
  QStatusBar bar;
  {
    LoadProgress progress(&bar);
    QVERIFY(progress.update(0.1));
    QVERIFY(bar.findChildren<QProgressBar *>().isEmpty());
    QTRY_VERIFY(progress.update(0.5) && bar.findChildren<QProgressBar *>().size() == 1);
    bar.findChild<QToolButton *>()->click();
    QVERIFY(!progress.update(0.6));
  }
  QVERIFY(bar.findChildren<QProgressBar *>().isEmpty());
}

// Half a network is nothing to search in or to change.
void TestWindow::toolsWaitWhileANetworkIsRead() {
  const WorkspaceFixture large;
  QByteArray nodes = "{\n";
  for (int i = 0; i < 80000; ++i)
    nodes += "\"N" + QByteArray::number(i) + "\":{\"obj_type\":\"node\",\"x\":" + QByteArray::number(i) + ",\"y\":0}\n,";
  large.writeGeometry(nodes + "\"Z\":{\"obj_type\":\"node\",\"x\":1,\"y\":1}\n}\n");
  NivraViewer viewer;
  viewer.open(m_workspace.geometry());
  viewer.on_actionElement_Table_triggered();
  QWidgetList tools{viewer.findChild<QWidget *>(QStringLiteral("search")),
                    viewer.findChild<QWidget *>(QStringLiteral("layers"))};
  for (QWidget *window : QApplication::topLevelWidgets()) {
    if (qobject_cast<NivraVecTable *>(window) != nullptr)
      tools.append(window);
  }
  QVERIFY(tools.size() == 3 && !tools.contains(nullptr));
  const auto enabled = [&tools] {
    return std::count_if(tools.begin(), tools.end(), [](const QWidget *tool) { return tool->isEnabled(); });
  };
  QCOMPARE(int(enabled()), 3);
  int looks = 0;
  int answering = 0;
  QTimer timer;
  connect(&timer, &QTimer::timeout, this, [&] {
    if (viewer.findChild<QProgressBar *>() == nullptr)
      return;
    ++looks;
    answering += int(enabled());
  });
  timer.start(1);
  viewer.open(large.geometry());
  if (looks == 0)
    QSKIP("this machine reads too fast to be looked at");
  QCOMPARE(answering, 0);
  QCOMPARE(int(enabled()), 3);
}

NIVRA_TEST(TestWindow);
#include "tst_window.moc"
