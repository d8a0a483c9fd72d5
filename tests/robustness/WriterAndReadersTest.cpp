#include "robustness/Workplace.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <thread>
#include <vector>

namespace {

using nurva::EstadoParaWidgets;

/// The n-th snapshot: short and long ones in turn, so that a torn one would show.
EstadoParaWidgets published(std::int64_t number) {
    EstadoParaWidgets estado = Workplace::snapshot();
    estado.razon = std::string(static_cast<std::size_t>(number % 50) * 400, 'r');
    estado.salidasSinMedir = number;
    return estado;
}

TEST(WriterAndReaders, ThousandSnapshotsASecondAreSeenWholeAndInTheirOrder) {
    const int count = std::getenv("NURVA_LONG") ? 60'000 : 1'000;
    const Workplace workplace;
    workplace.publish(published(0));
    std::atomic<bool> done = false;
    std::atomic<int> reads = 0;
    std::vector<std::jthread> readers(4);
    for (auto& reader : readers)
        reader = std::jthread([&] {
            std::int64_t last = 0;
            for (; !done; ++reads) {
                const auto estado = workplace.loaded();
                ASSERT_TRUE(estado);
                ASSERT_EQ(*estado, published(estado->salidasSinMedir));
                ASSERT_GE(estado->salidasSinMedir, last);
                last = estado->salidasSinMedir;
            }
        });
    const auto begin = std::chrono::steady_clock::now();
    for (int number = 1; number <= count; ++number) {
        workplace.publish(published(number));
        std::this_thread::sleep_until(begin + std::chrono::milliseconds(number));
    }
    const auto end = std::chrono::steady_clock::now();
    done = true;
    readers.clear();

    EXPECT_GT(reads, 0);
    EXPECT_EQ(workplace.loaded(), published(count));
    RecordProperty("snapshots", count);
    RecordProperty("reads", reads);
    RecordProperty("seconds",
                   static_cast<int>(std::chrono::ceil<std::chrono::seconds>(end - begin).count()));
}

}  // namespace
