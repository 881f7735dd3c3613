#include <view/netplot.h>
#include <view/plotexport.h>
#include <view/qwtfastplot.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QSvgGenerator>
#include <QTemporaryDir>
#include <qwt_plot_renderer.h>

namespace {

constexpr int DocumentDpi = 85;

QString tr(const char *text) {
  return QCoreApplication::translate("PlotExport", text);
}

/// Gives the plot another size for as long as it lives.
class TemporarySize {
public:
  TemporarySize(NetPlot &plot, int width)
      : m_plot(plot)
      , m_before(plot.geometry())
      , m_smallest(plot.minimumSize()) {
    const int height = static_cast<int>(qint64(m_before.height()) * width / qMax(m_before.width(), 1));
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
  plot.update().updatePlot(false, NetUpdate::Which::EdgesAndNodes, false);
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

bool writePixels(NetPlot &plot, QIODevice &device, const QByteArray &format, QString &reason) {
  QImage image(plot.size(), QImage::Format_RGB32);
  if (image.isNull()) {
    reason = tr("there is not enough memory for a picture of this width");
    return false;
  }
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

QSizeF pageSize(NetPlot &plot) {
  constexpr double MillimetersPerInch = 25.4;
  return QSizeF(plot.plot()->size()) * MillimetersPerInch / DocumentDpi;
}

bool writeSvg(NetPlot &plot, QIODevice &device) {
  const SelectionInDocument selection(plot);
  QSvgGenerator generator;
  generator.setOutputDevice(&device);
  generator.setResolution(DocumentDpi);
  generator.setSize(plot.plot()->size());
  generator.setViewBox(QRect(QPoint(), plot.plot()->size()));
  QwtPlotRenderer().renderTo(plot.plot(), generator);
  return true;
}

bool writePdf(NetPlot &plot, QIODevice &device) {
  const SelectionInDocument selection(plot);
  QPdfWriter writer(&device);
  writer.setResolution(DocumentDpi);
  writer.setPageSize(QPageSize(pageSize(plot), QPageSize::Millimeter));
  writer.setPageMargins(QMarginsF());
  QwtPlotRenderer().renderTo(plot.plot(), writer);
  return true;
}

/// By way of PDF and a tool that is likely to be there: the toolkit no longer writes PostScript.
bool writePostScript(NetPlot &plot, QIODevice &device, QString &reason) {
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
  if (!document.open(QIODevice::WriteOnly) || !writePdf(plot, document)) {
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

bool writeFormat(NetPlot &plot, QIODevice &device, const QByteArray &format, QString &reason) {
  if (format == "svg")
    return writeSvg(plot, device);
  if (format == "pdf")
    return writePdf(plot, device);
  if (format == "ps")
    return writePostScript(plot, device, reason);
  return writePixels(plot, device, format, reason);
}

} // namespace

bool exportPlot(NetPlot &plot, const QString &path, int width, QString *error) {
  static const QList<QByteArray> Formats{"png", "jpg", "jpeg", "bmp", "tif", "tiff", "svg", "pdf", "ps"};
  const QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
  QString reason;
  bool isDone = false;
  if (!Formats.contains(format)) {
    reason = tr("\"%1\" is no format of pictures; there are png, jpg, bmp, tif, svg, pdf and ps")
                 .arg(QString::fromLatin1(format));
  } else if (width <= 0) {
    reason = tr("a picture needs a width");
  } else {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
      const bool hasLabels = !plot.update().labels().empty();
      plot.selection().setHovered(std::nullopt);
      {
        const WithoutStore direct(plot);
        const TemporarySize size(plot, width);
        layOut(plot, hasLabels);
        isDone = writeFormat(plot, file, format, reason) && file.error() == QFile::NoError && file.commit();
      }
      layOut(plot, hasLabels);
    }
    if (!isDone && (reason.isEmpty() || file.error() != QFile::NoError))
      reason = file.errorString(); // says more than the writer of the format, such as that the disk is full
  }
  if (!isDone && error != nullptr)
    *error = tr("Could not write %1: %2").arg(path, reason);
  return isDone;
}
