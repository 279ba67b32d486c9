// zol-script: the program without a screen.
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>

#include "core/atomic_file.h"
#include "shell/program/data_folders.h"
#include "shell/program/program.h"
#include "shell/script/name_pages.h"
#include "shell/script/offscreen_pictures.h"
#include "shell/script/script_driver.h"
#include "shell/script/stop_signal.h"
#include "shell/services/latin1.h"

namespace {

enum ExitStatus { ended = 0, run_failed = 1, script_wrong = 2, question_unanswered = 3, died_of_signal = 128 };

constexpr auto usage = R"(usage: zol-script [--data DIR] [SCRIPT]
       zol-script [--data DIR] --names FOLDER

Runs the program by the operations in SCRIPT, or on standard input, one per line.

  --data DIR   DIR stands for the data root "ZOL"; crystals are in ZOLDATA beside it
  --names FOLDER
               writes pages with all names of windows, controls and fields
  --help       this text
  --version    the version of the program

Exit status: 0 end of the script or of the program, 1 failure of the run, or a script or
an output that breaks off, 2 an operation that cannot be read or names no control, 3 a
dialog without a queued answer, 130 or 143 stopped by SIGINT or SIGTERM.
docs/scripting.md lists the operations.
)";

struct Arguments {
  std::optional<std::string> data;
  std::optional<std::string> script;
  std::optional<std::string> names;  ///< folder for the pages of names
};

/// How the program ends, and what it says of it on standard error.
struct Outcome {
  int status = ended;
  std::string message = {};
};

/// Reads the command line. @returns an outcome when the program has nothing more to do
std::optional<Outcome> read_arguments(int argc, char** argv, Arguments& arguments) {
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--help") {
      std::cout << usage;
      return Outcome{};
    }
    if (word == "--version") {
      std::cout << zol::program_version << '\n';
      return Outcome{};
    }
    if (word == "--data" && i + 1 < argc) {
      arguments.data = argv[++i];
    } else if (word == "--names" && i + 1 < argc) {
      arguments.names = argv[++i];
    } else if (word.starts_with("--data=")) {
      arguments.data = word.substr(std::strlen("--data="));
    } else if (word.starts_with("-") && word != "-") {
      return Outcome{script_wrong, "zol-script: unknown option or missing value: " + word + "\n\n" + usage};
    } else if (!arguments.script) {
      arguments.script = word;
    } else {
      return Outcome{script_wrong, "zol-script: one script at most, given are " + *arguments.script + " and " + word};
    }
  }
  return std::nullopt;
}

void write_names(zol::Program& program, const std::string& folder) {
  for (const auto& [name, text] : zol::name_pages(program)) {
    zol::AtomicFile file((std::filesystem::path(folder) / name).string());
    file.contain(text);
    file.commit();
  }
}

void run(const Arguments& arguments, std::istream& script) {
  const auto data = arguments.data ? zol::data_root_at(*arguments.data) : zol::find_data_root(zol::data_places());
  const auto pictures = zol::offscreen_pictures();
  zol::ScriptServices services(std::cout, pictures.get());
  zol::Program program(data, services);
  program.start();
  if (arguments.names) return write_names(program, *arguments.names);
  zol::ScriptDriver(program, services, std::cout).run(script);
}

Outcome run_program(int argc, char** argv) {
  try {
    Arguments arguments;
    if (auto outcome = read_arguments(argc, argv, arguments)) return *outcome;
    std::ifstream file;
    if (arguments.script && *arguments.script != "-") {
      file.open(*arguments.script);
      if (!file) {
        return {script_wrong, "zol-script: cannot open " + *arguments.script + ": " + std::strerror(errno)};
      }
    }
    run(arguments, file.is_open() ? static_cast<std::istream&>(file) : std::cin);
    return {};
  } catch (const zol::ScriptError& error) {
    return {script_wrong, error.what()};
  } catch (const zol::ScriptStopped&) {
    return {died_of_signal + zol::stop_signal(), "zol-script: stopped by a signal"};
  } catch (const zol::UnansweredQuestion& question) {
    return {question_unanswered, std::string("unanswered question: ") + question.what()};
  } catch (const std::ios::failure&) {
    throw;  // the output is lost
  } catch (...) {
    return {run_failed, "failure of the run: " + zol::failure_text(std::current_exception())};
  }
}

/// With a standard stream closed, the next file would get its number: a crystal that is saved would take the output.
void keep_standard_descriptors() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    // Opened the wrong way round, so that a use still fails.
    if (fcntl(descriptor, F_GETFD) < 0) (void)open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
  }
}

std::string lost_output() {
  return std::string("zol-script: cannot write to standard output: ") + std::strerror(errno);
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);  // NOLINT(cert-err33-c): a closed pipe fails the write, which is told
  keep_standard_descriptors();
  zol::take_stop_signals();
  std::ios::sync_with_stdio(false);
  std::cout.exceptions(std::ios::badbit);
  std::cerr.tie(nullptr);  // neither a message nor reading writes the output: its failure is not theirs
  std::cin.tie(nullptr);
  Outcome outcome;
  try {
    outcome = run_program(argc, argv);
    std::cout.flush();
    if (close(STDOUT_FILENO) != 0) throw std::ios::failure("close");
  } catch (const std::ios::failure&) {
    const std::string reason = lost_output();
    if (!outcome.message.empty()) outcome.message += '\n';
    outcome.message += reason;
    if (outcome.status == ended) outcome.status = run_failed;
  }
  if (!outcome.message.empty()) std::cerr << zol::readable_utf8(outcome.message) << '\n';
  return outcome.status;
}
