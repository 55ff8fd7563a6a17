#include "host/ending/explained_end.h"

#include <new>

#include "host/store/host_store.h"
#include "platform/base/runtime_error.h"

namespace orvendal {

std::string SentenceForException(const Words& words) {
  try {
    throw;
  } catch (const StoreUnavailable& error) {
    return error.Description();
  } catch (const RuntimeError& error) {
    return Fill(words.error, {std::to_string(error.Number()), error.Description()});
  } catch (const std::bad_alloc&) {
    return std::string(words.no_memory);
  } catch (const std::exception& error) {
    return Fill(words.unexpected_error, {error.what()});
  } catch (...) {
    return Fill(words.unexpected_error, {"?"});
  }
}

int RunExplained(const std::function<int()>& body, const Words& words, int exit_code,
                 const std::function<void(const std::string& sentence)>& tell) {
  try {
    return body();
  } catch (...) {
    tell(SentenceForException(words));
    return exit_code;
  }
}

}  // namespace orvendal
