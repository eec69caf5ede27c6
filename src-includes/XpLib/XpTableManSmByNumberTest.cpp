// The table manager by number: each step of the bring-up can be called by itself.
#include "XpLib/XpTableManSmRigTest.h"
#include "hwmodel/ValuesByNumberTest.h"

#include <iterator>
#include <set>

namespace Kestrel::xpTableManSm {
namespace {

using namespace attributes;

/// A chip that is up, of which nothing is published, and its table manager's interface.
struct TableManSmByNumberTest : testing::Test {
  void SetUp() override {
    rig.status->tableContextEntryDelAll();
    rig.take();
  }
  GenericIf::Ptr call(Mox::AttributeId id, GenericIf::PtrConst const& argument = nullptr) const {
    return face->attributeOp({id, GenericIf::opWrite}, nullptr, argument);
  }
  static bool initialized(GenericIf::Ptr const& of) { return read(of, 159) == "True"; }

  Rig rig;
  TableManSm::Ptr sm = rig.bringUp();
  GenericIf::Ptr face = sm->fwkType()->genericIf_(sm.ptr(), false);
};

/// One operation without arguments.
struct Operation {
  Mox::AttributeId id;
  char const* name;
  void (TableManSm::*typed)();
};
Operation const operations[] = {
    {136, "doCreateStaticTables", &TableManSm::doCreateStaticTables},
    {137, "doCreateVifTables", &TableManSm::doCreateVifTables},
    {138, "doCreatePortVlanTable", &TableManSm::doCreatePortVlanTable},
    {139, "doCreateBdTables", &TableManSm::doCreateBdTables},
    {140, "doCreateL4PortTables", &TableManSm::doCreateL4PortTables},
    {141, "doCreateIpXformTables", &TableManSm::doCreateIpXformTables},
    {142, "doCreateAaclMgksTables", &TableManSm::doCreateAaclMgksTables},
    {143, "doCreateAaclMgTables", &TableManSm::doCreateAaclMgTables},
    {144, "doCreateFdbTable", &TableManSm::doCreateFdbTable},
    {145, "doCreateRouteMcTable", &TableManSm::doCreateRouteMcTable},
    {146, "doCreatePimTable", &TableManSm::doCreatePimTable},
    {147, "doCreateHeaderModTables", &TableManSm::doCreateHeaderModTables},
    {148, "doCreateMdtTable", &TableManSm::doCreateMdtTable},
    {149, "doCreateControlMacTable", &TableManSm::doCreateControlMacTable},
    {150, "doCreateLpmTables", &TableManSm::doCreateLpmTables},
    {151, "doCreateNhTables", &TableManSm::doCreateNhTables},
    {152, "doCreateHostTables", &TableManSm::doCreateHostTables},
    {153, "doCreateQosTables", &TableManSm::doCreateQosTables},
    {154, "doCreateIAclTables", &TableManSm::doCreateIAclTables},
    {155, "doCreateTunnelTables", &TableManSm::doCreateTunnelTables},
    {158, "doPrepareToDie", &TableManSm::doPrepareToDie},
    {160, "handleInitialized", &TableManSm::handleInitialized},
};

/// What happens in one operation alone, called by its typed form or by its number.
Lines linesOf(Operation const& operation, bool byNumber) {
  Rig rig;
  if (!byNumber) return linesOf(rig, operation.typed);
  auto const sm = rig.bringUp();
  rig.status->tableContextEntryDelAll();
  rig.take();
  auto const face = sm->fwkType()->genericIf_(sm.ptr(), false);
  EXPECT_EQ(face->attributeId(operation.name), operation.id);
  EXPECT_FALSE(face->attributeOp({operation.id, GenericIf::opWrite})) << "there is no result";
  return rig.take();
}

TEST(TableManSmOperationsByNumberTest, EachDoesWhatItsTypedFormDoes) {
  std::set<Lines> different;
  for (auto const& operation : operations) {
    SCOPED_TRACE(operation.name);
    Lines const typed = linesOf(operation, false);
    EXPECT_NE(typed, Lines{});
    EXPECT_EQ(linesOf(operation, true), typed);
    different.insert(typed);
  }
  EXPECT_EQ(different.size(), std::size(operations)) << "no two do the same";
}

TEST_F(TableManSmByNumberTest, OneOperationAloneMakesItsTablesAlone) {
  EXPECT_FALSE(call(148));
  EXPECT_EQ(rig.status->tableContextEntryCount(), 1u);
  EXPECT_EQ(rig.entry(30)->tableName(), "MDT");
}

TEST_F(TableManSmByNumberTest, AWarmVerificationAnswersTrueAndDoesNothing) {
  EXPECT_EQ(call(157, number(true))->strRep(), "True");
  EXPECT_EQ(rig.take(), Lines{});
}

TEST_F(TableManSmByNumberTest, AColdVerificationMakesAllTables) {
  EXPECT_EQ(call(157, list({number(false)}))->strRep(), "True");
  EXPECT_GT(rig.status->tableContextEntryCount(), 30u);
}

TEST_F(TableManSmByNumberTest, AVerificationNeedsItsArgument) {
  EXPECT_EQ(refusal<Mox::TypeException>([&] { call(157); }), "wrong type for 'warmRestart'");
  EXPECT_EQ(refusal<Mox::TypeException>([&] { call(157, number(U8{1})); }),
            "wrong type for 'warmRestart'");
  EXPECT_EQ(rig.take(), Lines{});
}

TEST_F(TableManSmByNumberTest, ATableIsPublishedByItsSixArguments) {
  auto context = contexts<xpHashTableContext>(2);
  context[1].numOfEntries = 77;
  xpTableContext* first = context.data();
  void* const word = &first;
  std::vector<GenericIf::PtrConst> const six = {number(U32{500}), number(Mox::String8("T")),
                                                number(word),     number(U8{2}),
                                                number(U32{500}), number(U32{7})};
  EXPECT_FALSE(call(156, list(six)));
  ASSERT_TRUE(rig.entry(500));
  EXPECT_EQ(rig.entry(500)->tableName(), "T");
  EXPECT_EQ(rig.published<xpHashTableContext>(500, 1).numOfEntries, 77u);
}

TEST_F(TableManSmByNumberTest, APublicationWithAWrongArgumentPublishesNothing) {
  void* const nothing = nullptr;
  std::vector<GenericIf::PtrConst> six = {number(U32{500}), number(Mox::String8("T")),
                                          number(nothing),  number(U8{1}),
                                          number(U32{500}), number(U32{7})};
  char const* const names[] = {"tableId",   "tableName",     "xptc",
                               "tblCpyNum", "tableIdForMgr", "plMgrId"};
  for (std::size_t i = 0; i < six.size(); ++i) {
    auto wrong = six;
    wrong[i] = number(S8{1});
    EXPECT_EQ(refusal<Mox::TypeException>([&] { call(156, list(wrong)); }),
              std::string("wrong type for '") + names[i] + "'");
    wrong.resize(i);
    EXPECT_EQ(refusal<Mox::TypeException>([&] { call(156, list(wrong)); }),
              std::string("wrong type for '") + names[i] + "'");
  }
  six.push_back(number(true));
  EXPECT_EQ(refusal<Mox::UnknownArgException>([&] { call(156, list(six)); }),
            "too many arguments for 'doUpdateTableStatus'");
  EXPECT_EQ(rig.take(), Lines{});
}

TEST_F(TableManSmByNumberTest, ParametersAreReadAlone) {
  EXPECT_EQ(read(face, 130), "0");
  EXPECT_EQ(dynamic_cast<Mox::GenericIfEntity const&>(*face->attributeOp({131})).entity(),
            rig.status.ptr());
  EXPECT_EQ(read(face, 133), sm->coldStartNeeded() ? "True" : "False");
  EXPECT_EQ(dynamic_cast<Mox::GenericIfEntity const&>(*face->attributeOp({134})).entity(),
            rig.lpmTreadCfg.ptr());
  EXPECT_EQ(refusal<Mox::OpNotSupportedException>([&] {
              face->attributeOp({133, 128}, nullptr, number(true));
            }),
            "'coldStartNeeded' does not support operation 128");
}

TEST_F(TableManSmByNumberTest, TheProfileHasNoOperation) {
  EXPECT_EQ(face->attributeId("tableProfile"), 135u);
  for (GenericIf::OpId const op : {0u, 1u, 128u, 129u})
    EXPECT_EQ(refusal<Mox::OpNotSupportedException>([&] {
                face->attributeOp({135, op});
              }),
              "'tableProfile' does not support operation " + std::to_string(op));
}

TEST_F(TableManSmByNumberTest, InitializedIsReadAndWritten) {
  EXPECT_TRUE(initialized(face));
  EXPECT_FALSE(face->attributeOp({159, 128}, nullptr, number(false)));
  EXPECT_FALSE(sm->initialized());
  EXPECT_FALSE(initialized(face));
}

TEST_F(TableManSmByNumberTest, AConstantInterfaceCallsNothing) {
  auto const constant = sm->fwkType()->genericIf_(sm.ptr(), true);
  for (auto const& operation : operations)
    EXPECT_EQ(refusal<Mox::ConstException>([&] {
                constant->attributeOp({operation.id, 128});
              }),
              "attempting to modify a const instance");
  EXPECT_EQ(rig.take(), Lines{});
}

TEST_F(TableManSmByNumberTest, AnOperationIsNotRead) {
  EXPECT_EQ(refusal<Mox::OpNotSupportedException>([&] { face->attributeOp({144}); }),
            "'doCreateFdbTable' does not support operation 0");
  EXPECT_EQ(refusal<Mox::UnknownArgException>([&] { call(144, number(true)); }),
            "too many arguments for 'doCreateFdbTable'");
  EXPECT_EQ(rig.take(), Lines{});
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
