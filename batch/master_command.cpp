#include "batch/master_command.h"

#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <memory>
#include <thread>
#include <utility>

#include <QImage>

#include "batch/batch_status.h"
#include "batch/crystal_source.h"
#include "batch/number_check.h"
#include "batch/output_guard.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "dynamics/master_file.h"
#include "dynamics/master_pattern.h"
#include "dynamics/summed_voltages.h"
#include "shell/program/data_folders.h"
#include "shell/script/stop_signal.h"

namespace zol {
namespace {

struct MasterWords {
  std::string crystal, output;
  double kilovolt = 20;
  std::vector<double> kilovolts, weights, rule;
  MasterSettings settings;
  bool png = false, check = true, quiet = false;
};

/// Stops by a signal; shows a share on standard error, where that is a terminal.
class CommandTask final : public Task {
 public:
  explicit CommandTask(bool quiet) : shown_(!quiet && isatty(STDERR_FILENO) != 0) {}
  void report(int done, int total) override {
    const int share = static_cast<int>(100.0 * done / std::max(1, total));
    if (!shown_ || share == share_) return;
    share_ = share;
    std::cerr << '\r' << share << " % of " << total << " directions   " << std::flush;
  }
  void check() override {
    if (stop_signal() != 0) throw Cancelled();
  }
  void end_line() {
    if (share_ >= 0) std::cerr << '\n';
    share_ = -1;
  }

