#include "shell/services/latin1.h"

#include <bit>
#include <charconv>
#include <cstdint>
#include <optional>

namespace zol {
namespace {

unsigned byte_at(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

struct Character {
  std::uint32_t code = 0;
  std::size_t length = 1;  // bytes
};

/// The UTF-8 character at a place; none for a wrong lead byte, a missing or wrong continuation, an overlong form, a
/// surrogate, or a code beyond the last one.
std::optional<Character> character_at(std::string_view text, std::size_t at) {
  const unsigned lead = byte_at(text, at);
  if (lead < 0x80U) return Character{lead, 1};
  const auto length = static_cast<std::size_t>(std::countl_one(static_cast<unsigned char>(lead)));
  if (length < 2 || length > 4 || at + length > text.size()) return std::nullopt;
  Character found{lead & (0x7FU >> length), length};
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned next = byte_at(text, at + i);
    if ((next & 0xC0U) != 0x80U) return std::nullopt;
    found.code = found.code << 6U | (next & 0x3FU);
  }
  constexpr std::uint32_t lowest[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = found.code >= 0xD800U && found.code <= 0xDFFFU;
  if (found.code < lowest[length] || found.code > 0x10FFFFU || surrogate) return std::nullopt;
  return found;
}

void append_latin1_as_utf8(std::string& result, unsigned byte) {
  if (byte < 0x80U) {
    result += static_cast<char>(byte);
  } else {
    result += static_cast<char>(0xC0U | byte >> 6U);
    result += static_cast<char>(0x80U | (byte & 0x3FU));
  }
}

std::string hexadecimal(std::uint32_t value) {
  char digits[8];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), value, 16);
  std::string text(std::begin(digits), end.ptr);
  for (char& c : text) c = c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c;
  return text.size() < 4 ? std::string(4 - text.size(), '0') + text : text;
}

}  // namespace

std::string utf8_of_latin1(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) append_latin1_as_utf8(result, byte_at(text, at));
  return result;
}

Latin1 latin1_of_utf8(std::string_view text) {
  constexpr std::uint32_t last = 0xFF;
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const auto character = character_at(text, at);
    if (!character) return {"", "\"" + readable_utf8(text) + "\" is not UTF-8"};
    if (character->code > last) {
      return {"", "\"" + std::string(text.substr(at, character->length)) + "\" (U+" + hexadecimal(character->code) +
                      ") is outside Latin-1"};
    }
    result += static_cast<char>(character->code);
    at += character->length;
  }
  return {result, ""};
}

std::string readable_utf8(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    if (const auto character = character_at(text, at)) {
      result += text.substr(at, character->length);
      at += character->length;
    } else {
      append_latin1_as_utf8(result, byte_at(text, at++));
    }
  }
  return result;
}

}  // namespace zol
