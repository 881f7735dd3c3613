#include "symbols/picturefile.h"

#include "symbols/picturebounds.h"
#include "symbols/svgguard.h"

#include <base/fileaccess.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr qint64 LargestSvg = qint64(2) << 20;
constexpr qint64 LargestPicture = qint64(32) << 20;
constexpr int Side = 1024; // px: nobody looks at larger figures

bool fail(QString *error, const QString &reason) {
  if (error != nullptr)
    *error = reason;
  return false;
}

QByteArray content(const QString &path, FileAccess::Source source, qint64 largest, QString *error) {
  QString reason;
  const auto read = FileAccess::readWhole(path, source, largest, &reason);
  if (!read)
    fail(error, reason);
  return read.value_or(QByteArray());
}

QImage drawn(const QByteArray &svg, QString *error) {
  QSvgRenderer renderer(svg);
  if (!renderer.isValid() || renderer.defaultSize().isEmpty()) {
    fail(error, QCoreApplication::translate("PictureFile", "it shows nothing"));
    return QImage();
  }
  QImage picture(renderer.defaultSize().scaled(Side, Side, Qt::KeepAspectRatio), QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  renderer.render(&painter);
  return picture;
}

QImage pixels(QByteArray data, QString *error) {
  QBuffer buffer(&data);
  QString fault;
  const QByteArray format = PictureBounds::format(buffer, &fault);
  if (format.isEmpty()) {
    fail(error, fault);
    return QImage();
  }
  QImageReader reader(&buffer, format);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.width() > Side || size.height() > Side)
    reader.setScaledSize(size.scaled(Side, Side, Qt::KeepAspectRatio));
  QImage picture = reader.read();
  if (picture.isNull())
    fail(error, reader.errorString());
  return picture;
}

} // namespace

QByteArray PictureFile::readSvg(const QString &path, FileAccess::Source source, QString *error) {
  QByteArray text = content(path, source, LargestSvg, error);
  if (text.isEmpty())
    return text;
  const QString fault = SvgGuard::fault(text);
  return fault.isEmpty() || fail(error, fault) ? text : QByteArray();
}

QImage PictureFile::readImage(const QString &path, QString *error) {
  if (path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
    const QByteArray text = readSvg(path, FileAccess::Source::Workspace, error);
    return text.isEmpty() ? QImage() : drawn(text, error);
  }
  const QByteArray data = content(path, FileAccess::Source::Workspace, LargestPicture, error);
  return data.isEmpty() ? QImage() : pixels(data, error);
}
