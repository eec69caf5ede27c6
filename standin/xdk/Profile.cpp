// Equality of profiles, field by field.
#include "standin/xdk/Profile.h"

#include "Xdk/ContextFields.h"

#include <algorithm>

namespace xdksim {
namespace {

template <class Context>
bool equalContexts(std::vector<Context> const& a, std::vector<Context> const& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](auto const& left, auto const& right) {
                      return Xdk::integersOf(left) == Xdk::integersOf(right);
                    });
}

}  // namespace

bool operator==(Table const& a, Table const& b) {
  if (a.copyNum != b.copyNum || a.type != b.type) return false;
  if (a.contexts.index() != b.contexts.index()) return false;
  return std::visit(
      [&b](auto const& left) {
        return equalContexts(left, std::get<std::decay_t<decltype(left)>>(b.contexts));
      },
      a.contexts);
}

bool operator==(Profile const& a, Profile const& b) {
  return a.deviceId == b.deviceId && a.ldePipeMode == b.ldePipeMode &&
         a.coldStartNeeded == b.coldStartNeeded && a.lpmTreadCfg == b.lpmTreadCfg &&
         a.tables == b.tables && a.sdkStatus == b.sdkStatus && a.nullManagers == b.nullManagers;
}

}  // namespace xdksim
