#pragma once

#include <base/finding.h>
#include <drawing/plotsettings.h>

#include <QCoreApplication>

#include <optional>

/// "plotsettings.ini", an INI file.
class PlotSettingsFile {
  Q_DECLARE_TR_FUNCTIONS(PlotSettingsFile)
public:
  /// What becomes of settings that a text says nothing of.
  enum class Missing {
    Default, ///< most of them are as in the beginning, as a case says all of them
    Kept     ///< they stay, as a style lies over them
  };

  /// Reads the file over the settings key by key; what is no number is told and counts as missing, what is no colour becomes
  /// an invalid one. False when there is no such file or it cannot be read: then nothing changes.
  /// \param told what is wrong with the file
  static bool read(const QString &path, PlotSettings &settings, const Told &told = {});

  /// The text of such a file, over the settings likewise.
  /// \param path for what is told
  /// False when no key of it is one of such a file.
  static bool readText(const QByteArray &content, const QString &path, PlotSettings &settings, const Told &told = {},
                       Missing missing = Missing::Default);
  /// With every key; nothing, with the reason, when there is no room for a draft of it.
  static std::optional<QByteArray> text(const PlotSettings &settings, QString *error = nullptr);
  /// As text(), of what makes a style of any network: neither what a case is about, nor how a person moves in the drawing,
  /// nor the colours of the ground where they are those of the beginning.
  static std::optional<QByteArray> styleText(const PlotSettings &settings, QString *error = nullptr);

  /// Writes every key. The file is written whole or stays as it was; false with the reason when it could not be written.
  static bool write(const QString &path, const PlotSettings &settings, QString *error = nullptr);
};
