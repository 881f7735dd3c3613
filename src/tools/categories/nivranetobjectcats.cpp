#include "categories/categorymodel.h"
#include "ui_nivranetobjectcats.h"

#include <base/index.h>
#include <base/nivramsg.h>
#include <tools/nivranetobjectcats.h>
#include <tools/paletteicon.h>
#include <tools/tablemenu.h>

#include <QApplication>

namespace {

QIcon actionIcon(const char *name) {
  return paletteIcon(QStringLiteral(":/iconsToolBar/crystal_project_icons/32x32/actions/%1").arg(QLatin1String(name)));
}

} // namespace

NivraNetObjectCats::NivraNetObjectCats(std::shared_ptr<CategoryList> list, QWidget *parent)
    : QDockWidget(parent)
    , m_ui(std::make_unique<Ui::NivraNetObjectCats>())
    , m_list(std::move(list))
    , m_model(new CategoryModel(m_list, this)) {
  qRegisterMetaType<CatMap>("CatMap");
  m_ui->setupUi(this);
  m_ui->table->setModel(m_model);
  m_ui->table->horizontalHeader()->setStretchLastSection(true);
  TableMenu::offerCopy(*m_ui->table);
  connect(m_list.get(), &CategoryList::changed, this, [this](CategoryList::Change change) {
    if (change == CategoryList::Change::Read)
      showNewList();
    else
      informOnNecessaryUpdate();
  });
  showNewList();
}

NivraNetObjectCats::~NivraNetObjectCats() = default;

void NivraNetObjectCats::on_pushButtonReload_clicked() {
  if (settleChanges())
    m_list->read();
}

bool NivraNetObjectCats::hasChanges() {
  if (QWidget *typedInto = QApplication::focusWidget())
    typedInto->clearFocus(); // what is just being typed is a change
  return m_list->isChanged();
}

bool NivraNetObjectCats::settleChanges() {
  if (!hasChanges() || !NivraMsg::showsBoxes())
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
  m_ui->table->resizeColumnsToContents();
  on_pushButtonUse_clicked();
}

std::vector<Category> NivraNetObjectCats::categories() const {
  std::vector<Category> all{m_model->category(CategoryModel::SearchRow)};
  all.insert(all.end(), m_list->categories().begin(), m_list->categories().end());
  return all;
}

int NivraNetObjectCats::currentRow() const {
  return m_ui->table->currentIndex().row();
}

Category NivraNetObjectCats::defined(const Category &named, const QStringList &strList) {
  return {named.category, strList.value(0), strList.value(1), strList.value(2), strList.value(3), named.isChecked};
}

void NivraNetObjectCats::updateTempCategory(const QStringList &strList) {
  m_model->setSearch(defined(m_model->category(CategoryModel::SearchRow), strList));
  on_pushButtonUse_clicked();
}

void NivraNetObjectCats::addCategory(const QStringList &strList, const QString &catName) {
  const int row = m_model->rowCount();
  Category named;
  named.category = catName.isEmpty() ? QStringLiteral("Cat%1").arg(row) : catName;
  m_list->append(defined(named, strList));
  m_ui->table->setCurrentIndex(m_model->index(row, CategoryModel::CategoryColumn));
  show();
  raise();
}

void NivraNetObjectCats::addToCurrentCategory(const QStringList &strList) {
  const int row = currentRow();
  if (row > CategoryModel::SearchRow)
    m_list->set(fromQt(CategoryModel::indexOf(row)), defined(m_model->category(row), strList));
}

void NivraNetObjectCats::on_toolButtonAdd_clicked() {
  addCategory({QString(), QString(), QStringLiteral("^name$"), QString()});
}

void NivraNetObjectCats::on_toolButtonRemove_clicked() {
  const int row = currentRow();
  if (row > CategoryModel::SearchRow) // which stays
    m_list->remove(fromQt(CategoryModel::indexOf(row)));
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
  const int row = currentRow();
  if (row < 0)
    return;
  const Category &category = m_model->category(row);
  emit toSearch({category.name, category.type, category.prop, category.value}, true);
}

void NivraNetObjectCats::on_toolButtonShowInTable_clicked() {
  const int row = currentRow();
  if (row < 0) {
    NivraMsg::message(NivraMsg::Kind::Warning, tr("Mark a row first!"));
    return;
  }
  on_pushButtonUse_clicked();
  emit showInTable(m_model->category(row).category);
}

void NivraNetObjectCats::informOnNecessaryUpdate() {
  m_ui->pushButtonUse->setIcon(actionIcon("agt_update_recommended1"));
}

void NivraNetObjectCats::informOnPerformedUpdate() {
  m_ui->pushButtonUse->setIcon(actionIcon("agt_update_misc"));
}
