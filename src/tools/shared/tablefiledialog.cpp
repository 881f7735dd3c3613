#include "shared/tablefiledialog.h"

#include <base/index.h>
#include <base/lastfolder.h>
#include <base/nivramsg.h>
#include <base/settings.h>
#include <base/suffixoffilter.h>

#include <QFileDialog>

#include <algorithm>

using Format = TableExport::Format;

namespace {

/// By the suffix; of CSV by what was chosen in the dialog, else by the general setting.
Format formatOf(const QString &path, Format chosen) {
  const QString suffix = QFileInfo(path).suffix().toLower();
  if (suffix == QLatin1String("xlsx"))
    return Format::Workbook;
  if (suffix == QLatin1String("txt"))
    return Format::Tabulators;
  if (suffix == QLatin1String("csv") && chosen != Format::PointCsv && chosen != Format::CommaCsv)
    return Settings::UseComma.value() ? Format::CommaCsv : Format::PointCsv;
  return chosen;
}

} // namespace

void TableFileDialog::askAndSave(QWidget *parent, const QString &proposed, const Save &save) {
  const std::vector<std::pair<QString, Format>> formats{
      {tr("Workbook (*.xlsx)"), Format::Workbook},
      {tr("CSV with decimal point and commas (*.csv)"), Format::PointCsv},
      {tr("CSV with decimal comma and semicolons (*.csv)"), Format::CommaCsv},
      {tr("Text with tabulators (*.txt)"), Format::Tabulators},
  };
  QStringList titles;
  for (const auto &[title, format] : formats)
    titles.append(title);
  LastFolder &folder = LastFolder::ofSaving();
  QFileDialog dialog(parent, tr("Save table"), folder.path(), titles.join(QStringLiteral(";;")));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  // A name without a suffix gets that of the chosen kind.
  const auto useSuffixOf = [&dialog](const QString &filter) {
    dialog.setDefaultSuffix(suffixOfFilter(filter));
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, useSuffixOf);
  useSuffixOf(titles.first());
  dialog.selectFile(proposed + QStringLiteral(".xlsx"));
  const QString path = dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
  const QString chosen = dialog.selectedNameFilter();
  folder.remember(path);
  QString reason;
  if (!path.isEmpty() && !save(path, formatOf(path, formats[fromQt(std::max(0, titles.indexOf(chosen)))].second), &reason))
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
}
