// From a profile to a chip that is up.
#include "tools/kestrel/Chip.h"

#include "Mox/Exception.h"
#include "XpLib/XpTableCliHelperStatus.h"
#include "XpSystem/ChipStatus.h"
#include "tools/kestrel/UsageFault.h"

#include <iostream>

namespace kestrel {

XpXdk::XpDeviceId deviceIdOf(xdksim::Profile const& profile, std::string const& origin) {
  using Id = XpXdk::XpDeviceId;
  try {
    return Id(profile.deviceId);
  } catch (Mox::RangeException const&) {
    throw UsageFault(origin + ": /deviceId: " + std::to_string(profile.deviceId) +
                     " is no device number, " + std::to_string(Id::min) + " to " +
                     std::to_string(Id::null));
  }
}

namespace {

XpLib::Config::LpmTreadCfg::Ptr treadsOf(xdksim::LpmTreadCfg const& plan) {
  XpLib::Config::LpmTreadCfg::Ptr const treads = new XpLib::Config::LpmTreadCfg("lpmTreadCfg");
  for (auto const& [index, tread] : plan.treadV4) treads->treadV4Is(index, tread);
  for (auto const& [index, tread] : plan.treadV6) treads->treadV6Is(index, tread);
  treads->treadV4ValidIs(plan.treadV4Valid);
  treads->treadV6ValidIs(plan.treadV6Valid);
  return treads;
}

}  // namespace

Chip::Chip(xdksim::Profile const& profile, std::string const& origin, SdkRequest const& request)
    : sdk_(profile),
      status_(Kestrel::chipStatusFactory("chip0")),
      deviceId_(deviceIdOf(profile, origin)),
      ldePipeMode_(static_cast<XpXdk::XpDeviceLdePipeMode>(profile.ldePipeMode)),
      coldStartNeeded_(profile.coldStartNeeded),
      treads_(treadsOf(profile.lpmTreadCfg)) {
  sdk_.strictIs(request.strict);
  for (std::string const& fault : request.faults) sdk_.newFault(fault);
}

Chip::~Chip() { std::cerr << sdk_.faultReport(); }

void Chip::bringUp() {
  tables_ = Kestrel::tableManSmFactory(deviceId_, status_, ldePipeMode_, coldStartNeeded_, treads_);
}

void Chip::takeDown() {
  if (tables_) tables_->doPrepareToDie();
}

Kestrel::TableCliHelper::Ptr Chip::reports() const {
  XpSystem::ChipStatus::Ptr const status = new XpSystem::ChipStatus("chip0Tables");
  Kestrel::tableContextFrom(*status, *status_);
  return Kestrel::tableCliHelperFactory(status);
}

}  // namespace kestrel
