#include "canvas/canvaslegend.h"
#include "canvas/qwtfastplot.h"
#include "export/onpaper.h"
#include "export/picturewriter.h"

#include <base/wholefile.h>
#include <view/netplot.h>
#include <view/plotexport.h>

#include <QFileInfo>
#include <QImage>

namespace {

/// Gives the plot another size for as long as it lives.
class TemporarySize {
public:
  TemporarySize(NetPlot &plot, const PictureSize &size)
      : m_plot(plot)
      , m_before(plot.geometry())
      , m_smallest(plot.minimumSize()) {
    const int width = qRound(size.width / size.scale);
    const int height = size.height > 0 ? qRound(size.height / size.scale)
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

/// The legend of a picture stands where it is best in the picture, and that of the screen stays where it is.
class LegendOfPicture {
public:
  explicit LegendOfPicture(NetPlot &plot)
      : m_legend(plot.canvasLegend())
      , m_before(m_legend.standing()) {
    m_legend.setStanding(std::nullopt);
  }
  ~LegendOfPicture() { m_legend.setStanding(m_before); }
  LegendOfPicture(const LegendOfPicture &) = delete;
  LegendOfPicture &operator=(const LegendOfPicture &) = delete;

private:
  CanvasLegend &m_legend;
  std::optional<LegendPlace::Place> m_before;
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

} // namespace

QString PictureSize::fault() const {
  if (width <= 0)
    return tr("a picture needs a width");
  if (!(scale > 0.0 && scale <= LargestScale && width / scale >= 1.0))
    return tr("a picture of %1 pixels cannot have the scale %2").arg(width).arg(scale);
  return QString();
}

bool exportPlot(NetPlot &plot, const QString &path, const PictureSize &size, QString *error) {
  const QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
  QString reason = PictureWriter::fault(format);
  if (reason.isEmpty())
    reason = size.fault();
  bool isDone = false;
  if (reason.isEmpty()) {
    const bool hasLabels = !plot.update().labels().empty();
    plot.selection().setHovered(std::nullopt);
    {
      const OnPaper white(plot);
      const WithoutStore direct(plot);
      const LegendOfPicture legend(plot);
      const TemporarySize temporary(plot, size);
      layOut(plot, hasLabels);
      // The plot lies on whole pixels of its own; the picture has the width that was asked for all the same.
      const double scale = static_cast<double>(size.width) / plot.width();
      isDone = WholeFile::write(
          path, FileAccess::Source::Trusted,
          [&](QIODevice &device, QString *why) { return PictureWriter(plot, scale).write(device, format, *why); }, &reason);
    }
    layOut(plot, hasLabels);
  } else {
    reason = PictureSize::tr("Could not write %1: %2").arg(path, reason);
  }
  if (!isDone && error != nullptr)
    *error = reason;
  return isDone;
}
