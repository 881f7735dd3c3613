#pragma once

#include <support/smallfiles.h>

#include <QDir>
#include <QTemporaryDir>

/// A small workspace on disk: case "CASE" with three nodes and two edges, scenario "S1".
class WorkspaceFixture {
public:
  WorkspaceFixture() {
    QDir(m_root.path()).mkpath(QStringLiteral("CASE/S1"));
    writeGeometry(soundGeometry());
    write(QStringLiteral("CASE/CASE.geom.cfg"), "geometry configuration\nCASE\nCASE.geom\n");
    write(QStringLiteral("CASE/S1/S1.scen.jsn"), "{\n\"A\":[{\"property\":\"qset\",\"value\":-5}]\n}\n");
    write(QStringLiteral("CASE/S1/scenconfig.jsn"), "{\"workDir\":\"S1\",\"scenFile\":\"S1.scen\"}");
    write(QStringLiteral("CASE/S1/solverconfig.jsn"), "{}");
  }

  static QByteArray soundGeometry() {
    return "{\n"
           "\"A\":{\"obj_type\":\"node\",\"x\":0,\"y\":0,\"p\":50}\n"
           ",\"B\":{\"obj_type\":\"node\",\"x\":100,\"y\":0,\"p\":48}\n"
           ",\"C\":{\"obj_type\":\"node\",\"x\":100,\"y\":80,\"p\":60}\n"
           ",\"P1\":{\"obj_type\":\"pipe\",\"node1\":\"A\",\"node2\":\"B\",\"q\":5,\"length\":100}\n"
           ",\"K1\":{\"obj_type\":\"compressor\",\"node1\":\"B\",\"node2\":\"C\",\"q\":5}\n"
           "}\n";
  }

  /// Nodes A, B and C, a pipe and between A and B the subnet M.
  static QByteArray geometryWithSubnet() {
    return "{\n"
           "\"A\":{\"obj_type\":\"node\",\"x\":0,\"y\":0}\n"
           ",\"B\":{\"obj_type\":\"node\",\"x\":9,\"y\":0}\n"
           ",\"C\":{\"obj_type\":\"node\",\"x\":20,\"y\":0}\n"
           ",\"P\":{\"obj_type\":\"pipe\",\"node1\":\"B\",\"node2\":\"C\"}\n"
           ",\"M\":{\"obj_type\":\"subnet\",\"variant\":\"metering_station\",\"pins\":\"A;B\"}\n"
           "}\n";
  }

  /// A scenario in which as much leaves at C as enters at A, where the pressure is held, with results that say the same: it
  /// breaks no rule.
  void writeBalanced(const QString &scenario, const QByteArray &flow) const {
    const QString base = QStringLiteral("CASE/%1/%1").arg(scenario);
    write(base + QStringLiteral(".scen.jsn"),
          "{\n\"A\":[{\"property\":\"qset\",\"value\":-" + flow +
              "},{\"property\":\"pset\",\"value\":50}]\n,\"C\":[{\"property\":\"qset\",\"value\":" + flow + "}]\n}\n");
    write(base + QStringLiteral(".res.jsn"), "{\n\"P1\":{\"q\":" + flow + "}\n,\"K1\":{\"q\":" + flow + "}\n}\n");
  }

  QString root() const { return m_root.path(); }
  QString geometry() const { return path(QStringLiteral("CASE/CASE.geom.jsn")); }
  QString scenario() const { return path(QStringLiteral("CASE/S1/S1.scen.jsn")); }
  QString path(const QString &name) const { return m_root.filePath(name); }

  void writeGeometry(const QByteArray &text) const { write(QStringLiteral("CASE/CASE.geom.jsn"), text); }
  void write(const QString &name, const QByteArray &text) const { SmallFiles::write(path(name), text); }

private:
  QTemporaryDir m_root;
};
