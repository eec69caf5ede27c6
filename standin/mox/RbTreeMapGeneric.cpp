// Linking, balancing and walking of red-black trees.
#include "Mox/RbTreeMapGeneric.h"

#include <utility>

namespace Mox {

namespace {

using Link = Ptr<PtrInterface>;

constexpr int left = 0;
constexpr int right = 1;

RbLinks& linksOf(U8 offset, PtrInterface const* node) noexcept {
  auto* const words = reinterpret_cast<void**>(const_cast<PtrInterface*>(node));
  return *reinterpret_cast<RbLinks*>(words + offset);
}

PtrInterface* outermost(U8 offset, PtrInterface* node, int side) noexcept {
  while (PtrInterface* const further = linksOf(offset, node).child[side].ptr()) node = further;
  return node;
}

// One tree while its shape is changed.  Links move and are never copied, so no count changes.
class Balancer {
 public:
  Balancer(Link& root, U8 offset) : root_(root), offset_(offset) {}

  void attach(PtrInterface* parent, int side, Link const& node) {
    RbLinks& links = of(node.ptr());
    links.parent = parent;
    links.red = true;
    (parent ? of(parent).child[side] : root_) = node;
    afterInsertion(node.ptr());
  }

  void replace(PtrInterface* old, Link const& fresh) {
    RbLinks& links = of(fresh.ptr());
    links = std::move(of(old));
    of(old) = RbLinks();
    for (Link const& child : links.child) adopt(fresh.ptr(), child);
    slot(old, links.parent) = fresh;
  }

  // Takes `node` out and returns the link that held it.
  Link detach(PtrInterface* node) {
    Place gap;
    bool red = isRed(node);
    Link held;
    if (of(node).child[left] && of(node).child[right]) {
      PtrInterface* const successor = outermost(offset_, of(node).child[right].ptr(), left);
      red = isRed(successor);
      gap = {of(successor).parent, of(successor).parent == node ? right : left};
      Link heir = lift(successor, right);
      if (gap.parent == node) gap.parent = successor;
      held = handOver(node, std::move(heir));
    } else {
      gap = {of(node).parent, sideOf(node)};
      held = lift(node, of(node).child[left] ? left : right);
    }
    of(node) = RbLinks();
    if (!red) afterRemoval(gap);
    return held;
  }

 private:
  // Where a node stands, or stood.
  struct Place {
    PtrInterface* parent = nullptr;
    int side = left;
  };

  RbLinks& of(PtrInterface const* node) const noexcept { return linksOf(offset_, node); }
  bool isRed(PtrInterface const* node) const noexcept { return node && of(node).red; }
  int sideOf(PtrInterface const* node) const noexcept {
    PtrInterface const* const parent = of(node).parent;
    return parent && of(parent).child[right].ptr() == node ? right : left;
  }
  Link& slot(PtrInterface const* node, PtrInterface const* parent) const noexcept {
    if (!parent) return root_;
    return of(parent).child[of(parent).child[right].ptr() == node ? right : left];
  }
  void adopt(PtrInterface* parent, Link const& child) const noexcept {
    if (child) of(child.ptr()).parent = parent;
  }

  // Puts the one child of `node`, if any, in its place.
  Link lift(PtrInterface* node, int side) {
    Link child = std::move(of(node).child[side]);
    adopt(of(node).parent, child);
    Link& place = slot(node, of(node).parent);
    return std::exchange(place, std::move(child));
  }

  // Gives the place, the children and the colour of `node` to `heir`.
  Link handOver(PtrInterface* node, Link&& heir) {
    Link& place = slot(node, of(node).parent);
    RbLinks& links = of(heir.ptr());
    links = std::move(of(node));
    for (Link const& child : links.child) adopt(heir.ptr(), child);
    return std::exchange(place, std::move(heir));
  }

  // Turns `node` down to `side`; its child of the other side takes its place.
  void rotate(PtrInterface* node, int side) {
    Link& place = slot(node, of(node).parent);
    Link up = std::move(of(node).child[1 - side]);
    RbLinks& upper = of(up.ptr());
    upper.parent = of(node).parent;
    of(node).parent = up.ptr();
    of(node).child[1 - side] = std::move(upper.child[side]);
    adopt(node, of(node).child[1 - side]);
    upper.child[side] = std::move(place);
    place = std::move(up);
  }

