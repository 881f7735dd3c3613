#include "viewfixture.h"

#include <support/nivratest.h>
#include <view/stationsymbols.h>

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

class TestSymbols : public QObject {
  Q_OBJECT

private slots:
  void tableLines();
  void everyTypeHasAReadableSymbol();
  void symbolsPointAlongTheirEdge();
  void ownSymbolTakesThePlaceOfTheBuiltIn();

private:
  void write(const QString &name, const QByteArray &text) {
    QFile file(m_folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  static QImage drawn(StationSymbols &symbols, int symbol, double size, double angle = 0.0) {
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
  const SymbolTable table(m_folder.path());
  QCOMPARE(table.files().size(), std::size_t(2));
  QCOMPARE(table.files().at(QStringLiteral("c")), QStringLiteral("Own.SVG"));
  QCOMPARE(table.path(QStringLiteral("f")), m_folder.filePath(QStringLiteral("two.svg")));
  QVERIFY(table.path(QStringLiteral("v")).isEmpty());
  QVERIFY(SymbolTable(QStringLiteral("/nowhere")).files().empty());
}

void TestSymbols::everyTypeHasAReadableSymbol() {
  StationSymbols symbols;
  for (const char *key : {"c", "r", "v", "f", "s", "g", "k", "w", "d", "n", "p", "t", "sub", "compressor_station"}) {
    const int symbol = symbols.find(QString::fromLatin1(key));
    QVERIFY2(symbol >= 0, key);
    QVERIFY2(inked(drawn(symbols, symbol, 12.0), QRect(0, 0, 40, 40)) >= 6, key); // legible at the smallest size
  }
  QCOMPARE(symbols.find(QStringLiteral("no such kind")), -1);
}

void TestSymbols::symbolsPointAlongTheirEdge() {
  StationSymbols symbols;
  const int flap = symbols.find(QStringLiteral("f")); // its bar stands at the end, across the edge
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
  f.show(); // another case has no symbols of its own
  QVERIFY(f.picture().pixelColor(f.pixel(200, 50)) != QColor(Qt::red));
}

NIVRA_TEST(TestSymbols);
#include "tst_symbols.moc"
