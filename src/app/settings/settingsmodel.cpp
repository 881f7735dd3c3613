#include "settingsmodel.h"

#include <tools/plaintip.h>

#include <QColor>

namespace {

using Kind = SettingDescription::Kind;
using Layer = SettingsDraft::Layer;

} // namespace

SettingsModel::SettingsModel(SettingsDraft &draft, QObject *parent)
    : GroupModel({tr("Setting"), tr("Value"), tr("From")}, parent)
    , m_draft(draft) {
  for (SettingDescription &setting : SettingDescription::all()) {
    if (m_groups.empty() || m_groups.back().name != setting.group)
      m_groups.push_back({setting.group, {}});
    m_groups.back().settings.push_back(std::move(setting));
  }
}

const SettingDescription *SettingsModel::at(const QModelIndex &index) const {
  return index.isValid() && index.parent().isValid() ? &m_groups[fromQt(index.parent().row())].settings[fromQt(index.row())]
                                                     : nullptr;
}

QModelIndex SettingsModel::find(const QString &key, int column) const {
  for (std::size_t group = 0; group < m_groups.size(); ++group) {
    const std::vector<SettingDescription> &settings = m_groups[group].settings;
    for (std::size_t i = 0; i < settings.size(); ++i) {
      if (settings[i].key == key)
        return index(toQt(i), column, index(toQt(group), 0));
    }
  }
  return QModelIndex();
}

Qt::ItemFlags SettingsModel::flags(const QModelIndex &index) const {
  const Qt::ItemFlags usual = GroupModel::flags(index);
  const SettingDescription *setting = at(index);
  if (setting == nullptr || index.column() != ValueColumn)
    return usual;
  return usual | (setting->kind == Kind::Switch ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

bool SettingsModel::setData(const QModelIndex &index, const QVariant &value, int role) {
  const SettingDescription *setting = at(index);
  if (setting == nullptr || index.column() != ValueColumn)
    return false;
  if (setting->kind == Kind::Switch && role == Qt::CheckStateRole) {
    // The box shows what the workspace says, if it says something; a person means the value below it.
    const bool wasOn = setting->options.indexOf(m_draft.own(setting->key)) == 1;
    const bool isOn = m_draft.isOverridden(setting->key) ? !wasOn : value.toInt() != Qt::Unchecked;
    return set(setting->key, setting->options.at(isOn ? 1 : 0));
  }
  return role == Qt::EditRole && set(setting->key, value.toString());
}

bool SettingsModel::set(const QString &key, const QString &value) {
  const QModelIndex index = find(key);
  const SettingDescription *setting = at(index);
  if (setting == nullptr)
    return false;
  if (value.trimmed() == m_draft.own(key))
    return true;
  if (!setting->allows(value.trimmed()) || !m_draft.set(key, value))
    return false;
  tellChange(index);
  return true;
}

void SettingsModel::reset(const QString &key) {
  if (!m_draft.hasOwn(key))
    return;
  m_draft.reset(key);
  tellChange(find(key));
}

void SettingsModel::resetAll() {
  m_draft.resetAll();
  for (int group = 0; group < groupCount(); ++group) {
    const QModelIndex parent = index(group, 0);
    emit dataChanged(index(0, NameColumn, parent), index(entryCount(group) - 1, OriginColumn, parent));
  }
  emit edited();
}

void SettingsModel::tellChange(const QModelIndex &value) {
  emit dataChanged(value.siblingAtColumn(NameColumn), value.siblingAtColumn(OriginColumn));
  emit edited();
}

QVariant SettingsModel::groupData(int group, int column, int role) const {
  if (role == Qt::DisplayRole && column == NameColumn)
    return m_groups[fromQt(group)].name;
  return role == Qt::FontRole ? boldFont() : QVariant();
}

QVariant SettingsModel::entryData(int group, int entry, int column, int role) const {
  const SettingDescription &setting = m_groups[fromQt(group)].settings[fromQt(entry)];
  switch (role) {
  case KeyRole:
    return setting.key;
  case WordsRole:
    return QString(setting.key + QLatin1Char('\n') + setting.text);
  case ChangedRole:
    return m_draft.layer(setting.key) != Layer::BuiltIn || m_draft.hasOwn(setting.key);
  case Qt::ToolTipRole:
    return PlainTip::of(setting.text);
  case Qt::FontRole:
    return column == ValueColumn && m_draft.layer(setting.key) != Layer::BuiltIn ? boldFont() : QVariant();
  default:
    break;
  }
  if (column == ValueColumn)
    return valueData(setting, role);
  return role == Qt::DisplayRole ? (column == NameColumn ? setting.key : origin(setting)) : QVariant();
}

/// Shown is the value in force; edited is the user's own.
QVariant SettingsModel::valueData(const SettingDescription &setting, int role) const {
  const QString value = m_draft.value(setting.key);
  switch (role) {
  case Qt::DisplayRole:
    return setting.shown(value);
  case Qt::EditRole:
    return m_draft.own(setting.key);
  case Qt::CheckStateRole:
    return setting.kind == Kind::Switch ? QVariant(setting.options.indexOf(value) == 1 ? Qt::Checked : Qt::Unchecked)
                                        : QVariant();
  case Qt::DecorationRole:
    return setting.kind == Kind::Colour ? QVariant(QColor(value)) : QVariant();
  default:
    return QVariant();
  }
}

QString SettingsModel::origin(const SettingDescription &setting) const {
  switch (m_draft.layer(setting.key)) {
  case Layer::Workspace:
    return m_draft.hasOwn(setting.key) ? tr("workspace, in place of your %1").arg(setting.shown(m_draft.own(setting.key)))
                                       : tr("workspace");
  case Layer::User:
    return tr("you");
  case Layer::BuiltIn:
  case Layer::Run:
    break;
  }
  return tr("built in");
}

QString SettingsModel::about(const QModelIndex &index) const {
  const SettingDescription *setting = at(index);
  if (setting == nullptr)
    return QString();
  const QString builtIn = setting->shown(m_draft.builtIn(setting->key));
  QStringList said{setting->key, setting->text};
  QStringList facts{tr("Built in: %1.").arg(builtIn.isEmpty() ? tr("nothing") : builtIn)};
  if (!setting->boundsText().isEmpty())
    facts.append(tr("From %1.").arg(setting->boundsText()));
  facts.append(setting->whenItTakes());
  said.append(facts.join(QLatin1Char(' ')));
  if (m_draft.isOverridden(setting->key))
    said.append(tr("The workspace says %1, which holds while it is open, whatever you choose here (%2).")
                    .arg(setting->shown(m_draft.value(setting->key)), m_draft.workspaceFile()));
  return said.join(QLatin1Char('\n'));
}
