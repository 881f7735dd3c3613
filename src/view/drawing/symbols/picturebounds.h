#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

/// What pictures of pixels may ask for: formats whose readers are their own and not those of a document, and a bearable
/// size.
namespace PictureBounds {

/// The picture's format as QImageReader names it, told by its content and not by a name; empty, with the reason for a person
/// to read, when it may not be read. The device is at its beginning afterwards.
QByteArray format(QIODevice &device, QString *reason);

} // namespace PictureBounds
