#include "panels.h"
#include "remembering.h"
#include "workspacefixture.h"

#include <base/nivramsg.h>
#include <support/answers.h>
#include <support/nivratest.h>
#include <tools/nivranetlayerseditor.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>
#include <view/viewfuncdialog.h>

#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRandomGenerator>
#include <QStatusBar>
#include <QThread>

#include <cmath>

namespace {

bool isClose(const QRectF &a, const QRectF &b) {
  const double tolerance = 0.02 * b.width();
  return std::abs(a.center().x() - b.center().x()) < tolerance && std::abs(a.center().y() - b.center().y()) < tolerance &&
         std::abs(a.width() - b.width()) < tolerance;
}

QDockWidget *dock(NivraViewer &viewer, const char *name) {
  return viewer.findChild<QDockWidget *>(QLatin1String(name));
}

QStringList filesIn(const QString &folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
}

} // namespace

/// A case comes back as it was left.
class TestSession : public QObject {
  Q_OBJECT

private slots:
  void init();
  void everythingComesBack();
  void casesKeepTheirOwn();
  void comesBackAfterTheProgramWasKilled();
  void savedSettingsCountAgainstOlderOnes();
  void savedWithTheCaseIsNotKeptTwice();
  void settingsOfAColleagueAreShown();
  void settingsOfAColleagueAreNotOverwrittenUnasked();
  void openedAtTheSecondTry();
  void cleanStartKeepsAndTakesNothing();
  void uselessFilesAreTold_data();
  void uselessFilesAreTold();
  void damagedPlacesAreNotUsed();
  void oldSessionsGo();
  void severalWindowsWriteWholeFiles();
  void commandLineKnowsNothingOfIt();

private:
  std::unique_ptr<WorkspaceFixture> m_workspace;
  QString caseFolder() const { return m_workspace->path(QStringLiteral("CASE")); }
  NetPlot &plotOf(NivraViewer &viewer) const { return *viewer.visControl()->plot(); }
};

void TestSession::init() {
  Remembering::forgetAll();
  m_workspace = std::make_unique<WorkspaceFixture>();
  m_workspace->writeGeometry(WorkspaceFixture::soundGeometry().replace("\"q\":5,", "\"q\":5,\"vis.layer\":\"north\","));
}

void TestSession::everythingComesBack() {
  const QStringList before = filesIn(caseFolder());
  QRectF view;
  {
    NivraViewer viewer;
    Remembering::open(viewer, m_workspace->scenario());
    QVERIFY(QTest::qWaitForWindowActive(&viewer));
    viewer.resize(1000, 700);
    dock(viewer, "layers")->show();
    QTest::qWait(50);
    auto &layers = panelOf<NivraNetLayersEditor>(viewer);
    layers.findChild<QAbstractButton *>(QStringLiteral("toolButtonHideAll"))->click();
    auto &draw = panelOf<viewFuncDialog>(viewer);
    draw.findChild<QDoubleSpinBox *>(QStringLiteral("edgeMag"))->setValue(7.0);
    draw.findChild<QPushButton *>(QStringLiteral("apply"))->click();
    viewer.elementAction(QStringLiteral("B"), NetPicker::EleAction::Mark);
    plotOf(viewer).showArea(QRectF(80, -10, 40, 30));
    QTest::qWait(50);
    view = plotOf(viewer).visibleArea();
    QVERIFY(viewer.close());
  }
  QCOMPARE(filesIn(caseFolder()), before); // nothing is written there
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace->geometry()); // of the same case
  QVERIFY(QTest::qWaitForWindowExposed(&viewer));
  QCOMPARE(viewer.size(), QSize(1000, 700));
  QVERIFY(dock(viewer, "layers")->isVisible());
  QTest::qWait(50);
  QVERIFY(isClose(plotOf(viewer).visibleArea(), view));
  QCOMPARE(viewer.visControl()->net().selection().names(), Selection::Names{QStringLiteral("B")});
  QCOMPARE(viewer.visControl()->currentElement(), QStringLiteral("B"));
  QCOMPARE(plotOf(viewer).settings().edgeMag, 7.0);
  QCOMPARE(panelOf<viewFuncDialog>(viewer).findChild<QDoubleSpinBox *>(QStringLiteral("edgeMag"))->value(), 7.0);
  QVERIFY(!panelOf<viewFuncDialog>(viewer).hasUnapplied());
  QCOMPARE(plotOf(viewer).update().layers().hidden(), QSet<QString>{QStringLiteral("north")});
  QVERIFY(viewer.statusBar()->currentMessage().startsWith(QStringLiteral("Startup finished in ")));
}

