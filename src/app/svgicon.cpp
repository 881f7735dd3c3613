#include "svgicon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

class SvgIconEngine : public QIconEngine {
public:
  explicit SvgIconEngine(const QString &name)
      : m_name(name) {}

  void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    constexpr double FadedOpacity = 0.4;
    const auto group = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
    QSvgRenderer renderer(inInk(QGuiApplication::palette().color(QPalette::Active, group)));
    painter->save();
    if (mode == QIcon::Disabled)
      painter->setOpacity(FadedOpacity);
    renderer.render(painter, rect);
    painter->restore();
  }

  QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
    const QString key = QStringLiteral("nivra-icon/%1/%2/%3/%4")
                            .arg(m_name)
                            .arg(size.width())
                            .arg(static_cast<int>(mode))
                            .arg(QGuiApplication::palette().cacheKey());
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
      return picture;
    picture = QPixmap(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    painter.end();
    QPixmapCache::insert(key, picture);
    return picture;
  }

  QIconEngine *clone() const override { return new SvgIconEngine(m_name); }

private:
  /// The files have one ink; their second colour is legible on any ground.
  QByteArray inInk(const QColor &ink) const {
    QFile file(QStringLiteral(":/icons/commands/%1.svg").arg(m_name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().replace("#1f2d3a", ink.name().toLatin1()) : QByteArray();
  }

  QString m_name;
};

} // namespace

QIcon svgIcon(const QString &name) {
  return QIcon(new SvgIconEngine(name));
}
