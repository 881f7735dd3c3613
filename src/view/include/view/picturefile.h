#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// Pictures from files that somebody else wrote: what they ask for is bounded, and nothing else is read or fetched.
namespace PictureFile {

/// The text of an SVG file; empty with the reason when it is no plain file, too large, or refers to anything outside of
/// itself.
QByteArray readSvg(const QString &path, QString *error = nullptr);

/// Any picture, also SVG, at most as large as a screen; a null image with the reason when it cannot be read.
QImage readImage(const QString &path, QString *error = nullptr);

} // namespace PictureFile
