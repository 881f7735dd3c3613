#include <tools/paletteicon.h>

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

class PaletteIconEngine : public QIconEngine {
public:
  explicit PaletteIconEngine(const QString &path)
      : m_path(path) {}

  void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    constexpr double FadedOpacity = 0.4;
    QSvgRenderer renderer(inInk(ink(mode)));
    painter->save();
    if (mode == QIcon::Disabled)
      painter->setOpacity(FadedOpacity);
    renderer.render(painter, rect);
    painter->restore();
  }

  QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
    const QString key = QStringLiteral("nivra-icon/%1/%2x%3/%4/%5")
                            .arg(m_path)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(mode == QIcon::Disabled ? 1 : 0)
                            .arg(ink(mode).name());
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

  QIconEngine *clone() const override { return new PaletteIconEngine(m_path); }

private:
  static QColor ink(QIcon::Mode mode) {
    return QGuiApplication::palette().color(QPalette::Active,
                                            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText);
  }

  /// The files have one ink; their second colour is legible on any ground.
  QByteArray inInk(const QColor &ink) const {
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().replace("#1f2d3a", ink.name().toLatin1()) : QByteArray();
  }

  QString m_path;
};

} // namespace

QIcon paletteIcon(const QString &path) {
  return QIcon(new PaletteIconEngine(path));
}
