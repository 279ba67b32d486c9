#include "shell/desktop/picture_choices.h"

namespace zol {
namespace {

QString key_of(int choice) {
  static const char* const names[] = {"scale", "labels", "families", "caption", "layersInExports", "halos"};
  return QStringLiteral("pictures/") + QLatin1String(names[choice]);
}

}  // namespace

PictureChoices& PictureChoices::of_program() {
  static PictureChoices choices;
  return choices;
}

void PictureChoices::keep_in(const QString& file) {
  settings_ = std::make_unique<QSettings>(file, QSettings::IniFormat);
  for (int choice = 0; choice < count; ++choice) {
    on_[choice] = settings_->value(key_of(choice), on_[choice]).toBool();
  }
}

void PictureChoices::set(Choice choice, bool on) {
  on_[choice] = on;
  if (settings_) settings_->setValue(key_of(choice), on);
}

}  // namespace zol
