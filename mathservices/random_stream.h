#pragma once
#include <cstdint>

// The 24-bit linear congruential stream behind every problem. Problems are stored as
// codes that replay this stream, so its constants can never change.
class RandomStream {
public:
    // The next number of the stream, not below 0 and below 1, in single precision.
    float Draw();
    // A draw with a negative argument: puts the stream into its repeatable state, then
    // advances once as Draw() does.
    float Draw(int argument);
    // Starts the stream from n, keeping the low byte of the state.
    void SeedStream(std::int32_t n);

    std::uint32_t State() const { return state_; }

private:
    std::uint32_t state_ = 0x50000;
};
