#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adapters/automation/com_headers.h"
#include "tests/adapters/ado/registered_class.h"

namespace orvendal::ado_testing {

/// What a client of the provider below did, and what its next statement is to answer.
struct ProviderLog {
  std::vector<std::string> calls;
  HRESULT answer = S_OK;
};

/// A data provider as ADO finds it, for as long as this lives: it opens, takes statements down, and has no
/// rows.
class RecordingProvider {
 public:
  RecordingProvider();
  ~RecordingProvider();
  RecordingProvider(const RecordingProvider&) = delete;
  RecordingProvider& operator=(const RecordingProvider&) = delete;

  static constexpr const char* kName = "OrvendalRecordingProvider.1";
  ProviderLog& Log() { return *log_; }

 private:
  std::shared_ptr<ProviderLog> log_ = std::make_shared<ProviderLog>();
  std::unique_ptr<RegisteredClass> class_;
};

}  // namespace orvendal::ado_testing
