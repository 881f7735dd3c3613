#pragma once

#include <QString>

class NetPlot;

/// Saving the drawing as a person does it: asks for width and file, warns of large files, says what went wrong.
class PlotSaver {
public:
  static constexpr int LargestWidth = 20000; ///< px

  explicit PlotSaver(NetPlot &plot)
      : m_plot(plot) {}

  static int possibleWidth(int width) { return width < LargestWidth ? width : LargestWidth; }

  /// Asks for the width of the picture, then for its file.
  void saveWithWidth();
  /// At the width given, which is reported and nothing done when it is not positive.
  void saveWithWidth(int width);
  /// At the present width. Blank names do nothing.
  /// \param path empty when a dialog asks for it
  /// \param reducedPath a second picture of 30 % of the size, none when empty
  void savePlot(const QString &path, const QString &reducedPath, bool asksForFile);

private:
  static QString askForFile(QWidget *parent);
  static bool mayBeLarge(const QString &path);
  bool save(const QString &path, int width);

  NetPlot &m_plot;
};
