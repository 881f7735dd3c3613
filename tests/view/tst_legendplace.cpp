#include "canvas/canvaslegend.h"
#include "canvas/legendview.h"
#include "interaction/plotzoom.h"
#include "legend/wrappedtext.h"
#include "viewfixture.h"

#include <support/nivratest.h>
#include <view/plotexport.h>

#include <QAction>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QSvgRenderer>
#include <QTemporaryDir>

/// Where the legend stands on what is drawn, and how large it is.
class TestLegendPlace : public QObject {
  Q_OBJECT

private slots:
  void coversNothingWhereACornerIsFree_data();
  void coversNothingWhereACornerIsFree();
  void saysLessBeforeItCovers();
  void staysForLittleAndMovesForMuch();
  void picturesPlaceItAnew();
  void titlesAreNotCut();
  void listsWhatIsSeen();
  void isOfOneSizeInAllPictures();

private:
  /// A frame of pipes round the fixture's network that leaves free the corner in which x and y have these signs.
  static void addFrame(ViewFixture &f, int freeX, int freeY) {
    constexpr int Reach = 300;
    int lines = 0;
    for (const int x : {-1, 1}) {
      for (const int y : {-1, 1}) {
        if (x == freeX && y == freeY)
          continue;
        for (int i = 0; i < 6; ++i) { // rays from the middle of the corner's quarter
          const QByteArray name = QByteArray::number(++lines);
          f.addNode(("F" + name).constData(), qPrintable(QString::number(100 + x * Reach)),
                    qPrintable(QString::number(50 + y * (Reach * i / 6))), "30");
          f.addNode(("G" + name).constData(), qPrintable(QString::number(100 + x * Reach * i / 6)),
                    qPrintable(QString::number(50 + y * Reach)), "30");
          f.add(makeEdge("FG" + name, "F" + name, "G" + name), {{"diameter", "500"}});
        }
      }
    }
  }
  /// Pixels of the drawing below the legend.
  static int covered(ViewFixture &f) {
    f.plot().canvasLegend().setIsLeftOut(true);
    const QImage drawn = f.plot().plot()->canvas()->grab().toImage();
    f.plot().canvasLegend().setIsLeftOut(false);
    const QRect area = f.plot().canvasLegend().area().toRect() & drawn.rect();
    int pixels = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
      for (int x = area.left(); x <= area.right(); ++x)
        pixels += drawn.pixelColor(x, y) == QColor(Qt::white) ? 0 : 1;
    return pixels;
  }
  /// Right of the middle of the canvas, and below it.
  static std::pair<bool, bool> corner(ViewFixture &f) {
    const QPointF middle = QRectF(f.plot().plot()->canvas()->rect()).center();
    const QPointF legend = f.plot().canvasLegend().area().center();
    return {legend.x() > middle.x(), legend.y() > middle.y()};
  }
  static void showAll(ViewFixture &f, const QSize &size) {
    f.plot().resize(size);
    f.plot().show();
    f.showAtFirst();
    f.picture();
    QApplication::processEvents();
  }
};

void TestLegendPlace::coversNothingWhereACornerIsFree_data() {
  QTest::addColumn<QSize>("size");
  QTest::addColumn<int>("x");
  QTest::addColumn<int>("y");
  for (const QSize &size : {QSize(1000, 800), QSize(520, 800)}) { // whole, and beside a dock
    for (const int x : {-1, 1})
      for (const int y : {-1, 1})
        QTest::newRow(qPrintable(QStringLiteral("%1: %2 %3").arg(size.width()).arg(x).arg(y))) << size << x << y;
  }
}

void TestLegendPlace::coversNothingWhereACornerIsFree() {
  QFETCH(QSize, size);
  QFETCH(int, x);
  QFETCH(int, y);
  ViewFixture f;
  f.control.setCaption(QStringLiteral("Case · Scenario"));
  addFrame(f, x, y);
  showAll(f, size);
  if (size.width() > size.height())                        // otherwise there is room above and below
    QTRY_COMPARE(corner(f), std::make_pair(x > 0, y < 0)); // plot coordinates grow upwards
  QTRY_COMPARE(covered(f), 0);
}

