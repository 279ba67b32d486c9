// zol-batch: the program without windows, for people and for whole scans.
#include <poll.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>
#include <iostream>
#include <string_view>

#include "batch/batch_status.h"
#include "batch/centre_command.h"
#include "batch/index_command.h"
#include "batch/info_command.h"
#include "batch/map_command.h"
#include "batch/master_command.h"
#include "batch/pattern_command.h"
#include "batch/powder_command.h"
#include "batch/reference.h"
#include "batch/reflections_command.h"
#include "core/task.h"
#include "shell/program/program.h"
#include "shell/script/stop_signal.h"
#include "shell/services/latin1.h"

namespace {

int run(int argc, char** argv) {
  CLI::App app("Diffraction of crystals without a window.", "zol-batch");
  app.require_subcommand(1);
  app.set_help_flag("-h,--help", "this text");
  app.set_version_flag("--version", std::string(zol::program_version));
  app.get_formatter()->column_width(34);
  int status = zol::batch_done;
  try {
    zol::add_info_command(app, status);
    zol::add_reflections_command(app);
    zol::add_powder_command(app);
    zol::add_rings_command(app);
    zol::add_pattern_command(app);
    zol::add_index_command(app, status);
    zol::add_centre_command(app);
    zol::add_map_command(app, status);
    zol::add_master_command(app, status);
    // For whoever packs the program; no command of it.
    if (argc == 3 && std::string_view(argv[1]) == "--write-reference") {
      zol::write_reference(app, argv[2]);
      return status;
    }
    app.parse(argc, argv);
    return status;
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? zol::batch_done : zol::batch_words;
  } catch (const zol::Cancelled&) {
    std::cerr << "zol-batch: stopped\n";
    return zol::batch_stopped;
  } catch (...) {
    std::cerr << "zol-batch: " << zol::readable_utf8(zol::failure_text(std::current_exception())) << '\n';
    return zol::batch_failed;
  }
}

/// Whoever has read enough, as "head" has, closes the pipe: nothing to complain of.
bool reader_has_gone() {
  pollfd out{STDOUT_FILENO, POLLOUT, 0};
  return poll(&out, 1, 0) == 1 && (out.revents & POLLERR) != 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);  // NOLINT(cert-err33-c): a closed pipe fails the write
  std::signal(SIGXFSZ, SIG_IGN);  // NOLINT(cert-err33-c): so does a file that gets too long
  zol::take_stop_signals();
  try {
    const int status = run(argc, argv);
    std::cout.flush();
    if (std::cout || status != zol::batch_done) return status;
    if (!reader_has_gone()) std::cerr << "zol-batch: cannot write to standard output\n";
    return zol::batch_failed;
  } catch (...) {  // no memory even for the words of the command line
    return zol::batch_failed;
  }
}
