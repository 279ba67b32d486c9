#include "shell/desktop/language/language.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QMenu>
#include <QTranslator>

#include "shell/desktop/language/phrases.h"
#include "shell/desktop/language/shown_widgets.h"
#include "shell/desktop/look/look.h"

namespace zol {
namespace {

constexpr auto language_key = "language";

QString english() { return QStringLiteral("en"); }

struct InUse {
  QString code = english();
  Phrases phrases;
  QTranslator of_qt;  ///< for what Qt says itself, as the buttons of dialogs
};

InUse& in_use() {
  static InUse use;
  return use;
}

QString table_of(const QString& code) { return QStringLiteral(":/translations/zol_%1.ts").arg(code); }

QString name_of(const QString& code) {
  QString name = QLocale(code).nativeLanguageName();
  if (!name.isEmpty()) name.front() = name.front().toUpper();
  return name;
}

bool is_known(const QString& code) { return code == english() || QFile::exists(table_of(code)); }

Phrases phrases_of(const QString& code) {
  QFile file(table_of(code));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return Phrases(Phrases::read(file));
}

void translate_qt(const QString& code) {
  QTranslator& of_qt = in_use().of_qt;
  QCoreApplication::removeTranslator(&of_qt);
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (code != english() && of_qt.load(QStringLiteral("qtbase_") + code, folder)) {
    QCoreApplication::installTranslator(&of_qt);
  }
}

}  // namespace

const std::vector<Language>& languages() {
  static const std::vector<Language> all = [] {
    std::vector<Language> found{{english(), QStringLiteral("English")}};
    for (const QString& file : QDir(QStringLiteral(":/translations")).entryList({QStringLiteral("zol_*.ts")})) {
      const QString code = file.section(u'_', 1).section(u'.', 0, 0);
      found.push_back({code, name_of(code)});
    }
    return found;
  }();
  return all;
}

QString kept_language() {
  const QString kept = look_settings().value(QLatin1String(language_key)).toString();
  return is_known(kept) ? kept : QString();
}

QString first_known_language(const QStringList& wanted) {
  for (const QString& language : wanted) {
    QString code = language.section(u'-', 0, 0);
    if (is_known(code)) return code;
  }
  return english();
}

void use_language(const QString& code) {
  const QString wanted = code.isEmpty() ? first_known_language(QLocale::system().uiLanguages()) : code;
  if (wanted == in_use().code) return;
  in_use().code = wanted;
  in_use().phrases = phrases_of(wanted);
  translate_qt(wanted);
  follow_widgets(wanted != english());
  show_all_widgets();
}

QString language_in_use() { return in_use().code; }

QString shown(const QString& text) { return in_use().phrases.find(text).value_or(text); }

bool is_translated(const QString& text) { return in_use().phrases.find(text).has_value(); }

void offer_language(QMenu& menu) {
  QMenu* choices = menu.addMenu(QCoreApplication::translate("zol", "Language"));
  auto* group = new QActionGroup(choices);
  const auto add = [choices, group](const QString& code, const QString& name) {
    auto* action = group->addAction(choices->addAction(name));
    action->setCheckable(true);
    action->setData(code);
    QObject::connect(action, &QAction::triggered, choices, [code] {
      look_settings().setValue(QLatin1String(language_key), code);
      use_language(code);
    });
  };
  add({}, QCoreApplication::translate("zol", "As the desktop"));
  for (const Language& language : languages()) add(language.code, language.name);
  QObject::connect(choices, &QMenu::aboutToShow, group, [group] {
    for (auto* action : group->actions()) action->setChecked(action->data().toString() == kept_language());
  });
}

}  // namespace zol
