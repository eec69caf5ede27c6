// The built-in slice by its classes.  What users reach by paths knows none of them.
#pragma once

#include "Fru/Gpo.h"
#include "Fru/IntCtrl.h"
#include "Kestrel/Kestrel.h"
#include "MdioOpal/OpalDesc.h"
#include "XpSystem/ChipStatus.h"
#include "tools/kestrel/Chip.h"

namespace kestrel {

/// Front-panel cages have four lanes each; the chip's lanes, serdes and ports have one number.
inline constexpr U8 cages = 8;
inline constexpr U8 lanesOfCage = 4;
inline constexpr U8 lanes = cages * lanesOfCage;

/// "phy3/2": lane 2 of cage 3.
Mox::Name laneName(U8 lane);
/// "Ethernet3/2", or "Ethernet3" for a port of all lanes of its cage; they count from 1.
Mox::String8 interfaceName(U8 lane);
/// How the port that begins at the lane runs; disabled where it belongs to one that began earlier.
Kestrel::XpPortMode modeOf(U8 lane);

struct ModelParts {
  /// The slice, laid out.
  explicit ModelParts(Chip const& chip);
  /// Lanes of a cage refer to each other and to themselves, which would keep them for good.
  ~ModelParts();
  ModelParts(ModelParts const&) = delete;
  ModelParts& operator=(ModelParts const&) = delete;

  Kestrel::PortHwStatus::Ptr layPort(U8 lane) const;
  Kestrel::ChipHwStatus::Ptr hardware() const { return slice->chipStatus("chip0"); }
  Kestrel::PhyXp80Status::Ptr phy(U8 lane) const { return phyStatuses->phyStatus(laneName(lane)); }

  Kestrel::SliceHwStatus::Ptr slice = Kestrel::sliceHwStatusFactory("slice0");
  Kestrel::SliceHwConfig::Ptr sliceConfig = Kestrel::sliceHwConfigFactory("slice0Config");
  Kestrel::AllChipHwConfig::Ptr chipConfig = Kestrel::allChipHwConfigFactory("chip0Config");
  Kestrel::ChipConfig::Ptr device = Kestrel::chipConfigFactory("chip0Device");
  Kestrel::PhyXp80ConfigDir::Ptr phyConfigs = Kestrel::phyXp80ConfigDirFactory("phyConfigs");
  Kestrel::PhyXp80StatusDir::Ptr phyStatuses = Kestrel::phyXp80StatusDirFactory("phyStatuses");
  Kestrel::CoprocessorStatusDir::Ptr coprocessors =
      Kestrel::coprocessorStatusDirFactory("coprocessors");
  Mox::Ptr<MdioOpal::OpalDesc> mdio = new MdioOpal::OpalDesc("mdio0");
  Mox::Ptr<Fru::Gpo> reset = new Fru::Gpo("reset0");
  Mox::Ptr<Fru::IntCtrl> interrupts = new Fru::IntCtrl("interrupts0");

  Kestrel::ChipStatus::Ptr chip;
  Kestrel::TableManSm::Ptr tables;
  Kestrel::TableCliHelper::Ptr reports;
  U32 now = 0;  ///< what has happened so far, each in a second of its own
};

}  // namespace kestrel
