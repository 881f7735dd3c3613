#pragma once

#include <base/index.h>
#include <model/elementkinds.h>
#include <model/propertykey.h>

#include <QString>
#include <QStringList>

#include <vector>

class NetData;
class element;

/// Which types of elements a network has, and how many of each have which property: as of one walk over the network.
class PropertyCensus {
public:
  struct Type {
    QString code;
    QString title; ///< of several, for a person: "Pipes"
    ElementKinds::EleType kind = ElementKinds::Unknown;
    Index count = 0;
  };
  struct Property {
    PropertyKey key;
    Index count = 0;
  };

  PropertyCensus() = default;
  explicit PropertyCensus(NetData &net);

  /// In the order in which types are listed everywhere; only those that there are.
  std::vector<Type> types() const;
  /// Of elements of any of the types, in alphabetical order, without what the program keeps for itself.
  std::vector<Property> properties(const QStringList &types) const;

private:
  struct Counted {
    Type type;
    std::vector<Index> byKey; ///< by number of the spelling
  };

  void add(const element &source, ElementKinds::EleType kind);

  std::vector<Counted> m_types;
  std::vector<PropertyKey> m_keys; ///< by number of the spelling, null where no element has it
};
