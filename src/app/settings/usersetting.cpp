#include "settings/usersetting.h"

#include <base/generalsettings.h>
#include <base/settingsfile.h>

using Layer = GeneralSettings::Layer;

QString UserSetting::value(const QString &key) {
  const GeneralSettings &settings = GeneralSettings::instance();
  const GeneralSettings::Entry &entry = settings.entries().at(key);
  if (entry.layer == Layer::Run)
    return entry.value;
  const QString builtIn = settings.valueIn(Layer::BuiltIn, key).value_or(QString());
  return settings.valueIn(Layer::User, key).value_or(builtIn);
}

bool UserSetting::store(const QString &key, const QString &value, QString *reason) {
  const QString path = GeneralSettings::settingsFile(QString());
  SettingsFile file;
  if (!file.read(path, reason))
    return false;
  if (GeneralSettings::instance().valueIn(Layer::BuiltIn, key) == value)
    file.remove(key);
  else
    file.set(key, value);
  return file.write(path, reason);
}
