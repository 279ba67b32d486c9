#include "shell/desktop/language/phrases.h"

#include <algorithm>

#include <QXmlStreamReader>

namespace zol {
namespace {

constexpr int deepest = 4;
constexpr qsizetype most_known = 4000;
constexpr qsizetype telling = 4;  // letters by which a template is sure to be meant

bool is_place(const QString& text, qsizetype at) {
  return text[at] == u'%' && at + 1 < text.size() && text[at + 1] >= u'1' && text[at + 1] <= u'9';
}

bool has_letter(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

const QLatin1String sentence_end(". ");  // of abbreviations, too

/// What the program puts between the parts of a text.
const QStringList& joints() {
  static const QStringList all{QStringLiteral("\n"), QStringLiteral(", while "), QStringLiteral("   "),
                               QStringLiteral("; "), QStringLiteral(" - "),      QStringLiteral(". ")};
  return all;
}

bool has_joint(const QString& part) {
  return std::any_of(joints().begin(), joints().end(), [&part](const QString& joint) { return part.contains(joint); });
}

/// Blanks, signs of equality and colons at the end of a caption.
qsizetype tail_of(const QString& text) {
  qsizetype at = text.size();
  while (at > 0 && QStringLiteral(" =:").contains(text[at - 1])) --at;
  return at;
}

}  // namespace

qsizetype mnemonic_at(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != u'&') continue;
    if (text[i + 1] != u'&') return i + 1;
    ++i;
  }
  return -1;
}

QString without_mnemonic(const QString& text) {
  QString plain = text;
  for (qsizetype at = mnemonic_at(plain); at >= 0; at = mnemonic_at(plain)) plain.remove(at - 1, 1);
  return plain;
}

std::vector<Phrases::Entry> Phrases::read(QIODevice& file) {
  std::vector<Entry> entries;
  QXmlStreamReader xml(&file);
  Entry entry;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == u"source") {
      entry = {xml.readElementText(), {}};
    } else if (xml.name() == u"translation") {
      const bool finished = xml.attributes().value(QStringLiteral("type")).isEmpty();
      entry.translation = xml.readElementText();
      if (finished && !entry.translation.isEmpty()) entries.push_back(entry);
    }
  }
  return xml.hasError() ? std::vector<Entry>() : entries;
}

Phrases::Phrases(const std::vector<Entry>& entries) {
  for (const Entry& entry : entries) {
    Template form = template_of(entry);
    if (form.numbers.empty()) {
      const QString words = without_mnemonic(entry.translation);
      exact_.insert(entry.source, words);
      const QString plain = without_mnemonic(entry.source);
      if (!exact_.contains(plain)) exact_.insert(plain, words);
    } else {
      templates_.push_back(std::move(form));
    }
  }
  std::stable_sort(templates_.begin(), templates_.end(),
                   [](const Template& one, const Template& other) { return one.letters > other.letters; });
}

Phrases::Template Phrases::template_of(const Entry& entry) {
  Template form{{QString()}, {}, entry.translation};
  for (qsizetype i = 0; i < entry.source.size(); ++i) {
    if (is_place(entry.source, i)) {
      form.numbers.push_back(entry.source[++i].digitValue());
      form.literals += QString();
    } else {
      form.literals.back() += entry.source[i];
      if (entry.source[i].isLetter()) ++form.letters;
    }
  }
  return form;
}

/// What stands in the places of a template, each as short as can be but for the last.
std::optional<QStringList> Phrases::places(const Template& form, const QString& text) {
  if (!text.startsWith(form.literals.front()) || !text.endsWith(form.literals.back())) return std::nullopt;
  const qsizetype end = text.size() - form.literals.back().size();
  qsizetype at = form.literals.front().size();
  QStringList parts;
  for (qsizetype i = 1; i + 1 < form.literals.size(); ++i) {
    const qsizetype next = text.indexOf(form.literals[i], at + 1);
    if (next < 0) return std::nullopt;
    parts += text.mid(at, next - at);
    at = next + form.literals[i].size();
  }
  if (at >= end) return std::nullopt;
  return parts << text.mid(at, end - at);
}

