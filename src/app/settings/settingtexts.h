#pragma once

#include <QString>

/// What each general setting does, in words for people.
namespace SettingTexts {

QString of(const QString &key);

} // namespace SettingTexts
