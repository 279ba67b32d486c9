// Lines over lists and pictures: that they are old, or what to think of them; and the line at the foot of each window.
#pragma once

#include <map>
#include <memory>
#include <string>

#include <QObject>

#include "shell/desktop/desktop.h"
#include "shell/program/program.h"

namespace zol {

class NoticeStrip;

/// Over the views, not in the images. Kept up to date behind each event.
class Notices : public QObject {
 public:
  Notices(Program& program, Desktop& desktop);
  ~Notices() override;

  void update();

 private:
  void update_window(Window& window, QWidget& top);
  void update_foot(const Window& window, QWidget& top);
  [[nodiscard]] std::string caption_of(const Control& control, const std::string& old);
  void show_strip(Control& control, QWidget& view);
  void make_again(Control& control);

  Program& program_;
  Desktop& desktop_;
  std::map<std::string, QPointer<NoticeStrip>> strips_;  ///< by the path of the control; the view owns them
};

}  // namespace zol
