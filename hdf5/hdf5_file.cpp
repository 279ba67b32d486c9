#include "hdf5/hdf5_file.h"

#include <hdf5.h>

#include <algorithm>
#include <cstring>
#include <iterator>

#include "core/run_failure.h"
#include "core/trimmed.h"
#include "hdf5/lzf.h"

namespace zol {
namespace {

static_assert(sizeof(hid_t) == sizeof(std::int64_t));

constexpr std::uint64_t most_numbers = std::uint64_t{1} << 28U;

Hdf5Handle file_handle(const std::string& path) {
  (void)H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);  // it is told by what is thrown
  register_lzf_filter();
  return {H5Fopen(path.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), [](std::int64_t id) { return H5Fclose(id); }};
}

Hdf5Handle space_of(const Hdf5Handle& dataset) {
  return {H5Dget_space(dataset.id()), [](std::int64_t id) { return H5Sclose(id); }};
}

Hdf5Handle type_of(const Hdf5Handle& dataset) {
  return {H5Dget_type(dataset.id()), [](std::int64_t id) { return H5Tclose(id); }};
}

herr_t add_name(hid_t /*group*/, const char* name, const H5L_info_t* /*info*/, void* names) {
  static_cast<std::vector<std::string>*>(names)->emplace_back(name);
  return 0;
}

/// As the file has them.
std::vector<std::string> raw_names(std::int64_t file, const std::string& group) {
  std::vector<std::string> names;
  const Hdf5Handle opened(H5Gopen2(file, group.empty() ? "/" : group.c_str(), H5P_DEFAULT),
                          [](std::int64_t id) { return H5Gclose(id); });
  if (opened) (void)H5Literate(opened.id(), H5_INDEX_NAME, H5_ITER_INC, nullptr, add_name, &names);
  return names;
}

}  // namespace

Hdf5File::Hdf5File(const std::string& path) : path_(path), file_(file_handle(path)) {
  if (!file_) throw RunFailure("cannot read " + path + ": it is not an HDF5 file, or it is damaged");
}

std::string Hdf5File::real_path(const std::string& place) const {
  std::string real;
  std::size_t at = 0;
  while (at <= place.size()) {
    const std::size_t end = std::min(place.find('/', at), place.size());
    const std::string name = place.substr(at, end - at);
    at = end + 1;
    if (name.empty()) continue;
    const std::string straight = real.empty() ? name : real + '/' + name;
    if (H5Lexists(file_.id(), straight.c_str(), H5P_DEFAULT) > 0) {
      real = straight;
      continue;
    }
    const auto names = raw_names(file_.id(), real);
    const auto found =
        std::find_if(names.begin(), names.end(), [&name](const std::string& one) { return trimmed(one) == name; });
    if (found == names.end()) return "";
    real = real.empty() ? *found : real + '/' + *found;
  }
  return real;
}

Hdf5Handle Hdf5File::open_dataset(const std::string& dataset) const {
  const std::string real = real_path(dataset);
  return {real.empty() ? -1 : H5Dopen2(file_.id(), real.c_str(), H5P_DEFAULT),
          [](std::int64_t id) { return H5Dclose(id); }};
}

std::vector<std::string> Hdf5File::names(const std::string& group) const {
  const std::string real = real_path(group);
  if (real.empty() && !group.empty()) return {};
  std::vector<std::string> names = raw_names(file_.id(), real);
  for (auto& name : names) name = std::string(trimmed(name));
  return names;
}

std::vector<std::uint64_t> Hdf5File::sides(const std::string& dataset) const {
  const auto opened = open_dataset(dataset);
  if (!opened) return {};
  const auto space = space_of(opened);
  const int rank = H5Sget_simple_extent_ndims(space.id());
  if (rank <= 0) return {};
  std::vector<hsize_t> sides(static_cast<std::size_t>(rank));
  (void)H5Sget_simple_extent_dims(space.id(), sides.data(), nullptr);
  return {sides.begin(), sides.end()};
}

