#pragma once

#include <memory>

#include "faces/desktop/wave_file.h"

namespace zelvo {

/// What makes a sound heard.
class SoundPlayer {
 public:
  SoundPlayer() = default;
  SoundPlayer(const SoundPlayer&) = delete;
  SoundPlayer& operator=(const SoundPlayer&) = delete;
  virtual ~SoundPlayer() = default;

  /// False if the machine has nothing to play on.
  virtual bool IsThere() = 0;
  /// Starts a sound and returns at once; one that plays is cut off.
  virtual void Start(const WaveFile& wave) = 0;
  /// False once nothing more can be heard.
  virtual bool IsPlaying() = 0;
};

/// The machine's own output. It is looked for at the first question, since that takes a while.
std::unique_ptr<SoundPlayer> MakeSoundPlayer();

}  // namespace zelvo
