#include "ui_nivravectable.h"

#include <base/generalsettings.h>
#include <base/nivramsg.h>
#include <tools/nivravectable.h>
#include <tools/tablemenu.h>
#include <tools/vectorplot.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QRegularExpression>
#include <QSaveFile>

#include <set>

namespace {

enum Column { NameColumn, TypeColumn, PropertyColumn, ValueColumn, UnitColumn, ResultColumn, NumsortColumn, ColumnCount };

/// Sorted by plain comparison of its text at hand: asking each cell of 100,000 for a variant takes most of a second.
class Cell : public QTableWidgetItem {
public:
  explicit Cell(const QString &text)
      : QTableWidgetItem(text, UserType)
      , m_text(text) {
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsEnabled);
  }
  bool operator<(const QTableWidgetItem &other) const override { return m_text < static_cast<const Cell &>(other).m_text; }

private:
  QString m_text;
};

} // namespace

NivraVecTable::NivraVecTable(NetData &net, QWidget *parent)
    : QTabWidget(parent)
    , m_ui(std::make_unique<Ui::NivraVecTable>())
    , m_net(net)
    , m_rows(net)
    , m_plot(new VectorPlot) {
  m_ui->setupUi(this);
  m_ui->tableWidget->addAction(m_ui->actionCopy_selectedItems);
  m_menu = new TableMenu(*m_ui->tableWidget);
  addAction(m_ui->actionHelp);
  m_ui->plotLayout->insertWidget(0, m_plot);
  connect(m_menu, &TableMenu::filtered, this, &NivraVecTable::showCount);
  connect(m_ui->pushButtonHelp, &QPushButton::clicked, m_ui->actionHelp, &QAction::trigger);
  refresh();
}

NivraVecTable::~NivraVecTable() {
  NivraMsg::debug(QStringLiteral("Vector Table deleted."));
}

void NivraVecTable::refresh() {
  std::set<QString> names;
  m_net.forEach(NetData::AllTypes, [&names](const element &e) {
    for (const Property &property : e)
      names.insert(property.key.name());
  });
  m_isUpdating = true;
  m_ui->comboBoxProp->clear();
  for (const QString &name : names)
    m_ui->comboBoxProp->addItem(name);
  const int before = m_ui->comboBoxProp->findText(m_chosenProperty.isEmpty() ? QStringLiteral("p") : m_chosenProperty);
  m_ui->comboBoxProp->setCurrentIndex(std::max(0, before));
  m_chosenProperty = m_ui->comboBoxProp->currentText();
  m_isUpdating = false;
}

bool NivraVecTable::isPropertyMode() const {
  return m_ui->checkBoxProp->isChecked();
}

QStringList NivraVecTable::headers() const {
  QStringList texts{QStringLiteral("name"), QStringLiteral("type"),   QStringLiteral("property"), QStringLiteral("value"),
                    QStringLiteral("unit"), QStringLiteral("result"), QStringLiteral("numsort")};
  const CategoryRecord category = m_categories.value(m_chosenCategory);
  if (!isPropertyMode()) {
    texts[NameColumn] += QStringLiteral("\n(%1)").arg(category.name);
    texts[TypeColumn] += QStringLiteral("\n(%1)").arg(category.type);
    texts[PropertyColumn] += QStringLiteral("\n(%1)").arg(category.prop);
  }
  texts[ResultColumn] += QStringLiteral("\n(%1)").arg(isPropertyMode()             ? m_chosenProperty
                                                      : category.formula.isEmpty() ? category.value
                                                                                   : category.formula);
  return texts;
}

void NivraVecTable::on_pushButtonUpdate_clicked() {
  NivraMsg::debug(QStringLiteral("update vectable started  ..."));
  VectorRows::Request request;
  request.usesProperty = isPropertyMode();
  request.property = m_chosenProperty;
  request.category = m_categories.value(m_chosenCategory);
  request.onlyNonZero = m_ui->checkBoxNonZero->isChecked();
  request.onlySelection = m_ui->checkBoxUseSel->isChecked();
  std::vector<VectorRows::Row> rows = m_rows.build(request);
  VectorRows::sortByName(rows);
  if (m_rows.allHaveUnits()) {
    sortNumerically(rows);
  } else {
    showRows(rows, NameColumn);
  }
  m_ui->tableWidget->resizeColumnsToContents();
  showCount();
  NivraMsg::debug(QStringLiteral("... update finished."));
}

