#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

#include <functional>

class QWidget;

/// Charts as files and pictures: PDF and SVG of lines and texts, or pixels in three times the resolution of a screen.
namespace ChartFile {

/// Fills the area, which is in dots of the painter's device, as on white paper.
using Paint = std::function<void(QPainter &painter, const QRectF &area)>;

/// \param points size of the picture, 72 to the inch
QImage picture(const QSize &points, const Paint &paint);
/// Into which file a picture goes: one without a suffix becomes a PNG. Empty when nobody wants it.
QString askForPath(QWidget *parent, const QString &proposed);
/// The format by the suffix. False with the reason. \param path one that the user chose
bool save(const QString &path, const QSize &points, const Paint &paint, QString *reason);

} // namespace ChartFile
