#include "ui_nivranetobjectcats.h"

#include <base/nivramsg.h>
#include <tools/nivranetobjectcats.h>
#include <tools/tablemenu.h>

#include <QApplication>

namespace {

constexpr int SearchRow = 0;

enum Column { CategoryColumn, NameColumn, TypeColumn, PropertyColumn, ValueColumn };

QIcon actionIcon(const char *name) {
  return QIcon(QStringLiteral(":/iconsToolBar/crystal_project_icons/32x32/actions/%1").arg(QLatin1String(name)));
}

} // namespace

NivraNetObjectCats::NivraNetObjectCats(std::shared_ptr<CategoryList> list, QWidget *parent)
    : QDockWidget(parent)
    , m_ui(std::make_unique<Ui::NivraNetObjectCats>())
    , m_list(std::move(list)) {
  qRegisterMetaType<CatMap>("CatMap");
  m_ui->setupUi(this);
  m_ui->tableWidget->setHorizontalHeaderLabels({tr("category"), tr("name"), tr("type"), tr("property"), tr("value")});
  m_ui->tableWidget->horizontalHeader()->setStretchLastSection(true);
  TableMenu::offerCopy(*m_ui->tableWidget);
  connect(m_ui->tableWidget, &QTableWidget::cellChanged, this, [this](int row) { setCategory(row, rowAt(row)); });
  connect(m_list.get(), &CategoryList::edited, this, [this] {
    showList();
    informOnNecessaryUpdate();
  });
  connect(m_list.get(), &CategoryList::hasRead, this, &NivraNetObjectCats::showNewList);
  showRow(SearchRow, {QStringLiteral("fromSearch"), QString(), QString(), QStringLiteral("^name$"), QString(), false});
  showNewList();
}

NivraNetObjectCats::~NivraNetObjectCats() = default;

void NivraNetObjectCats::on_pushButtonReload_clicked() {
  if (settleChanges())
    m_list->read();
}

bool NivraNetObjectCats::settleChanges() {
  if (QWidget *typedInto = QApplication::focusWidget())
    typedInto->clearFocus(); // what is just being typed is a change
  if (!m_list->isChanged() || !NivraMsg::showsBoxes())
    return true;
  using NivraMsg::Answer;
  const Answer answer = NivraMsg::show({NivraMsg::Kind::Question,
                                        tr("The categories have changes that are not saved. Save them?"),
                                        tr("Element Categories"),
                                        {Answer::Save, Answer::Discard, Answer::Cancel},
                                        Answer::Save});
  return answer == Answer::Save ? save() : answer == Answer::Discard;
}

void NivraNetObjectCats::showNewList() {
  showList();
  m_ui->tableWidget->resizeColumnsToContents();
  on_pushButtonUse_clicked();
}

void NivraNetObjectCats::showList() {
  int row = SearchRow;
  for (const Category &category : m_list->categories())
    showRow(++row, category);
  const QSignalBlocker blocker(m_ui->tableWidget);
  m_ui->tableWidget->setRowCount(row + 1);
}

void NivraNetObjectCats::showRow(int row, const Category &category) {
  const QSignalBlocker blocker(m_ui->tableWidget);
  if (row == m_ui->tableWidget->rowCount())
    insertRow(row);
  const QStringList texts{category.category, category.name, category.type, category.prop, category.value};
  for (int column = CategoryColumn; column <= ValueColumn; ++column)
    m_ui->tableWidget->item(row, column)->setText(texts.at(column));
  m_ui->tableWidget->item(row, CategoryColumn)->setCheckState(category.isChecked ? Qt::Checked : Qt::Unchecked);
}

void NivraNetObjectCats::insertRow(int row) {
  m_ui->tableWidget->insertRow(row);
  for (int column = CategoryColumn; column <= ValueColumn; ++column) {
    auto *cell = new QTableWidgetItem;
    if (row == SearchRow)
      cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled); // it follows the search
    if (column == CategoryColumn)
      cell->setToolTip(tr("check for report"));
    m_ui->tableWidget->setItem(row, column, cell);
  }
}

Category NivraNetObjectCats::rowAt(int row) const {
  const auto text = [&](int column) {
    return m_ui->tableWidget->item(row, column)->text().trimmed();
  };
  return {text(CategoryColumn), text(NameColumn),
          text(TypeColumn),     text(PropertyColumn),
          text(ValueColumn),    m_ui->tableWidget->item(row, CategoryColumn)->checkState() == Qt::Checked};
}

std::vector<Category> NivraNetObjectCats::categories() const {
  std::vector<Category> all{rowAt(SearchRow)};
  all.insert(all.end(), m_list->categories().begin(), m_list->categories().end());
  return all;
}

/// Not of the search.
void NivraNetObjectCats::setCategory(int row, const Category &category) {
  if (row > SearchRow)
    m_list->set(static_cast<std::size_t>(row - 1), category);
}

Category NivraNetObjectCats::defined(const Category &named, const QStringList &strList) {
  return {named.category, strList.value(0), strList.value(1), strList.value(2), strList.value(3), named.isChecked};
}

void NivraNetObjectCats::updateTempCategory(const QStringList &strList) {
  showRow(SearchRow, defined(rowAt(SearchRow), strList));
  on_pushButtonUse_clicked();
}

void NivraNetObjectCats::addCategory(const QStringList &strList, const QString &catName) {
  const int row = m_ui->tableWidget->rowCount();
  Category named;
  named.category = catName.isEmpty() ? QStringLiteral("Cat%1").arg(row) : catName;
  m_list->append(defined(named, strList));
  m_ui->tableWidget->setCurrentCell(row, CategoryColumn);
  show();
  raise();
}

void NivraNetObjectCats::addToCurrentCategory(const QStringList &strList) {
  const int row = m_ui->tableWidget->currentRow();
  if (row > SearchRow)
    setCategory(row, defined(rowAt(row), strList));
}

void NivraNetObjectCats::on_toolButtonAdd_clicked() {
  addCategory({QString(), QString(), QStringLiteral("^name$"), QString()});
}

void NivraNetObjectCats::on_toolButtonRemove_clicked() {
  const int row = m_ui->tableWidget->currentRow();
  if (row > SearchRow) // which stays
    m_list->remove(static_cast<std::size_t>(row - 1));
}

void NivraNetObjectCats::on_pushButtonOK_clicked() {
  save();
}

bool NivraNetObjectCats::save() {
  QString error;
  if (m_list->save(&error))
    return true;
  NivraMsg::message(NivraMsg::Kind::Warning, error);
  return false;
}

void NivraNetObjectCats::on_pushButtonUse_clicked() {
  emit catChanged(CategoryFile::toMap(categories()));
  informOnPerformedUpdate();
}

void NivraNetObjectCats::on_toolButtonToSearch_clicked() {
  const int row = m_ui->tableWidget->currentRow();
  if (row < 0)
    return;
  const Category category = rowAt(row);
  emit toSearch({category.name, category.type, category.prop, category.value}, true);
}

void NivraNetObjectCats::on_toolButtonShowInTable_clicked() {
  const int row = m_ui->tableWidget->currentRow();
  if (row < 0) {
    NivraMsg::message(NivraMsg::Kind::Warning, tr("Mark a row first!"));
    return;
  }
  on_pushButtonUse_clicked();
  emit showInTable(rowAt(row).category);
}

void NivraNetObjectCats::informOnNecessaryUpdate() {
  m_ui->pushButtonUse->setIcon(actionIcon("agt_update_recommended1"));
}

void NivraNetObjectCats::informOnPerformedUpdate() {
  m_ui->pushButtonUse->setIcon(actionIcon("agt_update_misc"));
}