void NivraVecTable::showCount() {
  const int all = m_ui->tableWidget->rowCount();
  const int shown = m_menu->shownRows();
  m_ui->labelCount->setText(shown == all ? tr("%1 rows").arg(all) : tr("%1 of %2 rows").arg(shown).arg(all));
}

/// \param sortedBy the column by which the rows are in order
void NivraVecTable::showRows(const std::vector<VectorRows::Row> &rows, int sortedBy) {
  constexpr int RowMargin = 8; // px around the text
  QTableWidget *table = m_ui->tableWidget;
  table->setSortingEnabled(false);
  table->setRowCount(0);
  table->setHorizontalHeaderLabels(headers());
  table->verticalHeader()->setDefaultSectionSize(QFontInfo(font()).pixelSize() + RowMargin);
  table->setRowCount(static_cast<int>(rows.size()));
  for (int i = 0; i < table->rowCount(); ++i) {
    const VectorRows::Row &row = rows[static_cast<std::size_t>(i)];
    const QString *cells[] = {&row.name, &row.type, &row.property, &row.value, &row.unit, &row.result, &row.numsort};
    for (int column = 0; column < ColumnCount; ++column) {
      auto *cell = new Cell(*cells[column]);
      if (column == NumsortColumn)
        cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      table->setItem(i, column, cell);
    }
  }
  table->horizontalHeader()->setSortIndicator(sortedBy, Qt::AscendingOrder);
  table->setSortingEnabled(true);
  m_menu->apply();
}

void NivraVecTable::on_pushButtonTryNumSort_clicked() {
  std::vector<VectorRows::Row> rows;
  for (const QStringList &row : texts())
    rows.push_back({row[NameColumn], row[TypeColumn], row[PropertyColumn], row[ValueColumn], row[UnitColumn],
                    row[ResultColumn], row[NumsortColumn]});
  sortNumerically(rows);
}

void NivraVecTable::sortNumerically(std::vector<VectorRows::Row> &rows) {
  NivraMsg::debug(QStringLiteral("    numsort started ..."));
  VectorRows::sortNumerically(rows);
  showRows(rows, NumsortColumn);
}

std::vector<QStringList> NivraVecTable::texts() const {
  std::vector<QStringList> rows;
  rows.reserve(static_cast<std::size_t>(m_ui->tableWidget->rowCount()));
  for (int i = 0; i < m_ui->tableWidget->rowCount(); ++i) {
    QStringList row;
    for (int column = 0; column < ColumnCount; ++column)
      row.append(m_ui->tableWidget->item(i, column)->text());
    rows.push_back(row);
  }
  return rows;
}

void NivraVecTable::on_updateCats(const CatMap &catDataInput) {
  NivraMsg::debug(QStringLiteral("vectable updatecats"));
  m_categories = catDataInput;
  m_isUpdating = true;
  m_ui->comboBoxCat->clear();
  m_ui->comboBoxCat->addItems(m_categories.keys());
  if (!m_categories.contains(m_chosenCategory))
    m_chosenCategory = m_categories.isEmpty() ? QString() : m_categories.firstKey();
  m_ui->comboBoxCat->setCurrentText(m_chosenCategory);
  m_ui->comboBoxCat->setEnabled(!m_categories.isEmpty());
  m_isUpdating = false;
  if (!isPropertyMode() && isVisible())
    on_pushButtonUpdate_clicked();
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
  show();
  raise();
  activateWindow();
  on_pushButtonUpdate_clicked();
}

void NivraVecTable::on_comboBoxCat_currentIndexChanged(const QString &qstr) {
  if (m_isUpdating)
    return;
  m_chosenCategory = qstr;
  on_pushButtonUpdate_clicked();
}

