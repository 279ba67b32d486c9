// The colours of the windows, light and dark, defined only here. Palette, style sheet and the ink of icons
// are made from this table.
//
// Text on any ground has a contrast of at least 4.5 and a shape of at least 3.0 (WCAG 2.1, 1.4.3 and 1.4.11), which
// `must_differ` lists and a test checks; what is disabled is exempt there. The paper of pictures is white in both.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zol {

using Rgb = std::uint32_t;  ///< 0xRRGGBB

struct NamedColour {
  std::string_view name;
  Rgb light = 0;
  Rgb dark = 0;
};

inline constexpr std::array<NamedColour, 28> colour_table{{
    {"window", 0xEEF1F4, 0x181D23},        // the ground of a window
    {"panel", 0xF8FAFB, 0x20262E},         // groups, boxes that can only be read
    {"field", 0xFFFFFF, 0x13171C},         // what can be typed into or picked from
    {"edge", 0x7F8C99, 0x7C8894},          // border of fields
    {"line", 0xD5DCE3, 0x323B45},          // border of groups
    {"hair", 0xBAC4CE, 0x485360},          // border of lists, line under what can only be read
    {"text", 0x18222C, 0xE4E9EE},          //
    {"muted", 0x55616D, 0xA3AFBA},         // units, heads, summaries
    {"disabled", 0x8C97A2, 0x6A7682},      // text that cannot be acted on
    {"button", 0xE3E8ED, 0x2D3640},        //
    {"button_hover", 0xD7DEE5, 0x38434E},  //
    {"button_press", 0xC7D0D9, 0x232B33},  //
    {"button_edge", 0xB4BFC9, 0x4C5864},   //
    {"head", 0xE9EDF1, 0x262E37},          // heads of tables
    {"well", 0xDDE3E9, 0x0F1317},          // mat around a picture
    {"accent", 0x0B6377, 0x1C7A8D},        // this computes, or: you are here
    {"accent_hover", 0x0D7087, 0x21808F},  //
    {"accent_press", 0x084D5D, 0x176474},  //
    {"on_accent", 0xFFFFFF, 0xFFFFFF},     //
    {"link", 0x0B6377, 0x6FC7D8},          // links and the ring of the focus
    {"select", 0xCDE5EB, 0x1F5562},        // chosen rows
    {"on_select", 0x10222B, 0xFFFFFF},     //
    {"select_idle", 0xE1E7EC, 0x333E48},   // chosen rows of a list without the focus
    {"hover", 0xEDF4F6, 0x252E36},         // row under the pointer
    {"warn", 0x7A4300, 0xF2BD6B},          //
    {"tip", 0x1F2A35, 0xE4E9EE},           // tool tips
    {"on_tip", 0xF2F5F7, 0x18222C},        //
    {"handle", 0x7F8C99, 0x7C8894},        // of scroll bars
}};

enum class Shade { Light, Dark };

/// @returns 0 for a name that is not in the table
[[nodiscard]] constexpr Rgb colour(std::string_view name, Shade shade) {
  for (const NamedColour& entry : colour_table) {
    if (entry.name == name) return shade == Shade::Light ? entry.light : entry.dark;
  }
  return 0;
}

/// Two colours that lie on each other, and what that asks for.
struct ColourPair {
  std::string_view ink;
  std::string_view ground;
  double least = text_contrast;

  static constexpr double text_contrast = 4.5;
  static constexpr double shape_contrast = 3.0;
};

inline constexpr std::array must_differ{
    ColourPair{"text", "window"},
    ColourPair{"text", "panel"},
    ColourPair{"text", "field"},
    ColourPair{"text", "button"},
    ColourPair{"text", "button_hover"},
    ColourPair{"text", "button_press"},
    ColourPair{"text", "head"},
    ColourPair{"text", "hover"},
    ColourPair{"text", "select_idle"},
    ColourPair{"muted", "window"},
    ColourPair{"muted", "panel"},
    ColourPair{"muted", "field"},
    ColourPair{"muted", "head"},
    ColourPair{"muted", "well"},
    ColourPair{"muted", "button"},
    ColourPair{"on_accent", "accent"},
    ColourPair{"on_accent", "accent_hover"},
    ColourPair{"on_accent", "accent_press"},
    ColourPair{"link", "window"},
    ColourPair{"link", "panel"},
    ColourPair{"on_select", "select"},
    ColourPair{"warn", "panel"},
    ColourPair{"warn", "window"},
    ColourPair{"on_tip", "tip"},
    ColourPair{"edge", "field", ColourPair::shape_contrast},
    ColourPair{"edge", "panel", ColourPair::shape_contrast},
    ColourPair{"link", "field", ColourPair::shape_contrast},
    ColourPair{"link", "button", ColourPair::shape_contrast},
    ColourPair{"handle", "field", ColourPair::shape_contrast},
};

}  // namespace zol
