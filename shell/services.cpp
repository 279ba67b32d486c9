#include "shell/services.h"

#include "core/number_text.h"

namespace zol {

std::string FileDialog::file_title() const {
  const std::size_t slash = question_.file_name.find_last_of("/\\");
  return slash == std::string::npos ? question_.file_name : question_.file_name.substr(slash + 1);
}

PrintLine& PrintLine::add(std::string_view text) {
  constexpr std::size_t zone = 14;
  text_.resize(next_zone_, ' ');
  text_ += text;
  next_zone_ = std::max(next_zone_ + zone, (text_.size() + zone - 1) / zone * zone);
  return *this;
}

PrintLine& PrintLine::add(Single value) { return add(Str(value) + ' '); }
PrintLine& PrintLine::add(Integer value) { return add(Str(value) + ' '); }

}  // namespace zol
