#include "shell/desktop/look/desktop_shade.h"

#include <utility>

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace zol {
namespace {

QString service() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
QString object() { return QStringLiteral("/org/freedesktop/portal/desktop"); }
QString interface() { return QStringLiteral("org.freedesktop.portal.Settings"); }
QString appearance() { return QStringLiteral("org.freedesktop.appearance"); }
QString colour_scheme() { return QStringLiteral("color-scheme"); }

/// "Read" wraps its answer once more.
QVariant unwrapped(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

}  // namespace

DesktopShade::DesktopShade(std::function<void()> changed, QObject* parent)
    : QObject(parent), changed_(std::move(changed)) {
  if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return;
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  QDBusMessage question = QDBusMessage::createMethodCall(service(), object(), interface(), QStringLiteral("Read"));
  question << appearance() << colour_scheme();
  // A slot that takes a variant of the bus is not found before the first message has made that type known.
  bus.connect(service(), object(), interface(), QStringLiteral("SettingChanged"), this,
              SLOT(setting_changed(QDBusMessage)));
  auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
    const QDBusPendingReply<QDBusVariant> reply = *finished;
    if (!reply.isError()) take(QVariant::fromValue(reply.value()));
    finished->deleteLater();
  });
}

void DesktopShade::setting_changed(const QDBusMessage& message) {
  const QVariantList said = message.arguments();
  if (said.size() == 3 && said[0].toString() == appearance() && said[1].toString() == colour_scheme()) take(said[2]);
}

void DesktopShade::take(const QVariant& value) {
  constexpr uint prefers_dark = 1;
  constexpr uint prefers_light = 2;
  const uint preference = unwrapped(value).toUInt();
  std::optional<Shade> shade;
  if (preference == prefers_dark) shade = Shade::Dark;
  if (preference == prefers_light) shade = Shade::Light;
  if (std::exchange(shade_, shade) != shade) changed_();
}

}  // namespace zol
