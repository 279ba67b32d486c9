#include "powder/diffractometer_file.h"

#include <locale.h>  // NOLINT(modernize-deprecated-headers): uselocale
#include <xylib/xylib.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <cmath>
#include <exception>
#include <filesystem>
#include <memory>
#include <string_view>

#include "core/run_failure.h"

namespace zol {
namespace {

struct Kind {
  std::string_view ending;
  const char* format;  ///< as the library calls it
  std::string_view beginning;
  const char* expected;
};
constexpr std::array<Kind, 6> kinds{{
    {".xrdml", "xrdml", "", "an XRDML file"},
    {".raw", "bruker_raw", "RAW", "a Bruker .raw file, which begins with RAW"},
    {".rd", "philips_rd", "", "a Philips .rd file"},
    {".udf", "philips_udf", "", "a Philips .udf file"},
    {".uxd", "uxd", "", "a Siemens or Bruker .uxd file"},
    {".cpi", "cpi", "", "a Sietronics .cpi file"},
}};

std::string ending_of(const std::string& path) {
  std::string ending = std::filesystem::path(path).extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return ending;
}

const Kind* kind_of(const std::string& path) {
  const std::string ending = ending_of(path);
  const auto* found =
      std::find_if(kinds.begin(), kinds.end(), [&ending](const Kind& kind) { return kind.ending == ending; });
  return found == kinds.end() ? nullptr : found;
}

/// The library reads numbers by the locale of the thread: decimal points as long as this lives.
class PointLocale {
 public:
  PointLocale() : points_(newlocale(LC_NUMERIC_MASK, "C", nullptr)), before_(uselocale(points_)) {}
  PointLocale(const PointLocale&) = delete;
  PointLocale& operator=(const PointLocale&) = delete;
  ~PointLocale() {
    uselocale(before_);
    freelocale(points_);
  }

 private:
  locale_t points_, before_;
};

const xylib::Block& longest_block(const xylib::DataSet& data) {
  const xylib::Block* longest = nullptr;
  for (int i = 0; i < data.get_block_count(); ++i) {
    const auto* block = data.get_block(i);
    if (block->get_column_count() < 2) continue;
    if (longest == nullptr || block->get_point_count() > longest->get_point_count()) longest = block;
  }
  if (longest == nullptr) throw xylib::FormatError("it has no scan with two columns");
  return *longest;
}

}  // namespace

bool is_diffractometer_file(const std::string& path) { return kind_of(path) != nullptr; }

MeasuredCurve diffractometer_curve(const std::string& bytes, const std::string& path) {
  const Kind& kind = *kind_of(path);
  const std::string name = std::filesystem::path(path).filename().string();
  const std::string expected = ", expected is " + std::string(kind.expected);
  if (bytes.substr(0, kind.beginning.size()) != kind.beginning) {
    throw RunFailure(name + " begins with other bytes" + expected);
  }
  try {
    const PointLocale points;
    const std::unique_ptr<xylib::DataSet> data(xylib::load_string(bytes, kind.format));
    const xylib::Block& block = longest_block(*data);
    MeasuredCurve curve{name, {}};
    const int count = block.get_point_count();
    auto& list = curve.points.own();
    for (int i = 0; i < count; ++i) {
      list.push_back({block.get_column(1).get_value(i), block.get_column(2).get_value(i), 0});
    }
    return curve;
  } catch (const std::exception& failure) {  // also no memory for what a broken file tells
    throw RunFailure(name + ": " + failure.what() + expected);
  }
}

}  // namespace zol
