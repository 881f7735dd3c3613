#include "settingsdelegate.h"

#include "settingfield.h"
#include "settingsmodel.h"

#include <QComboBox>
#include <QSortFilterProxyModel>

namespace {

const SettingDescription *settingAt(const QModelIndex &index) {
  const auto *proxy = qobject_cast<const QSortFilterProxyModel *>(index.model());
  const auto *model = qobject_cast<const SettingsModel *>(proxy == nullptr ? index.model() : proxy->sourceModel());
  return model == nullptr ? nullptr : model->at(proxy == nullptr ? index : proxy->mapToSource(index));
}

} // namespace

QWidget *SettingsDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const {
  const SettingDescription *setting = settingAt(index);
  if (setting == nullptr)
    return QStyledItemDelegate::createEditor(parent, option, index);
  if (setting->kind == SettingDescription::Kind::Choice)
    return makeChoice(*setting, parent);
  return new SettingField(*setting, parent); // NOLINT(cppcoreguidelines-owning-memory): the view owns it
}

QWidget *SettingsDelegate::makeChoice(const SettingDescription &setting, QWidget *parent) const {
  auto *box = new QComboBox(parent);
  for (int i = 0; i < setting.options.size(); ++i)
    box->addItem(setting.titles.at(i), setting.options.at(i));
  box->setAccessibleName(setting.key);
  connect(box, qOverload<int>(&QComboBox::activated), this, [this, box] {
    auto *self = const_cast<SettingsDelegate *>(this); // NOLINT(cppcoreguidelines-pro-type-const-cast): its own signals
    emit self->commitData(box);
    emit self->closeEditor(box);
  });
  return box;
}

void SettingsDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const {
  const QString value = index.data(Qt::EditRole).toString();
  if (auto *box = qobject_cast<QComboBox *>(editor))
    box->setCurrentIndex(box->findData(value));
  else if (auto *field = qobject_cast<SettingField *>(editor))
    field->setText(value);
}

void SettingsDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const {
  if (const auto *box = qobject_cast<QComboBox *>(editor))
    model->setData(index, box->currentData());
  else if (const auto *field = qobject_cast<SettingField *>(editor); field != nullptr && field->isAllowed())
    model->setData(index, field->text());
}
