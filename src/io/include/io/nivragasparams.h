#pragma once

#include <base/finding.h>

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

/// Physical-model and solver settings of a scenario. The viewer reads and shows them; it does not compute with them.
/// Enumerations are integers that index the name lists below.
struct NivraGasParams {
  int ntype_gasLaw = 1;
  int ntype_hydraulicsFormula = 0;
  int ntype_gasMix = 1;
  int ntype_temperature = 1;
  bool ntype_transient = false;
  bool ntype_steady = true;
  double timeIntegration_start = 0.0; ///< s
  double timeIntegration_end = 3600.0;
  double timeIntegration_scal = 600.0;
  int ntype_nonlinsolver = 0;
  int ntype_jacobian = 0;
  int ntype_linsolver = 0;
  double tamb = 285.15;  ///< K
  double tsoil = 283.15; ///< K
  int ntype_HTC = 1;
  double HTC_value = 2.0; ///< W/(m2 K)
  double solver_simtol = 1e-5;
  double solver_opttol = 1e-5;
  double solver_mixtol = 1e-5;
  double solver_transtol = 1e-5;
  double FACT_OBJ_COMP_P = 1000.0;
  double FACT_OBJ_COMP_M = 1.0;
  double FACT_OBJ_REG_P = 10.0;
  double FACT_OBJ_REG_M = 1.0;
  double REG_PAR_eps = 1e-5;
  double REG_PAR_eps2 = 1e-6;
  double REG_PAR_R0 = 0.01;
  double REG_PAR_Preg = 0.0;
  double REG_PAR_Rlam = 0.1;
  double REG_PAR_atan_fact = 40.0;
  double REG_PAR_stalled_tol = 1e-10;
  int CompThermo = 0;
  int CompAdvanced = 0;
  double delta_flap = 0.01;
  QString solveType = QStringLiteral("Solve: auto ignore");
  QMap<QString, QString> source;  ///< per key, where a value came from
  QMap<QString, QString> comment; ///< per key, a comment

  /// What only the positional scenario configuration carries: fields 16 to 27 but for those with a name of their own. They
  /// are kept as they are; their meaning belongs to the solver.
  struct Positional {
    QString field16 = QStringLiteral("<none>");
    int field17 = 2;
    int field18 = 1;
    int field19 = 15;
    double field20 = 0.005;
    int field21 = 1; ///< "off", "on"
    int field23 = 0; ///< "qust", "isoeuler"
    double field24 = 4000.0;
    int field25 = 1;
    int field26 = 0;
    int field27 = 15;
  } positional;

  QMap<QString, QString> origin; ///< per key, the file that set it; without one the default stands

  void reset() { *this = NivraGasParams(); }
  /// Reads directory + "/solverconfig.jsn"; true on success. A file that is there but cannot be read is a finding.
  bool readFromFile(const QString &directory, Findings &findings);
  /// A key that is absent or of another type leaves its field as it was.
  /// \param file path, for origin
  void fromJson(const QJsonObject &object, const QString &file = QString());
  /// Sets the field of a key from text, as the one-line configuration gives it; false for a key that it does not know.
  bool setFromText(const QString &key, const QString &text, const QString &file = QString());

  struct Entry {
    QString key;
    QString value;
    QString word; ///< that an enumeration's number stands for
    bool isPositional = false;
  };
  /// Every field, those of Positional last.
  QVector<Entry> entries() const;

  /// The names that an enumeration's integers index; empty for a key that is no enumeration.
  static QStringList names(const QString &key);
};
