#include "platform/views/Laid.hpp"
#include "platform/views/faces/FaceParts.hpp"
#include "platform/views/scene/Card.hpp"
#include "platform/views/scene/SceneJSON.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace views {
namespace {

using MakeFace = std::function<View(Frames&)>;

const std::vector<std::string> profiles{"Plano", "Noche", "Voz", "Un perfil de nombre largo"};

/// Writes the scene, which fails where a number is not finite.
void expectFinite(const Scene& scene) {
    foundation::Encoder encoder;
    EXPECT_NO_THROW(encoder.encodeObject([&] { encodeMembers(encoder, scene); }));
}

/// Every width from 0 to 400 and the frames of a row in it: the row's own, then its children's.
void forRowsOfAllWidths(const MakeFace& make,
                        const std::function<void(double, const Rect&, Frames)>& check) {
    for (double width = 0; width <= 400 && !::testing::Test::HasFailure(); width += 0.5) {
        SCOPED_TRACE(width);
        Frames frames;
        const View row = make(frames);
        expectFinite(drawn(row, {width, 60}));
        const Rect whole = frames.at(0);
        EXPECT_EQ(whole.size(), sizeOf(row, {width, 60}));
        frames.erase(frames.begin());
        check(width, whole, frames);
    }
}

void expectRowOfGaps(const Rect& whole, const Frames& children, double gap) {
    ASSERT_FALSE(children.empty());
    double end = whole.x - gap;
    double top = infinity;
    double bottom = -infinity;
    for (const Rect& child : children) {
        EXPECT_NEAR(child.x, end + gap, 1e-9);
        EXPECT_GE(child.width, 0);
        end = child.right();
        top = std::min(top, child.y);
        bottom = std::max(bottom, child.bottom());
    }
    EXPECT_NEAR(end, whole.right(), 1e-9);
    EXPECT_NEAR(top, whole.y, 1e-9);
    EXPECT_NEAR(bottom, whole.bottom(), 1e-9);
}

TEST(VolumeRow, GivesTheBarWhatTheOthersLeave) {
    const auto make = [](Frames& frames) { return volumeRow("Reproductor de música", frames); };
    forRowsOfAllWidths(make, [](double width, const Rect& whole, const Frames& children) {
        constexpr double others = 70 + 22 + 22 + 36 + 26 + 5 * volumeRowGap;
        ASSERT_EQ(children.size(), 6u);
        expectRowOfGaps(whole, children, volumeRowGap);
        EXPECT_EQ(whole.width, std::max(width, others));
        EXPECT_NEAR(children[2].width, std::max(width - others, 0.0), 1e-9);
        EXPECT_EQ(whole.height, 22);
    });
}

TEST(VolumeRow, HasTenEqualSegmentsThatCoverTheBar) {
    for (double width = 220; width <= 400; width += 0.5) {
        Frames frames;
        const Scene scene = drawn(volumeRow("Reproductor", frames), {width, 60});
        ASSERT_EQ(scene.controls.size(), 12u);
        const Rect bar = frames.at(3);
        for (std::size_t i = 0; i < 10; ++i) {
            const Rect& segment = scene.controls[i + 1].frame;
            EXPECT_EQ(scene.controls[i + 1].action.identifier, std::to_string(i + 1));
            EXPECT_NEAR(segment.x, bar.x + bar.width * static_cast<double>(i) / 10, 1e-9);
            EXPECT_NEAR(segment.width, bar.width / 10, 1e-9);
            EXPECT_EQ(segment.height, 16);
        }
    }
}

TEST(VolumeFace, GrowsByOneRowAndOneGap) {
    for (int rows = 0; rows <= 20; ++rows) {
        Frames frames;
        EXPECT_EQ(sizeOf(volumeFace(rows, frames), {340, 146}), (Size{340, 35.0 + 31 * rows}));
    }
}

TEST(VolumeFace, ThatIsTooHighSticksOutOfTheCardOnBothSides) {
    Frames frames;
    const Card card{.size = {364, 170}, .margin = 12};
    const Scene scene = layOut(volumeFace(6, frames), card, support::FixedTextMeasurer());
    EXPECT_EQ(frames.front(), (Rect{12, 85 - 221.0 / 2 + 22, 340, 22}));
    EXPECT_EQ(frames[7 * 5].bottom(), 85 + 221.0 / 2 - 22);
    EXPECT_FALSE(scene.drawing.empty());
    expectFinite(scene);
}

TEST(TileRow, HasTilesOfEqualWidth) {
    for (std::size_t count = 1; count <= profiles.size(); ++count) {
        const std::vector<std::string> names(profiles.begin(),
                                             profiles.begin() + static_cast<std::ptrdiff_t>(count));
        const auto make = [&](Frames& frames) { return tileRow(names, frames); };
        forRowsOfAllWidths(make, [&](double width, const Rect& whole, const Frames& children) {
            ASSERT_EQ(children.size(), count);
            expectRowOfGaps(whole, children, tileGap);
            const double gaps = tileGap * static_cast<double>(count - 1);
            const double share = std::max((width - gaps) / static_cast<double>(count), 34.0);
            for (const Rect& tile : children) {
                EXPECT_NEAR(tile.width, share, 1e-9);
                EXPECT_EQ(tile.height, 44);
            }
        });
    }
}

TEST(TileRow, WithoutTilesIsNothing) {
    Frames frames;
    EXPECT_EQ(sizeOf(tileRow({}, frames).padding(Edge::top, 12), {316, 90}), (Size{0, 12}));
}

TEST(SwitchRow, HasThePillAtOneEndAndTheNoteAtTheOther) {
    const auto make = [](Frames& frames) { return switchRow("se aplica sin abrir Nurva", frames); };
    forRowsOfAllWidths(make, [](double width, const Rect& whole, const Frames& children) {
        ASSERT_EQ(children.size(), 2u);
        EXPECT_EQ(children[0].x, whole.x);
        EXPECT_GE(children[1].x - children[0].right(), 2 * switchRowGap - 1e-9);
        EXPECT_NEAR(children[1].right(), whole.right(), 1e-9);
        EXPECT_GE(whole.width, width);
        EXPECT_LE(whole.width, std::max(width, 12 + 7 + 6 + 12 + 2 * switchRowGap));
    });
}

TEST(ValueRow, HasItsTextsOnOneBaseline) {
    const auto make = [](Frames& frames) { return valueRow("±12,4", frames); };
    forRowsOfAllWidths(make, [](double, const Rect& whole, const Frames& children) {
        ASSERT_EQ(children.size(), 2u);
        expectRowOfGaps(whole, children, valueRowGap);
        EXPECT_EQ(children[0].y + 25, children[1].y + 11);
    });
}

/// Frames of a column's children do not overlap, and the column begins and ends with them.
void expectColumn(const Rect& whole, const Frames& children) {
    double end = whole.y;
    double right = whole.x;
    for (const Rect& child : children) {
        EXPECT_GE(child.y, end - 1e-9);
        EXPECT_EQ(child.x, whole.x);
        EXPECT_GE(child.height, 0);
        end = child.bottom();
        right = std::max(right, child.right());
    }
    EXPECT_EQ(children.front().y, whole.y);
    EXPECT_NEAR(end, whole.bottom(), 1e-9);
    EXPECT_NEAR(right, whole.right(), 1e-9);
}

TEST(Columns, NeverOverlapInAnyWidthOrHeight) {
    const std::pair<std::size_t, MakeFace> faces[] = {
        {5, [](Frames& f) { return currentProfileFace("Son más de las diez de la noche", f); }},
        {4, [](Frames& f) { return currentProfileFace("", f); }},
        {6, [](Frames& f) { return roomFace("Interfaz de audio externa del estudio", f); }},
    };
    for (const auto& [count, make] : faces)
        for (double width = 0; width <= 400; width += 8)
            for (double height = 0; height <= 400; height += 10) {
                SCOPED_TRACE(::testing::Message() << width << " x " << height);
                Frames frames;
                const View face = make(frames);
                expectFinite(drawn(face, {width, height}));
                ASSERT_EQ(frames.size(), count + 1);
                EXPECT_EQ(frames[0].size(), sizeOf(face, {width, height}));
                expectColumn(frames[0], Frames(frames.begin() + 1, frames.end()));
            }
}

TEST(CurrentProfileFace, WithAReasonOfTwoLinesNeedsALittleLessThanASmallCard) {
    Frames frames;
    const View face = currentProfileFace("Son más de las diez de la noche", frames);
    EXPECT_EQ(sizeOf(face, {146, 0}).height, 139 - 14);
    EXPECT_EQ(sizeOf(face, {146, 139}).height, 139);
    drawn(face, {146, 146});
    EXPECT_EQ(frames.at(0), (Rect{0, 0, 146, 146}));
    EXPECT_EQ(frames.at(1), (Rect{0, 0, 146, 11}));
    EXPECT_EQ(frames.at(2), (Rect{0, 11, 146, 54}));
    EXPECT_EQ(frames.at(3).y, 146 - 17 - 28 - 23);
    EXPECT_EQ(frames.at(4).y, 146 - 17 - 28);
    EXPECT_EQ(frames.at(4).height, 28);
    EXPECT_EQ(frames.at(5).bottom(), 146);
}

TEST(Faces, AnswerByTheOfferAlone) {
    Frames frames;
    const View faces[] = {
        volumeRow("Reproductor", frames),
        currentProfileFace("Son más de las diez", frames),
        tileRow(profiles, frames),
        switchRow("solo muestra", frames),
        valueRow("±12,4", frames),
        roomFace("Altavoces", frames),
        volumeFace(4, frames),
    };
    const support::FixedTextMeasurer measurer;
    for (const View& face : faces) {
        LayoutContext shared(measurer, 2);
        for (double width = 400; width >= 0; width -= 0.5) {
            const Proposal offer{width, 400 - width};
            EXPECT_EQ(face.sizeThatFits(offer, shared), sizeOf(face, offer)) << width;
        }
    }
}

}  // namespace
}  // namespace views
