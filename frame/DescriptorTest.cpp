// Descriptors and registration of a module that registers on first use.
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Module.h"
#include "frame/TestLanguage.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace frametest {
namespace {

Mox::MoxAttr const& attribute(Mox::MoxType const* type, char const* name) {
  return *type->attr(name);
}

std::vector<std::string> textsOf(std::vector<Mox::Name> const& names) {
  std::vector<std::string> texts;
  for (Mox::Name const& name : names) texts.emplace_back(name.view());
  return texts;
}

using Flags = Mox::MoxAttr::AttrFlags;

struct Expected {
  char const* name;
  Mox::AttributeId id;
  char const* type;
  char const* key;
  Flags flags;
  U32 introspection;
};

TEST(DescriptorTest, EveryShapeHasItsFlags) {
  Expected const rows[] = {
      {"moxHasAttrLogInterface", 154, "bool", "", {0x22001, 0x400}, 8},
      {"port", 258, "U16", "", {0x220109, 0x40000400}, 2},
      {"level", 259, "U32", "", {0x220143, 0x1000400}, 2},
      {"label", 262, "Mox::String", "", {0x220143, 0x1000400}, 2},
      {"mix", 263, "everyShape::Mix", "", {0x220143, 0x1000400}, 2},
      {"mood", 264, "everyShape::Mood", "", {0x220143, 0x1000400}, 2},
      {"bounded", 265, "U4", "", {0x220143, 0x1000400}, 2},
      {"hits", 266, "U16", "", {0x220143, 0x1000400}, 2},
      {"bytes", 267, "U32", "U8", {0x1A20143, 0x1000400}, 2},
      {"buddy", 270, "everyShape::Leaf", "", {0x8220143, 0x1000400}, 2},
      {"known", 271, "everyShape::Leaf", "Mox::Name", {0x9A20143, 0x1000400}, 2},
      {"seats", 272, "everyShape::Leaf", "U8", {0x9A20143, 0x1000400}, 2},
      {"best", 273, "everyShape::Leaf", "", {0x8220143, 0x11000400}, 2},
      {"leaves", 274, "everyShape::Leaf", "Mox::Name", {0x9A20143, 0x11000400}, 2},
  };
  for (Expected const& row : rows) {
    auto const& found = attribute(everyShape::Every::_fwkType(), row.name);
    EXPECT_EQ(found.id(), row.id) << row.name;
    EXPECT_EQ(found.type()->fullTypeName(), Mox::Name(row.type)) << row.name;
    EXPECT_EQ(found.keyType() ? found.keyType()->fullTypeName() : Mox::Name(), Mox::Name(row.key))
        << row.name;
    EXPECT_EQ(found.flags(), row.flags) << row.name;
    EXPECT_EQ(found.introspectionFlags(), row.introspection) << row.name;
  }
}

TEST(DescriptorTest, ObjectsAndValuesHaveTheirFlags) {
  auto const* shelf = everyShape::Shelf::_fwkType();
  EXPECT_EQ(attribute(shelf, "shelfId").flags(), (Flags{0x220109, 0x40000400}));
  EXPECT_EQ(attribute(shelf, "books").flags(), (Flags{0x1A20103, 0x400}));
  auto const* mix = everyShape::Mix::_fwkType();
  EXPECT_EQ(attribute(mix, "small").flags(), (Flags{0x220109, 0x40000400}));
  EXPECT_EQ(attribute(mix, "small").id(), 2u);
  EXPECT_EQ(attribute(mix, "hash").flags(), (Flags{0x220001, 0x40000400}));
  EXPECT_EQ(attribute(mix, "hash").introspectionFlags(), 0u);
}

TEST(DescriptorTest, FieldsThatCanBeSetHaveFlagsOfTheirOwn) {
  for (auto const* type : {everyShape::Dial::_fwkType(), everyShape::Knob::_fwkType()}) {
    EXPECT_EQ(type->attributeById(2)->flags(), (Flags{0x22010F, 0x400}));
    EXPECT_EQ(type->attributeById(2)->introspectionFlags(), 2u);
    EXPECT_EQ(type->attributeById(3)->flags(), (Flags{0x220007, 0x400}));
    EXPECT_EQ(type->attributeById(3)->introspectionFlags(), 0u);
  }
}

TEST(DescriptorTest, EnumeratorsAreAttributesOfTheirEnumeration) {
  auto const* mood = everyShape::_fwkType_Mood();
  EXPECT_EQ(attribute(mood, "tense").id(), 1u);
  EXPECT_EQ(attribute(mood, "tense").type(), mood);
  EXPECT_EQ(attribute(mood, "tense").flags(), (Flags{0x20001, 0x40200400}));
  EXPECT_TRUE(mood->isEnumType());
  EXPECT_TRUE(mood->isValue());
}

TEST(DescriptorTest, ElementsOfAKeyedCollectionHaveAKeyAttribute) {
  auto const& key = attribute(everyShape::Leaf::_fwkType(), "fwkKey");
  EXPECT_EQ(key.id(), 0u);
  EXPECT_EQ(key.flags(), (Flags{0x200001, 0x400}));
  EXPECT_EQ(key.introspectionFlags(), 0u);
}

TEST(DescriptorTest, KeyedAttributesNameTheirKeyAttribute) {
  EXPECT_EQ(attribute(everyShape::Every::_fwkType(), "leaves").keyAttr(), Mox::Name("name"));
  EXPECT_EQ(attribute(everyShape::Every::_fwkType(), "seats").keyAttr(), Mox::Name());
}

TEST(DescriptorTest, ConstructorArgumentsInOrder) {
  auto const* leaf = everyShape::Leaf::_fwkType();
  EXPECT_EQ(textsOf(leaf->constructorArgNames()),
            (std::vector<std::string>{"name", "lane", "mix"}));
  EXPECT_EQ(textsOf(leaf->constructorArgTypes()),
            (std::vector<std::string>{"Mox::Name", "U8", "everyShape::Mix"}));
  auto const& leaves = attribute(everyShape::Every::_fwkType(), "leaves");
  EXPECT_EQ(textsOf(leaves.constructorArgNames()), textsOf(leaf->constructorArgNames()));
}

TEST(DescriptorTest, KindsAndSizes) {
  EXPECT_TRUE(everyShape::Every::_fwkType()->isEntity());
  EXPECT_TRUE(everyShape::Mix::_fwkType()->isValue());
  auto const* shelf = everyShape::Shelf::_fwkType();
  EXPECT_FALSE(shelf->isEntity() || shelf->isValue() || shelf->isEnumType());
  EXPECT_TRUE(shelf->hasGenericIfSupport());
  EXPECT_EQ(everyShape::Every::_fwkType()->size(), sizeof(everyShape::Every));
}

TEST(DescriptorTest, DerivedTypeHasTheBasesAttributesFirst) {
  auto const* derived = everyShape::Derived::_fwkType();
  auto const* every = everyShape::Every::_fwkType();
  EXPECT_EQ(derived->base(), every);
  ASSERT_GT(derived->attributeQ().count(), every->attributeQ().count());
  EXPECT_EQ(derived->attributeQ().head()->value(), every->attributeQ().head()->value());
  EXPECT_EQ(derived->attributeById(259)->name(), Mox::Name("level"));
  EXPECT_EQ(derived->attributeById(386)->name(), Mox::Name("extra"));
  EXPECT_FALSE(derived->attr("level")) << "it is the base's";
  auto const& queue = every->derivedTypeQ();
  EXPECT_NE(std::find(queue.begin(), queue.end(), derived), queue.end());
}

TEST(DescriptorTest, DescriptorIsMadeOnce) {
  EXPECT_EQ(everyShape::Every::_fwkType(), everyShape::Every::_fwkType());
  Watched every;
  EXPECT_EQ(every->fwkType(), everyShape::Derived::_fwkType());
}

TEST(DescriptorTest, RootsCanBeMadeByTheirDescriptor) {
  auto const grove = everyShape::Grove::_fwkType()->newEntity("x", nullptr);
  EXPECT_TRUE(Mox::ptrCast<everyShape::Grove>(grove));
  EXPECT_EQ(grove->name(), Mox::Name("x"));
  EXPECT_FALSE(everyShape::Leaf::_fwkType()->newEntity("x", nullptr)) << "it is no root";
}

TEST(DescriptorTest, ChildKnowsTheAttributeThatHoldsIt) {
  Watched every;
  auto const child = every->bestIs("a", 1, everyShape::Mix());
  ASSERT_TRUE(child->parentAttr());
  EXPECT_EQ(child->parentAttr()->name(), Mox::Name("best"));
  every->bestDel();
  EXPECT_FALSE(child->parentAttr());
}

TEST(DescriptorTest, SingleFieldValueNamesItsAttribute) {
  ASSERT_TRUE(everyShape::Level::_fwkType()->valAttr());
  EXPECT_EQ(everyShape::Level::_fwkType()->valAttr()->name(), Mox::Name("value"));
  EXPECT_FALSE(everyShape::Mix::_fwkType()->valAttr());
}

TEST(DescriptorTest, EntitiesValuesAndEnumerationsHaveAGenericInterface) {
  for (Mox::MoxType const* type : {everyShape::Every::_fwkType(), everyShape::Mix::_fwkType(),
                                   everyShape::_fwkType_Mood(), everyShape::Level::_fwkType()})
    EXPECT_TRUE(type->hasGenericIfSupport()) << type->fullTypeName();
}

TEST(DescriptorTest, AttributesAreNamed) {
  Watched every;
  EXPECT_EQ(every->attributeString(386), "extra");
  EXPECT_EQ(every->attributeString(259), "level");
  EXPECT_EQ(every->attributeString(154), "moxHasAttrLogInterface");
  EXPECT_EQ(every->attributeString(9999), "unknown");
  EXPECT_TRUE(every->moxHasAttrLogInterface());
}

/// A module of one type, whose routine can be run when one likes.
struct Late {
  class _Type : public Mox::MoxType {
   public:
    _Type() : MoxType("Late", nullptr, Mox::Entity::_fwkType(), {}) {}
  };
  static Mox::MoxType* _fwkType();
};

constexpr frame::AttributeRow lateAttributes[] = {
    {258, "level", Mox::Builtin<U32>::_fwkType, nullptr, {0x220143, 0x1000400}, 2}};
Mox::MoxAttr const* lateCache[1];
frame::TypeRow const lateRow{
    "Late", "late::Late", frame::TypeKind::entity, Late::_fwkType, Mox::Entity::_fwkType,
    8,      {},           lateAttributes,          lateCache};
frame::TypeRow const* const lateRows[] = {&lateRow};
frame::TypeOf const lateTypes[] = {Late::_fwkType};
constinit frame::Module lateModule("late", {}, lateTypes, lateRows);
Mox::MoxType* lateType = nullptr;

Mox::MoxType* Late::_fwkType() {
  return frame::descriptor<_Type>(lateType, [] { lateModule.initialise(); });
}

std::string asked;
Mox::MoxType* used() {
  asked += "used ";
  return Mox::MoxType::opaque("used");
}
Mox::MoxType* own() {
  asked += "own ";
  return Mox::MoxType::opaque("own");
}
frame::TypeOf const usedTypes[] = {used};
frame::TypeOf const ownTypes[] = {own};
constinit frame::Module askingModule("asking", usedTypes, ownTypes, {});

TEST(ModuleTest, UsedTypesComeAheadOfItsOwn) {
  askingModule.initialise();
  EXPECT_EQ(asked, "used own ");
}

TEST(ModuleTest, BareUntilTheReactorIsReadyThenFilledIn) {
  auto const reactor = Mox::IntrospectionReactor::global();
  reactor->readyIs(false);
  auto* const bare = Late::_fwkType();
  EXPECT_TRUE(bare->attributeQ().empty());
  EXPECT_FALSE(lateModule.done());
  lateModule.initialise();
  EXPECT_FALSE(lateModule.done());

  reactor->readyIs(true);
  lateModule.load();
  EXPECT_TRUE(lateModule.done());
  EXPECT_EQ(Late::_fwkType(), bare);
  EXPECT_EQ(bare->attributeById(258)->name(), Mox::Name("level"));
  EXPECT_EQ(lateCache[0], bare->attributeById(258));
  EXPECT_EQ(Mox::MoxType::typeNode("late::Late"), bare);
  EXPECT_EQ(bare->fullTypeName(), Mox::Name("late::Late"));
  EXPECT_EQ(reactor->depth(), 0u);

  std::size_t const described = reactor->types().size();
  lateModule.initialise();
  EXPECT_EQ(reactor->types().size(), described) << "once is enough";
}

}  // namespace
}  // namespace frametest
