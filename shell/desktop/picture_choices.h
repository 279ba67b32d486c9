// What the user wants to see over all pictures and in their exports, kept between runs.
#pragma once

#include <memory>

#include <QSettings>
#include <QString>

namespace zol {

class PictureChoices {
 public:
  enum Choice { Scale, Labels, Families, Caption, LayersInExports, Halos, count };

  /// Of the program.
  [[nodiscard]] static PictureChoices& of_program();
  /// Reads them from this file and keeps them there from now on.
  void keep_in(const QString& file);
  [[nodiscard]] bool on(Choice choice) const { return on_[choice]; }
  void set(Choice choice, bool on);

 private:
  bool on_[count] = {false, false, true, false, false, false};  // NOLINT(modernize-avoid-c-arrays): indexed by the enum
  std::unique_ptr<QSettings> settings_;
};

}  // namespace zol
