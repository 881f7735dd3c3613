#pragma once

#include <QString>

/// General settings that are a person's own, such as the language: a workspace, which may be somebody else's, has no say.
namespace UserSetting {

/// What was set for this run, else what the user's file says, else the built-in value; as the settings were last loaded.
QString value(const QString &key);
/// Writes the value into the user's file; the built-in one takes it out. False with the reason. The settings are not loaded
/// anew.
bool store(const QString &key, const QString &value, QString *reason);

} // namespace UserSetting
