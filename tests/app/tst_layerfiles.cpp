#include "layerkeeper.h"
#include "loadprogress.h"
#include "panels.h"
#include "remembering.h"
#include "workspacefixture.h"

#include <base/fileaccess.h>
#include <support/answers.h>
#include <support/nivratest.h>
#include <tools/layeredits.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/nivranetobjectcats.h>
#include <view/netviscontrol.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QTimer>
#include <QToolButton>

#include <functional>

namespace {

/// Types a path into the next file dialog and confirms it; an empty one closes it.
class PathTyped : public QObject {
public:
  explicit PathTyped(const QString &path) {
    connect(&m_timer, &QTimer::timeout, this, [this, path] {
      auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
      if (dialog == nullptr)
        return;
      m_timer.stop();
      proposed = dialog->selectedFiles().value(0);
      if (path.isEmpty()) {
        dialog->reject();
        return;
      }
      auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
      name->setText(path);
      QTest::keyClick(name, Qt::Key_Return);
    });
    m_timer.start(5);
  }

  QString proposed;

private:
  QTimer m_timer;
};

} // namespace

/// Layers that were edited are saved where a person wants them, or asked about.
class TestLayerFiles : public QObject {
  Q_OBJECT

private slots:
  void init();
  void savedWithTheCaseComesWithTheCase();
  void savedElsewhereIsLoaded();
  void oneQuestionNamesWhatIsNotSaved();
  void killedProgramLosesNoLayers();
  void discardedDoNotComeBack();
  void reloadKeepsThem();
  void failedReadingLosesNothing_data();
  void failedReadingLosesNothing();
  void closingWhileReadingAsks();
  void reloadTakesTheFileOfTheCase();
  void whatAnotherOneWroteIsNotOverwrittenUnasked();
  void nothingIsDiscardedBeforeItGoes();
  void strangeFilesChangeLayersOnly();

private:
  static void rename(NivraViewer &viewer, const QString &name) {
    auto &editor = panelOf<NivraNetLayersEditor>(viewer);
    editor.show();
    auto *table = editor.findChild<QTableView *>();
    const QModelIndex cell = table->model()->index(0, 1);
    const Answers yes({NivraMsg::Answer::Yes, NivraMsg::Answer::Yes});
    table->model()->setData(cell, name);
    QTRY_COMPARE(layerOf(viewer), name);
  }
  static QString layerOf(NivraViewer &viewer) {
    return viewer.visControl()->net().element(QStringLiteral("P1"))->value(Names::all().layer);
  }
  static QPushButton *button(NivraViewer &viewer, const char *name) {
    return panelOf<NivraNetLayersEditor>(viewer).findChild<QPushButton *>(QLatin1String(name));
  }
  static QByteArray large() {
    QByteArray nodes = "{\n";
    for (int i = 0; i < 300000; ++i)
      nodes += "\"N" + QByteArray::number(i) + "\":{\"obj_type\":\"node\",\"x\":" + QByteArray::number(i) + ",\"y\":0}\n,";
    return nodes + "\"Z\":{\"obj_type\":\"node\",\"x\":1,\"y\":1}\n}\n";
  }
  static void pressCancel(NivraViewer &viewer) {
    for (QToolButton *button : viewer.statusBar()->findChildren<QToolButton *>()) {
      if (button->text() == QLatin1String("Cancel"))
        button->click();
    }
  }
  /// Does something as soon as a reading shows that it goes on; false when it never did.
  static bool whileReading(NivraViewer &viewer, const std::function<void()> &act) {
    bool isDone = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, &timer, [&] {
      if (isDone || viewer.findChild<QProgressBar *>() == nullptr)
        return;
      isDone = true;
      act();
    });
    timer.start(1);
    viewer.reload();
    return isDone;
  }
  QString overlay() const { return m_workspace->path(QStringLiteral("CASE/layers.csv")); }

  std::unique_ptr<WorkspaceFixture> m_workspace;
};

