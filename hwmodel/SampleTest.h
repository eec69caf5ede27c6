// Entities as the tests of the hardware model need them.
#pragma once

#include "Kestrel/PhyXp80Config.h"
#include "Kestrel/PhyXp80Status.h"

#include <gtest/gtest.h>
#include <string>

namespace Kestrel {

inline Mox::Ptr<Interface::EthPhyIntfStatus> intfStatus() {
  return new Interface::EthPhyIntfStatus("intf");
}

/// Each parameter but the polarities has a value of its own.
inline Mox::Ptr<PhyXp80Config> sampleConfig(char const* name, U8 serdesId = 2) {
  return new PhyXp80Config(name, nullptr, "api", "1.0", 1, XpSerdesId(serdesId), 3, 4, true, false,
                           TxEq(-1, 2, 3), TxEq(-4, 5, 6), TxEq(-7, 8, 9));
}

inline Mox::Ptr<PhyXp80Status> sampleStatus(char const* name, U8 serdesId = 2) {
  return new PhyXp80Status(name, Hardware::Phy::mdioClause45, nullptr, nullptr, 1,
                           XpSerdesId(serdesId));
}

/// What `step` is refused with as `Exception`; "" if it isn't.
template <class Exception, class Step>
std::string complaintOf(Step const& step) {
  try {
    step();
  } catch (Exception const& exception) {
    return exception.what();
  }
  return "";
}

/// Lets a new `Observer` watch `entity`.
template <class Observer, class Entity>
Mox::Ptr<Observer> observerOf(Mox::Ptr<Entity> const& entity) {
  Mox::Ptr<Observer> const observer = new Observer;
  observer->notifierIs(entity);
  observer->isRegisteredNotifieeIs(true);
  return observer;
}

}  // namespace Kestrel
