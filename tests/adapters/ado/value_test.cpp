#include "adapters/ado/ado_value.h"

#include "adapters/automation/variant.h"
#include "tests/adapters/ado/ado_fixture.h"

namespace orvendal::ado_testing {
namespace {

constexpr LCID kSpanish = 0x0C0A;
constexpr LCID kEnglish = 0x0409;

class FieldValue : public testing::Test {
 protected:
  void TearDown() override { EXPECT_EQ(LiveTexts(), 0U); }
};

template <typename Write>
VARIANT Made(VARTYPE type, Write write) {
  VARIANT value = {};
  write(value);
  V_VT(&value) = type;  // last: a DECIMAL lies over the type
  return value;
}
VARIANT Decimal(std::uint64_t digits, BYTE scale, bool negative = false, ULONG high = 0) {
  return Made(VT_DECIMAL, [=](VARIANT& value) {
    V_DECIMAL(&value).scale = scale;
    V_DECIMAL(&value).sign = negative ? DECIMAL_NEG : 0;
    V_DECIMAL(&value).Hi32 = high;
    V_DECIMAL(&value).Lo64 = digits;
  });
}
VARIANT Currency(LONGLONG ten_thousandths) {
  return Made(VT_CY, [=](VARIANT& value) { V_CY(&value).int64 = ten_thousandths; });
}
VARIANT Eight(LONGLONG number) {
  return Made(VT_I8, [=](VARIANT& value) { V_I8(&value) = number; });
}
std::int32_t NumberOfReading(const VARIANT& value) {
  return NumberOf([&] { ValueOf(value, kSpanish); });
}

TEST_F(FieldValue, NullIsNullAndEmptyIsTheEmptyText) {
  EXPECT_TRUE(ValueOf(Made(VT_NULL, [](VARIANT&) {}), kSpanish).IsNull());
  EXPECT_EQ(ValueOf(Made(VT_EMPTY, [](VARIANT&) {}), kSpanish), Value(""));
}

TEST_F(FieldValue, TextIsTextToItsLastCharacter) {
  Variant text;
  WriteText(*text.Address(), std::string("Ñandú\0€ 😀", 16));
  EXPECT_EQ(ValueOf(text.Get(), kSpanish), Value(std::string("Ñandú\0€ 😀", 16)));
  EXPECT_EQ(ValueOf(Made(VT_BSTR, [](VARIANT&) {}), kSpanish), Value(""));
}

TEST_F(FieldValue, EveryKindOfNumberIsANumber) {
  EXPECT_EQ(ValueOf(Made(VT_I1, [](VARIANT& v) { V_I1(&v) = -7; }), kSpanish), Value(-7));
  EXPECT_EQ(ValueOf(Made(VT_UI1, [](VARIANT& v) { V_UI1(&v) = 200; }), kSpanish), Value(200));
  EXPECT_EQ(ValueOf(Made(VT_I2, [](VARIANT& v) { V_I2(&v) = -32768; }), kSpanish), Value(-32768));
  EXPECT_EQ(ValueOf(Made(VT_UI2, [](VARIANT& v) { V_UI2(&v) = 65535; }), kSpanish), Value(65535));
  EXPECT_EQ(ValueOf(Made(VT_I4, [](VARIANT& v) { V_I4(&v) = -5; }), kSpanish), Value(-5));
  EXPECT_EQ(ValueOf(Made(VT_UI4, [](VARIANT& v) { V_UI4(&v) = 4294967295; }), kSpanish), Value(4294967295.0));
  EXPECT_EQ(ValueOf(Made(VT_INT, [](VARIANT& v) { V_INT(&v) = 3; }), kSpanish), Value(3));
  EXPECT_EQ(ValueOf(Made(VT_UINT, [](VARIANT& v) { V_UINT(&v) = 3; }), kSpanish), Value(3));
  EXPECT_EQ(ValueOf(Made(VT_R8, [](VARIANT& v) { V_R8(&v) = 0.1; }), kSpanish), Value(0.1));
  EXPECT_EQ(ValueOf(Made(VT_R4, [](VARIANT& v) { V_R4(&v) = 0.1F; }), kSpanish), Value(0.1));
  EXPECT_EQ(ValueOf(Made(VT_R4, [](VARIANT& v) { V_R4(&v) = -1234.5F; }), kSpanish), Value(-1234.5));
  EXPECT_EQ(ValueOf(Eight(-999'999'999'999'999), kSpanish), Value(-999'999'999'999'999.0));
  EXPECT_EQ(ValueOf(Eight(42), kSpanish), Value(42));
  EXPECT_EQ(ValueOf(Currency(-125'000), kSpanish), Value(-12.5));
  EXPECT_EQ(ValueOf(Currency(125'000), kSpanish), Value(12.5));
  EXPECT_EQ(ValueOf(Decimal(125, 1), kSpanish), Value(12.5));
  EXPECT_EQ(ValueOf(Decimal(7, 0, true), kSpanish), Value(-7));
  EXPECT_EQ(ValueOf(Decimal(999'999'999'999'999, 3), kSpanish), Value(999'999'999'999.999));
}

TEST_F(FieldValue, AFlagIsMinusOneOrZero) {
  EXPECT_EQ(ValueOf(Made(VT_BOOL, [](VARIANT& v) { V_BOOL(&v) = VARIANT_TRUE; }), kSpanish), Value(-1));
  EXPECT_EQ(ValueOf(Made(VT_BOOL, [](VARIANT& v) { V_BOOL(&v) = VARIANT_FALSE; }), kSpanish), Value(0));
}

TEST_F(FieldValue, ANumberOfMoreDigitsKeepsThemAllInTheUsersLocale) {
  EXPECT_EQ(ValueOf(Eight(-9'007'199'254'740'993), kSpanish), Value("-9007199254740993"));
  EXPECT_EQ(ValueOf(Made(VT_UI8, [](VARIANT& v) { V_UI8(&v) = 18'446'744'073'709'551'615U; }), kSpanish),
            Value("18446744073709551615"));
  EXPECT_EQ(ValueOf(Currency(123'456'789'012'345'678), kSpanish), Value("12345678901234,5678"));
  EXPECT_EQ(ValueOf(Currency(123'456'789'012'345'678), kEnglish), Value("12345678901234.5678"));
  EXPECT_EQ(ValueOf(Decimal(12'345'678'901'234'567'895U, 1), kSpanish), Value("1234567890123456789,5"));
  EXPECT_EQ(ValueOf(Decimal(12'345'678'901'234'567'895U, 1), kEnglish), Value("1234567890123456789.5"));
  EXPECT_EQ(ValueOf(Decimal(0, 0, false, 1), kSpanish), Value("18446744073709551616"));
}

TEST_F(FieldValue, ADateIsADateToTheSecond) {
  const auto date = [](double serial) {
    return ValueOf(Made(VT_DATE, [=](VARIANT& v) { V_DATE(&v) = serial; }), kSpanish);
  };
  EXPECT_EQ(date(46342.0), Value(Date(2026, 11, 16)));
  EXPECT_EQ(date(46342.0 + 37805.0 / 86400.0), Value(Date(2026, 11, 16, 10, 30, 5)));
  EXPECT_EQ(date(-1.25), Value(Date(1899, 12, 29, 6)));
  EXPECT_EQ(NumberOf([&] { date(1e9); }), error_number::kInvalidProcedureCall);
}

TEST_F(FieldValue, WhatStandsBehindAReferenceIsRead) {
  LONG number = 12;
  VARIANT inner = Long(13);
  EXPECT_EQ(ValueOf(Made(VT_BYREF | VT_I4, [&](VARIANT& v) { V_I4REF(&v) = &number; }), kSpanish), Value(12));
  EXPECT_EQ(ValueOf(Made(VT_BYREF | VT_VARIANT, [&](VARIANT& v) { V_VARIANTREF(&v) = &inner; }), kSpanish),
            Value(13));
}

TEST_F(FieldValue, AReferenceToNothingIsAMismatch) {
  for (const VARENUM type : {VT_VARIANT, VT_I4, VT_R8, VT_BSTR, VT_DATE, VT_DECIMAL, VT_DISPATCH}) {
    const auto nothing =
        Made(static_cast<VARTYPE>(VT_BYREF | type), [](VARIANT& v) { V_BYREF(&v) = nullptr; });
    EXPECT_EQ(NumberOfReading(nothing), error_number::kTypeMismatch) << type;
    const auto further =
        Made(VT_BYREF | VT_VARIANT, [&](VARIANT& v) { V_VARIANTREF(&v) = const_cast<VARIANT*>(&nothing); });
    EXPECT_EQ(NumberOfReading(further), error_number::kTypeMismatch) << type;
  }
}

TEST_F(FieldValue, WhatStandsBehindTwoReferencesIsReadToo) {
  VARIANT inner = Long(13);
  VARIANT middle = Made(VT_BYREF | VT_VARIANT, [&](VARIANT& v) { V_VARIANTREF(&v) = &inner; });
  EXPECT_EQ(ValueOf(Made(VT_BYREF | VT_VARIANT, [&](VARIANT& v) { V_VARIANTREF(&v) = &middle; }), kSpanish),
            Value(13));
}

TEST_F(FieldValue, WhatIsNoValueIsAMismatch) {
  EXPECT_EQ(NumberOfReading(Made(VT_DISPATCH, [](VARIANT&) {})), error_number::kTypeMismatch);
  EXPECT_EQ(NumberOfReading(Made(VT_UNKNOWN, [](VARIANT&) {})), error_number::kTypeMismatch);
  EXPECT_EQ(NumberOfReading(Made(VT_ERROR, [](VARIANT& v) { V_ERROR(&v) = DISP_E_PARAMNOTFOUND; })),
            error_number::kTypeMismatch);
  EXPECT_EQ(NumberOfReading(Made(VT_ARRAY | VT_UI1, [](VARIANT&) {})), error_number::kTypeMismatch);
  EXPECT_EQ(NumberOfReading(Made(VT_RECORD, [](VARIANT&) {})), error_number::kTypeMismatch);
}

TEST_F(FieldValue, GoesOutInTheTypeThatItHas) {
  const std::vector<std::pair<Value, VARTYPE>> kinds = {{Value(), VT_NULL},
                                                        {Value(12.5), VT_R8},
                                                        {Value(Date(2026, 11, 16, 9, 5)), VT_DATE},
                                                        {"12,5", VT_BSTR}};
  for (const auto& [value, type] : kinds) {
    Variant written;
    WriteValue(*written.Address(), value);
    EXPECT_EQ(V_VT(&written.Get()), type);
    EXPECT_EQ(ValueOf(written.Get(), kSpanish), value) << "and comes back the same";
  }
}

}  // namespace
}  // namespace orvendal::ado_testing