void NivraVecTable::on_comboBoxProp_currentIndexChanged(const QString &qstr) {
  if (m_isUpdating)
    return;
  m_chosenProperty = qstr;
  on_pushButtonUpdate_clicked();
}

void NivraVecTable::on_checkBoxProp_toggled(bool) {
  if (!m_isUpdating)
    on_pushButtonUpdate_clicked();
}

void NivraVecTable::on_checkBoxNonZero_toggled(bool) {
  on_pushButtonUpdate_clicked();
}

void NivraVecTable::on_checkBoxUseSel_toggled(bool) {
  on_pushButtonUpdate_clicked();
}

void NivraVecTable::on_tableWidget_itemClicked(QTableWidgetItem *item) {
  static const QRegularExpression NamesElement(QStringLiteral("^name$|^node1$|^node2$|^gasnode$|^driven$"));
  if (item->text().isEmpty())
    return;
  const QString property = m_ui->tableWidget->item(item->row(), PropertyColumn)->text();
  if (item->column() == NameColumn || (item->column() == ValueColumn && NamesElement.match(property).hasMatch()))
    emit elementMarked(item->text());
}

void NivraVecTable::on_actionCopy_selectedItems_triggered() {
  QApplication::clipboard()->setText(TableMenu::cellTexts(*m_ui->tableWidget->selectionModel()));
}

void NivraVecTable::on_actionHelp_triggered() {
  emit helpWanted(QStringLiteral("tab_cat_search.html"));
}

void NivraVecTable::on_pushButtonSave_clicked() {
  const QString proposed = m_directory + QStringLiteral("/table_") +
                           (isPropertyMode() ? m_chosenProperty : m_chosenCategory) + QStringLiteral(".csv");
  const QString path =
      QFileDialog::getSaveFileName(this, tr("Choose File"), proposed, tr("CSV (*.csv);;TXT (*.txt);;All Files (*)"));
  if (!path.isEmpty())
    save(path);
}

bool NivraVecTable::save(const QString &path) const {
  QSaveFile file(path);
  const bool useComma = GeneralSettings::instance().value(QStringLiteral("use comma")) == QLatin1String("1");
  return file.open(QIODevice::WriteOnly) && VectorRows::write(file, headers(), texts(), useComma) && file.commit();
}

void NivraVecTable::on_pushButtonClose_clicked() {
  hide();
}

void NivraVecTable::on_closePlotButton_clicked() {
  setCurrentIndex(0);
}

void NivraVecTable::on_NivraVecTable_currentChanged(int index) {
  if (index != 1)
    return;
  const QTableWidget &table = *m_ui->tableWidget;
  std::vector<bool> isSelected(static_cast<std::size_t>(table.rowCount()));
  for (const QModelIndex &cell : table.selectionModel()->selectedIndexes())
    isSelected[static_cast<std::size_t>(cell.row())] = true;
  // One row is what was clicked last; several were chosen.
  const bool usesSelection = std::count(isSelected.begin(), isSelected.end(), true) > 1;
  std::vector<std::pair<int, double>> values;
  for (int row = 0; row < table.rowCount(); ++row) {
    if (usesSelection ? !isSelected[static_cast<std::size_t>(row)] : table.isRowHidden(row))
      continue;
    bool isNumber = false;
    const double number = table.item(row, ResultColumn)->text().toDouble(&isNumber);
    if (isNumber)
      values.emplace_back(row + 1, number);
  }
  QString title = headers().at(ResultColumn).section(QLatin1Char('\n'), 1).mid(1).chopped(1);
  const NetMetaData::Attribute *attribute = isPropertyMode() ? m_net.metaData()->anyAttribute(m_chosenProperty) : nullptr;
  if (attribute != nullptr && !attribute->storedUnit.isEmpty())
    title += QStringLiteral(" [%1]").arg(Units::written(attribute->storedUnit));
  m_plot->show(title, values, usesSelection ? tr("the selected rows") : tr("the shown rows"));
}
