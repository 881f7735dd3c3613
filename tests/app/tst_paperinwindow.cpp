#include "nivraviewer.h"
#include "panels.h"
#include "workspacefixture.h"

#include <base/generalsettings.h>
#include <paper/pagedialog.h>
#include <support/answers.h>
#include <support/letters.h>
#include <support/nivratest.h>
#include <view/netviscontrol.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTimer>

namespace {

QByteArray contentOf(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Does something with the next modal dialog, which is closed if that does not.
template <typename Dialog>
void withNext(const std::function<void(Dialog &dialog)> &act) {
  QTimer::singleShot(0, qApp, [act] {
    QTRY_VERIFY(qobject_cast<Dialog *>(QApplication::activeModalWidget()) != nullptr);
    QPointer<Dialog> dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
    act(*dialog);
    if (dialog != nullptr && dialog->isVisible())
      dialog->reject();
  });
}

void press(QWidget &dialog, const char *button) {
  auto *found = dialog.findChild<QPushButton *>(QLatin1String(button));
  QVERIFY2(found != nullptr && found->isVisible() && found->isEnabled(), button);
  QTest::mouseClick(found, Qt::LeftButton);
}

void choose(QWidget &dialog, const char *box, int index) {
  auto *found = dialog.findChild<QComboBox *>(QLatin1String(box));
  QVERIFY2(found != nullptr && found->isEnabled(), box);
  found->setCurrentIndex(index);
}

} // namespace

class TestPaperInWindow : public QObject {
  Q_OBJECT

private slots:
  void init();
  void entriesWaitForANetwork();
  void keysBringThePage();
  void everyTextIsWhole();
  void aPageIsSaved();
  void scenariosInOneRun();
  void aRunCanBeCancelled();
};

void TestPaperInWindow::init() {
  QFile::remove(GeneralSettings::userDirectory() + QStringLiteral("/page.json"));
}

void TestPaperInWindow::entriesWaitForANetwork() {
  const WorkspaceFixture files;
  NivraViewer viewer;
  auto *print = viewer.findChild<QAction *>(QStringLiteral("actionPrint"));
  auto *page = viewer.findChild<QAction *>(QStringLiteral("actionSavePage"));
  QVERIFY(!print->isEnabled() && !page->isEnabled());
  viewer.open(files.scenario());
  QVERIFY(print->isEnabled() && page->isEnabled());
  QCOMPARE(print->shortcut(), QKeySequence(QKeySequence::Print));
  const QList<QAction *> entries = viewer.menuBar()->actions().first()->menu()->actions();
  QVERIFY(entries.contains(print) && entries.contains(page));
}

void TestPaperInWindow::keysBringThePage() {
  const WorkspaceFixture files;
  NivraViewer viewer;
  viewer.open(files.scenario());
  viewer.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&viewer));
  const QImage before = viewer.visControl()->plot()->grab().toImage();
  bool isSeen = false;
  withNext<PageDialog>([&](PageDialog &dialog) {
    isSeen = true;
    dialog.resize(1000, 700);
    dialog.activateWindow(); // there is no window manager that does
    QTRY_COMPARE(QApplication::activeWindow(), &dialog);
    QCOMPARE(dialog.text().title, QStringLiteral("CASE"));
    QVERIFY(dialog.text().facts.contains(QLatin1String("Scenario: S1")));
    auto *title = dialog.findChild<QLineEdit *>(QStringLiteral("title"));
    QVERIFY(title->hasFocus()); // one types at once what is most often changed
    QTest::keyClicks(title, QStringLiteral("Winter"));
    QCOMPARE(dialog.text().title, QStringLiteral("Winter"));
    auto *preview = dialog.findChild<QWidget *>(QStringLiteral("preview"));
    const auto inked = [preview] {
      const QImage shown = preview->grab().toImage();
      int ink = 0;
      for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
          ink += shown.pixelColor(x, y).saturation() > 120 ? 1 : 0;
      return ink;
    };
    QTRY_VERIFY(inked() > 200); // the colour ramp and the edges
    const int wide = inked();
    QTest::keyClick(&dialog, Qt::Key_E, Qt::AltModifier); // without the legend
    QTRY_VERIFY(inked() < wide);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  QTest::keyClick(&viewer, Qt::Key_P, Qt::ControlModifier);
  QTRY_VERIFY(isSeen);
  QVERIFY(!PageSetup::remembered().hasLegend); // is kept, in the user's own folder
  QVERIFY(!QFile::exists(files.path(QStringLiteral("CASE/page.json"))));
  QCOMPARE(viewer.visControl()->plot()->grab().toImage(), before);
}

/// On a small screen the choices scroll and nothing is cut.
void TestPaperInWindow::everyTextIsWhole() {
  const WorkspaceFixture files;
  NivraViewer viewer;
  viewer.open(files.scenario());
  withNext<PageDialog>([&](PageDialog &dialog) {
    dialog.resize(860, 520);
    QTest::qWait(20);
    QVERIFY(dialog.height() <= 560 && dialog.width() <= 900);
    const auto *choices = dialog.findChild<QScrollArea *>(QStringLiteral("choices"));
    QVERIFY(choices->widget()->width() <= choices->viewport()->width());
    QVERIFY2(choices->width() < 460 * letterScale(),
             qPrintable(QString::number(choices->width()))); // the page needs the room
    for (const QLabel *label : dialog.findChildren<QLabel *>())
      QVERIFY2(!label->isVisible() || label->width() >= label->sizeHint().width(), qPrintable(label->text()));
    for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>())
      QVERIFY2(!button->isVisible() || button->text().isEmpty() || button->width() >= button->minimumSizeHint().width(),
               qPrintable(button->text()));
    for (const QAbstractSpinBox *spin : dialog.findChildren<QAbstractSpinBox *>())
      QVERIFY2(spin->width() >= spin->minimumSizeHint().width(), qPrintable(spin->objectName()));
    QSet<QString> keys;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
      keys << QKeySequence::mnemonic(label->text()).toString();
    keys.remove(QString());
    int buttons = 0;
    for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>()) {
      const QString key = QKeySequence::mnemonic(button->text()).toString();
      buttons += key.isEmpty() ? 0 : 1;
      QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(button->text()));
      keys << key;
    }
    QVERIFY(buttons >= 8);
  });
  viewer.findChild<QAction *>(QStringLiteral("actionSavePage"))->trigger();
}

