// Thousands of pictures in a row, in several threads: behind the first picture indexing asks for no memory, and what it
// finds does not depend on what the other threads do.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <random>
#include <thread>

#include "indexing/pattern_indexer.h"

namespace {
std::atomic<long> allocations{0};
}  // namespace

// The pair that counts. GCC takes the two for a mismatch where it sees one of them inlined.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
// NOLINTBEGIN(cppcoreguidelines-no-malloc,hicpp-no-malloc)
void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t& /*no throw*/) noexcept {
  ++allocations;
  return std::malloc(size);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
// NOLINTEND(cppcoreguidelines-no-malloc,hicpp-no-malloc)

namespace zol {
namespace {

constexpr int size = 96;
constexpr PatternCentre centre{0.5, 0.5, 0.6};

CrystalModel nickel() {
  const Lattice lattice({3.52, 3.52, 3.52, 90, 90, 90});
  const std::array<std::array<std::array<double, 3>, 3>, 3> generators{{{{{0, 1, 0}, {0, 0, 1}, {1, 0, 0}}},
                                                                        {{{0, -1, 0}, {1, 0, 0}, {0, 0, 1}}},
                                                                        {{{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}}}}};
  auto group = proper_rotations(lattice, generators);
  for (std::size_t i = 0; i < group.size(); ++i) {
    for (std::size_t k = 0; k < 3; ++k) {
      const Rotation product = group[i] * group[k + 1];
      const auto known = [&product](const Rotation& rotation) { return (rotation - product).norm() < 0.1; };
      if (std::none_of(group.begin(), group.end(), known)) group.push_back(product);
    }
  }
  EXPECT_EQ(group.size(), 24U);
  const std::vector<ListedReflection> reflections{{{1, 1, 1}, 134}, {{2, 0, 0}, 102}, {{2, 2, 0}, 49}, {{3, 1, 1}, 33}};
  QuietTask task;
  auto set = make_reflectors(lattice, group, reflections, 0.0859, task);
  auto used = voting_families(set, 6);
  return make_crystal_model("Ni", std::move(set), std::move(used), nullptr, task);
}

TEST(IndexingMemory, IsAskedForOnceAndSharedByNoThread) {
  const CrystalModel model = nickel();
  const std::array<const CrystalModel*, 1> models{&model};
  std::mt19937 random(3);
  std::normal_distribution<double> normal;
  std::vector<std::vector<float>> pictures(8);
  for (auto& picture : pictures) {
    const Rotation orientation = rotation_of(Vector3(normal(random), normal(random), normal(random)));
    draw_bands(*model.sphere, orientation, {centre, size}, size, size, picture);
    for (float& value : picture) value += static_cast<float>(normal(random));
  }
  const auto index = [&](PatternIndexer& indexer, std::size_t i) {
    return indexer.index({pictures[i], size, size}, centre, models, {}).front().crystal_from_picture;
  };
  PatternIndexer alone;
  std::vector<Rotation> found;
  for (std::size_t i = 0; i < pictures.size(); ++i) found.push_back(index(alone, i));

  const long before = allocations;
  for (std::size_t i = 0; i < pictures.size(); ++i) EXPECT_EQ(index(alone, i), found[i]);
  EXPECT_EQ(allocations - before, 0);

  std::array<std::vector<Rotation>, 2> together;
  std::vector<std::thread> threads;
  threads.reserve(together.size());
  for (auto& own : together) {
    threads.emplace_back([&] {
      PatternIndexer indexer;
      for (std::size_t i = 0; i < pictures.size(); ++i) own.push_back(index(indexer, i));
    });
  }
  for (auto& thread : threads) thread.join();
  for (const auto& own : together) EXPECT_EQ(own, found);
}

}  // namespace
}  // namespace zol
