// The program's own windows without a screen: what a command shows or draws is what the windows would.
#pragma once

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "core/run_failure.h"
#include "shell/desktop/picture_export.h"
#include "shell/program/program.h"
#include "shell/script/script_services.h"

namespace zol {

struct Main1Form;

/// Surroundings in which nobody answers: what would be told or asked is a failure.
class BatchServices : public ScriptServices {
 public:
  explicit BatchServices(PictureMaker& pictures) : ScriptServices(unused_, &pictures) {}
  std::string prompt(const std::string& text, const std::string& title) override;
  void message(const std::string& text, const std::string& title) override;
  void report(const std::vector<std::string>& lines, const std::string& title) override;
  /// Of the structure file that was read last, in Latin-1.
  std::vector<std::string> told;

 private:
  std::ostringstream unused_;
};

class BatchProgram {
 public:
  BatchProgram();

  template <class Form>
  Form& window() {
    return program_.windows().use<Form>();
  }
  Workbench& bench() { return program_.bench(); }
  CrystalState& state() { return program_.state(); }
  BatchServices& services() { return services_; }

  /// "CuKa", "MoKa", or a voltage of the list as "20kV". @throws CLI::ValidationError  none of the list
  void choose_radiation(const std::string& word);
  /// The smallest spacing in angstroms of the lists that follow.
  void set_dmin(double dmin);
  /// Any structure file, or a crystal file of the program; makes the reflection list.
  /// @throws RunFailure  the message names the file
  void load(const std::string& path);
  /// Clicks, unless the window warns of it: what ends in nonsense there fails here.
  static void click(const CommandButton& button);
  /// Runs what may fail for a file. @throws RunFailure  the message names the file
  static void naming(const std::string& path, const std::function<void()>& action);

 private:
  OffscreenPictures pictures_;
  BatchServices services_{pictures_};
  Program program_;
};

/// The name of a file without folder and ending.
[[nodiscard]] std::string title_of(const std::string& path);

}  // namespace zol
