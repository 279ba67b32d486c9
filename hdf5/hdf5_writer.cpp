#include "hdf5/hdf5_writer.h"

#include <hdf5.h>

#include <utility>

#include "core/atomic_file.h"
#include "core/run_failure.h"

namespace zol {

static_assert(std::is_same_v<hid_t, std::int64_t>);

namespace {

/// @returns the number of a file in memory that no disk has
hid_t make_in_memory() {
  constexpr std::size_t grows_by = std::size_t{1} << 20U;
  const Hdf5Handle access(H5Pcreate(H5P_FILE_ACCESS), [](std::int64_t id) { return H5Pclose(id); });
  (void)H5Pset_fapl_core(access.id(), grows_by, false);
  return H5Fcreate("in memory", H5F_ACC_TRUNC, H5P_DEFAULT, access.id());
}

}  // namespace

Hdf5Writer::Hdf5Writer()
    : file_(make_in_memory(), [](std::int64_t id) { return H5Fclose(id); }),
      links_(H5Pcreate(H5P_LINK_CREATE), [](std::int64_t id) { return H5Pclose(id); }) {
  (void)H5Pset_create_intermediate_group(links_.id(), 1);
  good_ = bool(file_);
}

std::optional<std::string> Hdf5Writer::bytes() {
  if (!good_ || H5Fflush(file_.id(), H5F_SCOPE_GLOBAL) < 0) return std::nullopt;
  const ssize_t size = H5Fget_file_image(file_.id(), nullptr, 0);
  if (size < 0) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size), '\0');
  if (H5Fget_file_image(file_.id(), bytes.data(), bytes.size()) != size) return std::nullopt;
  return bytes;
}

void Hdf5Writer::text(const std::string& place, const std::string& value) {
  const Hdf5Handle type(H5Tcopy(H5T_C_S1), [](std::int64_t id) { return H5Tclose(id); });
  (void)H5Tset_size(type.id(), H5T_VARIABLE);
  (void)H5Tset_cset(type.id(), H5T_CSET_UTF8);
  const char* held = value.c_str();
  put_as(place, type.id(), {1}, &held);
}

void Hdf5Writer::put(const std::string& place, Type type, const std::vector<std::uint64_t>& sides, const void* values) {
  const auto number = [type]() -> hid_t {
    switch (type) {
      case Type::f32:
        return H5T_NATIVE_FLOAT;
      case Type::f64:
        return H5T_NATIVE_DOUBLE;
      case Type::i8:
        return H5T_NATIVE_INT8;
      case Type::u8:
        return H5T_NATIVE_UINT8;
      case Type::i32:
        break;
    }
    return H5T_NATIVE_INT32;
  };
  put_as(place, number(), sides, values);
}

void Hdf5Writer::put_as(const std::string& place, std::int64_t type, const std::vector<std::uint64_t>& sides,
                        const void* values) {
  if (!good_) return;
  const std::vector<hsize_t> lengths(sides.begin(), sides.end());
  const Hdf5Handle space(H5Screate_simple(static_cast<int>(lengths.size()), lengths.data(), nullptr),
                         [](std::int64_t id) { return H5Sclose(id); });
  const Hdf5Handle dataset(
      H5Dcreate2(file_.id(), place.c_str(), type, space.id(), links_.id(), H5P_DEFAULT, H5P_DEFAULT),
      [](std::int64_t id) { return H5Dclose(id); });
  good_ = dataset && H5Dwrite(dataset.id(), type, H5S_ALL, H5S_ALL, H5P_DEFAULT, values) >= 0;
}

void write_hdf5(const std::string& path, const std::function<void(Hdf5Writer&)>& write) {
  AtomicFile file(path);
  std::optional<std::string> bytes;
  {
    Hdf5Writer out;
    write(out);
    bytes = out.bytes();
  }
  if (!bytes) throw RunFailure("cannot write " + path);
  file.contain(std::move(*bytes));
  file.commit();
}

}  // namespace zol
