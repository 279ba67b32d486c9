// zol: the desktop program.
#include <iostream>

#include "shell/desktop/application.h"
#include "shell/desktop/command_line.h"

int main(int argc, char** argv) {
  const auto line = zol::read_command_line({argv, argv + argc});
  if (!line.answer.empty()) {
    (line.status == 0 ? std::cout : std::cerr) << line.answer;
    return line.status;
  }
  return zol::run_application(argc, argv, {}, zol::KeepWork::Yes, line.files);
}
