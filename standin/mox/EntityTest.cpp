// Entities: their members at the start, their place in a tree.
#include "Mox/Entity.h"
#include "Mox/Exception.h"

#include <gtest/gtest.h>

namespace Mox {
namespace {

class Node : public Entity {
 public:
  using Entity::Entity;
  void handleParent(Ptr<Entity> const& former) override {
    formers += former ? former->name().stringValue() + ";" : String8("none;");
  }

  String8 formers;
};

Ptr<Node> nodeUnder(Ptr<Node> const& parent, char const* name) {
  Ptr<Node> const node = new Node(name);
  node->parentAttrIdIs(258);
  node->parentIs(parent);
  return node;
}

TEST(EntityTest, StartsUnreadUnwrittenAndWithoutParent) {
  Ptr<Node> const node = new Node("slice0");
  EXPECT_EQ(node->name(), Name("slice0"));
  EXPECT_EQ(node->version(), 0u);
  EXPECT_EQ(node->readCount(), 0u);
  EXPECT_EQ(node->moxFlags(), 136u);
  EXPECT_FALSE(node->parent());
  EXPECT_EQ(node->parentAttrId(), 0u);
}

TEST(EntityTest, NamesRunFromTheRootDown) {
  Ptr<Node> const root = new Node("slice0");
  auto const chip = nodeUnder(root, "chip/0");
  EXPECT_EQ(chip->fullName(), "slice0/chip/0");
  EXPECT_EQ(chip->uriPath(), "/slice0/chip%2F0");
  EXPECT_EQ(chip->parentAttrId(), 258u);
}

TEST(EntityTest, ParentAttributeLeavesTheFlagsAlone) {
  Ptr<Node> const node = new Node("n");
  node->parentAttrIdIs(0xFFFF);
  EXPECT_EQ(node->moxFlags() & 0xFFFF, 136u);
  EXPECT_EQ(node->parentAttrId(), 0xFFFFu);
}

TEST(EntityTest, NullParentDetaches) {
  Ptr<Node> const root = new Node("root");
  auto const child = nodeUnder(root, "child");
  child->parentIs(nullptr);
  EXPECT_FALSE(child->parent());
  EXPECT_EQ(child->formers, "none;root;");
}

TEST(EntityTest, SameParentIsNoChange) {
  Ptr<Node> const root = new Node("root");
  auto const child = nodeUnder(root, "child");
  child->parentIs(root);
  EXPECT_EQ(child->formers, "none;");
}

TEST(EntityTest, HandleParentSeesTheNewParent) {
  class Seeing : public Entity {
   public:
    using Entity::Entity;
    void handleParent(Ptr<Entity> const&) override { seen = parent(); }
    Ptr<Entity> seen;
  };
  Ptr<Entity> const root = new Entity("root");
  Ptr<Seeing> const child = new Seeing("child");
  child->parentIs(root);
  EXPECT_EQ(child->seen, root);
  child->parentIs(nullptr);
  EXPECT_FALSE(child->seen);
}

TEST(EntityTest, NotifierThatIsNoEntityCountsAsNone) {
  class Thing : public PtrInterface {};
  class Observer : public Entity::NotifieeConst {};
  Ptr<Observer> const observer = new Observer;
  observer->notifierIs(new Thing);
  EXPECT_EQ(observer->moxNotifier(), nullptr);
  EXPECT_TRUE(observer->name().empty());
}

TEST(EntityTest, ParentIsNotHeldByItsChild) {
  Ptr<Node> const root = new Node("root");
  auto const child = nodeUnder(root, "child");
  EXPECT_EQ(root->references(), 1u);
}

TEST(EntityTest, ReadsAreCounted) {
  Ptr<Node> const node = new Node("n");
  EXPECT_EQ(node->moxRead(7), 7);
  EXPECT_EQ(node->readCount(), 1u);
}

TEST(EntityTest, UnknownAttributeSaysSo) {
  EXPECT_EQ(Ptr<Node>(new Node("n"))->attributeString(999), "unknown");
}

TEST(EntityTest, BareEntityStandsOnNoLog) {
  Ptr<Entity> const entity = new Entity("n");
  Ptr<NboAttrLog::Out> const out = new NboAttrLog::Out;
  EXPECT_FALSE(entity->moxHasAttrLogInterface());
  EXPECT_FALSE(entity->moxNboAttrLogSa(out));
  EXPECT_FALSE(entity->moxNboAttrLogSaDel(out));
  EXPECT_THROW(entity->moxNboAttrLogSaIs(Mox_BitSet(), 1, out, nullptr), RangeException);
}

}  // namespace
}  // namespace Mox
