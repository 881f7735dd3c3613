#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

/// The program in a process of its own.
namespace ProgramRun {

struct Outcome {
  int status = -1;
  QByteArray output;
  QByteArray errors;
  QJsonObject info() const { return QJsonDocument::fromJson(output).object(); }
  QStringList lines() const { return QString::fromUtf8(output).split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
};

/// As a person would run it from a shell without a display.
inline Outcome runProgram(const QString &program, const QStringList &arguments, const QString &dataHome) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "NIVRA_BATCH"})
    environment.remove(QLatin1String(name));
  environment.insert(QStringLiteral("XDG_DATA_HOME"), dataHome);
  environment.insert(QStringLiteral("XDG_CONFIG_HOME"), dataHome);
  environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), dataHome); // without one the toolkit talks about it
  environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0")); // the platform plugin leaks
  process.setProcessEnvironment(environment);
  process.start(program, arguments);
  constexpr int PatienceMs = 120000;
  process.waitForFinished(PatienceMs);
  return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAllStandardOutput(),
          process.readAllStandardError()};
}

inline Outcome run(const QStringList &arguments, const QString &dataHome) {
  return runProgram(QStringLiteral(NIVRA_PROGRAM), arguments, dataHome);
}

} // namespace ProgramRun