void TestLayerFiles::init() {
  LoadProgress::setPatience(0);
  Remembering::forgetAll();
  m_workspace = std::make_unique<WorkspaceFixture>();
  m_workspace->writeGeometry(WorkspaceFixture::soundGeometry().replace("\"q\":5,", "\"q\":5,\"vis.layer\":\"north\","));
}

void TestLayerFiles::savedWithTheCaseComesWithTheCase() {
  const QByteArray network = SmallFiles::contents(m_workspace->geometry());
  NivraViewer viewer;
  viewer.open(m_workspace->geometry());
  QCOMPARE(layerOf(viewer), QStringLiteral("north"));
  rename(viewer, QStringLiteral("süd 50%"));
  {
    PathTyped path(overlay());
    button(viewer, "pushButtonSave")->click();
    QCOMPARE(path.proposed, overlay());
  }
  QCOMPARE(SmallFiles::contents(overlay()), QByteArray("# layer property;element;layer\nvis.layer;P1;süd 50%25\n"));
  const Answers none({});
  QVERIFY(viewer.close()); // nothing is left to be asked
  QVERIFY(none.areGiven());
  NivraViewer again;
  again.open(m_workspace->geometry());
  QCOMPARE(layerOf(again), QStringLiteral("süd 50%"));
  QCOMPARE(SmallFiles::contents(m_workspace->geometry()), network);
}

void TestLayerFiles::savedElsewhereIsLoaded() {
  const QTemporaryDir own;
  const QString file = own.filePath(QStringLiteral("mine.csv"));
  {
    NivraViewer viewer;
    viewer.open(m_workspace->geometry());
    rename(viewer, QStringLiteral("south"));
    const PathTyped path(file);
    button(viewer, "pushButtonSave")->click();
  }
  QVERIFY(!QFile::exists(overlay()));
  NivraViewer viewer;
  viewer.open(m_workspace->geometry());
  QCOMPARE(layerOf(viewer), QStringLiteral("north"));
  panelOf<NivraNetLayersEditor>(viewer).show();
  const PathTyped path(file);
  button(viewer, "pushButtonLoad")->click();
  QCOMPARE(layerOf(viewer), QStringLiteral("south"));
  QTRY_COMPARE(shownNames(panelOf<NivraNetLayersEditor>(viewer)).size(), 1);
  auto *table = panelOf<NivraNetLayersEditor>(viewer).findChild<QTableView *>();
  QTRY_COMPARE(table->model()->index(0, 1).data().toString(), QStringLiteral("south"));
}

void TestLayerFiles::oneQuestionNamesWhatIsNotSaved() {
  NivraViewer viewer;
  viewer.open(m_workspace->geometry());
  rename(viewer, QStringLiteral("south"));
  {
    const Answers cancel({NivraMsg::Answer::Cancel});
    QVERIFY(!viewer.close());
    QVERIFY(cancel.areGiven());
    QVERIFY2(cancel.texts().first().contains(QStringLiteral("layers of elements")), qPrintable(cancel.texts().first()));
  }
  panelOf<NivraNetObjectCats>(viewer).findChild<QAbstractButton *>(QStringLiteral("toolButtonAdd"))->click();
  {
    const Answers save({NivraMsg::Answer::Save}); // and no place is chosen then
    const PathTyped nowhere{QString()};
    QVERIFY(!viewer.close());
    QVERIFY(save.areGiven());
    QVERIFY(save.texts().first().contains(QStringLiteral("categories\n")));
    QVERIFY(save.texts().first().contains(QStringLiteral("layers of elements (1)")));
  }
  QVERIFY(QFile::exists(m_workspace->path(QStringLiteral("CASE/catdef.csv"))));
  const Answers save({NivraMsg::Answer::Save});
  const PathTyped path(overlay());
  QVERIFY(viewer.close());
  QVERIFY(save.areGiven());
  QVERIFY(QFile::exists(overlay()));
}

