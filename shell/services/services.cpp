#include "shell/services/services.h"

#include <utility>

#include "core/number_text.h"
#include "shell/services/window.h"

namespace zol {

std::string NameEnding::added_to(const std::string& path) const {
  const std::size_t slash = path.rfind('/');
  const bool dotted = path.find('.', slash == std::string::npos ? 0 : slash) != std::string::npos;
  return unless_dotted && dotted ? path : path + text;
}

FileDialog::FileDialog(Window& window, Services& services, const std::string& name) : services_(services) {
  window.fields().keep(name, memory_);
}

std::string FileDialog::file_title() const {
  const std::string& path = memory_.file_name;
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
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
  std::string& last_name = memory_.last_names[kind];
  if (memory_.preset) last_name = *std::exchange(memory_.preset, std::nullopt);
  const auto folder = memory_.folders.find(kind);
  const FileQuestion question{
      .kind = kind,
      .save = save,
      .initial_folder = folder == memory_.folders.end() ? memory_.initial_folder : folder->second,
      .file_name = last_name,
      .filter = memory_.filter,
      .ending = ending};
  memory_.file_name = answered_ ? *std::exchange(answered_, std::nullopt) : services_.ask_file(question);
  if (!memory_.file_name.empty()) last_name = memory_.file_name;
  if (!memory_.file_name.empty() && services_.chosen_) {
    services_.chosen_(question, ending.added_to(memory_.file_name));
  }
  return memory_.file_name;
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
