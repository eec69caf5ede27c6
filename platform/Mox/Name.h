// The key of an entity.
#pragma once

#include "Mox/String8.h"

namespace Mox {

class MoxType;

/// A string by representation, a type of its own by role: what an entity is called by its owner.
class Name {
 public:
  Name() = default;
  Name(char const* text) : string_(text) {}
  Name(String8 const& text) : string_(text) {}

  String8 const& stringValue() const noexcept { return string_; }
  char const* charPtr() const noexcept { return string_.charPtr(); }
  U32 size() const noexcept { return string_.size(); }
  bool empty() const noexcept { return string_.empty(); }
  U32 hash() const noexcept { return string_.hash(); }
  std::string_view view() const noexcept { return string_.view(); }

  friend bool operator==(Name const& a, Name const& b) noexcept { return a.string_ == b.string_; }
  friend std::strong_ordering operator<=>(Name const& a, Name const& b) noexcept {
    return a.string_ <=> b.string_;
  }

  static MoxType* _fwkType();

 private:
  String8 string_;
};

std::ostream& operator<<(std::ostream& out, Name const& name);

}  // namespace Mox
