// The grammar of the command line, and what each command leads to.
#include "tools/kestrel/CommandLine.h"

#include "standin/xdk/FaultRule.h"
#include "standin/xdk/Json.h"
#include "tools/kestrel/Commands.h"
#include "tools/kestrel/ExitStatus.h"
#include "tools/kestrel/Output.h"
#include "tools/kestrel/UsageFault.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <cstring>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

namespace kestrel {

namespace {

constexpr char const* description =
    "Shows the library of typed models at work: brings a simulated switching chip up and prints\n"
    "what the library says of it.  Results go to standard output, complaints to standard error.";

constexpr char const* footer =
    "Exit status: 0 success, 1 failure, such as output that can't be written, and findings of\n"
    "lint, 2 wrong usage, a bad profile or trace file, or tables of which a report can't be "
    "drawn.\n"
    "Where the library ends the process by assertion, the tool is aborted.";

std::string quoted(std::string const& text) { return '"' + text + '"'; }

/// A number is decimal here, also behind a zero.
U32 tableIdOf(std::string const& text) {
  U32 id = 0;
  char const* const end = text.data() + text.size();
  auto const read = std::from_chars(text.data(), end, id);
  if (read.ec != std::errc() || read.ptr != end)
    throw CLI::ValidationError("--table", quoted(text) + " is no table id");
  return id;
}

CLI::App& addCommand(CLI::App& app, char const* name, char const* help, Request& request,
                     Command command) {
  CLI::App& added = *app.add_subcommand(name, help);
  added.callback([&request, command] { request.command = command; });
  return added;
}

void addProfile(CLI::App& command, Request& request) {
  command
      .add_option("--profile", request.profile,
                  "A JSON file that says what the simulated SDK knows of the chip; without it, the "
                  "built-in profile")
      ->type_name("FILE");
}

void addInsight(CLI::App& command, Request& request) {
  command
      .add_option("--trace", request.insight.patterns,
                  "Show the traces of these facilities, and levels if any are named, on standard "
                  "error, such as \"Xp*/0-3,7\"; may be given several times")
      ->type_name("PATTERN")
      ->allow_extra_args(false);
  command
      .add_option("--swiftlog", request.insight.swiftlog,
                  "Record the run in this file, which \"kestrel trace\" prints")
      ->type_name("FILE");
}

/// What is wrong with the rule, as the parser asks for it; empty for a good one.
std::string complaintOf(std::string const& rule) {
  try {
    xdksim::faultRule(rule);
  } catch (std::invalid_argument const& fault) {
    return quoted(rule) + ": " + fault.what();
  }
  return "";
}

void addSdk(CLI::App& command, Request& request) {
  command
      .add_option(
          "--fault", request.sdk.faults,
          "Make the simulated SDK fail by a rule, KEY OUTCOME [at N | every N | after KEY], "
          "such as \"xpFdbMgr::addDevice 5 at 2\"; an outcome is a status, null or kill; "
          "may be given several times")
      ->type_name("RULE")
      ->allow_extra_args(false)
      ->check(complaintOf, "");
  command.add_flag("--strict", request.sdk.strict,
                   "End the process where the library misuses the simulated SDK");
}

/// The options of all commands that bring a chip of the user's up.
void addChip(CLI::App& command, Request& request) {
  addProfile(command, request);
  addSdk(command, request);
  addInsight(command, request);
}

void addTrace(CLI::App& app, Request& request) {
  addCommand(app, "trace", "Print the records of a trace file, the oldest first", request, trace)
      .add_option("FILE", request.traceFile, "What --swiftlog of another command has made")
      ->required()
      ->type_name("");
}

void addTable(CLI::App& command, Request& request, char const* help) {
  command
      .add_option_function<std::string>(
          "--table", [&request](std::string const& text) { request.tableId = tableIdOf(text); },
          help)
      ->type_name("ID");
}

CLI::Option* addJson(CLI::App& command, Request& request) {
  return command.add_flag("--json", request.json, "As JSON");
}

void addPictures(CLI::App& command, Request& request, CLI::Option* json) {
  command
      .add_option("--svg", request.svg,
                  "Draw the graph as a picture into this file, in place of the text")
      ->type_name("FILE")
      ->excludes(json);
  command
      .add_option("--html", request.html, "Draw it into a page, likewise; may stand beside --svg")
      ->type_name("FILE")
      ->excludes(json);
}

void addReports(CLI::App& app, Request& request) {
  CLI::App& report =
      *app.add_subcommand("report", "Bring a simulated chip up and report its tables");
  report.require_subcommand(1);

  CLI::App& summary = addCommand(report, "summary", "Rows that each table takes, by kind of memory",
                                 request, reportSummary);
  addTable(summary, request, "The line of this table alone");
  addJson(summary, request);
  addChip(summary, request);

  CLI::App& detail = addCommand(report, "detail", "What each copy of each table holds and where",
                                request, reportDetail);
  addTable(detail, request, "This table alone");
  addJson(detail, request);
  addChip(detail, request);

  CLI::App& sram = addCommand(report, "sram", "Which tables lie on which block of the SRAM",
                              request, reportSram);
  addPictures(sram, request, addJson(sram, request));
  addChip(sram, request);

  CLI::App& tables =
      addCommand(report, "tables", "Id and name of each table", request, reportTables);
  addJson(tables, request);
  addChip(tables, request);
}

void addBringUp(CLI::App& app, Request& request) {
  CLI::App& command = addCommand(app, "bringup", "Bring a chip up and print each call of the SDK",
                                 request, bringUp);
  command.add_flag("--down", request.down, "Take it down again, behind a line \"down\"");
  addChip(command, request);
}

void addLint(CLI::App& app, Request& request) {
  CLI::App& command = addCommand(
      app, "lint",
      "Name what is doubtful about a profile's tables, a line each; exit status 1 if anything is",
      request, lint);
  addProfile(command, request);
  addJson(command, request);
}

void addCommands(CLI::App& app, Request& request) {
  app.require_subcommand(1);
  addInsight(
      addCommand(app, "demo", "Bring the built-in chip up and tell what happens", request, demo),
      request);
  addReports(app, request);
  addBringUp(app, request);
  addLint(app, request);
  addTrace(app, request);
  addCommand(app, "profile", "Print the built-in profile", request, profile);
  addJson(addCommand(app, "types", "Print the types of the library's modules, by their descriptors",
                     request, types),
          request);
}

/// The deepest command that the user has named; its help is the one to read.
CLI::App const& namedCommand(CLI::App const& app) {
  auto const named = app.get_subcommands();
  return named.empty() ? app : namedCommand(*named.front());
}

std::string fullName(CLI::App const& command) {
  auto const* const parent = command.get_parent();
  return parent ? fullName(*parent) + " " + command.get_name() : command.get_name();
}

// One line, whatever bytes the user's words hold.
void complain(std::string const& complaint) {
  std::cerr << "kestrel: error: " << xdksim::printable(complaint, complaint.size()) << '\n';
}

/// What is wrong, where the parser's own words aren't the best.
std::string faultOf(CLI::App const& app, CLI::ParseError const& fault) {
  CLI::App const& named = namedCommand(app);
  std::string const command = quoted(fullName(named));
  std::vector<std::string> const unknown = app.remaining(true);
  bool const needsCommand = dynamic_cast<CLI::RequiredError const*>(&fault) != nullptr &&
                            named.get_require_subcommand_min() > 0;
  if (needsCommand && unknown.empty()) return command + " needs a command";
  if (needsCommand) return command + " has no command " + quoted(unknown.front());
  if (!unknown.empty()) {
    std::string const& word = unknown.front();
    bool const misplaced = named.get_option_no_throw(word) != nullptr;
    return misplaced ? quoted(word) + " must stand behind " + command
                     : command + " takes no " + quoted(word);
  }
  return fault.what();
}

ExitStatus refused(CLI::App const& app, CLI::ParseError const& fault) {
  complain(faultOf(app, fault) + " (see " + quoted(fullName(namedCommand(app)) + " --help") + ")");
  return wrongUsage;
}

ExitStatus perform(CLI::App& app, Request const& request, int argc, char const* const* argv,
                   std::ostream& out) {
  try {
    app.parse(argc, argv);
    return request.command(request, out);
  } catch (CLI::ParseError const& fault) {
    if (fault.get_exit_code() != 0) return refused(app, fault);
    app.exit(fault, out, std::cerr);  // help or version
  } catch (UsageFault const& fault) {
    complain(fault.what());
    return wrongUsage;
  } catch (std::exception const& fault) {
    complain(fault.what());
    return failure;
  }
  return success;
}

}  // namespace

int run(int argc, char const* const* argv) {
  Request request;
  CLI::App app(description, "kestrel");
  app.footer(footer);
  app.set_version_flag("--version", "kestrel " KESTREL_VERSION, "Print the version and exit");
  addCommands(app, request);

  OutputBuffer output(STDOUT_FILENO);
  std::ostream out(&output);
  // What stands on standard error comes behind the results that it is about.
  auto* const tied = std::cerr.tie(&out);
  ExitStatus const status = perform(app, request, argc, argv, out);
  std::cerr.tie(tied);
  out.flush();
  if (output.error() == 0) return status;
  complain(std::string("standard output can't be written: ") + std::strerror(output.error()));
  return failure;
}

}  // namespace kestrel