int Hdf5File::bits(const std::string& dataset) const {
  const auto opened = open_dataset(dataset);
  if (!opened) return 0;
  const auto type = type_of(opened);
  const auto kind = H5Tget_class(type.id());
  return kind == H5T_INTEGER || kind == H5T_FLOAT ? static_cast<int>(8 * H5Tget_size(type.id())) : 0;
}

bool Hdf5File::holds_whole_numbers(const std::string& dataset) const {
  const auto opened = open_dataset(dataset);
  return opened && H5Tget_class(type_of(opened).id()) == H5T_INTEGER;
}

std::vector<double> Hdf5File::numbers(const std::string& dataset) const {
  if (bits(dataset) == 0) return {};
  const auto opened = open_dataset(dataset);
  const auto space = space_of(opened);
  const auto count = H5Sget_simple_extent_npoints(space.id());
  if (count <= 0 || static_cast<std::uint64_t>(count) > most_numbers) return {};
  std::vector<double> values(static_cast<std::size_t>(count));
  if (H5Dread(opened.id(), H5T_NATIVE_DOUBLE, H5S_ALL, H5S_ALL, H5P_DEFAULT, values.data()) < 0) return {};
  return values;
}

std::optional<double> Hdf5File::number(const std::string& dataset) const {
  const auto values = numbers(dataset);
  if (values.empty()) return std::nullopt;
  return values.front();
}

std::string Hdf5File::text(const std::string& dataset) const {
  const auto opened = open_dataset(dataset);
  if (!opened) return "";
  const auto type = type_of(opened);
  if (H5Tget_class(type.id()) != H5T_STRING) return "";
  const auto space = space_of(opened);
  if (H5Sget_simple_extent_npoints(space.id()) != 1) return "";
  if (H5Tis_variable_str(type.id()) > 0) {
    char* held = nullptr;
    if (H5Dread(opened.id(), type.id(), H5S_ALL, H5S_ALL, H5P_DEFAULT, &held) < 0 || held == nullptr) return "";
    std::string text(held);
    (void)H5Dvlen_reclaim(type.id(), space.id(), H5P_DEFAULT, &held);
    return std::string(trimmed(text));
  }
  std::string text(H5Tget_size(type.id()), '\0');
  if (H5Dread(opened.id(), type.id(), H5S_ALL, H5S_ALL, H5P_DEFAULT, text.data()) < 0) return "";
  return std::string(trimmed(std::string_view(text).substr(0, text.find('\0'))));
}

bool Hdf5File::read_entries(const std::string& dataset, std::uint64_t first, std::uint64_t count,
                            std::span<float> values) const {
  const auto opened = open_dataset(dataset);
  if (!opened) return false;
  const auto space = space_of(opened);
  const int rank = H5Sget_simple_extent_ndims(space.id());
  if (rank <= 0) return false;
  std::vector<hsize_t> length(static_cast<std::size_t>(rank));
  (void)H5Sget_simple_extent_dims(space.id(), length.data(), nullptr);
  std::vector<hsize_t> begin(length.size(), 0);
  if (first > length[0] || count > length[0] - first) return false;
  begin[0] = first;
  length[0] = count;
  hsize_t all = 1;
  for (const hsize_t side : length) all *= side;
  if (all != values.size()) return false;
  if (H5Sselect_hyperslab(space.id(), H5S_SELECT_SET, begin.data(), nullptr, length.data(), nullptr) < 0) return false;
  // A place in memory of the same shape: the library then copies whole runs.
  const Hdf5Handle memory(H5Screate_simple(rank, length.data(), nullptr), [](std::int64_t id) { return H5Sclose(id); });
  return H5Dread(opened.id(), H5T_NATIVE_FLOAT, memory.id(), space.id(), H5P_DEFAULT, values.data()) >= 0;
}

}  // namespace zol
