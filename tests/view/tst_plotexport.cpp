#include "export/plotsaver.h"
#include "viewfixture.h"

#include <base/wholefile.h>
#include <support/fulldisk.h>
#include <support/nivratest.h>
#include <view/plotexport.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

class TestPlotExport : public QObject {
  Q_OBJECT

private slots:
  void pixels_data();
  void pixels();
  void documentsHoldVectors();
  void scaleMakesMarksLarger_data();
  void scaleMakesMarksLarger();
  void failuresLeaveTheFileAlone_data();
  void failuresLeaveTheFileAlone();
  void impossiblePictures();
  void thePlotIsAsBefore();
  void savingWithAReducedCopy();
  void savingAsksForAFile();
  void postScript();

private:
  QTemporaryDir m_folder;
};

void TestPlotExport::pixels_data() {
  QTest::addColumn<QString>("suffix");
  for (const char *suffix : {"png", "JPG", "bmp", "tif", "ppm", "xbm"})
    QTest::newRow(suffix) << QString::fromLatin1(suffix);
}

void TestPlotExport::pixels() {
  QFETCH(QString, suffix);
  ViewFixture f;
  f.show();
  const QString path = m_folder.filePath(QStringLiteral("a.") + suffix);
  QString error;
  QVERIFY2(exportPlot(f.plot(), path, 900, &error), qPrintable(error));
  const QImage picture(path);
  QCOMPARE(picture.size(), QSize(900, 600)); // the shape of the plot
  if (suffix == QLatin1String("xbm"))        // has no colours
    return;
  int colored = 0; // the colour scale on the right
  for (int y = 0; y < picture.height(); ++y)
    for (int x = picture.width() - 120; x < picture.width(); ++x)
      colored += picture.pixelColor(x, y).saturation() > 200 ? 1 : 0;
  QVERIFY(colored > 1000);
}

void TestPlotExport::documentsHoldVectors() {
  ViewFixture f;
  f.add(makeElement({{"name", "T"}, {"type", "t"}, {"x", "80"}, {"y", "60"}}), {{"text", "Rhine"}});
  f.show();
  const QString svg = m_folder.filePath(QStringLiteral("a.svg"));
  QVERIFY(exportPlot(f.plot(), svg, 900));
  QFile file(svg);
  QVERIFY(file.open(QIODevice::ReadOnly));
  const QByteArray text = file.readAll();
  QVERIFY(text.contains("Rhine") && text.contains("pressure"));
  QCOMPARE(text.count("<image"), 0); // not even the bar of the colour scale
  QVERIFY(text.contains("<polyline") && text.contains("<path"));
  QVERIFY(exportPlot(f.plot(), m_folder.filePath(QStringLiteral("a.PDF")), 900));
  QFile pdf(m_folder.filePath(QStringLiteral("a.PDF")));
  QVERIFY(pdf.open(QIODevice::ReadOnly) && pdf.readAll().startsWith("%PDF"));
}

void TestPlotExport::scaleMakesMarksLarger_data() {
  QTest::addColumn<QString>("suffix");
  QTest::newRow("pixels") << QStringLiteral("png");
  QTest::newRow("document") << QStringLiteral("svg");
}

void TestPlotExport::scaleMakesMarksLarger() {
  QFETCH(QString, suffix);
  ViewFixture f;
  f.show();
  const auto inkAt = [&](double scale) {
    const QString path = m_folder.filePath(QStringLiteral("scaled.") + suffix);
    QString error;
    if (!exportPlot(f.plot(), path, PictureSize(1200, scale), &error))
      qWarning("%s", qPrintable(error));
    QImageReader reader(path);
    if (suffix == QLatin1String("svg")) // which says its size in millimetres
      reader.setScaledSize(QSize(1200, 800));
    const QImage picture = reader.read();
    int ink = 0; // of the drawing, beside the colour scale
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width() * 3 / 4; ++x)
        ink += picture.pixelColor(x, y).alpha() > 0 && picture.pixelColor(x, y).lightness() < 250 ? 1 : 0;
    return picture.width() == 1200 ? ink : -1;
  };
  const int single = inkAt(1.0);
  const int triple = inkAt(3.0);
  QVERIFY(single > 0);
  QVERIFY2(triple > 2 * single && triple < 12 * single, qPrintable(QStringLiteral("%1 %2").arg(single).arg(triple)));
}

void TestPlotExport::failuresLeaveTheFileAlone_data() {
  QTest::addColumn<QString>("suffix");
  for (const char *suffix : {"png", "jpg", "bmp", "tif", "svg", "pdf", "ps"})
    QTest::newRow(suffix) << QString::fromLatin1(suffix);
}

void TestPlotExport::failuresLeaveTheFileAlone() {
  QFETCH(QString, suffix);
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("a small disk cannot be mounted without root");
  const QString path = disk.path(QStringLiteral("a.") + suffix);
  QString error;
  QVERIFY(WholeFile::write(path, FileAccess::Source::Trusted, QByteArray("a picture"), &error));
  disk.fill();
  ViewFixture f;
  f.show();
  QFile filler(disk.path(QStringLiteral("filler")));
  for (const int free : {0, 8192}) { // of which the second takes a part of a document
    QVERIFY(filler.resize(filler.size() - free));
    if (free > 0 && suffix != QLatin1String("svg") && suffix != QLatin1String("pdf"))
      continue;
    QVERIFY(!exportPlot(f.plot(), path, 300, &error));
    QVERIFY2(error.startsWith(QStringLiteral("Could not write ") + path), qPrintable(error));
    if (suffix != QLatin1String("ps")) // whose tool may be missing
      QVERIFY2(error.contains(QLatin1String("space")) || error.contains(QLatin1String("disk full")), qPrintable(error));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("a picture"));
  }
}

