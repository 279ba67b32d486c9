#include "shell/program/snapshot.h"

#include <algorithm>

namespace zol {
namespace {

/// A window that has come into being has the same fields as one that stands; its being there is no change by itself.
bool same_window(const Window::Copy& a, const Window::Copy& b) {
  return a.caption == b.caption && a.fields == b.fields && a.controls == b.controls;
}

}  // namespace

bool same_work(const Snapshot& a, const Snapshot& b) { return a.state == b.state && same_windows(a, b); }

bool same_windows(const Snapshot& a, const Snapshot& b) {
  return std::all_of(a.windows.begin(), a.windows.end(), [&b](const auto& entry) {
    const auto other = b.windows.find(entry.first);
    return other == b.windows.end() || same_window(entry.second, other->second);
  });
}

bool same_screen(const Snapshot& a, const Snapshot& b) {
  return std::equal(a.windows.begin(), a.windows.end(), b.windows.begin(), b.windows.end(),
                    [](const auto& one, const auto& other) {
                      return one.first == other.first && one.second.visible == other.second.visible;
                    });
}

}  // namespace zol