void TestLayerFiles::killedProgramLosesNoLayers() {
  {
    NivraViewer viewer; // which is never closed
    Remembering::open(viewer, m_workspace->geometry());
    rename(viewer, QStringLiteral("south"));
    QTRY_VERIFY(!SessionStore::read(m_workspace->path(QStringLiteral("CASE"))).value_or(Session()).layerEdits.isEmpty());
  }
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace->geometry());
  QCOMPARE(layerOf(viewer), QStringLiteral("south"));
  QVERIFY(viewer.findChild<LayerKeeper *>()->isUnsaved());
}

void TestLayerFiles::discardedDoNotComeBack() {
  {
    NivraViewer viewer;
    Remembering::open(viewer, m_workspace->geometry());
    rename(viewer, QStringLiteral("south"));
    const Answers discard({NivraMsg::Answer::Discard});
    QVERIFY(viewer.close());
    QVERIFY(discard.areGiven());
  }
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace->geometry());
  QCOMPARE(layerOf(viewer), QStringLiteral("north"));
  QVERIFY(!viewer.findChild<LayerKeeper *>()->isUnsaved());
}

void TestLayerFiles::reloadKeepsThem() {
  NivraViewer viewer;
  viewer.open(m_workspace->geometry());
  rename(viewer, QStringLiteral("south"));
  viewer.reload();
  QCOMPARE(layerOf(viewer), QStringLiteral("south"));
  QVERIFY(viewer.findChild<LayerKeeper *>()->isUnsaved());
  auto *table = panelOf<NivraNetLayersEditor>(viewer).findChild<QTableView *>();
  QTRY_COMPARE(table->model()->index(0, 1).data().toString(), QStringLiteral("south"));
}

void TestLayerFiles::failedReadingLosesNothing_data() {
  QTest::addColumn<bool>("isCancelled");
  QTest::newRow("cancelled") << true;
  QTest::newRow("broken") << false;
}

void TestLayerFiles::failedReadingLosesNothing() {
  QFETCH(const bool, isCancelled);
  m_workspace->write(QStringLiteral("CASE/layers.csv"), "vis.layer;K1;west\n");
  const QByteArray sound = SmallFiles::contents(m_workspace->geometry());
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace->geometry());
  QVERIFY(QTest::qWaitForWindowExposed(&viewer));
  rename(viewer, QStringLiteral("south"));
  viewer.elementAction(QStringLiteral("B"), NetPicker::EleAction::Mark);
  const auto fail = [&] {
    m_workspace->writeGeometry(isCancelled ? large() : QByteArray("{ no network"));
    if (!isCancelled)
      viewer.reload();
    else
      whileReading(viewer, [&] { pressCancel(viewer); });
    return viewer.visControl()->net().isEmpty();
  };
  QVERIFY(fail());
  QVERIFY(fail()); // again, with nothing shown
  m_workspace->writeGeometry(sound);
  viewer.reload();
  QCOMPARE(layerOf(viewer), QStringLiteral("south"));
  QCOMPARE(viewer.visControl()->currentElement(), QStringLiteral("B"));
  QVERIFY(fail());
  const Answers save({NivraMsg::Answer::Save});
  QVERIFY(viewer.close());
  QVERIFY(save.areGiven());
  QCOMPARE(SmallFiles::contents(overlay()),
           QByteArray("# layer property;element;layer\nvis.layer;K1;west\nvis.layer;P1;south\n"));
  QCOMPARE(SessionStore::read(m_workspace->path(QStringLiteral("CASE"))).value_or(Session()).current, QStringLiteral("B"));
}

void TestLayerFiles::closingWhileReadingAsks() {
  NivraViewer viewer;
  viewer.open(m_workspace->geometry());
  viewer.show();
  rename(viewer, QStringLiteral("south"));
  m_workspace->writeGeometry(large());
  QVERIFY(whileReading(viewer, [&] { QVERIFY(!viewer.close()); }));
  const Answers discard({NivraMsg::Answer::Discard});
  QTRY_VERIFY(!viewer.isVisible());
  QVERIFY(discard.areGiven());
}

