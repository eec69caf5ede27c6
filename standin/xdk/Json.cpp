// Building the tree from the parser's events.
#include "standin/xdk/Json.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

namespace xdksim {
namespace {

/// "line:column" of a byte, both from 1.
std::string place(std::string_view text, std::size_t offset) {
  auto before = text.substr(0, std::min(offset, text.size()));
  auto line = std::count(before.begin(), before.end(), '\n') + 1;
  auto lineStart = before.rfind('\n') + 1;
  return std::to_string(line) + ':' + std::to_string(before.size() - lineStart + 1);
}

/// The parser's reason without its own words on the place.
std::string reason(std::string what) {
  auto cut = [&what](std::string_view mark, std::size_t from) {
    auto at = what.find(mark, from);
    if (at != std::string::npos) what.erase(0, at + mark.size());
  };
  cut("] ", 0);
  if (what.starts_with("parse error at")) cut(": ", 0);
  return what;
}

/// Receives the parser's events.
class TreeBuilder : public nlohmann::json_sax<nlohmann::json> {
 public:
  static constexpr std::size_t deepest = 16;

  TreeBuilder(std::string_view text, std::string const& file) : text_(text), file_(file) {}

  Json take() { return std::move(root_); }

  bool null() override { return leaf(Json::Kind::null, "null"); }
  bool boolean(bool value) override { return leaf(Json::Kind::boolean, value ? "true" : "false"); }
  bool number_integer(number_integer_t value) override {
    return leaf(Json::Kind::number, std::to_string(value));
  }
  bool number_unsigned(number_unsigned_t value) override {
    return leaf(Json::Kind::number, std::to_string(value));
  }
  bool number_float(number_float_t, string_t const& written) override {
    return leaf(Json::Kind::number, written);
  }
  bool string(string_t& value) override { return leaf(Json::Kind::string, std::move(value)); }
  bool binary(binary_t&) override { return false; }  // JSON text has none

  bool start_object(std::size_t) override { return open(Json::Kind::object); }
  bool start_array(std::size_t) override { return open(Json::Kind::list); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }

  bool key(string_t& name) override {
    if (!names_.back().insert(name).second)
      throw ProfileFault(file_ + ": " + path(name) + ": stands twice");
    name_ = std::move(name);
    return true;
  }

  bool parse_error(std::size_t position, std::string const&,
                   nlohmann::json::exception const& error) override {
    throw ProfileFault(file_ + ':' + place(text_, position ? position - 1 : 0) +
                       ": no valid JSON: " + printable(reason(error.what()), 200));
  }

 private:
  /// Name of the value that comes next, by place in a list.
  std::string pendingName() const {
    bool isList = open_.back()->kind == Json::Kind::list;
    return isList ? std::to_string(open_.back()->members.size()) : name_;
  }

  /// Path of the member `name` of what is open.
  std::string path(std::string_view name) const {
    std::string path;
    for (std::size_t depth = 0; depth + 1 < open_.size(); ++depth) {
      Json const& outer = *open_[depth];
      bool isList = outer.kind == Json::Kind::list;
      path = pathTo(path,
                    isList ? std::to_string(outer.members.size() - 1) : outer.members.back().name);
    }
    return pathTo(path, name);
  }

  Json& add(Json::Kind kind, std::string text) {
    Json value{kind, std::move(text), {}};
    if (open_.empty()) return root_ = std::move(value);
    auto& members = open_.back()->members;
    members.push_back({std::move(name_), std::move(value)});
    name_.clear();
    return members.back().value;
  }

  bool leaf(Json::Kind kind, std::string text) {
    add(kind, std::move(text));
    return true;
  }

  // Only the last element of a list or object is open, so that the pointers stay good.
  bool open(Json::Kind kind) {
    if (open_.size() == deepest)
      throw ProfileFault(file_ + ": " + path(pendingName()) + ": nested more than 16 deep");
    open_.push_back(&add(kind, ""));
    names_.emplace_back();
    return true;
  }

  bool close() {
    open_.pop_back();
    names_.pop_back();
    return true;
  }

  std::string_view text_;
  std::string const& file_;
  Json root_{};
  std::vector<Json*> open_;
  std::vector<std::set<std::string>> names_;  // keys of what is open
  std::string name_;
};

}  // namespace

std::string Json::shown() const {
  if (kind == Kind::list) return "a list";
  if (kind == Kind::object) return "an object";
  if (kind == Kind::string) return '"' + printable(text) + '"';
  return printable(text);
}

Json parseJson(std::string_view text, std::string const& file) {
  TreeBuilder builder(text, file);
  nlohmann::json::sax_parse(text.begin(), text.end(), &builder);
  return builder.take();
}

std::string pathTo(std::string const& path, std::string_view step) {
  std::string escaped;
  for (char c : step) {
    if (c == '~')
      escaped += "~0";
    else if (c == '/')
      escaped += "~1";
    else
      escaped += c;
  }
  return path + '/' + printable(escaped);
}

std::string printable(std::string_view text, std::size_t limit) {
  constexpr char digits[] = "0123456789ABCDEF";
  std::string result;
  for (char c : text.substr(0, limit)) {
    auto byte = static_cast<U8>(c);
    if (byte >= 0x20 && byte < 0x7F)
      result += c;
    else
      result += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
  }
  return text.size() > limit ? result + "..." : result;
}

}  // namespace xdksim
