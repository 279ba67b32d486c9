#include "core/numbers.h"

#include <gtest/gtest.h>

#include "core/available_memory.h"
#include "core/bounded_array.h"
#include "tests/test_files.h"

namespace zol {
namespace {

TEST(Rounding, GoesToTheEvenNumberAtAHalf) {
  for (const auto& [value, whole] :
       {std::pair{0.5, 0}, {1.5, 2}, {-0.5, 0}, {-1.5, -2}, {2.4999, 2}, {-32768.5, -32768}}) {
    EXPECT_EQ(Integer::rounded(value).value(), whole) << value;
  }
  EXPECT_EQ(Integer::floor(-0.25).value(), -1);
  EXPECT_EQ(Long::floor(2147483647.9).value(), 2147483647);
}

TEST(WholeNumbers, FailInsteadOfWrappingAround) {
  EXPECT_EQ((Integer(300) * Integer(109)).value(), 32700);
  EXPECT_THROW((void)(Integer(300) * Integer(110)), RunFailure);
  EXPECT_THROW((void)(-Integer(-32768)), RunFailure);
  EXPECT_THROW((void)Integer::rounded(32767.5), RunFailure);
  EXPECT_THROW((void)Integer::rounded(std::nan("")), RunFailure);
  EXPECT_THROW((void)Long::rounded(2147483648.0), RunFailure);
  EXPECT_THROW((void)(Long(2147483647) + Long(1)), RunFailure);
  EXPECT_TRUE(Integer(5) < 40000);  // a comparison is no conversion
}

TEST(CheckedSteps, NameWhatFailed) {
  EXPECT_THROW((void)to_single(1e39), RunFailure);
  EXPECT_THROW((void)to_single(std::nan("")), RunFailure);
  EXPECT_EQ(to_single(1e-60), 0.0F);
  EXPECT_EQ(failure_of([] { (void)divide(1.0, 0.0, "Dmin"); }), "division by zero: Dmin is 0");
  EXPECT_THROW((void)divide(1.0, std::nan(""), "x"), RunFailure);
  EXPECT_EQ(failure_of([] { (void)square_root(-0.5, "the radicand"); }),
            "square root of a negative number: the radicand is -.5");
}

TEST(BoundedArrays, CheckEveryIndex) {
  BoundedArray<Single> array("RefS");
  EXPECT_EQ(failure_of([&] { (void)array(0); }), "index 0 of RefS, which has not been allocated yet");
  array.allocate(3);
  array(3) = 2;
  EXPECT_EQ(failure_of([&] { (void)array(4); }), "index 4 of RefS is outside 0 to 3");
  EXPECT_THROW((void)array(-1), RunFailure);
  array.allocate(5);
  EXPECT_EQ(array(3), 0) << "a new allocation discards the contents";

  BoundedTable<Integer> table("BandHKL", 2, 2);
  table(1, 2) = 7;
  EXPECT_EQ(table(2, 0), 0) << "columns must not run into the next row";
  for (const auto& [row, column] : {std::pair{1, 3}, {3, 0}, {0, -1}}) {
    EXPECT_THROW((void)table(row, column), RunFailure) << row << ' ' << column;
  }
  EXPECT_EQ(failure_of([&] { table.allocate(-1, 2); }), "the last index of BandHKL would be -1, it must be 0 or more");
  EXPECT_TRUE(fails_with("not enough memory for BandHKL(0 to 2147483646): it takes 4194303 MB, there are ",
                         [&] { table.allocate(2147483646, 1023); }));
  EXPECT_EQ(table.upper_row(), -1);
}

// 8 GB free in a machine of which a control group may have 2 GB, less what it uses and can't give back.
TEST(AvailableMemory, IsTheLeastOfMachineAndControlGroups) {
  constexpr std::uint64_t kb = 1024;
  constexpr std::uint64_t gb = kb * kb * kb;
  const ScratchFolder root;
  EXPECT_EQ(available_memory(root.path("")), std::nullopt);
  root.write("proc/meminfo", "MemTotal:       16000000 kB\nMemAvailable:    8388608 kB\n");
  EXPECT_EQ(available_memory(root.path("")), 8 * gb);
  root.write("proc/self/cgroup", "3:cpu,memory:/a\n0::/user/work\n");
  root.write("sys/fs/cgroup/user/work/memory.max", "max\n");
  root.write("sys/fs/cgroup/user/memory.max", std::to_string(2 * gb));
  root.write("sys/fs/cgroup/user/memory.current", std::to_string(gb + 5 * kb));
  root.write("sys/fs/cgroup/user/memory.stat", "anon 1\ninactive_file 1024\n");
  EXPECT_EQ(available_memory(root.path("")), gb - 4 * kb) << "a group above";
  root.write("sys/fs/cgroup/memory/memory.limit_in_bytes", std::to_string(gb));
  root.write("sys/fs/cgroup/memory/memory.usage_in_bytes", std::to_string(2 * gb));
  EXPECT_EQ(available_memory(root.path("")), 0U) << "version 1, mounted at the group itself";
}

}  // namespace
}  // namespace zol
