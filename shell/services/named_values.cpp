#include "shell/services/named_values.h"

#include "core/run_failure.h"

namespace zol {

std::string shown_text(const AsfRow& row) {
  std::string text = row.Element;
  for (const Single value : {row.A1, row.B1, row.A2, row.B2, row.A3, row.B3, row.A4, row.B4, row.C}) {
    text += ',' + plain_text(value);
  }
  return utf8_of_latin1(text + ',' + plain_text(row.Z));
}

int NamedValues::dimensions(const std::string& name) const {
  const auto printed = printed_.find(name);
  return printed == printed_.end() ? -1 : printed->second.dimensions;
}

std::string NamedValues::text(const std::string& name, std::span<const int> indices) const {
  const auto printed = printed_.find(name);
  if (printed == printed_.end()) throw RunFailure("there is no field " + name);
  if (indices.size() != static_cast<std::size_t>(printed->second.dimensions)) {
    throw RunFailure(name + " takes " + std::to_string(printed->second.dimensions) + " indices");
  }
  return printed->second.text(indices);
}

std::vector<std::string> NamedValues::names() const {
  std::vector<std::string> names;
  for (const auto& [name, printed] : printed_) names.push_back(name);
  return names;
}

NamedValues::Copies NamedValues::copies(const Copies& before) const {
  Copies copies;
  for (const auto& [name, kept] : kept_) {
    const auto known = before.find(name);
    copies.emplace_hint(copies.end(), name, kept.copy(known == before.end() ? SharedCopy() : known->second));
  }
  return copies;
}

void NamedValues::put_back(const Copies& copies) const {
  for (const auto& [name, copy] : copies) {
    const auto kept = kept_.find(name);
    if (kept != kept_.end()) kept->second.put_back(copy->value);
  }
}

void NamedValues::store(StoreWriter& out, const Copies& copies) {
  for (const auto& [name, copy] : copies) {
    out.text(name);
    store_kept(out, copy->value, copy->kind);
  }
}

NamedValues::Copies NamedValues::load(StoreReader& in) const {
  Copies copies;
  for (const auto& [name, kept] : kept_) {
    if (in.text() != name) StoreReader::fail("it lacks " + name);
    copies.emplace_hint(copies.end(), name,
                        std::make_shared<const KeptValue>(KeptValue{load_kept(in, kept.kind), kept.kind}));
  }
  return copies;
}

}  // namespace zol
