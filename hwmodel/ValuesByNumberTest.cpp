// The value records of the hardware by number.
#include "hwmodel/ValuesByNumberTest.h"

#include "Kestrel/CoprocessorId.h"
#include "Kestrel/DfeState.h"
#include "Kestrel/TxEq.h"
#include "Kestrel/XpChipPort.h"
#include "Kestrel/XpPortId.h"
#include "Kestrel/XpSerdesId.h"

namespace Kestrel::attributes {
namespace {

DfeState sampleDfe() {
  DfeState state;
  state.modeIs(1);
  state.gainIs(255);
  state.tapsIs("1,'2'");
  return state;
}

TEST(ValuesByNumberTest, TextsReadBack) {
  for (int id = 0; id <= 127; ++id) expectRoundTrip(XpSerdesId(static_cast<U8>(id)));
  for (int id = 0; id <= 132; ++id) expectRoundTrip(XpPortId(static_cast<U16>(id)));
  expectRoundTrip(CoprocessorId(0));
  expectRoundTrip(XpChipPort(255, 1));
  expectRoundTrip(TxEq(-128, 255, 0));
  expectRoundTrip(sampleDfe());
}

TEST(ValuesByNumberTest, EveryFieldIsReadUnderItsNumber) {
  EXPECT_EQ(fields(XpSerdesId(5)), "value 5, hash 5");
  EXPECT_EQ(fields(CoprocessorId(0)), "value 0, hash 0");
  EXPECT_EQ(fields(XpChipPort(1, 2)), "devId 1, portId 2, hash 2");
  EXPECT_EQ(fields(TxEq(-1, 2, 3)), "atten -1, pre 2, post 3");
  EXPECT_EQ(fields(sampleDfe()),
            "mode 1, disable 0, state 0, status 0, lf 0, hf 0, dc 0, bw 0, gain 255, "
            "taps '1,\\'2\\''");
}

TEST(ValuesByNumberTest, AWriteReachesItsOwnFieldAlone) {
  auto const eq = face(TxEq(-1, 2, 3));
  write(eq, 3, number(U8{9}));
  EXPECT_EQ(valueOf<TxEq>(eq), TxEq(-1, 9, 3));
  write(eq, 2, number(S8{-9}));
  write(eq, 4, number(U8{8}));
  EXPECT_EQ(valueOf<TxEq>(eq), TxEq(-9, 9, 8));
  auto const dfe = face(DfeState());
  for (Mox::AttributeId id = 2; id <= 10; ++id) write(dfe, id, number(static_cast<U8>(id)));
  write(dfe, 11, number(Mox::String8("t")));
  EXPECT_EQ(fields(valueOf<DfeState>(dfe)),
            "mode 2, disable 3, state 4, status 5, lf 6, hf 7, dc 8, bw 9, gain 10, taps 't'");
}

TEST(ValuesByNumberTest, HashesAreOnlyRead) {
  expectReadOnly<XpSerdesId>(3, "hash");
  expectReadOnly<XpPortId>(3, "hash");
  expectReadOnly<CoprocessorId>(3, "hash");
  expectReadOnly<XpChipPort>(4, "hash");
}

/// Writing and making `beyond` is refused with `words`, and changes nothing.
template <class T, class Number>
void expectBound(Number beyond, std::string const& words) {
  auto const of = face(T(0));
  EXPECT_EQ(refusal<Mox::RangeException>([&] { write(of, 2, number(beyond)); }), words);
  EXPECT_TRUE(valueOf<T>(of) == T(0));
  EXPECT_EQ(refusal<Mox::RangeException>([&] { made<T>({number(beyond)}); }), words);
}

TEST(ValuesByNumberTest, BoundsAreCheckedAtWritesAndInLists) {
  expectBound<XpSerdesId>(U8{128}, "XpSerdesId::value < 0 or > 127 not allowed");
  expectBound<XpSerdesId>(U8{255}, "XpSerdesId::value < 0 or > 127 not allowed");
  expectBound<XpPortId>(U16{133}, "XpPortId::value < 0 or > 132 not allowed");
  expectBound<XpPortId>(U16{65535}, "XpPortId::value < 0 or > 132 not allowed");
  expectBound<CoprocessorId>(U32{1}, "CoprocessorId::value < 0 or > 0 not allowed");
}

TEST(ValuesByNumberTest, AnEmptyListMakesTheDefault) {
  EXPECT_EQ(made<XpSerdesId>({}), XpSerdesId());
  EXPECT_EQ(made<XpPortId>({}), XpPortId()) << "the mark of an unset port";
  EXPECT_EQ(made<XpPortId>({}).value(), 65535);
  EXPECT_EQ(made<CoprocessorId>({}), CoprocessorId());
  EXPECT_EQ(made<XpChipPort>({}), XpChipPort());
  EXPECT_EQ(made<TxEq>({}), TxEq());
  EXPECT_EQ(made<DfeState>({}), DfeState());
}

TEST(ValuesByNumberTest, AListFillsTheFieldsInOrder) {
  EXPECT_EQ(made<XpSerdesId>({number(U8{127})}), XpSerdesId(127));
  EXPECT_EQ(made<XpPortId>({number(U16{132})}), XpPortId(132));
  EXPECT_EQ(made<XpChipPort>({number(U8{1})}), XpChipPort(1, 0));
  EXPECT_EQ(made<TxEq>({number(S8{-1}), number(U8{2}), number(U8{3})}), TxEq(-1, 2, 3));
}

TEST(ValuesByNumberTest, AListIsRefusedByTypeAndNumberOfEntries) {
  EXPECT_EQ(refusal<Mox::TypeException>([] { made<XpSerdesId>({number(U16{1})}); }),
            "wrong type for 'value'");
  EXPECT_EQ(refusal<Mox::TypeException>([] { made<XpPortId>({number(U8{1})}); }),
            "wrong type for 'value'");
  EXPECT_EQ(refusal<Mox::TypeException>([] {
              made<TxEq>({number(S8{1}), nullptr});
            }),
            "wrong type for 'pre'");
  EXPECT_EQ(refusal<Mox::UnknownArgException>([] {
              made<XpSerdesId>({number(U8{1}), number(U8{1})});
            }),
            "too many arguments for 'XpSerdesId'");
  EXPECT_EQ(refusal<Mox::UnknownArgException>([] {
              made<XpPortId>({number(U16{1}), number(U16{1})});
            }),
            "too many arguments for 'XpPortId'");
  EXPECT_EQ(refusal<Mox::UnknownArgException>([] {
              made<XpSerdesId>({number(U8{200}), number(U8{1})});
            }),
            "too many arguments for 'XpSerdesId'")
      << "counted ahead of the bound";
  EXPECT_EQ(refusal<Mox::TypeException>([] { face(TxEq())->genericIfListConstructor(nullptr); }),
            "wrong type for 'Mox::GenericIf::List_'");
}

TEST(ValuesByNumberTest, ABaseIsAnotherType) {
  EXPECT_EQ(refusal<Mox::TypeException>(
                [] { face(XpPortId(1))->voidPtrIs(Rye::Central::PortId::_fwkType()); }),
            "wrong type for 'XpPortId'");
}

TEST(ValuesByNumberTest, APortServesTheAttributesOfItsBase) {
  auto const port = face(XpPortId(5));
  EXPECT_EQ(read(port, 2), "5");
  EXPECT_EQ(read(port, 3), "5");
  EXPECT_EQ(refusal<Mox::UnknownAttrException>([&] { port->attributeOp({4}); }),
            "'XpPortId' has no such attribute");
}

}  // namespace
}  // namespace Kestrel::attributes
