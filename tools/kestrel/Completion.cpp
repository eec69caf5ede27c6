// From the words of an unfinished command line to what can follow.
#include "tools/kestrel/Completion.h"

#include "tools/kestrel/Grammar.h"
#include "tools/kestrel/UsageFault.h"
#include "tools/kestrel/model/Candidates.h"
#include "tools/kestrel/model/ModelSession.h"

namespace kestrel {

char const* const bashCompletion = R"sh(# Completion of kestrel, to be sourced by bash.
_kestrel() {
  local words=("${COMP_WORDS[@]:1:COMP_CWORD}")
  mapfile -t COMPREPLY < <("${COMP_WORDS[0]}" complete -- "${words[@]}" 2>/dev/null)
  if [[ ${COMPREPLY[*]} == FILE ]]; then
    COMPREPLY=()
    compopt -o default
  elif [[ ${COMPREPLY[0]} == */ ]]; then
    compopt -o nospace
  fi
}
complete -F _kestrel kestrel
)sh";

namespace {
using Words = std::vector<std::string>;

/// A command line as far as it stands.
class Unfinished {
 public:
  Unfinished() { addCommands(app_, parsed_); }

  void take(std::string const& word) {
    if (awaits_) {
      if (word != "=") takeValue(word);
    } else if (word == "--" && !allPositional_) {
      allPositional_ = true;
    } else if (isOption(word)) {
      takeOption(word);
    } else if (CLI::App* const named = positionals_.empty() ? subcommand(word) : nullptr) {
      command_ = named;
    } else {
      positionals_.push_back(word);
    }
  }

  Words candidates(std::string const& typed) const {
    if (awaits_) return awaits_->get_type_name() == "FILE" ? Words{"FILE"} : Words();
    if (isOption(typed)) return options();
    if (positionals_.empty() && command_->get_require_subcommand_min() > 0) return commands();
    return forPositional(nextPositional(), typed);
  }

 private:
  bool isOption(std::string const& word) const { return !allPositional_ && word.starts_with('-'); }

  CLI::App* subcommand(std::string const& name) const {
    auto const named =
        command_->get_subcommands([&](CLI::App* command) { return command->get_name() == name; });
    return named.empty() ? nullptr : named.front();
  }

  void takeOption(std::string const& word) {
    CLI::Option const* const option = command_->get_option_no_throw(word);
    if (option && option->get_items_expected_min() > 0) awaits_ = option;
  }

  void takeValue(std::string const& value) {
    if (awaits_->get_name() == "--profile") request_.profile = value;
    awaits_ = nullptr;
  }

  Words options() const {
    Words names;
    for (CLI::Option const* const option : command_->get_options())
      for (std::string const& name : option->get_lnames()) names.push_back("--" + name);
    return names;
  }

  Words commands() const {
    Words names;
    for (CLI::App const* const command : command_->get_subcommands(nullptr))
      if (!command->get_group().empty()) names.push_back(command->get_name());
    return names;
  }

  /// The name of the positional that comes next; the last goes on where it takes several.
  std::string nextPositional() const {
    std::size_t left = positionals_.size();
    for (CLI::Option const* const option : command_->get_options()) {
      if (!option->get_positional()) continue;
      if (left == 0 || option->get_allow_extra_args()) return option->get_name();
      --left;
    }
    return "";
  }

  Words forPositional(std::string const& name, std::string const& typed) const {
    if (name == "FILE" || name == "SHELL") return {name == "FILE" ? "FILE" : "bash"};
    if (name.empty()) return {};
    ModelSession const session(request_);
    if (name == "PATH") return pathsFrom(session.paths(), typed);
    if (name == "OPERATION") return operationsAt(session.paths(), positionals_[0]);
    if (name == "VALUE") return valuesAt(session.paths(), positionals_[0], typed);
    if (name == "ARGS")
      return argumentsAt(session.paths(), positionals_[0], positionals_[1], positionals_.size() - 2,
                         typed);
    return {};
  }

  Request parsed_;
  CLI::App app_{"", "kestrel"};
  CLI::App* command_ = &app_;
  CLI::Option const* awaits_ = nullptr;  // its value
  Words positionals_;
  bool allPositional_ = false;
  Request request_;
};

}  // namespace

std::vector<std::string> completionsOf(std::vector<std::string> const& words) {
  Unfinished line;
  std::string const typed = words.empty() ? "" : words.back();
  for (std::size_t at = 0; at + 1 < words.size(); ++at) line.take(words[at]);
  try {
    Words found = line.candidates(typed);
    bool const anyFile = found == Words{"FILE"};
    if (!anyFile)
      std::erase_if(found, [&](std::string const& word) { return !word.starts_with(typed); });
    return found;
  } catch (UsageFault const&) {
    return {};
  }
}

}  // namespace kestrel