void TestSession::casesKeepTheirOwn() {
  const WorkspaceFixture other;
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace->geometry());
  QVERIFY(QTest::qWaitForWindowExposed(&viewer));
  viewer.elementAction(QStringLiteral("A"), NetPicker::EleAction::Mark);
  viewer.open(other.geometry());
  QVERIFY(viewer.visControl()->net().selection().isEmpty());
  viewer.elementAction(QStringLiteral("C"), NetPicker::EleAction::Mark);
  viewer.open(m_workspace->geometry());
  QCOMPARE(viewer.visControl()->net().selection().names(), Selection::Names{QStringLiteral("A")});
  viewer.open(other.geometry());
  QCOMPARE(viewer.visControl()->net().selection().names(), Selection::Names{QStringLiteral("C")});
  QVERIFY(plotOf(viewer).showsAll());
}

void TestSession::comesBackAfterTheProgramWasKilled() {
  {
    NivraViewer viewer; // which is never closed
    Remembering::open(viewer, m_workspace->geometry());
    viewer.elementAction(QStringLiteral("C"), NetPicker::EleAction::Mark);
    plotOf(viewer).showArea(QRectF(80, -10, 40, 30));
    QTRY_VERIFY(SessionStore::read(caseFolder()).value_or(Session()).current == QLatin1String("C"));
    QTRY_VERIFY(QFile::exists(RecentFiles::file()));
  }
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace->geometry());
  QCOMPARE(viewer.visControl()->currentElement(), QStringLiteral("C"));
  QVERIFY(!plotOf(viewer).showsAll());
}

void TestSession::savedSettingsCountAgainstOlderOnes() {
  const QString file = m_workspace->path(QStringLiteral("CASE/plotsettings.ini"));
  const auto edgeMag = [this] {
    NivraViewer viewer;
    Remembering::open(viewer, m_workspace->geometry());
    const double shown = plotOf(viewer).settings().edgeMag;
    PlotSettings settings = plotOf(viewer).settings();
    settings.edgeMag = 5.0;
    plotOf(viewer).setSettings(settings);
    viewer.close();
    return shown;
  };
  edgeMag();
  QCOMPARE(edgeMag(), 5.0);                                                                 // applied, not saved
  m_workspace->write(QStringLiteral("CASE/plotsettings.ini"), "[magnitudes]\nedgeMag=3\n"); // by somebody, later
  QCOMPARE(edgeMag(), 3.0);
  QCOMPARE(edgeMag(), 5.0); // again beside the file as it is
  QCOMPARE(SmallFiles::contents(file), QByteArray("[magnitudes]\nedgeMag=3\n"));
}

void TestSession::savedWithTheCaseIsNotKeptTwice() {
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace->geometry());
  auto &draw = panelOf<viewFuncDialog>(viewer);
  draw.findChild<QDoubleSpinBox *>(QStringLiteral("edgeMag"))->setValue(6.0);
  draw.findChild<QPushButton *>(QStringLiteral("apply"))->click();
  QVERIFY(!viewer.visControl()->ownStyle().settings.isEmpty());
  QVERIFY(viewer.visControl()->ownStyle().labels.isEmpty());
  draw.findChild<QPushButton *>(QStringLiteral("applyAndSave"))->click();
  QVERIFY(viewer.visControl()->ownStyle().isEmpty());
}

