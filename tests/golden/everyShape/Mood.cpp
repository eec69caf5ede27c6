// everyShape::Mood: its names, and look-ups in them.  Made by schemac from everyShape.schema.
#include "everyShape/Mood.h"

#include "everyShape/Mood.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Enumeration.h"
#include "reflect/Enumeration.h"

namespace everyShape {

namespace {

constexpr char const* names[] = {
    "calm",
    "tense",
};

constexpr frame::EnumTable table{"Mood", names};

class Type : public Mox::MoxType {
 public:
  Type() : MoxType("Mood", nullptr, nullptr, {}) {}
  Mox::GenericIf::Ptr genericIf(void const* value,
      bool isConst) const override {
      return reflect::active(new Mood_GenericIf_(*static_cast<Mood const*>(value), isConst)); }
  Mox::GenericIf::Ptr genericIf(Mox::String8 const& text,
      bool isConst) const override {
      return reflect::active(new Mood_GenericIf_(Mox::strepToValue<Mood>(text), isConst)); }
};

Mox::MoxType* moodType = nullptr;

constexpr frame::AttributeRow attributeRows[] = {
    {0, "calm", _fwkType_Mood, nullptr, {0x20001, 0x40200400}, 0},
    {1, "tense", _fwkType_Mood, nullptr, {0x20001, 0x40200400}, 0},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const moodRow = {"Mood", "everyShape::Mood", frame::TypeKind::enumeration,
    _fwkType_Mood, nullptr, sizeof(Mood), {}, attributeRows, attributeCache};

Mox::MoxType* _fwkType_Mood() { return frame::descriptor<Type>(moodType, moxInitEveryShape); }

Mox::String8 stringValue(Mood value) { return frame::enumText(table, value); }
Mood MoodInstance(U32 number) { return static_cast<Mood>(frame::enumByNumber(table, number)); }
Mood MoodInstance(Mox::String8 const& name) {
  return static_cast<Mood>(frame::enumByName(table, name));
}
Mox::String8 valueToStrep(Mood const& value) { return Mox::valueToStrep(stringValue(value)); }
Mood sequenceToValue(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end,
    Mood* to) {
  return Mox::storedValue(static_cast<Mood>(frame::enumParse(table, at, end)), to);
}
std::ostream& operator<<(std::ostream& out, Mood const& value) { return out << stringValue(value); }

Mood_GenericIf_::Mood_GenericIf_(Mood value, bool isConst) : GenericIf(_fwkType_Mood(), isConst),
    value_(value) {
  heldIs(&value_);
}
Mox::GenericIf::Ptr Mood_GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const&) {
  requireWritable(op);
  reflect::requireEnumeratorRead("Mood", op, index);
  return clone();
}
Mox::GenericIf::Ptr Mood_GenericIf_::clone() {
  return reflect::active(new Mood_GenericIf_(value_, isConst()));
}
Mox::String8 Mood_GenericIf_::strRep() const { return valueToStrep(value_); }

}  // namespace everyShape
