#pragma once

#include <base/finding.h>

#include <QJsonObject>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

/// The record of one scenario: which files belong to it.
struct NivraScenario {
  QString configFile = QStringLiteral("test.scen.cfg");
  QString baseName;                          ///< of the opened scenario file, before its first dot
  QString workDir = QStringLiteral("EMPTY"); ///< name of the scenario directory
  QString scenFile = QStringLiteral("test.scen");
  QString gasFile;
  QString furtherFile; ///< carried by the text configurations only, kept as it is
  QString comprDatabase = QStringLiteral("../verdichter_daten.txt");
  QString pyFile = QStringLiteral("nivra_run.py");
  QString logFile = QStringLiteral("nivra_run.log");
  QString resRoot = QStringLiteral("nivra_run");
  QString statusFile = QStringLiteral("nivra_run.stat");
  QString version = QStringLiteral("not known"); ///< of the program that wrote it
  QMap<QString, QString> generalProps;
  QStringList resultFiles{
      QStringLiteral("boundsviolations.csv"), QStringLiteral("targetchecks.csv"), QStringLiteral("hydratewarnings.csv"),
      QStringLiteral("QP_balances.csv"),      QStringLiteral("supplyStatus.csv"), QStringLiteral("solverinfo.csv"),
      QStringLiteral("additionalInfo.csv"),   QStringLiteral("gasnodeInfo.csv"),  QStringLiteral("regulatorInfo.csv")};

  QMap<QString, QString> origin; ///< per JSON key ("GeneralProps/name" for a general property), the file that set it

  /// A work directory "EMPTY", "." or empty stands for no scenario.
  bool isAbsent() const;
  /// A key that is absent or of another type leaves its field; those that are absent are returned, for the log.
  /// \param file path, for origin
  Findings fromJson(const QJsonObject &object, const QString &file = QString());
  /// Key and value of the fields that name files and the version.
  QVector<QPair<QString, QString>> entries() const;
};
