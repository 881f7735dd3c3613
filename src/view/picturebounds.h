#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

/// What pictures of pixels may ask for: formats whose readers are their own and not those of a document, and a bearable
/// size.
namespace PictureBounds {

/// The picture's format as QImageReader names it, told by its content and not by a name; empty when none is allowed.
QByteArray format(QIODevice &device);

/// Why the picture may not be read, for a person to read; empty when it may. The device is at its beginning afterwards.
QString fault(QIODevice &device);

} // namespace PictureBounds
