#include "interaction/plotzoom.h"
#include "style/contrast.h"
#include "viewfixture.h"

#include <drawing/drawingtheme.h>
#include <support/nivratest.h>
#include <view/plotactions.h>
#include <view/plotexport.h>

#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QTemporaryDir>

/// The drawing on a dark screen: nothing dark on dark, and nothing dark on paper.
class TestDrawingTheme : public QObject {
  Q_OBJECT

private slots:
  void contrastIsThatOfTheStandard();
  void rampsAreSeenOnDarkGround_data();
  void rampsAreSeenOnDarkGround();
  void everyKindOfEdgeIsSeen();
  void symbolsAndLabelsAreSeen();
  void paperStaysLight();
  void choicesStay();
  void ownGroundStays();

private:
  static QPalette darkScreen() { return {QColor(54, 58, 63), QColor(42, 45, 49)}; }
  static QPalette lightScreen() { return {QColor(239, 239, 239), QColor(239, 239, 239)}; }

  /// The strongest contrast with the ground within so many pixels of a place.
  static double seenAt(const QImage &picture, const QPoint &place, const QColor &ground, int reach = 2) {
    double most = 1.0;
    for (int y = place.y() - reach; y <= place.y() + reach; ++y)
      for (int x = place.x() - reach; x <= place.x() + reach; ++x)
        if (picture.valid(x, y))
          most = std::max(most, Contrast::ratio(picture.pixelColor(x, y), ground));
    return most;
  }
  static QColor groundOf(const QImage &picture) { return picture.pixelColor(picture.width() / 4, picture.height() / 5); }
};

void TestDrawingTheme::contrastIsThatOfTheStandard() {
  QCOMPARE(Contrast::ratio(Qt::black, Qt::white), 21.0);
  QVERIFY(std::abs(Contrast::ratio(QColor(0x76, 0x76, 0x76), Qt::white) - 4.54) < 0.01);
  for (const QColor &ground : {QColor(0x1e, 0x22, 0x26), QColor(Qt::white), QColor(Qt::blue), QColor(0x80, 0x80, 0x80)}) {
    for (const QColor &color : {QColor(Qt::black), QColor(Qt::white), QColor(Qt::blue), QColor(Qt::darkRed), ground})
      QVERIFY2(Contrast::ratio(Contrast::legible(color, ground, 4.5), ground) >= 4.5,
               qPrintable(color.name() + ground.name()));
  }
  QCOMPARE(Contrast::legible(Qt::yellow, Qt::black, 4.5), QColor(Qt::yellow));
  QVERIFY(std::abs(Contrast::legible(Qt::blue, Qt::black, 4.5).hslHueF() - QColor(Qt::blue).hslHueF()) < 0.01);
}

void TestDrawingTheme::rampsAreSeenOnDarkGround_data() {
  QTest::addColumn<QString>("ramp");
  for (const QString &name : ColorRamp::names())
    QTest::newRow(qPrintable(name)) << name;
}

void TestDrawingTheme::rampsAreSeenOnDarkGround() {
  QFETCH(QString, ramp);
  PlotSettings settings;
  settings.colorRamp = ramp;
  settings = DrawingTheme::onScreen(settings, true);
  const auto map = ColorScale::colorMap(settings, Aspect::EdgeColor);
  for (int i = 0; i <= 50; ++i) {
    const QColor color(map->rgb({0.0, 50.0}, i));
    QVERIFY2(Contrast::ratio(color, settings.bgrColor) > 2.0, qPrintable(QStringLiteral("%1: %2").arg(i).arg(color.name())));
  }
}

void TestDrawingTheme::everyKindOfEdgeIsSeen() {
  ViewFixture f;
  f.addNode("X", "0", "40", "none");
  f.addNode("Y", "100", "40", "none");
  f.addNode("Z", "200", "40", "none");
  f.add(makeEdge("XY", "X", "Y"), {{"q", "5"}, {"state", "off"}});
  f.add(makeEdge("YZ", "Y", "Z"), {{"q", "0"}});
  f.add(makeEdge("AX", "A", "X"), {});
  f.plot().setPalette(darkScreen());
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.edgeConst = 3.0; // of thinner lines the pixels are mixed with the ground
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  const QImage picture = f.picture();
  const QColor ground = groundOf(picture);
  QVERIFY2(ground.lightness() < 50, qPrintable(ground.name()));
  for (const QPoint &place : {f.pixel(30, 0), f.pixel(130, 0), f.pixel(30, 40), f.pixel(130, 40), f.pixel(0, 20)})
    QVERIFY2(seenAt(picture, place, ground) > 2.0, qPrintable(QString::number(seenAt(picture, place, ground))));
  QVERIFY(seenAt(picture, f.pixel(30, 40), ground) < 4.0); // what is off steps back
}

