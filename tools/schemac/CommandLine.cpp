// The arguments of the program.
#include "tools/schemac/CommandLine.h"

#include <algorithm>

namespace schemac {

char const* const usage =
    "usage: schemac [--list] [--mox-type] [--lock FILE] --out DIR --templates DIR SCHEMA...\n"
    "       schemac [--list] --reference --out DIR --templates DIR SCHEMA...\n"
    "       schemac --write-lock FILE --templates DIR SCHEMA...\n"
    "       schemac --help | --version\n"
    "\n"
    "Makes the classes of model schemas, pages about them, and the file that locks them.\n"
    "\n"
    "  --out DIR          the folder that the files go to; a file is written only when it changes\n"
    "  --templates DIR    the folder of templates\n"
    "  --list             write nothing, print the paths of the files that would be written\n"
    "  --mox-type         make the list of all types too, schemas in the order given\n"
    "  --lock FILE        write nothing where the schemas say something else than this lock file\n"
    "  --reference        make the pages of the reference in place of the classes\n"
    "  --write-lock FILE  write the lock file of the schemas and nothing else\n"
    "  --help             print this\n"
    "  --version          print the version\n"
    "\n"
    "Exit code: 0 all is written, 1 errors in schemas, templates or files, 2 wrong usage.\n";

namespace {

class ArgumentReader {
 public:
  ArgumentReader(std::vector<std::string> const& arguments, std::string& fault)
      : arguments_(arguments), fault_(fault) {}

  std::optional<CommandLine> read() {
    while (fault_.empty() && index_ < arguments_.size()) argument(arguments_[index_++]);
    bool shows = result_.help || result_.version;
    if (fault_.empty() && !shows) complete();
    if (!fault_.empty()) return std::nullopt;
    return result_;
  }

 private:
  void argument(std::string const& text) {
    if (text == "--help" || text == "-h")
      result_.help = true;
    else if (text == "--version")
      result_.version = true;
    else if (text == "--list")
      result_.list = true;
    else if (text == "--mox-type")
      result_.moxType = true;
    else if (text == "--reference")
      result_.reference = true;
    else if (text == "--out")
      result_.out = pathBehind(text, "folder");
    else if (text == "--templates")
      result_.templates = pathBehind(text, "folder");
    else if (text == "--lock")
      result_.lock = pathBehind(text, "file");
    else if (text == "--write-lock")
      result_.writeLock = pathBehind(text, "file");
    else if (text.starts_with("-"))
      fault_ = "unknown option \"" + text + "\"";
    else
      schema(text);
  }

  std::string pathBehind(std::string const& option, std::string const& what) {
    if (index_ < arguments_.size() && !arguments_[index_].empty()) return arguments_[index_++];
    fault_ = "\"" + option + "\" needs a " + what;
    return "";
  }

  void schema(std::string const& path) {
    if (std::ranges::find(result_.schemas, path) != result_.schemas.end())
      fault_ = "\"" + path + "\" is named twice";
    result_.schemas.push_back(path);
  }

  void complete() {
    bool const onlyLock = !result_.writeLock.empty();
    bool const classes = result_.moxType || !result_.lock.empty();
    if (onlyLock && (classes || result_.reference || result_.list || !result_.out.empty()))
      fault_ = "\"--write-lock\" takes no other option but \"--templates\"";
    else if (result_.reference && classes)
      fault_ = "\"--reference\" takes neither \"--mox-type\" nor \"--lock\"";
    else if (!onlyLock && result_.out.empty())
      fault_ = "\"--out\" is missing";
    else if (result_.templates.empty())
      fault_ = "\"--templates\" is missing";
    else if (result_.schemas.empty())
      fault_ = "no schema is named";
  }

  std::vector<std::string> const& arguments_;
  std::string& fault_;
  std::size_t index_ = 0;
  CommandLine result_;
};

}  // namespace

std::optional<CommandLine> parseArguments(std::vector<std::string> const& arguments,
                                          std::string& fault) {
  fault.clear();
  return ArgumentReader(arguments, fault).read();
}

}  // namespace schemac
