#include "recentcards.h"

#include "recentmodel.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>

namespace {

constexpr int Padding = 8;             // px, as below
constexpr int Gap = 2;                 // between cards, at each side
constexpr QSize PictureSize(224, 140); // of the shape of a thumbnail

QFont bold(QFont font) {
  font.setBold(true);
  return font;
}

void paintPicture(QPainter &painter, const QRect &area, const QImage &picture, const QPalette &palette) {
  if (picture.isNull())
    painter.fillRect(area, palette.alternateBase());
  else
    painter.drawImage(area, picture);
  painter.setPen(palette.color(QPalette::Mid));
  painter.drawRect(area.adjusted(0, 0, -1, -1));
}

} // namespace

QSize RecentCards::sizeHint(const QStyleOptionViewItem &option, const QModelIndex & /*index*/) const {
  const int texts = QFontMetrics(bold(option.font)).lineSpacing() + 2 * QFontMetrics(option.font).lineSpacing();
  const int around = 2 * (Padding + Gap);
  return {PictureSize.width() + around, PictureSize.height() + Padding + texts + around};
}

void RecentCards::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const {
  const bool isThere = index.data(RecentModel::IsThereRole).toBool();
  QPalette palette = option.palette;
  palette.setCurrentColorGroup(isThere ? QPalette::Active : QPalette::Disabled);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  const QRect card = option.rect.adjusted(Gap, Gap, -Gap, -Gap);
  const bool isCurrent = (option.state & QStyle::State_HasFocus) != 0;
  if (isCurrent || (option.state & QStyle::State_MouseOver) != 0) {
    constexpr double Radius = 6.0;
    QColor ground = option.palette.color(QPalette::Highlight);
    ground.setAlpha(isCurrent ? 60 : 30);
    painter->setBrush(ground);
    painter->setPen(isCurrent ? QPen(option.palette.color(QPalette::Highlight), 2.0) : QPen(Qt::NoPen));
    painter->drawRoundedRect(card, Radius, Radius);
  }
  painter->setBrush(Qt::NoBrush);
  QRect picture(QPoint(card.left() + (card.width() - PictureSize.width()) / 2, card.top() + Padding), PictureSize);
  painter->setOpacity(isThere ? 1.0 : 0.35);
  paintPicture(*painter, picture, index.data(Qt::DecorationRole).value<QImage>(), option.palette);
  painter->setOpacity(1.0);

  int top = picture.bottom() + Padding;
  const auto line = [&](const QFont &font, const QString &text, const QColor &color, Qt::TextElideMode elide) {
    const QFontMetrics metrics(font);
    const QRect area(picture.left(), top, picture.width(), metrics.lineSpacing());
    painter->setFont(font);
    painter->setPen(color);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      metrics.elidedText(text, elide, area.width()));
    top += metrics.lineSpacing();
  };
  const QColor ink = palette.color(QPalette::WindowText);
  QColor faint = ink;
  faint.setAlpha(isThere ? 160 : 255);
  line(bold(option.font), index.data().toString(), ink, Qt::ElideRight);
  line(option.font, index.data(RecentModel::FolderRole).toString(), faint, Qt::ElideMiddle);
  line(option.font, isThere ? index.data(RecentModel::DateRole).toString() : tr("no longer there"), faint, Qt::ElideRight);
  painter->restore();
}
