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
#include <filesystem>
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

Names const kestrelTypes = qualified({"XpSerdesId",
                                      "XpPortId",
                                      "XpChipPort",
                                      "TxEq",
                                      "DfeState",
                                      "FecCounters",
                                      "XpSerdesSmState",
                                      "DfeMode",
                                      "ConnectionType",
                                      "XpSerdesSmConfig",
                                      "XpSerdesSmStatus",
                                      "PhyXp80Config",
                                      "PhyXp80Status",
                                      "PhyXp80StatusDir",
                                      "PhyXp80ConfigDir",
                                      "PhyXp80StatusPtrDir",
                                      "PhyXp80ConfigPtrDir",
                                      "XpPortPcsMode",
                                      "XpPortMode",
                                      "XpPortList",
                                      "XpPortGroup",
                                      "PortHwConfig",
                                      "PortHwStatus",
                                      "ChipHwConfig",
                                      "ChipHwStatus",
                                      "SliceHwStatus",
                                      "SliceHwConfig",
                                      "AllChipHwConfig",
                                      "ChipConfig",
                                      "CoprocessorState",
                                      "CoprocessorId",
                                      "CoprocessorStatus",
                                      "CoprocessorStatusDir",
                                      "ChipStatus"});
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

// A root of that type, by its factory and by its descriptor.
template <class Root>
void expectRoot(Mox::Ptr<Root> (*factory)(Mox::Name const&)) {
  SCOPED_TRACE(Root::_fwkType()->fullTypeName().charPtr());
  auto const made = factory("root0");
  EXPECT_EQ(made->name(), Mox::Name("root0"));
  EXPECT_FALSE(made->parent());
  auto const other = Root::_fwkType()->newEntity("root1", nullptr);
  ASSERT_TRUE(other);
  EXPECT_EQ(other->name(), Mox::Name("root1"));
  EXPECT_TRUE(Mox::ptrCast<Root>(other));
  EXPECT_FALSE(other->parent());
}

TEST(RegistrationTest, RootsAreMadeByFactoryAndByDescriptor) {
  expectRoot(Kestrel::chipConfigFactory);
  expectRoot(Kestrel::chipHwConfigFactory);
  expectRoot(Kestrel::chipHwStatusFactory);
  expectRoot(Kestrel::chipStatusFactory);
  expectRoot(Kestrel::allChipHwConfigFactory);
  expectRoot(Kestrel::sliceHwConfigFactory);
  expectRoot(Kestrel::sliceHwStatusFactory);
  expectRoot(Kestrel::coprocessorStatusDirFactory);
  expectRoot(Kestrel::phyXp80ConfigDirFactory);
  expectRoot(Kestrel::phyXp80ConfigPtrDirFactory);
  expectRoot(Kestrel::phyXp80StatusDirFactory);
  expectRoot(Kestrel::phyXp80StatusPtrDirFactory);
}

TEST(RegistrationTest, RootsByNumberAndChildrenAreNotMadeByDescriptor) {
  EXPECT_EQ(Kestrel::portHwConfigFactory(3)->portId(), 3u);
  EXPECT_TRUE(Kestrel::portHwStatusFactory(Kestrel::XpPortId(3))->portId() == Kestrel::XpPortId(3));
  for (auto const* type :
       {Kestrel::PortHwConfig::_fwkType(), Kestrel::PortHwStatus::_fwkType(),
        Kestrel::FecCounters::_fwkType(), Kestrel::XpSerdesSmConfig::_fwkType(),
        Kestrel::XpSerdesSmStatus::_fwkType(), Kestrel::PhyXp80Config::_fwkType(),
        Kestrel::PhyXp80Status::_fwkType(), Kestrel::XpPortList::_fwkType(),
        Kestrel::XpPortGroup::_fwkType(), Kestrel::CoprocessorStatus::_fwkType()})
    EXPECT_FALSE(type->newEntity("name", nullptr)) << type->fullTypeName();
}

