#pragma once

#include <base/finding.h>
#include <model/names.h>
#include <model/netdata.h>

#include <QCoreApplication>
#include <QMap>
#include <QSet>
#include <QStringList>

/// Elements grouped by the value of one property. Which layers are hidden is the drawing's affair.
class Layers {
public:
  explicit Layers(NetData &net, Told told = {})
      : m_net(net)
      , m_told(std::move(told)) {}

  const QString &property() const { return m_property; }
  void setProperty(const QString &property);
  /// Looks up the layers of the elements anew.
  void rebuild();
  /// Names of elements by layer, in the order of the network.
  const QMap<QString, QStringList> &all() const { return m_layers; }

  /// Whether elements can change their layer: not where the property says which element it is, what it is or where it lies.
  bool canChange() const;
  static bool isChangeable(PropertyKey property);
  /// Gives elements to a layer, where they can change it; names that the network does not have are passed over.
  void add(const QStringList &names, const QString &layer);
  void rename(const QString &layer, const QString &newName);
  /// Takes the property away from all elements of the layers, and returns which these are.
  QStringList remove(const QSet<QString> &layers);

  /// Whether a layer may have the name: no line breaks, semicolons or quotes.
  static bool isAllowed(const QString &name);
  /// The name of the choice "a new layer", which no layer can have.
  static QString newLayer() { return QCoreApplication::translate("Layers", "<new layer>"); }

private:
  void takeFrom(const QString &layer, const QSet<QString> &names);

  NetData &m_net;
  Told m_told;
  QString m_property = Names::all().layer.name();
  QMap<QString, QStringList> m_layers;
};
