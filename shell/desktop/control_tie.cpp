#include "shell/desktop/control_tie.h"

#include <QLabel>

#include "shell/desktop/look/folding.h"

namespace zol {

void ControlTie::show_visibility() const {
  if (widget_ == nullptr || widget_->isVisibleTo(widget_->parentWidget()) == control_.visible()) return;
  widget_->setVisible(control_.visible());
  for (auto* label : owner_.top.findChildren<QLabel*>()) {
    if (label->buddy() == widget_) label->setVisible(control_.visible());  // the text beside a box goes with it
  }
}

void ControlTie::take_focus() {
  if (widget_ == nullptr) return;
  reveal(*widget_);
  widget_->setFocus(Qt::OtherFocusReason);
}

std::unique_ptr<ControlTie> make_tie(const TiedWindow& owner, Control& control) {
  for (const auto make : {make_typing_tie, make_grid_tie, make_choice_tie, make_display_tie}) {
    if (auto made = make(owner, control)) return made;
  }
  return nullptr;
}

}  // namespace zol
