#include "shared/machineaction.h"
#include "shared/numberdelegate.h"
#include "table/vectormodel.h"
#include "table/vectorplot.h"
#include "ui_nivravectable.h"

#include <base/index.h>
#include <base/lastfolder.h>
#include <base/nivramsg.h>
#include <base/wholefile.h>
#include <tools/nivravectable.h>
#include <tools/tablemenu.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHideEvent>

#include <algorithm>
#include <set>

NivraVecTable::NivraVecTable(NetData &net, Told told, QWidget *parent)
    : QTabWidget(parent)
    , m_ui(std::make_unique<Ui::NivraVecTable>())
    , m_net(net)
    , m_told(std::move(told))
    , m_rows(net, m_told)
    , m_model(new VectorModel(this))
    , m_plot(new VectorPlot) {
  m_ui->setupUi(this);
  m_ui->tableWidget->setModel(m_model);
  m_ui->tableWidget->addAction(m_ui->actionCopy_selectedItems);
  m_ui->tableWidget->setItemDelegate(new NumberDelegate(VectorModel::PropertyColumn, this));
  const auto *machines = new MachineAction(*m_ui->tableWidget, VectorModel::NameColumn, VectorModel::TypeColumn);
  connect(machines, &MachineAction::triggered, this, &NivraVecTable::characteristicsWanted);
  m_menu = new TableMenu(*m_ui->tableWidget);
  addAction(m_ui->actionHelp);
  m_ui->plotLayout->insertWidget(0, m_plot);
  connect(m_menu, &TableMenu::filtered, this, &NivraVecTable::showCount);
  connect(m_ui->pushButtonHelp, &QPushButton::clicked, m_ui->actionHelp, &QAction::trigger);
  refresh();
}

NivraVecTable::~NivraVecTable() {
  tell(m_told, Finding::Severity::Debug, QStringLiteral("Vector Table deleted."));
}

void NivraVecTable::refresh() {
  m_menu->clearFilters();
  QStringList names;
  for (const PropertyKey key : m_net.propertyKeys())
    names.append(key.name());
  names.sort();
  m_isUpdating = true;
  m_ui->comboBoxProp->clear();
  m_ui->comboBoxProp->addItems(names);
  const int before = m_ui->comboBoxProp->findText(m_chosenProperty.isEmpty() ? QStringLiteral("p") : m_chosenProperty);
  m_ui->comboBoxProp->setCurrentIndex(std::max(0, before));
  m_chosenProperty = m_ui->comboBoxProp->currentText();
  m_isUpdating = false;
}

bool NivraVecTable::isPropertyMode() const {
  return m_ui->checkBoxProp->isChecked();
}

/// Those of a file; on the screen they are in the language of the program.
QStringList NivraVecTable::headers() const {
  return withCategory({QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("property"), QStringLiteral("value"),
                       QStringLiteral("unit"), QStringLiteral("result"), QStringLiteral("numsort")});
}

QStringList NivraVecTable::titles() const {
  return withCategory({tr("name"), tr("type"), tr("property"), tr("value"), tr("unit"), tr("result"), tr("numsort")});
}

QStringList NivraVecTable::withCategory(QStringList texts) const {
  const CategoryRecord category = m_categories.value(m_chosenCategory);
  if (!isPropertyMode()) {
    texts[VectorModel::NameColumn] += QStringLiteral("\n(%1)").arg(category.name);
    texts[VectorModel::TypeColumn] += QStringLiteral("\n(%1)").arg(category.type);
    texts[VectorModel::PropertyColumn] += QStringLiteral("\n(%1)").arg(category.prop);
  }
  texts[VectorModel::ResultColumn] += QStringLiteral("\n(%1)").arg(isPropertyMode()             ? m_chosenProperty
                                                                   : category.formula.isEmpty() ? category.value
                                                                                                : category.formula);
  return texts;
}

/// Without the filters of the list before: nobody would expect them to hide rows of this one.
void NivraVecTable::listSomethingElse() {
  m_menu->clearFilters();
  on_pushButtonUpdate_clicked();
}

