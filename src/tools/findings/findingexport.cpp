#include "findings/findingexport.h"

#include "findings/findingfilter.h"
#include "findings/findingmodel.h"

namespace {

QString severityText(Finding::Severity severity) {
  switch (severity) {
  case Finding::Severity::Critical:
    return FindingExport::tr("error");
  case Finding::Severity::Warning:
    return FindingExport::tr("warning");
  default:
    return FindingExport::tr("information");
  }
}

QVariant valueOf(const FindingList::Group &group, int entry, int column) {
  const Finding &finding = group.findings[fromQt(entry)];
  switch (column) {
  case 0:
    return group.name;
  case 1:
    return severityText(finding.severity);
  case 2:
    return finding.text;
  case 3:
    return FindingList::elements(group, entry).join(QLatin1Char(' '));
  case 4:
    return finding.file;
  default:
    return finding.line > 0 ? QVariant(static_cast<double>(finding.line)) : QVariant(QString());
  }
}

} // namespace

TableExport FindingExport::of(const FindingFilter &shown) {
  QModelIndexList rows; // of the model
  for (int group = 0; group < shown.rowCount(); ++group) {
    const QModelIndex parent = shown.index(group, 0);
    for (int row = 0; row < shown.rowCount(parent); ++row)
      rows.append(shown.mapToSource(shown.index(row, 0, parent)));
  }
  TableExport table;
  table.headers = QStringList{tr("rule"), tr("severity"), tr("finding"), tr("elements"), tr("file"), tr("line")};
  table.widths = {24, 12, 80, 30, 30, 8};
  table.rows = rows.size();
  const auto &model = shown.findings();
  table.value = [rows, &model](int row, int column) {
    const QModelIndex &index = rows.at(row);
    return valueOf(model.at(index.parent().row()), index.row(), column);
  };
  return table;
}
