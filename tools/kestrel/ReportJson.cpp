// The four reports.
#include "tools/kestrel/ReportJson.h"

#include "XpLib/XpTableCliHelperDecoding.h"
#include "XpLib/XpTableCliHelperTypes.h"
#include "XpSystem/ChipStatus.h"
#include "tools/kestrel/DetailJson.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace kestrel {

using namespace Kestrel::xpTableCliHelper;
using Json = nlohmann::ordered_json;

namespace {

using EntryPtr = XpXdk::TableContextEntry::PtrConst;

void print(Json const& json, std::ostream& out) { out << json.dump(1) << '\n'; }

/// What `jsonOf` makes of each table asked for.
template <class JsonOf>
Json tables(Kestrel::TableCliHelper& reports, std::optional<U32> tableId, JsonOf const& jsonOf) {
  XpSystem::ChipStatus const& status = *reports.chipStatus();
  Json list = Json::array();
  if (tableId)
    list.push_back(jsonOf(status.tableContext(*tableId)));
  else
    for (auto at = status.tableContextIteratorConst(); at; ++at) list.push_back(jsonOf(at.value()));
  return {{"tables", list}};
}

Json headOf(EntryPtr const& entry) {
  return {{"id", entry->tableId()},
          {"name", entry->tableName().view()},
          {"type", Kestrel::tableTypeToString(entry->tableType())}};
}

Json summaryOf(EntryPtr entry) {
  auto const [sram, tcam, isme] = numRows(*tableMemory(entry));
  Json json = headOf(entry);
  json["copies"] = entry->tblCopyNum();
  json["sram"] = sram;
  json["tcam"] = tcam;
  json["isme"] = isme;
  return json;
}

Json detailOf(Kestrel::TableCliHelper& reports, EntryPtr const& entry) {
  Mox::String8 const text = reports.displaySingleDynamicTableDetail(entry->tableId());
  Json json = headOf(entry);
  json["copies"] = detailCopies(text.view().substr(text.view().find('\n') + 1));
  return json;
}

Json poolOf(SramModel const& model, SramPool const& pool) {
  Json tiles = Json::array();
  for (std::size_t block = 0; block < pool.blocks.size(); ++block) {
    if (block % blocksPerTile == 0) tiles.push_back(Json::array());
    auto const group = pool.blocks[block];
    tiles.back().push_back(group ? Json(model.groups[*group].letter) : Json());
  }
  return {
      {"pool", pool.pool}, {"blocks", pool.blocks.size()}, {"free", pool.free()}, {"tiles", tiles}};
}

Json tableOf(SramTable const& table) { return {{"id", table.id}, {"name", table.name}}; }

Json groupOf(SramGroup const& group) {
  Json tables = Json::array();
  for (SramTable const& table : group.tables) tables.push_back(tableOf(table));
  return {{"letter", group.letter}, {"tables", tables}, {"blocks", group.blocks}};
}

Json beyondOf(SramBeyond const& beyond) {
  Json blocks = Json::array();
  for (auto const& [pool, inPool] : beyond.blocks)
    for (U32 block : inPool) blocks.push_back({{"pool", pool}, {"block", block}});
  Json json = tableOf(beyond.table);
  json["blocks"] = blocks;
  return json;
}

/// What `jsonOf` makes of each element.
template <class Range, class JsonOf>
Json listOf(Range const& range, JsonOf const& jsonOf) {
  Json list = Json::array();
  for (auto const& element : range) list.push_back(jsonOf(element));
  return list;
}

}  // namespace

void printSummaryAsJson(Kestrel::TableCliHelper& reports, std::optional<U32> tableId,
                        std::ostream& out) {
  print(tables(reports, tableId, summaryOf), out);
}

void printDetailAsJson(Kestrel::TableCliHelper& reports, std::optional<U32> tableId,
                       std::ostream& out) {
  auto const jsonOf = [&reports](EntryPtr const& entry) { return detailOf(reports, entry); };
  print(tables(reports, tableId, jsonOf), out);
}

void printTablesAsJson(Kestrel::TableCliHelper& reports, std::ostream& out) {
  auto const collection = reports.getTableCollection();
  Json list = Json::array();
  for (auto at = collection->tableNameIteratorConst(); at; ++at)
    list.push_back({{"id", at.key()}, {"name", at.value().view()}});
  print({{"tables", list}}, out);
}

void printSramAsJson(SramModel const& model, std::ostream& out) {
  auto const pool = [&model](SramPool const& one) { return poolOf(model, one); };
  print({{"rowsPerBlock", rowsPerBlock},
         {"blocksPerTile", blocksPerTile},
         {"blocks", model.blocks()},
         {"free", model.free()},
         {"pools", listOf(model.pools, pool)},
         {"groups", listOf(model.groups, groupOf)},
         {"beyond", listOf(model.beyond, beyondOf)}},
        out);
}

}  // namespace kestrel
