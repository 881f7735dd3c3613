#pragma once

#include <QCoreApplication>

class NetPlot;

/// How large a picture becomes.
struct PictureSize {
  Q_DECLARE_TR_FUNCTIONS(PlotExport)
public:
  static constexpr double LargestScale = 20.0;

  // NOLINTNEXTLINE(google-explicit-constructor): a width alone is a size
  PictureSize(int widthOfPicture, double scaleOfMarks = 1.0)
      : width(widthOfPicture)
      , scale(scaleOfMarks) {}

  /// Why no picture can have the size; empty when one can.
  QString fault() const;

  int width;      ///< px
  int height = 0; ///< px; 0 to follow the shape of the plot
  double scale;   ///< of texts, lines and symbols against those on the screen: 2 for a picture that is printed half as large
};

/// Writes the drawing with its colour scale and legend; the suffix gives the format: png, jpg, bmp, tif and what else
/// the toolkit writes as pixels, svg, pdf and ps as documents (ps by a tool for it that is installed). The plot is brought
/// to the size for the picture and back afterwards. The file is written whole or stays as it was; false with the reason when
/// it could not be written.
bool exportPlot(NetPlot &plot, const QString &path, const PictureSize &size, QString *error = nullptr);
