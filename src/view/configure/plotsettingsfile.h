#pragma once

#include <base/finding.h>
#include <drawing/plotsettings.h>

#include <QCoreApplication>

#include <optional>

/// "plotsettings.ini", an INI file.
class PlotSettingsFile {
  Q_DECLARE_TR_FUNCTIONS(PlotSettingsFile)
public:
  /// Reads the file over the settings key by key; what is no number is told and counts as missing, what is no colour becomes
  /// an invalid one. False when there is no such file or it cannot be read: then nothing changes.
  /// \param told what is wrong with the file
  static bool read(const QString &path, PlotSettings &settings, const Told &told = {});

  /// The text of such a file, over the settings likewise.
  /// \param path for what is told
  static void readText(const QByteArray &content, const QString &path, PlotSettings &settings, const Told &told = {});
  /// With every key; nothing, with the reason, when there is no room for a draft of it.
  static std::optional<QByteArray> text(const PlotSettings &settings, QString *error = nullptr);

  /// Writes every key. The file is written whole or stays as it was; false with the reason when it could not be written.
  static bool write(const QString &path, const PlotSettings &settings, QString *error = nullptr);
};