 private:
  bool shown_;
  int share_ = -1;
};

/// A half in grey, the darkest and the brightest thousandth cut off.
void write_png(const MasterPattern& master, bool south, const std::string& path) {
  const auto values = stereographic(master, 0, south);
  std::vector<float> sorted = south ? master.patterns[0].south : master.patterns[0].north;
  std::sort(sorted.begin(), sorted.end());
  const auto cut = sorted.size() / 1000;
  const float darkest = sorted[cut];
  const float range = std::max(sorted[sorted.size() - 1 - cut] - darkest, 1e-6F);
  QImage image(master.size, master.size, QImage::Format_Grayscale8);
  for (int row = 0; row < master.size; ++row) {
    uchar* line = image.scanLine(row);
    for (int column = 0; column < master.size; ++column) {
      const auto place = static_cast<std::size_t>(row) * static_cast<std::size_t>(master.size);
      const float value = values[place + static_cast<std::size_t>(column)];
      constexpr float white = 255;
      line[column] = static_cast<uchar>(std::clamp((value - darkest) / range, 0.0F, 1.0F) * white);
    }
  }
  if (!image.save(QString::fromStdString(path), "PNG")) throw RunFailure("cannot write " + path);
}

std::string percent(double correlation) {
  constexpr double full = 100;
  return Format(full * (1 - correlation), "0.0##") + " %";
}

void tell(const DynamicCrystal& crystal, const MasterPattern& master, const MasterSettings& settings, Task& task,
          bool check) {
  const MasterChoice& choice = master.choice;
  if (crystal.assumed_b > 0) {
    std::cout << crystal.assumed_b << " sites without B: " << Format(usual_b_iso, "0.0#")
              << " square angstroms taken\n";
  }
  std::cout << (choice.rule ? "beams by coupling" : std::to_string(choice.beams) + " beams") << ", spacings down to "
            << Format(choice.smallest_spacing, "0.0##") << " angstroms, mean depth " << Format(choice.depth_nm, "0.0##")
            << " nm, " << master.directions << " directions\n";
  if (choice.depth_nm < settings.depth_nm) {
    std::cout << "the depth of " << Format(settings.depth_nm, "0.0##")
              << " nm is beyond what the absorption of this crystal lets through\n";
  }
  if (!check || choice.rule) return;
  const auto convergence = master_convergence(crystal, settings, task);
  std::cout << "twice the beams changes " << percent(convergence.twice_beams) << ", spacings down to "
            << Format(0.8 * choice.smallest_spacing, "0.0##") << " angstroms change "
            << percent(convergence.finer_spacing) << " (1 - correlation)\n";
}

std::string picture_path(const std::string& output, bool south) {
  return output.substr(0, output.rfind('.')) + (south ? "-south.png" : "-north.png");
}

void check_files(const MasterWords& words) {
  std::vector<NamedFile> outputs{{"--output", words.output}};
  for (const bool south : {false, true}) {
    if (words.png) outputs.push_back({"--png", picture_path(words.output, south)});
  }
  check_outputs(outputs, {{"FILE", words.crystal}});
}

int run(MasterWords words) {
  check_files(words);
  const DataRoot data = find_data_root(data_places());
  CommandTask task(words.quiet);
  const LoadedCrystal loaded = load_crystal(words.crystal, data, task);
  MasterSettings& settings = words.settings;
  settings.kilovolts = words.kilovolts.empty() ? std::vector{words.kilovolt} : words.kilovolts;
  if (settings.threads == 0) settings.threads = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  if (!words.rule.empty()) settings.rule = {words.rule[0], words.rule[1], words.rule[2]};
  try {
    const DynamicCrystal crystal = dynamic_crystal(loaded.state, &loaded.group);
    MasterPattern master = master_pattern(crystal, settings, task);
    task.end_line();
    if (!words.weights.empty()) master = summed_voltages(std::move(master), words.weights);
    write_master(master, words.output);
    if (words.png) {
      write_png(master, false, picture_path(words.output, false));
      if (!crystal.centrosymmetric) write_png(master, true, picture_path(words.output, true));
    }
    if (!words.quiet) tell(crystal, master, settings, task, words.check);
  } catch (const RunFailure& failure) {
    task.end_line();
    throw RunFailure(words.crystal + ": " + failure.message());
  } catch (const Cancelled&) {
    task.end_line();
    throw;
  }
  return batch_done;
}

}  // namespace

void add_master_command(CLI::App& app, int& status) {
  const auto words = std::make_shared<MasterWords>();
  CLI::App* master = app.add_subcommand("master", "the dynamical master pattern of a crystal");
  master->footer("Example:\n  zol-batch master Ni.cif --voltage 20 -o Ni.h5");
  master->add_option("FILE", words->crystal, "structure file or crystal")->required();
  master->add_option("-o,--output", words->output, "master pattern, HDF5")->required();
  master->add_option("--voltage", words->kilovolt, "kV")->check(kilovolt());
  master->add_option("--energies", words->kilovolts, "kV,kV,...: a pattern each, in place of --voltage")
      ->delimiter(',')
      ->check(kilovolt());
  master->add_option("--weights", words->weights, "W,W,... of --energies: their sum as one pattern")
      ->delimiter(',')
      ->check(number_from(0, 1e6));
  master->add_option("--size", words->settings.size, "points along a side of the square map, odd")
      ->check(whole_from(11, 2001));
  master->add_option("--depth", words->settings.depth_nm, "mean depth that the electrons come from, nm")
      ->check(number_from(0.1, 100));
  master->add_option("--dmin", words->settings.smallest_spacing, "smallest spacing, angstroms; default: by the cell")
      ->check(number_from(0.2, 5));
  master->add_option("--beams", words->settings.beams, "of each direction; default: by the cell")
      ->check(whole_from(2, 1000));
  master->add_option("--coupling", words->rule, "STRONG,WEAK,LISTED in place of --beams, as 4,8,50")
      ->delimiter(',')
      ->expected(3)
      ->check(number_from(1e-3, 1e6));
  master->add_flag("--png", words->png, "the stereographic picture beside it, of both halves where they differ");
  master->add_flag("!--no-check", words->check, "do not compare a sample with more beams and finer spacings");
  master->add_option("-j,--threads", words->settings.threads, "0: one for each core")->check(whole_from(0, 4096));
  master->add_flag("-q,--quiet", words->quiet, "print only failures");
  words->settings.threads = 0;
  master->callback([words, &status] { status = run(*words); });
}

}  // namespace zol
