#pragma once

#include "host/script/observed_recordsets.h"

namespace orvendal::testing_support {

/// A store whose Update and Open fail when a test says so, and that remembers the statements it was given.
using FaultInjectingStore = ObservedRecordsetFactory;

}  // namespace orvendal::testing_support
