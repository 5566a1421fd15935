#pragma once

#include <functional>
#include <memory>

#include "faces/desktop/wave_file.h"

namespace zelvo {

/// What makes a sound heard. None of its functions waits for the machine.
class SoundPlayer {
 public:
  SoundPlayer() = default;
  SoundPlayer(const SoundPlayer&) = delete;
  SoundPlayer& operator=(const SoundPlayer&) = delete;
  virtual ~SoundPlayer() = default;

  /// Starts a sound; one that plays is cut off.
  virtual void Start(const WaveFile& wave) = 0;
  /// False once nothing more can be heard.
  virtual bool IsPlaying() = 0;
  /// False once a sound found that the machine has nothing to play it on.
  virtual bool IsThere() = 0;
};

/// A player on the machine's sound server. It calls `over`, from a thread of its own, when a sound
/// is over or cannot be heard.
std::unique_ptr<SoundPlayer> MakeSoundPlayer(std::function<void()> over);

}  // namespace zelvo
