// Names of C++ types in messages.
#include "standin/mox/TypeName.h"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>

namespace Mox {

String8 typeName(std::type_info const& type) {
  if (type == typeid(String8)) return "Mox::String";
  int status = 0;
  std::unique_ptr<char, void (*)(void*)> const name(
      abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), std::free);
  return name ? name.get() : type.name();
}

}  // namespace Mox
