#include "symbols/picturefile.h"

#include <drawing/layergeometry.h>
#include <drawing/stationsymbols.h>

#include <QCoreApplication>
#include <QFile>
#include <QFontMetricsF>
#include <QSvgRenderer>
#include <QtMath>

#include <algorithm>
#include <cmath>

static void initialiseResources() {
  Q_INIT_RESOURCE(drawing); // a static library's resources are dropped by the linker unless somebody asks for them
}

StationSymbols::StationSymbols() {
  initialiseResources();
}

StationSymbols::~StationSymbols() = default;

void StationSymbols::setTable(const SymbolTable &table) {
  m_table = table;
  m_indices.clear();
  m_renderers.clear();
  m_pixmaps.clear();
  m_badges.clear();
}

void StationSymbols::setGround(const QColor &ground) {
  const DrawingTheme theme(ground);
  if (theme.isDark() != m_theme.isDark()) {
    m_pixmaps.clear();
    m_badges.clear();
  }
  m_theme = theme;
}

std::unique_ptr<QSvgRenderer> StationSymbols::load(const QString &key) {
  const SymbolTable::File own = m_table.file(key);
  if (!own.path.isEmpty()) {
    QString error;
    const QByteArray text = PictureFile::readSvg(own.path, own.source, &error);
    auto renderer = std::make_unique<QSvgRenderer>(text);
    if (!text.isEmpty() && renderer->isValid())
      return renderer;
    m_findings.push_back({Finding::Severity::Warning,
                          {},
                          0,
                          QCoreApplication::translate(
                              "StationSymbols", "The symbol %1 for \"%2\" cannot be read; the built-in one is taken. %3")
                              .arg(own.path, key, error),
                          {}});
  }
  const QString path = QStringLiteral(":/iconsNetSymbols/svg TALU/network_symbols/") + key + QStringLiteral(".svg");
  return QFile::exists(path) ? std::make_unique<QSvgRenderer>(path) : nullptr;
}

Index StationSymbols::find(const QString &key) {
  if (key.isEmpty() || key.contains(QLatin1Char('/')))
    return NoIndex; // such a key could lead out of the resources
  const auto known = m_indices.constFind(key);
  if (known != m_indices.constEnd())
    return *known;
  std::unique_ptr<QSvgRenderer> renderer = load(key);
  const Index index = renderer == nullptr ? NoIndex : toIndex(m_renderers.size());
  if (renderer != nullptr)
    m_renderers.push_back(std::move(renderer));
  m_indices.insert(key, index);
  return index;
}

Index StationSymbols::find(const QString &type, const QString &state) {
  const QString both = type + state;
  const bool isOwn = m_table.file(both).path.isEmpty() && !m_table.file(type).path.isEmpty();
  const Index symbol = isOwn ? NoIndex : find(both);
  return symbol != NoIndex ? symbol : find(type);
}

void StationSymbols::draw(QPainter &painter, Index symbol, const QPointF &center, double size, double angle) {
  if (isVectorTarget(painter)) {
    painter.save();
    painter.translate(center);
    painter.rotate(angle);
    m_renderers[symbol]->render(&painter, QRectF(-size * 0.5, -size * 0.5, size, size));
    painter.restore();
    return;
  }
  constexpr int AngleStep = 5;
  constexpr int FullCircle = 360;
  const double ratio = pixelRatio(painter);
  const int rounded =
      ((static_cast<int>(std::lround(angle / AngleStep)) * AngleStep) % FullCircle + FullCircle) % FullCircle;
  QPixmap picture = pixmap(symbol, qRound(size * ratio), rounded);
  const QSizeF extent = QSizeF(picture.size()) / ratio;
  painter.drawPixmap(QRectF(center - QPointF(extent.width() * 0.5, extent.height() * 0.5), extent), picture, picture.rect());
}

namespace {

constexpr double BadgeHeight = 10.0; // px

void paintBadge(QPainter &painter, const QRectF &badge, const QString &text, const QFont &font, const DrawingTheme &theme) {
  const QColor ink = theme.turned(QColor(70, 82, 94));
  painter.setPen(QPen(ink, 0.75));
  painter.setBrush(theme.paper());
  painter.drawRoundedRect(badge, BadgeHeight * 0.5, BadgeHeight * 0.5);
  painter.setPen(ink);
  painter.setFont(font);
  painter.drawText(badge, Qt::AlignCenter, text);
}

} // namespace

void StationSymbols::drawCount(QPainter &painter, const QPointF &center, int count) {
  constexpr int LargestCount = 999;
  constexpr int FontPixels = 8;
  constexpr double Padding = 5.0;
  const int shown = std::min(count, LargestCount + 1);
  const QString text = count > LargestCount ? QString::number(LargestCount) + QLatin1Char('+') : QString::number(count);
  QFont font(QStringLiteral("Arial"));
  font.setPixelSize(FontPixels);
  font.setBold(true);
  const auto areaOf = [&font, &text] {
    const double width = std::max(BadgeHeight, QFontMetricsF(font).horizontalAdvance(text) + Padding);
    return QRectF(-width * 0.5, -BadgeHeight * 0.5, width, BadgeHeight);
  };
  if (isVectorTarget(painter)) {
    paintBadge(painter, areaOf().translated(center), text, font, m_theme);
    return;
  }
  const double ratio = pixelRatio(painter);
  QPixmap &badge = m_badges[{shown, qRound(ratio * 100.0)}];
  if (badge.isNull()) {
    const QRectF area = areaOf().adjusted(-1.0, -1.0, 1.0, 1.0);
    badge = QPixmap((area.size() * ratio).toSize());
    badge.fill(Qt::transparent);
    QPainter prepared(&badge);
    prepared.setRenderHint(QPainter::Antialiasing);
    prepared.scale(ratio, ratio);
    paintBadge(prepared, areaOf().translated(-area.topLeft()), text, font, m_theme);
  }
  const QSizeF extent = QSizeF(badge.size()) / ratio;
  painter.drawPixmap(QRectF(center - QPointF(extent.width() * 0.5, extent.height() * 0.5), extent), badge, badge.rect());
}

QPixmap StationSymbols::pixmap(Index symbol, int pixels, int angle) {
  constexpr int MostPixmaps = 4000;
  const quint64 key =
      (static_cast<quint64>(symbol) << 40U) | (static_cast<quint64>(pixels) << 16U) | static_cast<quint64>(angle);
  const auto known = m_pixmaps.constFind(key);
  if (known != m_pixmaps.constEnd())
    return *known;
  if (m_pixmaps.size() >= MostPixmaps)
    m_pixmaps.clear();
  // Room for the symbol's corners, whichever way it is turned.
  const int side = qCeil(pixels * std::sqrt(2.0));
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(side * 0.5, side * 0.5);
  painter.rotate(angle);
  m_renderers[symbol]->render(&painter, QRectF(-pixels * 0.5, -pixels * 0.5, pixels, pixels));
  painter.end();
  const QPixmap picture = QPixmap::fromImage(m_theme.turned(image));
  m_pixmaps.insert(key, picture);
  return picture;
}
