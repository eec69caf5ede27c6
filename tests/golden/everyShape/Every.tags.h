// The attribute tags of everyShape::Every.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Every.h"
#include "frame/Deliver.h"
#include "frame/Reinstantiation.h"

namespace everyShape {

struct Every::Tags {
  struct Level {
    using Owner = Every;
    using Value = U32;
    static constexpr Mox::AttributeId id = 259;
    static constexpr char const* name = "level";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onLevel;
    static Value& field(Owner& owner) { return owner.level_; }
  };

  struct Gauge {
    using Owner = Every;
    using Value = U8;
    static constexpr Mox::AttributeId id = 260;
    static constexpr char const* name = "gauge";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onGauge;
    static Value& field(Owner& owner) { return owner.gauge_; }
  };

  struct Ratio {
    using Owner = Every;
    using Value = double;
    static constexpr Mox::AttributeId id = 261;
    static constexpr char const* name = "ratio";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onRatio;
    static Value& field(Owner& owner) { return owner.ratio_; }
  };

  struct Label {
    using Owner = Every;
    using Value = Mox::String8;
    static constexpr Mox::AttributeId id = 262;
    static constexpr char const* name = "label";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onLabel;
    static Value& field(Owner& owner) { return owner.label_; }
  };

  struct Mix {
    using Owner = Every;
    using Value = ::everyShape::Mix;
    static constexpr Mox::AttributeId id = 263;
    static constexpr char const* name = "mix";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onMix;
    static Value& field(Owner& owner) { return owner.mix_; }
  };

  struct Mood {
    using Owner = Every;
    using Value = ::everyShape::Mood;
    static constexpr Mox::AttributeId id = 264;
    static constexpr char const* name = "mood";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onMood;
    static Value& field(Owner& owner) { return owner.mood_; }
  };

  struct Bounded {
    using Owner = Every;
    using Value = ::U4;
    static constexpr Mox::AttributeId id = 265;
    static constexpr char const* name = "bounded";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onBounded;
    static Value& field(Owner& owner) { return owner.bounded_; }
  };

  struct Hits {
    using Owner = Every;
    using Value = U16;
    static constexpr Mox::AttributeId id = 266;
    static constexpr char const* name = "hits";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onHits;
    static Value& field(Owner& owner) { return owner.hits_; }
  };

  struct Bytes {
    using Owner = Every;
    using Key = U8;
    using Value = U32;
    using Node = MoxBytes;
    static constexpr Mox::AttributeId id = 267;
    static constexpr char const* name = "bytes";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onBytes;
    static auto& map(Owner& owner) { return owner.bytes_; }
    static auto const& map(Owner const& owner) { return owner.bytes_; }
    static auto read(Owner const& owner, Key const& key) { return owner.bytes(key); }
    static void erase(Owner& owner, Key const& key) { owner.bytesDel(key); }
    static void write(Owner& owner, Key const& key, Value const& value) {
      owner.bytesIs(key, value);
    }
  };

  struct Words {
    using Owner = Every;
    using Key = U32;
    using Value = Mox::String8;
    using Node = MoxWords;
    static constexpr Mox::AttributeId id = 268;
    static constexpr char const* name = "words";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onWords;
    static auto& map(Owner& owner) { return owner.words_; }
    static auto const& map(Owner const& owner) { return owner.words_; }
    static auto read(Owner const& owner, Key const& key) { return owner.words(key); }
    static void erase(Owner& owner, Key const& key) { owner.wordsDel(key); }
    static void write(Owner& owner, Key const& key, Value const& value) {
      owner.wordsIs(key, value);
    }
  };

  struct Texts {
    using Owner = Every;
    using Key = Mox::String8;
    using Value = bool;
    using Node = MoxTexts;
    static constexpr Mox::AttributeId id = 269;
    static constexpr char const* name = "texts";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onTexts;
    static auto& map(Owner& owner) { return owner.texts_; }
    static auto const& map(Owner const& owner) { return owner.texts_; }
    static auto read(Owner const& owner, Key const& key) { return owner.texts(key); }
    static void erase(Owner& owner, Key const& key) { owner.textsDel(key); }
    static void write(Owner& owner, Key const& key, Value const& value) {
      owner.textsIs(key, value);
    }
  };

