#include "shell/desktop/recovery.h"

#include <algorithm>
#include <exception>
#include <utility>

#include <QApplication>
#include <QMainWindow>
#include <QStatusBar>

#include "core/run_failure.h"
#include "shell/desktop/desktop.h"
#include "shell/desktop/kept_work_bar.h"
#include "shell/desktop/qt_text.h"
#include "shell/program/program.h"

namespace zol {
namespace {

void tell_in_status_lines(const QString& text) {
  for (auto* widget : QApplication::topLevelWidgets()) {
    auto* window = qobject_cast<QMainWindow*>(widget);
    if (window != nullptr && window->isVisible()) window->statusBar()->showMessage(text);
  }
}

/// With the last window closed there is none on the screen: those that were there before count.
std::shared_ptr<const Snapshot> with_windows_of(const std::shared_ptr<const Snapshot>& now, const Snapshot& before) {
  const auto& windows = now->windows;
  if (std::any_of(windows.begin(), windows.end(), [](const auto& entry) { return entry.second.visible; })) return now;
  Snapshot shown = *now;
  for (auto& [name, window] : shown.windows) {
    const auto known = before.windows.find(name);
    window.visible = known != before.windows.end() && known->second.visible;
  }
  return std::make_shared<const Snapshot>(std::move(shown));
}

}  // namespace

Recovery::Recovery(Program& program, Desktop& desktop, std::string folder)
    : program_(program),
      desktop_(desktop),
      left_(left_overs(folder)),
      seen_(program.snapshot()),
      file_(std::move(folder)) {
  program_.set_changed([this](const std::shared_ptr<const Snapshot>& now) { changed(now); });
  desktop_.set_made([this](const Window& window, QMainWindow& top) {
    if (!window.offers_kept_work || left_.empty()) return;
    const auto discard = [](const LeftOver& left) -> std::string {
      try {
        ClaimedWork(left.path).remove();
      } catch (const RunFailure&) {  // it is gone
      }
      return "";
    };
    KeptWorkBar::add_to(top, new KeptWorkBar(std::exchange(left_, {}),
                                             {[this](const LeftOver& left) { return restore(left); }, discard}));
  });
}

Recovery::~Recovery() { program_.set_changed({}); }

void Recovery::changed(const std::shared_ptr<const Snapshot>& now) {
  if (const auto fault = file_.fault()) {
    tell_in_status_lines(Desktop::tr("Your work cannot be kept for the next start: %1").arg(to_qt(*fault)));
  }
  const auto before = std::exchange(seen_, now);
  // Windows that were only opened are no work.
  if (!last_ && same_windows(*before, *now) && !program_.holds_crystal()) return;
  if (last_ && same_work(*before, *now) && same_screen(*before, *now) &&
      last_->saved_crystal == program_.bench().saved_crystal) {
    return;
  }
  last_ = std::make_shared<const KeptWork>(program_.kept_work(now));
  file_.take(last_);
}

bool Recovery::keep_behind_failure(const std::string& message) noexcept {
  if (!last_) return false;
  try {
    KeptWork work = *last_;
    work.note.end = RunEnd::Failure;
    work.note.failure = message;
    return file_.write(work);
  } catch (const std::exception&) {  // no memory: what the file's own thread wrote last stays
    return false;
  }
}

void Recovery::end() noexcept {
  try {
    if (!program_.crystal_unsaved()) return file_.remove();
    KeptWork work = program_.kept_work(with_windows_of(program_.snapshot(), *seen_));
    work.note.end = RunEnd::Unsaved;
    file_.write(work);
  } catch (const std::exception&) {  // as above
  }
}

/// The left-over goes when its work is on the disk as that of this run. @returns why it cannot be brought back, or
/// nothing
std::string Recovery::restore(const LeftOver& left) {
  std::string fault;
  desktop_.enter("restore " + (left.note.crystal.empty() ? "work" : left.note.crystal), [&] {
    try {
      const ClaimedWork claimed(left.path);
      const KeptWork work = program_.read_work(claimed.bytes());
      const auto put_back = program_.keep();
      try {
        program_.restore(work);
      } catch (...) {  // part of it stands
        put_back();
        throw;
      }
      if (file_.write(program_.kept_work(work.snapshot))) claimed.remove();
    } catch (const RunFailure& failure) {
      fault = failure.message();
    }
  });
  return fault;
}

}  // namespace zol
