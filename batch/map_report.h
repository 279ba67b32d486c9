// What a map command tells of a scan, of its decisions and of its time.
#pragma once

#include <string>

#include "batch/map_job.h"

namespace zol {

/// Where the pattern centre comes from, tilts, background, likeness; a line each.
[[nodiscard]] std::string decisions_text(const MapJob& job);
/// Format, sizes and grid of a scan, a line each.
[[nodiscard]] std::string header_text(const MapJob& job);
/// How clearly its points stand out from orientations whose bands coincide with theirs. Empty where there are none.
[[nodiscard]] std::string lookalike_text(const MapResult& map, std::size_t phase);
/// Share and rate of each step.
[[nodiscard]] std::string times_text(const StepTimes& times, std::size_t points);

/// Tells header and decisions, indexes nine places all over the map, and tells what was found and how fast. Writes
/// nothing. @param threads  that the whole map would be indexed by @param quiet  only a failure is told
void check_map(const MapJob& job, int threads, bool quiet, Task& task);

}  // namespace zol
