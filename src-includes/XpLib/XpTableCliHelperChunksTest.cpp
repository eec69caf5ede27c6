// Chunks: rows, order, hash, text and parser.
#include "Mox/MoxType.h"
#include "Mox/Strep.h"
#include "XpLib/XpTableCliHelper.h"

#include <gtest/gtest.h>

namespace Kestrel {

namespace {

std::string text(TableSramChunk const& chunk) { return std::string(valueToStrep(chunk).view()); }
std::string text(TableTcamChunk const& chunk) { return std::string(valueToStrep(chunk).view()); }
std::string text(TableIsmeChunk const& chunk) { return std::string(valueToStrep(chunk).view()); }

template <class Chunk>
std::string complaint(char const* text) {
  try {
    Mox::strepToValue<Chunk>(text);
  } catch (Mox::RangeException const& exception) {
    return exception.what();
  }
  return "none";
}

U32 oneAtATime(std::initializer_list<U8> bytes) {
  U32 hash = 0;
  for (U8 byte : bytes) {
    hash += byte;
    hash += hash << 10;
    hash ^= hash >> 6;
  }
  hash += hash << 3;
  hash ^= hash >> 11;
  return hash + (hash << 15);
}

template <class Chunk>
void expectAscending(std::vector<Chunk> const& chunks) {
  for (std::size_t a = 0; a < chunks.size(); ++a)
    for (std::size_t b = 0; b < chunks.size(); ++b) {
      EXPECT_EQ(chunks[a] < chunks[b], a < b) << a << ' ' << b;
      EXPECT_EQ(chunks[a] <= chunks[b], a <= b) << a << ' ' << b;
      EXPECT_EQ(chunks[a] > chunks[b], a > b) << a << ' ' << b;
      EXPECT_EQ(chunks[a] >= chunks[b], a >= b) << a << ' ' << b;
      EXPECT_EQ(chunks[a] == chunks[b], a == b) << a << ' ' << b;
      EXPECT_EQ(chunks[a] != chunks[b], a != b) << a << ' ' << b;
    }
}

TEST(ChunkRowsTest, BothEndsOfAnSramRunCount) {
  EXPECT_EQ(TableSramChunk(0, 3, 3).numRows(), 1024u);
  EXPECT_EQ(TableSramChunk(7, 0, 7).numRows(), 8192u);
}

TEST(ChunkRowsTest, SramRunThatEndsOneBelowItsStartHasNone) {
  EXPECT_EQ(TableSramChunk(1, 5, 4).numRows(), 0u);
}

TEST(ChunkRowsTest, SramRunOfAllBlocks) { EXPECT_EQ(TableSramChunk(1, 0, 255).numRows(), 262144u); }

TEST(ChunkRowsTest, RowsWrapWhereTheEndsAreSwapped) {
  EXPECT_EQ(TableSramChunk(1, 2, 0).numRows(), static_cast<U32>(-1024));
  EXPECT_EQ(TableTcamChunk(2, 0).numRows(), static_cast<U32>(-3072));
  EXPECT_EQ(TableIsmeChunk(0, 255, 0).numRows(), static_cast<U32>(-254 * 1024));
}

TEST(ChunkRowsTest, TcamDatabaseCountsAs3072) {
  EXPECT_EQ(TableTcamChunk(2, 2).numRows(), 3072u);
  EXPECT_EQ(TableTcamChunk(0, 255).numRows(), 256u * 3072);
}

TEST(ChunkRowsTest, IsmeTileCountsAs1024) {
  EXPECT_EQ(TableIsmeChunk(0, 0, 0).numRows(), 1024u);
  EXPECT_EQ(TableIsmeChunk(3, 1, 4).numRows(), 4096u);
}

TEST(ChunkTest, DefaultIsAllZero) {
  EXPECT_EQ(TableSramChunk(), TableSramChunk(0, 0, 0));
  EXPECT_EQ(TableTcamChunk(), TableTcamChunk(0, 0));
  EXPECT_EQ(TableIsmeChunk(), TableIsmeChunk(0, 0, 0));
}

TEST(ChunkTest, FieldsAreInTheOrderOfConstruction) {
  TableSramChunk const sram(1, 2, 3);
  EXPECT_EQ(sram.poolId(), 1);
  EXPECT_EQ(sram.startRowBlkId(), 2);
  EXPECT_EQ(sram.endRowBlkId(), 3);
  TableTcamChunk const tcam(4, 5);
  EXPECT_EQ(tcam.startDb(), 4);
  EXPECT_EQ(tcam.endDb(), 5);
  TableIsmeChunk const isme(6, 7, 8);
  EXPECT_EQ(isme.ismeId(), 6);
  EXPECT_EQ(isme.startTileId(), 7);
  EXPECT_EQ(isme.endTileId(), 8);
}

TEST(ChunkTest, ABytePerField) {
  EXPECT_EQ(sizeof(TableSramChunk), 3u);
  EXPECT_EQ(sizeof(TableTcamChunk), 2u);
  EXPECT_EQ(sizeof(TableIsmeChunk), 3u);
}

TEST(ChunkOrderTest, SramByPoolThenStartThenEnd) {
  expectAscending<TableSramChunk>(
      {{0, 0, 0}, {0, 0, 255}, {0, 1, 0}, {0, 200, 1}, {1, 0, 0}, {200, 0, 0}});
}

TEST(ChunkOrderTest, TcamByStartThenEnd) {
  expectAscending<TableTcamChunk>({{0, 0}, {0, 200}, {1, 0}, {1, 1}, {128, 0}, {255, 255}});
}

TEST(ChunkOrderTest, IsmeByMemoryThenStartThenEnd) {
  expectAscending<TableIsmeChunk>({{0, 0, 0}, {0, 0, 1}, {0, 3, 0}, {1, 0, 0}, {130, 0, 0}});
}

TEST(ChunkHashTest, OneAtATimeOverTheBytesInFieldOrder) {
  EXPECT_EQ(TableSramChunk(1, 2, 3).hash(), oneAtATime({1, 2, 3}));
  EXPECT_EQ(TableTcamChunk(255, 128).hash(), oneAtATime({255, 128}));
  EXPECT_EQ(TableIsmeChunk(9, 8, 7).hash(), oneAtATime({9, 8, 7}));
  EXPECT_NE(TableSramChunk(1, 2, 3).hash(), TableSramChunk(3, 2, 1).hash());
}

// Computed outside of this code.
TEST(ChunkHashTest, KnownHashes) {
  EXPECT_EQ(TableSramChunk(1, 2, 3).hash(), 0xF926DA4Fu);
  EXPECT_EQ(TableTcamChunk(255, 128).hash(), 0x234E280Au);
}

TEST(ChunkHashTest, ZeroesHashToZero) { EXPECT_EQ(TableSramChunk(0, 0, 0).hash(), 0u); }

TEST(ChunkTextTest, SramChunk) {
  EXPECT_EQ(text(TableSramChunk(7, 0, 255)),
            "Value('Kestrel::TableSramChunk', ** {'poolId': 7, 'startRowBlkId': 0, "
            "'endRowBlkId': 255})");
}

TEST(ChunkTextTest, TcamChunk) {
  EXPECT_EQ(text(TableTcamChunk(3, 4)),
            "Value('Kestrel::TableTcamChunk', ** {'startDb': 3, 'endDb': 4})");
}

TEST(ChunkTextTest, IsmeChunk) {
  EXPECT_EQ(text(TableIsmeChunk(1, 2, 3)),
            "Value('Kestrel::TableIsmeChunk', ** {'ismeId': 1, 'startTileId': 2, "
            "'endTileId': 3})");
}

TEST(ChunkTextTest, StreamGetsTheSame) {
  std::ostringstream out;
  out << TableTcamChunk(3, 4);
  EXPECT_EQ(out.str(), text(TableTcamChunk(3, 4)));
}

TEST(ChunkParserTest, ReadsBackWhatIsWritten) {
  EXPECT_EQ(Mox::strepToValue<TableSramChunk>(valueToStrep(TableSramChunk(7, 0, 255))),
            TableSramChunk(7, 0, 255));
  EXPECT_EQ(Mox::strepToValue<TableTcamChunk>(valueToStrep(TableTcamChunk(3, 4))),
            TableTcamChunk(3, 4));
  EXPECT_EQ(Mox::strepToValue<TableIsmeChunk>(valueToStrep(TableIsmeChunk(1, 2, 3))),
            TableIsmeChunk(1, 2, 3));
}

TEST(ChunkParserTest, KeysStandInAnyOrder) {
  EXPECT_EQ(
      Mox::strepToValue<TableSramChunk>("Value('Kestrel::TableSramChunk', ** {"
                                        "'endRowBlkId': 3, 'poolId': 1, 'startRowBlkId': 2})"),
      TableSramChunk(1, 2, 3));
}

TEST(ChunkParserTest, MissingKeysLeaveZeroes) {
  EXPECT_EQ(Mox::strepToValue<TableTcamChunk>("Value('Kestrel::TableTcamChunk', ** {'endDb': 9})"),
            TableTcamChunk(0, 9));
  EXPECT_EQ(Mox::strepToValue<TableTcamChunk>("Value('Kestrel::TableTcamChunk', ** {})"),
            TableTcamChunk());
}

TEST(ChunkParserTest, LastOfTwoValuesCounts) {
  EXPECT_EQ(Mox::strepToValue<TableTcamChunk>(
                "Value('Kestrel::TableTcamChunk', ** {'endDb': 9, 'endDb': 10})"),
            TableTcamChunk(0, 10));
}

TEST(ChunkParserTest, ValuesAreNarrowed) {
  EXPECT_EQ(
      Mox::strepToValue<TableTcamChunk>("Value('Kestrel::TableTcamChunk', ** {'endDb': 258})"),
      TableTcamChunk(0, 2));
}

TEST(ChunkParserTest, WhiteSpaceIsFree) {
  EXPECT_EQ(Mox::strepToValue<TableTcamChunk>(
                "  Value ( 'Kestrel::TableTcamChunk'\n,\t** { 'startDb' : 3 , 'endDb' : 4 } ) "),
            TableTcamChunk(3, 4));
}

TEST(ChunkParserTest, TextThatEndsEarly) {
  EXPECT_EQ(complaint<TableSramChunk>("Value('Kestrel::TableSramChunk', ** {"),
            "premature end of value type TableSramChunk");
  EXPECT_EQ(complaint<TableTcamChunk>("Value('Kestrel::TableTcamChunk', ** {'startDb': 1"),
            "premature end of value type TableTcamChunk");
  EXPECT_EQ(complaint<TableIsmeChunk>("Value('Kestrel::TableIsmeChunk', ** {'ismeId': 1  "),
            "premature end of value type TableIsmeChunk");
}

TEST(ChunkParserTest, UnknownKey) {
  EXPECT_EQ(complaint<TableSramChunk>("Value('Kestrel::TableSramChunk', ** {'startDb': 1})"),
            "TableSramChunk has no such attribute: startDb");
  EXPECT_EQ(complaint<TableTcamChunk>("Value('Kestrel::TableTcamChunk', ** {'hash': 1})"),
            "TableTcamChunk has no such attribute: hash");
  EXPECT_EQ(complaint<TableIsmeChunk>("Value('Kestrel::TableIsmeChunk', ** {'': 1})"),
            "TableIsmeChunk has no such attribute: ");
}

TEST(ChunkParserTest, TextOfAnotherType) {
  EXPECT_NE(complaint<TableSramChunk>(valueToStrep(TableIsmeChunk(1, 2, 3)).charPtr()), "none");
  EXPECT_NE(complaint<TableSramChunk>(""), "none");
}

TEST(ChunkParserTest, WhatStandsBehindIsJunk) {
  Mox::String8 const text = valueToStrep(TableTcamChunk(3, 4)) + "x";
  EXPECT_EQ(complaint<TableTcamChunk>(text.charPtr()),
            std::string("junk at column 63 deserializing ") + text.charPtr());
}

}  // namespace

}  // namespace Kestrel
