#include "interaction/plotzoom.h"
#include "symbols/picturefile.h"
#include "viewfixture.h"

#include <drawing/stationsymbols.h>
#include <support/nivratest.h>

#include <QAction>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>
#include <sys/stat.h>

class TestSymbols : public QObject {
  Q_OBJECT

private slots:
  void tableLines();
  void unreadableTables_data();
  void unreadableTables();
  void everyTypeHasAReadableSymbol();
  void symbolsPointAlongTheirEdge();
  void statesHaveTheirSymbols();
  void ownSymbolTakesThePlaceOfTheBuiltIn();
  void ownSymbolStandsForAllStates();
  void drivesOutOfUse();
  void drivesOfParallelCompressors_data();
  void drivesOfParallelCompressors();
  void badSvg_data();
  void badSvg();
  void ordinarySvgIsDrawn();
  void badFigures_data();
  void badFigures();
  void figuresTakeThePlaceOfSymbols();
  void charactersHaveTheSizeThatIsAskedFor_data();
  void charactersHaveTheSizeThatIsAskedFor();
  void figuresTakeTheirRoom();
  void crowdedStationsShareASymbol();
  void edgeOfNoLengthShowsAtItsNode();

private:
  void write(const QString &name, const QByteArray &text) {
    QFile file(m_folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  static QImage drawn(StationSymbols &symbols, Index symbol, double size, double angle = 0.0) {
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    symbols.draw(painter, symbol, {20, 20}, size, angle);
    return image;
  }
  static int inked(const QImage &image, const QRect &part) {
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
      for (int x = part.left(); x <= part.right(); ++x)
        count += image.pixelColor(x, y).lightness() < 140 ? 1 : 0;
    return count;
  }
  QTemporaryDir m_folder;
};

void TestSymbols::tableLines() {
  write(QStringLiteral("svg_symbols.csv"), "# comment\n\n  c ;;  Own.SVG ;more\r\nv;valve.png\nr\nf;one.svg\nf;two.svg\n");
  SymbolTable table;
  QVERIFY(table.read(m_folder.path()).empty());
  QCOMPARE(table.files().size(), std::size_t(2));
  QCOMPARE(table.files().at(QStringLiteral("c")), QStringLiteral("Own.SVG"));
  QCOMPARE(table.file(QStringLiteral("f")).path, m_folder.filePath(QStringLiteral("two.svg")));
  QVERIFY(table.file(QStringLiteral("v")).path.isEmpty());
  SymbolTable none;
  QCOMPARE(none.read(QStringLiteral("/nowhere")).size(), std::size_t(1));
  QVERIFY(none.files().empty());
}

void TestSymbols::unreadableTables_data() {
  QTest::addColumn<bool>("isThere");
  QTest::newRow("nothing there") << false;
  QTest::newRow("a folder in its place") << true;
}

void TestSymbols::unreadableTables() {
  QFETCH(bool, isThere);
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("svg_symbols.csv"));
  QVERIFY(!isThere || QDir().mkpath(path));
  SymbolTable table;
  const Findings findings = table.read(folder.path());
  QVERIFY(table.files().empty());
  QCOMPARE(findings.size(), std::size_t(isThere ? 2 : 1)); // why, and what is done about it
  QCOMPARE(findings.back().text, QStringLiteral("SVG symbols file %1 not found! Using built-in defaults!").arg(path));
}

void TestSymbols::everyTypeHasAReadableSymbol() {
  StationSymbols symbols;
  for (const char *key : {"c", "r", "v", "f", "s", "g", "k", "w", "d", "n", "p", "t", "sub", "compressor_station"}) {
    const Index symbol = symbols.find(QString::fromLatin1(key));
    QVERIFY2(symbol != NoIndex, key);
    QVERIFY2(inked(drawn(symbols, symbol, 12.0), QRect(0, 0, 40, 40)) >= 6, key); // legible at the smallest size
  }
  QCOMPARE(symbols.find(QStringLiteral("no such kind")), NoIndex);
}

void TestSymbols::symbolsPointAlongTheirEdge() {
  StationSymbols symbols;
  const Index flap = symbols.find(QStringLiteral("f")); // its bar stands at the end, across the edge
  const QRect right(31, 8, 6, 24);
  const QRect below(8, 31, 24, 6);
  QVERIFY(inked(drawn(symbols, flap, 36.0, 0.0), right) > 2 * inked(drawn(symbols, flap, 36.0, 90.0), right));
  QVERIFY(inked(drawn(symbols, flap, 36.0, 90.0), below) > 2 * inked(drawn(symbols, flap, 36.0, 0.0), below));
}

void TestSymbols::ownSymbolTakesThePlaceOfTheBuiltIn() {
  QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("symbols")));
  write(QStringLiteral("symbols/svg_symbols.csv"), "c;red.svg\nv;broken.svg\n");
  write(QStringLiteral("symbols/red.svg"), "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 8 8'>"
                                           "<rect width='8' height='8' fill='#ff0000'/></svg>");
  write(QStringLiteral("symbols/broken.svg"), "no svg at all");
  ViewFixture f;
  f.control.showNetData(m_folder.filePath(QStringLiteral("plotsettings.ini")));
  QCOMPARE(f.picture().pixelColor(f.pixel(200, 50)), QColor(Qt::red));
  SymbolTable table;
  QVERIFY(table.read(m_folder.filePath(QStringLiteral("symbols"))).empty());
  StationSymbols symbols;
  symbols.setTable(table);
  for (int i = 0; i < 2; ++i)
    QVERIFY(symbols.find(QStringLiteral("v")) != NoIndex); // the built-in one
  const Findings findings = symbols.takeFindings();
  QCOMPARE(findings.size(), std::size_t(1)); // said once
  QVERIFY(findings.front().text.contains(QStringLiteral("broken.svg")));
  f.show(); // another case has no symbols of its own
  QVERIFY(f.picture().pixelColor(f.pixel(200, 50)) != QColor(Qt::red));
}

