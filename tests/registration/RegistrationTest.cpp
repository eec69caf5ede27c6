// What loading the library leaves behind: its types in the registry, in their order, and their
// names in a section of the file.
#include "Kestrel/Kestrel.h"
#include "Kestrel/Kestrel.module.h"
#include "Kestrel/XpTableCliHelper.module.h"
#include "Kestrel/XpTableManSm.module.h"
#include "Mox/Trace.h"
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableManSm.h"
#include "frame/Module.h"

#include <algorithm>
#include <elf.h>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <link.h>

namespace {

using Names = std::vector<std::string>;

Names registered(frame::Module const& module) {
  Names names;
  for (frame::TypeRow const* row : module.types()) names.emplace_back(row->fullName);
  return names;
}

Names qualified(Names names) {
  for (std::string& name : names) name.insert(0, "Kestrel::");
  return names;
}

Names const kestrelTypes =
    qualified({"XpSerdesId", "XpPortId", "XpChipPort", "TxEq", "DfeState", "FecCounters",
               "XpSerdesSmState", "DfeMode", "ConnectionType", "XpPortPcsMode", "XpPortMode",
               "CoprocessorState", "CoprocessorId", "ChipStatus"});
Names const manSmTypes = qualified({"TableManSm"});
Names const helperTypes =
    qualified({"TableSramChunk", "TableTcamChunk", "TableIsmeChunk", "TableMemCollection",
               "SharedTableGroup", "TableSramMemoryMap", "TableTcamMemoryMap", "TableIsmeMemoryMap",
               "TableCollection", "TableCliHelper"});

TEST(RegistrationTest, EachModuleRegistersItsTypesInOrder) {
  EXPECT_EQ(registered(Kestrel::moxModuleKestrel()), kestrelTypes);
  EXPECT_EQ(registered(Kestrel::moxModuleXpTableManSm()), manSmTypes);
  EXPECT_EQ(registered(Kestrel::moxModuleXpTableCliHelper()), helperTypes);
}

TEST(RegistrationTest, ModulesAreDoneAtLoad) {
  EXPECT_TRUE(Kestrel::moxModuleKestrel().done());
  EXPECT_TRUE(Kestrel::moxModuleXpTableManSm().done());
  EXPECT_TRUE(Kestrel::moxModuleXpTableCliHelper().done());
}

TEST(RegistrationTest, ModulesWereDescribedOneAfterTheOther) {
  Names described;
  for (Mox::MoxType const* type : Mox::IntrospectionReactor::global()->types())
    if (type->fullTypeName().view().starts_with("Kestrel::"))
      described.emplace_back(type->fullTypeName().view());
  Names all = kestrelTypes;
  all.insert(all.end(), manSmTypes.begin(), manSmTypes.end());
  all.insert(all.end(), helperTypes.begin(), helperTypes.end());
  EXPECT_EQ(described, all);
}

TEST(RegistrationTest, EveryTypeIsFoundByItsFullName) {
  for (Names const* names : {&kestrelTypes, &manSmTypes, &helperTypes})
    for (std::string const& name : *names) {
      auto const* type = Mox::MoxType::typeNode(name.c_str());
      ASSERT_TRUE(type) << name;
      EXPECT_EQ(type->fullTypeName(), Mox::Name(name.c_str()));
    }
}

TEST(RegistrationTest, AttributesWereLookedUpAtLoad) {
  for (auto* module : {&Kestrel::moxModuleKestrel(), &Kestrel::moxModuleXpTableManSm(),
                       &Kestrel::moxModuleXpTableCliHelper()})
    for (frame::TypeRow const* row : module->types())
      for (std::size_t i = 0; i < row->attributes.size(); ++i) {
        ASSERT_TRUE(row->attributeCache[i]) << row->name;
        EXPECT_EQ(row->attributeCache[i]->name(), Mox::Name(row->attributes[i].name));
      }
}

TEST(RegistrationTest, DescriptorsAreImmortalAndStandInTheirBasesQueue) {
  auto* const fec = Kestrel::FecCounters::_fwkType();
  EXPECT_GE(fec->references(), 1u);
  auto const& queue = Mox::Entity::_fwkType()->derivedTypeQ();
  EXPECT_EQ(std::count(queue.begin(), queue.end(), fec), 1);
}

TEST(RegistrationTest, RootsAreMadeByFactoryAndByDescriptor) {
  auto const made = Kestrel::chipStatusFactory("chip0");
  EXPECT_EQ(made->name(), Mox::Name("chip0"));
  EXPECT_FALSE(made->parent());
  auto const other = Kestrel::ChipStatus::_fwkType()->newEntity("chip1", nullptr);
  EXPECT_EQ(other->name(), Mox::Name("chip1"));
  EXPECT_TRUE(Mox::ptrCast<Kestrel::ChipStatus>(other));
  EXPECT_FALSE(Kestrel::FecCounters::_fwkType()->newEntity("fec", nullptr));
}

TEST(RegistrationTest, OfTheTraceHandlesTheSdksAloneIsMadeAtLoad) {
  EXPECT_TRUE(Mox::traceFacility("XpXdkApiMacros"));
  EXPECT_FALSE(Mox::traceFacility("XpTableManSm"));
  EXPECT_FALSE(Mox::traceFacility("XpTableCliHelper"));
}

TEST(RegistrationTest, InheritedAttributesComeFirst) {
  Names names;
  for (auto const& entry : Kestrel::ChipStatus::_fwkType()->attributeQ())
    names.emplace_back(entry.value()->name().view());
  EXPECT_EQ(names, (Names{"moxHasAttrLogInterface", "ready", "moxHasAttrLogInterface", "deviceType",
                          "deviceSubType", "tableContextEntry", "portMappingTime"}));
}

struct ExpectedField {
  Mox::MoxType const* type;
  char const* name;
  Mox::AttributeId id;
  char const* of;
  Mox::MoxAttr::AttrFlags flags;
  U32 introspection;
};

constexpr Mox::MoxAttr::AttrFlags settable{0x22010F, 0x400};
constexpr Mox::MoxAttr::AttrFlags fixed{0x220109, 0x40000400};
constexpr Mox::MoxAttr::AttrFlags computed{0x220001, 0x40000400};

TEST(RegistrationTest, FieldsOfValuesHaveTheirNumbersAndFlags) {
  using namespace Kestrel;
  ExpectedField const fields[] = {
      {XpSerdesId::_fwkType(), "value", 2, "U8", settable, 2},
      {XpSerdesId::_fwkType(), "hash", 3, "U8", {0x220007, 0x400}, 0},
      {XpChipPort::_fwkType(), "devId", 2, "U8", fixed, 2},
      {XpChipPort::_fwkType(), "portId", 3, "U8", fixed, 2},
      {XpChipPort::_fwkType(), "hash", 4, "U8", computed, 0},
      {TxEq::_fwkType(), "atten", 2, "S8", fixed, 2},
      {TxEq::_fwkType(), "pre", 3, "U8", fixed, 2},
      {TxEq::_fwkType(), "post", 4, "U8", fixed, 2},
      {DfeState::_fwkType(), "mode", 2, "U8", settable, 2},
      {DfeState::_fwkType(), "disable", 3, "U8", settable, 2},
      {DfeState::_fwkType(), "state", 4, "U8", settable, 2},
      {DfeState::_fwkType(), "status", 5, "U8", settable, 2},
      {DfeState::_fwkType(), "lf", 6, "U8", settable, 2},
      {DfeState::_fwkType(), "hf", 7, "U8", settable, 2},
      {DfeState::_fwkType(), "dc", 8, "U8", settable, 2},
      {DfeState::_fwkType(), "bw", 9, "U8", settable, 2},
      {DfeState::_fwkType(), "gain", 10, "U8", settable, 2},
      {DfeState::_fwkType(), "taps", 11, "Mox::String", settable, 2},
      {CoprocessorId::_fwkType(), "value", 2, "U32", fixed, 2},
      {CoprocessorId::_fwkType(), "hash", 3, "U32", computed, 0},
  };
  for (ExpectedField const& field : fields) {
    auto const* found = field.type->attributeById(field.id);
    ASSERT_TRUE(found) << field.name;
    EXPECT_EQ(found->name(), Mox::Name(field.name));
    EXPECT_EQ(found->type()->fullTypeName(), Mox::Name(field.of)) << field.name;
    EXPECT_EQ(found->flags(), field.flags) << field.name;
    EXPECT_EQ(found->introspectionFlags(), field.introspection) << field.name;
  }
}

TEST(RegistrationTest, ValuesAreConstructedFromTheFieldsThatCantBeSet) {
  using Texts = std::vector<Mox::Name>;
  EXPECT_EQ(Kestrel::TxEq::_fwkType()->constructorArgNames(), (Texts{"atten", "pre", "post"}));
  EXPECT_EQ(Kestrel::TxEq::_fwkType()->constructorArgTypes(), (Texts{"S8", "U8", "U8"}));
  EXPECT_EQ(Kestrel::XpChipPort::_fwkType()->constructorArgNames(), (Texts{"devId", "portId"}));
  EXPECT_EQ(Kestrel::DfeState::_fwkType()->constructorArgNames(), Texts{});
  EXPECT_EQ(Kestrel::XpSerdesId::_fwkType()->constructorArgNames(), Texts{"value"});
  EXPECT_EQ(Kestrel::CoprocessorId::_fwkType()->constructorArgTypes(), Texts{"U32"});
}

TEST(RegistrationTest, PortIdHasTheAttributesOfItsBase) {
  auto const* port = Kestrel::XpPortId::_fwkType();
  auto const* base = Rye::Central::PortId::_fwkType();
  EXPECT_EQ(port->base(), base);
  EXPECT_EQ(port->attributeQ().count(), 2u);
  for (Mox::AttributeId id : {2, 3})
    EXPECT_EQ(port->attributeById(id), base->attributeById(id)) << id;
  EXPECT_EQ(port->constructorArgNames(), std::vector<Mox::Name>{"value"});
  EXPECT_EQ(port->constructorArgTypes(), std::vector<Mox::Name>{"U16"});
  EXPECT_EQ(std::count(base->derivedTypeQ().begin(), base->derivedTypeQ().end(), port), 1);
}

TEST(RegistrationTest, ValuesOfOneNumberNameIt) {
  EXPECT_EQ(Kestrel::XpSerdesId::_fwkType()->valAttr()->name(), Mox::Name("value"));
  EXPECT_EQ(Kestrel::XpPortId::_fwkType()->valAttr()->name(), Mox::Name("value"));
  EXPECT_EQ(Kestrel::CoprocessorId::_fwkType()->valAttr()->name(), Mox::Name("value"));
  EXPECT_FALSE(Kestrel::TxEq::_fwkType()->valAttr());
}

TEST(RegistrationTest, EnumeratorsAreAttributesByTheirValue) {
  auto const* mode = Kestrel::_fwkType_XpPortMode();
  EXPECT_TRUE(mode->isEnumType() && mode->isValue());
  EXPECT_EQ(mode->attributeQ().count(), 10u);
  EXPECT_EQ(mode->attributeById(9)->name(), Mox::Name("portMode100G"));
  EXPECT_EQ(mode->attributeById(9)->type(), mode);
}

TEST(RegistrationTest, TableManSmHasNoKindAndNoBase) {
  auto const* type = Kestrel::TableManSm::_fwkType();
  EXPECT_EQ(type->base(), nullptr);
  EXPECT_FALSE(type->isEntity() || type->isValue() || type->isEnumType());
  EXPECT_FALSE(type->hasGenericIfSupport());
}

/// The bytes of a section of an ELF file of this word size.
std::string section(std::string const& path, std::string const& wanted) {
  std::ifstream in(path, std::ios::binary);
  std::string const file((std::istreambuf_iterator<char>(in)), {});
  auto const* header = reinterpret_cast<ElfW(Ehdr) const*>(file.data());
  auto const* sections = reinterpret_cast<ElfW(Shdr) const*>(file.data() + header->e_shoff);
  char const* names = file.data() + sections[header->e_shstrndx].sh_offset;
  for (int i = 0; i < header->e_shnum; ++i)
    if (names + sections[i].sh_name == wanted)
      return file.substr(sections[i].sh_offset, sections[i].sh_size);
  return "";
}

TEST(RegistrationTest, SectionOfTheFileNamesTheTypesBackwardsAndNothingElse) {
  std::string expected;
  for (Names names : {kestrelTypes, manSmTypes, helperTypes}) {
    std::reverse(names.begin(), names.end());
    for (std::string const& name : names) expected += name + '\0';
  }
  EXPECT_EQ(section(KESTREL_BINARY_DIR "/lib/libKestrelTypes.so", ".mox.type"), expected);
}

}  // namespace
