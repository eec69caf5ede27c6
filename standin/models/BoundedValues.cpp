// Descriptors of the closed libraries' single-field values.
#include "Mox/MoxType.h"
#include "XpLib/Config/TreadIndex.h"
#include "XpXdk/DeviceId.h"

namespace XpXdk {

Mox::MoxType* DeviceId::_fwkType() { return Mox::boundedType<DeviceId>("XpXdk::DeviceId"); }

}  // namespace XpXdk

namespace XpLib::Config {

Mox::MoxType* TreadIndex::_fwkType() {
  return Mox::boundedType<TreadIndex>("XpLib::Config::TreadIndex");
}

}  // namespace XpLib::Config
