// The tables of managers and operations as the documentation shows them.
#include "standin/xdk/Managers.h"

namespace xdksim {
namespace {

std::string code(std::string const& text) { return '`' + text + '`'; }

std::string indicesOf(Manager const& manager) {
  if (manager.isSingleton()) return "";
  std::string text = std::to_string(manager.firstIndex);
  for (U32 index = manager.firstIndex + 1; index <= manager.lastIndex; ++index)
    text += ", " + std::to_string(index);
  return text;
}

/// "`init`, `addDevice device= init=`".
std::string callsOf(Manager const& manager) {
  std::string text;
  for (Call call : manager.calls) {
    if (call == Call::none) break;
    text += (text.empty() ? "" : ", ") + code(operationOf(call).shown());
  }
  return text;
}

}  // namespace

std::string managersMarkdown() {
  std::string text = "| Manager | Reached through | Index | Operations |\n|---|---|---|---|\n";
  for (Manager const& manager : managers()) {
    text += "| " + code(manager.name) + " | " + code(reachName(manager.reach)) + " | " +
            indicesOf(manager) + " | " + callsOf(manager) + " |\n";
  }
  return text;
}

std::string operationsMarkdown() {
  std::string text = "| Operation | What it does |\n|---|---|\n";
  for (Operation const& operation : operations())
    text += "| " + code(operation.shown()) + " | " + operation.meaning + " |\n";
  return text;
}

}  // namespace xdksim
