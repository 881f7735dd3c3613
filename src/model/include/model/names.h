#pragma once

#include <model/propertykey.h>

/// The names of properties that several parts of the program know, each once. Names that one file alone knows stay there.
struct Names {
  static const Names &all();

  PropertyKey name = PropertyKey::intern("name");
  PropertyKey type = PropertyKey::intern("type");
  PropertyKey node1 = PropertyKey::intern("node1");
  PropertyKey node2 = PropertyKey::intern("node2");
  PropertyKey x = PropertyKey::intern("X");
  PropertyKey y = PropertyKey::intern("Y");
  PropertyKey state = PropertyKey::intern("state");
  PropertyKey active = PropertyKey::intern("active");
  PropertyKey gas = PropertyKey::intern("gas");         ///< of a node: the name of its gas
  PropertyKey gasNode = PropertyKey::intern("gasnode"); ///< of a compressor: where its fuel comes from
  PropertyKey drive = PropertyKey::intern("drive");     ///< of a compressor: the element that drives it
  PropertyKey driven = PropertyKey::intern("driven");   ///< of a drive: the compressor that it drives
  PropertyKey machine = PropertyKey::intern("machine"); ///< of a compressor or drive: its name in the machine data
  PropertyKey normDensity = PropertyKey::intern("rhon");
  PropertyKey calorificValue = PropertyKey::intern("hs");
  PropertyKey elements = PropertyKey::intern("elements"); ///< of a subnet
  PropertyKey pins = PropertyKey::intern("pins");         ///< of a subnet
  PropertyKey refEle = PropertyKey::intern("refEle");     ///< of an element of a subnet: its name in the template
  PropertyKey layer = PropertyKey::intern("vis.layer");   ///< the usual property of layers
  PropertyKey searchResult = PropertyKey::intern("isSearchResult");
  PropertyKey violations = PropertyKey::intern("CB_info"); ///< what is wrong with an element, by the constraints
};

inline const Names &Names::all() {
  static const Names names;
  return names;
}

/// All are made as the program starts: who asks may be one of several threads, which may make no keys.
inline const Names &NamesMadeAtStart = Names::all();
