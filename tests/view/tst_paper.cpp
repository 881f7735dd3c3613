#include "export/networkpage.h"
#include "export/networkseries.h"
#include "pagepainter.h"
#include "pagewriter.h"
#include "scalebar.h"
#include "viewfixture.h"

#include <base/generalsettings.h>
#include <drawing/mapscale.h>
#include <paper/pageseries.h>
#include <support/fulldisk.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QDir>
#include <QFileInfo>
#include <QPicture>
#include <QPrinter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <cmath>

namespace {

DrawingSource sourceOf(ViewFixture &f) {
  DrawingSource source;
  source.net = &f.net;
  source.settings = f.plot().settings();
  source.layers = f.plot().update().layers();
  source.selection = f.plot().selection().items();
  source.area = f.plot().visibleArea();
  return source;
}

QByteArray contentOf(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A page that says what it is asked for.
class PlainPage : public PageContent {
public:
  PageText text() const override { return {QStringLiteral("Plain"), QStringLiteral("facts"), QString()}; }
  void layOut(const QSizeF &frame, const PageSetup &, Detail) override { m_frame = frame; }
  void paint(QPainter &painter) const override { painter.drawLine(QPointF(), QPointF(m_frame.width(), m_frame.height())); }

private:
  QSizeF m_frame;
};

} // namespace

class TestPaper : public QObject {
  Q_OBJECT

private slots:
  void initTestCase();
  void nothingOverlapsOnAnyPaper_data();
  void nothingOverlapsOnAnyPaper();
  void documentsHoldVectors();
  void theLegendIsThatOfTheCanvas();
  void thePrinterGetsThePage();
  void selectedElementsStayAsTheyAre_data();
  void selectedElementsStayAsTheyAre();
  void withoutLabelsNothingIsNamed();
  void typingATitlePlacesNoLabels();
  void paleLinesOfADarkScreen();
  void pixelsHaveTheSizeOfThePaper();
  void theScreenIsAsBefore();
  void theDrawingFillsItsFrame();
  void scaleBarsAreRound_data();
  void scaleBarsAreRound();
  void scaleIsThatOfMeasuring();
  void legendExplainsTheCasings();
  void choicesAreKept();
  void impossiblePages();
  void seriesOfFiles();
  void seriesInOneBook();
  void seriesOfScenarios();
  void seriesKeepTheirClasses();
  void fullDiskIsTold_data();
  void fullDiskIsTold();

private:
  QTemporaryDir m_folder;
};

void TestPaper::initTestCase() {
  QFile::remove(GeneralSettings::userDirectory() + QStringLiteral("/page.json"));
}

void TestPaper::nothingOverlapsOnAnyPaper_data() {
  QTest::addColumn<QString>("paper");
  QTest::addColumn<bool>("isLandscape");
  for (const QString &paper : PageSetup::papers()) {
    QTest::addRow("%s, wide", qPrintable(paper)) << paper << true;
    QTest::addRow("%s, tall", qPrintable(paper)) << paper << false;
  }
}

void TestPaper::nothingOverlapsOnAnyPaper() {
  QFETCH(QString, paper);
  QFETCH(bool, isLandscape);
  ViewFixture f;
  f.show();
  NetworkPage page(sourceOf(f), {QStringLiteral("CASE"), QStringLiteral("S1")});
  PageSetup setup;
  setup.paper = paper;
  setup.isLandscape = isLandscape;
  setup.ownSize = {90.0, 90.0};
  PageText text = page.text();
  text.title = QStringLiteral("A title that goes on and on and on, ").repeated(5);
  text.comment = QStringLiteral("A comment that is longer than the line for which there is room. ").repeated(4);
  const PagePainter painter(page, setup, text);
  const PagePainter::Layout &layout = painter.layout();
  const QRectF sheet(QPointF(), layout.paper);
  const QList<QRectF> areas{layout.title, layout.facts, layout.frame, layout.legend, layout.foot};
  for (int i = 0; i < areas.size(); ++i) {
    QVERIFY2(!areas[i].isEmpty() && sheet.contains(areas[i]), qPrintable(QString::number(i)));
    for (int other = 0; other < i; ++other)
      QVERIFY2(!areas[i].intersects(areas[other]), qPrintable(QStringLiteral("%1 %2").arg(i).arg(other)));
  }
  QVERIFY2(layout.frame.width() * layout.frame.height() > 0.15 * sheet.width() * sheet.height(),
           "the drawing is what the page is for");
  // 8 points are the least that one reads in the hands, and posters are read from farther away.
  QVERIFY(setup.unit() * 11.0 >= (paper == QLatin1String("A0") ? 5.0 : paper == PageSetup::ownPaper() ? 1.5 : 2.2));
}

void TestPaper::documentsHoldVectors() {
  ViewFixture f;
  f.show();
  f.control.mark(QStringLiteral("CD"));
  NetworkPage page(sourceOf(f), {QStringLiteral("CASE"), QStringLiteral("S<1>")});
  PageText text = page.text();
  text.comment = QStringLiteral("checked & found right");
  const QString svg = m_folder.filePath(QStringLiteral("a.svg"));
  const QString pdf = m_folder.filePath(QStringLiteral("a.pdf"));
  QString reason;
  QVERIFY2(PageWriter::write(svg, PageSetup(), page, text, &reason), qPrintable(reason));
  QVERIFY2(PageWriter::write(pdf, PageSetup(), page, text, &reason), qPrintable(reason));
  const QByteArray drawn = contentOf(svg);
  QCOMPARE(drawn.count("<image"), 0);
  QVERIFY(drawn.contains("<linearGradient"));
  QString said;
  QXmlStreamReader xml(drawn);
  while (!xml.atEnd()) {
    if (xml.readNext() == QXmlStreamReader::Characters)
      said += xml.text();
  }
  QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
  for (const char *part : {"CASE", "Scenario: S<1>", "checked & found right", "plot units", "pressure", "diameter"})
    QVERIFY2(said.contains(QLatin1String(part)), part);
  QVERIFY(drawn.contains("width=\"297mm\"") && drawn.contains("height=\"210mm\""));
  QVERIFY(contentOf(pdf).startsWith("%PDF"));
  QCOMPARE(contentOf(pdf).count("/Subtype /Image"), 0);
  QVERIFY(contentOf(pdf).contains("/ShadingType"));
}

/// What the canvas says of casings, classes and searches stands on paper too, and nothing else.
void TestPaper::theLegendIsThatOfTheCanvas() {
  ViewFixture f;
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("CB_info"), QStringLiteral("(Major: pmax exceeded;)"));
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("isSearchResult"), QStringLiteral("1"));
  f.show();
  const auto said = [&](NetUpdate::DisplayMode mode) {
    DrawingSource source = sourceOf(f);
    source.mode = mode;
    NetworkPage page(source, {});
    const QString path = m_folder.filePath(QStringLiteral("legend.svg"));
    QString reason;
    return PageWriter::write(path, PageSetup(), page, page.text(), &reason) ? contentOf(path) : QByteArray();
  };
  const QByteArray functions = said(NetUpdate::DisplayMode::Functions);
  for (const char *part : {"beyond bounds (major)", "edges and", "compressor"})
    QVERIFY2(functions.contains(part), part);
  const QByteArray searched = said(NetUpdate::DisplayMode::SearchResults);
  QVERIFY(searched.contains("search results") && !searched.contains("diameter"));
}