/// A template that tells little is meant only where its places hold numbers, or texts that are known.
std::optional<QString> Phrases::fill(const Template& form, const QStringList& parts, int depth) const {
  QString filled;
  const QString& pattern = form.translation;
  for (qsizetype i = 0; i < pattern.size(); ++i) {
    const bool translated = pattern[i] == u'%' && i + 2 < pattern.size() && pattern[i + 1] == u'L';
    const qsizetype digit = translated ? i + 2 : i + 1;
    const auto place = pattern[i] != u'%' || digit >= pattern.size()
                           ? form.numbers.end()
                           : std::find(form.numbers.begin(), form.numbers.end(), pattern[digit].digitValue());
    if (place == form.numbers.end()) {
      filled += pattern[i];
      continue;
    }
    const QString& part = parts[place - form.numbers.begin()];
    const auto known = translated ? look_up(part, depth + 1) : std::nullopt;
    if (form.letters < telling && !known && has_letter(part)) return std::nullopt;
    filled += known.value_or(part);
    i = digit;
  }
  return filled;
}

/// @param strict  what stands in a place is no more than one part of a sentence
std::optional<QString> Phrases::by_template(const QString& text, bool strict, int depth) const {
  for (const Template& form : templates_) {
    const auto parts = places(form, text);
    if (!parts || (strict && std::any_of(parts->begin(), parts->end(), has_joint))) continue;
    if (auto filled = fill(form, *parts, depth)) return filled;
  }
  return std::nullopt;
}

/// A caption with or without its mnemonic, blanks around it and the sign of equality behind it.
std::optional<QString> Phrases::look_up_words(const QString& text) const {
  if (const auto found = exact_.find(text); found != exact_.end()) return *found;
  const QString plain = without_mnemonic(text);
  if (const auto found = exact_.find(plain); found != exact_.end()) return *found;
  qsizetype begin = 0;
  while (begin < plain.size() && plain[begin] == u' ') ++begin;
  const QString body = plain.mid(begin);
  if (const auto found = exact_.find(body.trimmed()); found != exact_.end()) {
    return plain.left(begin) + *found + body.mid(body.trimmed().size());
  }
  const qsizetype end = tail_of(body);
  const auto found = exact_.find(body.left(end));
  if (end == 0 || found == exact_.end()) return std::nullopt;
  const QString tail = body.mid(end);
  return plain.left(begin) + *found + exact_.value(tail, tail);
}

/// Sentences and lists are put together of parts; each that is known is shown in the language.
/// @param all  only where all are known
std::optional<QString> Phrases::by_parts(const QString& text, bool all, int depth) const {
  for (const QString& joint : joints()) {
    QStringList parts = text.split(joint);
    if (parts.size() < 2) continue;
    qsizetype found = 0;
    for (QString& part : parts) {
      const auto known = look_up(part, depth + 1);
      if (known || !has_letter(part)) ++found;
      if (known) part = *known;
    }
    if (found == parts.size() || (found > 0 && !all && joint != sentence_end))
      return parts.join(exact_.value(joint, joint));
  }
  return std::nullopt;
}

std::optional<QString> Phrases::look_up(const QString& text, int depth) const {
  if (depth > deepest || !has_letter(text)) return std::nullopt;
  if (auto found = look_up_words(text)) return found;
  if (auto found = by_template(text, true, depth)) return found;
  if (auto found = by_parts(text, true, depth)) return found;
  if (auto found = by_parts(text, false, depth)) return found;
  if (auto found = by_template(text, false, depth)) return found;
  if (mnemonic_at(text) >= 0) return look_up(without_mnemonic(text), depth + 1);
  if (!text.front().isUpper()) return std::nullopt;
  QString small = text;  // a reason that begins a sentence
  small.front() = small.front().toLower();
  auto found = look_up(small, deepest);
  if (found) found->front() = found->front().toUpper();
  return found;
}

std::optional<QString> Phrases::find(const QString& text) const {
  if (text.isEmpty() || empty()) return std::nullopt;
  const auto known = known_.constFind(text);
  if (known != known_.constEnd()) return *known;
  if (known_.size() > most_known) known_.clear();
  return known_[text] = look_up(text, 0);
}

}  // namespace zol
