// The language of the tests of hash maps: short maps, told by their keys.
#pragma once

#include "Mox/HashMap.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace Mox::maptest {

using Node = MapNode<U32, U32>;
using Map = HashMap<Node, U32, U32>;

inline void add(Map& map, std::initializer_list<U32> keys) {
  for (U32 const key : keys) map.newMember(new Node(key, key * 10));
}

inline std::string list(std::vector<U32> const& keys) {
  std::string text;
  for (U32 const key : keys) text += (text.empty() ? "" : " ") + std::to_string(key);
  return text;
}

inline std::string order(Map const& map) {
  std::vector<U32> keys;
  for (Node const& node : map) keys.push_back(node.key());
  return list(keys);
}

// Walks to the end and tells the keys from the current one on.
template <class Iterator>
std::string rest(Iterator at) {
  std::vector<U32> keys;
  for (; at; ++at) keys.push_back(at.key());
  return list(keys);
}

}  // namespace Mox::maptest