void TestPaper::thePrinterGetsThePage() {
  ViewFixture f;
  f.show();
  NetworkPage page(sourceOf(f), {});
  PageSetup setup;
  setup.paper = QStringLiteral("A3");
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(m_folder.filePath(QStringLiteral("printed.pdf")));
  PageWriter::prepare(printer, setup);
  QCOMPARE(printer.pageLayout().fullRect(QPageLayout::Millimeter).size(), QSizeF(420.0, 297.0));
  printer.setPageSize(QPageSize(QPageSize::A5)); // which a person chose in the printer's own dialog
  QString reason;
  QVERIFY2(PageWriter::print(printer, setup, page, page.text(), &reason), qPrintable(reason));
  const QByteArray printed = contentOf(m_folder.filePath(QStringLiteral("printed.pdf")));
  const QRegularExpressionMatch box = QRegularExpression(QStringLiteral("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]"))
                                          .match(QString::fromLatin1(printed.constData(), printed.size()));
  QVERIFY2(qRound(box.captured(1).toDouble()) == 595 && std::abs(box.captured(2).toDouble() - 419.5) < 1.0,
           qPrintable(box.captured()));
  QCOMPARE(printed.count("/Subtype /Image"), 0);
}

void TestPaper::selectedElementsStayAsTheyAre_data() {
  QTest::addColumn<bool>("isVector");
  QTest::newRow("pixels") << false;
  QTest::newRow("vectors") << true;
}

