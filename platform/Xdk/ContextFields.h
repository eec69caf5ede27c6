// The fields of the context records by name, in the order of the record: one list for all who
// read, write, compare or copy them.
#pragma once

#include "Xdk/LpmTableContext.h"
#include "Xdk/TableContexts.h"

#include <concepts>
#include <type_traits>
#include <vector>

namespace Xdk {

/// `R` itself, constant or not.
template <class T, class R>
concept RecordOf = std::same_as<std::remove_const_t<T>, R>;

/// Calls `visit(name, field)` for each field of `record`.  A field is an integer, an array of
/// integers, the array of prefix tables or the next-hop index.  The type code is none of them, nor
/// are the SDK's own bytes.
template <RecordOf<xpTableContext> R, class Visit>
void visitFields(R& record, Visit&& visit) {
  visit("first", record.first);
}

template <RecordOf<xpMatchTableContext> R, class Visit>
void visitFields(R& record, Visit&& visit) {
  visit("first", record.first);
  visit("numDb", record.numDb);
  visit("keySize", record.keySize);
  visit("valueSize", record.valueSize);
  visit("startDb", record.startDb);
}

template <RecordOf<xpHashTableContext> R, class Visit>
void visitFields(R& record, Visit&& visit) {
  visit("first", record.first);
  visit("numOfEntries", record.numOfEntries);
  visit("keySize", record.keySize);
  visit("valueSize", record.valueSize);
  visit("numOfWays", record.numOfWays);
  visit("poolId", record.poolId);
  visit("rowBlkStartId", record.rowBlkStartId);
  visit("shared", record.shared);
}

template <RecordOf<xpDirectTableContext> R, class Visit>
void visitFields(R& record, Visit&& visit) {
  visit("first", record.first);
  visit("numOfEntries", record.numOfEntries);
  visit("entryWidth", record.entryWidth);
  visit("poolId", record.poolId);
  visit("rowBlkStartId", record.rowBlkStartId);
}

template <RecordOf<xpIsmeTableContext> R, class Visit>
void visitFields(R& record, Visit&& visit) {
  visit("first", record.first);
  visit("ismeNum", record.ismeNum);
  visit("ldeNum", record.ldeNum);
  visit("numOfEntries", record.numOfEntries);
  visit("tileStartId", record.tileStartId);
}

template <RecordOf<xpNhTableContext> R, class Visit>
void visitFields(R& record, Visit&& visit) {
  visit("first", record.first);
  visit("poolBitmap", record.poolBitmap);
  visit("entryWidth", record.entryWidth);
  visit("numEntries", record.numEntries);
  visit("rowBlkStartId", record.rowBlkStartId);
}

template <RecordOf<xpLpmPrefixTable> R, class Visit>
void visitFields(R& record, Visit&& visit) {
  visit("valid", record.valid);
  visit("numOfEntries", record.numOfEntries);
  visit("entryWidth", record.entryWidth);
  visit("tread", record.tread);
  visit("poolId", record.poolId);
  visit("rowBlkStartId", record.rowBlkStartId);
}

template <RecordOf<xpLpmNhiTable> R, class Visit>
void visitFields(R& record, Visit&& visit) {
  visit("poolBitmap", record.poolBitmap);
  visit("numEntries", record.numEntries);
  visit("tileBitmap", record.tileBitmap);
  visit("pairPerEntry", record.pairPerEntry);
  visit("nhWidth", record.nhWidth);
}

template <RecordOf<xpLpmTableContext> R, class Visit>
void visitFields(R& record, Visit&& visit) {
  visit("first", record.first);
  visit("searchDataWidth", record.searchDataWidth);
  visit("vrfIdWidth", record.vrfIdWidth);
  visit("prefixTable", record.prefixTable);
  visit("nhiTable", record.nhiTable);
}

namespace detail {

template <class Field, class Visit>
void eachInteger(Field& field, Visit& visit) {
  if constexpr (std::is_array_v<Field>) {
    for (auto& element : field) eachInteger(element, visit);
  } else if constexpr (std::is_integral_v<Field>) {
    visit(field);
  } else {
    visitFields(field, [&visit](char const*, auto& inner) { eachInteger(inner, visit); });
  }
}

}  // namespace detail

/// Calls `visit(integer)` for each integer of the record's fields, through arrays and inner
/// records.
template <class R, class Visit>
void visitIntegers(R& record, Visit&& visit) {
  detail::eachInteger(record, visit);
}

/// All integers of the record's fields, in their order.
template <class R>
std::vector<U32> integersOf(R const& record) {
  std::vector<U32> integers;
  visitIntegers(record,
                [&integers](auto integer) { integers.push_back(static_cast<U32>(integer)); });
  return integers;
}

}  // namespace Xdk
