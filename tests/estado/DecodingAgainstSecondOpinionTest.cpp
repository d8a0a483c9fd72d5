#include "estado/IndependentReader.hpp"
#include "estado/RandomSnapshots.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace {

using nurva::EstadoParaWidgets;

std::optional<EstadoParaWidgets> decoded(const std::string& text) {
    try {
        return foundation::JSONDecoder{}.decode<EstadoParaWidgets>(text);
    } catch (const foundation::DecodingError&) {
        return std::nullopt;
    }
}

std::optional<EstadoParaWidgets> decodedByParts(const std::string& text) {
    try {
        return foundation::decodeByParts<EstadoParaWidgets>(text);
    } catch (const foundation::DecodingError&) {
        return std::nullopt;
    }
}

bool isJSON(const std::string& text) {
    foundation::JSONReader reader(foundation::withoutByteOrderMark(text));
    return reader.isAtEnd(reader.skipValue(reader.begin()));
}

struct Counts {
    int accepted = 0;
    int refused = 0;
    int undecided = 0;
};

/// Has both readers judge one text.
void compare(const std::string& text, Counts& counts) {
    const auto ours = decoded(text);
    const auto byParts = decodedByParts(text);
    ASSERT_EQ(ours.has_value(), byParts.has_value());
    const IndependentVerdict theirs = independentVerdict(text);
    if (theirs.hasOpinion) {
        ASSERT_EQ(isJSON(text), theirs.isJSON);
        ASSERT_EQ(ours.has_value(), theirs.estado.has_value());
    } else {
        ++counts.undecided;
    }
    ++(ours ? counts.accepted : counts.refused);
    if (!ours)
        return;
    ASSERT_TRUE(exactlyEqual(*ours, *byParts));
    ASSERT_TRUE(!theirs.hasOpinion || exactlyEqual(*ours, *theirs.estado));
    const std::string written = foundation::JSONEncoder{}.encode(*ours);
    const auto again = decoded(written);
    ASSERT_TRUE(again && exactlyEqual(*again, *ours)) << written;
    const IndependentVerdict elsewhere = independentVerdict(written);
    ASSERT_TRUE(elsewhere.estado && exactlyEqual(*elsewhere.estado, *ours)) << written;
}

TEST(DecodingAgainstSecondOpinion, AgreesOnEverySnapshotAndItsValues) {
    const int count = std::getenv("NURVA_LONG") ? 1'000'000 : 5'000;
    RandomSnapshots snapshots(2001);
    Counts counts;
    for (int i = 0; i < count; ++i) {
        const std::string text = i % 5 < 2   ? snapshots.intact()
                                 : i % 5 < 4 ? snapshots.spoiled()
                                             : snapshots.damaged();
        compare(text, counts);
        if (HasFatalFailure())
            FAIL() << "after " << i << " snapshots: " << text;
    }
    EXPECT_GT(counts.accepted, count / 3);
    EXPECT_GT(counts.refused, count / 4);
    EXPECT_LT(counts.undecided, count / 100);
    RecordProperty("snapshots", count);
    RecordProperty("accepted", counts.accepted);
    RecordProperty("refused", counts.refused);
    RecordProperty("undecided", counts.undecided);
}

TEST(DecodingAgainstSecondOpinion, WhatIsMadeUpIntactIsAccepted) {
    RandomSnapshots snapshots(1);
    for (int i = 0; i < 500; ++i) {
        const std::string text = snapshots.intact();
        ASSERT_TRUE(decoded(text)) << text;
    }
}

}  // namespace