void TestPaperInWindow::aPageIsSaved() {
  const WorkspaceFixture files;
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("page.svg"));
  NivraViewer viewer;
  viewer.open(files.scenario());
  withNext<PageDialog>([&](PageDialog &dialog) {
    choose(dialog, "area", 1);
    withNext<QFileDialog>([&](QFileDialog &chooser) {
      chooser.selectFile(path);
      QMetaObject::invokeMethod(&chooser, "accept");
    });
    press(dialog, "save");
    QVERIFY(!dialog.isVisible()); // done
  });
  viewer.findChild<QAction *>(QStringLiteral("actionSavePage"))->trigger();
  const QByteArray page = contentOf(path);
  QVERIFY(page.contains("CASE") && page.contains("Scenario: S1") && !page.contains("<image"));
}

void TestPaperInWindow::scenariosInOneRun() {
  const WorkspaceFixture files;
  QDir(files.root()).mkpath(QStringLiteral("CASE/S2"));
  files.write(QStringLiteral("CASE/S2/S2.scen.jsn"), "{\n\"A\":[{\"property\":\"qset\",\"value\":-7}]\n}\n");
  files.write(QStringLiteral("CASE/S2/scenconfig.jsn"), "{\"workDir\":\"S2\",\"scenFile\":\"S2.scen\"}");
  files.write(QStringLiteral("CASE/S2/solverconfig.jsn"), "{}");
  const QTemporaryDir folder;
  NivraViewer viewer;
  viewer.open(files.scenario());
  const auto nodes = viewer.visControl()->net().nodes().size();
  withNext<PageDialog>([&](PageDialog &dialog) {
    withNext<QDialog>([&](QDialog &series) {
      auto *scenarios = series.findChild<QListWidget *>(QStringLiteral("scenarios"));
      auto *count = series.findChild<QLabel *>(QStringLiteral("count"));
      QVERIFY(scenarios != nullptr && scenarios->isVisible());
      QCOMPARE(scenarios->count(), 2);
      QCOMPARE(count->text(), QStringLiteral("2 pages")); // the network and the window, in the open scenario
      scenarios->setFocus();
      scenarios->setCurrentRow(1);
      QTest::keyClick(scenarios, Qt::Key_Space);
      QCOMPARE(count->text(), QStringLiteral("4 pages"));
      auto *target = series.findChild<QLineEdit *>(QStringLiteral("target"));
      target->setText(folder.filePath(QStringLiteral("book.pdf")));
      press(series, "start");
      QVERIFY2(count->text().startsWith(QStringLiteral("4 pages are in ")), qPrintable(count->text()));
      choose(series, "format", 2);
      QCOMPARE(target->text(), folder.path());
      press(series, "start");
    });
    press(dialog, "series");
  });
  viewer.findChild<QAction *>(QStringLiteral("actionSavePage"))->trigger();
  QVERIFY(contentOf(folder.filePath(QStringLiteral("book.pdf"))).contains("/Count 4"));
  QCOMPARE(QDir(folder.path()).entryList({QStringLiteral("*.svg")}).size(), 4);
  QVERIFY(contentOf(folder.filePath(QStringLiteral("S2_Whole_network.svg"))).contains("Scenario: S2"));
  QCOMPARE(viewer.visControl()->net().nodes().size(), nodes);
  QVERIFY(viewer.windowTitle().contains(QStringLiteral("SCEN: S1")));
}

void TestPaperInWindow::aRunCanBeCancelled() {
  const WorkspaceFixture files;
  const QTemporaryDir folder;
  NivraViewer viewer;
  viewer.open(files.scenario());
  withNext<PageDialog>([&](PageDialog &dialog) {
    withNext<QDialog>([&](QDialog &series) {
      series.findChild<QLineEdit *>(QStringLiteral("target"))->setText(folder.filePath(QStringLiteral("book.pdf")));
      QTimer::singleShot(0, &series, [&series] { QTest::keyClick(&series, Qt::Key_Escape); });
      press(series, "start");
      QVERIFY(series.isVisible()); // the key ended the run, not the dialog
      QVERIFY(series.findChild<QLabel *>(QStringLiteral("count"))->text().contains(QLatin1String("nothing was written")));
      // A file that is there is replaced only when the person says so.
      QFile present(folder.filePath(QStringLiteral("book.pdf")));
      QVERIFY(present.open(QIODevice::WriteOnly) && present.write("mine") == 4);
      present.close();
      const Answers no({NivraMsg::Answer::No});
      press(series, "start");
      QVERIFY(no.areGiven());
      QCOMPARE(contentOf(present.fileName()), QByteArray("mine"));
    });
    press(dialog, "series");
  });
  viewer.findChild<QAction *>(QStringLiteral("actionSavePage"))->trigger();
}

NIVRA_TEST(TestPaperInWindow);
#include "tst_paperinwindow.moc"
