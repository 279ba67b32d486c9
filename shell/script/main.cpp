// zol-script: the program without a screen.
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>

#include "shell/data_folders.h"
#include "shell/desktop/picture_export.h"
#include "shell/program.h"
#include "shell/script/script_driver.h"

namespace {

enum ExitStatus { ended = 0, run_failed = 1, script_wrong = 2, question_unanswered = 3 };

constexpr auto usage = R"(usage: zol-script [--data DIR] [SCRIPT]

Runs the program by the operations in SCRIPT, or on standard input, a line each.

  --data DIR   DIR stands for the data root "ZOL"; crystals are in ZOLDATA beside it
  --help       this text
  --version    the version of the program

Exit status: 0 end of the script or of the program, 1 failure of the run, 2 an operation
that can't be read or names no control, 3 a dialog without a queued answer.
docs/scripting.md lists the operations.
)";

struct Arguments {
  std::optional<std::string> data;
  std::optional<std::string> script;
};

/// Reads the command line. @returns an exit status when the program has nothing more to do
std::optional<int> read_arguments(int argc, char** argv, Arguments& arguments) {
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--help") {
      std::cout << usage;
      return ended;
    }
    if (word == "--version") {
      std::cout << zol::program_version << '\n';
      return ended;
    }
    if (word == "--data" && i + 1 < argc) {
      arguments.data = argv[++i];
    } else if (word.starts_with("--data=")) {
      arguments.data = word.substr(std::strlen("--data="));
    } else if (word.starts_with("-") && word != "-") {
      std::cerr << "zol-script: unknown option or missing value: " << word << "\n\n" << usage;
      return script_wrong;
    } else if (!arguments.script) {
      arguments.script = word;
    } else {
      std::cerr << "zol-script: one script at most, given are " << *arguments.script << " and " << word << '\n';
      return script_wrong;
    }
  }
  return std::nullopt;
}

void run(const Arguments& arguments, std::istream& script) {
  const auto data = arguments.data ? zol::data_root_at(*arguments.data) : zol::find_data_root(zol::data_places());
  zol::OffscreenPictures pictures;
  zol::ScriptServices services(std::cout, &pictures);
  zol::Program program(data, services);
  program.start();
  zol::ScriptDriver(program, services, std::cout).run(script);
}

/// Shows why the script stopped, behind all that it has printed.
int stop(int status, const std::string& message) {
  std::cout.flush();
  std::cerr << message << '\n';
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  Arguments arguments;
  if (const auto status = read_arguments(argc, argv, arguments)) return *status;
  std::ifstream file;
  if (arguments.script && *arguments.script != "-") {
    file.open(*arguments.script);
    if (!file) return stop(script_wrong, "zol-script: can't open " + *arguments.script + ": " + std::strerror(errno));
  }
  try {
    run(arguments, file.is_open() ? static_cast<std::istream&>(file) : std::cin);
  } catch (const zol::ScriptError& error) {
    return stop(script_wrong, error.what());
  } catch (const zol::UnansweredQuestion& question) {
    return stop(question_unanswered, std::string("unanswered question: ") + question.what());
  } catch (...) {
    return stop(run_failed, "failure of the run: " + zol::failure_text(std::current_exception()));
  }
  std::cout.flush();
  return ended;
}