/// The selection surrounds its elements on every paper, it does not cover them, and nothing else pales.
void TestPaper::selectedElementsStayAsTheyAre() {
  QFETCH(bool, isVector);
  ViewFixture f;
  f.show();
  f.control.mark(QStringLiteral("BC"));
  PageDrawing drawing(sourceOf(f));
  drawing.setView({600, 400}, std::nullopt);
  const auto painted = [&](bool marksSelection) {
    QImage image(600, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QPicture vectors;
    if (isVector) {
      QPainter recorder(&vectors);
      drawing.paint(recorder, marksSelection);
      recorder.end();
      painter.drawPicture(0, 0, vectors);
    } else {
      drawing.paint(painter, marksSelection);
    }
    return image;
  };
  const QImage plain = painted(false);
  const QImage marked = painted(true);
  const Projection projection = drawing.update().projection();
  const QPoint bc = projection.map(125, 0).toPoint();
  QCOMPARE(marked.pixelColor(bc), plain.pixelColor(bc));
  QCOMPARE(marked.pixelColor(projection.map(25, 0).toPoint()), plain.pixelColor(projection.map(25, 0).toPoint()));
  bool hasOutline = false;
  for (int y = -8; y <= 8; ++y)
    hasOutline = hasOutline || marked.pixelColor(bc + QPoint(0, y)) == QColor(0x14, 0x1c, 0x26);
  QVERIFY(hasOutline);
}

void TestPaper::withoutLabelsNothingIsNamed() {
  ViewFixture f;
  f.show();
  NetworkPage page(sourceOf(f), {});
  PageSetup setup;
  setup.hasLabels = false;
  page.layOut({600, 400}, setup, PageContent::Detail::Whole);
  QVERIFY(page.drawing().update().names().empty() && page.drawing().update().labels().empty());
  setup.hasLabels = true;
  page.layOut({600, 400}, setup, PageContent::Detail::Whole);
  QVERIFY(!page.drawing().update().labels().empty());
}

void TestPaper::typingATitlePlacesNoLabels() {
  ViewFixture f;
  f.show();
  NetworkPage page(sourceOf(f), {});
  const auto picture = [&page](const char *title, const PageSetup &setup) {
    PageText text = page.text();
    text.title = QString::fromLatin1(title);
    return PageWriter::picture(setup, page, text, 60);
  };
  const PageSetup setup;
  const QImage first = picture("a", setup);
  const QSignalSpy drawn(&page.drawing().update(), &NetUpdate::changed);
  QVERIFY(picture("ab", setup) != first);
  QCOMPARE(drawn.count(), 0);
  QCOMPARE(picture("a", setup), first);
  PageSetup without;
  without.hasLabels = false;
  picture("a", without);
  QVERIFY(page.drawing().update().labels().empty()); // another choice counts at once
}

void TestPaper::paleLinesOfADarkScreen() {
  ViewFixture f;
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("state"), QStringLiteral("off"));
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.edgeColorInactive = QColor(235, 235, 235);
  f.plot().setSettings(settings);
  QCOMPARE(PageDrawing(sourceOf(f)).settings().edgeColorInactive, settings.edgeColorInactive); // who wants it pale has it so
  settings.bgrColor = QColor(20, 24, 28);
  f.plot().setSettings(settings);
  QVERIFY(PageDrawing(sourceOf(f)).settings().edgeColorInactive.lightness() < 180);
}

void TestPaper::pixelsHaveTheSizeOfThePaper() {
  ViewFixture f;
  f.show();
  NetworkPage page(sourceOf(f), {});
  PageSetup setup;
  setup.dpi = 127; // 5 pixels a millimetre
  setup.isLandscape = false;
  const QString path = m_folder.filePath(QStringLiteral("a.png"));
  QString reason;
  QVERIFY2(PageWriter::write(path, setup, page, page.text(), &reason), qPrintable(reason));
  const QImage picture(path);
  QCOMPARE(picture.size(), QSize(1050, 1485));
  QCOMPARE(qRound(picture.dotsPerMeterX() * 0.0254), 127);
  QCOMPARE(picture.pixelColor(2, 2), QColor(Qt::white));
  for (int x = 0; x < picture.width(); ++x) // the margins are free
    QVERIFY(picture.pixelColor(x, 40) == QColor(Qt::white) && picture.pixelColor(x, 1485 - 40) == QColor(Qt::white));
}