void TestSession::settingsOfAColleagueAreShown() {
  const auto write = [this](const QByteArray &edgeMag) {
    m_workspace->write(QStringLiteral("CASE/plotsettings.ini"), "[magnitudes]\nedgeMag=" + edgeMag + "\n");
  };
  {
    NivraViewer viewer;
    Remembering::open(viewer, m_workspace->geometry());
    write("3");
    viewer.close();
  }
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace->geometry());
  QCOMPARE(plotOf(viewer).settings().edgeMag, 3.0);
  write("4.5");
  QVERIFY(viewer.visControl()->ownStyle().isEmpty());
  viewer.reload();
  QCOMPARE(plotOf(viewer).settings().edgeMag, 4.5);
  QCOMPARE(panelOf<viewFuncDialog>(viewer).findChild<QDoubleSpinBox *>(QStringLiteral("edgeMag"))->value(), 4.5);
}

void TestSession::settingsOfAColleagueAreNotOverwrittenUnasked() {
  NivraViewer viewer;
  viewer.remember(WorkspaceMemory::Keeps::RecentFiles); // where it is asked at the end
  viewer.open(m_workspace->geometry());
  const QByteArray theirs = "[magnitudes]\nedgeMag=3\n";
  m_workspace->write(QStringLiteral("CASE/plotsettings.ini"), theirs);
  auto &draw = panelOf<viewFuncDialog>(viewer);
  QVERIFY(viewer.visControl()->ownStyle().isEmpty());
  draw.findChild<QDoubleSpinBox *>(QStringLiteral("edgeMag"))->setValue(7.0);
  const Answers answers({NivraMsg::Answer::No, NivraMsg::Answer::Yes});
  draw.findChild<QPushButton *>(QStringLiteral("applyAndSave"))->click();
  QCOMPARE(SmallFiles::contents(m_workspace->path(QStringLiteral("CASE/plotsettings.ini"))), theirs);
  draw.findChild<QPushButton *>(QStringLiteral("applyAndSave"))->click();
  QVERIFY(answers.areGiven());
  QVERIFY(SmallFiles::contents(m_workspace->path(QStringLiteral("CASE/plotsettings.ini"))).contains("edgeMag=7"));
  QVERIFY(viewer.visControl()->ownStyle().isEmpty());
}

// What is kept of a case is neither lost nor left aside by an opening that fails.
void TestSession::openedAtTheSecondTry() {
  {
    NivraViewer viewer;
    Remembering::open(viewer, m_workspace->geometry());
    viewer.elementAction(QStringLiteral("B"), NetPicker::EleAction::Mark);
    viewer.close();
  }
  const QByteArray sound = SmallFiles::contents(m_workspace->geometry());
  m_workspace->writeGeometry("{ no network");
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace->geometry());
  QVERIFY(viewer.visControl()->net().isEmpty());
  m_workspace->writeGeometry(sound);
  viewer.reload();
  QCOMPARE(viewer.visControl()->currentElement(), QStringLiteral("B"));
  viewer.close();
  QCOMPARE(SessionStore::read(caseFolder()).value_or(Session()).current, QStringLiteral("B"));
}

void TestSession::cleanStartKeepsAndTakesNothing() {
  {
    NivraViewer viewer;
    Remembering::open(viewer, m_workspace->geometry());
    viewer.elementAction(QStringLiteral("A"), NetPicker::EleAction::Mark);
    viewer.close();
  }
  const QByteArray kept = SmallFiles::contents(SessionStore::fileOf(caseFolder()));
  NivraViewer viewer;
  viewer.remember(WorkspaceMemory::Keeps::RecentFiles);
  viewer.open(m_workspace->geometry());
  QVERIFY(viewer.visControl()->net().selection().isEmpty());
  viewer.elementAction(QStringLiteral("B"), NetPicker::EleAction::Mark);
  viewer.close();
  QCOMPARE(SmallFiles::contents(SessionStore::fileOf(caseFolder())), kept);
}

