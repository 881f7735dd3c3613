#include "settingsdraft.h"

#include <base/settingsfile.h>
#include <base/settingstable.h>

SettingsDraft::SettingsDraft(const QString &workspaceDir)
    : m_workspaceDir(workspaceDir) {
  m_stored.load(workspaceDir, [this](const Finding &finding) {
    if (finding.severity == Finding::Severity::Warning)
      m_findings.push_back(finding);
  });
  for (const SettingsTable::Row &row : SettingsTable::Rows) {
    const QString key = QString::fromLatin1(row.key);
    if (const std::optional<QString> text = m_stored.valueIn(Layer::User, key); text && *text != builtIn(key))
      m_own[key] = *text;
  }
  m_saved = m_own;
}

QString SettingsDraft::builtIn(const QString &key) const {
  return m_stored.valueIn(Layer::BuiltIn, key).value_or(QString());
}

QString SettingsDraft::own(const QString &key) const {
  const auto found = m_own.find(key);
  return found == m_own.end() ? builtIn(key) : found->second;
}

QString SettingsDraft::value(const QString &key) const {
  return m_stored.valueIn(Layer::Workspace, key).value_or(own(key));
}

SettingsDraft::Layer SettingsDraft::layer(const QString &key) const {
  if (m_stored.valueIn(Layer::Workspace, key))
    return Layer::Workspace;
  return hasOwn(key) ? Layer::User : Layer::BuiltIn;
}

bool SettingsDraft::set(const QString &key, const QString &value) {
  const QString text = value.trimmed();
  if (!GeneralSettings::suits(key, text))
    return false;
  if (text == builtIn(key))
    m_own.erase(key);
  else
    m_own[key] = text;
  return true;
}

bool SettingsDraft::save(QString *reason) {
  SettingsFile file;
  if (!file.read(userFile(), reason))
    return false;
  for (const auto &[key, text] : m_saved) {
    if (!hasOwn(key))
      file.remove(key);
  }
  for (const auto &[key, text] : m_own) {
    const auto before = m_saved.find(key);
    if (before == m_saved.end() || before->second != text)
      file.set(key, text);
  }
  if (!file.write(userFile(), reason))
    return false;
  m_saved = m_own;
  return true;
}
