// All types of the module EveryShape.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Brook.h"
#include "everyShape/Derived.h"
#include "everyShape/Dial.h"
#include "everyShape/Engine.h"
#include "everyShape/Every.h"
#include "everyShape/Grove.h"
#include "everyShape/Heap.h"
#include "everyShape/Hue.h"
#include "everyShape/Knob.h"
#include "everyShape/Leaf.h"
#include "everyShape/Level.h"
#include "everyShape/Mix.h"
#include "everyShape/Mood.h"
#include "everyShape/Shade.h"
#include "everyShape/Shelf.h"
