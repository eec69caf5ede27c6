// Publication: by value, by copies, under the name that came first.
#include "XpLib/XpTableManSmAbortTest.h"

namespace Kestrel::xpTableManSm {
namespace {

// A chip that is up, and contexts of the test's own to publish.
class PublicationTest : public testing::Test {
 protected:
  Rig rig{bareProfile()};
  Mox::Ptr<TableManSm> sm = rig.bringUp();

  void SetUp() override { rig.take(); }

  template <class Context>
  void publish(U32 tableId, std::vector<Context>& contexts, U8 copies) {
    xpTableContext* first = contexts.data();
    sm->doUpdateTableStatus(tableId, "TABLE", &first, copies, 5, 77);
  }
};

using PublicationDeathTest = PublicationTest;

template <class Context>
std::vector<Context> numbered(U32 copies) {
  auto result = contexts<Context>(copies);
  for (U32 copy = 0; copy < copies; ++copy) result[copy].numOfEntries = 100 + copy;
  return result;
}

TEST_F(PublicationTest, EntrySaysWhatTheTableIs) {
  auto context = numbered<xpHashTableContext>(1);
  publish(3, context, 1);
  EXPECT_EQ(rig.lines, Lines{"entry 3 TABLE"});
  EXPECT_EQ(rig.entry(3)->tableName(), "TABLE");
  EXPECT_EQ(rig.entry(3)->tableIdForMgr(), 5u);
  EXPECT_EQ(rig.entry(3)->plMgrId(), 77u);
  EXPECT_EQ(rig.entry(3)->tableType(), 1);
  EXPECT_EQ(rig.entry(3)->tblCopyNum(), 1u);
}

TEST_F(PublicationTest, ContextIsCopied) {
  auto context = numbered<xpHashTableContext>(1);
  publish(3, context, 1);
  context[0].numOfEntries = 7;
  EXPECT_EQ(rig.published<xpHashTableContext>(3).numOfEntries, 100u);
}

TEST_F(PublicationTest, WhatTheSdkDoesLaterDoesNotReachTheEntry) {
  rig.sdkContext<xpNhTableContext>(52)->numEntries = 4096;
  rig.bringUp();
  rig.sdkContext<xpNhTableContext>(52)->numEntries = 8192;
  EXPECT_EQ(rig.published<xpNhTableContext>(52).numEntries, 4096u);
}

// The table is given to its manager first: what the manager does to the context is published.
TEST_F(PublicationTest, WhatTheSdkDoesInAddDeviceIsPublished) {
  rig.sim.callLogIs([this](std::string_view line) {
    if (line.starts_with("xpNhMgr")) rig.sdkContext<xpNhTableContext>(52)->numEntries = 512;
  });
  rig.bringUp();
  EXPECT_EQ(rig.published<xpNhTableContext>(52).numEntries, 512u);
}

TEST_F(PublicationTest, CopiesLieAtTheStepOfTheirType) {
  auto hash = numbered<xpHashTableContext>(2);
  ASSERT_EQ(reinterpret_cast<char*>(&hash[1]) - reinterpret_cast<char*>(&hash[0]), 96);
  publish(3, hash, 2);
  EXPECT_EQ(rig.published<xpHashTableContext>(3, 0).numOfEntries, 100u);
  EXPECT_EQ(rig.published<xpHashTableContext>(3, 1).numOfEntries, 101u);
}

template <class Context>
class PublicationOfTypeTest : public testing::Test {
 protected:
  Rig rig{bareProfile()};
  Mox::Ptr<TableManSm> sm = rig.bringUp();
};

using ContextClasses = testing::Types<xpMatchTableContext, xpHashTableContext, xpDirectTableContext,
                                      xpLpmTableContext, xpIsmeTableContext, xpNhTableContext>;
TYPED_TEST_SUITE(PublicationOfTypeTest, ContextClasses);

TYPED_TEST(PublicationOfTypeTest, EachCopyIsReadBack) {
  auto array = contexts<TypeParam>(3);
  for (S32 copy = 0; copy < 3; ++copy) array[static_cast<std::size_t>(copy)].first = copy;
  xpTableContext* first = array.data();
  this->sm->doUpdateTableStatus(3, "TABLE", &first, 3, 0, 1);
  EXPECT_EQ(this->rig.entry(3)->tableType(), TypeParam::code);
  for (U8 copy = 0; copy < 3; ++copy)
    EXPECT_EQ(this->rig.template published<TypeParam>(3, copy).first, copy);
}

TEST_F(PublicationTest, MostCopies) {
  auto context = numbered<xpDirectTableContext>(255);
  publish(3, context, 255);
  EXPECT_EQ(rig.entry(3)->tblCopyNum(), 255u);
  EXPECT_EQ(rig.published<xpDirectTableContext>(3, 254).numOfEntries, 354u);
}

TEST_F(PublicationTest, NoCopiesGiveAnEntryWithoutContext) {
  auto context = numbered<xpHashTableContext>(1);
  publish(3, context, 0);
  EXPECT_EQ(rig.entry(3)->tableName(), "TABLE");
  EXPECT_EQ(rig.entry(3)->tableIdForMgr(), 5u);
  EXPECT_EQ(rig.entry(3)->plMgrId(), 77u);
  EXPECT_EQ(rig.entry(3)->tblCopyNum(), 0u);
  EXPECT_EQ(rig.entry(3)->tableType(), 0);
}

TEST_F(PublicationTest, NullContextIsSkipped) {
  xpTableContext* none = nullptr;
  sm->doUpdateTableStatus(3, "TABLE", &none, 1, 5, 77);
  EXPECT_EQ(rig.entry(3), nullptr);
  EXPECT_EQ(rig.lines, Lines());
}

TEST_F(PublicationTest, NegativeFirstFieldIsSkipped) {
  for (S32 first : {-1, -2, -2147483647 - 1}) {
    auto context = numbered<xpHashTableContext>(1);
    context[0].first = first;
    publish(3, context, 1);
    EXPECT_EQ(rig.entry(3), nullptr);
  }
}

TEST_F(PublicationTest, FirstFieldOfALaterCopyIsNotLookedAt) {
  auto context = numbered<xpHashTableContext>(2);
  context[1].first = -1;
  publish(3, context, 2);
  EXPECT_EQ(rig.entry(3)->tblCopyNum(), 2u);
}

TEST_F(PublicationTest, SkippedTableLeavesAnEarlierEntryAlone) {
  auto context = numbered<xpHashTableContext>(1);
  publish(3, context, 1);
  context[0].first = -1;
  publish(3, context, 1);
  EXPECT_EQ(rig.entry(3)->tblCopyNum(), 1u);
}

TEST_F(PublicationTest, EntryKeepsItsFirstName) {
  auto context = numbered<xpHashTableContext>(1);
  publish(3, context, 1);
  rig.take();
  xpTableContext* first = context.data();
  sm->doUpdateTableStatus(3, "OTHER", &first, 1, 6, 78);
  EXPECT_EQ(rig.entry(3)->tableName(), "TABLE");
  EXPECT_EQ(rig.entry(3)->tableIdForMgr(), 6u);
  EXPECT_EQ(rig.entry(3)->plMgrId(), 78u);
  EXPECT_EQ(rig.lines, Lines());
}

TEST_F(PublicationTest, RepublishedTableIsWhatItIsNow) {
  auto hash = numbered<xpHashTableContext>(3);
  publish(3, hash, 3);
  auto isme = numbered<xpIsmeTableContext>(1);
  publish(3, isme, 1);
  EXPECT_EQ(rig.entry(3)->tableType(), xpIsmeTableContext::code);
  EXPECT_EQ(rig.entry(3)->tblCopyNum(), 1u);
  EXPECT_EQ(rig.published<xpIsmeTableContext>(3).numOfEntries, 100u);
}

TEST_F(PublicationTest, NoCopiesLeaveThoseOfAnEarlierPublication) {
  auto context = numbered<xpHashTableContext>(2);
  publish(3, context, 2);
  publish(3, context, 0);
  EXPECT_EQ(rig.entry(3)->tblCopyNum(), 2u);
}

TEST_F(PublicationTest, IdsAreWrittenAheadOfTypeAndCopies) {
  struct Order : XpXdk::TableContextEntry::NotifieeConst {
    void onTableIdForMgr() override { seen += "idForMgr "; }
    void onPlMgrId() override { seen += "mgrId "; }
    void onTableType() override { seen += "type "; }
    std::string seen;
  };
  Mox::Ptr<Order> const order = new Order;
  order->notifierIs(rig.status->tableContextEntryIs(3, "TABLE"));
  order->isRegisteredNotifieeIs(true);
  auto context = numbered<xpHashTableContext>(2);
  publish(3, context, 2);
  EXPECT_EQ(order->seen, "idForMgr mgrId type ");
}

TEST_F(PublicationTest, TypeOfAllCopiesIsThatOfTheFirst) {
  auto context = numbered<xpHashTableContext>(2);
  context[1].tableType = 5;
  publish(3, context, 2);
  EXPECT_EQ(rig.entry(3)->tableType(), 1);
  EXPECT_EQ(rig.entry(3)->tblCopyNum(), 2u);
}

TEST_F(PublicationDeathTest, CodeThatIsNoTypeEndsTheProcess) {
  for (U32 code : {3u, 4u, 5u, 9u, 0x100u, 0xFFFFFFFFu}) {
    auto context = numbered<xpHashTableContext>(1);
    context[0].tableType = code;
    expectAbort([&] { publish(3, context, 1); },
                assertion("false",
                          "void Kestrel::TableManSm::doUpdateTableStatus(U32, Mox::String, void*, "
                          "U8, U32, U32)"));
  }
}

TEST_F(PublicationTest, CodeThatIsNoTypeDoesNotMatterWithoutCopies) {
  auto context = numbered<xpHashTableContext>(1);
  context[0].tableType = 3;
  publish(3, context, 0);
  EXPECT_TRUE(rig.entry(3));
}

// The SDK's record is smaller than its code says; it would be read past its end.
TEST_F(PublicationTest, ContextThatIsNotWhatItsCodeSaysIsRefused) {
  auto context = contexts<xpMatchTableContext>(1);
  context[0].tableType = 6;
  EXPECT_THROW(publish(3, context, 1), Mox::RangeException);
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