/// Symbols go first; the colours stay.
void TestLegendPlace::saysLessBeforeItCovers() {
  ViewFixture f;
  addFrame(f, -1, -1);
  f.addNode("S", "-180", "-170", "30"); // a line through the upper part of the free corner
  f.addNode("T", "0", "-170", "30");
  f.add(makeEdge("ST", "S", "T"), {{"diameter", "500"}});
  showAll(f, {1000, 800});
  const QSizeF whole = [&f] {
    ViewFixture free;
    showAll(free, {1000, 800});
    return free.plot().canvasLegend().area().size();
  }();
  QTRY_COMPARE(covered(f), 0);
  const QSizeF small = f.plot().canvasLegend().area().size();
  QVERIFY(!small.isEmpty() && small.height() < whole.height());
}

void TestLegendPlace::staysForLittleAndMovesForMuch() {
  ViewFixture f;
  addFrame(f, -1, -1);
  showAll(f, {1000, 800});
  QTRY_COMPARE(corner(f), std::make_pair(false, true));
  const auto showFrom = [&f](double left, double lower) {
    f.plot().showArea({left, lower, 300, 240});
    f.picture();
  };
  // A view whose lower left corner is crowded, while the lower right is free: at first nothing moves, then all at once.
  const QRectF before = f.plot().canvasLegend().area();
  const QSignalSpy moved(&f.plot().canvasLegend(), &CanvasLegend::moved);
  f.plot().showArea({-205, 45, 300, 240});
  f.picture();
  QCOMPARE(f.plot().canvasLegend().area(), before);
  QTRY_VERIFY(moved.count() > 0 || covered(f) == 0);
  QVERIFY2(covered(f) < 500, qPrintable(QString::number(covered(f))));
  const auto stands = corner(f);
  for (const double step : {4.0, 8.0, 12.0}) { // no jumping about
    showFrom(-205 + step, 45);
    QTest::qWait(500);
    QCOMPARE(corner(f), stands);
  }
}

void TestLegendPlace::picturesPlaceItAnew() {
  const QTemporaryDir folder;
  ViewFixture f;
  addFrame(f, 1, -1);
  showAll(f, {1000, 800});
  QTRY_COMPARE(corner(f), std::make_pair(true, true));
  const QRectF onScreen = f.plot().canvasLegend().area();
  f.plot().showArea({-120, -150, 250, 200}); // the free corner is out of sight
  const auto boundsOfLegend = [&](const QString &path) {
    QString error;
    const bool isWritten = exportPlot(f.plot(), path, 1000, &error);
    const QImage with(path);
    f.plot().legendAction()->setChecked(false);
    exportPlot(f.plot(), path, 1000, &error);
    const QImage without(path);
    f.plot().legendAction()->setChecked(true);
    int ink = 0;
    for (int y = 0; isWritten && y < with.height(); ++y)
      for (int x = 0; x < with.width(); ++x)
        ink += with.pixelColor(x, y) != without.pixelColor(x, y) && without.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
    return ink;
  };
  const int hidden = boundsOfLegend(folder.filePath(QStringLiteral("a.png")));
  QVERIFY2(hidden < 600, qPrintable(QString::number(hidden)));
  f.plot().showArea(f.plot().update().geometry().toOwn(f.plot().zoomer()->zoomBase()));
  f.picture();
  QTRY_COMPARE(f.plot().canvasLegend().area(), onScreen);
}

void TestLegendPlace::titlesAreNotCut() {
  const QFont font(QStringLiteral("Arial"), 10);
  for (const char *title : {"CASE of the whole country · Scenario of a cold winter's day",
                            "a_name_without_any_gap_that_is_longer_than_a_line"}) {
    const WrappedText text(QString::fromUtf8(title), font, 110.0);
    QCOMPARE(text.lines().join(QString()).remove(QLatin1Char(' ')), QString::fromUtf8(title).remove(QLatin1Char(' ')));
    QVERIFY(text.lines().size() > 1 && text.size().width() <= 110.0);
    for (const QString &line : text.lines())
      QVERIFY(QFontMetricsF(font).horizontalAdvance(line) <= 111.0);
  }
  QCOMPARE(WrappedText(QString(5000, QLatin1Char('W')), font, 110.0).lines().size(), 4);
  ViewFixture f;
  f.control.setCaption(QStringLiteral("A case with a name that is long · And its scenario"));
  showAll(f, {500, 600});
  QVERIFY(!f.plot().canvasLegend().area().isEmpty());
}