void TestPaper::theScreenIsAsBefore() {
  ViewFixture f;
  f.plot().show();
  f.show();
  f.control.mark(QStringLiteral("BC"));
  f.plot().showArea(QRectF(20, -30, 120, 80));
  f.control.relabelNow();
  const QImage before = f.picture();
  const std::size_t labels = f.plot().update().labels().size();
  {
    NetworkPage page(sourceOf(f), {});
    PageSetup setup;
    setup.paper = QStringLiteral("A0");
    QString reason;
    QVERIFY(PageWriter::write(m_folder.filePath(QStringLiteral("b.pdf")), setup, page, page.text(), &reason));
    setup.area = PageSetup::Area::Network;
    QVERIFY(!PageWriter::picture(setup, page, page.text(), 20).isNull());
    QVERIFY(page.drawing().update().labels().size() >= labels); // there is more room on A0
  }
  QCOMPARE(f.picture(), before);
  QCOMPARE(f.plot().update().labels().size(), labels);
  QCOMPARE(f.net.selection().size(), 1);
}

void TestPaper::theDrawingFillsItsFrame() {
  ViewFixture f;
  f.show();
  PageDrawing drawing(sourceOf(f));
  const QSizeF frame(900, 300);
  drawing.setView(frame, QRectF(50, 0, 100, 100));
  // All of the area is seen, and as much more beside it as the frame is wider.
  QVERIFY(std::abs(drawing.visible().width() - 300.0) < 1e-6 && std::abs(drawing.visible().height() - 100.0) < 1e-6);
  QCOMPARE(drawing.visible().center(), QPointF(100, 50));
  drawing.setView(frame, std::nullopt);
  const QRectF extent = drawing.update().geometry().extent();
  QVERIFY(drawing.visible().contains(extent) && drawing.visible().height() < 2.0 * extent.height());
  // A single node has no extent and is drawn all the same.
  ViewFixture single;
  single.net.clear();
  single.addNode("only", "7", "7", "50");
  single.show();
  PageDrawing one(sourceOf(single));
  one.setView(frame, std::nullopt);
  QVERIFY(one.visible().contains(QPointF(7, 7)) && one.visible().width() > 0.0);
}

void TestPaper::scaleBarsAreRound_data() {
  QTest::addColumn<double>("lengthOfUnit");
  QTest::addColumn<bool>("isMetres");
  QTest::addColumn<QString>("text");
  QTest::newRow("km") << 290.0 << true << QStringLiteral("50 km");
  QTest::newRow("m") << 0.6 << true << QStringLiteral("100 m");
  QTest::newRow("a fraction") << 0.0012 << true << QStringLiteral("0.2 m");
  QTest::newRow("exactly") << 10.0 << true << QStringLiteral("2 km");
  QTest::newRow("units") << 0.13 << false << QStringLiteral("20 plot units");
}

void TestPaper::scaleBarsAreRound() {
  QFETCH(double, lengthOfUnit);
  QFETCH(bool, isMetres);
  QFETCH(QString, text);
  const ScaleBar bar = ScaleBar::of({lengthOfUnit, isMetres, {}}, 200.0);
  QCOMPARE(bar.text, text);
  QVERIFY(bar.width <= 200.0 + 1e-6 && bar.width > 79.0);
  QVERIFY(std::abs(bar.width * lengthOfUnit - bar.length) < 1e-9 * bar.length);
  QCOMPARE(ScaleBar::of({0.0, true, {}}, 200.0).width, 0.0);
}