// Who draws a valve and no closed one sees his own also where it is closed; a key for the state goes before.
void TestSymbols::ownSymbolStandsForAllStates() {
  const auto square = [](const char *color) {
    return QByteArray("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 8 8'><rect width='8' height='8' fill='") +
           color + "'/></svg>";
  };
  QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("symbols")));
  write(QStringLiteral("symbols/own.svg"), square("#ff0000"));
  write(QStringLiteral("symbols/state.svg"), square("#0000ff"));
  const auto drawnAs = [this](const char *type, const char *state, const QByteArray &table) {
    write(QStringLiteral("symbols/svg_symbols.csv"), table);
    ViewFixture f;
    f.net.element(QStringLiteral("CD"))->set(QStringLiteral("type"), QString::fromLatin1(type));
    f.net.element(QStringLiteral("CD"))->set(QStringLiteral("state"), QString::fromLatin1(state));
    f.control.showNetData(m_folder.filePath(QStringLiteral("plotsettings.ini")));
    return f.picture().pixelColor(f.pixel(200, 50));
  };
  QCOMPARE(drawnAs("v", "closed", "v;own.svg\n"), QColor(Qt::red));
  QCOMPARE(drawnAs("c", "bypass", "c;own.svg\n"), QColor(Qt::red));
  QCOMPARE(drawnAs("v", "closed", "v;own.svg\nv_off;state.svg\n"), QColor(Qt::blue));
  QCOMPARE(drawnAs("c", "bypass", "c_bypass;state.svg\n"), QColor(Qt::blue));
  QVERIFY(drawnAs("c", "active", "c_bypass;state.svg\n") != QColor(Qt::blue));
}

void TestSymbols::drivesOutOfUse() {
  ViewFixture f;
  element drive = makeNode("DR", "100", "100");
  drive.set(QStringLiteral("type"), QStringLiteral("d"));
  f.add(std::move(drive), {});
  f.show();
  f.picture(); // lays out
  const QPoint body = f.pixel(100, 100) + QPoint(-3, 3);
  const QColor atWork = f.picture().pixelColor(body);
  QVERIFY2(atWork.saturation() > 15, qPrintable(atWork.name())); // green
  f.net.element(QStringLiteral("DR"))->set(QStringLiteral("active"), QStringLiteral("0"));
  f.show();
  const QColor off = f.picture().pixelColor(body);
  QVERIFY2(off.saturation() < 10 && off.lightness() > 200, qPrintable(off.name())); // grey
}

