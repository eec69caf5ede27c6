// The commands and their options, from the top.
#include "tools/kestrel/Grammar.h"

#include "standin/xdk/FaultRule.h"

#include <charconv>

namespace kestrel {

namespace {

/// A number is decimal here, also behind a zero.
U32 numberOf(std::string const& text, char const* option, char const* what) {
  U32 number = 0;
  char const* const end = text.data() + text.size();
  auto const read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end)
    throw CLI::ValidationError(option, inQuotes(text) + " is no " + what);
  return number;
}

/// An option that takes a number.
void addNumber(CLI::App& command, char const* option, char const* type, char const* what,
               char const* help, std::optional<U32>& number) {
  command
      .add_option_function<std::string>(
          option,
          [option, what, &number](std::string const& text) {
            number = numberOf(text, option, what);
          },
          help)
      ->type_name(type);
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
    return inQuotes(rule) + ": " + fault.what();
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

/// How the chip is brought up where it isn't as the profile says.
void addStart(CLI::App& command, Request& request) {
  auto const start = [&](char const* flag, char const* help, bool cold) {
    return command.add_flag_callback(
        flag, [&request, cold] { request.cold = cold; }, help);
  };
  start("--cold", "Start the chip from nothing, whatever the profile says", true)
      ->excludes(start("--warm", "Take the chip over while it forwards, likewise", false));
  addNumber(command, "--pipe-mode", "N", "pipeline mode",
            "Bring the chip up in this pipeline mode, likewise", request.pipeMode);
}

/// The options of all commands that bring a chip of the user's up.
void addChip(CLI::App& command, Request& request) {
  addProfile(command, request);
  addStart(command, request);
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
  addNumber(command, "--table", "ID", "table id", help, request.tableId);
}

CLI::Option& addJson(CLI::App& command, Request& request) {
  return *command.add_flag("--json", request.json, "As JSON");
}

void addPictures(CLI::App& command, Request& request) {
  command
      .add_option("--svg", request.svg,
                  "Draw the graph as a picture into this file, in place of the text or --json")
      ->type_name("FILE");
  command
      .add_option("--html", request.html, "Draw it into a page, likewise; may stand beside --svg")
      ->type_name("FILE");
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
  addJson(sram, request);
  addPictures(sram, request);
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

void addPath(CLI::App& command, Request& request, char const* help, bool required) {
  command.add_option("PATH", request.path, help)->required(required)->type_name("");
}

void addReading(CLI::App& app, Request& request) {
  CLI::App& got =
      addCommand(app, "get", "Print what stands at a path into the model", request, get);
  addPath(got, request, "Such as /slice0/chipStatus/chip0/portStatus/12/portMode; / for the roots",
          false);
  addJson(got, request);
  addChip(got, request);

  CLI::App& shown = addCommand(app, "tree", "Print the entities from a path on", request, tree);
  addPath(shown, request, "Where the tree begins; without it, at the roots", false);
  addNumber(shown, "--depth", "N", "depth", "Levels of entities below the first; 1 unless given",
            request.depth);
  addChip(shown, request);
}

void addChanging(CLI::App& app, Request& request) {
  CLI::App& changed =
      addCommand(app, "set", "Set what stands at a path, and print its new text", request, set);
  addPath(changed, request, "An attribute, an element or a field", true);
  changed.add_option("VALUE", request.value, "Its text; strings and names need no quotes")
      ->required()
      ->type_name("");
  addChip(changed, request);

  CLI::App& called =
      addCommand(app, "call", "Call an operation and print its result", request, call);
  addPath(called, request, "The object", true);
  called.add_option("OPERATION", request.operation, "Its operation")->required()->type_name("");
  called.add_option("ARGS", request.words, "The operation's arguments, as texts")->type_name("");
  called.add_flag("--log", request.log, "Show each call of the SDK, and each table, ahead of it")
      ->excludes(&addJson(called, request));
  addChip(called, request);
}

void addWatch(CLI::App& app, Request& request) {
  CLI::App& command = addCommand(
      app, "watch", "Let things happen in the hardware, and print each change at some paths",
      request, watch);
  command.add_option("PATH", request.words, "Entities, attributes, elements or fields")
      ->required()
      ->type_name("");
  addNumber(command, "--seed", "N", "seed", "Seed of what happens; 1 unless given", request.seed);
  addNumber(command, "--steps", "N", "number of steps", "How many things happen; 100 unless given",
            request.steps);
  command.add_flag("--batch", request.batch,
                   "Tell of each step in a batch: of several elements of a collection at once");
  addChip(command, request);
}

void addCompletion(CLI::App& app, Request& request) {
  addCommand(app, "completion", "Print a script that makes a shell complete this tool's commands",
             request, completion)
      .add_option("SHELL", request.shell, "bash")
      ->required()
      ->type_name("")
      ->check(CLI::IsMember({"bash"}).description(""));

  // For that script.
  CLI::App& asked = addCommand(
      app, "complete", "Print what can stand in the place of the last word", request, complete);
  asked.group("");
  asked.add_option("WORDS", request.words, "A command line behind the tool's name")->type_name("");
}

}  // namespace

void addCommands(CLI::App& app, Request& request) {
  app.require_subcommand(1);
  addInsight(
      addCommand(app, "demo", "Bring the built-in chip up and tell what happens", request, demo),
      request);
  addReports(app, request);
  addBringUp(app, request);
  addLint(app, request);
  addTrace(app, request);
  addReading(app, request);
  addChanging(app, request);
  addWatch(app, request);
  addCommand(app, "profile", "Print the built-in profile", request, profile);
  addJson(addCommand(app, "types", "Print the types of the library's modules, by their descriptors",
                     request, types),
          request);
  addCompletion(app, request);
}

}  // namespace kestrel
