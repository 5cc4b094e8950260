// Where the deck opens, for screens and panels of every kind.
#include "apps/DeckPlace.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

using Layer = DeckPlace::Layer;

const DeckSizes Sizes{{950, 800}, 780, 190};
const QRect Wide(0, 0, 1920, 1080);

// By the lesser side of what sticks out.
int FreeEdge(const QRect& one, const QRect& other) {
    return std::max({one.right() - other.right(), other.left() - one.left(), one.bottom() - other.bottom(),
                     other.top() - one.top()});
}

TEST(FindDeckPlaceTest, ItStandsOnThePanelsRightWhereThereIsRoom) {
    const DeckPlace place = FindDeckPlace({0, 0, 940, 480}, Wide, Sizes);
    EXPECT_EQ(place.Frame, QRect(956, 0, 950, 800));
    EXPECT_EQ(place.Where, Layer::Beside);
}

TEST(FindDeckPlaceTest, ElseOnItsLeft) {
    const DeckPlace place = FindDeckPlace({980, 100, 940, 480}, Wide, Sizes);
    EXPECT_EQ(place.Frame, QRect(14, 100, 950, 800));
    EXPECT_EQ(place.Where, Layer::Beside);
}

TEST(FindDeckPlaceTest, ItIsNarrowerBeforeItLiesUnderThePanel) {
    const DeckPlace place = FindDeckPlace({0, 0, 1100, 480}, Wide, Sizes);
    EXPECT_EQ(place.Frame, QRect(1116, 0, 804, 800));
    EXPECT_EQ(place.Where, Layer::Beside);
}

TEST(FindDeckPlaceTest, ALowPanelDoesNotPushItOffTheScreen) {
    EXPECT_EQ(FindDeckPlace({0, 600, 940, 480}, Wide, Sizes).Frame.bottom(), 1079);
}

TEST(FindDeckPlaceTest, WithoutRoomBesideItComesBeforeThePanelsPagesAndLeavesTheList) {
    const QRect panel(0, 0, 970, 480);
    const DeckPlace place = FindDeckPlace(panel, {0, 0, 1280, 900}, Sizes);
    EXPECT_EQ(place.Where, Layer::BeforePanel);
    EXPECT_GE(place.Frame.left(), 190);
}

TEST(FindDeckPlaceTest, WhereItWouldHideTheListItLiesBehindWithItsEdgeFree) {
    const QRect panel(366, 0, 1000, 480);
    const DeckPlace place = FindDeckPlace(panel, {0, 0, 1366, 768}, Sizes);
    EXPECT_EQ(place.Where, Layer::BehindPanel);
    EXPECT_GE(FreeEdge(place.Frame, panel), 48);
}

TEST(FindDeckPlaceTest, WhereThePanelFillsTheScreenItComesBeforeItAndLeavesItsEdge) {
    const QRect room(0, 0, 910, 512);
    const QRect panel(0, 0, 896, 500);
    const DeckPlace place = FindDeckPlace(panel, room, Sizes);
    EXPECT_EQ(place.Where, Layer::BeforePanel);
    EXPECT_TRUE(room.contains(place.Frame));
    EXPECT_GE(FreeEdge(panel, place.Frame), 34);
}

TEST(FindDeckPlaceTest, ItStaysOnTheScreenAndNeitherHidesTheOther) {
    for (const QRect& room :
         {QRect(0, 0, 1024, 768), QRect(0, 0, 910, 512), QRect(1280, 0, 1280, 1024), QRect(0, 30, 960, 510)}) {
        for (int left = 0; left < room.width(); left += 90) {
            for (int top = 0; top < room.height(); top += 70) {
                const QRect panel = QRect(room.left() + left, room.top() + top, 640, 400) & room;
                const DeckPlace place = FindDeckPlace(panel, room, Sizes);
                EXPECT_TRUE(room.contains(place.Frame));
                if (place.Where != Layer::BeforePanel) {
                    EXPECT_GE(FreeEdge(place.Frame, panel), 48);
                }
                if (place.Where != Layer::BehindPanel) {
                    EXPECT_GE(FreeEdge(panel, place.Frame), 1);
                }
            }
        }
    }
}

TEST(FindDeckPlaceTest, ItKeepsClearOfTheIconsStandIn) {
    const QRect standIn(1400, 1000, 500, 60);
    const DeckPlace place = FindDeckPlace({0, 600, 940, 480}, Wide, Sizes, standIn);
    EXPECT_FALSE(place.Frame.intersects(standIn));
    EXPECT_EQ(FindDeckPlace({0, 0, 940, 480}, Wide, Sizes, standIn).Frame, QRect(956, 0, 950, 800));
}

}  // namespace
}  // namespace orvelle
