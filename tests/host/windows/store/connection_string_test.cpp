#include "host/windows/store/connection_string.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

TEST(ConnectionString, NamesAreReadWithoutRegardToCaseAndBlanks) {
  const ConnectionSettings settings =
      ReadConnectionString(" PROVIDER = SQLOLEDB.1 ;; data source=C:\\Mis datos\\cadena.db; User ID=sa");
  EXPECT_EQ(settings.provider, "SQLOLEDB.1");
  EXPECT_EQ(settings.data_source, "C:\\Mis datos\\cadena.db");
}

TEST(ConnectionString, QuotedValuesMayHoldSemicolonsAndQuotes) {
  EXPECT_EQ(ReadConnectionString("Data Source=\"C:\\a;b\"\"c.db\";Provider=x").data_source, "C:\\a;b\"c.db");
  EXPECT_EQ(ReadConnectionString("Data Source=\"C:\\a;b\";Provider=x").provider, "x");
  EXPECT_EQ(ReadConnectionString("Data Source='C:\\a;''b'''").data_source, "C:\\a;'b'");
  EXPECT_EQ(ReadConnectionString("Data Source=' '").data_source, " ");
}

TEST(ConnectionString, OfANameGivenTwiceTheLaterValueCounts) {
  EXPECT_EQ(ReadConnectionString("Provider=a;provider=b").provider, "b");
}

TEST(ConnectionString, AnEmptyOneNamesNothing) {
  EXPECT_TRUE(ReadConnectionString("").provider.empty());
  EXPECT_TRUE(ReadConnectionString(" ; ").data_source.empty());
  EXPECT_TRUE(ReadConnectionString("Data Source=;Provider=x").data_source.empty());
}

TEST(ConnectionString, WhatIsNoneIsRefused) {
  for (const char* text : {"cadena", "a;b=c", "=x", "Provider='x", "Provider=\"x\"y;", "Provider='x''"}) {
    try {
      ReadConnectionString(text);
      ADD_FAILURE() << text;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), -2147217805) << text;
    }
  }
}

}  // namespace
}  // namespace orvendal
