// What lists and pictures were made from, so that what is old can say so.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "shell/program/snapshot.h"
#include "shell/services/window_services.h"

namespace zol {

/// The crystal, the radiation and the reflection list at one time.
struct Origin {
  std::string crystal;  ///< as its file would hold it
  std::string crystal_name;
  std::string radiation;          ///< as "20 kV"
  std::uint64_t reflections = 0;  ///< a digest of the list that its order does not change
};

class Origins {
 public:
  /// Notes what an event has made anew.
  void note(const Windows& windows, const Snapshot& before, const Snapshot& after, const Origin& now);

  /// As "drawn for Quartz, 20 kV; crystal changed since"; empty where all is as it was, or where nothing is known.
  [[nodiscard]] std::string said_of(const Control& control, const Origin& now) const;

 private:
  using Key = std::weak_ptr<const Control::Copy>;
  [[nodiscard]] Origin of_content(const Control& control, const Origin& now) const;

  std::map<Key, Origin, std::owner_less<Key>> made_;  ///< by what the control held then, so that undoing needs no more
  std::map<std::uint64_t, Origin> lists_;             ///< what a reflection list was computed from, by its digest
};

}  // namespace zol