void TestSymbols::drivesOfParallelCompressors_data() {
  QTest::addColumn<int>("count");
  for (const int count : {1, 2, 3, 4, 5})
    QTest::addRow("%d", count) << count;
}

/// However many machines stand side by side, every one of them and its drive is seen, and none covers another.
void TestSymbols::drivesOfParallelCompressors() {
  QFETCH(int, count);
  ViewFixture f;
  f.net.clear();
  f.addNode("A", "0", "0", "20");
  f.addNode("B", "200", "30", "30");
  for (int i = 0; i < count; ++i) {
    const QByteArray name = "C" + QByteArray::number(i);
    f.add(i % 2 == 0 ? makeEdge(name, "A", "B", "c") : makeEdge(name, "B", "A", "c"), {});
    element drive = makeNode("D" + QByteArray::number(i), "100", "15");
    drive.set(QStringLiteral("type"), QStringLiteral("d"));
    drive.set(QStringLiteral("driven"), QString::fromLatin1(name));
    f.add(std::move(drive), {});
  }
  f.show();
  f.picture(); // lays out
  const std::vector<SymbolLayer::Placed> symbols = f.plot().update().determineVisibleSymbols();
  QCOMPARE(symbols.size(), static_cast<std::size_t>(2 * count));
  for (std::size_t i = 0; i < symbols.size(); ++i)
    for (std::size_t other = 0; other < i; ++other)
      QVERIFY2(QLineF(symbols[i].center, symbols[other].center).length() >= symbols[i].size * 0.95,
               qPrintable(QStringLiteral("%1 %2").arg(i).arg(other)));
}

void TestSymbols::statesHaveTheirSymbols() {
  StationSymbols symbols;
  for (const char *key :
       {"c_off", "r_off", "v_off", "f_off", "s_off", "g_off", "k_off", "w_off", "d_off", "c_bypass", "r_bypass"})
    QVERIFY2(symbols.find(QString::fromLatin1(key)) != NoIndex, key);
  QCOMPARE(symbols.find(QStringLiteral("../network_symbols/c")), NoIndex);
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("type"), QStringLiteral("v"));
  f.show();
  f.picture(); // lays out
  const QRect middle(f.pixel(200, 50) - QPoint(8, 8), QSize(17, 17));
  const int open = inked(f.picture(), middle);
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("state"), QStringLiteral("closed"));
  f.show();
  const int closed = inked(f.picture(), middle);
  QVERIFY2(closed > open + 20, qPrintable(QStringLiteral("%1 %2").arg(open).arg(closed))); // a closed valve is filled
}