void TestSession::uselessFilesAreTold_data() {
  QTest::addColumn<QByteArray>("text");
  const QByteArray start = "{\"format\":\"nivra session\",\"version\":1,\"case\":\"%1\"";
  QTest::newRow("empty") << QByteArray();
  QTest::newRow("torn") << start + ",\"view\":[1,2";
  QTest::newRow("binary") << QByteArray("\x00\xff\x01", 3);
  QTest::newRow("of the next version") << QByteArray(start).replace("1,", "2,") + "}";
  QTest::newRow("of another case") << QByteArray(start).replace("%1", "/elsewhere") + "}";
  QTest::newRow("too large") << QByteArray(9 << 20, ' ');
  QTest::newRow("deep") << start + ",\"view\":" + QByteArray(5000, '[');
  // These are sessions; that they have no places of the window is told.
  QTest::newRow("other types") << start + ",\"view\":\"all\",\"selection\":[1],\"layers\":7,\"style\":[],\"window\":true,"
                                          "\"current\":{},\"layerEdits\":[{}]}";
  QTest::newRow("wild numbers") << start + ",\"view\":[1e300,-1e300,1e308,1e-320],\"window\":{\"geometry\":\"AAAA\","
                                           "\"docks\":\"//////////8=\"}}";
  QTest::newRow("elsewhere") << start +
                                    ",\"view\":[1e9,1e9,5,5],\"selection\":{\"nodes\":[\"nobody\",7,\"\"]},"
                                    "\"current\":\"nobody\",\"layerEdits\":{\"name\":{\"A\":\"B\"},\"x\":{\"A\":\"9\"}}}";
  QTest::newRow("style of no sense") << start + ",\"style\":{\"settings\":\"[[[\\nnodeMag=wide\","
                                                "\"labels\":\"vfd 1\\n\\n\"}}";
}

void TestSession::uselessFilesAreTold() {
  QFETCH(QByteArray, text);
  text.replace("%1", QDir(caseFolder()).canonicalPath().toUtf8());
  SmallFiles::write(SessionStore::fileOf(caseFolder()), text);
  const NivraMsg::Recorder log;
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace->geometry());
  QVERIFY(QTest::qWaitForWindowExposed(&viewer));
  QCOMPARE(viewer.visControl()->net().nodes().size(), 3U);
  QVERIFY(viewer.visControl()->net().element(QStringLiteral("A")) != nullptr);
  QCOMPARE(viewer.visControl()->net().element(QStringLiteral("A"))->value(Names::all().x), QStringLiteral("0"));
  QVERIFY(viewer.visControl()->net().selection().isEmpty());
  const QString lines = log.lines().join(QLatin1Char('\n'));
  QVERIFY2(lines.contains(QStringLiteral("cannot be used")), qPrintable(lines));
  viewer.elementAction(QStringLiteral("A"), NetPicker::EleAction::Mark);
  viewer.close(); // and the next one is sound again
  QCOMPARE(SessionStore::read(caseFolder()).value_or(Session()).current, QStringLiteral("A"));
}

// The toolkit ends the program over bytes of its own that are wrong.
void TestSession::damagedPlacesAreNotUsed() {
  {
    NivraViewer viewer;
    Remembering::open(viewer, m_workspace->geometry());
    viewer.elementAction(QStringLiteral("A"), NetPicker::EleAction::Mark);
    viewer.close();
  }
  const QString file = SessionStore::fileOf(caseFolder());
  const QByteArray sound = SmallFiles::contents(file);
  QVERIFY(SessionStore::read(caseFolder()).value_or(Session()).docks.size() > 100);
  QRandomGenerator random(7);
  for (int i = 0; i < 25; ++i) {
    QByteArray damaged = sound;
    const int begin = damaged.indexOf("\"docks\": \"") + 10;
    for (int j = 0; j < 4; ++j)
      damaged[begin + 8 + random.bounded(100)] = "ABCDEFGH0123456789"[random.bounded(18)];
    SmallFiles::write(file, damaged);
    const NivraMsg::Recorder log;
    NivraViewer viewer;
    Remembering::open(viewer, m_workspace->geometry());
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    QCOMPARE(viewer.visControl()->currentElement(), QStringLiteral("A")); // the rest is sound
    if (damaged != sound)
      QVERIFY(log.lines().join(QString()).contains(QStringLiteral("are damaged")));
  }
}

