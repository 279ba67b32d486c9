#include "core/numbers.h"

#include <gtest/gtest.h>

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

TEST(Singles, FailAboveTheirRange) {
  EXPECT_THROW((void)to_single(1e39), RunFailure);
  EXPECT_THROW((void)to_single(std::nan("")), RunFailure);
  EXPECT_EQ(to_single(1e-60), 0.0F);
}

TEST(CheckedSteps, NameWhatFailed) {
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
  EXPECT_THROW(table.allocate(-1, 2), RunFailure);
}

}  // namespace
}  // namespace zol
