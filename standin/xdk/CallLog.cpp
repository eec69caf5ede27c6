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

void appendList(std::string& line, std::vector<xpTblCtxPerIdx*> const& list,
                xpTableProfile const* tables) {
  char const* separator = "";
  for (xpTblCtxPerIdx const* record : list) {
    line += separator;
    line += std::to_string(record->tblIdx) + ':' + tableText(record->tblCtx, tables) + '/';
    line += std::to_string(record->numCopies) + '/' + std::to_string(record->tableIdForMgr);
    separator = ",";
  }
}

U32 numberOf(Argument argument, CallArguments const& arguments) {
  switch (argument) {
    case Argument::device:
      return arguments.device;
    case Argument::copies:
      return arguments.copies;
    case Argument::mode:
      return arguments.mode;
    case Argument::init:
      return arguments.init;
    case Argument::vif:
      return arguments.vif;
    case Argument::direction:
      return arguments.direction;
    case Argument::none:
    case Argument::table:
    case Argument::list:
      break;
  }
  return 0;
}

void appendArgument(std::string& line, Argument argument, CallArguments const& arguments,
                    xpTableProfile const* tables) {
  if (argument == Argument::table)
    line += tableText(arguments.table, tables);
  else if (argument == Argument::list)
    appendList(line, *arguments.list, tables);
  else
    line += std::to_string(numberOf(argument, arguments));
}

}  // namespace

CallLog streamLog(std::ostream& out) {
  return [&out](std::string_view line) { out << line << '\n' << std::flush; };
}

// A piece at a time, none of them longer than what a string holds without allocating.
void appendCall(std::string& line, ManagerId manager, Call call, CallArguments const& arguments,
                xpTableProfile const* tables) {
  Operation const& operation = operationOf(call);
  manager.appendName(line);
  line += "::";
  line += operation.name;
  for (Argument argument : operation.arguments) {
    if (argument == Argument::none) break;
    line += ' ';
    line += argumentName(argument);
    line += '=';
    appendArgument(line, argument, arguments, tables);
  }
  line += " -> ";
}

}  // namespace xdksim
