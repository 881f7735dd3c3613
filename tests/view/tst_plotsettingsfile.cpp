#include "configure/plotsettingsfile.h"

#include <support/fulldisk.h>
#include <support/nivratest.h>
#include <view/netplot.h>

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace {

PlotSettings unusual() {
  PlotSettings s;
  s.edgeShowFlow = QStringLiteral("m");
  s.functions[Aspect::EdgeColor].name = QStringLiteral("accum. length");
  s.functions[Aspect::EdgeWidth].name = QStringLiteral("a;b,c \"d\"");
  s.functions[Aspect::NodeSize].name = QStringLiteral("qset");
  s.colorScalePos = 3;
  s.legendPos = 4;
  s.quantileBounds = true;
  s.showsLegend = true;
  s.legendCorner = QStringLiteral("top right");
  s.dimsRest = false;
  s.nodeMag = 9;
  s.edgeMag = 2.25;
  s.edgeConst = 0.1;
  s.labelMargin = 1;
  s.saturation = 17;
  s.logFactor = -3.5;
  s.bgrColor = QColor(1, 2, 3);
  s.gridMinorColor = QColor(4, 5, 6, 7);
  s.functions[Aspect::EdgeColor].isAbsolute = true;
  s.functions[Aspect::EdgeWidth].isAbsolute = false;
  s.functions[Aspect::NodeSize].isLogarithmic = true;
  s.functions[Aspect::NodeColor].minimum = 0.1 + 0.2;
  s.functions[Aspect::EdgeWidth].maximum = 1e-300;
  s.label_mode = QStringLiteral("no label");
  s.fixAxesRatio = false;
  s.zoomFact = 1.01;
  s.layerProp = QStringLiteral("layer");
  return s;
}

} // namespace

class TestPlotSettingsFile : public QObject {
  Q_OBJECT

private slots:
  void writtenIsReadAgain();
  void missingFileChangesNothing();
  void missingKeys();
  void textsOfAPerson();
  void whatIsNoNumberIsTold();
  void aByteOrderMarkHidesNothing();
  void objectsAreRefused_data();
  void objectsAreRefused();
  void whatOthersKeepInTheFileStays();
  void whatCannotBeWrittenIsSaid();
  void aFullDiskLeavesTheOldFile();

private:
  QString file(const QByteArray &text) {
    QFile out(m_folder.filePath(QStringLiteral("plotsettings.ini")));
    out.open(QIODevice::WriteOnly);
    out.write(text);
    return out.fileName();
  }
  QTemporaryDir m_folder;
};

void TestPlotSettingsFile::writtenIsReadAgain() {
  const QString path = m_folder.filePath(QStringLiteral("written.ini"));
  QVERIFY(PlotSettingsFile::write(path, unusual()));
  PlotSettings read;
  QVERIFY(PlotSettingsFile::read(path, read));
  QVERIFY(read == unusual());
  QVERIFY(read != PlotSettings());
}

void TestPlotSettingsFile::missingFileChangesNothing() {
  PlotSettings settings = unusual();
  QVERIFY(!PlotSettingsFile::read(m_folder.filePath(QStringLiteral("none.ini")), settings));
  QVERIFY(settings == unusual());
}

void TestPlotSettingsFile::missingKeys() {
  PlotSettings settings = unusual();
  QVERIFY(PlotSettingsFile::read(file("colorScalePos=2\n[color_options]\n"), settings));
  QCOMPARE(settings.functions[Aspect::EdgeColor].name, QStringLiteral("x")); // back to what the key stands for
  QCOMPARE(settings.colorScalePos, 2);
  QCOMPARE(settings.nodeMag, 9); // magnitudes and colours keep what they are
  QCOMPARE(settings.saturation, 17);
  QCOMPARE(settings.bgrColor, QColor(1, 2, 3));
  QVERIFY(!settings.gridMajorColor.isValid());
  QCOMPARE(settings.functions[Aspect::NodeColor].maximum, PlotSettings::OpenMaximum);
  QVERIFY(settings.functions[Aspect::EdgeWidth].isAbsolute && !settings.functions[Aspect::EdgeColor].isAbsolute);
}

void TestPlotSettingsFile::textsOfAPerson() {
  PlotSettings settings;
  QVERIFY(PlotSettingsFile::read(file("gridMajorColor=#102030\nlegendPos=many\nfixAxesRatio=false\n[color_options]\n"
                                      "bgrColor=#ffeedd\nedgeColorInactive=no colour\n[magnitudes]\nedgeMag=2.5\n"),
                                 settings));
  QCOMPARE(settings.gridMajorColor, QColor(0x10, 0x20, 0x30));
  QCOMPARE(settings.bgrColor, QColor(0xff, 0xee, 0xdd));
  QVERIFY(!settings.edgeColorInactive.isValid());
  QCOMPARE(settings.legendPos, 0);
  QVERIFY(!settings.fixAxesRatio);
  QCOMPARE(settings.edgeMag, 2.5);
}

void TestPlotSettingsFile::whatIsNoNumberIsTold() {
  PlotSettings settings = unusual();
  QString told;
  QVERIFY(PlotSettingsFile::read(file("legendPos=many\nzoomFact=nan\nminVal_Width=1e400\n[magnitudes]\nnodeMag=abc\n"
                                      "edgeMag=1e400\nsymMag=3\n"),
                                 settings, [&told](const Finding &finding) { told += finding.text; }));
  QCOMPARE(settings.nodeMag, unusual().nodeMag);
  QCOMPARE(settings.edgeMag, unusual().edgeMag);
  QCOMPARE(settings.symMag, 3);
  QCOMPARE(settings.legendPos, 0);
  QCOMPARE(settings.zoomFact, 1.5);
  QCOMPARE(settings.functions[Aspect::EdgeWidth].minimum, PlotSettings::OpenMinimum);
  for (const char *said : {"nodeMag=abc", "edgeMag=1e400", "legendPos=many", "zoomFact=nan", "minVal_Width=1e400"})
    QVERIFY2(told.contains(QLatin1String(said)), qPrintable(told));
}

