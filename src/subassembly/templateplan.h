#pragma once

#include "templateplacement.h"

#include <model/netdata.h>

#include <QStringList>

#include <string>
#include <vector>

/// A template made ready to serve many subnets: what is the same for all subnets is worked out once.
class TemplatePlan {
public:
  /// \param source lives as long as the plan; has a subnet named "SUB"
  explicit TemplatePlan(const NetData &source);

  /// Gives the subnet what the template's record says: ".default" values where it has none of its own, others in any case.
  void giveDefaults(element &subnet) const;
  const QStringList &pinNames() const { return m_pinNames; }
  const std::vector<QPointF> &pinPositions() const { return m_pinPositions; }
  /// The node that is a pin; null when the template has none of its name.
  const element *pin(int number) const { return m_pins[static_cast<std::size_t>(number)]; }
  /// Of the elements to be made, in the order in which names() tells those of a subnet.
  const std::vector<std::string> &parts() const { return m_partNames; }

  std::size_t nodeCount() const; ///< of the parts

  /// The names of the elements made for a subnet: its own name, "_" and the template's, unique in the network.
  /// \param areFree it is known that no element has any of these names
  std::vector<PropertyText> names(const NetData &net, const std::string &subnet, bool areFree) const;
  /// Adds the elements to the network. \param names unique, see names()
  void create(NetData &net, const std::vector<PropertyText> &names, const std::vector<PropertyText> &pins,
              const TemplatePlacement &placement) const;

private:
  struct Reference {
    std::size_t index; ///< of the property in the prototype
    int part;          ///< or, below 0, pin -1 - part
  };
  struct Part {
    element prototype; ///< with "refEle"
    std::vector<Reference> references;
    std::size_t nameIndex = 0;
    std::size_t xIndex = 0; ///< of nodes
    std::size_t yIndex = 0;
    bool isNode = false;
    QPointF at;
  };

  struct Default {
    Property property;
    PropertyKey plain; ///< of a default value: the property that gets it; else the null key
  };

  void addPart(const NetData &source, const elements::Entry &entry, bool isNode);

  std::vector<Default> m_defaults;
  QStringList m_pinNames;
  std::vector<const element *> m_pins;
  std::vector<QPointF> m_pinPositions;
  std::vector<Part> m_parts;
  std::vector<std::string> m_partNames;
};