void TestSession::oldSessionsGo() {
  for (int i = 0; i < SessionStore::Most + 20; ++i) {
    const QString path = QStringLiteral("%1/old%2.json").arg(SessionStore::folder()).arg(i);
    SmallFiles::write(path, "{}");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-i - 1), QFileDevice::FileModificationTime));
  }
  SessionStore::write(caseFolder(), "{}");
  const QStringList left = filesIn(SessionStore::folder());
  QCOMPARE(left.size(), SessionStore::Most);
  QVERIFY(left.contains(QFileInfo(SessionStore::fileOf(caseFolder())).fileName()));
  QVERIFY(left.contains(QStringLiteral("old0.json")) && !left.contains(QStringLiteral("old110.json")));
}

// Who reads finds one of the sessions that were written, never a piece of one.
void TestSession::severalWindowsWriteWholeFiles() {
  const QString folder = caseFolder();
  const QString name = SessionStore::caseName(folder);
  const auto write = [&](int count, const QString &element) {
    Session session;
    session.current = element;
    for (int i = 0; i < count; ++i)
      session.selection.nodes.insert(element + QString::number(i));
    SessionStore::write(folder, session.toJson(name));
  };
  write(1, QStringLiteral("first"));
  std::unique_ptr<QThread> one(QThread::create([&] {
    for (int i = 0; i < 60; ++i)
      write(3000, QStringLiteral("one"));
  }));
  std::unique_ptr<QThread> other(QThread::create([&] {
    for (int i = 0; i < 60; ++i)
      write(10, QStringLiteral("other"));
  }));
  one->start();
  other->start();
  int reads = 0;
  while (one->isRunning() || other->isRunning()) {
    const std::optional<Session> session = SessionStore::read(folder);
    QVERIFY(session.has_value());
    const int expected = session->current == QLatin1String("one")     ? 3000
                         : session->current == QLatin1String("other") ? 10
                                                                      : 1;
    QCOMPARE(session->selection.nodes.size(), expected);
    ++reads;
  }
  QVERIFY(reads > 10);
  one->wait();
  other->wait();
}

void TestSession::commandLineKnowsNothingOfIt() {
  const QTemporaryDir data;
  const QString sessions = data.filePath(QStringLiteral("data/Nivra/NivraReader/sessions"));
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove(QStringLiteral("NIVRA_BATCH"));
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  environment.insert(QStringLiteral("XDG_DATA_HOME"), data.filePath(QStringLiteral("data")));
  environment.insert(QStringLiteral("XDG_CACHE_HOME"), data.filePath(QStringLiteral("cache")));
  environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
  const auto exported = [&] {
    const QString picture = data.filePath(QStringLiteral("picture.png"));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(NIVRA_PROGRAM),
                  {QStringLiteral("--info"), QStringLiteral("--export"), picture, QStringLiteral("--width"),
                   QStringLiteral("300"), m_workspace->geometry()});
    program.waitForFinished(120000);
    return SmallFiles::contents(picture);
  };
  const QByteArray before = exported();
  QVERIFY(!QFileInfo::exists(sessions));
  { // a window that is killed, after it has kept what was there
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(NIVRA_PROGRAM), {m_workspace->geometry()});
    QVERIFY(program.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(filesIn(sessions).size() == 1, 30000);
    program.kill();
    program.waitForFinished();
  }
  const QString session = sessions + QLatin1Char('/') + filesIn(sessions).first();
  QByteArray text = SmallFiles::contents(session);
  QVERIFY(QJsonDocument::fromJson(text).isObject());
  text.replace("\"hidden\": [", "\"hidden\": [\"north\"");
  text.replace("\"property\": \"\"", "\"property\": \"vis.layer\"");
  SmallFiles::write(session, text);
  QCOMPARE(exported(), before);
  QCOMPARE(SmallFiles::contents(session), text);
}

NIVRA_TEST(TestSession);
#include "tst_session.moc"
