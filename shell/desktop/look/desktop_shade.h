// Light or dark, as the user has chosen it for the whole desktop: asked of the desktop's settings portal over D-Bus,
// and followed. Source: the portal interface org.freedesktop.portal.Settings, key color-scheme of
// org.freedesktop.appearance.
#pragma once

#include <functional>
#include <optional>

#include <QDBusMessage>
#include <QObject>

#include "shell/desktop/look/colours.h"

namespace zol {

class DesktopShade : public QObject {
  Q_OBJECT

 public:
  /// Asks without waiting, and tells of each answer that changes the shade. Without a session bus or a portal nothing
  /// is known, and nothing is told.
  explicit DesktopShade(std::function<void()> changed, QObject* parent = nullptr);

  /// none: the desktop has no preference, or has not said
  [[nodiscard]] std::optional<Shade> shade() const { return shade_; }

 private slots:
  void setting_changed(const QDBusMessage& message);

 private:
  void take(const QVariant& value);

  std::function<void()> changed_;
  std::optional<Shade> shade_;
};

}  // namespace zol
