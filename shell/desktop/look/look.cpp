#include "shell/desktop/look/look.h"

#include <array>
#include <memory>

#include <QActionGroup>
#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStyleFactory>

#include "shell/desktop/language/language.h"
#include "shell/desktop/look/desktop_shade.h"
#include "shell/desktop/look/look_style.h"
#include "shell/desktop/look/picture_alone.h"
#include "shell/desktop/mnemonics.h"

namespace zol {
namespace {

constexpr auto look_key = "look";
constexpr int few_lines = 640;

struct Name {
  Look look;
  const char* kept;
  const char* shown;
};
constexpr std::array<Name, 4> names{{{Look::AsDesktop, "desktop", QT_TRANSLATE_NOOP("zol", "As the desktop")},
                                     {Look::Light, "light", QT_TRANSLATE_NOOP("zol", "Light")},
                                     {Look::Dark, "dark", QT_TRANSLATE_NOOP("zol", "Dark")},
                                     {Look::Plain, "plain", QT_TRANSLATE_NOOP("zol", "Plain")}}};

/// What was there before any look was taken.
const QPalette& given_palette() {
  static const QPalette given = QApplication::palette();
  return given;
}

std::unique_ptr<DesktopShade>& followed() {
  static std::unique_ptr<DesktopShade> shade;
  return shade;
}

Look& in_use() {
  static Look look = Look::Plain;
  return look;
}

}  // namespace

QSettings& look_settings() {
  static QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("zol"), QStringLiteral("look"));
  return settings;
}

Look kept_look() {
  const QString kept = look_settings().value(QLatin1String(look_key)).toString();
  for (const Name& name : names) {
    if (kept == QLatin1String(name.kept)) return name.look;
  }
  return Look::AsDesktop;
}

Look look_in_use() { return in_use(); }

void follow_desktop() {
  followed() = std::make_unique<DesktopShade>([] {
    if (look_in_use() == Look::AsDesktop) use_look(Look::AsDesktop);
  });
  // It must go before the bus does.
  QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [] { followed().reset(); });
}

Shade shade_of(Look look) {
  if (look == Look::Light) return Shade::Light;
  if (look == Look::Dark) return Shade::Dark;
  if (followed() && followed()->shade()) return *followed()->shade();
  const QPalette& given = given_palette();
  const bool dark = given.color(QPalette::Window).lightness() < given.color(QPalette::WindowText).lightness();
  return dark ? Shade::Dark : Shade::Light;
}

QPalette palette_of(Shade shade) {
  const auto of = [shade](std::string_view name) { return to_colour(name, shade); };
  QPalette palette;
  const std::array<std::pair<QPalette::ColorRole, std::string_view>, 20> roles{{
      {QPalette::Window, "window"},
      {QPalette::WindowText, "text"},
      {QPalette::Base, "field"},
      {QPalette::AlternateBase, "panel"},
      {QPalette::Text, "text"},
      {QPalette::Button, "button"},
      {QPalette::ButtonText, "text"},
      {QPalette::BrightText, "on_accent"},
      {QPalette::Highlight, "select"},
      {QPalette::HighlightedText, "on_select"},
      {QPalette::Link, "link"},
      {QPalette::LinkVisited, "link"},
      {QPalette::ToolTipBase, "tip"},
      {QPalette::ToolTipText, "on_tip"},
      {QPalette::PlaceholderText, "muted"},
      {QPalette::Light, "panel"},
      {QPalette::Midlight, "button"},
      {QPalette::Mid, "hair"},
      {QPalette::Dark, "edge"},
      {QPalette::Shadow, "text"},
  }};
  for (const auto& [role, name] : roles) palette.setColor(role, of(name));
  palette.setColor(QPalette::Inactive, QPalette::Highlight, of("select_idle"));
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText, of("text"));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, of("disabled"));
  }
  return palette;
}

QString style_sheet(Shade shade) {
  QFile file(QStringLiteral(":/look/windows.qss"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString sheet = QString::fromUtf8(file.readAll());
  for (const NamedColour& entry : colour_table) {
    const QLatin1String name(entry.name.data(), static_cast<qsizetype>(entry.name.size()));
    sheet.replace(QLatin1Char('@') + name + QLatin1Char(';'), to_colour(entry.name, shade).name() + QLatin1Char(';'));
  }
  return sheet;
}

void use_look(Look look) {
  given_palette();
  in_use() = look;
  qApp->setStyleSheet(QString());
  if (look == Look::Plain) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(given_palette());
    return;
  }
  const Shade shade = shade_of(look);
  const bool compact = QGuiApplication::primaryScreen()->availableSize().height() < few_lines;
  QApplication::setStyle(new LookStyle(shade, compact));  // the application owns it
  QApplication::setPalette(palette_of(shade));
  qApp->setStyleSheet(style_sheet(shade));
}

QMenu& view_menu(QMainWindow& window) {
  const QString name = QStringLiteral("menuView");
  if (auto* there = window.menuBar()->findChild<QMenu*>(name)) return *there;
  auto* menu = window.menuBar()->addMenu(with_free_mnemonic(window, QCoreApplication::translate("zol", "View")));
  menu->setObjectName(name);
  return *menu;
}

void offer_view(QMainWindow& window) {
  offer_picture_alone(window);
  QMenu* choices = view_menu(window).addMenu(QCoreApplication::translate("zol", "Look"));
  auto* group = new QActionGroup(choices);
  for (const Name& name : names) {
    auto* action = choices->addAction(QCoreApplication::translate("zol", name.shown));
    action->setCheckable(true);
    action->setData(static_cast<int>(name.look));
    group->addAction(action);
    QObject::connect(action, &QAction::triggered, choices, [&name] {
      look_settings().setValue(QLatin1String(look_key), QString::fromLatin1(name.kept));
      use_look(name.look);
    });
  }
  QObject::connect(choices, &QMenu::aboutToShow, group, [group] {
    for (auto* action : group->actions()) action->setChecked(action->data().toInt() == static_cast<int>(kept_look()));
  });
  offer_language(view_menu(window));
}

}  // namespace zol
