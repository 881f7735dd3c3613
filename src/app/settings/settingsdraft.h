#pragma once

#include <base/finding.h>
#include <base/generalsettings.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <map>

/// The general settings while somebody edits them: the user's own values change, those of the workspace lie over them and
/// stay. Nothing is written before save().
class SettingsDraft {
  Q_DECLARE_TR_FUNCTIONS(SettingsDraft)
public:
  using Layer = GeneralSettings::Layer;

  /// Reads the files anew. \param workspaceDir of the workspace that is open; empty for none
  explicit SettingsDraft(const QString &workspaceDir);

  /// What would hold if the draft were saved, and whose value that is.
  QString value(const QString &key) const;
  Layer layer(const QString &key) const;
  /// The user's own choice, which is that of the program where there is none.
  QString own(const QString &key) const;
  QString builtIn(const QString &key) const;
  bool hasOwn(const QString &key) const { return m_own.count(key) > 0; }
  /// The workspace says a value, so that the user's own has no effect while it is open.
  bool isOverridden(const QString &key) const { return layer(key) == Layer::Workspace; }

  /// False when the value does not suit the setting; nothing is changed then. The built-in value is no choice of one's own.
  bool set(const QString &key, const QString &value);
  void reset(const QString &key) { m_own.erase(key); }
  void resetAll() { m_own.clear(); }
  bool isChanged() const { return m_own != m_saved; }

  /// Writes what was changed into the user's file, where everything else stays. False with the reason.
  bool save(QString *reason);

  QString userFile() const { return GeneralSettings::settingsFile(QString()); }
  QString workspaceFile() const { return GeneralSettings::settingsFile(m_workspaceDir); }
  /// Lines of the files that say nothing.
  const Findings &findings() const { return m_findings; }

private:
  QString m_workspaceDir;
  GeneralSettings m_stored;         ///< as the files have them
  std::map<QString, QString> m_own; ///< of the user, by key of the built-in table
  std::map<QString, QString> m_saved;
  Findings m_findings;
};
