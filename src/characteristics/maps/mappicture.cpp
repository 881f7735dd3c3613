#include "mappicture.h"

#include <base/wholefile.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <qwt_plot.h>
#include <qwt_plot_renderer.h>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MapCanvas)
};

constexpr int Resolution = 72;    // dots an inch of documents: those of a point
constexpr QSize Points(600, 420); // of a picture

} // namespace

void MapPicture::paint(QPaintDevice &device, const QSizeF &size) const {
  constexpr double Margin = 0.025; // of the width: numbers at the ends of axes reach beyond them
  const double margin = Margin * size.width();
  QwtPlotRenderer renderer;
  renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
  QPainter painter(&device);
  m_onWhite([&] { renderer.render(&m_map, &painter, QRectF(QPointF(), size).adjusted(margin, margin, -margin, -margin)); });
}

QImage MapPicture::image() const {
  constexpr int Scale = 3; // pixels a point
  QImage picture(Points * Scale, QImage::Format_RGB32);
  picture.fill(Qt::white);
  constexpr double InchesPerMetre = 1000.0 / 25.4;
  picture.setDotsPerMeterX(static_cast<int>(InchesPerMetre * Resolution * Scale));
  picture.setDotsPerMeterY(static_cast<int>(InchesPerMetre * Resolution * Scale));
  paint(picture, picture.size());
  return picture;
}

bool MapPicture::write(QIODevice &device, const QString &suffix, QString *reason) const {
  if (suffix == QLatin1String("pdf")) {
    QPdfWriter writer(&device);
    writer.setPageSize(QPageSize(QSizeF(Points), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(Resolution);
    paint(writer, Points);
    return true;
  }
  if (suffix == QLatin1String("svg")) {
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setResolution(Resolution);
    generator.setSize(Points);
    generator.setViewBox(QRect(QPoint(), Points));
    paint(generator, Points);
    return true;
  }
  if (image().save(&device, qPrintable(suffix)))
    return true;
  *reason = Texts::tr("pictures of the kind \"%1\" are not known").arg(suffix);
  return false;
}

bool MapPicture::save(const QString &path, QString *reason) const {
  const QString suffix = QFileInfo(path).suffix().toLower();
  return WholeFile::write(
      path, FileAccess::Source::Trusted, [&](QIODevice &device, QString *fault) { return write(device, suffix, fault); },
      reason);
}
