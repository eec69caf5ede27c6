// From the JSON tree to the profile, with a complaint for all that doesn't belong there.
#include "standin/xdk/ProfileReader.h"

#include "Xdk/TableProfile.h"
#include "standin/xdk/ContextReader.h"
#include "standin/xdk/JsonCursor.h"
#include "standin/xdk/StatusRules.h"
#include "standin/xdk/TableTypes.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <stdexcept>

namespace xdksim {
namespace {

/// The code of "HASH" and the like, or of a number that is none of theirs.
U32 readType(JsonCursor const& cursor) {
  std::string const expected = "expected MATCH, HASH, DIRECT, LPM, ISME, NH or another code, got ";
  if (cursor.value().kind == Json::Kind::number) {
    U32 code = cursor.integer<U32>();
    if (tableTypeName(code))
      cursor.refuse(cursor.value().text + " is the code of " + tableTypeName(code) +
                    ", which goes by its name");
    return code;
  }
  auto code = tableTypeCode(cursor.value().text);
  if (cursor.value().kind != Json::Kind::string || !code)
    cursor.refuse(expected + cursor.value().shown());
  return *code;
}

Table readTable(JsonCursor const& cursor) {
  Table table;
  std::optional<JsonCursor> contexts;
  for (auto const& [key, member] : cursor.members()) {
    if (key == "copyNum")
      table.copyNum = member.integer<U32>();
    else if (key == "type")
      table.type = readType(member);
    else if (key == "contexts")
      contexts = member;
    else
      member.refuse("no such key in a table");
  }
  table.contexts = contextsOf(table.type);
  if (contexts) readContexts(*contexts, table.contexts);
  return table;
}

std::map<U8, U8> readTreads(JsonCursor const& cursor) {
  std::map<U8, U8> treads;
  for (auto const& [key, member] : cursor.members())
    treads[static_cast<U8>(numberKey(member, key, 31, "tread index"))] = member.integer<U8>();
  return treads;
}

LpmTreadCfg readTreadCfg(JsonCursor const& cursor) {
  LpmTreadCfg cfg;
  for (auto const& [key, member] : cursor.members()) {
    if (key == "treadV4Valid")
      cfg.treadV4Valid = member.boolean();
    else if (key == "treadV6Valid")
      cfg.treadV6Valid = member.boolean();
    else if (key == "treadV4")
      cfg.treadV4 = readTreads(member);
    else if (key == "treadV6")
      cfg.treadV6 = readTreads(member);
    else
      member.refuse("no such key in a tread configuration");
  }
  return cfg;
}

/// One status, or a list of one or more.
std::vector<S32> readStatuses(JsonCursor const& cursor) {
  if (cursor.value().kind == Json::Kind::number) return {cursor.integer<S32>()};
  if (cursor.value().kind != Json::Kind::list)
    cursor.refuse("expected a status or a list of them, got " + cursor.value().shown());
  std::vector<S32> statuses;
  for (JsonCursor const& element : cursor.elements()) statuses.push_back(element.integer<S32>());
  if (statuses.empty()) cursor.refuse("a list without a status");
  return statuses;
}

void readSdkStatus(JsonCursor const& cursor, Profile& profile) {
  for (auto const& [key, member] : cursor.members()) {
    Json const& value = member.value();
    bool isNull = value.kind == Json::Kind::string && value.text == "null";
    try {
      if (isNull)
        managerKey(key);
      else
        operationKey(key);
    } catch (std::invalid_argument const& fault) {
      member.refuse(printable(fault.what(), 200));
    }
    if (isNull)
      profile.nullManagers.insert(key);
    else
      profile.sdkStatus[key] = readStatuses(member);
  }
}

Profile readRoot(JsonCursor const& cursor) {
  Profile profile;
  for (auto const& [key, member] : cursor.members()) {
    if (key == "deviceId") {
      profile.deviceId = member.integer<U8>();
    } else if (key == "ldePipeMode") {
      profile.ldePipeMode = member.integer<U32>();
    } else if (key == "coldStartNeeded") {
      profile.coldStartNeeded = member.boolean();
    } else if (key == "lpmTreadCfg") {
      profile.lpmTreadCfg = readTreadCfg(member);
    } else if (key == "tables") {
      for (auto const& [id, table] : member.members())
        profile.tables[numberKey(table, id, xpTableProfile::numTables - 1, "table id")] =
            readTable(table);
    } else if (key == "sdkStatus") {
      readSdkStatus(member, profile);
    } else {
      member.refuse("no such key in a profile");
    }
  }
  return profile;
}

}  // namespace

Profile readProfile(std::string_view text, std::string const& file) {
  Json json = parseJson(text, file);
  return readRoot(JsonCursor(json, file));
}

Profile readProfileFile(std::string const& file) {
  constexpr std::size_t largest = 4 << 20;
  auto unreadable = [&file] {
    return ProfileFault(file + ": cannot be read: " + std::strerror(errno));
  };
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> in(std::fopen(file.c_str(), "rb"), std::fclose);
  if (!in) throw unreadable();
  std::string text(largest + 1, '\0');
  text.resize(std::fread(text.data(), 1, text.size(), in.get()));
  if (std::ferror(in.get())) throw unreadable();
  if (text.size() > largest) throw ProfileFault(file + ": larger than 4 MiB");
  return readProfile(text, file);
}

}  // namespace xdksim
