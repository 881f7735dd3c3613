#pragma once

#include <base/fileaccess.h>
#include <base/finding.h>

#include <QString>
#include <QStringList>

#include <atomic>
#include <map>
#include <optional>

/// The process-wide named settings: a built-in table, overlaid from the user's settings file and, over it, from that of the
/// workspace. Keys are compared exactly. What the viewer acts on is asked for through base/settings.h.
class GeneralSettings {
public:
  /// The layers, each over those before it.
  enum class Layer {
    BuiltIn,
    User,
    Workspace,
    Run ///< set by setValue(), in no file
  };
  struct Entry {
    QString value;
    QString type; ///< "bool" (value "1" or "0"), "string" or "list"
    QString category;
    QString options;              ///< for "list": the allowed values joined by ","
    QString description;          ///< free text, from the settings file
    Layer layer = Layer::BuiltIn; ///< that the value is of
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

  /// What a layer says of the key by itself, nothing when it is silent.
  std::optional<QString> valueIn(Layer layer, const QString &key) const;
  /// Whether a value can stand in for the built-in one: a switch stays a switch, a choice one of its options, and a setting
  /// whose default is a number stays a number.
  static bool suits(const QString &key, const QString &value);
  /// Another one whenever any value may have changed, for those who keep what they made of values.
  unsigned revision() const { return m_revision; }

  void reset(); ///< back to the built-in table
  /// Resets, then overlays "generalsettings.csv" in userDirectory() and, unless workspaceDir is empty, workspaceDir +
  /// "/generalsettings_" + user + ".csv". Returns the number of lines taken of the last.
  int load(const QString &workspaceDir, const Told &told);
  /// Resets, then overlays this file alone.
  int loadFile(const QString &path, FileAccess::Source source, const Told &told);

  static QString settingsFile(const QString &workspaceDir);
  static QString userDirectory(); ///< where "generalsettings.csv" and "stylesheet.qss" are looked for
  static QString userName();      ///< USERNAME, else USER

private:
  int overlay(const QString &path, FileAccess::Source source, const Told &told);
  int takeLines(QByteArray content, const QString &path, Layer layer, const Told &told);
  bool takeLine(const QString &line, const QString &where, Layer layer, const Told &told);

  std::map<QString, Entry> m_entries;
  std::map<Layer, std::map<QString, QString>> m_layers; ///< values by key, of what is not built in
  std::atomic<unsigned> m_revision = 0;
};