void TestSymbols::badSvg_data() {
  QTest::addColumn<QByteArray>("text");
  const QByteArray head =
      "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' viewBox='0 0 8 8'>";
  QTest::newRow("no xml") << QByteArray("plain text");
  QTest::newRow("cut") << head + "<rect width='8'";
  QTest::newRow("another file") << head + "<image xlink:href='/etc/hostname' width='8' height='8'/></svg>";
  QTest::newRow("the network") << head + "<image href='http://example.org/a.png' width='8' height='8'/></svg>";
  QTest::newRow("style from elsewhere") << head + "<style>@import url(http://example.org/a.css);</style></svg>";
  QTest::newRow("style sheet from elsewhere")
      << QByteArray("<?xml-stylesheet type=\"text/css\" href=\"/etc/hostname\"?>") + head + "</svg>";
  QTest::newRow("fill from elsewhere") << head + "<rect fill='url(other.svg#a)' width='8' height='8'/></svg>";
  QTest::newRow("entities") << QByteArray("<!DOCTYPE svg [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;'>]>") + head +
                                   "<text>&b;</text></svg>";
  const auto embedded = [&head](const char *kind, const QByteArray &content) {
    return head + "<image xlink:href='data:image/" + kind + ";base64," + content.toBase64() +
           "' width='8' height='8'/></svg>";
  };
  const QByteArray inner = head + "<image xlink:href='file:///etc/hostname' width='8' height='8'/></svg>";
  QTest::newRow("SVG in SVG") << embedded("svg+xml", inner);
  QTest::newRow("SVG in SVG, called pixels") << embedded("png", inner);
  QTest::newRow("compressed") << QByteArray::fromHex("1f8b0800000000000003b3c9c82cc9496552d00702000000ffff");
  QTest::newRow("lines of endless dashes")
      << head + "<polygon points='0,0 1e308,0 1e308,1e308' stroke='red' stroke-dasharray='0 1'/></svg>";
  QTest::newRow("lines of very short dashes")
      << head + "<polygon points='0,0 900000,0 900000,900000' stroke='red' style='stroke-dasharray:1e-4,1e-4'/></svg>";
  const auto line = [&head](const char *more) {
    return head + "<path d='M0 0L900000 0 900000 900000' stroke='red' " + more + "/></svg>";
  };
  QTest::newRow("endless dashes beside a colour")
      << head + "<polygon points='0,0 1e308,0 1e308,1e308 #' stroke='red' stroke-dasharray='0 1'/></svg>";
  QTest::newRow("endless dashes of a path with a name")
      << head + "<path d='#M0.0#L1e308' stroke='red' stroke-dasharray='0 1'/></svg>";
  QTest::newRow("short dashes behind a colour") << line("style='stroke:#f00;stroke-dasharray:1e-4,1e-4'");
  QTest::newRow("short dashes behind a comment") << line("style='/**/stroke-dasharray:1e-4,1e-4'");
  QTest::newRow("short dashes in escapes") << line("style='stroke-dasharra\\79:1e-4,1e-4'");
  QTest::newRow("short dashes before what is not read") << line("stroke-dasharray='1e-4 x 900000'");
  QTest::newRow("a style sheet with escapes")
      << head + "<style><g/>path { stroke-dasharra\\79: 1e-4,1e-4 }</style><path d='M0 0L900000 0'/></svg>";
  QTest::newRow("lines to and fro") << head + "<polyline stroke='red' points='" + QByteArray("0,0 9,9 ").repeated(50000) +
                                           "'/></svg>";
  QTest::newRow("endless number") << head + "<rect width='" + QByteArray(400, '9') + "' height='1'/></svg>";
  QByteArray attributes;
  for (int i = 0; i < 60000; ++i)
    attributes += " a" + QByteArray::number(i) + "=''";
  QTest::newRow("many attributes") << head + "<rect" + attributes + "/></svg>";
  QTest::newRow("many attributes behind a comment") << head + "<!-- don't -->" + "<rect" + attributes + "/></svg>";
  QTest::newRow("many attributes behind an odd comment") << head + "<!--><x \"--><rect" + attributes + "/></svg>";
  QTest::newRow("many attributes behind a document type")
      << QByteArray("<!DOCTYPE svg SYSTEM '<!--'>") + head + "<rect" + attributes + "/></svg>";
  const QString wide = QString::fromLatin1(head).insert(0, QStringLiteral("<!-- ' -->")) + QStringLiteral("<rect") +
                       QString::fromLatin1(attributes) + QStringLiteral("/></svg>");
  QTest::newRow("many attributes in UTF-16")
      << QByteArray(reinterpret_cast<const char *>(wide.utf16()), wide.size() * int(sizeof(ushort)));
  QTest::newRow("another encoding") << QByteArray("<?xml version='1.0' encoding='UTF-7'?>") + head + "</svg>";
  QByteArray repeats;
  for (int i = 1; i < 20; ++i)
    repeats += "<g id='a" + QByteArray::number(i) + "'>" +
               QByteArray("<use xlink:href='#a" + QByteArray::number(i - 1) + "'/>").repeated(10) + "</g>";
  QTest::newRow("repeats within repeats") << head + "<rect id='a0' width='1' height='1'/>" + repeats + "</svg>";
  QTest::newRow("nested without end") << head + QByteArray("<g>").repeated(5000);
  QTest::newRow("huge") << head + QByteArray(3 << 20, ' ') + "</svg>";
}

