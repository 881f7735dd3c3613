#pragma once

#include <QImage>
#include <QSize>
#include <QStringList>

/// Small pictures of workspaces in the cache folder of the user, each a PNG file that is called after the workspace.
namespace Thumbnails {

constexpr QSize Size(448, 280); ///< px: two for each of the cards, for screens that have so many

QString folder();
QString fileOf(const QString &workspace);
/// Null when there is none, or none that can be read.
QImage read(const QString &workspace);
/// The picture is centred on its own background. What cannot be written is logged: a picture more or less is no trouble.
void write(const QString &workspace, const QImage &picture);
/// Removes the pictures of all others.
void keepOnly(const QStringList &workspaces);

} // namespace Thumbnails
