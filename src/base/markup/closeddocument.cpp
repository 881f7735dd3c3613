#include <markup/closeddocument.h>

#include <QImage>
#include <QUrl>

QVariant ClosedDocument::loadResource(int type, const QUrl &) {
  if (type != ImageResource)
    return QByteArray("");
  QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
  nothing.fill(Qt::transparent);
  return nothing;
}