void TestSymbols::badSvg() {
  QFETCH(QByteArray, text);
  write(QStringLiteral("bad.svg"), text);
  QString error;
  QVERIFY(
      PictureFile::readSvg(m_folder.filePath(QStringLiteral("bad.svg")), FileAccess::Source::Workspace, &error).isEmpty());
  QVERIFY(!error.isEmpty());
}

void TestSymbols::ordinarySvgIsDrawn() {
  QImage dot(2, 2, QImage::Format_RGB32);
  dot.fill(Qt::red);
  QByteArray png;
  QBuffer buffer(&png);
  QVERIFY(buffer.open(QIODevice::WriteOnly) && dot.save(&buffer, "png"));
  write(QStringLiteral("good.svg"),
        "<?xml version='1.0'?><!-- it's drawn by hand --><svg xmlns='http://www.w3.org/2000/svg' "
        "xmlns:xlink='http://www.w3.org/1999/xlink' width='80' height='80' viewBox='0 0 80 80'>"
        "<style>/* by hand */ .a { fill: red }</style><title>C:\\a</title>"
        "<defs><linearGradient id='g9000000'><stop offset='0' stop-color='#99999999'/></linearGradient>"
        "<path id='p' d='M0 0L40.5,30.25 1e1-3z'/></defs><use xlink:href='#p' fill='url(#g9000000)'/>"
        "<path d='M0 60H80' stroke='#00f' style='stroke-width:2;stroke-dasharray:4,2'/>"
        "<image xlink:href='data:image/png;base64," +
            png.toBase64() + "' width='8' height='8'/></svg>");
  QString error;
  const QImage picture = PictureFile::readImage(m_folder.filePath(QStringLiteral("good.svg")), &error);
  QVERIFY2(!picture.isNull(), qPrintable(error));
  QCOMPARE(picture.pixelColor(10, 10), QColor(Qt::red));
}

void TestSymbols::badFigures_data() {
  QTest::addColumn<QString>("file");
  write(QStringLiteral("text.png"), "no picture");
  QFile huge(m_folder.filePath(QStringLiteral("huge.png")));
  QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(500) << 20)); // without a block on the disk
  const QString pipe = m_folder.filePath(QStringLiteral("pipe.png"));
  QVERIFY(::mkfifo(QFile::encodeName(pipe).constData(), 0600) == 0);
  const QByteArray square = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 8 8'><rect width='8' height='8'/></svg>";
  for (const char *name : {"svg.png", "dotted.svg.", "packed.svgz"}) {
    write(QString::fromLatin1(name), square);
    QTest::newRow(name) << QString::fromLatin1(name);
  }
  QTest::newRow("missing") << QStringLiteral("missing.png");
  QTest::newRow("no picture") << QStringLiteral("text.png");
  QTest::newRow("directory") << QStringLiteral(".");
  QTest::newRow("pipe") << pipe;
  QTest::newRow("huge") << QStringLiteral("huge.png");
}

void TestSymbols::badFigures() {
  QFETCH(QString, file);
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("figure.file"), file);
  f.control.showNetData(m_folder.filePath(QStringLiteral("plotsettings.ini")));
  ViewFixture without;
  without.control.showNetData(m_folder.filePath(QStringLiteral("plotsettings.ini")));
  QCOMPARE(f.picture(), without.picture()); // its symbol is drawn
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("figure.char"), QStringLiteral("M"));
  f.control.showNetData(m_folder.filePath(QStringLiteral("plotsettings.ini")));
  QVERIFY(f.picture() != without.picture()); // its character is
  QFile::remove(m_folder.filePath(QStringLiteral("pipe.png")));
}

