#pragma once

#include <view/plotexport.h>

#include <QCoreApplication>

class NetPlot;
class QWidget;

/// Saving the drawing as a person does it: asks for width and file, warns of large files, says what went wrong.
class PlotSaver {
  Q_DECLARE_TR_FUNCTIONS(PlotSaver)
public:
  static constexpr int LargestWidth = 20000; ///< px

  explicit PlotSaver(NetPlot &plot)
      : m_plot(plot) {}

  static int possibleWidth(int width) { return width < LargestWidth ? width : LargestWidth; }

  /// Asks for the width of the picture and the scale of what it shows, then for its file.
  void saveWithWidth();
  /// At the size given; a width that is not positive is reported and nothing done.
  void saveWithWidth(PictureSize size);
  /// At the present width. Blank names do nothing.
  /// \param path empty when a dialog asks for it
  /// \param reducedPath a second picture of 30 % of width and height, none when empty; written whatever became of the first
  void savePlot(const QString &path, const QString &reducedPath, bool asksForFile);

private:
  static QString askForFile(QWidget *parent);
  static bool mayBeLarge(const QString &path);
  bool save(const QString &path, const PictureSize &size);

  NetPlot &m_plot;
};