/// The same lengths as measuring has them, here by the pipes' lengths: twice those of the drawing.
void TestPaper::scaleIsThatOfMeasuring() {
  ViewFixture f;
  for (int i = 0; i < 6; ++i)
    f.addNode(qPrintable(QStringLiteral("N%1").arg(i)), qPrintable(QString::number(1000 * i)), "0", "30");
  for (int i = 0; i < 5; ++i)
    f.add(makeEdge(qPrintable(QStringLiteral("P%1").arg(i)), qPrintable(QStringLiteral("N%1").arg(i)),
                   qPrintable(QStringLiteral("N%1").arg(i + 1))),
          {{"length", "4000"}});
  f.show();
  NetworkPage page(sourceOf(f), {});
  PagePainter laidOut(page, PageSetup(), page.text());
  const std::optional<PaperScale> scale = page.scale();
  const MapScale measuring = MapScale::of(f.net, f.plot().update().geometry());
  const QRectF seen = page.drawing().visible();
  QVERIFY(scale && scale->isMetres && !scale->north);
  QCOMPARE(measuring.metresPerUnit(0.0), 4.0);
  QVERIFY(std::abs(scale->lengthOfUnit * laidOut.layout().frame.width() -
                   measuring.length({seen.topLeft(), seen.topRight()})) < 1.0);
}

void TestPaper::legendExplainsTheCasings() {
  ViewFixture f;
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("CB_info"), QStringLiteral("(Major: pmax exceeded;)"));
  f.show();
  NetworkPage page(sourceOf(f), {});
  page.layOut({600, 400}, PageSetup(), PageContent::Detail::Draft);
  QImage image(int(PageContent::LegendWidth), 600, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  for (const PaperLegendPart &part : page.legend()) {
    part.paint(painter);
    painter.translate(0.0, part.height);
  }
  painter.end();
  int casing = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      casing += image.pixelColor(x, y) == QColor(0xff, 0x00, 0xff) ? 1 : 0;
  QVERIFY2(casing > 40, qPrintable(QString::number(casing)));
}

void TestPaper::choicesAreKept() {
  PageSetup setup;
  setup.paper = PageSetup::ownPaper();
  setup.ownSize = {420.0, 100.0};
  setup.margins = {1.0, 2.0, 3.0, 4.0};
  setup.dpi = 150;
  setup.scale = 1.5;
  setup.hasLegend = false;
  setup.area = PageSetup::Area::Network;
  QString reason;
  QVERIFY2(setup.remember(&reason), qPrintable(reason));
  const PageSetup again = PageSetup::remembered();
  QCOMPARE(again.size(), QSizeF(420.0, 100.0));
  QCOMPARE(again.margins, setup.margins);
  QVERIFY(again.dpi == 150 && again.scale == 1.5 && !again.hasLegend && again.hasHeading);
  QVERIFY(again.area == PageSetup::Area::Network);
  // What a stranger wrote into it is not taken.
  SmallFiles::write(GeneralSettings::userDirectory() + QStringLiteral("/page.json"),
                    R"({"paper":"A17","width":1e300,"dpi":-3,"margins":["x",1e9],"scale":"big"})");
  const PageSetup odd = PageSetup::remembered();
  QVERIFY(odd.fault().isEmpty() || odd.margins.top() == PageSetup::LargestMargin);
  QVERIFY(odd.paper == QLatin1String("A4") && odd.dpi == PageSetup::SmallestDpi && odd.scale == 0.0);
  QFile::remove(GeneralSettings::userDirectory() + QStringLiteral("/page.json"));
}

void TestPaper::impossiblePages() {
  PlainPage page;
  PageSetup setup;
  QString reason;
  const QString path = m_folder.filePath(QStringLiteral("no.pdf"));
  setup.margins = {150.0, 0.0, 150.0, 0.0};
  QVERIFY(!PageWriter::write(path, setup, page, page.text(), &reason) && reason.contains(QLatin1String("margins")));
  setup = PageSetup();
  QVERIFY(!PageWriter::write(m_folder.filePath(QStringLiteral("no.xyz")), setup, page, page.text(), &reason));
  QVERIFY(reason.contains(QLatin1String("pdf, svg, png")));
  setup.paper = QStringLiteral("A0");
  setup.dpi = PageSetup::LargestDpi; // more than the toolkit can paint
  QVERIFY(!PageWriter::write(m_folder.filePath(QStringLiteral("no.png")), setup, page, page.text(), &reason));
  QVERIFY2(reason.contains(QLatin1String("memory")), qPrintable(reason));
  QVERIFY(!PageWriter::write(m_folder.filePath(QStringLiteral("none/no.pdf")), PageSetup(), page, page.text(), &reason));
  QVERIFY(QDir(m_folder.path()).entryList({QStringLiteral("no.*")}).isEmpty());
}

