// Dialogs, printing and pixels of the desktop program.
#pragma once

#include <functional>
#include <memory>

#include <QMap>
#include <QPrinter>
#include <QStringList>

#include "shell/desktop/desktop.h"
#include "shell/services/window_services.h"

namespace zol {

class DesktopServices : public Services {
 public:
  std::string ask_file(const FileQuestion& question) override;
  void set_up_printer() override;
  std::string prompt(const std::string& text, const std::string& title) override;
  std::string ask_text(const PromptQuestion& question) override;
  void message(const std::string& text, const std::string& title) override;
  void report(const std::vector<std::string>& lines, const std::string& title) override;
  void copy_text(const std::vector<std::string>& lines, const std::string& title) override;
  void print_line(const std::string& line) override;
  void end_document(const std::string& title) override;
  void print_window(Window& window) override;
  std::unique_ptr<Surface> make_surface(int width, int height) override;
  void export_picture(Canvas& canvas, const std::string& path) override;
  [[nodiscard]] bool stop_wanted() override { return desktop_ != nullptr && desktop_->long_work().stop_wanted(); }
  void work_reported(int done, int total) override {
    if (desktop_ != nullptr) desktop_->long_work().report(done, total);
  }
  [[nodiscard]] bool confirm_work(const Effort& effort) override;
  void end_program() override { desktop_->end(0); }

  void set_desktop(Desktop& desktop) { desktop_ = &desktop; }

 private:
  [[nodiscard]] LongWork::Pause dialog_open() const {
    return LongWork::Pause(desktop_ == nullptr ? nullptr : &desktop_->long_work());
  }
  /// The default printer; where the machine has none, a PDF file that the user names.
  /// @returns nullptr when the user cancelled
  std::unique_ptr<QPrinter> default_output(const std::string& title);

  Desktop* desktop_ = nullptr;
  QMap<FileKind, QString> last_folders_;  // of this session
  QString last_folder_;                   // of all kinds, for one that has none yet
  std::unique_ptr<QPrinter> set_up_;      // as the dialog left it, for the next window that is printed
  QStringList lines_;
};

/// Prints lines of text in a fixed-pitch font, page by page. An empty document is one empty page.
/// @throws Cancelled  the task stops
void print_lines(QPagedPaintDevice& pages, const QStringList& lines, Task& task);

}  // namespace zol
