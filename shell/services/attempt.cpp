#include "shell/services/attempt.h"

#include <new>

#include "core/run_failure.h"

namespace zol {

void attempt(Services& services, const Window& window, Label& status, const std::function<void()>& action) {
  std::string reason;
  try {
    return action();
  } catch (const RunFailure& failure) {
    reason = failure.message();
  } catch (const std::bad_alloc&) {
    reason = "not enough memory";
  }
  status.set_caption(reason);
  services.message(reason, window.caption());
}

}  // namespace zol
