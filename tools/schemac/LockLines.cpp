// The lines of the lock file, as the schemas have them.
#include "tools/schemac/LockLines.h"

#include "tools/schemac/RowView.h"
#include "tools/schemac/Symbols.h"

#include <charconv>

namespace schemac {

namespace {

// What rows of these shapes hold is in no record that goes to a peer.
constexpr std::string_view shapesOffTheWire = "param computed operation";

// Their values are references, or more.
constexpr std::string_view shapesOfEntities = "ref refs own owns";

constexpr char const* noSize = "-";
constexpr char const* variableSize = "variable";

class LockedType {
 public:
  LockedType(Names const& names, Type const& type, std::vector<LockLine>& lines)
      : names_(names), type_(type), lines_(lines) {}

  void run() {
    std::string const kind(kindName(type_.kind));
    add(kind, type_.base ? ": " + spelled(*type_.base) : "", type_.at);
    std::size_t place = 0;
    for (Argument const& each : type_.arguments)
      add("(" + std::to_string(++place) + ")", argument(each) + " " + noSize, each.at);
    for (Row const& each : type_.rows)
      if (each.id != noNumber) add(std::to_string(each.id), locked(each), each.at);
  }

 private:
  void add(std::string const& what, std::string const& rest, Position const& at) {
    lines_.push_back({qualified(type_.space, type_.name) + " " + what, rest, at});
  }

  std::string locked(Row const& row) const {
    if (row.shape->form == Form::nothing) return row.name;
    return row.name + " " + std::string(row.shape->name) + typeOf(row) + " " + sizeOf(row);
  }

  std::string typeOf(Row const& row) const {
    if (row.shape->form == Form::call)
      return " " + arguments(row) + (row.type ? " -> " + spelled(*row.type) : "");
    auto const key = names_.keyType(type_, row);
    return (key ? " " + spelled(*key) + " -> " : " ") + spelled(*row.type) +
           (row.by ? " by " + row.by->text : "") + (takesForeign(row) ? " " + arguments(row) : "");
  }

  // A child's constructor has lines of its own, unless it stands elsewhere.
  bool takesForeign(Row const& row) const {
    return row.shape->takesArguments && names_.symbols.find(type_.space, *row.type)->external;
  }

  std::string arguments(Row const& row) const {
    std::string result;
    for (Argument const& each : names_.arguments(type_, row))
      result += (result.empty() ? "" : ", ") + argument(each);
    return "(" + result + ")";
  }

  std::string argument(Argument const& each) const { return each.name + " " + spelled(each.type); }

  // As descriptors call it.
  std::string spelled(TypeUse const& use) const {
    return (use.isConst ? "const " : "") + names_.useScope(type_, use).texts.at("text") +
           (use.isPointer ? "*" : "");
  }

  std::string sizeOf(Row const& row) const {
    if (type_.kind == Kind::object || hasWord(shapesOffTheWire, row.shape->name)) return noSize;
    if (hasWord(shapesOfEntities, row.shape->name)) return variableSize;
    int const value = wireSize(*row.type);
    auto const key = names_.keyType(type_, row);
    int const whole = key && value != 0 ? wireSize(*key) : 0;
    if (value == 0 || (key && whole == 0)) return variableSize;
    return std::to_string(value + whole);
  }

  // In bytes; 0 for a type whose size isn't fixed.
  int wireSize(TypeUse const& use) const {
    Extern const* external = names_.symbols.find(type_.space, use)->external;
    if (!external || !external->options.count("wire")) return 0;
    std::string const& text = external->options.at("wire").text;
    int result = 0;
    std::from_chars(text.data(), text.data() + text.size(), result);
    return result;
  }

  Names const& names_;
  Type const& type_;
  std::vector<LockLine>& lines_;
};

}  // namespace

std::vector<LockLine> lockLines(Schema const& builtin, std::vector<Schema> const& schemas) {
  std::vector<LockLine> result;
  for (Schema const& schema : schemas) {
    Symbols const symbols(builtin, schema);
    Names const names{symbols, schema};
    result.push_back({"module " + schema.module, "", {schema.file, 1, 1}});
    for (Type const& type : schema.types) LockedType(names, type, result).run();
  }
  return result;
}

}  // namespace schemac
