// Directories of the platform's tree.
#include "Mox/Dir.h"

#include <gtest/gtest.h>

namespace Mox {
namespace {

TEST(DirTest, EntryIsFoundByItsName) {
  Ptr<Dir> const dir = new Dir("root");
  Ptr<Entity> const chip = new Entity("chip0");
  dir->entryIs("first", chip);
  EXPECT_EQ(dir->entry("first"), chip);
  EXPECT_FALSE(dir->entry("chip0"));
}

TEST(DirTest, NullTakesTheEntryAway) {
  Ptr<Dir> const dir = new Dir("root");
  dir->entryIs("first", new Entity("chip0"));
  dir->entryIs("first", nullptr);
  EXPECT_FALSE(dir->entry("first"));
}

}  // namespace
}  // namespace Mox