void TestPlotExport::impossiblePictures() {
  ViewFixture f;
  f.show();
  QString error;
  QVERIFY(!exportPlot(f.plot(), m_folder.filePath(QStringLiteral("b.png")), PictureSize(300, 0.0), &error));
  QVERIFY(!exportPlot(f.plot(), m_folder.filePath(QStringLiteral("b.png")), PictureSize(300, 1000.0), &error));
  QVERIFY(!exportPlot(f.plot(), m_folder.filePath(QStringLiteral("a.xyz")), 900, &error));
  QVERIFY(error.startsWith(QStringLiteral("Could not write ")));
  QVERIFY(!QFileInfo::exists(m_folder.filePath(QStringLiteral("a.xyz"))));
  QVERIFY(!exportPlot(f.plot(), m_folder.filePath(QStringLiteral("none/a.png")), 900, &error));
  QVERIFY(error.contains(QStringLiteral("none/a.png")));
  QVERIFY(!exportPlot(f.plot(), m_folder.filePath(QStringLiteral("b.png")), 0, &error));
  QVERIFY(!exportPlot(f.plot(), QString(), 900, &error));
}

void TestPlotExport::thePlotIsAsBefore() {
  ViewFixture f;
  f.plot().show();
  f.show();
  f.picture();
  const QRectF shown = f.plot().plot()->visibleRect();
  const QSize size = f.plot().size();
  QVERIFY(exportPlot(f.plot(), m_folder.filePath(QStringLiteral("c.png")), 1500));
  QCOMPARE(f.plot().size(), size);
  f.picture();
  const QRectF after = f.plot().plot()->visibleRect();
  QVERIFY((shown.topLeft() - after.topLeft()).manhattanLength() < 1e-6 * shown.width());
  QVERIFY(qAbs(shown.width() - after.width()) < 1e-6 * shown.width());
}

void TestPlotExport::savingWithAReducedCopy() {
  ViewFixture f;
  f.show();
  const QString path = m_folder.filePath(QStringLiteral("whole.png"));
  const QString reduced = m_folder.filePath(QStringLiteral("reduced.png"));
  PlotSaver(f.plot()).savePlot(QLatin1Char(' ') + path + QLatin1Char(' '), reduced, false);
  QCOMPARE(QImage(path).size(), QSize(600, 400));
  QCOMPARE(QImage(reduced).size(), QSize(180, 120));
  // Both sides are 30 %, cut to whole pixels; a first picture that could not be written keeps nobody from the second.
  f.plot().resize(605, 409);
  PlotSaver(f.plot()).savePlot(m_folder.filePath(QStringLiteral("none/whole.png")), reduced, false);
  QCOMPARE(QImage(reduced).size(), QSize(181, 122));
  QCOMPARE(f.plot().size(), QSize(605, 409));
  const int files = QDir(m_folder.path()).entryList(QDir::Files).size();
  PlotSaver(f.plot()).savePlot(QStringLiteral("   "), reduced, false);
  QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files).size(), files);
}

void TestPlotExport::savingAsksForAFile() {
  ViewFixture f;
  f.plot().show();
  f.show();
  const QString path = m_folder.filePath(QStringLiteral("asked.png"));
  QString title;
  QTimer::singleShot(0, &f.plot(), [&] {
    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    QVERIFY(dialog != nullptr);
    title = dialog->windowTitle();
    QCOMPARE(dialog->nameFilters().size(), 8);
    dialog->selectFile(path);
    QMetaObject::invokeMethod(dialog, "accept");
  });
  PlotSaver(f.plot()).saveWithWidth(300);
  QCOMPARE(title, QStringLiteral("Choose File"));
  QCOMPARE(QImage(path).width(), 300);
  QCOMPARE(PlotSaver::possibleWidth(30000), 20000);
  PlotSaver(f.plot()).saveWithWidth(0); // reported, and no dialog that would wait here
}

void TestPlotExport::postScript() {
  ViewFixture f;
  f.show();
  const QString path = m_folder.filePath(QStringLiteral("a.PS"));
  QString error;
  const bool isDone = exportPlot(f.plot(), path, 300, &error);
  const bool hasTool = !QStandardPaths::findExecutable(QStringLiteral("pdftops")).isEmpty() ||
                       !QStandardPaths::findExecutable(QStringLiteral("gs")).isEmpty();
  QVERIFY2(isDone == hasTool, qPrintable(error));
  QFile file(path);
  QVERIFY(isDone ? file.open(QIODevice::ReadOnly) && file.readAll().startsWith("%!PS")
                 : error.contains(QStringLiteral("pdftops")));
}

NIVRA_TEST(TestPlotExport);
#include "tst_plotexport.moc"