void NivraVecTable::on_pushButtonUpdate_clicked() {
  m_isStale = false;
  tell(m_told, Finding::Severity::Debug, QStringLiteral("update vectable started  ..."));
  VectorRows::Request request;
  request.usesProperty = isPropertyMode();
  request.property = m_chosenProperty;
  request.category = m_categories.value(m_chosenCategory);
  request.onlyNonZero = m_ui->checkBoxNonZero->isChecked();
  request.onlySelection = m_ui->checkBoxUseSel->isChecked();
  std::vector<VectorRows::Row> rows = m_rows.build(request);
  if (m_rows.allHaveUnits()) {
    VectorRows::sortByName(rows); // for equal numbers
    sortNumerically(std::move(rows));
  } else {
    showRows(std::move(rows), VectorModel::NameColumn);
  }
  m_ui->tableWidget->resizeColumnsToContents();
  showCount();
  if (currentWidget() == m_ui->plotPage)
    showPlot();
  tell(m_told, Finding::Severity::Debug, QStringLiteral("... update finished."));
}

void NivraVecTable::showCount() {
  const int all = m_model->rowCount();
  const int shown = m_menu->shownRows();
  m_ui->labelCount->setText(m_menu->filterSummary().isEmpty()
                                ? tr("%1 rows").arg(all)
                                : tr("%1 of %2 rows, filter: %3").arg(shown).arg(all).arg(m_menu->filterSummary()));
}

/// \param sortedBy the column by which the rows are put in order
void NivraVecTable::showRows(std::vector<VectorRows::Row> rows, int sortedBy) {
  constexpr int RowMargin = 8; // px around the text
  m_model->setRows({});        // there is no use in sorting the rows that go
  m_ui->tableWidget->verticalHeader()->setDefaultSectionSize(QFontInfo(font()).pixelSize() + RowMargin);
  m_model->setTitles(titles());
  m_ui->tableWidget->sortByColumn(sortedBy, Qt::AscendingOrder);
  m_model->setRows(std::move(rows));
}

void NivraVecTable::on_pushButtonTryNumSort_clicked() {
  sortNumerically(m_model->rows());
}

void NivraVecTable::sortNumerically(std::vector<VectorRows::Row> rows) {
  tell(m_told, Finding::Severity::Debug, QStringLiteral("    numsort started ..."));
  VectorRows::sortNumerically(rows);
  showRows(std::move(rows), VectorModel::NumsortColumn);
}

std::vector<int> NivraVecTable::shownRows() const {
  std::vector<int> rows;
  for (int row = 0; row < m_model->rowCount(); ++row) {
    if (!m_ui->tableWidget->isRowHidden(row))
      rows.push_back(row);
  }
  return rows;
}

void NivraVecTable::on_updateCats(const CatMap &catDataInput) {
  tell(m_told, Finding::Severity::Debug, QStringLiteral("vectable updatecats"));
  const bool isAnother = !(m_categories.value(m_chosenCategory) == catDataInput.value(m_chosenCategory));
  m_categories = catDataInput;
  m_isUpdating = true;
  m_ui->comboBoxCat->clear();
  m_ui->comboBoxCat->addItems(m_categories.keys());
  if (!m_categories.contains(m_chosenCategory))
    m_chosenCategory = m_categories.isEmpty() ? QString() : m_categories.firstKey();
  m_ui->comboBoxCat->setCurrentText(m_chosenCategory);
  m_ui->comboBoxCat->setEnabled(!m_categories.isEmpty());
  m_isUpdating = false;
  if (isPropertyMode())
    return;
  if (isAnother && isVisible())
    listSomethingElse();
  else
    showValues();
}

void NivraVecTable::showValues() {
  if (isVisible())
    on_pushButtonUpdate_clicked();
  else
    m_isStale = true;
}

void NivraVecTable::showEvent(QShowEvent *event) {
  if (m_isStale)
    on_pushButtonUpdate_clicked();
  QTabWidget::showEvent(event);
}

void NivraVecTable::hideEvent(QHideEvent *event) {
  if (!event->spontaneous()) // not only minimised
    m_menu->clearFilters();
  QTabWidget::hideEvent(event);
}

void NivraVecTable::on_useSearchConfig() {
  on_showCat(QStringLiteral("fromSearch"));
}

void NivraVecTable::on_showCat(const QString &catToShow) {
  m_chosenCategory = catToShow;
  m_isUpdating = true;
  m_ui->comboBoxCat->setCurrentText(catToShow);
  m_ui->checkBoxProp->setChecked(false);
  m_isUpdating = false;
  m_isStale = false; // it is asked for below
  show();
  raise();
  activateWindow();
  listSomethingElse();
}

void NivraVecTable::on_comboBoxCat_currentIndexChanged(const QString &qstr) {
  if (m_isUpdating)
    return;
  m_chosenCategory = qstr;
  listSomethingElse();
}

