// Reads a schema file.
#include "tools/schemac/Parser.h"

#include "tools/schemac/Cursor.h"

namespace schemac {

namespace {

class Parser {
 public:
  Parser(std::string const& file, std::string_view source, Diagnostics& diagnostics)
      : cursor_(lex(file, source, diagnostics)), diagnostics_(diagnostics) {
    schema_.file = file;
  }

  Schema schema() {
    while (!cursor_.is(Token::Kind::end)) guarded([&] { statement(); });
    refusePendingDoc();
    return std::move(schema_);
  }

 private:
  // Runs `step`; after an error goes on behind the line that has it.
  template <class Step>
  void guarded(Step step) {
    try {
      step();
    } catch (LineError const& error) {
      diagnostics_.error(error.at, error.what);
      doc_.clear();
      cursor_.skipLine();
    }
  }

  void statement() {
    if (takeDocOrNewline()) return;
    if (auto kind = blockHere()) return block(*kind);
    refusePendingDoc();
    if (cursor_.takeIfWord("module")) return once(schema_.module, "a module name");
    if (cursor_.takeIfWord("header")) return header();
    if (cursor_.takeIfWord("namespace")) return nameSpace();
    if (cursor_.takeIfWord("closed")) return closed();
    if (cursor_.takeIfWord("extern")) return externType();
    cursor_.fail("a statement, such as \"module\" or \"entity\"");
  }

  bool takeDocOrNewline() {
    if (cursor_.is(Token::Kind::newline)) {
      cursor_.take();
      return true;
    }
    if (!cursor_.is(Token::Kind::doc)) return false;
    if (doc_.empty()) docAt_ = cursor_.peek().at;
    doc_.push_back(cursor_.take().text);
    return true;
  }

  std::optional<Kind> blockHere() const {
    if (!cursor_.is(Token::Kind::word)) return std::nullopt;
    auto kind = kindNamed(cursor_.peek().text);
    return kind == Kind::primitive ? std::nullopt : kind;
  }

  void once(std::string& slot, std::string const& what) {
    Position at = cursor_.peek().at;
    Word word = cursor_.name(what);
    if (!slot.empty()) diagnostics_.error(at, "this file names " + what + " twice");
    slot = word.text;
    endOfLine();
  }

  void header() {
    Word path = cursor_.textOrWord("a header path");
    if (!schema_.header.empty()) diagnostics_.error(path.at, "this file names a header path twice");
    schema_.header = path.text;
    endOfLine();
  }

  void nameSpace() {
    Word space = cursor_.qualifiedName("a namespace");
    if (!schema_.space.empty())
      diagnostics_.error(space.at, "this file names a namespace twice");
    else if (!schema_.types.empty())
      diagnostics_.error(space.at, "the namespace must stand above all types");
    schema_.space = space.text;
    schema_.spaceAt = space.at;
    endOfLine();
  }

  void closed() {
    schema_.closed = true;
    endOfLine();
  }

  void externType() {
    Extern type;
    auto kind = cursor_.is(Token::Kind::word) ? kindNamed(cursor_.peek().text) : std::nullopt;
    if (!kind) cursor_.fail("\"primitive\", \"value\", \"enum\", \"entity\" or \"object\"");
    cursor_.take();
    type.kind = *kind;
    Word name = cursor_.qualifiedName("a type name");
    type.name = name.text;
    type.at = name.at;
    type.options = options("extern");
    endOfLine();
    schema_.externs.push_back(std::move(type));
  }

  void block(Kind kind) {
    Type type;
    type.kind = kind;
    type.space = schema_.space;
    type.at = cursor_.peek().at;
    guarded([&] { head(type); });
    bool open = true;
    while (open) guarded([&] { open = rowOrEnd(type); });
    schema_.types.push_back(std::move(type));
  }

  void head(Type& type) {
    cursor_.take();
    Word name = cursor_.name("a type name");
    type.name = name.text;
    type.at = name.at;
    if (cursor_.isMark("(")) type.arguments = cursor_.arguments();
    if (cursor_.takeIfMark(":")) type.base = cursor_.typeUse("the base");
    type.options = options(kindName(type.kind));
    type.doc = docOfLine();
  }

  // False behind the last line of the block.
  bool rowOrEnd(Type& type) {
    if (takeDocOrNewline()) return true;
    bool lost = cursor_.is(Token::Kind::end) || blockHere();
    if (lost) {
      diagnostics_.error(type.at, inQuotes(type.name) + " has no \"end\"");
      return false;
    }
    if (cursor_.takeIfWord("end")) {
      refusePendingDoc();
      endOfLine();
      return false;
    }
    type.rows.push_back(row(type.kind));
    return true;
  }

