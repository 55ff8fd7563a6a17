#include "platform/data/memory_recordset.h"

#include <gtest/gtest.h>

#include "tests/support/error_of.h"

namespace orvendal {
namespace {

using testing_support::ErrorOf;

class MemoryRecordsetTest : public testing::Test {
 protected:
  MemoryRecordset words{{{"Codigo", "Código"}, {"Fecha", Value()}}};
};

TEST_F(MemoryRecordsetTest, StandsOpenOnItsOneRow) {
  EXPECT_EQ(words.State(), kStateOpen);
  EXPECT_FALSE(words.AtEnd());
  EXPECT_EQ(words.RecordCount(), 1);
  EXPECT_EQ(words.FieldCount(), 2U);
  EXPECT_EQ(words.FieldName(0), "Codigo");
  EXPECT_EQ(words.Fields("CODIGO").Value(), Value("Código"));
  EXPECT_TRUE(words.Fields("Fecha").Value().IsNull());
  EXPECT_EQ(ErrorOf([&] { words.Fields("Código"); }), 3265);
}

TEST_F(MemoryRecordsetTest, PastTheRowThereIsNothingToRead) {
  words.MoveNext();
  EXPECT_TRUE(words.AtEnd());
  EXPECT_EQ(ErrorOf([&] { words.Fields("Codigo").Value(); }), 3021);
  EXPECT_EQ(ErrorOf([&] { words.MoveNext(); }), 3021);
  words.AbsolutePosition(1);
  EXPECT_EQ(words.Fields("Codigo").Value(), Value("Código"));
  EXPECT_EQ(ErrorOf([&] { words.AbsolutePosition(2); }), 3001);
}

TEST_F(MemoryRecordsetTest, IsNeitherSearchedNorWritten) {
  EXPECT_EQ(ErrorOf([&] { words.Find("Codigo = 'x'", 0, SearchDirection::kForward); }), 3251);
  EXPECT_EQ(ErrorOf([&] { words.AddNew(); }), 3251);
  EXPECT_EQ(ErrorOf([&] { words.Collect("Codigo", "x"); }), 3251);
  EXPECT_EQ(ErrorOf([&] { words.Update(); }), 3251);
  EXPECT_EQ(ErrorOf([&] { words.CancelUpdate(); }), 3251);
  EXPECT_EQ(words.EditMode(), 0);
}

TEST_F(MemoryRecordsetTest, AClosedOneHasNoFieldsAndRefusesTheRest) {
  Field held = words.Fields("Codigo");
  words.Close();
  EXPECT_EQ(words.State(), kStateClosed);
  EXPECT_EQ(words.FieldCount(), 0U);
  EXPECT_EQ(ErrorOf([&] { words.Fields("Codigo"); }), 3265);
  EXPECT_EQ(ErrorOf([&] { held.Value(); }), 3704);
  EXPECT_EQ(ErrorOf([&] { words.AtEnd(); }), 3704);
  EXPECT_EQ(ErrorOf([&] { words.RecordCount(); }), 3704);
  EXPECT_EQ(ErrorOf([&] { words.EditMode(); }), 3704);
  EXPECT_EQ(ErrorOf([&] { words.MoveNext(); }), 3704);
  EXPECT_EQ(ErrorOf([&] { words.AbsolutePosition(1); }), 3704);
  EXPECT_EQ(ErrorOf([&] { words.AddNew(); }), 3704);
  EXPECT_EQ(ErrorOf([&] { words.Close(); }), 3704);
}

TEST_F(MemoryRecordsetTest, OpeningItIsRefusedOpenOrClosed) {
  const auto open = [&] { words.Open("SELECT", nullptr, CursorType::kStatic, LockType::kReadOnly, -1); };
  EXPECT_EQ(ErrorOf(open), 3705);
  words.Close();
  EXPECT_EQ(ErrorOf(open), 3709);
}

TEST_F(MemoryRecordsetTest, ValuesAreReplacedAddedAndTakenAwayByName) {
  words.Set("codigo", "Code");
  words.Set("Sucursal", 7);
  words.Remove("FECHA");
  EXPECT_EQ(words.FieldCount(), 2U);
  EXPECT_EQ(words.Fields("Codigo").Value(), Value("Code"));
  EXPECT_EQ(words.Fields("Sucursal").Value(), Value(7));
}

}  // namespace
}  // namespace orvendal
