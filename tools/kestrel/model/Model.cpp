// The roots of the built-in slice, and what may be called on them.
#include "tools/kestrel/model/Model.h"

#include "Mox/Dir.h"
#include "tools/kestrel/Refusal.h"
#include "tools/kestrel/UsageFault.h"
#include "tools/kestrel/model/Attributes.h"
#include "tools/kestrel/model/ModelParts.h"

#include <map>

namespace kestrel {

namespace {

Root rootOf(Mox::Entity const& entity, bool isConst = false) {
  auto* const root = const_cast<Mox::Entity*>(&entity);  // a constant one is only read
  return {textOf(root->name().stringValue()), root->fwkType()->genericIf_(root, isConst)};
}

Root objectOf(std::string const& name, Mox::PtrInterface& object) {
  return {name, object.fwkType()->genericIf_(&object, false)};
}

/// The report that an operation makes; none where it makes no figures.
std::optional<Report> reportOf(std::string const& operation) {
  static std::map<std::string, Report> const reports = {
      {"displayAllDynamicTablesSummary", Report::summary},
      {"displaySingleDynamicTableSummary", Report::summary},
      {"displayAllDynamicTablesDetail", Report::detail},
      {"displaySingleDynamicTableDetail", Report::detail},
      {"displaySramAllocationGraph", Report::sram}};
  auto const found = reports.find(operation);
  return found == reports.end() ? std::nullopt : std::optional(found->second);
}

void refuseReport(XpSystem::ChipStatus const& status, MoxAttr const& operation,
                  Arguments const& arguments) {
  auto const report = reportOf(nameOf(operation));
  if (!report) return;
  if (arguments.empty()) return refuseWhatStops(*report, status);
  U32 const tableId = *heldAs<U32>(*arguments.front());
  if (!status.tableContext(tableId))
    throw UsageFault("the chip has no table " + std::to_string(tableId));
  refuseWhatStops(*report, status, tableId);
}

Roots entitiesOf(ModelParts const& parts) {
  return {rootOf(*parts.slice),        rootOf(*parts.sliceConfig),
          rootOf(*parts.chip),         rootOf(*parts.chipConfig),
          rootOf(*parts.device),       rootOf(*parts.reports->chipStatus(), true),
          rootOf(*parts.phyConfigs),   rootOf(*parts.phyStatuses),
          rootOf(*parts.coprocessors), rootOf(*parts.mdio),
          rootOf(*parts.reset),        rootOf(*parts.interrupts)};
}

}  // namespace

Model::Model(Chip const& chip)
    : parts_(std::make_unique<ModelParts>(chip)), roots_(entitiesOf(*parts_)) {
  for (Root const& root : roots_) {
    auto const& face = static_cast<Mox::GenericIfEntity const&>(*root.face);
    Mox::Dir::root()->entryIs(face.name(), face.entity());
  }
  roots_.push_back(objectOf("tableManSm", *parts_->tables));
  roots_.push_back(objectOf("tableCliHelper", *parts_->reports));
  roots_.back().refuse = [status = parts_->reports->chipStatus()](MoxAttr const& operation,
                                                                  Arguments const& arguments) {
    refuseReport(*status, operation, arguments);
  };
}

Model::~Model() {
  for (Root const& root : roots_) Mox::Dir::root()->entryIs(Mox::String8(root.name), nullptr);
}

}  // namespace kestrel
