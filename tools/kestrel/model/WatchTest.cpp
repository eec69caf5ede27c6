// What is told of changes, and when.
#include "tools/kestrel/model/Call.h"
#include "tools/kestrel/model/TestModel.h"
#include "tools/kestrel/model/Watch.h"

#include <random>

namespace kestrel {

namespace {

struct WatchTest : ModelTest {
  /// What a watch of these paths tells while `act` goes on.
  template <class Act>
  std::string told(std::vector<std::string> const& watchedPaths, Act const& act,
                   bool batched = false) {
    std::ostringstream out;
    return said([&] {
      Watch watch(paths, batched, out);
      for (std::string const& path : watchedPaths) watch.add(path);
      act();
      watch.settle();
      return out.str();
    });
  }
  void set(std::string const& path, std::string const& value) const {
    kestrel::set(paths, paths.at(path), value);
  }
  /// Forgets all tables, and publishes them anew.
  void renewTables() const {
    Place const place = paths.at("/tableManSm");
    call(paths, place, operationAt(place, "doVerifyOrCreateTables"), {"False"});
  }
  std::string life(U32 seed, U32 steps, std::vector<std::string> const& watchedPaths,
                   bool batched = false) {
    std::ostringstream out;
    Watch watch(paths, batched, out);
    for (std::string const& path : watchedPaths) watch.add(path);
    std::mt19937 random(seed);
    for (U32 step = 0; step < steps; ++step) {
      model.live(random);
      watch.settle();
    }
    return out.str();
  }

