#include <gtest/gtest.h>

#include "mathservices/random_stream.h"

namespace {
// The states after Draw(-1) and SeedStream(seed), draw by draw. These pin the stream of
// every stored problem: they must never change.
void ExpectStates(int seed, std::initializer_list<std::uint32_t> states) {
    RandomStream stream;
    stream.Draw(-1);
    stream.SeedStream(seed);
    for (std::uint32_t expected : states) {
        const float value = stream.Draw();
        EXPECT_EQ(stream.State(), expected) << "seed " << seed;
        EXPECT_EQ(value, static_cast<float>(expected) / 16777216.0f);
    }
}
} // namespace

TEST(RandomStream, GoldenStatesForSeeds) {
    ExpectStates(0, {5584177, 5374768, 1463603, 8989482, 2180421});
    ExpectStates(1, {10039857, 12192816, 4340275, 14253098, 11817541});
    ExpectStates(1234, {966449, 13460784, 11284275, 11509034, 16117573});
    ExpectStates(8999, {4702257, 6709808, 1390643, 14189098, 5193797});
}

TEST(RandomStream, NegativeSeedFoldsItsHighHalf) {
    // -1 folds to 0: the high and low halves cancel.
    ExpectStates(-1, {5584177, 5374768, 1463603, 8989482, 2180421});
}

TEST(RandomStream, StartsFromItsFixedState) {
    RandomStream stream;
    EXPECT_EQ(stream.State(), 0x50000u);
    stream.Draw();
    EXPECT_EQ(stream.State(), (0x50000ull * 1140671485 + 12820163) % (1u << 24));
}

TEST(RandomStream, DrawMinusOneRestartsTheStream) {
    RandomStream a;
    RandomStream b;
    for (int i = 0; i < 17; ++i) a.Draw();
    EXPECT_EQ(a.Draw(-1), b.Draw(-1));
    EXPECT_EQ(a.State(), b.State());
}

TEST(RandomStream, SeedKeepsTheLowByte) {
    RandomStream stream;
    stream.Draw(-1);
    const std::uint32_t low = stream.State() & 0xFF;
    stream.SeedStream(0x12345678);
    const std::uint32_t h = (0x12345678u ^ 0x1234u) & 0xFFFF;
    EXPECT_EQ(stream.State(), low | (h << 8));
}

TEST(RandomStream, DrawsStayInTheUnitInterval) {
    RandomStream stream;
    for (int i = 0; i < 100000; ++i) {
        const float v = stream.Draw();
        ASSERT_GE(v, 0.0f);
        ASSERT_LT(v, 1.0f);
    }
}
