// The text of a line of the call log.
#include "standin/xdk/CallLog.h"

#include "Xdk/TableProfile.h"

#include <algorithm>
#include <ostream>

namespace xdksim {
namespace {

/// Id of the table whose first context the word holds; "-" for no word, or null in it.
std::string tableText(xpTableContext* const* word, xpTableProfile const* tables) {
  if (!word || !*word) return "-";
  if (!tables) return "?";
  auto id = std::find(std::begin(tables->tblCtx), std::end(tables->tblCtx), *word);
  if (id == std::end(tables->tblCtx)) return "?";
  return std::to_string(id - std::begin(tables->tblCtx));
}

std::string listText(std::vector<xpTblCtxPerIdx*> const& list, xpTableProfile const* tables) {
  std::string text;
  for (xpTblCtxPerIdx const* record : list) {
    if (!text.empty()) text += ',';
    text += std::to_string(record->tblIdx) + ':' + tableText(record->tblCtx, tables) + '/' +
            std::to_string(record->numCopies) + '/' + std::to_string(record->tableIdForMgr);
  }
  return text;
}

std::string argumentText(Argument argument, CallArguments const& arguments,
                         xpTableProfile const* tables) {
  switch (argument) {
    case Argument::none:
      break;
    case Argument::device:
      return std::to_string(arguments.device);
    case Argument::table:
      return tableText(arguments.table, tables);
    case Argument::list:
      return listText(*arguments.list, tables);
    case Argument::copies:
      return std::to_string(arguments.copies);
    case Argument::mode:
      return std::to_string(arguments.mode);
    case Argument::init:
      return std::to_string(arguments.init);
    case Argument::vif:
      return std::to_string(arguments.vif);
    case Argument::direction:
      return std::to_string(arguments.direction);
  }
  return "";
}

}  // namespace

CallLog streamLog(std::ostream& out) {
  return [&out](std::string_view line) { out << line << '\n' << std::flush; };
}

std::string callLine(ManagerId manager, Call call, CallArguments const& arguments, XP_STATUS status,
                     xpTableProfile const* tables) {
  Operation const& operation = operationOf(call);
  std::string line = manager.name() + "::" + operation.name;
  for (Argument argument : operation.arguments) {
    if (argument == Argument::none) break;
    line += ' ';
    line += argumentName(argument);
    line += '=' + argumentText(argument, arguments, tables);
  }
  return line + " -> " + std::to_string(status);
}

}  // namespace xdksim