void TestSymbols::figuresTakeThePlaceOfSymbols() {
  QImage red(10, 20, QImage::Format_RGB32);
  red.fill(Qt::red);
  QVERIFY(red.save(m_folder.filePath(QStringLiteral("red.png"))));
  ViewFixture f;
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("figure.file"), QStringLiteral("red.png"));
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("figure.width"), QStringLiteral("30"));
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("figure.height"), QStringLiteral("12"));
  f.control.showNetData(m_folder.filePath(QStringLiteral("plotsettings.ini")));
  const QImage picture = f.picture();
  const QPoint a = f.pixel(0, 0);
  QCOMPARE(picture.pixelColor(a + QPoint(13, 4)), QColor(Qt::red));
  QVERIFY(picture.pixelColor(a + QPoint(17, 4)) != QColor(Qt::red));
  QVERIFY(picture.pixelColor(a + QPoint(4, 8)) != QColor(Qt::red));
}

void TestSymbols::charactersHaveTheSizeThatIsAskedFor_data() {
  QTest::addColumn<QString>("width");
  QTest::addColumn<QString>("height");
  QTest::addColumn<int>("pixels");
  QTest::newRow("of symbols") << QString() << QString() << 20;
  QTest::newRow("width") << QStringLiteral("60") << QString() << 60;
  QTest::newRow("height") << QString() << QStringLiteral("60") << 60;
  QTest::newRow("low") << QStringLiteral("80") << QStringLiteral("40") << 40;
  QTest::newRow("narrow") << QStringLiteral("40") << QStringLiteral("80") << 40;
}

void TestSymbols::charactersHaveTheSizeThatIsAskedFor() {
  QFETCH(QString, width);
  QFETCH(QString, height);
  QFETCH(int, pixels);
  ViewFixture f;
  f.addNode("N", "100", "50", "30");
  element &node = *f.net.element(QStringLiteral("N"));
  node.set(QStringLiteral("figure.char"), QStringLiteral("M"));
  node.set(QStringLiteral("figure.width"), width);
  node.set(QStringLiteral("figure.height"), height);
  f.show();
  const QImage picture = f.picture();
  QRect ink;
  for (int y = -50; y < 50; ++y) {
    for (int x = -50; x < 50; ++x) {
      if (picture.pixelColor(f.pixel(100, 50) + QPoint(x, y)).value() < 60)
        ink = ink.united(QRect(x, y, 1, 1));
    }
  }
  const QString said = QStringLiteral("%1 x %2").arg(ink.width()).arg(ink.height());
  QVERIFY2(ink.height() > pixels * 0.6 && ink.height() < pixels, qPrintable(said)); // a capital letter of such a font
  QVERIFY2(qAbs(ink.center().x()) < 3 && qAbs(ink.center().y()) < pixels * 0.1 + 2, qPrintable(said));
}