/// Pages by name; an empty name is one that cannot be opened.
static std::vector<PageSeries::Page> plainPages(PlainPage &content, const QStringList &names) {
  std::vector<PageSeries::Page> pages;
  for (const QString &name : names)
    pages.push_back({name, [&content, name](PageText &text, QString *reason) -> PageContent * {
                       text = content.text();
                       *reason = QStringLiteral("not there");
                       return name.isEmpty() ? nullptr : &content;
                     }});
  return pages;
}

void TestPaper::seriesOfFiles() {
  const QTemporaryDir folder;
  PlainPage content;
  const auto always = [](int, const QString &) {
    return true;
  };
  const auto pages = plainPages(content, {QStringLiteral("../up"), QStringLiteral("a/b"), QStringLiteral("A b"), QString(),
                                          QStringLiteral("Übersicht")});
  const PageSeries::Target target{folder.path(), QStringLiteral("svg")};
  const PageSeries::Outcome outcome = PageSeries::run(pages, PageSetup(), target, always);
  QCOMPARE(outcome.pages, 4);
  QCOMPARE(outcome.faults, QStringList(QStringLiteral(": not there")));
  const QStringList files = QDir(folder.path()).entryList(QDir::Files, QDir::Name);
  QCOMPARE(files.size(), 4); // names that differ by marks or case alone do not overwrite each other
  QVERIFY2(files.contains(QStringLiteral("Übersicht.svg")) && files.contains(QStringLiteral("a_b.svg")),
           qPrintable(files.join(QLatin1Char(' '))));
  // Cancelled: what is complete stays, nothing else is there.
  const QTemporaryDir other;
  const PageSeries::Outcome half = PageSeries::run(pages, PageSetup(), {other.path(), QStringLiteral("pdf")},
                                                   [](int done, const QString &) { return done < 2; });
  QVERIFY(half.isCancelled && half.pages == 2 && half.faults.isEmpty());
  QCOMPARE(QDir(other.path()).entryList(QDir::Files).size(), 2);
}

void TestPaper::seriesInOneBook() {
  const QTemporaryDir folder;
  PlainPage content;
  const auto pages = plainPages(content, {QStringLiteral("one"), QString(), QStringLiteral("two"), QStringLiteral("three")});
  const QString path = folder.filePath(QStringLiteral("book.pdf"));
  PageSeries::Outcome outcome =
      PageSeries::run(pages, PageSetup(), {path, QString()}, [](int, const QString &) { return true; });
  QVERIFY(outcome.pages == 3 && outcome.faults.size() == 1);
  const QByteArray book = contentOf(path);
  QVERIFY2(book.contains("/Count 3"), "three pages");
  outcome = PageSeries::run(pages, PageSetup(), {path, QString()}, [](int done, const QString &) { return done < 3; });
  QVERIFY(outcome.isCancelled && outcome.pages == 0 && outcome.faults.size() == 1);
  QCOMPARE(contentOf(path), book); // whole or as it was
  outcome = PageSeries::run(plainPages(content, {QString()}), PageSetup(), {path, QString()},
                            [](int, const QString &) { return true; });
  QVERIFY(outcome.pages == 0 && outcome.faults.size() == 2 && contentOf(path) == book);
}

