// The catalogue tells the names under which tables are published.
#include "XpLib/XpTableManSmRigTest.h"
#include "XpLib/XpTableManSmTables.h"

#include <map>

namespace Kestrel::xpTableManSm {

namespace {

constexpr U32 lastTableId = 61;

using Names = std::map<U32, std::string>;

/// The names of all tables that have one, by id.
Names catalogue() {
  Names names;
  for (U32 tableId = 0; tableId <= lastTableId; ++tableId)
    if (Mox::String8 const name = publishedName(tableId); !name.empty())
      names[tableId] = name.charPtr();
  return names;
}

/// The names under which a chip of that profile publishes its tables.
Names publishedBy(xdksim::Profile const& profile) {
  Rig rig(profile);
  auto const sm = rig.bringUp();
  Names names;
  for (auto at = rig.status->tableContextEntryIteratorConst(); at; ++at)
    names[at.key()] = at.value()->tableName().charPtr();
  return names;
}

TEST(PublishedNameTest, IsThatOfABringUp) {
  Names expected = publishedBy(xdksim::defaultProfile());
  expected[14] = "LOCAL_VTEP_VNI";  // which stands in place of others, which that chip has
  EXPECT_EQ(catalogue(), expected);
}

TEST(PublishedNameTest, CombinedTableHasOne) {
  auto profile = fullProfile();
  profile.tables[14] = table<xpHashTableContext>(1);
  EXPECT_EQ(publishedBy(profile).at(14), publishedName(14).charPtr());
}

TEST(PublishedNameTest, TableOfNoRowOrOfARowWithoutNameHasNone) {
  for (U32 tableId : {3u, 10u, 45u, 62u, 0xFFFFFFFFu}) EXPECT_TRUE(publishedName(tableId).empty());
}

}  // namespace

}  // namespace Kestrel::xpTableManSm
