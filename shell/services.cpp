#include "shell/services.h"

#include <utility>

#include "core/number_text.h"

namespace zol {

std::string NameEnding::added_to(const std::string& path) const {
  const std::size_t slash = path.rfind('/');
  const bool dotted = path.find('.', slash == std::string::npos ? 0 : slash) != std::string::npos;
  return unless_dotted && dotted ? path : path + text;
}

std::string FileDialog::file_title() const {
  const std::size_t slash = question_.file_name.find_last_of("/\\");
  return slash == std::string::npos ? question_.file_name : question_.file_name.substr(slash + 1);
}

void FileDialog::answering(std::string path, const std::function<void()>& action) {
  struct Answer {
    std::optional<std::string>& answer;
    ~Answer() { answer.reset(); }
  };
  answered_ = std::move(path);
  const Answer held{answered_};
  action();
}

const std::string& FileDialog::ask(bool save, const NameEnding& ending) {
  question_.save = save;
  question_.ending = ending;
  question_.file_name = answered_ ? *std::exchange(answered_, std::nullopt) : services_.ask_file(question_);
  return question_.file_name;
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
