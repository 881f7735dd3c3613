#pragma once

#include <QCoreApplication>

class NetPlot;
class QIODevice;
class QPaintDevice;

/// Writes a plot, which has the size of the picture already, in each of the formats.
class PictureWriter {
  Q_DECLARE_TR_FUNCTIONS(PlotExport)
public:
  /// \param scale pixels of the picture for one of the plot
  PictureWriter(NetPlot &plot, double scale)
      : m_plot(plot)
      , m_scale(scale) {}

  /// Why there can be no picture of the format; empty when there can.
  static QString fault(const QByteArray &format);
  bool write(QIODevice &device, const QByteArray &format, QString &reason) const;

private:
  bool writePixels(QIODevice &device, const QByteArray &format, QString &reason) const;
  void writeSvg(QIODevice &device) const;
  void writePdf(QIODevice &device) const;
  /// By way of PDF and a tool that is likely to be there: the toolkit no longer writes PostScript.
  bool writePostScript(QIODevice &device, QString &reason) const;
  void renderDocument(QPaintDevice &document) const;

  NetPlot &m_plot;
  double m_scale;
};
