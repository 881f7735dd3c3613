#include "pagewriter.h"

#include "pagepainter.h"

#include <base/wholefile.h>

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSvgGenerator>

namespace {

constexpr int PdfDpi = 600;
constexpr int SvgDpi = 254; // whole numbers for sizes in tenths of a mm

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(PageWriter)
};

/// \param dots of the device an inch
void paintPage(QPainter &painter, const PageSetup &setup, PageContent &content, const PageText &text, double dots) {
  const double scale = setup.unit() * dots / PageSetup::MillimetersPerInch;
  painter.save();
  painter.scale(scale, scale);
  PagePainter(content, setup, text).paint(painter);
  painter.restore();
}

QSize pixels(const PageSetup &setup, double dots) {
  return (setup.size() * (dots / PageSetup::MillimetersPerInch)).toSize();
}

bool writeSvg(QIODevice &device, const PageSetup &setup, PageContent &content, const PageText &text) {
  const QSize size = pixels(setup, SvgDpi);
  QSvgGenerator generator;
  generator.setOutputDevice(&device);
  generator.setResolution(SvgDpi);
  generator.setSize(size);
  generator.setViewBox(QRect(QPoint(), size));
  generator.setTitle(text.title);
  QPainter painter(&generator);
  paintPage(painter, setup, content, text, SvgDpi);
  return painter.end();
}

bool writePdf(QIODevice &device, const PageSetup &setup, const PageWriter::Pages &pages, QString *reason) {
  QPdfWriter writer(&device);
  writer.setResolution(PdfDpi);
  writer.setPageSize(QPageSize(setup.size(), QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF());
  QPainter painter;
  const auto add = [&](PageContent &content, const PageText &text) {
    if (painter.isActive()) {
      writer.newPage();
    } else {
      writer.setTitle(text.title);
      painter.begin(&writer);
    }
    paintPage(painter, setup, content, text, PdfDpi);
  };
  const bool isDone = pages(add, reason);
  if (isDone && !painter.isActive()) {
    *reason = Texts::tr("there is no page to be written");
    return false;
  }
  if (painter.isActive())
    painter.end();
  return isDone;
}

bool writePixels(QIODevice &device, const QByteArray &format, const PageSetup &setup, PageContent &content,
                 const PageText &text, QString *reason) {
  const QImage image = PageWriter::picture(setup, content, text, setup.dpi);
  if (image.isNull()) {
    *reason = Texts::tr("there is not enough memory for a page of this size in %1 dpi").arg(setup.dpi);
    return false;
  }
  // Into memory first: the libraries of some formats lose theirs when a device fails.
  QBuffer encoded;
  encoded.open(QIODevice::WriteOnly);
  QImageWriter writer(&encoded, format);
  constexpr int Quality = 92; // of JPEG
  if (format == "jpg" || format == "jpeg")
    writer.setQuality(Quality);
  if (!writer.write(image)) {
    *reason = writer.errorString();
    return false;
  }
  if (device.write(encoded.data()) == encoded.size())
    return true;
  *reason = device.errorString();
  return false;
}

} // namespace

QStringList PageWriter::formats() {
  return {QStringLiteral("pdf"), QStringLiteral("svg"), QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("tif")};
}

bool PageWriter::write(const QString &path, const PageSetup &setup, PageContent &content, const PageText &text,
                       QString *reason) {
  const QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
  const auto writer = [&](QIODevice &device, QString *why) {
    *why = setup.fault();
    if (!why->isEmpty())
      return false;
    if (format == "pdf")
      return writePdf(
          device, setup,
          [&](const AddPage &add, QString *) {
            add(content, text);
            return true;
          },
          why);
    if (format == "svg")
      return writeSvg(device, setup, content, text);
    if (!QImageWriter::supportedImageFormats().contains(format)) {
      *why = Texts::tr("\"%1\" is no format of pages; there are %2")
                 .arg(QString::fromLatin1(format), formats().join(QStringLiteral(", ")));
      return false;
    }
    return writePixels(device, format, setup, content, text, why);
  };
  return WholeFile::write(path, FileAccess::Source::Trusted, writer, reason);
}

bool PageWriter::writeBook(const QString &path, const PageSetup &setup, const Pages &pages, QString *reason) {
  return WholeFile::write(
      path, FileAccess::Source::Trusted,
      [&](QIODevice &device, QString *why) {
        *why = setup.fault();
        return why->isEmpty() && writePdf(device, setup, pages, why);
      },
      reason);
}

QImage PageWriter::picture(const PageSetup &setup, PageContent &content, const PageText &text, double dpi) {
  constexpr int LargestSide = 32767; // px: the toolkit paints no larger ones
  const QSize size = pixels(setup, dpi);
  if (std::max(size.width(), size.height()) > LargestSide)
    return QImage();
  QImage image(size, QImage::Format_RGB32);
  if (image.isNull())
    return image;
  const int dotsPerMetre = qRound(dpi * 1000.0 / PageSetup::MillimetersPerInch);
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    paintPage(painter, setup, content, text, dpi);
  }
  image.setDotsPerMeterX(dotsPerMetre);
  image.setDotsPerMeterY(dotsPerMetre);
  return image;
}

void PageWriter::prepare(QPrinter &printer, const PageSetup &setup) {
  const bool isWide = setup.size().width() > setup.size().height();
  const QSizeF upright = isWide ? setup.size().transposed() : setup.size();
  printer.setPageSize(QPageSize(upright, QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch));
  printer.setPageOrientation(isWide ? QPageLayout::Landscape : QPageLayout::Portrait);
  printer.setFullPage(true); // the page has margins of its own
}

bool PageWriter::print(QPrinter &printer, PageSetup setup, PageContent &content, const PageText &text, QString *reason) {
  setup.ownSize = printer.pageLayout().fullRect(QPageLayout::Millimeter).size();
  setup.paper = PageSetup::ownPaper();
  *reason = setup.fault();
  if (!reason->isEmpty())
    return false;
  printer.setFullPage(true);
  printer.setDocName(text.title);
  QPainter painter;
  if (!painter.begin(&printer)) {
    *reason = Texts::tr("The printer \"%1\" cannot be started.").arg(printer.printerName());
    return false;
  }
  paintPage(painter, setup, content, text, printer.resolution());
  if (painter.end() && printer.printerState() != QPrinter::Error)
    return true;
  *reason = Texts::tr("The printer \"%1\" did not take the page.").arg(printer.printerName());
  return false;
}
