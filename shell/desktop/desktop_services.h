// Dialogs, printing and pixels of the desktop program.
#pragma once

#include <functional>
#include <memory>

#include <QMap>
#include <QPrinter>
#include <QStringList>

#include "shell/desktop/desktop.h"
#include "shell/window_services.h"

namespace zol {

class DesktopServices : public Services {
 public:
  std::string ask_file(const FileQuestion& question) override;
  void set_up_printer() override;
  std::string prompt(const std::string& text, const std::string& title) override;
  void message(const std::string& text, const std::string& title) override;
  void print_line(const std::string& line) override;
  void end_document() override;
  void print_window(Window& window) override;
  std::unique_ptr<Surface> make_surface(int width, int height) override;
  void export_picture(Canvas& canvas, const std::string& path) override;
  void end_program() override { desktop_->end(0); }

  void set_desktop(Desktop& desktop) { desktop_ = &desktop; }

 private:
  /// The printer of the set-up dialog or the default one; a PDF file where the machine has no printer.
  /// @returns false when the user cancelled
  bool choose_output(QPrinter& printer);

  Desktop* desktop_ = nullptr;
  // Of this session. Crystals, camera files and pictures, each with a usual folder of their own, are remembered apart.
  QMap<QString, QString> last_folders_;
  QString last_folder_;
  QString chosen_printer_;
  QStringList lines_;
};

/// Prints lines of text in a fixed-pitch font, page by page. An empty document is one empty page.
void print_lines(QPrinter& printer, const QStringList& lines);

}  // namespace zol
