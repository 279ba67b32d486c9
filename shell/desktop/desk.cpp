#include "shell/desktop/desk.h"

#include <algorithm>

#include <QCryptographicHash>
#include <QFile>
#include <QMainWindow>
#include <QSettings>
#include <QStandardPaths>

#include "core/number_text.h"
#include "shell/desktop/group_search_box.h"
#include "shell/desktop/library/library_panel.h"
#include "shell/desktop/lit_reflection.h"
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
      tables_(program.bench().services, events, settings_.get(), [this] { return program_.crystal_name(); }) {
  program_.bench().services.set_chosen(
      [this](const FileQuestion& question, const std::string& path) { recent_.chosen(question, path); });
}

Desk::~Desk() { program_.bench().services.set_chosen({}); }

void Desk::add(Window& window, QMainWindow& top) {
  recent_.add(window, top);
  windows_menu_.add(window, top);
  tables_.add(window, top);
  offer_group_search(top);
  tie_lists_of_reflections(top);
  if (window.crystal_file != nullptr) offer_crystals(window, top);
  const auto ways = open_ways(window);
  if (ways.empty()) return;
  auto* bar = new WaysInBar(ways, [this, &window](const WayIn& way) { opening_.go(window, way.text, way.uses); });
  WaysInBar::add_to(top, bar);
  ways_in_[window.name()] = bar;
  show_ways_in();
}

/// The library of the crystal folder, beside the window that opens crystals. A folder has an index of its own.
void Desk::offer_crystals(Window& window, QMainWindow& top) {
  const DataRoot& data = program_.bench().data;
  LibrarySetup setup{data.crystal_folder, "",
                     [data](int number) { return data.path("SpaceGr/No" + Format(number, "000") + ".dat"); },
                     [this, &window](const std::string& path) {
                       const auto ways = file_ways(window);
                       if (const FileWay* way = way_for(ways, path)) opening_.open(window, *way, path);
                     }};
  const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  if (settings_ && !cache.isEmpty()) {
    const QByteArray folder = QByteArray::fromStdString(data.crystal_folder);
    const QByteArray name = QCryptographicHash::hash(folder, QCryptographicHash::Md5).toHex();
    setup.index_file = QFile::encodeName(cache).toStdString() + "/zol/library-" + name.toStdString() + ".index";
  }
  offer_library(top, setup, settings_.get());
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
