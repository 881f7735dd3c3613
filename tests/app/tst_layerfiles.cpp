#include "layerkeeper.h"
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
#include <QPushButton>
#include <QTableView>
#include <QTimer>

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
  void strangeFilesChangeLayersOnly();

private:
  static void rename(NivraViewer &viewer, const QString &name) {
    auto &editor = panelOf<NivraNetLayersEditor>(viewer);
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
  QString overlay() const { return m_workspace->path(QStringLiteral("CASE/layers.csv")); }

  std::unique_ptr<WorkspaceFixture> m_workspace;
};

void TestLayerFiles::init() {
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
