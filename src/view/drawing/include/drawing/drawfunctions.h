#pragma once

#include <drawing/plotsettings.h>
#include <model/netdata.h>
#include <model/units.h>

#include <QString>
#include <QStringList>

#include <set>

/// What a draw function (PlotSettings::functions) shows: a property and the unit in which people read it.
struct DrawFunction {
  /// How the values come about where no element carries them: from the graph of the network, or, of edges, from their end
  /// nodes: the node where the gas enters, or the first less the second node; or from their own values and bounds.
  enum class Computed { No, Connectivity, AccumulatedLength, AtInlet, Difference, Load };

  PropertyKey property;             ///< null when no element has such a property
  PropertyKey ofEnds;               ///< of the end nodes, with AtInlet and Difference; null otherwise
  QString title;                    ///< long name with the display unit, such as "pressure [bar]"
  QString unit;                     ///< the display unit, empty for plain numbers
  Units::Linear toDisplay;          ///< from the stored to the display unit
  Units::Linear toTable;            ///< from the stored unit to that of the property table, which files speak of
  bool isOfNodes = false;           ///< a property of nodes; edges take the mean of their ends
  Computed computed = Computed::No; ///< for want of values of their own

  /// Elements have such a property, or it can be computed.
  bool isKnown() const { return !property.isNull() || isOfGraph() || isOfBounds() || !ofEnds.isNull(); }
  bool isOfGraph() const { return computed == Computed::Connectivity || computed == Computed::AccumulatedLength; }
  bool isOfBounds() const { return computed == Computed::Load; }
  bool shows(const DrawFunction &other) const {
    return property == other.property && ofEnds == other.ofEnds && computed == other.computed;
  }

  /// Finds the function by the name in which a person chooses it ("volume flow") or by its property ("q").
  static DrawFunction find(const QString &function, const NetData &net);
  /// The property behind a function's name; other names stand for the property of that name.
  static QString propertyName(const QString &function);
  /// The names by which a person chooses functions that every network may have.
  static const QStringList &fixedNames();
  /// Properties of a network that hold numbers, other than those of the fixed names and those that say how or where
  /// something is drawn; in the order of their names.
  struct OfNetwork {
    QStringList ofNodes;
    QStringList ofEdges; ///< those of edges and of their end nodes
    // All that hold numbers, whatever they say.
    std::set<PropertyKey> numbersOfNodes;
    std::set<PropertyKey> numbersOfEdges;

    bool hasNumbers(PropertyKey property) const {
      return numbersOfNodes.count(property) > 0 || numbersOfEdges.count(property) > 0;
    }
  };
  /// How much of its bounds an element uses, by this name where elements do not say it themselves.
  static QString load() { return QStringLiteral("load"); }
  static OfNetwork ofNetwork(const NetData &net);
};

/// Functions that show this network at first sight: pressure where it is known, diameter for width. The rest of the
/// settings stays as it is.
void chooseDefaults(PlotSettings &settings, const NetData &net);