/// What is drawn is what is clicked on and what labels keep away from.
void TestSymbols::figuresTakeTheirRoom() {
  QImage red(40, 10, QImage::Format_RGB32);
  red.fill(Qt::red);
  QVERIFY(red.save(m_folder.filePath(QStringLiteral("red.png"))));
  for (const char *property : {"figure.char", "figure.file"}) {
    ViewFixture f;
    f.addNode("N", "100", "50", "30");
    element &node = *f.net.element(QStringLiteral("N"));
    node.set(QString::fromLatin1(property), QStringLiteral("red.png"));
    const bool isPicture = qstrcmp(property, "figure.file") == 0;
    if (!isPicture)
      node.set(QStringLiteral("figure.char"), QStringLiteral("M"));
    node.set(QStringLiteral("figure.width"), QStringLiteral("120"));
    f.plot().show();
    f.control.showNetData(m_folder.filePath(QStringLiteral("plotsettings.ini")));
    f.plot().legendAction()->setChecked(false); // it may stand before what is looked for
    QWidget *canvas = f.plot().plot()->canvas();
    const QPoint center = canvas->mapFrom(&f.plot(), f.pixel(100, 50));
    const auto isHit = [&](const QPoint &aside) {
      f.control.picker()->clearSelection();
      QTest::mouseClick(canvas, Qt::LeftButton, Qt::NoModifier, center + aside);
      return f.net.selection().names().contains(QStringLiteral("N"));
    };
    QVERIFY(isHit({54, 12}) && isHit({-54, -12}));
    QVERIFY(!isHit({80, 0}));
    QCOMPARE(isHit({0, -40}), !isPicture); // 30 px high

    f.plot().update().relabelNow();
    QRectF figure(0, 0, 120, isPicture ? 30 : 120);
    figure.moveCenter(center);
    const auto labelsOfNode = [&f, &node] {
      const std::vector<Label> &labels = f.plot().update().labels();
      return std::count_if(labels.begin(), labels.end(), [&](const Label &label) {
        return f.plot().update().geometry().source(label.candidate.item) == &node;
      });
    };
    for (const Label &label : f.plot().update().labels())
      QVERIFY(!label.candidate.box(label.spot).bounds().intersects(figure));
    QCOMPARE(labelsOfNode(), 1);
    node.set(QStringLiteral("figure.width"), QStringLiteral("16")); // room for two
    f.plot().update().relabelNow();
    QCOMPARE(labelsOfNode(), 1);
    node.set(QStringLiteral("figure.width"), QStringLiteral("120"));
    f.plot().update().relabelNow();

    // Its middle 30 px beyond the side of the canvas, the rest still shows.
    f.control.picker()->clearSelection(); // whose marks lie over the drawing
    PlotZoom &zoomer = *f.plot().zoomer();
    const QSizeF unit = f.plot().plot()->unitsPerPixel();
    zoomer.zoom(zoomer.zoomRect().translated((center.x() + 30) * unit.width(), 0));
    const QImage picture = canvas->grab().toImage();
    bool isDrawn = false;
    for (int y = -30; y < 30; ++y) {
      for (int x = 0; x < 12; ++x) {
        const QColor pixel = picture.pixelColor(x, center.y() + y);
        isDrawn = isDrawn || pixel == QColor(isPicture ? Qt::red : Qt::black);
      }
    }
    QVERIFY(isDrawn);
  }
}

void TestSymbols::crowdedStationsShareASymbol() {
  ViewFixture f;
  f.addNode("D2", "200.1", "100", "60");
  f.addNode("D3", "200.2", "100", "60");
  f.add(makeEdge("CD2", "C", "D2", "c"), {});
  f.add(makeEdge("CD3", "C", "D3", "v"), {});
  f.plot().show();
  f.show();
  std::vector<SymbolLayer::Placed> placed = f.plot().update().determineVisibleSymbols();
  QCOMPARE(placed.size(), std::size_t(1));
  QCOMPARE(placed.front().others, 1); // of its kind
  const element &shown = *f.plot().update().geometry().source(placed.front().item);
  QCOMPARE(shown.value(QStringLiteral("type")), QStringLiteral("c")); // before a valve
  QStringList hit;
  for (const Hit &found : f.plot().update().elementsAt(placed.front().center, 1.0))
    hit.append(f.plot().update().geometry().source(found.item)->value(QStringLiteral("name")));
  for (const char *name : {"CD", "CD2", "CD3"})
    QVERIFY2(hit.contains(QLatin1String(name)), name); // those behind it are found all the same
  f.net.element(QStringLiteral("D2"))->set(QStringLiteral("x"), QStringLiteral("150"));
  f.show();
  placed = f.plot().update().determineVisibleSymbols();
  QCOMPARE(placed.size(), std::size_t(2));
  QCOMPARE(placed.front().others, 0);
}

void TestSymbols::edgeOfNoLengthShowsAtItsNode() {
  ViewFixture f;
  f.addNode("A2", "0", "0", "20");
  f.add(makeEdge("AA2", "A", "A2", "v"), {});
  f.plot().show();
  f.show();
  bool isThere = false;
  for (const SymbolLayer::Placed &placed : f.plot().update().determineVisibleSymbols())
    isThere = isThere || (placed.center - f.plot().update().projection().map(0, 0)).manhattanLength() < 1e-6;
  QVERIFY(isThere);
}

NIVRA_TEST(TestSymbols);
#include "tst_symbols.moc"
