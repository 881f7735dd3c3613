#include "canvas/qwtfastplot.h"
#include "export/documentrenderer.h"

#include <base/wholefile.h>
#include <view/netplot.h>
#include <view/plotexport.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QSvgGenerator>
#include <QTemporaryDir>

#include <cmath>

namespace {

constexpr int DocumentDpi = 85;

QString tr(const char *text) {
  return QCoreApplication::translate("PlotExport", text);
}

/// Gives the plot another size for as long as it lives.
class TemporarySize {
public:
  TemporarySize(NetPlot &plot, const PictureSize &size)
      : m_plot(plot)
      , m_before(plot.geometry())
      , m_smallest(plot.minimumSize()) {
    const int width = static_cast<int>(std::lround(size.width / size.scale));
    const int height = size.height > 0 ? static_cast<int>(std::lround(size.height / size.scale))
                                       : static_cast<int>(qint64(m_before.height()) * width / qMax(m_before.width(), 1));
    m_plot.setMinimumSize(0, 0); // a picture may be smaller than the widget
    m_plot.setGeometry(m_before.x(), m_before.y(), width, qMax(height, 1));
  }
  ~TemporarySize() {
    m_plot.setMinimumSize(m_smallest);
    m_plot.setGeometry(m_before);
  }
  TemporarySize(const TemporarySize &) = delete;
  TemporarySize &operator=(const TemporarySize &) = delete;

private:
  NetPlot &m_plot;
  QRect m_before;
  QSize m_smallest;
};

/// The canvas would first paint into a store as large as the picture; where there is no memory for that, it paints nothing
/// and says nothing.
class WithoutStore {
public:
  explicit WithoutStore(NetPlot &plot)
      : m_canvas(qobject_cast<QwtPlotCanvas *>(plot.plot()->canvas())) {
    if (m_canvas != nullptr)
      m_canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
  }
  ~WithoutStore() {
    if (m_canvas != nullptr)
      m_canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, true);
  }
  WithoutStore(const WithoutStore &) = delete;
  WithoutStore &operator=(const WithoutStore &) = delete;

private:
  QwtPlotCanvas *m_canvas;
};

/// The first rendering brings layout and scales to the new size, so that the next one is as the screen would show it.
/// Labels that stood before are placed again.
void layOut(NetPlot &plot, bool hasLabels) {
  QImage scrap(1, 1, QImage::Format_RGB32);
  plot.render(&scrap);
  plot.update().updatePlot();
  if (hasLabels)
    plot.update().placeLabelsNow();
  else
    plot.update().requestPixtest(-1);
}

/// Documents do not show what lies over the canvas of the screen, so the plot draws the selection itself.
class SelectionInDocument {
public:
  explicit SelectionInDocument(NetPlot &plot)
      : m_plot(plot) {
    m_plot.selection().setVisible(true);
  }
  ~SelectionInDocument() { m_plot.selection().setVisible(false); }
  SelectionInDocument(const SelectionInDocument &) = delete;
  SelectionInDocument &operator=(const SelectionInDocument &) = delete;

private:
  NetPlot &m_plot;
};

bool writePixels(NetPlot &plot, double scale, QIODevice &device, const QByteArray &format, QString &reason) {
  QImage image((QSizeF(plot.size()) * scale).toSize(), QImage::Format_RGB32);
  if (image.isNull()) {
    reason = tr("there is not enough memory for a picture of this width");
    return false;
  }
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  plot.render(&image);
  QImageWriter writer(&device, format);
  constexpr int Quality = 92; // of JPEG
  if (format == "jpg" || format == "jpeg")
    writer.setQuality(Quality);
  if (writer.write(image))
    return true;
  reason = writer.errorString();
  return false;
}

void renderDocument(NetPlot &plot, double scale, QPaintDevice &document) {
  const SelectionInDocument selection(plot);
  QPainter painter(&document);
  painter.scale(scale, scale);
  DocumentRenderer().render(plot.plot(), &painter, QRectF(QPointF(), QSizeF(document.width(), document.height()) / scale));
}

bool writeSvg(NetPlot &plot, double scale, QIODevice &device) {
  const QSize size = (QSizeF(plot.plot()->size()) * scale).toSize();
  QSvgGenerator generator;
  generator.setOutputDevice(&device);
  generator.setResolution(DocumentDpi);
  generator.setSize(size);
  generator.setViewBox(QRect(QPoint(), size));
  renderDocument(plot, scale, generator);
  return true;
}

