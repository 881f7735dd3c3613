#pragma once

#include <model/names.h>

#include <algorithm>
#include <initializer_list>

/// Whether the values of a property are names of elements: its own or those of others.
inline bool namesElements(PropertyKey property) {
  const Names &names = Names::all();
  const auto keys = {names.name, names.node1, names.node2, names.gasNode, names.driven};
  return std::find(keys.begin(), keys.end(), property) != keys.end();
}
