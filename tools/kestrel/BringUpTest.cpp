// What the watch on a chip's status writes.
#include "tools/kestrel/BringUp.h"

#include <gtest/gtest.h>
#include <sstream>

namespace kestrel {

namespace {

/// A status that is watched; `said` are the lines so far.
struct Watched {
  Kestrel::ChipStatus::Ptr status = Kestrel::chipStatusFactory("chip");
  std::string said;
  Mox::Ptr<EntryWatch> watch;

  void start() {
    watch = EntryWatch::start(status,
                              [this](std::string_view line) { said.append(line).append("; "); });
  }
};

TEST(EntryWatchTest, TableThatAppears) {
  Watched chip;
  chip.start();
  chip.status->tableContextEntryIs(31, "INGRESS_BD");
  EXPECT_EQ(chip.said, "entry 31 INGRESS_BD; ");
}

TEST(EntryWatchTest, TableThatGoes) {
  Watched chip;
  chip.start();
  chip.status->tableContextEntryIs(31, "INGRESS_BD");
  chip.status->tableContextEntryDel(31);
  EXPECT_EQ(chip.said, "entry 31 INGRESS_BD; gone 31; ");
}

TEST(EntryWatchTest, TableThatIsAnnouncedAgainIsNotNew) {
  Watched chip;
  chip.start();
  chip.status->tableContextEntryIs(31, "INGRESS_BD");
  chip.status->tableContextEntryNotify(31);
  chip.status->tableContextEntryIs(31, "OTHER");
  EXPECT_EQ(chip.said, "entry 31 INGRESS_BD; ");
}

TEST(EntryWatchTest, TableThatNeverWasCannotGo) {
  Watched chip;
  chip.start();
  chip.status->tableContextEntryNotify(31);
  EXPECT_EQ(chip.said, "");
}

TEST(EntryWatchTest, TableThatWasThereBeforeIsNotNewButGoes) {
  Watched chip;
  chip.status->tableContextEntryIs(31, "INGRESS_BD");
  chip.start();
  chip.status->tableContextEntryNotify(31);
  chip.status->tableContextEntryDelAll();
  EXPECT_EQ(chip.said, "gone 31; ");
}

TEST(EntryWatchTest, TableThatComesBackIsNew) {
  Watched chip;
  chip.start();
  chip.status->tableContextEntryIs(31, "INGRESS_BD");
  chip.status->tableContextEntryDel(31);
  chip.status->tableContextEntryIs(31, "OTHER");
  EXPECT_EQ(chip.said, "entry 31 INGRESS_BD; gone 31; entry 31 OTHER; ");
}

TEST(PrintBringUpTest, SecondBringUpForgetsTheTablesFirst) {
  Chip chip(xdksim::defaultProfile(), "test", {.strict = true});
  std::ostringstream first;
  printBringUp(chip, first);
  std::ostringstream second;
  printBringUp(chip, second);
  std::string gone;
  for (auto table = chip.status()->tableContextEntryIteratorConst(); table; ++table)
    gone += "gone " + std::to_string(table.key()) + '\n';
  EXPECT_EQ(second.str(), gone + first.str());
}

TEST(ChipTest, EndOfTheChipSaysNothing) {
  std::ostringstream out;
  {
    Chip chip(xdksim::defaultProfile(), "test", {.strict = true});
    printBringUp(chip, out);
  }
  EXPECT_EQ(out.str().find("gone"), std::string::npos);
}

}  // namespace

}  // namespace kestrel