  void afterInsertion(PtrInterface* node) {
    while (isRed(of(node).parent)) {
      PtrInterface* parent = of(node).parent;
      PtrInterface* const grandparent = of(parent).parent;
      int const side = sideOf(parent);
      PtrInterface* const uncle = of(grandparent).child[1 - side].ptr();
      if (isRed(uncle)) {
        of(parent).red = of(uncle).red = false;
        of(grandparent).red = true;
        node = grandparent;
        continue;
      }
      if (sideOf(node) != side) {
        rotate(parent, side);
        parent = node;
      }
      of(parent).red = false;
      of(grandparent).red = true;
      rotate(grandparent, 1 - side);
      break;
    }
    of(root_.ptr()).red = false;
  }

  // The paths through `gap` are one black node short.
  void afterRemoval(Place gap) {
    while (gap.parent && !isRed(of(gap.parent).child[gap.side].ptr())) {
      PtrInterface* const sibling = redSiblingTurned(gap);
      RbLinks const& links = of(sibling);
      if (isRed(links.child[left].ptr()) || isRed(links.child[right].ptr()))
        return closeWith(sibling, gap);
      of(sibling).red = true;
      gap = {of(gap.parent).parent, sideOf(gap.parent)};
    }
    Link const& top = gap.parent ? of(gap.parent).child[gap.side] : root_;
    if (top) of(top.ptr()).red = false;
  }

  // The gap's sibling, after a red one was turned out of the way.
  PtrInterface* redSiblingTurned(Place gap) {
    PtrInterface* const sibling = of(gap.parent).child[1 - gap.side].ptr();
    if (!isRed(sibling)) return sibling;
    of(sibling).red = false;
    of(gap.parent).red = true;
    rotate(gap.parent, gap.side);
    return of(gap.parent).child[1 - gap.side].ptr();
  }

  // A red child of the sibling makes up for the missing black node.
  void closeWith(PtrInterface* sibling, Place gap) {
    int const outer = 1 - gap.side;
    if (!isRed(of(sibling).child[outer].ptr())) {
      of(of(sibling).child[gap.side].ptr()).red = false;
      of(sibling).red = true;
      rotate(sibling, outer);
      sibling = of(gap.parent).child[outer].ptr();
    }
    of(sibling).red = of(gap.parent).red;
    of(gap.parent).red = false;
    of(of(sibling).child[outer].ptr()).red = false;
    rotate(gap.parent, gap.side);
  }

  Link& root_;
  U8 const offset_;
};

}  // namespace

void RbTreeMapGeneric::memberNewChild(U8 nextLinkOffset, U32, Link const& parent, Link const& node,
                                      bool isLeft) {
  Balancer(root_, nextLinkOffset).attach(parent.ptr(), isLeft ? left : right, node);
  ++count_;
  ++changes_;
}

void RbTreeMapGeneric::memberReplace(U8 nextLinkOffset, U32, Link const& old, Link const& fresh) {
  if (old == fresh) return;
  Link const held = old;
  Balancer(root_, nextLinkOffset).replace(held.ptr(), fresh);
  ++changes_;
}

void RbTreeMapGeneric::_memberDelG(U8 nextLinkOffset, U32, Link const& node) {
  // The node goes last of all: its end may look at this map.
  Link const held = Balancer(root_, nextLinkOffset).detach(node.ptr());
  --count_;
  ++changes_;
}

void RbTreeMapGeneric::memberDelAll(U8 nextLinkOffset) {
  Link node = std::move(root_);
  changes_ += count_;
  count_ = 0;
  while (node) {
    RbLinks& links = linksOf(nextLinkOffset, node.ptr());
    Link rest = std::move(links.child[left]);
    if (rest) {
      Link& inner = linksOf(nextLinkOffset, rest.ptr()).child[right];
      links.child[left] = std::move(inner);
      inner = std::move(node);
    } else {
      rest = std::move(links.child[right]);
      links = RbLinks();
    }
    node = std::move(rest);
  }
}

PtrInterface* RbTreeMapGeneric::first(U8 nextLinkOffset) const noexcept {
  return root_ ? outermost(nextLinkOffset, root_.ptr(), left) : nullptr;
}

PtrInterface* RbTreeMapGeneric::next(U8 nextLinkOffset, PtrInterface const* node) noexcept {
  RbLinks const& links = linksOf(nextLinkOffset, node);
  if (links.child[right]) return outermost(nextLinkOffset, links.child[right].ptr(), left);
  PtrInterface* above = links.parent;
  while (above && linksOf(nextLinkOffset, above).child[right].ptr() == node) {
    node = above;
    above = linksOf(nextLinkOffset, above).parent;
  }
  return above;
}

}  // namespace Mox
