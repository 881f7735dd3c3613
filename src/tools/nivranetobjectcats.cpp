#include "ui_nivranetobjectcats.h"

#include <base/nivramsg.h>
#include <tools/nivranetobjectcats.h>
#include <tools/tablemenu.h>

#include <QEvent>
#include <QMessageBox>

namespace {

enum Column { CategoryColumn, NameColumn, TypeColumn, PropertyColumn, ValueColumn };

QIcon actionIcon(const char *name) {
  return QIcon(QStringLiteral(":/iconsToolBar/crystal_project_icons/32x32/actions/%1").arg(QLatin1String(name)));
}

} // namespace

NivraNetObjectCats::NivraNetObjectCats(QWidget *parent)
    : QDockWidget(parent)
    , m_ui(std::make_unique<Ui::NivraNetObjectCats>()) {
  qRegisterMetaType<CatMap>("CatMap");
  m_ui->setupUi(this);
  m_ui->tableWidget->setHorizontalHeaderLabels({tr("category"), tr("name"), tr("type"), tr("property"), tr("value")});
  m_ui->tableWidget->horizontalHeader()->setStretchLastSection(true);
  TableMenu::offerCopy(*m_ui->tableWidget);
  connect(m_ui->tableWidget, &QTableWidget::cellChanged, this, &NivraNetObjectCats::setChanged);
  appendRow({QStringLiteral("fromSearch"), QString(), QString(), QStringLiteral("^name$"), QString(), false});
  if (parent != nullptr)
    parent->installEventFilter(this);
}

NivraNetObjectCats::~NivraNetObjectCats() = default;

void NivraNetObjectCats::setFile(const QString &path) {
  m_path = path;
  readFile();
}

void NivraNetObjectCats::on_pushButtonReload_clicked() {
  if (settleChanges())
    readFile();
}

void NivraNetObjectCats::readFile() {
  const QSignalBlocker blocker(m_ui->tableWidget);
  m_ui->tableWidget->setSortingEnabled(false);
  m_ui->tableWidget->setRowCount(1); // that of the search
  if (!m_path.isEmpty()) {
    for (const Category &category : CategoryFile::read(m_path))
      appendRow(category);
  }
  m_isChanged = false;
  m_ui->tableWidget->resizeColumnsToContents();
  on_pushButtonUse_clicked();
}

bool NivraNetObjectCats::settleChanges() {
  if (!m_isChanged || !NivraMsg::isInteractive())
    return true;
  const auto answer =
      QMessageBox::question(this, tr("Element Categories"), tr("The categories have changes that are not saved. Save them?"),
                            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
  return answer == QMessageBox::Save ? save() : answer == QMessageBox::Discard;
}

bool NivraNetObjectCats::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Close && watched == parent() && !settleChanges()) {
    event->ignore();
    return true;
  }
  return QDockWidget::eventFilter(watched, event);
}

void NivraNetObjectCats::setChanged() {
  m_isChanged = true;
  informOnNecessaryUpdate();
}

void NivraNetObjectCats::appendRow(const Category &category) {
  const QSignalBlocker blocker(m_ui->tableWidget);
  const int row = m_ui->tableWidget->rowCount();
  m_ui->tableWidget->insertRow(row);
  const QStringList texts{category.category, category.name, category.type, category.prop, category.value};
  for (int column = CategoryColumn; column <= ValueColumn; ++column) {
    auto *cell = new QTableWidgetItem(texts.at(column));
    if (row == 0)
      cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled); // it follows the search
    if (column == CategoryColumn) {
      cell->setCheckState(category.isChecked ? Qt::Checked : Qt::Unchecked);
      cell->setToolTip(tr("check for report"));
    }
    m_ui->tableWidget->setItem(row, column, cell);
  }
}

Category NivraNetObjectCats::rowAt(int row) const {
  const auto text = [&](int column) {
    const QTableWidgetItem *cell = m_ui->tableWidget->item(row, column);
    return cell == nullptr ? QString() : cell->text().trimmed();
  };
  return {text(CategoryColumn), text(NameColumn),
          text(TypeColumn),     text(PropertyColumn),
          text(ValueColumn),    m_ui->tableWidget->item(row, CategoryColumn)->checkState() == Qt::Checked};
}

std::vector<Category> NivraNetObjectCats::categories() const {
  std::vector<Category> all;
  all.reserve(static_cast<std::size_t>(m_ui->tableWidget->rowCount()));
  for (int row = 0; row < m_ui->tableWidget->rowCount(); ++row)
    all.push_back(rowAt(row));
  return all;
}

void NivraNetObjectCats::setTexts(int row, const QStringList &strList) {
  const QSignalBlocker blocker(m_ui->tableWidget);
  for (int column = NameColumn; column <= ValueColumn; ++column)
    m_ui->tableWidget->item(row, column)->setText(strList.value(column - NameColumn));
}

void NivraNetObjectCats::updateTempCategory(const QStringList &strList) {
  setTexts(0, strList);
  on_pushButtonUse_clicked();
}

void NivraNetObjectCats::addCategory(const QStringList &strList, const QString &catName) {
  const int row = m_ui->tableWidget->rowCount();
  appendRow(
      {catName.isEmpty() ? QStringLiteral("Cat%1").arg(row) : catName, QString(), QString(), QString(), QString(), false});
  setTexts(row, strList);
  m_ui->tableWidget->setCurrentCell(row, CategoryColumn);
  show();
  raise();
  setChanged();
}

void NivraNetObjectCats::addToCurrentCategory(const QStringList &strList) {
  if (m_ui->tableWidget->currentRow() <= 0)
    return;
  setTexts(m_ui->tableWidget->currentRow(), strList);
  setChanged();
}

void NivraNetObjectCats::on_toolButtonAdd_clicked() {
  addCategory({QString(), QString(), QStringLiteral("^name$"), QString()});
}

void NivraNetObjectCats::on_toolButtonRemove_clicked() {
  if (m_ui->tableWidget->currentRow() <= 0)
    return; // that of the search stays
  m_ui->tableWidget->removeRow(m_ui->tableWidget->currentRow());
  setChanged();
}

void NivraNetObjectCats::on_pushButtonOK_clicked() {
  save();
}

bool NivraNetObjectCats::save() {
  std::vector<Category> kept = categories();
  kept.erase(kept.begin());
  QString error;
  if (!CategoryFile::write(m_path, kept, &error)) {
    NivraMsg::message(NivraMsg::Kind::Warning, error);
    return false;
  }
  m_isChanged = false;
  return true;
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
