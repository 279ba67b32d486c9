#include "core/state_fields.h"

#include <gtest/gtest.h>

#include <set>

namespace zol {
namespace {

struct AnyValue {
  template <class T>
  operator T() const;  // NOLINT(google-explicit-constructor,hicpp-explicit-conversions)
};

/// Number of members of an aggregate: as many values as can be listed for it.
template <class Aggregate, class... Values>
constexpr std::size_t member_count() {
  if constexpr (requires { Aggregate{Values{}..., AnyValue{}}; }) {
    return member_count<Aggregate, Values..., AnyValue>();
  } else {
    return sizeof...(Values);
  }
}

TEST(StateFields, AreAllInTheTableUnderTheirNames) {
  CrystalState state;
  std::set<std::string> names;
  std::set<const void*> fields;
  for_each_field(state, [&]<class Field>(const FieldName& name, const Field& field) {
    names.insert(name.text);
    fields.insert(&field);
    if constexpr (requires { field.name(); }) {
      EXPECT_EQ(field.name(), name.text);
    }
  });
  constexpr std::size_t members = member_count<Main1State>() + member_count<Module1State>();
  EXPECT_EQ(fields.size(), members);
  EXPECT_EQ(names.size(), members);
}

}  // namespace
}  // namespace zol