  std::string const fec = phy + "/fecCounters";
};

TEST_F(WatchTest, EachChangeOfAnEntityIsALine) {
  EXPECT_EQ(
      told({port},
           [&] {
             set(port + "/portMode", "portMode40G");
             set(port + "/intfName", "a");
             set(port + "/intfName", "b");
           }),
      port + "/portMode: 'portMode40G'\n" + port + "/intfName: 'a'\n" + port + "/intfName: 'b'\n");
}

TEST_F(WatchTest, ElementsAreToldUnderTheirKeys) {
  auto const count = [&] {
    set(fec + "/fecSymbolErrors/0", "5");
    set(fec + "/fecSymbolErrors/7", "6");
    set(fec + "/fecCorrected", "7");
  };
  EXPECT_EQ(told({fec + "/fecSymbolErrors"}, count),
            fec + "/fecSymbolErrors/0: 5\n" + fec + "/fecSymbolErrors/7: 6\n");
  EXPECT_EQ(told({"/slice0Config"}, [&] { set("/slice0Config/xpPortGroupDefault/a b", "x"); }),
            "/slice0Config/xpPortGroupDefault/a%20b: 'x'\n");
}

TEST_F(WatchTest, WhatStandsBesideIsntTold) {
  auto const count = [&] {
    set(fec + "/fecSymbolErrors/0", "5");
    set(fec + "/fecSymbolErrors/1", "6");
    set(fec + "/fecCorrected", "7");
    set(phy + "/cursors/pre", "8");
    set(phy + "/cursors/post", "9");
  };
  EXPECT_EQ(told({fec + "/fecSymbolErrors/0"}, count), fec + "/fecSymbolErrors/0: 5\n");
  EXPECT_EQ(told({phy + "/cursors/atten", phy + "/eyescore"}, count), "");
}

TEST_F(WatchTest, AFieldIsToldWhenItChanges) {
  EXPECT_EQ(told({phy + "/cursors/post"},
                 [&] {
                   set(phy + "/cursors/pre", "8");
                   set(phy + "/cursors/post", "9");
                 }),
            phy + "/cursors/post: 9\n");
}

TEST_F(WatchTest, SeveralElementsAreOneLineInABatch) {
  EXPECT_EQ(told(
                {fec},
                [&] {
                  set(fec + "/fecSymbolErrors/0", "5");
                  set(fec + "/fecSymbolErrors/1", "6");
                  set(fec + "/bipErrors/1", "6");
                },
                true),
            fec + "/fecSymbolErrors: {2 elements}\n" + fec + "/bipErrors/1: 6\n");
}

TEST_F(WatchTest, ABatchTellsOfWhatHasChangedAlone) {
  EXPECT_EQ(told(
                {port},
                [&] {
                  set(port + "/intfName", "a");
                  set(port + "/portValid", "False");
                  set(port + "/intfName", "b");
                  set(port + "/portMode", "portMode40G");
                  set(port + "/portMode", "portMode100G");
                },
                true),
            port + "/intfName: 'b'\n" + port + "/portValid: False\n");
}

TEST_F(WatchTest, TheSameCountIsToldAgain) {
  std::ostringstream out;
  Watch watch(paths, true, out);
  watch.add("/slice0Config/xpPortGroupDefault");
  for (std::string const value : {"x", "y"}) {
    set("/slice0Config/xpPortGroupDefault/Ethernet1", value);
    set("/slice0Config/xpPortGroupDefault/Ethernet2", value);
    watch.settle();
  }
  EXPECT_EQ(out.str(),
            "/slice0Config/xpPortGroupDefault: {8 elements}\n"
            "/slice0Config/xpPortGroupDefault: {8 elements}\n");
}

TEST_F(WatchTest, WhatHasGoneIsGone) {
  std::string const said = told({"/chip0"}, [&] { renewTables(); });
  EXPECT_THAT(said, testing::StartsWith("/chip0/tableContextEntry/0: gone\n"));
  EXPECT_THAT(said, testing::HasSubstr("\n/chip0/tableContextEntry/31: Entity('"));
}

TEST_F(WatchTest, AnEntityThatComesBackIsFollowed) {
  std::string const entry = "/chip0/tableContextEntry/0";
  std::ostringstream out;
  Watch watch(paths, false, out);
  watch.add(entry);
  renewTables();
  watch.settle();
  set(entry + "/tableType", "6");
  EXPECT_EQ(out.str(),
            entry + ": Entity('XpXdk::TableContextEntry', 'chip0/')\n" + entry + "/tableType: 6\n");
}

TEST_F(WatchTest, APortThatGoesAndComesBackIsFollowed) {
  std::string const split = "/slice0/chipStatus/chip0/portStatus/5";
  std::string const said = life(3, 3000, {split});
  auto const gone = said.find(split + ": gone\n");
  auto const back = said.find(split + ": Entity('Kestrel::PortHwStatus'", gone);
  ASSERT_NE(back, said.npos);
  EXPECT_NE(said.find(split + "/portValid: ", back), said.npos);
}

TEST_F(WatchTest, OnlyWhatAnEntityHoldsIsWatched) {
  for (std::string const path : {"/", "/tableManSm", "/tableManSm/initialized"})
    EXPECT_EQ(told({path}, [] {}), "! \"" + path + "\": no entity holds what stands there");
  EXPECT_THAT(told({"/nowhere"}, [] {}), testing::StartsWith("! \"/nowhere\": no such root"));
}

TEST_F(WatchTest, TheSameSeedIsTheSameLife) {
  std::vector<std::string> const all = {"/slice0/chipStatus/chip0", phy, fec,
                                        "/coprocessors/coprocessorStatus/cop0"};
  std::string const first = life(5, 500, all);
  EXPECT_NE(first, "");
  Model again(chip);
  std::ostringstream out;
  Paths const others(again.roots());
  {
    Watch watch(others, false, out);
    for (std::string const& path : all) watch.add(path);
    std::mt19937 random(5);  // NOLINT: the same each time
    for (int step = 0; step < 500; ++step) again.live(random), watch.settle();
  }
  EXPECT_EQ(out.str(), first);
  EXPECT_NE(life(6, 500, all), first);
}

}  // namespace

}  // namespace kestrel
