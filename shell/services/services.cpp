#include "shell/services/services.h"

#include <utility>

#include "core/number_text.h"

namespace zol {

std::string NameEnding::added_to(const std::string& path) const {
  const std::size_t slash = path.rfind('/');
  const bool dotted = path.find('.', slash == std::string::npos ? 0 : slash) != std::string::npos;
  return unless_dotted && dotted ? path : path + text;
}

std::string FileDialog::file_title() const {
  const std::size_t slash = file_name_.find_last_of("/\\");
  return slash == std::string::npos ? file_name_ : file_name_.substr(slash + 1);
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

const std::string& FileDialog::ask(FileKind kind, bool save, const NameEnding& ending) {
  std::string& last_name = last_names_[kind];
  if (preset_) last_name = *std::exchange(preset_, std::nullopt);
  const auto folder = folders_.find(kind);
  const FileQuestion question{.kind = kind,
                              .save = save,
                              .initial_folder = folder == folders_.end() ? initial_folder_ : folder->second,
                              .file_name = last_name,
                              .filter = filter_,
                              .ending = ending};
  file_name_ = answered_ ? *std::exchange(answered_, std::nullopt) : services_.ask_file(question);
  if (!file_name_.empty()) last_name = file_name_;
  return file_name_;
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
