#pragma once

#include <base/fileaccess.h>
#include <base/finding.h>

#include <QString>
#include <QStringList>

#include <map>

/// The process-wide named settings: a built-in table, overlaid from a settings file. Keys are compared exactly. What the
/// viewer acts on is asked for through base/settings.h.
class GeneralSettings {
public:
  struct Entry {
    QString value;
    QString type; ///< "bool" (value "1" or "0"), "string" or "list"
    QString category;
    QString options;     ///< for "list": the allowed values joined by ","
    QString description; ///< free text, from the settings file
  };

  static GeneralSettings &instance();

  GeneralSettings();

  /// Empty text for a key that the store does not hold.
  QString value(const QString &key) const;
  /// value() as a switch: "1", "on" and "true" are on, whatever their case.
  bool isOn(const QString &key) const;
  const std::map<QString, Entry> &entries() const { return m_entries; }

  /// Sets a value for this run; an unknown key is ignored and yields false.
  bool setValue(const QString &key, const QString &value);

  void reset(); ///< back to the built-in table
  /// Resets, then overlays the settings file: workspaceDir + "/generalsettings_" + user + ".csv", or
  /// "generalsettings.csv" in userDirectory() when workspaceDir is empty. Returns the number of lines taken.
  int load(const QString &workspaceDir, const Told &told);
  int loadFile(const QString &path, FileAccess::Source source, const Told &told);

  static QString settingsFile(const QString &workspaceDir);
  static QString userDirectory(); ///< where "generalsettings.csv" and "stylesheet.qss" are looked for
  static QString userName();      ///< USERNAME, else USER

private:
  bool takeLine(const QString &line, int lineNumber, const QString &path, const Told &told);

  std::map<QString, Entry> m_entries;
};
