// How zol-batch ends.
#pragma once

namespace zol {

enum BatchStatus { batch_done = 0, batch_failed = 1, batch_words = 2, batch_stopped = 3 };

}  // namespace zol
