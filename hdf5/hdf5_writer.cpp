#include "hdf5/hdf5_writer.h"

#include <hdf5.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "core/run_failure.h"

namespace zol {

static_assert(std::is_same_v<hid_t, std::int64_t>);

Hdf5Writer::Hdf5Writer(const std::string& path)
    : file_(H5Fcreate(path.c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, H5P_DEFAULT),
            [](std::int64_t id) { return H5Fclose(id); }),
      links_(H5Pcreate(H5P_LINK_CREATE), [](std::int64_t id) { return H5Pclose(id); }) {
  (void)H5Pset_create_intermediate_group(links_.id(), 1);
  good_ = bool(file_);
}

bool Hdf5Writer::flush() { return good_ && H5Fflush(file_.id(), H5F_SCOPE_GLOBAL) >= 0; }

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
  // The library writes the file itself: beside its place first, so that no half one stands there.
  const std::string beside = path + ".part-" + std::to_string(getpid());
  bool good = false;
  {
    Hdf5Writer out(beside);
    write(out);
    good = out.flush();
  }
  std::error_code error;
  if (good) std::filesystem::rename(beside, path, error);
  if (!good || error) {
    std::filesystem::remove(beside, error);
    throw RunFailure("cannot write " + path);
  }
}

}  // namespace zol