void NivraVecTable::on_comboBoxProp_currentIndexChanged(const QString &qstr) {
  if (m_isUpdating)
    return;
  m_chosenProperty = qstr;
  listSomethingElse();
}

void NivraVecTable::on_checkBoxProp_toggled(bool) {
  if (!m_isUpdating)
    listSomethingElse();
}

void NivraVecTable::on_checkBoxNonZero_toggled(bool) {
  on_pushButtonUpdate_clicked();
}

void NivraVecTable::on_checkBoxUseSel_toggled(bool) {
  on_pushButtonUpdate_clicked();
}

void NivraVecTable::on_tableWidget_itemClicked(const QModelIndex &item) {
  const QString element = item.data(VectorModel::ElementRole).toString();
  if (!element.isEmpty())
    emit elementMarked(element);
}

void NivraVecTable::on_actionCopy_selectedItems_triggered() {
  QApplication::clipboard()->setText(TableMenu::cellTexts(*m_ui->tableWidget));
}

void NivraVecTable::on_actionHelp_triggered() {
  emit helpWanted(QStringLiteral("tab_cat_search.html"));
}

void NivraVecTable::on_pushButtonSave_clicked() {
  LastFolder &folder = LastFolder::ofSaving();
  const QString proposed = m_directory + QStringLiteral("/table_") +
                           (isPropertyMode() ? m_chosenProperty : m_chosenCategory) + QStringLiteral(".csv");
  const QString path = QFileDialog::getSaveFileName(this, tr("Choose File"), folder.with(proposed),
                                                    tr("CSV (*.csv);;TXT (*.txt);;All Files (*)"));
  folder.remember(path);
  QString reason;
  if (!path.isEmpty() && !save(path, &reason))
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
}

bool NivraVecTable::save(const QString &path, QString *reason) const {
  const QTableView &table = *m_ui->tableWidget;
  VectorRows::Exported exported;
  std::vector<int> columns; // as they are shown
  for (int i = 0; i < VectorModel::ColumnCount; ++i) {
    const int column = table.horizontalHeader()->logicalIndex(i);
    if (table.isColumnHidden(column))
      continue;
    if (column == VectorModel::ValueColumn || column == VectorModel::ResultColumn)
      exported.valueColumns.append(toQt(columns.size()));
    columns.push_back(column);
    exported.headers.append(headers().at(column));
  }
  for (const int row : shownRows()) {
    QStringList texts;
    for (const int column : columns) {
      const QString &text = m_model->text(row, column);
      texts.append(column == VectorModel::NumsortColumn ? text.trimmed() : text); // blanks would make a text of the number
    }
    exported.rows.push_back(texts);
  }
  return WholeFile::write(
      path, FileAccess::Source::Trusted, [&](QIODevice &device, QString *) { return VectorRows::write(device, exported); },
      reason);
}

void NivraVecTable::on_pushButtonClose_clicked() {
  hide();
}

void NivraVecTable::on_closePlotButton_clicked() {
  setCurrentIndex(0);
}

void NivraVecTable::on_NivraVecTable_currentChanged(int) {
  if (currentWidget() == m_ui->plotPage)
    showPlot();
}

void NivraVecTable::showPlot() {
  const QTableView &table = *m_ui->tableWidget;
  std::vector<int> rows = shownRows();
  std::set<int> selected;
  for (const QModelIndex &cell : table.selectionModel()->selectedIndexes()) {
    if (!table.isRowHidden(cell.row()))
      selected.insert(cell.row());
  }
  // One row is what was clicked last; several were chosen.
  const bool usesSelection = selected.size() > 1;
  if (usesSelection)
    rows.assign(selected.begin(), selected.end());
  std::vector<std::pair<int, double>> values;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    bool isNumber = false;
    const double number = m_model->text(rows[i], VectorModel::ResultColumn).toDouble(&isNumber);
    if (isNumber)
      values.emplace_back(toQt(i) + 1, number);
  }
  QString title = titles().at(VectorModel::ResultColumn).section(QLatin1Char('\n'), 1).mid(1).chopped(1);
  const NetMetaData::Attribute *attribute = isPropertyMode() ? m_net.metaData()->anyAttribute(m_chosenProperty) : nullptr;
  if (attribute != nullptr && !attribute->storedUnit.isEmpty())
    title += QStringLiteral(" [%1]").arg(Units::written(attribute->storedUnit));
  m_plot->show(title, values, usesSelection ? tr("the selected rows") : tr("the shown rows"));
}
