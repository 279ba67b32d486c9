// The work of the desktop program is kept beyond its end, whatever that is, and offered by the next start.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "shell/program/recovery_file.h"

namespace zol {

class Desktop;
class Program;

class Recovery {
 public:
  /// From now on the file of this run follows what is done; windows that offer kept work get a bar for it.
  /// @param folder  of all such files; empty: there is none
  Recovery(Program& program, Desktop& desktop, std::string folder);
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;
  ~Recovery();

  /// Keeps the work as it was before the event that failed. @returns whether it is on the disk
  bool keep_behind_failure(const std::string& message) noexcept;
  /// The user's end: a crystal that was not saved is kept, otherwise nothing.
  void end() noexcept;

 private:
  void changed(const std::shared_ptr<const Snapshot>& now);
  [[nodiscard]] std::string restore(const LeftOver& left);

  Program& program_;
  Desktop& desktop_;
  std::vector<LeftOver> left_;
  std::shared_ptr<const Snapshot> seen_;  ///< after the last event
  std::shared_ptr<const KeptWork> last_;  ///< that was handed to the file; none while there is nothing to lose
  RecoveryFile file_;
};

}  // namespace zol
