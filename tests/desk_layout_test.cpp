// Places of windows on screens, as rectangles alone; worked out by hand.
#include "shell/desktop/desk_layout.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace zol {

namespace {

std::string text(const QRect& rect) {
  std::ostringstream out;
  out << rect.width() << 'x' << rect.height() << '+' << rect.x() << '+' << rect.y();
  return out.str();
}

const QRect laptop(0, 0, 1366, 768);
const QRect second(1366, 0, 1920, 1080);  // on the right of it

TEST(DeskLayout, KeptPlacesStandOnTheScreensThatAreThere) {
  struct Case {
    const char* what;
    QRect kept;
    std::vector<QRect> screens;
    const char* place;
  };
  for (const auto& [what, kept, screens, place] : {
           Case{"as it was", {100, 50, 700, 500}, {laptop}, "700x500+100+50"},
           {"on the second screen", {1500, 900, 300, 150}, {laptop, second}, "300x150+1500+900"},
           {"which is gone", {1500, 900, 300, 150}, {laptop}, "300x150+1066+618"},
           {"left of all", {-900, -200, 300, 150}, {laptop, second}, "300x150+0+0"},
           {"most of it on the second", {1266, 1000, 400, 200}, {laptop, second}, "400x200+1366+880"},
           {"larger than the screen", {1400, 100, 1800, 1000}, {laptop}, "1366x768+0+0"},
           {"below a bar at the top", {100, 0, 300, 150}, {{0, 30, 1366, 738}}, "300x150+100+30"},
       }) {
    EXPECT_EQ(text(on_screens(kept, screens)), place) << what;
  }
}

TEST(DeskLayout, AWindowComesUpBesideTheOneThatOpenedIt) {
  struct Case {
    const char* what;
    QSize size;
    QRect opener;
    std::vector<QRect> others;
    const char* place;
  };
  for (const auto& [what, size, opener, others, place] : {
           Case{"at the right", {600, 400}, {100, 100, 600, 500}, {}, "600x400+700+100"},
           {"at the left, where the right has no room", {600, 400}, {700, 100, 600, 500}, {}, "600x400+100+100"},
           {"below", {1300, 200}, {0, 0, 1300, 500}, {}, "1300x200+0+500"},
           {"at the left, where another stands at the right",
            {300, 400},
            {500, 100, 300, 500},
            {{800, 0, 500, 768}},
            "300x400+200+100"},
           {"no room: it covers least", {1000, 700}, {0, 0, 720, 400}, {}, "1000x700+366+0"},
           {"larger than the screen", {2000, 900}, {0, 0, 720, 400}, {}, "1366x768+0+0"},
       }) {
    EXPECT_EQ(text(beside(size, opener, others, laptop)), place) << what;
  }
}

TEST(DeskLayout, BothAWindowAndItsOpenerBecomeNarrowerWhereThatGivesRoom) {
  struct Case {
    const char* what;
    Narrowing opener, opened;
    std::string places;
  };
  for (const auto& [what, opener, opened, places] : {
           Case{"both are wide", {680, {0, 0, 1360, 700}}, {650, {0, 0, 1300, 720}}, "698x700+0+0 668x720+698+0"},
           {"the new one is small",
            {680, {0, 48, 1360, 720}},
            {200, {0, 0, 300, 200}},
            "1066x720+0+48 300x200+1066+48"},
           {"the opener stands in the middle",
            {600, {300, 0, 700, 400}},
            {300, {0, 0, 500, 300}},
            "700x400+166+0 500x300+866+0"},
           {"it stands at the right", {400, {800, 0, 566, 400}}, {300, {0, 0, 900, 300}}, "566x400+800+0 800x300+0+0"},
           {"a part stays covered", {680, {60, 0, 1300, 700}}, {1000, {0, 0, 1000, 700}}, "680x700+0+0 1000x700+366+0"},
           {"too wide", {1000, {0, 0, 1300, 400}}, {900, {0, 0, 900, 400}}, ""},
       }) {
    const auto found = both_beside(opener, opened, laptop);
    EXPECT_EQ(found ? text(found->opener) + ' ' + text(found->opened) : "", places) << what;
  }
}

TEST(DeskLayout, ArrangedWindowsStandSideBySideAsFarAsTheScreenGoes) {
  struct Case {
    const char* what;
    std::vector<QSize> least;
    std::vector<std::string> tiles;  ///< with the page before them
  };
  for (const auto& [what, least, tiles] : {
           Case{"none", {}, {}},
           {"the odd pixel goes to the last", {{100, 100}, {101, 100}}, {"0 682x768+0+0", "0 684x768+682+0"}},
           {"two rows, in order",
            {{700, 300}, {600, 200}, {700, 400}},
            {"0 733x334+0+0", "0 633x334+733+0", "0 1366x434+0+334"}},
           {"a second page behind, whose titles are seen",
            {{700, 600}, {700, 600}},
            {"0 1366x736+0+32", "1 1366x768+0+0"}},
           {"larger than the screen", {{3000, 3000}, {10, 10}}, {"0 1366x736+0+32", "1 1366x768+0+0"}},
       }) {
    std::vector<std::string> found;
    for (const Tile& tile : arranged(least, laptop))
      found.push_back(std::to_string(tile.page) + ' ' + text(tile.place));
    EXPECT_EQ(found, tiles) << what;
  }
}

TEST(DeskLayout, TheLastWindowGivesWay) {
  struct Case {
    const char* what;
    QSize last;
    std::vector<QSize> least;
    std::vector<std::string> tiles;
  };
  for (const auto& [what, last, least, tiles] : {
           Case{"alone", {700, 400}, {}, {"0 700x400+0+0"}},
           {"side by side", {600, 400}, {{700, 600}}, {"0 733x768+0+0", "0 600x400+733+0"}},
           {"behind two",
            {700, 400},
            {{683, 700}, {683, 600}},
            {"0 683x736+0+32", "0 683x736+683+32", "1 700x400+0+0"}},
           {"behind two pages",
            {700, 400},
            {{700, 700}, {700, 600}},
            {"0 1366x704+0+64", "1 1366x736+0+32", "2 700x400+0+0"}},
       }) {
    std::vector<std::string> found;
    for (const Tile& tile : arranged_before(last, least, laptop))
      found.push_back(std::to_string(tile.page) + ' ' + text(tile.place));
    EXPECT_EQ(found, tiles) << what;
  }
}

// All sets of up to seven windows out of five sizes, in the order of counting.
TEST(DeskLayout, ArrangedWindowsNeverOverlapAndStayOnTheScreen) {
  const std::vector<QSize> sizes{{250, 180}, {683, 384}, {420, 700}, {1366, 100}, {901, 500}};
  for (unsigned number = 1; number < 78125; number += 7) {  // 5^7
    std::vector<QSize> least;
    for (unsigned left = number; left > 0; left /= 5) least.push_back(sizes[left % 5]);
    const auto tiles = arranged(least, laptop);
    ASSERT_EQ(tiles.size(), least.size());
    for (std::size_t i = 0; i < tiles.size(); ++i) {
      const auto& [place, page] = tiles[i];
      ASSERT_TRUE(laptop.contains(place)) << number;
      ASSERT_TRUE(place.width() >= least[i].width()) << number;
      ASSERT_TRUE(i == 0 || page > tiles[i - 1].page || place.y() > tiles[i - 1].place.y() ||
                  place.x() > tiles[i - 1].place.x())
          << number << ": out of order";
      for (std::size_t k = 0; k < i; ++k) {
        ASSERT_FALSE(tiles[k].page == page && tiles[k].place.intersects(place)) << number;
      }
    }
  }
}

}  // namespace
}  // namespace zol
