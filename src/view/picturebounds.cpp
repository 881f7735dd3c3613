#include "picturebounds.h"

#include <QCoreApplication>
#include <QImageReader>
#include <QList>

QByteArray PictureBounds::format(QIODevice &device) {
  static const QList<QByteArray> Allowed{"png", "jpeg", "jpg", "gif", "bmp", "webp", "tiff", "tif"};
  if (!device.isOpen() && !device.open(QIODevice::ReadOnly))
    return QByteArray();
  const QByteArray format = QImageReader::imageFormat(&device);
  return Allowed.contains(format) ? format : QByteArray();
}

QString PictureBounds::fault(QIODevice &device) {
  constexpr qint64 MostPixels = 100000000;
  const QByteArray kind = format(device);
  if (kind.isEmpty())
    return QCoreApplication::translate("PictureBounds", "it is no picture of a known format");
  const QSize size = QImageReader(&device, kind).size();
  device.seek(0);
  if (!size.isValid() || qint64(size.width()) * size.height() > MostPixels)
    return QCoreApplication::translate("PictureBounds", "it has too many pixels");
  return QString();
}
