// Coprocessors: their state, the access to their hardware, and their directory.
#include "Kestrel/CoprocessorStatusDir.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel {
namespace {

class Listener : public CoprocessorStatus::NotifieeConst {
 public:
  void onState() override { heard += "state;"; }
  void onHam() override { heard += "ham;"; }
  void onGenId() override { heard += "genId;"; }
  std::string heard;
};

// What the access to a coprocessor is made of, one of which a story changes.
struct Access {
  Mox::Name name = "ham";
  Fru::HamType type = Fru::hamTypePci;
  Mox::Ptr<Fru::Ham> parentHam = new Fru::Ham("below", Fru::hamTypePci, nullptr, 0, 0, "");
  U32 offset = 1;
  U32 size = 2;
  Mox::String8 path = "/ham";
};

class CoprocessorStatusTest : public testing::Test {
 protected:
  Mox::Ptr<Fru::Ham> ask(Access const& a) {
    return cop->hamIs(a.name, a.type, a.parentHam, a.offset, a.size, a.path);
  }

  Access const first{};
  Mox::Ptr<CoprocessorStatus> const cop = new CoprocessorStatus("cop", CoprocessorId(0));
  Mox::Ptr<Listener> const listener = observerOf<Listener>(cop);
};

TEST_F(CoprocessorStatusTest, FreshOneIsUninitialized) {
  EXPECT_EQ(cop->state(), copStateUninitialized);
  EXPECT_EQ(cop->genId(), 0u);
  EXPECT_EQ(cop->ham(), nullptr);
  EXPECT_EQ(cop->name(), "cop");
}

TEST_F(CoprocessorStatusTest, FapIdIsASecondNameAndCountsAsARead) {
  U32 const reads = cop->readCount();
  EXPECT_TRUE(cop->fapId() == cop->coprocessorId());
  EXPECT_EQ(cop->readCount(), reads + 2);
}

TEST_F(CoprocessorStatusTest, AddingNothingToTheGenerationTellsNobody) {
  cop->genIdIs(3);
  listener->heard.clear();
  EXPECT_EQ(cop->genIdInc(0), 3u);
  EXPECT_EQ(listener->heard, "");
}

TEST_F(CoprocessorStatusTest, GenerationIsAddedTo) {
  cop->genIdIs(2);
  EXPECT_EQ(cop->genIdInc(5), 7u);
  cop->genIdIs(7);
  EXPECT_EQ(listener->heard, "genId;genId;");
  EXPECT_EQ(cop->version(), 1u);
}

TEST_F(CoprocessorStatusTest, GenerationHas64Bits) {
  cop->genIdIs(0xFFFFFFFFu);
  EXPECT_EQ(cop->genIdInc(1), 0x100000000u);
}

TEST_F(CoprocessorStatusTest, HamOfEqualParametersStaysAndTheVersionSteps) {
  auto const ham = ask(first);
  EXPECT_EQ(ask(first), ham);
  EXPECT_EQ(cop->version(), 2u);
  EXPECT_EQ(listener->heard, "ham;");
}

TEST_F(CoprocessorStatusTest, EachParameterOfTheHamCounts) {
  std::vector<Access> others(6, first);
  others[0].name = "other";
  others[1].type = Fru::hamTypeMemory;
  others[2].parentHam = new Fru::Ham("below", Fru::hamTypePci, nullptr, 0, 0, "");
  others[3].offset = 9;
  others[4].size = 9;
  others[5].path = "/other";
  for (Access const& other : others) {
    auto const ham = ask(first);
    U32 const version = cop->version();
    listener->heard.clear();
    EXPECT_NE(ask(other), ham);
    EXPECT_EQ(ham->parent(), nullptr);
    EXPECT_EQ(cop->version(), version + 2);
    EXPECT_EQ(listener->heard, "ham;");
  }
}

TEST_F(CoprocessorStatusTest, TextsAreComparedByContent) {
  auto const ham = ask(first);
  Access same = first;
  same.path = Mox::String8("/h") + "am";
  EXPECT_EQ(ask(same), ham);
}

TEST_F(CoprocessorStatusTest, WithoutAHamNoneIsTakenAway) {
  EXPECT_EQ(cop->hamDel(), nullptr);
  EXPECT_EQ(cop->version(), 0u);
  EXPECT_EQ(listener->heard, "");
}

TEST_F(CoprocessorStatusTest, HamIsTakenAway) {
  auto const ham = ask(first);
  EXPECT_EQ(ham->parentAttrId(), 261u);
  EXPECT_EQ(cop->hamDel(), ham);
  EXPECT_EQ(ham->parent(), nullptr);
  EXPECT_EQ(listener->heard, "ham;ham;");
}

class DirListener : public CoprocessorStatusDir::NotifieeConst {
 public:
  void onCoprocessorStatus(Mox::Name) override { ++calls; }
  int calls = 0;
};

TEST(CoprocessorStatusDirTest, AskingTwiceMakesOneAndTellsOnce) {
  auto const dir = coprocessorStatusDirFactory("dir");
  auto const listener = observerOf<DirListener>(dir);
  auto const cop = dir->coprocessorStatusIs("cop", CoprocessorId(0));
  EXPECT_EQ(dir->coprocessorStatusIs("cop", CoprocessorId(0)), cop);
  EXPECT_EQ(cop->parent(), dir);
  EXPECT_EQ(cop->parentAttrId(), 258u);
  EXPECT_EQ(listener->calls, 1);
  EXPECT_EQ(dir->version(), 1u);
}

// From a peer, which alone can have another id: nothing is checked there.
CoprocessorId idOfAPeer() {
  Mox::NboAttrLog::In in(std::string_view("\0\0\0\5", 4));
  return CoprocessorId(&in, Mox::StreamBogon());
}

TEST(CoprocessorStatusDirTest, OtherIdIsAnErrorThatChangesNothing) {
  auto const dir = coprocessorStatusDirFactory("dir");
  auto const cop = dir->coprocessorStatusIs("cop", CoprocessorId(0));
  EXPECT_EQ(
      complaintOf<Mox::NameInUseException>([&] { dir->coprocessorStatusIs("cop", idOfAPeer()); }),
      "Reinstantiating the entity with name 'cop' where constructor parameter attribute "
      "_coprocessorId has a different value of 5 than the current value of 0 not allowed");
  EXPECT_EQ(dir->coprocessorStatus("cop"), cop);
  EXPECT_TRUE(cop->coprocessorId() == CoprocessorId(0));
  EXPECT_EQ(dir->version(), 1u);
}

}  // namespace
}  // namespace Kestrel