void TestDrawingTheme::symbolsAndLabelsAreSeen() {
  ViewFixture f;
  f.plot().setPalette(darkScreen());
  f.show();
  f.plot().zoomer()->zoom(QRectF(180, 20, 60, 60)); // the compressor alone
  f.plot().update().relabelNow();
  const QImage picture = f.picture();
  const QColor ground = f.plot().plot()->canvasBackground().color();
  const std::vector<SymbolLayer::Placed> &symbols = f.plot().update().determineVisibleSymbols();
  QVERIFY(!symbols.empty() && !f.plot().update().labels().empty());
  const QPoint symbol = f.plot().plot()->canvas()->mapTo(&f.plot(), symbols.front().center.toPoint());
  const int reach = int(symbols.front().size / 2.0);
  QVERIFY(seenAt(picture, symbol, ground, reach) > 4.5);
  int light = 0; // of its fill, which is that of paper on white
  int count = 0;
  for (int y = symbol.y() - reach; y <= symbol.y() + reach; ++y)
    for (int x = symbol.x() - reach; x <= symbol.x() + reach; ++x, ++count)
      light += picture.pixelColor(x, y).lightness() > 150 ? 1 : 0;
  QVERIFY2(light > 10 && light < count / 2, qPrintable(QStringLiteral("%1 of %2").arg(light).arg(count)));
  for (const Label &label : f.plot().update().labels())
    QVERIFY(Contrast::ratio(label.style.text, Contrast::over(label.style.background, ground)) >= 4.5);
  const QPalette axes = f.plot().plot()->palette();
  QVERIFY(Contrast::ratio(axes.color(QPalette::WindowText), axes.color(QPalette::Window)) >= 4.5);
}

void TestDrawingTheme::paperStaysLight() {
  const QTemporaryDir folder;
  ViewFixture f;
  f.show();
  f.plot().update().relabelNow();
  QVERIFY(exportPlot(f.plot(), folder.filePath(QStringLiteral("light.svg")), 600));
  const QImage light = f.picture();
  f.plot().setPalette(darkScreen());
  const QImage dark = f.picture();
  QVERIFY(groundOf(dark).lightness() < 50);
  QVERIFY(exportPlot(f.plot(), folder.filePath(QStringLiteral("dark.svg")), 600));
  QVERIFY(exportPlot(f.plot(), folder.filePath(QStringLiteral("dark.png")), 600));
  QFile one(folder.filePath(QStringLiteral("light.svg")));
  QFile other(folder.filePath(QStringLiteral("dark.svg")));
  QVERIFY(one.open(QIODevice::ReadOnly) && other.open(QIODevice::ReadOnly));
  QCOMPARE(other.readAll(), one.readAll());
  QCOMPARE(groundOf(QImage(folder.filePath(QStringLiteral("dark.png")))), QColor(Qt::white));
  f.control.actions()[PlotActions::Command::CopyPicture]->trigger();
  QCOMPARE(groundOf(QApplication::clipboard()->image()), QColor(Qt::white));
  QCOMPARE(groundOf(f.picture()), groundOf(dark));
  QCOMPARE(f.plot().settings().bgrColor, QColor(Qt::white)); // which a file of settings would keep
  f.plot().setPalette(lightScreen());
  QCOMPARE(f.picture(), light);
}

void TestDrawingTheme::choicesStay() {
  ViewFixture f;
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("vis.color"), QStringLiteral("#400000"));
  f.net.element(QStringLiteral("B"))->set(QStringLiteral("vis.color"), QStringLiteral("yellow"));
  f.net.element(QStringLiteral("C"))->set(QStringLiteral("vis.color"), QStringLiteral("black"));
  f.net.element(QStringLiteral("C"))->set(QStringLiteral("vis.bgr-color"), QStringLiteral("white"));
  f.net.element(QStringLiteral("C"))->set(QStringLiteral("vis.bgr-alpha"), QStringLiteral("255"));
  f.plot().setPalette(darkScreen());
  f.show();
  const auto styleOf = [&f](const char *name) {
    return f.control.labelContents()->style(*f.net.element(QString::fromLatin1(name)), NetData::Node);
  };
  const LabelStyle dark = styleOf("A");
  QVERIFY(Contrast::ratio(dark.text, Contrast::over(dark.background, f.plot().plot()->canvasBackground().color())) >= 4.5);
  QVERIFY(std::abs(dark.text.hslHueF() - 0.0) < 0.02 && dark.text.hslSaturationF() > 0.5); // it is red still
  QCOMPARE(styleOf("B").text, QColor(Qt::yellow));
  QCOMPARE(styleOf("C").text, QColor(Qt::black)); // on white of its own
  f.plot().setPalette(lightScreen());
  QCOMPARE(styleOf("A").text, QColor(0x40, 0, 0));
}

void TestDrawingTheme::ownGroundStays() {
  for (const QPalette &screen : {darkScreen(), lightScreen()}) {
    for (const char *ground : {"#102030", "#ffffe0"}) {
      ViewFixture f;
      f.plot().setPalette(screen);
      f.show();
      PlotSettings settings = f.plot().settings();
      settings.bgrColor = QColor(QLatin1String(ground));
      settings.edgeColorNoFlow = Qt::red;
      f.plot().setSettings(settings);
      f.plot().update().updatePlot();
      QCOMPARE(groundOf(f.picture()), QColor(QLatin1String(ground)));
    }
  }
}

NIVRA_TEST(TestDrawingTheme);
#include "tst_drawingtheme.moc"