  Row row(Kind kind) {
    Row result;
    result.at = cursor_.peek().at;
    result.id = number();
    result.shape = shape(kind);
    numbering(result);
    result.name = cursor_.name("the name of the row").text;
    form(result);
    if (result.shape->takesDefault && cursor_.takeIfMark("="))
      result.defaultValue = cursor_.textOrWord("a default value");
    if (result.shape->takesRange && cursor_.takeIfWord("in")) result.range = cursor_.range();
    if (result.shape->takesArguments && cursor_.isMark("(")) result.arguments = cursor_.arguments();
    result.options = options(result.shape->name);
    result.doc = docOfLine();
    return result;
  }

  static void numbering(Row const& row) {
    Numbering const numbering = row.shape->numbering;
    if (row.id == noNumber && numbering == Numbering::always)
      throw LineError{row.at, "only an operation or a preset can do without a number"};
    if (row.id != noNumber && numbering == Numbering::never)
      throw LineError{row.at, "a " + std::string(row.shape->name) + " has no number"};
  }

  long long number() {
    if (cursor_.takeIfWord("-")) return noNumber;
    return cursor_.number("a row (its number first) or \"end\"");
  }

  // A row's shape may be left out where the kind of the block has a plain one.
  Shape const* shape(Kind kind) {
    Shape const* plain = plainShape(kind);
    Token word = cursor_.peek();
    Shape const* named = word.kind == Token::Kind::word ? shapeNamed(word.text) : nullptr;
    bool nameFollows = cursor_.peekNext().kind == Token::Kind::word;
    if (plain && (!named || !nameFollows)) return plain;
    if (!named) cursor_.fail("a shape, such as \"scalar\"");
    if (!hasWord(named->blocks, kindName(kind)))
      throw LineError{word.at, inQuotes(std::string(named->name)) + " can't stand in " +
                                   inQuotes(std::string(kindName(kind))) + " blocks"};
    cursor_.take();
    return named;
  }

  void form(Row& row) {
    switch (row.shape->form) {
      case Form::nothing:
        return;
      case Form::type:
        row.type = cursor_.typeUse("the type of " + inQuotes(row.name));
        return;
      case Form::mapping:
        row.key = cursor_.typeUse("the key type of " + inQuotes(row.name));
        cursor_.takeMark("->");
        row.type = cursor_.typeUse("the value type of " + inQuotes(row.name));
        return;
      case Form::keyed:
      case Form::element:
        return keyed(row);
      case Form::call:
        row.arguments = cursor_.arguments();
        if (cursor_.takeIfMark("->")) row.type = cursor_.typeUse("the result type");
        return;
    }
  }

  // "key -> element", "element by attribute" or "element by attribute type".
  void keyed(Row& row) {
    TypeUse first = cursor_.typeUse("the type of " + inQuotes(row.name));
    if (row.shape->form == Form::keyed && cursor_.takeIfMark("->")) {
      row.key = first;
      row.type = cursor_.typeUse("the element type of " + inQuotes(row.name));
      return;
    }
    row.type = first;
    if (!cursor_.takeIfWord("by"))
      cursor_.fail(row.shape->form == Form::keyed ? "\"by\" or \"->\"" : "\"by\"");
    row.by = cursor_.name("the attribute that is the key");
    bool typeFollows =
        cursor_.is(Token::Kind::word) && !optionAt(row.shape->name, cursor_.peek().text);
    if (typeFollows) row.key = cursor_.typeUse("the key type of " + inQuotes(row.name));
  }

  Options options(std::string_view place) {
    Options result;
    while (cursor_.is(Token::Kind::word)) {
      Token word = cursor_.peek();
      Option const* option = optionAt(place, word.text);
      if (!option) throw LineError{word.at, "unknown option " + inQuotes(word.text)};
      cursor_.take();
      Word argument{"", word.at};
      if (option->takes == Option::Takes::word) argument = cursor_.name(argumentOf(word));
      if (option->takes == Option::Takes::text) argument = cursor_.textOrWord(argumentOf(word));
      if (!result.emplace(word.text, argument).second)
        diagnostics_.error(word.at, "option " + inQuotes(word.text) + " twice");
    }
    return result;
  }

  static std::string argumentOf(Token const& option) {
    return "the argument of " + inQuotes(option.text);
  }

  // What stood above the line and what stands behind it.
  std::vector<std::string> docOfLine() {
    std::vector<std::string> result = std::move(doc_);
    doc_.clear();
    if (cursor_.is(Token::Kind::doc)) result.push_back(cursor_.take().text);
    endOfLine();
    return result;
  }

  void endOfLine() { cursor_.takeKind(Token::Kind::newline, "the end of the line"); }

  void refusePendingDoc() {
    if (!doc_.empty()) diagnostics_.error(docAt_, "documentation that belongs to nothing");
    doc_.clear();
  }

  Cursor cursor_;
  Diagnostics& diagnostics_;
  Schema schema_;
  std::vector<std::string> doc_;
  Position docAt_;
};

}  // namespace

Schema parse(std::string const& file, std::string_view source, Diagnostics& diagnostics) {
  return Parser(file, source, diagnostics).schema();
}

}  // namespace schemac
