#include "export/picturewriter.h"

#include "canvas/canvaslegend.h"
#include "canvas/qwtfastplot.h"
#include "export/documentrenderer.h"

#include <base/wholefile.h>
#include <view/netplot.h>

#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QSvgGenerator>
#include <QTemporaryDir>

namespace {

constexpr int DocumentDpi = 85;

/// Documents do not show what lies over the canvas of the screen, so the plot draws selection and legend itself.
class MarksInDocument {
public:
  explicit MarksInDocument(NetPlot &plot)
      : m_plot(plot) {
    show(true);
  }
  ~MarksInDocument() { show(false); }
  MarksInDocument(const MarksInDocument &) = delete;
  MarksInDocument &operator=(const MarksInDocument &) = delete;

private:
  void show(bool isShown) {
    m_plot.selection().setVisible(isShown);
    m_plot.canvasLegend().setIsInDocument(isShown);
  }

  NetPlot &m_plot;
};

} // namespace

QString PictureWriter::fault(const QByteArray &format) {
  static const QList<QByteArray> Documents{"svg", "pdf", "ps"};
  if (const QList<QByteArray> pixels = QImageWriter::supportedImageFormats();
      !Documents.contains(format) && !pixels.contains(format))
    return tr("\"%1\" is no format of pictures; there are %2")
        .arg(QString::fromLatin1(format), QString::fromLatin1((Documents + pixels).join(", ")));
  return QString();
}

bool PictureWriter::writePixels(QIODevice &device, const QByteArray &format, QString &reason) const {
  QImage image((QSizeF(m_plot.size()) * m_scale).toSize(), QImage::Format_RGB32);
  if (image.isNull()) {
    reason = tr("there is not enough memory for a picture of this width");
    return false;
  }
  image.setDevicePixelRatio(m_scale);
  image.fill(Qt::white);
  m_plot.render(&image);
  QImageWriter writer(&device, format);
  constexpr int Quality = 92; // of JPEG
  if (format == "jpg" || format == "jpeg")
    writer.setQuality(Quality);
  if (writer.write(image))
    return true;
  reason = writer.errorString();
  return false;
}

void PictureWriter::renderDocument(QPaintDevice &document) const {
  const MarksInDocument marks(m_plot);
  QPainter painter(&document);
  // A pixel of the plot is a dot of the document, as it is one of a picture of pixels. The renderer would rather keep
  // inches.
  const double scale = m_scale * m_plot.plot()->logicalDpiX() / document.logicalDpiX();
  painter.scale(scale, scale);
  DocumentRenderer().render(m_plot.plot(), &painter, QRectF(QPointF(), QSizeF(document.width(), document.height()) / scale));
}

void PictureWriter::writeSvg(QIODevice &device) const {
  const QSize size = (QSizeF(m_plot.plot()->size()) * m_scale).toSize();
  QSvgGenerator generator;
  generator.setOutputDevice(&device);
  generator.setResolution(DocumentDpi);
  generator.setSize(size);
  generator.setViewBox(QRect(QPoint(), size));
  renderDocument(generator);
}

void PictureWriter::writePdf(QIODevice &device) const {
  constexpr double MillimetersPerInch = 25.4;
  QPdfWriter writer(&device);
  writer.setResolution(DocumentDpi);
  writer.setPageSize(
      QPageSize(QSizeF(m_plot.plot()->size()) * m_scale * MillimetersPerInch / DocumentDpi, QPageSize::Millimeter));
  writer.setPageMargins(QMarginsF());
  renderDocument(writer);
}

bool PictureWriter::writePostScript(QIODevice &device, QString &reason) const {
  const QTemporaryDir folder;
  if (!folder.isValid()) {
    reason = folder.errorString();
    return false;
  }
  const QString source = folder.filePath(QStringLiteral("plot.pdf"));
  const QString target = folder.filePath(QStringLiteral("plot.ps"));
  const QString poppler = QStandardPaths::findExecutable(QStringLiteral("pdftops"));
  const QString ghostscript = QStandardPaths::findExecutable(QStringLiteral("gs"));
  if (poppler.isEmpty() && ghostscript.isEmpty()) {
    reason = tr("PostScript needs the tool pdftops (Poppler) or gs (Ghostscript), and neither is installed");
    return false;
  }
  const auto document = [this](QIODevice &pdf, QString *) {
    writePdf(pdf);
    return true;
  };
  if (!WholeFile::write(source, FileAccess::Source::Trusted, document, &reason))
    return false;
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

bool PictureWriter::write(QIODevice &device, const QByteArray &format, QString &reason) const {
  if (format == "ps")
    return writePostScript(device, reason);
  if (format == "svg")
    writeSvg(device);
  else if (format == "pdf")
    writePdf(device);
  else
    return writePixels(device, format, reason);
  return true;
}
