// The language that windows are shown in. The program itself, its files and scripts are English throughout: what is
// shown is looked up at the edge.
#pragma once

#include <string>
#include <vector>

#include <QString>
#include <QStringList>

class QMenu;

namespace zol {

struct Language {
  QString code;  ///< of ISO 639, as "de"
  QString name;  ///< in itself, as "Deutsch"
};

/// English, then those that have a table, `translations/zol_*.ts`.
[[nodiscard]] const std::vector<Language>& languages();

/// The code that is kept; empty: as the desktop has it.
[[nodiscard]] QString kept_language();
/// The first that there is a table for, else English. @param wanted  codes of languages and countries, as "de-AT"
[[nodiscard]] QString first_known_language(const QStringList& wanted);
/// Shows all windows in a language from now on. An empty code is the desktop's.
void use_language(const QString& code);
[[nodiscard]] QString language_in_use();

/// What is shown for a text of the program; one that has no translation is shown as it is.
[[nodiscard]] QString shown(const QString& text);
/// Whether it has one in the language in use.
[[nodiscard]] bool is_translated(const QString& text);

/// The choice of the language. It is kept and holds at once.
void offer_language(QMenu& menu);

}  // namespace zol