void TestPaper::seriesOfScenarios() {
  ViewFixture f;
  f.show();
  NetworkPage present(sourceOf(f), {QStringLiteral("CASE"), QStringLiteral("S1")});
  int reads = 0;
  ScenarioSource scenarios;
  scenarios.read = [&](const QString &name, NetData &net, const Progress &progress, QString *reason) {
    ++reads;
    *reason = QStringLiteral("cannot be read");
    if (name == QLatin1String("broken") || !progress(0.5))
      return false;
    ViewFixture other;
    other.net.forEach(NetData::AllTypes, [&net](element &e) { net.addElement(element(e)); });
    net.nodes().find(QStringLiteral("A"))->set(QStringLiteral("p"), QStringLiteral("5000"));
    return true;
  };
  NetworkSeries series(present, {QStringLiteral("CASE"), QStringLiteral("S1")}, scenarios);
  const NetworkSeries::Choice choice{{{QStringLiteral("all"), std::nullopt}, {QStringLiteral("left"), QRectF(0, 0, 50, 50)}},
                                     {QStringLiteral("S1"), QStringLiteral("broken"), QStringLiteral("S2")},
                                     true};
  const auto pages = series.pages(choice, {QStringLiteral("Title"), {}, QStringLiteral("comment")}, [] { return true; });
  QCOMPARE(pages.size(), std::size_t(6));
  QCOMPARE(pages[5].name, QStringLiteral("S2 left"));
  PageText text;
  QString reason;
  QVERIFY(pages[0].open(text, &reason) == &present && reads == 0);
  QVERIFY(pages[2].open(text, &reason) == nullptr && reason == QLatin1String("cannot be read"));
  auto *other = dynamic_cast<NetworkPage *>(pages[4].open(text, &reason));
  QVERIFY(other != nullptr && other != &present);
  QVERIFY(text.facts.contains(QLatin1String("S2")) && text.title.contains(QLatin1String("all")));
  QCOMPARE(text.comment, QStringLiteral("comment"));
  const int before = reads;
  QCOMPARE(pages[5].open(text, &reason), static_cast<PageContent *>(other)); // read once for all its views
  QCOMPARE(reads, before);
  // Colours mean the same on every page, whatever the values of the other scenario.
  const auto rangeOf = [](const NetworkPage &page) {
    return page.drawing().update().values().of(Aspect::NodeColor).range;
  };
  QVERIFY(rangeOf(*other) == rangeOf(present) && rangeOf(present).maxValue() < 100.0);
}

void TestPaper::seriesKeepTheirClasses() {
  ViewFixture f;
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.colorClasses = 3;
  settings.classMethod = PlotSettings::quantileClasses();
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  NetworkPage present(sourceOf(f), {QStringLiteral("CASE"), QStringLiteral("S1")});
  ScenarioSource scenarios;
  scenarios.read = [](const QString &, NetData &net, const Progress &, QString *) {
    ViewFixture other;
    other.net.forEach(NetData::AllTypes, [&net](element &e) { net.addElement(element(e)); });
    net.nodes().find(QStringLiteral("B"))->set(QStringLiteral("p"), QStringLiteral("58"));
    return true;
  };
  NetworkSeries series(present, {QStringLiteral("CASE"), QStringLiteral("S1")}, scenarios);
  const NetworkSeries::Choice choice{{{QStringLiteral("all"), std::nullopt}}, {QStringLiteral("S2")}, true};
  const auto pages = series.pages(choice, {}, [] { return true; });
  PageText text;
  QString reason;
  const auto *other = dynamic_cast<NetworkPage *>(pages[0].open(text, &reason));
  QVERIFY(other != nullptr);
  const auto breaksOf = [](const NetworkPage &page) {
    return ColorScale::breaksOf(page.drawing().settings(), page.drawing().update().values().of(Aspect::EdgeColor));
  };
  const std::vector<double> breaks = breaksOf(present);
  const std::vector<double> again = breaksOf(*other);
  QVERIFY(!breaks.empty() && breaks.size() == again.size());
  for (std::size_t i = 0; i < breaks.size(); ++i)
    QVERIFY(std::abs(breaks[i] - again[i]) < 1e-9);
}

void TestPaper::fullDiskIsTold_data() {
  QTest::addColumn<QString>("suffix");
  for (const char *suffix : {"pdf", "svg", "png"})
    QTest::newRow(suffix) << QString::fromLatin1(suffix);
}

void TestPaper::fullDiskIsTold() {
  QFETCH(QString, suffix);
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("a small disk cannot be mounted without root");
  ViewFixture f;
  f.show();
  NetworkPage page(sourceOf(f), {});
  const QString path = disk.path(QStringLiteral("page.") + suffix);
  SmallFiles::write(path, "a page");
  disk.fill();
  QString reason;
  QVERIFY(!PageWriter::write(path, PageSetup(), page, page.text(), &reason));
  QVERIFY2(reason.startsWith(QStringLiteral("Could not write ") + path), qPrintable(reason));
  QCOMPARE(contentOf(path), QByteArray("a page"));
  PlainPage content;
  const PageSeries::Outcome outcome =
      PageSeries::run(plainPages(content, {QStringLiteral("one"), QStringLiteral("two")}), PageSetup(),
                      {QFileInfo(path).path(), suffix}, [](int, const QString &) { return true; });
  QVERIFY(outcome.pages == 0 && outcome.faults.size() == 1); // the second is not tried
}

NIVRA_TEST(TestPaper);
#include "tst_paper.moc"