bool writePdf(NetPlot &plot, double scale, QIODevice &device) {
  constexpr double MillimetersPerInch = 25.4;
  QPdfWriter writer(&device);
  writer.setResolution(DocumentDpi);
  writer.setPageSize(
      QPageSize(QSizeF(plot.plot()->size()) * scale * MillimetersPerInch / DocumentDpi, QPageSize::Millimeter));
  writer.setPageMargins(QMarginsF());
  renderDocument(plot, scale, writer);
  return true;
}

/// By way of PDF and a tool that is likely to be there: the toolkit no longer writes PostScript.
bool writePostScript(NetPlot &plot, double scale, QIODevice &device, QString &reason) {
  const QTemporaryDir folder;
  const QString source = folder.filePath(QStringLiteral("plot.pdf"));
  const QString target = folder.filePath(QStringLiteral("plot.ps"));
  const QString poppler = QStandardPaths::findExecutable(QStringLiteral("pdftops"));
  const QString ghostscript = QStandardPaths::findExecutable(QStringLiteral("gs"));
  if (poppler.isEmpty() && ghostscript.isEmpty()) {
    reason = tr("PostScript needs the tool pdftops (Poppler) or gs (Ghostscript), and neither is installed");
    return false;
  }
  QFile document(source);
  if (!document.open(QIODevice::WriteOnly) || !writePdf(plot, scale, document)) {
    reason = document.errorString();
    return false;
  }
  document.close();
  constexpr int PatienceMs = 120000;
  QProcess tool;
  if (!poppler.isEmpty())
    tool.start(poppler, {source, target});
  else
    tool.start(ghostscript, {QStringLiteral("-q"), QStringLiteral("-dNOPAUSE"), QStringLiteral("-dBATCH"),
                             QStringLiteral("-sDEVICE=ps2write"), QStringLiteral("-sOutputFile=") + target, source});
  QFile converted(target);
  if (!tool.waitForFinished(PatienceMs) || tool.exitCode() != 0 || !converted.open(QIODevice::ReadOnly)) {
    reason = tr("the conversion to PostScript failed: %1").arg(QString::fromLocal8Bit(tool.readAllStandardError()));
    return false;
  }
  const QByteArray text = converted.readAll();
  return device.write(text) == text.size();
}

bool writeFormat(NetPlot &plot, double scale, QIODevice &device, const QByteArray &format, QString &reason) {
  if (format == "svg")
    return writeSvg(plot, scale, device);
  if (format == "pdf")
    return writePdf(plot, scale, device);
  if (format == "ps")
    return writePostScript(plot, scale, device, reason);
  return writePixels(plot, scale, device, format, reason);
}

/// Why there can be no such picture; empty when there can.
QString faultOf(const QByteArray &format, const PictureSize &size) {
  static const QList<QByteArray> Documents{"svg", "pdf", "ps"};
  if (const QList<QByteArray> pixels = QImageWriter::supportedImageFormats();
      !Documents.contains(format) && !pixels.contains(format))
    return tr("\"%1\" is no format of pictures; there are %2")
        .arg(QString::fromLatin1(format), QString::fromLatin1((Documents + pixels).join(", ")));
  if (size.width <= 0)
    return tr("a picture needs a width");
  if (!(size.scale > 0.0 && size.scale <= PictureSize::LargestScale && size.width / size.scale >= 1.0))
    return tr("a picture of %1 pixels cannot have the scale %2").arg(size.width).arg(size.scale);
  return QString();
}

} // namespace

bool exportPlot(NetPlot &plot, const QString &path, const PictureSize &size, QString *error) {
  const QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
  QString reason = faultOf(format, size);
  bool isDone = false;
  if (reason.isEmpty()) {
    const bool hasLabels = !plot.update().labels().empty();
    plot.selection().setHovered(std::nullopt);
    {
      const WithoutStore direct(plot);
      const TemporarySize temporary(plot, size);
      layOut(plot, hasLabels);
      // The plot lies on whole pixels of its own; the picture has the width that was asked for all the same.
      const double scale = static_cast<double>(size.width) / plot.width();
      isDone = WholeFile::write(
          path, FileAccess::Source::Trusted,
          [&](QIODevice &device, QString *why) { return writeFormat(plot, scale, device, format, *why); }, &reason);
    }
    layOut(plot, hasLabels);
  } else {
    reason = tr("Could not write %1: %2").arg(path, reason);
  }
  if (!isDone && error != nullptr)
    *error = reason;
  return isDone;
}