void TestLayerFiles::reloadTakesTheFileOfTheCase() {
  m_workspace->write(QStringLiteral("CASE/layers.csv"), "vis.layer;P1;south\n");
  NivraViewer viewer;
  viewer.open(m_workspace->geometry());
  m_workspace->write(QStringLiteral("CASE/layers.csv"), "vis.layer;P1;west\nvis.layer;A;yonder\n"); // by a colleague
  viewer.reload();
  QCOMPARE(layerOf(viewer), QStringLiteral("west"));
  auto &keeper = *viewer.findChild<LayerKeeper *>();
  QVERIFY(!keeper.isUnsaved());
  rename(viewer, QStringLiteral("mine"));
  QVERIFY(keeper.save());
  const QByteArray written = SmallFiles::contents(overlay());
  QVERIFY2(written.contains("vis.layer;A;") && written.contains("vis.layer;P1;"), written.constData());
}

void TestLayerFiles::whatAnotherOneWroteIsNotOverwrittenUnasked() {
  m_workspace->write(QStringLiteral("CASE/layers.csv"), "vis.layer;P1;south\n");
  NivraViewer viewer;
  viewer.open(m_workspace->geometry());
  rename(viewer, QStringLiteral("mine"));
  const QByteArray theirs = "vis.layer;P1;west\nvis.layer;A;east\n";
  m_workspace->write(QStringLiteral("CASE/layers.csv"), theirs);
  {
    const Answers no({NivraMsg::Answer::Save, NivraMsg::Answer::No});
    QVERIFY(!viewer.close());
    QVERIFY(no.areGiven());
    QVERIFY2(no.texts().last().contains(QStringLiteral("layers.csv was changed")), qPrintable(no.texts().last()));
    QCOMPARE(SmallFiles::contents(overlay()), theirs);
  }
  const Answers yes({NivraMsg::Answer::Save, NivraMsg::Answer::Yes});
  QVERIFY(viewer.close());
  QVERIFY(SmallFiles::contents(overlay()).contains("P1;mine"));
}

void TestLayerFiles::nothingIsDiscardedBeforeItGoes() {
  NivraViewer viewer;
  viewer.open(m_workspace->geometry());
  rename(viewer, QStringLiteral("south"));
  {
    const Answers told({NivraMsg::Answer::Ok}); // that there is no such workspace
    viewer.open(m_workspace->path(QStringLiteral("nowhere.geom.jsn")));
    QVERIFY(told.areGiven());
  }
  QCOMPARE(layerOf(viewer), QStringLiteral("south"));
  QVERIFY(viewer.findChild<LayerKeeper *>()->isUnsaved());
  const Answers discard({NivraMsg::Answer::Discard});
  QVERIFY(viewer.close());
  QVERIFY(discard.areGiven() && !viewer.findChild<LayerKeeper *>()->isUnsaved());
}

void TestLayerFiles::strangeFilesChangeLayersOnly() {
  m_workspace->write(QStringLiteral("CASE/layers.csv"),
                     "vis.layer;P1;south\nname;P1;B\nnode1;P1;C\nvis.layer;nobody;x\n"
                     "short;line\n;P1;x\n\n# vis.layer;A;x\nvis.layer;A;%3Ba\n\xff\xfe;;\n");
  NivraViewer viewer;
  viewer.open(m_workspace->geometry());
  QCOMPARE(layerOf(viewer), QStringLiteral("south"));
  const NetData &net = viewer.visControl()->net();
  QCOMPARE(net.element(QStringLiteral("P1"))->value(Names::all().node1), QStringLiteral("A"));
  QCOMPARE(net.element(QStringLiteral("A"))->value(Names::all().layer), QStringLiteral(";a"));
  QVERIFY(net.element(QStringLiteral("P1")) != nullptr);
}

NIVRA_TEST(TestLayerFiles);
#include "tst_layerfiles.moc"