// The types of the keys of those that live in keyed collections, as their own level has them.
TEST(RegistrationTest, ElementsOfCollectionsTellTheirKey) {
  Names keys;
  for (frame::TypeRow const* row : Kestrel::moxModuleKestrel().types())
    for (frame::AttributeRow const& attribute : row->attributes)
      if (attribute.id == 0 && row->kind == frame::TypeKind::entity)
        keys.push_back(std::string(row->name) + " " +
                       std::string(attribute.type()->fullTypeName().view()));
  EXPECT_EQ(keys,
            (Names{"PhyXp80Config Mox::Name", "PhyXp80Status Mox::Name", "XpPortList Mox::Name",
                   "XpPortGroup Mox::Name", "PortHwConfig U16", "PortHwStatus Kestrel::XpPortId",
                   "ChipHwStatus Mox::Name", "CoprocessorStatus Mox::Name"}));
}

// "key attribute: argument type, ..." of an attribute that makes its elements.
std::string instantiation(Mox::MoxType const* type, Mox::AttributeId id) {
  auto const* const attribute = type->attributeById(id);
  std::string text = std::string(attribute->keyAttr().view()) + ":";
  auto const& types = attribute->constructorArgTypes();
  for (std::size_t i = 0; i < types.size(); ++i)
    text += " " + std::string(attribute->constructorArgNames()[i].view()) + " " +
            std::string(types[i].view()) + ",";
  return text;
}

TEST(RegistrationTest, InstantiatingAttributesTellKeyAndArguments) {
  using namespace Kestrel;
  EXPECT_EQ(instantiation(PhyXp80Status::_fwkType(), 390), ": name Mox::Name,");
  EXPECT_EQ(instantiation(PhyXp80Status::_fwkType(), 421), ": name Mox::Name, serdesId U8,");
  EXPECT_EQ(instantiation(PhyXp80ConfigDir::_fwkType(), 258),
            "name: name Mox::Name, opalDesc MdioOpal::OpalDesc, api Mox::String, minBlobVersion "
            "Mox::String, lane U8, serdesId Kestrel::XpSerdesId, txLane U8, rxLane U8, txPolarity "
            "bool, rxPolarity bool, txEq10 Kestrel::TxEq, txEqLimiting25 Kestrel::TxEq, "
            "txEqLinear25 Kestrel::TxEq,");
  EXPECT_EQ(instantiation(PhyXp80StatusDir::_fwkType(), 258),
            "name: name Mox::Name, mdioClause Hardware::Phy::MdioClause, phyConfig "
            "Hardware::Phy::PhyConfig, ethIntfStatus Interface::EthPhyIntfStatus, lane U8, "
            "serdesId Kestrel::XpSerdesId,");
  EXPECT_EQ(instantiation(ChipHwConfig::_fwkType(), 386),
            ": name Mox::Name, offset U32, size U32, path Mox::String, deviceName Mox::Name, "
            "driver Mox::String, pciAddress Inventory::PciAddress, pciId Inventory::PciId, "
            "writable bool,");
  EXPECT_EQ(instantiation(AllChipHwConfig::_fwkType(), 259), "portId: portId U16,");
  EXPECT_EQ(instantiation(ChipHwStatus::_fwkType(), 258), "portId: portId Kestrel::XpPortId,");
  EXPECT_EQ(instantiation(CoprocessorStatus::_fwkType(), 261),
            ": name Mox::Name, type Fru::HamType, parentHam Fru::Ham, offset U32, size U32, path "
            "Mox::String,");
  EXPECT_EQ(instantiation(CoprocessorStatusDir::_fwkType(), 258),
            "name: name Mox::Name, coprocessorId Kestrel::CoprocessorId,");
}

TEST(RegistrationTest, ReferencesByTheirOwnKeyNameIt) {
  using namespace Kestrel;
  EXPECT_EQ(instantiation(ChipHwConfig::_fwkType(), 390), "name:");
  EXPECT_EQ(instantiation(ChipHwConfig::_fwkType(), 396), "serdesId:");
  EXPECT_EQ(instantiation(ChipHwConfig::_fwkType(), 388), ":");
  EXPECT_EQ(instantiation(PhyXp80Status::_fwkType(), 419), ":");
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
      {XpSerdesId::_fwkType(), "hash", 3, "U32", {0x220007, 0x400}, 0},
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
  // Read at once: under a sanitizer a large file takes minutes byte by byte.
  std::string file(std::filesystem::file_size(path), '\0');
  std::ifstream(path, std::ios::binary)
      .read(file.data(), static_cast<std::streamsize>(file.size()));
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
