#include "platform/foundation/json/JSONEncoder.hpp"
#include "platform/views/scene/SceneJSON.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

constexpr Color amber{0.9, 0.7, 0.3, 1};

std::string jsonOf(const Command& command) {
    return foundation::JSONEncoder().encode(command);
}

TEST(SceneJSON, OfFilledShapes) {
    EXPECT_EQ(jsonOf(FillShape{Capsule{}, {1, 2, 3.5, 4}, amber}),
              R"({"op":"fill","shape":"capsule","frame":[1,2,3.5,4],"color":[0.9,0.7,0.3,1]})");
    EXPECT_EQ(jsonOf(FillShape{Circle{}, {1, 2, 3, 3}, amber}),
              R"({"op":"fill","shape":"circle","frame":[1,2,3,3],"color":[0.9,0.7,0.3,1]})");
    EXPECT_EQ(jsonOf(FillShape{Rectangle{}, {1, 2, 3, 4}, amber.opacity(0.5)}),
              R"({"op":"fill","shape":"rectangle","frame":[1,2,3,4],"color":[0.9,0.7,0.3,0.5]})");
    EXPECT_EQ(jsonOf(FillShape{RoundedRectangle{.cornerRadius = 7}, {1, 2, 3, 4}, amber}),
              R"({"op":"fill","shape":"roundedRectangle","frame":[1,2,3,4],"radius":7,)"
              R"("color":[0.9,0.7,0.3,1]})");
}

TEST(SceneJSON, OfBorders) {
    EXPECT_EQ(jsonOf(StrokeShape{RoundedRectangle{.cornerRadius = 6.5}, {1, 2, 3, 4}, 1, amber}),
              R"({"op":"stroke","shape":"roundedRectangle","frame":[1,2,3,4],"radius":6.5,)"
              R"("lineWidth":1,"color":[0.9,0.7,0.3,1]})");
    EXPECT_EQ(jsonOf(StrokeShape{Capsule{}, {1, 2, 3, 4}, 1.5, amber}),
              R"({"op":"stroke","shape":"capsule","frame":[1,2,3,4],)"
              R"("lineWidth":1.5,"color":[0.9,0.7,0.3,1]})");
}

TEST(SceneJSON, OfPaths) {
    EXPECT_EQ(jsonOf(FillPath{{{0, 44}, {0, 22}, {146, 44}}, amber}),
              R"({"op":"fill","shape":"path","points":[[0,44],[0,22],[146,44]],)"
              R"("color":[0.9,0.7,0.3,1]})");
    EXPECT_EQ(jsonOf(StrokePath{
                  {{0, 22}, {146, 11.5}},
                  {.lineWidth = 2.2, .lineCap = LineCap::round, .lineJoin = LineJoin::round},
                  amber}),
              R"({"op":"stroke","shape":"path","points":[[0,22],[146,11.5]],"lineWidth":2.2,)"
              R"("cap":"round","join":"round","miterLimit":10,"color":[0.9,0.7,0.3,1]})");
    EXPECT_EQ(jsonOf(StrokePath{{}, {.miterLimit = 4}, amber}),
              R"({"op":"stroke","shape":"path","points":[],"lineWidth":1,)"
              R"("cap":"butt","join":"miter","miterLimit":4,"color":[0.9,0.7,0.3,1]})");
}

TEST(SceneJSON, OfTexts) {
    EXPECT_EQ(
        jsonOf(DrawText{
            {1, 2, 30, 14}, "uno \"dos\"", {"uno…"}, {.size = 11, .weight = semibold}, 0.9, amber}),
        R"({"op":"text","frame":[1,2,30,14],"text":"uno \"dos\"","lines":["uno…"],)"
        R"("size":11,"weight":"semibold","design":"default","tracking":0.9,)"
        R"("color":[0.9,0.7,0.3,1]})");
    EXPECT_EQ(jsonOf(DrawText{{1, 2, 0, 14},
                              "",
                              {""},
                              {.size = 26, .weight = medium, .design = FontDesign::monospaced},
                              0,
                              amber}),
              R"({"op":"text","frame":[1,2,0,14],"text":"","lines":[""],)"
              R"("size":26,"weight":"medium","design":"monospaced","tracking":0,)"
              R"("color":[0.9,0.7,0.3,1]})");
}

TEST(SceneJSON, OfSymbols) {
    EXPECT_EQ(jsonOf(DrawSymbol{"plus", {1, 2, 7, 7}, {.size = 9, .weight = bold}, amber}),
              R"({"op":"symbol","name":"plus","frame":[1,2,7,7],"size":9,"weight":"bold",)"
              R"("color":[0.9,0.7,0.3,1]})");
    EXPECT_EQ(jsonOf(DrawSymbol{"plus", {1, 2, 7, 7}, {.size = 9}, amber}),
              R"({"op":"symbol","name":"plus","frame":[1,2,7,7],"size":9,"weight":"regular",)"
              R"("color":[0.9,0.7,0.3,1]})");
}

TEST(SceneJSON, OfGroups) {
    EXPECT_EQ(jsonOf(Group{0.45, {FillShape{Circle{}, {1, 2, 3, 3}, amber}, Group{0.5, {}}}}),
              R"({"op":"group","opacity":0.45,"drawing":[)"
              R"({"op":"fill","shape":"circle","frame":[1,2,3,3],"color":[0.9,0.7,0.3,1]},)"
              R"({"op":"group","opacity":0.5,"drawing":[]}]})");
}

TEST(SceneJSON, OfAScene) {
    const Scene scene{
        .size = {170, 170},
        .background = {0.086, 0.098, 0.106},
        .drawing = {FillShape{Circle{}, {1, 2, 3, 3}, amber}},
        .controls = {{{1, 2, 22, 22},
                      "Subir",
                      false,
                      {"PonerVolumen",
                       {{"clave", std::string("a/b")}, {"nivel", 0.5}, {"si", true}}}},
                     {{1, 2, 3, 4}, "", true, {"AlternarEncendido", {}}}},
        .accessibility = {{AccessibilityRole::text, "uno", true, {1, 2, 3, 4}},
                          {AccessibilityRole::button, "Subir", false, {1, 2, 22, 22}}},
    };
    foundation::Encoder encoder;
    encoder.encodeObject([&] { encodeMembers(encoder, scene); });
    EXPECT_EQ(
        encoder.text(),
        R"({"background":[0.086,0.098,0.106,1],)"
        R"("drawing":[{"op":"fill","shape":"circle","frame":[1,2,3,3],"color":[0.9,0.7,0.3,1]}],)"
        R"("controls":[{"frame":[1,2,22,22],"label":"Subir","enabled":false,)"
        R"("action":"PonerVolumen","parameters":{"clave":"a\/b","nivel":0.5,"si":true}},)"
        R"({"frame":[1,2,3,4],"label":"","enabled":true,)"
        R"("action":"AlternarEncendido","parameters":{}}],)"
        R"("accessibility":[{"role":"text","label":"uno","frame":[1,2,3,4]},)"
        R"({"role":"button","label":"Subir","enabled":false,"frame":[1,2,22,22]}]})");
}

TEST(SceneJSON, RefusesNumbersThatAreNotFinite) {
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(jsonOf(FillPath{{{0, notANumber}}, amber}), foundation::EncodingError);
}

}  // namespace
}  // namespace views
