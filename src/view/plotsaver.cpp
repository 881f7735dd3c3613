#include <base/nivramsg.h>
#include <view/netplot.h>
#include <view/plotexport.h>
#include <view/plotsaver.h>

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("PlotSaver", text);
}

} // namespace

void PlotSaver::saveWithWidth() {
  bool accepted = false;
  const int width =
      QInputDialog::getInt(&m_plot, tr("Specify Width [Pixel]"),
                           tr("Width [pixel] of plot (max. 20,000 memory-dependent,\ndefault is current width): "),
                           m_plot.width(), std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 1, &accepted);
  if (accepted)
    saveWithWidth(width);
}

void PlotSaver::saveWithWidth(int width) {
  if (width <= 0) {
    NivraMsg::message(NivraMsg::Kind::Warning, tr("Specified width not possible!"));
    return;
  }
  const QString path = askForFile(&m_plot);
  if (!path.isEmpty() && mayBeLarge(path))
    save(path, possibleWidth(width));
}

void PlotSaver::savePlot(const QString &path, const QString &reducedPath, bool asksForFile) {
  constexpr double Reduced = 0.3;
  const QString chosen = asksForFile ? askForFile(&m_plot) : path.trimmed();
  if (chosen.isEmpty() || !mayBeLarge(chosen) || !save(chosen, m_plot.width()))
    return;
  if (!reducedPath.trimmed().isEmpty())
    save(reducedPath.trimmed(), static_cast<int>(m_plot.width() * Reduced));
}

QString PlotSaver::askForFile(QWidget *parent) {
  const QString filters = tr("Portable Network Graphics (*.png)") + tr(";;JPEG (*.jpg)") +
                          tr(";;Scalable Vector Graphics (*.svg)") + tr(";;Portable Document Format (*.pdf)") +
                          tr(";;Bitmap (*.bmp)") + tr(";;Tagged Image File Format (*.tif)") + tr(";;PostScript (*.ps)") +
                          tr(";;All Files (*)");
  QFileDialog dialog(parent, tr("Choose File"), QString(), filters);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("png"));
  // A name without a suffix gets that of the chosen kind.
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString &filter) {
    dialog.setDefaultSuffix(filter.section(QLatin1Char('.'), 1).remove(QLatin1Char(')')));
  });
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0).trimmed() : QString();
}

bool PlotSaver::mayBeLarge(const QString &path) {
  const QString suffix = QFileInfo(path).suffix().toLower();
  if (suffix != QLatin1String("ps") && suffix != QLatin1String("bmp") && suffix != QLatin1String("tif"))
    return true;
  return !NivraMsg::isInteractive() ||
         NivraMsg::message(NivraMsg::Kind::Question, tr("BMP/TIFF might get large, PS might get huge! Continue?")) ==
             QMessageBox::Yes;
}

bool PlotSaver::save(const QString &path, int width) {
  QString error;
  if (exportPlot(m_plot, path, width, &error))
    return true;
  NivraMsg::message(NivraMsg::Kind::Critical, error);
  return false;
}
