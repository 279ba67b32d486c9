#include "scans/binary_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "core/run_failure.h"

namespace zol {

BinaryFile::BinaryFile(std::string path) : path_(std::move(path)) {
  descriptor_ = open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
  if (descriptor_ < 0) throw RunFailure("cannot open " + path_ + ": " + std::strerror(errno));
  struct stat file {};
  if (fstat(descriptor_, &file) != 0 || !S_ISREG(file.st_mode)) {
    close(descriptor_);
    throw RunFailure("cannot read " + path_ + ": it is not a file");
  }
  size_ = static_cast<std::uint64_t>(file.st_size);
}

BinaryFile::~BinaryFile() { close(descriptor_); }

bool BinaryFile::read(std::uint64_t offset, std::span<std::byte> bytes) const {
  if (offset > size_ || bytes.size() > size_ - offset) return false;
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t got = pread(descriptor_, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) throw RunFailure("cannot read " + path_ + ": " + std::strerror(errno));
    if (got == 0) return false;
    done += static_cast<std::size_t>(got);
  }
  return true;
}

void BinaryFile::fail_end(std::uint64_t offset, const char* what) const {
  throw RunFailure(path_ + " ends before byte " + std::to_string(offset) + ", where " + what + " is expected");
}

namespace {

template <class Pixel>
void widen(std::span<const std::byte> bytes, std::span<float> values) {
  const std::byte* at = bytes.data();
  for (float& value : values) {
    Pixel pixel{};
    std::memcpy(&pixel, at, sizeof pixel);
    at += sizeof pixel;
    value = static_cast<float>(pixel);
  }
}

}  // namespace

void widen_pixels(std::span<const std::byte> bytes, int bytes_of_each, std::span<float> values) {
  switch (bytes_of_each) {
    case 1:
      return widen<std::uint8_t>(bytes, values);
    case 2:
      return widen<std::uint16_t>(bytes, values);
    default:
      return widen<std::uint32_t>(bytes, values);
  }
}

}  // namespace zol
