#include "shell/services/stored.h"

#include "core/run_failure.h"

namespace zol {

/// Each step can be gone backwards, so that what differs once stays different as long as the same follows.
std::uint64_t checksum(std::string_view bytes) {
  constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
  constexpr unsigned half = 32;
  std::uint64_t sum = bytes.size();
  const auto take = [&sum](std::uint64_t word) {
    sum = (sum ^ word) * factor;
    sum ^= sum >> half;
  };
  while (bytes.size() >= sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes.data(), sizeof word);
    take(word);
    bytes.remove_prefix(sizeof word);
  }
  for (const char c : bytes) take(static_cast<unsigned char>(c));
  return sum;
}

void StoreWriter::count(std::size_t number) {
  if (number > std::numeric_limits<std::uint32_t>::max()) {
    throw RunFailure("the work to be kept has " + std::to_string(number) + " parts, at most 4294967295 are possible");
  }
  this->number(static_cast<std::uint32_t>(number));
}

std::string_view StoreReader::raw(std::size_t count) {
  if (count > left_.size()) fail("it is cut short");
  const std::string_view taken = left_.substr(0, count);
  left_.remove_prefix(count);
  return taken;
}

std::size_t StoreReader::count() {
  const auto number = this->number<std::uint32_t>();
  if (number > left_.size()) fail("it is cut short");
  return number;
}

void StoreReader::fail(const std::string& why) { throw RunFailure("the file of kept work is damaged: " + why); }

void store_kept(StoreWriter& out, const std::any& value, const ValueKind* kind) {
  out.number(kind == nullptr ? std::uint64_t{0} : kind->mark());
  if (kind != nullptr) kind->store(out, value);
}

std::any load_kept(StoreReader& in, const ValueKind* kind) {
  const auto mark = in.number<std::uint64_t>();
  if (mark != (kind == nullptr ? std::uint64_t{0} : kind->mark()))
    StoreReader::fail("it holds a value of another type");
  return kind == nullptr ? std::any() : kind->load(in);
}

}  // namespace zol
