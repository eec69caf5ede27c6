// How the table manager describes itself to the runtime.
#include "Kestrel/XpTableManSm.module.h"
#include "XpLib/XpTableManSmRigTest.h"

namespace Kestrel::xpTableManSm {
namespace {

Mox::MoxType const& type() { return *TableManSm::_fwkType(); }

// "139 doCreateBdTables"
Lines attributes() {
  Lines result;
  for (auto const& entry : type().attributeQ())
    result.push_back(std::to_string(entry.key()) + ' ' + entry.value()->name().charPtr());
  return result;
}

Mox::MoxAttr const& attribute(Mox::AttributeId id) { return *type().attributeById(id); }

Lines arguments(std::vector<Mox::Name> const& names, std::vector<Mox::Name> const& types) {
  Lines result;
  for (std::size_t i = 0; i < names.size(); ++i)
    result.push_back(std::string(types.at(i).charPtr()) + ' ' + names[i].charPtr());
  return result;
}

TEST(TableManSmTypeTest, IsRegisteredUnderItsFullName) {
  EXPECT_EQ(Mox::MoxType::typeNode("Kestrel::TableManSm"), &type());
  EXPECT_EQ(type().name(), "TableManSm");
}

TEST(TableManSmTypeTest, HasNoBaseAndNoKind) {
  EXPECT_EQ(type().base(), nullptr);
  EXPECT_FALSE(type().isEntity());
  EXPECT_FALSE(type().isValue());
  EXPECT_FALSE(type().isEnumType());
  EXPECT_FALSE(type().hasGenericIfSupport());
  EXPECT_EQ(type().size(), sizeof(TableManSm));
}

TEST(TableManSmTypeTest, ObjectsKnowIt) {
  Rig rig;
  EXPECT_EQ(rig.bringUp()->fwkType(), &type());
}

TEST(TableManSmTypeTest, ConstructorArguments) {
  EXPECT_EQ(arguments(type().constructorArgNames(), type().constructorArgTypes()),
            (Lines{"XpXdk::XpDeviceId deviceId", "Kestrel::ChipStatus chipStatus",
                   "XpXdk::XpDeviceLdePipeMode ldePipeMode", "bool coldStartNeeded",
                   "XpLib::Config::LpmTreadCfg lpmTreadCfg"}));
}

TEST(TableManSmTypeTest, Attributes) {
  EXPECT_EQ(attributes(), (Lines{
                              "0 moxFwkActivity",
                              "130 deviceId",
                              "131 chipStatus",
                              "132 ldePipeMode",
                              "133 coldStartNeeded",
                              "134 lpmTreadCfg",
                              "135 tableProfile",
                              "136 doCreateStaticTables",
                              "137 doCreateVifTables",
                              "138 doCreatePortVlanTable",
                              "139 doCreateBdTables",
                              "140 doCreateL4PortTables",
                              "141 doCreateIpXformTables",
                              "142 doCreateAaclMgksTables",
                              "143 doCreateAaclMgTables",
                              "144 doCreateFdbTable",
                              "145 doCreateRouteMcTable",
                              "146 doCreatePimTable",
                              "147 doCreateHeaderModTables",
                              "148 doCreateMdtTable",
                              "149 doCreateControlMacTable",
                              "150 doCreateLpmTables",
                              "151 doCreateNhTables",
                              "152 doCreateHostTables",
                              "153 doCreateQosTables",
                              "154 doCreateIAclTables",
                              "155 doCreateTunnelTables",
                              "156 doUpdateTableStatus",
                              "157 doVerifyOrCreateTables",
                              "158 doPrepareToDie",
                              "159 initialized",
                              "160 handleInitialized",
                          }));
}

TEST(TableManSmTypeTest, OperationsAreFlaggedAsSuch) {
  for (Mox::AttributeId id = 136; id <= 160; ++id) {
    if (id == 159) continue;
    EXPECT_EQ(attribute(id).flags(), (Mox::MoxAttr::AttrFlags{0x20000, 0x400})) << id;
    EXPECT_EQ(attribute(id).introspectionFlags(), 8u) << id;
    EXPECT_EQ(attribute(id).keyType(), nullptr) << id;
  }
}

TEST(TableManSmTypeTest, ConstructorParametersAreConstant) {
  for (Mox::AttributeId id : {130u, 132u, 133u})
    EXPECT_EQ(attribute(id).flags(), (Mox::MoxAttr::AttrFlags{0x220109, 0x40000400})) << id;
  for (Mox::AttributeId id : {131u, 134u})
    EXPECT_EQ(attribute(id).flags(), (Mox::MoxAttr::AttrFlags{0x8220109, 0x40000400})) << id;
}

TEST(TableManSmTypeTest, InitializedIsAScalar) {
  EXPECT_EQ(attribute(159).flags(), (Mox::MoxAttr::AttrFlags{0x220143, 0x1000400}));
  EXPECT_EQ(attribute(159).type()->fullTypeName(), "bool");
}

TEST(TableManSmTypeTest, ArgumentsOfOperations) {
  auto const& publication = attribute(156);
  EXPECT_EQ(arguments(publication.constructorArgNames(), publication.constructorArgTypes()),
            (Lines{"U32 tableId", "Mox::String tableName", "VoidPtr xptc", "U8 tblCpyNum",
                   "U32 tableIdForMgr", "U32 plMgrId"}));
  auto const& creation = attribute(157);
  EXPECT_EQ(arguments(creation.constructorArgNames(), creation.constructorArgTypes()),
            Lines{"bool warmRestart"});
  EXPECT_EQ(creation.type()->fullTypeName(), "bool");
}

TEST(TableManSmTypeTest, ModuleHoldsTheOneType) {
  ASSERT_EQ(moxModuleXpTableManSm().types().size(), 1u);
  EXPECT_STREQ(moxModuleXpTableManSm().types()[0]->fullName, "Kestrel::TableManSm");
  EXPECT_TRUE(moxModuleXpTableManSm().done());
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
