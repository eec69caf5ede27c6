// From the words of the user to a command, and from its end to an exit status.
#include "tools/kestrel/CommandLine.h"

#include "standin/xdk/Json.h"
#include "tools/kestrel/Grammar.h"
#include "tools/kestrel/Output.h"
#include "tools/kestrel/UsageFault.h"

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
    "Where the library ends the process by assertion, or the simulated SDK at a misuse, the tool "
    "is\n"
    "aborted; a fault with \"kill\" kills it.";

/// The deepest command that the user has named; its help is the one to read.
CLI::App const& namedCommand(CLI::App const& app) {
  auto const named = app.get_subcommands();
  return named.empty() ? app : namedCommand(*named.front());
}

std::string fullName(CLI::App const& command) {
  auto const* const parent = command.get_parent();
  return parent ? fullName(*parent) + " " + command.get_name() : command.get_name();
}

bool takesWords(CLI::App const& command) {
  return !command.get_options([](CLI::Option const* option) { return option->get_positional(); })
              .empty();
}

// One line, whatever bytes the user's words hold.
void complain(std::string const& complaint) {
  std::cerr << "kestrel: error: " << xdksim::printable(complaint, complaint.size()) << '\n';
}

/// What is wrong, where the parser's own words aren't the best.
std::string faultOf(CLI::App const& app, CLI::ParseError const& fault) {
  CLI::App const& named = namedCommand(app);
  std::string const command = inQuotes(fullName(named));
  std::vector<std::string> const unknown = app.remaining(true);
  bool const needsCommand = dynamic_cast<CLI::RequiredError const*>(&fault) != nullptr &&
                            named.get_require_subcommand_min() > 0;
  if (needsCommand && unknown.empty()) return command + " needs a command";
  if (needsCommand) return command + " has no command " + inQuotes(unknown.front());
  if (!unknown.empty()) {
    std::string const& word = unknown.front();
    bool const misplaced = named.get_option_no_throw(word) != nullptr;
    if (misplaced) return inQuotes(word) + " must stand behind " + command;
    bool const meantAsValue = word.starts_with('-') && takesWords(named);
    return command + " takes no " + inQuotes(word) +
           (meantAsValue ? "; what begins with \"-\" and is no option stands behind \"--\"" : "");
  }
  return fault.what();
}

ExitStatus refused(CLI::App const& app, CLI::ParseError const& fault) {
  complain(faultOf(app, fault) + " (see " + inQuotes(fullName(namedCommand(app)) + " --help") +
           ")");
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
  complain(std::string("standard output cannot be written: ") + std::strerror(output.error()));
  return failure;
}

}  // namespace kestrel