void TestPlotSettingsFile::aByteOrderMarkHidesNothing() {
  PlotSettings settings;
  QVERIFY(PlotSettingsFile::read(file("\xef\xbb\xbf[magnitudes]\nedgeMag=2.5\n"), settings));
  QCOMPARE(settings.edgeMag, 2.5);
}

void TestPlotSettingsFile::objectsAreRefused_data() {
  QTest::addColumn<QByteArray>("value");
  QTest::newRow("list of endless length") << QByteArray("\"@Variant(\\0\\0\\0\\xb\\x7f\\xff\\xff\\xf0)\"");
  QTest::newRow("written with escapes") << QByteArray("\\x40Variant(\\0\\0\\0\\xb\\x7f\\xff\\xff\\xf0)");
  QTest::newRow("written in octal") << QByteArray("\\100Variant(\\0\\0\\0\\xb\\x7f\\xff\\xff\\xf0)");
  QTest::newRow("behind blanks") << QByteArray("   @Variant(\\0\\0\\0\\x42)");
  QTest::newRow("in a list") << QByteArray("a, @Variant(\\0\\0\\0\\xb\\x7f\\xff\\xff\\xf0)");
  for (const char *type : {"9", "42", "44", "47"})
    QTest::newRow(type) << QByteArray("@Variant(\\0\\0\\0\\x") + type + "\\xff\\xff\\xff\\xff)";
  QTest::newRow("cut colour") << QByteArray("@Variant(\\0\\0\\0\\x43\\x1\\xff)");
  QTest::newRow("byte array") << QByteArray("@ByteArray(x)");
}

void TestPlotSettingsFile::objectsAreRefused() {
  QFETCH(QByteArray, value);
  PlotSettings settings;
  Findings told;
  QVERIFY(PlotSettingsFile::read(file("colorFunc=" + value + "\nlegendPos=" + value + "\ngridMajorColor=" + value +
                                      "\nwidthFunc=\"@@x, y\"\n[color_options]\nbgrColor=" + value +
                                      "\n[drawing]\nclassBreaks=" + value + "\n"),
                                 settings, [&told](const Finding &finding) { told.push_back(finding); }));
  QVERIFY(!settings.gridMajorColor.isValid()); // as when the file has none
  const bool isText = value.startsWith('a');
  QCOMPARE(told.size(), std::size_t(1)); // of a text, that it is no number
  QVERIFY(isText ||
          told.front().text.contains(QStringLiteral("colorFunc, legendPos, bgrColor, gridMajorColor, classBreaks")));
  QVERIFY(settings.bgrColor == (isText ? QColor() : PlotSettings().bgrColor));
  QCOMPARE(settings.legendPos, 0);
  QCOMPARE(settings.functions[Aspect::EdgeWidth].name, QStringLiteral("@x, y")); // a text that begins so is written with two
}

void TestPlotSettingsFile::whatOthersKeepInTheFileStays() {
  const QString path =
      file("; by hand\ncolorFunc=old\nelse=1\n\n[other program]\nnodeMag=77\nblob=@ByteArray(x)\n[magnitudes]\n"
           "further=2\n");
  QVERIFY(PlotSettingsFile::write(path, unusual()));
  PlotSettings read;
  QVERIFY(PlotSettingsFile::read(path, read));
  QVERIFY(read == unusual());
  QVERIFY(PlotSettingsFile::write(path, unusual()));
  QFile written(path);
  QVERIFY(written.open(QIODevice::ReadOnly));
  const QByteArray text = written.readAll();
  for (const char *line : {"; by hand\n", "else=1\n", "[other program]\nnodeMag=77\nblob=@ByteArray(x)\n", "further=2\n"})
    QVERIFY2(text.count(line) == 1, line);
  QCOMPARE(text.count("nodeMag="), 2);
  QCOMPARE(text.count("colorFunc="), 1);
  // The toolkit's own reader sees the same.
  QSettings store(path, QSettings::IniFormat);
  QCOMPARE(store.value(QStringLiteral("widthFunc")).toString(), unusual().functions[Aspect::EdgeWidth].name);
  QCOMPARE(store.value(QStringLiteral("color_options/bgrColor")).value<QColor>(), unusual().bgrColor);
  QCOMPARE(store.value(QStringLiteral("magnitudes/further")).toInt(), 2);
}

void TestPlotSettingsFile::aFullDiskLeavesTheOldFile() {
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("a small disk cannot be mounted without root");
  const QString path = disk.path(QStringLiteral("plotsettings.ini"));
  QVERIFY(PlotSettingsFile::write(path, unusual()));
  disk.fill();
  QString error;
  QVERIFY(!PlotSettingsFile::write(path, PlotSettings(), &error));
  QVERIFY2(error.contains(QLatin1String("space")), qPrintable(error));
  PlotSettings read;
  QVERIFY(PlotSettingsFile::read(path, read));
  QVERIFY(read == unusual());
}

void TestPlotSettingsFile::whatCannotBeWrittenIsSaid() {
  const NetPlot plot;
  QString error;
  QVERIFY(!plot.writePlotSettings(m_folder.filePath(QStringLiteral("no/such/folder.ini")), &error));
  QVERIFY2(error.contains(QStringLiteral("no/such/folder.ini")), qPrintable(error));
}

NIVRA_TEST(TestPlotSettingsFile);
#include "tst_plotsettingsfile.moc"
