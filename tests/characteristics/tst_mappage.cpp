#include "mapplot.h"

#include <paper/pagedialog.h>
#include <support/nivratest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

namespace {

PistonCompressor piston() {
  PistonCompressor machine;
  machine.name = QStringLiteral("K1");
  machine.displacement = 0.5;
  machine.speedMin = 200;
  machine.speedMax = 400;
  machine.maximalRatio = 2.0;
  return machine;
}

QByteArray contentOf(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestMapPage : public QObject {
  Q_OBJECT

private slots:
  void keysCopyAndPrint();
  void darkScreensAreNotForPaper();
};

/// With the keys of the map: a picture on the clipboard, and a page that names machine, case and scenario.
void TestMapPage::keysCopyAndPrint() {
  const QTemporaryDir folder;
  MapPlot plot;
  plot.show(piston(), std::nullopt);
  plot.setPageFacts({QStringLiteral("CASE"), QStringLiteral("S1")});
  plot.resize(420, 320);
  static_cast<QWidget &>(plot).show();
  QVERIFY(QTest::qWaitForWindowExposed(&plot));
  const QImage before = plot.grab().toImage();
  QTest::mouseClick(plot.canvas(), Qt::LeftButton);
  QTest::keyClick(plot.canvas(), Qt::Key_C, Qt::ControlModifier);
  QVERIFY(QApplication::clipboard()->image().width() >= 1600);

  const QString svg = folder.filePath(QStringLiteral("map.svg"));
  const QString pdf = folder.filePath(QStringLiteral("map.pdf"));
  QTimer::singleShot(0, &plot, [&] {
    auto *dialog = qobject_cast<PageDialog *>(QApplication::activeModalWidget());
    QVERIFY(dialog != nullptr);
    QCOMPARE(dialog->text().title, QStringLiteral("K1"));
    for (const char *choice : {"legend", "labels", "area", "series"}) // which a map has not
      QVERIFY2(!dialog->findChild<QWidget *>(QLatin1String(choice))->isVisible(), choice);
    QVERIFY(dialog->save(svg) && dialog->save(pdf));
    dialog->reject();
  });
  QTest::keyClick(plot.canvas(), Qt::Key_P, Qt::ControlModifier);
  const QByteArray page = contentOf(svg);
  for (const char *said : {"Case: CASE", "Scenario: S1", "pressure ratio", "400 /min"})
    QVERIFY2(page.contains(said), said);
  QCOMPARE(page.count("K1</text>"), 1); // the page's title stands in place of the map's
  QCOMPARE(page.count("<image"), 0);
  QVERIFY(!contentOf(pdf).isEmpty() && contentOf(pdf).count("/Subtype /Image") == 0);
  QCOMPARE(plot.grab().toImage(), before);
}

void TestMapPage::darkScreensAreNotForPaper() {
  const QTemporaryDir folder;
  QWidget window; // whose palette the map takes over, as it does that of the program
  auto *plot = new MapPlot(&window);
  plot->show(piston(), std::nullopt);
  plot->resize(420, 320);
  const QImage light = plot->grab().toImage();
  QVERIFY(plot->save(folder.filePath(QStringLiteral("light.svg"))));
  window.setPalette(QPalette(QColor(60, 65, 71), QColor(49, 53, 58)));
  const QImage dark = plot->grab().toImage();
  const auto share = [](const QImage &picture, int from, int to) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        count += qBound(from, picture.pixelColor(x, y).lightness(), to) == picture.pixelColor(x, y).lightness() ? 1 : 0;
    return double(count) / (picture.width() * picture.height());
  };
  QVERIFY(share(light, 220, 255) > 0.7);
  QVERIFY(share(dark, 0, 60) > 0.7);
  QVERIFY(share(dark, 130, 255) > 0.01); // curves, axes and letters
  QVERIFY(plot->save(folder.filePath(QStringLiteral("dark.svg"))));
  QVERIFY(contentOf(folder.filePath(QStringLiteral("dark.svg"))) == contentOf(folder.filePath(QStringLiteral("light.svg"))));
  QCOMPARE(plot->grab().toImage(), dark);
  window.setPalette(QPalette());
  QCOMPARE(plot->grab().toImage(), light);
}

NIVRA_TEST(TestMapPage);
#include "tst_mappage.moc"
