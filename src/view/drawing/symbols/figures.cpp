#include "symbols/picturefile.h"

#include <drawing/figures.h>

#include <QCoreApplication>
#include <QDir>
#include <QFontMetricsF>

#include <algorithm>

namespace {

struct Keys {
  PropertyKey file = PropertyKey::find("figure.file");
  PropertyKey character = PropertyKey::find("figure.char");
  PropertyKey width = PropertyKey::find("figure.width");
  PropertyKey height = PropertyKey::find("figure.height");

  bool areUsed() const { return !file.isNull() || !character.isNull(); }
};

constexpr double LongestSide = 4000.0; // px

/// In pixels, 0 when the element has none.
double lengthOf(const element &source, PropertyKey key) {
  const double length = NetData::number(source.find(key));
  return length > 0.0 ? std::min(length, LongestSide) : 0.0;
}

} // namespace

Findings Figures::read(const NetGeometry &geometry) {
  Findings findings;
  clear();
  const Keys keys;
  if (!keys.areUsed())
    return findings; // of most networks no element has figures
  geometry.forEachItem([&](NetGeometry::Item item, const element &source) {
    if ((source.find(keys.file) != nullptr || source.find(keys.character) != nullptr) && geometry.center(item))
      add(item, source, findings);
  });
  return findings;
}

void Figures::add(NetGeometry::Item item, const element &source, Findings &findings) {
  const Keys keys;
  Figure figure;
  const QString file = source.value(keys.file).trimmed();
  if (!file.isEmpty())
    figure.picture = load(file, findings);
  figure.character = source.value(keys.character).trimmed().left(4); // one character may take several code units
  figure.width = lengthOf(source, keys.width);
  figure.height = lengthOf(source, keys.height);
  if (figure.picture.isNull() && figure.character.isEmpty())
    return;
  m_indices[item] = toIndex(m_figures.size());
  m_figures.push_back(figure);
  if (figure.hasOwnSize()) {
    const QSizeF own = extent(m_indices[item], 0.0);
    m_longest = std::max({m_longest, own.width(), own.height()});
  }
}

QImage Figures::load(const QString &file, Findings &findings) {
  const QString path = QDir(m_folder).filePath(file);
  const auto known = m_pictures.constFind(path);
  if (known != m_pictures.constEnd())
    return *known;
  QString error;
  QImage picture = PictureFile::readImage(path, &error);
  if (picture.isNull())
    findings.push_back({Finding::Severity::Warning,
                        {},
                        0,
                        QCoreApplication::translate("Figures", "Could not read figure.file %1: %2").arg(path, error),
                        {}});
  m_pictures.insert(path, picture);
  return picture;
}

void Figures::clear() {
  m_figures.clear();
  m_indices.clear();
  m_pictures.clear();
  m_longest = 0.0;
}

Index Figures::find(NetGeometry::Item item) const {
  const auto found = m_indices.find(item);
  return found == m_indices.end() ? NoIndex : found->second;
}

QFont Figures::Figure::font(double size) const {
  double pixels = size;
  if (width > 0.0 && height > 0.0)
    pixels = std::min(width, height);
  else if (hasOwnSize())
    pixels = std::max(width, height);
  QFont font(QStringLiteral("Arial"));
  font.setPixelSize(std::max(1, qRound(pixels)));
  return font;
}

QSizeF Figures::extent(Index index, double size) const {
  const Figure &figure = m_figures[index];
  if (figure.picture.isNull()) {
    const QFont font = figure.font(size);
    return QFontMetricsF(font)
        .size(Qt::TextSingleLine, figure.character)
        .expandedTo(QSizeF(font.pixelSize(), font.pixelSize()));
  }
  if (figure.width > 0.0 && figure.height > 0.0)
    return {figure.width, figure.height};
  QSizeF room(size, size);
  if (figure.hasOwnSize())
    room = {figure.width > 0.0 ? figure.width : LongestSide, figure.height > 0.0 ? figure.height : LongestSide};
  return QSizeF(figure.picture.size()).scaled(room, Qt::KeepAspectRatio);
}

void Figures::draw(QPainter &painter, Index index, const QPointF &center, double size) const {
  const Figure &figure = m_figures[index];
  QRectF area(QPointF(), extent(index, size));
  area.moveCenter(center);
  painter.save();
  if (figure.picture.isNull()) {
    painter.setFont(figure.font(size));
    painter.setPen(m_theme.ink());
    painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, figure.character);
  } else {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(area, figure.picture);
  }
  painter.restore();
}
