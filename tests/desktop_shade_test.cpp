// Light and dark follow the desktop's settings portal, here one of ours on a bus of the test.
#include "shell/desktop/look/desktop_shade.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>

namespace zol {
namespace {

constexpr auto settings = "org.freedesktop.portal.Settings";
constexpr auto path = "/org/freedesktop/portal/desktop";

class Portal : public QDBusVirtualObject {
 public:
  explicit Portal(uint scheme) : scheme_(scheme) {}
  [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    if (message.member() != QLatin1String("Read")) return false;
    if (message.arguments() !=
        QVariantList{QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme")}) {
      return bus.send(message.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("another setting")));
    }
    const QDBusVariant inner{QVariant(scheme_)};
    return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(inner)))));
  }
  static void tell(const QDBusConnection& bus, const char* space, uint scheme) {
    QDBusMessage signal =
        QDBusMessage::createSignal(QLatin1String(path), QLatin1String(settings), QStringLiteral("SettingChanged"));
    signal << QString::fromLatin1(space) << QStringLiteral("color-scheme")
           << QVariant::fromValue(QDBusVariant(QVariant(scheme)));
    EXPECT_TRUE(bus.send(signal));
  }

 private:
  uint scheme_;
};

TEST(DesktopShade, IsAskedOfThePortalAndFollowed) {
  QProcess daemon;
  daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--print-address"),
                                               QStringLiteral("--nofork"), QStringLiteral("--nopidfile")});
  ASSERT_TRUE(daemon.waitForReadyRead()) << daemon.errorString().toStdString();
  const QByteArray address = daemon.readAllStandardOutput().trimmed();
  qputenv("DBUS_SESSION_BUS_ADDRESS", address);
  {
    QDBusConnection bus = QDBusConnection::connectToBus(QString::fromLatin1(address), QStringLiteral("portal"));
    Portal portal(1);
    ASSERT_TRUE(bus.registerVirtualObject(QLatin1String(path), &portal));
    ASSERT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));

    int changes = 0;
    const DesktopShade shade([&changes] { ++changes; });
    EXPECT_FALSE(shade.shade()) << "nothing waits for the answer";
    EXPECT_TRUE(QTest::qWaitFor([&changes] { return changes == 1; }));
    EXPECT_EQ(shade.shade(), Shade::Dark);
    Portal::tell(bus, "org.gnome.desktop.interface", 2);  // another space
    Portal::tell(bus, "org.freedesktop.appearance", 1);   // no change
    Portal::tell(bus, "org.freedesktop.appearance", 2);
    EXPECT_TRUE(QTest::qWaitFor([&changes] { return changes == 2; }));
    EXPECT_EQ(shade.shade(), Shade::Light);
    Portal::tell(bus, "org.freedesktop.appearance", 0);
    EXPECT_TRUE(QTest::qWaitFor([&changes] { return changes == 3; }));
    EXPECT_FALSE(shade.shade()) << "no preference";
    bus.unregisterObject(QLatin1String(path));
  }
  QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
  QDBusConnection::disconnectFromBus(QStringLiteral("qt_default_session_bus"));
  daemon.terminate();
  EXPECT_TRUE(daemon.waitForFinished());
}

}  // namespace
}  // namespace zol
