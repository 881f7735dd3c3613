#include "batchtask.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <cmath>

QString BatchTask::Picture::setWidth(double pixels) {
  if (!(pixels >= 1.0) || pixels != std::floor(pixels))
    return tr("the width is a positive number of pixels");
  width = static_cast<int>(std::min<double>(pixels, LargestWidth));
  return QString();
}

QString BatchTask::Picture::setScale(double factor) {
  if (!(factor >= SmallestScale && factor <= LargestScale))
    return tr("the scale is a number from %1 to %2").arg(SmallestScale).arg(LargestScale);
  scale = factor;
  return QString();
}

QString BatchTask::Picture::setLabels(const QString &word) {
  static const QHash<QString, QString> modes{{QStringLiteral("none"), QStringLiteral("no label")},
                                             {QStringLiteral("name"), QStringLiteral("name only")},
                                             {QStringLiteral("selected"), QStringLiteral("selected properties")}};
  labels = modes.value(word);
  return labels.isEmpty() ? tr("labels are none, name or selected") : QString();
}

QString BatchTask::Picture::setExtent(const QVector<double> &corners) {
  constexpr double Farthest = 1e20; // as coordinates of elements
  const bool areNumbers = std::all_of(corners.begin(), corners.end(), [](double x) { return std::abs(x) < Farthest; });
  if (areNumbers && corners.size() == 4)
    extent = QRectF(QPointF(corners[0], corners[1]), QPointF(corners[2], corners[3])).normalized();
  return extent.width() > 0.0 && extent.height() > 0.0 ? QString()
                                                       : tr("the extent is four numbers, x0,y0,x1,y1, that span an area");
}

bool BatchTask::Picture::isStyleFile(const QString &style) {
  return style.endsWith(QLatin1String(".ini"), Qt::CaseInsensitive) ||
         style.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

QString BatchTask::Picture::addStyle(const QString &file) {
  constexpr int LongestSuffix = 4; // of other files; what follows a dot in a name is longer or has a blank
  const QString suffix = QFileInfo(file).suffix();
  const bool isOfAFile = !suffix.isEmpty() && suffix.size() <= LongestSuffix && !suffix.contains(QLatin1Char(' '));
  const bool isName = !file.trimmed().isEmpty() && !file.contains(QLatin1Char('/')) && !isOfAFile;
  if (!isName && !isStyleFile(file))
    return tr("a style is the name of one, a file of plot settings (.ini) or a label table (.csv)");
  styles.append(file);
  return QString();
}