  struct Buddy {
    using Owner = Every;
    using Value = Mox::Ptr<::everyShape::Leaf>;
    static constexpr Mox::AttributeId id = 270;
    static constexpr char const* name = "buddy";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onBuddy;
    static Value& field(Owner& owner) { return owner.buddy_; }
  };

  struct Known {
    using Owner = Every;
    using Key = ::Mox::Name;
    using Value = Mox::Ptr<::everyShape::Leaf>;
    using Node = MoxKnown;
    static constexpr Mox::AttributeId id = 271;
    static constexpr char const* name = "known";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onKnown;
    static auto& map(Owner& owner) { return owner.known_; }
    static auto const& map(Owner const& owner) { return owner.known_; }
    static auto read(Owner const& owner, Key const& key) { return owner.known(key); }
    static void erase(Owner& owner, Key const& key) { owner.knownDel(key); }
    static Key keyOf(::everyShape::Leaf const& target) { return target.name(); }
    static void enter(Owner& owner, Value const& target) { owner.knownIs(target); }
  };

  struct Seats {
    using Owner = Every;
    using Key = U8;
    using Value = Mox::Ptr<::everyShape::Leaf>;
    using Node = MoxSeats;
    static constexpr Mox::AttributeId id = 272;
    static constexpr char const* name = "seats";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onSeats;
    static auto& map(Owner& owner) { return owner.seats_; }
    static auto const& map(Owner const& owner) { return owner.seats_; }
    static auto read(Owner const& owner, Key const& key) { return owner.seats(key); }
    static void erase(Owner& owner, Key const& key) { owner.seatsDel(key); }
    static void write(Owner& owner, Key const& key, Value const& target) {
      owner.seatsIs(key, target);
    }
  };

  struct Best {
    using Owner = Every;
    using Child = ::everyShape::Leaf;
    using Value = Mox::Ptr<Child>;
    static constexpr Mox::AttributeId id = 273;
    static constexpr char const* name = "best";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onBest;
    static Value& field(Owner& owner) { return owner.best_; }
    /// Whether the version steps when the child is kept.
    static constexpr bool keepingSteps = true;
    static bool isKept(Child const& child, Mox::Name const& name, auto const&...) {
      return child.name() == name;
    }
  };

  struct Leaves {
    using Owner = Every;
    using Child = ::everyShape::Leaf;
    using Key = ::Mox::Name;
    using Node = Child;
    static constexpr Mox::AttributeId id = 274;
    static constexpr char const* name = "leaves";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onLeaves;
    static auto& map(Owner& owner) { return owner.leaves_; }
    static auto const& map(Owner const& owner) { return owner.leaves_; }
    static auto read(Owner const& owner, Key const& key) { return owner.leaves(key); }
    static void erase(Owner& owner, Key const& key) { owner.leavesDel(key); }
    static Child* childOf(Node& node) { return &node; }
    static Mox::Ptr<Node> nodeFor(Mox::Ptr<Child> const& child) { return child; }
    static void requireSame(Child const& child, U8 lane, ::everyShape::Mix mix) {
      Key const key = child.name();
      frame::requireSame(key, "lane", lane, child.lane());
      frame::requireSame(key, "mix", mix, child.mix());
    }
  };

  struct Lanes {
    using Owner = Every;
    using Key = U8;
    using Value = U8;
    using Node = MoxLanes;
    static constexpr Mox::AttributeId id = 275;
    static constexpr char const* name = "lanes";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onLanes;
    static auto& map(Owner& owner) { return owner.lanes_; }
    static auto const& map(Owner const& owner) { return owner.lanes_; }
    static auto read(Owner const& owner, Key const& key) { return owner.lanes(key); }
    static void erase(Owner& owner, Key const& key) { owner.lanesDel(key); }
    static void write(Owner& owner, Key const& key, Value const& value) {
      owner.lanesIs(key, value);
    }
  };

  struct Odd {
    using Owner = Every;
    using Value = U32;
    static constexpr Mox::AttributeId id = 276;
    static constexpr char const* name = "odd";
    static constexpr char const* ownerName = "everyShape::Every";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onOdd;
    static Value& field(Owner& owner) { return owner.odd_; }
  };
};

}  // namespace everyShape
