// The engine of ordered maps: a red-black tree of counted nodes.
#pragma once

#include "Mox/PtrInterface.h"

namespace Mox {

/// What a node bears for its tree: the children, which it holds, its parent and its colour.
struct RbLinks {
  Ptr<PtrInterface> child[2];      // left, right
  PtrInterface* parent = nullptr;  // holds this node, so it lives as long as the link is set
  bool red = false;
};

/// A red-black tree of counted nodes.  It knows nothing of keys: the typed face descends, and hands
/// over where a node belongs.  `nextLinkOffset` is the place of the `RbLinks` in a node, in words;
/// the argument behind it is 0 throughout.
class RbTreeMapGeneric {
 public:
  RbTreeMapGeneric() = default;
  RbTreeMapGeneric(RbTreeMapGeneric const&) = delete;
  RbTreeMapGeneric& operator=(RbTreeMapGeneric const&) = delete;

  /// Insertions, replacements and removals so far, modulo 2^32.
  U32 changes() const noexcept { return changes_; }
  /// Elements.
  U32 count() const noexcept { return count_; }
  bool empty() const noexcept { return count_ == 0; }

  /// Inserts `node` as the left or right child of `parent`, which has none on that side; a null
  /// parent makes it the root of an empty tree.  Logarithmic.
  void memberNewChild(U8 nextLinkOffset, U32 zero, Ptr<PtrInterface> const& parent,
                      Ptr<PtrInterface> const& node, bool isLeft);
  /// Puts `fresh` in the place of `old`, whose key is equal.
  void memberReplace(U8 nextLinkOffset, U32 zero, Ptr<PtrInterface> const& old,
                     Ptr<PtrInterface> const& fresh);
  /// Removes a node of this tree, which lives on as long as someone holds it.  Logarithmic.
  void _memberDelG(U8 nextLinkOffset, U32 zero, Ptr<PtrInterface> const& node);

  /// The first node in ascending order; null in an empty tree.
  PtrInterface* first(U8 nextLinkOffset) const noexcept;
  /// The node behind one of this tree; null behind the last.
  static PtrInterface* next(U8 nextLinkOffset, PtrInterface const* node) noexcept;

 protected:
  ~RbTreeMapGeneric() = default;
  /// Removes all nodes, one after the other, without recursion.
  void memberDelAll(U8 nextLinkOffset);

  U32 changes_ = 0;
  U32 count_ = 0;
  Ptr<PtrInterface> root_;
};

}  // namespace Mox