/// Symbols that the view does not show need no explanation.
void TestLegendPlace::listsWhatIsSeen() {
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis.layer"), QStringLiteral("stations"));
  f.addNode("E", "0", "100", "25");
  f.net.element(QStringLiteral("E"))->set(QStringLiteral("qset"), QStringLiteral("-5"));
  showAll(f, {900, 700});
  const auto listed = [&f] {
    QStringList titles;
    for (const LegendContents::Symbol &symbol : f.plot().update().legendContents().symbols)
      titles.append(symbol.title);
    return titles;
  };
  const QString compressor = QStringLiteral("compressor");
  const QString supply = QStringLiteral("supply");
  QCOMPARE(listed(), (QStringList{supply, compressor}));
  const double whole = f.plot().canvasLegend().area().height();
  f.plot().update().setHiddenLayers(QStringLiteral("vis.layer"), {QStringLiteral("stations")});
  f.plot().update().updatePlot();
  QCOMPARE(listed(), QStringList{supply});
  QVERIFY(f.plot().canvasLegend().area().height() <= whole);
  f.plot().update().setHiddenLayers(QString(), {});
  f.plot().update().updatePlot();
  f.plot().showArea({150, 20, 60, 60}); // E is out of view
  QCOMPARE(listed(), QStringList{compressor});
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("state"), QStringLiteral("off"));
  f.plot().update().updatePlot(NetUpdate::Elements::Renewed);
  QCOMPARE(listed(), QStringList{compressor + QStringLiteral(" (off)")});
}

/// The same texts in pixels of the plot: on the screen, in pictures and in documents, whatever inches these have.
void TestLegendPlace::isOfOneSizeInAllPictures() {
  const QTemporaryDir folder;
  ViewFixture f;
  f.control.setCaption(QStringLiteral("Case · Scenario"));
  showAll(f, {900, 600});
  const QSize onScreen = f.plot().canvasLegend().area().size().toSize();
  const auto rasterized = [&folder](const QString &path) {
    QImage image(900, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    if (path.endsWith(QLatin1String("png"))) {
      painter.drawImage(image.rect(), QImage(path));
    } else if (path.endsWith(QLatin1String("svg"))) {
      QSvgRenderer(path).render(&painter);
    } else {
      const QString page = folder.filePath(QStringLiteral("page"));
      QProcess::execute(QStringLiteral("pdftoppm"),
                        {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-scale-to-x"),
                         QStringLiteral("900"), QStringLiteral("-scale-to-y"), QStringLiteral("600"), path, page});
      painter.drawImage(image.rect(), QImage(page + QStringLiteral(".png")));
    }
    return image;
  };
  QStringList formats{QStringLiteral("png"), QStringLiteral("svg")};
  if (!QStandardPaths::findExecutable(QStringLiteral("pdftoppm")).isEmpty())
    formats.append(QStringLiteral("pdf"));
  for (const QString &format : formats) {
    const QString path = folder.filePath(QStringLiteral("a.") + format);
    QVERIFY(exportPlot(f.plot(), path, 900));
    const QImage with = rasterized(path);
    f.plot().legendAction()->setChecked(false);
    QVERIFY(exportPlot(f.plot(), path, 900));
    const QImage without = rasterized(path);
    f.plot().legendAction()->setChecked(true);
    QRect bounds;
    for (int y = 0; y < with.height(); ++y)
      for (int x = 0; x < with.width(); ++x)
        if (with.pixelColor(x, y).lightness() < 160 && without.pixelColor(x, y) == QColor(Qt::white))
          bounds |= QRect(x, y, 1, 1);
    const QSize about = bounds.size() - onScreen; // its texts and colours, within its margins
    QVERIFY2(about.width() < 0 && about.width() > -40 && about.height() < 0 && about.height() > -30,
             qPrintable(QStringLiteral("%1: %2 %3").arg(format).arg(about.width()).arg(about.height())));
  }
}

NIVRA_TEST(TestLegendPlace);
#include "tst_legendplace.moc"
