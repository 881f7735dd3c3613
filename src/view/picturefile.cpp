#include <view/picturefile.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("PictureFile", text);
}

bool fail(QString *error, const QString &reason) {
  if (error != nullptr)
    *error = reason;
  return false;
}

/// A file of a bearable size; directories, pipes and devices are none.
bool isPlain(const QString &path, qint64 largest, QString *error) {
  const QFileInfo info(path);
  if (!info.isFile())
    return fail(error, info.exists() ? tr("it is no file") : tr("there is no such file"));
  if (info.size() > largest)
    return fail(error, tr("it is larger than %1 MB").arg(largest >> 20));
  return true;
}

bool isOutside(const QStringRef &reference) {
  const QStringRef place = reference.trimmed();
  return !place.isEmpty() && !place.startsWith(QLatin1Char('#')) && !place.startsWith(QLatin1String("data:"));
}

bool namesOutside(const QStringRef &text) {
  for (int i = text.indexOf(QLatin1String("url(")); i >= 0; i = text.indexOf(QLatin1String("url("), i + 1)) {
    QStringRef place = text.mid(i + 4).trimmed();
    if (place.startsWith(QLatin1Char('\'')) || place.startsWith(QLatin1Char('"')))
      place = place.mid(1);
    if (isOutside(place))
      return true;
  }
  return text.contains(QLatin1String("@import"));
}

/// Walks through the text before anything is drawn of it.
bool isSelfContained(const QByteArray &svg, QString *error) {
  constexpr int DeepestNesting = 100;
  QXmlStreamReader reader(svg);
  int depth = 0;
  while (!reader.atEnd()) {
    switch (reader.readNext()) {
    case QXmlStreamReader::DTD:
      if (!reader.entityDeclarations().isEmpty())
        return fail(error, tr("it declares entities"));
      break;
    case QXmlStreamReader::StartElement:
      if (++depth > DeepestNesting)
        return fail(error, tr("it is nested too deeply"));
      for (const QXmlStreamAttribute &attribute : reader.attributes()) {
        if (attribute.name() == QLatin1String("href") ? isOutside(attribute.value()) : namesOutside(attribute.value()))
          return fail(error, tr("it refers to %1").arg(attribute.value().left(100).toString()));
      }
      break;
    case QXmlStreamReader::EndElement:
      --depth;
      break;
    case QXmlStreamReader::Characters:
      if (namesOutside(reader.text()))
        return fail(error, tr("its style refers to other files"));
      break;
    default:
      break;
    }
  }
  return !reader.hasError() || fail(error, tr("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString()));
}

} // namespace

QByteArray PictureFile::readSvg(const QString &path, QString *error) {
  constexpr qint64 Largest = 2 << 20;
  if (!isPlain(path, Largest, error))
    return QByteArray();
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    fail(error, file.errorString());
    return QByteArray();
  }
  QByteArray text = file.readAll();
  return isSelfContained(text, error) ? text : QByteArray();
}

QImage PictureFile::readImage(const QString &path, QString *error) {
  constexpr qint64 Largest = 32 << 20;
  constexpr int Side = 1024; // px: nobody looks at larger figures
  if (path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
    const QByteArray text = readSvg(path, error);
    if (text.isEmpty())
      return QImage();
    QSvgRenderer renderer(text);
    if (!renderer.isValid() || renderer.defaultSize().isEmpty()) {
      fail(error, tr("it shows nothing"));
      return QImage();
    }
    QImage picture(renderer.defaultSize().scaled(Side, Side, Qt::KeepAspectRatio), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter);
    return picture;
  }
  if (!isPlain(path, Largest, error))
    return QImage();
  QImageReader reader(path);
  reader.setAutoTransform(true);
  constexpr qint64 MostPixels = 100000000;
  const QSize size = reader.size();
  if (qint64(size.width()) * size.height() > MostPixels) {
    fail(error, tr("it has too many pixels"));
    return QImage();
  }
  if (size.width() > Side || size.height() > Side)
    reader.setScaledSize(size.scaled(Side, Side, Qt::KeepAspectRatio));
  QImage picture = reader.read();
  if (picture.isNull())
    fail(error, reader.errorString());
  return picture;
}
