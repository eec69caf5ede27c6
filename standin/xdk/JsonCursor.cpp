// Steps into the tree, and numbers with their limits.
#include "standin/xdk/JsonCursor.h"

#include <charconv>

namespace xdksim {

void JsonCursor::refuse(std::string const& fault) const {
  throw ProfileFault(*file_ + ": " + (path_.empty() ? "/" : path_) + ": " + fault);
}

void JsonCursor::expect(Json::Kind kind, char const* what) const {
  if (value_->kind != kind) refuse(std::string("expected ") + what + ", got " + value_->shown());
}

std::vector<std::pair<std::string, JsonCursor>> JsonCursor::members() const {
  expect(Json::Kind::object, "an object");
  std::vector<std::pair<std::string, JsonCursor>> cursors;
  for (auto const& [name, member] : value_->members)
    cursors.emplace_back(name, JsonCursor(member, *file_, pathTo(path_, name)));
  return cursors;
}

std::vector<JsonCursor> JsonCursor::elements() const {
  expect(Json::Kind::list, "a list");
  std::vector<JsonCursor> cursors;
  for (auto const& [name, element] : value_->members)
    cursors.push_back(JsonCursor(element, *file_, pathTo(path_, std::to_string(cursors.size()))));
  return cursors;
}

bool JsonCursor::boolean() const {
  expect(Json::Kind::boolean, "true or false");
  return value_->text == "true";
}

S64 JsonCursor::integer(S64 least, S64 most, U32 bits) const {
  expect(Json::Kind::number, "a whole number");
  std::string const& text = value_->text;
  if (text.find_first_of(".eE") != std::string::npos)
    refuse("expected a whole number, got " + value_->shown());
  if (least == 0 && text[0] == '-') refuse(value_->shown() + " is negative");
  S64 number = 0;
  auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || number < least || number > most)
    refuse(value_->shown() + " does not fit in " + std::to_string(bits) + " bits");
  return number;
}

U32 numberKey(JsonCursor const& member, std::string const& key, U32 last, char const* what) {
  U32 number = 0;
  auto [end, error] = std::from_chars(key.data(), key.data() + key.size(), number);
  bool isNumber = error == std::errc() && std::to_string(number) == key;
  if (!isNumber || number > last)
    member.refuse(std::string("the key is no ") + what + ", 0 to " + std::to_string(last));
  return number;
}

}  // namespace xdksim
