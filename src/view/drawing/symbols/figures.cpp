#include "symbols/picturefile.h"

#include <base/nivramsg.h>

#include <QDir>

#include <algorithm>
#include <cmath>
#include <drawing/figures.h>

namespace {

struct Keys {
  PropertyKey file = PropertyKey::find("figure.file");
  PropertyKey character = PropertyKey::find("figure.char");
  PropertyKey width = PropertyKey::find("figure.width");
  PropertyKey height = PropertyKey::find("figure.height");

  bool areUsed() const { return !file.isNull() || !character.isNull(); }
};

/// Of pixels, 0 when there is none of a bearable size.
double lengthOf(const element &source, PropertyKey key) {
  constexpr double Longest = 4000.0;
  const double length = NetData::number(source.find(key));
  return length > 0.0 ? std::min(length, Longest) : 0.0;
}

} // namespace

void Figures::read(const NetGeometry &geometry) {
  clear();
  const Keys keys;
  if (!keys.areUsed())
    return; // of most networks no element has figures
  const auto take = [&](NetData::EleType kind, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      const NetGeometry::Item item{kind, static_cast<int>(i)};
      const element &source = *geometry.source(item);
      if ((source.find(keys.file) != nullptr || source.find(keys.character) != nullptr) && geometry.center(item))
        add(item, source);
    }
  };
  take(NetData::Node, geometry.nodes().size());
  take(NetData::Edge, geometry.edges().size());
  take(NetData::AssembledSubnet, geometry.subnets().size());
  take(NetData::TextBox, geometry.textBoxes().size());
}

void Figures::add(NetGeometry::Item item, const element &source) {
  const Keys keys;
  Figure figure;
  const QString file = source.value(keys.file).trimmed();
  if (!file.isEmpty())
    figure.picture = load(file);
  figure.character = source.value(keys.character).trimmed().left(4); // one, which may take several code units
  figure.width = lengthOf(source, keys.width);
  figure.height = lengthOf(source, keys.height);
  if (figure.picture.isNull() && figure.character.isEmpty())
    return;
  m_numbers[Key(item.kind, item.index)] = static_cast<int>(m_figures.size());
  m_figures.push_back(figure);
}

QImage Figures::load(const QString &file) {
  const QString path = QDir(m_folder).filePath(file);
  const auto known = m_pictures.constFind(path);
  if (known != m_pictures.constEnd())
    return *known;
  QString error;
  QImage picture = PictureFile::readImage(path, &error);
  if (picture.isNull())
    NivraMsg::logWarning(QStringLiteral("Could not read figure.file") + QStringLiteral(" %1: %2").arg(path, error));
  m_pictures.insert(path, picture);
  return picture;
}

void Figures::clear() {
  m_figures.clear();
  m_numbers.clear();
  m_pictures.clear();
}

int Figures::find(NetGeometry::Item item) const {
  const auto found = m_numbers.find(Key(item.kind, item.index));
  return found == m_numbers.end() ? -1 : found->second;
}

bool Figures::draw(QPainter &painter, int number, const QPointF &center, double size) const {
  const Figure &figure = m_figures[static_cast<std::size_t>(number)];
  if (!figure.picture.isNull()) {
    QSizeF extent = QSizeF(figure.picture.size()).scaled(size, size, Qt::KeepAspectRatio);
    if (figure.width > 0.0)
      extent = {figure.width, figure.height > 0.0 ? figure.height : extent.height() * figure.width / extent.width()};
    else if (figure.height > 0.0)
      extent = {extent.width() * figure.height / extent.height(), figure.height};
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(center - QPointF(extent.width() * 0.5, extent.height() * 0.5), extent), figure.picture);
    painter.restore();
    return true;
  }
  if (figure.character.isEmpty())
    return false;
  QFont font(QStringLiteral("Arial"));
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(figure.height > 0.0 ? figure.height : size))));
  painter.setFont(font);
  painter.setPen(Qt::black);
  const double side = std::max(size, figure.height) * 2.0;
  painter.drawText(QRectF(center.x() - side, center.y() - side, side * 2.0, side * 2.0), Qt::AlignCenter, figure.character);
  return true;
}
