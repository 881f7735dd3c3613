#include <io/networkrecord.h>

#include <algorithm>

const NetworkRecord::Value *NetworkRecord::find(PropertyKey key) const {
  const auto found = std::find_if(values.begin(), values.end(), [key](const Value &value) { return value.key == key; });
  return found == values.end() ? nullptr : &*found;
}
