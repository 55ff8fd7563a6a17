#include "platform/forms/scroll_track.h"

#include <gtest/gtest.h>

namespace orvendal::testing {
namespace {

using Direction = ScrollTrack::Direction;
using Part = ScrollTrack::Part;

constexpr double kArrow = 200;
const Rect kUpright{100, 50, 240, 2400};

TEST(ScrollTrackTest, TheThumbIsAsLongAsThePartThatShowsAndStandsForThePosition) {
  EXPECT_EQ(ScrollTrack(kUpright, Direction::kVertical, kArrow, {0, 10, 0.25}).Thumb(),
            (Rect{100, 250, 240, 500}));
  EXPECT_EQ(ScrollTrack(kUpright, Direction::kVertical, kArrow, {10, 10, 0.25}).Thumb(),
            (Rect{100, 1750, 240, 500}));
  EXPECT_EQ(ScrollTrack({100, 50, 2400, 240}, Direction::kHorizontal, kArrow, {5, 10, 0.25}).Thumb(),
            (Rect{1050, 50, 500, 240}));
}

TEST(ScrollTrackTest, AThumbOfALongListIsStillLongEnoughForAHand) {
  const ScrollTrack track(kUpright, Direction::kVertical, kArrow, {0, 100000, 0.0001});
  EXPECT_EQ(track.Thumb().height, ScrollTrack::kShortestThumb);
}

TEST(ScrollTrackTest, OnABarShorterThanItsArrowsEachTakesHalf) {
  const ScrollTrack track({0, 0, 240, 300}, Direction::kVertical, kArrow, {0, 10, 0.5});
  EXPECT_EQ(track.TrackLength(), 0);
  EXPECT_EQ(track.PartAt({10, 149}), Part::kBackArrow);
  EXPECT_EQ(track.PartAt({10, 150}), Part::kForwardArrow);
  EXPECT_EQ(track.DraggedTo({10, 100}, 0), std::nullopt);
}

TEST(ScrollTrackTest, APlaceTellsItsPart) {
  const ScrollTrack track(kUpright, Direction::kVertical, kArrow, {5, 10, 0.25});  // thumb from 1000 to 1500
  EXPECT_EQ(track.PartAt({200, 50}), Part::kBackArrow);
  EXPECT_EQ(track.PartAt({200, 251}), Part::kBeforeThumb);
  EXPECT_EQ(track.PartAt({200, 1001}), Part::kThumb);
  EXPECT_EQ(track.PartAt({200, 1501}), Part::kBehindThumb);
  EXPECT_EQ(track.PartAt({200, 2251}), Part::kForwardArrow);
}

TEST(ScrollTrackTest, WithoutAThumbTheTrackIsAllBehindIt) {
  ScrollTrack track(kUpright, Direction::kVertical, kArrow, {0, 0, 1});
  track.RemoveThumb();
  EXPECT_TRUE(track.Thumb().IsEmpty());
  EXPECT_EQ(track.PartAt({200, 260}), Part::kBehindThumb);
}

TEST(ScrollTrackTest, ADraggedThumbFollowsTheHandFromWhereItWasTakenAndStopsAtTheEnds) {
  const ScrollTrack track(kUpright, Direction::kVertical, kArrow, {0, 10, 0.25});
  const double grip = track.GripAt({200, 350});
  EXPECT_EQ(grip, 100);
  EXPECT_EQ(track.DraggedTo({200, 350}, grip), 0.0);
  EXPECT_EQ(track.DraggedTo({200, 1100}, grip), 0.5);
  EXPECT_EQ(track.DraggedTo({200, 1850}, grip), 1.0);
  EXPECT_EQ(track.DraggedTo({200, 9000}, grip), 1.0);
  EXPECT_EQ(track.DraggedTo({200, -9000}, grip), 0.0);
}

}  // namespace
}  // namespace orvendal::testing
