#include "export/plotsaver.h"

#include <base/lastfolder.h>
#include <base/nivramsg.h>
#include <base/suffixoffilter.h>
#include <view/netplot.h>

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QSpinBox>

void PlotSaver::saveWithWidth() {
  QDialog dialog(&m_plot);
  dialog.setWindowTitle(tr("Specify Width [Pixel]"));
  auto *width = new QSpinBox(&dialog);
  width->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
  width->setValue(m_plot.width());
  width->setObjectName(QStringLiteral("width"));
  auto *scale = new QDoubleSpinBox(&dialog);
  constexpr double SmallestScale = 0.1;
  scale->setRange(SmallestScale, PictureSize::LargestScale);
  scale->setSingleStep(0.5);
  scale->setValue(1.0);
  scale->setObjectName(QStringLiteral("scale"));
  scale->setToolTip(
      tr("2 makes texts, lines and symbols twice as large as on the screen, for a picture that is printed small."));
  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto *form = new QFormLayout(&dialog);
  form->addRow(tr("Width [pixel] of plot (max. 20,000 memory-dependent,\ndefault is current width): "), width);
  form->addRow(tr("Scale of texts, lines and symbols:"), scale);
  form->addRow(buttons);
  width->selectAll();
  if (dialog.exec() == QDialog::Accepted)
    saveWithWidth(PictureSize(width->value(), scale->value()));
}

void PlotSaver::saveWithWidth(PictureSize size) {
  if (size.width <= 0) {
    NivraMsg::message(NivraMsg::Kind::Warning, tr("Specified width not possible!"));
    return;
  }
  size.width = possibleWidth(size.width);
  const QString path = askForFile(&m_plot);
  if (!path.isEmpty() && mayBeLarge(path))
    save(path, size);
}

void PlotSaver::savePlot(const QString &path, const QString &reducedPath, bool asksForFile) {
  constexpr int Percent = 30;
  const QString chosen = asksForFile ? askForFile(&m_plot) : path.trimmed();
  if (chosen.isEmpty() || !mayBeLarge(chosen))
    return;
  save(chosen, m_plot.width());
  if (reducedPath.trimmed().isEmpty())
    return;
  PictureSize reduced(m_plot.width() * Percent / 100);
  reduced.height = m_plot.height() * Percent / 100;
  save(reducedPath.trimmed(), reduced);
}

QString PlotSaver::askForFile(QWidget *parent) {
  const QString filters = tr("Portable Network Graphics (*.png)") + tr(";;JPEG (*.jpg)") +
                          tr(";;Scalable Vector Graphics (*.svg)") + tr(";;Portable Document Format (*.pdf)") +
                          tr(";;Bitmap (*.bmp)") + tr(";;Tagged Image File Format (*.tif)") + tr(";;PostScript (*.ps)") +
                          tr(";;All Files (*)");
  LastFolder &folder = LastFolder::ofSaving();
  QFileDialog dialog(parent, tr("Choose File"), folder.path(), filters);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("png"));
  // A name without a suffix gets that of the chosen kind.
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                   [&dialog](const QString &filter) { dialog.setDefaultSuffix(suffixOfFilter(filter)); });
  QString chosen = dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0).trimmed() : QString();
  folder.remember(chosen);
  return chosen;
}

bool PlotSaver::mayBeLarge(const QString &path) {
  const QString suffix = QFileInfo(path).suffix().toLower();
  if (suffix != QLatin1String("ps") && suffix != QLatin1String("bmp") && suffix != QLatin1String("tif"))
    return true;
  return !NivraMsg::showsBoxes() ||
         NivraMsg::message(NivraMsg::Kind::Question, tr("BMP/TIFF might get large, PS might get huge! Continue?")) ==
             NivraMsg::Answer::Yes;
}

bool PlotSaver::save(const QString &path, const PictureSize &size) {
  QString error;
  if (exportPlot(m_plot, path, size, &error))
    return true;
  NivraMsg::message(NivraMsg::Kind::Critical, error);
  return false;
}
