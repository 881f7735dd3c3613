#pragma once

#include <base/fileaccess.h>

#include <QByteArray>
#include <QImage>
#include <QString>

/// Pictures from files that somebody else wrote: what they ask for is bounded, and nothing else is read or fetched.
namespace PictureFile {

/// The text of an SVG file; empty with the reason when it is no regular file, too large, refers to anything outside of
/// itself, or would take too long to draw.
QByteArray readSvg(const QString &path, FileAccess::Source source, QString *error = nullptr);

/// Any picture of a workspace, also SVG, at most as large as a screen; a null image with the reason when it cannot be read.
/// What a file holds is told by its content: only a file named ".svg" may hold SVG.
QImage readImage(const QString &path, QString *error = nullptr);

} // namespace PictureFile
