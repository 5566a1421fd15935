#pragma once

#include <cstdint>

namespace zelvo {

/// The game's one random generator: linear congruential, 24 bits, never seeded, so that games
/// differ by the clock and the player alone.
struct RandomGenerator {
  static constexpr std::uint32_t modulus = 1U << 24U;

  std::uint32_t state = 327'680;

  /// Steps the state for an argument above 0, and gives the state as a share of `modulus`. An
  /// argument of 0 gives the last number once more.
  std::uint32_t Next(int argument) {
    if (argument > 0) {
      state =
          static_cast<std::uint32_t>((std::uint64_t{state} * 1'140'671'485 + 12'820'163) % modulus);
    }
    return state;
  }
};

}  // namespace zelvo
