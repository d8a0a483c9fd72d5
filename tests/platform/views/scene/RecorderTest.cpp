#include "platform/views/scene/Recorder.hpp"

#include <gtest/gtest.h>

#include <functional>

namespace views {
namespace {

constexpr Color amber{0.9, 0.7, 0.3};
constexpr Color grey{0.1, 0.1, 0.1};
constexpr Size card{100, 50};

Scene recorded(const std::function<void(Recorder&)>& record) {
    Recorder recorder(card);
    record(recorder);
    return std::move(recorder).finish();
}

FillShape rectangle(const Rect& frame, const Color& color = amber) {
    return {Rectangle{}, frame, color};
}
DrawText text(const Rect& frame, const char* string) {
    return {.frame = frame, .text = string, .lines = {string}, .color = amber};
}

TEST(Recorder, TakesDownEveryKindInDrawingOrder) {
    const FillShape fill = rectangle({0, 0, 9, 9});
    const StrokeShape border{Capsule{}, {1, 1, 7, 7}, 1, grey};
    const FillPath area{{{0, 0}, {5, 5}, {0, 9}}, amber};
    const StrokePath curve{{{0, 0}, {5, 5}}, {}, amber};
    const DrawSymbol symbol{"plus", {2, 2, 7, 7}, {.size = 9}, amber};
    const DrawText label = text({3, 3, 20, 13}, "uno");
    const Scene scene = recorded([&](Recorder& recorder) {
        recorder.fill(fill);
        recorder.stroke(border);
        recorder.fill(area);
        recorder.stroke(curve);
        recorder.draw(symbol);
        recorder.draw(label);
        recorder.background(grey);
    });
    EXPECT_EQ(scene.size, card);
    EXPECT_EQ(scene.background, grey);
    EXPECT_EQ(scene.drawing, (std::vector<Command>{fill, border, area, curve, symbol, label}));
}

TEST(Recorder, LeavesOutWhatLiesWhollyOutsideTheCard) {
    struct Case {
        Rect frame;
        bool isIn;
    };
    const Case cases[] = {
        {{-10, 0, 10, 10}, false},   {{-10, 0, 10.5, 10}, true}, {{100, 0, 10, 10}, false},
        {{99.5, 0, 10, 10}, true},   {{0, -10, 10, 10}, false},  {{0, -10, 10, 10.5}, true},
        {{0, 50, 10, 10}, false},    {{0, 49.5, 10, 10}, true},  {{-500, -500, 1000, 1000}, true},
        {{-10, -10, 5, 500}, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.frame.x << " " << c.frame.y);
        const Scene scene = recorded([&](Recorder& recorder) {
            recorder.fill(rectangle(c.frame));
            recorder.draw(DrawSymbol{"plus", c.frame, {}, amber});
            recorder.draw(text(c.frame, "uno"));
            recorder.control({.frame = c.frame}, [] {});
        });
        EXPECT_EQ(scene.drawing.size(), c.isIn ? 3u : 0u);
        EXPECT_EQ(scene.controls.size(), c.isIn ? 1u : 0u);
        EXPECT_EQ(scene.accessibility.size(), c.isIn ? 2u : 0u);
    }
}

TEST(Recorder, KeepsEmptyTextsOnTheCardAndItsEdges) {
    for (const double x : {0.0, 40.0, 100.0}) {
        const Scene scene = recorded([&](Recorder& recorder) {
            recorder.draw(text({x, 0, 0, 13}, ""));
        });
        EXPECT_EQ(scene.drawing.size(), 1u) << x;
        EXPECT_EQ(scene.accessibility.size(), 0u) << x;
    }
    for (const double x : {-1.0, 101.0})
        EXPECT_EQ(recorded([&](Recorder& r) {
                      r.draw(text({x, 0, 0, 13}, ""));
                  }).drawing.size(),
                  0u);
}

TEST(Recorder, KeepsALineWhoseWidthReachesIntoTheCard) {
    const auto isKept = [](double x, const StrokeStyle& style) {
        return !recorded([&](Recorder& recorder) {
                    recorder.stroke(StrokePath{{{x, 10}, {x, 20}}, style, amber});
                }).drawing.empty();
    };
    const StrokeStyle round{.lineWidth = 4, .lineJoin = LineJoin::round};
    EXPECT_TRUE(isKept(-1.5, round));
    EXPECT_FALSE(isKept(-2.5, round));
    const StrokeStyle pointed{.lineWidth = 4, .lineJoin = LineJoin::miter, .miterLimit = 10};
    EXPECT_TRUE(isKept(-19, pointed));
    EXPECT_FALSE(isKept(-21, pointed));

    const auto borderIsKept = [](double right) {
        return !recorded([&](Recorder& recorder) {
                    recorder.stroke(StrokeShape{Rectangle{}, {right - 9, 0, 9, 9}, 2, amber});
                }).drawing.empty();
    };
    EXPECT_TRUE(borderIsKept(-0.5));
    EXPECT_FALSE(borderIsKept(-1.5));
}

TEST(Recorder, LetsAnOpaqueRectangleReplaceAnotherOfTheSameFrame) {
    const Rect frame{0, 10, 100, 1};
    struct Case {
        Command below;
        Command above;
        std::size_t left;
    };
    const Case cases[] = {
        {rectangle(frame, grey), rectangle(frame), 1},
        {rectangle(frame, grey.opacity(0.1)), rectangle(frame), 1},
        {rectangle(frame, grey), rectangle(frame, amber.opacity(0.9)), 2},
        {rectangle(frame, grey), rectangle({0, 10, 99, 1}), 2},
        {rectangle(frame, grey), FillShape{Capsule{}, frame, amber}, 2},
        {FillShape{Circle{}, frame, grey}, rectangle(frame), 2},
    };
    for (const Case& c : cases) {
        const Scene scene = recorded([&](Recorder& recorder) {
            recorder.fill(std::get<FillShape>(c.below.alternatives()));
            recorder.fill(std::get<FillShape>(c.above.alternatives()));
        });
        ASSERT_EQ(scene.drawing.size(), c.left);
        EXPECT_EQ(scene.drawing.back(), c.above);
    }
}

TEST(Recorder, LeavesNoFillOfAClearColour) {
    const Scene scene = recorded([](Recorder& recorder) {
        recorder.fill(rectangle({0, 0, 9, 9}));
        recorder.fill(rectangle({0, 0, 9, 9}, Color::clear()));
        recorder.fill(FillShape{Circle{}, {0, 0, 9, 9}, amber.opacity(0)});
        recorder.fill(FillPath{{{0, 0}, {5, 5}, {0, 9}}, Color::clear()});
    });
    EXPECT_EQ(scene.drawing, (std::vector<Command>{rectangle({0, 0, 9, 9})}));
}

TEST(Recorder, PutsWhatAGroupDrawsIntoIt) {
    const Scene scene = recorded([](Recorder& recorder) {
        recorder.fill(rectangle({0, 0, 9, 9}));
        recorder.group(0.5, [&] {
            recorder.fill(rectangle({0, 0, 8, 8}));
            recorder.group(0.25, [&] { recorder.draw(text({0, 0, 7, 7}, "uno")); });
        });
        recorder.fill(rectangle({0, 0, 6, 6}));
    });
    EXPECT_EQ(scene.drawing,
              (std::vector<Command>{
                  rectangle({0, 0, 9, 9}),
                  Group{0.5, {rectangle({0, 0, 8, 8}), Group{0.25, {text({0, 0, 7, 7}, "uno")}}}},
                  rectangle({0, 0, 6, 6}),
              }));
}

TEST(Recorder, LeavesOutAGroupWithNothingInIt) {
    const Scene scene = recorded([](Recorder& recorder) {
        recorder.group(0.5, [&] { recorder.fill(rectangle({200, 0, 9, 9})); });
        recorder.group(0.5, [] {});
    });
    EXPECT_EQ(scene.drawing, std::vector<Command>{});
}

TEST(Recorder, DoesNotReplaceARectangleAcrossTheEdgeOfAGroup) {
    const Scene scene = recorded([](Recorder& recorder) {
        recorder.fill(rectangle({0, 0, 9, 9}, grey));
        recorder.group(0.5, [&] { recorder.fill(rectangle({0, 0, 9, 9})); });
        recorder.fill(rectangle({0, 0, 9, 9}, grey));
    });
    EXPECT_EQ(scene.drawing.size(), 3u);
}

TEST(Recorder, SpeaksInTheOrderOfDeclaration) {
    const Scene scene = recorded([](Recorder& recorder) {
        recorder.draw(text({0, 0, 20, 13}, "uno"));
        recorder.control({.frame = {0, 20, 20, 13}, .enabled = false}, [&] {
            recorder.draw(text({0, 20, 10, 13}, "dos"));
            recorder.draw(text({10, 20, 10, 13}, "tres"));
        });
        recorder.draw(text({0, 0, 0, 13}, ""));
        recorder.draw(text({0, 35, 20, 13}, "cuatro"));
    });
    EXPECT_EQ(scene.accessibility,
              (std::vector<AccessibilityElement>{
                  {AccessibilityRole::text, "uno", true, {0, 0, 20, 13}},
                  {AccessibilityRole::button, "dos, tres", false, {0, 20, 20, 13}},
                  {AccessibilityRole::text, "cuatro", true, {0, 35, 20, 13}},
              }));
    EXPECT_EQ(scene.controls, (std::vector<Control>{{{0, 20, 20, 13}, "dos, tres", false, {}}}));
}

TEST(Recorder, SpeaksTheWholeTextWhereItsLineIsCut) {
    const Scene scene = recorded([](Recorder& recorder) {
        recorder.draw(DrawText{.frame = {0, 0, 20, 13}, .text = "uno dos", .lines = {"un…"}});
    });
    EXPECT_EQ(scene.accessibility.at(0).label, "uno dos");
}

}  // namespace
}  // namespace views
