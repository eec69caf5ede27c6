// What the module EveryShape registers, in order.  Made by schemac from everyShape.schema.
#include "everyShape/EveryShape.module.h"

#include "everyShape/Mood.h"
#include "everyShape/Mix.h"
#include "everyShape/Leaf.h"
#include "everyShape/Every.h"
#include "everyShape/Derived.h"
#include "everyShape/Shelf.h"
#include "everyShape/Knob.h"
#include "everyShape/Level.h"
#include "everyShape/Hue.h"
#include "everyShape/Shade.h"
#include "everyShape/Dial.h"
#include "everyShape/Heap.h"
#include "everyShape/Grove.h"
#include "everyShape/Brook.h"
#include "everyShape/Stem.h"
#include "everyShape/Branch.h"
#include "everyShape/Bush.h"
#include "everyShape/Engine.h"

namespace everyShape {

namespace {

constexpr frame::TypeOf used[] = {
    Mox::Entity::_fwkType,
};

constexpr frame::TypeOf alphabetical[] = {
    Branch::_fwkType,
    Brook::_fwkType,
    Bush::_fwkType,
    Derived::_fwkType,
    Dial::_fwkType,
    Engine::_fwkType,
    Every::_fwkType,
    Grove::_fwkType,
    Heap::_fwkType,
    Hue::_fwkType,
    Knob::_fwkType,
    Leaf::_fwkType,
    Level::_fwkType,
    Mix::_fwkType,
    _fwkType_Mood,
    Shade::_fwkType,
    Shelf::_fwkType,
    Stem::_fwkType,
};

constexpr frame::TypeRow const* types[] = {
    &moodRow,
    &mixRow,
    &leafRow,
    &everyRow,
    &derivedRow,
    &shelfRow,
    &knobRow,
    &levelRow,
    &hueRow,
    &shadeRow,
    &dialRow,
    &heapRow,
    &groveRow,
    &brookRow,
    &stemRow,
    &branchRow,
    &bushRow,
    &engineRow,
};

constinit frame::Module thisModule("everyShape", used, alphabetical, types);

}  // namespace

void moxInitEveryShape() { thisModule.initialise(); }

frame::Module& moxModuleEveryShape() { return thisModule; }

}  // namespace everyShape
