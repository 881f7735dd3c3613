#pragma once

#include "settingdescription.h"

#include <QStyledItemDelegate>

/// Editors of settings by what they are: a list for a choice, a field with bounds for a number, a field with a button for a
/// colour and a path. One of what cannot be marks it and keeps the value before.
class SettingsDelegate : public QStyledItemDelegate {
  Q_OBJECT
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
  void setEditorData(QWidget *editor, const QModelIndex &index) const override;
  void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

private:
  QWidget *makeChoice(const SettingDescription &setting, QWidget *parent) const;
};
