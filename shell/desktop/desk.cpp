#include "shell/desktop/desk.h"

#include <algorithm>

#include <QMainWindow>
#include <QSettings>

#include "shell/desktop/qt_text.h"
#include "shell/desktop/ways_in_bar.h"
#include "shell/program/program.h"

namespace zol {
namespace {

std::unique_ptr<QSettings> settings_in(const QString& file) {
  return file.isEmpty() ? nullptr : std::make_unique<QSettings>(file, QSettings::IniFormat);
}

/// A way whose files are not installed is none.
std::vector<WayIn> open_ways(const Window& window) {
  std::vector<WayIn> ways = window.ways_in;
  std::erase_if(ways, [](const WayIn& way) {
    return std::any_of(way.uses.begin(), way.uses.end(),
                       [](const Use& use) { return !use.file.empty() && !fault_of_file(use.file).empty(); });
  });
  return ways;
}

}  // namespace

Desk::Desk(Program& program, UserEvents& events, const QString& settings_file)
    : program_(program),
      settings_(settings_in(settings_file)),
      opening_(program, events, [this] { recent_.forget_chosen(); }),
      recent_(settings_.get(), opening_,
              [this](const std::string& fault) { program_.bench().services.message(fault, "ZOL"); }),
      places_(settings_.get()),
      tables_(program.bench().services, events) {
  program_.bench().services.set_chosen(
      [this](const FileQuestion& question, const std::string& path) { recent_.chosen(question, path); });
}

Desk::~Desk() { program_.bench().services.set_chosen({}); }

void Desk::add(Window& window, QMainWindow& top) {
  recent_.add(window, top);
  windows_menu_.add(window, top);
  tables_.add(window, top);
  const auto ways = open_ways(window);
  if (ways.empty()) return;
  auto* bar = new WaysInBar(ways, [this, &window](const WayIn& way) { opening_.go(window, way.text, way.uses); });
  WaysInBar::add_to(top, bar);
  ways_in_[window.name()] = bar;
  show_ways_in();
}

void Desk::remove(const Window& window) {
  ways_in_.erase(window.name());
  windows_menu_.remove(window);
}

void Desk::update() {
  recent_.settle();
  windows_menu_.update();
  tables_.update();
  show_ways_in();
}

void Desk::show_ways_in() {
  const bool wanted = !program_.holds_crystal();
  for (const auto& [name, bar] : ways_in_) bar->setVisible(wanted);
}

void Desk::open_files(const std::vector<std::string>& paths) {
  Windows& windows = program_.windows();
  for (const auto& name : windows.names()) {
    Window* window = windows.find(name);
    if (window == nullptr || window->file_ways.empty()) continue;
    for (const auto& path : paths) {
      if (const FileWay* way = way_for(window->file_ways, path)) opening_.open(*window, *way, path);
    }
    return;
  }
}

}  // namespace zol
