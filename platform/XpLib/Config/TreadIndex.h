// The index of a prefix table in a tread plan.
#pragma once

#include "Mox/BoundedIntegers.h"

namespace XpLib::Config {

/// Index in a tread plan: 0 to 31, and 32 for none.  A larger one raises `RangeException`
/// "TreadIndex::value < TreadIndex::min or > TreadIndex::invalid not allowed".
class TreadIndex : public Mox::BoundedInteger<TreadIndex, U8, 32> {
 public:
  static constexpr U8 min = 0;
  static constexpr U8 invalid = max;
  using BoundedInteger::BoundedInteger;
  static constexpr char const* rangeMessage =
      "TreadIndex::value < TreadIndex::min or > TreadIndex::invalid not allowed";
  static Mox::MoxType* _fwkType();
};

}  // namespace XpLib::Config
