#include <base/lastfolder.h>
#include <base/wholefile.h>
#include <paper/chartfile.h>
#include <paper/pagesetup.h>

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace {

constexpr int Resolution = 72; // dots an inch of documents: those of a point

void paintOn(QPaintDevice &device, const QSize &size, const ChartFile::Paint &paint) {
  constexpr double Margin = 0.025; // of the width: numbers at the ends of axes reach beyond them
  const double margin = Margin * size.width();
  QPainter painter(&device);
  paint(painter, QRectF(QPointF(), size).adjusted(margin, margin, -margin, -margin));
}

bool write(QIODevice &device, const QString &suffix, const QSize &points, const ChartFile::Paint &paint, QString *reason) {
  if (suffix == QLatin1String("pdf")) {
    QPdfWriter writer(&device);
    writer.setPageSize(QPageSize(QSizeF(points), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(Resolution);
    paintOn(writer, points, paint);
    return true;
  }
  if (suffix == QLatin1String("svg")) {
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setResolution(Resolution);
    generator.setSize(points);
    generator.setViewBox(QRect(QPoint(), points));
    paintOn(generator, points, paint);
    return true;
  }
  if (ChartFile::picture(points, paint).save(&device, qPrintable(suffix)))
    return true;
  *reason = QCoreApplication::translate("ChartFile", "pictures of the kind \"%1\" are not known").arg(suffix);
  return false;
}

} // namespace

QImage ChartFile::picture(const QSize &points, const Paint &paint) {
  constexpr int Scale = 3; // pixels a point
  constexpr double InchesPerMetre = 1000.0 / PageSetup::MillimetersPerInch;
  QImage image(points * Scale, QImage::Format_RGB32);
  image.fill(Qt::white);
  image.setDotsPerMeterX(static_cast<int>(InchesPerMetre * Resolution * Scale));
  image.setDotsPerMeterY(static_cast<int>(InchesPerMetre * Resolution * Scale));
  paintOn(image, image.size(), paint);
  return image;
}

QString ChartFile::askForPath(QWidget *parent, const QString &proposed) {
  LastFolder &folder = LastFolder::ofSaving();
  QString path =
      QFileDialog::getSaveFileName(parent, QCoreApplication::translate("ChartFile", "Save picture"), folder.with(proposed),
                                   QCoreApplication::translate("ChartFile", "Pictures (*.png *.jpg *.pdf *.svg)"));
  if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty())
    path += QStringLiteral(".png");
  folder.remember(path);
  return path;
}

bool ChartFile::save(const QString &path, const QSize &points, const Paint &paint, QString *reason) {
  const QString suffix = QFileInfo(path).suffix().toLower();
  return WholeFile::write(
      path, FileAccess::Source::Trusted,
      [&](QIODevice &device, QString *fault) { return write(device, suffix, points, paint, fault); }, reason);
}
