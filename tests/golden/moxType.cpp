// The full names of all types, for those who look for them in the library's file.  Made by schemac.
//
// One array, because nothing may stand between the names: no padding, no second object.

namespace {

[[gnu::section(".mox.type"), gnu::used, gnu::retain, gnu::aligned(1)]] char const names[] =
    "everyShape::Engine\0"
    "everyShape::Bush\0"
    "everyShape::Branch\0"
    "everyShape::Stem\0"
    "everyShape::Brook\0"
    "everyShape::Grove\0"
    "everyShape::Heap\0"
    "everyShape::Dial\0"
    "everyShape::Shade\0"
    "everyShape::Hue\0"
    "everyShape::Level\0"
    "everyShape::Knob\0"
    "everyShape::Shelf\0"
    "everyShape::Derived\0"
    "everyShape::Every\0"
    "everyShape::Leaf\0"
    "everyShape::Mix\0"
    "everyShape::Mood";

}  // namespace
