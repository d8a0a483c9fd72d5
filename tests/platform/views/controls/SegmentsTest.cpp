#include "platform/views/Laid.hpp"
#include "platform/views/controls/Button.hpp"
#include "platform/views/controls/Segments.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/view/ViewList.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace views {
namespace {

Control numbered(int number) {
    return {.label = std::to_string(number),
            .action = {.identifier = "Note", .parameters = {{"number", number / 10.0}}}};
}

View segments(int count) {
    return Segments(count, numbered);
}

/// The same as a stack of buttons.
View buttons(int count) {
    std::vector<View> members;
    for (int number = 1; number <= count; ++number)
        members.push_back(Button(numbered(number).action, Color::clear())
                              .accessibilityLabel(numbered(number).label));
    return HStack{}({ViewList(members)});
}

TEST(Segments, AreAsLargeAsARowOfClearButtons) {
    for (const int count : {2, 3, 10})
        for (const auto& width : {std::optional<double>(), std::optional(0.0), std::optional(77.7)})
            for (const auto& height : {std::optional<double>(), std::optional(16.0)})
                EXPECT_EQ(sizeOf(segments(count), {width, height}),
                          sizeOf(buttons(count), {width, height}));
}

TEST(Segments, AreDrawnAsARowOfClearButtons) {
    for (const int count : {2, 3, 10})
        for (double width = 0; width <= 200; width += 0.7)
            EXPECT_EQ(drawn(segments(count), {width, 16}), drawn(buttons(count), {width, 16}))
                << count << " in " << width;
}

TEST(Segments, AreMadeOnlyWhenTheyAreDrawn) {
    int made = 0;
    const View view = Segments(10, [&](int number) {
        ++made;
        return numbered(number);
    });
    sizeOf(view, {100, 16});
    EXPECT_EQ(made, 0);
    drawn(view, {100, 16});
    EXPECT_EQ(made, 10);
}

}  // namespace
}  // namespace views
