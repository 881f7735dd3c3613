#include "thumbnails.h"

#include <base/fileaccess.h>
#include <base/nivramsg.h>
#include <base/wholefile.h>

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QPainter>
#include <QStandardPaths>

namespace {

constexpr qint64 LargestFile = qint64(1) << 20;

QImage onBackground(const QImage &picture) {
  QImage card(Thumbnails::Size, QImage::Format_RGB32);
  card.fill(picture.pixel(0, 0));
  const QImage scaled = picture.scaled(Thumbnails::Size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  QPainter(&card).drawImage((card.width() - scaled.width()) / 2, (card.height() - scaled.height()) / 2, scaled);
  return card;
}

} // namespace

QString Thumbnails::folder() {
  return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/thumbnails");
}

QString Thumbnails::fileOf(const QString &workspace) {
  const QByteArray hash = QCryptographicHash::hash(workspace.toUtf8(), QCryptographicHash::Sha1).toHex();
  return QStringLiteral("%1/%2.png").arg(folder(), QString::fromLatin1(hash));
}

QImage Thumbnails::read(const QString &workspace) {
  const auto bytes = FileAccess::readWhole(fileOf(workspace), FileAccess::Source::Trusted, LargestFile, nullptr);
  const QImage picture = bytes ? QImage::fromData(*bytes, "PNG") : QImage();
  return picture.size() == Size ? picture : QImage();
}

void Thumbnails::write(const QString &workspace, const QImage &picture) {
  if (picture.isNull())
    return;
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  onBackground(picture).save(&buffer, "PNG");
  QDir().mkpath(folder());
  QString reason;
  if (!WholeFile::write(fileOf(workspace), FileAccess::Source::Trusted, bytes, &reason))
    NivraMsg::log(reason);
}

void Thumbnails::keepOnly(const QStringList &workspaces) {
  QStringList kept;
  for (const QString &workspace : workspaces)
    kept.append(QFileInfo(fileOf(workspace)).fileName());
  QDir cache(folder());
  for (const QString &name : cache.entryList({QStringLiteral("*.png")}, QDir::Files)) {
    if (!kept.contains(name))
      cache.remove(name);
  }
}
