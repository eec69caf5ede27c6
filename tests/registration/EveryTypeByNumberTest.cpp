// Every type that the library registers: its descriptor and its interface know the same attributes.
#include "Kestrel/Kestrel.module.h"
#include "Kestrel/XpTableCliHelper.module.h"
#include "Kestrel/XpTableManSm.module.h"
#include "frame/Module.h"
#include "hwmodel/ByNumberTest.h"

#include <functional>
#include <vector>

namespace {

using Kestrel::attributes::refusal;
using Mox::GenericIf;
using Mox::MoxType;

std::string nameOf(MoxType const& type) { return type.moxName().stringValue().charPtr(); }

/// Calls `visit` for each registered type that `fits`, and tells how many there were.
int forEachType(std::function<bool(MoxType const&)> const& fits,
                std::function<void(MoxType const&)> const& visit) {
  int met = 0;
  for (frame::Module const* const module :
       {&Kestrel::moxModuleKestrel(), &Kestrel::moxModuleXpTableManSm(),
        &Kestrel::moxModuleXpTableCliHelper()})
    for (frame::TypeRow const* row : module->types()) {
      MoxType const& type = *row->descriptor();
      if (!fits(type)) continue;
      SCOPED_TRACE(row->fullName);
      visit(type);
      ++met;
    }
  return met;
}

bool hasIdentity(MoxType const& type) { return !type.isValue() && !type.isEnumType(); }

/// Calls `visit` for each attribute of `type`, those of its base included.
void forEachAttribute(MoxType const& type, std::function<void(Mox::MoxAttr const&)> const& visit) {
  for (auto const& entry : type.attributeQ()) {
    SCOPED_TRACE(entry.value()->moxName().stringValue().charPtr());
    visit(*entry.value());
  }
}

TEST(EveryTypeByNumberTest, EveryTypeButTheBareObjectSaysThatItHasAnInterface) {
  int const met = forEachType([](MoxType const& type) { return type.hasGenericIfSupport(); },
                              [](MoxType const& type) { EXPECT_NE(nameOf(type), "TableManSm"); });
  EXPECT_EQ(met, 44);
}

TEST(EveryTypeByNumberTest, EveryNumberOfADescriptorIsServed) {
  int const met = forEachType(hasIdentity, [](MoxType const& type) {
    auto const nobody = type.genericIf_(nullptr, false);
    std::string const null = "null " + nameOf(type);
    EXPECT_EQ(nobody->type(), &type);
    forEachAttribute(type, [&](Mox::MoxAttr const& attribute) {
      auto const id = attribute.id();
      EXPECT_EQ(refusal<Mox::RangeException>([&] { nobody->attributeOp({id}); }), null);
      auto const walk = [&] { nobody->attributeIteratorConst(id); };
      auto const walkFrom = [&] { nobody->attributeIteratorKeyConst(id, nullptr); };
      if (attribute.keyType()) {
        EXPECT_EQ(refusal<Mox::RangeException>(walk), null);
        EXPECT_EQ(refusal<Mox::RangeException>(walkFrom), null);
      } else {
        EXPECT_NE(refusal<Mox::OpNotSupportedException>(walk), "");
        EXPECT_NE(refusal<Mox::OpNotSupportedException>(walkFrom), "");
      }
    });
  });
  EXPECT_EQ(met, 29);
}

TEST(EveryTypeByNumberTest, EveryNameLeadsToItsNumber) {
  forEachType(hasIdentity, [](MoxType const& type) {
    auto const nobody = type.genericIf_(nullptr, false);
    forEachAttribute(type, [&](Mox::MoxAttr const& attribute) {
      auto const id = nobody->attributeId(attribute.moxName().stringValue());
      EXPECT_EQ(id, attribute.id());
    });
  });
}

TEST(EveryTypeByNumberTest, NoOtherNumberIsServed) {
  forEachType(hasIdentity, [](MoxType const& type) {
    auto const nobody = type.genericIf_(nullptr, false);
    std::string const unknown = "'" + nameOf(type) + "' has no such attribute";
    for (Mox::AttributeId id = 0; id < 600; ++id)
      if (!type.attributeById(id)) {
        EXPECT_EQ(refusal<Mox::UnknownAttrException>([&] { nobody->attributeOp({id}); }), unknown);
        EXPECT_EQ(refusal<Mox::UnknownAttrException>([&] { nobody->attributeIteratorConst(id); }),
                  unknown);
      }
  });
}

TEST(EveryTypeByNumberTest, EveryConstantInterfaceRefusesToWriteAnyNumber) {
  forEachType(hasIdentity, [](MoxType const& type) {
    auto const constant = type.genericIf_(nullptr, true);
    for (Mox::AttributeId const id : {0u, 2u, 130u, 258u, 386u, 9999u})
      for (GenericIf::OpId const op : {128u, 129u, ~0u})
        EXPECT_EQ(refusal<Mox::ConstException>([&] {
                    constant->attributeOp({id, op});
                  }),
                  "attempting to modify a const instance");
  });
}

TEST(EveryTypeByNumberTest, EveryEnumeratorReadsBackFromItsText) {
  auto const isEnumeration = [](MoxType const& type) { return type.isEnumType(); };
  int const met = forEachType(isEnumeration, [](MoxType const& type) {
    S32 number = 0;
    forEachAttribute(type, [&](Mox::MoxAttr const& enumerator) {
      auto const face =
          type.genericIf("'" + enumerator.moxName().stringValue() + "'", number % 2 == 0);
      EXPECT_EQ(*static_cast<S32 const*>(face->voidPtrIs(&type)), number);
      EXPECT_EQ(face->strRep(), "'" + enumerator.moxName().stringValue() + "'");
      EXPECT_EQ(face->isConst(), number % 2 == 0);
      EXPECT_EQ(face->attributeOp({1})->strRep(), face->strRep());
      EXPECT_EQ(face->clone()->strRep(), face->strRep());
      EXPECT_EQ(face->clone()->isConst(), face->isConst());
      EXPECT_EQ(refusal<Mox::UnknownAttrException>([&] { face->attributeOp({2}); }),
                "'" + nameOf(type) + "' has no such attribute");
      ++number;
    });
    EXPECT_GE(number, 3);
  });
  EXPECT_EQ(met, 6);
}

}  // namespace
