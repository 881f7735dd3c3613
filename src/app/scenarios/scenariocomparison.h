#pragma once

#include <model/comparison.h>

#include <QObject>
#include <QString>

#include <set>

class CaseOpening;
class NetVisControl;

/// The scenario with which the one that is shown is compared, and what the drawing shows of it.
class ScenarioComparison : public QObject {
  Q_OBJECT
public:
  using Kind = Comparison::Kind;

  ScenarioComparison(CaseOpening &opening, NetVisControl &control, QObject *parent = nullptr);

  /// Name of the reference; empty for none.
  const QString &reference() const { return m_name; }
  /// Reads it, and colours by the difference. False when it cannot be read: what was stays.
  bool compareWith(const QString &name, const QString &file);
  /// Nothing is compared any more; the colours show values.
  void drop();
  /// After other values of the network: computes the comparisons anew.
  void refresh();
  /// Colours by values, or by their comparisons where there are some.
  void show(Kind kind);
  Kind shown() const;

signals:
  void changed();      ///< the reference
  void styleChanged(); ///< by show()

private:
  bool take();
  void forget();
  void comeBack();

  CaseOpening &m_opening;
  NetVisControl &m_control;
  Comparison m_comparison;
  std::set<PropertyKey> m_properties; ///< in which scenarios differ, by the reference
  QString m_name;
  QString m_file;
  QString m_case; ///< its folder
  bool m_isForgotten = false;
};
