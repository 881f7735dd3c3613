#pragma once

/// The kinds of elements, as the network and the tables of types and attributes name them.
struct ElementKinds {
  /// Single bits, so that several kinds are selected with one mask.
  enum EleType { Unknown = 0, Node = 1, Edge = 2, AssembledSubnet = 4, TextBox = 8 };
  static constexpr int AllTypes = ~0;
};
