#include "mathservices/random_stream.h"

namespace {
constexpr std::uint64_t kMultiplier = 1140671485;
constexpr std::uint64_t kIncrement = 12820163;
constexpr std::uint32_t kMask = 0xFFFFFF;
constexpr std::uint32_t kRepeatableState = 0x8000BF;
} // namespace

float RandomStream::Draw() {
    state_ = static_cast<std::uint32_t>((state_ * kMultiplier + kIncrement) & kMask);
    // The state has 24 bits, so the quotient is exact in single precision.
    return static_cast<float>(state_) / 16777216.0f;
}

float RandomStream::Draw(int argument) {
    if (argument < 0) {
        state_ = kRepeatableState;
    }
    return Draw();
}

void RandomStream::SeedStream(std::int32_t n) {
    const auto bits = static_cast<std::uint32_t>(n);
    const std::uint32_t h = (bits ^ (bits >> 16)) & 0xFFFF;
    state_ = (state_ & 0xFF) | (h << 8);
}
