// What the steps of indexing a map take.
#pragma once

#include <chrono>

namespace zol {

/// Seconds of a thread.
struct StepTimes {
  double reading = 0;    ///< with the wait for other threads that read
  double averaging = 0;  ///< and the background
  double preparing = 0;
  double trying = 0;   ///< of the neighbours' orientations
  double finding = 0;  ///< bands, votes, and the fits of what they give

  StepTimes& operator+=(const StepTimes& other) {
    reading += other.reading;
    averaging += other.averaging;
    preparing += other.preparing;
    trying += other.trying;
    finding += other.finding;
    return *this;
  }
};

/// Adds the time until it goes.
class Timed {
 public:
  explicit Timed(double& seconds) : seconds_(seconds) {}
  Timed(const Timed&) = delete;
  Timed& operator=(const Timed&) = delete;
  ~Timed() { seconds_ += std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count(); }

 private:
  double& seconds_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace zol
