// What the precompiled headers of the tests are made beside.
#include <gtest/gtest.h>
