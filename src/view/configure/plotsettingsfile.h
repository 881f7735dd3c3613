#pragma once

#include <QString>

#include <drawing/plotsettings.h>

/// "plotsettings.ini", an INI file.
namespace PlotSettingsFile {

/// Reads the file over the settings key by key; values of a wrong type become 0, false or an invalid colour. A missing
/// file is logged, changes nothing and yields false with the reason.
bool read(const QString &path, PlotSettings &settings, QString *error = nullptr);

/// Writes every key. The file is written whole or stays as it was; false with the reason when it could not be written.
bool write(const QString &path, const PlotSettings &settings, QString *error = nullptr);

} // namespace PlotSettingsFile
