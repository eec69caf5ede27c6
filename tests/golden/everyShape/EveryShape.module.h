// The module EveryShape and the rows of its types.  Made by schemac from everyShape.schema.
#pragma once

#include "frame/Module.h"

namespace everyShape {

/// Registers the module's types, once; later calls and calls that come too early do nothing.
void moxInitEveryShape();

/// The module itself, for the work at load and for those who list types.
frame::Module& moxModuleEveryShape();

extern frame::TypeRow const moodRow;
extern frame::TypeRow const mixRow;
extern frame::TypeRow const leafRow;
extern frame::TypeRow const everyRow;
extern frame::TypeRow const derivedRow;
extern frame::TypeRow const shelfRow;
extern frame::TypeRow const knobRow;
extern frame::TypeRow const levelRow;
extern frame::TypeRow const hueRow;
extern frame::TypeRow const shadeRow;
extern frame::TypeRow const dialRow;
extern frame::TypeRow const heapRow;
extern frame::TypeRow const groveRow;
extern frame::TypeRow const brookRow;
extern frame::TypeRow const stemRow;
extern frame::TypeRow const branchRow;
extern frame::TypeRow const bushRow;
extern frame::TypeRow const engineRow;

}  // namespace everyShape
