#include "symbols/picturebounds.h"

#include <QCoreApplication>
#include <QImageReader>
#include <QList>

QByteArray PictureBounds::format(QIODevice &device, QString *reason) {
  static const QList<QByteArray> Allowed{"png", "jpeg", "jpg", "gif", "bmp", "webp", "tiff", "tif"};
  constexpr qint64 MostPixels = 100000000;
  if (!device.isOpen() && !device.open(QIODevice::ReadOnly)) {
    *reason = device.errorString();
    return QByteArray();
  }
  QByteArray format = QImageReader::imageFormat(&device);
  if (!Allowed.contains(format)) {
    *reason = QCoreApplication::translate("PictureBounds", "it is no picture of a known format");
    return QByteArray();
  }
  const QSize size = QImageReader(&device, format).size();
  device.seek(0);
  if (size.isValid() && qint64(size.width()) * size.height() <= MostPixels)
    return format;
  *reason = QCoreApplication::translate("PictureBounds", "it has too many pixels");
  return QByteArray();
}
